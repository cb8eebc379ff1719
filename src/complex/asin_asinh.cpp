// arcsin z, and arsinh z = -i arcsin iz.
#include "complex/arc_ends.h"
#include "complex/circular_of_hyperbolic.h"
#include "complex/core_kernel.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// The parts of arcsin z and, the sides exchanged, of arcsinh z.
template <class Number> LUM_INLINE AngleAndLogarithm<Number> ArcsineParts(Vec<Lum64f> angle_side, Vec<Lum64f> other) {
  const auto parts = InverseParts<Arc::sine, Number>(abs(angle_side), abs(other));
  return {XorSign(angle_side, parts.angle), XorSign(other, parts.logarithm)};
}
template <class Number> LUM_INLINE Vec<Lum64f> AngleError(const AngleAndLogarithm<Number>& parts) {
  return abs(parts.angle.head) * all(angle_error<Arc::sine>);
}

template <class Number> struct AsinPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return z; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto parts = ArcsineParts<Number>(z.re, z.im);
    return {parts.angle, parts.logarithm, AngleError(parts), ArcLogarithmError(parts.logarithm), IsOutside(z)};
  }
};

template <class Number> struct AsinhPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return z; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto parts = ArcsineParts<Number>(z.im, z.re);
    return {parts.logarithm, parts.angle, ArcLogarithmError(parts.logarithm), AngleError(parts), IsOutside(z)};
  }
};

struct AsinhEnds {
  static constexpr bool no_float_is_far = true;
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto scaled = InversePartsOfAny<Arc::sine>(abs(z.im), abs(z.re));
    const AngleAndLogarithm<HeadTail> parts{XorSign(z.im, scaled.parts.angle), XorSign(z.re, scaled.parts.logarithm)};
    return CoreValueOf(RoundedAtEnds(parts.logarithm, ArcLogarithmError(parts.logarithm), scaled.logarithm_exponent),
                       RoundedAtEnds(parts.angle, AngleError(parts), scaled.angle_exponent), scaled.is_known);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im, nan = x * y, unbounded = all(infinity);
    const auto is_nan = unord(x, y), x_infinite = IsInfinite(x);
    const auto beside_nan = select(x_infinite, x, select(IsInfinite(y), unbounded, nan));
    constexpr auto half_pi = numbers::pi<Lum64f> / 2;
    const auto angle = select(x_infinite, select(IsInfinite(y), all(half_pi / 2), all(0.0)), all(half_pi));
    return {select(is_nan, beside_nan, or_sign(x, unbounded)), select(IsZero(y), y, select(is_nan, nan, or_sign(y, angle)))};
  }
};

using AsinEnds = CircularEnds<AsinhEnds, KeptNans::all>;

}  // namespace

LumStatus Asin_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<AsinPath<OnePart>, AsinEnds, CoreAsin>(src, dst, len);
}
LumStatus Asin_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<AsinPath<HeadTail>, AsinEnds, CoreAsin>(src, dst, len);
}
LumStatus Asinh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<AsinhPath<OnePart>, AsinhEnds, CoreAsinh>(src, dst, len);
}
LumStatus Asinh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<AsinhPath<HeadTail>, AsinhEnds, CoreAsinh>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
