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

// ---- Exponent, significand, class

// Lanes whose bits as a number are not from low to high - 1. Numbers below low wrap around; the top bit is turned over by
// the subtraction for the signed comparison.
template <Floating T> LUM_INLINE HalfMask<T> bits_outside(Half<T> a, UnsignedOf<T> low, UnsignedOf<T> high) {
  using S = SignedOf<T>;
  constexpr UnsignedOf<T> top = sign_bit<T>;
  const Half<S> moved{(bits(a) - all(static_cast<UnsignedOf<T>>(low + top))).v};
  return {greater(moved, all(static_cast<S>(high - low - 1 + top))).v};
}

// |a| with denormal numbers made normal, and what was added to the exponent field of all.
template <Floating T> struct Normal {
  Half<UnsignedOf<T>> bits;
  HalfMask<T> was_small;
};
template <Floating T> LUM_INLINE Normal<T> normal(Half<T> a) {
  using F = lane::Format<T>;
  const auto m = magnitude(a);
  const auto small = lt(m, all(std::bit_cast<T>(F::hidden)));
  return {bits(select(small, m * all(lane::power_of_two<T>(F::fraction_bits + 1)), m)), small};
}

// Of normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Half<T> getexp_of_normal(Half<T> a) {
  using F = lane::Format<T>;
  const auto m = bits(magnitude(a));
  if constexpr (is32<T>) return {_mm256_cvtepi32_ps((shift_right<F::fraction_bits>(m) - all(uint32_t{F::bias})).v)};
  else return as_float<T>(shift_right<F::fraction_bits>(m) | bits(all(0x1p52))) - all(0x1p52 + F::bias);
}
template <int imm, Floating T> LUM_INLINE Half<T> getmant_of_normal(Half<T> a) {
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr int interval = imm & 3;
  constexpr Bits one = static_cast<Bits>(static_cast<Bits>(F::bias) << F::fraction_bits);
  constexpr Bits kept = static_cast<Bits>((imm & 4) != 0 ? F::fraction : F::fraction | F::sign);
  const auto b = bits(a);
  auto r = (b & all(kept)) | all(static_cast<Bits>(interval == 2 ? one - F::hidden : one));
  if constexpr (interval == 1) r = r - and_not(b, all(static_cast<Bits>(F::hidden)));  // an even field is an odd exponent
  if constexpr (interval == 3) r = r - (shift_left<1>(b) & all(static_cast<Bits>(F::hidden)));
  return as_float<T>(r);
}

template <Floating T> [[gnu::noinline, gnu::cold]] Half<T> getexp(Half<T> a) {
  using F = lane::Format<T>;
  const auto [b, small] = normal(a);
  const auto field = to_floating<T>(shift_right<F::fraction_bits>(b));
  const auto exponent = field - select(small, all(T(F::bias + F::fraction_bits + 1)), all(T(F::bias)));
  const auto infinity = all(std::bit_cast<T>(F::infinity));
  const auto minus_infinity = all(std::bit_cast<T>(F::infinity | F::sign));
  const auto finite = select(eq(a, all(T{0})), minus_infinity, exponent);
  // The square of an infinity, and a NaN made quiet.
  return select(nlt(magnitude(a), infinity), a * a, finite);
}

