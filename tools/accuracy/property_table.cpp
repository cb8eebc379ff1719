#include "accuracy/property_table.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "accuracy/exact_points.h"

namespace lum::accuracy {
namespace {

using support::Export;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double pi = std::numbers::pi;
constexpr std::array kept{1, 1, 1, 1}, turned{-1, -1, -1, -1};

const Symmetry odd{"f(-x) = -f(x)", turned, false, {-1, -1}};
const Symmetry even{"f(-x) = f(x)", turned, false, {1, 1}};
const Symmetry commutes{"f(x, y) = f(y, x)", kept, true, {1, 1}};
const Symmetry conjugate{"f(conj z) = conj f(z)", {1, -1, 1, -1}, false, {1, -1}};
const Symmetry conjugate_sum{"f(conj z) = conj f(z) but for -0", {1, -1, 1, -1}, false, {1, -1}, true};
const Symmetry odd_complex{"f(-z) = -f(z)", turned, false, {-1, -1}};
const Symmetry even_complex{"f(-z) = f(z)", turned, false, {1, 1}};
const Symmetry commutes_complex{"f(z, w) = f(w, z)", kept, true, {1, 1}};

double TowardsZero(double x) {
  const auto y = static_cast<float>(x);
  return static_cast<double>(std::fabs(static_cast<double>(y)) > std::fabs(x) ? std::nextafter(y, 0.0f) : y);
}

Range Between(const char* text, double low, double high, size_t part = 0) { return {text, part, low, high}; }
Monotone Rises(const char* text, double from = -infinity, double to = infinity, size_t part = 0) {
  return {text, part, 1, from, to};
}
Monotone Falls(const char* text, double from = -infinity, double to = infinity, size_t part = 0) {
  return {text, part, -1, from, to};
}

// Bounds are rounded to the type, as results are.
const std::map<std::string_view, Properties>& Real() {
  static const Monotone rises = Rises("rises");
  static const Symmetry odd_first{"f(-y, x) = -f(y, x)", {-1, 1, 1, 1}, false, {-1, 1}};
  static const Symmetry even_first{"f(-x, y) = f(x, y)", {-1, 1, 1, 1}, false, {1, 1}};
  static const Range no_sign = Between("f(x) >= 0", 0, infinity);
  static const std::map<std::string_view, Properties> table = {
      {"Abs", {{even}, {no_sign}, {}, {}}},
      {"Sqr", {{even}, {no_sign}, {Rises("rises for x >= 0", 0)}, {}}},
      {"Add", {{commutes}, {}, {}, {}}},
      {"Mul", {{commutes}, {}, {}, {}}},
      {"Sub", {{{"f(-x, -y) = -f(x, y) but for -0", turned, false, {-1, 1}, true}}, {}, {}, {}}},
      {"Ceil", {{}, {}, {rises}, {}}},
      {"Floor", {{}, {}, {rises}, {}}},
      {"Trunc", {{odd}, {}, {rises}, {}}},
      {"Rint", {{odd}, {}, {rises}, {}}},
      {"NearbyInt", {{odd}, {}, {rises}, {}}},
      {"Round", {{odd}, {}, {rises}, {}}},
      {"Frac", {{odd}, {Between("-1 <= f(x) <= 1", -1, 1)}, {}, {}}},
      {"Modf", {{odd}, {Between("-1 <= fraction <= 1", -1, 1, 1)}, {Rises("whole part rises")}, {}}},
      {"Div",
       {{{"f(-x, y) = -f(x, y)", {-1, 1, 1, 1}, false, {-1, 1}}, {"f(x, -y) = -f(x, y)", {1, 1, -1, 1}, false, {-1, 1}}},
        {},
        {},
        {}}},
      {"Inv", {{odd}, {}, {Falls("falls for x > 0", 0x1p-149)}, {}}},
      {"Sqrt", {{}, {Between("f(x) >= 0 but for -0", 0, infinity)}, {rises}, {}}},
      {"InvSqrt", {{}, {}, {Falls("falls for x > 0", 0x1p-149)}, {}}},
      {"Cbrt", {{odd}, {}, {rises}, {}}},
      {"InvCbrt", {{odd}, {}, {Falls("falls for x > 0", 0x1p-149)}, {}}},
      {"Pow2o3", {{even}, {no_sign}, {Rises("rises for x >= 0", 0)}, {}}},
      {"Pow3o2", {{}, {Between("f(x) >= 0 but for -0", 0, infinity)}, {rises}, {}}},
      {"Hypot", {{commutes, even_first}, {no_sign}, {}, {}, true}},
      {"Exp", {{}, {no_sign}, {rises}, {}}},
      {"Expm1", {{}, {Between("f(x) >= -1", -1, infinity)}, {rises}, {}}},
      {"Ln", {{}, {}, {rises}, {}}},
      {"Log10", {{}, {}, {rises}, {}}},
      {"Log1p", {{}, {}, {rises}, {}}},
      {"Sin", {{odd}, {Between("|sin x| <= 1", -1, 1)}, {Rises("rises for |x| <= pi/2", -pi / 2, pi / 2)}, {}}},
      {"Cos", {{even}, {Between("|cos x| <= 1", -1, 1)}, {Falls("falls from 0 to pi", 0, pi)}, {}}},
      {"Tan", {{odd}, {}, {Rises("rises for |x| < pi/2", -1.570796, 1.570796)}, {}}},
      {"SinCos",
       {{{"f(-x) = -sin x, cos x", turned, false, {-1, 1}}},
        {Between("|sin x| <= 1", -1, 1), Between("|cos x| <= 1", -1, 1, 1)},
        {Rises("sine rises for |x| <= pi/2", -pi / 2, pi / 2), Falls("cosine falls from 0 to pi", 0, pi, 1)},
        {}}},
      {"Asin", {{odd}, {Between("|asin x| <= pi/2", -pi / 2, pi / 2)}, {rises}, {}}},
      {"Acos", {{}, {Between("0 <= acos x <= pi", 0, pi)}, {Falls("falls")}, {}}},
      {"Atan", {{odd}, {Between("|atan x| <= pi/2", -pi / 2, pi / 2)}, {rises}, {}}},
      {"Atan2", {{odd_first}, {Between("|atan2| <= pi", -pi, pi)}, {}, {}}},
      {"Sinh", {{odd}, {}, {rises}, {}}},
      {"Cosh", {{even}, {Between("cosh x >= 1", 1, infinity)}, {Rises("rises for x >= 0", 0)}, {}}},
      {"Tanh", {{odd}, {Between("|tanh x| <= 1", -1, 1)}, {rises}, {}}},
      {"Asinh", {{odd}, {}, {rises}, {}}},
      {"Acosh", {{}, {no_sign}, {rises}, {}}},
      {"Atanh", {{odd}, {}, {rises}, {}}},
      {"Erf", {{odd}, {Between("|erf x| <= 1", -1, 1)}, {rises}, {}}},
      {"Erfc", {{}, {Between("0 <= erfc x <= 2", 0, 2)}, {Falls("falls")}, {}}},
      {"CdfNorm", {{}, {Between("0 <= cdfnorm x <= 1", 0, 1)}, {rises}, {}}},
      {"CdfNormInv", {{}, {}, {rises}, {}}},
      {"ErfInv", {{odd}, {}, {rises}, {}}},
      {"ErfcInv", {{}, {}, {Falls("falls")}, {}}},
  };
  return table;
}

const std::map<std::string_view, Properties>& Complex() {
  static const Symmetry to_real{"f(conj z) = f(z)", {1, -1, 1, -1}, false, {1, 1}};
  static const Range no_sign = Between("f(z) >= 0", 0, infinity);
  static const Range right_half = Between("re f(z) >= 0 but for -0", 0, infinity);
  static const std::map<std::string_view, Properties> table = {
      {"Abs", {{to_real, even_complex}, {no_sign}, {}, {}}},
      {"Arg", {{{"f(conj z) = -f(z)", {1, -1, 1, 1}, false, {-1, 1}}}, {Between("|arg z| <= pi", -pi, pi)}, {}, {}}},
      {"Conj", {{conjugate}, {}, {}, {}}},
      {"CIS",
       {{{"f(-x) = conj f(x)", turned, false, {1, -1}}},
        {Between("|re| <= 1", -1, 1), Between("|im| <= 1", -1, 1, 1)},
        {},
        {}}},
      {"Add", {{commutes_complex, conjugate_sum}, {}, {}, {}}},
      {"Sub", {{conjugate_sum}, {}, {}, {}}},
      {"Mul", {{commutes_complex, conjugate_sum}, {}, {}, {}}},
      {"MulByConj", {{conjugate_sum}, {}, {}, {}}},
      {"Div", {{conjugate_sum, {"f(-z, w) = -f(z, w) but for -0", {-1, -1, 1, 1}, false, {-1, -1}, true}}, {}, {}, {}}},
      {"Sqrt", {{conjugate}, {right_half}, {}, {}}},
      {"Exp", {{conjugate}, {}, {}, {}}},
      {"Ln", {{conjugate}, {Between("|im| <= pi", -pi, pi, 1)}, {}, {}}},
      {"Log10", {{conjugate}, {}, {}, {}}},
      {"Pow", {{conjugate_sum}, {}, {}, {}}},
      {"Powx", {{conjugate_sum}, {}, {}, {}}},
      {"Sin", {{conjugate, odd_complex}, {}, {}, {}}},
      {"Cos", {{conjugate, even_complex}, {}, {}, {}}},
      {"Tan", {{conjugate, odd_complex}, {}, {}, {}}},
      {"Sinh", {{conjugate, odd_complex}, {}, {}, {}}},
      {"Cosh", {{conjugate, even_complex}, {}, {}, {}}},
      {"Tanh", {{conjugate, odd_complex}, {}, {}, {}}},
      {"Asin", {{conjugate, odd_complex}, {Between("|re| <= pi/2", -pi / 2, pi / 2)}, {}, {}}},
      {"Acos", {{conjugate}, {Between("0 <= re <= pi", 0, pi)}, {}, {}}},
      {"Atan", {{conjugate, odd_complex}, {Between("|re| <= pi/2", -pi / 2, pi / 2)}, {}, {}}},
      {"Asinh", {{conjugate, odd_complex}, {Between("|im| <= pi/2", -pi / 2, pi / 2, 1)}, {}, {}}},
      {"Acosh", {{conjugate}, {right_half, Between("|im| <= pi", -pi, pi, 1)}, {}, {}}},
      {"Atanh", {{conjugate, odd_complex}, {Between("|im| <= pi/2", -pi / 2, pi / 2, 1)}, {}, {}}},
  };
  return table;
}

}  // namespace

Properties PropertiesOf(const Export& entry) {
  const auto& table = entry.is_complex() ? Complex() : Real();
  const auto found = table.find(entry.function);
  Properties properties = found == table.end() ? Properties() : found->second;
  properties.exact = entry.is_complex() ? ComplexExactSets(entry) : RealExactSets(entry);
  if (entry.is_32bit()) {
    for (Range& range : properties.ranges) {
      range.low = static_cast<double>(static_cast<float>(range.low));
      range.high = static_cast<double>(static_cast<float>(range.high));
    }
  }
  // A number of the type beyond pi/2 or pi is past the turning point.
  if (entry.is_32bit()) {
    for (Monotone& m : properties.monotone) {
      m.from = TowardsZero(m.from);
      m.to = TowardsZero(m.to);
    }
  }
  return properties;
}

}  // namespace lum::accuracy
