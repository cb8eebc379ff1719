// The vector paths of arctan2(y, x), the angle of the point (x, y), which also serve the angle of complex numbers. All tiers
// form the angle r of (|x|, |y|) in [0, pi/2], then pi - r for negative x, and put in the sign of y. The low tiers and A21, A50
// divide the smaller by the larger and use one polynomial; A24 and A53 choose one of five intervals of the ratio by comparing
// products, and keep the rounding errors of quotient and sums. Refused are zeros, infinities, NaN and numbers near the ends of
// the exponent range, all of which Atan2Routine finishes.
#pragma once

#include <bit>

#include "invcircular/arctangent.h"
#include "invcircular/atan2_constants.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace arctan2 {

// Refused are patterns p of |x| or |y| with p - low >= high, as signed integers: exponent fields below that of low or above a
// bound. The difference wraps round for those below.
template <class T, SignedOf<T> low, SignedOf<T> high> LUM_INLINE Mask<T> IsSpecial(Vec<T> ay, Vec<T> ax) {
  const auto y = as_signed(bits(ay)) - all(low);
  const auto x = as_signed(bits(ax)) - all(low);
  return mask_cast<T>(~lt(max(y, x), all(high)));
}
template <class T> struct Limits;
template <> struct Limits<Lum32f> {
  static constexpr auto low = std::bit_cast<int32_t>(0x81000000u), high = std::bit_cast<int32_t>(0xFC000000u);
};
template <> struct Limits<Lum64f> {
  static constexpr auto low = std::bit_cast<int64_t>(0x8030000000000000u), high = std::bit_cast<int64_t>(0xFDD0000000000000u);
};

// base + arctan(n / d) with |n| <= d.
template <class T> struct Reduced { Vec<T> n, d, base; };
template <class T> LUM_INLINE Reduced<T> Reduce(Vec<T> ay, Vec<T> ax) {
  const auto below = lt(ay, ax);
  return {select(below, ay, negate(ax)), select(below, ax, ay), zero_unless(~below, all(half_pi<T>))};
}

template <class T> inline constexpr T pi = f32(0x40490FDB, 3.1415927410125732);
template <> inline constexpr Lum64f pi<Lum64f> = f64(0x400921FB54442D18, 3.141592653589793);

// Into the quadrant of (x, y).
template <class T> LUM_INLINE Vec<T> Place(Vec<T> y, Vec<T> x, Vec<T> r) {
  return or_sign(y, add(fpclass<classes::zero | classes::below_zero>(x), or_sign(x, r), all(pi<T>)));
}

template <class Tier, class T> LUM_STAGE Lanes<T> OneQuotient(VecIn<T> y, VecIn<T> x) {
  const auto ay = abs(y), ax = abs(x);
  const auto a = Reduce(ay, ax);
  const auto t = Tier::Quotient(a.n, a.d);
  const auto r = fma(t, Tier::Polynomial(t * t), a.base);
  return {Place(y, x, r), IsSpecial<T, Limits<T>::low, Limits<T>::high>(ay, ax)};
}

template <class T> struct Low {
  using Element = T;
  static LUM_INLINE Vec<T> Quotient(Vec<T> n, Vec<T> d) { return n * ShortReciprocal(d); }
  static LUM_INLINE Vec<T> Polynomial(Vec<T> s) { return ShortArctangent(s); }
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> y, Vec<T> x) { return OneQuotient<Low>(y, x); }
};

struct A21_32f {
  using Element = Lum32f;
  static LUM_INLINE Vec<Lum32f> Quotient(Vec<Lum32f> n, Vec<Lum32f> d) { return ScaledQuotient(n, d); }
  static LUM_INLINE Vec<Lum32f> Polynomial(Vec<Lum32f> s) {
    const auto v = s * s;
    const auto even = horner(v, 1.0f, f32(0x3E4CB79F, 0.1999192088842392), f32(0x3DD96474, 0.1061486303806305),
                             f32(0x3D2BC384, 0.041934505105018616), f32(0x3B322CC0, 0.0027187317609786987));
    const auto odd = horner(v, f32(0xBEAAAA49, -0.3333304226398468), f32(0xBE1161F8, -0.1419752836227417),
                            f32(0xBD987629, -0.07444412261247635), f32(0xBC7F2631, -0.015573070384562016));
    return fma(s, odd, even);
  }
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> y, Vec<Lum32f> x) { return OneQuotient<A21_32f>(y, x); }
};

