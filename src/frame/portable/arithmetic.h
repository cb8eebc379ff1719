// Floating-point arithmetic, comparison and selection lane by lane, a part of frame/vec_portable.h.
#pragma once

#include "frame/directed.h"
#include "frame/portable/base.h"
#include "frame/portable/significand.h"

namespace lum {
inline namespace portable {

// ---- Arithmetic

// Directed rounding without a fused multiply-add is that of one lane, in straight lines.
template <int R = rn, Floating T> LUM_INLINE Vec<T> add(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (R == rn) {
    return each_part_with_these_nans<lane::add<rn, T>, T>(
        [](auto x, auto y) __attribute__((always_inline)) { return x + y; }, a, b);
  } else if constexpr (lane::processor_has_fma) {
    return each_part_with_care<lane::add<R, T>, T>(reg::directed_add<R, T>, reg::directed_add_doubt<R, T>, a, b);
  } else {
    return each_lane<T>([&](int i) { return lane::add<R>(a.lane[i], b.lane[i]); });
  }
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> sub(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (R != rn) return each_lane<T>([&](int i) { return lane::sub<R>(a.lane[i], b.lane[i]); });
  else
    return each_part_with_these_nans<lane::sub<rn, T>, T>(
        [](auto x, auto y) __attribute__((always_inline)) { return x - y; }, a, b);
}
template <int R = rn, Floating T> [[gnu::noinline]] Vec<T> called_mul(const Vec<T>& a, const Vec<T>& b) {
  return each_lane_with_care<lane::careful_mul<R, T>, T>(
      [&](int i) { return lane::quick_mul<R>(a.lane[i], b.lane[i]); },
      [&](int i, T r) { return lane::mul_doubt<R>(a.lane[i], b.lane[i], r); }, a, b);
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> mul(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (R == rn) {
    return each_part_with_these_nans<lane::careful_mul<rn, T>, T>(
        [](auto x, auto y) __attribute__((always_inline)) { return x * y; }, a, b);
  } else if constexpr (lane::processor_has_fma) {
    return each_part_with_care<lane::careful_mul<R, T>, T>(reg::directed_mul<R, T>, reg::directed_mul_doubt<T>, a, b);
  } else {
    return called_mul<R>(a, b);
  }
}
template <int R = rn, Floating T> [[gnu::noinline]] Vec<T> called_div(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return lane::div<R>(a.lane[i], b.lane[i]); });
}
template <int R = rn, Floating T> LUM_INLINE Vec<T> div(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (R != rn) return called_div<R>(a, b);
  else
    return each_part_with_these_nans<static_cast<T (*)(T, T)>(lane::div<rn>), T>(
        [](auto x, auto y) __attribute__((always_inline)) { return x / y; }, a, b);
}
template <int R = rn, Floating T> [[gnu::noinline]] Vec<T> sqrt(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::sqrt<R>(a.lane[i]); });
}
template <int R, bool negate_product, bool negate_addend, Floating T>
[[gnu::noinline]] Vec<T> called_fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  const auto quick = [&](int i) {
    return lane::quick_fma<R>(negate_product ? -a.lane[i] : a.lane[i], b.lane[i], negate_addend ? -c.lane[i] : c.lane[i]);
  };
  return each_lane_with_care<lane::careful_fma<R, negate_product, negate_addend, T>, T>(
      quick, [&](int i, T r) { return lane::fma_doubt<R>(a.lane[i], b.lane[i], c.lane[i], r); }, a, b, c);
}
// +-(a b) +- c with one rounding.
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Vec<T> signed_fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  constexpr auto careful = lane::careful_fma<R, negate_product, negate_addend, T>;
  if constexpr (!lane::processor_has_fma) return called_fma<R, negate_product, negate_addend>(a, b, c);
  else if constexpr (R != rn)
    return each_part_with_care<careful, T>(reg::directed_fma<R, negate_product, negate_addend, T>,
                                           reg::directed_fma_doubt<R, negate_product, negate_addend, T>, a, b, c);
  else if constexpr (reg::fma_gives_these_nans) return each_part<T>(reg::fma<negate_product, negate_addend, T>, a, b, c);
  else return each_part_but_nans<careful, T>(reg::fma<negate_product, negate_addend, T>, a, b, c);
}
// a b + c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, false, false>(a, b, c);
}
// a b - c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fms(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, false, true>(a, b, c);
}
// c - a b with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fnma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, true, false>(a, b, c);
}
// -(a b) - c with one rounding.
template <int R = rn, Floating T> LUM_INLINE Vec<T> fnms(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, true, true>(a, b, c);
}
// fma<rz>(a, b, c) for c = 1.5 * 2^k and |a b| up to 2^(k-2), so that it is the floor of a b, and c behind it. A product that
// is negative is no denormal number. Of other lanes any value, a NaN of a one.
template <Floating T> LUM_INLINE Vec<T> fma_floor(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  if constexpr (!lane::processor_has_fma) return fma<rz>(a, b, c);
  else return each_part<T>(reg::fma_floor<T>, a, b, c);
}
// The heads and tails that pairs(part of a, part of b, ...) gives.
template <Floating T, class Pairs, class... Operands>
LUM_INLINE TwoParts<Vec<T>> each_part_in_two(Pairs pairs, const Operands&... operands) {
  TwoParts<Vec<T>> r;
  const auto set = [&](int part) __attribute__((always_inline)) {
    const TwoParts<Register<T>> of_part = pairs(part_of(operands, part)...);
    set_part(r.head, part, of_part.head);
    set_part(r.tail, part, of_part.tail);
  };
  [&]<size_t... part>(std::index_sequence<part...>) __attribute__((always_inline)) { (set(static_cast<int>(part)), ...); }
  (std::make_index_sequence<parts_of_vector>());
  return r;
}
// a b rounded toward zero, and what is left of it, exactly: of products that are finite and whose lowest bit is in the range.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (lane::processor_has_fma) {
    const auto r = each_part_in_two<T>(
        [](auto x, auto y) __attribute__((always_inline)) { return reg::mul_toward_zero<T>(x, y); }, a, b);
    if (none(each_mask_part<T>(reg::is_small_product<T>, r.head, a, b))) [[likely]]
      return r;
  }
  const auto head = mul<rz>(a, b);
  return {head, fms<rz>(a, b, head)};
}
// (a + a_tail) b, each step toward zero, for a tail that is zero or from 2^-212 (float: 2^-96) to 2^-8 of a.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(const Vec<T>& a, const Vec<T>& a_tail, const Vec<T>& b) {
  if constexpr (lane::processor_has_fma) {
    const auto r = each_part_in_two<T>(
        [](auto x, auto x_tail, auto y) __attribute__((always_inline)) { return reg::mul_toward_zero<T>(x, x_tail, y); }, a,
        a_tail, b);
    if (none(each_mask_part<T>(reg::is_small_product<T>, r.head, a, b))) [[likely]]
      return r;
  }
  const auto first = mul<rz>(a, b);
  const auto second = fma<rz>(a_tail, b, fms<rz>(a, b, first));
  const auto head = add<rz>(first, second);
  return {head, second - (head - first)};
}
// c with the sign of the even or of the odd lanes changed.
template <int odd, Floating T> LUM_INLINE Vec<T> negate_every_other(const Vec<T>& c) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) { return reg::with_signs_of_every_other_changed<odd, T>(x); }, c);
}
// r, where c is a NaN and neither a nor b is one with that NaN in its own sign.
template <Floating T> LUM_INLINE Vec<T> restore_nan(const Vec<T>& r, const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return each_part<T>(
      [](auto result, auto x, auto y, auto z) __attribute__((always_inline)) {
        const auto from_c = reg::lanes_where<T>((z != z) & (x == x) & (y == y));
        return reg::chosen<T>(from_c, reg::number<T>(reg::bits<T>(z) | lane::Format<T>::quiet), result);
      },
      r, a, b, c);
}
// a b - c in even lanes, a b + c in odd ones, with one rounding.
template <Floating T> LUM_INLINE Vec<T> fmaddsub(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return restore_nan(fma(a, b, negate_every_other<0>(c)), a, b, c);
}
// a b + c in even lanes, a b - c in odd ones, with one rounding.
template <Floating T> LUM_INLINE Vec<T> fmsubadd(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return restore_nan(fma(a, b, negate_every_other<1>(c)), a, b, c);
}
// The smaller; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> min(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x < y ? x : y; }, a, b);
}
// The larger; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T> LUM_INLINE Vec<T> max(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x > y ? x : y; }, a, b);
}
// 1 / a with a relative error below 2^-14; a zero gives an infinity and an infinity a zero, of its sign.
template <Floating T> LUM_INLINE_WITH_FMA Vec<T> rcp14(const Vec<T>& a) {
  return each_part_with_care<lane::rcp14<T>, T>(reg::rcp14_of_normal<T>, reg::has_no_normal_reciprocal<T>, a);
}
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T> LUM_INLINE_WITH_FMA Vec<T> rsqrt14(const Vec<T>& a) {
  return each_part_with_care<lane::rsqrt14<T>, T>(reg::rsqrt14_of_normal<T>, reg::is_not_positive_normal<T>, a);
}
// rcp14 of numbers that are normal and have a normal reciprocal; in other lanes any value.
template <Floating T> LUM_INLINE_WITH_FMA Vec<T> rcp14_normal(const Vec<T>& a) {
  return each_part<T>(reg::rcp14_of_normal<T>, a);
}
// rsqrt14 of positive normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE_WITH_FMA Vec<T> rsqrt14_normal(const Vec<T>& a) {
  return each_part<T>(reg::rsqrt14_of_normal<T>, a);
}

