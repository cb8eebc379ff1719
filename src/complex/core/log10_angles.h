// The imaginary parts of decimal logarithms on axes and diagonals.
#pragma once

#include "frame/types.h"

namespace lum::inline LUM_LAYER::complex {

// Multiples of pi/4 log10(e).
inline constexpr Lum64f quarter_pi_log10 = 0x1.5d47c4cb2fba1p-2;
inline constexpr Lum64f half_pi_log10 = 0x1.5d47c4cb2fba1p-1;
inline constexpr Lum64f three_quarters_pi_log10 = 0x1.05f5d39863cb9p+0;
inline constexpr Lum64f pi_log10 = 0x1.5d47c4cb2fba1p+0;
// The angle of the negative real axis at infinity, one unit in the last place below pi log10(e).
inline constexpr Lum64f pi_log10_at_infinity = 0x1.5d47c4cb2fba0p+0;

}  // namespace lum::inline LUM_LAYER::complex
