// artanh z, and arctan z = -i artanh iz.
#include "complex/core/arc_steps.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// The real part of arctanh, of finite parts of which x is not zero: a logarithm of the ratio of the distances to -1 and 1, or
// where the ratio is near 1, that ratio as an inverse hyperbolic tangent.
Extended AtanhRealPart(Extended x, Extended y) {
  const Extended p = (1 + x) * (1 + x) + y * y;
  const Extended q = (x - 1) * (x - 1) + y * y;
  const Extended difference = p - q;
  if (difference > 0.03L * q || -difference > 0.03L * q) return core::Of<ExtLog>(p / q) / 4;
  return core::Of<ExtAtanh>(2 * x / (x * x + y * y + 1)) / 2;
}

// Twice the imaginary part is the angle of (1 + z)(1 - conj z); near the unit circle its real part cancels.
Extended AtanhImaginaryPart(Extended x, Extended y) {
  const Extended t = 1 - x * x - y * y;
  if (t >= 0.03L || t <= -0.03L) return core::Angle(2 * y, t) / 2;
  return (core::Angle(y, 1 + x) - core::Angle(-y, 1 - x)) / 2;
}

void AtanhOfFinite(ComplexDouble& result, Lum64f x, Lum64f y) {
  if (IsDenormal(x)) Discard(x + 0.5);
  if (IsDenormal(y)) Discard(y + 0.5);
  if (IsZero(x)) return Finish(result, x, core::Rounded<ExtAtan>(y));
  if (IsZero(y) && Magnitude(x) <= 1) return Finish(result, core::Rounded<ExtAtanh>(x), y);
  const auto re = static_cast<Lum64f>(AtanhRealPart(x, y));
  const Lum64f im = IsZero(y) ? WithSignOf(y, Inexact(core::half_pi)) : static_cast<Lum64f>(AtanhImaginaryPart(x, y));
  Finish(result, re, im);
}

}  // namespace

void CoreAtanh(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsFinite(x) && IsFinite(y)) return AtanhOfFinite(result, x, y);
  if (IsZero(x)) return Finish(result, x, core::Rounded<ExtAtan>(y));
  if (IsNan(x)) {
    if (IsInfinite(y)) return Finish(result, 0, WithSignOf(y, Inexact(core::half_pi)));
    return Finish(result, x * y, x * y);
  }
  if (IsNan(y)) return IsInfinite(x) ? Finish(result, WithSignOf(x, 0), y * y) : Finish(result, y * y, y * y);
  Finish(result, WithSignOf(x, 0), WithSignOf(y, Inexact(core::half_pi)));
}

void CoreAtan(ComplexDouble& result, const ComplexDouble& z) {
  ComplexDouble rotated;
  CoreAtanh(rotated, core::TimesI(z));
  result = core::OverI(rotated);
}

}  // namespace lum::inline LUM_LAYER::complex
