// sinh(x + iy) = sinh x cos y + i cosh x sin y, and sin z = -i sinh iz.
#include "complex/circular_of_hyperbolic.h"
#include "complex/core_kernel.h"
#include "complex/hyperbolic_ends.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

template <class Number> struct SinhPath {
  static constexpr bool has_many_constants = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return IsFarPair(z.re, z.im, largest_exponent); }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf<Number>(z.re, z.im, largest_exponent);
    return ValueWithin(Product(f.sinh, f.cosine), Product(f.cosh, f.sine), product_error, f.refused);
  }
};

template <class Number> struct SinPath {
  static constexpr bool has_many_constants = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return IsFarPair(z.im, z.re, largest_exponent); }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf<Number>(z.im, z.re, largest_exponent);
    return ValueWithin(Product(f.cosh, f.sine), Product(f.sinh, f.cosine), product_error, f.refused);
  }
};

struct SinhEnds {
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto f = FactorsOfAny(z.re, z.im);
    return CoreValueOf(RoundedProduct(f.sinh, f.cosine, f.sinh_exponent),
                       RoundedProduct(f.cosh, f.sine, f.cosh_exponent + f.sine_exponent), f.is_known);
  }
  static LUM_INLINE CoreValue InDouble(ComplexVec<Lum64f> z) {
    const auto f = FactorsInDouble(z.re, z.im, beyond_binary32);
    return ValueOfParts(Product(f.sinh, f.cosine), Product(f.cosh, f.sine), f.refused);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return IsSpecialPair(z.re, z.im); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im, twice = x + x, nan = y - y;
    const auto beside_finite = select(IsZero(y), y, twice);
    return {select(IsNonFinite(x) | IsZero(x), twice, nan), select(IsNonFinite(y), nan, beside_finite)};
  }
};

using SinEnds = CircularEnds<SinhEnds, KeptNans::positive>;

}  // namespace

LumStatus Sin_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunReporting<SinPath<OnePart>, SinEnds, CoreSin>(src, dst, len);
}
LumStatus Sin_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunReporting<SinPath<HeadTail>, SinEnds, CoreSin>(src, dst, len);
}
LumStatus Sinh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunReporting<SinhPath<OnePart>, SinhEnds, CoreSinh>(src, dst, len);
}
LumStatus Sinh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunReporting<SinhPath<HeadTail>, SinhEnds, CoreSinh>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
