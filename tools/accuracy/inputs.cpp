#include "accuracy/inputs.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "accuracy/generator.h"
#include "accuracy/hard_inputs.h"
#include "support/declarations.h"

namespace lum::accuracy {
namespace {

using support::Export;

bool IsCircular(std::string_view function) {
  return function == "Sin" || function == "Cos" || function == "SinCos" || function == "CIS" || function == "Tan";
}

// Finite arguments along one axis.
std::vector<double> Axis(const Export& entry, size_t count, uint64_t seed) {
  Generator g(entry, seed);
  const support::Declaration& declaration = support::DeclarationOf(entry);
  const support::Interval range = declaration.ordinary;

  std::vector<double> axis;
  for (double point : {0.0, g.Smallest(), g.SmallestNormal(), g.Largest()}) {
    for (int step = -3; step <= 3; ++step) axis.push_back(g.Neighbour(point, step));
    for (int step = -3; step <= 3; ++step) axis.push_back(-g.Neighbour(point, step));
  }
  for (double point : declaration.thresholds) {
    for (int step = -40; step <= 40; ++step) {
      axis.push_back(g.Neighbour(g.Round(point), step));
      axis.push_back(g.Neighbour(g.Round(-point), step));
    }
  }
  // Borders of evenly spaced tables, whatever their spacing: k 2^-5 for ordinary arguments, and powers of 2.
  for (int k = -1024; k <= 1024; ++k) {
    for (int step = -1; step <= 1; ++step) axis.push_back(g.Neighbour(k / 32.0, step));
  }
  for (double power = g.Smallest(); power < g.Largest() / 2; power *= 2) {
    for (int step = -1; step <= 1; ++step) axis.push_back(g.Neighbour(power, step));
  }
  if (IsCircular(entry.function)) {
    for (int k = 1; k <= 4000; ++k) {
      const double multiple = g.Round(k * 1.5707963267948966);
      for (int step = -1; step <= 1; ++step) axis.push_back(g.Neighbour(multiple, step));
    }
  }
  const size_t random = count > axis.size() ? count - axis.size() : count / 2;
  for (size_t i = 0; i < random; ++i) {
    switch (i % 8) {
      case 0:
        axis.push_back(g.AnyBits());
        break;
      case 1:
        axis.push_back(g.LogUniform(10));
        break;
      case 2:
        axis.push_back(i % 64 == 2 ? g.Denormal() : g.LogUniform(60));
        break;
      default:
        axis.push_back(g.Uniform(range));
        break;
    }
  }
  std::erase_if(axis, [](double x) { return !std::isfinite(x); });
  return axis;
}

// Two real arguments: independent ones, close ones, and for powers exponents that keep the result finite.
std::vector<Point> RealPairs(const Export& entry, size_t count) {
  const auto first = Axis(entry, count, 1);
  Generator g(entry, 2);
  std::vector<Point> points;
  const bool is_power = entry.function == "Pow" || entry.function == "Powx";
  const double limit = entry.is_32bit() ? 127 : 1022;
  for (size_t i = 0; i < first.size(); ++i) {
    const double x = first[i];
    double y = 0;
    if (is_power && i % 4 != 0) {
      const double magnitude = std::log2(std::fabs(x));
      y = magnitude == 0 ? g.LogUniform(40) : g.Uniform({-limit - 20, limit + 2}) / magnitude;
      if (i % 4 == 1) y = std::rint(y);
      y = g.Round(y);
    } else if (i % 4 == 1) {
      y = g.Neighbour(x, static_cast<int>(g.Bits() % 9) - 4);
    } else if (i % 4 == 2) {
      y = g.Round(x * g.LogUniform(4));
    } else {
      y = i % 8 == 0 ? g.AnyBits() : g.LogUniform(20);
    }
    if (std::isfinite(y)) points.push_back({x, 0, y, 0});
  }
  return points;
}

// Complex arguments over the plane, the axes, the unit circle, and with parts of very different size.
std::vector<Point> ComplexPoints(const Export& entry, size_t count) {
  Generator g(entry, 3);
  std::vector<Point> points;
  const bool two = entry.inputs() == 2 || entry.has_parameter();
  const auto part = [&](size_t kind) -> double {
    switch (kind % 5) {
      case 0:
        return g.Uniform({-2, 2});
      case 1:
        return g.LogUniform(20);
      case 2:
        return g.Uniform({-10, 10});
      case 3:
        return g.Uniform({-1, 1});
      default:
        return g.LogUniform(3);
    }
  };
  for (size_t i = 0; i < count; ++i) {
    Point p{part(i), part(i / 5), 0, 0};
    if (i % 50 == 7) p.re1 = g.AnyBits();
    if (i % 50 == 9) p.im1 = g.AnyBits();
    if (i % 100 == 11) p.re1 = (i % 200 == 11) ? 0.0 : -0.0;
    if (i % 100 == 13) p.im1 = (i % 200 == 13) ? 0.0 : -0.0;
    if (i % 20 == 15) {
      const double angle = g.Uniform({-3.2, 3.2});
      p.re1 = g.Round(std::cos(angle));
      p.im1 = g.Round(std::sin(angle));
    }
    if (two) {
      p.re2 = part(i / 3);
      p.im2 = part(i / 7);
    }
    points.push_back(p);
  }
  return points;
}

}  // namespace

const char* NameOf(InputClass inputs) {
  switch (inputs) {
    case InputClass::sample:
      return "sample";
    case InputClass::borders:
      return "borders";
    case InputClass::quarter_turns:
      return "quarter-turns";
    case InputClass::unit_circle:
      return "unit-circle";
  }
  return "";
}

std::vector<Point> PointsOf(const Export& entry, InputClass inputs, size_t count) {
  switch (inputs) {
    case InputClass::sample:
      return SamplePoints(entry, count);
    case InputClass::borders:
      return PointsAtBorders(entry, count);
    case InputClass::quarter_turns:
      return PointsAtQuarterTurns(entry);
    case InputClass::unit_circle:
      return PointsOnUnitCircle(entry, count);
  }
  return {};
}

std::vector<Point> SamplePoints(const Export& entry, size_t count) {
  if (support::IsComplex(entry.input)) return ComplexPoints(entry, count);
  if (entry.inputs() == 2 || entry.has_parameter()) return RealPairs(entry, count);
  std::vector<Point> points;
  for (double x : Axis(entry, count, 1)) points.push_back({x, 0, 0, 0});
  return points;
}

}  // namespace lum::accuracy
