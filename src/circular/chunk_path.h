// The second path of the low binary64 tiers beyond the threshold of their vector paths: the steps of the scalar sine and cosine
// over vectors. Counts are integers in binary64.
#pragma once

#include "circular/chunk_routine.h"
#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER::circular {

struct CompensatedSums {
  Vec<Lum64f> hi, lo;
  LUM_INLINE void Add(Vec<Lum64f> x) {
    const auto sum = two_sum(hi, x);
    lo = lo + sum.tail;
    hi = sum.head;
  }
  LUM_INLINE void Normalise() {
    const auto s = hi + lo;
    lo = lo - (s - hi);
    hi = s;
  }
};
// x = quarters pi/2 + hi + lo.
struct ReducedArguments {
  Vec<Lum64f> hi, lo, quarters;
};

LUM_INLINE Vec<Lum64f> Truncated(Vec<Lum64f> x) { return rndscale<binary_places(0) | rz | quiet>(x); }
// 1 where the integer is odd, 0 where it is even.
LUM_INLINE Vec<Lum64f> OddPart(Vec<Lum64f> n) { return n - all(2.0) * Truncated(n * all(0.5)); }

// Magnitudes in [2^30, infinity).
LUM_INLINE ReducedArguments ReduceByChunks(Vec<Lum64f> magnitude) {
  const auto pattern = bits(magnitude) - all(uint64_t{200} << lane::Format<Lum64f>::fraction_bits);
  const auto x = as_float(pattern), xh = as_float(pattern & all(uint64_t{0xFFFFFFFFF8000000}));
  const auto xl = x - xh;
  // A 25th of the exponent above 29, by 2^16/25 rounded up.
  const auto above = exponent_field(magnitude) - all(uint64_t{lane::Format<Lum64f>::bias + 29});
  const auto first_chunk = shift_right<16>(mul_low_halves(above, all(uint64_t{2622})));
  const auto low = gather_rows<Lum64f>(four_over_pi_chunks, first_chunk);
  const auto high = gather_rows<Lum64f>(four_over_pi_chunks + 4, first_chunk);
  const auto last = gather<Lum64f>(four_over_pi_chunks + 8, first_chunk);
  const Vec<Lum64f> p[] = {low.column0,  low.column1,  low.column2,  low.column3, high.column0,
                           high.column1, high.column2, high.column3, last};

  CompensatedSums octants{xh * p[1], all(0.0)};
  octants.Add(xl * p[0]);
  for (int j = 1; j <= 2; ++j) {
    octants.Add(xh * p[j + 1]);
    octants.Add(xl * p[j]);
  }
  octants.Normalise();
  const auto whole = Truncated(octants.hi);
  const auto turns = all(8.0) * Truncated(whole * all(0.125));
  const auto even = (whole - turns) + OddPart(whole);
  octants.hi = octants.hi - turns;  // exact
  octants.hi = octants.hi - even;
  octants.Normalise();
  auto quarters = even * all(0.5);
  const auto far = le(all(1.5), abs(octants.hi));
  if (any(far)) {
    const auto rest = zero_unless(far, (octants.hi + all(0x1.8p53)) - all(0x1.8p53));
    auto nearer = octants;
    nearer.hi = octants.hi - rest;
    nearer.Normalise();
    octants = {select(far, nearer.hi, octants.hi), select(far, nearer.lo, octants.lo)};
    quarters = quarters + rest * all(0.5);
  }
  for (int j = 3; j <= 7; ++j) {
    octants.Add(xh * p[j + 1]);
    octants.Add(xl * p[j]);
  }
  octants.Normalise();

  const auto w = octants.hi * all(100663296.0);  // 1.5 * 2^26
  const auto head = (w + octants.hi) - w;
  const auto rest = (octants.hi - head) + octants.lo;
  const auto part1 = all(numbers::quarter_pi_parts<Lum64f>[0]), part2 = all(numbers::quarter_pi_parts<Lum64f>[1]);
  CompensatedSums r{head * part1, rest * part1 + (rest + head) * part2};
  r.Normalise();
  return {r.hi, r.lo, quarters};
}

