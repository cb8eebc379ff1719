// The second path of the exponentials: the steps of the lane routines over vectors. A denormal result is rounded by a sum whose
// last bit is worth the smallest denormal number, so that no operation stops at it.
#pragma once

#include <limits>

#include "explog/exp_reduction.h"
#include "explog/exp_routine.h"
#include "frame/kernel_frame.h"
#include "frame/lifted.h"

namespace lum::inline LUM_LAYER::explog {

// v / 2^scale rounded to a multiple of the smallest positive number of T, for 0 <= v <= 2^scale times the smallest normal one.
// The sum is in the binade of the addend, or next above it exactly; so its pattern less the addend's counts the multiples.
template <int scale> LUM_INLINE Vec<Lum32f> RoundedToDenormal(Vec<Lum32f> v) {
  constexpr auto addend = lane::power_of_two<Lum32f>(1 + scale - lane::Format<Lum32f>::bias);
  return as_float(bits(v + all(addend)) - bits(all(addend)));
}

// e^x of numbers between the refusal and the ends, in the lanes of the mask; the others hold an ordinary number.
LUM_INLINE Lanes<Lum32f> ExpFloatAtEnds(Vec<Lum32f> x) {
  const auto a = ExpFloatReduced(x);
  const auto denormal = lt(x, all(ExpLimits<Lum32f>::denormal));
  const auto raised = scalef_normal(a.p, zero_unless(denormal, a.m) + all(60.0f));
  // The error of p may bring it above the smallest normal number.
  const auto rounds = denormal & le(raised, all(0x1p-66f));
  const auto normal = ScaledInTwo(a.p, zero_unless(~rounds, a.m));
  return {select(rounds, RoundedToDenormal<60>(raised), normal), mask_of<Lum32f>(0)};
}

struct ExpDoubleValue {
  Vec<Lum64f> head, p, exponent;
};
LUM_INLINE ExpDoubleValue ExpDoubleAtEnds(Vec<Lum64f> x) {
  const auto a = ExpDoubleReduced(x);
  const auto j = shift_left<1>(bits(a.shifted) & all(uint64_t{63}));
  const auto [head, tail] = gather_pairs<Lum64f>(exp2_pairs, j);
  return {head, (a.u + tail) * head, a.k * all(1.0 / 64)};  // scalef takes the floor of the exponent
}

LUM_INLINE Lanes<Lum64f> ExpAtEnds(Vec<Lum64f> x) {
  const auto a = ExpDoubleAtEnds(x);
  const auto denormal = lt(x, all(ExpLimits<Lum64f>::denormal));
  const auto normal = ScaledInTwo(a.head + a.p, zero_unless(~denormal, a.exponent));
  if (!any(denormal)) return {normal, mask_of<Lum64f>(0)};
  // The steps of ExpScaledToDenormal.
  const auto exponent = select(denormal, a.exponent, all(-1000.0)) + all(60.0);
  const auto up = scalef_normal(a.p, exponent), b = scalef_normal(a.head, exponent);
  const auto s = b + up;
  constexpr double unit = 0x1p-962;  // its last bit is worth 2^60 times the smallest positive number
  const auto counted = [](Vec<Lum64f> v, double addend) __attribute__((always_inline)) {
    return bits(v + all(addend)) - bits(all(addend));
  };
  const auto w = s * all(0x1.8p32);
  const auto hi = (w + s) - w;
  const auto lo = (s - hi) + ((b - s) + up);
  const auto in_two_parts = counted(hi, unit) + counted(lo, 1.5 * unit);
  const auto is_short = lt(exponent, all(exp_last_short + 60 + 1.0));
  const auto count = select(mask_cast<uint64_t>(is_short), counted(s, unit), in_two_parts);
  return {select(denormal, as_float(count), normal), mask_of<Lum64f>(0)};
}
// c e^x. The rounding to binary32 is in doubt next to a tie alone.
LUM_INLINE Lanes<Lum32f> ScaledExpAtEnds(Vec<Lum32f> x, double c) {
  return NarrowedWithin(0x1p-46, ExpInBinary64(widen_low(x)), ExpInBinary64(widen_high(x)), c);
}
LUM_INLINE Lanes<Lum32f> ExpAtEnds(Vec<Lum32f> x) { return ScaledExpAtEnds(x, 1); }

// at_ends is the function between the refusal and the ends; where it refuses, the lane routine remains.
template <class T, class AtEnds> LUM_INLINE Finished<T> ExpSecondPath(Vec<T> x, const Lanes<T>& lanes, AtEnds at_ends) {
  using Limits = ExpLimits<T>;
  const auto finite = lt(abs(x), all(std::numeric_limits<T>::infinity()));
  const auto above = lt(all(Limits::overflow), x), below = lt(x, all(Limits::underflow));
  const auto between = lanes.refused & ~(above | below);
  auto value = select(above, all(std::numeric_limits<T>::infinity()), lanes.value);
  value = select(below, all(T(0)), value);
  auto remaining = mask_of<T>(0);
  if (any(between)) {
    const Lanes<T> of_ends = at_ends(select(between, x, all(T(0))));
    value = select(between, of_ends.value, value);
    remaining = between & finite & of_ends.refused;  // a NaN comes through
  }
  const auto denormal = lt(x, all(Limits::denormal)) & finite;
  return {value, remaining, {.overflow = above & finite, .underflow = denormal}};
}

}  // namespace lum::inline LUM_LAYER::explog
