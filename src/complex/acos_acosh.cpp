// arccos z, and arcosh z, which is i arccos z or -i arccos z: one angle and one logarithm in either part.
#include "complex/arc_ends.h"
#include "complex/core_kernel.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

template <class Number> LUM_INLINE Number Reflected(Vec<Lum64f> x, Number angle) {
  auto pi = NumberOf<Number>(all(numbers::pi<Lum64f>));
  if constexpr (requires { pi.tail; }) pi.tail = all(numbers::pi_tail<Lum64f>);
  return Select(lt(x, all(0.0)), Add(pi, -angle), angle);
}
// The parts of arccos z for |im z|.
template <class Number> LUM_INLINE AngleAndLogarithm<Number> ArccosineParts(ComplexVec<Lum64f> z) {
  const auto parts = InverseParts<Arc::cosine, Number>(abs(z.re), abs(z.im));
  return {Reflected(z.re, parts.angle), parts.logarithm};
}
template <class Number> LUM_INLINE Vec<Lum64f> AngleError(Vec<Lum64f> x, Number angle) {
  return angle.head * select(lt(x, all(0.0)), all(mirrored_angle_error), all(angle_error<Arc::cosine>));
}
LUM_INLINE ScaledArcParts ArccosinePartsOfAny(ComplexVec<Lum64f> z) {
  auto scaled = InversePartsOfAny<Arc::cosine>(abs(z.re), abs(z.im));
  scaled.parts.angle = Reflected(z.re, scaled.parts.angle);
  scaled.angle_exponent = zero_unless(~lt(z.re, all(0.0)), scaled.angle_exponent);
  return scaled;
}

template <class Number> struct AcosPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return {all(numbers::pi<Lum64f> / 2), negate(z.im)}; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto parts = ArccosineParts<Number>(z);
    return {parts.angle, -XorSign(z.im, parts.logarithm), AngleError(z.re, parts.angle), ArcLogarithmError(parts.logarithm),
            IsOutside(z)};
  }
};
struct AcosEnds {
  static constexpr bool no_float_is_far = true;
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto scaled = ArccosinePartsOfAny(z);
    const auto& [angle, logarithm] = scaled.parts;
    return CoreValueOf(RoundedAtEnds(angle, AngleError(z.re, angle), scaled.angle_exponent),
                       RoundedAtEnds(-XorSign(z.im, logarithm), ArcLogarithmError(logarithm), scaled.logarithm_exponent),
                       scaled.is_known);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im, nan = x * y, unbounded = all(infinity);
    const auto is_nan = unord(x, y), infinite = IsInfinite(x) | IsInfinite(y), of_zero = IsZero(x) & unord(y, y);
    const auto beside_nan = select(IsInfinite(x), unbounded, negate(or_sign(y, unbounded)));
    const auto re = select(is_nan & ~of_zero, nan, abs(AngleOfInfinite(z)));
    const auto im = select(of_zero, negate(y + y), select(infinite, beside_nan, nan));
    return {re, select(is_nan, im, negate(or_sign(y, unbounded)))};
  }
};

template <class Number> struct AcoshPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) {
    return {all(0.0), or_sign(z.im, all(numbers::pi<Lum64f> / 2))};
  }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto parts = ArccosineParts<Number>(z);
    return {parts.logarithm, XorSign(z.im, parts.angle), ArcLogarithmError(parts.logarithm), AngleError(z.re, parts.angle),
            IsOutside(z)};
  }
};
struct AcoshEnds {
  static constexpr bool no_float_is_far = true;
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto scaled = ArccosinePartsOfAny(z);
    const auto& [angle, logarithm] = scaled.parts;
    return CoreValueOf(RoundedAtEnds(logarithm, ArcLogarithmError(logarithm), scaled.logarithm_exponent),
                       RoundedAtEnds(XorSign(z.im, angle), AngleError(z.re, angle), scaled.angle_exponent), scaled.is_known);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto nan = z.re * z.im;
    return {select(IsInfinite(z.re) | IsInfinite(z.im), all(infinity), nan),
            select(unord(z.re, z.im), nan, AngleOfInfinite(z))};
  }
};

}  // namespace

LumStatus Acos_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<AcosPath<OnePart>, AcosEnds, CoreAcos>(src, dst, len);
}
LumStatus Acos_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<AcosPath<HeadTail>, AcosEnds, CoreAcos>(src, dst, len);
}
LumStatus Acosh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<AcoshPath<OnePart>, AcoshEnds, CoreAcosh>(src, dst, len);
}
LumStatus Acosh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<AcoshPath<HeadTail>, AcoshEnds, CoreAcosh>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
