// Angles k/128 of the arctangent's table: atan(s/l) = atan c + atan((s - c l)/(l + c s)) with c = k/128 next to s/l.
#pragma once

#include "complex/core/extended_pair.h"

namespace lum::inline LUM_LAYER::complex {

// Row k: atan(k/128), from 128 on pi/2 less that of 256 - k, from 256 on pi less row 512 - k.
inline constexpr auto angle_table = table64({
#include "tables/generated/extended_angles_64f_513_pairs.inc"
});
inline constexpr int quarter_turn = 256, half_turn = 512;

inline ExtendedPair Angle(int row) { return pair_at(angle_table, row); }

// (atan u - u) / u^3.
inline constexpr std::array<Extended, 4> arctangent_series = {-1.0L / 3, 1.0L / 5, -1.0L / 7, 1.0L / 9};

// A row of the table and the tangent u of the angle beyond it.
struct TableAngle {
  int k;
  ExtendedPair u;
};

// The terms of atan(s/l). Given 0 <= s <= l, neither so large or small that products of their tails are lost.
inline TableAngle ArctangentByTable(Extended s, Extended l) {
  const Extended c = round_to_multiple<-7>(s / l);
  const ExtendedPair large_parts = split(l), product = two_product(c, s);
  // s less the first product is exact: c is short, and next to s/l.
  const ExtendedPair numerator = two_sum(s - c * large_parts.head, -(c * large_parts.tail));
  const ExtendedPair sum = fast_two_sum(l, product.head);
  return {static_cast<int>(c * 128), divide(numerator, {sum.head, sum.tail + product.tail})};
}

// angle + atan u or angle - atan u. Given |u| below 2^-7.
inline Extended AddArctangent(ExtendedPair angle, ExtendedPair u) {
  const Extended square = u.head * u.head;
  const Extended rest = u.tail + u.head * square * polynomial(arctangent_series, square);
  const ExtendedPair sum = two_sum(angle.head, u.head);
  return sum.head + (sum.tail + (angle.tail + rest));
}

}  // namespace lum::inline LUM_LAYER::complex
