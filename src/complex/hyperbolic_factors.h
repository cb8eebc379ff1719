// What the paths of the circular and hyperbolic functions share: sine and cosine of one part, hyperbolic sine and cosine of the
// other, whose products they form as the cores do.
#pragma once

#include "complex/core_path.h"
#include "complex/pairs/circular.h"
#include "complex/pairs/exponential.h"

namespace lum::inline LUM_LAYER::complex {

template <class Number> struct Factors {
  Number sine, cosine, sinh, cosh;
  Mask<Lum64f> refused;
};
// Outside the domain of the functions whose exponent and angle these are.
template <class Number = HeadTail> LUM_INLINE Mask<Lum64f> IsFarPair(Vec<Lum64f> exponent, Vec<Lum64f> angle, double largest) {
  return IsFar(exponent, largest) | IsFar(angle, largest_angle_of<Number>);
}
template <class Number> LUM_INLINE Factors<Number> FactorsOf(Vec<Lum64f> exponent, Vec<Lum64f> angle, double largest) {
  const auto circular = SineCosineOf<Number>(angle);
  const auto hyperbolic = HyperbolicPair<Number>(exponent);
  const auto refused = circular.refused | IsFarPair<Number>(exponent, angle, largest);
  return {circular.sine, circular.cosine, hyperbolic.sinh, hyperbolic.cosh, refused};
}

// The factors of any numbers of binary32, in one part: beyond the limit all results are as they are there.
LUM_INLINE Factors<OnePart> FactorsInDouble(Vec<Lum64f> exponent, Vec<Lum64f> angle, double limit) {
  const auto circular = SineCosineOfAny<OnePart>(angle);
  const auto hyperbolic = HyperbolicPair<OnePart>(or_sign(exponent, min(abs(exponent), all(limit))));
  return {circular.sine, circular.cosine, hyperbolic.sinh, hyperbolic.cosh, circular.refused};
}
// Every product with an exponential of this number overflows, or vanishes.
constexpr double beyond_binary32 = 250;

// A product of two factors that are right to 0.56 units in the last place of Extended, rounded; and one of the pairs to 2^-64.
constexpr double product_error = 4.3125;

}  // namespace lum::inline LUM_LAYER::complex
