// ln(1 + x). The sum is held as s + c exactly, and c, brought to the scale of s, is added to the reduced argument of a
// logarithm of s; so next to zero, where s is 1 and c is x, the result is as accurate as x. In 32f A11 and A21, s = 2^k m with
// m in [2/3, 4/3), and a polynomial in m - 1 is all. Elsewhere s = 2^e m and w is a reciprocal of m of a few bits:  ln(1 + x) =
// e ln 2 - ln w + ln(1 + r), 1 + r = w (m + c). In the high tiers the first sum and r have two parts. The result takes the sign
// of x, so that -0 gives -0.
#include <cstdint>

#include "explog/logarithm_reduction.h"
#include "explog/logarithm_routine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

// Of the larger and the smaller of 1 and x; a NaN is both, which max and min need it as their second operand for.
template <class T> struct OnePlus { Vec<T> s, c; };
template <class T> LUM_INLINE OnePlus<T> AddOne(Vec<T> x) {
  const auto one = all(T(1));
  const auto high = max(one, x);
  const auto low = min(one, x);
  const auto s = high + low;
  return {s, low - (s - high)};
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
  const auto u = bits(s) - bits(all(f32(0x3F2AAAAB, 0.6666666865348816)));
  const auto count = shift_right_arithmetic<23>(as_signed(u));
  const auto exponent = as_unsigned(shift_left<23>(count));  // k in the place of the exponent
  const auto m = as_float(bits(s) - exponent);
  const auto scale = as_float(bits(one) - exponent);  // 2^-k
  // The sum wraps round for s infinite, NaN and from 2^127 on; a negative s stays negative or comes out below the bound.
  const auto wrapped = as_signed(bits(s) + bits(all(f32(0x01000000, 0x1p-125))));
  const auto refused = lt(wrapped, as_signed(bits(all(f32(0x01800000, 0x1p-124)))));
  return {fma(c, scale, m - one), to_float(count), mask_cast<Lum32f>(refused)};
}

// k ln 2 + r + r^2 p.
LUM_INLINE Lanes<Lum32f> JoinSplit(Vec<Lum32f> x, const SplitReduction& a, Vec<Lum32f> p) {
  const auto q = fma(p, a.r * a.r, a.r);
  return {or_sign(x, fma(a.k, all(f32(0x3F317218, 0.6931471824645996)), q)), a.refused};
}

struct A11_32f : Log1p<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Split(x);
    return JoinSplit(x, a,
                     horner(a.r, -0.5f, f32(0x3EAA7160, 0.33289623260498047), f32(0xBE88E8FE, -0.2674025893211365),
                            f32(0x3E612933, 0.2198837250471115)));
  }
};

struct A21_32f : Log1p<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Split(x);
    return JoinSplit(
        x, a,
        horner(a.r, -0.5f, f32(0x3EAAAA94, 0.3333326578140259), f32(0xBE80058E, -0.2500423789024353),
               f32(0x3E4CE190, 0.20007920265197754), f32(0xBE28AD37, -0.1647232621908188), f32(0x3E0FCB12, 0.14042308926582336),
               f32(0xBE1AD9E3, -0.15122179687023163), f32(0x3E0D84ED, 0.13820238411426544)));
  }
};

// s = 2^e m, w next to 1/m with the given fraction bits.
template <class T> struct Reciprocal {
  Vec<T> e, m, w;
  Vec<T> c;              // at the scale of m
  Vec<UnsignedOf<T>> j;  // in the low bits: the row of w in a table of 2^(fraction_bits - 1) rows
};
template <int fraction_bits, class T> LUM_INLINE Reciprocal<T> TakeReciprocal(Vec<T> x) {
  // The last bit is worth that of w, so that the sum rounds to nearest and has the row in its low bits.
  constexpr T shifter = (sizeof(T) == 4 ? T(0x1.8p23) : T(0x1.8p52)) / (1 << fraction_bits);
  const auto [s, c] = AddOne(x);
  const auto [m, e] = parts<0x8>(s);
  const auto t = shifted_rcp14<fraction_bits, 0>(m);
  return {e, m, t - all(shifter), scalef(c, negate(e)), bits(t)};
}

// The reduced argument r and what its sum has lost.
template <class T> LUM_INLINE Sum<T> ReduceInTwoParts(const Reciprocal<T>& a) {
  const auto r0 = fms(a.w, a.m, all(T(1)));
  const auto c = a.c * a.w;
  const auto r = r0 + c;
  return {r, c - (r - r0)};
}