struct A50_64f {
  using Element = Lum64f;
  static LUM_INLINE Vec<Lum64f> Quotient(Vec<Lum64f> n, Vec<Lum64f> d) { return div(n, d); }
  static LUM_INLINE Vec<Lum64f> Polynomial(Vec<Lum64f> s) {
    const auto v = s * s;
    const auto v2 = v * v;
    const auto p0 =
        fma(v, horner(s, f64(0x3FC999999997EE34, 0.19999999999696316), f64(0xBFC2492491EE55C7, -0.14285714269196445)),
            horner(s, 1.0, f64(0xBFD55555555553C5, -0.3333333333333111)));
    const auto p4 = fma(v, horner(s, f64(0x3FB3B12A49295651, 0.076922076093376), f64(0xBFB11084009435E0, -0.06665825857290697)),
                        horner(s, f64(0x3FBC71C707F7D5B5, 0.11111110634359174), f64(0xBFB745D009BADA94, -0.09090900647684413)));
    const auto p8 =
        fma(v, horner(s, f64(0x3FA7EC0FBC50683B, 0.04672288106685626), f64(0xBFA4EFA2E563C1BC, -0.040890779973668384)),
            horner(s, f64(0x3FAE1749BD612DCF, 0.05877142369044074), f64(0xBFAAD261EAA09954, -0.052386340991051356)));
    const auto p12 =
        fma(v, horner(s, f64(0x3F914F4C661116A5, 0.016904062013301985), f64(0xBF82B2EC618E4BAD, -0.009130331732910191)),
            horner(s, f64(0x3FA169980CB6AD4F, 0.03400874285883992), f64(0xBF9A5E83B081F69C, -0.025751168869183702)));
    const auto p16 =
        fma(v, horner(s, f64(0x3F2CED0A36665209, 0.00022068738617221664), f64(0xBEF4FDB537ABC7A3, -2.001862183482302e-05)),
            horner(s, f64(0x3F6F5A1DAE82AFB3, 0.0038271503181785626), f64(0xBF52E67C93954C23, -0.0011535851065971401)));
    const auto v4 = v2 * v2;
    return fma(v4, fma(v4, p16, fma(v2, p12, p8)), fma(v2, p4, p0));
  }
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> y, Vec<Lum64f> x) { return OneQuotient<A50_64f>(y, x); }
};

// What depends on the interval of the ratio; the second half of the heads and tails is for negative x: pi less the angle.
template <class T> struct IntervalTables {
  Table<T, 16> centre{}, head{}, tail{};
  consteval IntervalTables() {
    using C = IntervalConstants<T>;
    for (size_t i = 0; i < 5; ++i) {
      centre.entries[i] = centre.entries[i + 8] = C::centres[i];
      head.entries[i] = C::heads[i];
      tail.entries[i] = C::tails[i];
      const T sum = C::pi - C::heads[i];
      head.entries[i + 8] = sum;
      tail.entries[i + 8] = ((C::pi - sum) - C::heads[i]) + (C::pi_tail - C::tails[i]);
    }
  }
};
template <class T> inline constexpr IntervalTables<T> interval_tables;

LUM_INLINE Vec<Lum32f> Lookup(const Table<Lum32f, 16>& table, Vec<uint32_t> i) { return permute(load<Lum32f>(table), i); }
LUM_INLINE Vec<Lum64f> Lookup(const Table<Lum64f, 16>& table, Vec<uint64_t> i) {
  return permute2(load<Lum64f>(table), load(table + 8), i);
}

