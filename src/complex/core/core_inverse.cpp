// Inverse circular and hyperbolic functions of one complex number, after Hull, Fairgrieve and Tang: with r and s the distances
// of z to -1 and 1, half their sum is the hyperbolic cosine of one part of arccos z, and half their difference the cosine of
// the other.
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER {
namespace {

constexpr Lum64f quarter_pi = 0x1.921fb54442d18p-1;
constexpr Lum64f half_pi = 0x1.921fb54442d18p+0;
constexpr Lum64f three_quarters_pi = 0x1.2d97c7f3321d2p+1;
constexpr Lum64f pi = 0x1.921fb54442d18p+1;
constexpr Extended pi_extended = 0xc90fdaa22168c235p-62L;

template <void (*function)(Extended&, const Extended&)> Extended Of(Extended x) {
  Extended result;
  function(result, x);
  return result;
}
template <void (*function)(Extended&, const Extended&)> Lum64f Rounded(Extended x) {
  return static_cast<Lum64f>(Of<function>(x));
}
Extended Angle(Extended y, Extended x) {
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

// arccos of a number in the right half plane from that of its mirror image, rounded.
Lum64f MirroredAngle(Lum64f x, Extended angle) { return static_cast<Lum64f>(IsNegative(x) ? pi_extended - angle : angle); }

// The angles of the directions of infinity, by the signs and classes of the parts.
Lum64f AngleOfInfinite(Lum64f x, Lum64f y) {
  if (IsFinite(x)) return Inexact(half_pi);
  if (IsInfinite(y)) return Inexact(IsNegative(x) ? three_quarters_pi : quarter_pi);
  return IsNegative(x) ? Inexact(pi) : 0;
}

bool IsBelowOne(Lum64f x) { return Magnitude(x) < 1; }

// The real part of arctanh, of finite parts of which x is not zero: a logarithm of the ratio of the distances to -1 and 1, or
// where the ratio is near 1, that ratio as an inverse hyperbolic tangent.
Extended AtanhRealPart(Extended x, Extended y) {
  const Extended p = (1 + x) * (1 + x) + y * y;
  const Extended q = (x - 1) * (x - 1) + y * y;
  const Extended difference = p - q;
  if (difference > 0.03L * q || -difference > 0.03L * q) return Of<ExtLog>(p / q) / 4;
  return Of<ExtAtanh>(2 * x / (x * x + y * y + 1)) / 2;
}

// Twice the imaginary part is the angle of (1 + z)(1 - conj z); near the unit circle its real part cancels.
Extended AtanhImaginaryPart(Extended x, Extended y) {
  const Extended t = 1 - x * x - y * y;
  if (t >= 0.03L || t <= -0.03L) return Angle(2 * y, t) / 2;
  return (Angle(y, 1 + x) - Angle(-y, 1 - x)) / 2;
}

void AtanhOfFinite(ComplexDouble& result, Lum64f x, Lum64f y) {
  if (IsDenormal(x)) Discard(x + 0.5);
  if (IsDenormal(y)) Discard(y + 0.5);
  if (IsZero(x)) return Finish(result, x, Rounded<ExtAtan>(y));
  if (IsZero(y) && Magnitude(x) <= 1) return Finish(result, Rounded<ExtAtanh>(x), y);
  const auto re = static_cast<Lum64f>(AtanhRealPart(x, y));
  const Lum64f im = IsZero(y) ? WithSignOf(y, Inexact(half_pi)) : static_cast<Lum64f>(AtanhImaginaryPart(x, y));
  Finish(result, re, im);
}

// i z and z / i, a NaN that would be negated being left alone.
ComplexDouble TimesI(const ComplexDouble& z) { return {IsNan(z.im) ? z.im : Negated(z.im), z.re}; }
ComplexDouble OverI(const ComplexDouble& z) { return {z.im, IsNan(z.re) ? z.re : Negated(z.re)}; }

}  // namespace

void CoreAcos(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  const bool goes_up = IsNegative(y);  // the imaginary part has the sign opposite to y
  if (IsZero(x)) return Finish(result, Inexact(half_pi), Negated(Rounded<ExtAsinh>(y)));
  if (IsNan(x) || IsNan(y)) {
    const Lum64f not_a_number = x * y;
    if (IsInfinite(y)) return Finish(result, not_a_number, WithSign(!goes_up, infinity));
    return Finish(result, not_a_number, IsInfinite(x) ? infinity : not_a_number);
  }
  if (IsZero(y)) {
    if (IsBelowOne(x)) return Finish(result, Rounded<ExtAcos>(x), Negated(y));
    return Finish(result, IsNegative(x) ? Inexact(pi) : 0, WithSign(!goes_up, Rounded<ExtAcosh>(Magnitude(x))));
  }
  if (IsInfinite(x) || IsInfinite(y)) return Finish(result, AngleOfInfinite(x, y), WithSign(!goes_up, infinity));
  const auto [angle, logarithm] = InverseParts<Arc::cosine>(Magnitude(x), Magnitude(y));
  Finish(result, MirroredAngle(x, angle), WithSign(!goes_up, static_cast<Lum64f>(logarithm)));
}

void CoreAcosh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsNan(x) || IsNan(y)) {
    const Lum64f not_a_number = x * y;
    return Finish(result, IsInfinite(x) || IsInfinite(y) ? infinity : not_a_number, not_a_number);
  }
  if (IsZero(y)) {
    if (IsBelowOne(x)) return Finish(result, 0, WithSignOf(y, Rounded<ExtAcos>(x)));
    return Finish(result, Rounded<ExtAcosh>(Magnitude(x)), WithSignOf(y, IsNegative(x) ? Inexact(pi) : 0));
  }
  if (IsZero(x)) return Finish(result, Rounded<ExtAsinh>(Magnitude(y)), static_cast<Lum64f>(Angle(y, x)));
  if (IsInfinite(x) || IsInfinite(y)) return Finish(result, infinity, WithSignOf(y, AngleOfInfinite(x, y)));
  const auto [angle, logarithm] = InverseParts<Arc::cosine>(Magnitude(x), Magnitude(y));
  Finish(result, static_cast<Lum64f>(logarithm), WithSignOf(y, MirroredAngle(x, angle)));
}

