// arccos x, by the two branches of invcircular/arcsine.h: pi/2 - arcsin x for |x| < 1/2, and for larger |x| s + s W(q), or pi
// less that where x is negative. The tiers differ in the square root, the polynomial, and whether pi, pi/2 and the root take
// part in two parts. Lanes outside [-1, 1] go to the lane routine; a NaN does so in binary32 and runs through in binary64.
#include "frame/kernels.h"
#include "invcircular/arcsine.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace invcircular;

template <class T> struct Arguments {
  Vec<T> a, y, q;  // -|x|, (1 - |x|) / 2, min(x^2, y)
  Mask<T> big;     // |x| >= 1/2, or x a NaN
};
template <class T> LUM_INLINE Arguments<T> Reduce(Vec<T> x) {
  const auto a = x | all(sign_bit<T>);
  const auto y = fma(a, all(T(0.5)), all(T(0.5)));
  const auto q = min(x * x, y);
  return {a, y, q, nlt(q, y)};
}

LUM_INLINE Mask<Lum32f> Refused(Vec<Lum32f> a) { return nle(all(-1.0f), a); }
LUM_INLINE Mask<Lum64f> Refused(Vec<Lum64f> a) { return lt(a, all(-1.0)); }

// pi/2 in the small branch; pi or 0 in the big one, as x is negative or not.
template <class T> LUM_INLINE Vec<T> Base(const Arguments<T>& r, Mask<T> negative, T half_pi, T pi) {
  return select(r.big, zero_unless(negative, all(pi)), all(half_pi));
}

template <class T> LUM_INLINE Lanes<T> Join(Vec<T> x, const Arguments<T>& r, Vec<T> s, Vec<T> w) {
  const auto negative = lt(x, r.q);  // in the big branch; q is never negative
  const auto h = select(r.big, s, r.a);
  // Turned over at the end: the operands of the sum are then NaNs of one sign, of which any may be the result.
  return {Base(r, negative, numbers::pi<T> / 2, numbers::pi<T>) + xor_sign(x, fma(h, w, h)), Refused(r.a)};
}

// All but the base is formed for the sign of a negative x, the tails first, and turned over at the end.
template <class T> LUM_INLINE Lanes<T> JoinParts(Vec<T> x, const Arguments<T>& r, RootWithExcess<T> s, Vec<T> w) {
  const auto negative = lt(x, r.q);
  const auto h = select(r.big, s.head, r.a);
  const auto base_tail = xor_sign(x, Base(r, negative, numbers::pi_tail<T> / 2, numbers::pi_tail<T>));
  const auto tail = sub(r.big, base_tail, s.excess, base_tail);
  const auto rest = xor_sign(x, fma(w, sub(r.big, h, s.excess, h), tail) + h);
  return {rest + Base(r, negative, numbers::pi<T> / 2, numbers::pi<T>), Refused(r.a)};
}

template <int terms, class T> LUM_INLINE Vec<T> PlainRoot(Vec<T> y) {
  const auto s = RootOf<terms>(y);
  return fnma(s.h, s.p, s.g);
}

template <class T, Terms terms> struct OnePartRootKernel : OnUnitInterval<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto r = Reduce(x);
    return Join(x, r, PlainRoot<terms.root>(r.y), Correction<terms.is_long>(r.q));
  }
};
template <class T> struct TwoPartRootKernel : OnUnitInterval<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto r = Reduce(x);
    return JoinParts(x, r, RootWithExcessOf(r.y), LongCorrection(r.q));
  }
};

using A11_32f = OnePartRootKernel<Lum32f, Terms{.root = 1, .is_long = false}>;
using A21_32f = OnePartRootKernel<Lum32f, Terms{.root = 2, .is_long = true}>;
using A24_32f = TwoPartRootKernel<Lum32f>;
using A26_64f = OnePartRootKernel<Lum64f, Terms{.root = 2, .is_long = false}>;
using A50_64f = OnePartRootKernel<Lum64f, Terms{.root = 4, .is_long = true}>;
using A53_64f = TwoPartRootKernel<Lum64f>;

}  // namespace

LumStatus Acos_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Acos_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Acos_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Acos_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Acos_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Acos_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
