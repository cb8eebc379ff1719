// The C library's binary64 functions are good to a few units of their last place, 2^-50. What it lacks, the inverses of the
// error function, takes Halley steps on its erf and erfc.
#include "accuracy/cheap_reference.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <string_view>

namespace lum::accuracy {
namespace {

using support::Export;
using support::Shape;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double root_pi = 1.7724538509055160273;
constexpr double two_over_root_pi = 2 / root_pi;

template <auto f> void OnePart(std::span<const float> x, std::span<double> part1, std::span<double>) {
  std::ranges::transform(x, part1.begin(), [](float a) { return f(static_cast<double>(a)); });
}
template <auto f> void TwoParts(std::span<const float> x, std::span<double> part1, std::span<double> part2) {
  for (size_t i = 0; i < x.size(); ++i) f(static_cast<double>(x[i]), part1[i], part2[i]);
}

// The part behind the point, which has the argument's sign.
double Frac(double x) {
  double whole;
  return std::modf(x, &whole);
}
double Pow2o3(double x) {
  const double root = std::cbrt(x);
  return root * root;
}

// erfc(a) / 2 with a = -x / sqrt 2. In the upper tail erfc magnifies the rounding error d of a: erfc(a + d) is erfc(a) (1 - d
// h) with h = -erfc'(a) / erfc(a), which is a + sqrt(a^2 + 4 / pi) or up to a tenth more.
double CdfNorm(double x) {
  constexpr double root_half = 0x1.6a09e667f3bcdp-1, root_half_low = -0x1.bdd3413b26456p-55;
  const double a = -x * root_half;
  const double value = std::erfc(a) / 2;
  if (!(a > 0 && a < 30)) return value;
  const double d = std::fma(-x, root_half, -a) - x * root_half_low;
  return value * (1 - d * (a + std::sqrt(a * a + 4 / std::numbers::pi)));
}

// Halley's step for erf(y) = x or erfc(y) = p, where newton is (erf(y) - x) / erf'(y): as erf'' = -2 y erf', it is
// newton / (1 + y newton). An error e of y becomes about (1 + y^2) e^3.
double HalleyStep(double y, double newton) { return y - newton / (1 + y * newton); }
double Slope(double y) { return two_over_root_pi * std::exp(-y * y); }

// For |x| <= 1/2. The first terms of erfinv's power series leave a relative error of x^12 / 20, which is nothing up to 1/32.
double CentralErfInv(double x) {
  constexpr double pi = std::numbers::pi;
  const double z = x * x * (pi / 4);
  const double series = 1 + z * (1.0 / 3 + z * (7.0 / 30 + z * (127.0 / 630 + z * (4369.0 / 22680 + z * (34807.0 / 178200)))));
  const double y = root_pi / 2 * x * series;
  return std::fabs(x) < 0x1p-5 ? y : HalleyStep(y, (std::erf(y) - x) / Slope(y));
}

// For 0 < p <= 1/2: the rational start of Abramowitz and Stegun, 26.2.23, is good to 4.5e-4 as a normal deviate.
double TailErfcInv(double p) {
  const double t = std::sqrt(-2 * std::log(p / 2));
  const double deviate = t - (2.515517 + t * (0.802853 + t * 0.010328)) / (1 + t * (1.432788 + t * (0.189269 + t * 0.001308)));
  double y = deviate * (std::numbers::sqrt2 / 2);
  for (int i = 0; i < 2; ++i) y = HalleyStep(y, (p - std::erfc(y)) / Slope(y));
  return y;
}

// Of a binary32 x, or half of one: 1 - |x|, 1 - p and 2 - p are exact wherever they are taken.
double ErfInv(double x) {
  if (!(std::fabs(x) < 1)) return std::fabs(x) == 1 ? std::copysign(infinity, x) : nan;
  return std::fabs(x) <= 0.5 ? CentralErfInv(x) : std::copysign(TailErfcInv(1 - std::fabs(x)), x);
}
double ErfcInv(double p) {
  if (!(p > 0 && p < 2)) return p == 0 ? infinity : p == 2 ? -infinity : nan;
  if (p < 0.5) return TailErfcInv(p);
  return p > 1.5 ? -TailErfcInv(2 - p) : CentralErfInv(1 - p);
}
// The quantile 1/2 gives +0.
double CdfNormInv(double p) { return p == 0.5 ? 0 : -std::numbers::sqrt2 * ErfcInv(2 * p); }

// Outside of its domain a function is not called: the C library takes its time to report the error.
const std::map<std::string_view, CheapReference>& CheapReferences() {
  static const std::map<std::string_view, CheapReference> references = {
#include "cheap_references.inc"
  };
  return references;
}

}  // namespace

CheapReference FindCheapReference(const Export& entry) {
  if (entry.type != "32f" || (entry.shape != Shape::OneInput && entry.shape != Shape::TwoOutputs)) return nullptr;
  const auto found = CheapReferences().find(entry.function);
  return found == CheapReferences().end() ? nullptr : found->second;
}

}  // namespace lum::accuracy
