// tanh z = (sinh x cosh x + i sin y cos y) / (cos^2 y + sinh^2 x) of z = x + iy, and tan z = -i tanh iz.
#include "complex/core/hyperbolic_parts.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// |x| at which tanh x has long been 1.
constexpr Lum64f far_tangent = 512;

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
  const core::Parts p = core::PartsOf(x, y);
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

}  // namespace

void CoreTanh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsNan(x)) {
    const Lum64f not_a_number = x * x;
    return Finish(result, not_a_number, IsZero(y) ? y : not_a_number);
  }
  if (IsInfinite(x)) return TanhOfInfinite(result, x, y);
  if (!IsFinite(y)) return Finish(result, Difference(y, y), Difference(y, y));
  if (IsZero(x)) return IsZero(y) ? Finish(result, x, y) : Finish(result, x, core::Rounded<ExtTan>(y));
  TanhOfFiniteNonZero(result, x, y);
}

void CoreTan(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreTanh(rotated, core::TimesI<IsNan<Lum64f>>(z));
  result = core::OverI<IsNan<Lum64f>>(rotated);
}

}  // namespace lum::inline LUM_LAYER::complex
