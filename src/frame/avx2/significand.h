// Exponent, significand, class and powers of two of the lanes of one register, by integer instructions. A part of
// frame/vec_avx2.h.
#pragma once

#include "frame/avx2/lookup.h"
#include "frame/lane_significand.h"

namespace lum {
inline namespace avx2 {
namespace half {

// ---- Exponent, significand, class

// Lanes whose bits as a number are not from low to high - 1. Numbers below low wrap around; the top bit is turned over by
// the subtraction for the signed comparison.
template <Floating T> LUM_INLINE HalfMask<T> bits_outside(Half<T> a, UnsignedOf<T> low, UnsignedOf<T> high) {
  using S = SignedOf<T>;
  constexpr UnsignedOf<T> top = sign_bit<T>;
  const Half<S> moved{(bits(a) - all(static_cast<UnsignedOf<T>>(low + top))).v};
  return {greater(moved, all(static_cast<S>(high - low - 1 + top))).v};
}

// |a|, and of denormal numbers what counts their steps, as a normal number or zero: by the bits, since an operation on such a
// number takes the processor long. `lift` is then too much in the exponent.
template <Floating T> inline constexpr int lift = lane::Format<T>::bias - 1 + lane::Format<T>::fraction_bits;
template <Floating T> struct Normal {
  Half<UnsignedOf<T>> bits;
  HalfMask<T> was_small;
};
template <Floating T> LUM_INLINE Normal<T> normal(Half<T> a) {
  using F = lane::Format<T>;
  using S = SignedOf<T>;
  constexpr T shifter = static_cast<T>(F::hidden);
  const auto m = bits(magnitude(a));
  const HalfMask<T> small{greater(all(static_cast<S>(F::hidden)), Half<S>{m.v}).v};
  return {bits(select(small, as_float<T>(m | bits(all(shifter))) - all(shifter), as_float<T>(m))), small};
}

// getexp and getmant of normal numbers; in other lanes any value.
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

template <Floating T> [[gnu::noinline, gnu::cold, gnu::const]] Native<T> getexp_of_any(Native<T> in_a) {
  const Half<T> a{in_a};
  using F = lane::Format<T>;
  const auto [b, small] = normal(a);
  const auto field = to_floating<T>(shift_right<F::fraction_bits>(b));
  const auto exponent = field - select(small, all(T(F::bias + lift<T>)), all(T(F::bias)));
  const auto infinity = all(std::bit_cast<T>(F::infinity));
  const auto minus_infinity = all(std::bit_cast<T>(F::infinity | F::sign));
  const auto finite = select(eq(a, all(T{0})), minus_infinity, exponent);
  // The square of an infinity, and a NaN made quiet.
  return select(nlt(magnitude(a), infinity), a * a, finite).v;
}

template <int imm, Floating T> [[gnu::noinline, gnu::cold, gnu::const]] Native<T> getmant_of_any(Native<T> in_a) {
  const Half<T> a{in_a};
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr int interval = imm & 3;
  constexpr bool clear_sign = (imm & 4) != 0, nan_if_negative = (imm & 8) != 0;
  const auto [b, small] = normal(a);
  const auto one = all(static_cast<Bits>(static_cast<Bits>(F::bias) << F::fraction_bits));
  auto finite = (b & all(static_cast<Bits>(F::fraction))) | one;
  if constexpr (interval == 1) {
    // The bias is odd, so the exponent is odd where the field is even, and of denormal floats, whose lift is odd, where it is
    // odd.
    auto even = shift_left<F::fraction_bits>(and_not(shift_right<F::fraction_bits>(b), all(Bits{1})));
    if constexpr (lift<T> % 2 != 0) even = even ^ (Half<Bits>{small.v} & all(static_cast<Bits>(F::hidden)));
    finite = finite - even;
  }
  if constexpr (interval == 2) finite = finite - all(static_cast<Bits>(F::hidden));
  if constexpr (interval == 3) finite = finite - (shift_left<1>(b) & all(static_cast<Bits>(F::hidden)));
  const auto special = eq(a, all(T{0})) | nlt(magnitude(a), all(std::bit_cast<T>(F::infinity)));
  auto r = select(special, as_float<T>(one), as_float<T>(finite));
  if constexpr (!clear_sign) r = as_float<T>(bits(r) | (bits(a) & all(sign_bit<T>)));
  if constexpr (nan_if_negative) r = select(lt(a, all(T{0})), all(lane::default_nan<T>()), r);
  return select(compare<3>(a, a), a + a, r).v;
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

// ---- Powers of two

// a 2^floor(b) for |floor(b)| at most bias - 1; in other lanes any value.
template <Floating T> LUM_INLINE Half<T> scalef_by_normal(Half<T> a, Half<T> floor_b) {
  using F = lane::Format<T>;
  constexpr T shifter = T(1.5) * static_cast<T>(F::hidden) + T(F::bias);
  return a * as_float<T>(shift_left<F::fraction_bits>(bits(floor_b + all(shifter))));
}
// a b for a factor b of +infinity, zero as minus infinity stands for it, or NaN; but the factor prevails over a quiet NaN.
template <Floating T> [[gnu::noinline, gnu::cold, gnu::const]] Native<T> scalef_by_special(Native<T> in_a, Native<T> in_b) {
  const Half<T> a{in_a};
  const Half<T> b{in_b};
  using F = lane::Format<T>;
  const auto nan_a = compare<3>(a, a), nan_b = compare<3>(b, b);
  const auto factor = zero_unless(~lt(b, all(T{0})), magnitude(b));
  const HalfMask<T> is_quiet{
      eq(bits(a) & all(static_cast<UnsignedOf<T>>(F::quiet)), all(static_cast<UnsignedOf<T>>(F::quiet))).v};
  const auto product = select(nan_b, b + b, a * factor);
  return select(nan_a, select(is_quiet & ~nan_b, factor, a + a), product).v;
}
// a 2^floor(b) of any numbers.
template <Floating T> [[gnu::noinline, gnu::cold, gnu::const]] Native<T> scalef_of_any(Native<T> in_a, Native<T> in_b) {
  const Half<T> a{in_a};
  const Half<T> b{in_b};
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr T shifter = T(1.5) * static_cast<T>(F::hidden);
  const auto infinity = all(std::bit_cast<T>(F::infinity));
  const auto [m, small] = normal(a);
  const auto field = to_floating<T>(shift_right<F::fraction_bits>(m));
  const auto n = max(min(round<1>(b), all(T(4 * F::bias))), all(T(-4 * F::bias)));
  const auto sum = field - select(small, all(T(F::bias + lift<T>)), all(T(F::bias))) + n;
  // Beyond these limits all is infinite, or zero.
  const auto e = max(min(sum, all(T(F::bias + 1))), all(T(-F::bias - F::fraction_bits - 2)));
  const auto denormal = lt(e, all(T(1 - F::bias)));
  // A denormal result is rounded by a sum with 1, bias - 1 powers of 2 higher: its pattern counts the steps.
  const auto shifted = bits(select(denormal, e + all(T(F::bias - 1)), e) + all(shifter));
  const auto one = all(static_cast<Bits>(F::one));
  const auto significand = (m & all(static_cast<Bits>(F::fraction))) | one;
  const auto scaled = as_float<T>(significand + shift_left<F::fraction_bits>(shifted));
  const auto counted = as_float<T>(bits(scaled + as_float<T>(one)) - one);
  auto r = select(denormal, counted, select(eq(e, all(T(F::bias + 1))), infinity, scaled));
  r = as_float<T>(bits(r) | (bits(a) & all(static_cast<Bits>(F::sign))));
  r = select(eq(a, all(T{0})) | nlt(magnitude(a), infinity), a + a, r);
  const auto special = nlt(magnitude(b), infinity);
  if (any(special)) r = select(special, Half<T>{scalef_by_special<T>(a.v, b.v)}, r);
  return r.v;
}
template <Floating T> LUM_INLINE Half<T> scalef(Half<T> a, Half<T> b) {
  using F = lane::Format<T>;
  const auto n = round<1>(b);
  const auto r = scalef_by_normal(a, n);
  if (any(compare<6>(magnitude(n), all(T(F::bias - 1))))) [[unlikely]]
    return {scalef_of_any<T>(a.v, b.v)};
  return r;
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
