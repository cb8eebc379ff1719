// Products of complex numbers as the core gives them, over vectors: the second path of the kernels. The core rounds the exact
// sum of two products to extended precision and from there to binary64, so it gives the number next to the sum unless that lies
// within 2^-64 of the middle between two; such lanes remain for the core itself.
#pragma once

#include "complex/pairs/pair.h"
#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER {

// A part of a result, and where it is the core's.
struct CorePart {
  Vec<Lum64f> value;
  Mask<Lum64f> is_sure;
};
struct CoreProduct {
  ComplexVec<Lum64f> value;
  Mask<Lum64f> is_sure;
};

// head + tail, known but for the residue, |tail| at most half a unit in the last place of head. A zero has the sign of head.
LUM_INLINE CorePart RoundedTwice(Vec<Lum64f> head, Vec<Lum64f> tail, Vec<Lum64f> residue) {
  const auto distance = fma(abs(head), all(0x1p-64), residue);
  const auto above = head + (tail + distance), below = head + (tail - distance);
  return {or_sign(head, above), eq(above, below)};
}

// a c + b d where one of the products has a zero factor or an operand is not finite, so that the sum of the products is exact.
LUM_INLINE TwoParts<Vec<Lum64f>> SumWithOneProduct(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first = a * c, second = b * d;
  return {first + second, fms(a, c, first) + fms(b, d, second)};
}
LUM_INLINE Mask<Lum64f> EitherZero(Vec<Lum64f> a, Vec<Lum64f> b) {
  return fpclass<classes::zero>(a) | fpclass<classes::zero>(b);
}

LUM_INLINE Mask<Lum64f> IsNotFinite(ComplexVec<Lum64f> z) {
  return fpclass<classes::nonfinite>(z.re) | fpclass<classes::nonfinite>(z.im);
}

// Which of two NaNs the core's products give depends on how they were compiled.
template <class T> LUM_INLINE Mask<T> HaveTwoNans(ComplexVec<T> z, ComplexVec<T> w) {
  return unord(z.re, z.im) & unord(w.re, w.im);
}

// The part a c + b d of a product with a zero among its operands. Products whose error might be denormal are not sure.
LUM_INLINE CorePart PartWithOneProduct(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first_zero = EitherZero(a, c), second_zero = EitherZero(b, d);
  const auto s = SumWithOneProduct(a, c, b, d);
  const auto rounded = RoundedTwice(s.head, s.tail, all(0.0));
  const auto magnitude = abs(s.head);
  const auto in_range = le(all(0x1p-900), magnitude) & rounded.is_sure;
  const auto is_plain = fpclass<classes::infinity>(s.head) | (first_zero & second_zero);  // an infinity or an exact zero
  return {select(is_plain, s.head, rounded.value), (first_zero | second_zero) & (in_range | is_plain)};
}

// a c + b d of numbers that are zero or from 2^-240 to 2: exactly in four parts.
LUM_INLINE CorePart PartOfTwoProducts(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first = two_product(a, c), second = two_product(b, d);
  const auto heads = two_sum(first.head, second.head), tails = two_sum(first.tail, second.tail);
  const auto middle = two_sum(heads.tail, tails.head);
  const auto s = two_sum(heads.head, middle.head);
  const auto residue = abs(middle.tail) + abs(tails.tail);
  const auto zero =
      fpclass<classes::zero>(s.head) & fpclass<classes::zero>(heads.head);  // of two zeros the sum of the heads has the sign
  return RoundedTwice(select(zero, heads.head, s.head), s.tail, residue + residue);
}

// The product of any finite numbers, by significands of the larger part. Not sure are results next to denormal numbers, and
// numbers one of whose parts is far smaller than the other.
LUM_INLINE CoreProduct ProductOfScaled(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
  const auto z_exponent = getexp(max(abs(z.re), abs(z.im))), w_exponent = getexp(max(abs(w.re), abs(w.im)));
  const auto far = [](Vec<Lum64f> x, Vec<Lum64f> exponent) __attribute__((always_inline)) {
    return lt(getexp(x), exponent - all(240.0)) & ~fpclass<classes::zero>(x);
  };
  const auto is_far = far(z.re, z_exponent) | far(z.im, z_exponent) | far(w.re, w_exponent) | far(w.im, w_exponent);
  const auto down = [&](Vec<Lum64f> x, Vec<Lum64f> exponent) __attribute__((always_inline)) {
    return scalef(zero_unless(~is_far, x), negate(exponent));
  };
  const auto a = down(z.re, z_exponent), b = down(z.im, z_exponent), c = down(w.re, w_exponent), d = down(w.im, w_exponent);
  const auto re = PartOfTwoProducts(a, c, negate(b), d), im = PartOfTwoProducts(a, d, b, c);
  const auto exponent = z_exponent + w_exponent;
  const auto up = [&](CorePart part) __attribute__((always_inline)) {
    const auto result_exponent = getexp(part.value) + exponent;
    const auto vanishes = lt(result_exponent, all(-1080.0));
    const auto is_normal = le(all(-1021.0), result_exponent);
    const auto scaled = scalef(zero_unless(is_normal, part.value), exponent);
    return CorePart{select(is_normal, scaled, part.value & all(sign_bit<Lum64f>)), part.is_sure & (is_normal | vanishes)};
  };
  const auto scaled_re = up(re), scaled_im = up(im);
  return {{scaled_re.value, scaled_im.value}, scaled_re.is_sure & scaled_im.is_sure & ~is_far};
}

// The products in the lanes of the mask; the others are not sure. Numbers that are not finite have plain products and sums, as
// the core's.
LUM_INLINE CoreProduct ProductAsCore(ComplexVec<Lum64f> given_z, ComplexVec<Lum64f> given_w, Mask<Lum64f> wanted) {
  const auto taken = [&](Vec<Lum64f> x) __attribute__((always_inline)) { return zero_unless(wanted, x); };
  const ComplexVec<Lum64f> z{taken(given_z.re), taken(given_z.im)}, w{taken(given_w.re), taken(given_w.im)};
  const auto re = PartWithOneProduct(z.re, w.re, negate(z.im), w.im), im = PartWithOneProduct(z.re, w.im, z.im, w.re);
  CoreProduct product{{re.value, im.value}, re.is_sure & im.is_sure};
  const auto not_finite = IsNotFinite(z) | IsNotFinite(w), two_nans = HaveTwoNans(z, w);
  if (any(not_finite)) {
    product.value.re = select(not_finite, z.re * w.re + negate(z.im * w.im), product.value.re);
    product.value.im = select(not_finite, z.re * w.im + z.im * w.re, product.value.im);
    product.is_sure = (product.is_sure | not_finite) & ~two_nans;
  }
  const auto rest = wanted & ~(product.is_sure | not_finite);
  if (any(rest)) {
    const auto kept = [&](Vec<Lum64f> x) __attribute__((always_inline)) { return select(rest, x, all(1.0)); };
    const auto scaled = ProductOfScaled({kept(z.re), kept(z.im)}, {kept(w.re), kept(w.im)});
    product.value.re = select(rest, scaled.value.re, product.value.re);
    product.value.im = select(rest, scaled.value.im, product.value.im);
    product.is_sure = product.is_sure | (rest & scaled.is_sure);
  }
  product.is_sure = product.is_sure & wanted;
  return product;
}

}  // namespace lum::inline LUM_LAYER
