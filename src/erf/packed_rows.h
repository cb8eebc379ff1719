// Rows of two words that hold a function that falls off to the right, the value in two parts, and its slope. Word 0 is the
// value cut toward zero. The low bits of word 1 are the slope's pattern less word 0's exponent field; its top bits count units
// of the value's relative tail.
#pragma once

#include "erf/rows.h"
#include "frame/lane_format.h"

namespace lum::inline LUM_LAYER::erf {

template <class T> struct PackedRow;
template <> struct PackedRow<Lum32f> {
  static constexpr int tail_shift = 26;
  static constexpr uint32_t slope_field = 0x03FFFFFF;
  static constexpr auto tail_base = 0x1p-6f;  // its last place is a tail's unit
};
template <> struct PackedRow<Lum64f> {
  static constexpr int tail_shift = 55;
  static constexpr uint64_t slope_field = 0x007FFFFFFFFFFFFF;
  static constexpr auto tail_base = 0x1p-9;
};

template <class T> struct Unpacked {
  Vec<T> value, slope;
  Vec<T> tail;  // relative to value
};
template <class T> LUM_INLINE Unpacked<T> Unpack(RowOfTwo<T> row) {
  using F = PackedRow<T>;
  const auto word0 = bits(row.first), word1 = bits(row.second);
  const auto slope = as_float((word1 & all(F::slope_field)) + (word0 & all(lane::Format<T>::infinity)));
  const auto units = shift_right<F::tail_shift>(word1) | all(std::bit_cast<UnsignedOf<T>>(F::tail_base));
  return {row.first, slope, as_float(units) - all(F::tail_base)};
}

// value (1 + tail) - slope d (1 + series) for |slope d| up to value / 2: the large parts leave no rounding error.
template <class T> LUM_INLINE Vec<T> Fall(const Unpacked<T>& row, Vec<T> d, Vec<T> series) {
  const auto head = fnma(row.slope, d, row.value);
  const auto error = fnma(row.slope, d, row.value - head);
  const auto rest = fma(row.value, row.tail, error);
  return head + fnma(row.slope * d, series, rest);
}

}  // namespace lum::inline LUM_LAYER::erf
