// Numbers in two parts, and the sums and products that are exact in two parts as long as nothing overflows or underflows (T. J.
// Dekker, 1971; D. E. Knuth, The Art of Computer Programming 2). The functions of vectors are in vec_shared.h.
#pragma once

#include <limits>

#include "frame/layer.h"

namespace lum::inline LUM_LAYER {

// The numbers of one lane, the extended format included, of which not every one is a type of the language.
template <class T>
concept ScalarNumber = std::numeric_limits<T>::is_specialized && !std::numeric_limits<T>::is_integer;

// head + tail, |tail| at most about half a unit in the last place of head.
template <class T> struct TwoParts { T head, tail; };

// a + b exactly.
template <ScalarNumber T> constexpr TwoParts<T> two_sum(T a, T b) {
  const T sum = a + b;
  const T b_part = sum - a;
  return {sum, (a - (sum - b_part)) + (b - b_part)};
}
// a + b exactly, for |a| >= |b| or a = 0.
template <ScalarNumber T> constexpr TwoParts<T> fast_two_sum(T a, T b) {
  const T sum = a + b;
  return {sum, b - (sum - a)};
}

// 2^n + 1 with n half the digits: what splits a number in halves.
template <ScalarNumber T> consteval T half_splitter() {
  T power = 1;
  for (int i = 0; i < (std::numeric_limits<T>::digits + 1) / 2; ++i) power *= 2;
  return power + 1;
}
// a as a sum of two numbers of half the digits, for numbers that are far from overflow.
template <ScalarNumber T> constexpr TwoParts<T> split(T a) {
  const T scaled = half_splitter<T>() * a;
  const T head = scaled - (scaled - a);
  return {head, a - head};
}

// a b exactly, by the products of half significands.
template <ScalarNumber T> constexpr TwoParts<T> two_product(T a, T b) {
  const T product = a * b;
  const TwoParts<T> x = split(a), y = split(b);
  return {product, ((x.head * y.head - product) + x.head * y.tail + x.tail * y.head) + x.tail * y.tail};
}

}  // namespace lum::inline LUM_LAYER
