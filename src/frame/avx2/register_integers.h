// Bits and integers in one register. A part of frame/vec_avx2.h.
#pragma once

#include "frame/avx2/registers.h"

namespace lum {
inline namespace avx2 {
namespace half {

template <Integer T> LUM_INLINE Half<T> operator&(Half<T> a, Half<T> b) { return {_mm256_and_si256(a.v, b.v)}; }
template <Integer T> LUM_INLINE Half<T> operator|(Half<T> a, Half<T> b) { return {_mm256_or_si256(a.v, b.v)}; }
template <Integer T> LUM_INLINE Half<T> operator^(Half<T> a, Half<T> b) { return {_mm256_xor_si256(a.v, b.v)}; }
template <Integer T> LUM_INLINE Half<T> and_not(Half<T> a, Half<T> b) { return {_mm256_andnot_si256(a.v, b.v)}; }
template <Integer T> LUM_INLINE Half<T> operator+(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_add_epi32(a.v, b.v)};
  else return {_mm256_add_epi64(a.v, b.v)};
}
template <Integer T> LUM_INLINE Half<T> operator-(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_sub_epi32(a.v, b.v)};
  else return {_mm256_sub_epi64(a.v, b.v)};
}
// 64-bit lanes take three products of 32 bits.
template <Integer T> LUM_INLINE Half<T> operator*(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) {
    return {_mm256_mullo_epi32(a.v, b.v)};
  } else {
    const __m256i crossed =
        _mm256_add_epi64(_mm256_mul_epu32(_mm256_srli_epi64(a.v, 32), b.v), _mm256_mul_epu32(a.v, _mm256_srli_epi64(b.v, 32)));
    return {_mm256_add_epi64(_mm256_mul_epu32(a.v, b.v), _mm256_slli_epi64(crossed, 32))};
  }
}
template <int n, Integer T> LUM_INLINE Half<T> shift_left(Half<T> a) {
  if constexpr (is32<T>) return {_mm256_slli_epi32(a.v, n)};
  else return {_mm256_slli_epi64(a.v, n)};
}
template <int n, Integer T> LUM_INLINE Half<T> shift_right(Half<T> a) {
  if constexpr (is32<T>) return {_mm256_srli_epi32(a.v, n)};
  else return {_mm256_srli_epi64(a.v, n)};
}
// 64-bit lanes are shifted by shifts of their halves.
template <int n, Integer T> LUM_INLINE Half<T> shift_right_arithmetic(Half<T> a) {
  if constexpr (is32<T>) {
    return {_mm256_srai_epi32(a.v, n)};
  } else if constexpr (n >= 63) {
    return {_mm256_cmpgt_epi64(_mm256_setzero_si256(), a.v)};
  } else if constexpr (n >= 32) {
    const __m256i upper = _mm256_shuffle_epi32(_mm256_srai_epi32(a.v, n - 32), 0xF5);
    return {_mm256_blend_epi32(upper, _mm256_srai_epi32(a.v, 31), 0xAA)};
  } else {
    return {_mm256_blend_epi32(_mm256_srli_epi64(a.v, n), _mm256_srai_epi32(a.v, n), 0xAA)};
  }
}
template <Integer T> LUM_INLINE Half<T> shift_left(Half<T> a, Half<T> n) {
  if constexpr (is32<T>) return {_mm256_sllv_epi32(a.v, n.v)};
  else return {_mm256_sllv_epi64(a.v, n.v)};
}
template <Integer T> LUM_INLINE Half<T> shift_right(Half<T> a, Half<T> n) {
  if constexpr (is32<T>) return {_mm256_srlv_epi32(a.v, n.v)};
  else return {_mm256_srlv_epi64(a.v, n.v)};
}
// In negative 64-bit lanes ~a is shifted.
template <Integer T> LUM_INLINE Half<T> shift_right_arithmetic(Half<T> a, Half<T> n) {
  if constexpr (is32<T>) {
    return {_mm256_srav_epi32(a.v, n.v)};
  } else {
    const Half<T> negative{_mm256_cmpgt_epi64(_mm256_setzero_si256(), a.v)};
    return shift_right(a ^ negative, n) ^ negative;
  }
}

// Bit i of imm is the result for the operand bits with i = 4 a + 2 b + c: the choice by a between two functions of b and c.
template <int rows, Integer T> LUM_INLINE Half<T> binary(Half<T> b, Half<T> c) {
  const Half<T> ones = all(static_cast<T>(~T{0}));
  if constexpr (rows == 0x0) return all(T{0});
  else if constexpr (rows == 0x1) return (b | c) ^ ones;
  else if constexpr (rows == 0x2) return and_not(b, c);
  else if constexpr (rows == 0x3) return b ^ ones;
  else if constexpr (rows == 0x4) return and_not(c, b);
  else if constexpr (rows == 0x5) return c ^ ones;
  else if constexpr (rows == 0x6) return b ^ c;
  else if constexpr (rows == 0x8) return b & c;
  else if constexpr (rows == 0xA) return c;
  else if constexpr (rows == 0xC) return b;
  else if constexpr (rows == 0xE) return b | c;
  else return binary<rows ^ 0xF>(b, c) ^ ones;
}
template <int imm, Integer T> LUM_INLINE Half<T> ternary(Half<T> a, Half<T> b, Half<T> c) {
  constexpr int clear = imm & 15, set = imm >> 4 & 15;  // the rows where a is 0, and where it is 1
  if constexpr (clear == set) return binary<clear>(b, c);
  else if constexpr (clear == (set ^ 15)) return a ^ binary<clear>(b, c);
  else if constexpr (set == 0) return and_not(a, binary<clear>(b, c));
  else if constexpr (clear == 0) return a & binary<set>(b, c);
  else if constexpr (set == 15) return a | binary<clear>(b, c);
  else if constexpr ((clear & set) == 0) return (a & binary<set>(b, c)) | and_not(a, binary<clear>(b, c));
  else return binary<clear>(b, c) ^ (a & binary<clear ^ set>(b, c));
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
