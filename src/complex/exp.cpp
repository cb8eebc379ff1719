// e^z = e^x (cos y + i sin y), z = x + iy. The exponential and the circular functions are those of the real kernels, cut to
// what the tag needs; the tiers of 32fc take sine and cosine in binary64, that their product with the exponential is rounded
// once. Far arguments and those whose exponential leaves the range are left to the second path and to the scalar core.
#include "circular/half_turns.h"
#include "circular/polynomials.h"
#include "circular/sine_cosine.h"
#include "circular/sixteenths.h"
#include "complex/exp_ends.h"
#include "complex/pairs/pair.h"
#include "complex/polynomials.h"
#include "explog/polynomials.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

struct SineCosine {
  Vec<Lum64f> sine, cosine;
};

// sin r of |r| <= pi/2, for binary32 results.
LUM_INLINE Vec<Lum64f> SineOf(Vec<Lum64f> r) { return circular::OddSine(r, circular::sin_A24); }

// Sine and cosine of a - n pi; the cosine by way of pi/2 - |r|.
LUM_INLINE SineCosine SineCosineOf(Vec<Lum64f> a, Vec<Lum64f> n) {
  const auto r = circular::TakeHalfTurnsExactly(a, n);
  const auto to_quarter = r - or_sign(r, all(numbers::pi<Lum64f> / 2));
  return {SineOf(r), negate(xor_sign(r, SineOf(to_quarter)))};
}

// e^x of binary32 numbers in binary64, |error| below 2^-27: steps of 1/1024 in the exponent of 2, and (6 + 6r + 3r^2 + r^3)
// / 6.
struct DoubleExponential {
  static constexpr auto limit = f32(0x44311958, 708.39599609375);
  struct Values {
    Vec<Lum64f> low, high;
  };

  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> x) {
    static constexpr auto table = table64({
#include "tables/generated/exp2_sixth_64f_1024.inc"
    });
    constexpr auto shifter = rounding_shifter<Lum64f>();
    const auto t = fma(x, all(1024 * numbers::log2_e<Lum64f>), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fnma(n, all(numbers::ln2_1024th_parts<Lum64f>[1]), fnma(n, all(numbers::ln2_1024th_parts<Lum64f>[0]), x));
    constexpr auto& c = exp_A24.c;
    const auto p = fma(fma(r + all(c[2]), r, all(c[1])), r, all(c[0]));
    const auto j = bits(t) & all(uint64_t{1023});
    const auto exponent = shift_left<42>(bits(t) ^ j);
    return as_float(bits(gather<Lum64f>(table, j) * p) + exponent);
  }
  static LUM_INLINE Values Of(Vec<Lum32f> x) { return {Half(widen_low(x)), Half(widen_high(x))}; }
};

// e^x in binary32 with steps of 1/128 in the exponent of 2, |error| below 2^-22.
struct SingleExponential {
  static constexpr auto limit = f32(0x42AEAC50, 87.33654785156250);
  using Values = DoubleExponential::Values;

