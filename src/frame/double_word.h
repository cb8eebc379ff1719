// Numbers in two parts for lane routines: a sum or product of binary64 numbers together with its rounding error, which is a
// binary64 number as long as nothing overflows or underflows (T. J. Dekker, 1971; D. E. Knuth, The Art of Computer Programming
// 2).
#pragma once

#include "frame/layer.h"

namespace lum::inline LUM_LAYER {

// hi + lo, |lo| at most half a unit in the last place of hi.
struct DoubleWord {
  double hi, lo;
};

// a + b exactly.
constexpr DoubleWord ExactSum(double a, double b) {
  const double sum = a + b;
  const double b_part = sum - a;
  return {sum, (a - (sum - b_part)) + (b - b_part)};
}
// The same for |a| >= |b|.
inline DoubleWord FastSum(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

// a b exactly, by the products of half significands.
inline DoubleWord ExactProduct(double a, double b) {
  constexpr double splitter = 134217729.0;  // 2^27 + 1: the high halves keep 26 bits
  const double a_shifted = a * splitter, b_shifted = b * splitter;
  const double a_high = a_shifted - (a_shifted - a), b_high = b_shifted - (b_shifted - b);
  const double a_low = a - a_high, b_low = b - b_high;
  const double product = a * b;
  return {product, ((a_high * b_high - product) + a_high * b_low + a_low * b_high) + a_low * b_low};
}

}  // namespace lum::inline LUM_LAYER
