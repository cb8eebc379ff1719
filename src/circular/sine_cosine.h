// Sine and cosine of a binary64 number at once, for the functions that return both. A50 and A26 take |x| = n pi + r and, on the
// other side of r, the odd multiple of pi/2 next to |x|; one odd polynomial serves both remainders. A53 reduces to sixteenths
// of a half turn with a table.
#pragma once

#include "circular/chunk_routine.h"
#include "circular/half_turns.h"
#include "circular/large_reduction.h"
#include "circular/nonfinite.h"
#include "circular/quarter_turns.h"
#include "circular/sixteenths.h"

namespace lum::inline LUM_LAYER::circular {

// The results of the large reduction in the lanes beyond the threshold.
LUM_INLINE SineAndCosineValues<Lum64f> MergeLarge(Vec<Lum64f> x, const LargeAngle<Lum64f>& a,
                                                  const SineAndCosineValues<Lum64f>& ordinary) {
  return {select(ordinary.refused, SineOf(a.index, a.hi, a.lo) ^ sign_of(x), ordinary.sine),
          select(ordinary.refused, CosineOf(a.index, a.hi, a.lo), ordinary.cosine), fpclass<classes::nonfinite>(x)};
}
LUM_INLINE SineAndCosineValues<Lum64f> MergeLarge(Vec<Lum64f> x, const SineAndCosineValues<Lum64f>& ordinary) {
  return MergeLarge(x, ReduceLarge(x), ordinary);
}

// pi_parts is how many parts of pi take part, two or three, and the polynomial gives the sine of the remainders.
template <int pi_parts, size_t n>
LUM_INLINE SineAndCosineValues<Lum64f> ByHalfTurns(Vec<Lum64f> x, const Polynomial<Lum64f, n>& sine_polynomial) {
  const auto a = abs(x);
  const auto [whole, shifted] = NearestHalfTurns(a);
  auto r = TakeHalfTurns(a, whole);
  // The sign of r tells on which side the odd multiple of pi/2 lies.
  const auto m = whole + or_sign(r, all(0.5));
  const auto parity = ParitySign(shifted);
  const auto cosine_sign = ternary<A ^ (~B & C)>(parity, bits(r), all(sign_bit<Lum64f>));
  auto rc = TakeHalfTurns(a, m);
  if constexpr (pi_parts == 3) {
    r = TakeThirdPart(r, whole);
    rc = TakeThirdPart(rc, m);
  }
  const auto sine = OddSine(r, sine_polynomial) ^ OddParitySign(shifted, x, a);
  const auto cosine = OddSine(rc, sine_polynomial) ^ cosine_sign;
  return {sine, select(eq(a, all(0.0)), all(1.0), cosine), nle(a, all(0x1p23))};
}

struct SineAndCosine_A26 {
  using Element = Lum64f;
  static LUM_INLINE SineAndCosineValues<Lum64f> Ordinary(Vec<Lum64f> x) { return ByHalfTurns<2>(x, circular::sin_A26); }
};
struct SineAndCosine_A50 {
  using Element = Lum64f;
  static LUM_INLINE SineAndCosineValues<Lum64f> Ordinary(Vec<Lum64f> x) { return ByHalfTurns<3>(x, circular::sincos_A50); }
};
struct SineAndCosine_A53 {
  using Element = Lum64f;
  static LUM_INLINE SineAndCosineValues<Lum64f> Ordinary(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto r = TakeSixteenths(a);
    const auto angle = AngleOf(r.shifted);
    return {SineOf(angle, r) ^ HalfTurnSign(r, x), CosineOf(angle, r) ^ HalfTurnSign(r), nle(a, all(0x1p24))};
  }
};

// The values of any finite numbers, given the ordinary ones.
template <class Tier, class T> LUM_INLINE SineAndCosineValues<T> OfAnyFinite(Vec<T> x, const SineAndCosineValues<T>& ordinary) {
  if (!AnyFinite(ordinary.refused, x)) return ordinary;
  if constexpr (sizeof(T) == 8) return MergeLarge(x, ordinary);
  else return Tier::Large(x);
}

// The lane routine of either type and tier: in binary32 only infinities and NaN come here.
inline LumStatus SineAndCosineRoutine(Lum32f x, Lum32f& sine, Lum32f& cosine) {
  const LumStatus status = CircularOfNonFinite(x, sine);
  cosine = sine;
  return status;
}
inline LumStatus SineAndCosineRoutine(Lum64f x, Lum64f& sine, Lum64f& cosine) { return SineAndCosine(x, sine, cosine); }

}  // namespace lum::inline LUM_LAYER::circular
