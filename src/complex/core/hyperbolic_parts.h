// What the cores of the hyperbolic and circular functions share; the circular functions are the hyperbolic ones of i z.
#pragma once

#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex::core {

// |x| at which e^x has long left the range of binary64.
inline constexpr Lum64f far_exponent = 2048;

template <void (*function)(Extended&, const Extended&)> Lum64f Rounded(Lum64f x) {
  Extended result;
  function(result, x);
  return static_cast<Lum64f>(result);
}

struct Parts {
  Extended sine, cosine;  // of the imaginary part
  Extended sinh, cosh;    // of the real part
};
inline Parts PartsOf(Lum64f x, Lum64f y) {
  Parts parts;
  ExtSinCos(y, parts.sine, parts.cosine);
  ExtSinhCosh(x, parts.sinh, parts.cosh);
  return parts;
}

// Sine and cosine of a finite number rounded to binary64: what is left of them where they only give signs and zeros. The sine
// of a denormal number is that number.
inline Lum64f RoundedSine(Lum64f y) { return IsBelowNormal(y) ? y : Rounded<ExtSin>(y); }
inline Lum64f RoundedCosine(Lum64f y) { return Rounded<ExtCos>(y); }

// cosh and sinh of an infinite real part x, the imaginary part being finite and not zero: (cos y, sin y) at infinity. `even` is
// the square of x, which has lost its sign, and stands in cosh beside the cosine, in sinh beside the sine.
inline ComplexDouble AtInfinity(Lum64f for_cosine, Lum64f for_sine, Lum64f y) {
  if (Magnitude(y) < 1) return {for_cosine, for_sine * y};
  return {RoundedCosine(y) * for_cosine, RoundedSine(y) * for_sine};
}

inline bool IsPositiveNan(Lum64f x) { return IsNan(x) && !IsNegative(x); }

// i z. The circular functions leave some NaNs as they are where the sign of a number is flipped: cosine and sine the positive
// ones, the tangent all.
template <bool (*is_kept)(Lum64f)> ComplexDouble TimesI(const ComplexDouble& z) {
  return {is_kept(z.im) ? z.im : Negated(z.im), z.re};
}
template <bool (*is_kept)(Lum64f)> ComplexDouble OverI(const ComplexDouble& z) {
  return {z.im, is_kept(z.re) ? z.re : Negated(z.re)};
}

}  // namespace lum::inline LUM_LAYER::complex::core
