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
LUM_INLINE PathValue<HeadTail> DecimalOf(const LogarithmValue& value) {
  const HeadTail log10_e{all(numbers::log10_e<Lum64f>), all(numbers::log10_e_tail<Lum64f>)};
  const auto re = Product(value.modulus, log10_e), im = Product(value.angle, log10_e);
  const auto product_error = all(1.3125);
  return {re, im, fma(abs(re.head), product_error, value.modulus_error * log10_e.head),
          fma(abs(im.head), product_error, value.angle_error * log10_e.head), value.refused};
}

template <class Number> struct Log10Path {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    if constexpr (std::is_same_v<Number, OnePart>) return OfFloats(z);
    else return DecimalOf(LogarithmParts(z));
  }
  // The squares are exact, and so is that of the larger part less 1 next to the unit circle.
  static LUM_INLINE PathValue<OnePart> OfFloats(ComplexVec<Lum64f> z) {
    const auto ax = abs(z.re), ay = abs(z.im);
    const auto large = max(ax, ay), small = min(ax, ay), small2 = small * small;
    const auto less_one = fma(large, large, all(-1.0)) + small2;
    const auto twice_modulus = LogarithmInOnePart(fma(large, large, small2), all(0.0), less_one);
    const auto angle = XorSign(z.im, Angle(OnePart{ay}, OnePart{z.re}));
    const OnePart log10_e{all(numbers::log10_e<Lum64f>)};
    return ValueWithin(Scaled(Product(twice_modulus, log10_e), 0.5), Product(angle, log10_e), 0, HasFarPart(z));
  }
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
  return RunSilent<Log10Path<OnePart>, Log10Ends, CoreLog10>(src, dst, len);
}
LumStatus Log10_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<Log10Path<HeadTail>, Log10Ends, CoreLog10>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
