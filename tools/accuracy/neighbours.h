// Floating-point numbers counted one by one.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace lum::accuracy {

// Neighbours in this order are neighbouring numbers; both zeros are 0.
template <class T> int64_t Ordered(T x) {
  using Bits = std::conditional_t<sizeof(T) == 4, int32_t, int64_t>;
  const auto bits = static_cast<int64_t>(std::bit_cast<Bits>(x));
  return bits >= 0 ? bits : static_cast<int64_t>(std::numeric_limits<Bits>::min()) - bits;
}
template <class T> T FromOrdered(int64_t k) {
  using Bits = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
  const auto magnitude = static_cast<Bits>(k < 0 ? -k : k);
  const T x = std::bit_cast<T>(magnitude);
  return k < 0 ? -x : x;
}

// The number so many steps away; x itself where that is none of the finite ones.
template <class T> T Neighbour(T x, int64_t steps) {
  const T y = FromOrdered<T>(Ordered(x) + steps);
  return std::isfinite(y) ? y : x;
}

}  // namespace lum::accuracy
