// The second path of quotients: what the core has for infinite, NaN and zero arguments by its rules, and for other numbers from
// exact sums of products of significands, over the square of the divisor's modulus in pairs.
#pragma once

#include "complex/core_second_path.h"
#include "complex/exact_product.h"

namespace lum::inline LUM_LAYER {

struct QuotientEnds {
  using Number = ComplexVec<Lum64f>;

  // A sum over the square, times 2^exponent. A zero is positive.
  static LUM_INLINE RoundedPart Part(const ScaledSum& s, HeadTail square, Vec<Lum64f> exponent) {
    const auto q = Quotient({s.sum.head, s.sum.tail}, square);
    const auto error = fma(abs(q.head), all(1.25), s.sum.residue * all(0x1p66));
    const auto rounded = RoundedAtEnds(q, error, s.exponent + exponent);
    const auto is_zero = IsZero(s.sum.head) & IsZero(s.sum.residue);
    return {zero_unless(~is_zero, rounded.value), rounded.refused & ~is_zero};
  }
  // Of finite numbers, the divisor other than zero.
  static LUM_INLINE CoreValue OfFinite(Number z, Number w) {
    const auto is_zero = IsZero(z.re) & IsZero(z.im);
    auto a = ScaledOf(Select(is_zero, {all(1.0), all(1.0)}, z));
    a.re.value = zero_unless(~is_zero, a.re.value);
    a.im.value = zero_unless(~is_zero, a.im.value);
    const auto b = ScaledOf(w);
    const auto square = Add(ExactSquare(b.re.value), ExactSquare(b.im.value));
    const auto exponent = a.exponent - b.exponent;
    const auto re = SumOfTwoProducts(a.re, b.re, a.im, b.im), im = SumOfTwoProducts(a.im, b.re, -a.re, b.im);
    return CoreValueOf(Part(re, square, exponent), Part(im, square, exponent), re.is_known & im.is_known);
  }

  // An infinity or a zero in the direction of z conj(w).
  static LUM_INLINE Number Directed(Vec<Lum64f> size, Number z, Number w) {
    return {size * (z.re * w.re + z.im * w.im), size * (z.im * w.re - z.re * w.im)};
  }
  // 1 or 0 for an infinity or another number, with its sign.
  static LUM_INLINE Vec<Lum64f> Boxed(Vec<Lum64f> x) { return or_sign(x, zero_unless(IsInfinite(x), in_register(1.0))); }
  static LUM_INLINE Number OfSpecial(Number z, Number w) {
    const auto z_finite = ~HasNonFinitePart(z), w_finite = ~HasNonFinitePart(w);
    const auto z_infinite = IsInfinite(z.re) | IsInfinite(z.im), w_infinite = IsInfinite(w.re) | IsInfinite(w.im);
    const auto unbounded = in_register(infinity), zero = all(0.0);
    const auto boxes_z = z_infinite & w_finite, boxes_w = z_finite & w_infinite;
    const auto chosen = [](Mask<Lum64f> m, Vec<Lum64f> x) __attribute__((always_inline)) { return select(m, Boxed(x), x); };
    const auto directed = Directed(select(boxes_z, unbounded, zero), {chosen(boxes_z, z.re), chosen(boxes_z, z.im)},
                                   {chosen(boxes_w, w.re), chosen(boxes_w, w.im)});
    const auto first = z.re * w.re, second = z.im * w.im;
    const auto sum = select(unord(first, first), first, select(unord(second, second), second, first + second));
    const auto nan = sum * zero;
    const auto by_zero = z_finite & IsZero(w.re) & IsZero(w.im);
    const auto value = Select(boxes_z | boxes_w, directed, {nan, nan});
    return Select(by_zero, {z.re * unbounded, z.im * unbounded}, value);
  }
};

// In the wanted lanes. All kernels share it.
[[gnu::noinline]] inline CoreValue QuotientAsCore(const ComplexVec<Lum64f>& z, const ComplexVec<Lum64f>& w,
                                                  const Mask<Lum64f>& wanted) {
  const auto special = HasNonFinitePart(z) | HasNonFinitePart(w) | (IsZero(w.re) & IsZero(w.im));
  const auto both_nan = [](Vec<Lum64f> x, Vec<Lum64f> y) __attribute__((always_inline)) { return unord(x, x) & unord(y, y); };
  const auto by_rule = special & ~(both_nan(z.re, w.re) | both_nan(z.im, w.im));
  CoreValue result{z, by_rule, by_rule};
  // Where they do not fit registers the numbers take too much of the stack.
  if constexpr (streams_fit_registers) {
    if (any(wanted & ~special)) {
      result = QuotientEnds::OfFinite(z, w);
      result.is_known = (result.is_known & ~special) | by_rule;
      result.is_sure = result.is_sure | by_rule;
    }
  }
  if (any(wanted & special)) result.value = Select(special, QuotientEnds::OfSpecial(z, w), result.value);
  return result;
}

}  // namespace lum::inline LUM_LAYER
