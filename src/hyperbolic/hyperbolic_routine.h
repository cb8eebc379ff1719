// sinh x and cosh x by scalar arithmetic in binary64, which finish the lanes that the vector paths refuse.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "explog/exp_routine.h"
#include "frame/constant.h"
#include "frame/lane_format.h"
#include "frame/literals.h"
#include "frame/numbers.h"
#include "frame/two_parts.h"
#include "frame/types.h"
#include "hyperbolic/polynomials.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// m = count ln(2)/64 + q for 0 <= m < 711.
struct ScalarReduced {
  int count;
  double q;
};
inline ScalarReduced ReduceBySixtyFourths(double m) {
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const double n = (m * (64 * numbers::log2_e<Lum64f>)+shifter) - shifter;
  const double q = (m - n * (numbers::ln2_short<Lum64f> / 64)) - n * (numbers::ln2_short_tail<Lum64f> / 64);
  return {static_cast<int>(n), q};
}

inline constexpr auto exp2_pairs = table64({
#include "tables/generated/exp2_64f_65_pairs.inc"
});

// e^m / 2, which is both functions where e^-m does not matter, up to the overflow of binary64.
inline double HalfExponential(double m) {
  const auto [shifted, k, u] = explog::ExpDoubleReduced(m);
  const auto count = static_cast<int>(k);
  const auto i = static_cast<size_t>(count & 63);
  const double hi = exp2_pairs[2 * i], lo = exp2_pairs[2 * i + 1];
  return explog::ExpScaled(hi + (hi * u + lo), (count >> 6) - 1);
}

// With m = n ln 2 + q:  2^(n-1) + 2^(-n-1), the difference of the two, and q.
struct SumAndDifference {
  TwoParts<double> sum, difference;
  double q;
};
inline SumAndDifference HalfPowers(double m) {
  const auto [count, q] = ReduceBySixtyFourths(m);
  const auto i = static_cast<size_t>(count & 63);
  const double up = lane::power_of_two<double>((count >> 6) - 1), down = lane::power_of_two<double>(-(count >> 6) - 2);
  const TwoParts<double> plus{exp2_pairs[2 * i] * up, exp2_pairs[2 * i + 1] * up};
  const TwoParts<double> minus{exp2_pairs[2 * (64 - i)] * down, exp2_pairs[2 * (64 - i) + 1] * down};
  const TwoParts<double> sum = two_sum(plus.head, minus.head);
  const TwoParts<double> difference = two_sum(plus.head, -minus.head);
  return {{sum.head, sum.tail + (plus.tail + minus.tail)}, {difference.head, difference.tail + (plus.tail - minus.tail)}, q};
}

// base cosh q + factor sinh q for |q| up to ln(2)/128.
inline double Turn(const TwoParts<double>& base, const TwoParts<double>& factor, double q) {
  const double q2 = q * q;
  const double sinh_rest = q * (q2 * (1.0 / 6 + q2 * (1.0 / 120)));
  const double cosh_rest = q2 * (0.5 + q2 * (1.0 / 24 + q2 * (1.0 / 720)));
  const TwoParts<double> product = two_product(factor.head, q);
  const TwoParts<double> head = two_sum(base.head, product.head);
  const double rest = (factor.head * sinh_rest + base.head * cosh_rest) + (factor.tail * q + base.tail);
  return head.head + (head.tail + (product.tail + rest));
}

// From here on e^-m is below half a unit of the last place.
inline constexpr auto single_exponential = f64(0x40357CD0E7026820, 21.487562597358306);
inline constexpr double tiny_argument = 0x1p-53;
// The least magnitude whose result overflows.
template <class T> inline constexpr double hyperbolic_overflow = f64(0x40565A9FA0000000, 89.4159927368164);
template <> inline constexpr double hyperbolic_overflow<Lum64f> = f64(0x408633CE8FB9F87E, 710.475860073944);

inline double SinhOfMagnitude(double m) {
  if (m < tiny_argument) return m;
  if (m < f64(0x3F9BDB8CDADBE120, 0.02720470510300388)) {
    const double u = m * m;
    const double p = unfused_horner(u, hyperbolic::sinh_routine);
    return m + m * (u * p);
  }
  if (m >= single_exponential) return HalfExponential(m);
  const auto [sum, difference, q] = HalfPowers(m);
  return Turn(difference, sum, q);
}

inline double CoshOfMagnitude(double m) {
  if (m < tiny_argument) return m + 1;
  if (m >= single_exponential) return HalfExponential(m);
  const auto [sum, difference, q] = HalfPowers(m);
  return Turn(sum, difference, q);
}

// A binary32 result is computed in binary64 and rounded once more.
template <class T> LumStatus SinhRoutine(T x, T& result) {
  const double m = x < 0 ? -static_cast<double>(x) : static_cast<double>(x);
  if (!(x - x == 0)) {
    result = x + x;
    return lumStsOk;
  }
  if (m >= hyperbolic_overflow<T>) {
    result = x < 0 ? -std::numeric_limits<T>::infinity() : std::numeric_limits<T>::infinity();
    return lumStsOverflow;
  }
  const auto magnitude = static_cast<T>(SinhOfMagnitude(m));
  result = std::signbit(x) ? -magnitude : magnitude;
  return lumStsOk;
}

template <class T> LumStatus CoshRoutine(T x, T& result) {
  const double m = x < 0 ? -static_cast<double>(x) : static_cast<double>(x);
  if (!(x - x == 0)) {
    result = x * x;
    return lumStsOk;
  }
  if (m >= hyperbolic_overflow<T>) {
    result = std::numeric_limits<T>::infinity();
    return lumStsOverflow;
  }
  result = static_cast<T>(CoshOfMagnitude(m));
  return lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::hyperbolic
