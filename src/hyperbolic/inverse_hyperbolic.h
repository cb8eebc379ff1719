// What Asinh and Acosh share: the square root of a number in two parts, by the series of (1 - e)^(-1/2) from a reciprocal root
// y with e = 1 - s y^2, and the logarithm of the sum of argument and root. Small arguments take asinh t = t + t^3 (...), huge
// ones ln 2x.
#pragma once

#include "hyperbolic/reciprocal_logarithm.h"

namespace lum::inline LUM_LAYER {

// ((1 - e)^(-1/2) - 1) / e for |e| up to 2^-13 and a little.
LUM_INLINE Vec<Lum32f> RootSeries(Vec<Lum32f> e) { return horner(e, 0.5f, 0.375f); }
LUM_INLINE Vec<Lum64f> RootSeries(Vec<Lum64f> e) {
  return horner(e, 0.5, 0.375, f64(0x3FD40000013B0000, 0.3125000011459633), f64(0x3FD1800001943612, 0.2734375014705118));
}
// The same to the accuracy of the low tiers.
LUM_INLINE Vec<Lum32f> ShortRootSeries(Vec<Lum32f>) { return all(0.5f); }
LUM_INLINE Vec<Lum64f> ShortRootSeries(Vec<Lum64f> e) {
  return horner(e, 0.5, f64(0x3FD8000001180000, 0.37500000101863407), f64(0x3FD40000017A0000, 0.312500001375156));
}

template <class T> struct HeadAndTail { Vec<T> head, tail; };

// sqrt(s + s_tail). The tail is up to 2^-14 of the head; with s next to zero, g_tail is large enough for its share in the
// series to matter.
template <bool next_to_zero, class T> LUM_INLINE HeadAndTail<T> RootOf(Vec<T> s, Vec<T> s_tail) {
  const auto y = rsqrt14(s);
  const auto g = s * y;
  const auto g_tail = fma(y, s_tail, fms(y, s, g));
  const auto e = fnma(y, g_tail, fnma(g, y, all(T(1))));
  const auto full = next_to_zero ? g + g_tail : g;
  return {g, fma(full * e, RootSeries(e), g_tail)};
}
template <class T> LUM_INLINE Vec<T> ShortRootOf(Vec<T> s) {
  const auto y = rsqrt14(s);
  const auto g = s * y;
  const auto e = fnma(g, y, all(T(1)));
  return fma(g * e, ShortRootSeries(e), g);
}

// Where x^2 would overflow ln 2x is taken as ln(x/8) + 4 ln 2, with a reciprocal that is a normal number.
template <class T> inline constexpr T huge_bound = f32(0x5F000000, 9.223372036854776e+18);
template <> inline constexpr Lum64f huge_bound<Lum64f> = f64(0x5FE0000000000000, 6.703903964971299e+153);
template <class T> LUM_INLINE Mask<T> IsHuge(Vec<T> a) { return le(all(huge_bound<T>), a); }
template <class T> LUM_INLINE Vec<T> EighthIf(Mask<T> huge, Vec<T> a, Vec<T> sum) {
  return select(huge, a * all(T(0.125)), sum);
}
template <class T> LUM_INLINE Vec<T> ExponentOf(Vec<T> w, Mask<T> huge) {
  const auto k = getexp(w);
  return sub(huge, k, all(T(4)), k);
}

// ln(sum), and + 4 ln 2 where huge; ratio(r) is (ln(1 + r) - r) / r^2.
template <class T, class Ratio> LUM_INLINE Vec<T> ShortLogarithm(Vec<T> sum, Mask<T> huge, Ratio ratio) {
  const auto w = ShortReciprocalOf(sum);
  const auto k = ExponentOf(w, huge);
  const auto r = fms(w, sum, all(T(1)));
  const auto t = fnms(k, all(LogTable<T>::ln2), LookupSingle<T>(RowOf(w)));
  return t + fma(r * r, ratio(r), r);
}
// ln(head + tail), the same. Compensated: with the rounding error of the leading sum, whose first part is 0 or the larger.
template <bool compensated, class T> LUM_INLINE Vec<T> LongLogarithm(Vec<T> head, Vec<T> tail, Mask<T> huge) {
  using L = LogTable<T>;
  const auto w = ShortReciprocalOf(head);
  const auto k = ExponentOf(w, huge);
  const auto r = Residue(w, head, tail);
  const auto row = RowOf(w);
  const auto t = fnms(k, all(L::ln2_hi), LookupHi<T>(row));
  const auto low = fnms(k, all(L::ln2_lo), LookupLo<T>(row));
  const auto p = fma(LogRatio(r), r * r, low);
  if constexpr (compensated) {
    const auto s = fast_two_sum(t, r);
    return s.sum + (s.error + p);
  } else {
    return t + (r + p);
  }
}

// What differs between the tiers: the arguments of Asinh below which, and the squares of the sinh of Acosh below which the
// series is taken, and the series (asinh(t) - t) / t^3 in u = t^2.
struct FloatSeries {
  static constexpr auto asinh_bound = f32(0x3C800000, 0.015625), acosh_bound = f32(0x39800000, 0.000244140625);
  static LUM_INLINE Vec<Lum32f> Of(Vec<Lum32f>) { return all(f32(0xBE2AA5DE, -0.16664835810661316)); }
};
struct A26Series {
  static constexpr auto asinh_bound = f64(0x3F70000000000000, 0.00390625),
                        acosh_bound = f64(0x3EF0000000000000, 1.52587890625e-05);
  static LUM_INLINE Vec<Lum64f> Of(Vec<Lum64f> u) {
    return horner(u, f64(0xBFC55552221BC89D, -0.1666662851853901), f64(0x3FB3221CAE352644, 0.07473925831904987));
  }
};
struct A50Series {
  static constexpr auto asinh_bound = f64(0x3F70000000000000, 0.00390625),
                        acosh_bound = f64(0x3EF0000000000000, 1.52587890625e-05);
  static LUM_INLINE Vec<Lum64f> Of(Vec<Lum64f> u) {
    return horner(u, f64(0xBFC5555555521E7E, -0.16666666666082003), f64(0x3FB333220EAF02E7, 0.07499897821891076));
  }
};
struct A53Series {
  static constexpr auto asinh_bound = f64(0x3F96A00000000000, 0.0220947265625),
                        acosh_bound = f64(0x3F40000000000000, 0.00048828125);
  static LUM_INLINE Vec<Lum64f> Of(Vec<Lum64f> u) {
    return horner(u, f64(0xBFC555555554D8FD, -0.16666666666578314), f64(0x3FB333330C569EEA, 0.07499999095181989),
                  f64(0xBFA6D78AAC4CA025, -0.04461320260298888));
  }
};

// (ln(1 + r) - r) / r^2 of the low tiers.
struct A11Ratio {
  LUM_INLINE Vec<Lum32f> operator()(Vec<Lum32f>) const { return all(f32(0xBF000408, -0.5000615119934082)); }
};
struct A26Ratio {
  LUM_INLINE Vec<Lum64f> operator()(Vec<Lum64f> r) const { return ShortLogRatio(r); }
};

}  // namespace lum::inline LUM_LAYER
