// arsinh z, and arcsin z = -i arsinh iz.
#include "complex/core/arc_steps.h"

namespace lum::inline LUM_LAYER::complex {

void CoreAsinh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsZero(y)) return Finish(result, core::Rounded<ExtAsinh>(x), y);
  if (IsNan(x) || IsNan(y)) {
    const Lum64f not_a_number = x * y;
    const Lum64f re = IsInfinite(x) ? x : IsInfinite(y) ? infinity : not_a_number;
    return Finish(result, re, not_a_number);
  }
  if (IsInfinite(x)) return Finish(result, x, WithSignOf(y, IsInfinite(y) ? Inexact(core::quarter_pi) : 0));
  if (IsZero(x)) {
    if (core::IsBelowOne(y)) return Finish(result, x, core::Rounded<ExtAsin>(y));
    return Finish(result, WithSignOf(x, core::Rounded<ExtAcosh>(Magnitude(y))), WithSignOf(y, Inexact(core::half_pi)));
  }
  if (IsInfinite(y)) return Finish(result, WithSignOf(x, infinity), WithSignOf(y, Inexact(core::half_pi)));
  const auto [angle, logarithm] = core::InverseParts<core::Arc::sine>(Magnitude(y), Magnitude(x));
  Finish(result, WithSignOf(x, static_cast<Lum64f>(logarithm)), WithSignOf(y, static_cast<Lum64f>(angle)));
}

void CoreAsin(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreAsinh(rotated, core::TimesI(z));
  result = core::OverI(rotated);
}

}  // namespace lum::inline LUM_LAYER::complex
