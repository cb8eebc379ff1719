// Unevaluated sums head + tail of two Extended numbers, with about twice the bits of one. A function computes its leading terms
// in pairs and the others plainly; head + tail is rounded once, at the end.
#pragma once

#include <array>

#include "complex/core/extended_fields.h"
#include "frame/two_parts.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::complex {

using ExtendedPair = TwoParts<Extended>;

inline Extended rounded(ExtendedPair a) { return a.head + a.tail; }
constexpr ExtendedPair operator-(ExtendedPair a) { return {-a.head, -a.tail}; }

// Sums and products of pairs: relative error a few units of 2^(-2 digits), for sums where the heads do not cancel.
constexpr ExtendedPair add(ExtendedPair a, ExtendedPair b) {
  const ExtendedPair sum = two_sum(a.head, b.head);
  return fast_two_sum(sum.head, sum.tail + (a.tail + b.tail));
}

constexpr ExtendedPair add(ExtendedPair a, Extended b) {
  const ExtendedPair sum = two_sum(a.head, b);
  return fast_two_sum(sum.head, sum.tail + a.tail);
}

constexpr ExtendedPair multiply(ExtendedPair a, Extended b) {
  const ExtendedPair product = two_product(a.head, b);
  return fast_two_sum(product.head, product.tail + a.tail * b);
}

constexpr ExtendedPair multiply(ExtendedPair a, ExtendedPair b) {
  const ExtendedPair product = two_product(a.head, b.head);
  return fast_two_sum(product.head, product.tail + (a.head * b.tail + a.tail * b.head));
}

// Times a power of two, exactly.
constexpr ExtendedPair scale(ExtendedPair a, Extended power) { return {a.head * power, a.tail * power}; }

// a / b: a quotient right to two units and, from its exact remainder, the rest. Error a few units of 2^(-2 digits).
constexpr ExtendedPair divide(ExtendedPair a, ExtendedPair b) {
  const Extended reciprocal = 1 / b.head;
  const Extended quotient = a.head * reciprocal;
  const ExtendedPair back = two_product(quotient, b.head);
  const Extended remainder = (((a.head - back.head) - back.tail) + a.tail) - quotient * b.tail;
  return fast_two_sum(quotient, remainder * reciprocal);
}

consteval ExtendedPair ratio(Extended numerator, Extended denominator) { return divide({numerator, 0}, {denominator, 0}); }

// The row of a table of pairs of binary64.
template <size_t n> inline ExtendedPair pair_at(const Table<double, n>& table, int row) {
  const size_t first = 2 * static_cast<size_t>(row);
  return {table.entries[first], table.entries[first + 1]};
}

// Coefficients, each written as a head and a tail in binary64.
template <size_t n> consteval std::array<Extended, n / 2> coefficients(const uint64_t (&bits)[n]) {
  std::array<Extended, n / 2> c{};
  for (size_t i = 0; i < n / 2; ++i)
    c[i] = static_cast<Extended>(std::bit_cast<double>(bits[2 * i])) + std::bit_cast<double>(bits[2 * i + 1]);
  return c;
}

// c0 + c1 x + ... with the first terms of c, by two interleaved chains in x^2.
template <size_t terms, size_t n> inline Extended first_terms(const std::array<Extended, n>& c, Extended x) {
  static_assert(0 < terms && terms <= n);
  const Extended square = x * x;
  Extended even = 0, odd = 0;
  for (size_t i = terms; i-- > 0;) {
    if (i % 2 == 0) even = even * square + c[i];
    else odd = odd * square + c[i];
  }
  return odd * x + even;
}

// All of it.
template <size_t n> inline Extended polynomial(const std::array<Extended, n>& c, Extended x) { return first_terms<n>(c, x); }

// x + c x^3 + q x^5, the first two terms in pairs. Given |c x^2| < 1/2 and |q x^4| small beside 1.
inline ExtendedPair odd_sum(ExtendedPair x, ExtendedPair c, Extended q) {
  const ExtendedPair square = multiply(x, x);
  const ExtendedPair cubic = multiply(multiply(square, x), c);
  const ExtendedPair sum = fast_two_sum(x.head, cubic.head);
  return fast_two_sum(sum.head, sum.tail + (x.tail + (cubic.tail + q * (square.head * square.head) * x.head)));
}

// x + x^3 times the polynomial of c in x^2, plainly: given |x| small enough that the rounding of the correction is lost.
template <size_t terms, size_t n> inline Extended odd_series(const std::array<Extended, n>& c, Extended x) {
  const Extended square = x * x;
  return x + x * square * first_terms<terms>(c, square);
}

}  // namespace lum::inline LUM_LAYER::complex
