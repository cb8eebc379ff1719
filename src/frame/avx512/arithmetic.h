// Floating-point arithmetic, comparison and selection as AVX-512 instructions, a part of frame/vec_avx512.h.
#pragma once

#include "frame/avx512/base.h"
#include "frame/two_parts.h"

namespace lum {
inline namespace avx512 {

// ---- Arithmetic

// A rounding, and no exceptions, but for those by which assists for denormal numbers are counted.
#ifdef LUM_COUNTS_ASSISTS
template <int R> inline constexpr int suppressed = R == rn ? _MM_FROUND_CUR_DIRECTION : R | _MM_FROUND_NO_EXC;
#else
template <int R> inline constexpr int suppressed = R | _MM_FROUND_NO_EXC;
#endif

template <int R = rn, Floating T> LUM_INLINE Vec<T> add(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_add_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_add_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> sub(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_sub_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_sub_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> mul(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_mul_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_mul_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> div(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_div_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_div_round_pd(a.v, b.v, suppressed<R>)};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> sqrt(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_sqrt_round_ps(a.v, suppressed<R>)};
  else return {_mm512_sqrt_round_pd(a.v, suppressed<R>)};
}
// a b + c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fma(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fmadd_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fmadd_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// a b - c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fms(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fmsub_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fmsub_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// c - a b with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fnma(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fnmadd_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fnmadd_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// -(a b) - c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fnms(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fnmsub_round_ps(a.v, b.v, c.v, suppressed<R>)};
  else return {_mm512_fnmsub_round_pd(a.v, b.v, c.v, suppressed<R>)};
}
// fma<rz>(a, b, c) for c = 1.5 * 2^k and |a b| up to 2^(k-2), so that it is the floor of a b, and c behind it. A product that
// is negative is no denormal number. Of other lanes any value, a NaN of a one.
template <Floating T> LUM_INLINE Vec<T> fma_floor(Vec<T> a, Vec<T> b, Vec<T> c) { return fma<rz>(a, b, c); }
// a b rounded toward zero, and what is left of it, exactly: of products that are finite and whose lowest bit is in the range.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(Vec<T> a, Vec<T> b) {
  const auto head = mul<rz>(a, b);
  return {head, fms<rz>(a, b, head)};
}
// (a + a_tail) b, each step toward zero, for a tail that is zero or from 2^-212 (float: 2^-96) to 2^-8 of a.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(Vec<T> a, Vec<T> a_tail, Vec<T> b) {
  const auto first = mul<rz>(a, b);
  const auto second = fma<rz>(a_tail, b, fms<rz>(a, b, first));
  const auto head = add<rz>(first, second);
  return {head, second - (head - first)};
}
// a b - c in even lanes, a b + c in odd ones, with one rounding.
template <Floating T> LUM_INLINE Vec<T> fmaddsub(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) return {_mm512_fmaddsub_round_ps(a.v, b.v, c.v, suppressed<rn>)};
  else return {_mm512_fmaddsub_round_pd(a.v, b.v, c.v, suppressed<rn>)};
}
// a b + c in even lanes, a b - c in odd ones, with one rounding. Written out because the compilers' intrinsic is fmaddsub with
// c negated, which changes the sign of a NaN.
template <Floating T> LUM_INLINE Vec<T> fmsubadd(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>) asm("vfmsubadd213ps %{rn-sae%}, %2, %1, %0" : "+v"(a.v) : "v"(b.v), "v"(c.v));
  else asm("vfmsubadd213pd %{rn-sae%}, %2, %1, %0" : "+v"(a.v) : "v"(b.v), "v"(c.v));
  return a;
}
// The smaller; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_min_round_ps(a.v, b.v, _MM_FROUND_NO_EXC)};
  else return {_mm512_min_round_pd(a.v, b.v, _MM_FROUND_NO_EXC)};
}
// The larger; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_max_round_ps(a.v, b.v, _MM_FROUND_NO_EXC)};
  else return {_mm512_max_round_pd(a.v, b.v, _MM_FROUND_NO_EXC)};
}
// 1 / a with a relative error below 2^-14; a zero gives an infinity and an infinity a zero, of its sign.
template <Floating T> LUM_INLINE Vec<T> rcp14(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_rcp14_ps(a.v)};
  else return {_mm512_rcp14_pd(a.v)};
}
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T> LUM_INLINE Vec<T> rsqrt14(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_rsqrt14_ps(a.v)};
  else return {_mm512_rsqrt14_pd(a.v)};
}
// rcp14 of numbers that are normal and have a normal reciprocal; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> rcp14_normal(Vec<T> a) { return rcp14(a); }
// rsqrt14 of positive normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> rsqrt14_normal(Vec<T> a) { return rsqrt14(a); }

