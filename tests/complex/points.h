// Arguments over the complex plane.
#pragma once

#include <string>

#include "accuracy/inputs.h"
#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {

// The plane, the axes, the unit circle, parts of very different size, and besides these the neighbourhoods of the branch points
// of all functions, at distances down to the last place, and the cuts with both signs of zero.
inline std::vector<accuracy::Point> PlanePoints(const Export& entry, size_t count = 2500) {
  auto points = accuracy::SamplePoints(entry, count);
  const Format format = FormatOf(entry.input);
  const auto add = [&](double re, double im) {
    const double x = format.number(format.pattern(re)), y = format.number(format.pattern(im));
    for (double sign_x : {1.0, -1.0}) {
      for (double sign_y : {1.0, -1.0}) points.push_back({sign_x * x, sign_y * y, 0.5, 0.75});
    }
  };
  for (int e = 1; e <= format.fraction_bits; e += 3) {
    const double step = std::ldexp(1.0, -e);
    for (double near_one : {1 + step, 1 - step, 1.0}) {
      for (double other : {0.0, step, step * step, std::ldexp(1.0, -e / 2)}) {
        add(near_one, other);
        add(other, near_one);
      }
    }
  }
  for (double x : {1e-30, 0.25, 1.5, 40.0, 1e10, 1e30}) {
    for (double y : {0.0, 1e-36, 1e-20, 1e20}) {
      add(x, y);
      add(y, x);
    }
  }
  return points;
}

// Both types at all tags; a part is right to the last place but for numbers next to the middle between two neighbours.
inline void ExpectPartsWithinOneUlp(const std::string& function) {
  for (const char* type : {"_32fc", "_64fc"}) {
    const auto& entry = *ExportsNamed(function + type).at(0);
    ExpectComplexAccuracy(function + type, PlanePoints(entry), {ComplexBound::parts, 0.6});
  }
}

}  // namespace lum::test
