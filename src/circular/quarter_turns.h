// Sine and cosine of a binary32 number at once: |x| = n pi/2 + r, a polynomial for each of sin r and cos r, exchanged and
// signed by n modulo 4. From 2^19 on r and n come from a product with 2/pi, of which a table in registers holds the rounded
// rests modulo whole turns for every eight binades.
#pragma once

#include "circular/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "frame/types.h"
#include "frame/vec.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::circular {

template <class T> struct SineAndCosineValues {
  Vec<T> sine, cosine;
  Mask<T> refused;
};

// |x| = n pi/2 + r with r of type R, by lanes of binary32 in parts; the low bits of `count` are those of n.
struct QuarterTurn {
  Vec<Lum64f> r;
  Vec<uint64_t> count;
};

// 2/pi, and from entry 1 on 2/pi modulo 2^(2 - 8k).
inline constexpr auto two_over_pi_heads = table64({
#include "tables/generated/two_over_pi_residue_64f_16_head.inc"
});
inline constexpr auto two_over_pi_tails = table64({
#include "tables/generated/two_over_pi_residue_64f_16_tail.inc"
});

// For a binary32 a >= 2^19. From 2^(23 + 8k) on, what entry k lacks of 2/pi gives whole multiples of four quarter turns.
LUM_INLINE QuarterTurn ReduceByResidue(Vec<Lum64f> a) {
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const auto y = max(a, all(0x1p23));
  const auto k = shift_right<3>(exponent_field(y) - all(uint64_t{lane::Format<Lum64f>::bias + 23}));
  const auto hi = permute2(load<Lum64f>(two_over_pi_heads), load(two_over_pi_heads + 8), k);
  const auto lo = permute2(load<Lum64f>(two_over_pi_tails), load(two_over_pi_tails + 8), k);
  const auto p = a * hi;
  const auto e = fma(a, lo, fms(a, hi, p));
  const auto t = p + all(shifter);
  const auto f = (p - (t - all(shifter))) + e;
  return {f * all(numbers::pi<Lum64f> / 2), bits(t)};
}

// The low halves of the lanes of two vectors.
LUM_INLINE Vec<uint32_t> LowHalves(Vec<uint64_t> low, Vec<uint64_t> high) {
  return bits(deinterleave(as_float(as_lanes32(low)), as_float(as_lanes32(high))).even);
}

// The values of x from those of r: exchanged for odd n, with the signs of the quarter and, in the sine, of x.
LUM_INLINE SineAndCosineValues<Lum32f> SelectQuarter(Vec<Lum32f> x, Vec<uint32_t> n, Vec<Lum32f> sine, Vec<Lum32f> cosine,
                                                     Mask<Lum32f> refused) {
  const auto odd = mask_cast<Lum32f>(test_any(n, all(1u)));
  const auto sign = all(sign_bit<Lum32f>);
  const auto second_bit = shift_left<30>(n);
  return {select(odd, cosine, sine) ^ ternary<(A ^ B) & C>(second_bit, bits(x), sign),
          select(odd, sine, cosine) ^ ternary<(A ^ B) & C>(second_bit, shift_left<31>(n), sign), refused};
}

LUM_INLINE Mask<Lum32f> BeyondQuarterTurns(Vec<Lum32f> a) { return nlt(a, all(0x1p19f)); }

// The tiers A11 and A21, in binary32.
struct QuarterTurns_A21 {
  using Element = Lum32f;
  struct Reduced {
    Vec<Lum32f> r;
    Vec<uint32_t> n;
  };

  static LUM_INLINE Reduced Reduce(Vec<Lum32f> a) {
    constexpr auto shifter = rounding_shifter<Lum32f>();
    constexpr auto& pi_parts = numbers::pi_parts<Lum32f>;
    const auto t = fma(a, all(2 * numbers::inverse_pi<Lum32f>), all(shifter));
    const auto n = t - all(shifter);
    const auto r1 = fma(n, all(-pi_parts[0] / 2), a);
    return {fma(n, all(-pi_parts[2] / 2), fma(n, all(-pi_parts[1] / 2), r1)), bits(t)};
  }
  static LUM_INLINE SineAndCosineValues<Lum32f> Evaluate(Vec<Lum32f> x, const Reduced& a, Mask<Lum32f> refused) {
    const auto q = a.r * a.r;
    const auto p = horner(q, circular::quarter_sine_A21);
    const auto cosine = horner(q, circular::quarter_cosine_A21);
    return SelectQuarter(x, a.n, fma(p, a.r, a.r), cosine, refused);
  }
  static LUM_INLINE SineAndCosineValues<Lum32f> Ordinary(Vec<Lum32f> x) {
    const auto a = abs(x);
    return Evaluate(x, Reduce(a), BeyondQuarterTurns(a));
  }
  static LUM_INLINE SineAndCosineValues<Lum32f> Large(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto beyond = BeyondQuarterTurns(a);
    const auto low = ReduceByResidue(widen_low(a)), high = ReduceByResidue(widen_high(a));
    const auto ordinary = Reduce(a);
    const Reduced merged{select(beyond, narrow(low.r, high.r), ordinary.r),
                         select(mask_cast<uint32_t>(beyond), LowHalves(low.count, high.count), ordinary.n)};
    return Evaluate(x, merged, fpclass<classes::nonfinite>(x));
  }
};

// The tier A24, in binary64.
struct QuarterTurns_A24 {
  using Element = Lum32f;

  static LUM_INLINE QuarterTurn Reduce(Vec<Lum64f> a) {
    constexpr auto shifter = rounding_shifter<Lum64f>();
    const auto t = fma(a, all(2 * numbers::inverse_pi<Lum64f>), all(shifter));
    const auto n = t - all(shifter);
    return {fnma(n, all(numbers::pi_tail<Lum64f> / 2), fnma(n, all(numbers::pi<Lum64f> / 2), a)), bits(t)};
  }
  static LUM_INLINE Vec<Lum64f> Sine(Vec<Lum64f> r) {
    const auto p = horner(r * r, circular::quarter_sine_A24);
    return fma(p, r, r);
  }
  static LUM_INLINE Vec<Lum64f> Cosine(Vec<Lum64f> r) { return horner(r * r, circular::quarter_cosine_A24); }
  static LUM_INLINE SineAndCosineValues<Lum32f> Evaluate(Vec<Lum32f> x, const QuarterTurn& low, const QuarterTurn& high,
                                                         Mask<Lum32f> refused) {
    return SelectQuarter(x, LowHalves(low.count, high.count), narrow(Sine(low.r), Sine(high.r)),
                         narrow(Cosine(low.r), Cosine(high.r)), refused);
  }
  static LUM_INLINE SineAndCosineValues<Lum32f> Ordinary(Vec<Lum32f> x) {
    const auto a = abs(x);
    return Evaluate(x, Reduce(widen_low(a)), Reduce(widen_high(a)), BeyondQuarterTurns(a));
  }
  static LUM_INLINE QuarterTurn ReduceAny(Vec<Lum64f> a) {
    const auto beyond = nlt(a, all(0x1p19));
    const auto ordinary = Reduce(a), large = ReduceByResidue(a);
    return {select(beyond, large.r, ordinary.r), select(mask_cast<uint64_t>(beyond), large.count, ordinary.count)};
  }
  static LUM_INLINE SineAndCosineValues<Lum32f> Large(Vec<Lum32f> x) {
    const auto a = abs(x);
    return Evaluate(x, ReduceAny(widen_low(a)), ReduceAny(widen_high(a)), fpclass<classes::nonfinite>(x));
  }
};

}  // namespace lum::inline LUM_LAYER::circular
