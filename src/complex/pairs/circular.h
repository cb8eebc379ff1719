// Sine and cosine in pairs: y = k pi/128 + r with |r| <= pi/256, a table of the angles, and the series of r by the addition
// theorems. Relative error of each below 2^-64.
#pragma once

#include "complex/pairs/pair.h"
#include "complex/polynomials.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

// Up to here k times the leading parts of pi/128 is exact.
inline constexpr Lum64f largest_angle = 10000;

struct CircularPair {
  HeadTail sine, cosine;
  Mask<Lum64f> refused;  // so near to a multiple of pi/128 that r has lost bits
};

// The sine of a zero is that zero.
LUM_INLINE CircularPair SineCosineOf(Vec<Lum64f> y) {
  static constexpr auto table = table64({
#include "tables/generated/sine_cosine_64f_256_pairs.inc"
  });
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const auto magnitude = abs(y);
  const auto t = fma(magnitude, all(128 * numbers::inverse_pi<Lum64f>), all(shifter));
  const auto k = t - all(shifter);
  const auto second = all(numbers::pi_128th_parts<Lum64f>[1]);
  const auto r1 = fnma(k, all(numbers::pi_128th_parts<Lum64f>[0]), magnitude);  // exact, as is the second product
  const auto r = fnma(k, second, r1);
  const auto r_tail = fnma(k, all(numbers::pi_128th_parts<Lum64f>[2]), fnma(k, second, r1 - r));
  const auto q = r * r;
  const auto sine_rest = fma(r * q, horner(q, complex::pairs_sine), r_tail);
  const auto cosine_rest = fnma(r, r_tail, q * horner(q, complex::pairs_cosine));
  const auto row = gather_rows<Lum64f>(table, shift_left<2>(bits(t) & all(uint64_t{255})));
  const HeadTail s{row.column0, row.column1}, c{row.column2, row.column3};
  const auto for_sine = two_product(c.head, r), for_cosine = two_product(s.head, r);
  const auto sine = fast_two_sum(s.head, for_sine.head), cosine = fast_two_sum(c.head, negate(for_cosine.head));
  const auto sine_tail = fma(c.tail, r, s.tail + (sine.tail + for_sine.tail));
  const auto cosine_tail = fnma(s.tail, r, c.tail + (cosine.tail - for_cosine.tail));
  return {XorSign(y, fast_two_sum(sine.head, fma(s.head, cosine_rest, fma(c.head, sine_rest, sine_tail)))),
          fast_two_sum(cosine.head, fma(c.head, cosine_rest, fnma(s.head, sine_rest, cosine_tail))),
          lt(abs(r), all(0x1p-19)) & ne(k, all(0.0))};
}

}  // namespace lum::inline LUM_LAYER