  static LUM_INLINE Values Of(Vec<Lum32f> x) {
    static constexpr auto table = table32({
#include "tables/generated/exp2_32f_128_pairs.inc"
    });
    constexpr auto shifter = rounding_shifter<Lum32f>();
    const auto t = fma(x, all(128 * numbers::log2_e<Lum32f>), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fma(n, all(-numbers::ln2_128th_parts<Lum32f>[1]), fnma(n, all(numbers::ln2_128th_parts<Lum32f>[0]), x));
    const auto p = fma(r * r, all(0.5f), r);
    const auto j = shift_left<1>(bits(t) & all(127u));
    const auto head = gather<Lum32f>(table, j), tail = gather<Lum32f>(table + 1, j);
    const auto power = as_float(shift_left<16>(bits(t) + all(0x3F80u)) & all(0x7F800000u));
    const auto e = (head + fma(head, p, tail)) * power;
    return {widen_low(e), widen_high(e)};
  }
};

template <class E> struct ExpKernel : Kernel<E> {
  static constexpr int vectors = 1;
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_is_shared = true;
  static LUM_INLINE Finished<E> SecondPath(Packed<E> packed, const Lanes<E>& lanes) {
    return ReportingSecondPath<ExpEnds>(packed, lanes, lanes.refused);
  }
  static LumStatus LaneRoutine(const E& z, E& result) { return ReportingCoreOnLane<CoreExp>(z, result); }
};

template <class Exponential> struct Single : ExpKernel<Lum32fc> {
  static constexpr bool hides_refused = true;
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> z) {
    const auto [x, y] = split(z);
    const auto a = abs(y);
    const auto [n, shifted] = circular::NearestHalfTurns(a);
    const auto e = Exponential::Of(x);
    const auto low = SineCosineOf(widen_low(a), widen_low(n)), high = SineCosineOf(widen_high(a), widen_high(n));
    const auto parity = circular::ParitySign(shifted);
    const ComplexVec<Lum32f> result{narrow(e.low * low.cosine, e.high * high.cosine) ^ parity,
                                    narrow(e.low * low.sine, e.high * high.sine) ^ (parity ^ sign_of(y))};
    return {join(result), nlt(abs(x), all(Exponential::limit)) | nle(a, all(10000.0f))};
  }
};
struct A11_32fc : Single<SingleExponential> {};
struct A24_32fc : Single<DoubleExponential> {};

// Steps of 1/16 in the exponent of 2, sine and cosine by sixteenths of a half turn.
struct A26_64fc : ExpKernel<Lum64fc> {
  static LUM_INLINE Vec<Lum64f> ExponentialOf(Vec<Lum64f> x);
  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> z) {
    const auto [x, y] = split(z);
    const auto e = ExponentialOf(x);
    const auto a = abs(y);
    const auto r = circular::TakeSixteenths(a);
    const auto angle = circular::AngleOf(r.shifted);
    const ComplexVec<Lum64f> result{e * (circular::CosineOf(angle, r) ^ HalfTurnSign(r)),
                                    e * (circular::SineOf(angle, r) ^ HalfTurnSign(r, y))};
    return {join(result), nle(a, all(0x1p24)) | nlt(e, all(infinity))};
  }
};

LUM_INLINE Vec<Lum64f> A26_64fc::ExponentialOf(Vec<Lum64f> x) {
  static constexpr auto heads = table64({
#include "tables/generated/exp2_64f_16_head.inc"
  });
  static constexpr auto tails = table64({
#include "tables/generated/exp2_64f_16_tail.inc"
  });
  // The low bits leave the index at zero and are subtracted out again.
  constexpr auto shifter = rounding_shifter<Lum64f>(4) + 0x3FF0p-4;
  const auto t = fma<rz>(x, all(numbers::log2_e<Lum64f>), all(shifter));
  const auto n = t - all(shifter);
  const auto unmasked = fnma(n, all(numbers::ln2_tail<Lum64f>), fnma(n, all(numbers::ln2<Lum64f>), x));
  // Leaves any remainder below 2 as it is, and keeps those of refused lanes small.
  const auto r = unmasked & all(uint64_t{0xBFFFFFFFFFFFFFFF});
  const auto q = r * r;
  const auto c12 = horner(r, part<0, 1>(exp_A26)), c34 = horner(r, part<2, 3>(exp_A26)), c56 = horner(r, part<4, 5>(exp_A26));
  const auto p = fma(fma(fma(c56, q, c34), q, c12), r, circular::Entry16(tails, bits(t)));
  const auto head = circular::Entry16(heads, bits(t));
  return scalef(fma(p, head, head), n);
}

// Steps of 1/64 in the exponent of 2 and 1/32 of a half turn; the exponential of the remainder, and what the table and the
// circular functions lack, are joined to the heads before the one rounding of each product.
struct A53_64fc : ExpKernel<Lum64fc> {
  static constexpr Lum64f fill = 0.5;

