// The second path of e^z: what the core has for infinite and NaN parts, and for numbers whose results lie at the ends of the
// range.
#pragma once

#include "complex/core_second_path.h"
#include "complex/hyperbolic_factors.h"

namespace lum::inline LUM_LAYER::complex {

struct ExpEnds {
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    // Beyond these limits every result overflows, or vanishes.
    const auto x = min(max(z.re, all(-1500.0)), all(1500.0));
    const auto e = TakePowersOfTwo(x);
    const auto power = ExponentialOf(e.reduced);
    // The sine of a number so small is the number.
    const auto angle = Raised(z.im);
    const auto circular = SineCosineOfAny<HeadTail>(angle.value);
    const auto re = Product(power, circular.cosine), im = Product(power, circular.sine);
    return CoreValueOf(RoundedAtEnds(re, abs(re.head) * all(product_error), e.exponent),
                       RoundedAtEnds(im, abs(im.head) * all(product_error), e.exponent + angle.exponent), ~circular.refused);
  }
  static LUM_INLINE CoreValue InDouble(ComplexVec<Lum64f> z) {
    const auto power = Exponential<OnePart>(max(min(z.re, all(beyond_binary32)), all(-beyond_binary32)));
    const auto circular = SineCosineOfAny<OnePart>(z.im);
    return ValueOfParts(Product(power, circular.cosine), Product(power, circular.sine), circular.refused);
  }
  // Beside a finite imaginary part an infinite real one is as a large number.
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return unord(z.re, z.re) | IsNonFinite(z.im); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im;
    const auto is_nan = unord(x, x), infinite = IsInfinite(x), vanishes = infinite & IsNegative(x);
    const auto nan = select(is_nan, x, all(-0.0)) * y;
    const auto zero = zero_unless(IsInfinite(y), or_sign(y, all(0.0)));
    return {select(infinite, zero_unless(~vanishes, x), nan), select(vanishes, zero, select(is_nan & IsZero(y), y, nan))};
  }
};

}  // namespace lum::inline LUM_LAYER::complex
