// Distances between floating-point numbers.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "support/library.h"

namespace lum::support {

// The number of representable numbers from a to b, zeros counting as one; the greatest value when just one of them is a NaN.
template <class T> uint64_t UlpDistance(T a, T b) {
  using Bits = std::conditional_t<sizeof(T) == 4, int32_t, int64_t>;
  if (a != a || b != b) return (a != a) == (b != b) ? 0 : std::numeric_limits<uint64_t>::max();
  const auto ordered = [](T x) {
    const auto bits = std::bit_cast<Bits>(x);
    return static_cast<int64_t>(bits < 0 ? std::numeric_limits<Bits>::min() - bits : bits);
  };
  const int64_t i = ordered(a), j = ordered(b);
  return i > j ? static_cast<uint64_t>(i) - static_cast<uint64_t>(j) : static_cast<uint64_t>(j) - static_cast<uint64_t>(i);
}

template <class T> uint64_t UlpDistanceAt(const std::byte* a, const std::byte* b) {
  T x, y;
  std::memcpy(&x, a, sizeof x);
  std::memcpy(&y, b, sizeof y);
  return UlpDistance(x, y);
}

// The distance of elements in memory; of complex ones the greater of both parts.
inline uint64_t UlpDistance(Element element, const std::byte* a, const std::byte* b) {
  switch (element) {
    case Element::f32:
      return UlpDistanceAt<float>(a, b);
    case Element::f64:
      return UlpDistanceAt<double>(a, b);
    case Element::c32:
      return std::max(UlpDistanceAt<float>(a, b), UlpDistanceAt<float>(a + 4, b + 4));
    case Element::c64:
      return std::max(UlpDistanceAt<double>(a, b), UlpDistanceAt<double>(a + 8, b + 8));
  }
  return 0;
}

}  // namespace lum::support
