// a b + c with one rounding for lane routines, with the same bits in all layers.
#pragma once

#if defined(LUM_AVX512) || defined(LUM_AVX2)
namespace lum::inline LUM_LAYER {
inline double scalar_fma(double a, double b, double c) { return __builtin_fma(a, b, c); }
}  // namespace lum::inline LUM_LAYER
#else
#include "frame/lane_arithmetic.h"
namespace lum::inline LUM_LAYER {
inline double scalar_fma(double a, double b, double c) { return lane::careful_fma<rn, false, false>(a, b, c); }
}  // namespace lum::inline LUM_LAYER
#endif
