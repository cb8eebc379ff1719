// Hyperbolic functions of one complex number, and the circular functions, which are the hyperbolic ones of i z. With z = x +
// iy:
//   cosh z = cosh x cos y + i sinh x sin y       sinh z = sinh x cos y + i cosh x sin y
//   tanh z = (sinh x cosh x + i sin y cos y) / (cos^2 y + sinh^2 x)
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER {
namespace {

// |x| at which e^x has long left the range of binary64, and at which tanh x has long been 1.
constexpr Lum64f far_exponent = 2048;
constexpr Lum64f far_tangent = 512;

template <void (*function)(Extended&, const Extended&)> Lum64f Rounded(Lum64f x) {
  Extended result;
  function(result, x);
  return static_cast<Lum64f>(result);
}

struct Parts {
  Extended sine, cosine;  // of the imaginary part
  Extended sinh, cosh;    // of the real part
};
Parts PartsOf(Lum64f x, Lum64f y) {
  Parts parts;
  ExtSinCos(y, parts.sine, parts.cosine);
  ExtSinhCosh(x, parts.sinh, parts.cosh);
  return parts;
}

// Sine and cosine of a finite number rounded to binary64: what is left of them where they only give signs and zeros. The sine
// of a denormal number is that number.
Lum64f RoundedSine(Lum64f y) { return IsBelowNormal(y) ? y : Rounded<ExtSin>(y); }
Lum64f RoundedCosine(Lum64f y) { return Rounded<ExtCos>(y); }

// A real part of a cosine is never denormal, which the end of the core makes use of.
void FinishCosh(ComplexDouble& result, Lum64f re, Lum64f im) {
  if (IsDenormal(im)) RaiseUnderflow<Lum64f>();
  result = {re, im};
}

// cosh and sinh of an infinite real part x, the imaginary part being finite and not zero: (cos y, sin y) at infinity. `even` is
// the square of x, which has lost its sign, and stands in cosh beside the cosine, in sinh beside the sine.
ComplexDouble AtInfinity(Lum64f for_cosine, Lum64f for_sine, Lum64f y) {
  if (Magnitude(y) < 1) return {for_cosine, for_sine * y};
  return {RoundedCosine(y) * for_cosine, RoundedSine(y) * for_sine};
}

// The imaginary part of tanh far out: a zero with the sign of sin y cos y.
Lum64f TanhZero(Lum64f y) {
  if (Magnitude(y) < 1) return WithSignOf(y, 0);
  Extended sine, cosine;
  ExtSinCos(y, sine, cosine);
  return WithSign((sine < 0) != (cosine < 0), 0);
}

void TanhOfFiniteNonZero(ComplexDouble& result, Lum64f x, Lum64f y) {
  if (!(Magnitude(x) < far_tangent)) {
    if (!IsZero(y)) RaiseUnderflow<Lum64f>();
    result = {Inexact(WithSignOf(x, 1)), TanhZero(y)};
    return;
  }
  const Parts p = PartsOf(x, y);
  const Extended denominator = p.cosine * p.cosine + p.sinh * p.sinh;
  Finish(result, static_cast<Lum64f>(p.sinh * p.cosh / denominator), static_cast<Lum64f>(p.sine * p.cosine / denominator));
}

void TanhOfInfinite(ComplexDouble& result, Lum64f x, Lum64f y) {
  const Lum64f re = WithSignOf(x, 1);
  if (IsNan(y)) {
    Discard(y * y);
    return Finish(result, re, 0);
  }
  Finish(result, re, IsInfinite(y) ? WithSignOf(y, 0) : TanhZero(y));
}

bool IsPositiveNan(Lum64f x) { return IsNan(x) && !IsNegative(x); }

// i z. The circular functions leave some NaNs as they are where the sign of a number is flipped: cosine and sine the positive
// ones, the tangent all.
template <bool (*is_kept)(Lum64f)> ComplexDouble TimesI(const ComplexDouble& z) {
  return {is_kept(z.im) ? z.im : Negated(z.im), z.re};
}
template <bool (*is_kept)(Lum64f)> ComplexDouble OverI(const ComplexDouble& z) {
  return {z.im, is_kept(z.re) ? z.re : Negated(z.re)};
}

}  // namespace

void CoreCosh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  const bool opposite_signs = IsNegative(x) != IsNegative(y);
  if (IsZero(y)) return FinishCosh(result, Rounded<ExtCosh>(x), IsNan(x) ? y : WithSign(opposite_signs, 0));
  if (!IsFinite(y)) {
    const Lum64f not_a_number = y - y;
    const Lum64f re = IsFinite(x) ? not_a_number : Rounded<ExtCosh>(x);
    const Lum64f im_of_zero = IsInfinite(y) ? WithSign(opposite_signs, 0) : Negated(x);
    return FinishCosh(result, re, IsZero(x) ? im_of_zero : not_a_number);
  }
  if (IsNan(x)) return FinishCosh(result, x * x, x * x);
  if (IsInfinite(x)) {
    const auto [re, im] = AtInfinity(x * x, x, y);
    return FinishCosh(result, re, im);
  }
  if (IsZero(x)) return FinishCosh(result, RoundedCosine(y), RoundedSine(y) * x);
  if (Magnitude(x) < far_exponent) {
    const Parts p = PartsOf(x, y);
    return FinishCosh(result, static_cast<Lum64f>(p.cosine * p.cosh), static_cast<Lum64f>(p.sine * p.sinh));
  }
  FinishCosh(result, RoundedCosine(y) * infinity, RoundedSine(y) * (infinity * x));
}

void CoreSinh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsZero(y)) return Finish(result, Rounded<ExtSinh>(x), y);
  if (!IsFinite(y)) {
    const Lum64f not_a_number = y - y;
    return Finish(result, IsFiniteNonZero(x) ? x * not_a_number : Rounded<ExtSinh>(x), not_a_number);
  }
  if (IsNan(x)) return Finish(result, x * x, x * x);
  if (IsInfinite(x)) {
    const auto [re, im] = AtInfinity(x, x * x, y);
    return Finish(result, re, im);
  }
  if (IsZero(x)) return Finish(result, RoundedCosine(y) * x, RoundedSine(y));
  if (Magnitude(x) < far_exponent) {
    const Parts p = PartsOf(x, y);
    return Finish(result, static_cast<Lum64f>(p.sinh * p.cosine), static_cast<Lum64f>(p.cosh * p.sine));
  }
  Finish(result, RoundedCosine(y) * infinity * x, RoundedSine(y) * infinity);
}

void CoreTanh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsNan(x)) {
    const Lum64f not_a_number = x * x;
    return Finish(result, not_a_number, IsZero(y) ? y : not_a_number);
  }
  if (IsInfinite(x)) return TanhOfInfinite(result, x, y);
  if (!IsFinite(y)) return Finish(result, y - y, y - y);
  if (IsZero(x)) return IsZero(y) ? Finish(result, x, y) : Finish(result, x, Rounded<ExtTan>(y));
  TanhOfFiniteNonZero(result, x, y);
}

void CoreCos(ComplexDouble& result, const ComplexDouble& z) { CoreCosh(result, TimesI<IsPositiveNan>(z)); }

void CoreSin(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreSinh(rotated, TimesI<IsPositiveNan>(z));
  result = OverI<IsPositiveNan>(rotated);
}

void CoreTan(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreTanh(rotated, TimesI<IsNan<Lum64f>>(z));
  result = OverI<IsNan<Lum64f>>(rotated);
}

}  // namespace lum::inline LUM_LAYER
