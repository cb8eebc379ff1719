// The tangent. Of the remainder r of pi/4, r = k pi/64 + s with |s| <= pi/64, the tangent is that of a sum: with T = tan(k
// pi/64), C = 1/T and p = tan s it is T + (T + C) p / (C - p), and its reciprocal (C - p) / (1 + C p). An odd number of quarter
// turns takes minus the reciprocal.
#include "complex/core/ext_reduce.h"
#include "frame/literals.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// (tan x - x - x^3/3) / x^5, |x| <= pi/64 and a little.
constexpr auto terms = coefficients({
#include "tables/generated/extended_tangent_64f_6_pairs.inc"
});
// (tan x - x) / x^3.
constexpr std::array<Extended, 3> series = {1.0L / 3, 2.0L / 15, 17.0L / 315};

// T, C and T + C for k from -17 to 17.
constexpr auto tangents = table64({
#include "tables/generated/extended_tangents_64f_35_pairs.inc"
});

ExtendedPair ShortTangent(const ExtendedPair& x) { return odd_sum(x, ratio(1, 3), polynomial(terms, x.head * x.head)); }

// r - k pi/64. The first product is exact, and so is its difference from r, which lies between its neighbours.
ExtendedPair SubtractAngle(const ExtendedPair& r, int k) {
  const Extended rest = r.head - k * (numbers::quarter_pi_pair<double>[0] / 16);
  const ExtendedPair sum = two_sum(rest, Extended{-(k * (numbers::quarter_pi_pair<double>[1] / 16))});
  return {sum.head, sum.tail + r.tail};
}

Extended TangentOfSum(int k, const ExtendedPair& p, bool is_reciprocal) {
  const int row = 3 * (k + 17);
  const ExtendedPair tangent = pair_at(tangents, row), cotangent = pair_at(tangents, row + 1),
                     both = pair_at(tangents, row + 2);
  const ExtendedPair difference = add(cotangent, -p);
  if (is_reciprocal) return -rounded(divide(difference, add(multiply(cotangent, p), 1)));
  return rounded(add(tangent, divide(multiply(both, p), difference)));
}

Extended TanByTable(const Extended& x) {
  ExtendedPair r;
  const bool is_reciprocal = (ExtReducePi4(r, x) & 2) != 0;
  const int k = static_cast<int>(r.head * (64 * numbers::inverse_pi<double>));
  if (k != 0) return TangentOfSum(k, ShortTangent(SubtractAngle(r, k)), is_reciprocal);
  const ExtendedPair tangent = ShortTangent(r);
  return rounded(is_reciprocal ? divide({-1, 0}, tangent) : tangent);
}

Extended TanOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (exponent < field_of(-75)) return inexact_identity(x);
  if (exponent <= field_of(-20)) return odd_series<1>(series, x);
  if (exponent <= field_of(-13)) return odd_series<2>(series, x);
  if (exponent <= field_of(-11)) return odd_series<3>(series, x);
  if (exponent == extended_special) return x - x;
  return TanByTable(x);
}

}  // namespace

void ExtTan(Extended& result, const Extended& x) { result = TanOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
