// What the inverse hyperbolic functions share: logarithms of numbers given in two parts. With w a reciprocal of x rounded to a
// few significand bits,  ln x = ln(1 + r) - ln w,  r = w x - 1, where ln w = k ln 2 + ln(1 + i/N) takes its second term from a
// table of N rows and ln(1 + r) is a polynomial.
#pragma once

#include <limits>

#include "explog/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "hyperbolic/polynomials.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// The result outside of the domain of an inverse function: deliberately of a different sign in either type.
template <class T> inline constexpr T outside_domain_of = -std::numeric_limits<T>::quiet_NaN();
template <> inline constexpr Lum64f outside_domain_of<Lum64f> = std::numeric_limits<Lum64f>::quiet_NaN();

// The columns hi and lo of ln(1 + i/N): his are short, so that sums of them and of multiples of ln2_head are exact.
template <class T> struct LogTable;
template <> struct LogTable<Lum32f> {
  static constexpr int reciprocal_bits = 5;
  static constexpr int index_shift = 18;

  static constexpr auto single = table32({
#include "tables/generated/ln_above_one_32f_32.inc"
  });
  static constexpr auto pairs = by_columns<2>(table32({
#include "tables/generated/ln_above_one_32f_32_pairs.inc"
  }));
};
template <> struct LogTable<Lum64f> {
  static constexpr int reciprocal_bits = 4;
  static constexpr int index_shift = 48;

  static constexpr auto single = table64({
#include "tables/generated/ln_above_one_64f_16.inc"
  });
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/ln_above_one_64f_16_pairs.inc"
  }));
};

// 1/x rounded to N steps a power of 2 by integer arithmetic, which may carry into the exponent; x and 1/x are normal numbers
// but in refused lanes.
template <class T> LUM_INLINE Vec<T> ShortReciprocalOf(Vec<T> x) {
  return rcp14_halves_up_normal<LogTable<T>::reciprocal_bits>(x);
}
// w (head + tail) - 1. The first step is exact but for one rounding.
template <class T> LUM_INLINE Vec<T> Residue(Vec<T> w, Vec<T> head, Vec<T> tail) {
  return fma(w, tail, fms(w, head, all(T(1))));
}

// The row of w in the low bits.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> RowOf(Vec<T> w) { return shift_right<LogTable<T>::index_shift>(bits(w)); }
template <class T> LUM_INLINE Vec<T> LookupColumn(const T* column, Vec<UnsignedOf<T>> row) {
  return permute2(load(column), load(column + lanes_of<T>), row);
}
template <class T> LUM_INLINE Vec<T> LookupSingle(Vec<UnsignedOf<T>> row) { return LookupColumn<T>(LogTable<T>::single, row); }
template <class T> LUM_INLINE Vec<T> LookupHi(Vec<UnsignedOf<T>> row) { return LookupColumn<T>(LogTable<T>::pairs, row); }
template <class T> LUM_INLINE Vec<T> LookupLo(Vec<UnsignedOf<T>> row) {
  return LookupColumn<T>(LogTable<T>::pairs + 2 * lanes_of<T>, row);
}

// (ln(1 + r) - r) / r^2 for |r| up to 1/64 (binary32) or 1/32 and a little.
LUM_INLINE Vec<Lum32f> LogRatio(Vec<Lum32f> r) { return horner(r, explog::log1p_A24); }
LUM_INLINE Vec<Lum64f> LogRatio(Vec<Lum64f> r) { return horner(r, hyperbolic::log1p_A53); }
// (ln(1 + r) - r) / r^2 to the accuracy of A26.
LUM_INLINE Vec<Lum64f> ShortLogRatio(Vec<Lum64f> r) { return horner(r, hyperbolic::log1p_A26); }

}  // namespace lum::inline LUM_LAYER::hyperbolic
