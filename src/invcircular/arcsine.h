// What arcsine and arccosine share. With y = (1 - |x|) / 2, q = min(x^2, y), and arcsin u = u + u W(u^2):
//   arcsin |x| = |x| + |x| W(q)             for |x| < 1/2, where q is x^2
//   arcsin |x| = pi/2 - s - s W(q)          for larger |x|, where q is y and s = 2 sqrt y
// The second line is arcsin |x| = pi/2 - 2 arcsin sqrt((1 - |x|) / 2). So W is needed on [0, 1/4] alone.
#pragma once

#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER {

// The scale below which y is taken for zero: only |x| = 1 comes there. Its reciprocal root would be infinite.
template <class T> inline constexpr T smallest_y = f32(0x2F800000, 0x1p-32);
template <> inline constexpr Lum64f smallest_y<Lum64f> = f64(0x3000000000000000, 1.727233711018889e-77);

// W(q) in binary32: to 11 bits, with a constant term that makes up for the short degree, and to the accuracy of A21 and A24.
LUM_INLINE Vec<Lum32f> ShortCorrection(Vec<Lum32f> q) {
  return horner(q, f32(0x380561A3, 3.180060230079107e-05), f32(0x3E2876B2, 0.16451528668403625),
                f32(0x3DC4C6AE, 0.09608207643032074));
}
LUM_INLINE Vec<Lum32f> LongCorrection(Vec<Lum32f> q) {
  const auto p4 = horner(q, f32(0x3CC32A6B, 0.0238239374011755), f32(0x3D2EDC07, 0.042690303176641464));
  const auto p2 = horner(q, f32(0x3D997C12, 0.0749436765909195), f32(0x3D3A9AB4, 0.045557692646980286));
  return q * fma(fma(q * q, p4, p2), q, all(f32(0x3E2AAAFF, 0.16666792333126068)));
}

// The same in binary64, to the accuracy of A26, and to that of A50 and A53.
LUM_INLINE Vec<Lum64f> ShortCorrection(Vec<Lum64f> q) {
  const auto p5 = horner(q, f64(0x3F8CE147EA9E9282, 0.014101564261929104), f64(0x3FA36C5AF645A11E, 0.03793606048822283));
  const auto p3 = horner(q, f64(0x3FA6C8ED2A4CCE54, 0.04450169698102671), f64(0x3FA056B4151FA155, 0.031911494806822795));
  const auto p1 = horner(q, f64(0x3FC5555480C83A45, 0.16666656768980395), f64(0x3FB33399EBF85B6A, 0.07500612269391885));
  const auto q2 = q * q;
  return q * fma(fma(p5, q2, p3), q2, p1);
}
LUM_INLINE Vec<Lum64f> LongCorrection(Vec<Lum64f> q) {
  const auto p11 = horner(q, f64(0xBF90FB17F7DBB0ED, -0.016582846167623556), f64(0x3FA07520C70EB909, 0.03214361600781685));
  const auto p9 = horner(q, f64(0x3F7A583395D45ED5, 0.006431771759956202), f64(0x3F943F44BFBC3BAE, 0.01977260036715805));
  const auto p7 = horner(q, f64(0x3F8C6DBBCB88BD57, 0.013881175183171264), f64(0x3F88F8DC2AFCCAD6, 0.012193412839768863));
  const auto p5 = horner(q, f64(0x3F96E89CEBDEFADD, 0.022371723076271322), f64(0x3F91C6DCF538AD2E, 0.01736016508782006));
  const auto p3 = horner(q, f64(0x3FA6DB6DB3B445F8, 0.04464285677580543), f64(0x3F9F1C72E13AD8BE, 0.030381960865917483));
  const auto q2 = q * q;
  const auto q4 = q2 * q2;
  const auto p = fma(fma(p11, q4, fma(p9, q2, p7)), q4, fma(p5, q2, p3));
  return q *
         fma(fma(p, q, all(f64(0x3FB333333337E0DE, 0.07500000000425497))), q, all(f64(0x3FC555555555529C, 0.1666666666666473)));
}

// The one or the other.
template <bool is_long, class T> LUM_INLINE Vec<T> Correction(Vec<T> q) {
  if constexpr (is_long) return LongCorrection(q);
  else return ShortCorrection(q);
}

