// Comparison, and floating-point arithmetic to nearest, in one register. A part of frame/vec_avx2.h.
#pragma once

#include "frame/avx2/register_integers.h"

namespace lum {
inline namespace avx2 {
namespace half {

// ---- Comparison

template <int predicate, Floating T> LUM_INLINE HalfMask<T> compare(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_castps_si256(_mm256_cmp_ps(a.v, b.v, predicate))};
  else return {_mm256_castpd_si256(_mm256_cmp_pd(a.v, b.v, predicate))};
}
// Signed numbers are compared; unsigned ones with their top bits turned over.
template <Integer T> LUM_INLINE HalfMask<T> greater(Half<T> a, Half<T> b) {
  if constexpr (std::is_unsigned_v<T>) {
    const Half<T> top = all(static_cast<T>(T{1} << (8 * sizeof(T) - 1)));
    a = a ^ top;
    b = b ^ top;
  }
  if constexpr (is32<T>) return {_mm256_cmpgt_epi32(a.v, b.v)};
  else return {_mm256_cmpgt_epi64(a.v, b.v)};
}
template <int predicate, Integer T> LUM_INLINE HalfMask<T> compare(Half<T> a, Half<T> b) {
  if constexpr (predicate == 0) {
    if constexpr (is32<T>) return {_mm256_cmpeq_epi32(a.v, b.v)};
    else return {_mm256_cmpeq_epi64(a.v, b.v)};
  } else if constexpr (predicate == 1) return greater(b, a);
  else if constexpr (predicate == 3) return {_mm256_setzero_si256()};
  else if constexpr (predicate == 6) return greater(a, b);
  else return ~compare<(predicate + 4) % 8>(a, b);
}
template <Lane T> LUM_INLINE HalfMask<T> eq(Half<T> a, Half<T> b) { return compare<0>(a, b); }
template <Lane T> LUM_INLINE HalfMask<T> lt(Half<T> a, Half<T> b) { return compare<1>(a, b); }
template <Lane T> LUM_INLINE HalfMask<T> le(Half<T> a, Half<T> b) { return compare<2>(a, b); }
template <Lane T> LUM_INLINE HalfMask<T> nlt(Half<T> a, Half<T> b) { return compare<5>(a, b); }

template <Integer T> LUM_INLINE Half<T> min(Half<T> a, Half<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm256_min_epi32(a.v, b.v)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm256_min_epu32(a.v, b.v)};
  else return select(greater(a, b), b, a);
}
template <Integer T> LUM_INLINE Half<T> max(Half<T> a, Half<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm256_max_epi32(a.v, b.v)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm256_max_epu32(a.v, b.v)};
  else return select(greater(a, b), a, b);
}

// ---- Floating-point arithmetic to nearest

template <Floating T> LUM_INLINE Half<T> operator+(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_add_ps(a.v, b.v)};
  else return {_mm256_add_pd(a.v, b.v)};
}
template <Floating T> LUM_INLINE Half<T> operator-(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_sub_ps(a.v, b.v)};
  else return {_mm256_sub_pd(a.v, b.v)};
}
template <Floating T> LUM_INLINE Half<T> operator*(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_mul_ps(a.v, b.v)};
  else return {_mm256_mul_pd(a.v, b.v)};
}
template <Floating T> LUM_INLINE Half<T> fma(Half<T> a, Half<T> b, Half<T> c) {
  if constexpr (is32<T>) return {_mm256_fmadd_ps(a.v, b.v, c.v)};
  else return {_mm256_fmadd_pd(a.v, b.v, c.v)};
}
template <Floating T> LUM_INLINE Half<T> fms(Half<T> a, Half<T> b, Half<T> c) {
  if constexpr (is32<T>) return {_mm256_fmsub_ps(a.v, b.v, c.v)};
  else return {_mm256_fmsub_pd(a.v, b.v, c.v)};
}
template <Floating T> LUM_INLINE Half<T> fnma(Half<T> a, Half<T> b, Half<T> c) {
  if constexpr (is32<T>) return {_mm256_fnmadd_ps(a.v, b.v, c.v)};
  else return {_mm256_fnmadd_pd(a.v, b.v, c.v)};
}
template <Floating T> LUM_INLINE Half<T> fnms(Half<T> a, Half<T> b, Half<T> c) {
  if constexpr (is32<T>) return {_mm256_fnmsub_ps(a.v, b.v, c.v)};
  else return {_mm256_fnmsub_pd(a.v, b.v, c.v)};
}
// Written out because the compilers' intrinsic is fmaddsub with c negated, which changes the sign of a NaN.
template <Floating T> LUM_INLINE Half<T> fmsubadd(Half<T> a, Half<T> b, Half<T> c) {
  if constexpr (is32<T>) asm("vfmsubadd213ps %2, %1, %0" : "+x"(a.v) : "x"(b.v), "x"(c.v));
  else asm("vfmsubadd213pd %2, %1, %0" : "+x"(a.v) : "x"(b.v), "x"(c.v));
  return a;
}
// Integers below 2^31, or of 64 bits below 2^52, none negative.
template <Floating T> LUM_INLINE Half<T> to_floating(Half<UnsignedOf<T>> n) {
  if constexpr (is32<T>) return {_mm256_cvtepi32_ps(n.v)};
  else return as_float<T>(n | bits(all(0x1p52))) - all(0x1p52);
}
template <int mode, Floating T> LUM_INLINE Half<T> round(Half<T> a) {
  if constexpr (is32<T>) return {_mm256_round_ps(a.v, mode | _MM_FROUND_NO_EXC)};
  else return {_mm256_round_pd(a.v, mode | _MM_FROUND_NO_EXC)};
}
// The second number where either is a NaN or both are zeros.
template <Floating T> LUM_INLINE Half<T> min(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_min_ps(a.v, b.v)};
  else return {_mm256_min_pd(a.v, b.v)};
}
template <Floating T> LUM_INLINE Half<T> max(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return {_mm256_max_ps(a.v, b.v)};
  else return {_mm256_max_pd(a.v, b.v)};
}
template <Floating T> LUM_INLINE Half<T> magnitude(Half<T> a) {
  return as_float<T>(bits(a) & all(static_cast<UnsignedOf<T>>(~sign_bit<T>)));
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
