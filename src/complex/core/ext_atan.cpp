// The arctangent: by the table of angles between 2^-7 and 2^11; below, its series; above, pi/2 less the series of 1/|x|.
#include "complex/core/ext_angle_table.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

Extended SmallAtan(const Extended& x, int exponent) {
  if (exponent < field_of(-75)) return inexact_identity(x);
  if (exponent <= field_of(-19)) return odd_series<1>(arctangent_series, x);
  if (exponent <= field_of(-13)) return odd_series<2>(arctangent_series, x);
  return odd_series<4>(arctangent_series, x);
}

Extended MiddleAtan(Extended x) {
  if (x < 1) {
    const TableAngle angle = ArctangentByTable(x, 1);
    return AddArctangent(Angle(angle.k), angle.u);
  }
  const TableAngle angle = ArctangentByTable(1, x);
  return AddArctangent(Angle(quarter_turn - angle.k), -angle.u);
}

// As many terms of the series of v = 1/x as reach the last place of pi/2.
Extended LargeAtan(Extended x, int exponent) {
  const ExtendedPair right_angle = Angle(quarter_turn);
  if (exponent >= field_of(65)) return rounded(right_angle);
  const Extended v = 1 / x;
  Extended rest = 0;
  if (exponent <= field_of(14)) rest = first_terms<2>(arctangent_series, v * v);
  else if (exponent <= field_of(25)) rest = arctangent_series[0];
  const ExtendedPair sum = fast_two_sum(right_angle.head, -v);
  return sum.head + (sum.tail + (right_angle.tail - v * v * v * rest));
}

Extended AtanOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (x != x) return x + x;
  if (exponent < field_of(-7)) return SmallAtan(x, exponent);
  const Extended positive = magnitude(x);
  return with_sign_of(exponent <= field_of(10) ? MiddleAtan(positive) : LargeAtan(positive, exponent), x);
}

}  // namespace

void ExtAtan(Extended& result, const Extended& x) { result = AtanOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
