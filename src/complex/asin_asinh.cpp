// arcsin z, and arsinh z = -i arcsin iz.
#include "complex/arc_parts.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

// The parts of arcsin z and, the sides exchanged, of arcsinh z.
LUM_INLINE AngleAndLogarithm ArcsineParts(Vec<Lum64f> angle_side, Vec<Lum64f> other) {
  const auto parts = InverseParts<Arc::sine>(abs(angle_side), abs(other));
  return {XorSign(angle_side, parts.angle), XorSign(other, parts.logarithm)};
}
struct AsinPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArcsineParts(z.re, z.im);
    return ValueWithin(parts.angle, parts.logarithm, inverse_error, IsRefused(z));
  }
};

struct AsinhPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArcsineParts(z.im, z.re);
    return ValueWithin(parts.logarithm, parts.angle, inverse_error, IsRefused(z));
  }
};

}  // namespace

LumStatus Asin_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<AsinPath, CoreAsin>(src, dst, len); }
LumStatus Asin_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<AsinPath, CoreAsin>(src, dst, len); }
LumStatus Asinh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<AsinhPath, CoreAsinh>(src, dst, len); }
LumStatus Asinh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<AsinhPath, CoreAsinh>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