template <int imm, Floating T> [[gnu::noinline, gnu::cold]] Half<T> getmant(Half<T> a) {
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr int interval = imm & 3;
  constexpr bool clear_sign = (imm & 4) != 0, nan_if_negative = (imm & 8) != 0;
  const auto [b, small] = normal(a);
  const auto one = all(static_cast<Bits>(static_cast<Bits>(F::bias) << F::fraction_bits));
  auto finite = (b & all(static_cast<Bits>(F::fraction))) | one;
  if constexpr (interval == 1) {
    // The bias is odd, so the exponent is odd where the field is even, and of doubles made normal by 2^53 where it is odd.
    auto even = shift_left<F::fraction_bits>(and_not(shift_right<F::fraction_bits>(b), all(Bits{1})));
    if constexpr ((F::fraction_bits + 1) % 2 != 0) even = even ^ (Half<Bits>{small.v} & all(static_cast<Bits>(F::hidden)));
    finite = finite - even;
  }
  if constexpr (interval == 2) finite = finite - all(static_cast<Bits>(F::hidden));
  if constexpr (interval == 3) finite = finite - (shift_left<1>(b) & all(static_cast<Bits>(F::hidden)));
  const auto special = eq(a, all(T{0})) | nlt(magnitude(a), all(std::bit_cast<T>(F::infinity)));
  auto r = select(special, as_float<T>(one), as_float<T>(finite));
  if constexpr (!clear_sign) r = as_float<T>(bits(r) | (bits(a) & all(sign_bit<T>)));
  if constexpr (nan_if_negative) r = select(lt(a, all(T{0})), all(lane::default_nan<T>()), r);
  return select(compare<3>(a, a), a + a, r);
}

template <int imm, Floating T> LUM_INLINE Half<T> rndscale(Half<T> a) {
  using F = lane::Format<T>;
  constexpr int M = (imm >> 4) & 15;
  if constexpr (M == 0) return round<imm & 7>(a);
  const auto rounded = round<imm & 7>(a * all(lane::power_of_two<T>(M))) * all(lane::power_of_two<T>(-M));
  return select(compare<13>(magnitude(a), all(lane::power_of_two<T>(F::fraction_bits - M))), a, rounded);
}

template <int imm, Floating T> LUM_INLINE HalfMask<T> fpclass(Half<T> a) {
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  const auto infinity = all(std::bit_cast<T>(F::infinity)), zero = all(T{0});
  if constexpr (imm == 0x99) {
    return nlt(magnitude(a), infinity);
  } else if constexpr (imm == 0xFF) {
    return bits_outside(a, F::hidden, F::infinity);
  } else if constexpr (imm == 0xDF) {
    return bits_outside(a, Bits{1}, F::infinity);
  } else {
    const auto is = [&](Bits b) __attribute__((always_inline)) { return HalfMask<T>{eq(bits(a), all(b)).v}; };
    HalfMask<T> r{_mm256_setzero_si256()};
    constexpr int nans = imm & 0x81, zeros = imm & 0x06, infinities = imm & 0x18;
    if constexpr (nans == 0x81) r = r | compare<3>(a, a);
    else if constexpr (nans != 0) {
      const auto quiet = eq(bits(a) & all(static_cast<Bits>(F::quiet)), all(Bits{0}));
      const auto is_nan = compare<3>(a, a);
      r = r | (nans == 0x01 ? ~HalfMask<T>{quiet.v} & is_nan : HalfMask<T>{quiet.v} & is_nan);
    }
    if constexpr (zeros == 0x06) r = r | eq(a, zero);
    else if constexpr (zeros == 0x02) r = r | is(0);
    else if constexpr (zeros == 0x04) r = r | is(F::sign);
    if constexpr (infinities == 0x18) r = r | eq(magnitude(a), infinity);
    else if constexpr (infinities == 0x08) r = r | eq(a, infinity);
    else if constexpr (infinities == 0x10 && !(imm & 0x40)) r = r | is(F::sign | F::infinity);
    if constexpr ((imm & 0x50) == 0x50) r = r | lt(a, zero);
    else if constexpr ((imm & 0x40) != 0) r = r | (lt(a, zero) & lt(magnitude(a), infinity));
    if constexpr ((imm & 0x20) != 0) r = r | (lt(magnitude(a), all(std::bit_cast<T>(F::hidden))) & compare<4>(a, zero));
    return r;
  }
}

// ---- Lookup and moves

