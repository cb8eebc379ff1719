// What the arctangents of one and of two arguments share: quotients without a division, and the polynomials of the low tiers.
#pragma once

#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "invcircular/polynomials.h"

namespace lum::inline LUM_LAYER::invcircular {

// 1 / m of normal numbers to twice the bits of the estimate and more.
LUM_INLINE Vec<Lum32f> SignificandReciprocal(Vec<Lum32f> m) { return rcp14_normal(m); }
LUM_INLINE Vec<Lum64f> SignificandReciprocal(Vec<Lum64f> m) {
  const auto w = rcp14_normal(m);
  const auto e = fnma(m, w, all(1.0));
  return fma(w, fma(e, e, e), w);
}
// n / d to nearly the last place, by significands and exponents, so that no size of n and d matters.
template <class T> LUM_INLINE Vec<T> ScaledQuotient(Vec<T> n, Vec<T> d) {
  const auto [n_significand, n_exponent] = parts<significand::from_1_to_2>(n);
  const auto [d_significand, d_exponent] = parts<significand::from_1_to_2>(d);
  const auto w = SignificandReciprocal(d_significand);
  const auto q = n_significand * w;
  const auto e = fnma(q, d_significand, n_significand);
  return scalef(fma(e, w, q), n_exponent - d_exponent);
}

// 1 / d to the accuracy of the low tiers.
LUM_INLINE Vec<Lum32f> ShortReciprocal(Vec<Lum32f> d) {
  const auto w = rcp14(d);
  return w * fnma(d, w, all(2.0f));
}
LUM_INLINE Vec<Lum64f> ShortReciprocal(Vec<Lum64f> d) {
  const auto w = rcp14(d);
  const auto e = fnma(d, w, all(1.0));
  return fma(w, fma(e, e, e), w);
}

// P(s) by its even and its odd terms side by side.
template <class T, size_t n> LUM_INLINE Vec<T> EvenAndOdd(Vec<T> s, const Polynomial<T, n>& p) {
  constexpr size_t last_even = (n - 1) / 2 * 2, last_odd = n / 2 * 2 - 1;
  const auto v = s * s;
  const auto even = horner(v, part<0, last_even, 2>(p));
  return fma(s, horner(v, part<1, last_odd, 2>(p)), even);
}
// (arctan t) / t for |t| <= 1 and s = t^2, to the accuracy of the low tiers.
LUM_INLINE Vec<Lum32f> ShortArctangent(Vec<Lum32f> s) { return EvenAndOdd(s, invcircular::atan_A11); }
LUM_INLINE Vec<Lum64f> ShortArctangent(Vec<Lum64f> s) { return EvenAndOdd(s, invcircular::atan_A26); }

template <class T> inline constexpr T half_pi = numbers::pi<T> / 2;

}  // namespace lum::inline LUM_LAYER::invcircular
