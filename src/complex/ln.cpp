// The principal logarithm: ln |z| + i arctan2(y, x). The angle is that of the arctangent of two arguments at the same tag. The
// other part is half the logarithm of s = x^2 + y^2, formed from the larger part scaled to [1, 2). Near the unit circle, where
// ln s is as small as t = s - 1, t is formed as (a - 1)(a + 1) + b^2, a being the larger part, and ln(1 + t) taken. Nothing is
// reported, not even of a zero.
#include "complex/refused.h"
#include "explog/ln_terms.h"
#include "frame/kernels.h"
#include "invcircular/atan2_path.h"

namespace lum {
namespace {

template <class E> struct LnKernel : Kernel<E> {
  static constexpr int vectors = 1;
  static void LaneRoutine(const E& z, E& result) { CoreOnLane<CoreLog>(z, result); }
};

// The segments' polynomials of the low and the middle tag.
template <int degree> struct Segments;
template <> struct Segments<3> {
  static constexpr auto columns = by_columns<3>(table32({
#include "tables/generated/ln_segments_3.inc"
  }));
};
template <> struct Segments<4> {
  static constexpr auto columns = by_columns<4>(table32({
#include "tables/generated/ln_segments_4.inc"
  }));
};

// In binary32, where s itself is too coarse near 1.
template <int segment_degree> LUM_INLINE Vec<Lum32f> LogOfModulus(Vec<Lum32f> x, Vec<Lum32f> y) {
  const auto ax = abs(x), ay = abs(y);
  const auto large = max(ax, ay), small = min(ax, ay);
  const auto exponent = getexp(large);
  const auto a = getmant<0>(large), b = scalef(small, negate(exponent));
  const auto s = fma(a, a, b * b);
  const auto t = fma(large - all(1.0f), large + all(1.0f), small * small);
  const auto is_near = le(all(-0.25f), t) & lt(t, all(0.5f));
  const auto m = select(is_near, all(1.0f) + t, getmant<0xB>(s));
  const auto r = select(is_near, t, m - all(1.0f));
  const auto k = zero_unless(~is_near, (getexp(s) - getexp(m)) + (exponent + exponent));
  const auto log = fma(r, SegmentPolynomial<segment_degree>(m, r, Segments<segment_degree>::columns),
                       k * all(f32(0x3F317218, 0.6931471824645996)));
  return all(0.5f) * log;
}

template <int segment_degree, class Angle> struct Single : LnKernel<Lum32fc> {
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed) {
    const auto z = split(packed);
    const auto angle = Angle::VectorPath(z.im, z.re);
    return {join(ComplexVec<Lum32f>{LogOfModulus<segment_degree>(z.re, z.im), angle.value}), angle.refused};
  }
};

// In binary64 the sum of two squares of binary32 numbers is in range, and near 1 it is within a rounding of binary64.
LUM_INLINE Vec<Lum64f> HalfLogOfSquares(Vec<Lum64f> x, Vec<Lum64f> y) {
  return all(0.5) * LnTerms_A26::Sum(LnTerms_A26::Terms(ReduceByReciprocal<4>(fma(x, x, y * y))));
}

struct A24_32fc : LnKernel<Lum32fc> {
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed) {
    const auto z = split(packed);
    const auto angle = arctan2::A24_32f::VectorPath(z.im, z.re);
    const auto low = HalfLogOfSquares(widen_low(z.re), widen_low(z.im));
    const auto high = HalfLogOfSquares(widen_high(z.re), widen_high(z.im));
    return {join(ComplexVec<Lum32f>{narrow(low, high), angle.value}), angle.refused};
  }
};

// An unevaluated sum.
struct HeadTail {
  Vec<Lum64f> head, tail;
};

// a^2 + b^2, 0 <= b <= a in [1, 2).
template <bool with_tail> LUM_INLINE HeadTail SumOfSquares(Vec<Lum64f> a, Vec<Lum64f> b) {
  const auto a2 = a * a;
  if constexpr (!with_tail) return {fma(b, b, a2), all(0.0)};
  const auto b2 = b * b;
  const auto sum = fast_two_sum(a2, b2);
  return {sum.sum, sum.error + (fms(a, a, a2) + fms(b, b, b2))};
}

// a^2 + b^2 - 1 of an a near 1, 0 <= b <= a. What the product b^2 loses is small beside b, the angle.
LUM_INLINE HeadTail AboveCircle(Vec<Lum64f> a, Vec<Lum64f> b) {
  const auto d = a - all(1.0);  // exact
  const auto sum = two_sum(d + d, fma(d, d, b * b));
  return {sum.sum, sum.error};
}

template <class Ln, bool with_tail> LUM_INLINE Vec<Lum64f> LogOfModulus(Vec<Lum64f> x, Vec<Lum64f> y) {
  const auto ax = abs(x), ay = abs(y);
  const auto large = max(ax, ay), small = min(ax, ay);
  const auto exponent = getexp(large);
  const auto s = SumOfSquares<with_tail>(getmant<0>(large), scalef(small, negate(exponent)));
  auto reduction = ReduceByReciprocal<4>(s.head);
  reduction.e = reduction.e + (exponent + exponent);
  auto terms = Ln::Terms(reduction);

  const auto t = AboveCircle(large, small);
  const auto is_near = lt(abs(t.head), all(0.0625));
  terms = {zero_unless(~is_near, terms.base), zero_unless(~is_near, terms.base_tail), select(is_near, t.head, terms.r)};
  if constexpr (with_tail) terms = Ln::Corrected(terms, select(is_near, t.tail, s.tail * rcp14(s.head)));
  return all(0.5) * Ln::Sum(terms);
}

template <class Ln, bool with_tail, class Angle> struct Double : LnKernel<Lum64fc> {
  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> packed) {
    const auto z = split(packed);
    const auto angle = Angle::VectorPath(z.im, z.re);
    return {join(ComplexVec<Lum64f>{LogOfModulus<Ln, with_tail>(z.re, z.im), angle.value}), angle.refused};
  }
};

using A11_32fc = Single<3, arctan2::Low<Lum32f>>;
using A21_32fc = Single<4, arctan2::A21_32f>;
using A26_64fc = Double<LnTerms_A26, false, arctan2::Low<Lum64f>>;
using A50_64fc = Double<LnTerms_A50, true, arctan2::A50_64f>;
using A53_64fc = Double<LnTerms_A53, true, arctan2::A53_64f>;

}  // namespace

LumStatus Ln_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus Ln_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A21_32fc>(src, dst, len); }
LumStatus Ln_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus Ln_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus Ln_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A50_64fc>(src, dst, len); }
LumStatus Ln_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A53_64fc>(src, dst, len); }

}  // namespace lum