// Tables of 16 V floats or 8 V doubles in registers, their entries found by the low bits of an index. Doubles are two tables of
// words, and the words of an entry are found at once.
template <Lane T, int vectors> struct Table {
  static constexpr int parts = 2 * vectors;
  __m256i part[parts];

  LUM_INLINE explicit Table(Half<T> a, Half<T> b) {
    if constexpr (is32<T>) part[0] = raw(a), part[1] = raw(b);
    else part[0] = low_words(raw(a), raw(b)), part[1] = high_words(raw(a), raw(b));
  }
  LUM_INLINE explicit Table(Half<T> a, Half<T> b, Half<T> c, Half<T> d) : Table(a, b) {
    if constexpr (is32<T>) part[2] = raw(c), part[3] = raw(d);
    else part[2] = low_words(raw(c), raw(d)), part[3] = high_words(raw(c), raw(d));
  }
  LUM_INLINE Half<T> operator[](__m256i index) const {
    using Choice = HalfMask<int32_t>;
    using Words = Half<int32_t>;
    const auto word = [](__m256i table, __m256i i) __attribute__((always_inline)) {
      return Words{_mm256_permutevar8x32_epi32(table, i)};
    };
    if constexpr (is32<T>) {
      const Choice second{_mm256_slli_epi32(index, 28)};  // the top bit chooses
      const auto low = select(second, word(part[1], index), word(part[0], index));
      if constexpr (vectors == 1) return from_raw<T>(low.v);
      else {
        const auto high = select(second, word(part[3], index), word(part[2], index));
        return from_raw<T>(select(Choice{_mm256_slli_epi32(index, 27)}, high, low).v);
      }
    } else {
      const __m256i i = _mm256_shuffle_epi32(index, 0xA0);
      const auto entry = [&](__m256i low, __m256i high) __attribute__((always_inline)) {
        return Words{_mm256_blend_epi32(word(low, i).v, word(high, i).v, 0xAA)};
      };
      const auto low = entry(part[0], part[1]);
      if constexpr (vectors == 1) return from_raw<T>(low.v);
      else return from_raw<T>(select(Choice{_mm256_slli_epi32(i, 28)}, entry(part[2], part[3]), low).v);
    }
  }
};

// A mask of all lanes of which the compiler does not know.
template <Lane T> LUM_INLINE HalfMask<T> unseen_full_mask() {
  __m256i full = _mm256_set1_epi32(-1);
  asm("" : "+x"(full));
  return {full};
}
template <Lane T> LUM_INLINE Half<T> gather(HalfMask<T> m, const T* base, __m256i index, Half<T> old) {
  constexpr int scale = sizeof(T);
  // Eight 32-bit elements as twice four: as fast, and emulators of the instruction for eight have got it wrong.
  if constexpr (std::same_as<T, float>) {
    const __m256 mask = _mm256_castsi256_ps(m.v);
    const __m128 low = _mm_mask_i32gather_ps(_mm256_castps256_ps128(old.v), base, _mm256_castsi256_si128(index),
                                             _mm256_castps256_ps128(mask), scale);
    const __m128 high = _mm_mask_i32gather_ps(_mm256_extractf128_ps(old.v, 1), base, _mm256_extracti128_si256(index, 1),
                                              _mm256_extractf128_ps(mask, 1), scale);
    return {_mm256_set_m128(high, low)};
  } else if constexpr (std::same_as<T, double>)
    return {_mm256_mask_i64gather_pd(old.v, base, index, _mm256_castsi256_pd(m.v), scale)};
  else if constexpr (is32<T>) {
    const auto* words = reinterpret_cast<const int*>(base);
    const __m128i low = _mm_mask_i32gather_epi32(_mm256_castsi256_si128(old.v), words, _mm256_castsi256_si128(index),
                                                 _mm256_castsi256_si128(m.v), scale);
    const __m128i high = _mm_mask_i32gather_epi32(_mm256_extracti128_si256(old.v, 1), words, _mm256_extracti128_si256(index, 1),
                                                  _mm256_extracti128_si256(m.v, 1), scale);
    return {_mm256_set_m128i(high, low)};
  } else return {_mm256_mask_i64gather_epi64(old.v, reinterpret_cast<const long long*>(base), index, m.v, scale)};
}

