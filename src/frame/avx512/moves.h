// Lookup and moves across lanes as AVX-512 instructions, a part of frame/vec_avx512.h.
#pragma once

#include "frame/avx512/base.h"

namespace lum {
inline namespace avx512 {

// ---- Lookup and moves

// Entry index mod lanes of the table.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute(Vec<T> table, Vec<I> index) {
  if constexpr (std::same_as<T, float>) return {_mm512_permutexvar_ps(index.v, table.v)};
  else if constexpr (std::same_as<T, double>) return {_mm512_permutexvar_pd(index.v, table.v)};
  else if constexpr (is32<T>) return {_mm512_permutexvar_epi32(index.v, table.v)};
  else return {_mm512_permutexvar_epi64(index.v, table.v)};
}
// Entry index mod 2 lanes of the table whose first half is low and second half is high.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute2(Vec<T> low, Vec<T> high, Vec<I> index) {
  if constexpr (std::same_as<T, float>) return {_mm512_permutex2var_ps(low.v, index.v, high.v)};
  else if constexpr (std::same_as<T, double>) return {_mm512_permutex2var_pd(low.v, index.v, high.v)};
  else if constexpr (is32<T>) return {_mm512_permutex2var_epi32(low.v, index.v, high.v)};
  else return {_mm512_permutex2var_epi64(low.v, index.v, high.v)};
}
// The lanes of the mask side by side in the low lanes, zeros above them.
template <Floating T> LUM_INLINE Vec<T> compress(Mask<T> m, Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_maskz_compress_ps(m.k, a.v)};
  else return {_mm512_maskz_compress_pd(m.k, a.v)};
}
// The low lanes in their order in the lanes of the mask, zeros in the others.
template <Floating T> LUM_INLINE Vec<T> expand(Mask<T> m, Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_maskz_expand_ps(m.k, a.v)};
  else return {_mm512_maskz_expand_pd(m.k, a.v)};
}
// base[index] per lane, the index signed and of the lane's width, in the lanes of the mask, which alone are read; the others
// from old.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(Mask<T> mask, const T* base, Vec<I> index, Vec<T> old) {
  constexpr int scale = sizeof(T);
  if constexpr (std::same_as<T, float>) return {_mm512_mask_i32gather_ps(old.v, mask.k, index.v, base, scale)};
  else if constexpr (std::same_as<T, double>) return {_mm512_mask_i64gather_pd(old.v, mask.k, index.v, base, scale)};
  else if constexpr (is32<T>) return {_mm512_mask_i32gather_epi32(old.v, mask.k, index.v, base, scale)};
  else return {_mm512_mask_i64gather_epi64(old.v, mask.k, index.v, base, scale)};
}
// base[index] in all lanes. The instruction merges into its target, and g++ leaves there whatever it was when it sees a full
// mask: behind a mask that it does not see, zeros keep a gather from waiting for the one before.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(const T* base, Vec<I> index) {
  Mask<T> full = mask_of<T>(~0u);
  asm("" : "+k"(full.k));
  return gather(full, base, index, all(T(0)));
}

// The four entries from base[index] on, of each lane: entry i of all lanes in column i.
template <Lane T> struct Columns { Vec<T> column0, column1, column2, column3; };
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Columns<T> gather_rows(const T* base, Vec<I> index) {
  // Loads of whole rows and a transposition, which is much faster than four gathers.
  alignas(64) SignedOf<T> i[lanes_of<T>];
  _mm512_store_si512(i, index.v);
  const auto columns = [](__m512i a, __m512i b, __m512i c, __m512i d) __attribute__((always_inline))->Columns<T> {
    if constexpr (std::same_as<T, float>)
      return {{_mm512_castsi512_ps(a)}, {_mm512_castsi512_ps(b)}, {_mm512_castsi512_ps(c)}, {_mm512_castsi512_ps(d)}};
    else if constexpr (std::same_as<T, double>)
      return {{_mm512_castsi512_pd(a)}, {_mm512_castsi512_pd(b)}, {_mm512_castsi512_pd(c)}, {_mm512_castsi512_pd(d)}};
    else return {{a}, {b}, {c}, {d}};
  };
  if constexpr (is32<T>) {
    const auto rows = [&](int j) __attribute__((always_inline)) {
      const auto row = [&](int k) __attribute__((always_inline)) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + i[j + 4 * k]));
      };
      const __m512i r = _mm512_inserti32x4(_mm512_castsi128_si512(row(0)), row(1), 1);
      return _mm512_inserti32x4(_mm512_inserti32x4(r, row(2), 2), row(3), 3);
    };
    const __m512i a = rows(0), b = rows(1), c = rows(2), d = rows(3);
    const __m512i ab_low = _mm512_unpacklo_epi32(a, b), ab_high = _mm512_unpackhi_epi32(a, b);
    const __m512i cd_low = _mm512_unpacklo_epi32(c, d), cd_high = _mm512_unpackhi_epi32(c, d);
    return columns(_mm512_unpacklo_epi64(ab_low, cd_low), _mm512_unpackhi_epi64(ab_low, cd_low),
                   _mm512_unpacklo_epi64(ab_high, cd_high), _mm512_unpackhi_epi64(ab_high, cd_high));
  } else {
    const auto rows = [&](int j) __attribute__((always_inline)) {
      const auto row = [&](int k) __attribute__((always_inline)) {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(base + i[k]));
      };
      return _mm512_inserti64x4(_mm512_castsi256_si512(row(j)), row(j + 2), 1);
    };
    const __m512i a = rows(0), b = rows(1), c = rows(4), d = rows(5);
    const __m512i ab_even = _mm512_unpacklo_epi64(a, b), ab_odd = _mm512_unpackhi_epi64(a, b);
    const __m512i cd_even = _mm512_unpacklo_epi64(c, d), cd_odd = _mm512_unpackhi_epi64(c, d);
    return columns(_mm512_shuffle_i64x2(ab_even, cd_even, 0x88), _mm512_shuffle_i64x2(ab_odd, cd_odd, 0x88),
                   _mm512_shuffle_i64x2(ab_even, cd_even, 0xDD), _mm512_shuffle_i64x2(ab_odd, cd_odd, 0xDD));
  }
}

