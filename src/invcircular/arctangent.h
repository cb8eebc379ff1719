// What the arctangents of one and of two arguments share: quotients without a division, and the polynomials of the low tiers.
#pragma once

#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER {

// n / d to nearly the last place, by significands and exponents, so that no size of n and d matters.
LUM_INLINE Vec<Lum32f> SignificandReciprocal(Vec<Lum32f> m) { return rcp14_normal(m); }
LUM_INLINE Vec<Lum64f> SignificandReciprocal(Vec<Lum64f> m) {
  const auto w = rcp14_normal(m);
  const auto e = fnma(m, w, all(1.0));
  return fma(w, fma(e, e, e), w);
}
template <class T> LUM_INLINE Vec<T> ScaledQuotient(Vec<T> n, Vec<T> d) {
  const auto [n_significand, n_exponent] = parts<0x0>(n);
  const auto [d_significand, d_exponent] = parts<0x0>(d);
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

// (arctan t) / t for |t| <= 1 and s = t^2, to the accuracy of the low tiers. The constant term is not 1: the error is spread
// over the interval.
LUM_INLINE Vec<Lum32f> ShortArctangent(Vec<Lum32f> s) {
  const auto v = s * s;
  const auto even = horner(v, f32(0x3F7FF145, 0.999775230884552), f32(0x3E1E481B, 0.15457193553447723));
  const auto odd = horner(v, f32(0xBEA6A8A3, -0.3255053460597992), f32(0xBD324820, -0.0435258150100708));
  return fma(s, odd, even);
}
LUM_INLINE Vec<Lum64f> ShortArctangent(Vec<Lum64f> s) {
  const auto v = s * s;
  const auto even = horner(v, f64(0x3FEFFFFFFEB5A845, 0.9999999975964405), f64(0x3FC999069C08617C, 0.1999824773672677),
                           f64(0x3FBC0236E7018BA7, 0.1094087900142272), f64(0x3FAD6EE2DACE07AF, 0.05748661919552888),
                           f64(0x3F85E36A8CED7474, 0.010687668252723471));
  const auto odd = horner(v, f64(0xBFD55553391CE4C9, -0.3333328302138168), f64(0xBFC2414862594647, -0.14261727144416822),
                          f64(0xBFB56FCD7489159A, -0.08373722167114864), f64(0xBF9F791909CB44C4, -0.03073538896825735),
                          f64(0xBF5C95B5AB286A02, -0.001744677935340833));
  return fma(s, odd, even);
}

template <class T> inline constexpr T half_pi = f32(0x3FC90FDB, 1.5707963705062866);
template <> inline constexpr Lum64f half_pi<Lum64f> = f64(0x3FF921FB54442D18, 1.5707963267948966);

}  // namespace lum::inline LUM_LAYER
