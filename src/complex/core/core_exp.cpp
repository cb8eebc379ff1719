// e^z = e^x (cos y + i sin y) of z = x + iy.
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// |x| at which e^x has long left the range of binary64.
constexpr Lum64f far_exponent = 2048;

// Rounded to binary64.
Lum64f ExpOf(Lum64f x) {
  Extended e;
  ExtExp(e, x);
  return static_cast<Lum64f>(e);
}

struct SineCosine {
  Extended sine, cosine;
};
SineCosine SineCosineOf(Lum64f y) {
  SineCosine result;
  ExtSinCos(y, result.sine, result.cosine);
  return result;
}

void ExpOfOrdinary(ComplexDouble& result, Lum64f x, Lum64f y) {
  const auto [sine, cosine] = SineCosineOf(y);
  if (Magnitude(x) < far_exponent) {
    Extended e;
    ExtExp(e, x);
    Finish(result, static_cast<Lum64f>(cosine * e), static_cast<Lum64f>(sine * e));
    return;
  }
  const Extended far = IsNegative(x) ? 0.0L : Extended{infinity};
  const Extended direction = IsBelowNormal(y) ? Extended{y} : sine;
  Finish(result, static_cast<Lum64f>(cosine * far * far), static_cast<Lum64f>(direction * far * far));
}

// The imaginary part is an infinity or a NaN.
void ExpOfNonFinite(ComplexDouble& result, Lum64f x, Lum64f y) {
  if (IsNan(x)) {
    Finish(result, Product(x, y), Product(x, y));
  } else if (IsFinite(x)) {
    Finish(result, Product(-0.0, y), Product(-0.0, y));
  } else if (IsNegative(x)) {
    Finish(result, 0, IsInfinite(y) ? WithSignOf(y, 0.0) : 0.0);
  } else {
    Finish(result, infinity, Difference(y, y));
  }
}

}  // namespace

void CoreExp(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsZero(y)) return Finish(result, ExpOf(x), y);
  if (!IsFinite(y)) return ExpOfNonFinite(result, x, y);
  if (IsFiniteNonZero(x)) return ExpOfOrdinary(result, x, y);
  const Lum64f e = ExpOf(x);
  const auto [sine, cosine] = SineCosineOf(y);
  const Lum64f direction = IsDenormal(y) && !IsZero(x) ? y : static_cast<Lum64f>(sine);
  Finish(result, e * static_cast<Lum64f>(cosine), e * direction);
}

}  // namespace lum::inline LUM_LAYER::complex
