// Exponential, logarithms, square root and power of one complex number.
#include <algorithm>

#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER {
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

Extended Angle(Lum64f y, Lum64f x) {
  Extended angle;
  ExtAtan2(angle, y, x);
  return angle;
}

Extended RootOf(Extended x) {
  Extended root;
  ExtSqrt(root, x);
  return root;
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
    Finish(result, x * y, x * y);
  } else if (IsFinite(x)) {
    Finish(result, -0.0 * y, -0.0 * y);
  } else if (IsNegative(x)) {
    Finish(result, 0, IsInfinite(y) ? WithSignOf(y, 0.0) : 0.0);
  } else {
    Finish(result, infinity, y - y);
  }
}

// A number as an unevaluated sum.
struct HeadTail {
  Extended head, tail;
};

// The square of a binary64 number, exactly: Dekker's product, from halves of at most 32 bits.
HeadTail ExactSquare(Extended a) {
  constexpr Extended splitter = 0x1p33L + 1;
  const Extended scaled = a * splitter;
  const Extended high = scaled - (scaled - a);
  const Extended low = a - high;
  const Extended square = a * a;
  return {square, ((high * high - square) + 2 * high * low) + low * low};
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
  const HeadTail a = ExactSquare(large);
  const HeadTail b = ExactSquare(small);
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

// Multiples of pi/4 log10(e).
constexpr Lum64f quarter_pi_log10 = 0x1.5d47c4cb2fba1p-2;
constexpr Lum64f half_pi_log10 = 0x1.5d47c4cb2fba1p-1;
constexpr Lum64f three_quarters_pi_log10 = 0x1.05f5d39863cb9p+0;
constexpr Lum64f pi_log10 = 0x1.5d47c4cb2fba1p+0;
// The angle of the negative real axis at infinity, one unit in the last place below pi log10(e).
constexpr Lum64f pi_log10_at_infinity = 0x1.5d47c4cb2fba0p+0;

Lum64f AngleLog10AtInfinity(Lum64f x, Lum64f y) {
  if (IsInfinite(y)) {
    if (IsFinite(x)) return half_pi_log10;
    return IsNegative(x) ? three_quarters_pi_log10 : quarter_pi_log10;
  }
  return IsNegative(x) ? pi_log10_at_infinity : 0;
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

void CoreSqrt(ComplexDouble& result, const ComplexDouble& z) {
  const auto [x, y] = z;
  if (IsInfinite(y)) return Finish(result, infinity, y);
  if (IsInfinite(x)) {
    const Lum64f other = IsNan(y) ? y * y : Lum64f{0};
    if (IsNegative(x)) return Finish(result, other, IsNan(y) ? infinity : WithSignOf(y, infinity));
    return Finish(result, infinity, IsNan(y) ? other : WithSignOf(y, 0));
  }
  if (IsNan(x) || IsNan(y)) return Finish(result, x * y, x * y);
  const Extended half_y = Extended{Magnitude(y)} / 2;
  if (IsZero(x)) {
    const auto root = static_cast<Lum64f>(RootOf(half_y));
    return Finish(result, root, WithSignOf(y, root));
  }
  const Extended magnitude = Magnitude(x);
  Extended large, small = 0;
  if (IsZero(y)) {
    large = RootOf(magnitude);
  } else {
    const Extended modulus = RootOf(magnitude * magnitude + Extended{y} * Extended{y});
    large = RootOf(magnitude / 2 + modulus / 2);
    small = half_y / large;
  }
  const bool is_left = IsNegative(x);
  Finish(result, static_cast<Lum64f>(is_left ? small : large), WithSignOf(y, static_cast<Lum64f>(is_left ? large : small)));
}

// The product is rounded to binary64 in plain operations: for large results its error takes digits from the power.
void CorePow(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& exponent) {
  ComplexDouble logarithm;
  CoreLog(logarithm, z);
  const ComplexDouble product = {exponent.re * logarithm.re - exponent.im * logarithm.im,
                                 exponent.re * logarithm.im + exponent.im * logarithm.re};
  CoreExp(result, product);
}

}  // namespace lum::inline LUM_LAYER
