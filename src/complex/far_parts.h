// Numbers far from 1, brought nearer to it for the second paths of the inverse functions: both parts are divided by one power
// of 2 where the larger is large, and a part that is small beside 1 or beside the other is put at 2^-200. Such a part's
// consequences are proportional to it, as those of a large modulus are to a power of it.
#pragma once

#include "complex/core_second_path.h"

namespace lum::inline LUM_LAYER::complex {

// The magnitudes u and v of a number's parts, divided by 2^common.
struct NearerParts {
  RaisedNumber u, v;
  Vec<Lum64f> common;
};
LUM_INLINE NearerParts BringNearer(Vec<Lum64f> u, Vec<Lum64f> v) {
  const auto common = max(getexp(max(u, v)) - all(200.0), all(0.0));
  return {Raised(u, negate(common)), Raised(v, negate(common)), common};
}

// Beside u = 1 a small v has no consequence that is proportional to it.
LUM_INLINE Mask<Lum64f> IsNextToBranch(const NearerParts& z) {
  return eq(z.u.value, all(1.0)) & lt(z.v.exponent, all(0.0)) & ~IsZero(z.v.value);
}

}  // namespace lum::inline LUM_LAYER::complex
