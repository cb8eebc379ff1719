// The inverse of erfc around the nodes of a large table, for the inverses in binary64. The grid has 128 nodes a binade of the
// distance from either end of the interval from 0 to 1: the distance is cut to 7 fraction bits. At a node q0, with
// y0 = erfcinv q0 and d = |q - q0| exp(y0^2),
//   erfcinv q = y0 -+ (sqrt(pi)/2) d + (pi/4) y0 d^2 -+ ...,
// a series whose coefficients are polynomials in y0^2, with y0 as a factor of the even ones.
#pragma once

#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::erf {

// Word 0 of a row: erfcinv q0 cut toward zero, its pattern less a constant, in the low 58 bits; above them the count of units
// of its relative tail, 2^-58. Word 1: the slope exp(y0^2).
inline constexpr auto inverse_table = table64({
#include "tables/generated/erfcinv_64f_13313.inc"
});

struct Expansion {
  Vec<Lum64f> y, tail, d;  // y0 = y (1 + tail); d >= 0
};

// Whether the node is the one next below q or above it.
enum class Node { below, above };
// s is the distance of q from 0, or from 1 in the lanes of from_one; least is the distance that has the first row.
template <Node node_is> LUM_INLINE Expansion Expand(Vec<Lum64f> s, Mask<Lum64f> from_one, double least) {
  constexpr uint64_t step = uint64_t{1} << 45;
  constexpr uint64_t last_entry = inverse_table.size - 2;
  const auto farther = node_is == Node::above ? ~from_one : from_one;  // where the node is farther from the end than q
  const auto pattern = bits(s);
  const auto lifted = select(mask_cast<uint64_t>(farther), pattern + all(step - 1), pattern);
  const auto node = lifted & all(~(step - 1));
  // Two entries a row: the even number of entries in front of it.
  const auto i = shift_right<44>(node - all(std::bit_cast<uint64_t>(least)));
  const auto entry = select(mask_cast<uint64_t>(from_one), all(last_entry) - i, i);
  const auto word = bits(gather<Lum64f>(inverse_table, entry));
  const auto slope = gather<Lum64f>(inverse_table + 1, entry);
  const auto units = shift_right<58>(word) | all(std::bit_cast<uint64_t>(0x1p-6));  // whose last place is 2^-58
  const auto y = (word & all(uint64_t{0x03FFFFFFFFFFFFFF})) + all(uint64_t{0x3C8C000000000000});
  return {as_float(y), as_float(units) - all(0x1p-6), abs(s - as_float(node)) * slope};
}

// A value brought into the range of the table, the first of its bounds for a NaN; refused is where that changed it.
struct Clamped {
  Vec<Lum64f> value;
  Mask<Lum64f> refused;
};
LUM_INLINE Clamped ClampTo(double low, double high, Vec<Lum64f> t) {
  const auto value = min(max(t, all(low)), all(high));
  return {value, ne(value, t)};
}

// The sum of the first terms of the series, over d. S::c<k> is that of d^k, for k from 3 on an array of the coefficients of
// y0^0, y0^2, ...
template <class S, int terms> LUM_INLINE Vec<Lum64f> SeriesOf(Vec<Lum64f> y, Vec<Lum64f> d) {
  static_assert(terms == 3 || terms == 6 || terms == 7);
  const auto z = y * y;
  const auto k2 = all(S::c2) * y;
  const auto k3 = horner(z, S::c3);
  if constexpr (terms == 3) {
    return fma(fma(k3, d, k2), d, all(S::c1));
  } else {
    const auto k4 = horner(z, S::c4) * y;
    const auto k5 = horner(z, S::c5);
    const auto k6 = horner(z, S::c6) * y;
    auto s = k6;
    if constexpr (terms == 7) s = fma(horner(z, S::c7), d, k6);
    return fma(fma(fma(fma(fma(s, d, k5), d, k4), d, k3), d, k2), d, all(S::c1));
  }
}

// The series of erfinv x, and with d negative of erfcinv q.
struct ErrorSeries {
  static constexpr auto c1 = numbers::half_root_pi_parts<Lum64f>[0], c2 = numbers::quarter_pi<Lum64f>;
  static constexpr auto& c3 = numbers::erfinv_series_3<Lum64f>;
  static constexpr auto& c4 = numbers::erfinv_series_4<Lum64f>;
  static constexpr auto& c5 = numbers::erfinv_series_5<Lum64f>;
  static constexpr auto& c6 = numbers::erfinv_series_6<Lum64f>;
  static constexpr auto& c7 = numbers::erfinv_series_7<Lum64f>;
};

// How far a tier goes: the terms of the series, and whether the tail of y0 takes part.
struct Expanded {
  int terms;
  bool has_tail;
};
// y (1 + tail) and the series.
template <Expanded tier> LUM_INLINE Vec<Lum64f> SumOf(Vec<Lum64f> y, Vec<Lum64f> tail, Vec<Lum64f> d) {
  const auto series = SeriesOf<ErrorSeries, tier.terms>(y, d);
  if constexpr (tier.has_tail) return y + fma(series, d, y * tail);
  else return fma(series, d, y);
}

}  // namespace lum::inline LUM_LAYER::erf
