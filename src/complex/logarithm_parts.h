// ln |z| and arg z as pairs, for the paths of Log10 and of the powers.
#pragma once

#include "complex/core_path.h"
#include "complex/pairs/angle.h"
#include "complex/pairs/logarithm.h"

namespace lum::inline LUM_LAYER::complex {

// ln |z| and arg z, and how far the core's parts may be from them in units of 2^-64.
struct LogarithmValue {
  HeadTail modulus, angle;
  Vec<Lum64f> modulus_error, angle_error;
  Mask<Lum64f> refused;
};
// What the core and the pair may be off, in units of 2^-64. Its functions are right to half a last place and little more, 1.125
// units; a pair has 0.0625. Off the circle the core's square is right to two units and the logarithm to half of that. Near it,
// the difference from 1 is a sum of four numbers: three units, unless it is exact.
inline constexpr double function_error = 1.1875;
LUM_INLINE Vec<Lum64f> ModulusError(Vec<Lum64f> magnitude, Mask<Lum64f> is_off) {
  return select(is_off, fma(magnitude, all(function_error), all(1.0625)), magnitude * all(3.0625 + function_error));
}
// Where the logarithm is as small as here it has lost bits: the square was right to 2^-105.
LUM_INLINE Mask<Lum64f> IsNextToCircle(Vec<Lum64f> magnitude) { return nle(all(0x1p-36), magnitude); }

LUM_INLINE LogarithmValue LogarithmParts(ComplexVec<Lum64f> z) {
  const auto ax = abs(z.re), ay = abs(z.im);
  const auto square = Add(two_product(ax, ax), two_product(ay, ay));
  const auto modulus = Scaled(Logarithm(square), 0.5);
  const auto angle = Angle({ay, all(0.0)}, {z.re, all(0.0)});
  const auto magnitude = abs(modulus.head);
  const auto error = ModulusError(magnitude, nle(abs(square.head - all(1.0)), all(0.0299)));
  const auto refused = HasFarPart(z) | IsNextToCircle(magnitude);
  return {modulus, XorSign(z.im, angle), error, angle.head * all(function_error), refused};
}

}  // namespace lum::inline LUM_LAYER::complex
