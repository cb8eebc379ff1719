// What the second paths of the logarithms share: the parts of any numbers.
#pragma once

#include "complex/core_second_path.h"
#include "complex/logarithm_parts.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {

// |z|^2 - 1 next to the unit circle as the sum of two pairs. The leading difference is exact. Where there is one number alone,
// it is so for the core, too.
struct SquareLessOne {
  TwoParts<Vec<Lum64f>> first, tails;
  Mask<Lum64f> is_exact;
};
LUM_INLINE SquareLessOne SquareLessOneOf(Vec<Lum64f> large, Vec<Lum64f> small) {
  const auto a = ExactSquare(large), b = ExactSquare(small);
  const auto sum = fast_two_sum(a.head, b.head);
  const auto first = two_sum(sum.head - all(1.0), sum.tail), tails = two_sum(a.tail, b.tail);
  return {first, tails, IsZero(a.tail) & IsZero(b.tail) & IsZero(first.tail)};
}

// ln |z| next to the unit circle, where it is half of |z|^2 - 1. In each of three sums the core rounds off no more than 2^-64.
struct SmallLogarithm {
  HeadTail value;
  Vec<Lum64f> error;
};
LUM_INLINE SmallLogarithm LogarithmNextToCircle(const SquareLessOne& square) {
  const auto& [first, tails, is_exact] = square;
  const auto s = two_sum(first.head, tails.head);
  const auto value = Scaled(LogarithmOfOnePlus(fast_two_sum(s.head, s.tail + (first.tail + tails.tail))), 0.5);
  const auto summed = zero_unless(~is_exact, all(1.5625) * (abs(first.head) + abs(tails.head)));
  return {value, fma(abs(value.head), all(function_error), summed)};
}
// Where the first path has refused a logarithm for that.
LUM_INLINE Mask<Lum64f> IsNextToCircle(ComplexVec<Lum64f> z) {
  return lt(abs(fma(z.re, z.re, fma(z.im, z.im, all(-1.0)))), all(0x1p-34));
}

// A logarithm, and the exponent of the power of 2 that its angle lacks.
struct ScaledLogarithm {
  LogarithmValue value;
  Vec<Lum64f> angle_exponent;
};
LUM_INLINE ScaledLogarithm LogarithmOfAny(ComplexVec<Lum64f> z) {
  const auto ax = abs(z.re), ay = abs(z.im);
  const auto large = max(ax, ay), exponent = getexp(large);
  const auto common = zero_unless(lt(all(100.0), abs(exponent)), exponent);
  const auto x = Raised(z.re, negate(common)), y = Raised(z.im, negate(common));
  auto value = LogarithmParts({x.value, y.value});
  constexpr auto& ln2 = numbers::ln2_by_2p40_parts<Lum64f>;
  value.modulus = Add(value.modulus, {common * all(ln2[0]), common * all(ln2[1])});
  const auto magnitude = abs(value.modulus.head);
  value.modulus_error = ModulusError(magnitude, nle(magnitude, all(0.0147)));
  const auto is_near = lt(magnitude, all(0.0147)), is_next = IsNextToCircle(z);
  if (any(is_near)) {
    const auto square = SquareLessOneOf(large, min(ax, ay));
    value.modulus_error = select(is_near & square.is_exact, magnitude * all(function_error), value.modulus_error);
    if (any(is_next)) {
      const auto logarithm = LogarithmNextToCircle(square);
      value.modulus = Select(is_next, logarithm.value, value.modulus);
      value.modulus_error = select(is_next, logarithm.error, value.modulus_error);
    }
  }
  // Its square is lost beside 1.
  value.refused = is_next & IsBelow(min(ax, ay), 0x1p-200);
  return {value, zero_unless(~IsNegative(z.re), y.exponent)};
}

// The logarithm of zero and of numbers with an infinite or a NaN part.
LUM_INLINE ComplexVec<Lum64f> LogarithmOfSpecial(ComplexVec<Lum64f> z, const EighthTurns& turns, Lum64f half_turn) {
  const auto nan = z.re * z.im, unbounded = all(infinity);
  const auto of_zero = or_sign(z.im, select(IsNegative(z.re), all(half_turn), all(0.0)));
  const ComplexVec<Lum64f> value{select(IsInfinite(z.re) | IsInfinite(z.im), unbounded, nan),
                                 select(unord(z.re, z.im), nan, AngleOfInfinite(z, turns))};
  return Select(IsZero(z), {negate(unbounded), of_zero}, value);
}

struct LnEnds {
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto [value, angle_exponent] = LogarithmOfAny(z);
    return CoreValueOf(RoundedAtEnds(value.modulus, value.modulus_error, all(0.0)),
                       RoundedAtEnds(value.angle, value.angle_error, angle_exponent), ~value.refused);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z) | IsZero(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    return LogarithmOfSpecial(z, eighth_turns, eighth_turns.left);
  }
};

}  // namespace lum::inline LUM_LAYER::complex