void CoreAsinh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsZero(y)) return Finish(result, Rounded<ExtAsinh>(x), y);
  if (IsNan(x) || IsNan(y)) {
    const Lum64f not_a_number = x * y;
    const Lum64f re = IsInfinite(x) ? x : IsInfinite(y) ? infinity : not_a_number;
    return Finish(result, re, not_a_number);
  }
  if (IsInfinite(x)) return Finish(result, x, WithSignOf(y, IsInfinite(y) ? Inexact(quarter_pi) : 0));
  if (IsZero(x)) {
    if (IsBelowOne(y)) return Finish(result, x, Rounded<ExtAsin>(y));
    return Finish(result, WithSignOf(x, Rounded<ExtAcosh>(Magnitude(y))), WithSignOf(y, Inexact(half_pi)));
  }
  if (IsInfinite(y)) return Finish(result, WithSignOf(x, infinity), WithSignOf(y, Inexact(half_pi)));
  const auto [angle, logarithm] = InverseParts<Arc::sine>(Magnitude(y), Magnitude(x));
  Finish(result, WithSignOf(x, static_cast<Lum64f>(logarithm)), WithSignOf(y, static_cast<Lum64f>(angle)));
}

void CoreAtanh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsFinite(x) && IsFinite(y)) return AtanhOfFinite(result, x, y);
  if (IsZero(x)) return Finish(result, x, Rounded<ExtAtan>(y));
  if (IsNan(x)) {
    if (IsInfinite(y)) return Finish(result, 0, WithSignOf(y, Inexact(half_pi)));
    return Finish(result, x * y, x * y);
  }
  if (IsNan(y)) return IsInfinite(x) ? Finish(result, WithSignOf(x, 0), y * y) : Finish(result, y * y, y * y);
  Finish(result, WithSignOf(x, 0), WithSignOf(y, Inexact(half_pi)));
}

void CoreAsin(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreAsinh(rotated, TimesI(z));
  result = OverI(rotated);
}

void CoreAtan(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreAtanh(rotated, TimesI(z));
  result = OverI(rotated);
}

}  // namespace lum::inline LUM_LAYER
