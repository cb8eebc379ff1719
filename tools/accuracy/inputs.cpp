#include "accuracy/inputs.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>

#include "accuracy/generator.h"
#include "accuracy/hard_inputs.h"

namespace lum::accuracy {
namespace {

using support::Export;

// What is known of a function: its ordinary range by width of the type, and points whose neighbours are tried (poles, zeros,
// thresholds, ends of the domain). Each point is taken with both signs.
struct Domain {
  Interval range32, range64;
  std::vector<double> points;
};

// Bases at which the logarithms of the powers pass to another binade or scheme.
const std::vector<double> power_points = {1,      2,        0.5,          0.75,      2.0 / 3,  4.0 / 3,  1.484375,
                                          1.4375, 1.499512, 1.4133885438, 0.9921875, 1.015625, 0x1p-126, 0x1p-1022};

// Thresholds of the reductions, the numbers of each type nearest to a multiple of pi/2 (J.-M. Muller: Elementary Functions),
// and powers of 2 at which the reductions change their tables.
const std::vector<double> circular_points = {0x1p19,
                                             10000,
                                             8256,
                                             0x1p24,
                                             0x1p23,
                                             128000,
                                             65536.00349206588,
                                             0x1p17,
                                             0x1p30,
                                             8388607 * 3.14159265358979323846,
                                             0x1p31,
                                             0x1p39,
                                             0x1p127,
                                             0x1p-20,
                                             0x1p-27,
                                             1.5707963267948966,
                                             16367173 * 0x1p72,
                                             6381956970095103 * 0x1p797,
                                             0x1p1000};

const std::map<std::string_view, Domain>& Domains() {
  static const std::map<std::string_view, Domain> domains = {
      {"Acos", {{-1, 1}, {-1, 1}, {0.5, 1}}},
      {"Acosh",
       {{1, 100},
        {1, 1000},
        {1, 2, 1.25, 1.5, 1.0001220703125, 1.00000762939453125, 1.000244140625, 1.001, 1.01, 0x1p63, 0x1p512}}},
      {"Asin", {{-1, 1}, {-1, 1}, {0.5, 1}}},
      {"Asinh", {{-50, 50}, {-1000, 1000}, {1, 0.5, 2, 0.015625, 0.00390625, 0.0220947265625, 0x1p63, 0x1p512}}},
      {"Atan", {{-20, 20}, {-20, 20}, {0.125, 0.375, 1, 3.875, 7.625, 7.75, 7.875, 0x1p32, 0x1p128}}},
      {"Atanh", {{-1, 1}, {-1, 1}, {0.5, 1}}},
      {"CdfNorm", {{-12.9, 6}, {-37, 9}, {14.170185089111328, 38.485408335567335, 13, 37.5, 0x1p-7, 0x1p-8}}},
      {"CdfNormInv", {{0, 1}, {0, 1}, {0.5, 1, 0.25, 0.75, 0x1p-24, 0x1p-35, 1 - 0x1p-24, 1 - 0x1p-35}}},
      {"CIS", {{-100, 100}, {-100, 100}, circular_points}},
      {"Cbrt", {{-100, 100}, {-100, 100}, {1, 8, 27}}},
      {"Cos", {{-100, 100}, {-100, 100}, circular_points}},
      {"Cosh", {{-90, 90}, {-711, 711}, {87.33653259277344, 89.41598629223294, 707.7, 710.4758600739439, 1}}},
      {"Erf", {{-4, 4}, {-6, 6}, {2.5939, 3.6533, 3.8325, 5.9921875, 0.02734375, 0x1p-8, 1}}},
      {"ErfInv", {{-1, 1}, {-1, 1}, {1, 0.5, 0.75, 0x1p-35, 1 - 0x1p-24, 1 - 0x1p-35}}},
      {"Erfc", {{-4, 9}, {-6, 26}, {9.19, 10.054194450378418, 26.54, 27.226017111108366, 0x1p-7, 0x1p-8, 1}}},
      {"ErfcInv", {{0, 2}, {0, 2}, {1, 2, 0.5, 1.5, 0x1p-24, 0x1p-35, 2 - 0x1p-35}}},
      {"Exp",
       {{-104, 89},
        {-746, 710},
        {87.33654022216797, 88.72283172607422, 103.97207641601562, 707.7032713517042, 708.3964185322641, 709.782712893384,
         745.1332191019411, 1, 0x1p-52}}},
      {"Expm1", {{-20, 89}, {-40, 710}, {17.328679084777832, 37.42994775023705, 88.72283172607422, 709.782712893384, 1}}},
      {"Hypot", {{-10, 10}, {-10, 10}, {0x1p62, 0x1p63, 0x1p-62, 0x1p-63, 0x1p510, 0x1p511, 0x1p-510, 0x1p-511}}},
      {"Inv", {{-10, 10}, {-10, 10}, {1, 0x1p126, 0x1p-128, 0x1p1022, 0x1p-1024}}},
      {"InvCbrt", {{-100, 100}, {-100, 100}, {1, 8, 27}}},
      {"InvSqrt", {{0, 100}, {0, 100}, {1, 2, 4}}},
      {"Ln", {{0, 100}, {0, 100}, {1, 0.75, 1.5, 2, 0.5}}},
      {"Log10", {{0, 100}, {0, 100}, {1, 10, 100, 1000, 0.1, 0.75, 1.5}}},
      {"Log1p", {{-1, 100}, {-1, 100}, {1, 0x1p-24, 0x1p-53, 0.5}}},
      {"Pow", {{-10, 20}, {-10, 20}, power_points}},
      {"Powx", {{-10, 20}, {-10, 20}, power_points}},
      {"Pow2o3", {{-100, 100}, {-100, 100}, {1, 8, 27}}},
      {"Pow3o2", {{0, 100}, {0, 100}, {1, 2, 4, 0x1p-68, 0x1p84, 0x1p-646, 0x1p-680, 0x1p681}}},
      {"Sin", {{-100, 100}, {-100, 100}, circular_points}},
      {"SinCos", {{-100, 100}, {-100, 100}, circular_points}},
      {"Sinh",
       {{-90, 90},
        {-711, 711},
        {87.33653259277344, 89.41598629223294, 669.8, 707.7, 710.4758600739439, 0.0027076062, 0.0108304247, 0.0216608494, 1}}},
      {"Sqrt", {{0, 100}, {0, 100}, {1, 2, 4, 0x1p-78, 0x1p-916}}},
      {"Tan", {{-100, 100}, {-100, 100}, circular_points}},
      {"Tanh",
       {{-10, 10},
        {-22, 22},
        {1, 9.01, 19.06, 0.5, 0.0546875, 0.1875, 5, 10, 24, 0x1.0112211d747a8p-3, 0x1.00380353e830fp-4, 0x1.fffffff9c3aa7p-5}}},
  };
  return domains;
}

const Domain& DomainOf(const Export& entry) {
  static const Domain any{{-10, 10}, {-10, 10}, {1, 2, 0.5}};
  const auto known = Domains().find(entry.function);
  return known != Domains().end() ? known->second : any;
}

bool IsCircular(std::string_view function) {
  return function == "Sin" || function == "Cos" || function == "SinCos" || function == "CIS" || function == "Tan";
}

// Finite arguments along one axis.
std::vector<double> Axis(const Export& entry, size_t count, uint64_t seed) {
  Generator g(entry, seed);
  const Domain& domain = DomainOf(entry);
  const Interval range = entry.is_32bit() ? domain.range32 : domain.range64;

  std::vector<double> axis;
  for (double point : {0.0, g.Smallest(), g.SmallestNormal(), g.Largest()}) {
    for (int step = -3; step <= 3; ++step) axis.push_back(g.Neighbour(point, step));
    for (int step = -3; step <= 3; ++step) axis.push_back(-g.Neighbour(point, step));
  }
  for (double point : domain.points) {
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

Interval OrdinaryRange(const Export& entry) {
  const Domain& domain = DomainOf(entry);
  const Interval range = entry.is_32bit() ? domain.range32 : domain.range64;
  if (entry.function == "Pow" || entry.function == "Powx") return {0.1, 20};
  return {std::max(range.low, -20.0), std::min(range.high, 20.0)};
}

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
