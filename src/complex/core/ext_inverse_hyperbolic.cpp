// Inverse hyperbolic functions: logarithms of arguments formed in two parts, and series where the logarithm would cancel: below
// 1/2 for asinh, below 1/4 for atanh, next to 1 for acosh.
#include "complex/core/ext_log_table.h"
#include "complex/core/ext_root_pair.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// (asinh x - x + x^3/6) / x^5, (atanh x - x - x^3/3) / x^5, (acosh(1 + t) / sqrt(2 t) - 1 + t/12) / t^2.
constexpr auto asinh_terms = coefficients({
#include "tables/generated/extended_asinh_64f_16_pairs.inc"
});
constexpr auto atanh_terms = coefficients({
#include "tables/generated/extended_atanh_64f_12_pairs.inc"
});
constexpr auto acosh_terms = coefficients({
#include "tables/generated/extended_acosh_64f_13_pairs.inc"
});
// (asinh x - x) / x^3, (atanh x - x) / x^3 and (acosh(1 + t) / sqrt(2 t) - 1 + t/12) / t^2, where few terms are enough.
constexpr std::array<Extended, 4> asinh_series = {-1.0L / 6, 3.0L / 40, -5.0L / 112, 35.0L / 1152};
constexpr std::array<Extended, 4> atanh_series = {1.0L / 3, 1.0L / 5, 1.0L / 7, 1.0L / 9};
constexpr std::array<Extended, 5> acosh_series = {3.0L / 160, -5.0L / 896, 35.0L / 18432, -63.0L / 90112, 231.0L / 851968};

// |x| below 2^-7, alike for both.
Extended SmallInverse(const std::array<Extended, 4>& series, const Extended& x, int exponent) {
  if (exponent < field_of(-75)) return inexact_identity(x);
  if (exponent <= field_of(-19)) return odd_series<1>(series, x);
  if (exponent <= field_of(-13)) return odd_series<2>(series, x);
  return odd_series<4>(series, x);
}

Extended Logarithm(ExtendedPair x) { return rounded(LogByTable(x)); }

// log(2 x), x > 0 and normal: no product to overflow.
Extended LogarithmOfDouble(const Extended& x) {
  return rounded(LogByTable(exponent_field(x) - extended_bias + 1, {significand_of(x), 0}));
}

// asinh x for sign 1, acosh x for sign -1: the logarithm of x + sqrt(x^2 + sign) = 2 x + sign / (x + sqrt(x^2 + sign)), and of
// ever less as x grows.
Extended LogarithmOfSum(const Extended& x, int exponent, Extended sign, int one_level_from, int double_from) {
  if (exponent >= double_from) return LogarithmOfDouble(x);
  const Extended twice = 2 * x;
  if (exponent >= one_level_from) return Logarithm(fast_two_sum(twice, sign / twice));
  if (exponent >= field_of(11)) return Logarithm(fast_two_sum(twice, sign / (twice + sign / twice)));
  const ExtendedPair root = RootPair(add(two_product(x, x), sign));
  if (exponent >= field_of(5)) return Logarithm(fast_two_sum(twice, sign / (x + root.head)));
  return Logarithm(add(root, x));
}

Extended AsinhOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (exponent == extended_special) return x + x;
  if (exponent <= field_of(-8)) return SmallInverse(asinh_series, x, exponent);
  if (exponent < field_of(-1)) return rounded(odd_sum({x, 0}, ratio(-1, 6), polynomial(asinh_terms, x * x)));
  return with_sign_of(LogarithmOfSum(magnitude(x), exponent, 1, field_of(18), field_of(38)), x);
}

// acosh(1 + t), 0 < t < 1/4.
Extended AcoshNearOne(Extended t, bool is_short) {
  const ExtendedPair root = RootPair({2 * t, 0});
  const ExtendedPair second = multiply(multiply(root, t), ratio(-1, 12));
  const Extended rest = root.head * (t * t) * (is_short ? polynomial(acosh_series, t) : polynomial(acosh_terms, t));
  const ExtendedPair sum = fast_two_sum(root.head, second.head);
  return sum.head + (sum.tail + (root.tail + (second.tail + rest)));
}

Extended AcoshOf(const Extended& x) {
  if (x < 1) return (x - x) / (x - x);
  const int exponent = exponent_field(x);
  if (exponent == extended_special) return x + x;
  if (x == 1) return 0;
  const uint32_t beyond_one = leading_word(x) - 0x3fff8000;
  if (beyond_one <= 0x1fff) return AcoshNearOne(x - 1, beyond_one <= 0x3f);
  return LogarithmOfSum(x, exponent, -1, field_of(18), field_of(34));
}

Extended AtanhOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (exponent <= field_of(-8)) return SmallInverse(atanh_series, x, exponent);
  if (exponent <= field_of(-3)) return rounded(odd_sum({x, 0}, ratio(1, 3), polynomial(atanh_terms, x * x)));
  const Extended positive = magnitude(x);
  if (exponent <= field_of(-1))
    return with_sign_of(Logarithm(divide(two_sum(Extended{1}, positive), two_sum(Extended{1}, -positive))) * 0.5L, x);
  if (positive == 1) return x / (1 - positive);
  return x != x ? x + x : (x - x) / (x - x);
}

}  // namespace

void ExtAsinh(Extended& result, const Extended& x) { result = AsinhOf(x); }
void ExtAcosh(Extended& result, const Extended& x) { result = AcoshOf(x); }
void ExtAtanh(Extended& result, const Extended& x) { result = AtanhOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
