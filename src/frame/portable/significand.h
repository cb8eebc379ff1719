// Bits, comparison, class, exponent, significand and rounding to a grid of the numbers in one register. A part of
// frame/vec_portable.h.
#pragma once

#include "frame/lane_significand.h"
#include "frame/portable/registers.h"
#include "frame/reciprocal_estimates.h"

namespace lum {
inline namespace portable {
namespace reg {

// ---- Bits

template <Floating T> LUM_INLINE Register<T> chosen(Register<UnsignedOf<T>> lanes, Register<T> a, Register<T> b) {
  return number<T>((lanes & bits<T>(a)) | (~lanes & bits<T>(b)));
}

template <int odd, Floating T> LUM_INLINE Register<T> with_signs_of_every_other_changed(Register<T> x) {
  return [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
    return number<T>(bits<T>(x) ^ Register<UnsignedOf<T>>{(i % 2 == odd ? sign_bit<T> : 0)...});
  }
  (std::make_index_sequence<lanes_of_register<T>>());
}

// Lanes that are zero, denormal, infinite or NaN; and those that are not positive normal numbers.
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> is_not_positive_normal(Register<T> x) {
  using F = lane::Format<T>;
  return lanes_where<T>(bits<T>(x) - F::hidden >= F::infinity - F::hidden);
}
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> is_not_normal(Register<T> x) {
  return is_not_positive_normal<T>(magnitude<T>(x));
}

// ---- Comparison and class

template <int predicate, Floating T> LUM_INLINE auto compare_numbers(Register<T> x, Register<T> y) {
  constexpr int p = predicate & 15;
  if constexpr (p == 0) return x == y;
  else if constexpr (p == 1) return x < y;
  else if constexpr (p == 2) return x <= y;
  else if constexpr (p == 3) return (x != x) | (y != y);
  else if constexpr (p == 4) return x != y;
  else if constexpr (p == 5) return ~(x < y);
  else if constexpr (p == 6) return ~(x <= y);
  else if constexpr (p == 7) return (x == x) & (y == y);
  else if constexpr (p == 8) return (x != x) | (y != y) | (x == y);
  else if constexpr (p == 9) return ~(x >= y);
  else if constexpr (p == 10) return ~(x > y);
  else if constexpr (p == 11) return (x == x) & (x != x);
  else if constexpr (p == 12) return (x < y) | (x > y);
  else if constexpr (p == 13) return x >= y;
  else if constexpr (p == 14) return x > y;
  else return (x == x) | (x != x);
}
template <int predicate, Integer T> LUM_INLINE auto compare_integers(Register<T> x, Register<T> y) {
  if constexpr (predicate == 0) return x == y;
  else if constexpr (predicate == 1) return x < y;
  else if constexpr (predicate == 2) return x <= y;
  else if constexpr (predicate == 3) return x != x;
  else if constexpr (predicate == 4) return x != y;
  else if constexpr (predicate == 5) return x >= y;
  else if constexpr (predicate == 6) return x > y;
  else return x == x;
}
template <int imm, Floating T> LUM_INLINE Register<UnsignedOf<T>> fpclass(Register<T> x) {
  using F = lane::Format<T>;
  const auto b = bits<T>(x);
  const auto m = b & (F::sign - 1);
  auto in_set = b != b;
  if constexpr ((imm & 0x81) == 0x81) in_set |= m > F::infinity;
  else if constexpr ((imm & 0x01) != 0) in_set |= m >= (F::infinity | F::quiet);
  else if constexpr ((imm & 0x80) != 0) in_set |= (m - F::infinity - 1) < F::quiet - 1;
  if constexpr ((imm & 0x06) == 0x06) in_set |= m == 0;
  else if constexpr ((imm & 0x02) != 0) in_set |= b == 0;
  else if constexpr ((imm & 0x04) != 0) in_set |= b == F::sign;
  if constexpr ((imm & 0x18) == 0x18) in_set |= m == F::infinity;
  else if constexpr ((imm & 0x08) != 0) in_set |= b == F::infinity;
  else if constexpr ((imm & 0x10) != 0) in_set |= b == (F::sign | F::infinity);
  if constexpr ((imm & 0x20) != 0) in_set |= (m - 1) < F::fraction;
  if constexpr ((imm & 0x40) != 0) in_set |= (b > F::sign) & (m < F::infinity);
  return lanes_where<T>(in_set);
}

// ---- Exponent and significand

// getexp and getmant of normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Register<T> getexp_of_normal(Register<T> x) {
  using F = lane::Format<T>;
  // The field as the last bits of a number whose last bit is worth one.
  constexpr T shifter = static_cast<T>(F::hidden);
  const auto field = bits<T>(magnitude<T>(x)) >> F::fraction_bits;
  return number<T>(field | lane::to_bits(shifter)) - (shifter + T(F::bias));
}
template <int imm, Floating T> LUM_INLINE Register<T> getmant_of_normal(Register<T> x) {
  using F = lane::Format<T>;
  constexpr int interval = imm & 3;
  const auto b = bits<T>(x);
  auto m = (b & F::fraction) | F::one;
  if constexpr (interval == 1) m = m - (~b & F::hidden);  // an even field is an odd exponent
  if constexpr (interval == 2) m = m - F::hidden;
  if constexpr (interval == 3) m = m - ((b & (F::hidden >> 1)) << 1);
  if constexpr ((imm & 4) == 0) m = m | (b & F::sign);
  return number<T>(m);
}

// x 2^floor(y) for |y| at most bias - 1; in other lanes any value.
template <Floating T> LUM_INLINE Register<T> scalef_by_normal(Register<T> x, Register<T> y) {
  using F = lane::Format<T>;
  constexpr T shifter = T(1.5) * static_cast<T>(F::hidden) + T(F::bias);
  const Register<T> nearest = y + shifter;
  const auto down = lanes_where<T>(nearest - shifter > y);  // minus one where y was rounded up
  return x * number<T>((bits<T>(nearest) + down) << F::fraction_bits);
}
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> scalef_doubt(Register<T> y) {
  return ~lanes_where<T>(magnitude<T>(y) <= T(lane::Format<T>::bias - 1));
}

// ---- Rounding to a grid

// Adding the power of two whose last bit is worth 2^-M rounds a smaller magnitude to nearest even; the directed modes step back
// where that went the wrong way. Larger magnitudes are on the grid.
template <int imm, Floating T> LUM_INLINE Register<T> rndscale(Register<T> x) {
  using F = lane::Format<T>;
  constexpr int M = (imm >> 4) & 15;
  constexpr int R = (imm & 4) ? rn : imm & 3;
#if defined(__AVX__)
  if constexpr (M == 0) {
    if constexpr (sizeof(T) == 4) return Register<T>(_mm256_round_ps(x, R | _MM_FROUND_NO_EXC));
    else return Register<T>(_mm256_round_pd(x, R | _MM_FROUND_NO_EXC));
  }
#endif
  constexpr T grid_is_coarser_below = lane::power_of_two<T>(F::fraction_bits - M);
  const auto sign = bits<T>(x) & F::sign;
  const auto m = magnitude<T>(x);
  auto rounded = (m + grid_is_coarser_below) - grid_is_coarser_below;
  if constexpr (R != rn) {
    const auto step = bits<T>(Register<T>{} + lane::power_of_two<T>(-M));
    const auto signed_rounded = number<T>(bits<T>(rounded) | sign);
    if constexpr (R == rz) rounded = rounded - number<T>(lanes_where<T>(rounded > m) & step);
    if constexpr (R == rd) rounded = signed_rounded - number<T>(lanes_where<T>(signed_rounded > x) & step);
    if constexpr (R == ru) rounded = signed_rounded + number<T>(lanes_where<T>(signed_rounded < x) & step);
  }
  const auto kept = bits<T>(x) | (lanes_where<T>(x != x) & F::quiet);
  return chosen<T>(lanes_where<T>(m < grid_is_coarser_below), number<T>(bits<T>(rounded) | sign), number<T>(kept));
}

// ---- Estimates to 14 bits

// The significand, in units of 2^-16 above one, at ten bits of place after the number of the segment.
template <Floating T>
LUM_INLINE Register<UnsignedOf<T>> on_line(const lane::LineWords& lines, int scale, Register<UnsignedOf<T>> place) {
  using U = UnsignedOf<T>;
  const auto segment = (place >> 10) & 63;
  Register<U> line;
  for (int i = 0; i < lanes_of_register<T>; ++i) line[i] = lines.word[segment[i]];
  // 64-bit lanes have their low words alone in use.
  const auto down = register_cast<U>(register_cast<uint32_t>(line & 1023) * register_cast<uint32_t>(place & 1023));
  return (((line >> 10) << scale) - down) >> 9;
}
// rcp14 of numbers that are normal and have a normal reciprocal; in other lanes any value.
template <Floating T> LUM_INLINE Register<T> rcp14_of_normal(Register<T> x) {
  using F = lane::Format<T>;
  const auto b = bits<T>(x);
  const auto significand = on_line<T>(lane::reciprocal_line_words, 8, (b & F::fraction) >> (F::fraction_bits - 16));
  // The exponent field of the reciprocal is one less where there is a fraction, and the leading bit carries into it.
  const auto has_fraction = lanes_where<T>((b & F::fraction) != 0);
  const auto field = 2 * F::bias - 1 - ((b & (F::sign - 1)) >> F::fraction_bits) + has_fraction;
  const auto scaled = (has_fraction & (significand << (F::fraction_bits - 16))) | (~has_fraction & F::hidden);
  return number<T>((b & F::sign) | ((field << F::fraction_bits) + scaled));
}
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> has_no_normal_reciprocal(Register<T> x) {
  using F = lane::Format<T>;
  return lanes_where<T>(bits<T>(magnitude<T>(x)) - F::hidden >= F::infinity - 3 * F::hidden);
}
// rsqrt14 of positive normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Register<T> rsqrt14_of_normal(Register<T> x) {
  using F = lane::Format<T>;
  const auto b = bits<T>(x);
  const auto half = (b + F::hidden) >> (F::fraction_bits + 1);
  const auto significand = on_line<T>(lane::reciprocal_root_line_words, 7, b >> (F::fraction_bits - 15));
  const auto is_square = lanes_where<T>(((b ^ F::hidden) & (2 * F::hidden - 1)) == 0);  // of a power of two
  const auto scaled = (~is_square & (significand << (F::fraction_bits - 16))) | (is_square & (2 * F::hidden));
  return number<T>(((F::bias - 2 + (F::bias + 1) / 2 - half) << F::fraction_bits) + scaled);
}

}  // namespace reg
}  // namespace portable
}  // namespace lum
