// Remainders of Extended arguments modulo pi/4, for the circular functions.
#pragma once

#include "complex/core/extended_pair.h"

namespace lum::inline LUM_LAYER::complex {

// x = count * pi/4 + remainder: count even and |remainder| <= pi/4 and a little. Returns count, of a huge x modulo 8. Given x
// finite. Relative error of the remainder below 2^-66.
int64_t ExtReducePi4(ExtendedPair& remainder, const Extended& x);

}  // namespace lum::inline LUM_LAYER::complex
