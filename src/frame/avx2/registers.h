// One register of 256 bits, half a vector: the instructions of AVX2 and FMA, and short forms for what they lack. A part of
// frame/vec_avx2.h, which silences the compilers' complaints about their own intrinsics.
#pragma once

#include <immintrin.h>

#include "frame/lane_significand.h"
#include "frame/reciprocal_estimates.h"

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
// All bits of a lane, or none.
template <Lane T> struct HalfMask { __m256i v; };

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

// ---- Bits and integers

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
// Of 64-bit lanes three products of 32 bits.
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
// Of 64-bit lanes by shifts of their halves.
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
// Of 64-bit lanes a shift of ~a in negative ones.
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
template <Lane T> LUM_INLINE Half<T> select(HalfMask<T> m, Half<T> a, Half<T> b) {
  if constexpr (is32<T>)
    return from_raw<T>(_mm256_castps_si256(
        _mm256_blendv_ps(_mm256_castsi256_ps(raw(b)), _mm256_castsi256_ps(raw(a)), _mm256_castsi256_ps(m.v))));
  else
    return from_raw<T>(_mm256_castpd_si256(
        _mm256_blendv_pd(_mm256_castsi256_pd(raw(b)), _mm256_castsi256_pd(raw(a)), _mm256_castsi256_pd(m.v))));
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
template <Floating T> LUM_INLINE Half<T> magnitude(Half<T> a) {
  return as_float<T>(bits(a) & all(static_cast<UnsignedOf<T>>(~sign_bit<T>)));
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
