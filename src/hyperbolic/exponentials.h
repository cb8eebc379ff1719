// What Sinh and Cosh share. With |x| = n ln 2 + r and n a multiple of 1/N, two powers of 2 take the place of the exponentials:
//   p = 2^(n-1),  m = 2^(-n-1),
//   sinh |x| = (p - m) cosh r + (p + m) sinh r,    cosh |x| = (p + m) cosh r + (p - m) sinh r.
// Both come from a table of N rows, 0.5 alone where N = 1, whose exponent fields the whole part of n is added to and subtracted
// from as an integer.
#pragma once

#include <limits>

#include "frame/kernel_frame.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

// ln 2 in two parts: products of the first with n are exact.
template <class T> struct Ln2;
template <> struct Ln2<Lum32f> {
  static constexpr auto inverse = f32(0x3FB8AA3B, 1.4426950216293335);
  static constexpr auto hi = f32(0x3F317000, 0.693115234375);
  static constexpr auto lo = f32(0x3805FDF4, 3.194618329871446e-05);
};
template <> struct Ln2<Lum64f> {
  static constexpr auto inverse = f64(0x3FF71547652B82FE, 1.4426950408889634);
  static constexpr auto hi = f64(0x3FE62E42FEFA0000, 0.6931471805582987);
  static constexpr auto lo = f64(0x3D7CF79ABC9E0000, 1.6465949582866463e-12);
};

template <class T> inline constexpr int fraction_bits = std::numeric_limits<T>::digits - 1;
// 1.5 times a power of 2 such that the last place is worth 1/N, N = 2^row_bits.
template <int row_bits, class T>
inline constexpr T row_shifter = T(1.5) * static_cast<T>(int64_t{1} << (fraction_bits<T> - row_bits));

// |x| and the like by the constant that also puts in a sign.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> WithoutSign(Vec<UnsignedOf<T>> x) { return and_not(all(sign_bit<T>), x); }

template <class T> struct ReducedMagnitude {
  Vec<UnsignedOf<T>> count;  // N n in the low bits, the row in the lowest
  Vec<T> r;
};
template <int row_bits, class T> LUM_INLINE ReducedMagnitude<T> SubtractMultiple(Vec<T> a, Vec<T> shifted) {
  const auto n = shifted - all(row_shifter<row_bits, T>);
  return {bits(shifted), fnma(n, all(Ln2<T>::lo), fnma(n, all(Ln2<T>::hi), a))};
}
// |r| <= ln(2)/2N and a little.
template <int row_bits, class T> LUM_INLINE ReducedMagnitude<T> ReduceToRows(Vec<T> a) {
  return SubtractMultiple<row_bits>(a, fma(a, all(Ln2<T>::inverse), all(row_shifter<row_bits, T>)));
}

// The whole part of n in the place of the exponent.
template <int row_bits, class T> LUM_INLINE Vec<UnsignedOf<T>> ExponentPart(Vec<UnsignedOf<T>> count) {
  constexpr auto field = std::bit_cast<UnsignedOf<T>>(std::numeric_limits<T>::infinity());
  return shift_left<fraction_bits<T> - row_bits>(count) & all(field);
}

// The columns of a table: 2^(i/N)/2, 2^(-i/N)/2, what the first lacks, what the second lacks.
template <class T> struct HalfPowerTable;
template <> struct HalfPowerTable<Lum32f> {
  static constexpr int row_bits = 5;
  static constexpr auto columns = by_columns<4>(table32({
#include "tables/generated/half_exp2_float_32.inc"
  }));
};
template <> struct HalfPowerTable<Lum64f> {
  static constexpr int row_bits = 4;
  static constexpr auto columns = by_columns<4>(table64({
#include "tables/generated/half_exp2_16.inc"
  }));
};
template <int column, class T> LUM_INLINE Vec<UnsignedOf<T>> LookupHalfPower(Vec<UnsignedOf<T>> count) {
  constexpr const T* entries = HalfPowerTable<T>::columns + column * 2 * lanes_of<T>;
  return bits(permute2(load(entries), load(entries + lanes_of<T>), count));
}

}  // namespace lum::inline LUM_LAYER