LUM_INLINE Vec<Lum32f> IntervalPolynomial(Vec<Lum32f> s) {
  return horner(s, f32(0xBEAAAA6C, -0.33333146572113037), f32(0x3E4CAA3B, 0.1998681277036667),
                f32(0xBE0F4E4E, -0.13994714617729187), f32(0x3DAE1329, 0.08499748259782791));
}
LUM_INLINE Vec<Lum64f> IntervalPolynomial(Vec<Lum64f> s) {
  return horner(s, f64(0xBFD5555555555552, -0.33333333333333315), f64(0x3FC9999999998F43, 0.19999999999992654),
                f64(0xBFC2492492441A21, -0.1428571428479737), f64(0x3FBC71C719F99F96, 0.11111111053617004),
                f64(0xBFB745D119677A4F, -0.09090906973094913), f64(0x3FB3B132B731E73A, 0.07692257854969578),
                f64(0xBFB1108D326C68ED, -0.06665880662004371), f64(0x3FAE12F1EDF7C393, 0.05873828916435921),
                f64(0xBFAA9E755CA13D23, -0.05199019199118939), f64(0x3FA6AD5558FE19C9, 0.044291178811409156),
                f64(0xBFA04CD71F92185E, -0.03183624515899973), f64(0x3F8BE4FBE6733718, 0.013620346040990536));
}

template <class T> LUM_INLINE Vec<T> FullReciprocal(Vec<T> d) {
  auto w = rcp14(d);
  w = fma(w, fnma(d, w, all(T(1))), w);
  if constexpr (sizeof(T) == 8) w = fma(w, fnma(d, w, all(T(1))), w);
  return w;
}

template <class T, SignedOf<T> low, SignedOf<T> high> struct High {
  using Element = T;
  static LUM_STAGE Lanes<T> VectorPath(VecIn<T> y, VecIn<T> x) {
    using C = IntervalConstants<T>;
    const auto& tables = interval_tables<T>;
    const auto ay = abs(y), ax = abs(x);
    const auto upper = lt(all(C::thresholds[3]) * ax, ay);
    // The number of thresholds below the ratio, counted in the low bits of a sum whose last bit is worth 1.
    auto sum = all(sizeof(T) == 4 ? T(0x1p23) : T(0x1p52));
    sum = add(le(all(C::thresholds[0]) * ax, ay), sum, all(T(1)));
    sum = add(lt(all(C::thresholds[1]) * ax, ay), sum, all(T(1)));
    sum = add(lt(all(C::thresholds[2]) * ax, ay), sum, all(T(1)));
    sum = add(upper, sum, all(T(1)));
    const auto i = bits(sum) | shift_right<8 * sizeof(T) - 4>(sign_of(x));

    const auto c = Lookup(tables.centre, i);
    const auto v = select(upper, negate(ax), ay), u = select(upper, ay, ax);
    const auto cu = c * u;
    const auto n = v - cu;               // exact next to the centre
    const auto n_error = fms(c, u, cu);  // to be subtracted
    const auto d = fma(c, v, u);
    const auto d_error = fma(c, v, u - d);

    const auto w = FullReciprocal(d);
    const auto t = n * w;
    const auto rounding = fma(t, fnma(d, w, all(T(1))), fms(n, w, t));
    const auto t_error = fnma(fma(t, d_error, n_error), w, rounding);
    const auto s = t * t;
    const auto low_part = fma(t * s, IntervalPolynomial(s), t_error);
    const auto head = fast_two_sum(Lookup(tables.head, i), xor_sign(x, t));
    const auto r = head.sum + (head.error + (Lookup(tables.tail, i) + xor_sign(x, low_part)));
    return {or_sign(y, r), IsSpecial<T, low, high>(ay, ax)};
  }
};
using A24_32f = High<Lum32f, std::bit_cast<int32_t>(0x81800000u), std::bit_cast<int32_t>(0xFB800000u)>;
using A53_64f = High<Lum64f, Limits<Lum64f>::low, Limits<Lum64f>::high>;

}  // namespace arctan2
}  // namespace lum::inline LUM_LAYER
