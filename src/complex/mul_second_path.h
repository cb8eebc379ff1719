// The second path of products: what the core has for any numbers.
#pragma once

#include "complex/exact_product.h"

namespace lum::inline LUM_LAYER {

// Which of two NaNs the core's products give depends on how they were compiled.
template <class T> LUM_INLINE Mask<T> HaveTwoNans(ComplexVec<T> z, ComplexVec<T> w) {
  return unord(z.re, z.im) & unord(w.re, w.im);
}

// Of finite numbers.
LUM_INLINE CorePair ProductOfFinite(ComplexVec<Lum64f> given_z, ComplexVec<Lum64f> given_w, Mask<Lum64f> wanted) {
  const auto z = PartsOf(given_z), w = PartsOf(given_w);
  const auto re = SumOfTwoProducts(z.re, w.re, -z.im, w.im), im = SumOfTwoProducts(z.re, w.im, z.im, w.re);
  return RoundedPair(re, DistanceFromCore(re), im, DistanceFromCore(im), wanted);
}

LUM_INLINE Mask<Lum64f> IsZeroAsWhole(ComplexVec<Lum64f> z) {
  return mask_cast<Lum64f>(test_none(bits(z.re) | bits(z.im), all(~sign_bit<Lum64f>)));
}
// The products in the lanes of the mask; the others are not sure. Plain products and sums are the core's where a number is not
// finite, and where one is zero.
LUM_INLINE CorePair ProductAsCore(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w, Mask<Lum64f> wanted) {
  const auto zero = all(0.0), zeros = fma(z.re, zero, fma(z.im, zero, fma(w.re, zero, w.im * zero)));
  const auto is_plain = wanted & (unord(zeros, zeros) | IsZeroAsWhole(z) | IsZeroAsWhole(w));
  CorePair product{z, is_plain};
  if (any(is_plain)) {
    product = {{z.re * w.re + negate(z.im * w.im), z.re * w.im + z.im * w.re}, is_plain & ~HaveTwoNans(z, w)};
  }
  const auto rest = wanted & ~is_plain;
  if (any(rest)) {
    const auto finite = ProductOfFinite(z, w, rest);
    product = {Select(rest, finite.value, product.value), product.is_sure | (finite.is_sure & rest)};
  }
  return product;
}

// Products of numbers of any exponents by both factors divided by the power of 2 in their larger part. Next to 1, what products
// of the smaller parts lose at the lower end of the range tells in no sum that is not small itself.
struct ScaledProduct {
  ComplexVec<Lum64f> value;     // sums with their tails, rounded once; plain ones where one of the arguments is special
  Mask<Lum64f> is_sure;         // where that is what the core has
  Mask<Lum64f> has_overflowed;  // an infinity of finite arguments
};
// A part, but for 2^exponent, and what it was rounded by.
struct RoundedSum {
  Vec<Lum64f> value, rest;
  Mask<Lum64f> is_sure;
};
LUM_INLINE RoundedSum RoundedSumOfProducts(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first = two_product(a, c), second = two_product(b, d);
  const auto sum = two_sum(first.head, second.head);
  const auto tail = sum.tail + (first.tail + second.tail);
  const auto value = sum.head + tail, rest = tail - (value - sum.head);
  // The middle between two numbers is no nearer than the core's 64 bits are.
  const auto farther = fma(rest, all(1 + 0x1.1p-11), value);
  return {value, rest, eq(farther, value) & le(all(0x1p-30), abs(value))};
}
// Times 2^exponent: below the normal numbers the sum with the shifter has the least denormal number in its last place.
LUM_INLINE Vec<Lum64f> ScaledBack(const RoundedSum& s, Vec<Lum64f> exponent, Mask<Lum64f>& is_sure) {
  const auto is_below = lt(getexp(s.value) + exponent, all(-1022.0));
  const auto shifter = or_sign(s.value, scalef(all(1.0), all(-1022.0) - max(exponent, all(-1900.0))));
  const auto sum = shifter + s.value;
  const auto rest = s.value - (sum - shifter);
  const auto distance = fma(abs(rest), all(0x1p-52), all(0x1p-61));
  const auto above = sum + (rest + (s.rest + distance)), below = sum + (rest + (s.rest - distance));
  is_sure = is_sure & (eq(above, below) | ~is_below);
  return scalef(select(is_below, or_sign(s.value, above - shifter), s.value), exponent);
}
LUM_INLINE ScaledProduct ProductOfScaled(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
  const auto z_exponent = max(getexp(z.re), getexp(z.im)), w_exponent = max(getexp(w.re), getexp(w.im));
  const auto exponent = z_exponent + w_exponent;
  const auto is_special = IsNonFinite(exponent) | unord(z.re, w.re);  // not finite, or zero as a whole
  ScaledProduct product{z, is_special, mask_of<Lum64f>(0)};
  if (any(~is_special)) {
    const auto z_down = negate(z_exponent), w_down = negate(w_exponent);
    const auto scaled = [](Vec<Lum64f> x, Vec<Lum64f> down) __attribute__((always_inline)) {
      return or_sign(x, max(abs(scalef(x, down)), all(0x1p-400)));  // instead of denormal numbers, which take long
    };
    const auto a = scaled(z.re, z_down), b = scaled(z.im, z_down), c = scaled(w.re, w_down), d = scaled(w.im, w_down);
    const auto re = RoundedSumOfProducts(a, c, negate(b), d), im = RoundedSumOfProducts(a, d, b, c);
    product.value = {scalef(re.value, exponent), scalef(im.value, exponent)};
    auto is_sure = re.is_sure & im.is_sure & ~is_special;
    if (any(lt(exponent, all(-990.0)))) [[unlikely]] {
      product.value = {ScaledBack(re, exponent, is_sure), ScaledBack(im, exponent, is_sure)};
    }
    product.has_overflowed = is_sure & (IsInfinite(product.value.re) | IsInfinite(product.value.im));
    product.is_sure = product.is_sure | is_sure;
  }
  if (any(is_special)) {
    product.is_sure = product.is_sure & ~(is_special & HaveTwoNans(z, w));
    product.value = Select(is_special, {z.re * w.re + negate(z.im * w.im), z.re * w.im + z.im * w.re}, product.value);
  }
  return product;
}

}  // namespace lum::inline LUM_LAYER
