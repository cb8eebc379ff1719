// Operations on the exponent, the significand and the class of one lane: straight-line integer code for loops over lanes.
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

// floor(b) for use as a count of doublings, with b taken to the nearest end of [-limit, limit]; a NaN goes to the low end.
template <int limit, Floating T> LUM_INLINE int limited_floor(T b) {
  const T low = b > T{-limit} ? b : T{-limit};
  const T limited = low < T{limit} ? low : T{limit};
  const int truncated = static_cast<int>(limited);
  return truncated - (static_cast<T>(truncated) > limited);
}
// a 2^floor(b) with one rounding. A float times 2^n, |n| <= 400, is exact in double, and beyond 400 nothing changes.
template <int R> LUM_INLINE float quick_scalef(float a, float b) {
  return round_to_float<R>(static_cast<double>(a) * power_of_two<double>(limited_floor<400>(b)));
}
template <int R> LUM_INLINE double quick_scalef(double a, double b) {
  const int64_t n = limited_floor<5000>(b);
  return from_bits<double>(to_bits(a) + (a == 0 ? 0 : static_cast<uint64_t>(n) << 52));
}
LUM_INLINE float scalef_doubt(float a, float b) { return is_nan((a - a) * 0 + (b - b)) ? 1.0f : 0.0f; }
// The quick double form holds for normal numbers that stay normal, and for zeros.
LUM_INLINE double scalef_doubt(double a, double b) {
  const auto exponent = static_cast<int32_t>(to_bits(magnitude(a)) >> 52);
  const int32_t scaled = exponent + limited_floor<5000>(b);
  const uint64_t normal = mask_if<uint64_t>(static_cast<uint32_t>(exponent - 1) < 2046) &
                          mask_if<uint64_t>(static_cast<uint32_t>(scaled - 1) < 2046);
  const uint64_t doubtful = (~normal & ~mask_where<double>(a == 0)) | mask_where<double>(is_nan(b - b));
  return from_bits<double>(doubtful);
}

// a 2^floor(b) where the result is a normal number and floor(b) the exponent of one; a NaN a stays.
template <Floating T> LUM_INLINE T scalef_normal(T a, T b) {
  using F = Format<T>;
  constexpr T shifter = T(1.5) * static_cast<T>(F::hidden) + T(F::bias);
  const T nearest = b + shifter;
  const auto down = mask_where<T>(nearest - shifter > b);  // minus one where b was rounded up
  return a * from_bits<T>(static_cast<typename F::Bits>((to_bits(nearest) + down) << F::fraction_bits));
}

// x rounded to a multiple of 2^-M, M in imm bits 4-7. Adding the power of two whose last bit is worth 2^-M rounds a smaller
// magnitude to nearest even; the directed modes step back when that went the wrong way. Larger magnitudes are on the grid.
template <int imm, Floating T> LUM_INLINE T rndscale(T x) {
  using F = Format<T>;
  using Bits = typename F::Bits;
  constexpr int M = (imm >> 4) & 15;
  constexpr int R = (imm & 4) ? rn : imm & 3;
  const T grid_is_coarser_below = power_of_two<T>(F::fraction_bits - M);
  const T step = power_of_two<T>(-M);
  const auto sign = to_bits(x) & F::sign;
  const T m = magnitude(x);
  T rounded = (m + grid_is_coarser_below) - grid_is_coarser_below;
  const T toward_zero = rounded - blend(mask_where<T>(rounded > m), step, T{0});
  const T away_from_zero = rounded + blend(mask_where<T>(rounded < m), step, T{0});
  const auto negative = mask_where<T>(x < 0);
  if constexpr (R == rz) rounded = toward_zero;
  if constexpr (R == rd) rounded = blend(negative, away_from_zero, toward_zero);
  if constexpr (R == ru) rounded = blend(negative, toward_zero, away_from_zero);
  const Bits kept = to_bits(x) | (mask_where<T>(is_nan(x)) & F::quiet);
  return blend(mask_where<T>(m < grid_is_coarser_below), from_bits<T>(to_bits(rounded) | sign), from_bits<T>(kept));
}
// x - rndscale<imm>(x) in the rounding of imm; an infinity of either sign leaves +0.
template <int imm, Floating T> LUM_INLINE T reduce(T x) {
  constexpr int R = (imm & 4) ? rn : imm & 3;
  const T rest = sub<R>(x, rndscale<imm>(x));
  return from_bits<T>(to_bits(rest) & ~mask_where<T>(magnitude(x) > from_bits<T>(Format<T>::infinity - 1)));
}

// Whether the class of x is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative
// finite other than -0, 7 signalling NaN.
template <int imm, Floating T> LUM_INLINE bool fpclass(T x) {
  using F = Format<T>;
  const auto b = to_bits(x);
  const auto m = to_bits(magnitude(x));
  bool in_set = false;
  if constexpr ((imm & 0x01) != 0) in_set |= m >= (F::infinity | F::quiet);
  if constexpr ((imm & 0x02) != 0) in_set |= b == 0;
  if constexpr ((imm & 0x04) != 0) in_set |= b == F::sign;
  if constexpr ((imm & 0x08) != 0) in_set |= b == F::infinity;
  if constexpr ((imm & 0x10) != 0) in_set |= b == (F::sign | F::infinity);
  if constexpr ((imm & 0x20) != 0) in_set |= (m - 1) < F::fraction;
  if constexpr ((imm & 0x40) != 0) in_set |= x < 0 && m != F::infinity;
  if constexpr ((imm & 0x80) != 0) in_set |= (m - F::infinity - 1) < F::quiet - 1;
  return in_set;
}

}  // namespace lum::inline LUM_LAYER::lane
