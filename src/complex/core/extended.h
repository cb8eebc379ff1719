// The number format of the complex scalar cores, and their private real functions in it. The format is the 80-bit one of the
// x87 unit: `long double` where that is it, else the same in integers. With 11 bits to spare over binary64, a result that is
// right to a few units in the last place of Extended rounds to the nearest binary64 except next to a tie.
//
// The functions expect all exceptions masked, extended precision and round to nearest. Results go through references:
// given first where there is one, after the argument where there are two.
#pragma once

#include <limits>

#include "frame/types.h"

#if __LDBL_MANT_DIG__ != 64 || defined(LUM_SOFT_EXTENDED)
#define LUM_EXTENDED_IS_SOFT
#include "complex/core/soft_extended.h"
#endif

namespace lum::inline LUM_LAYER::complex {

#ifdef LUM_EXTENDED_IS_SOFT
using Extended = SoftExtended;
#else
using Extended = long double;
inline Extended magnitude(Extended x) { return __builtin_fabsl(x); }
#endif
using ExtendedLimits = std::numeric_limits<Extended>;
static_assert(ExtendedLimits::digits == 64 && ExtendedLimits::max_exponent == 16384);

// Magnitudes. ExtAbs quiets a signalling NaN.
void ExtAbs64(Lum64f& result, const Lum64f& x);
void ExtAbs(Extended& result, const Extended& x);

void ExtSqrt(Extended& result, const Extended& x);

void ExtLog(Extended& result, const Extended& x);
void ExtLog1p(Extended& result, const Extended& x);
void ExtExp(Extended& result, const Extended& x);

void ExtSin(Extended& result, const Extended& x);
void ExtCos(Extended& result, const Extended& x);
void ExtSinCos(const Extended& x, Extended& sine, Extended& cosine);
void ExtTan(Extended& result, const Extended& x);

void ExtSinh(Extended& result, const Extended& x);
void ExtCosh(Extended& result, const Extended& x);
void ExtSinhCosh(const Extended& x, Extended& sinh, Extended& cosh);
void ExtTanh(Extended& result, const Extended& x);

void ExtAsin(Extended& result, const Extended& x);
void ExtAcos(Extended& result, const Extended& x);
void ExtAtan(Extended& result, const Extended& x);
void ExtAtan2(Extended& result, const Extended& y, const Extended& x);

void ExtAsinh(Extended& result, const Extended& x);
void ExtAcosh(Extended& result, const Extended& x);
void ExtAtanh(Extended& result, const Extended& x);

}  // namespace lum::inline LUM_LAYER::complex
