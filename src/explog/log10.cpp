// The decimal logarithm. With x = 2^e m and c a reciprocal of m of a few bits:  log10 x = e log10 2 - log10 c + log10(1 + r),
// r = c m - 1. -log10 c comes from a table in registers, log10(1 + r) from a polynomial, whose first coefficient is 1/ln 10.
// 32f A11 and A21 have no c but a polynomial for each of sixteen segments of m. In the two high tiers e log10 2 - log10 c and
// 1/ln 10 are held in two parts and the rounding error of the leading sum is carried along.
#include "explog/logarithm_reduction.h"
#include "explog/logarithm_routine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

struct Float : Kernel<Lum32f> {
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    return LogarithmOfSpecial(x, lanes);
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return Log10Routine(x, result); }
};
struct Double : Kernel<Lum64f> {
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<Lum64f> SecondPath(Vec<Lum64f> x, const Lanes<Lum64f>& lanes) {
    return LogarithmOfSpecial(x, lanes);
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return Log10Routine(x, result); }
};

constexpr auto log10_of_2_float = f32(0x3E9A209B, 0.3010300099849701);

struct A11_32f : Float {
  static constexpr auto columns = by_columns<3>(table32({
#include "tables/generated/log10_segments_3.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return {SegmentLogarithm<3>(x, columns, log10_of_2_float), ZeroInfiniteOrNegative(x)};
  }
};

struct A21_32f : Float {
  static constexpr auto columns = by_columns<4>(table32({
#include "tables/generated/log10_segments_4.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return {SegmentLogarithm<4>(x, columns, log10_of_2_float), ZeroInfiniteOrNegative(x)};
  }
};

// b + r inverse_ln10 + lo + r tail, where |b| is 0 or larger than the product.
template <class T> LUM_INLINE Vec<T> Compensated(Vec<T> b, Vec<T> lo, Vec<T> r, T inverse_ln10, Vec<T> tail) {
  const auto s = fma(r, all(inverse_ln10), b);
  const auto error = fms(r, all(inverse_ln10), s - b);
  return s + fma(r, tail, error + lo);
}

struct A24_32f : Float {
  // hi, then lo.
  static constexpr auto half_inverse = by_columns<2>(table32({
#include "tables/generated/log10_float_32_half_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    constexpr auto shifter = 0x1.8p23f / 32;  // the last bit is worth 1/32
    const auto [m, e] = parts<0xA>(x);
    const auto t = shifted_rcp14<5, 2>(m);
    const auto c = t - all(shifter);      // in [1, 2]
    const auto k = e - getexp_normal(c);  // c = 2 is 2 times row 0
    const auto r = fms(c, m, all(1.0f));
    const auto j = bits(t);
    const auto hi = permute2(load<Lum32f>(half_inverse), load(half_inverse + 16), j);
    const auto lo = permute2(load(half_inverse + 32), load(half_inverse + 48), j);
    const auto tail = horner(r, f32(0xB238DD40, -1.0760516033769818e-08), f32(0xBE5E5BD9, -0.21714724600315094),
                             f32(0x3E1442D6, 0.14478620886802673), f32(0xBDDE69DB, -0.10860034078359604));
    return {Compensated(fma(k, all(f32(0x3E9A2000, 0.301025390625)), hi),
                        fma(k, all(f32(0x369A84FC, 4.605039066518657e-06)), lo), r, f32(0x3EDE5BD9, 0.4342944920063019), tail),
            ZeroInfiniteOrNegative(x)};
  }
};

constexpr auto log10_of_2_double = f64(0x3FD34413509F79FF, 0.3010299956639812);
constexpr auto rows = table64({
#include "tables/generated/log10_16.inc"
});
LUM_INLINE Vec<Lum64f> Row(const ReciprocalReduction& a) { return permute2(load<Lum64f>(rows), load(rows + 8), a.j); }

// (log10(1 + r) - r / ln 10) / r^2 to the accuracy of A50 and A53.
LUM_INLINE Vec<Lum64f> LongTail(Vec<Lum64f> r) {
  const auto p2 = horner(r, f64(0xBFCBCB7B1526E4DB, -0.2171472409516245), f64(0x3FC287A7636F428C, 0.1447648273010781));
  const auto p4 = horner(r, f64(0xBFBBCB7B153C06A3, -0.10857362049503165), f64(0x3FB63C62777F27D9, 0.08685889642143198));
  const auto p6 = horner(r, f64(0xBFB287A63464DC80, -0.07238234309339653), f64(0x3FAFC3F6F38B58A2, 0.06204196665719165));
  const auto p8 = horner(r, f64(0xBFABD80D96029814, -0.054382729112418954), f64(0x3FA8C2D828480370, 0.04836154453005903));
  const auto r2 = r * r;
  return fma(fma(p8, r2, p6), r2 * r2, fma(p4, r2, p2));
}
constexpr auto inverse_ln10 = f64(0x3FDBCB7B1526E50E, 0.4342944819032518);

LUM_INLINE Lanes<Lum64f> OnePart(Vec<Lum64f> x, const ReciprocalReduction& a, Vec<Lum64f> tail, Lum64f first_coefficient) {
  const auto p = fma(fma(tail, a.r, all(first_coefficient)), a.r, Row(a));
  return {fma(a.e, all(log10_of_2_double), p), ZeroInfiniteOrNegative(x)};
}

struct A26_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceByReciprocal<5>(x);
    const auto p2 = horner(a.r, f64(0xBFCBCB7AE66A7F64, -0.21714721918851432), f64(0x3FC287A6FB3F50D4, 0.1447647787850942));
    const auto p4 = horner(a.r, f64(0xBFBBD14C6BF32947, -0.10866239200109816), f64(0x3FB6435E178FB651, 0.08696544718960665));
    return OnePart(x, a, fma(p4, a.r * a.r, p2), f64(0x3FDBCB7B1527E690, 0.4342944819069112));
  }
};

struct A50_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceByReciprocal<5>(x);
    return OnePart(x, a, LongTail(a.r), inverse_ln10);
  }
};

struct A53_64f : Double {
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/log10_16_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceByReciprocal<5>(x);
    const auto hi = permute2(load<Lum64f>(pairs), load(pairs + 8), a.j);
    const auto lo = permute2(load(pairs + 16), load(pairs + 24), a.j);
    const auto tail = fma(LongTail(a.r), a.r, all(f64(0x3C69A5FDAAF11825, 1.112322122975008e-17)));
    return {Compensated(fma(a.e, all(f64(0x3FD34413509F0000, 0.30102999566224753)), hi),  // exact
                        fma(a.e, all(f64(0x3D7E7FBCC47C4ACD, 1.7336659603752853e-12)), lo), a.r, inverse_ln10, tail),
            ZeroInfiniteOrNegative(x)};
  }
};

}  // namespace

LumStatus Log10_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Log10_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Log10_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Log10_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Log10_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Log10_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
