// What the second paths of the circular and hyperbolic functions share: factors of any numbers, each with a power of 2 that is
// put in at the end. The functions of a small number are the number.
#pragma once

#include "complex/core_second_path.h"
#include "complex/hyperbolic_factors.h"

namespace lum::inline LUM_LAYER::complex {

struct ScaledFactors {
  HeadTail sine, cosine, sinh, cosh;
  Vec<Lum64f> sine_exponent, sinh_exponent, cosh_exponent;
  Mask<Lum64f> is_known;
};
LUM_INLINE ScaledFactors FactorsOfAny(Vec<Lum64f> exponent, Vec<Lum64f> angle) {
  const auto raised_angle = Raised(angle), raised = Raised(exponent);
  const auto circular = SineCosineOfAny<HeadTail>(raised_angle.value);
  // Beyond this limit every product overflows. From the first multiple on, e^-x does not count.
  const auto x = min(abs(raised.value), all(1500.0));
  const auto k = max(rndscale<binary_places(0) | quiet>(fma(x, all(numbers::log2_e<Lum64f> / 512), all(-1.0))), all(0.0));
  const auto rest = TakePowersOfTwo(x, k);
  const auto hyperbolic = HyperbolicPairOf(exponent, rest.reduced);
  return {circular.sine,   circular.cosine,       hyperbolic.sinh,
          hyperbolic.cosh, raised_angle.exponent, rest.exponent + raised.exponent,
          rest.exponent,   ~circular.refused};
}
LUM_INLINE RoundedPart RoundedProduct(HeadTail a, HeadTail b, Vec<Lum64f> exponent) {
  const auto product = Product(a, b);
  return RoundedAtEnds(product, abs(product.head) * all(product_error), exponent);
}

// Special numbers of functions whose exponent and angle these are: an infinite exponent is as a large number.
LUM_INLINE Mask<Lum64f> IsSpecialPair(Vec<Lum64f> exponent, Vec<Lum64f> angle) {
  return unord(exponent, exponent) | IsNonFinite(angle);
}

}  // namespace lum::inline LUM_LAYER::complex