// ---- Exponent, significand, rounding to a grid

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T> LUM_INLINE Vec<T> getexp(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_getexp_round_ps(a.v, _MM_FROUND_NO_EXC)};
  else return {_mm512_getexp_round_pd(a.v, _MM_FROUND_NO_EXC)};
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T> LUM_INLINE Vec<T> getmant(Vec<T> a) {
  constexpr auto interval = static_cast<_MM_MANTISSA_NORM_ENUM>(imm & 3);
  constexpr auto sign = static_cast<_MM_MANTISSA_SIGN_ENUM>(imm >> 2);
  if constexpr (is32<T>) return {_mm512_getmant_round_ps(a.v, interval, sign, _MM_FROUND_NO_EXC)};
  else return {_mm512_getmant_round_pd(a.v, interval, sign, _MM_FROUND_NO_EXC)};
}
// getexp and getmant of normal numbers; of others any value.
template <Floating T> LUM_INLINE Vec<T> getexp_normal(Vec<T> a) { return getexp(a); }
template <int imm, Floating T> LUM_INLINE Vec<T> getmant_normal(Vec<T> a) { return getmant<imm>(a); }
// Both of a number.
template <Floating T> struct Parts { Vec<T> significand, exponent; };
template <int imm, Floating T> LUM_INLINE Parts<T> parts(Vec<T> a) { return {getmant<imm>(a), getexp(a)}; }
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T> LUM_INLINE Vec<T> scalef(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_scalef_round_ps(a.v, b.v, suppressed<R>)};
  else return {_mm512_scalef_round_pd(a.v, b.v, suppressed<R>)};
}
// scalef(a, b) where the result is a normal number and floor(b) that of one, or a NaN; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> scalef_normal(Vec<T> a, Vec<T> b) { return scalef(a, b); }
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T> LUM_INLINE Vec<T> rndscale(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_roundscale_round_ps(a.v, imm, _MM_FROUND_NO_EXC)};
  else return {_mm512_roundscale_round_pd(a.v, imm, _MM_FROUND_NO_EXC)};
}
// rcp14(m) rounded to a multiple of 2^-grid, for m of the interval that getmant's immediate names: 0 [1,2) or 2 [1/2,1), of
// either sign. Of a NaN any value.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> rounded_rcp14(Vec<T> m) {
  static_assert(interval == 0 || interval == 2);
  return rndscale<grid << 4 | 8>(rcp14(m));
}
// rounded_rcp14 of a positive m plus the number whose last bit is worth 2^-grid, 3 * 2^(fraction bits - 1) times as large.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> shifted_rcp14(Vec<T> m) {
  static_assert(interval == 0 || interval == 2);
  return rcp14(m) + all((is32<T> ? T(0x1.8p23) : T(0x1.8p52)) / (1 << grid));
}
// rcp14(a) with its significand rounded to the given fraction bits, halves up; a carry goes into the exponent.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up(Vec<T> a) {
  using Bits = UnsignedOf<T>;
  constexpr Bits half_step = Bits{1} << ((is32<T> ? 23 : 52) - kept - 1);
  return as_float((bits(rcp14(a)) + all(half_step)) & all(static_cast<Bits>(~(2 * half_step - 1))));
}
// rcp14_halves_up of normal numbers with a normal reciprocal; in other lanes any value.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up_normal(Vec<T> a) { return rcp14_halves_up<kept>(a); }
// a + c rounded down, for c = 1.5 * 2^k and a bit more and |a| up to 2^(k-2), so that it is the floor of a on the grid whose
// step is the sum's last bit, 2^-grid; and the rest of a above that floor, rounded down, a zero of either sign.
template <Floating T> struct FloorAndRest { Vec<T> sum, rest; };
template <int grid, Floating T> LUM_INLINE FloorAndRest<T> split_floor(Vec<T> a, Vec<T> c) {
  constexpr int down = grid << 4 | rd;
  if constexpr (is32<T>) return {add<rd>(a, c), {_mm512_reduce_round_ps(a.v, down, _MM_FROUND_NO_EXC)}};
  else return {add<rd>(a, c), {_mm512_reduce_round_pd(a.v, down, _MM_FROUND_NO_EXC)}};
}

// ---- Comparison and classification