// ---- Exponent, significand, rounding to a grid

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T> LUM_INLINE_WITH_FMA Vec<T> getexp(const Vec<T>& a) {
  return each_part_with_care<lane::getexp<T>, T>(reg::getexp_of_normal<T>, reg::is_not_normal<T>, a);
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T> LUM_INLINE_WITH_FMA Vec<T> getmant(const Vec<T>& a) {
  constexpr auto doubt = (imm & 8) != 0 ? reg::is_not_positive_normal<T> : reg::is_not_normal<T>;
  return each_part_with_care<lane::getmant<imm, T>, T>(reg::getmant_of_normal<imm, T>, doubt, a);
}
// getexp and getmant of normal numbers; of others any value.
template <Floating T> LUM_INLINE Vec<T> getexp_normal(const Vec<T>& a) { return each_part<T>(reg::getexp_of_normal<T>, a); }
template <int imm, Floating T> LUM_INLINE Vec<T> getmant_normal(const Vec<T>& a) {
  return each_part<T>(reg::getmant_of_normal<imm, T>, a);
}
// Both of a number.
template <Floating T> struct Parts { Vec<T> significand, exponent; };
template <int imm, Floating T> LUM_INLINE Parts<T> parts(const Vec<T>& a) { return {getmant<imm>(a), getexp(a)}; }
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T> LUM_INLINE_WITH_FMA Vec<T> scalef(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (R != rn) return each_lane<T>([&](int i) { return lane::exact_scalef<R>(a.lane[i], b.lane[i]); });
  else
    return each_part_with_care<lane::exact_scalef<R, T>, T>(
        reg::scalef_by_normal<T>, [](auto, auto y) __attribute__((always_inline)) { return reg::scalef_doubt<T>(y); }, a, b);
}
// scalef(a, b) where the result is a normal number and floor(b) that of one, or a NaN; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> scalef_normal(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(reg::scalef_by_normal<T>, a, b);
}
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T> LUM_INLINE_WITH_FMA Vec<T> rndscale(const Vec<T>& a) {
  return each_part<T>(reg::rndscale<imm, T>, a);
}
// rcp14(m) rounded to a multiple of 2^-grid, for m of the interval that getmant's immediate names: 0 [1,2) or 2 [1/2,1), of
// either sign. Of a NaN any value.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> rounded_rcp14(const Vec<T>& m) {
  static_assert(interval == 0 || interval == 2);
  return rndscale<grid << 4 | 8>(rcp14_normal(m));
}
// rounded_rcp14 of a positive m plus the number whose last bit is worth 2^-grid, 3 * 2^(fraction bits - 1) times as large.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> shifted_rcp14(const Vec<T>& m) {
  static_assert(interval == 0 || interval == 2);
  return rcp14_normal(m) + all((is32<T> ? T(0x1.8p23) : T(0x1.8p52)) / (1 << grid));
}
// rcp14(a) with its significand rounded to the given fraction bits, halves up; a carry goes into the exponent.
template <int kept, Floating T> LUM_INLINE Vec<T> rounded_halves_up(const Vec<T>& estimate) {
  using Bits = UnsignedOf<T>;
  constexpr Bits half_step = Bits{1} << (lane::Format<T>::fraction_bits - kept - 1);
  return as_float((bits(estimate) + all(half_step)) & all(static_cast<Bits>(~(2 * half_step - 1))));
}
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up(const Vec<T>& a) { return rounded_halves_up<kept>(rcp14(a)); }
// rcp14_halves_up of normal numbers with a normal reciprocal; in other lanes any value.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up_normal(const Vec<T>& a) {
  return rounded_halves_up<kept>(rcp14_normal(a));
}
// a + c rounded down, for c = 1.5 * 2^k and a bit more and |a| up to 2^(k-2), so that it is the floor of a on the grid whose
// step is the sum's last bit, 2^-grid; and the rest of a above that floor, rounded down, a zero of either sign.
template <Floating T> struct FloorAndRest { Vec<T> sum, rest; };
template <int grid, Floating T> LUM_INLINE FloorAndRest<T> split_floor(const Vec<T>& a, const Vec<T>& c) {
  const auto r = each_part_in_two<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return reg::split_floor<T>(x, y); }, a, c);
  return {r.head, r.tail};
}

