// Floating-point arithmetic, comparison and selection on pairs of registers, a part of frame/vec_avx2.h.
#pragma once

#include "frame/avx2/base.h"

namespace lum {
inline namespace avx2 {

// ---- Arithmetic

// one(a, b, ...) of every lane: for roundings that the instructions have only by way of the environment.
template <auto one, Floating T, class... Others> LUM_INLINE Vec<T> by_lane(Vec<T> a, Others... others) {
  return {half::each_lane<one>(a.low, others.low...), half::each_lane<one>(a.high, others.high...)};
}

template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Vec<T> directed_fma(Vec<T> a, Vec<T> b, Vec<T> c) {
  return {half::directed_fma<R, negate_product, negate_addend>(a.low, b.low, c.low),
          half::directed_fma<R, negate_product, negate_addend>(a.high, b.high, c.high)};
}

template <int R = rn, Floating T> LUM_INLINE Vec<T> add(Vec<T> a, Vec<T> b) {
  if constexpr (R == rn) return {a.low + b.low, a.high + b.high};
  else return {half::directed_add<R>(a.low, b.low), half::directed_add<R>(a.high, b.high)};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> sub(Vec<T> a, Vec<T> b) {
  if constexpr (R == rn) return {a.low - b.low, a.high - b.high};
  else return by_lane<[](T x, T y) { return lane::sub<R>(x, y); }>(a, b);
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> mul(Vec<T> a, Vec<T> b) {
  if constexpr (R == rn) return {a.low * b.low, a.high * b.high};
  else return {half::directed_mul<R>(a.low, b.low), half::directed_mul<R>(a.high, b.high)};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> div(Vec<T> a, Vec<T> b) {
  if constexpr (R != rn) return by_lane<[](T x, T y) { return lane::div<R>(x, y); }>(a, b);
  else if constexpr (is32<T>) return {{_mm256_div_ps(a.low.v, b.low.v)}, {_mm256_div_ps(a.high.v, b.high.v)}};
  else return {{_mm256_div_pd(a.low.v, b.low.v)}, {_mm256_div_pd(a.high.v, b.high.v)}};
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> sqrt(Vec<T> a) {
  if constexpr (R != rn) return by_lane<[](T x) { return lane::sqrt<R>(x); }>(a);
  else if constexpr (is32<T>) return {{_mm256_sqrt_ps(a.low.v)}, {_mm256_sqrt_ps(a.high.v)}};
  else return {{_mm256_sqrt_pd(a.low.v)}, {_mm256_sqrt_pd(a.high.v)}};
}
// a b + c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fma(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (R != rn) return directed_fma<R, false, false>(a, b, c);
  else return {half::fma(a.low, b.low, c.low), half::fma(a.high, b.high, c.high)};
}
// a b - c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fms(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (R != rn) return directed_fma<R, false, true>(a, b, c);
  else return {half::fms(a.low, b.low, c.low), half::fms(a.high, b.high, c.high)};
}
// c - a b with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fnma(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (R != rn) return directed_fma<R, true, false>(a, b, c);
  else return {half::fnma(a.low, b.low, c.low), half::fnma(a.high, b.high, c.high)};
}
// -(a b) - c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fnms(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (R != rn) return directed_fma<R, true, true>(a, b, c);
  else return {half::fnms(a.low, b.low, c.low), half::fnms(a.high, b.high, c.high)};
}
// a b - c in even lanes, a b + c in odd ones, with one rounding.
template <Floating T> LUM_INLINE Vec<T> fmaddsub(Vec<T> a, Vec<T> b, Vec<T> c) {
  if constexpr (is32<T>)
    return {{_mm256_fmaddsub_ps(a.low.v, b.low.v, c.low.v)}, {_mm256_fmaddsub_ps(a.high.v, b.high.v, c.high.v)}};
  else return {{_mm256_fmaddsub_pd(a.low.v, b.low.v, c.low.v)}, {_mm256_fmaddsub_pd(a.high.v, b.high.v, c.high.v)}};
}
// a b + c in even lanes, a b - c in odd ones, with one rounding.
template <Floating T> LUM_INLINE Vec<T> fmsubadd(Vec<T> a, Vec<T> b, Vec<T> c) {
  return {half::fmsubadd(a.low, b.low, c.low), half::fmsubadd(a.high, b.high, c.high)};
}
// The smaller; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {{_mm256_min_ps(a.low.v, b.low.v)}, {_mm256_min_ps(a.high.v, b.high.v)}};
  else return {{_mm256_min_pd(a.low.v, b.low.v)}, {_mm256_min_pd(a.high.v, b.high.v)}};
}
// The larger; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) {
  if constexpr (is32<T>) return {{_mm256_max_ps(a.low.v, b.low.v)}, {_mm256_max_ps(a.high.v, b.high.v)}};
  else return {{_mm256_max_pd(a.low.v, b.low.v)}, {_mm256_max_pd(a.high.v, b.high.v)}};
}
// 1 / a with a relative error below 2^-14; a zero gives an infinity and an infinity a zero, of its sign.
template <Floating T> LUM_INLINE Vec<T> rcp14(Vec<T> a) { return {half::rcp14(a.low), half::rcp14(a.high)}; }
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T> LUM_INLINE Vec<T> rsqrt14(Vec<T> a) { return {half::rsqrt14(a.low), half::rsqrt14(a.high)}; }

// ---- Exponent, significand, rounding to a grid

