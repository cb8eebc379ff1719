// Bitwise and integer operations and conversions on pairs of registers, a part of frame/vec_avx2.h.
#pragma once

#include "frame/avx2/base.h"

namespace lum {
inline namespace avx2 {

// ---- Bits and integers

template <Integer T> LUM_INLINE Vec<T> operator&(Vec<T> a, Vec<T> b) { return {a.low & b.low, a.high & b.high}; }
template <Integer T> LUM_INLINE Vec<T> operator|(Vec<T> a, Vec<T> b) { return {a.low | b.low, a.high | b.high}; }
template <Integer T> LUM_INLINE Vec<T> operator^(Vec<T> a, Vec<T> b) { return {a.low ^ b.low, a.high ^ b.high}; }
// ~a & b.
template <Integer T> LUM_INLINE Vec<T> and_not(Vec<T> a, Vec<T> b) {
  return {half::and_not(a.low, b.low), half::and_not(a.high, b.high)};
}

template <Integer T> LUM_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) { return {a.low + b.low, a.high + b.high}; }
template <Integer T> LUM_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) { return {a.low - b.low, a.high - b.high}; }
// The low half of the product.
template <Integer T> LUM_INLINE Vec<T> operator*(Vec<T> a, Vec<T> b) { return {a.low * b.low, a.high * b.high}; }
// The whole product of the low 32 bits of each lane.
LUM_INLINE Vec<uint64_t> mul_low_halves(Vec<uint64_t> a, Vec<uint64_t> b) {
  return {{_mm256_mul_epu32(a.low.v, b.low.v)}, {_mm256_mul_epu32(a.high.v, b.high.v)}};
}

template <int n, Integer T> LUM_INLINE Vec<T> shift_left(Vec<T> a) {
  return {half::shift_left<n>(a.low), half::shift_left<n>(a.high)};
}
// Zeros come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right(Vec<T> a) {
  return {half::shift_right<n>(a.low), half::shift_right<n>(a.high)};
}
// Copies of the sign bit come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(Vec<T> a) {
  return {half::shift_right_arithmetic<n>(a.low), half::shift_right_arithmetic<n>(a.high)};
}
// By the count in the lane of n, unsigned; counts from the lane's width on shift everything out.
template <Integer T> LUM_INLINE Vec<T> shift_left(Vec<T> a, Vec<T> n) {
  return {half::shift_left(a.low, n.low), half::shift_left(a.high, n.high)};
}
template <Integer T> LUM_INLINE Vec<T> shift_right(Vec<T> a, Vec<T> n) {
  return {half::shift_right(a.low, n.low), half::shift_right(a.high, n.high)};
}
template <Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(Vec<T> a, Vec<T> n) {
  return {half::shift_right_arithmetic(a.low, n.low), half::shift_right_arithmetic(a.high, n.high)};
}
template <Integer T> LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) { return {half::min(a.low, b.low), half::min(a.high, b.high)}; }
template <Integer T> LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) { return {half::max(a.low, b.low), half::max(a.high, b.high)}; }

// ---- Conversions

// The low or high half of the lanes, widened; exact.
LUM_INLINE Vec<double> widen_low(Vec<float> a) {
  return {{_mm256_cvtps_pd(_mm256_castps256_ps128(a.low.v))}, {_mm256_cvtps_pd(_mm256_extractf128_ps(a.low.v, 1))}};
}
LUM_INLINE Vec<double> widen_high(Vec<float> a) {
  return {{_mm256_cvtps_pd(_mm256_castps256_ps128(a.high.v))}, {_mm256_cvtps_pd(_mm256_extractf128_ps(a.high.v, 1))}};
}
LUM_INLINE Vec<int64_t> widen_low(Vec<int32_t> a) {
  return {{_mm256_cvtepi32_epi64(half::low_quarter(a.low.v))}, {_mm256_cvtepi32_epi64(half::high_quarter(a.low.v))}};
}
LUM_INLINE Vec<int64_t> widen_high(Vec<int32_t> a) {
  return {{_mm256_cvtepi32_epi64(half::low_quarter(a.high.v))}, {_mm256_cvtepi32_epi64(half::high_quarter(a.high.v))}};
}
LUM_INLINE Vec<uint64_t> widen_low(Vec<uint32_t> a) {
  return {{_mm256_cvtepu32_epi64(half::low_quarter(a.low.v))}, {_mm256_cvtepu32_epi64(half::high_quarter(a.low.v))}};
}
LUM_INLINE Vec<uint64_t> widen_high(Vec<uint32_t> a) {
  return {{_mm256_cvtepu32_epi64(half::low_quarter(a.high.v))}, {_mm256_cvtepu32_epi64(half::high_quarter(a.high.v))}};
}
// Two vectors rounded to nearest and joined; integers lose their high halves.
LUM_INLINE Vec<float> narrow(Vec<double> low, Vec<double> high) {
  const auto joined = [](Vec<double> a) __attribute__((always_inline))->Half<float> {
    return {_mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(a.low.v)), _mm256_cvtpd_ps(a.high.v), 1)};
  };
  return {joined(low), joined(high)};
}
template <Integer64 T> LUM_INLINE auto narrow(Vec<T> low, Vec<T> high) {
  using Narrow = std::conditional_t<std::same_as<T, int64_t>, int32_t, uint32_t>;
  return Vec<Narrow>{{half::low_words(low.low.v, low.high.v)}, {half::low_words(high.low.v, high.high.v)}};
}
// Integers as floating-point numbers, rounded to nearest.
LUM_INLINE Vec<float> to_float(Vec<int32_t> a) { return {{_mm256_cvtepi32_ps(a.low.v)}, {_mm256_cvtepi32_ps(a.high.v)}}; }
// The low 32 bits of each lane, a signed integer, as a double; exact.
template <Integer64 T> LUM_INLINE Vec<double> to_double(Vec<T> a) {
  const __m256i words = half::low_words(a.low.v, a.high.v);
  return {{_mm256_cvtepi32_pd(half::low_quarter(words))}, {_mm256_cvtepi32_pd(half::high_quarter(words))}};
}
// All bits of a lane set where the mask is.
template <Lane T> LUM_INLINE Vec<UnsignedOf<T>> spread(Mask<T> m) { return {{m.low.v}, {m.high.v}}; }
// The top bit of every lane.
template <Integer T> LUM_INLINE Mask<T> sign_mask(Vec<T> a) {
  constexpr int last = 8 * static_cast<int>(sizeof(T)) - 1;
  return {{half::shift_right_arithmetic<last>(a.low).v}, {half::shift_right_arithmetic<last>(a.high).v}};
}

}  // namespace avx2
}  // namespace lum
