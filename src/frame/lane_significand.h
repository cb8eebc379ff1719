// Exponent and significand of one lane, of any number.
#pragma once

#include "frame/lane_arithmetic.h"

namespace lum::inline LUM_LAYER::lane {

// |x| = 1.fraction * 2^exponent for x finite and not zero, denormals included.
template <Floating T> struct Normalized {
  UnsignedOf<T> fraction;
  int exponent;
};
template <Floating T> LUM_INLINE Normalized<T> normalized(T x) {
  using F = Format<T>;
  const auto b = to_bits(magnitude(x));
  const bool denormal = b < F::hidden;
  const auto scaled = to_bits(from_bits<T>(b) * power_of_two<T>(F::fraction_bits + 1));
  const auto n = denormal ? scaled : b;
  const int bias = denormal ? F::bias + F::fraction_bits + 1 : F::bias;
  return {n & F::fraction, static_cast<int>(n >> F::fraction_bits) - bias};
}

// floor(log2 |x|); -infinity for a zero, +infinity for an infinity.
template <Floating T> LUM_INLINE T getexp(T x) {
  using F = Format<T>;
  const auto b = to_bits(magnitude(x));
  const T exponent = static_cast<T>(normalized(x).exponent);
  const auto finite = b == 0 ? F::sign | F::infinity : to_bits(exponent);
  const auto special = b == F::infinity ? b : to_bits(x) | F::quiet;
  return from_bits<T>(b >= F::infinity ? special : finite);
}

// The significand in the interval of imm bits 0-1, with the sign of bits 2-3. Zeros and infinities count as 1.0; -0 counts as
// negative for its sign, but gives no NaN.
template <int imm, Floating T> LUM_INLINE T getmant(T x) {
  using F = Format<T>;
  using Bits = typename F::Bits;
  constexpr int interval = imm & 3;
  constexpr bool clear_sign = (imm & 4) != 0;
  constexpr bool nan_if_negative = (imm & 8) != 0;
  const Bits b = to_bits(magnitude(x));
  const auto [fraction, exponent] = normalized(x);
  const Bits one = static_cast<Bits>(F::bias) << F::fraction_bits;
  Bits halved = 0;  // 1 when the significand is taken from [1/2,1)
  if constexpr (interval == 1) halved = static_cast<Bits>(exponent) & 1;
  if constexpr (interval == 2) halved = 1;
  if constexpr (interval == 3) halved = fraction >> (F::fraction_bits - 1);
  const Bits finite = (one | fraction) - (halved << F::fraction_bits);
  const Bits plain = b == 0 || b == F::infinity ? one : finite;
  const Bits sign = clear_sign ? 0 : to_bits(x) & F::sign;
  const bool refused = nan_if_negative && x < 0;
  return from_bits<T>(b > F::infinity ? to_bits(x) | F::quiet : refused ? F::default_nan : plain | sign);
}

}  // namespace lum::inline LUM_LAYER::lane
