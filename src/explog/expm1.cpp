// e^x - 1. With x = n ln 2 + r, n the multiple of 1/N next to x / ln 2, N = 32 or 16:  s = 2^floor(n) 2^(j/N),  q = e^r - 1,
// e^x - 1 = s q + (s - 1), which loses nothing next to zero, where s is 1 and the sum is q. 2^(j/N) comes from a table, q from
// a polynomial. In the high tiers s - 1, the product and the reduced argument are held in two parts. Large positive arguments
// go to a lane routine; large negative ones, -infinity included, give -1 in the vector path. The result takes the sign of x, so
// that -0 gives -0. In 32f A11 and A21 and in 64f A26 a NaN passes through.
#include <cstdint>

#include "explog/exp_reduction.h"
#include "explog/exp_routine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

// n has N = entries steps a unit.
template <class T, int entries> struct Grid;
template <> struct Grid<Lum32f, 32> {
  static constexpr auto shifter = f32(0x48C00000, 393216.0);  // 1.5 * 2^18: the last bit is worth 1/32
  static constexpr auto head = table32({
#include "tables/generated/exp2_32_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/exp2_32_tail.inc"
  });
};
template <> struct Grid<Lum32f, 16> {
  static constexpr auto shifter = f32(0x49400000, 786432.0);
  static constexpr auto head = table32({
#include "tables/generated/exp2_16_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/exp2_16_tail.inc"
  });
};
template <> struct Grid<Lum64f, 16> {
  // 1.5 * 2^48; the low bits leave the index bits at zero and are subtracted out again.
  static constexpr auto shifter = f64(0x42F8000000003FF0, 422212465067007.0);
  static constexpr auto head = table64({
#include "tables/generated/exp2_double_16_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/exp2_double_16_tail.inc"
  });
};

template <class T> struct Expm1Constants;
template <> struct Expm1Constants<Lum32f> : ExpReduction<Lum32f> {
  static constexpr uint32_t clamp = 0xBFFFFFFF;
  static constexpr auto threshold = f32(0x42AD496B, 86.64339447021484);
  static constexpr auto lowest_n = f32(0xC2800000, -64.0);
};
template <> struct Expm1Constants<Lum64f> : ExpReduction<Lum64f> {
  static constexpr uint64_t clamp = 0xBFFFFFFFFFFFFFFF;
  static constexpr auto threshold = f64(0x40861DA04CBAFE44, 707.7032713517042);
  static constexpr auto lowest_n = f64(0xC060000000000000, -128.0);
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
  const auto t = fma(x, all(C::log2e), shifter);
  const auto n = t - shifter;
  const auto r0 = fnma(n, all(C::ln2_hi), x);
  if constexpr (ln2_parts == 1) return {n, r0 & all(C::clamp), r0, bits(t)};
  const auto r = fnma(n, all(C::ln2_lo), r0);
  const auto lo = fnma(n, all(C::ln2_lo), r0 - r);
  return {n, r & all(C::clamp), lo & all(C::clamp), bits(t)};
}

template <class T, size_t entries> LUM_INLINE Vec<T> Lookup(const Table<T, entries>& table, Vec<UnsignedOf<T>> j) {
  if constexpr (entries == lanes_of<T>) return permute(load<T>(table), j);
  else return permute2(load<T>(table), load(table + lanes_of<T>), j);
}

// s q + (s - 1) with the sign of x.
template <class T> LUM_INLINE Vec<T> Join(Vec<T> x, Vec<T> s, Vec<T> q) { return or_sign(x, fma(s, q, s - all(T(1)))); }

template <class T> LUM_INLINE Mask<T> AboveThreshold(Vec<T> x) { return le(all(Expm1Constants<T>::threshold), x); }
template <class T> LUM_INLINE Mask<T> AboveThresholdOrNan(Vec<T> x) { return nlt(x, all(Expm1Constants<T>::threshold)); }

