// Sums and products of which two NaNs give the first one, quieted.
#pragma once

#include "frame/vec.h"

namespace lum::inline LUM_LAYER::arith {

// x86 instructions choose the first operand, and those of AVX-512 are written with their operands in order. In C++ a compiler
// may exchange the terms of a sum or a product, and does so by element; the other layers name the instruction where they have
// one that chooses, and elsewhere choose by themselves.
#if defined(LUM_AVX2)
#define LUM_ORDERED(operation, x, y) asm(operation " %1, %0, %0" : "+x"(x) : "x"(y))
template <Floating T> LUM_INLINE Vec<T> SumInOrder(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) {
    LUM_ORDERED("vaddps", a.low.v, b.low.v);
    LUM_ORDERED("vaddps", a.high.v, b.high.v);
  } else {
    LUM_ORDERED("vaddpd", a.low.v, b.low.v);
    LUM_ORDERED("vaddpd", a.high.v, b.high.v);
  }
  return a;
}
template <Floating T> LUM_INLINE Vec<T> ProductInOrder(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) {
    LUM_ORDERED("vmulps", a.low.v, b.low.v);
    LUM_ORDERED("vmulps", a.high.v, b.high.v);
  } else {
    LUM_ORDERED("vmulpd", a.low.v, b.low.v);
    LUM_ORDERED("vmulpd", a.high.v, b.high.v);
  }
  return a;
}
#undef LUM_ORDERED
#elif defined(__x86_64__) && !defined(LUM_AVX512)
#ifdef __AVX__
#define LUM_ORDERED(operation, x, y) asm("v" operation " %1, %0, %0" : "+x"(x) : "x"(y))
#else
#define LUM_ORDERED(operation, x, y) asm(operation " %1, %0" : "+x"(x) : "x"(y))
#endif
template <Floating T> LUM_INLINE Vec<T> SumInOrder(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) {
        if constexpr (is32<T>) LUM_ORDERED("addps", x, y);
        else LUM_ORDERED("addpd", x, y);
        return x;
      },
      a, b);
}
template <Floating T> LUM_INLINE Vec<T> ProductInOrder(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) {
        if constexpr (is32<T>) LUM_ORDERED("mulps", x, y);
        else LUM_ORDERED("mulpd", x, y);
        return x;
      },
      a, b);
}
#undef LUM_ORDERED
#else
template <Floating T> LUM_INLINE Vec<T> SumInOrder(Vec<T> a, Vec<T> b) { return a + b; }
template <Floating T> LUM_INLINE Vec<T> ProductInOrder(Vec<T> a, Vec<T> b) { return a * b; }
#endif

}  // namespace lum::inline LUM_LAYER::arith
