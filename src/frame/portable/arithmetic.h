// Floating-point arithmetic, comparison and selection lane by lane, a part of frame/vec_portable.h.
#pragma once

#include "frame/lane_significand.h"
#include "frame/portable/base.h"
#include "frame/reciprocal_estimates.h"
#include "frame/two_parts.h"

namespace lum {
inline namespace portable {

// ---- Arithmetic

template <int R = rn, Floating T> LUM_INLINE Vec<T> add(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (R != rn) return each_lane<T>([&](int i) { return lane::add<R>(a.lane[i], b.lane[i]); });
  else
    return each_part_with_these_nans<lane::add<rn, T>, T>(
        [](auto x, auto y) __attribute__((always_inline)) { return x + y; }, a, b);
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
  if constexpr (R != rn) return called_mul<R>(a, b);
  else
    return each_part_with_these_nans<lane::careful_mul<rn, T>, T>(
        [](auto x, auto y) __attribute__((always_inline)) { return x * y; }, a, b);
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
// +-(a b) +- c with one rounding.
template <bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Vec<T> native_fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  const auto quick = [](auto x, auto y, auto z) __attribute__((always_inline)) {
    return register_fma<T>(negate_product ? -x : x, y, negate_addend ? -z : z);
  };
  return each_part_but_nans<lane::careful_fma<rn, negate_product, negate_addend, T>, T>(quick, a, b, c);
}
template <int R, bool negate_product, bool negate_addend, Floating T>
[[gnu::noinline]] Vec<T> called_fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  const auto quick = [&](int i) {
    return lane::quick_fma<R>(negate_product ? -a.lane[i] : a.lane[i], b.lane[i], negate_addend ? -c.lane[i] : c.lane[i]);
  };
  return each_lane_with_care<lane::careful_fma<R, negate_product, negate_addend, T>, T>(
      quick, [&](int i, T r) { return lane::fma_doubt<R>(a.lane[i], b.lane[i], c.lane[i], r); }, a, b, c);
}
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Vec<T> signed_fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  if constexpr (R == rn && lane::processor_has_fma) return native_fma<negate_product, negate_addend>(a, b, c);
  else return called_fma<R, negate_product, negate_addend>(a, b, c);
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
  const auto s = fma(a, b, c);
  // The difference from c is exact, and one unit down is right where the sum was rounded up.
  return each_part<T>(
      [](auto x, auto y, auto z, auto sum) __attribute__((always_inline)) {
        const Register<T> error = register_fma<T>(x, y, z - sum);
        return register_cast<UnsignedOf<T>>(sum) + register_cast<UnsignedOf<T>>(error < 0);
      },
      a, b, c, s);
}
// a b rounded toward zero, and what is left of it, exactly: of products that are finite and whose lowest bit is in the range.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(const Vec<T>& a, const Vec<T>& b) {
  const auto head = mul<rz>(a, b);
  return {head, fms<rz>(a, b, head)};
}
// (a + a_tail) b, each step toward zero, for a tail that is zero or from 2^-212 (float: 2^-96) to 2^-8 of a.
template <Floating T> LUM_INLINE TwoParts<Vec<T>> mul_toward_zero(const Vec<T>& a, const Vec<T>& a_tail, const Vec<T>& b) {
  const auto first = mul<rz>(a, b);
  const auto second = fma<rz>(a_tail, b, fms<rz>(a, b, first));
  const auto head = add<rz>(first, second);
  return {head, second - (head - first)};
}
// c with the sign of the even or of the odd lanes changed.
template <int odd, Floating T> LUM_INLINE Vec<T> negate_every_other(const Vec<T>& c) {
  return each_lane<T>([&](int i) { return i % 2 == odd ? -c.lane[i] : c.lane[i]; });
}
// r, where c is a NaN and neither a nor b is one with that NaN in its own sign.
template <Floating T> LUM_INLINE Vec<T> restore_nan(const Vec<T>& r, const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return each_lane<T>([&](int i) {
    const bool from_c = lane::is_nan(c.lane[i]) && !lane::is_nan(a.lane[i]) && !lane::is_nan(b.lane[i]);
    return from_c ? lane::quieted(c.lane[i]) : r.lane[i];
  });
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
template <Floating T> LUM_INLINE Vec<T> rcp14(const Vec<T>& a) {
  const auto has_no_normal_reciprocal = each_mask_part<T>(
      [](auto x) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        const auto m = register_cast<UnsignedOf<T>>(x) & (F::sign - 1);
        return m - F::hidden >= F::infinity - 3 * F::hidden;
      },
      a);
  return with_lanes_redone<lane::rcp14<T>>(rcp14_normal(a), has_no_normal_reciprocal, a);
}
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T> LUM_INLINE Vec<T> rsqrt14(const Vec<T>& a) {
  const auto is_not_positive_normal = each_mask_part<T>(
      [](auto x) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        return register_cast<UnsignedOf<T>>(x) - F::hidden >= F::infinity - F::hidden;
      },
      a);
  return with_lanes_redone<lane::rsqrt14<T>>(rsqrt14_normal(a), is_not_positive_normal, a);
}
// Of numbers that are normal and have a normal reciprocal; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> rcp14_normal(const Vec<T>& a) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        const auto b = register_cast<UnsignedOf<T>>(x);
        const auto t = (b & F::fraction) >> (F::fraction_bits - 16);
        auto significand = t;
        for (int i = 0; i < lanes_of_register<T>; ++i) {
          const auto place = static_cast<uint32_t>(t[i]);
          significand[i] = lane::on_line(lane::reciprocal_lines[place >> 10 & 63], 8, place);
        }
        // The exponent field of the reciprocal is one less where there is a fraction, and the leading bit carries into it.
        const auto has_fraction = register_cast<UnsignedOf<T>>((b & F::fraction) != 0);
        const auto field = 2 * F::bias - 1 - ((b & (F::sign - 1)) >> F::fraction_bits) + has_fraction;
        const auto scaled = (has_fraction & (significand << (F::fraction_bits - 16))) | (~has_fraction & F::hidden);
        return (b & F::sign) | ((field << F::fraction_bits) + scaled);
      },
      a);
}
// Of positive normal numbers; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> rsqrt14_normal(const Vec<T>& a) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        const auto b = register_cast<UnsignedOf<T>>(x);
        const auto above_bias = (b >> F::fraction_bits) - F::bias;  // the exponent
        const auto odd = above_bias & 1;
        const auto half = register_cast<UnsignedOf<T>>(register_cast<SignedOf<T>>(above_bias) >> 1);
        const auto t = (b & F::fraction) >> (F::fraction_bits - 15) | odd << 15;
        auto significand = t;
        for (int i = 0; i < lanes_of_register<T>; ++i) {
          const auto place = static_cast<uint32_t>(t[i]);
          significand[i] = lane::on_line(lane::reciprocal_root_lines[place >> 10 & 63], 7, place);
        }
        const auto is_square = register_cast<UnsignedOf<T>>(((b & F::fraction) | odd) == 0);  // of a power of two
        const auto scaled = (~is_square & (significand << (F::fraction_bits - 16))) | (is_square & (2 * F::hidden));
        return ((F::bias - 2 - half) << F::fraction_bits) + scaled;
      },
      a);
}

