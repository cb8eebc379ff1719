// ln(1 + x). The sum is held as s + c exactly, and c, brought to the scale of s, is added to the reduced argument of a
// logarithm of s; so next to zero, where s is 1 and c is x, the result is as accurate as x. In 32f A11 and A21, s = 2^k m with
// m in [2/3, 4/3), and a polynomial in m - 1 is all. Elsewhere s = 2^e m and w is a reciprocal of m of a few bits:  ln(1 + x) =
// e ln 2 - ln w + ln(1 + r), 1 + r = w (m + c). In the high tiers the first sum and r have two parts. The result takes the sign
// of x, so that -0 gives -0.
#include <cstdint>

#include "explog/logarithm_reduction.h"
#include "explog/logarithm_routine.h"
#include "explog/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace explog;

// 1 + x exactly. max and min give their second operand when either is a NaN, so that a NaN x is both addends.
template <class T> LUM_INLINE TwoParts<Vec<T>> AddOne(Vec<T> x) {
  const auto one = all(T(1));
  return fast_two_sum(max(one, x), min(one, x));
}

// Refused are those s = 1 + x that are not positive, infinite or NaN.
template <class T> struct Log1p : Kernel<T> {
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return LogarithmOfSpecial(x + all(T(1)), lanes); }
  static LumStatus LaneRoutine(T x, T& result) { return LnRoutine<T>(x + 1, result); }
};

// The split of s at 2/3. s from 2^127 on is refused as well, its scale being no normal number.
struct SplitReduction {
  Vec<Lum32f> r, k;
  Mask<Lum32f> refused;
};
LUM_INLINE SplitReduction Split(Vec<Lum32f> x) {
  const auto one = all(1.0f);
  const auto [s, c] = AddOne(x);
  const auto u = bits(s) - bits(all(2 / 3.0f));
  const auto count = shift_right_arithmetic<23>(as_signed(u));
  const auto exponent = as_unsigned(shift_left<23>(count));  // k in the place of the exponent
  const auto m = as_float(bits(s) - exponent);
  const auto scale = as_float(bits(one) - exponent);  // 2^-k
  // The sum wraps round for s infinite, NaN and from 2^127 on; a negative s stays negative or comes out below the bound.
  const auto wrapped = as_signed(bits(s) + bits(all(0x1p-125f)));
  const auto refused = lt(wrapped, as_signed(bits(all(0x1p-124f))));
  return {fma(c, scale, m - one), to_float(count), mask_cast<Lum32f>(refused)};
}

// k ln 2 + r + r^2 p.
LUM_INLINE Lanes<Lum32f> JoinSplit(Vec<Lum32f> x, const SplitReduction& a, Vec<Lum32f> p) {
  const auto q = fma(p, a.r * a.r, a.r);
  return {or_sign(x, fma(a.k, all(numbers::ln2<Lum32f>), q)), a.refused};
}

struct A11_32f : Log1p<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Split(x);
    return JoinSplit(x, a, horner(a.r, explog::log1p_A11));
  }
};

struct A21_32f : Log1p<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Split(x);
    return JoinSplit(x, a, horner(a.r, explog::log1p_A21));
  }
};

// s = 2^e m, w next to 1/m with the given fraction bits. A sum s is no denormal number; refused are those that are not positive
// normal ones.
template <class T> struct Reciprocal {
  Vec<T> e, m, w;
  Vec<T> c;              // at the scale of m
  Vec<UnsignedOf<T>> j;  // in the low bits: the row of w in a table of 2^(fraction_bits - 1) rows
  Mask<T> refused;
};
template <int fraction_bits, class T> LUM_INLINE Reciprocal<T> TakeReciprocal(Vec<T> x) {
  constexpr T shifter = rounding_shifter<T>(fraction_bits);  // the sum has the row in its low bits
  const auto [s, c] = AddOne(x);
  const auto m = getmant_normal<significand::from_1_to_2>(s), e = getexp_normal(s);
  const auto t = shifted_rcp14<fraction_bits, significand::from_1_to_2>(m);
  return {e, m, t - all(shifter), scalef_normal(c, negate(e)), bits(t), fpclass<classes::not_positive_normal>(s)};
}

