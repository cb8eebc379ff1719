// cosh(x + iy) = cosh x cos y + i sinh x sin y, and cos z = cosh iz.
#include "complex/hyperbolic_factors.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

struct CoshPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.re, z.im, largest_exponent);
    return ValueWithin(Product(f.cosh, f.cosine), Product(f.sinh, f.sine), product_error, f.refused);
  }
};

struct CosPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.im, z.re, largest_exponent);
    return ValueWithin(Product(f.cosh, f.cosine), -Product(f.sinh, f.sine), product_error, f.refused);
  }
};

}  // namespace

LumStatus Cos_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunReporting<CosPath, CoreCos>(src, dst, len); }
LumStatus Cos_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunReporting<CosPath, CoreCos>(src, dst, len); }
LumStatus Cosh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunReporting<CoshPath, CoreCosh>(src, dst, len); }
LumStatus Cosh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunReporting<CoshPath, CoreCosh>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