  struct Exponential {
    Vec<Lum64f> power;   // 2^(n/64) rounded
    Vec<Lum64f> excess;  // e^x = power (1 + excess)
  };
  static LUM_INLINE Exponential ExponentialOf(Vec<Lum64f> x) {
    static constexpr auto table = table64({
#include "tables/generated/exp2_64f_64_pairs.inc"
    });
    constexpr auto shifter = rounding_shifter<Lum64f>();
    const auto t = fma(x, all(64 * numbers::log2_e<Lum64f>), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fnma(n, all(numbers::ln2_short_tail<Lum64f> / 64), fnma(n, all(numbers::ln2_short<Lum64f> / 64), x));
    const auto q = horner(r, explog::exp_routine_64f);
    const auto j = shift_left<1>(bits(t) & all(uint64_t{63}));
    const auto exponent = shift_left<46>(and_not(all(uint64_t{63}), bits(t)));
    return {as_float(bits(gather<Lum64f>(table, j)) + exponent), fma(r * r, q, r) + gather<Lum64f>(table + 1, j)};
  }

  struct Turned {
    HeadTail sine, cosine;
  };
  static LUM_INLINE Turned SineCosineOf(Vec<Lum64f> y) {
    static constexpr auto table = table64({
#include "tables/generated/sine_cosine_64f_64_pairs.inc"
    });
    constexpr auto shifter = rounding_shifter<Lum64f>();
    const auto t = fma(y, all(32 * numbers::inverse_pi<Lum64f>), all(shifter));
    const auto n = t - all(shifter);
    constexpr auto& parts = numbers::thirty_second_pi_parts<Lum64f>;
    const auto part2 = all(parts[1]), part3 = all(parts[2]);
    const auto r1 = fnma(n, all(parts[0]), y);  // exact, as is n part2
    const auto r2 = fnma(n, part2, r1);
    const auto hi = fnma(n, part3, r2);
    const auto lo = fnma(n, part2, r1 - r2) + fnma(n, part3, r2 - hi);
    const auto q = hi * hi;
    const auto sine_series = horner(q, circular::routine_sine);
    const auto cosine_series = horner(q, circular::routine_cosine);
    const auto k = gather_rows<Lum64f>(table, shift_left<2>(bits(t) & all(uint64_t{63})));
    const auto s = k.column0, s_tail = k.column1, c = k.column2, c_tail = k.column3;
    const auto sine_head = fma(c, hi, s), cosine_head = fnma(s, hi, c);
    const auto sine_error = fma(hi, c_tail, fms(c, hi, sine_head - s)),
               cosine_error = fnma(hi, s_tail, fnms(s, hi, cosine_head - c));
    const auto sine_low = fma(fnma(s, hi, c), lo, s_tail), cosine_low = fnma(fma(c, hi, s), lo, c_tail);
    const auto sine_rest = fma(s, cosine_series, (c * hi) * sine_series),
               cosine_rest = fms(c, cosine_series, (s * hi) * sine_series);
    return {{sine_head, fma(sine_rest, q, sine_error + sine_low)},
            {cosine_head, fma(cosine_rest, q, cosine_error + cosine_low)}};
  }

  static LUM_INLINE Vec<Lum64f> Product(const Exponential& e, const HeadTail& factor) {
    const auto f = fast_two_sum(factor.head, fma(factor.head + factor.tail, e.excess, factor.tail));
    const auto product = e.power * f.head;
    const auto rest = fma(e.power, f.tail, fms(e.power, f.head, product));
    return add(ne(product, all(0.0)), product, rest);  // below the range the rest is a zero of any sign
  }

  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> z) {
    const auto [x, y] = split(z);
    const auto e = ExponentialOf(x);
    const auto [sine, cosine] = SineCosineOf(y);
    const auto a = abs(y);
    // The sine of a tiny number is that number, whose products would lose bits below the normal range.
    const auto tiny = fma(e.power, e.excess, e.power) * y;
    const ComplexVec<Lum64f> result{Product(e, cosine), select(lt(a, all(0x1p-960)), tiny, Product(e, sine))};
    return {join(result), nlt(abs(x), all(512.0)) | nlt(a, all(512.0))};
  }
};

}  // namespace

LumStatus Exp_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus Exp_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus Exp_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus Exp_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A53_64fc>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
