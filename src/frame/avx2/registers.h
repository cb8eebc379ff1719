// One register of 256 bits, half a vector: its types, moves to and from memory, and masks. register_integers.h and
// register_arithmetic.h have the instructions of AVX2 and FMA on it, and short forms for what they lack. Parts of
// frame/vec_avx2.h, which silences the compilers' complaints about their own intrinsics.
#pragma once

#include "frame/intrinsics.h"
#include "frame/vec_types.h"

namespace lum {
inline namespace avx2 {

template <class T> inline constexpr bool is32 = sizeof(T) == 4;

namespace half {

template <Lane T> struct RegisterOf { using Type = __m256i; };
template <> struct RegisterOf<float> { using Type = __m256; };
template <> struct RegisterOf<double> { using Type = __m256d; };

template <Lane T> struct Half {
  static constexpr int lanes = 32 / static_cast<int>(sizeof(T));
  typename RegisterOf<T>::Type v;
};
// A function by itself takes and returns what is in a Half, since only of such calls does g++ see that two are the same.
template <Lane T> using Native = typename RegisterOf<T>::Type;
// All bits of a lane, or none.
template <Lane T> struct HalfMask {
  __m256i v = _mm256_setzero_si256();  // as a register: what is given no value is else written to memory by bytes
};

// ---- Make, load, store, reinterpretation

template <Lane T> LUM_INLINE Half<T> all(T x) {
  if constexpr (std::same_as<T, float>) return {_mm256_set1_ps(x)};
  else if constexpr (std::same_as<T, double>) return {_mm256_set1_pd(x)};
  else if constexpr (is32<T>) return {_mm256_set1_epi32(static_cast<int32_t>(x))};
  else return {_mm256_set1_epi64x(static_cast<int64_t>(x))};
}
template <Lane T> LUM_INLINE Half<T> load(const T* p) {
  if constexpr (std::same_as<T, float>) return {_mm256_loadu_ps(p)};
  else if constexpr (std::same_as<T, double>) return {_mm256_loadu_pd(p)};
  else return {_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))};
}
template <Lane T> LUM_INLINE void store(T* p, Half<T> a) {
  if constexpr (std::same_as<T, float>) _mm256_storeu_ps(p, a.v);
  else if constexpr (std::same_as<T, double>) _mm256_storeu_pd(p, a.v);
  else _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), a.v);
}

// The bits, whatever the type of the lanes.
template <Lane T> LUM_INLINE __m256i raw(Half<T> a) {
  if constexpr (std::same_as<T, float>) return _mm256_castps_si256(a.v);
  else if constexpr (std::same_as<T, double>) return _mm256_castpd_si256(a.v);
  else return a.v;
}
template <Lane T> LUM_INLINE Half<T> from_raw(__m256i v) {
  if constexpr (std::same_as<T, float>) return {_mm256_castsi256_ps(v)};
  else if constexpr (std::same_as<T, double>) return {_mm256_castsi256_pd(v)};
  else return {v};
}
template <Floating T> LUM_INLINE Half<UnsignedOf<T>> bits(Half<T> a) { return {raw(a)}; }
template <Floating T> LUM_INLINE Half<T> as_float(Half<UnsignedOf<T>> a) { return from_raw<T>(a.v); }

// ---- Masks

