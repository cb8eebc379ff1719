// Functions that the C library lacks, composed of those that it has, in binary64 and in long double.
#pragma once

#include <cmath>
#include <limits>
#include <numbers>

namespace lum::accuracy {
namespace {

// The part behind the point, which has the argument's sign.
template <class T> T Frac(T x) {
  T whole;
  return std::modf(x, &whole);
}
template <class T> T Pow2o3(T x) {
  const T root = std::cbrt(x);
  return root * root;
}

// -erfc'(a) / erfc(a) for a > 0: Laplace's continued fraction, good to 1/1000 from 2 on; below, a bound that is a tenth low.
template <class T> T TailSlope(T a) {
  constexpr T half = 0.5;
  if (a < 2) return a + std::sqrt(a * a + 4 / std::numbers::pi_v<T>);
  return 2 * (a + half / (a + 1 / (a + 3 * half / (a + 2 / (a + 5 * half / a)))));
}
// erfc(a) / 2 with a = -x / sqrt 2. In the upper tail erfc magnifies the rounding error d of a: erfc(a + d) is erfc(a) (1 - d
// h) where h is the slope.
template <class T> T LowerTail(T x, T a, T d) {
  const T value = std::erfc(a) / 2;
  return a > 0 && a < 120 && x < 0 ? value * (1 - d * TailSlope(a)) : value;
}
inline constexpr double root_half = 0x1.6a09e667f3bcdp-1, root_half_low = -0x1.bdd3413b26456p-55;
inline double CdfNorm(double x) {
  const double a = -x * root_half;
  const double value = std::erfc(a) / 2;
  if (!(a > 0 && a < 30)) return value;
  return LowerTail(x, a, std::fma(-x, root_half, -a) - x * root_half_low);
}
// The normal distribution of a binary64 number, whose product with a head of 11 bits is exact. The rest carries more bits of
// sqrt 1/2 than one long double has, since the tail magnifies its error a thousand times.
inline long double CdfNorm(long double x) {
  constexpr long double head = 0x1.6ap-1L, rest = (root_half - head) + root_half_low;
  const long double a = -x * head - x * rest;
  return LowerTail(x, a, (-x * head - a) - x * rest);
}

// Halley's step for erf(y) = x or erfc(y) = p, where newton is (erf(y) - x) / erf'(y): as erf'' = -2 y erf', it is
// newton / (1 + y newton). An error e of y becomes about (1 + y^2) e^3.
template <class T> T HalleyStep(T y, T newton) { return y - newton / (1 + y * newton); }
template <class T> T Slope(T y) { return 2 * std::numbers::inv_sqrtpi_v<T> * std::exp(-y * y); }

// For |x| <= 1/2. The first terms of erfinv's power series leave a relative error of x^12 / 20, which is nothing up to 1/32;
// beyond, one step is enough for binary64.
template <class T> T CentralErfInv(T x) {
  constexpr T pi = std::numbers::pi_v<T>, one = 1;
  const T z = x * x * (pi / 4);
  const T series =
      1 + z * (one / 3 + z * (7 * one / 30 + z * (127 * one / 630 + z * (4369 * one / 22680 + z * (34807 * one / 178200)))));
  T y = x * series / (2 * std::numbers::inv_sqrtpi_v<T>);
  if (std::fabs(x) < 0x1p-5) return y;
  for (int i = 0; i < (std::numeric_limits<T>::digits > 53 ? 2 : 1); ++i) y = HalleyStep(y, (std::erf(y) - x) / Slope(y));
  return y;
}

// For 0 < p <= 1/2: the rational start of Abramowitz and Stegun, 26.2.23, is good to 4.5e-4 as a normal deviate.
template <class T> T TailErfcInv(T p) {
  const T t = std::sqrt(-2 * std::log(p / 2));
  const T deviate =
      t - (T(2.515517) + t * (T(0.802853) + t * T(0.010328))) / (1 + t * (T(1.432788) + t * (T(0.189269) + t * T(0.001308))));
  T y = deviate * (std::numbers::sqrt2_v<T> / 2);
  for (int i = 0; i < 2; ++i) y = HalleyStep(y, (p - std::erfc(y)) / Slope(y));
  return y;
}

// 1 - |x|, 1 - p and 2 - p are exact wherever they are taken.
template <class T> T ErfInv(T x) {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  if (!(std::fabs(x) < 1)) return std::fabs(x) == 1 ? std::copysign(infinity, x) : std::numeric_limits<T>::quiet_NaN();
  return std::fabs(x) <= T(0.5) ? CentralErfInv(x) : std::copysign(TailErfcInv(1 - std::fabs(x)), x);
}
template <class T> T ErfcInv(T p) {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  if (!(p > 0 && p < 2)) return p == 0 ? infinity : p == 2 ? -infinity : std::numeric_limits<T>::quiet_NaN();
  if (p < T(0.5)) return TailErfcInv(p);
  return p > T(1.5) ? -TailErfcInv(2 - p) : CentralErfInv(1 - p);
}
// The quantile 1/2 gives +0.
template <class T> T CdfNormInv(T p) { return p == T(0.5) ? 0 : -std::numbers::sqrt2_v<T> * ErfcInv(2 * p); }

}  // namespace
}  // namespace lum::accuracy
