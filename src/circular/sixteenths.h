// Sine and cosine to less than a unit in the last place: x = k pi/16 + r, r held as hi + lo, and the addition theorem with
// sines and cosines of k pi/16 from tables in registers.
#pragma once

#include "circular/polynomials.h"
#include "frame/numbers.h"
#include "frame/types.h"
#include "frame/vec.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::circular {

// x = n pi/16 + hi + lo, n in the low bits of `shifted`; for |x| up to 2^24.
struct Sixteenths {
  Vec<Lum64f> hi, lo;
  Vec<uint64_t> shifted;
};

LUM_INLINE Sixteenths TakeSixteenths(Vec<Lum64f> x) {
  constexpr auto shifter = rounding_shifter<Lum64f>();
  constexpr auto& parts = numbers::sixteenth_pi_parts<Lum64f>;
  const auto t = fma(x, all(16 * numbers::inverse_pi<Lum64f>), all(shifter));
  const auto n = t - all(shifter);
  // The second part has so few bits that n times it is exact.
  const auto part2 = all(parts[1]), part3 = all(parts[2]);
  const auto r1 = fnma(n, all(parts[0]), x);
  const auto r2 = fnma(n, part2, r1);
  const auto error2 = fnma(n, part2, r1 - r2);
  const auto hi = fnma(n, part3, r2);
  return {hi, error2 + fnma(n, part3, r2 - hi), bits(t)};
}

inline constexpr auto sine_heads = table64({
#include "tables/generated/sine_64f_16_head.inc"
});
inline constexpr auto cosine_heads = table64({
#include "tables/generated/cosine_64f_16_head.inc"
});
// The tail of the cosine in the upper halves, below its last place that of the sine.
inline constexpr auto sine_cosine_tails = table64({
#include "tables/generated/sine_cosine_64f_16_tails.inc"
});

// sin and cos of k pi/16, k the low four bits of the count, and what they lack.
struct TableAngle {
  Vec<Lum64f> sine, cosine, sine_tail, cosine_tail;
};

LUM_INLINE Vec<Lum64f> Entry16(const double* table, Vec<uint64_t> index) {
  return permute2(load(table), load(table + 8), index);
}
LUM_INLINE TableAngle AngleOf(Vec<uint64_t> shifted) {
  const auto tails = Entry16(sine_cosine_tails, shifted);
  return {Entry16(sine_heads, shifted), Entry16(cosine_heads, shifted), as_float(shift_left<32>(bits(tails))), tails};
}

// sin(k pi/16 + r) and cos(k pi/16 + r); the sign of a half turn, bit 4 of the count, is still to be applied.
LUM_INLINE Vec<Lum64f> SineOf(const TableAngle& a, const Sixteenths& r) {
  const auto h = fma(a.cosine, r.hi, a.sine);
  const auto error = fma(r.hi, a.cosine_tail, fms(a.cosine, r.hi, h - a.sine));
  const auto d = fma(fnma(a.sine, r.hi, a.cosine), r.lo, a.sine_tail);
  const auto q = r.hi * r.hi;
  const auto t = fma(a.sine, horner(q, circular::sixteenth_cosine), (a.cosine * r.hi) * horner(q, circular::sixteenth_sine));
  return h + fma(t, q, error + d);
}
LUM_INLINE Vec<Lum64f> CosineOf(const TableAngle& a, const Sixteenths& r) {
  const auto h = fnma(a.sine, r.hi, a.cosine);
  const auto error = fnma(r.hi, a.sine_tail, fnms(a.sine, r.hi, h - a.cosine));
  const auto d = fnma(fma(a.cosine, r.hi, a.sine), r.lo, a.cosine_tail);
  const auto q = r.hi * r.hi;
  const auto t = fms(a.cosine, horner(q, circular::sixteenth_cosine), (a.sine * r.hi) * horner(q, circular::sixteenth_sine));
  return h + fma(t, q, error + d);
}

// The sign bit of an odd half turn; with x, changed where x is negative.
LUM_INLINE Vec<uint64_t> HalfTurnSign(const Sixteenths& r) { return shift_left<59>(r.shifted) & all(sign_bit<Lum64f>); }
LUM_INLINE Vec<uint64_t> HalfTurnSign(const Sixteenths& r, Vec<Lum64f> x) {
  return ternary<(A ^ B) & C>(shift_left<59>(r.shifted), bits(x), all(sign_bit<Lum64f>));
}

}  // namespace lum::inline LUM_LAYER::circular
