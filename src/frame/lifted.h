// Numbers at the ends of the range by operations between normal ones: denormal numbers by their bits, since on Intel's
// processors an operation that meets or makes a denormal number takes a hundred times as long, and powers of 2 that are no
// factors.
#pragma once

#include "frame/lane_format.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER {

// Denormal numbers are taken 2^lift times as large. It is even, so that their roots have a power of 2 in common, too.
template <Floating T> inline constexpr int lift = (lane::Format<T>::bias + lane::Format<T>::fraction_bits) / 2 * 2;

// Lanes of zeros and denormal numbers.
template <Floating T> LUM_INLINE Mask<T> IsBelowNormal(Vec<T> x) {
  return mask_cast<T>(lt(as_signed(bits(abs(x))), all(static_cast<SignedOf<T>>(lane::Format<T>::hidden))));
}
template <Floating T> struct Lifted {
  Vec<T> x;
  Mask<T> was_lifted;
};
// The bits of a number below the normal ones count its steps, in a sum of which they are the low bits.
template <Floating T> LUM_INLINE Lifted<T> LiftDenormals(Vec<T> x) {
  using F = lane::Format<T>;
  constexpr T step = (F::bias + F::fraction_bits) % 2 == 0 ? 2 : 1, shifter = step * static_cast<T>(F::hidden);
  const auto below = IsBelowNormal(x);
  const auto count = as_float(bits(abs(x)) | all(std::bit_cast<UnsignedOf<T>>(shifter))) - all(shifter);
  return {select(below, or_sign(x, count), x), below};
}
// The parts of finite numbers other than zero.
template <int imm, Floating T> LUM_INLINE Parts<T> PartsOfFinite(Vec<T> x) {
  const auto lifted = LiftDenormals(x);
  const auto exponent = getexp_normal(lifted.x);
  return {getmant_normal<imm>(lifted.x), exponent - zero_unless(lifted.was_lifted, all(T(lift<T>)))};
}

// v 2^floor(n) where that is no denormal number, for n from -2 bias to 2 bias: in two steps where one factor for it may lie
// beyond the normal numbers and there is no instruction for it. A v that is a NaN stays.
template <Floating T> LUM_INLINE Vec<T> ScaledInTwo(Vec<T> v, Vec<T> n) {
  if constexpr (estimates_take_all && vectors_fit_registers) return scalef(v, n);
  const auto half = rndscale<binary_places(0) | rd | quiet>(n * all(T(0.5)));
  return scalef_normal(scalef_normal(v, half), n - half);
}

}  // namespace lum::inline LUM_LAYER