// Loads of whole rows and a transposition, which is much faster than four gathers.
template <Lane T> struct HalfColumns { Half<T> column0, column1, column2, column3; };
template <Lane T, Integer I> LUM_INLINE HalfColumns<T> gather_rows(const T* base, Half<I> index) {
  alignas(32) SignedOf<T> i[Half<T>::lanes];
  _mm256_store_si256(reinterpret_cast<__m256i*>(i), index.v);
  if constexpr (is32<T>) {
    const auto rows = [&](int j) __attribute__((always_inline)) {
      const auto row = [&](int k) __attribute__((always_inline)) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + i[k]));
      };
      return _mm256_inserti128_si256(_mm256_castsi128_si256(row(j)), row(j + 4), 1);
    };
    const __m256i a = rows(0), b = rows(1), c = rows(2), d = rows(3);
    const __m256i ab_low = _mm256_unpacklo_epi32(a, b), ab_high = _mm256_unpackhi_epi32(a, b);
    const __m256i cd_low = _mm256_unpacklo_epi32(c, d), cd_high = _mm256_unpackhi_epi32(c, d);
    return {from_raw<T>(_mm256_unpacklo_epi64(ab_low, cd_low)), from_raw<T>(_mm256_unpackhi_epi64(ab_low, cd_low)),
            from_raw<T>(_mm256_unpacklo_epi64(ab_high, cd_high)), from_raw<T>(_mm256_unpackhi_epi64(ab_high, cd_high))};
  } else {
    const auto row = [&](int k) __attribute__((always_inline)) {
      return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(base + i[k]));
    };
    const __m256i a = row(0), b = row(1), c = row(2), d = row(3);
    const __m256i ab_even = _mm256_unpacklo_epi64(a, b), ab_odd = _mm256_unpackhi_epi64(a, b);
    const __m256i cd_even = _mm256_unpacklo_epi64(c, d), cd_odd = _mm256_unpackhi_epi64(c, d);
    return {from_raw<T>(_mm256_permute2x128_si256(ab_even, cd_even, 0x20)),
            from_raw<T>(_mm256_permute2x128_si256(ab_odd, cd_odd, 0x20)),
            from_raw<T>(_mm256_permute2x128_si256(ab_even, cd_even, 0x31)),
            from_raw<T>(_mm256_permute2x128_si256(ab_odd, cd_odd, 0x31))};
  }
}

// The even or odd lanes of both.
template <Floating T> LUM_INLINE Half<T> even_lanes(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return from_raw<T>(low_words(raw(a), raw(b)));
  else return from_raw<T>(_mm256_permute4x64_epi64(_mm256_unpacklo_epi64(raw(a), raw(b)), 0xD8));
}
template <Floating T> LUM_INLINE Half<T> odd_lanes(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return from_raw<T>(high_words(raw(a), raw(b)));
  else return from_raw<T>(_mm256_permute4x64_epi64(_mm256_unpackhi_epi64(raw(a), raw(b)), 0xD8));
}
// The first or the second half of the sequence a0, b0, a1, b1, ...
template <Floating T> LUM_INLINE __m256i low_pairs(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return _mm256_unpacklo_epi32(raw(a), raw(b));
  else return _mm256_unpacklo_epi64(raw(a), raw(b));
}
template <Floating T> LUM_INLINE __m256i high_pairs(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return _mm256_unpackhi_epi32(raw(a), raw(b));
  else return _mm256_unpackhi_epi64(raw(a), raw(b));
}
template <Floating T> LUM_INLINE Half<T> first_pairs(Half<T> a, Half<T> b) {
  return from_raw<T>(_mm256_permute2x128_si256(low_pairs(a, b), high_pairs(a, b), 0x20));
}
template <Floating T> LUM_INLINE Half<T> last_pairs(Half<T> a, Half<T> b) {
  return from_raw<T>(_mm256_permute2x128_si256(low_pairs(a, b), high_pairs(a, b), 0x31));
}

