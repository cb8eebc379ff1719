// The vector operations as AVX-512 instructions. Floating-point operations use the embedded-rounding forms: the rounding is the
// operation's own and no flag is raised (the plain forms would also be contracted by the compiler). Sections stand in the same
// order as in vec_portable.h.
#pragma once

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wunknown-warning-option"
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#include <immintrin.h>

namespace lum {
inline namespace avx512 {

// ---- Types

template <Lane T>
struct RegisterOf {
  using Type = __m512i;
};
template <>
struct RegisterOf<float> {
  using Type = __m512;
};
template <>
struct RegisterOf<double> {
  using Type = __m512d;
};

template <Lane T>
struct Vec {
  typename RegisterOf<T>::Type v;
};

template <int lanes>
struct MaskBitsOf;
template <>
struct MaskBitsOf<16> {
  using Type = __mmask16;
};
template <>
struct MaskBitsOf<8> {
  using Type = __mmask8;
};

template <Lane T>
struct Mask {
  typename MaskBitsOf<lanes_of<T>>::Type k;
};

template <class T>
inline constexpr bool is32 = sizeof(T) == 4;

// ---- Make, load, store

// x in every lane.
template <Lane T>
LUM_INLINE Vec<T> all(T x) {
  if constexpr (std::same_as<T, float>) return {_mm512_set1_ps(x)};
  else if constexpr (std::same_as<T, double>) return {_mm512_set1_pd(x)};
  else if constexpr (is32<T>) return {_mm512_set1_epi32(static_cast<int32_t>(x))};
  else return {_mm512_set1_epi64(static_cast<int64_t>(x))};
}

// The lane numbers 0, 1, 2, ...
template <Integer T>
LUM_INLINE Vec<T> iota() {
  if constexpr (is32<T>) return {_mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)};
  else return {_mm512_setr_epi64(0, 1, 2, 3, 4, 5, 6, 7)};
}

// A whole vector from memory of any alignment.
template <Lane T>
LUM_INLINE Vec<T> load(const T* p) {
  if constexpr (std::same_as<T, float>) return {_mm512_loadu_ps(p)};
  else if constexpr (std::same_as<T, double>) return {_mm512_loadu_pd(p)};
  else return {_mm512_loadu_si512(p)};
}

// The lanes of the mask from memory, which alone is read; the others from fill.
template <Lane T>
LUM_INLINE Vec<T> load(Mask<T> mask, const T* p, Vec<T> fill) {
  if constexpr (std::same_as<T, float>) return {_mm512_mask_loadu_ps(fill.v, mask.k, p)};
  else if constexpr (std::same_as<T, double>) return {_mm512_mask_loadu_pd(fill.v, mask.k, p)};
  else if constexpr (is32<T>) return {_mm512_mask_loadu_epi32(fill.v, mask.k, p)};
  else return {_mm512_mask_loadu_epi64(fill.v, mask.k, p)};
}

template <Lane T>
LUM_INLINE void store(T* p, Vec<T> a) {
  if constexpr (std::same_as<T, float>) _mm512_storeu_ps(p, a.v);
  else if constexpr (std::same_as<T, double>) _mm512_storeu_pd(p, a.v);
  else _mm512_storeu_si512(p, a.v);
}

// Writes the lanes of the mask and touches no other memory.
template <Lane T>
LUM_INLINE void store(Mask<T> mask, T* p, Vec<T> a) {
  if constexpr (std::same_as<T, float>) _mm512_mask_storeu_ps(p, mask.k, a.v);
  else if constexpr (std::same_as<T, double>) _mm512_mask_storeu_pd(p, mask.k, a.v);
  else if constexpr (is32<T>) _mm512_mask_storeu_epi32(p, mask.k, a.v);
  else _mm512_mask_storeu_epi64(p, mask.k, a.v);
}

// ---- Reinterpretation

template <Floating T>
LUM_INLINE Vec<UnsignedOf<T>> bits(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_castps_si512(a.v)};
  else return {_mm512_castpd_si512(a.v)};
}
template <Integer32 T>
LUM_INLINE Vec<float> as_float(Vec<T> a) {
  return {_mm512_castsi512_ps(a.v)};
}
template <Integer64 T>
LUM_INLINE Vec<double> as_float(Vec<T> a) {
  return {_mm512_castsi512_pd(a.v)};
}
template <Integer T>
LUM_INLINE Vec<SignedOf<T>> as_signed(Vec<T> a) {
  return {a.v};
}
template <Integer T>
LUM_INLINE Vec<UnsignedOf<T>> as_unsigned(Vec<T> a) {
  return {a.v};
}
// The lanes of one width seen as lanes of the other, the low half first.
template <Integer32 T>
LUM_INLINE Vec<uint64_t> as_lanes64(Vec<T> a) {
  return {a.v};
}
template <Integer64 T>
LUM_INLINE Vec<uint32_t> as_lanes32(Vec<T> a) {
  return {a.v};
}