// hi + lo + ln(1 + r) with ln(1 + r) = r + r^2 p. Of an s that is refused, hi is infinite or r NaN, so d is NaN.
template <class T> LUM_INLINE Lanes<T> JoinPairs(Vec<T> x, Vec<T> hi, Vec<T> lo, Vec<T> r, Vec<T> p) {
  const auto s = hi + r;
  const auto d = r - (s - hi);
  return {or_sign(x, s + (fma(r * r, p, lo) + d)), unord(d, d)};
}

struct A24_32f : Log1p<Lum32f> {
  // hi, then lo.
  static constexpr auto pairs = by_columns<2>(table32({
#include "tables/generated/ln_float_32_half_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = TakeReciprocal<6>(x);
    const auto k = (a.e - all(1.0f)) - getexp_normal(a.w);
    const auto r = ReduceInTwoParts(a);
    const auto hi = fma(k, all(f32(0x3F317200, 0.693145751953125)), permute2(load<Lum32f>(pairs), load(pairs + 16), a.j));
    const auto lo = fma(k, all(f32(0x35BFBE8E, 1.428606765330187e-06)), permute2(load(pairs + 32), load(pairs + 48), a.j));
    const auto p = horner(r.sum, -0.5f, f32(0x3EAAB11E, 0.3333825469017029), f32(0xBE800810, -0.2500615119934082));
    return JoinPairs(x, hi, lo + r.error, r.sum, p);
  }
};

// e, raised where w stands for a row of twice its size.
LUM_INLINE Vec<Lum64f> RaisedExponent(const Reciprocal<Lum64f>& a) { return add(lt(a.w, all(0.75)), a.e, all(1.0)); }

constexpr auto rows = table64({
#include "tables/generated/ln_16.inc"
});
LUM_INLINE Vec<Lum64f> ReducedInOnePart(const Reciprocal<Lum64f>& a) { return fma(a.w, a.c, fms(a.w, a.m, all(1.0))); }
LUM_INLINE Lanes<Lum64f> JoinOnePart(Vec<Lum64f> x, const Reciprocal<Lum64f>& a, Vec<Lum64f> r, Vec<Lum64f> p) {
  const auto q = fma(p, r * r, r);
  const auto b = fma(RaisedExponent(a), all(f64(0x3FE62E42FEFA39EF, 0.6931471805599453)),
                     permute2(load<Lum64f>(rows), load(rows + 8), a.j));
  return {or_sign(x, b + q), unord(q, q)};
}

// (ln(1 + r) - r) / r^2 to the accuracy of A50 and A53.
LUM_INLINE Vec<Lum64f> LongPolynomial(Vec<Lum64f> r) {
  const auto p2 = horner(r, f64(0xBFDFFFFFFFFFFFC6, -0.4999999999999968), f64(0x3FD5555555555466, 0.33333333333332005));
  const auto p4 = horner(r, f64(0xBFD00000000C05BD, -0.2500000000437373), f64(0x3FC9999999CC9F5C, 0.20000000009280938));
  const auto p6 = horner(r, f64(0xBFC55553FB28DB06, -0.16666650546695666), f64(0x3FC249229CEE81EF, 0.14285690939597326));
  const auto p8 = horner(r, f64(0xBFC007357E93AF62, -0.125220000081181), f64(0x3FBC81CD309D7C70, 0.11135561406034511));
  const auto r2 = r * r;
  return fma(fma(p8, r2, p6), r2 * r2, fma(p4, r2, p2));
}

struct A26_64f : Log1p<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = TakeReciprocal<5>(x);
    const auto r = ReducedInOnePart(a);
    const auto p2 = horner(r, f64(0xBFDFFFFFCA9C9FAF, -0.4999999502783749), f64(0x3FD55554DE51032A, 0.33333322249022734));
    const auto p4 = horner(r, f64(0xBFD00355FDA0C953, -0.2502036072575226), f64(0x3FC9A19BA80F61AB, 0.20024438577708045));
    return JoinOnePart(x, a, r, fma(p4, r * r, p2));
  }
};

struct A50_64f : Log1p<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = TakeReciprocal<5>(x);
    const auto r = ReducedInOnePart(a);
    return JoinOnePart(x, a, r, LongPolynomial(r));
  }
};

struct A53_64f : Log1p<Lum64f> {
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/ln_16_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = TakeReciprocal<5>(x);
    const auto e = RaisedExponent(a);
    const auto r = ReduceInTwoParts(a);
    const auto hi =
        fma(e, all(f64(0x3FE62E42FEFA0000, 0.6931471805582987)), permute2(load<Lum64f>(pairs), load(pairs + 8), a.j));
    const auto lo =
        fma(e, all(f64(0x3D7CF79ABC9E0000, 1.6465949582866463e-12)), permute2(load(pairs + 16), load(pairs + 24), a.j));
    return JoinPairs(x, hi, lo + r.error, r.sum, LongPolynomial(r.sum));
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
