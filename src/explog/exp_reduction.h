// The reduction of the exponentials' first paths: x = n ln 2 + r, n a multiple of 1/16 or 1/8, with the tables of 2^(j/16) and
// 2^(j/8).
#pragma once

#include "explog/exp_routine.h"
#include "explog/polynomials.h"
#include "frame/numbers.h"
#include "frame/vec.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::explog {

template <class T> struct ExpConstants;
template <> struct ExpConstants<Lum32f> {
  static constexpr auto shifter = rounding_shifter<Lum32f>(4);
  static constexpr auto threshold = -ExpLimits<Lum32f>::denormal;
  static constexpr auto head = table32({
#include "tables/generated/exp2_32f_16_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/exp2_32f_16_tail.inc"
  });
};
template <> struct ExpConstants<Lum64f> {
  // The low bits leave the index bits at zero and are subtracted out again.
  static constexpr auto shifter = rounding_shifter<Lum64f>(3) + 0x3FF0p-3;
  static constexpr auto threshold = f64(0x40861DA04CBAFE44, 707.7032713517042);
  static constexpr auto head = table64({
#include "tables/generated/exp2_64f_8_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/exp2_64f_8_tail.inc"
  });
};

template <class T> struct ExpReduced {
  Vec<T> n, r;           // x = n ln 2 + r
  Vec<UnsignedOf<T>> j;  // in the low bits: the index into the tables
  Mask<T> refused;       // lanes beyond the threshold; NaN is not among them, n carries it to the result
};

template <int ln2_parts, class T> LUM_INLINE ExpReduced<T> ReduceExp(Vec<T> x) {
  using C = ExpConstants<T>;
  const auto t = fma_floor(x, all(numbers::log2_e<T>), all(C::shifter));
  const auto n = t - all(C::shifter);  // exact
  auto r = fnma(n, all(numbers::ln2<T>), x);
  if constexpr (ln2_parts == 2) r = fnma(n, all(numbers::ln2_tail<T>), r);
  return {n, r, bits(t), le(all(C::threshold), abs(x))};
}

template <class T> LUM_INLINE Vec<T> ExpHead(const ExpReduced<T>& a) { return permute(load<T>(ExpConstants<T>::head), a.j); }
template <class T> LUM_INLINE Vec<T> ExpTail(const ExpReduced<T>& a) { return permute(load<T>(ExpConstants<T>::tail), a.j); }

// e^x in binary64 but for 2^-50 of it, where it is far from the ends of that range.
LUM_INLINE Vec<Lum64f> ExpInBinary64(Vec<Lum64f> x) {
  const auto a = ReduceExp<2>(x);
  const auto head = ExpHead(a);
  return scalef_normal(fma(horner(a.r, explog::exp_A50), head * a.r, head), a.n);
}

}  // namespace lum::inline LUM_LAYER::explog
