// Sine and cosine in pairs: y = k pi/128 + r with |r| <= pi/256, a table of the angles, and the series of r by the addition
// theorems. Relative error of each below 2^-64.
#pragma once

#include "circular/large_reduction.h"
#include "complex/pairs/pair.h"
#include "complex/polynomials.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::complex {

// Up to here k times the leading parts of pi/128 is exact.
inline constexpr Lum64f largest_angle = 10000;
// In one part the difference from k times the first part alone has to be exact: a multiple of 2^-39, up to 1 in magnitude.
template <class Number> inline constexpr Lum64f largest_angle_of = std::is_same_v<Number, OnePart> ? 0x1p34 : largest_angle;

template <class Number> struct SineAndCosine {
  Number sine, cosine;
  Mask<Lum64f> refused;  // so near to a multiple of pi/128 that r has lost bits
};

// |y| = k pi/128 + r, the low bits of the row being k.
template <class Number> struct ReducedAngle {
  Vec<uint64_t> row;
  Number r;
  Mask<Lum64f> refused;
};
LUM_INLINE ReducedAngle<HeadTail> ReduceAngle(Vec<Lum64f> magnitude) {
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const auto t = fma(magnitude, all(128 * numbers::inverse_pi<Lum64f>), all(shifter));
  const auto k = t - all(shifter);
  const auto second = all(numbers::pi_128th_parts<Lum64f>[1]);
  const auto r1 = fnma(k, all(numbers::pi_128th_parts<Lum64f>[0]), magnitude);  // exact, as is the second product
  const auto r = fnma(k, second, r1);
  const auto r_tail = fnma(k, all(numbers::pi_128th_parts<Lum64f>[2]), fnma(k, second, r1 - r));
  return {bits(t), {r, r_tail}, lt(abs(r), all(0x1p-19)) & ne(k, all(0.0))};
}

// Each step is rounded once, and r is far larger than the third part's product.
LUM_INLINE ReducedAngle<OnePart> ReduceAngleInOnePart(Vec<Lum64f> magnitude) {
  constexpr auto shifter = rounding_shifter<Lum64f>();
  constexpr auto& parts = numbers::pi_128th_parts<Lum64f>;
  const auto t = fma(magnitude, all(128 * numbers::inverse_pi<Lum64f>), all(shifter));
  const auto k = t - all(shifter);
  const auto r = fnma(k, all(parts[2]), fnma(k, all(parts[1]), fnma(k, all(parts[0]), magnitude)));
  return {bits(t), {r}, lt(abs(r), all(0x1p-30)) & ne(k, all(0.0))};
}

// The table's row of an angle.
LUM_INLINE auto SineCosineRow(Vec<uint64_t> row) {
  static constexpr auto table = table64({
#include "tables/generated/sine_cosine_64f_256_pairs.inc"
  });
  return gather_rows<Lum64f>(table, shift_left<2>(row & all(uint64_t{255})));
}

LUM_INLINE SineAndCosine<OnePart> SineCosineOfReduced(Vec<Lum64f> y, const ReducedAngle<OnePart>& angle) {
  const auto r = angle.r.head, q = r * r;
  const auto sine_of_r = fma(r * q, horner(q, pairs_sine), r), cosine_rest = q * horner(q, pairs_cosine);
  const auto row = SineCosineRow(angle.row);
  const auto s = row.column0, c = row.column2;
  return {XorSign(y, OnePart{fma(c, sine_of_r, fma(s, cosine_rest, s))}),
          {fnma(s, sine_of_r, fma(c, cosine_rest, c))},
          angle.refused};
}
LUM_INLINE SineAndCosine<HeadTail> SineCosineOfReduced(Vec<Lum64f> y, const ReducedAngle<HeadTail>& angle) {
  const auto r = angle.r.head, r_tail = angle.r.tail;
  const auto q = r * r;
  const auto sine_rest = fma(r * q, horner(q, pairs_sine), r_tail);
  const auto cosine_rest = fnma(r, r_tail, q * horner(q, pairs_cosine));
  const auto row = SineCosineRow(angle.row);
  const HeadTail s{row.column0, row.column1}, c{row.column2, row.column3};
  const auto for_sine = two_product(c.head, r), for_cosine = two_product(s.head, r);
  const auto sine = fast_two_sum(s.head, for_sine.head), cosine = fast_two_sum(c.head, negate(for_cosine.head));
  const auto sine_tail = fma(c.tail, r, s.tail + (sine.tail + for_sine.tail));
  const auto cosine_tail = fnma(s.tail, r, c.tail + (cosine.tail - for_cosine.tail));
  return {XorSign(y, fast_two_sum(sine.head, fma(s.head, cosine_rest, fma(c.head, sine_rest, sine_tail)))),
          fast_two_sum(cosine.head, fma(c.head, cosine_rest, fnma(s.head, sine_rest, cosine_tail))), angle.refused};
}
// The sine of a zero is that zero.
template <class Number> LUM_INLINE SineAndCosine<Number> SineCosineOf(Vec<Lum64f> y) {
  if constexpr (std::is_same_v<Number, OnePart>) return SineCosineOfReduced(y, ReduceAngleInOnePart(abs(y)));
  else return SineCosineOfReduced(y, ReduceAngle(abs(y)));
}

