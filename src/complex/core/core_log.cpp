// The natural and the decimal logarithm: ln |z| + i arg z, and that times log10 e.
#include <algorithm>

#include "complex/core/extended_pair.h"
#include "complex/core/log10_angles.h"
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

Extended Angle(Lum64f y, Lum64f x) {
  Extended angle;
  ExtAtan2(angle, y, x);
  return angle;
}

// ln |z| of finite parts. Near the unit circle the logarithm is as small as |z|^2 - 1, which is therefore formed exactly.
Extended LogOfModulus(Lum64f x, Lum64f y) {
  const Extended large = std::max(Magnitude(x), Magnitude(y));
  const Extended small = std::min(Magnitude(x), Magnitude(y));
  const Extended square = large * large + small * small;
  Extended logarithm;
  if (!(square - 1 >= -0.03L && square - 1 <= 0.03L)) {
    ExtLog(logarithm, square);
    return logarithm / 2;
  }
  const ExtendedPair a = two_product(large, large);
  const ExtendedPair b = two_product(small, small);
  const Extended sum = a.head + b.head;
  const Extended error = b.head - (sum - a.head);  // exact: a.head is the larger
  ExtLog1p(logarithm, (((sum - 1) + error) + a.tail) + b.tail);
  return logarithm / 2;
}

// Both parts of a logarithm whose argument has an infinite or a NaN part, not both infinite and finite alone.
bool LogOfNan(ComplexDouble& result, Lum64f x, Lum64f y) {
  if (!IsNan(x) && !IsNan(y)) return false;
  const Lum64f not_a_number = x * y;
  result = {IsInfinite(x) || IsInfinite(y) ? infinity : not_a_number, not_a_number};
  return true;
}

constexpr Extended log10_of_e = 0xde5bd8a937287195p-65L;

Lum64f AngleLog10AtInfinity(Lum64f x, Lum64f y) {
  if (IsInfinite(y)) {
    if (IsFinite(x)) return half_pi_log10;
    return IsNegative(x) ? three_quarters_pi_log10 : quarter_pi_log10;
  }
  return IsNegative(x) ? pi_log10_at_infinity : 0;
}

}  // namespace

void CoreLog(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (LogOfNan(result, x, y)) return;
  const Lum64f re = IsFinite(x) && IsFinite(y) ? static_cast<Lum64f>(LogOfModulus(x, y)) : infinity;
  Finish(result, re, static_cast<Lum64f>(Angle(y, x)));
}

void CoreLog10(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (LogOfNan(result, x, y)) return;
  if (IsInfinite(x) || IsInfinite(y)) { return Finish(result, infinity, WithSignOf(y, Inexact(AngleLog10AtInfinity(x, y)))); }
  if (IsZero(x) && IsZero(y)) { return Finish(result, -infinity, IsNegative(x) ? WithSignOf(y, Inexact(pi_log10)) : y); }
  Finish(result, static_cast<Lum64f>(LogOfModulus(x, y) * log10_of_e), static_cast<Lum64f>(Angle(y, x) * log10_of_e));
}

}  // namespace lum::inline LUM_LAYER::complex
