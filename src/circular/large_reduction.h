// Sines and cosines of arguments too large for a subtraction of multiples of pi. |x| / (2 pi) modulo 1 is an exact fixed-point
// product: the integer significand of x times a span of the bits of 1/pi that a table holds ready for every exponent, so that
// nothing is shifted and the whole turns fall off at the top (M. Payne, R. Hanek, 1983). The first bits of the fraction select
// an angle from a table, the rest is a small remainder in radians.
#pragma once

#include <array>
#include <cstdint>

#include "circular/polynomials.h"
#include "frame/lane_format.h"
#include "frame/numbers.h"
#include "frame/types.h"
#include "frame/vec.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::circular {

// Row e, for the exponent field e of x: three words with (1/pi) 2^(e - 884) modulo 2^192, or 2^(e - 55) modulo 2^96.
// One more word, since rows are read four words at a time.
inline constexpr Table<uint64_t, 3 * 2048 + 1> large_reduction_64f = {{
#include "tables/generated/large_reduction_64f_2048.inc"
}};
inline constexpr Table<uint32_t, 3 * 256 + 1> large_reduction_32f = {{
#include "tables/generated/large_reduction_32f_256.inc"
}};
// Row i, for the angle of i/512 turn: tail and head of the cosine, head and tail of the sine. The head of the cosine is a power
// of 2, so that its products are exact.
inline constexpr auto angles_64f = table64({
#include "tables/generated/angles_64f_512.inc"
});
// Row i, for the angle of i/256 turn: tail of the cosine, head and tail of the sine, head of the cosine.
inline constexpr auto angles_32f = table32({
#include "tables/generated/angles_32f_256.inc"
});

template <class T> struct LargeConstants;
template <> struct LargeConstants<Lum64f> {
  static constexpr const uint64_t* table = large_reduction_64f;
  static constexpr auto shifter = rounding_shifter<Lum64f>(9);  // the last bit of the sum is worth 1/512
  static constexpr auto turn = 2 * numbers::pi<Lum64f>, turn_tail = 2 * numbers::pi_tail<Lum64f>;
  static constexpr uint64_t quarter = 128, index_mask = 511;
};
template <> struct LargeConstants<Lum32f> {
  static constexpr const uint32_t* table = large_reduction_32f;
  static constexpr auto shifter = rounding_shifter<Lum32f>(8);  // the last bit of the sum is worth 1/256
  static constexpr auto turn = 2 * numbers::pi<Lum32f>, turn_tail = 2 * numbers::pi_tail<Lum32f>;
  static constexpr uint32_t quarter = 64, index_mask = 255;
};

// A limb is half a lane. Its upper neighbour may be left in place in 64-bit lanes, where the multiplication ignores it.
LUM_INLINE Vec<uint64_t> LowLimb(Vec<uint64_t> a) { return a; }
LUM_INLINE Vec<uint32_t> LowLimb(Vec<uint32_t> a) { return a & all(0xFFFFu); }
LUM_INLINE Vec<uint64_t> LimbProduct(Vec<uint64_t> a, Vec<uint64_t> b) { return mul_low_halves(a, b); }
LUM_INLINE Vec<uint32_t> LimbProduct(Vec<uint32_t> a, Vec<uint32_t> b) { return a * b; }

// The first two words of |x| / (2 pi) modulo 1, cut off, not rounded.
template <class U> struct TurnBits { Vec<U> high, low; };