// ---- Masks

// The low `count` lanes, 0 <= count <= lanes.
template <Lane T>
LUM_INLINE Mask<T> first_lanes(int count) {
  return {static_cast<decltype(Mask<T>::k)>((1u << count) - 1u)};
}
template <Lane T>
LUM_INLINE Mask<T> mask_of(uint32_t lane_bits) {
  return {static_cast<decltype(Mask<T>::k)>(lane_bits)};
}
template <Lane T>
LUM_INLINE uint32_t to_bits(Mask<T> m) {
  return m.k;
}
// The mask of lanes of one type as that of another type with as many lanes.
template <Lane To, Lane From>
requires(sizeof(To) == sizeof(From)) LUM_INLINE Mask<To> mask_cast(Mask<From> m) { return {m.k}; }
template <Lane T>
LUM_INLINE Mask<T> operator&(Mask<T> a, Mask<T> b) {
  return mask_of<T>(uint32_t{a.k} & b.k);
}
template <Lane T>
LUM_INLINE Mask<T> operator|(Mask<T> a, Mask<T> b) {
  if constexpr (is32<T>) return {_kor_mask16(a.k, b.k)};
  else return {_kor_mask8(a.k, b.k)};
}
template <Lane T>
LUM_INLINE Mask<T> operator^(Mask<T> a, Mask<T> b) {
  return mask_of<T>(uint32_t{a.k} ^ b.k);
}
template <Lane T>
LUM_INLINE Mask<T> operator~(Mask<T> a) {
  return mask_of<T>(~uint32_t{a.k});
}
template <Lane T>
LUM_INLINE bool any(Mask<T> a) {
  if constexpr (is32<T>) return !_kortestz_mask16_u8(a.k, a.k);
  else return !_kortestz_mask8_u8(a.k, a.k);
}
template <Lane T>
LUM_INLINE bool none(Mask<T> a) {
  return a.k == 0;
}
// The masks of two vectors of doubles as that of one vector of floats, and its halves.
LUM_INLINE Mask<float> join(Mask<double> low, Mask<double> high) {
  return {static_cast<__mmask16>(_mm512_kunpackb(high.k, low.k))};
}
LUM_INLINE Mask<double> low_half(Mask<float> m) { return {static_cast<__mmask8>(m.k)}; }
LUM_INLINE Mask<double> high_half(Mask<float> m) { return {static_cast<__mmask8>(m.k >> 8)}; }

// ---- Arithmetic

template <int R>
inline constexpr int suppressed = R | _MM_FROUND_NO_EXC;

