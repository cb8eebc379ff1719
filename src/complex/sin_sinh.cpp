// sinh(x + iy) = sinh x cos y + i cosh x sin y, and sin z = -i sinh iz.
#include "complex/hyperbolic_factors.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

struct SinhPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.re, z.im, largest_exponent);
    return ValueWithin(Product(f.sinh, f.cosine), Product(f.cosh, f.sine), product_error, f.refused);
  }
};

struct SinPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.im, z.re, largest_exponent);
    return ValueWithin(Product(f.cosh, f.sine), Product(f.sinh, f.cosine), product_error, f.refused);
  }
};

}  // namespace

LumStatus Sin_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunReporting<SinPath, CoreSin>(src, dst, len); }
LumStatus Sin_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunReporting<SinPath, CoreSin>(src, dst, len); }
LumStatus Sinh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunReporting<SinhPath, CoreSinh>(src, dst, len); }
LumStatus Sinh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunReporting<SinhPath, CoreSinh>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
