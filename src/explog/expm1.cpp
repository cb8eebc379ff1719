// e^x - 1. With x = n ln 2 + r, n the multiple of 1/N next to x / ln 2, N = 32 or 16:  s = 2^floor(n) 2^(j/N),  q = e^r - 1,
// e^x - 1 = s q + (s - 1), which loses nothing next to zero, where s is 1 and the sum is q. 2^(j/N) comes from a table, q from
// a polynomial. In the high tiers s - 1, the product and the reduced argument are held in two parts. Large positive arguments
// go to a lane routine; large negative ones, -infinity included, give -1 in the vector path. The result takes the sign of x, so
// that -0 gives -0. In 32f A11 and A21 and in 64f A26 a NaN passes through.
#include <cstdint>

#include "explog/exp_ends.h"
#include "explog/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace explog;

// n has N = entries steps a unit.
template <class T, int entries> struct Grid;
template <> struct Grid<Lum32f, 32> {
  static constexpr auto shifter = rounding_shifter<Lum32f>(5);
  static constexpr auto head = table32({
#include "tables/generated/exp2_32f_32_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/exp2_32f_32_tail.inc"
  });
};
template <> struct Grid<Lum32f, 16> {
  static constexpr auto shifter = rounding_shifter<Lum32f>(4);
  static constexpr auto head = table32({
#include "tables/generated/exp2_32f_16_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/exp2_32f_16_tail.inc"
  });
};
template <> struct Grid<Lum64f, 16> {
  // The low bits leave the index bits at zero and are subtracted out again.
  static constexpr auto shifter = rounding_shifter<Lum64f>(4) + 0x3FF0p-4;
  static constexpr auto head = table64({
#include "tables/generated/exp2_64f_16_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/exp2_64f_16_tail.inc"
  });
};

template <class T> struct Expm1Constants;
template <> struct Expm1Constants<Lum32f> {
  static constexpr uint32_t clamp = 0xBFFFFFFF;
  static constexpr auto threshold = f32(0x42AD496B, 86.64339447021484);
  static constexpr auto lowest_n = -64.0f;
};
template <> struct Expm1Constants<Lum64f> {
  static constexpr uint64_t clamp = 0xBFFFFFFFFFFFFFFF;
  static constexpr auto threshold = f64(0x40861DA04CBAFE44, 707.7032713517042);
  static constexpr auto lowest_n = -128.0;
};

// x = n ln 2 + r + lo. The clamp changes no reduced argument; that of a large negative x, NaN for -infinity, it makes a finite
// number for the product with s = 0.
template <class T> struct Reduced {
  Vec<T> n, r, lo;
  Vec<UnsignedOf<T>> j;  // in the low bits: the index into the tables
};
template <int entries, int ln2_parts, class T> LUM_INLINE Reduced<T> Reduce(Vec<T> x) {
  using C = Expm1Constants<T>;
  const auto shifter = all(Grid<T, entries>::shifter);
  const auto t = fma(x, all(numbers::log2_e<T>), shifter);
  const auto n = t - shifter;
  const auto r0 = fnma(n, all(numbers::ln2<T>), x);
  if constexpr (ln2_parts == 1) return {n, r0 & all(C::clamp), r0, bits(t)};
  const auto r = fnma(n, all(numbers::ln2_tail<T>), r0);
  const auto lo = fnma(n, all(numbers::ln2_tail<T>), r0 - r);
  return {n, r & all(C::clamp), lo & all(C::clamp), bits(t)};
}

template <class T, size_t entries> LUM_INLINE Vec<T> Lookup(const Table<T, entries>& table, Vec<UnsignedOf<T>> j) {
  if constexpr (entries == lanes_of<T>) return permute(load<T>(table), j);
  else return permute2(load<T>(table), load(table + lanes_of<T>), j);
}

// s q + (s - 1) with the sign of x.
template <class T> LUM_INLINE Vec<T> Join(Vec<T> x, Vec<T> s, Vec<T> q) { return or_sign(x, fma(s, q, s - all(T(1)))); }

// Large positive arguments and NaN.
template <class T> LUM_INLINE Mask<T> Refused(Vec<T> x) { return nlt(x, all(Expm1Constants<T>::threshold)); }
// s, kept from vanishing, so that s - 1 has a well-formed error.
template <class T> LUM_INLINE Vec<T> LowerBoundedScale(Vec<T> head, Vec<T> n) {
  return scalef_normal(head, max(n, all(Expm1Constants<T>::lowest_n)));
}
// The low and middle tags need no bound and no refusal of NaN where any power of 2 takes one instruction.
template <class T> LUM_INLINE Lanes<T> JoinScaled(Vec<T> x, Vec<T> head, Vec<T> n, Vec<T> q) {
  if constexpr (estimates_take_all) return {Join(x, scalef(head, n), q), le(all(Expm1Constants<T>::threshold), x)};
  else return {Join(x, LowerBoundedScale(head, n), q), Refused(x)};
}

