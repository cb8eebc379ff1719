// The decimal logarithm. With x = 2^e m and c a reciprocal of m of a few bits:  log10 x = e log10 2 - log10 c + log10(1 + r),
// r = c m - 1. -log10 c comes from a table in registers, log10(1 + r) from a polynomial, whose first coefficient is 1/ln 10.
// 32f A11 and A21 have no c but a polynomial for each of sixteen segments of m. In the two high tiers e log10 2 - log10 c and
// 1/ln 10 are held in two parts and the rounding error of the leading sum is carried along.
#include "explog/logarithm_reduction.h"
#include "explog/logarithm_routine.h"
#include "explog/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace explog;

// The kernels by parts, and what they refuse.
template <class Tier, int significand_interval> struct Log10OfFloat : LogarithmOfParts<Lum32f, Log10Routine<Lum32f>, Tier> {
  static constexpr int interval = significand_interval;
  static constexpr int refused_classes = refused_by_logarithms;
};
template <class Tier> struct Log10OfDouble : LogarithmOfParts<Lum64f, Log10Routine<Lum64f>, Tier> {
  static constexpr int interval = significand::from_1_to_2;
  static constexpr int refused_classes = refused_by_logarithms;
};

constexpr auto segments_of_degree_3 = by_columns<3>(table32({
#include "tables/generated/log10_segments_32f_16_degree_3.inc"
}));
constexpr auto segments_of_degree_4 = by_columns<4>(table32({
#include "tables/generated/log10_segments_32f_16_degree_4.inc"
}));
using A11_32f = SegmentKernel<Log10Routine<Lum32f>, segments_of_degree_3, numbers::log10_2<Lum32f>>;
using A21_32f = SegmentKernel<Log10Routine<Lum32f>, segments_of_degree_4, numbers::log10_2<Lum32f>>;

// b + r inverse_ln10 + lo + r tail, where |b| is 0 or larger than the product.
template <class T> LUM_INLINE Vec<T> Compensated(Vec<T> b, Vec<T> lo, Vec<T> r, T inverse_ln10, Vec<T> tail) {
  const auto s = fma(r, all(inverse_ln10), b);
  const auto error = fms(r, all(inverse_ln10), s - b);
  return s + fma(r, tail, error + lo);
}

struct A24_32f : Log10OfFloat<A24_32f, significand::from_half_to_1> {
  // hi, then lo.
  static constexpr auto half_inverse = by_columns<2>(table32({
#include "tables/generated/minus_log10_below_one_32f_32_pairs.inc"
  }));
  static LUM_INLINE Vec<Lum32f> OfParts(const Parts<Lum32f>& parts) {
    constexpr auto shifter = rounding_shifter<Lum32f>(5);
    const auto [m, e] = parts;
    const auto t = shifted_rcp14<5, significand::from_half_to_1>(m);
    const auto c = t - all(shifter);      // in [1, 2]
    const auto k = e - getexp_normal(c);  // c = 2 is 2 times row 0
    const auto r = fms(c, m, all(1.0f));
    const auto j = bits(t);
    const auto hi = permute2(load<Lum32f>(half_inverse), load(half_inverse + 16), j);
    const auto lo = permute2(load(half_inverse + 32), load(half_inverse + 48), j);
    const auto tail = horner(r, explog::log10_A24);
    return Compensated(fma(k, all(numbers::log10_2_short<Lum32f>), hi), fma(k, all(numbers::log10_2_short_tail<Lum32f>), lo), r,
                       numbers::log10_e<Lum32f>, tail);
  }
};

constexpr auto rows = table64({
#include "tables/generated/minus_log10_64f_16.inc"
});
LUM_INLINE Vec<Lum64f> Row(const ReciprocalReduction& a) { return permute2(load<Lum64f>(rows), load(rows + 8), a.j); }

// The coefficients behind the first, which A50 and A53 have in common.
LUM_INLINE Vec<Lum64f> LongTail(Vec<Lum64f> r) { return estrin(r, part<1, 8>(explog::log10_A50)); }

LUM_INLINE Vec<Lum64f> OnePart(const ReciprocalReduction& a, Vec<Lum64f> tail, Lum64f first_coefficient) {
  const auto p = fma(fma(tail, a.r, all(first_coefficient)), a.r, Row(a));
  return fma(a.e, all(numbers::log10_2<Lum64f>), p);
}

struct A26_64f : Log10OfDouble<A26_64f> {
  static LUM_INLINE Vec<Lum64f> OfParts(const Parts<Lum64f>& parts) {
    const auto a = ReduceByReciprocal<5>(parts);
    return OnePart(a, horner_of_pairs(a.r, a.r * a.r, part<1, 4>(explog::log10_A26)), explog::log10_A26.c[0]);
  }
};

struct A50_64f : Log10OfDouble<A50_64f> {
  static LUM_INLINE Vec<Lum64f> OfParts(const Parts<Lum64f>& parts) {
    const auto a = ReduceByReciprocal<5>(parts);
    return OnePart(a, LongTail(a.r), explog::log10_A50.c[0]);
  }
};

struct A53_64f : Log10OfDouble<A53_64f> {
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/minus_log10_64f_16_pairs.inc"
  }));
  static LUM_INLINE Vec<Lum64f> OfParts(const Parts<Lum64f>& parts) {
    const auto a = ReduceByReciprocal<5>(parts);
    const auto hi = permute2(load<Lum64f>(pairs), load(pairs + 8), a.j);
    const auto lo = permute2(load(pairs + 16), load(pairs + 24), a.j);
    const auto tail = fma(LongTail(a.r), a.r, all(explog::log10_A53.c[0]));
    return Compensated(fma(a.e, all(numbers::log10_2_short<Lum64f>), hi),  // exact
                       fma(a.e, all(numbers::log10_2_short_tail<Lum64f>), lo), a.r, numbers::log10_e<Lum64f>, tail);
  }
};

}  // namespace

LumStatus Log10_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Log10_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Log10_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Log10_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Log10_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Log10_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
