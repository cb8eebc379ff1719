// Bitwise and integer operations and conversions as AVX-512 instructions, a part of frame/vec_avx512.h.
#pragma once

#include "frame/avx512/base.h"

namespace lum {
inline namespace avx512 {

// ---- Bits and integers

template <Integer T> LUM_INLINE Vec<T> operator&(Vec<T> a, Vec<T> b) { return {_mm512_and_si512(a.v, b.v)}; }
template <Integer T> LUM_INLINE Vec<T> operator|(Vec<T> a, Vec<T> b) { return {_mm512_or_si512(a.v, b.v)}; }
template <Integer T> LUM_INLINE Vec<T> operator^(Vec<T> a, Vec<T> b) { return {_mm512_xor_si512(a.v, b.v)}; }
// ~a & b.
template <Integer T> LUM_INLINE Vec<T> and_not(Vec<T> a, Vec<T> b) { return {_mm512_andnot_si512(a.v, b.v)}; }

template <Integer T> LUM_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_add_epi32(a.v, b.v)};
  else return {_mm512_add_epi64(a.v, b.v)};
}
template <Integer T> LUM_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_sub_epi32(a.v, b.v)};
  else return {_mm512_sub_epi64(a.v, b.v)};
}
// The low half of the product.
template <Integer T> LUM_INLINE Vec<T> operator*(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_mullo_epi32(a.v, b.v)};
  else return {_mm512_mullo_epi64(a.v, b.v)};
}
// The whole product of the low 32 bits of each lane.
LUM_INLINE Vec<uint64_t> mul_low_halves(Vec<uint64_t> a, Vec<uint64_t> b) { return {_mm512_mul_epu32(a.v, b.v)}; }

template <int n, Integer T> LUM_INLINE Vec<T> shift_left(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_slli_epi32(a.v, n)};
  else return {_mm512_slli_epi64(a.v, n)};
}
// Zeros come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_srli_epi32(a.v, n)};
  else return {_mm512_srli_epi64(a.v, n)};
}
// Copies of the sign bit come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_srai_epi32(a.v, n)};
  else return {_mm512_srai_epi64(a.v, n)};
}
// By the count in the lane of n, unsigned; counts from the lane's width on shift everything out.
template <Integer T> LUM_INLINE Vec<T> shift_left(Vec<T> a, Vec<T> n) {
  if constexpr (is32<T>) return {_mm512_sllv_epi32(a.v, n.v)};
  else return {_mm512_sllv_epi64(a.v, n.v)};
}
template <Integer T> LUM_INLINE Vec<T> shift_right(Vec<T> a, Vec<T> n) {
  if constexpr (is32<T>) return {_mm512_srlv_epi32(a.v, n.v)};
  else return {_mm512_srlv_epi64(a.v, n.v)};
}
template <Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(Vec<T> a, Vec<T> n) {
  if constexpr (is32<T>) return {_mm512_srav_epi32(a.v, n.v)};
  else return {_mm512_srav_epi64(a.v, n.v)};
}
template <Integer T> LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm512_min_epi32(a.v, b.v)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm512_min_epu32(a.v, b.v)};
  else if constexpr (std::same_as<T, int64_t>) return {_mm512_min_epi64(a.v, b.v)};
  else return {_mm512_min_epu64(a.v, b.v)};
}
template <Integer T> LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm512_max_epi32(a.v, b.v)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm512_max_epu32(a.v, b.v)};
  else if constexpr (std::same_as<T, int64_t>) return {_mm512_max_epi64(a.v, b.v)};
  else return {_mm512_max_epu64(a.v, b.v)};
}

// ---- Conversions

// The low or high half of the lanes, widened; exact.
LUM_INLINE Vec<double> widen_low(Vec<float> a) { return {_mm512_cvt_roundps_pd(_mm512_castps512_ps256(a.v), suppressed<rn>)}; }
LUM_INLINE Vec<double> widen_high(Vec<float> a) {
  return {_mm512_cvt_roundps_pd(_mm512_extractf32x8_ps(a.v, 1), suppressed<rn>)};
}
LUM_INLINE Vec<int64_t> widen_low(Vec<int32_t> a) { return {_mm512_cvtepi32_epi64(_mm512_castsi512_si256(a.v))}; }
LUM_INLINE Vec<int64_t> widen_high(Vec<int32_t> a) { return {_mm512_cvtepi32_epi64(_mm512_extracti32x8_epi32(a.v, 1))}; }
LUM_INLINE Vec<uint64_t> widen_low(Vec<uint32_t> a) { return {_mm512_cvtepu32_epi64(_mm512_castsi512_si256(a.v))}; }
LUM_INLINE Vec<uint64_t> widen_high(Vec<uint32_t> a) { return {_mm512_cvtepu32_epi64(_mm512_extracti32x8_epi32(a.v, 1))}; }
// Two vectors rounded to nearest and joined; integers lose their high halves.
LUM_INLINE Vec<float> narrow(Vec<double> low, Vec<double> high) {
  const __m256 l = _mm512_cvt_roundpd_ps(low.v, suppressed<rn>);
  const __m256 h = _mm512_cvt_roundpd_ps(high.v, suppressed<rn>);
  return {_mm512_insertf32x8(_mm512_castps256_ps512(l), h, 1)};
}
template <Integer64 T> LUM_INLINE auto narrow(Vec<T> low, Vec<T> high) {
  const __m512i joined =
      _mm512_inserti32x8(_mm512_castsi256_si512(_mm512_cvtepi64_epi32(low.v)), _mm512_cvtepi64_epi32(high.v), 1);
  if constexpr (std::same_as<T, int64_t>) return Vec<int32_t>{joined};
  else return Vec<uint32_t>{joined};
}
// Integers as floating-point numbers, rounded to nearest.
LUM_INLINE Vec<float> to_float(Vec<int32_t> a) { return {_mm512_cvt_roundepi32_ps(a.v, suppressed<rn>)}; }
// The low 32 bits of each lane, a signed integer, as a double; exact.
template <Integer64 T> LUM_INLINE Vec<double> to_double(Vec<T> a) { return {_mm512_cvtepi32_pd(_mm512_cvtepi64_epi32(a.v))}; }
// All bits of a lane set where the mask is.
template <Lane T> LUM_INLINE Vec<UnsignedOf<T>> spread(Mask<T> m) {
  if constexpr (is32<T>) return {_mm512_movm_epi32(m.k)};
  else return {_mm512_movm_epi64(m.k)};
}
// The top bit of every lane.
template <Integer T> LUM_INLINE Mask<T> sign_mask(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_movepi32_mask(a.v)};
  else return {_mm512_movepi64_mask(a.v)};
}

}  // namespace avx512
}  // namespace lum
