// Hyperbolic tangent: (E - 1) / (E + 1) with E = e^(2|x|) from the table of powers, the series below 1/2, and 1 where nothing
// else is left.
#include "complex/core/ext_power_table.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr auto terms = coefficients({
#include "tables/generated/extended_tanh_64f_13_pairs.inc"
});
// (tanh x - x) / x^3.
constexpr std::array<Extended, 4> series = {-1.0L / 3, 2.0L / 15, -17.0L / 315, 62.0L / 2835};

constexpr uint32_t quotient_until = 0x40019665;  // |x| to about 4.7: beyond, 2 / (E + 1) is small beside 1

Extended SmallTanh(const Extended& x, int exponent) {
  if (exponent < field_of(-75)) return inexact_identity(x);
  if (exponent <= field_of(-19)) return odd_series<1>(series, x);
  if (exponent <= field_of(-13)) return odd_series<2>(series, x);
  if (exponent <= field_of(-8)) return odd_series<4>(series, x);
  return rounded(odd_sum({x, 0}, ratio(-1, 3), polynomial(terms, x * x)));
}

Extended TanhByPowers(const Extended& x) {
  const PowerArgument a = ReduceByPowers(2 * magnitude(x));
  const ExtendedPair power = scale(TablePower(a.j, a.even + a.odd), power_of_two(a.e));
  const ExtendedPair sum = add(power, 1);
  if ((leading_word(x) & 0x7fffffff) > quotient_until) return 1 - 2 / sum.head;
  return rounded(divide(add(power, -1), sum));
}

Extended TanhOf(const Extended& x) {
  constexpr Extended tiny = ExtendedLimits::min();
  const int exponent = exponent_field(x);
  if (exponent < field_of(-1)) return SmallTanh(x, exponent);
  if (exponent <= field_of(4)) return with_sign_of(TanhByPowers(x), x);
  if (x != x) return x + x;
  return with_sign_of(1 - tiny, x);
}

}  // namespace

void ExtTanh(Extended& result, const Extended& x) { result = TanhOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
