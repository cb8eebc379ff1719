// Arithmetic on one lane in 128-bit integers, right for every input and in every rounding: where the quick forms of
// lane_arithmetic.h cannot vouch for their result (overflow, underflow, zeros, infinities, NaNs) they hand over to these.
#pragma once

#include "frame/lane_format.h"

namespace lum::inline LUM_LAYER::lane {

using Wide = unsigned __int128;

// significand * 2^exponent, the sign apart.
struct Unpacked {
  uint64_t significand;
  int exponent;
};
// For x finite and not zero; the significand has its leading bit at the place of the hidden bit.
template <Floating T> constexpr Unpacked unpack(T x) {
  using F = Format<T>;
  const uint64_t b = to_bits(magnitude(x));
  if (b >= F::hidden)
    return {(b & F::fraction) | F::hidden, static_cast<int>(b >> F::fraction_bits) - F::bias - F::fraction_bits};
  const int shift = std::countl_zero(b) - (63 - F::fraction_bits);
  return {b << shift, 1 - F::bias - F::fraction_bits - shift};
}

constexpr int leading_bit(Wide z) {
  const auto high = static_cast<uint64_t>(z >> 64);
  return high ? 127 - std::countl_zero(high) : 63 - std::countl_zero(static_cast<uint64_t>(z));
}

// Whether a magnitude goes up when the part cut off is `rest`, against half a unit of the part kept, which is odd or even.
template <int R> inline bool rounds_up(bool negative, bool odd, Wide rest, Wide half) {
  if (rest == 0) return false;
  if constexpr (R == rn) return rest > half || (rest == half && odd);
  else if constexpr (R == rd) return negative;
  else if constexpr (R == ru) return !negative;
  else return false;
}

// +-z 2^exponent rounded once. z is not zero and below 2^127; its lowest bit may stand for a part below it when 64 or more bits
// are above.
template <int R, Floating T> inline T round_pack(bool negative, Wide z, int exponent) {
  using F = Format<T>;
  using Bits = typename F::Bits;
  constexpr int lowest = 1 - F::bias - F::fraction_bits;  // the exponent of the smallest denormal
  const Bits sign = negative ? F::sign : 0;
  int last = exponent + leading_bit(z) - F::fraction_bits;  // the exponent of the last bit kept
  if (last < lowest) last = lowest;
  const int shift = last - exponent;
  Wide kept;
  if (shift <= 0) {
    kept = z << -shift;
  } else if (shift > 127) {  // far below the smallest denormal: z / 2^shift is under a half
    kept = rounds_up<R>(negative, false, 1, 2) ? 1 : 0;
  } else {
    kept = z >> shift;
    const Wide half = Wide{1} << (shift - 1);
    if (rounds_up<R>(negative, (kept & 1) != 0, z & (2 * half - 1), half)) ++kept;
  }
  constexpr Bits largest = F::infinity - 1;
  constexpr int highest = F::bias - F::fraction_bits;  // of the last bit of the largest number
  // The hidden bit of kept carries into the exponent field, and so does a significand rounded up to the next power of two.
  if (last <= highest) {
    const Bits b = (static_cast<Bits>(last - lowest) << F::fraction_bits) + static_cast<Bits>(kept);
    if (b < F::infinity) return from_bits<T>(sign | b);
  }
  const bool to_infinity = rounds_up<R>(negative, true, 3, 2);
  return from_bits<T>(sign | (to_infinity ? F::infinity : largest));
}

// x moved right by n places; the lowest bit of the result is also set when a set bit is lost.
constexpr Wide shift_right_keeping_a_trace(Wide x, int n) {
  if (n == 0) return x;
  if (n > 127) return x != 0;
  const Wide lost = x & ((Wide{1} << n) - 1);
  return (x >> n) | (lost != 0);
}

// The sum of two signed magnitudes with their leading bits both at place 125 and at least 20 zero bits at the low end.
template <int R> inline double round_sum(bool negative_a, Wide a, int exponent_a, bool negative_b, Wide b, int exponent_b) {
  if (exponent_a < exponent_b || (exponent_a == exponent_b && a < b))
    return round_sum<R>(negative_b, b, exponent_b, negative_a, a, exponent_a);
  // When bits of b are lost, b is so much smaller that the leading bit of the result stays above place 123.
  const Wide moved = shift_right_keeping_a_trace(b, exponent_a - exponent_b);
  if (negative_a == negative_b) return round_pack<R, double>(negative_a, a + moved, exponent_a);
  if (a == moved) return R == rd ? -0.0 : 0.0;
  return round_pack<R, double>(negative_a, a - moved, exponent_a);
}

template <Floating T> inline bool is_negative(T x) { return (to_bits(x) & Format<T>::sign) != 0; }
// The sum of two numbers at least one of which is zero.
template <int R> inline double sum_with_zero(double a, double b) {
  if (a != 0) return a;
  if (b != 0 || is_negative(a) == is_negative(b)) return b;
  return R == rd ? -0.0 : 0.0;
}

// a b + c with one rounding.
template <int R> [[gnu::noinline]] double exact_fma(double a, double b, double c) {
  if (is_nan(a) || is_nan(b) || is_nan(c)) return nan_of(a, b, c);
  const bool negative = is_negative(a) != is_negative(b);
  if (is_infinite(a) || is_infinite(b)) {
    if (a == 0 || b == 0) return default_nan<double>();
    const double product = from_bits<double>((negative ? Format<double>::sign : 0) | Format<double>::infinity);
    return is_infinite(c) && is_negative(c) != negative ? default_nan<double>() : product;
  }
  if (is_infinite(c)) return c;
  if (a == 0 || b == 0) return sum_with_zero<R>(negative ? -0.0 : 0.0, c);
  const auto [significand_a, exponent_a] = unpack(a);
  const auto [significand_b, exponent_b] = unpack(b);
  const Wide product = Wide{significand_a} * significand_b;
  const int up = 125 - leading_bit(product);
  const int exponent = exponent_a + exponent_b - up;
  if (c == 0) return round_pack<R, double>(negative, product << up, exponent);
  const auto [significand_c, exponent_c] = unpack(c);
  return round_sum<R>(negative, product << up, exponent, is_negative(c), Wide{significand_c} << 73, exponent_c - 73);
}

template <int R> [[gnu::noinline]] double exact_mul(double a, double b) {
  if (is_nan(a) || is_nan(b)) return nan_of(a, b);
  return exact_fma<R>(a, b, is_negative(a) != is_negative(b) ? -0.0 : 0.0);
}

template <int R> [[gnu::noinline]] double exact_div(double a, double b) {
  if (is_nan(a) || is_nan(b) || a == 0 || b == 0 || is_infinite(a) || is_infinite(b)) return with_nan(a / b, a, b);
  const auto [significand_a, exponent_a] = unpack(a);
  const auto [significand_b, exponent_b] = unpack(b);
  const Wide dividend = Wide{significand_a} << 64;
  const Wide quotient = dividend / significand_b;  // 64 or 65 bits
  const bool inexact = quotient * significand_b != dividend;
  return round_pack<R, double>(is_negative(a) != is_negative(b), quotient << 1 | inexact, exponent_a - exponent_b - 65);
}

// a 2^floor(b), with the special values of the instruction.
template <int R, Floating T> [[gnu::noinline]] T exact_scalef(T a, T b) {
  if (is_nan(a)) {
    const bool was_quiet = (to_bits(a) & Format<T>::quiet) != 0;
    if (was_quiet && is_infinite(b)) return b > 0 ? b : T{0};  // a factor of infinity or zero prevails over a quiet NaN
    return quieted(a);
  }
  if (is_nan(b)) return quieted(b);
  if (is_infinite(b)) {
    const bool clash = b > 0 ? a == 0 : is_infinite(a);
    if (clash) return default_nan<T>();
    return from_bits<T>((to_bits(a) & Format<T>::sign) | (b > 0 ? Format<T>::infinity : 0));
  }
  if (a == 0 || is_infinite(a)) return a;
  const T limited = b < -5000 ? T{-5000} : b > 5000 ? T{5000} : b;
  const int truncated = static_cast<int>(limited);
  const int n = truncated - (static_cast<T>(truncated) > limited);
  const auto [significand, exponent] = unpack(a);
  return round_pack<R, T>(is_negative(a), significand, exponent + n);
}

}  // namespace lum::inline LUM_LAYER::lane