template <int R = rn, Floating T>
LUM_INLINE Vec<T> add(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_add_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_add_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T>
LUM_INLINE Vec<T> sub(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_sub_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_sub_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T>
LUM_INLINE Vec<T> mul(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_mul_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_mul_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T>
LUM_INLINE Vec<T> div(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_div_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_div_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T>
LUM_INLINE Vec<T> sqrt(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_sqrt_round_ps(a.v, suppressed<R>)};
  else return {_mm512_sqrt_round_pd(a.v, suppressed<R>)};
}
// a b + c with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fma(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fmadd_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fmadd_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// a b - c with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fms(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fmsub_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fmsub_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// c - a b with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fnma(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fnmadd_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fnmadd_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// -(a b) - c with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fnms(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fnmsub_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fnmsub_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// a b - c in even lanes, a b + c in odd ones, with one rounding.
template <Floating T>
LUM_INLINE Vec<T> fmaddsub(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fmaddsub_round_ps(a.v, b.v, c.v, suppressed<rn>)};
  else return {_mm512_fmaddsub_round_pd(a.v, b.v, c.v, suppressed<rn>)};
}
// a b + c in even lanes, a b - c in odd ones, with one rounding. Written out because the compilers' intrinsic is fmaddsub with
// c negated, which changes the sign of a NaN.
template <Floating T>
LUM_INLINE Vec<T> fmsubadd(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) asm("vfmsubadd213ps %{rn-sae%}, %2, %1, %0" : "+v"(a.v) : "v"(b.v), "v"(c.v));
  else asm("vfmsubadd213pd %{rn-sae%}, %2, %1, %0" : "+v"(a.v) : "v"(b.v), "v"(c.v));
  return a;
}
// The smaller; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T>
LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_min_round_ps(a.v, b.v, _MM_FROUND_NO_EXC)};
  else return {_mm512_min_round_pd(a.v, b.v, _MM_FROUND_NO_EXC)};
}
// The larger; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T>
LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_max_round_ps(a.v, b.v, _MM_FROUND_NO_EXC)};
  else return {_mm512_max_round_pd(a.v, b.v, _MM_FROUND_NO_EXC)};
}
// 1 / a with a relative error below 2^-14; a zero gives an infinity and an infinity a zero, of its sign.
template <Floating T>
LUM_INLINE Vec<T> rcp14(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_rcp14_ps(a.v)};
  else return {_mm512_rcp14_pd(a.v)};
}
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T>
LUM_INLINE Vec<T> rsqrt14(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_rsqrt14_ps(a.v)};
  else return {_mm512_rsqrt14_pd(a.v)};
}

// ---- Exponent, significand, rounding to a grid

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T>
LUM_INLINE Vec<T> getexp(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_getexp_round_ps(a.v, _MM_FROUND_NO_EXC)};
  else return {_mm512_getexp_round_pd(a.v, _MM_FROUND_NO_EXC)};
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T>
LUM_INLINE Vec<T> getmant(Vec<T> a) {
  constexpr auto interval = static_cast<_MM_MANTISSA_NORM_ENUM>(imm & 3);
  constexpr auto sign = static_cast<_MM_MANTISSA_SIGN_ENUM>(imm >> 2);
  if constexpr (is32<T>) return {_mm512_getmant_round_ps(a.v, interval, sign, _MM_FROUND_NO_EXC)};
  else return {_mm512_getmant_round_pd(a.v, interval, sign, _MM_FROUND_NO_EXC)};
}
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> scalef(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_scalef_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_scalef_round_pd(a.v, b.v, suppressed<R>)};
}
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T>
LUM_INLINE Vec<T> rndscale(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_roundscale_round_ps(a.v, imm, _MM_FROUND_NO_EXC)};
  else return {_mm512_roundscale_round_pd(a.v, imm, _MM_FROUND_NO_EXC)};
}
// a - rndscale<imm>(a), the exact remainder.
template <int imm, Floating T>
LUM_INLINE Vec<T> reduce(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_reduce_round_ps(a.v, imm, _MM_FROUND_NO_EXC)};
  else return {_mm512_reduce_round_pd(a.v, imm, _MM_FROUND_NO_EXC)};
}

// ---- Comparison and classification

