// Registers and masks as AVX-512 has them, loads and stores. Like its neighbours a part of frame/vec_avx512.h, which silences
// the compilers' complaints about their own intrinsics.
#pragma once

#include "frame/intrinsics.h"
#include "frame/vec_types.h"

namespace lum {
inline namespace avx512 {

// ---- Types

template <Lane T> struct RegisterOf { using Type = __m512i; };
template <> struct RegisterOf<float> { using Type = __m512; };
template <> struct RegisterOf<double> { using Type = __m512d; };

template <Lane T> struct Vec { typename RegisterOf<T>::Type v; };
// A vector as a parameter of an inlined function that hands it on.
template <Lane T> using VecIn = Vec<T>;

template <int lanes> struct MaskBitsOf;
template <> struct MaskBitsOf<16> { using Type = __mmask16; };
template <> struct MaskBitsOf<8> { using Type = __mmask8; };

template <Lane T> struct Mask { typename MaskBitsOf<lanes_of<T>>::Type k; };

template <class T> inline constexpr bool is32 = sizeof(T) == 4;
inline constexpr bool vectors_fit_registers = true;
inline constexpr bool packs_lanes = true;
inline constexpr bool has_second_paths = true;
// Whether rcp14 and rsqrt14 take any number at no cost. Otherwise paths that need normal ones refuse the others.
inline constexpr bool estimates_take_all = true;
// Whether permute2 of doubles takes less than the loads and the transposition of rows.
inline constexpr bool permutes_doubles = true;
inline constexpr bool orders_nans = true;
inline constexpr bool streams_fit_registers = true;
inline constexpr bool has_halves = false;

// ---- Make, load, store

// x in every lane.
template <Lane T> LUM_INLINE Vec<T> all(T x) {
  if constexpr (std::same_as<T, float>) return {_mm512_set1_ps(x)};
  else if constexpr (std::same_as<T, double>) return {_mm512_set1_pd(x)};
  else if constexpr (is32<T>) return {_mm512_set1_epi32(static_cast<int32_t>(x))};
  else return {_mm512_set1_epi64(static_cast<int64_t>(x))};
}

// A whole vector from memory of any alignment.
template <Lane T> LUM_INLINE Vec<T> load(const T* p) {
  if constexpr (std::same_as<T, float>) return {_mm512_loadu_ps(p)};
  else if constexpr (std::same_as<T, double>) return {_mm512_loadu_pd(p)};
  else return {_mm512_loadu_si512(p)};
}

// The lanes of the mask from memory, which alone is read; the others from fill.
template <Lane T> LUM_INLINE Vec<T> load(Mask<T> mask, const T* p, Vec<T> fill) {
  if constexpr (std::same_as<T, float>) return {_mm512_mask_loadu_ps(fill.v, mask.k, p)};
  else if constexpr (std::same_as<T, double>) return {_mm512_mask_loadu_pd(fill.v, mask.k, p)};
  else if constexpr (is32<T>) return {_mm512_mask_loadu_epi32(fill.v, mask.k, p)};
  else return {_mm512_mask_loadu_epi64(fill.v, mask.k, p)};
}

template <Lane T> LUM_INLINE void store(T* p, Vec<T> a) {
  if constexpr (std::same_as<T, float>) _mm512_storeu_ps(p, a.v);
  else if constexpr (std::same_as<T, double>) _mm512_storeu_pd(p, a.v);
  else _mm512_storeu_si512(p, a.v);
}

// Writes the lanes of the mask and touches no other memory.
template <Lane T> LUM_INLINE void store(Mask<T> mask, T* p, Vec<T> a) {
  if constexpr (std::same_as<T, float>) _mm512_mask_storeu_ps(p, mask.k, a.v);
  else if constexpr (std::same_as<T, double>) _mm512_mask_storeu_pd(p, mask.k, a.v);
  else if constexpr (is32<T>) _mm512_mask_storeu_epi32(p, mask.k, a.v);
  else _mm512_mask_storeu_epi64(p, mask.k, a.v);
}

// ---- Reinterpretation

template <Floating T> LUM_INLINE Vec<UnsignedOf<T>> bits(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_castps_si512(a.v)};
  else return {_mm512_castpd_si512(a.v)};
}
template <Integer32 T> LUM_INLINE Vec<float> as_float(Vec<T> a) { return {_mm512_castsi512_ps(a.v)}; }
template <Integer64 T> LUM_INLINE Vec<double> as_float(Vec<T> a) { return {_mm512_castsi512_pd(a.v)}; }
template <Integer T> LUM_INLINE Vec<SignedOf<T>> as_signed(Vec<T> a) { return {a.v}; }
template <Integer T> LUM_INLINE Vec<UnsignedOf<T>> as_unsigned(Vec<T> a) { return {a.v}; }
// The lanes of one width seen as lanes of the other, the low half first.
template <Integer64 T> LUM_INLINE Vec<uint32_t> as_lanes32(Vec<T> a) { return {a.v}; }

// ---- Masks

// The low `count` lanes, 0 <= count <= lanes.
template <Lane T> LUM_INLINE Mask<T> first_lanes(int count) { return {static_cast<decltype(Mask<T>::k)>((1u << count) - 1u)}; }
// Writes the first count lanes, 0 <= count <= lanes, and touches no other memory.
template <Lane T> LUM_INLINE void store_first(int count, T* p, Vec<T> a) { store(first_lanes<T>(count), p, a); }
template <Lane T> LUM_INLINE Mask<T> mask_of(uint32_t lane_bits) { return {static_cast<decltype(Mask<T>::k)>(lane_bits)}; }
template <Lane T> LUM_INLINE uint32_t to_bits(Mask<T> m) { return m.k; }
// The mask of lanes of one type as that of another type with as many lanes.
template <Lane To, Lane From>
requires(sizeof(To) == sizeof(From)) LUM_INLINE Mask<To> mask_cast(Mask<From> m) { return {m.k}; }
template <Lane T> LUM_INLINE Mask<T> operator&(Mask<T> a, Mask<T> b) { return mask_of<T>(uint32_t{a.k} & b.k); }
template <Lane T> LUM_INLINE Mask<T> operator|(Mask<T> a, Mask<T> b) {
  if constexpr (is32<T>) return {_kor_mask16(a.k, b.k)};
  else return {_kor_mask8(a.k, b.k)};
}
template <Lane T> LUM_INLINE Mask<T> operator^(Mask<T> a, Mask<T> b) { return mask_of<T>(uint32_t{a.k} ^ b.k); }
template <Lane T> LUM_INLINE Mask<T> operator~(Mask<T> a) { return mask_of<T>(~uint32_t{a.k}); }
template <Lane T> LUM_INLINE bool any(Mask<T> a) {
  if constexpr (is32<T>) return !_kortestz_mask16_u8(a.k, a.k);
  else return !_kortestz_mask8_u8(a.k, a.k);
}
template <Lane T> LUM_INLINE bool none(Mask<T> a) { return a.k == 0; }
// The masks of two vectors of doubles as that of one vector of floats, and its halves.
LUM_INLINE Mask<float> join(Mask<double> low, Mask<double> high) {
  return {static_cast<__mmask16>(_mm512_kunpackb(high.k, low.k))};
}
LUM_INLINE Mask<double> low_half(Mask<float> m) { return {static_cast<__mmask8>(m.k)}; }
LUM_INLINE Mask<double> high_half(Mask<float> m) { return {static_cast<__mmask8>(m.k >> 8)}; }

}  // namespace avx512
}  // namespace lum
