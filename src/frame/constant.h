// Steps written once for scalars and for vectors.
#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>

#include "frame/scalar_fma.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER {

// A constant as a number or in all lanes of a vector.
template <class V, class T> LUM_INLINE V Constant(T c) {
  if constexpr (std::is_same_v<V, T>) return c;
  else return all(c);
}

// Operations that vectors have as functions.
inline double negate(double a) { return -a; }
inline double abs(double a) { return __builtin_fabs(a); }
inline double div(double a, double b) { return a / b; }
inline double sqrt(double a) { return __builtin_sqrt(a); }
inline double fma(double a, double b, double c) { return scalar_fma(a, b, c); }
inline double fnma(double a, double b, double c) { return scalar_fma(-a, b, c); }
inline bool le(double a, double b) { return a <= b; }
inline bool any(bool condition) { return condition; }
inline double select(bool condition, double a, double b) { return condition ? a : b; }
inline double zero_unless(bool condition, double a) { return condition ? a : 0; }
inline uint64_t bits(double a) { return std::bit_cast<uint64_t>(a); }
template <int n> uint64_t shift_left(uint64_t a) { return a << n; }

// c0 + x (c1 + x (c2 + ...)), two operations a coefficient, each rounded: the steps of lane routines.
template <class V, class T, size_t n> LUM_INLINE V unfused_horner(V x, const Polynomial<T, n>& p) {
  V sum = Constant<V>(p.c[n - 1]);
  for (size_t i = n - 1; i-- > 0;) sum = sum * x + Constant<V>(p.c[i]);
  return sum;
}

}  // namespace lum::inline LUM_LAYER
