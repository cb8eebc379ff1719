// The second path of sinh x and cosh x: the steps of their lane routines over vectors, for arguments next to the overflow and
// beyond, infinities and NaN.
#pragma once

#include <limits>

#include "explog/exp_ends.h"
#include "frame/kernel_frame.h"
#include "hyperbolic/hyperbolic_routine.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// e^m / 2; refused is where its rounding is in doubt.
LUM_INLINE Lanes<Lum64f> HalfExponential(Vec<Lum64f> m) {
  const auto [shifted, k, u] = explog::ExpDoubleReduced(m);
  const auto i = shift_left<1>(bits(shifted) & all(uint64_t{63}));
  const auto [hi, lo] = gather_pairs<Lum64f>(exp2_pairs, i);
  // The floor of the exponent is taken.
  return {ScaledInTwo(hi + (hi * u + lo), fma(k, all(1.0 / 64), all(-1.0))), mask_of<Lum64f>(0)};
}
LUM_INLINE Lanes<Lum32f> HalfExponential(Vec<Lum32f> m) { return explog::ScaledExpAtEnds(m, 0.5); }

template <class T, bool is_odd> LUM_INLINE Finished<T> FinishAtEnds(Vec<T> x, const Lanes<T>& lanes) {
  const auto infinity = all(std::numeric_limits<T>::infinity());
  const auto a = abs(x);
  const auto is_nan = unord(x, x), overflows = le(all(static_cast<T>(hyperbolic_overflow<T>)), a);
  const auto between = lanes.refused & ~(is_nan | overflows);
  auto value = infinity;
  auto remaining = mask_of<T>(0);
  if (any(between)) {
    const auto half = HalfExponential(select(between, a, all(T(32))));
    value = select(between, half.value, value);
    remaining = between & half.refused;
  }
  if constexpr (is_odd) value = or_sign(x, value);
  value = select(is_nan, x + x, value);
  return {select(lanes.refused, value, lanes.value), remaining, {.overflow = overflows & ~eq(a, infinity)}};
}

}  // namespace lum::inline LUM_LAYER::hyperbolic