// Zeros, denormal numbers, infinities and NaN.
template <Floating T> LUM_INLINE Mask<T> not_normal(Vec<T> a) {
  using F = lane::Format<T>;
  return {half::bits_outside(half::magnitude(a.low), F::hidden, F::infinity),
          half::bits_outside(half::magnitude(a.high), F::hidden, F::infinity)};
}

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T> LUM_INLINE Vec<T> getexp(Vec<T> a) {
  Vec<T> r{half::getexp_of_normal(a.low), half::getexp_of_normal(a.high)};
  if (any(not_normal(a))) [[unlikely]]
    r = {half::getexp(a.low), half::getexp(a.high)};
  return r;
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T> LUM_INLINE Vec<T> getmant(Vec<T> a) {
  Vec<T> r{half::getmant_of_normal<imm>(a.low), half::getmant_of_normal<imm>(a.high)};
  auto special = not_normal(a);
  if constexpr ((imm & 8) != 0) special = special | lt(a, all(T{0}));
  if (any(special)) [[unlikely]]
    r = {half::getmant<imm>(a.low), half::getmant<imm>(a.high)};
  return r;
}
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T> LUM_INLINE Vec<T> scalef(Vec<T> a, Vec<T> b) {
  if constexpr (R != rn) return by_lane<[](T x, T y) { return lane::exact_scalef<R>(x, y); }>(a, b);
  else return {half::scalef(a.low, b.low), half::scalef(a.high, b.high)};
}
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T> LUM_INLINE Vec<T> rndscale(Vec<T> a) {
  return {half::rndscale<imm>(a.low), half::rndscale<imm>(a.high)};
}
// a - rndscale<imm>(a), the exact remainder.
template <int imm, Floating T> LUM_INLINE Vec<T> reduce(Vec<T> a) {
  return {half::reduce<imm>(a.low), half::reduce<imm>(a.high)};
}

// ---- Comparison and classification

template <int predicate, Floating T> LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  return {half::compare<predicate>(a.low, b.low), half::compare<predicate>(a.high, b.high)};
}
template <int predicate, Integer T> LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  return {half::compare<predicate>(a.low, b.low), half::compare<predicate>(a.high, b.high)};
}
// The predicates' codes are the same for floating-point and integer comparisons (0 eq, 1 lt, 2 le, 4 ne, 5 nlt, 6 nle).
template <Lane T> LUM_INLINE Mask<T> eq(Vec<T> a, Vec<T> b) { return compare<0>(a, b); }
template <Lane T> LUM_INLINE Mask<T> lt(Vec<T> a, Vec<T> b) { return compare<1>(a, b); }
template <Lane T> LUM_INLINE Mask<T> le(Vec<T> a, Vec<T> b) { return compare<2>(a, b); }
template <Lane T> LUM_INLINE Mask<T> ne(Vec<T> a, Vec<T> b) { return compare<4>(a, b); }
template <Lane T> LUM_INLINE Mask<T> nlt(Vec<T> a, Vec<T> b) { return compare<5>(a, b); }
template <Lane T> LUM_INLINE Mask<T> nle(Vec<T> a, Vec<T> b) { return compare<6>(a, b); }
template <Floating T> LUM_INLINE Mask<T> unord(Vec<T> a, Vec<T> b) { return compare<3>(a, b); }

// Lanes whose class is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative finite
// other than -0, 7 signalling NaN.
template <int imm, Floating T> LUM_INLINE Mask<T> fpclass(Vec<T> a) {
  return {half::fpclass<imm>(a.low), half::fpclass<imm>(a.high)};
}
// Lanes in which a & b has a bit set.
template <Integer T> LUM_INLINE Mask<T> test_any(Vec<T> a, Vec<T> b) { return ~test_none(a, b); }
// Lanes in which a & b is zero.
template <Integer T> LUM_INLINE Mask<T> test_none(Vec<T> a, Vec<T> b) {
  const auto zero = half::all(T{0});
  return {half::eq(a.low & b.low, zero), half::eq(a.high & b.high, zero)};
}

// ---- Selection

// Per lane m ? a : b.
template <Lane T> LUM_INLINE Vec<T> select(Mask<T> m, Vec<T> a, Vec<T> b) {
  return {half::select(m.low, a.low, b.low), half::select(m.high, a.high, b.high)};
}
// Per lane m ? a + b : a. The sum is sealed, or clang would add zero where the mask has none, which quiets a signalling NaN.
template <Floating T> LUM_INLINE Vec<T> add(Mask<T> m, Vec<T> a, Vec<T> b) { return select(m, sealed(add(a, b)), a); }
// Per lane m ? a - b : other.
template <Floating T> LUM_INLINE Vec<T> sub(Mask<T> m, Vec<T> a, Vec<T> b, Vec<T> other) { return select(m, sub(a, b), other); }
// Per lane m ? a - b : +0.
template <Floating T> LUM_INLINE Vec<T> sub_or_zero(Mask<T> m, Vec<T> a, Vec<T> b) { return zero_unless(m, sub(a, b)); }
// Per lane m ? a : +0.
template <Lane T> LUM_INLINE Vec<T> zero_unless(Mask<T> m, Vec<T> a) {
  return {half::zero_unless(m.low, a.low), half::zero_unless(m.high, a.high)};
}
// Bit i of imm is the result for the operand bits a, b, c with i = 4 a + 2 b + c.
template <int imm, Integer T> LUM_INLINE Vec<T> ternary(Vec<T> a, Vec<T> b, Vec<T> c) {
  return {half::ternary<imm>(a.low, b.low, c.low), half::ternary<imm>(a.high, b.high, c.high)};
}

}  // namespace avx2
}  // namespace lum
