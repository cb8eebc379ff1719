// Sums of two products of any finite numbers, and how the core rounds them and their quotients: from nearly exact numbers to
// extended precision and from there to binary64. So the number next to the sum is the result unless the sum lies within 2^-64
// of the middle between two.
#pragma once

#include "complex/core_second_path.h"
#include "frame/immediates.h"
#include "frame/lifted.h"

namespace lum::inline LUM_LAYER::complex {

// By significands and exponents; a zero's exponent is -infinity. Where powers of 2 beyond the range are taken lane by lane, a
// zero is its own significand, and smaller products stop at 2^-1000.
constexpr bool takes_any_power = streams_fit_registers;
LUM_INLINE Parts<Lum64f> PartsOf(Vec<Lum64f> x) {
  const auto p = parts<significand::from_1_to_2>(x);
  if constexpr (takes_any_power) return p;
  else return {select(IsZero(x), x, p.significand), p.exponent};
}
LUM_INLINE Vec<Lum64f> ScaledSignificand(Parts<Lum64f> x, Vec<Lum64f> power) {
  return scalef(x.significand, takes_any_power ? power : max(power, all(-1000.0)));
}
struct ComplexParts {
  Parts<Lum64f> re, im;
};
LUM_INLINE ComplexParts PartsOf(ComplexVec<Lum64f> z) { return {PartsOf(z.re), PartsOf(z.im)}; }
LUM_INLINE Parts<Lum64f> operator-(Parts<Lum64f> x) { return {negate(x.significand), x.exponent}; }

// a c + b d as head + tail, but for 2^exponent, right to 2^801. The larger of the products is from 2^900 to 2^902, so that what
// is lost of the other at the lower end of the range has no consequence; of two zeros the head is their sum.
struct ScaledSum {
  Vec<Lum64f> head, tail, exponent;
  Mask<Lum64f> is_exact;  // without a tail
};
LUM_INLINE ScaledSum SumOfTwoProducts(Parts<Lum64f> a, Parts<Lum64f> c, Parts<Lum64f> b, Parts<Lum64f> d) {
  const auto first_exponent = a.exponent + c.exponent, second_exponent = b.exponent + d.exponent;
  const auto exponent = max(max(first_exponent, second_exponent), all(-5000.0)) - all(900.0);
  const auto first = two_product(ScaledSignificand(a, first_exponent - exponent), c.significand);
  const auto second = two_product(ScaledSignificand(b, second_exponent - exponent), d.significand);
  const auto sum = two_sum(first.head, second.head);
  const auto tail = sum.tail + (first.tail + second.tail);
  return {sum.head, tail, exponent, IsZero(tail) & (IsZero(first.tail) | IsZero(sum.head))};
}
// How far the core's sum may be from it.
LUM_INLINE Vec<Lum64f> DistanceFromCore(const ScaledSum& s) { return fma(abs(s.head), all(0x1p-64), all(0x1p801)); }

// A part of a result, and where it is the core's.
struct CorePart {
  Vec<Lum64f> value;
  Mask<Lum64f> is_sure;
};
// Rounded to binary64 where that is normal.
LUM_INLINE CorePart RoundedToNormal(const ScaledSum& s, Vec<Lum64f> distance) {
  const auto above = s.head + (s.tail + distance), below = s.head + (s.tail - distance);
  const auto value = scalef(above, s.exponent);
  return {value, eq(above, below) & lt(all(0x1p-1022), abs(value))};
}
// Where it is zero or below the normal numbers. In the sum with the shifter, which has its sign, the last place is worth the
// least denormal number; an exact head may lie in the middle between two. Below an
// exponent of -2000 all vanish.
LUM_INLINE CorePart RoundedBelowNormal(const ScaledSum& s, Vec<Lum64f> given_distance) {
  const auto exponent = max(s.exponent, all(-2000.0));
  const auto whole = s.head + s.tail, leading = select(IsZero(whole), s.head, whole);  // the heads may have cancelled
  const auto shifter = or_sign(leading, scalef(all(1.0), all(-1022.0) - exponent));
  const auto sum = shifter + s.head;
  const auto rest = s.head - (sum - shifter);
  const auto distance = zero_unless(~s.is_exact, fma(abs(rest), all(0x1p-52), given_distance));
  const auto above = sum + (rest + (s.tail + distance)), below = sum + (rest + (s.tail - distance));
  const auto value = scalef(above - shifter, exponent);
  return {or_sign(leading, value), eq(above, below) & le(abs(value), all(0x1p-1022))};
}

// Both parts in the wanted lanes.
struct CorePair {
  ComplexVec<Lum64f> value;
  Mask<Lum64f> is_sure;
};
LUM_INLINE CorePair RoundedPair(const ScaledSum& re, Vec<Lum64f> re_distance, const ScaledSum& im, Vec<Lum64f> im_distance,
                                Mask<Lum64f> wanted) {
  auto x = RoundedToNormal(re, re_distance), y = RoundedToNormal(im, im_distance);
  if (any(wanted & ~(x.is_sure & y.is_sure))) {
    const auto small_x = RoundedBelowNormal(re, re_distance), small_y = RoundedBelowNormal(im, im_distance);
    x = {select(x.is_sure, x.value, small_x.value), x.is_sure | small_x.is_sure};
    y = {select(y.is_sure, y.value, small_y.value), y.is_sure | small_y.is_sure};
  }
  return {{x.value, y.value}, x.is_sure & y.is_sure};
}

LUM_INLINE Mask<Lum64f> IsZeroAsWhole(ComplexVec<Lum64f> z) {
  return mask_cast<Lum64f>(test_none(bits(z.re) | bits(z.im), all(~sign_bit<Lum64f>)));
}
// The exponent of the larger part. Where a layer has no instruction for it, denormal numbers have theirs by their bits, and
// what is special any.
LUM_INLINE Vec<Lum64f> ExponentOf(ComplexVec<Lum64f> z) {
  constexpr int interval = significand::from_1_to_2;
  if constexpr (estimates_take_all) return max(getexp(z.re), getexp(z.im));
  else return max(PartsOfFinite<interval>(z.re).exponent, PartsOfFinite<interval>(z.im).exponent);
}
// Infinite, NaN, or zero as a whole, given the sum or the difference of the exponents.
LUM_INLINE Mask<Lum64f> IsEitherSpecial(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w, Vec<Lum64f> exponent) {
  if constexpr (estimates_take_all) return IsNonFinite(exponent) | unord(z.re, w.re);
  else return HasNonFinitePart(z) | HasNonFinitePart(w) | IsZeroAsWhole(z) | IsZeroAsWhole(w);
}
// Both parts divided by 2^exponent, of which the larger one is next to 1 then. Beside it, the square of a smaller part is as
// little as that of 2^-400, and there are no denormal numbers, which take long.
LUM_INLINE ComplexVec<Lum64f> NextToOne(ComplexVec<Lum64f> z, Vec<Lum64f> exponent) {
  const auto part = [exponent](Vec<Lum64f> x) __attribute__((always_inline)) {
    if constexpr (estimates_take_all) {
      return or_sign(x, max(abs(scalef(x, negate(exponent))), all(0x1p-400)));
    } else {
      const auto p = PartsOfFinite<significand::from_1_to_2>(x);
      return scalef_normal(p.significand, max(p.exponent - exponent, all(-400.0)));
    }
  };
  return {part(z.re), part(z.im)};
}
// What has a part next to 1, times 2^exponent, where that is no denormal number. Beyond these ends all vanish or overflow.
LUM_INLINE Vec<Lum64f> ScaledFromOne(Vec<Lum64f> x, Vec<Lum64f> exponent) {
  if constexpr (estimates_take_all) return scalef(x, exponent);
  else return ScaledInTwo(x, max(min(exponent, all(2046.0)), all(-2040.0)));
}
// A part of a product or quotient of such numbers, and what is left of it behind the rounding.
struct RoundedWithRest {
  Vec<Lum64f> value, rest;
  Mask<Lum64f> is_sure;  // rounded to 64 bits before, it is the same number
};
// The middle between two numbers is farther from value + rest than the distance, a part of half the last place. What is much
// less than 1 has lost bits.
LUM_INLINE Mask<Lum64f> IsFarFromMiddle(Vec<Lum64f> value, Vec<Lum64f> rest, double distance) {
  return eq(fma(rest, all(1 + distance), value), value) & le(all(0x1p-30), abs(value));
}
// Times 2^exponent: below the normal numbers the sum with the shifter has the least denormal number in its last place.
LUM_INLINE Vec<Lum64f> ScaledBack(const RoundedWithRest& s, Vec<Lum64f> exponent, Mask<Lum64f>& is_sure) {
  const auto is_below = lt(getexp_normal(s.value) + exponent, all(-1022.0));
  const auto shifter = or_sign(s.value, scalef_normal(all(1.0), all(-1022.0) - max(exponent, all(-1900.0))));
  const auto sum = shifter + s.value;
  const auto rest = s.value - (sum - shifter);
  const auto distance = fma(abs(rest), all(0x1p-52), all(0x1p-60));
  const auto above = sum + (rest + (s.rest + distance)), below = sum + (rest + (s.rest - distance));
  is_sure = is_sure & (eq(above, below) | ~is_below);
  return ScaledFromOne(select(is_below, or_sign(s.value, above - shifter), s.value), exponent);
}
// Both parts times 2^exponent.
struct ScaledResult {
  ComplexVec<Lum64f> value;
  Mask<Lum64f> is_sure, overflow;
};
// The lanes of the mask, which have values of their own, are sure.
LUM_INLINE ScaledResult ScaledBack(const RoundedWithRest& re, const RoundedWithRest& im, Vec<Lum64f> exponent,
                                   Mask<Lum64f> is_special) {
  ComplexVec<Lum64f> value{ScaledFromOne(re.value, exponent), ScaledFromOne(im.value, exponent)};
  auto is_sure = re.is_sure & im.is_sure;
  // Below the second limit all vanish.
  if (any(lt(exponent, all(-990.0)) & lt(all(-1100.0), exponent) & ~is_special)) [[unlikely]]
    value = {ScaledBack(re, exponent, is_sure), ScaledBack(im, exponent, is_sure)};
  return {value, is_sure | is_special, (IsInfinite(value.re) | IsInfinite(value.im)) & ~is_special};
}

}  // namespace lum::inline LUM_LAYER::complex
