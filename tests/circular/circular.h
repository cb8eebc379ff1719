// Arguments and checks that the tests of all circular functions share.
#pragma once

#include <cmath>
#include <string>
#include <string_view>

#include "accuracy/quarter_turns.h"
#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {

// The numbers of every binade that lie closest to a multiple of pi/2, and others close to one.
inline Arguments1 HardestFloats() {
  Arguments1 x = accuracy::NearestToQuarterTurns(true);
  for (double k : {1.0, 2.0, 3.0, 11.0, 22.0, 355.0, 710.0, 103993.0, 208341.0, 312689.0, 833719.0})
    x = x + Around(k * 1.57079632679489661923, true, 3) + Around(k, true, 1);
  return WithNegatives(x);
}
inline Arguments1 HardestDoubles() {
  Arguments1 x = accuracy::NearestToQuarterTurns(false);
  for (double k : {1.0, 2.0, 3.0, 11.0, 22.0, 355.0, 710.0, 103993.0, 312689.0, 245850922.0, 411557987.0, 6134899525417045.0})
    x = x + Around(k * 1.57079632679489661923, false, 3) + Around(k, false, 1);
  return WithNegatives(x);
}

// Both sides of a threshold, and of its negative.
inline Arguments1 AroundThreshold(double x, bool is_32bit) { return WithNegatives(Around(x, is_32bit)); }

// Every exponent from the smallest denormal to the largest finite number.
inline Arguments1 AllFloatExponents() {
  return WithNegatives(BetweenMagnitudes(1.5e-45, 3.4e38) + Around(3.4028234663852886e38, true, 3));
}
inline Arguments1 AllDoubleExponents() {
  return WithNegatives(BetweenMagnitudes(5e-324, 1.79e308) + Around(1.7976931348623157e308, false, 3));
}

// A lane with a huge argument, an infinity or a NaN does not change the results of the lanes beside it.
inline void ExpectNeighboursUnchanged(std::string_view name, bool is_32bit) {
  const double largest = is_32bit ? 3e38 : 1e300;
  for (const Export* entry : ExportsNamed(name)) {
    for (const std::string& library : RunnableLibraries()) {
      std::string reason;
      const Callee callee(*TestLibrary(library, "", reason), *entry);
      Batch ordinary(*entry);
      const Arguments1 x = Between(-200, 200, 100) + Arguments1{0.0, -0.0, 0x1p-140, -0x1p-149} + Between(-1e-3, 1e-3, 30);
      for (double argument : x) ordinary.src1.Append({FormatOf(entry->input).pattern(argument), 0});
      const Output expected = callee.Run(ordinary);
      for (double huge : {largest, -largest, HUGE_VAL, std::nan("")}) {
        for (size_t lane = 0; lane < x.size(); lane += 7) {
          Batch mixed(*entry);
          for (size_t i = 0; i < x.size(); ++i) mixed.src1.Append({FormatOf(entry->input).pattern(i == lane ? huge : x[i]), 0});
          const Output actual = callee.Run(mixed);
          for (size_t i = 0; i < x.size(); ++i) {
            if (i == lane) continue;
            ASSERT_EQ(actual.dst1[i].re, expected.dst1[i].re) << library << ' ' << entry->name << ' ' << x[i];
            ASSERT_EQ(actual.dst1[i].im, expected.dst1[i].im) << library << ' ' << entry->name << ' ' << x[i];
            if (entry->outputs() == 2) {
              ASSERT_EQ(actual.dst2[i].re, expected.dst2[i].re) << library << ' ' << entry->name << ' ' << x[i];
            }
          }
        }
      }
    }
  }
}

// f(-x) has the bits of f(x), or of -f(x).
inline void ExpectSymmetry(std::string_view name, const Arguments1& x, bool is_odd) {
  for (const Export* entry : ExportsNamed(name)) {
    for (const std::string& library : RunnableLibraries()) {
      std::string reason;
      const Callee callee(*TestLibrary(library, "", reason), *entry);
      Batch batch(*entry), negated(*entry);
      for (double argument : x) {
        batch.src1.Append({FormatOf(entry->input).pattern(argument), 0});
        negated.src1.Append({FormatOf(entry->input).pattern(-argument), 0});
      }
      const Output first = callee.Run(batch), second = callee.Run(negated);
      const uint64_t sign = is_odd ? FormatOf(entry->output).pattern(-0.0) : 0;
      for (size_t i = 0; i < x.size(); ++i)
        ASSERT_EQ(first.dst1[i].re, second.dst1[i].re ^ sign) << library << ' ' << entry->name << ' ' << x[i];
    }
  }
}

}  // namespace lum::test
