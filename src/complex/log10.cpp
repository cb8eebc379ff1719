// The decimal logarithm: ln |z| and arg z times log10 e.
#include "complex/logarithm_parts.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

struct Log10Path {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const HeadTail log10_e{all(numbers::log10_e<Lum64f>), all(numbers::log10_e_tail<Lum64f>)};
    const auto value = LogarithmParts(z);
    const auto re = Product(value.modulus, log10_e), im = Product(value.angle, log10_e);
    // The constant and the product are rounded too.
    return {re, im, fma(abs(re.head), all(2.5), value.modulus_error * log10_e.head), abs(im.head) * all(4.5), value.refused};
  }
};

}  // namespace

LumStatus Log10_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<Log10Path, CoreLog10>(src, dst, len); }
LumStatus Log10_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<Log10Path, CoreLog10>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