// The two entries from base[index] on, of each lane, by loads of both.
template <Lane T> struct TwoColumns { Vec<T> column0, column1; };
template <Lane T, Integer64 I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE TwoColumns<T> gather_pairs(const T* base, Vec<I> index) {
  alignas(64) SignedOf<T> i[lanes_of<T>];
  _mm512_store_si512(i, index.v);
  const auto pairs = [&](int j) __attribute__((always_inline)) {
    const auto pair = [&](int k) __attribute__((always_inline)) {
      return _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + i[k]));
    };
    const __m256i low = _mm256_inserti128_si256(_mm256_castsi128_si256(pair(j)), pair(j + 2), 1);
    const __m256i high = _mm256_inserti128_si256(_mm256_castsi128_si256(pair(j + 4)), pair(j + 6), 1);
    return _mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1);
  };
  const __m512i even = pairs(0), odd = pairs(1);
  const __m512i first = _mm512_unpacklo_epi64(even, odd), second = _mm512_unpackhi_epi64(even, odd);
  if constexpr (std::same_as<T, double>) return {{_mm512_castsi512_pd(first)}, {_mm512_castsi512_pd(second)}};
  else return {{first}, {second}};
}

template <Lane T> struct Pair { Vec<T> even, odd; };
// The even and the odd lanes of the sequence a, b.
template <Floating T> LUM_INLINE Pair<T> deinterleave(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) {
    const __m512i even = _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
    const __m512i odd = _mm512_setr_epi32(1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27, 29, 31);
    return {{_mm512_permutex2var_ps(a.v, even, b.v)}, {_mm512_permutex2var_ps(a.v, odd, b.v)}};
  } else {
    const __m512i even = _mm512_setr_epi64(0, 2, 4, 6, 8, 10, 12, 14);
    const __m512i odd = _mm512_setr_epi64(1, 3, 5, 7, 9, 11, 13, 15);
    return {{_mm512_permutex2var_pd(a.v, even, b.v)}, {_mm512_permutex2var_pd(a.v, odd, b.v)}};
  }
}
// The sequence (first, second) whose even and odd lanes are those given: the inverse of deinterleave.
template <Floating T> LUM_INLINE Pair<T> interleave(Vec<T> even, Vec<T> odd) {
  if constexpr (is32<T>) {
    const __m512i low = _mm512_setr_epi32(0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    const __m512i high = _mm512_setr_epi32(8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
    return {{_mm512_permutex2var_ps(even.v, low, odd.v)}, {_mm512_permutex2var_ps(even.v, high, odd.v)}};
  } else {
    const __m512i low = _mm512_setr_epi64(0, 8, 1, 9, 2, 10, 3, 11);
    const __m512i high = _mm512_setr_epi64(4, 12, 5, 13, 6, 14, 7, 15);
    return {{_mm512_permutex2var_pd(even.v, low, odd.v)}, {_mm512_permutex2var_pd(even.v, high, odd.v)}};
  }
}
// Lanes 2i and 2i+1 exchanged.
template <Floating T> LUM_INLINE Vec<T> swap_pairs(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_permute_ps(a.v, 0xB1)};
  else return {_mm512_permute_pd(a.v, 0x55)};
}
// Lane 2i, or 2i+1, in both of its pair.
template <Floating T> LUM_INLINE Vec<T> duplicate_even(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_moveldup_ps(a.v)};
  else return {_mm512_movedup_pd(a.v)};
}
template <Floating T> LUM_INLINE Vec<T> duplicate_odd(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_movehdup_ps(a.v)};
  else return {_mm512_permute_pd(a.v, 0xFF)};
}

}  // namespace avx512
}  // namespace lum
