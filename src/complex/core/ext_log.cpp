// The logarithm, and that of 1 + x: by the table away from 1; next to 1 the series, with its first two terms exact.
#include "complex/core/ext_log_table.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// (log(1 + r) - r + r^2/2) / r^3, |r| <= 1/16 and a little.
constexpr auto near_one_terms = coefficients({
#include "tables/generated/extended_log_near_one_64f_14_pairs.inc"
});
// (log(1 + r) - r) / r^2.
constexpr std::array<Extended, 4> series = {-1.0L / 2, 1.0L / 3, -1.0L / 4, 1.0L / 5};

// log(1 + r), the first terms plainly.
template <size_t terms> Extended ShortSeries(Extended r) { return r + r * r * first_terms<terms>(series, r); }

// log(1 + r), |r| <= 1/16 and a little.
Extended NearOne(Extended r) {
  const ExtendedPair half_square = scale(two_product(r, r), 0.5L);
  const ExtendedPair sum = fast_two_sum(r, -half_square.head);
  return sum.head + (sum.tail + (r * r * r * polynomial(near_one_terms, r) - half_square.tail));
}

Extended LogOf(const Extended& x) {
  constexpr int step = 75;
  if (x == 0) return -1 / (x * x);
  if (x < 0) return (x - x) / (x - x);
  const int exponent = exponent_field(x);
  if (exponent == extended_special) return x + x;
  const uint32_t word = leading_word(x);
  if (0x3ffeffff <= word && word <= 0x3fff8000) return x == 1 ? 0 : ShortSeries<4>(x - 1);
  if (0x3ffef800 <= word && word <= 0x3fff8800) return NearOne(x - 1);
  if (exponent > 0) return rounded(LogByTable({x, 0}));
  const Extended scaled = x * constant_power_of_two(step);
  return rounded(LogByTable(exponent_field(scaled) - extended_bias - step, {significand_of(scaled), 0}));
}

// -infinity at -1, else NaN.
Extended Log1pFromMinusOne(const Extended& x) { return x == -1 ? x / (x + 1) : (x - x) / (x - x); }

Extended Log1pOf(const Extended& x) {
  constexpr uint32_t logarithm_of_x = 0x40498000;          // from 2^74: the 1 is lost
  constexpr uint32_t logarithm_of_exact_sum = 0xbffe8000;  // from -1/2 down
  const int exponent = exponent_field(x);
  if (x != x) return x + x;
  if (x <= -1) return Log1pFromMinusOne(x);
  if (exponent <= field_of(-76)) return inexact_identity(x);
  if (exponent <= field_of(-39)) return ShortSeries<1>(x);
  if (exponent <= field_of(-26)) return ShortSeries<2>(x);
  if (exponent <= field_of(-15)) return ShortSeries<4>(x);
  if (exponent <= field_of(-5)) return NearOne(x);
  const uint32_t word = leading_word(x);
  if (sign_bit(x) ? word >= logarithm_of_exact_sum : word >= logarithm_of_x) return LogOf(sign_bit(x) ? 1 + x : x);
  return rounded(LogByTable(two_sum(Extended{1}, x)));
}

}  // namespace

void ExtLog(Extended& result, const Extended& x) { result = LogOf(x); }
void ExtLog1p(Extended& result, const Extended& x) { result = Log1pOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
