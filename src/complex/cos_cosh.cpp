// cosh(x + iy) = cosh x cos y + i sinh x sin y, and cos z = cosh iz.
#include "complex/core_kernel.h"
#include "complex/hyperbolic_ends.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

template <class Number> struct CoshPath {
  static constexpr bool has_many_constants = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return IsFarPair(z.re, z.im, largest_exponent); }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf<Number>(z.re, z.im, largest_exponent);
    return ValueWithin(Product(f.cosh, f.cosine), Product(f.sinh, f.sine), product_error, f.refused);
  }
};

template <class Number> struct CosPath {
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return IsFarPair(z.im, z.re, largest_exponent); }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf<Number>(z.im, z.re, largest_exponent);
    return ValueWithin(Product(f.cosh, f.cosine), -Product(f.sinh, f.sine), product_error, f.refused);
  }
};

struct CoshEnds {
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto f = FactorsOfAny(z.re, z.im);
    return CoreValueOf(RoundedProduct(f.cosh, f.cosine, f.cosh_exponent),
                       RoundedProduct(f.sinh, f.sine, f.sinh_exponent + f.sine_exponent), f.is_known);
  }
  static LUM_INLINE CoreValue InDouble(ComplexVec<Lum64f> z) {
    const auto f = FactorsInDouble(z.re, z.im, beyond_binary32);
    return ValueOfParts(Product(f.cosh, f.cosine), Product(f.sinh, f.sine), f.refused);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return IsSpecialPair(z.re, z.im); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im, twice = x + x, nan = y - y;
    const auto y_finite = ~IsNonFinite(y), x_finite = ~IsNonFinite(x);
    const auto re = select(y_finite & ~IsZero(y), twice, abs(twice));
    const auto beside_zero = select(IsInfinite(y), xor_sign(y, x), negate(x));
    const auto beside_finite = select(IsZero(y), y, twice);
    return {select(x_finite, nan, re), select(y_finite, beside_finite, select(IsZero(x), beside_zero, nan))};
  }
};

struct CosEnds {
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) { return CoshEnds::OfFar({negate(z.im), z.re}); }
  static LUM_INLINE CoreValue InDouble(ComplexVec<Lum64f> z) { return CoshEnds::InDouble({negate(z.im), z.re}); }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return IsSpecialPair(z.im, z.re); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    return CoshEnds::OfSpecial(TimesI<KeptNans::positive>(z));
  }
};

}  // namespace

LumStatus Cos_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunReporting<CosPath<OnePart>, CosEnds, CoreCos>(src, dst, len);
}
LumStatus Cos_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunReporting<CosPath<HeadTail>, CosEnds, CoreCos>(src, dst, len);
}
LumStatus Cosh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunReporting<CoshPath<OnePart>, CoshEnds, CoreCosh>(src, dst, len);
}
LumStatus Cosh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunReporting<CoshPath<HeadTail>, CoshEnds, CoreCosh>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
