// |z|, by an estimate of the reciprocal root of s = x^2 + y^2 and coupled steps. The high tags form s with the errors of both
// squares. Refused are zeros and numbers whose squares would leave the range; nothing is reported.
#include "complex/core_second_path.h"
#include "frame/kernels.h"
#include "roots/coupled_root.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// |z| of finite numbers other than zero, as the core has it: the square is right to two units of 2^-64, and the root is
// rounded.
LUM_INLINE RoundedPart ModulusAsCore(ComplexVec<Lum64f> z) {
  const auto exponent = getexp(max(abs(z.re), abs(z.im)));
  const auto x = Raised(z.re, negate(exponent)).value, y = Raised(z.im, negate(exponent)).value;
  const auto root = SquareRoot(Add(ExactSquare(x), ExactSquare(y)));
  constexpr double root_error = 2.0625;
  return RoundedAtEnds(root, root.head * all(root_error), exponent);
}
[[maybe_unused]] LUM_INLINE Lanes<Lum64f> FarModulus(ComplexVec<Lum64f> z) {
  const auto modulus = ModulusAsCore(z);
  return {modulus.value, modulus.refused};
}
[[maybe_unused]] LUM_INLINE Lanes<Lum32f> FarModulus(ComplexVec<Lum32f> z) {
  const auto half = [](ComplexVec<Lum64f> w) __attribute__((always_inline)) { return sqrt(fma(w.re, w.re, w.im * w.im)); };
  const auto modulus = NarrowedOfNeighbours(half(WidenLow(z)), half(WidenHigh(z)));
  return {modulus.value, ~modulus.is_sure};
}

template <class E> struct AbsKernel : Kernel<E, Real<E>> {
  using T = Real<E>;
  static LUM_INLINE Lanes<T> SecondPath(Packed<E> packed, const Lanes<T>& lanes) {
    const auto z = split(packed);
    const auto infinite = IsInfinite(z.re) | IsInfinite(z.im), nan = unord(z.re, z.im) & ~infinite;
    const auto special = infinite | nan | (IsZero(z.re) & IsZero(z.im));
    const auto unbounded = in_register(std::numeric_limits<T>::infinity());
    auto value = select(infinite, unbounded, zero_unless(nan, z.re * z.im));
    auto finished = lanes.refused & special & ~(nan & HasTwoNans(z));
    if (const auto far = lanes.refused & ~special; any(far)) {
      const auto modulus = FarModulus(z);
      value = select(far, modulus.value, value);
      finished = finished | (far & ~modulus.refused);
    }
    return {select(finished, value, lanes.value), lanes.refused & ~finished};
  }
  static void LaneRoutine(const E& z, T& result) {
    const ExtendedPrecision precision;
    Lum64f modulus;
    CoreAbs(modulus, Widened(z));
    result = static_cast<T>(modulus);
  }
  // By the exponent of the larger part, of a zero and of an infinity infinite. A NaN beside a number goes through to the
  // result.
  static LUM_INLINE Mask<T> IsFar(ComplexVec<T> z) {
    return nlt(abs(max(getexp(z.re), getexp(z.im))), all(sizeof(T) == 4 ? T(63) : T(511)));
  }
  static LUM_INLINE Vec<T> PlainSquare(ComplexVec<T> z) { return fma(z.re, z.re, z.im * z.im); }
};

template <class T> LUM_INLINE roots::Roots<T> RootsOf(Vec<T> s) {
  const auto start = roots::Start(s, rsqrt14_normal(s));
  if constexpr (sizeof(T) == 4) return start;
  else return CoupledStep(start);
}

// The estimate itself serves binary32, one step of the root alone binary64.
struct A11_32fc : AbsKernel<Lum32fc> {
  static constexpr Variant variant = x87_up_front_variant;
  static LUM_INLINE Lanes<Lum32f> VectorPath(Interleaved<Lum32f> z) {
    const auto s = PlainSquare(split(z));
    return {s * rsqrt14_normal(s), fpclass<classes::nonfinite | classes::zero | classes::denormal>(s)};
  }
};
struct A26_64fc : AbsKernel<Lum64fc> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Interleaved<Lum64f> packed) {
    const auto z = split(packed);
    const auto s = PlainSquare(z);
    return {CoupledStep(roots::Start(s, rsqrt14_normal(s))).g, IsFar(z)};
  }
};

template <class E> struct Middle : AbsKernel<E> {
  using T = Real<E>;
  static LUM_INLINE Lanes<T> VectorPath(Interleaved<T> packed) {
    const auto z = split(packed);
    const auto s = AbsKernel<E>::PlainSquare(z);
    return {HeronStep(s, RootsOf(s)), AbsKernel<E>::IsFar(z)};
  }
};

template <class E> struct High : AbsKernel<E> {
  using T = Real<E>;
  static LUM_INLINE Lanes<T> VectorPath(Interleaved<T> packed) {
    const auto z = split(packed);
    const auto a = z.re * z.re, b = z.im * z.im;
    const auto errors = fms(z.re, z.re, a) + fms(z.im, z.im, b);
    const auto s = a + b;
    const auto tail = (min(a, b) - (s - max(a, b))) + errors;
    const auto roots = RootsOf(s);
    return {fma(roots.h, fnma(roots.g, roots.g, s) + tail, roots.g), AbsKernel<E>::IsFar(z)};
  }
};

}  // namespace

LumStatus Abs_32fc_A11(const Lum32fc* src, Lum32f* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus Abs_32fc_A21(const Lum32fc* src, Lum32f* dst, int32_t len) { return OneInput<Middle<Lum32fc>>(src, dst, len); }
LumStatus Abs_32fc_A24(const Lum32fc* src, Lum32f* dst, int32_t len) { return OneInput<High<Lum32fc>>(src, dst, len); }
LumStatus Abs_64fc_A26(const Lum64fc* src, Lum64f* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus Abs_64fc_A50(const Lum64fc* src, Lum64f* dst, int32_t len) { return OneInput<Middle<Lum64fc>>(src, dst, len); }
LumStatus Abs_64fc_A53(const Lum64fc* src, Lum64f* dst, int32_t len) { return OneInput<High<Lum64fc>>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