template <class T> LUM_INLINE TurnBits<UnsignedOf<T>> TurnsOf(Vec<T> x) {
  using F = lane::Format<T>;
  using U = UnsignedOf<T>;
  constexpr int half = 4 * sizeof(T);
  constexpr U limb_mask = (U{1} << half) - 1;
  constexpr U hidden_bit = U{1} << (F::fraction_bits - half);
  const auto low = [](Vec<U> a) { return a & all(limb_mask); };
  const auto high = [](Vec<U> a) { return shift_right<half>(a); };

  const auto a = bits(x);
  const auto exponent = shift_right<F::fraction_bits>(a) & all(F::infinity >> F::fraction_bits);
  const auto row = exponent + exponent + exponent;
  const auto [w0, w1, w2, next_row] = gather_rows(LargeConstants<T>::table, row);
  const auto a5 = high(w0), a4 = LowLimb(w0), a3 = high(w1), a2 = LowLimb(w1), a1 = high(w2), a0 = LowLimb(w2);
  const auto m1 = (high(a) & all(static_cast<U>(hidden_bit - 1))) | all(hidden_bit);
  const auto m0 = LowLimb(a);

  // Sums by limbs from the right, each with the carry of the one before; what only touches the last bit is left out.
  const auto p2 = LimbProduct(a2, m0), p3 = LimbProduct(a3, m0), p4 = LimbProduct(a4, m0);
  const auto s0 = low(p2) + LimbProduct(a1, m1) + high(LimbProduct(a1, m0)) + high(LimbProduct(a0, m1));
  const auto s1 = low(p3) + high(p2) + LimbProduct(a2, m1) + high(s0);
  const auto s2 = low(p4) + LimbProduct(a3, m1) + high(p3) + high(s1);
  const auto top = shift_left<half>(LimbProduct(a4, m1) + LimbProduct(a5, m0) + high(p4));
  return {s2 + top, shift_left<half>(s1) | low(s0)};
}

// x = whole turns + index (turn/512 or turn/256) + hi + lo, |hi| up to half a step of the index. With a negative x the index is
// negative, in two's complement; sign is the sign bit of x, or zero to reduce |x|.
template <class T> struct LargeAngle {
  Vec<UnsignedOf<T>> index;
  Vec<T> hi, lo;
};

template <class T> LUM_INLINE LargeAngle<T> AngleOfTurns(const TurnBits<UnsignedOf<T>>& turns, Vec<UnsignedOf<T>> sign) {
  using C = LargeConstants<T>;
  using F = lane::Format<T>;
  constexpr int width = F::width, p = F::fraction_bits, rest = 2 * (width - p);
  // Numbers from bits: a unit with the bits as its fraction, less the unit. All differences are exact.
  const auto unit = [&](int exponent) { return all(lane::to_bits(lane::power_of_two<T>(exponent))) | sign; };
  const auto z = as_float(shift_right<width - p>(turns.high) | unit(0));
  const auto mid_bits = (shift_left<2 * p - width>(turns.high) & all(F::fraction)) | shift_right<rest>(turns.low);
  const auto low_bits = shift_left<p - rest>(turns.low) & all(F::fraction);
  const auto mid = as_float(mid_bits | unit(-p)) - as_float(unit(-p));
  const auto low = as_float(low_bits | unit(-2 * p)) - as_float(unit(-2 * p));
  const auto s = z + all(C::shifter);
  const auto first = z - (s - all(C::shifter));

  const auto g = first + mid;
  const auto e = ((first - g) + mid) + low;
  const auto hi = g * all(C::turn);
  const auto lo = fma(all(C::turn), e, fma(all(C::turn_tail), g, fms(all(C::turn), g, hi)));
  return {bits(s) & all(C::index_mask), hi, lo};
}
template <class T> LUM_STAGE LargeAngle<T> ReduceLarge(VecIn<T> x, VecIn<UnsignedOf<T>> sign) {
  return AngleOfTurns<T>(TurnsOf<T>(x), sign);
}

