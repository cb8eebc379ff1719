// Constants given by their bit pattern, with the decimal value beside it for the reader. The compiler refuses a pair that does
// not agree.
#pragma once

#include <bit>
#include <cstdint>

#include "frame/layer.h"

namespace lum {

// Called only when bits and decimal disagree: not a constant expression, so compilation stops here.
inline void BitsAndDecimalDisagree() {}

consteval float f32(uint32_t bits, double decimal) {
  const auto value = std::bit_cast<float>(bits);
  if (static_cast<double>(value) != decimal) BitsAndDecimalDisagree();
  return value;
}

consteval double f64(uint64_t bits, double decimal) {
  const auto value = std::bit_cast<double>(bits);
  if (value != decimal) BitsAndDecimalDisagree();
  return value;
}

// 1.5 times a power of two, whose last bit is worth 2^-places. A number of a smaller size is rounded to a multiple of that by
// adding it, to nearest in either sign; the sum has the multiple in its low bits, and subtracting it again is exact.
template <class T> consteval T rounding_shifter(int places = 0) {
  constexpr int digits = sizeof(T) == 4 ? 24 : 53;
  T shifter = T(1.5);
  for (int i = places; i < digits - 1; ++i) shifter *= 2;
  for (int i = digits - 1; i < places; ++i) shifter /= 2;
  return shifter;
}

}  // namespace lum
