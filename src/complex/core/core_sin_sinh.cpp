// sinh z = sinh x cos y + i cosh x sin y of z = x + iy, and sin z = -i sinh iz.
#include "complex/core/hyperbolic_parts.h"

namespace lum::inline LUM_LAYER::complex {

void CoreSinh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsZero(y)) return Finish(result, core::Rounded<ExtSinh>(x), y);
  if (!IsFinite(y)) {
    const Lum64f not_a_number = Difference(y, y);
    return Finish(result, IsFiniteNonZero(x) ? x * not_a_number : core::Rounded<ExtSinh>(x), not_a_number);
  }
  if (IsNan(x)) return Finish(result, x * x, x * x);
  if (IsInfinite(x)) {
    const auto [re, im] = core::AtInfinity(x, x * x, y);
    return Finish(result, re, im);
  }
  if (IsZero(x)) return Finish(result, core::RoundedCosine(y) * x, core::RoundedSine(y));
  if (Magnitude(x) < core::far_exponent) {
    const core::Parts p = core::PartsOf(x, y);
    return Finish(result, static_cast<Lum64f>(p.sinh * p.cosine), static_cast<Lum64f>(p.cosh * p.sine));
  }
  Finish(result, core::RoundedCosine(y) * infinity * x, core::RoundedSine(y) * infinity);
}

void CoreSin(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreSinh(rotated, core::TimesI<core::IsPositiveNan>(z));
  result = core::OverI<core::IsPositiveNan>(rotated);
}

}  // namespace lum::inline LUM_LAYER::complex
