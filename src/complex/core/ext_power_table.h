// The exponential by a table of 2^(j/256): x = n ln2/256 + r, and with j the low eight bits of n as a signed number and n = 256
// e + j, e^x = 2^e 2^(j/256) e^r.
#pragma once

#include "complex/core/extended_pair.h"
#include "frame/literals.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {

// e^r - 1 = even + odd, e^-r - 1 = even - odd, |r| <= ln2/512 and a little.
struct PowerArgument {
  int e, j;
  Extended even, odd;
};

// (e^r - 1 - r) / r^2.
inline constexpr auto exp_table_terms = coefficients({
#include "tables/generated/extended_exp_table_64f_5_pairs.inc"
});

inline constexpr auto power_table = table64({
#include "tables/generated/extended_powers_64f_257_pairs.inc"
});

// Given |x| < 2^14. The product of n and the first part of ln2/256 is exact, and so is the difference from x where n is not 0.
inline PowerArgument ReduceByPowers(Extended x) {
  const Extended n = round_to_multiple<0>(x * (256 * numbers::log2_e<double>));
  const Extended r = (x - n * (numbers::ln2_33_parts<double>[0] / 256)) - n * (numbers::ln2_33_parts<double>[1] / 256);
  const int whole = static_cast<int>(n), j = ((whole + 128) & 0xff) - 128;
  const Extended square = r * r;
  const auto& c = exp_table_terms;
  return {(whole - j) / 256, j, square * (c[0] + square * (c[2] + square * c[4])), r + square * r * (c[1] + square * c[3])};
}

// 2^(j/256) (1 + p) as a short head and the rest. Given |p| < 2^-9.
inline ExtendedPair TablePower(int j, Extended p) {
  const ExtendedPair power = pair_at(power_table, j + 128);
  return {power.head, power.tail + (power.head + power.tail) * p};
}

}  // namespace lum::inline LUM_LAYER::complex