template <int predicate, Floating T>
LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_cmp_round_ps_mask(a.v, b.v, predicate, _MM_FROUND_NO_EXC)};
  else return {_mm512_cmp_round_pd_mask(a.v, b.v, predicate, _MM_FROUND_NO_EXC)};
}
template <int predicate, Integer T>
LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm512_cmp_epi32_mask(a.v, b.v, predicate)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm512_cmp_epu32_mask(a.v, b.v, predicate)};
  else if constexpr (std::same_as<T, int64_t>) return {_mm512_cmp_epi64_mask(a.v, b.v, predicate)};
  else return {_mm512_cmp_epu64_mask(a.v, b.v, predicate)};
}
// The predicates' codes are the same for floating-point and integer comparisons (0 eq, 1 lt, 2 le, 4 ne, 5 nlt, 6 nle).
template <Lane T>
LUM_INLINE Mask<T> eq(Vec<T> a, Vec<T> b) {
  return compare<0>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> lt(Vec<T> a, Vec<T> b) {
  return compare<1>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> le(Vec<T> a, Vec<T> b) {
  return compare<2>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> ne(Vec<T> a, Vec<T> b) {
  return compare<4>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> nlt(Vec<T> a, Vec<T> b) {
  return compare<5>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> nle(Vec<T> a, Vec<T> b) {
  return compare<6>(a, b);
}
template <Floating T>
LUM_INLINE Mask<T> unord(Vec<T> a, Vec<T> b) {
  return compare<3>(a, b);
}
template <Floating T>
LUM_INLINE Mask<T> ord(Vec<T> a, Vec<T> b) {
  return compare<7>(a, b);
}

// Lanes whose class is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative finite
// other than -0, 7 signalling NaN.
template <int imm, Floating T>
LUM_INLINE Mask<T> fpclass(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_fpclass_ps_mask(a.v, imm)};
  else return {_mm512_fpclass_pd_mask(a.v, imm)};
}
// Lanes in which a & b has a bit set.
template <Integer T>
LUM_INLINE Mask<T> test_any(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_test_epi32_mask(a.v, b.v)};
  else return {_mm512_test_epi64_mask(a.v, b.v)};
}
// Lanes in which a & b is zero.
template <Integer T>
LUM_INLINE Mask<T> test_none(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_testn_epi32_mask(a.v, b.v)};
  else return {_mm512_testn_epi64_mask(a.v, b.v)};
}

// ---- Selection

// Per lane m ? a : b.
template <Lane T>
LUM_INLINE Vec<T> select(Mask<T> m, Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, float>) return {_mm512_mask_blend_ps(m.k, b.v, a.v)};
  else if constexpr (std::same_as<T, double>) return {_mm512_mask_blend_pd(m.k, b.v, a.v)};
  else if constexpr (is32<T>) return {_mm512_mask_blend_epi32(m.k, b.v, a.v)};
  else return {_mm512_mask_blend_epi64(m.k, b.v, a.v)};
}
// Per lane m ? a + b : a.
template <Floating T>
LUM_INLINE Vec<T> add(Mask<T> m, Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_mask_add_round_ps(a.v, m.k, a.v, b.v, suppressed<rn>)};
  else return {_mm512_mask_add_round_pd(a.v, m.k, a.v, b.v, suppressed<rn>)};
}
// Per lane m ? a - b : other.
template <Floating T>
LUM_INLINE Vec<T> sub(Mask<T> m, Vec<T> a, Vec<T> b, Vec<T> other) {
  if constexpr (is32<T>) return {_mm512_mask_sub_round_ps(other.v, m.k, a.v, b.v, suppressed<rn>)};
  else return {_mm512_mask_sub_round_pd(other.v, m.k, a.v, b.v, suppressed<rn>)};
}
// Per lane m ? a - b : +0.
template <Floating T>
LUM_INLINE Vec<T> sub_or_zero(Mask<T> m, Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_maskz_sub_round_ps(m.k, a.v, b.v, suppressed<rn>)};
  else return {_mm512_maskz_sub_round_pd(m.k, a.v, b.v, suppressed<rn>)};
}
// Per lane m ? a : +0.
template <Lane T>
LUM_INLINE Vec<T> zero_unless(Mask<T> m, Vec<T> a) {
  if constexpr (std::same_as<T, float>) return {_mm512_maskz_mov_ps(m.k, a.v)};
  else if constexpr (std::same_as<T, double>) return {_mm512_maskz_mov_pd(m.k, a.v)};
  else if constexpr (is32<T>) return {_mm512_maskz_mov_epi32(m.k, a.v)};
  else return {_mm512_maskz_mov_epi64(m.k, a.v)};
}
// a, replaced by the special value that the 4-bit token of b's class names (quiet NaN, signalling NaN, zero, 1, -infinity,
// +infinity, negative, positive, from the low token up).
template <int imm>
LUM_INLINE Vec<double> fixupimm(Vec<double> a, Vec<double> b, Vec<uint64_t> tokens) {
  return {_mm512_fixupimm_round_pd(a.v, b.v, tokens.v, imm, _MM_FROUND_NO_EXC)};
}
// Bit i of imm is the result for the operand bits a, b, c with i = 4 a + 2 b + c.
template <int imm, Integer T>
LUM_INLINE Vec<T> ternary(Vec<T> a, Vec<T> b, Vec<T> c) {
  return {_mm512_ternarylogic_epi64(a.v, b.v, c.v, imm)};
}

