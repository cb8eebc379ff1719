// Steps written once for scalars and for vectors.
#pragma once

#include <type_traits>

#include "frame/vec.h"

namespace lum::inline LUM_LAYER {

// A constant as a number or in all lanes of a vector.
template <class V, class T> LUM_INLINE V Constant(T c) {
  if constexpr (std::is_same_v<V, T>) return c;
  else return all(c);
}

}  // namespace lum::inline LUM_LAYER