// s, kept from vanishing, so that s - 1 has a well-formed error.
template <class T> LUM_INLINE Vec<T> LowerBoundedScale(Vec<T> head, Vec<T> n) {
  return scalef(head, max(n, all(Expm1Constants<T>::lowest_n)));
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

struct A11_32f : Kernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Reduce<32, 1>(x);
    const auto q = fma(a.r * a.r, all(f32(0x3F000148, 0.5000195503234863)), a.r);
    return {Join(x, scalef(Lookup(Grid<Lum32f, 32>::head, a.j), a.n), q), AboveThreshold(x)};
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return LaneRoutineBy(ExpFloatRoutine, x, result); }
};

struct A21_32f : Kernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    using G = Grid<Lum32f, 32>;
    const auto a = Reduce<32, 2>(x);
    const auto p = horner(a.r, f32(0x3F0000F6, 0.5000146627426147), f32(0x3E2AABF3, 0.16667155921459198));
    const auto q = fma(a.r * a.r, p, Lookup(G::tail, a.j)) + a.r;
    return {Join(x, scalef(Lookup(G::head, a.j), a.n), q), AboveThreshold(x)};
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return LaneRoutineBy(ExpFloatRoutine, x, result); }
};

struct A24_32f : Kernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    using G = Grid<Lum32f, 16>;
    const auto a = Reduce<16, 2>(x);
    const auto p = horner(a.r, 0.5f, f32(0x3E2AAEC4, 0.16668230295181274), f32(0x3D2AAEC4, 0.041670575737953186));
    const auto s = LowerBoundedScale(Lookup(G::head, a.j), a.n);
    return {JoinCompensated(x, a, Lookup(G::tail, a.j), s, p), AboveThresholdOrNan(x)};
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return LaneRoutineBy(ExpDoubleRoutine<Lum32f>, x, result); }
};

struct Double : Kernel<Lum64f> {
  using G = Grid<Lum64f, 16>;
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return LaneRoutineBy(ExpDoubleRoutine<Lum64f>, x, result); }
};

struct A26_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<16, 1>(x);
    const auto p2 = horner(a.r, f64(0x3FDFFFFFFE5BC214, 0.49999999847116894), f64(0x3FC55555541D276C, 0.16666666609881575));
    const auto p4 = horner(a.r, f64(0x3FA555C2AABA6423, 0.04166992506106506), f64(0x3F811168888FAD60, 0.008333985011595046));
    const auto r2 = a.r * a.r;
    const auto q = fma(r2, fma(r2, p4, p2), a.r);
    return {Join(x, scalef(Lookup(G::head, a.j), a.n), q), AboveThreshold(x)};
  }
};

struct A50_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<16, 2>(x);
    const auto p2 = horner(a.r, f64(0x3FE00000000000A2, 0.500000000000018), f64(0x3FC5555555555656, 0.1666666666666738));
    const auto p4 = horner(a.r, f64(0x3FA5555554AD3D06, 0.04166666659022593), f64(0x3F81111110865214, 0.008333333317559734));
    const auto p6 = horner(a.r, f64(0x3F56C1C38E164A2F, 0.001388970348078399), f64(0x3F2A020410303D8A, 0.00019842433548021245));
    const auto r2 = a.r * a.r;
    const auto p = fma(r2, fma(r2, p6, p4), p2);
    const auto q = fma(r2, p, Lookup(G::tail, a.j)) + a.r;
    return {Join(x, LowerBoundedScale(Lookup(G::head, a.j), a.n), q), AboveThresholdOrNan(x)};
  }
};

struct A53_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<16, 2>(x);
    const auto p3 = horner(a.r, f64(0x3FC55555555555F9, 0.1666666666666712), f64(0x3FA555555555560A, 0.04166666666666792));
    const auto p5 = horner(a.r, f64(0x3F81111110A65711, 0.008333333321199928), f64(0x3F56C16C16304601, 0.0013888888868262008));
    const auto p7 =
        horner(a.r, f64(0x3F2A01F8F4B129C3, 0.00019842304240775933), f64(0x3EFA01F8F4BE0BB2, 2.4802880303830418e-05));
    const auto r2 = a.r * a.r;
    const auto p = fma(fma(r2, fma(r2, p7, p5), p3), a.r, all(0.5));
    const auto s = LowerBoundedScale(Lookup(G::head, a.j), a.n);
    return {JoinCompensated(x, a, Lookup(G::tail, a.j), s, p), AboveThresholdOrNan(x)};
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