template <Lane T> LUM_INLINE HalfMask<T> operator&(HalfMask<T> a, HalfMask<T> b) { return {_mm256_and_si256(a.v, b.v)}; }
template <Lane T> LUM_INLINE HalfMask<T> operator|(HalfMask<T> a, HalfMask<T> b) { return {_mm256_or_si256(a.v, b.v)}; }
template <Lane T> LUM_INLINE HalfMask<T> operator^(HalfMask<T> a, HalfMask<T> b) { return {_mm256_xor_si256(a.v, b.v)}; }
template <Lane T> LUM_INLINE HalfMask<T> operator~(HalfMask<T> a) { return {_mm256_xor_si256(a.v, _mm256_set1_epi32(-1))}; }
template <Lane T> LUM_INLINE bool any(HalfMask<T> a) { return !_mm256_testz_si256(a.v, a.v); }
template <Lane T> LUM_INLINE uint32_t to_bits(HalfMask<T> a) {
  if constexpr (is32<T>) return static_cast<uint32_t>(_mm256_movemask_ps(_mm256_castsi256_ps(a.v)));
  else return static_cast<uint32_t>(_mm256_movemask_pd(_mm256_castsi256_pd(a.v)));
}
// Lanes i with bit i + first of lane_bits set.
template <Lane T> LUM_INLINE HalfMask<T> mask_of(uint32_t lane_bits, int first) {
  const auto bit = [=](int i) { return 1 << (i + first); };
  if constexpr (is32<T>) {
    const __m256i place = _mm256_setr_epi32(bit(0), bit(1), bit(2), bit(3), bit(4), bit(5), bit(6), bit(7));
    return {_mm256_cmpeq_epi32(_mm256_and_si256(_mm256_set1_epi32(static_cast<int>(lane_bits)), place), place)};
  } else {
    const __m256i place = _mm256_setr_epi64x(bit(0), bit(1), bit(2), bit(3));
    return {_mm256_cmpeq_epi64(_mm256_and_si256(_mm256_set1_epi64x(lane_bits), place), place)};
  }
}
// Lanes i with i + first below count.
template <Lane T> LUM_INLINE HalfMask<T> first_lanes(int count, int first) {
  if constexpr (is32<T>)
    return {_mm256_cmpgt_epi32(_mm256_set1_epi32(count - first), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7))};
  else return {_mm256_cmpgt_epi64(_mm256_set1_epi64x(count - first), _mm256_setr_epi64x(0, 1, 2, 3))};
}
// By the top bits of the mask's lanes. g++ takes the intrinsic for a comparison with zero, and makes it where a mask serves
// several times.
template <Lane T> LUM_INLINE Half<T> select(HalfMask<T> m, Half<T> a, Half<T> b) {
#ifdef __clang__
  if constexpr (is32<T>)
    return from_raw<T>(_mm256_castps_si256(
        _mm256_blendv_ps(_mm256_castsi256_ps(raw(b)), _mm256_castsi256_ps(raw(a)), _mm256_castsi256_ps(m.v))));
  else
    return from_raw<T>(_mm256_castpd_si256(
        _mm256_blendv_pd(_mm256_castsi256_pd(raw(b)), _mm256_castsi256_pd(raw(a)), _mm256_castsi256_pd(m.v))));
#else
  Half<T> r;
  if constexpr (is32<T>) asm("vblendvps %3, %2, %1, %0" : "=x"(r.v) : "x"(b.v), "xm"(a.v), "x"(m.v));
  else asm("vblendvpd %3, %2, %1, %0" : "=x"(r.v) : "x"(b.v), "xm"(a.v), "x"(m.v));
  return r;
#endif
}
template <Lane T> LUM_INLINE Half<T> zero_unless(HalfMask<T> m, Half<T> a) {
  return from_raw<T>(_mm256_and_si256(raw(a), m.v));
}
template <Lane T> LUM_INLINE Half<T> load(HalfMask<T> m, const T* p, Half<T> fill) {
  if constexpr (std::same_as<T, float>) return select(m, Half<T>{_mm256_maskload_ps(p, m.v)}, fill);
  else if constexpr (std::same_as<T, double>) return select(m, Half<T>{_mm256_maskload_pd(p, m.v)}, fill);
  else if constexpr (is32<T>) return select(m, Half<T>{_mm256_maskload_epi32(reinterpret_cast<const int*>(p), m.v)}, fill);
  else return select(m, Half<T>{_mm256_maskload_epi64(reinterpret_cast<const long long*>(p), m.v)}, fill);
}
template <Lane T> LUM_INLINE void store(HalfMask<T> m, T* p, Half<T> a) {
  if constexpr (std::same_as<T, float>) _mm256_maskstore_ps(p, m.v, a.v);
  else if constexpr (std::same_as<T, double>) _mm256_maskstore_pd(p, m.v, a.v);
  else if constexpr (is32<T>) _mm256_maskstore_epi32(reinterpret_cast<int*>(p), m.v, a.v);
  else _mm256_maskstore_epi64(reinterpret_cast<long long*>(p), m.v, a.v);
}
// The first count lanes, 0 <= count <= lanes. In pieces, since stores under a mask take long on some processors.
template <Lane T> LUM_INLINE void store_first(int count, T* p, Half<T> a) {
  constexpr int lanes = Half<T>::lanes;
  if (count >= lanes) return store(p, a);
  __m128i piece = _mm256_castsi256_si128(raw(a));
  if (count >= lanes / 2) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), piece);
    piece = _mm256_extracti128_si256(raw(a), 1);
    p += lanes / 2;
    count -= lanes / 2;
  }
  if constexpr (is32<T>) {
    if (count >= 2) {
      _mm_storel_epi64(reinterpret_cast<__m128i*>(p), piece);
      piece = _mm_unpackhi_epi64(piece, piece);
      p += 2;
      count -= 2;
    }
    if (count >= 1) _mm_storeu_si32(p, piece);
  } else {
    if (count >= 1) _mm_storel_epi64(reinterpret_cast<__m128i*>(p), piece);
  }
}

// ---- Halves of lanes

// The low halves of the 64-bit lanes of both, or the high ones.
LUM_INLINE __m256i low_words(__m256i a, __m256i b) {
  return _mm256_permute4x64_epi64(_mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a), _mm256_castsi256_ps(b), 0x88)),
                                  0xD8);
}
LUM_INLINE __m256i high_words(__m256i a, __m256i b) {
  return _mm256_permute4x64_epi64(_mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a), _mm256_castsi256_ps(b), 0xDD)),
                                  0xD8);
}
LUM_INLINE __m128i low_quarter(__m256i a) { return _mm256_castsi256_si128(a); }
LUM_INLINE __m128i high_quarter(__m256i a) { return _mm256_extracti128_si256(a, 1); }

}  // namespace half
}  // namespace avx2
}  // namespace lum
