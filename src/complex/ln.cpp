// The principal logarithm: ln |z| + i arctan2(y, x). The angle is that of the arctangent of two arguments at the same tag. The
// other part is half the logarithm of s = x^2 + y^2, formed with the errors of both squares. Near the unit circle, where ln s
// is as small as t = s - 1, ln(1 + t) is taken. The high tags form t to its last place, however small it is; the others round
// the sum of the errors, which is little beside |ln z| but may be as much as t itself. Nothing is reported, not even of a zero.
#include <limits>

#include "complex/logarithm_ends.h"
#include "explog/ln_terms.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "invcircular/atan2_path.h"
#include "invcircular/atan2_routine.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// Of binary32 numbers by the middle tag's steps in binary64, whose errors stay below four last places.
struct LnEndsOfFloats : LnEnds {
  [[maybe_unused]] static CoreValue InDouble(ComplexVec<Lum64f> z);
};
template <class E> using EndsFor = std::conditional_t<std::is_same_v<E, Lum32fc>, LnEndsOfFloats, LnEnds>;

template <class E> struct LnKernel : Kernel<E> {
  static constexpr int vectors = 1;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static constexpr bool second_is_shared = true;
  static void LaneRoutine(const E& z, E& result) { SilentCoreOnLane<CoreLog>(z, result); }
  static LUM_INLINE Lanes<E> SecondPath(Packed<E> z, const Lanes<E>& lanes) {
    return SecondPathAsCore<EndsFor<E>>(z, lanes, lanes.refused);
  }
};

// The segments' polynomials of the low and the middle tag.
template <int degree> struct Segments;
template <> struct Segments<3> {
  static constexpr auto columns = by_columns<3>(table32({
#include "tables/generated/ln_segments_32f_16_degree_3.inc"
  }));
};
template <> struct Segments<4> {
  static constexpr auto columns = by_columns<4>(table32({
#include "tables/generated/ln_segments_32f_16_degree_4.inc"
  }));
};

// s = x^2 + y^2, of the larger part scaled to [1, 2) and the other with it: 4^exponent (head + tail + rest), exactly.
template <class T> struct Square { Vec<T> head, tail, rest, exponent; };
template <class T> LUM_INLINE Square<T> SquareOfModulus(Vec<T> x, Vec<T> y) {
  const auto ax = abs(x), ay = abs(y);
  const auto large = max(ax, ay), small = min(ax, ay);
  const auto exponent = getexp(large);
  const auto a = getmant<significand::from_1_to_2>(large), b = scalef(small, negate(exponent));
  const auto a2 = a * a, b2 = b * b;
  const auto sum = fast_two_sum(a2, b2);
  const auto errors = two_sum(fms(a, a, a2), fms(b, b, b2));
  const auto tail = two_sum(sum.tail, errors.head);
  return {sum.head, tail.head, tail.tail + errors.tail, exponent};
}

// s - 1 as a pair where s is near 1, without the rest: the difference of the heads is exact.
template <class T> LUM_INLINE TwoParts<Vec<T>> LessOne(const Square<T>& s) {
  const auto twice = s.exponent + s.exponent;
  return two_sum(scalef(s.head, twice) - all(T(1)), scalef(s.tail, twice));
}
// s - 1 with the rest, down to which head and tail may cancel. What is left of them is then 0 or a multiple of the rest's last
// place, as the sum needs where it is not the larger operand.
template <class T> LUM_INLINE TwoParts<Vec<T>> LessOneExactly(const Square<T>& s) {
  const auto t = LessOne(s);
  return fast_two_sum(t.head, t.tail + scalef(s.rest, s.exponent + s.exponent));
}

// In binary32.
template <int segment_degree> LUM_STAGE Vec<Lum32f> LogOfModulus(VecIn<Lum32f> x, VecIn<Lum32f> y) {
  const auto s = SquareOfModulus(x, y);
  const auto t = LessOne(s).head;
  const auto near_one = all(1.0f) + t;
  // The segment is that of the rounded sum, which may have reached 3/2 where t has not reached 1/2.
  const auto is_near = le(all(-0.25f), t) & lt(near_one, all(1.5f));
  const auto m = select(is_near, near_one, getmant<significand::from_three_quarters | significand::nan_if_negative>(s.head));
  const auto r = select(is_near, t, m - all(1.0f));
  const auto k = zero_unless(~is_near, (getexp(s.head) - getexp(m)) + (s.exponent + s.exponent));
  const auto log =
      fma(r, explog::SegmentPolynomial<segment_degree>(m, r, Segments<segment_degree>::columns), k * all(numbers::ln2<Lum32f>));
  return all(0.5f) * log;
}

