// |z|, by an estimate of the reciprocal root of s = x^2 + y^2 and coupled steps. The high tags form s with the errors of both
// squares. Refused are zeros and numbers whose squares would leave the range; nothing is reported.
#include "complex/core_second_path.h"
#include "frame/kernels.h"
#include "roots/coupled_root.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// x^2 + y^2 with the errors of both squares and of the sum.
template <class T> LUM_INLINE TwoParts<Vec<T>> SquareOf(ComplexVec<T> z) {
  const auto a = z.re * z.re, b = z.im * z.im;
  const auto errors = fms(z.re, z.re, a) + fms(z.im, z.im, b);
  const auto s = a + b;
  return {s, (min(a, b) - (s - max(a, b))) + errors};
}
template <class T> LUM_INLINE roots::Roots<T> RootsOf(Vec<T> s) {
  const auto start = roots::Start(s, rsqrt14_normal(s));
  if constexpr (sizeof(T) == 4) return start;
  else return CoupledStep(start);
}

// |z| of finite numbers other than zero as the core has it, which rounds the square and the root to 64 bits: a power of 2 takes
// the larger part to [1, 2), and the root has a tail.
template <class T> struct Modulus {
  Vec<T> value;
  Mask<T> is_sure;
};
template <class T> LUM_INLINE Modulus<T> ModulusAsCore(ComplexVec<T> z) {
  const auto exponent = max(getexp(z.re), getexp(z.im)), down = negate(exponent);
  // Beside 1, the square of a smaller part is as little as that of this one, which is a normal number.
  const auto negligible = all(sizeof(T) == 4 ? T(0x1p-50) : T(0x1p-100));
  const auto square =
      SquareOf(ComplexVec<T>{max(abs(scalef(z.re, down)), negligible), max(abs(scalef(z.im, down)), negligible)});
  const auto [head, half_reciprocal] = CoupledStep(RootsOf(square.head));
  const auto tail = (fnma(head, head, square.head) + square.tail) * half_reciprocal;
  // Two units of 2^-64 of the core; in binary32, where it rounds to binary64 next, 2^-44 of head and tail.
  const auto distance = head * all(sizeof(T) == 4 ? T(0x1p-43) : T(0x2.1p-64));
  const auto above = head + (tail + distance), below = head + (tail - distance);
  const Modulus<T> normal{scalef(above, exponent), eq(above, below)};
  constexpr T smallest_exponent = std::numeric_limits<T>::min_exponent - 1;
  const auto is_below = lt(getexp(head) + exponent, all(smallest_exponent));
  if (none(is_below)) [[likely]]
    return normal;
  // In the sum with the shifter the last place is worth the least denormal number.
  const auto shifter = scalef(all(T(1)), all(smallest_exponent) - exponent);
  const auto sum = shifter + head;
  const auto rest = head - (sum - shifter);
  const auto rest_distance = fma(abs(rest), all(std::numeric_limits<T>::epsilon()), distance);
  const auto upper = sum + (rest + (tail + rest_distance)), lower = sum + (rest + (tail - rest_distance));
  return {select(is_below, scalef(upper - shifter, exponent), normal.value),
          (is_below & eq(upper, lower)) | (normal.is_sure & ~is_below)};
}

template <class E> struct AbsKernel : Kernel<E, Real<E>> {
  using T = Real<E>;
  static constexpr bool second_is_shared = streams_fit_registers;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static LUM_INLINE Lanes<T> SecondPath(Packed<E> packed, const Lanes<T>& lanes) {
    const auto z = split(packed);
    const auto special = HasNonFinitePart(z) | (IsZero(z.re) & IsZero(z.im));
    auto value = lanes.value;
    auto refused = lanes.refused;
    if (const auto far = lanes.refused & ~special; any(far)) {
      const auto modulus = ModulusAsCore(z);
      value = select(far, modulus.value, value);
      refused = refused & ~(far & modulus.is_sure);
    }
    if (any(lanes.refused & special)) {
      const auto infinite = IsInfinite(z.re) | IsInfinite(z.im), nan = special & unord(z.re, z.im) & ~infinite;
      const auto unbounded = all(std::numeric_limits<T>::infinity());
      const auto of_special = select(infinite, unbounded, zero_unless(nan, z.re * z.im));
      const auto finished = lanes.refused & special & ~(nan & HasTwoNans(z));
      value = select(finished, of_special, value);
      refused = refused & ~finished;
    }
    return {value, refused};
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
    const auto [s, tail] = SquareOf(z);
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