// Magnitudes in [2^23, 2^30).
LUM_INLINE ReducedArguments ReduceByParts(Vec<Lum64f> magnitude) {
  const auto whole = Truncated(magnitude * all(4 * numbers::inverse_pi<Lum64f>));
  const auto n = whole + OddPart(whole);
  CompensatedSums r{magnitude, all(0.0)};
  for (const double part : numbers::quarter_pi_parts_to_2p30<Lum64f>) r.Add(negate(n * all(part)));
  r.Normalise();
  return {r.hi, r.lo, n * all(0.5)};
}

// The sine of the angle of a row of angles_64f, plus hi + lo.
LUM_INLINE Vec<Lum64f> SineAtRow(Vec<uint64_t> row, Vec<Lum64f> hi, Vec<Lum64f> lo) {
  const auto [cos_tail, cos_head, sin_head, sin_tail] = gather_rows<Lum64f>(angles_64f, shift_left<2>(row));
  const auto by_head = cos_head * hi, by_tail = cos_tail * hi;
  const auto p = sin_head + by_head;
  const auto result = p + by_tail;
  const auto error = ((p - result) + by_tail) + ((sin_head - p) + by_head);
  const auto q = hi * hi;
  const auto cosine = cos_tail + cos_head;
  const auto sine_part = unfused_horner(q, circular::routine_sine) * q * hi;
  const auto cosine_part = unfused_horner(q, circular::routine_cosine) * q;
  const auto sum = sine_part * cosine + error + cosine_part * sin_head;
  return result + (sum + ((cosine - hi * sin_head) * lo + sin_tail));
}

// Up to which row of angles_64f a number is near, and what is left of it.
struct AngleOfRow {
  Vec<uint64_t> row;  // of 64
  Vec<Lum64f> hi, lo;
};
// Finite numbers from 2^23 on in the lanes of the mask; the others are taken for 2^23.
LUM_INLINE AngleOfRow ReduceBeyondThreshold(Vec<Lum64f> x, Mask<Lum64f> lanes) {
  const auto magnitude = select(lanes, abs(x), all(0x1p23));
  const auto is_huge = le(all(0x1p30), magnitude);
  auto a = ReduceByParts(select(is_huge, all(0x1p23), magnitude));
  if (any(is_huge)) {
    const auto huge = ReduceByChunks(select(is_huge, magnitude, all(0x1p30)));
    a = {select(is_huge, huge.hi, a.hi), select(is_huge, huge.lo, a.lo), select(is_huge, huge.quarters, a.quarters)};
  }
  a = {xor_sign(x, a.hi), xor_sign(x, a.lo), xor_sign(x, a.quarters)};

  const auto shifter = all(rounding_shifter<Lum64f>());
  constexpr auto& parts = numbers::thirty_second_pi_parts<Lum64f>;
  const auto w = a.hi * all(32 * numbers::inverse_pi<Lum64f>) + shifter;
  const auto n = w - shifter;
  const auto r = a.hi - n * all(parts[0]);  // exact
  const auto second = n * all(parts[1]);
  const auto hi = r - second;
  const auto lo = ((r - hi) - second) + (n * all(-parts[2]) + a.lo);
  return {bits(w) + shift_left<4>(bits(a.quarters + shifter)), hi, lo};
}
LUM_INLINE Vec<Lum64f> SineOf(const AngleOfRow& a) { return SineAtRow(shift_left<3>(a.row & all(uint64_t{63})), a.hi, a.lo); }
LUM_INLINE Vec<Lum64f> CosineOf(const AngleOfRow& a) {
  return SineAtRow(shift_left<3>((a.row + all(uint64_t{16})) & all(uint64_t{63})), a.hi, a.lo);
}

}  // namespace lum::inline LUM_LAYER::circular