// ---- Exponent, significand, rounding to a grid

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T> [[gnu::noinline]] Vec<T> getexp(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::getexp(a.lane[i]); });
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T> [[gnu::noinline]] Vec<T> getmant(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::getmant<imm>(a.lane[i]); });
}
// getexp and getmant of normal numbers; of others any value.
template <Floating T> LUM_INLINE Vec<T> getexp_normal(const Vec<T>& a) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        const auto field = (register_cast<UnsignedOf<T>>(x) & (F::sign - 1)) >> F::fraction_bits;
        // The field as the last bits of a number whose last bit is worth one.
        constexpr T shifter = static_cast<T>(F::hidden);
        return register_cast<T>(field | lane::to_bits(shifter)) - (shifter + T(F::bias));
      },
      a);
}
template <int imm, Floating T> LUM_INLINE Vec<T> getmant_normal(const Vec<T>& a) {
  constexpr int interval = imm & 3;
  if constexpr ((imm & 8) != 0 || interval == 1) return getmant<imm>(a);
  else
    return each_part<T>(
        [](auto x) __attribute__((always_inline)) {
          using F = lane::Format<T>;
          const auto b = register_cast<UnsignedOf<T>>(x);
          auto m = (b & F::fraction) | F::one;
          if constexpr (interval == 2) m = m - F::hidden;
          if constexpr (interval == 3) m = m - ((b & (F::hidden >> 1)) << 1);
          if constexpr ((imm & 4) == 0) m = m | (b & F::sign);
          return m;
        },
        a);
}
// Both of a number.
template <Floating T> struct Parts { Vec<T> significand, exponent; };
template <int imm, Floating T> LUM_INLINE Parts<T> parts(const Vec<T>& a) { return {getmant<imm>(a), getexp(a)}; }
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T> [[gnu::noinline]] Vec<T> scalef(const Vec<T>& a, const Vec<T>& b) {
  return each_lane_with_care<lane::exact_scalef<R, T>, T>([&](int i) { return lane::quick_scalef<R>(a.lane[i], b.lane[i]); },
                                                          [&](int i, T) { return lane::scalef_doubt(a.lane[i], b.lane[i]); }, a,
                                                          b);
}
// The same where the result is a normal number and floor(b) that of one, or a NaN; in other lanes any value.
template <Floating T> LUM_INLINE Vec<T> scalef_normal(const Vec<T>& a, const Vec<T>& b) {
  if constexpr (!lane::processor_has_fma) return scalef(a, b);
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        constexpr T shifter = T(1.5) * static_cast<T>(F::hidden) + T(F::bias);
        const auto nearest = y + shifter;
        const auto down = register_cast<UnsignedOf<T>>(nearest - shifter > y);  // minus one where y was rounded up
        return x * register_cast<T>((register_cast<UnsignedOf<T>>(nearest) + down) << F::fraction_bits);
      },
      a, b);
}
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T> [[gnu::noinline]] Vec<T> rndscale(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::rndscale<imm>(a.lane[i]); });
}
// rcp14(m) rounded to a multiple of 2^-grid, for m of the interval that getmant's immediate names: 0 [1,2) or 2 [1/2,1), of
// either sign. Of a NaN any value.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> rounded_rcp14(const Vec<T>& m) {
  static_assert(interval == 0 || interval == 2);
  return rndscale<grid << 4 | 8>(rcp14(m));
}
// The same of a positive m plus the number whose last bit is worth 2^-grid, 3 * 2^(fraction bits - 1) times as large.
template <int grid, int interval, Floating T> LUM_INLINE Vec<T> shifted_rcp14(const Vec<T>& m) {
  static_assert(interval == 0 || interval == 2);
  return rcp14(m) + all((is32<T> ? T(0x1.8p23) : T(0x1.8p52)) / (1 << grid));
}
// rcp14(a) with its significand rounded to the given fraction bits, halves up; a carry goes into the exponent.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up(const Vec<T>& a) {
  using Bits = UnsignedOf<T>;
  constexpr Bits half_step = Bits{1} << ((is32<T> ? 23 : 52) - kept - 1);
  return as_float((bits(rcp14(a)) + all(half_step)) & all(static_cast<Bits>(~(2 * half_step - 1))));
}
// The same of normal numbers with a normal reciprocal; in other lanes any value.
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up_normal(const Vec<T>& a) { return rcp14_halves_up<kept>(a); }
// a - rndscale<imm>(a), the exact remainder.
template <int imm, Floating T> [[gnu::noinline]] Vec<T> reduce(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::reduce<imm>(a.lane[i]); });
}
// a + c rounded down, for c = 1.5 * 2^k and a bit more and |a| up to 2^(k-2), so that it is the floor of a on the grid whose
// step is the sum's last bit, 2^-grid; and the rest of a above that floor, rounded down, a zero of either sign.
template <Floating T> struct FloorAndRest { Vec<T> sum, rest; };
template <int grid, Floating T> LUM_INLINE FloorAndRest<T> split_floor(const Vec<T>& a, const Vec<T>& c) {
  return {add<rd>(a, c), reduce<grid << 4 | 1>(a)};
}

