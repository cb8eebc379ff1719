// The second path of sinh x and cosh x: the steps of their lane routines over vectors, for arguments next to the overflow and
// beyond, infinities and NaN.
#pragma once

#include <limits>

#include "frame/kernel_frame.h"
#include "hyperbolic/hyperbolic_routine.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// e^m / 2.
LUM_INLINE Vec<Lum64f> HalfExponential(Vec<Lum64f> m) {
  const auto [shifted, k, u] = explog::ExpDoubleReduced(m);
  const auto i = shift_left<1>(bits(shifted) & all(uint64_t{63}));
  const auto hi = gather<Lum64f>(exp2_pairs, i), lo = gather<Lum64f>(exp2_pairs + 1, i);
  return scalef(hi + (hi * u + lo), fma(k, all(1.0 / 64), all(-1.0)));  // scalef takes the floor of the exponent
}
LUM_INLINE Vec<Lum32f> HalfExponential(Vec<Lum32f> m) {
  return narrow(HalfExponential(widen_low(m)), HalfExponential(widen_high(m)));
}

template <class T, bool is_odd> LUM_INLINE Finished<T> FinishAtEnds(Vec<T> x, const Lanes<T>& lanes) {
  const auto infinity = all(std::numeric_limits<T>::infinity());
  const auto a = abs(x);
  const auto is_nan = unord(x, x), overflows = le(all(static_cast<T>(hyperbolic_overflow<T>)), a);
  const auto between = lanes.refused & ~(is_nan | overflows);
  auto value = infinity;
  if (any(between)) value = select(between, HalfExponential(select(between, a, all(T(32)))), value);
  if constexpr (is_odd) value = or_sign(x, value);
  value = select(is_nan, x + x, value);
  return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.overflow = overflows & ~eq(a, infinity)}};
}

}  // namespace lum::inline LUM_LAYER::hyperbolic