// sin(index + hi + lo), by the addition theorem with polynomials for the sine and cosine of hi.
LUM_STAGE Vec<Lum64f> SineOf(VecIn<uint64_t> index, VecIn<Lum64f> hi, VecIn<Lum64f> lo) {
  const auto [cos_tail, cos_head, sin_head, sin_tail] = gather_rows<Lum64f>(angles_64f, shift_left<2>(index));
  const auto p = fma(cos_head, hi, sin_head);
  const auto result = fma(cos_tail, hi, p);
  const auto error = fma(cos_tail, hi, p - result) + fma(cos_head, hi, sin_head - p);
  const auto q = hi * hi;
  const auto cosine = cos_tail + cos_head;
  const auto sine_part = (horner(q, circular::large_sine_64f) * q) * hi;
  const auto cosine_part = horner(q, circular::large_cosine_64f) * q;
  const auto sum = fma(cosine_part, sin_head, fma(sine_part, cosine, error));
  const auto slope = fnma(hi, sin_head, cosine);
  return result + (sum + fma(lo, slope, sin_tail));
}
LUM_STAGE Vec<Lum32f> SineOf(VecIn<uint32_t> index, VecIn<Lum32f> hi, VecIn<Lum32f> lo) {
  const auto [cos_tail, sin_head, sin_tail, cos_head] = gather_rows<Lum32f>(angles_32f, shift_left<2>(index));
  const auto slope = fnma(sin_head, hi, cos_tail + cos_head);
  const auto q = hi * hi;
  const auto cosine_part = horner(q, circular::large_cosine_32f) * q;
  const auto t = fma(sin_head, cosine_part, fma(slope, lo, sin_tail));
  const auto h = fma(cos_head, hi, sin_head);
  const auto result = fma(cos_tail, hi, h);
  const auto error = fma(cos_tail, hi, h - result) + fma(cos_head, hi, sin_head - h);
  const auto sine_part = (horner(q, circular::large_sine_32f) * q) * hi;
  return result + (t + fma(slope, sine_part, error));
}
// The cosine is the sine a quarter of a turn further.
template <class T> LUM_INLINE Vec<T> CosineOf(Vec<UnsignedOf<T>> index, Vec<T> hi, Vec<T> lo) {
  using C = LargeConstants<T>;
  return SineOf((index + all(C::quarter)) & all(C::index_mask), hi, lo);
}

// sin x and cos x by way of |x|, the sign of the sine still to be applied (64f); with the sign of x (32f).
LUM_INLINE LargeAngle<Lum64f> ReduceLarge(Vec<Lum64f> x) { return ReduceLarge(x, all(uint64_t{0})); }
LUM_INLINE LargeAngle<Lum32f> ReduceLarge(Vec<Lum32f> x) { return ReduceLarge(x, sign_of(x)); }

template <class T> LUM_INLINE Vec<T> LargeSine(Vec<T> x) {
  const auto a = ReduceLarge(x);
  return SineOf(a.index, a.hi, a.lo);
}
template <class T> LUM_INLINE Vec<T> LargeCosine(Vec<T> x) {
  const auto a = ReduceLarge(x);
  return CosineOf(a.index, a.hi, a.lo);
}

// The same of two vectors stage by stage: one is a long chain of operations, and the processor overlaps two.
template <class T> using TwoVectors = std::array<Vec<T>, 2>;
template <class T> LUM_INLINE std::array<LargeAngle<T>, 2> ReduceLarge(const TwoVectors<T>& x) {
  const auto sign = [](Vec<T> v) __attribute__((always_inline)) { return sizeof(T) == 8 ? all(UnsignedOf<T>{0}) : sign_of(v); };
  const auto turns0 = TurnsOf<T>(x[0]), turns1 = TurnsOf<T>(x[1]);
  return {AngleOfTurns<T>(turns0, sign(x[0])), AngleOfTurns<T>(turns1, sign(x[1]))};
}
template <class T> LUM_INLINE TwoVectors<T> LargeSine(const TwoVectors<T>& x) {
  const auto [a, b] = ReduceLarge<T>(x);
  return {SineOf(a.index, a.hi, a.lo), SineOf(b.index, b.hi, b.lo)};
}
template <class T> LUM_INLINE TwoVectors<T> LargeCosine(const TwoVectors<T>& x) {
  const auto [a, b] = ReduceLarge<T>(x);
  return {CosineOf<T>(a.index, a.hi, a.lo), CosineOf<T>(b.index, b.hi, b.lo)};
}

}  // namespace lum::inline LUM_LAYER::circular