// (s + s tail)(e^(r + lo)) - 1 in two parts, added at last, with e^r = 1 + r + r^2 p.
template <class T> LUM_INLINE Vec<T> JoinCompensated(Vec<T> x, const Reduced<T>& a, Vec<T> tail, Vec<T> s, Vec<T> p) {
  const auto one = all(T(1));
  const auto minus_one = all(T(-1));
  const auto w = fma(a.r * a.r, p, fma(a.r, tail, a.lo + tail));
  const auto c = s - one;
  const auto below = lt(s, one);
  const auto e = (select(below, minus_one, s) - c) + select(below, s, minus_one);  // s - 1 = c + e exactly
  const auto h = fma(s, a.r, c);
  const auto error = fms(s, a.r, h - c);
  return or_sign(x, (fma(s, w, e) + error) + h);
}

// Refused arguments are above the threshold or NaN, where the 1 is below half a unit in the last place of e^x.
template <class T, class Exp> LumStatus LaneRoutineBy(Exp exp, T x, T& result) {
  if (x < 0) {
    result = -1;
    return lumStsOk;
  }
  return exp(x, result);
}
// The second path of the exponential; other lanes hold 0, as large negative numbers are no concern of it. Nor is a NaN, so that
// it does not take the steps of numbers next to the overflow.
template <class T, class AtEnds> LUM_INLINE Finished<T> SecondPathBy(Vec<T> x, const Lanes<T>& lanes, AtEnds at_ends) {
  const auto is_nan = lanes.refused & unord(x, x), refused = lanes.refused & ~is_nan;
  auto result = ExpSecondPath(select(refused, x, all(T(0))), Lanes<T>{lanes.value, refused}, at_ends);
  result.value = select(is_nan, x + x, result.value);
  return result;
}

template <class T> struct Expm1Kernel : Kernel<T> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static constexpr bool second_is_short = vectors_fit_registers && !packs_lanes;
};

// The tiers whose lane routine computes in binary32.
struct Float : Expm1Kernel<Lum32f> {
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return LaneRoutineBy(ExpFloatRoutine, x, result); }
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    return SecondPathBy(
        x, lanes, [](Vec<Lum32f> between) __attribute__((always_inline)) { return ExpFloatAtEnds(between); });
  }
};
// The tiers whose lane routine computes in binary64.
template <class T> struct ByDouble : Expm1Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) { return LaneRoutineBy(ExpDoubleRoutine<T>, x, result); }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return SecondPathBy(
        x, lanes, [](Vec<T> between) __attribute__((always_inline)) { return ExpAtEnds(between); });
  }
};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Reduce<32, 1>(x);
    const auto q = fma(a.r * a.r, horner(a.r, explog::expm1_A11), a.r);
    return JoinScaled(x, Lookup(Grid<Lum32f, 32>::head, a.j), a.n, q);
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    using G = Grid<Lum32f, 32>;
    const auto a = Reduce<32, 2>(x);
    const auto p = horner(a.r, explog::expm1_A21);
    const auto q = fma(a.r * a.r, p, Lookup(G::tail, a.j)) + a.r;
    return JoinScaled(x, Lookup(G::head, a.j), a.n, q);
  }
};

struct A24_32f : ByDouble<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    using G = Grid<Lum32f, 16>;
    const auto a = Reduce<16, 2>(x);
    const auto p = horner(a.r, explog::expm1_A24);
    const auto s = LowerBoundedScale(Lookup(G::head, a.j), a.n);
    return {JoinCompensated(x, a, Lookup(G::tail, a.j), s, p), Refused(x)};
  }
};

struct Double : ByDouble<Lum64f> {
  using G = Grid<Lum64f, 16>;
};

struct A26_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<16, 1>(x);
    const auto r2 = a.r * a.r;
    const auto q = fma(r2, horner_of_pairs(a.r, r2, explog::expm1_A26), a.r);
    return JoinScaled(x, Lookup(G::head, a.j), a.n, q);
  }
};

struct A50_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<16, 2>(x);
    const auto p2 = horner(a.r, part<0, 1>(explog::expm1_A50));
    const auto p4 = horner(a.r, part<2, 3>(explog::expm1_A50));
    const auto p6 = horner(a.r, part<4, 5>(explog::expm1_A50));
    const auto r2 = a.r * a.r;
    const auto p = fma(r2, fma(r2, p6, p4), p2);
    const auto q = fma(r2, p, Lookup(G::tail, a.j)) + a.r;
    return {Join(x, LowerBoundedScale(Lookup(G::head, a.j), a.n), q), Refused(x)};
  }
};

struct A53_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<16, 2>(x);
    const auto p1 = horner_of_pairs(a.r, a.r * a.r, part<1, 6>(explog::expm1_A53));
    const auto p = fma(p1, a.r, all(explog::expm1_A53.c[0]));
    const auto s = LowerBoundedScale(Lookup(G::head, a.j), a.n);
    return {JoinCompensated(x, a, Lookup(G::tail, a.j), s, p), Refused(x)};
  }
};

}  // namespace

LumStatus Expm1_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Expm1_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Expm1_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Expm1_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Expm1_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Expm1_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
