// What the cores of the inverse circular and hyperbolic functions share, after Hull, Fairgrieve and Tang: with r and s the
// distances of z to -1 and 1, half their sum is the hyperbolic cosine of one part of arccos z, and half their difference the
// cosine of the other.
#pragma once

#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex::core {

inline constexpr Lum64f quarter_pi = 0x1.921fb54442d18p-1;
inline constexpr Lum64f half_pi = 0x1.921fb54442d18p+0;
inline constexpr Lum64f three_quarters_pi = 0x1.2d97c7f3321d2p+1;
inline constexpr Lum64f pi = 0x1.921fb54442d18p+1;
inline constexpr Extended pi_extended = 0xc90fdaa22168c235p-62L;

template <void (*function)(Extended&, const Extended&)> Extended Of(Extended x) {
  Extended result;
  function(result, x);
  return result;
}
template <void (*function)(Extended&, const Extended&)> Lum64f Rounded(Extended x) {
  return static_cast<Lum64f>(Of<function>(x));
}
inline Extended Angle(Extended y, Extended x) {
  Extended angle;
  ExtAtan2(angle, y, x);
  return angle;
}

enum class Arc { cosine, sine };

// The parts of arccos(u + iv), or of arcsin with the angle's complement, for u, v > 0.
struct AngleAndLogarithm {
  Extended angle, logarithm;
};

template <Arc arc> AngleAndLogarithm InverseParts(Extended u, Extended v) {
  // From this ratio of the cosine on, the arc function of the ratio loses digits and the angle is taken from both its sides.
  constexpr Extended crossover = arc == Arc::cosine ? 0xa4467381d7dbf488p-64L : 0xe666666666666666p-64L;
  const Extended a = u - 1;
  const Extended b = u + 1;
  const Extended square = v * v;
  const Extended r = Of<ExtSqrt>(b * b + square);
  const Extended s = Of<ExtSqrt>(a * a + square);
  const Extended mean = (r + s) / 2;
  const Extended gap = s - a;

  AngleAndLogarithm result;
  if (arc == Arc::cosine ? u < crossover * mean : u <= crossover * mean) {
    result.angle = arc == Arc::cosine ? Of<ExtAcos>(u / mean) : Of<ExtAsin>(u / mean);
  } else {
    const Extended sum = u + mean;
    const Extended side =
        u <= 1 ? Of<ExtSqrt>(sum / 2 * (gap + square / (r + b))) : Of<ExtSqrt>((sum / (r + b) + sum / (s + a)) / 2) * v;
    result.angle = arc == Arc::cosine ? Angle(side, u) : Angle(u, side);
  }
  if (mean <= 1.5L) {
    const Extended excess = (square / (r + b) + (u < 1 ? square / gap : a + s)) / 2;
    result.logarithm = Of<ExtLog1p>(excess + Of<ExtSqrt>(excess * (mean + 1)));
  } else {
    result.logarithm = Of<ExtLog>(mean + Of<ExtSqrt>(mean * mean - 1));
  }
  return result;
}

inline bool IsBelowOne(Lum64f x) { return Magnitude(x) < 1; }

// i z and z / i, a NaN that would be negated being left alone.
inline ComplexDouble TimesI(const ComplexDouble& z) { return {IsNan(z.im) ? z.im : Negated(z.im), z.re}; }
inline ComplexDouble OverI(const ComplexDouble& z) { return {z.im, IsNan(z.re) ? z.re : Negated(z.re)}; }

}  // namespace lum::inline LUM_LAYER::complex::core
