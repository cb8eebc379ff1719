// The second path of products: what the core has for any numbers.
#pragma once

#include "complex/exact_product.h"

namespace lum::inline LUM_LAYER::complex {

// Which of two NaNs the core's products give depends on how they were compiled.
template <class T> LUM_INLINE Mask<T> HaveTwoNans(ComplexVec<T> z, ComplexVec<T> w) {
  return unord(z.re, z.im) & unord(w.re, w.im);
}

// The sum of two products, of which the first one's NaN is the core's.
template <class T> LUM_INLINE Vec<T> SumOfProducts(Vec<T> first, Vec<T> second) {
  if constexpr (orders_nans) return first + second;
  else return select(unord(first, first), first, first + second);
}
template <class T> LUM_INLINE ComplexVec<T> PlainProduct(ComplexVec<T> z, ComplexVec<T> w) {
  return {SumOfProducts(z.re * w.re, negate(z.im * w.im)), SumOfProducts(z.re * w.im, z.im * w.re)};
}

// The product of finite numbers.
LUM_INLINE CorePair ProductOfFinite(ComplexVec<Lum64f> given_z, ComplexVec<Lum64f> given_w, Mask<Lum64f> wanted) {
  const auto z = PartsOf(given_z), w = PartsOf(given_w);
  const auto re = SumOfTwoProducts(z.re, w.re, -z.im, w.im), im = SumOfTwoProducts(z.re, w.im, z.im, w.re);
  return RoundedPair(re, DistanceFromCore(re), im, DistanceFromCore(im), wanted);
}

// The products in the lanes of the mask; the others are not sure. Plain products and sums are the core's where a number is not
// finite, and where one is zero.
LUM_INLINE CorePair ProductAsCore(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w, Mask<Lum64f> wanted) {
  const auto zero = all(0.0), zeros = fma(z.re, zero, fma(z.im, zero, fma(w.re, zero, w.im * zero)));
  const auto is_plain = wanted & (unord(zeros, zeros) | IsZeroAsWhole(z) | IsZeroAsWhole(w));
  CorePair product{z, is_plain};
  if (any(is_plain)) { product = {PlainProduct(z, w), is_plain & ~HaveTwoNans(z, w)}; }
  const auto rest = wanted & ~is_plain;
  if (any(rest)) {
    const auto finite = ProductOfFinite(z, w, rest);
    product = {Select(rest, finite.value, product.value), product.is_sure | (finite.is_sure & rest)};
  }
  return product;
}

// How near to the middle of two numbers the rounding to extended precision, of 11 bits more, may turn the core's: a part of
// half the last place.
inline constexpr double core_distance = 0x1.1p-11;

LUM_INLINE RoundedWithRest RoundedSumOfProducts(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first = two_product(a, c), second = two_product(b, d);
  const auto sum = two_sum(first.head, second.head);
  const auto tail = sum.tail + (first.tail + second.tail);
  const auto value = sum.head + tail, rest = tail - (value - sum.head);
  return {value, rest, IsFarFromMiddle(value, rest, core_distance)};
}
// Products of numbers of any exponents by both factors divided by the power of 2 in their larger part: sums with their tails
// rounded once, which are the first path's, too; plain ones where one of the arguments is not finite, or zero as a whole.
LUM_INLINE ScaledResult ProductOfScaled(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
  const auto z_exponent = ExponentOf(z), w_exponent = ExponentOf(w), exponent = z_exponent + w_exponent;
  const auto is_special = IsEitherSpecial(z, w, exponent);
  auto re = z.re, im = z.im;
  auto is_sure = is_special, overflow = mask_of<Lum64f>(0);
  if (any(~is_special)) {
    const auto [a, b] = NextToOne(z, z_exponent);
    const auto [c, d] = NextToOne(w, w_exponent);
    const auto scaled =
        ScaledBack(RoundedSumOfProducts(a, c, negate(b), d), RoundedSumOfProducts(a, d, b, c), exponent, is_special);
    re = scaled.value.re, im = scaled.value.im;
    is_sure = scaled.is_sure, overflow = scaled.overflow;
  }
  if (any(is_special)) {
    is_sure = is_sure & ~(is_special & HaveTwoNans(z, w));
    const auto plain = PlainProduct(z, w);
    re = select(is_special, plain.re, re), im = select(is_special, plain.im, im);
  }
  return {{re, im}, is_sure, overflow};
}

}  // namespace lum::inline LUM_LAYER::complex
