// The circular functions of infinities and NaN, which the reductions of large arguments leave.
#pragma once

#include <array>

#include "frame/kernel_frame.h"
#include "frame/lane_format.h"
#include "frame/types.h"

namespace lum::inline LUM_LAYER::circular {

// sin, cos or tan of an infinity is a NaN with a status, that of a NaN is the NaN, quieted.
template <class T> LumStatus CircularOfNonFinite(T x, T& result) {
  const bool is_nan = x != x;
  result = lane::nan_of(x);
  return is_nan ? lumStsOk : lumStsDomain;
}

// The results of CircularOfNonFinite in the lanes of infinities and NaN, other in those that are finite.
template <class T> LUM_INLINE Vec<T> SelectNonFinite(Vec<T> x, Vec<T> other) {
  const auto is_nan = unord(x, x);
  const auto factor = select(fpclass<classes::nonfinite>(x), x, all(T(1)));
  return select(fpclass<classes::nonfinite>(x), factor * select(is_nan, factor, all(T(0))), other);
}

// Whether any of these lanes needs the reduction of a large argument.
template <class T> LUM_INLINE bool AnyFinite(Mask<T> lanes, Vec<T> x) { return any(lanes & ~fpclass<classes::nonfinite>(x)); }

// The results of the second path in the refused lanes; large gives those of finite numbers.
template <class T, class Large> LUM_INLINE Finished<T> MergeLarge(Vec<T> x, const Lanes<T>& lanes, Large large) {
  auto value = lanes.value;
  if (AnyFinite(lanes.refused, x)) value = select(lanes.refused, large(x), value);
  return {SelectNonFinite(x, value), mask_of<T>(0), {.domain = fpclass<classes::infinity>(x)}};
}

// The same of two vectors.
template <class T, class Large>
LUM_INLINE std::array<Finished<T>, 2> MergeLarge(const std::array<Vec<T>, 2>& x, const std::array<Lanes<T>, 2>& lanes,
                                                 Large large) {
  std::array values{lanes[0].value, lanes[1].value};
  if (AnyFinite(lanes[0].refused, x[0]) || AnyFinite(lanes[1].refused, x[1])) {
    const auto of_large = large(x);
    values = {select(lanes[0].refused, of_large[0], values[0]), select(lanes[1].refused, of_large[1], values[1])};
  }
  const auto none = mask_of<T>(0);
  return {Finished<T>{SelectNonFinite(x[0], values[0]), none, {.domain = fpclass<classes::infinity>(x[0])}},
          Finished<T>{SelectNonFinite(x[1], values[1]), none, {.domain = fpclass<classes::infinity>(x[1])}}};
}

}  // namespace lum::inline LUM_LAYER::circular
