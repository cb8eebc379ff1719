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

}  // namespace lum