// ---- Lane by lane

template <Lane T> struct Lanes {
  T lane[Half<T>::lanes];
  LUM_INLINE explicit Lanes(Half<T> a) { store(lane, a); }
};
// one(a, b, ...) of every lane, for what is rare or has no short form.
template <auto one, Lane T, Lane... Others> [[gnu::noinline, gnu::cold]] Half<T> each_lane(Half<T> a, Half<Others>... others) {
  Lanes<T> r(a);
  [&r](const Lanes<Others>&... other) {
    for (int i = 0; i < Half<T>::lanes; ++i) r.lane[i] = one(r.lane[i], other.lane[i]...);
  }(Lanes<Others>(others)...);
  return load(r.lane);
}

// ---- Directed rounding

// The number nearest to a value, and a number with the sign of (value - nearest); gives the value rounded by R.
template <int R, Floating T> LUM_INLINE Half<T> directed(Half<T> nearest, Half<T> error) {
  using S = SignedOf<T>;
  const Half<S> b{raw(nearest)};
  if constexpr (R == rn) {
    return nearest;
  } else if constexpr (R == rz) {
    // One unit down where the error points to zero: bits of all ones are -1.
    const auto toward_zero = as_float<T>(bits(error) ^ (bits(nearest) & all(sign_bit<T>)));
    return from_raw<T>((b + Half<S>{lt(toward_zero, all(T{0})).v}).v);
  } else {
    const Half<S> negative = shift_right_arithmetic<8 * sizeof(T) - 1>(b), one = all(S{1});
    const Half<S> moves{(R == rd ? lt(error, all(T{0})) : compare<14>(error, all(T{0}))).v};
    return from_raw<T>((b + (moves & ((R == rd ? negative ^ all(S{-1}) : negative) | one))).v);
  }
}

// Numbers whose sums and products have no part below the range, and none beyond it.
template <Floating T> inline constexpr T smallest_product = sizeof(T) == 4 ? T(0x1p-76) : T(0x1p-900);
template <Floating T> inline constexpr T largest_product = sizeof(T) == 4 ? T(0x1p125) : T(0x1p1020);
// Lanes with a product outside, NaN among them, that is not the zero of a zero factor.
template <Floating T> LUM_INLINE HalfMask<T> product_doubt(Half<T> product, Half<T> a, Half<T> b) {
  const auto m = magnitude(product);
  const auto outside = ~(compare<13>(m, all(smallest_product<T>)) & le(m, all(largest_product<T>)));
  return outside & ~(eq(product, all(T{0})) & (eq(a, all(T{0})) | eq(b, all(T{0}))));
}

template <Floating T> struct HalfSum { Half<T> sum, error; };
// a + b = sum + error, for finite numbers without overflow.
template <Floating T> LUM_INLINE HalfSum<T> two_sum(Half<T> a, Half<T> b) {
  const auto s = a + b;
  const auto b_part = s - a;
  return {s, (a - (s - b_part)) + (b - b_part)};
}