// ---- Comparison and classification

// Predicates from 16 on are those below with the other behaviour at a quiet NaN, which raises no flag here.
template <int predicate, Floating T> LUM_INLINE Mask<T> compare(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_part<T>(reg::compare_numbers<predicate, T>, a, b);
}
template <int predicate, Integer T> LUM_INLINE Mask<T> compare(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_part<T>(reg::compare_integers<predicate, T>, a, b);
}

// Lanes whose class is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative finite
// other than -0, 7 signalling NaN.
template <int imm, Floating T> LUM_INLINE Mask<T> fpclass(const Vec<T>& a) {
  return each_mask_part<T>(reg::fpclass<imm, T>, a);
}
// Lanes in which a & b has a bit set.
template <Integer T> LUM_INLINE Mask<T> test_any(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return (x & y) != 0; }, a, b);
}
// Lanes in which a & b is zero.
template <Integer T> LUM_INLINE Mask<T> test_none(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return (x & y) == 0; }, a, b);
}

// ---- Selection

// Per lane m ? a : b.
template <Lane T> LUM_INLINE Vec<T> select(const Mask<T>& mask, const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto m, auto x, auto y) __attribute__((always_inline)) {
        return (m & register_cast<UnsignedOf<T>>(x)) | (~m & register_cast<UnsignedOf<T>>(y));
      },
      of_unknown_origin(mask), a, b);
}
// Per lane m ? a + b : a.
template <Floating T> LUM_INLINE Vec<T> add(Mask<T> m, Vec<T> a, Vec<T> b) { return select(m, a + b, a); }
// Per lane m ? a - b : other.
template <Floating T> LUM_INLINE Vec<T> sub(Mask<T> m, Vec<T> a, Vec<T> b, Vec<T> other) { return select(m, sub(a, b), other); }
// Per lane m ? a - b : +0.
template <Floating T> LUM_INLINE Vec<T> sub_or_zero(Mask<T> m, Vec<T> a, Vec<T> b) { return zero_unless(m, sub(a, b)); }
// Per lane m ? a : +0.
template <Lane T> LUM_INLINE Vec<T> zero_unless(const Mask<T>& m, const Vec<T>& a) {
  return each_part<T>(
      [](auto in_mask, auto x) __attribute__((always_inline)) { return in_mask & register_cast<UnsignedOf<T>>(x); }, m, a);
}
// Bit i of imm is the result for the operand bits a, b, c with i = 4 a + 2 b + c.
template <int imm, Integer T> LUM_INLINE Vec<T> ternary(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return each_part<T>(
      [](auto x, auto y, auto z) __attribute__((always_inline)) {
        auto r = x ^ x;
        for (int row = 0; row < 8; ++row)
          if (imm >> row & 1) r |= (row & 4 ? x : ~x) & (row & 2 ? y : ~y) & (row & 1 ? z : ~z);
        return r;
      },
      a, b, c);
}

}  // namespace portable
}  // namespace lum