// (1 - (1 + e/2)^(-1/2)) / e for the relative error e/2 of a squared estimate, |e| below 2^-13: the first terms of its series.
template <int terms> LUM_INLINE Vec<Lum32f> RootSeries(Vec<Lum32f> e) {
  static_assert(terms == 1 || terms == 2);
  constexpr auto c0 = f32(0x3E800001, 0.2500000298023224);
  if constexpr (terms == 1) return all(c0);
  else return horner(e, c0, f32(0xBDC00004, -0.09375002980232239));
}
template <int terms> LUM_INLINE Vec<Lum64f> RootSeries(Vec<Lum64f> e) {
  static_assert(terms == 2 || terms == 4);
  constexpr auto c0 = f64(0x3FCFFFFFFFFFFF9D, 0.24999999999999725);
  constexpr auto c1 = f64(0xBFB7FFFFFFFFFE97, -0.09374999999999499);
  if constexpr (terms == 2) return horner(e, c0, c1);
  else return horner(e, c0, c1, f64(0x3FA400006F70D42D, 0.039062512973409326), f64(0xBF918000993B24C3, -0.017089852669219818));
}

// An estimate of 1 / sqrt y to 14 bits, zero for y = 0.
template <class T> LUM_INLINE Vec<T> RootSeed(Vec<T> y) { return zero_unless(nlt(y, all(smallest_y<T>)), rsqrt14_normal(y)); }

// s = 2 sqrt y = g - h p.
template <class T> struct Root { Vec<T> g, h, p; };
template <int terms, class T> LUM_INLINE Root<T> RootOf(Vec<T> y) {
  const auto seed = RootSeed(y);
  const auto g = seed * (y + y);
  const auto e = fms(g, seed, all(T(2)));
  return {g, g * e, RootSeries<terms>(e)};
}

// s = head - c in two parts, the head a product without rounding error.
template <class T> struct SplitRoot { Vec<T> head, c; };
LUM_INLINE SplitRoot<Lum32f> SplitRootOf(Vec<Lum32f> y) {
  const auto seed = RootSeed(y) & all(0xFFFFF800u);
  const auto t = y + y;
  const auto t_head = t & all(0xFFFFE000u);
  const auto head = t_head * seed;  // exact: 11 bits by 13
  const auto tail = (t - t_head) * seed;
  const auto e = fma(tail, seed, fms(head, seed, all(2.0f)));
  return {head, fms(RootSeries<2>(e), (head + tail) * e, tail)};
}
LUM_INLINE SplitRoot<Lum64f> SplitRootOf(Vec<Lum64f> y) {
  const auto seed = RootSeed(y);
  const auto t = y + y;
  const auto head = t * seed;
  const auto tail = fms(t, seed, head);  // exact
  const auto e = fma(tail, seed, fms(head, seed, all(2.0)));
  return {head, fms(RootSeries<4>(e), head * e, tail)};
}

// pi/2 and pi in two parts.
template <class T> struct Angles;
template <> struct Angles<Lum32f> {
  static constexpr auto half_pi = f32(0x3FC90FDB, 1.5707963705062866), half_pi_tail = f32(0xB33BBD2E, -4.371138828673793e-08);
  static constexpr auto pi = f32(0x40490FDB, 3.1415927410125732), pi_tail = f32(0xB3BBBD2E, -8.742277657347586e-08);
};
template <> struct Angles<Lum64f> {
  static constexpr auto half_pi = f64(0x3FF921FB54442D18, 1.5707963267948966),
                        half_pi_tail = f64(0x3C91A62633145C07, 6.123233995736766e-17);
  static constexpr auto pi = f64(0x400921FB54442D18, 3.141592653589793),
                        pi_tail = f64(0x3CA1A62633145C07, 1.2246467991473532e-16);
};

// Refused arguments are a NaN, which the difference quiets, or lie outside [-1, 1], where 0/0 gives a NaN.
template <class T> LumStatus OutsideUnitInterval(T x, T& result) {
  result = (x - x) / (x - x);
  return x != x ? lumStsOk : lumStsDomain;
}

}  // namespace lum::inline LUM_LAYER