// ---- Bits and integers

template <Integer T>
LUM_INLINE Vec<T> operator&(Vec<T> a, Vec<T> b) {
  return {_mm512_and_si512(a.v, b.v)};
}
template <Integer T>
LUM_INLINE Vec<T> operator|(Vec<T> a, Vec<T> b) {
  return {_mm512_or_si512(a.v, b.v)};
}
template <Integer T>
LUM_INLINE Vec<T> operator^(Vec<T> a, Vec<T> b) {
  return {_mm512_xor_si512(a.v, b.v)};
}
// ~a & b.
template <Integer T>
LUM_INLINE Vec<T> and_not(Vec<T> a, Vec<T> b) {
  return {_mm512_andnot_si512(a.v, b.v)};
}

template <Integer T>
LUM_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_add_epi32(a.v, b.v)};
  else return {_mm512_add_epi64(a.v, b.v)};
}
template <Integer T>
LUM_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_sub_epi32(a.v, b.v)};
  else return {_mm512_sub_epi64(a.v, b.v)};
}
// The low half of the product.
template <Integer T>
LUM_INLINE Vec<T> operator*(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_mullo_epi32(a.v, b.v)};
  else return {_mm512_mullo_epi64(a.v, b.v)};
}
// The whole product of the low 32 bits of each lane.
LUM_INLINE Vec<uint64_t> mul_low_halves(Vec<uint64_t> a, Vec<uint64_t> b) { return {_mm512_mul_epu32(a.v, b.v)}; }
// Signed 16-bit words multiplied, the two products of a lane added.
LUM_INLINE Vec<int32_t> mul_add_pairs(Vec<int32_t> a, Vec<int32_t> b) { return {_mm512_madd_epi16(a.v, b.v)}; }

template <int n, Integer T>
LUM_INLINE Vec<T> shift_left(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_slli_epi32(a.v, n)};
  else return {_mm512_slli_epi64(a.v, n)};
}
// Zeros come in from the left.
template <int n, Integer T>
LUM_INLINE Vec<T> shift_right(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_srli_epi32(a.v, n)};
  else return {_mm512_srli_epi64(a.v, n)};
}
// Copies of the sign bit come in from the left.
template <int n, Integer T>
LUM_INLINE Vec<T> shift_right_arithmetic(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_srai_epi32(a.v, n)};
  else return {_mm512_srai_epi64(a.v, n)};
}
// By the count in the lane of n, unsigned; counts from the lane's width on shift everything out.
template <Integer T>
LUM_INLINE Vec<T> shift_left(Vec<T> a, Vec<T> n) {
  if constexpr (is32<T>) return {_mm512_sllv_epi32(a.v, n.v)};
  else return {_mm512_sllv_epi64(a.v, n.v)};
}
template <Integer T>
LUM_INLINE Vec<T> shift_right(Vec<T> a, Vec<T> n) {
  if constexpr (is32<T>) return {_mm512_srlv_epi32(a.v, n.v)};
  else return {_mm512_srlv_epi64(a.v, n.v)};
}
template <Integer T>
LUM_INLINE Vec<T> shift_right_arithmetic(Vec<T> a, Vec<T> n) {
  if constexpr (is32<T>) return {_mm512_srav_epi32(a.v, n.v)};
  else return {_mm512_srav_epi64(a.v, n.v)};
}
template <Integer T>
LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm512_min_epi32(a.v, b.v)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm512_min_epu32(a.v, b.v)};
  else if constexpr (std::same_as<T, int64_t>) return {_mm512_min_epi64(a.v, b.v)};
  else return {_mm512_min_epu64(a.v, b.v)};
}
template <Integer T>
LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm512_max_epi32(a.v, b.v)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm512_max_epu32(a.v, b.v)};
  else if constexpr (std::same_as<T, int64_t>) return {_mm512_max_epi64(a.v, b.v)};
  else return {_mm512_max_epu64(a.v, b.v)};
}

