// Sine and cosine beyond the threshold of the low binary64 tiers' vector paths: the steps, which stand here for scalars and for
// vectors, and the lane routine that has all arguments. The argument is reduced to (-pi/4, pi/4) and a count of quarter turns:
// from 2^30 on by products with pieces of 25 bits of 4/pi, each exact, leaving out the pieces that only give whole turns; from
// 2^17 on by subtraction of multiples of pi/4 in parts. A table of angles of pi/32 and short series finish. No step is fused.
#pragma once

#include <bit>
#include <cstdint>
#include <utility>

#include "circular/large_reduction.h"
#include "circular/nonfinite.h"
#include "circular/polynomials.h"
#include "frame/constant.h"
#include "frame/lane_format.h"
#include "frame/numbers.h"
#include "frame/two_parts.h"

namespace lum::inline LUM_LAYER::circular {

// Entry j + 1: bits 25 j to 25 j + 24 of 4/pi, in its place times 2^200.
inline constexpr auto four_over_pi_chunks = table64({
#include "tables/generated/four_over_pi_chunks_64f_56.inc"
});

// ---- Lookups and roundings, which scalars and vectors make in different ways

// A row of angles_64f.
template <class V> struct AngleColumns { V column0, column1, column2, column3; };
inline AngleColumns<double> AngleAt(uint64_t row) {
  const double* entry = &angles_64f.entries[4 * row];
  return {entry[0], entry[1], entry[2], entry[3]};
}
LUM_INLINE auto AngleAt(Vec<uint64_t> row) { return gather_rows<Lum64f>(angles_64f, shift_left<2>(row)); }

// All bits of a number but for the lower 27 of its significand.
inline constexpr uint64_t upper_half = 0xFFFFFFFFF8000000;

// Toward zero, of numbers below 2^63.
inline double Truncated(double x) { return static_cast<double>(static_cast<int64_t>(x)); }
LUM_INLINE Vec<Lum64f> Truncated(Vec<Lum64f> x) { return rndscale<binary_places(0) | rz | quiet>(x); }

// 1 where the integer is odd, 0 where it is even.
inline double OddPart(double n) { return static_cast<double>(static_cast<int64_t>(n) & 1); }
LUM_INLINE Vec<Lum64f> OddPart(Vec<Lum64f> n) { return n - all(2.0) * Truncated(n * all(0.5)); }

// ---- The steps of both; counts are integers in binary64

// Adds x to the head, a sum of numbers, and the rounding error to the tail.
template <class V> LUM_INLINE void Accumulate(TwoParts<V>& sum, V x) {
  const auto next = two_sum(sum.head, x);
  sum = {next.head, sum.tail + next.tail};
}
template <class V> LUM_INLINE void Normalise(TwoParts<V>& sum) { sum = fast_two_sum(sum.head, sum.tail); }

// x = quarters pi/2 + rest, the quarters modulo 4.
template <class V> struct ReducedArgument {
  TwoParts<V> rest;
  V quarters;
};

// Takes quarter turns from a number of octants; their count modulo 4.
template <class V> LUM_INLINE V TakeQuarters(TwoParts<V>& octants) {
  Normalise(octants);
  const V whole = Truncated(octants.head);
  const V turns = Constant<V>(8.0) * Truncated(whole * Constant<V>(0.125));
  const V even = (whole - turns) + OddPart(whole);  // the nearest even octant
  octants.head = (octants.head - turns) - even;     // the first difference is exact
  Normalise(octants);
  // The last bit of a large head is worth up to four octants, of which the tail holds the rest: what lies next to another even
  // octant has to lose it before more pieces are added, since the sum cannot hold both to the bits that a cancellation leaves.
  const auto is_far = le(Constant<V>(1.5), abs(octants.head));
  if (!any(is_far)) return even * Constant<V>(0.5);
  const V shifter = Constant<V>(0x1.8p53);
  const V other = zero_unless(is_far, (octants.head + shifter) - shifter);
  TwoParts<V> nearer{octants.head - other, octants.tail};
  Normalise(nearer);
  octants = {select(is_far, nearer.head, octants.head), select(is_far, nearer.tail, octants.tail)};
  return (even + other) * Constant<V>(0.5);
}
template <class V> LUM_INLINE TwoParts<V> TimesQuarterPi(TwoParts<V> octants) {
  Normalise(octants);
  const V scaled = octants.head * Constant<V>(100663296.0);  // 1.5 * 2^26
  const V head = (scaled + octants.head) - scaled;
  const V tail = (octants.head - head) + octants.tail;
  constexpr auto& parts = numbers::quarter_pi_parts<Lum64f>;
  const V part1 = Constant<V>(parts[0]), part2 = Constant<V>(parts[1]);
  return fast_two_sum(head * part1, tail * part1 + (tail + head) * part2);
}

// Magnitudes below 2^30 or 2^23, as the parts of pi/4 have it.
template <class V, size_t n> LUM_INLINE ReducedArgument<V> ReduceByParts(V magnitude, const Lum64f (&quarter_pi_parts)[n]) {
  const V whole = Truncated(magnitude * Constant<V>(4 * numbers::inverse_pi<Lum64f>));
  const V even = whole + OddPart(whole);
  TwoParts<V> rest{magnitude, Constant<V>(0.0)};
  for (const Lum64f part : quarter_pi_parts) Accumulate(rest, negate(even * Constant<V>(part)));
  Normalise(rest);
  return {rest, even * Constant<V>(0.5)};
}

template <class V> using Words = decltype(bits(std::declval<V>()));
// x = k pi/32 + rest.
template <class V> struct AngleOfRow {
  Words<V> k;
  TwoParts<V> rest;
};
template <class V> LUM_INLINE AngleOfRow<V> ReduceToRow(const ReducedArgument<V>& a) {
  const V shifter = Constant<V>(rounding_shifter<Lum64f>());
  constexpr auto& parts = numbers::thirty_second_pi_parts<Lum64f>;
  const V shifted = a.rest.head * Constant<V>(32 * numbers::inverse_pi<Lum64f>) + shifter;
  const V n = shifted - shifter;
  const V r = a.rest.head - n * Constant<V>(parts[0]);  // exact
  const V second = n * Constant<V>(parts[1]);
  const V head = r - second;
  const V tail = ((r - head) - second) + (n * Constant<V>(-parts[2]) + a.rest.tail);
  return {bits(shifted) + shift_left<4>(bits(a.quarters + shifter)), {head, tail}};
}

// The sine of the angle of a row of angles_64f, plus head + tail.
template <class V> LUM_INLINE V SineAtRow(Words<V> row, V head, V tail) {
  const auto [cos_tail, cos_head, sin_head, sin_tail] = AngleAt(row);
  const V by_head = cos_head * head, by_tail = cos_tail * head;
  const V p = sin_head + by_head;
  const V result = p + by_tail;
  const V error = ((p - result) + by_tail) + ((sin_head - p) + by_head);
  const V q = head * head;
  const V cosine = cos_tail + cos_head;
  const V sine_part = unfused_horner(q, routine_sine) * q * head;
  const V cosine_part = unfused_horner(q, routine_cosine) * q;
  const V sum = sine_part * cosine + error + cosine_part * sin_head;
  return result + (sum + ((cosine - head * sin_head) * tail + sin_tail));
}
// A turn is 64 steps of pi/32, each of eight rows.
template <class V> LUM_INLINE V SineOf(const AngleOfRow<V>& a) {
  return SineAtRow<V>(shift_left<3>(a.k & Constant<Words<V>>(uint64_t{63})), a.rest.head, a.rest.tail);
}
template <class V> LUM_INLINE V CosineOf(const AngleOfRow<V>& a) {
  return SineOf(AngleOfRow<V>{a.k + Constant<Words<V>>(uint64_t{16}), a.rest});
}

// ---- One number

// magnitude in [2^30, infinity).
inline ReducedArgument<double> ReduceByChunks(double magnitude) {
  const double x = magnitude * 0x1p-200;
  const double xh = std::bit_cast<double>(std::bit_cast<uint64_t>(x) & upper_half), xl = x - xh;
  const double* p = &four_over_pi_chunks.entries[(lane::exponent_field(magnitude) - (lane::Format<double>::bias + 29)) / 25];
  TwoParts<double> octants{0, 0};
  const auto add_pairs = [&](int first, int last) {
    for (int j = first; j <= last; ++j) {
      Accumulate(octants, xh * p[j + 1]);
      Accumulate(octants, xl * p[j]);
    }
  };
  add_pairs(0, 2);
  const double quarters = TakeQuarters(octants);
  add_pairs(3, 7);
  return {TimesQuarterPi(octants), quarters};
}

inline LumStatus SineAndCosine(double x, double& sine, double& cosine) {
  constexpr int bias = lane::Format<double>::bias;
  const int exponent = lane::exponent_field(x) - bias;
  if (exponent > bias) {
    const LumStatus status = CircularOfNonFinite(x, sine);
    cosine = sine;
    return status;
  }
  if (exponent < -252) {
    sine = x == 0 ? x : (x * 0x1p55 - x) * 0x1p-55;  // raises the inexact flag, as a rounded sine does
    cosine = 1;
    return lumStsOk;
  }
  ReducedArgument<double> a{{x, 0}, 0};
  if (exponent >= 17) {
    const double magnitude = lane::magnitude(x);
    if (exponent >= 30) a = ReduceByChunks(magnitude);
    else if (exponent >= 23) a = ReduceByParts(magnitude, numbers::quarter_pi_parts_to_2p30<Lum64f>);
    else a = ReduceByParts(magnitude, numbers::quarter_pi_parts_to_2p23<Lum64f>);
    if (x < 0) a = {{-a.rest.head, -a.rest.tail}, -a.quarters};
  }
  const auto angle = ReduceToRow(a);
  sine = SineOf(angle);
  cosine = CosineOf(angle);
  return lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::circular
