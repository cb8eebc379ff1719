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

namespace lum::inline LUM_LAYER::invcircular {
namespace arctan2 {

// Refused are patterns p of |x| or |y| with p - low >= high, as signed integers: exponent fields below that of low or above a
// bound. The difference wraps round for those below.
template <class T, SignedOf<T> low, SignedOf<T> high> LUM_INLINE Mask<T> Refused(Vec<T> ay, Vec<T> ax) {
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

// Into the quadrant of (x, y).
template <class T> LUM_INLINE Vec<T> Place(Vec<T> y, Vec<T> x, Vec<T> r) {
  return or_sign(y, add(fpclass<classes::zero | classes::below_zero>(x), or_sign(x, r), all(numbers::pi<T>)));
}

template <class Tier, class T> LUM_STAGE Lanes<T> OneQuotient(VecIn<T> y, VecIn<T> x) {
  const auto ay = abs(y), ax = abs(x);
  const auto a = Reduce(ay, ax);
  const auto t = Tier::Quotient(a.n, a.d);
  const auto r = fma(t, Tier::Polynomial(t * t), a.base);
  return {Place(y, x, r), Refused<T, Limits<T>::low, Limits<T>::high>(ay, ax)};
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
  static LUM_INLINE Vec<Lum32f> Polynomial(Vec<Lum32f> s) { return EvenAndOdd(s, invcircular::atan2_A21); }
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> y, Vec<Lum32f> x) { return OneQuotient<A21_32f>(y, x); }
};

struct A50_64f {
  using Element = Lum64f;
  static LUM_INLINE Vec<Lum64f> Quotient(Vec<Lum64f> n, Vec<Lum64f> d) { return div(n, d); }
  static LUM_INLINE Vec<Lum64f> Polynomial(Vec<Lum64f> s) {
    const auto v = s * s;
    const auto v2 = v * v;
    constexpr auto& p = invcircular::atan2_A50;
    const auto p0 = fma(v, horner(s, part<2, 3>(p)), horner(s, part<0, 1>(p)));
    const auto p4 = fma(v, horner(s, part<6, 7>(p)), horner(s, part<4, 5>(p)));
    const auto p8 = fma(v, horner(s, part<10, 11>(p)), horner(s, part<8, 9>(p)));
    const auto p12 = fma(v, horner(s, part<14, 15>(p)), horner(s, part<12, 13>(p)));
    const auto p16 = fma(v, horner(s, part<18, 19>(p)), horner(s, part<16, 17>(p)));
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
      head.entries[i] = C::angles.heads[i];
      tail.entries[i] = C::angles.tails[i];
      const T sum = numbers::pi_beside_angles_parts<T>[0] - C::angles.heads[i];
      head.entries[i + 8] = sum;
      tail.entries[i + 8] = ((numbers::pi_beside_angles_parts<T>[0] - sum) - C::angles.heads[i]) +
                            (numbers::pi_beside_angles_parts<T>[1] - C::angles.tails[i]);
    }
  }
};
template <class T> inline constexpr IntervalTables<T> interval_tables;

LUM_INLINE Vec<Lum32f> Lookup(const Table<Lum32f, 16>& table, Vec<uint32_t> i) { return permute(load<Lum32f>(table), i); }
LUM_INLINE Vec<Lum64f> Lookup(const Table<Lum64f, 16>& table, Vec<uint64_t> i) {
  return permute2(load<Lum64f>(table), load(table + 8), i);
}

LUM_INLINE Vec<Lum32f> IntervalPolynomial(Vec<Lum32f> s) { return horner(s, invcircular::atan2_A24); }
LUM_INLINE Vec<Lum64f> IntervalPolynomial(Vec<Lum64f> s) { return horner(s, invcircular::atan2_A53); }

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
    const auto r = head.head + (head.tail + (Lookup(tables.tail, i) + xor_sign(x, low_part)));
    return {or_sign(y, r), Refused<T, low, high>(ay, ax)};
  }
};
using A24_32f = High<Lum32f, std::bit_cast<int32_t>(0x81800000u), std::bit_cast<int32_t>(0xFB800000u)>;
using A53_64f = High<Lum64f, Limits<Lum64f>::low, Limits<Lum64f>::high>;

}  // namespace arctan2
}  // namespace lum::inline LUM_LAYER::invcircular
