// What Sinh and Cosh share. With |x| = n ln 2 + r and n a multiple of 1/N, two powers of 2 take the place of the exponentials:
//   p = 2^(n-1),  m = 2^(-n-1),
//   sinh |x| = (p - m) cosh r + (p + m) sinh r,    cosh |x| = (p + m) cosh r + (p - m) sinh r.
// Both come from a table of N rows, 0.5 alone where N = 1, whose exponent fields the whole part of n is added to and subtracted
// from as an integer.
#pragma once

#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// |x| and the like by the constant that also puts in a sign.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> WithoutSign(Vec<UnsignedOf<T>> x) { return and_not(all(sign_bit<T>), x); }

template <class T> struct ReducedMagnitude {
  Vec<UnsignedOf<T>> count;  // N n in the low bits, the row in the lowest
  Vec<T> r;
};
template <int row_bits, class T> LUM_INLINE ReducedMagnitude<T> SubtractMultiple(Vec<T> a, Vec<T> shifted) {
  const auto n = shifted - all(rounding_shifter<T>(row_bits));
  return {bits(shifted), fnma(n, all(numbers::ln2_rest<T>), fnma(n, all(numbers::ln2_head<T>), a))};
}
// |r| <= ln(2)/2N and a little.
template <int row_bits, class T> LUM_INLINE ReducedMagnitude<T> ReduceToRows(Vec<T> a) {
  return SubtractMultiple<row_bits>(a, fma(a, all(numbers::log2_e<T>), all(rounding_shifter<T>(row_bits))));
}

// The whole part of n in the place of the exponent.
template <int row_bits, class T> LUM_INLINE Vec<UnsignedOf<T>> ExponentPart(Vec<UnsignedOf<T>> count) {
  using F = lane::Format<T>;
  return shift_left<F::fraction_bits - row_bits>(count) & all(F::infinity);
}

// The columns of a table: 2^(i/N)/2, 2^(-i/N)/2, what the first lacks, what the second lacks.
template <class T> struct HalfPowerTable;
template <> struct HalfPowerTable<Lum32f> {
  static constexpr int row_bits = 5;
  static constexpr auto columns = by_columns<4>(table32({
#include "tables/generated/half_exp2_32f_32.inc"
  }));
};
template <> struct HalfPowerTable<Lum64f> {
  static constexpr int row_bits = 4;
  static constexpr auto columns = by_columns<4>(table64({
#include "tables/generated/half_exp2_64f_16.inc"
  }));
};
template <int column, class T> LUM_INLINE Vec<UnsignedOf<T>> LookupHalfPower(Vec<UnsignedOf<T>> count) {
  constexpr const T* entries = HalfPowerTable<T>::columns + column * 2 * lanes_of<T>;
  return bits(permute2(load(entries), load(entries + lanes_of<T>), count));
}

}  // namespace lum::inline LUM_LAYER::hyperbolic