// ---- Comparison and classification

// Predicates from 16 on are those below with the other behaviour at a quiet NaN, which raises no flag here.
template <int predicate, Floating T> LUM_INLINE Mask<T> compare(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) {
        constexpr int p = predicate & 15;
        if constexpr (p == 0) return x == y;
        else if constexpr (p == 1) return x < y;
        else if constexpr (p == 2) return x <= y;
        else if constexpr (p == 3) return (x != x) | (y != y);
        else if constexpr (p == 4) return x != y;
        else if constexpr (p == 5) return ~(x < y);
        else if constexpr (p == 6) return ~(x <= y);
        else if constexpr (p == 7) return (x == x) & (y == y);
        else if constexpr (p == 8) return (x != x) | (y != y) | (x == y);
        else if constexpr (p == 9) return ~(x >= y);
        else if constexpr (p == 10) return ~(x > y);
        else if constexpr (p == 11) return (x == x) & (x != x);
        else if constexpr (p == 12) return (x < y) | (x > y);
        else if constexpr (p == 13) return x >= y;
        else if constexpr (p == 14) return x > y;
        else return (x == x) | (x != x);
      },
      a, b);
}
template <int predicate, Integer T> LUM_INLINE Mask<T> compare(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) {
        if constexpr (predicate == 0) return x == y;
        else if constexpr (predicate == 1) return x < y;
        else if constexpr (predicate == 2) return x <= y;
        else if constexpr (predicate == 3) return x != x;
        else if constexpr (predicate == 4) return x != y;
        else if constexpr (predicate == 5) return x >= y;
        else if constexpr (predicate == 6) return x > y;
        else return x == x;
      },
      a, b);
}

