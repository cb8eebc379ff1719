// Floating-point arithmetic, comparison and selection on pairs of registers, a part of frame/vec_avx2.h.
#pragma once

#include <limits>

#include "frame/avx2/base.h"
#include "frame/avx2/estimates.h"
#include "frame/directed.h"

namespace lum {
inline namespace avx2 {

// ---- Arithmetic

// one(a, b, ...) of every lane: for roundings that the instructions have only by way of the environment.
template <auto one, Floating T, class... Others> LUM_INLINE Vec<T> by_lane(Vec<T> a, Others... others) {
  return {half::each_lane<one>(a.low, others.low...), half::each_lane<one>(a.high, others.high...)};
}

// Whether a lane in doubt has finite operands alone.
template <Floating T, class... Others>
[[gnu::noinline, gnu::cold]] bool any_of_finite(Register<UnsignedOf<T>> doubt, Register<T> a, Others... others) {
  constexpr T infinity = std::bit_cast<T>(lane::Format<T>::infinity);
  return any_bit(doubt & reg::lanes_where<T>(reg::magnitude<T>(a) < infinity) &
                 (reg::lanes_where<T>(reg::magnitude<T>(others) < infinity) & ...));
}
// quick(a, b, ...) of one register, with careful(a, b, ...) of every lane instead where doubt(a, b, ...) has bits set for
// finite numbers; and of both, one after the other, as not all that they need is in registers at one time.
template <auto careful, Floating T, class Quick, class Doubt, class... Others>
LUM_INLINE Half<T> half_with_care(Quick quick, Doubt doubt, Half<T> a, Others... others) {
  const auto in_doubt = doubt(a.v, others.v...);
  if (any_bit(in_doubt)) [[unlikely]] {
    if (any_of_finite<T>(in_doubt, a.v, Register<T>(others.v)...)) return half::each_lane<careful>(a, others...);
  }
  return {quick(a.v, others.v...)};
}
template <auto careful, Floating T, class Quick, class Doubt, class... Others>
LUM_INLINE Vec<T> with_care(Quick quick, Doubt doubt, Vec<T> a, Others... others) {
  return {half_with_care<careful>(quick, doubt, a.low, others.low...),
          half_with_care<careful>(quick, doubt, a.high, others.high...)};
}

template <int R = rn, Floating T> LUM_INLINE Vec<T> add(Vec<T> a, Vec<T> b) {
  if constexpr (R == rn) return {a.low + b.low, a.high + b.high};
  else return with_care<lane::add<R, T>>(reg::directed_add<R, T>, reg::directed_add_doubt<R, T>, a, b);
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> sub(Vec<T> a, Vec<T> b) {
  if constexpr (R == rn) return {a.low - b.low, a.high - b.high};
  else return by_lane<[](T x, T y) { return lane::sub<R>(x, y); }>(a, b);
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> mul(Vec<T> a, Vec<T> b) {
  if constexpr (R == rn) return {a.low * b.low, a.high * b.high};
  else return with_care<lane::careful_mul<R, T>>(reg::directed_mul<R, T>, reg::directed_mul_doubt<T>, a, b);
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
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Vec<T> directed_fma(Vec<T> a, Vec<T> b, Vec<T> c) {
  return with_care<lane::careful_fma<R, negate_product, negate_addend, T>>(
      reg::directed_fma<R, negate_product, negate_addend, T>, reg::directed_fma_doubt<R, negate_product, negate_addend, T>, a,
      b, c);
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
// fma<rz>(a, b, c) for c = 1.5 * 2^k and |a b| up to 2^(k-2), so that it is the floor of a b, and c behind it. A product that
// is negative is no denormal number. Of other lanes any value, a NaN of a one.
template <Floating T> LUM_INLINE Vec<T> fma_floor(Vec<T> a, Vec<T> b, Vec<T> c) {
  return {{reg::fma_floor<T>(a.low.v, b.low.v, c.low.v)}, {reg::fma_floor<T>(a.high.v, b.high.v, c.high.v)}};
}
// The heads and tails of both registers.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> in_two(TwoParts<Register<T>> low, TwoParts<Register<T>> high) {
  return {{{low.head}, {high.head}}, {{low.tail}, {high.tail}}};
}
template <Floating T> LUM_INLINE bool any_small_product(Vec<T> product, Vec<T> a, Vec<T> b) {
  return any_bit(reg::is_small_product<T>(product.low.v, a.low.v, b.low.v) |
                 reg::is_small_product<T>(product.high.v, a.high.v, b.high.v));
}
// The head or the tail of by(b), but of small products what by gives of a b that is some powers of 2 larger, brought down. A
// head that is then no normal number is the smallest one, without a tail, or zero where it would be below all numbers.
template <bool is_head, Floating T, class By> LUM_INLINE Half<T> part_of_product(Half<T> a, Half<T> b, By by) {
  constexpr int powers = is32<T> ? 100 : 600;
  constexpr T raised = lane::power_of_two<T>(powers), lowered = lane::power_of_two<T>(-powers);
  constexpr T smallest = std::numeric_limits<T>::min() * raised, least = smallest * std::numeric_limits<T>::epsilon();
  const auto product = by(b.v);
  const half::HalfMask<T> small{std::bit_cast<__m256i>(reg::is_small_product<T>(product.head, a.v, b.v))};
  const auto large = by(half::select(small, b * half::all(raised), b).v);
  const Half<T> head{large.head}, tail{large.tail};
  const auto magnitude = half::magnitude(head);
  if constexpr (is_head) {
    const auto kept = half::max(magnitude, half::all(smallest)) * half::all(lowered);
    const auto bits = half::bits(half::zero_unless(half::le(half::all(least), magnitude), kept));
    return half::select(small, half::as_float<T>(bits | (half::bits(head) & half::all(sign_bit<T>))), Half<T>{product.head});
  } else {
    const auto kept = half::zero_unless(half::le(half::all(smallest), magnitude), tail) * half::all(lowered);
    return half::select(small, kept, Half<T>{product.tail});
  }
}
template <bool is_head, Floating T> [[gnu::noinline, gnu::cold]] Half<T> small_product(Half<T> a, Half<T> b) {
  return part_of_product<is_head>(
      a, b, [&](Register<T> factor) __attribute__((always_inline)) { return reg::mul_toward_zero<T>(a.v, factor); });
}
// a b rounded toward zero, and what is left of it, exactly: of products that are finite and whose lowest bit is that of a
// normal number.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(Vec<T> a, Vec<T> b) {
  const auto low = reg::mul_toward_zero<T>(a.low.v, b.low.v), high = reg::mul_toward_zero<T>(a.high.v, b.high.v);
  auto low_head = low.head, high_head = high.head, low_tail = low.tail, high_tail = high.tail;
  if (any_small_product<T>({{low_head}, {high_head}}, a, b)) [[unlikely]] {
    low_head = small_product<true>(a.low, b.low).v;
    high_head = small_product<true>(a.high, b.high).v;
    low_tail = small_product<false>(a.low, b.low).v;
    high_tail = small_product<false>(a.high, b.high).v;
  }
  return {{{low_head}, {high_head}}, {{low_tail}, {high_tail}}};
}
// (a + a_tail) b, each step toward zero, for a tail that is zero or from 2^-212 (float: 2^-96) to 2^-8 of a. Of a product below
// 2^-300 (2^-40) any numbers near it, or of its size where it is below all numbers.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(Vec<T> a, Vec<T> a_tail, Vec<T> b) {
  return in_two<T>(reg::mul_toward_zero<T>(a.low.v, a_tail.low.v, b.low.v),
                   reg::mul_toward_zero<T>(a.high.v, a_tail.high.v, b.high.v));
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
template <Floating T> LUM_INLINE Vec<T> min(Vec<T> a, Vec<T> b) { return {half::min(a.low, b.low), half::min(a.high, b.high)}; }
// The larger; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> max(Vec<T> a, Vec<T> b) { return {half::max(a.low, b.low), half::max(a.high, b.high)}; }
// 1 / a with a relative error below 2^-14; a zero gives an infinity and an infinity a zero, of its sign.
template <Floating T> LUM_INLINE Vec<T> rcp14(Vec<T> a) { return half::rcp14(a); }
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T> LUM_INLINE Vec<T> rsqrt14(Vec<T> a) { return half::rsqrt14(a); }
// rcp14 of numbers that are normal and have a normal reciprocal; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> rcp14_normal(Vec<T> a) { return half::rcp14_normal(a); }
// rsqrt14 of positive normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> rsqrt14_normal(Vec<T> a) { return half::rsqrt14_normal(a); }

// ---- Exponent, significand, rounding to a grid

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T> LUM_INLINE Vec<T> getexp(Vec<T> a) {
  auto low = half::getexp_of_normal(a.low).v, high = half::getexp_of_normal(a.high).v;
  if (half::any_not_normal(a)) [[unlikely]] {
    low = half::getexp_of_any<T>(a.low.v);
    high = half::getexp_of_any<T>(a.high.v);
  }
  return {{low}, {high}};
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T> LUM_INLINE Vec<T> getmant(Vec<T> a) {
  auto low = half::getmant_of_normal<imm>(a.low).v, high = half::getmant_of_normal<imm>(a.high).v;
  if ((imm & 8) != 0 ? half::any_not_positive_normal(a) : half::any_not_normal(a)) [[unlikely]] {
    low = half::getmant_of_any<imm, T>(a.low.v);
    high = half::getmant_of_any<imm, T>(a.high.v);
  }
  return {{low}, {high}};
}
// getexp and getmant of normal numbers; of others any value.
template <Floating T> LUM_INLINE Vec<T> getexp_normal(Vec<T> a) {
  return {half::getexp_of_normal(a.low), half::getexp_of_normal(a.high)};
}
template <int imm, Floating T> LUM_INLINE Vec<T> getmant_normal(Vec<T> a) {
  return {half::getmant_of_normal<imm>(a.low), half::getmant_of_normal<imm>(a.high)};
}
// Both of a number.
template <Floating T> struct Parts { Vec<T> significand, exponent; };
template <int imm, Floating T> LUM_INLINE Parts<T> parts(Vec<T> a) {
  auto low = half::getmant_of_normal<imm>(a.low).v, high = half::getmant_of_normal<imm>(a.high).v;
  auto low_exponent = half::getexp_of_normal(a.low).v, high_exponent = half::getexp_of_normal(a.high).v;
  if ((imm & 8) != 0 ? half::any_not_positive_normal(a) : half::any_not_normal(a)) [[unlikely]] {
    low = half::getmant_of_any<imm, T>(a.low.v);
    high = half::getmant_of_any<imm, T>(a.high.v);
    low_exponent = half::getexp_of_any<T>(a.low.v);
    high_exponent = half::getexp_of_any<T>(a.high.v);
  }
  return {{{low}, {high}}, {{low_exponent}, {high_exponent}}};
}
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T> LUM_INLINE Vec<T> scalef(Vec<T> a, Vec<T> b) {
  if constexpr (R != rn) return by_lane<[](T x, T y) { return lane::exact_scalef<R>(x, y); }>(a, b);
  else return {half::scalef(a.low, b.low), half::scalef(a.high, b.high)};
}
// scalef(a, b) where the result is a normal number and floor(b) that of one, or a NaN; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> scalef_normal(Vec<T> a, Vec<T> b) {
  return {half::scalef_by_normal(a.low, half::round<1>(b.low)), half::scalef_by_normal(a.high, half::round<1>(b.high))};
}
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T> LUM_INLINE Vec<T> rndscale(Vec<T> a) {
  return {half::rndscale<imm>(a.low), half::rndscale<imm>(a.high)};
}
// rcp14(m) rounded to a multiple of 2^-grid, for m of the interval that getmant's immediate names: 0 [1,2) or 2 [1/2,1), of
// either sign. Of a NaN any value.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> rounded_rcp14(Vec<T> m) {
  static_assert(interval == 0 || interval == 2);
  return half::short_rcp14 < interval == 0 ? grid - 1 : grid, true > (m);
}
// rounded_rcp14 of a positive m plus the number whose last bit is worth 2^-grid, 3 * 2^(fraction bits - 1) times as large.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> shifted_rcp14(Vec<T> m) {
  static_assert(interval == 0 || interval == 2);
  return half::shifted_rcp14<grid, interval>(m);
}
// rcp14(a) with its significand rounded to the given fraction bits, halves up; a carry goes into the exponent.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up(Vec<T> a) { return half::rcp14_halves_up<kept>(a); }
// rcp14_halves_up of normal numbers with a normal reciprocal; in other lanes any value.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up_normal(Vec<T> a) {
  return half::rcp14_halves_up_normal<kept>(a);
}
// a + c rounded down, for c = 1.5 * 2^k and a bit more and |a| up to 2^(k-2), so that it is the floor of a on the grid whose
// step is the sum's last bit, 2^-grid; and the rest of a above that floor, rounded down, a zero of either sign.
template <Floating T> struct FloorAndRest { Vec<T> sum, rest; };
template <int grid, Floating T> LUM_INLINE FloorAndRest<T> split_floor(Vec<T> a, Vec<T> c) {
  const auto r = in_two<T>(reg::split_floor<T>(a.low.v, c.low.v), reg::split_floor<T>(a.high.v, c.high.v));
  return {r.head, r.tail};
}

// ---- Comparison and classification

template <int predicate, Floating T> LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  return {half::compare<predicate>(a.low, b.low), half::compare<predicate>(a.high, b.high)};
}
template <int predicate, Integer T> LUM_INLINE Mask<T> compare(Vec<T> a, Vec<T> b) {
  return {half::compare<predicate>(a.low, b.low), half::compare<predicate>(a.high, b.high)};
}

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
