// arccos z, and arcosh z, which is i arccos z or -i arccos z: one angle and one logarithm in either part.
#include "complex/arc_parts.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

// The parts of arccos z for |im z|.
LUM_INLINE AngleAndLogarithm ArccosineParts(ComplexVec<Lum64f> z) {
  const auto parts = InverseParts<Arc::cosine>(abs(z.re), abs(z.im));
  const HeadTail pi{all(numbers::pi<Lum64f>), all(numbers::pi_tail<Lum64f>)};
  return {Select(lt(z.re, all(0.0)), Add(pi, -parts.angle), parts.angle), parts.logarithm};
}
struct AcosPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArccosineParts(z);
    return ValueWithin(parts.angle, -XorSign(z.im, parts.logarithm), inverse_error, IsRefused(z));
  }
};

struct AcoshPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArccosineParts(z);
    return ValueWithin(parts.logarithm, XorSign(z.im, parts.angle), inverse_error, IsRefused(z));
  }
};

}  // namespace

LumStatus Acos_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<AcosPath, CoreAcos>(src, dst, len); }
LumStatus Acos_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<AcosPath, CoreAcos>(src, dst, len); }
LumStatus Acosh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<AcoshPath, CoreAcosh>(src, dst, len); }
LumStatus Acosh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<AcoshPath, CoreAcosh>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
