// Hyperbolic sine and cosine: half the difference and half the sum of e^|x| and e^-|x|, which share a polynomial and whose
// table rows lie opposite. Below 1/2 the series, where the difference would cancel.
#include "complex/core/ext_power_table.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr auto sinh_terms = coefficients({
#include "tables/generated/extended_sinh_64f_7_pairs.inc"
});
constexpr auto cosh_terms = coefficients({
#include "tables/generated/extended_cosh_64f_7_pairs.inc"
});
// (sinh x - x) / x^3 and (cosh x - 1) / x^2.
constexpr std::array<Extended, 4> sinh_series = {1.0L / 6, 1.0L / 120, 1.0L / 5040, 1.0L / 362880};
constexpr std::array<Extended, 4> cosh_series = {1.0L / 2, 1.0L / 24, 1.0L / 720, 1.0L / 40320};

constexpr int table_from = field_of(-1);     // exponent field from which the table serves
constexpr uint32_t both_until = 0x4003d153;  // |x| to about 26.16: beyond, e^-|x| is lost

// The powers for |x| >= 1/2, divided by a power of two that keeps them finite.
struct Halves {
  ExtendedPair plus, minus;  // e^|x| / 2 and e^-|x| / 2
  Extended scale;
};

Halves HalfExponentials(const Extended& x) {
  const PowerArgument a = ReduceByPowers(magnitude(x));
  const ExtendedPair plus = TablePower(a.j, a.even + a.odd);
  if ((leading_word(x) & 0x7ffffffc) > both_until)
    return {scale(plus, power_of_two(a.e - 33)), {0, 0}, constant_power_of_two(32)};
  const ExtendedPair minus = TablePower(-a.j, a.even - a.odd);
  return {scale(plus, power_of_two(a.e - 1)), scale(minus, power_of_two(-a.e - 1)), 1};
}

Extended Difference(const Halves& h) {
  const ExtendedPair head = fast_two_sum(h.plus.head, -h.minus.head);
  return (head.head + (head.tail + (h.plus.tail - h.minus.tail))) * h.scale;
}

Extended Sum(const Halves& h) {
  const ExtendedPair head = fast_two_sum(h.plus.head, h.minus.head);
  return (head.head + (head.tail + (h.plus.tail + h.minus.tail))) * h.scale;
}

Extended SmallSinh(const Extended& x, int exponent) {
  if (exponent < field_of(-75)) return inexact_identity(x);
  if (exponent <= field_of(-18)) return odd_series<1>(sinh_series, x);
  if (exponent <= field_of(-11)) return odd_series<2>(sinh_series, x);
  if (exponent <= field_of(-6)) return odd_series<4>(sinh_series, x);
  return rounded(odd_sum({x, 0}, ratio(1, 6), polynomial(sinh_terms, x * x)));
}

Extended SmallCosh(const Extended& x, int exponent) {
  if (exponent < field_of(-75)) return 1 + magnitude(x);
  const Extended square = x * x;
  if (exponent <= field_of(-19)) return 1 + square * cosh_series[0];
  if (exponent <= field_of(-12)) return 1 + square * first_terms<2>(cosh_series, square);
  if (exponent <= field_of(-6)) return 1 + square * polynomial(cosh_series, square);
  const ExtendedPair half_square = scale(two_product(x, x), 0.5L);
  const ExtendedPair sum = fast_two_sum(Extended{1}, half_square.head);
  return sum.head + (sum.tail + (half_square.tail + square * square * polynomial(cosh_terms, square)));
}

// Infinite, NaN or so large that the result overflows.
bool IsBeyond(const Extended& x) {
  static constexpr uint64_t last_finite = 0xb174ddc031aec0e9;
  const ExtendedFields f = fields(x);
  const uint32_t exponent = f.sign_and_exponent & 0x7fff;
  return exponent > field_of(13) || (exponent == field_of(13) && f.significand > last_finite);
}

// Products that overflow, or keep an infinity or a NaN.
Extended SinhBeyond(const Extended& x) { return x * ExtendedLimits::max(); }
Extended CoshBeyond(const Extended& x) { return magnitude(x) * ExtendedLimits::max(); }

}  // namespace

void ExtSinh(Extended& result, const Extended& x) {
  const int exponent = exponent_field(x);
  if (IsBeyond(x)) result = SinhBeyond(x);
  else if (exponent < table_from) result = SmallSinh(x, exponent);
  else result = with_sign_of(Difference(HalfExponentials(x)), x);
}

void ExtCosh(Extended& result, const Extended& x) {
  const int exponent = exponent_field(x);
  if (IsBeyond(x)) result = CoshBeyond(x);
  else if (exponent < table_from) result = SmallCosh(x, exponent);
  else result = Sum(HalfExponentials(x));
}

void ExtSinhCosh(const Extended& x, Extended& sinh, Extended& cosh) {
  const Extended argument = x;  // either result may lie over x
  const int exponent = exponent_field(argument);
  if (IsBeyond(argument)) {
    sinh = SinhBeyond(argument);
    cosh = CoshBeyond(argument);
  } else if (exponent < table_from) {
    sinh = SmallSinh(argument, exponent);
    cosh = SmallCosh(argument, exponent);
  } else {
    const Halves halves = HalfExponentials(argument);
    sinh = with_sign_of(Difference(halves), argument);
    cosh = Sum(halves);
  }
}

}  // namespace lum::inline LUM_LAYER::complex
