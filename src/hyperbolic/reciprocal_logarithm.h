// What the inverse hyperbolic functions share: logarithms of numbers given in two parts. With w a reciprocal of x rounded to a
// few significand bits,  ln x = ln(1 + r) - ln w,  r = w x - 1, where ln w = k ln 2 + ln(1 + i/N) takes its second term from a
// table of N rows and ln(1 + r) is a polynomial.
#pragma once

#include "frame/kernel_frame.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

// hi + lo = ln 2 and the columns hi and lo of ln(1 + i/N): his are short, so that multiples and sums of them are exact.
template <class T> struct LogTable;
template <> struct LogTable<Lum32f> {
  static constexpr int reciprocal_bits = 5;
  static constexpr int index_shift = 18;
  static constexpr auto ln2 = f32(0x3F317218, 0.6931471824645996);
  static constexpr auto ln2_hi = f32(0x3F317000, 0.693115234375);
  static constexpr auto ln2_lo = f32(0x3805FDF4, 3.194618329871446e-05);
  static constexpr auto single = table32({
#include "tables/generated/ln_above_one_float_32.inc"
  });
  static constexpr auto pairs = by_columns<2>(table32({
#include "tables/generated/ln_above_one_float_32_pairs.inc"
  }));
};
template <> struct LogTable<Lum64f> {
  static constexpr int reciprocal_bits = 4;
  static constexpr int index_shift = 48;
  static constexpr auto ln2 = f64(0x3FE62E42FEFA39EF, 0.6931471805599453);
  static constexpr auto ln2_hi = f64(0x3FE62E42FEFA0000, 0.6931471805582987);
  static constexpr auto ln2_lo = f64(0x3D7CF79ABC9E0000, 1.6465949582866463e-12);
  static constexpr auto single = table64({
#include "tables/generated/ln_above_one_16.inc"
  });
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/ln_above_one_16_pairs.inc"
  }));
};

// 1/x rounded to N steps a power of 2 by integer arithmetic, which may carry into the exponent.
template <class T> LUM_INLINE Vec<T> ShortReciprocalOf(Vec<T> x) { return rcp14_halves_up<LogTable<T>::reciprocal_bits>(x); }
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
LUM_INLINE Vec<Lum32f> LogRatio(Vec<Lum32f> r) {
  return horner(r, -0.5f, f32(0x3EAAB11E, 0.3333825469017029), f32(0xBE800810, -0.2500615119934082));
}
LUM_INLINE Vec<Lum64f> LogRatio(Vec<Lum64f> r) {
  return horner(r, -0.5, f64(0x3FD55555555554C1, 0.3333333333333251), f64(0xBFCFFFFFFFFFFC65, -0.24999999999997438),
                f64(0x3FC9999999BE77AF, 0.20000000006706162), f64(0xBFC55555559BA736, -0.1666666667945777),
                f64(0x3FC24922F71256F1, 0.14285695137066726), f64(0xBFBFFFFB8A054BC9, -0.12499973411222166),
                f64(0x3FBC80666E249778, 0.11133423031841783), f64(0xBFB9A9B040214368, -0.10024549070045696));
}
// The same to the accuracy of A26.
LUM_INLINE Vec<Lum64f> ShortLogRatio(Vec<Lum64f> r) {
  return horner(r, f64(0xBFDFFFFFCA317A90, -0.49999994988858365), f64(0x3FD55554DD621E7A, 0.33333322162113854),
                f64(0xBFD00359551D29C9, -0.25020440399080407), f64(0x3FC9A1A3AE2FCF04, 0.2002453423043492));
}

}  // namespace lum::inline LUM_LAYER