template <int segment_degree, class Angle> struct Single : LnKernel<Lum32fc> {
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed) {
    const auto z = split(packed);
    const auto angle = Angle::VectorPath(z.im, z.re);
    return {join(ComplexVec<Lum32f>{LogOfModulus<segment_degree>(z.re, z.im), angle.value}), angle.refused};
  }
};

// In binary64 the squares of binary32 numbers are exact, and x^2 - 1 is where s is near 1.
LUM_STAGE Vec<Lum64f> HalfLogOfSquares(VecIn<Lum64f> large, VecIn<Lum64f> small) {
  auto terms = explog::LnTerms_A26::Terms(explog::ReduceByReciprocal<4>(fma(large, large, small * small)));
  const auto t = fma(large, large, all(-1.0)) + small * small;
  const auto is_near = lt(abs(t), all(0.0625));
  terms.base = zero_unless(~is_near, terms.base);
  terms.r = select(is_near, t, terms.r);
  return all(0.5) * explog::LnTerms_A26::Sum(terms);
}

struct A24_32fc : LnKernel<Lum32fc> {
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed) {
    const auto z = split(packed);
    const auto angle = invcircular::arctan2::A24_32f::VectorPath(z.im, z.re);
    const auto x = abs(z.re), y = abs(z.im);
    const auto large = max(x, y), small = min(x, y);
    const auto low = HalfLogOfSquares(widen_low(large), widen_low(small));
    const auto high = HalfLogOfSquares(widen_high(large), widen_high(small));
    return {join(ComplexVec<Lum32f>{narrow(low, high), angle.value}), angle.refused};
  }
};

template <class Ln, bool has_all_places> LUM_STAGE Vec<Lum64f> LogOfModulus(VecIn<Lum64f> x, VecIn<Lum64f> y) {
  const auto s = SquareOfModulus(x, y);
  auto reduction = explog::ReduceByReciprocal<4>(s.head);
  reduction.e = reduction.e + (s.exponent + s.exponent);
  auto terms = Ln::Terms(reduction);

  const auto t = has_all_places ? LessOneExactly(s) : LessOne(s);
  const auto is_near = lt(abs(t.head), all(0.0625));
  terms = {zero_unless(~is_near, terms.base), zero_unless(~is_near, terms.base_tail), select(is_near, t.head, terms.r)};
  return all(0.5) * Ln::Sum(Ln::Corrected(terms, select(is_near, t.tail, s.tail * rcp14(s.head))));
}

template <class Ln, class Angle, bool has_all_places = false> struct Double : LnKernel<Lum64fc> {
  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> packed) {
    const auto z = split(packed);
    const auto angle = Angle::VectorPath(z.im, z.re);
    return {join(ComplexVec<Lum64f>{LogOfModulus<Ln, has_all_places>(z.re, z.im), angle.value}), angle.refused};
  }
};

CoreValue LnEndsOfFloats::InDouble(ComplexVec<Lum64f> z) {
  const auto x = or_sign(z.re, max(abs(z.re), all(0x1p-900)));  // instead of zero, which would count as negative
  const OnePart modulus{LogOfModulus<explog::LnTerms_A50, true>(z.re, z.im)},
      angle{invcircular::arctan2::A50_64f::VectorPath(z.im, x).value};
  return ValueOfParts(modulus, angle, mask_of<Lum64f>(0));
}

using A11_32fc = Single<3, invcircular::arctan2::Low<Lum32f>>;
using A21_32fc = Single<4, invcircular::arctan2::A21_32f>;
using A26_64fc = Double<explog::LnTerms_A26, invcircular::arctan2::Low<Lum64f>>;
using A50_64fc = Double<explog::LnTerms_A50, invcircular::arctan2::A50_64f>;
using A53_64fc = Double<explog::LnTerms_A53, invcircular::arctan2::A53_64f, /*has_all_places=*/true>;

}  // namespace

LumStatus Ln_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus Ln_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A21_32fc>(src, dst, len); }
LumStatus Ln_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus Ln_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus Ln_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A50_64fc>(src, dst, len); }
LumStatus Ln_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A53_64fc>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
