// The second path of the low binary64 tiers beyond the threshold of their vector paths: the steps of chunk_routine.h over
// vectors.
#pragma once

#include "circular/chunk_routine.h"
#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER::circular {

// Magnitudes in [2^30, infinity).
LUM_INLINE ReducedArgument<Vec<Lum64f>> ReduceByChunks(Vec<Lum64f> magnitude) {
  const auto x = magnitude * all(0x1p-200), xh = x & all(upper_half), xl = x - xh;
  // A 25th of the exponent above 29, by 2^16/25 rounded up.
  const auto above = exponent_field(magnitude) - all(uint64_t{lane::Format<Lum64f>::bias + 29});
  const auto first_chunk = shift_right<16>(mul_low_halves(above, all(uint64_t{2622})));
  const auto low = gather_rows<Lum64f>(four_over_pi_chunks, first_chunk);
  const auto high = gather_rows<Lum64f>(four_over_pi_chunks + 4, first_chunk);
  const auto last = gather<Lum64f>(four_over_pi_chunks + 8, first_chunk);
  const Vec<Lum64f> p[] = {low.column0,  low.column1,  low.column2,  low.column3, high.column0,
                           high.column1, high.column2, high.column3, last};

  TwoParts<Vec<Lum64f>> octants{xh * p[1], all(0.0)};
  Accumulate(octants, xl * p[0]);
  for (int j = 1; j <= 2; ++j) {
    Accumulate(octants, xh * p[j + 1]);
    Accumulate(octants, xl * p[j]);
  }
  const auto quarters = TakeQuarters(octants);
  for (int j = 3; j <= 7; ++j) {
    Accumulate(octants, xh * p[j + 1]);
    Accumulate(octants, xl * p[j]);
  }
  return {TimesQuarterPi(octants), quarters};
}

// Finite numbers from 2^23 on in the lanes of the mask; the others are taken for 2^23.
LUM_INLINE AngleOfRow<Vec<Lum64f>> ReduceBeyondThreshold(Vec<Lum64f> x, Mask<Lum64f> lanes) {
  const auto magnitude = select(lanes, abs(x), all(0x1p23));
  const auto is_huge = le(all(0x1p30), magnitude);
  ReducedArgument<Vec<Lum64f>> a{{magnitude, all(0.0)}, all(0.0)};
  if (any(lanes & ~is_huge))
    a = ReduceByParts(select(is_huge, all(0x1p23), magnitude), numbers::quarter_pi_parts_to_2p30<Lum64f>);
  if (any(is_huge)) {
    const auto huge = ReduceByChunks(select(is_huge, magnitude, all(0x1p30)));
    a = {{select(is_huge, huge.rest.head, a.rest.head), select(is_huge, huge.rest.tail, a.rest.tail)},
         select(is_huge, huge.quarters, a.quarters)};
  }
  return ReduceToRow<Vec<Lum64f>>({{xor_sign(x, a.rest.head), xor_sign(x, a.rest.tail)}, xor_sign(x, a.quarters)});
}

}  // namespace lum::inline LUM_LAYER::circular