// The reduced argument r and what its sum has lost.
template <class T> LUM_INLINE TwoParts<Vec<T>> ReduceInTwoParts(const Reciprocal<T>& a) {
  const auto r0 = fms(a.w, a.m, all(T(1)));
  return fast_two_sum(r0, a.c * a.w);
}

// hi + lo + ln(1 + r) with ln(1 + r) = r + r^2 p.
template <class T> LUM_INLINE Vec<T> JoinPairs(Vec<T> x, Vec<T> hi, Vec<T> lo, Vec<T> r, Vec<T> p) {
  const auto s = fast_two_sum(hi, r);
  return or_sign(x, s.head + (fma(r * r, p, lo) + s.tail));
}

struct A24_32f : Log1p<Lum32f> {
  // hi, then lo.
  static constexpr auto pairs = by_columns<2>(table32({
#include "tables/generated/minus_ln_below_one_32f_32_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = TakeReciprocal<6>(x);
    const auto k = sub(le(all(1.0f), a.w), a.e, all(1.0f), a.e);  // w is in [1/2, 1]
    const auto r = ReduceInTwoParts(a);
    const auto hi = fma(k, all(numbers::ln2_short<Lum32f>), permute2(load<Lum32f>(pairs), load(pairs + 16), a.j));
    const auto lo = fma(k, all(numbers::ln2_short_tail<Lum32f>), permute2(load(pairs + 32), load(pairs + 48), a.j));
    const auto p = horner(r.head, explog::log1p_A24);
    return {JoinPairs(x, hi, lo + r.tail, r.head, p), a.refused};
  }
};

// e, raised where w stands for a row of twice its size.
LUM_INLINE Vec<Lum64f> RaisedExponent(const Reciprocal<Lum64f>& a) { return add(lt(a.w, all(0.75)), a.e, all(1.0)); }

constexpr auto rows = table64({
#include "tables/generated/minus_ln_64f_16.inc"
});
LUM_INLINE Vec<Lum64f> ReducedInOnePart(const Reciprocal<Lum64f>& a) { return fma(a.w, a.c, fms(a.w, a.m, all(1.0))); }
LUM_INLINE Lanes<Lum64f> JoinOnePart(Vec<Lum64f> x, const Reciprocal<Lum64f>& a, Vec<Lum64f> r, Vec<Lum64f> p) {
  const auto q = fma(p, r * r, r);
  const auto b = fma(RaisedExponent(a), all(numbers::ln2<Lum64f>), permute2(load<Lum64f>(rows), load(rows + 8), a.j));
  return {or_sign(x, b + q), a.refused};
}

struct A26_64f : Log1p<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = TakeReciprocal<5>(x);
    const auto r = ReducedInOnePart(a);
    const auto p2 = horner(r, part<0, 1>(explog::log1p_A26));
    const auto p4 = horner(r, part<2, 3>(explog::log1p_A26));
    return JoinOnePart(x, a, r, fma(p4, r * r, p2));
  }
};

struct A50_64f : Log1p<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = TakeReciprocal<5>(x);
    const auto r = ReducedInOnePart(a);
    return JoinOnePart(x, a, r, estrin(r, explog::log1p_A50));
  }
};

struct A53_64f : Log1p<Lum64f> {
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/minus_ln_64f_16_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = TakeReciprocal<5>(x);
    const auto e = RaisedExponent(a);
    const auto r = ReduceInTwoParts(a);
    const auto hi = fma(e, all(numbers::ln2_short<Lum64f>), permute2(load<Lum64f>(pairs), load(pairs + 8), a.j));
    const auto lo = fma(e, all(numbers::ln2_rest<Lum64f>), permute2(load(pairs + 16), load(pairs + 24), a.j));
    return {JoinPairs(x, hi, lo + r.tail, r.head, estrin(r.head, explog::log1p_A50)), a.refused};
  }
};

}  // namespace

LumStatus Log1p_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Log1p_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Log1p_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Log1p_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Log1p_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Log1p_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
