// Vectors of binary64 numbers in two parts, with twice the bits of one. |tail| is at most a few units in the last place of
// head. Numbers near the ends of the exponent range are no matter of these functions.
#pragma once

#include <type_traits>

#include "frame/types.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER::complex {

using HeadTail = TwoParts<Vec<Lum64f>>;

LUM_INLINE HeadTail operator-(HeadTail a) { return {negate(a.head), negate(a.tail)}; }
// a turned over where x is negative.
LUM_INLINE HeadTail XorSign(Vec<Lum64f> x, HeadTail a) { return {xor_sign(x, a.head), xor_sign(x, a.tail)}; }

// The same number with the smallest tail, given |head| >= |tail| or head = 0.
LUM_INLINE HeadTail Normalised(HeadTail a) { return fast_two_sum(a.head, a.tail); }

// Relative error a few units of 2^-105, of the larger operand's where the heads cancel.
LUM_INLINE HeadTail Add(HeadTail a, HeadTail b) {
  const auto s = two_sum(a.head, b.head);
  return fast_two_sum(s.head, s.tail + (a.tail + b.tail));
}
LUM_INLINE HeadTail Add(HeadTail a, Vec<Lum64f> b) {
  const auto s = two_sum(a.head, b);
  return fast_two_sum(s.head, s.tail + a.tail);
}

LUM_INLINE HeadTail Product(HeadTail a, HeadTail b) {
  const auto head = a.head * b.head;
  return {head, fma(a.tail, b.head, fma(a.head, b.tail, fms(a.head, b.head, head)))};
}
LUM_INLINE HeadTail Square(HeadTail a) {
  const auto head = a.head * a.head;
  return {head, fma(a.head + a.head, a.tail, fms(a.head, a.head, head))};
}

// Times a power of two.
LUM_INLINE HeadTail Scaled(HeadTail a, Lum64f power) { return {a.head * all(power), a.tail * all(power)}; }

LUM_INLINE HeadTail Select(Mask<Lum64f> m, HeadTail a, HeadTail b) {
  return {select(m, a.head, b.head), select(m, a.tail, b.tail)};
}
LUM_INLINE HeadTail ZeroUnless(Mask<Lum64f> m, HeadTail a) { return {zero_unless(m, a.head), zero_unless(m, a.tail)}; }
LUM_INLINE HeadTail Magnitude(HeadTail a) { return XorSign(a.head, a); }

// Two Newton steps from the estimate: right to a few units.
LUM_INLINE Vec<Lum64f> FullReciprocal(Vec<Lum64f> a) {
  const auto estimate = rcp14(a);
  const auto r = fma(estimate, fnma(a, estimate, all(1.0)), estimate);
  return fma(r, fnma(a, r, all(1.0)), r);
}

// A quotient of the heads and, from its exact remainder, the rest.
LUM_INLINE HeadTail Quotient(HeadTail a, HeadTail b) {
  const auto reciprocal = FullReciprocal(b.head);
  const auto quotient = a.head * reciprocal;
  const auto remainder = fnma(quotient, b.tail, fnma(quotient, b.head, a.head) + a.tail);
  return {quotient, remainder * reciprocal};
}

// The square root of a positive number: the root g and half its reciprocal h refined together, then the rest from the exact
// residue a - g^2.
LUM_INLINE HeadTail SquareRoot(HeadTail a) {
  const auto estimate = rsqrt14(a.head);
  auto g = a.head * estimate, h = estimate * all(0.5);
  for (int step = 0; step < 2; ++step) {
    const auto e = fnma(g, h, all(0.5));
    g = fma(g, e, g);
    h = fma(h, e, h);
  }
  return {g, (fnma(g, g, a.head) + a.tail) * h};
}

// x^2 exactly.
LUM_INLINE HeadTail ExactSquare(Vec<Lum64f> x) { return two_product(x, x); }

// A number in one part, which is enough for results of 32 bits. The formulas of the functions are written for a Number of
// either kind.
struct OnePart {
  Vec<Lum64f> head;
};

LUM_INLINE OnePart operator-(OnePart a) { return {negate(a.head)}; }
LUM_INLINE OnePart XorSign(Vec<Lum64f> x, OnePart a) { return {xor_sign(x, a.head)}; }
LUM_INLINE OnePart Add(OnePart a, OnePart b) { return {a.head + b.head}; }
LUM_INLINE OnePart Add(OnePart a, Vec<Lum64f> b) { return {a.head + b}; }
LUM_INLINE OnePart Product(OnePart a, OnePart b) { return {a.head * b.head}; }
LUM_INLINE OnePart Square(OnePart a) { return {a.head * a.head}; }
LUM_INLINE OnePart Scaled(OnePart a, Lum64f power) { return {a.head * all(power)}; }
LUM_INLINE OnePart Select(Mask<Lum64f> m, OnePart a, OnePart b) { return {select(m, a.head, b.head)}; }
LUM_INLINE OnePart ZeroUnless(Mask<Lum64f> m, OnePart a) { return {zero_unless(m, a.head)}; }
LUM_INLINE OnePart Magnitude(OnePart a) { return {abs(a.head)}; }
LUM_INLINE OnePart Quotient(OnePart a, OnePart b) { return {div(a.head, b.head)}; }
LUM_INLINE OnePart SquareRoot(OnePart a) { return {sqrt(a.head)}; }

// What a path needs for results of a type.
template <class E> using NumberFor = std::conditional_t<std::is_same_v<E, Lum32fc>, OnePart, HeadTail>;

// x, a + b and x^2 as a Number.
template <class Number> LUM_INLINE Number NumberOf(Vec<Lum64f> x) {
  if constexpr (std::is_same_v<Number, OnePart>) return {x};
  else return {x, all(0.0)};
}
template <class Number> LUM_INLINE Number SumOf(Vec<Lum64f> a, Vec<Lum64f> b) {
  if constexpr (std::is_same_v<Number, OnePart>) return {a + b};
  else return two_sum(a, b);
}
template <class Number> LUM_INLINE Number SquareOf(Vec<Lum64f> x) {
  if constexpr (std::is_same_v<Number, OnePart>) return {x * x};
  else return ExactSquare(x);
}

}  // namespace lum::inline LUM_LAYER::complex
