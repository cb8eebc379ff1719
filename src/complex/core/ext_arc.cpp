// Arcsine and arccosine: below 1/2 the odd polynomial of the arcsine, from 1/2 on acos |x| = 2 asin sqrt((1 - |x|)/2) with the
// same polynomial. The other of the two, and negative arguments, by differences from pi/2 and pi in two parts.
#include "complex/core/ext_angle_table.h"
#include "complex/core/ext_root_pair.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// (asin x - x - x^3/6) / x^5: |x| < 1/8; |x| <= 1/2.
constexpr auto small_terms = coefficients({
#include "tables/generated/extended_arcsine_small_64f_9_pairs.inc"
});
constexpr auto terms = coefficients({
#include "tables/generated/extended_arcsine_64f_18_pairs.inc"
});
// (asin x - x) / x^3.
constexpr std::array<Extended, 4> series = {1.0L / 6, 3.0L / 40, 5.0L / 112, 35.0L / 1152};

constexpr int upper_half = field_of(-1);  // exponent field of 1/2 <= |x| < 1

ExtendedPair WithSeries(const Extended& x, Extended correction) { return {x, x * (x * x) * correction}; }

// asin x, |x| < 1/2.
ExtendedPair LowerArcsine(const Extended& x, int exponent) {
  const Extended square = x * x;
  if (exponent < field_of(-75)) return {x, 0};
  if (exponent <= field_of(-19)) return WithSeries(x, series[0]);
  if (exponent <= field_of(-13)) return WithSeries(x, first_terms<2>(series, square));
  if (exponent <= field_of(-8)) return WithSeries(x, polynomial(series, square));
  return odd_sum({x, 0}, ratio(1, 6), exponent < field_of(-3) ? polynomial(small_terms, square) : polynomial(terms, square));
}

// acos |x|, 1/2 <= |x| < 1. The difference is exact.
ExtendedPair UpperArccosine(const Extended& x) {
  const Extended half_difference = (1 - magnitude(x)) * 0.5L;
  return scale(odd_sum(RootPair({half_difference, 0}), ratio(1, 6), polynomial(terms, half_difference)), 2);
}

Extended AsinOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (exponent < field_of(-75)) return inexact_identity(x);
  if (exponent < upper_half) return rounded(LowerArcsine(x, exponent));
  if (exponent == upper_half) return with_sign_of(rounded(add(Angle(quarter_turn), -UpperArccosine(x))), x);
  if (magnitude(x) == 1) return with_sign_of(rounded(Angle(quarter_turn)), x);
  return x != x ? x + x : (x - x) / (x - x);
}

Extended AcosOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (exponent < upper_half) return rounded(add(Angle(quarter_turn), -LowerArcsine(x, exponent)));
  if (exponent == upper_half) return rounded(sign_bit(x) ? add(Angle(half_turn), -UpperArccosine(x)) : UpperArccosine(x));
  if (magnitude(x) == 1) return sign_bit(x) ? rounded(Angle(half_turn)) : 0;
  return x != x ? x + x : (x - x) / (x - x);
}

}  // namespace

void ExtAsin(Extended& result, const Extended& x) { result = AsinOf(x); }
void ExtAcos(Extended& result, const Extended& x) { result = AcosOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