// The reduction of angles beyond the largest, by the remainder of turns in fixed-point numbers: an index of steps of pi/256 and
// hi + lo, of which the odd steps go half to either side.
LUM_INLINE ReducedAngle<HeadTail> FarAngle(Vec<Lum64f> magnitude) {
  const auto turned = circular::ReduceLarge<Lum64f>(magnitude, all(uint64_t{0}));
  const auto is_odd = mask_cast<Lum64f>(test_any(turned.index, all(uint64_t{1})));
  const auto step = zero_unless(is_odd, or_sign(turned.hi, all(numbers::pi<Lum64f> / 256)));
  const auto step_tail = zero_unless(is_odd, or_sign(turned.hi, all(numbers::pi_tail<Lum64f> / 256)));
  const auto rises = mask_cast<uint64_t>(is_odd & ~mask_cast<Lum64f>(sign_mask(bits(turned.hi))));
  const auto sum = two_sum(turned.hi, negate(step));
  const auto r = fast_two_sum(sum.head, sum.tail + (turned.lo - step_tail));
  const auto row = shift_right<1>(select(rises, turned.index + all(uint64_t{1}), turned.index));
  return {row, r, lt(abs(r.head), all(0x1p-19))};
}
enum class Registers { low, high, all };
template <Registers registers, class V> [[gnu::noinline]] ReducedAngle<HeadTail> CalledFarAngle(const V& magnitude) {
  if constexpr (registers == Registers::low) return FarAngle(low_register(magnitude));
  else if constexpr (registers == Registers::high) return FarAngle(high_register(magnitude));
  else return FarAngle(magnitude);
}
// Where a vector is two registers, one by one: it is the end of the longest chain of calls, of which each may take little of
// the stack.
template <class V> LUM_INLINE ReducedAngle<HeadTail> ReduceFarAngle(const V& magnitude) {
  if constexpr (has_halves) {
    const auto low = CalledFarAngle<Registers::low>(magnitude), high = CalledFarAngle<Registers::high>(magnitude);
    return {join_registers(low.row, high.row),
            {join_registers(low.r.head, high.r.head), join_registers(low.r.tail, high.r.tail)},
            join_registers(low.refused, high.refused)};
  } else {
    return CalledFarAngle<Registers::all>(magnitude);
  }
}
LUM_INLINE ReducedAngle<OnePart> InOnePart(const ReducedAngle<HeadTail>& angle) {
  return {angle.row, {angle.r.head}, lt(abs(angle.r.head), all(0x1p-30))};
}
template <class Number>
LUM_INLINE ReducedAngle<Number> SelectAngle(Mask<Lum64f> m, const ReducedAngle<Number>& a, const ReducedAngle<Number>& b) {
  return {select(mask_cast<uint64_t>(m), a.row, b.row), Select(m, a.r, b.r), (m & a.refused) | (b.refused & ~m)};
}
// Sine and cosine of any number.
template <class Number> LUM_INLINE SineAndCosine<Number> SineCosineOfAny(Vec<Lum64f> y) {
  const auto magnitude = abs(y);
  const auto far = nle(magnitude, all(largest_angle_of<Number>));
  if constexpr (std::is_same_v<Number, OnePart>) {
    auto angle = ReduceAngleInOnePart(magnitude);
    if (any(far)) angle = SelectAngle(far, InOnePart(ReduceFarAngle(magnitude)), angle);
    return SineCosineOfReduced(y, angle);
  } else {
    auto angle = ReduceAngle(magnitude);
    if (any(far)) angle = SelectAngle(far, ReduceFarAngle(magnitude), angle);
    return SineCosineOfReduced(y, angle);
  }
}

}  // namespace lum::inline LUM_LAYER::complex
