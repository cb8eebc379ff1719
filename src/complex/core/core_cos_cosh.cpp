// cosh z = cosh x cos y + i sinh x sin y of z = x + iy, and cos z = cosh iz.
#include "complex/core/hyperbolic_parts.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// A real part of a cosine is never denormal, which the end of the core makes use of.
void FinishCosh(ComplexDouble& result, Lum64f re, Lum64f im) {
  if (IsDenormal(im)) RaiseUnderflow<Lum64f>();
  result = {re, im};
}

}  // namespace

void CoreCosh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  const bool opposite_signs = IsNegative(x) != IsNegative(y);
  if (IsZero(y)) return FinishCosh(result, core::Rounded<ExtCosh>(x), IsNan(x) ? y : WithSign(opposite_signs, 0));
  if (!IsFinite(y)) {
    const Lum64f not_a_number = Difference(y, y);
    const Lum64f re = IsFinite(x) ? not_a_number : core::Rounded<ExtCosh>(x);
    const Lum64f im_of_zero = IsInfinite(y) ? WithSign(opposite_signs, 0) : Negated(x);
    return FinishCosh(result, re, IsZero(x) ? im_of_zero : not_a_number);
  }
  if (IsNan(x)) return FinishCosh(result, x * x, x * x);
  if (IsInfinite(x)) {
    const auto [re, im] = core::AtInfinity(x * x, x, y);
    return FinishCosh(result, re, im);
  }
  if (IsZero(x)) return FinishCosh(result, core::RoundedCosine(y), core::RoundedSine(y) * x);
  if (Magnitude(x) < core::far_exponent) {
    const core::Parts p = core::PartsOf(x, y);
    return FinishCosh(result, static_cast<Lum64f>(p.cosine * p.cosh), static_cast<Lum64f>(p.sine * p.sinh));
  }
  FinishCosh(result, core::RoundedCosine(y) * infinity, core::RoundedSine(y) * (infinity * x));
}

void CoreCos(ComplexDouble& result, const ComplexDouble& z) { CoreCosh(result, core::TimesI<core::IsPositiveNan>(z)); }

}  // namespace lum::inline LUM_LAYER::complex
