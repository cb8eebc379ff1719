// The decimal logarithm: ln |z| and arg z times log10 e.
#include "complex/core/log10_angles.h"
#include "complex/core_kernel.h"
#include "complex/logarithm_ends.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// The core's constant is a quarter of a unit off, and the product is rounded too.
LUM_INLINE PathValue DecimalOf(const LogarithmValue& value) {
  const HeadTail log10_e{all(numbers::log10_e<Lum64f>), all(numbers::log10_e_tail<Lum64f>)};
  const auto re = Product(value.modulus, log10_e), im = Product(value.angle, log10_e);
  const auto product_error = all(1.3125);
  return {re, im, fma(abs(re.head), product_error, value.modulus_error * log10_e.head),
          fma(abs(im.head), product_error, value.angle_error * log10_e.head), value.refused};
}

struct Log10Path {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) { return DecimalOf(LogarithmParts(z)); }
};

struct Log10Ends {
  static LUM_INLINE Mask<Lum64f> IsHard(ComplexVec<Lum64f> z) { return IsNextToCircle(z); }
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto scaled = LogarithmOfAny(z);
    const auto decimal = DecimalOf(scaled.value);
    return CoreValueOf(RoundedAtEnds(decimal.re, decimal.re_error, all(0.0)),
                       RoundedAtEnds(decimal.im, decimal.im_error, scaled.angle_exponent), ~decimal.refused);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z) | IsZero(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    return LogarithmOfSpecial(z, {quarter_pi_log10, half_pi_log10, three_quarters_pi_log10, pi_log10_at_infinity}, pi_log10);
  }
};

}  // namespace

LumStatus Log10_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<Log10Path, Log10Ends, CoreLog10>(src, dst, len);
}
LumStatus Log10_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<Log10Path, Log10Ends, CoreLog10>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
