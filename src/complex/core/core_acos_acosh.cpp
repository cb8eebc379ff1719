// arccos z and arcosh z.
#include "complex/core/arc_steps.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// arccos of a number in the right half plane from that of its mirror image, rounded.
Lum64f MirroredAngle(Lum64f x, Extended angle) {
  return static_cast<Lum64f>(IsNegative(x) ? core::pi_extended - angle : angle);
}

// The angles of the directions of infinity, by the signs and classes of the parts.
Lum64f AngleOfInfinite(Lum64f x, Lum64f y) {
  if (IsFinite(x)) return Inexact(core::half_pi);
  if (IsInfinite(y)) return Inexact(IsNegative(x) ? core::three_quarters_pi : core::quarter_pi);
  return IsNegative(x) ? Inexact(core::pi) : 0;
}

}  // namespace

void CoreAcos(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  const bool goes_up = IsNegative(y);  // the imaginary part has the sign opposite to y
  if (IsZero(x)) return Finish(result, Inexact(core::half_pi), Negated(core::Rounded<ExtAsinh>(y)));
  if (IsNan(x) || IsNan(y)) {
    const Lum64f not_a_number = x * y;
    if (IsInfinite(y)) return Finish(result, not_a_number, WithSign(!goes_up, infinity));
    return Finish(result, not_a_number, IsInfinite(x) ? infinity : not_a_number);
  }
  if (IsZero(y)) {
    if (core::IsBelowOne(x)) return Finish(result, core::Rounded<ExtAcos>(x), Negated(y));
    return Finish(result, IsNegative(x) ? Inexact(core::pi) : 0, WithSign(!goes_up, core::Rounded<ExtAcosh>(Magnitude(x))));
  }
  if (IsInfinite(x) || IsInfinite(y)) return Finish(result, AngleOfInfinite(x, y), WithSign(!goes_up, infinity));
  const auto [angle, logarithm] = core::InverseParts<core::Arc::cosine>(Magnitude(x), Magnitude(y));
  Finish(result, MirroredAngle(x, angle), WithSign(!goes_up, static_cast<Lum64f>(logarithm)));
}

void CoreAcosh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsNan(x) || IsNan(y)) {
    const Lum64f not_a_number = x * y;
    return Finish(result, IsInfinite(x) || IsInfinite(y) ? infinity : not_a_number, not_a_number);
  }
  if (IsZero(y)) {
    if (core::IsBelowOne(x)) return Finish(result, 0, WithSignOf(y, core::Rounded<ExtAcos>(x)));
    return Finish(result, core::Rounded<ExtAcosh>(Magnitude(x)), WithSignOf(y, IsNegative(x) ? Inexact(core::pi) : 0));
  }
  if (IsZero(x)) return Finish(result, core::Rounded<ExtAsinh>(Magnitude(y)), static_cast<Lum64f>(core::Angle(y, x)));
  if (IsInfinite(x) || IsInfinite(y)) return Finish(result, infinity, WithSignOf(y, AngleOfInfinite(x, y)));
  const auto [angle, logarithm] = core::InverseParts<core::Arc::cosine>(Magnitude(x), Magnitude(y));
  Finish(result, static_cast<Lum64f>(logarithm), WithSignOf(y, MirroredAngle(x, angle)));
}

}  // namespace lum::inline LUM_LAYER::complex
