// Operations that all layers build from the others: operators, bitwise operations on floating-point lanes, polynomials,
// error-free sums, and constants checked at compile time.
#pragma once

#include <utility>

#include "frame/lane_format.h"
#include "frame/literals.h"
#include "frame/polynomial.h"
#include "frame/two_parts.h"

namespace lum {
inline namespace LUM_LAYER {

template <Floating T> LUM_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) { return add(a, b); }
template <Floating T> LUM_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) { return sub(a, b); }
template <Floating T> LUM_INLINE Vec<T> operator*(VecIn<T> a, VecIn<T> b) { return mul(a, b); }

// The predicates' codes are the same for floating-point and integer comparisons.
template <Lane T> LUM_INLINE Mask<T> eq(VecIn<T> a, VecIn<T> b) { return compare<0>(a, b); }
template <Lane T> LUM_INLINE Mask<T> lt(VecIn<T> a, VecIn<T> b) { return compare<1>(a, b); }
template <Lane T> LUM_INLINE Mask<T> le(VecIn<T> a, VecIn<T> b) { return compare<2>(a, b); }
template <Lane T> LUM_INLINE Mask<T> ne(VecIn<T> a, VecIn<T> b) { return compare<4>(a, b); }
template <Lane T> LUM_INLINE Mask<T> nlt(VecIn<T> a, VecIn<T> b) { return compare<5>(a, b); }
template <Lane T> LUM_INLINE Mask<T> nle(VecIn<T> a, VecIn<T> b) { return compare<6>(a, b); }
template <Floating T> LUM_INLINE Mask<T> unord(VecIn<T> a, VecIn<T> b) { return compare<3>(a, b); }

// A number as its bits are. Clang would see a changed sign through the pattern and take it into the fused operation behind,
// which gives a NaN the other sign; the empty statement hides it.
template <Floating T> LUM_INLINE Vec<T> sealed(Vec<T> a) {
#if defined(__clang__) && defined(LUM_AVX512)
  asm("" : "+v"(a.v));
#elif defined(__clang__) && defined(LUM_AVX2)
  asm("" : "+x"(a.low.v), "+x"(a.high.v));
#endif
  return a;
}

// Bitwise operations on the patterns of floating-point lanes.
template <Floating T> LUM_INLINE Vec<T> operator&(Vec<T> a, Vec<UnsignedOf<T>> b) { return as_float(bits(a) & b); }
template <Floating T> LUM_INLINE Vec<T> operator|(Vec<T> a, Vec<UnsignedOf<T>> b) { return sealed(as_float(bits(a) | b)); }
template <Floating T> LUM_INLINE Vec<T> operator^(Vec<T> a, Vec<UnsignedOf<T>> b) { return sealed(as_float(bits(a) ^ b)); }

template <Floating T> LUM_INLINE Vec<T> abs(Vec<T> a) { return a & all(static_cast<UnsignedOf<T>>(~sign_bit<T>)); }
template <Floating T> LUM_INLINE Vec<T> negate(Vec<T> a) { return a ^ all(sign_bit<T>); }
// The sign bit of a, the other bits zero.
template <Floating T> LUM_INLINE Vec<UnsignedOf<T>> sign_of(Vec<T> a) { return bits(a) & all(sign_bit<T>); }

// v with its sign bit set where that of x is.
template <Floating T> LUM_INLINE Vec<T> or_sign(Vec<T> x, Vec<T> v) {
  return as_float(ternary<A | (B & C)>(bits(v), bits(x), all(sign_bit<T>)));
}
// v with its sign turned over where x is negative.
template <Floating T> LUM_INLINE Vec<T> xor_sign(Vec<T> x, Vec<T> v) {
  return as_float(ternary<A ^ (B & C)>(bits(v), bits(x), all(sign_bit<T>)));
}

// c0 + x (c1 + x (c2 + ...)), one fused step a coefficient. The portable loop has no more than two vectors in memory at a time,
// where the nested calls would have all.
template <Floating T> LUM_INLINE Vec<T> horner(VecIn<T>, T c0) { return all(c0); }
template <Floating T, class... Rest> LUM_INLINE Vec<T> horner(VecIn<T> x, T c0, Rest... rest) {
  if constexpr (vectors_fit_registers) {
    return fma(horner(x, rest...), x, all(c0));
  } else {
    const T c[] = {c0, rest...};
    Vec<T> p = all(c[sizeof...(rest)]);
    for (size_t i = sizeof...(rest); i-- > 0;) p = fma(p, x, all(c[i]));
    return p;
  }
}

template <Floating T, size_t n> LUM_INLINE Vec<T> horner(VecIn<T> x, const Polynomial<T, n>& p) {
  return [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) { return horner(x, p.c[i]...); }
  (std::make_index_sequence<n>());
}

template <Floating T, size_t n> LUM_INLINE Vec<T> horner(VecIn<T> x, const T (&c)[n]) {
  return [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) { return horner(x, c[i]...); }
  (std::make_index_sequence<n>());
}

// (c0 + x c1) + x^2 ((c2 + x c3) + x^2 (...)): the pairs stand side by side and are joined by the square in turn.
template <size_t first = 0, Floating T, size_t n>
LUM_INLINE Vec<T> horner_of_pairs(Vec<T> x, Vec<T> square, const Polynomial<T, n>& p) {
  if constexpr (first + 1 == n) {
    return all(p.c[first]);
  } else {
    const auto pair = fma(all(p.c[first + 1]), x, all(p.c[first]));
    if constexpr (first + 2 == n) return pair;
    else return fma(horner_of_pairs<first + 2>(x, square, p), square, pair);
  }
}
// ((c6 + x c7) x^2 + (c4 + x c5)) x^4 + ((c2 + x c3) x^2 + (c0 + x c1)), G. Estrin's scheme for eight coefficients.
template <Floating T> LUM_INLINE Vec<T> estrin(Vec<T> x, const Polynomial<T, 8>& p) {
  const auto square = x * x;
  return fma(horner_of_pairs(x, square, part<4, 7>(p)), square * square, horner_of_pairs(x, square, part<0, 3>(p)));
}

// The exponent fields of numbers that are not negative, and 2^(n - bias) for such fields n.
template <Floating T> LUM_INLINE Vec<UnsignedOf<T>> exponent_field(Vec<T> x) {
  return shift_right<lane::Format<T>::fraction_bits>(bits(x));
}
template <Floating T> LUM_INLINE Vec<T> power_of_two(Vec<UnsignedOf<T>> field) {
  return as_float(shift_left<lane::Format<T>::fraction_bits>(field));
}

// a + b exactly, for any two finite numbers without overflow.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> two_sum(Vec<T> a, Vec<T> b) {
  const auto s = a + b;
  const auto b_part = s - a;
  return {s, (a - (s - b_part)) + (b - b_part)};
}
// a + b exactly, for |a| >= |b| or a = 0.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> fast_two_sum(Vec<T> a, Vec<T> b) {
  const auto s = a + b;
  return {s, b - (s - a)};
}
// a b exactly, for products that neither overflow nor come near the smallest numbers.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> two_product(Vec<T> a, Vec<T> b) {
  const auto product = a * b;
  return {product, fms(a, b, product)};
}

}  // namespace LUM_LAYER
}  // namespace lum
