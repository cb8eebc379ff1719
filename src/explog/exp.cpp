// e^x. With x = n ln 2 + r, n a multiple of 1/N:  e^x = 2^floor(n) 2^(j/N) e^r,  0 <= r < ln(2)/N, N = 16 or 8.
// 2^(j/N) comes from a table, e^r from a polynomial, and scalef applies 2^floor(n), so that there is no integer work on
// exponents. The tiers differ in the parts of ln 2, the degree of the polynomial, and whether the table's tail takes part.
// Arguments beyond the threshold have a second path, which knows overflow, denormal results and underflow.
#include <cstdint>

#include "explog/exp_ends.h"
#include "explog/exp_reduction.h"
#include "explog/exp_routine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

template <class T> struct ExpConstants;
template <> struct ExpConstants<Lum32f> : ExpReduction<Lum32f> {
  static constexpr auto shifter = f32(0x49400000, 786432.0);  // 1.5 * 2^19: the last bit is worth 1/16
  static constexpr auto threshold = f32(0x42AEAC4F, 87.33654022216797);
  static constexpr auto head = table32({
#include "tables/generated/exp2_16_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/exp2_16_tail.inc"
  });
};
template <> struct ExpConstants<Lum64f> : ExpReduction<Lum64f> {
  // 1.5 * 2^49, the last bit worth 1/8. The low bits leave the index bits at zero and are subtracted out again.
  static constexpr auto shifter = f64(0x4308000000003FF0, 844424930134014.0);
  static constexpr auto threshold = f64(0x40861DA04CBAFE44, 707.7032713517042);
  static constexpr auto head = table64({
#include "tables/generated/exp2_8_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/exp2_8_tail.inc"
  });
};

template <class T> struct Reduced {
  Vec<T> n, r;           // x = n ln 2 + r
  Vec<UnsignedOf<T>> j;  // in the low bits: the index into the tables
  Mask<T> refused;       // lanes beyond the threshold; NaN is not among them, n carries it to the result
};

template <int ln2_parts, class T> LUM_INLINE Reduced<T> Reduce(Vec<T> x) {
  using C = ExpConstants<T>;
  const auto t = fma_floor(x, all(C::log2e), all(C::shifter));
  const auto n = t - all(C::shifter);  // exact
  auto r = fnma(n, all(C::ln2_hi), x);
  if constexpr (ln2_parts == 2) r = fnma(n, all(C::ln2_lo), r);
  return {n, r, bits(t), le(all(C::threshold), abs(x))};
}

template <class T> LUM_INLINE Vec<T> Head(const Reduced<T>& a) { return permute(load<T>(ExpConstants<T>::head), a.j); }
template <class T> LUM_INLINE Vec<T> Tail(const Reduced<T>& a) { return permute(load<T>(ExpConstants<T>::tail), a.j); }

// (e^r - 1 - r) / r^2 in binary32, |error| of e^r below 2^-27.
LUM_INLINE Vec<Lum32f> QuadraticPart(Vec<Lum32f> r) {
  return horner(r, f32(0x3EFFFA27, 0.4999553859233856), f32(0x3E2D77F1, 0.1694028526544571));
}

// (e^r - 1) / r in binary64, to the accuracy of A50 and A53.
LUM_INLINE Vec<Lum64f> LongPolynomial(Vec<Lum64f> r) {
  return horner(r, f64(0x3FF0000000000010, 1.0000000000000036), f64(0x3FDFFFFFFFFFC27C, 0.4999999999991258),
                f64(0x3FC555555581ECF0, 0.1666666667477794), f64(0x3FA5555535A28874, 0.04166666297648272),
                f64(0x3F81111D488F67BE, 0.008333424355374205), f64(0x3F56BC377AFAB2E0, 0.0013876478005087553),
                f64(0x3F2B28056EA3D8B9, 0.00020718637762912553));
}

// The scale factor of a vanishing result would be denormal.
template <class T> struct ExpKernel : Kernel<T> {
  static constexpr bool second_is_short = true;
  static constexpr bool hides_refused = true;
};

// The tiers whose lane routine computes in binary32.
struct Float : ExpKernel<Lum32f> {
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return ExpFloatRoutine(x, result); }
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    return ExpSecondPath(
        x, lanes, [](Vec<Lum32f> between) __attribute__((always_inline)) { return ExpFloatAtEnds(between); });
  }
};
// Those where it computes in binary64.
template <class T> struct ByDouble : ExpKernel<T> {
  static LumStatus LaneRoutine(T x, T& result) { return ExpDoubleRoutine(x, result); }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return ExpSecondPath(
        x, lanes, [](Vec<T> between) __attribute__((always_inline)) { return ExpAtEnds(between); });
  }
};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Reduce<1>(x);
    const auto p = horner(a.r, 1.0f, f32(0x3F82CC37, 1.0218571424484253));
    return {p * scalef_normal(Head(a), a.n), a.refused};
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Reduce<2>(x);
    const auto u = fma(a.r * a.r, QuadraticPart(a.r), a.r);
    const auto s = scalef_normal(Head(a), a.n);
    return {fma(u, s, s), a.refused};
  }
};

struct A24_32f : ByDouble<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = Reduce<2>(x);
    const auto u = fma(QuadraticPart(a.r), a.r * a.r, Tail(a) + a.r);
    const auto s = scalef_normal(Head(a), a.n);
    return {fma(u, s, s), a.refused};
  }
};

struct Double : ByDouble<Lum64f> {
  static constexpr int vectors = 4;
};

struct A26_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<1>(x);
    const auto p = horner(a.r, f64(0x3FEFFFFFE7109A30, 0.9999999535546689), f64(0x3FE000090EE70BF8, 0.5000043192925423),
                          f64(0x3FC550BF0B8C5804, 0.16652668060186226), f64(0x3FA646AE66C82C5D, 0.04350800518667406));
    const auto head = Head(a);
    return {scalef_normal(fma(p, head * a.r, head), a.n), a.refused};
  }
};

struct A50_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<2>(x);
    const auto head = Head(a);
    return {scalef_normal(fma(LongPolynomial(a.r), head * a.r, head), a.n), a.refused};
  }
};

struct A53_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = Reduce<2>(x);
    const auto head = Head(a);
    const auto u = fma(LongPolynomial(a.r), a.r, Tail(a));
    return {scalef_normal(fma(u, head, head), a.n), a.refused};
  }
};

}  // namespace

LumStatus Exp_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Exp_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Exp_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Exp_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Exp_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Exp_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
