// The logarithm by a table of reciprocals: with 1 <= m < 2 and a short c near 1/m, log(2^n m) = n ln2 - log c + log(m c), where
// m c lies next to 1.
#pragma once

#include "complex/core/extended_pair.h"
#include "frame/literals.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {

inline constexpr auto log_reciprocals = table32({
#include "tables/generated/extended_log_reciprocals_32f_256.inc"
});
inline constexpr auto log_table = table64({
#include "tables/generated/extended_log_64f_256_pairs.inc"
});
// (log(1 + r) - r) / r^2, |r| below 2^-8.5.
inline constexpr auto log_table_terms = coefficients({
#include "tables/generated/extended_log_table_64f_6_pairs.inc"
});

// log(2^n m), with the part of m beyond its last place in m.tail, as the exact sum of the heads and the rest, which is below
// 2^-8. Given 1 <= m.head < 2. Error below 2^-72, relative to 2^-30 of n where that is more.
inline ExtendedPair LogByTable(int n, ExtendedPair m) {
  constexpr double ln2_head = numbers::ln2_33_parts<double>[0], ln2_tail = numbers::ln2_33_parts<double>[1];
  const size_t j = static_cast<size_t>(fields(m.head).significand >> 55) & 0xff;
  const Extended c = log_reciprocals.entries[j], count = n;
  const Extended head = round_to_multiple<-31>(m.head), tail = m.head - head;
  const Extended r = (head * c - 1) + (tail * c + m.tail * c);  // the first bracket is exact
  const ExtendedPair row = pair_at(log_table, static_cast<int>(j));
  const Extended small = (count * ln2_tail + row.tail) + r * r * polynomial(log_table_terms, r);
  return {count * ln2_head + row.head, small + r};
}

// The logarithm of a normal number x.head > 0 and a tail beyond its last place.
inline ExtendedPair LogByTable(ExtendedPair x) {
  const int n = exponent_field(x.head) - extended_bias;
  return LogByTable(n, {significand_of(x.head), x.tail == 0 ? 0 : x.tail * power_of_two(-n)});
}

}  // namespace lum::inline LUM_LAYER::complex
