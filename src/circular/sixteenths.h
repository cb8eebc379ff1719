// Sine and cosine to less than a unit in the last place: x = k pi/16 + r, r held as hi + lo, and the addition theorem with
// sines and cosines of k pi/16 from tables in registers.
#pragma once

#include "frame/types.h"
#include "frame/vec.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

// x = n pi/16 + hi + lo, n in the low bits of `shifted`; for |x| up to 2^24.
struct Sixteenths {
  Vec<Lum64f> hi, lo;
  Vec<uint64_t> shifted;
};

LUM_INLINE Sixteenths TakeSixteenths(Vec<Lum64f> x) {
  constexpr auto shifter = f64(0x4338000000000000, 0x1.8p52);
  const auto t = fma(x, all(f64(0x40145F306DC9C883, 5.092958178940651)), all(shifter));
  const auto n = t - all(shifter);
  // The second part has so few bits that n times it is exact.
  const auto part2 = all(f64(0x3C61A62633000000, 7.654042492615175e-18)),
             part3 = all(f64(0x3A645C06E0E68948, 2.0557821170405322e-27));
  const auto r1 = fnma(n, all(f64(0x3FC921FB54442D18, 0.19634954084936207)), x);
  const auto r2 = fnma(n, part2, r1);
  const auto error2 = fnma(n, part2, r1 - r2);
  const auto hi = fnma(n, part3, r2);
  return {hi, error2 + fnma(n, part3, r2 - hi), bits(t)};
}

inline constexpr auto sine_16 = table64({
#include "tables/generated/sine_16.inc"
});
inline constexpr auto cosine_16 = table64({
#include "tables/generated/cosine_16.inc"
});
// The tail of the cosine in the upper halves, below its last place that of the sine.
inline constexpr auto tails_16 = table64({
#include "tables/generated/sine_cosine_tails_16.inc"
});

// sin and cos of k pi/16, k the low four bits of the count, and what they lack.
struct TableAngle {
  Vec<Lum64f> sine, cosine, sine_tail, cosine_tail;
};

LUM_INLINE Vec<Lum64f> Entry16(const double* table, Vec<uint64_t> index) {
  return permute2(load(table), load(table + 8), index);
}
LUM_INLINE TableAngle AngleOf(Vec<uint64_t> shifted) {
  const auto tails = Entry16(tails_16, shifted);
  return {Entry16(sine_16, shifted), Entry16(cosine_16, shifted), as_float(shift_left<32>(bits(tails))), tails};
}

// (cos r - 1) / r^2 and (sin r - r) / r^3 of q = r^2, |r| <= pi/32.
LUM_INLINE Vec<Lum64f> CosineSeries(Vec<Lum64f> q) {
  return horner(q, f64(0xBFDFFFFFFFFFFFFC, -0.4999999999999998), f64(0x3FA555555554E8D6, 0.04166666666647394),
                f64(0xBF56C16C075D73F8, -0.0013888888328985587), f64(0x3EF9FFD7D9D749BC, 2.4794947980863574e-05));
}
LUM_INLINE Vec<Lum64f> SineSeries(Vec<Lum64f> q) {
  return horner(q, f64(0xBFC5555555555555, -0.16666666666666666), f64(0x3F8111111110E99D, 0.008333333333315813),
                f64(0xBF2A01A00ED01EDE, -0.00019841269332253932), f64(0x3EC71C97D22A73DD, 2.755128336430562e-06));
}

// sin(k pi/16 + r), and the same of the cosine; the sign of a half turn, bit 4 of the count, is still to be applied.
LUM_INLINE Vec<Lum64f> SineOf(const TableAngle& a, const Sixteenths& r) {
  const auto h = fma(a.cosine, r.hi, a.sine);
  const auto error = fma(r.hi, a.cosine_tail, fms(a.cosine, r.hi, h - a.sine));
  const auto d = fma(fnma(a.sine, r.hi, a.cosine), r.lo, a.sine_tail);
  const auto q = r.hi * r.hi;
  const auto t = fma(a.sine, CosineSeries(q), (a.cosine * r.hi) * SineSeries(q));
  return h + fma(t, q, error + d);
}
LUM_INLINE Vec<Lum64f> CosineOf(const TableAngle& a, const Sixteenths& r) {
  const auto h = fnma(a.sine, r.hi, a.cosine);
  const auto error = fnma(r.hi, a.sine_tail, fnms(a.sine, r.hi, h - a.cosine));
  const auto d = fnma(fma(a.cosine, r.hi, a.sine), r.lo, a.cosine_tail);
  const auto q = r.hi * r.hi;
  const auto t = fms(a.cosine, CosineSeries(q), (a.sine * r.hi) * SineSeries(q));
  return h + fma(t, q, error + d);
}

// The sign bit of an odd half turn; with x, changed where x is negative.
LUM_INLINE Vec<uint64_t> HalfTurnSign(const Sixteenths& r) { return shift_left<59>(r.shifted) & all(sign_bit<Lum64f>); }
LUM_INLINE Vec<uint64_t> HalfTurnSign(const Sixteenths& r, Vec<Lum64f> x) {
  return ternary<(A ^ B) & C>(shift_left<59>(r.shifted), bits(x), all(sign_bit<Lum64f>));  // (a ^ b) & c
}

}  // namespace lum::inline LUM_LAYER
