// The second path of quotients: what the core has for infinite, NaN and zero arguments by its rules, and for other numbers from
// exact sums of products of significands, over the square of the divisor's modulus in pairs.
#pragma once

#include "complex/core_second_path.h"
#include "complex/exact_product.h"

namespace lum::inline LUM_LAYER::complex {

struct QuotientEnds {
  using Number = ComplexVec<Lum64f>;

  // A sum over the square, whose relative error is no more than some units of 2^-104.
  static LUM_INLINE ScaledSum Part(const ScaledSum& s, const ScaledSum& square) {
    const auto q = Scaled(Quotient({s.head, s.tail}, {square.head, square.tail}), 0x1p900);
    const auto is_zero = IsZero(s.head) & IsZero(s.tail);
    return {zero_unless(~is_zero, q.head), zero_unless(~is_zero, q.tail), (s.exponent - square.exponent) - all(900.0), is_zero};
  }
  static LUM_INLINE Vec<Lum64f> DistanceFromCore(const ScaledSum& q) { return fma(abs(q.head), all(0x1.4p-64), all(0x1p803)); }
  // The quotient of finite numbers, the divisor other than zero. A zero is positive.
  static LUM_INLINE CorePair OfFinite(Number given_z, Number given_w, Mask<Lum64f> wanted) {
    const auto z = PartsOf(given_z), w = PartsOf(given_w);
    const auto square = SumOfTwoProducts(w.re, w.re, w.im, w.im);
    const auto re = Part(SumOfTwoProducts(z.re, w.re, z.im, w.im), square);
    const auto im = Part(SumOfTwoProducts(z.im, w.re, -z.re, w.im), square);
    return RoundedPair(re, DistanceFromCore(re), im, DistanceFromCore(im), wanted);
  }

  // An infinity or a zero in the direction of z conj(w). The core's sums are of binary64, beyond which those of binary32
  // numbers do not come.
  template <class T> static LUM_INLINE ComplexVec<T> Directed(Vec<T> size, ComplexVec<T> z, ComplexVec<T> w) {
    const auto directed = [size](Vec<T> x) __attribute__((always_inline)) {
      constexpr T largest = std::numeric_limits<T>::max();
      if constexpr (sizeof(T) == 4) return size * max(min(x, all(largest)), all(-largest));
      else return size * x;
    };
    return {directed(z.re * w.re + z.im * w.im), directed(z.im * w.re - z.re * w.im)};
  }
  template <class T> static LUM_INLINE Mask<T> IsSpecial(ComplexVec<T> z, ComplexVec<T> w) {
    return HasNonFinitePart(z) | HasNonFinitePart(w) | (IsZero(w.re) & IsZero(w.im));
  }
  // In one product.
  template <class T> static LUM_INLINE Mask<T> HaveTwoNans(ComplexVec<T> z, ComplexVec<T> w) {
    return (unord(z.re, z.re) & unord(w.re, w.re)) | (unord(z.im, z.im) & unord(w.im, w.im));
  }
  // 1 or 0 for an infinity or another number, with its sign.
  template <class T> static LUM_INLINE Vec<T> Boxed(Vec<T> x) {
    return or_sign(x, select(IsInfinite(x), all(T(1)), all(T(0))));
  }
  template <class T> static LUM_INLINE ComplexVec<T> OfSpecial(ComplexVec<T> z, ComplexVec<T> w) {
    const auto z_finite = ~HasNonFinitePart(z), w_finite = ~HasNonFinitePart(w);
    const auto z_infinite = IsInfinite(z.re) | IsInfinite(z.im), w_infinite = IsInfinite(w.re) | IsInfinite(w.im);
    const auto unbounded = all(std::numeric_limits<T>::infinity()), zero = all(T(0));
    const auto boxes_z = z_infinite & w_finite, boxes_w = z_finite & w_infinite;
    const auto chosen = [](Mask<T> m, Vec<T> x) __attribute__((always_inline)) { return select(m, Boxed(x), x); };
    const auto directed = Directed<T>(select(boxes_z, unbounded, zero), {chosen(boxes_z, z.re), chosen(boxes_z, z.im)},
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
template <class Z, class M> [[gnu::noinline]] CoreValue QuotientAsCore(const Z& z, const Z& w, const M& wanted) {
  const auto special = QuotientEnds::IsSpecial(z, w), by_rule = special & ~QuotientEnds::HaveTwoNans(z, w);
  CoreValue result{z, by_rule, by_rule};
  // Numbers take too much of the stack where they lie there.
  if constexpr (vectors_fit_registers) {
    if (any(wanted & ~special)) {
      const auto finite = QuotientEnds::OfFinite(z, w, wanted & ~special);
      result = {finite.value, by_rule | ~special, by_rule | finite.is_sure};
    }
  }
  if (any(wanted & special)) result.value = Select(special, QuotientEnds::OfSpecial(z, w), result.value);
  return result;
}

}  // namespace lum::inline LUM_LAYER::complex