// Lanes whose class is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative finite
// other than -0, 7 signalling NaN.
template <int imm, Floating T> LUM_INLINE Mask<T> fpclass(const Vec<T>& a) {
  return each_mask_part<T>(
      [](auto x) __attribute__((always_inline)) {
        using F = lane::Format<T>;
        const auto b = register_cast<UnsignedOf<T>>(x);
        const auto m = b & (F::sign - 1);
        auto in_set = b != b;
        if constexpr ((imm & 0x81) == 0x81) in_set |= m > F::infinity;
        else if constexpr ((imm & 0x01) != 0) in_set |= m >= (F::infinity | F::quiet);
        else if constexpr ((imm & 0x80) != 0) in_set |= (m - F::infinity - 1) < F::quiet - 1;
        if constexpr ((imm & 0x06) == 0x06) in_set |= m == 0;
        else if constexpr ((imm & 0x02) != 0) in_set |= b == 0;
        else if constexpr ((imm & 0x04) != 0) in_set |= b == F::sign;
        if constexpr ((imm & 0x18) == 0x18) in_set |= m == F::infinity;
        else if constexpr ((imm & 0x08) != 0) in_set |= b == F::infinity;
        else if constexpr ((imm & 0x10) != 0) in_set |= b == (F::sign | F::infinity);
        if constexpr ((imm & 0x20) != 0) in_set |= (m - 1) < F::fraction;
        if constexpr ((imm & 0x40) != 0) in_set |= (b > F::sign) & (m < F::infinity);
        return in_set;
      },
      a);
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
