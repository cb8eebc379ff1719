// What Asinh and Acosh share: the square root of a number in two parts, by the series of (1 - e)^(-1/2) from a reciprocal root
// y with e = 1 - s y^2, and the logarithm of the sum of argument and root. Small arguments take asinh t = t + t^3 (...), large
// ones ln 2x.
#pragma once

#include "hyperbolic/reciprocal_logarithm.h"

namespace lum::inline LUM_LAYER::hyperbolic {

// ((1 - e)^(-1/2) - 1) / e for |e| up to 2^-13 and a little.
LUM_INLINE Vec<Lum32f> RootSeries(Vec<Lum32f> e) { return horner(e, hyperbolic::root_32f); }
LUM_INLINE Vec<Lum64f> RootSeries(Vec<Lum64f> e) { return horner(e, hyperbolic::root_64f); }
// ((1 - e)^(-1/2) - 1) / e to the accuracy of the low tiers.
LUM_INLINE Vec<Lum32f> ShortRootSeries(Vec<Lum32f>) { return all(0.5f); }
LUM_INLINE Vec<Lum64f> ShortRootSeries(Vec<Lum64f> e) { return horner(e, hyperbolic::root_A26); }

// sqrt(s + s_tail) for a normal s, but for refused and large lanes, where the result is not used. The tail is up to 2^-14 of
// the head; where s may be next to zero, g_tail is large enough for its share in the series to matter.
enum class Sums { from_one, from_zero };
template <Sums sums, class T> LUM_INLINE TwoParts<Vec<T>> RootOf(Vec<T> s, Vec<T> s_tail) {
  const auto y = rsqrt14_normal(s);
  const auto g = s * y;
  const auto g_tail = fma(y, s_tail, fms(y, s, g));
  const auto e = fnma(y, g_tail, fnma(g, y, all(T(1))));
  const auto full = sums == Sums::from_zero ? g + g_tail : g;
  return {g, fma(full * e, RootSeries(e), g_tail)};
}
template <class T> LUM_INLINE Vec<T> ShortRootOf(Vec<T> s) {
  const auto y = rsqrt14_normal(s);
  const auto g = s * y;
  const auto e = fnma(g, y, all(T(1)));
  return fma(g * e, ShortRootSeries(e), g);
}

// Where x^2 would overflow ln 2x is taken as ln(x/8) + 4 ln 2, with a reciprocal that is a normal number.
template <class T> inline constexpr T large_bound = 0x1p63f;
template <> inline constexpr Lum64f large_bound<Lum64f> = 0x1p511;
template <class T> LUM_INLINE Mask<T> IsLarge(Vec<T> a) { return le(all(large_bound<T>), a); }
template <class T> LUM_INLINE Vec<T> EighthIf(Mask<T> large, Vec<T> a, Vec<T> sum) {
  return select(large, a * all(T(0.125)), sum);
}
template <class T> LUM_INLINE Vec<T> ExponentOf(Vec<T> w, Mask<T> large) {
  const auto k = getexp_normal(w);
  return sub(large, k, all(T(4)), k);
}

// ln(sum), and + 4 ln 2 where large; ratio(r) is (ln(1 + r) - r) / r^2.
template <class T, class Ratio> LUM_INLINE Vec<T> ShortLogarithm(Vec<T> sum, Mask<T> large, Ratio ratio) {
  const auto w = ShortReciprocalOf(sum);
  const auto k = ExponentOf(w, large);
  const auto r = fms(w, sum, all(T(1)));
  const auto t = fnms(k, all(numbers::ln2<T>), LookupSingle<T>(RowOf(w)));
  return t + fma(r * r, ratio(r), r);
}
// Whether the rounding error of the leading sum is carried along.
enum class LeadingSum { rounded, compensated };
// ln(head + tail), and + 4 ln 2 where large. The first part of the leading sum is 0 or the larger.
template <LeadingSum leading_sum, class T> LUM_INLINE Vec<T> LongLogarithm(Vec<T> head, Vec<T> tail, Mask<T> large) {
  const auto w = ShortReciprocalOf(head);
  const auto k = ExponentOf(w, large);
  const auto r = Residue(w, head, tail);
  const auto row = RowOf(w);
  const auto t = fnms(k, all(numbers::ln2_head<T>), LookupHi<T>(row));
  const auto low = fnms(k, all(numbers::ln2_rest<T>), LookupLo<T>(row));
  const auto p = fma(LogRatio(r), r * r, low);
  if constexpr (leading_sum == LeadingSum::compensated) {
    const auto s = fast_two_sum(t, r);
    return s.head + (s.tail + p);
  } else {
    return t + (r + p);
  }
}

// What differs between the tiers: the arguments of Asinh below which, and the squares of the sinh of Acosh below which the
// series is taken, and the series (asinh(t) - t) / t^3 in u = t^2.
struct FloatSeries {
  static constexpr auto asinh_bound = 0x1p-6f, acosh_bound = 0x1p-12f;
  static LUM_INLINE Vec<Lum32f> Of(Vec<Lum32f> u) { return horner(u, hyperbolic::asinh_32f); }
};
struct A26Series {
  static constexpr auto asinh_bound = 0x1p-8, acosh_bound = 0x1p-16;
  static LUM_INLINE Vec<Lum64f> Of(Vec<Lum64f> u) { return horner(u, hyperbolic::asinh_A26); }
};
struct A50Series {
  static constexpr auto asinh_bound = 0x1p-8, acosh_bound = 0x1p-16;
  static LUM_INLINE Vec<Lum64f> Of(Vec<Lum64f> u) { return horner(u, hyperbolic::asinh_A50); }
};
struct A53Series {
  static constexpr auto asinh_bound = 0x1.6ap-6, acosh_bound = 0x1p-11;
  static LUM_INLINE Vec<Lum64f> Of(Vec<Lum64f> u) { return horner(u, hyperbolic::asinh_A53); }
};

// (ln(1 + r) - r) / r^2 of the low tiers.
struct A11Ratio {
  LUM_INLINE Vec<Lum32f> operator()(Vec<Lum32f> r) const { return horner(r, hyperbolic::log1p_A11); }
};
struct A26Ratio {
  LUM_INLINE Vec<Lum64f> operator()(Vec<Lum64f> r) const { return ShortLogRatio(r); }
};

}  // namespace lum::inline LUM_LAYER::hyperbolic
