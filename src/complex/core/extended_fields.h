// The sign, exponent and significand bits of an Extended, and what depends on them: rounding to a multiple of a power of two,
// powers of two, values whose only effect is the inexact flag.
#pragma once

#include <bit>
#include <cstring>

#include "complex/core/extended.h"

namespace lum::inline LUM_LAYER::complex {

inline constexpr int extended_digits = ExtendedLimits::digits;
inline constexpr int extended_bias = 0x3fff;
// The exponent field of the numbers from 2^n on, below 2^(n + 1).
consteval int field_of(int n) { return n + extended_bias; }
inline constexpr int extended_special = 0x7fff;  // exponent field of infinity and NaN
inline constexpr size_t extended_bytes = 10;
static_assert(std::endian::native == std::endian::little, "an unknown layout");

// The sign bit above the exponent field, and the significand, whose first bit is the integer bit.
struct ExtendedFields {
  uint32_t sign_and_exponent;
  uint64_t significand;
};

inline ExtendedFields fields(const Extended& x) {
  // Two loads from where x lies, which do not wait for a copy.
  uint64_t significand;
  uint16_t sign_and_exponent;
  std::memcpy(&significand, &x, sizeof significand);
  std::memcpy(&sign_and_exponent, reinterpret_cast<const char*>(&x) + sizeof significand, sizeof sign_and_exponent);
  return {sign_and_exponent, significand};
}

inline Extended from_fields(ExtendedFields f) {
  const uint64_t words[2] = {f.significand, f.sign_and_exponent};
  Extended x = 0;
  std::memcpy(static_cast<void*>(&x), words, extended_bytes);
  return x;
}

inline int exponent_field(const Extended& x) { return static_cast<int>(fields(x).sign_and_exponent & 0x7fff); }
inline bool sign_bit(const Extended& x) { return (fields(x).sign_and_exponent & 0x8000) != 0; }

// The sign-and-exponent bits over the leading 16 significand bits: grows with |x|.
inline uint32_t leading_word(const Extended& x) {
  const ExtendedFields f = fields(x);
  return f.sign_and_exponent << 16 | static_cast<uint32_t>(f.significand >> 48);
}

// 2^n. Given -16382 <= n <= 16383. By way of binary64 where that has it: a load of ten bytes waits for the two stores that
// make them.
inline Extended power_of_two(int n) {
  if (-1022 <= n && n <= 1023) [[likely]]
    return std::bit_cast<double>(static_cast<uint64_t>(n + 1023) << 52);
  return from_fields({static_cast<uint32_t>(n + extended_bias), uint64_t{1} << 63});
}

// 2^n by multiplication, for constants.
constexpr Extended constant_power_of_two(int n) {
  Extended power = 1;
  for (; n > 0; --n) power *= 2;
  for (; n < 0; ++n) power /= 2;
  return power;
}

// x with the exponent of 1: 1 <= |result| < 2. Given a normal number.
inline Extended significand_of(const Extended& x) {
  const int e = exponent_field(x) - extended_bias;
  // In two steps at the ends of the range, where 2^-e is no normal number.
  constexpr int half = 8192;
  if (e > half) return x * constant_power_of_two(-half) * power_of_two(half - e);
  if (e < -half) return x * constant_power_of_two(half) * power_of_two(-half - e);
  return x * power_of_two(-e);
}

// x rounded to a multiple of 2^n: the shifter's last place is worth 2^n. Given |x| < 2^(n + digits - 2).
template <int n> inline Extended round_to_multiple(Extended x) {
  constexpr Extended shifter = 3 * constant_power_of_two(n + extended_digits - 2);
  return (x + shifter) - shifter;
}

// x, non-zero and tiny, with the inexact flag raised: the scaled number has no place for x itself.
inline Extended inexact_identity(Extended x) {
  constexpr Extended up = constant_power_of_two(extended_digits + 11), down = constant_power_of_two(-extended_digits - 11);
  return x == 0 ? x : (x * up - x) * down;
}

// 1 or -1: a factor, where a branch on a sign would be foreseen half of the time.
inline constexpr float unit_signs[] = {1, -1};
inline Extended sign_factor(bool is_negative) { return unit_signs[is_negative ? 1 : 0]; }

// magnitude, not NaN, with the sign bit of sign.
inline Extended with_sign_of(Extended magnitude, const Extended& sign) { return magnitude * sign_factor(sign_bit(sign)); }

}  // namespace lum::inline LUM_LAYER::complex
