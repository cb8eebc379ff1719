// 1/x and 1/sqrt(x) to 14 bits, the same bits as the instructions. A segment of the significand's range is a straight line in
// integers: significand = (a * scale - b * (j - 512)) >> 9, worth 2^-17 each, with j the ten fraction bits after those that
// name the segment.
#pragma once

#include "frame/lane_format.h"

namespace lum::inline LUM_LAYER::lane {

struct Line {
  uint32_t a, b;
};
inline constexpr Line reciprocal_lines[64] = {
#include "tables/generated/rcp14.inc"
};
// The first half for 1.f, the second for 2 * 1.f.
inline constexpr Line reciprocal_root_lines[64] = {
#include "tables/generated/rsqrt14.inc"
};

// Those lines with the constant and the slope of each in one word: the significand at place j of a segment is
// (constant * 2^scale - slope * j) >> 9. The segments' order is changed in the bits of `swapped`.
struct alignas(64) LineWords {
  uint32_t word[64];
  constexpr LineWords(const Line (&lines)[64], int scale, int swapped) : word{} {
    for (int i = 0; i < 64; ++i) {
      const Line& from = lines[i ^ swapped];
      word[i] = (from.a + (512 >> scale) * from.b) << 10 | from.b;
    }
  }
};
inline constexpr LineWords reciprocal_line_words{reciprocal_lines, 8, 0};
// The last bit of the exponent field names the half: an odd field belongs to an even exponent.
inline constexpr LineWords reciprocal_root_line_words{reciprocal_root_lines, 7, 32};

// |x| = 1.fraction * 2^exponent for x finite and not zero.
template <Floating T> struct Parts {
  UnsignedOf<T> fraction;
  int exponent;
};
template <Floating T> LUM_INLINE Parts<T> parts(T x) {
  using F = Format<T>;
  const auto b = to_bits(magnitude(x));
  if (b >= F::hidden) return {b & F::fraction, static_cast<int>(b >> F::fraction_bits) - F::bias};
  const int shift = std::countl_zero(b) - (F::width - 1 - F::fraction_bits);
  return {(b << shift) & F::fraction, 1 - F::bias - shift};
}
// The line at t = ten bits of place after the number of the segment.
LUM_INLINE constexpr uint32_t on_line(const Line& line, int scale_bits, uint32_t t) {
  return ((line.a << scale_bits) + 512 * line.b - line.b * (t & 1023)) >> 9;
}

template <Floating T> inline T rcp14(T x) {
  using F = Format<T>;
  using Bits = typename F::Bits;
  const Bits sign = to_bits(x) & F::sign;
  const Bits m = to_bits(magnitude(x));
  if (m > F::infinity) return quieted(x);
  if (m == F::infinity) return from_bits<T>(sign);
  if (m == 0) return from_bits<T>(sign | F::infinity);
  const auto [fraction, exponent] = parts(x);
  uint32_t significand = 0x10000;
  int field = F::bias - exponent;
  if (fraction != 0) {
    const auto t = static_cast<uint32_t>(fraction >> (F::fraction_bits - 16));
    significand = on_line(reciprocal_lines[t >> 10], 8, t);
    --field;
  }
  if (field > 2 * F::bias) return from_bits<T>(sign | F::infinity);
  const Bits scaled = static_cast<Bits>(significand) << (F::fraction_bits - 16);
  if (field >= 1) return from_bits<T>(sign | ((static_cast<Bits>(field - 1) << F::fraction_bits) + scaled));
  return from_bits<T>(sign | scaled >> (1 - field));  // a denormal; no bit set is lost
}

template <Floating T> inline T rsqrt14(T x) {
  using F = Format<T>;
  using Bits = typename F::Bits;
  const Bits b = to_bits(x);
  const Bits m = to_bits(magnitude(x));
  if (m > F::infinity) return quieted(x);
  if (m == 0) return from_bits<T>(b | F::infinity);
  if (b != m) return default_nan<T>();
  if (m == F::infinity) return T{0};
  const auto [fraction, exponent] = parts(x);
  const int odd = exponent & 1;
  const int half = (exponent - odd) / 2;
  if (fraction == 0 && !odd) return power_of_two<T>(-half);
  const auto t = static_cast<uint32_t>(fraction >> (F::fraction_bits - 15));
  const uint32_t significand = on_line(reciprocal_root_lines[32 * odd + static_cast<int>(t >> 10)], 7, t);
  const auto field = static_cast<Bits>(F::bias - 2 - half);  // one less: the leading bit carries into it
  return from_bits<T>((field << F::fraction_bits) + (static_cast<Bits>(significand) << (F::fraction_bits - 16)));
}

}  // namespace lum::inline LUM_LAYER::lane