template <int predicate, Floating T> LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_cmp_round_ps_mask(a.v, b.v, predicate, _MM_FROUND_NO_EXC)};
  else return {_mm512_cmp_round_pd_mask(a.v, b.v, predicate, _MM_FROUND_NO_EXC)};
}
template <int predicate, Integer T> LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  if constexpr (std::same_as<T, int32_t>) return {_mm512_cmp_epi32_mask(a.v, b.v, predicate)};
  else if constexpr (std::same_as<T, uint32_t>) return {_mm512_cmp_epu32_mask(a.v, b.v, predicate)};
  else if constexpr (std::same_as<T, int64_t>) return {_mm512_cmp_epi64_mask(a.v, b.v, predicate)};
  else return {_mm512_cmp_epu64_mask(a.v, b.v, predicate)};
}

// Lanes whose class is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative finite
// other than -0, 7 signalling NaN.
template <int imm, Floating T> LUM_INLINE Mask<T> fpclass(Vec<T> a) {
  if constexpr (is32<T>) return {_mm512_fpclass_ps_mask(a.v, imm)};
  else return {_mm512_fpclass_pd_mask(a.v, imm)};
}
// Lanes in which a & b has a bit set.
template <Integer T> LUM_INLINE Mask<T> test_any(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_test_epi32_mask(a.v, b.v)};
  else return {_mm512_test_epi64_mask(a.v, b.v)};
}
// Lanes in which a & b is zero.
template <Integer T> LUM_INLINE Mask<T> test_none(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_testn_epi32_mask(a.v, b.v)};
  else return {_mm512_testn_epi64_mask(a.v, b.v)};
}

// ---- Selection

// Per lane m ? a : b.
template <Lane T> LUM_INLINE Vec<T> select(Mask<T> m, Vec<T> a, Vec<T> b) {
  // A constant is loaded as a whole. Under the mask, where no lane needs it and its page is not mapped yet, it would take the
  // processor hundreds of cycles, and again at every vector, since that maps no page.
  if (__builtin_constant_p(a.v[0])) asm("" : "+v"(a.v));
  if constexpr (std::same_as<T, float>) return {_mm512_mask_blend_ps(m.k, b.v, a.v)};
  else if constexpr (std::same_as<T, double>) return {_mm512_mask_blend_pd(m.k, b.v, a.v)};
  else if constexpr (is32<T>) return {_mm512_mask_blend_epi32(m.k, b.v, a.v)};
  else return {_mm512_mask_blend_epi64(m.k, b.v, a.v)};
}
// Per lane m ? a + b : a.
template <Floating T> LUM_INLINE Vec<T> add(Mask<T> m, Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_mask_add_round_ps(a.v, m.k, a.v, b.v, suppressed<rn>)};
  else return {_mm512_mask_add_round_pd(a.v, m.k, a.v, b.v, suppressed<rn>)};
}
// Per lane m ? a - b : other.
template <Floating T> LUM_INLINE Vec<T> sub(Mask<T> m, Vec<T> a, Vec<T> b, Vec<T> other) {
  if constexpr (is32<T>) return {_mm512_mask_sub_round_ps(other.v, m.k, a.v, b.v, suppressed<rn>)};
  else return {_mm512_mask_sub_round_pd(other.v, m.k, a.v, b.v, suppressed<rn>)};
}
// Per lane m ? a - b : +0.
template <Floating T> LUM_INLINE Vec<T> sub_or_zero(Mask<T> m, Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {_mm512_maskz_sub_round_ps(m.k, a.v, b.v, suppressed<rn>)};
  else return {_mm512_maskz_sub_round_pd(m.k, a.v, b.v, suppressed<rn>)};
}
// Per lane m ? a : +0.
template <Lane T> LUM_INLINE Vec<T> zero_unless(Mask<T> m, Vec<T> a) {
  if constexpr (std::same_as<T, float>) return {_mm512_maskz_mov_ps(m.k, a.v)};
  else if constexpr (std::same_as<T, double>) return {_mm512_maskz_mov_pd(m.k, a.v)};
  else if constexpr (is32<T>) return {_mm512_maskz_mov_epi32(m.k, a.v)};
  else return {_mm512_maskz_mov_epi64(m.k, a.v)};
}
// Bit i of imm is the result for the operand bits a, b, c with i = 4 a + 2 b + c.
template <int imm, Integer T> LUM_INLINE Vec<T> ternary(Vec<T> a, Vec<T> b, Vec<T> c) {
  return {_mm512_ternarylogic_epi64(a.v, b.v, c.v, imm)};
}

}  // namespace avx512
}  // namespace lum
