// arcsin x, by the two branches of invcircular/arcsine.h; the sign of x is put in at the end. The tiers differ in the square
// root, the polynomial, and whether pi/2 and the root take part in two parts. Lanes outside [-1, 1] go to the lane routine; a
// NaN runs through.
#include "frame/kernels.h"
#include "invcircular/arcsine.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace invcircular;

template <class T> struct Arguments {
  Vec<T> a, y, q;  // |x|, (1 - |x|) / 2, min(x^2, y)
};
template <class T> LUM_INLINE Arguments<T> Reduce(Vec<T> x) {
  const auto a = as_float(and_not(all(sign_bit<T>), bits(x)));  // by the constant that also puts in the sign
  const auto y = fnma(a, all(T(0.5)), all(T(0.5)));
  return {a, y, min(x * x, y)};
}

// 1 - |x| is negative; a NaN has no sign here.
template <class T> LUM_INLINE Mask<T> Refused(const Arguments<T>& r) { return mask_cast<T>(sign_mask(bits(r.y))); }
// Where the branch of the root is taken. A NaN takes the other one, which leads it through unchanged: the root's would be cut
// short.
template <class T> LUM_INLINE Mask<T> IsBig(Vec<T> a) { return le(all(T(0.5)), a); }

template <class T> LUM_INLINE Lanes<T> Join(Vec<T> x, const Arguments<T>& r, Vec<T> minus_s, Vec<T> w) {
  const auto big = IsBig(r.a);
  const auto u = select(big, all(numbers::pi<T> / 2) + minus_s, r.a);
  const auto v = select(big, minus_s, r.a);
  return {xor_sign(x, fma(v, w, u)), Refused(r)};
}

// pi/2 - head = u - d exactly in the big branch, and what is below u is summed first.
template <class T> LUM_INLINE Lanes<T> JoinParts(Vec<T> x, const Arguments<T>& r, RootWithExcess<T> s, Vec<T> w) {
  const auto big = IsBig(r.a);
  const auto u = sub(big, all(numbers::pi<T> / 2), s.head, r.a);
  const auto d = s.head - (all(numbers::pi<T> / 2) - u);
  const auto z = sub_or_zero(big, all(numbers::pi_tail<T> / 2) + s.excess, d);
  const auto v = sub(big, s.excess, s.head, r.a);
  return {xor_sign(x, u + fma(w, v, z)), Refused(r)};
}

template <int terms, class T> LUM_INLINE Vec<T> MinusRoot(Vec<T> y) {
  const auto s = RootOf<terms>(y);
  return fms(s.h, s.p, s.g);
}

template <class T, Terms terms> struct OnePartRootKernel : OnUnitInterval<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto r = Reduce(x);
    return Join(x, r, MinusRoot<terms.root>(r.y), Correction<terms.is_long>(r.q));
  }
};
template <class T> struct TwoPartRootKernel : OnUnitInterval<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto r = Reduce(x);
    return JoinParts(x, r, RootWithExcessOf(r.y), LongCorrection(r.q));
  }
};

struct A21_32f : OnUnitInterval<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto r = Reduce(x);
    return Join(x, r, sqrt(r.y) * all(-2.0f), LongCorrection(r.q));
  }
};
using A11_32f = OnePartRootKernel<Lum32f, Terms{.root = 1, .is_long = false}>;
using A24_32f = TwoPartRootKernel<Lum32f>;
using A26_64f = OnePartRootKernel<Lum64f, Terms{.root = 2, .is_long = false}>;
using A50_64f = OnePartRootKernel<Lum64f, Terms{.root = 4, .is_long = true}>;
using A53_64f = TwoPartRootKernel<Lum64f>;

}  // namespace

LumStatus Asin_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Asin_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Asin_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Asin_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Asin_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Asin_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
