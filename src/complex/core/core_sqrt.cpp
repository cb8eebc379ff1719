// The square root, from the modulus and the larger part of the root.
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

Extended RootOf(Extended x) {
  Extended root;
  ExtSqrt(root, x);
  return root;
}

}  // namespace

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

}  // namespace lum::inline LUM_LAYER::complex
