// Products of complex numbers as the core gives them, over vectors: the second path of the kernels. The core rounds the exact
// sum of two products to extended precision and from there to binary64, so it gives the number next to the sum unless that lies
// within 2^-64 of the middle between two; such lanes remain for the core itself.
#pragma once

#include "complex/core_second_path.h"

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
  // Exactly in the middle is a tail that is a power of 2 and yet not sure: the sum of the products has been rounded to even.
  const auto is_middle = IsZero(residue) & mask_cast<Lum64f>(test_none(bits(tail), all(~uint64_t{0} >> 12))) & ~IsZero(tail);
  return {or_sign(head, select(is_middle, head, above)), eq(above, below) | is_middle};
}

// a c + b d where one of the products has a zero factor or an operand is not finite, so that the sum of the products is exact.
LUM_INLINE TwoParts<Vec<Lum64f>> SumWithOneProduct(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first = a * c, second = b * d;
  return {first + second, fms(a, c, first) + fms(b, d, second)};
}
LUM_INLINE Mask<Lum64f> EitherZero(Vec<Lum64f> a, Vec<Lum64f> b) { return IsZero(a) | IsZero(b); }

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

// a c + b d of numbers that are zero or from 2^-240 to 2, in four parts: head + tail but for the residue. Of two zeros the head
// is their sum.
struct ExactSum {
  Vec<Lum64f> head, tail, residue;
};
LUM_INLINE ExactSum SumOfTwoProducts(Vec<Lum64f> a, Vec<Lum64f> c, Vec<Lum64f> b, Vec<Lum64f> d) {
  const auto first = two_product(a, c), second = two_product(b, d);
  const auto heads = two_sum(first.head, second.head), tails = two_sum(first.tail, second.tail);
  const auto middle = two_sum(heads.tail, tails.head);
  const auto s = two_sum(heads.head, middle.head);
  const auto zero = IsZero(s.head) & IsZero(heads.head);
  return {select(zero, heads.head, s.head), s.tail, abs(middle.tail) + abs(tails.tail)};
}

// A number other than zero, but for 2^exponent: the larger part from 1 to 2, a part that is far smaller raised to 2^-200.
struct ScaledNumber {
  RaisedNumber re, im;
  Vec<Lum64f> exponent;
};
LUM_INLINE ScaledNumber ScaledOf(ComplexVec<Lum64f> z) {
  const auto exponent = getexp(max(abs(z.re), abs(z.im)));
  return {Raised(z.re, negate(exponent)), Raised(z.im, negate(exponent)), exponent};
}
LUM_INLINE RaisedNumber operator-(RaisedNumber x) { return {negate(x.value), x.exponent}; }

// a c + b d. Of products with different exponents one is left out, where it is small enough; else the sum is not known.
struct ScaledSum {
  ExactSum sum;
  Vec<Lum64f> exponent;
  Mask<Lum64f> is_known;
};
LUM_INLINE ScaledSum SumOfTwoProducts(RaisedNumber a, RaisedNumber c, RaisedNumber b, RaisedNumber d) {
  const auto first_exponent = a.exponent + c.exponent, second_exponent = b.exponent + d.exponent;
  if (none(ne(first_exponent, second_exponent)))
    return {SumOfTwoProducts(a.value, c.value, b.value, d.value), first_exponent, mask_of<Lum64f>(~0u)};
  const auto first = a.value * c.value, second = b.value * d.value;
  const auto first_size = getexp(first) + first_exponent, second_size = getexp(second) + second_exponent;
  const auto differ = ne(first_exponent, second_exponent) & (~IsZero(first) | ~IsZero(second));
  const auto without_count = all(130.0);
  const auto drops_first = differ & lt(first_size, second_size - without_count);
  const auto drops_second = differ & lt(second_size, first_size - without_count);
  return {SumOfTwoProducts(zero_unless(~drops_first, a.value), c.value, zero_unless(~drops_second, b.value), d.value),
          select(drops_first, second_exponent, first_exponent), ~differ | drops_first | drops_second};
}

// The product of any finite numbers other than zero.
LUM_INLINE CoreProduct ProductOfScaled(ComplexVec<Lum64f> given_z, ComplexVec<Lum64f> given_w) {
  const auto z = ScaledOf(given_z), w = ScaledOf(given_w);
  const auto part = [&](const ScaledSum& s) __attribute__((always_inline)) {
    const auto error = fma(s.sum.residue, all(0x1p65), abs(s.sum.head));
    const auto rounded = RoundedAtEnds({s.sum.head, s.sum.tail}, error, s.exponent + (z.exponent + w.exponent));
    return RoundedPart{rounded.value, rounded.refused | ~s.is_known};
  };
  const auto re = part(SumOfTwoProducts(z.re, w.re, -z.im, w.im)), im = part(SumOfTwoProducts(z.re, w.im, z.im, w.re));
  return {{re.value, im.value}, ~(re.refused | im.refused)};
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