// ---- Conversions

// The low or high half of the lanes, widened; exact.
LUM_INLINE Vec<double> widen_low(Vec<float> a) {
  return {_mm512_cvt_roundps_pd(_mm512_castps512_ps256(a.v), _MM_FROUND_NO_EXC)};
}
LUM_INLINE Vec<double> widen_high(Vec<float> a) {
  return {_mm512_cvt_roundps_pd(_mm512_extractf32x8_ps(a.v, 1), _MM_FROUND_NO_EXC)};
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
template <Integer64 T>
LUM_INLINE auto narrow(Vec<T> low, Vec<T> high) {
  const __m512i joined =
      _mm512_inserti32x8(_mm512_castsi256_si512(_mm512_cvtepi64_epi32(low.v)), _mm512_cvtepi64_epi32(high.v), 1);
  if constexpr (std::same_as<T, int64_t>) return Vec<int32_t>{joined};
  else return Vec<uint32_t>{joined};
}
// Integers as floating-point numbers, rounded to nearest.
LUM_INLINE Vec<float> to_float(Vec<int32_t> a) { return {_mm512_cvt_roundepi32_ps(a.v, suppressed<rn>)}; }
LUM_INLINE Vec<double> to_double_low(Vec<int32_t> a) { return {_mm512_cvtepi32_pd(_mm512_castsi512_si256(a.v))}; }
LUM_INLINE Vec<double> to_double_high(Vec<int32_t> a) { return {_mm512_cvtepi32_pd(_mm512_extracti32x8_epi32(a.v, 1))}; }
// The low 32 bits of each lane, a signed integer, as a double; exact.
template <Integer64 T>
LUM_INLINE Vec<double> to_double(Vec<T> a) {
  return {_mm512_cvtepi32_pd(_mm512_cvtepi64_epi32(a.v))};
}
// All bits of a lane set where the mask is.
template <Lane T>
LUM_INLINE Vec<UnsignedOf<T>> spread(Mask<T> m) {
  if constexpr (is32<T>) return {_mm512_movm_epi32(m.k)};
  else return {_mm512_movm_epi64(m.k)};
}
// The top bit of every lane.
template <Integer T>
LUM_INLINE Mask<T> sign_mask(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_movepi32_mask(a.v)};
  else return {_mm512_movepi64_mask(a.v)};
}

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
// The same on 16-bit words: 64 entries, each lane of the index holding two.
template <Integer32 T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute2_words(Vec<T> low, Vec<T> high, Vec<I> index) {
  return {_mm512_permutex2var_epi16(low.v, index.v, high.v)};
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
// The same in all lanes. The instruction merges into its target, and g++ leaves there whatever it was when it sees a full
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

template <Lane T>
struct Pair {
  Vec<T> even, odd;
};
// The even and the odd lanes of the sequence a, b.
template <Floating T>
LUM_INLINE Pair<T> deinterleave(Vec<T> a, Vec<T> b) {
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
template <Floating T>
LUM_INLINE Pair<T> interleave(Vec<T> even, Vec<T> odd) {
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
template <Floating T>
LUM_INLINE Vec<T> swap_pairs(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_permute_ps(a.v, 0xB1)};
  else return {_mm512_permute_pd(a.v, 0x55)};
}
// Lane 2i, or 2i+1, in both of its pair.
template <Floating T>
LUM_INLINE Vec<T> duplicate_even(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_moveldup_ps(a.v)};
  else return {_mm512_movedup_pd(a.v)};
}
template <Floating T>
LUM_INLINE Vec<T> duplicate_odd(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_movehdup_ps(a.v)};
  else return {_mm512_permute_pd(a.v, 0xFF)};
}

}  // namespace avx512
}  // namespace lum

#pragma GCC diagnostic pop