template <int R, Floating T> LUM_INLINE Half<T> directed_add(Half<T> a, Half<T> b) {
  const auto [s, error] = two_sum(a, b);
  auto doubt = ~le(magnitude(s), all(largest_product<T>));
  if constexpr (R == rd) doubt = doubt | eq(s, all(T{0}));  // whose sign is that of the terms
  if (any(doubt)) [[unlikely]]
    return each_lane<[](T x, T y) { return lane::add<R>(x, y); }>(a, b);
  return directed<R>(s, error);
}
template <int R, Floating T> LUM_INLINE Half<T> directed_mul(Half<T> a, Half<T> b) {
  const auto p = a * b;
  if (any(product_doubt(p, a, b))) [[unlikely]]
    return each_lane<[](T x, T y) { return lane::careful_mul<R>(x, y); }>(a, b);
  return directed<R>(p, fms(a, b, p));
}
// The error of a fused sum by S. Boldo and J.-M. Muller, Exact and approximated error of the FMA, 2011.
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Half<T> directed_fma(Half<T> a, Half<T> b, Half<T> c) {
  const auto turned = [](Half<T> x) __attribute__((always_inline)) { return as_float<T>(bits(x) ^ all(sign_bit<T>)); };
  const auto x = negate_product ? turned(a) : a, z = negate_addend ? turned(c) : c;
  const auto s = fma(x, b, z);
  const auto p = x * b;
  auto doubt = product_doubt(p, x, b) | ~le(magnitude(z), all(largest_product<T>));
  if constexpr (R == rd) doubt = doubt | eq(s, all(T{0}));
  if (any(doubt)) [[unlikely]] {
    return each_lane<[](T l, T m, T n) { return lane::careful_fma<R, negate_product, negate_addend>(l, m, n); }>(a, b, c);
  }
  const auto low = two_sum(z, fms(x, b, p));
  const auto high = two_sum(p, low.sum);
  return directed<R>(s, ((high.sum - s) + high.error) + low.error);
}

// Rounded to nearest the difference is exact but where a small a goes a whole step of the grid down or up; then the step is the
// larger summand. A zero is that of the rounding; an infinity leaves +0.
template <int imm, Floating T> LUM_INLINE Half<T> reduce(Half<T> a) {
  constexpr int R = (imm & 4) ? rn : imm & 3;
  const auto grid = rndscale<imm>(a);
  auto rest = a - grid;
  if constexpr (R != rn) rest = directed<R>(rest, a - (rest + grid));
  if constexpr (R == rd) rest = as_float<T>(bits(rest) | (Half<UnsignedOf<T>>{eq(rest, all(T{0})).v} & all(sign_bit<T>)));
  const auto is_infinite = eq(magnitude(a), all(std::bit_cast<T>(lane::Format<T>::infinity)));
  return from_raw<T>(_mm256_andnot_si256(is_infinite.v, raw(rest)));
}

// ---- Estimates of the reciprocal and the reciprocal root

// A line of the tables in lane_format: the constant and the slope, for doubles in the halves of a lane, for floats packed.
template <Floating T> struct EstimateTable {
  static constexpr int slope_bits = sizeof(T) == 4 ? 10 : 32;
  UnsignedOf<T> line[64];
  constexpr EstimateTable(const lane::Line (&lines)[64], int scale, int swapped) : line{} {
    for (int i = 0; i < 64; ++i) {
      const lane::Line& from = lines[i ^ swapped];
      const uint32_t constant = from.a + (512 >> scale) * from.b;
      line[i] = static_cast<UnsignedOf<T>>(constant) << slope_bits | from.b;
    }
  }
};
// The significand at place j of a segment: (constant * 2^scale - slope * j) >> 9.
template <int scale, Floating T>
LUM_INLINE Half<UnsignedOf<T>> on_line(const EstimateTable<T>& table, Half<UnsignedOf<T>> segment, Half<UnsignedOf<T>> j) {
  using Bits = UnsignedOf<T>;
  const auto w = gather(unseen_full_mask<Bits>(), table.line, segment.v, all(Bits{0}));
  if constexpr (is32<T>) {
    const Half<Bits> down{_mm256_madd_epi16((w & all(Bits{1023})).v, j.v)};
    return shift_right<9>(shift_left<scale>(shift_right<10>(w)) - down);
  } else {
    const Half<Bits> down{_mm256_mul_epu32(w.v, j.v)};
    return shift_right<9>(shift_left<scale>(shift_right<32>(w)) - down);
  }
}
template <Floating T> inline constexpr EstimateTable<T> reciprocal_table{lane::reciprocal_lines, 8, 0};
// An odd exponent field belongs to an even exponent.
template <Floating T> inline constexpr EstimateTable<T> reciprocal_root_table{lane::reciprocal_root_lines, 7, 32};

