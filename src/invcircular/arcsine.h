// What arcsine and arccosine share. With y = (1 - |x|) / 2, q = min(x^2, y), and arcsin u = u + u W(u^2):
//   arcsin |x| = |x| + |x| W(q)             for |x| < 1/2, where q is x^2
//   arcsin |x| = pi/2 - s - s W(q)          for larger |x|, where q is y and s = 2 sqrt y
// The second line is arcsin |x| = pi/2 - 2 arcsin sqrt((1 - |x|) / 2). So W is needed on [0, 1/4] alone.
#pragma once

#include "frame/kernel_frame.h"
#include "frame/lane_format.h"
#include "frame/numbers.h"
#include "invcircular/polynomials.h"

namespace lum::inline LUM_LAYER::invcircular {

// The scale below which y is taken for zero: only |x| = 1 comes there. Its reciprocal root would be infinite.
template <class T> inline constexpr T smallest_y = 0x1p-32f;
template <> inline constexpr Lum64f smallest_y<Lum64f> = 0x1p-255;

// W(q) to the accuracy of the low tiers, and to that of the others.
LUM_INLINE Vec<Lum32f> ShortCorrection(Vec<Lum32f> q) { return horner(q, invcircular::asin_A11); }
LUM_INLINE Vec<Lum32f> LongCorrection(Vec<Lum32f> q) {
  constexpr auto& p = invcircular::asin_A21;
  return q * fma(fma(q * q, horner(q, part<3, 4>(p)), horner(q, part<1, 2>(p))), q, all(p.c[0]));
}
LUM_INLINE Vec<Lum64f> ShortCorrection(Vec<Lum64f> q) {
  constexpr auto& p = invcircular::asin_A26;
  const auto q2 = q * q;
  return q * fma(fma(horner(q, part<4, 5>(p)), q2, horner(q, part<2, 3>(p))), q2, horner(q, part<0, 1>(p)));
}
LUM_INLINE Vec<Lum64f> LongCorrection(Vec<Lum64f> q) {
  constexpr auto& c = invcircular::asin_A50;
  const auto p10 = horner(q, part<10, 11>(c)), p8 = horner(q, part<8, 9>(c)), p6 = horner(q, part<6, 7>(c));
  const auto p4 = horner(q, part<4, 5>(c)), p2 = horner(q, part<2, 3>(c));
  const auto q2 = q * q;
  const auto q4 = q2 * q2;
  const auto p = fma(fma(p10, q4, fma(p8, q2, p6)), q4, fma(p4, q2, p2));
  return q * fma(fma(p, q, all(c.c[1])), q, all(c.c[0]));
}

// A tier with the root in one part: the terms of the root's series, and whether W is that of the others or of the low tiers.
struct Terms {
  int root;
  bool is_long;
};
template <bool is_long, class T> LUM_INLINE Vec<T> Correction(Vec<T> q) {
  if constexpr (is_long) return LongCorrection(q);
  else return ShortCorrection(q);
}

// (1 - (1 + e/2)^(-1/2)) / e for the relative error e/2 of a squared estimate, |e| below 2^-12: the first terms of its series.
template <int terms> LUM_INLINE Vec<Lum32f> RootSeries(Vec<Lum32f> e) {
  static_assert(terms == 1 || terms == 2);
  if constexpr (terms == 1) return horner(e, invcircular::root_A11);
  else return horner(e, invcircular::root_A21);
}
template <int terms> LUM_INLINE Vec<Lum64f> RootSeries(Vec<Lum64f> e) {
  static_assert(terms == 2 || terms == 4);
  if constexpr (terms == 2) return horner(e, invcircular::root_A26);
  else return horner(e, invcircular::root_A50);
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

// s = head - excess, the head a product without rounding error. Not a tail, since both functions take the parts with the signs
// that they have here.
template <class T> struct RootWithExcess { Vec<T> head, excess; };
LUM_INLINE RootWithExcess<Lum32f> RootWithExcessOf(Vec<Lum32f> y) {
  const auto seed = RootSeed(y) & all(0xFFFFF800u);
  const auto t = y + y;
  const auto t_head = t & all(0xFFFFE000u);
  const auto head = t_head * seed;  // exact: 11 bits by 13
  const auto tail = (t - t_head) * seed;
  const auto e = fma(tail, seed, fms(head, seed, all(2.0f)));
  return {head, fms(RootSeries<2>(e), (head + tail) * e, tail)};
}
LUM_INLINE RootWithExcess<Lum64f> RootWithExcessOf(Vec<Lum64f> y) {
  const auto seed = RootSeed(y);
  const auto t = y + y;
  const auto head = t * seed;
  const auto tail = fms(t, seed, head);  // exact
  const auto e = fma(tail, seed, fms(head, seed, all(2.0)));
  return {head, fms(RootSeries<4>(e), head * e, tail)};
}

// Refused arguments are a NaN, which is quieted, or lie outside [-1, 1]: an invalid operation.
template <class T> struct OnUnitInterval : Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) {
    result = lane::nan_of(x);
    return x != x ? lumStsOk : lumStsDomain;
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto is_nan = unord(x, x);
    const auto value = select(is_nan, x + x, all(lane::default_nan<T>()));
    return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.domain = lanes.refused & ~is_nan}};
  }
};

}  // namespace lum::inline LUM_LAYER::invcircular
