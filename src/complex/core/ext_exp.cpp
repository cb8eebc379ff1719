// The exponential: the table of powers from 1/32 on, the series 1 + x + x^2/2 + ... below. Results below the least normal
// number are put together in two parts, so that they are rounded once.
#include "complex/core/ext_power_table.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr auto small_terms = coefficients({
#include "tables/generated/extended_exp_small_64f_8_pairs.inc"
});
// (e^x - 1 - x) / x^2.
constexpr std::array<Extended, 4> series = {1.0L / 2, 1.0L / 6, 1.0L / 24, 1.0L / 120};

Extended SmallExp(const Extended& x, int exponent) {
  if (exponent < field_of(-67)) return 1 + x;
  Extended rest = 0;
  if (exponent <= field_of(-27)) rest = series[0];
  else if (exponent <= field_of(-19)) rest = first_terms<2>(series, x);
  else if (exponent <= field_of(-12)) rest = first_terms<4>(series, x);
  else rest = polynomial(small_terms, x);
  const ExtendedPair sum = fast_two_sum(Extended{1}, x);
  return sum.head + (sum.tail + x * x * rest);
}

// 2^e (head + tail) below twice the least normal number: the part of head that is a multiple of the least denormal number stays
// exact, the rest is rounded by the last product. Given head near 1.
Extended ScaledBelowNormal(const ExtendedPair& value, int e) {
  constexpr int least = ExtendedLimits::min_exponent - extended_digits;  // exponent of the least denormal number
  constexpr int first_step = least / 2;
  const Extended shifter = 3 * power_of_two(least - e + extended_digits - 2);
  const Extended whole = (value.head + shifter) - shifter;
  const Extended rest = (value.head - whole) + value.tail;
  const Extended first = power_of_two(first_step), second = power_of_two(e - first_step);
  return whole * first * second + rest * first * second;
}

Extended Scaled(const ExtendedPair& value, int e) {
  constexpr Extended large = ExtendedLimits::max(), tiny = ExtendedLimits::min();
  if (e > ExtendedLimits::max_exponent) return large * large;
  if (e < ExtendedLimits::min_exponent - extended_digits - 2) return tiny * tiny;
  if (e > 0) return rounded(value) * power_of_two(e - 1) * 2;
  if (e >= ExtendedLimits::min_exponent) return rounded(value) * power_of_two(e);
  return ScaledBelowNormal(value, e);
}

Extended ExpOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (exponent < field_of(-5)) return SmallExp(x, exponent);
  if (exponent == extended_special) return x == -ExtendedLimits::infinity() ? 0 : x + x;
  if (exponent > field_of(13)) return Scaled({1, 0}, sign_bit(x) ? -0x8000 : 0x8000);
  const PowerArgument a = ReduceByPowers(x);
  return Scaled(TablePower(a.j, a.even + a.odd), a.e);
}

}  // namespace

void ExtExp(Extended& result, const Extended& x) { result = ExpOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
