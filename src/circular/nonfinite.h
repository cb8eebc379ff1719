// What remains of a vector of the circular functions after the path for large arguments: infinities and NaN.
#pragma once

#include "frame/kernel_frame.h"
#include "frame/types.h"

namespace lum::inline LUM_LAYER {

// sin, cos or tan of an infinity is a NaN with a status, that of a NaN is the NaN, quieted.
template <class T> LumStatus CircularOfNonFinite(T x, T& result) {
  const bool is_nan = x != x;
  result = is_nan ? x * x : x * 0;
  return is_nan ? lumStsOk : lumStsDomain;
}

// The results of the second path in the refused lanes; infinities and NaN stay refused.
template <class T> LUM_INLINE Lanes<T> MergeLarge(Vec<T> x, const Lanes<T>& lanes, Vec<T> large) {
  return {select(lanes.refused, large, lanes.value), fpclass<0x99>(x)};
}

}  // namespace lum::inline LUM_LAYER