// Of normal numbers with a normal reciprocal; in other lanes any value.
template <Floating T> LUM_INLINE Half<T> rcp14_of_normal(Half<T> a) {
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr int fb = F::fraction_bits;
  const auto b = bits(a);
  const auto significand =
      on_line<8>(reciprocal_table<T>, shift_right<fb - 6>(b) & all(Bits{63}), shift_right<fb - 16>(b) & all(Bits{1023}));
  const auto is_power = eq(b & all(static_cast<Bits>(F::fraction)), all(Bits{0}));
  const auto scaled = select(is_power, all(static_cast<Bits>(2 * F::hidden)), shift_left<fb - 16>(significand));
  const auto field = all(static_cast<Bits>(Bits{2 * F::bias - 2} << fb)) - (b & all(static_cast<Bits>(~F::fraction)));
  return as_float<T>(field + scaled);
}
template <Floating T> LUM_INLINE Half<T> rcp14(Half<T> a) {
  using F = lane::Format<T>;
  const auto r = rcp14_of_normal(a);
  const auto doubt = bits_outside(magnitude(a), F::hidden, static_cast<UnsignedOf<T>>(2 * F::bias - 1) << F::fraction_bits);
  if (any(doubt)) [[unlikely]]
    return each_lane<[](T x) { return lane::rcp14(x); }>(a);
  return r;
}

// Of positive normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Half<T> rsqrt14_of_normal(Half<T> a) {
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr int fb = F::fraction_bits;
  const auto b = bits(a);
  const auto significand =
      on_line<7>(reciprocal_root_table<T>, shift_right<fb - 5>(b) & all(Bits{63}), shift_right<fb - 15>(b) & all(Bits{1023}));
  // Of the fraction and the exponent's last bit only the latter is set.
  const auto is_power = eq(b & all(static_cast<Bits>(2 * F::hidden - 1)), all(static_cast<Bits>(F::hidden)));
  const auto scaled = select(is_power, all(static_cast<Bits>(2 * F::hidden)), shift_left<fb - 16>(significand));
  const auto half_field = shift_right<1>(b + all(static_cast<Bits>(F::hidden))) & all(static_cast<Bits>(~F::fraction));
  return as_float<T>(all(static_cast<Bits>(Bits{F::bias - 2 + (F::bias + 1) / 2} << fb)) - half_field + scaled);
}
template <Floating T> LUM_INLINE Half<T> rsqrt14(Half<T> a) {
  using F = lane::Format<T>;
  const auto r = rsqrt14_of_normal(a);
  if (any(bits_outside(a, F::hidden, F::infinity))) [[unlikely]]
    return each_lane<[](T x) { return lane::rsqrt14(x); }>(a);
  return r;
}

// ---- Powers of two

// a 2^floor(b) for |floor(b)| at most bias - 1; in other lanes any value.
template <Floating T> LUM_INLINE Half<T> scalef_by_normal(Half<T> a, Half<T> floor_b) {
  using F = lane::Format<T>;
  constexpr T shifter = T(1.5) * static_cast<T>(F::hidden) + T(F::bias);
  return a * as_float<T>(shift_left<F::fraction_bits>(bits(floor_b + all(shifter))));
}
template <Floating T> LUM_INLINE Half<T> scalef(Half<T> a, Half<T> b) {
  using F = lane::Format<T>;
  const auto n = round<1>(b);
  const auto r = scalef_by_normal(a, n);
  if (any(compare<6>(magnitude(n), all(T(F::bias - 1))))) [[unlikely]]
    return each_lane<[](T x, T y) { return lane::exact_scalef<rn, T>(x, y); }>(a, b);
  return r;
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
