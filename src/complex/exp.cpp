// e^z = e^x (cos y + i sin y), z = x + iy. The exponential and the circular functions are those of the real kernels, cut to
// what the tag needs; the tiers of 32fc take sine and cosine in binary64, that their product with the exponential is rounded
// once. Far arguments and those whose exponential leaves the range go to the scalar core.
#include "circular/half_turns.h"
#include "circular/sixteenths.h"
#include "complex/pairs/pair.h"
#include "complex/refused.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

struct SineCosine {
  Vec<Lum64f> sine, cosine;
};

// sin r of |r| <= pi/2, for binary32 results.
LUM_INLINE Vec<Lum64f> SineOf(Vec<Lum64f> r) { return OddSine(r, circular::sin_A24); }

// Of a - n pi, by way of pi/2 - |r| for the cosine.
LUM_INLINE SineCosine SineCosineOf(Vec<Lum64f> a, Vec<Lum64f> n) {
  const auto r = TakeHalfTurnsExactly(a, n);
  const auto to_quarter = r - or_sign(r, all(f64(0x3FF921FB54442D18, 1.5707963267948966)));
  return {SineOf(r), negate(xor_sign(r, SineOf(to_quarter)))};
}

// e^x of binary32 numbers in binary64, |error| below 2^-30: steps of 1/1024 in the exponent of 2, and (6 + 6r + 3r^2 + r^3)
// / 6.
struct DoubleExponential {
  static constexpr auto limit = f32(0x44311958, 708.39599609375);
  struct Values {
    Vec<Lum64f> low, high;
  };

  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> x) {
    static constexpr auto table = table64({
#include "tables/generated/exp2_1024_sixth.inc"
    });
    constexpr auto shifter = f64(0x4338000000000000, 0x1.8p52);
    const auto t = fma(x, all(f64(0x40971547652B82FE, 1477.3197218702985)), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fnma(n, all(f64(0x3D5D1CF79ABC9E3B, 4.137227896298129e-13)),
                        fnma(n, all(f64(0x3F462E42FEC00000, 0.0006769015431018488)), x));
    const auto p =
        fma(fma(r + all(f64(0x4008000002503ECD, 3.0000000172366073)), r, all(f64(0x4017FFFFFE3CA7B0, 5.999999973728265))), r,
            all(f64(0x4017FFFFFE3CA7AF, 5.999999973728264)));
    const auto j = bits(t) & all(uint64_t{1023});
    const auto exponent = shift_left<42>(bits(t) ^ j);
    return as_float(bits(gather<Lum64f>(table, j) * p) + exponent);
  }
  static LUM_INLINE Values Of(Vec<Lum32f> x) { return {Half(widen_low(x)), Half(widen_high(x))}; }
};

// The same in binary32 with steps of 1/128, |error| below 2^-22.
struct SingleExponential {
  static constexpr auto limit = f32(0x42AEAC50, 87.33654785156250);
  using Values = DoubleExponential::Values;

  static LUM_INLINE Values Of(Vec<Lum32f> x) {
    static constexpr auto table = table32({
#include "tables/generated/exp2_float_128_pairs.inc"
    });
    constexpr auto shifter = f32(0x4B400000, 12582912.0);
    const auto t = fma(x, all(f32(0x4338AA3B, 184.6649627685547)), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fma(n, all(f32(0x35DE8083, 1.6577690757912933e-06)), fnma(n, all(f32(0x3BB18000, 0.0054168701171875)), x));
    const auto p = fma(r * r, all(0.5f), r);
    const auto j = shift_left<1>(bits(t) & all(127u));
    const auto head = gather<Lum32f>(table, j), tail = gather<Lum32f>(table + 1, j);
    const auto power = as_float(shift_left<16>(bits(t) + all(0x3F80u)) & all(0x7F800000u));
    const auto e = (head + fma(head, p, tail)) * power;
    return {widen_low(e), widen_high(e)};
  }
};

template <class Exponential> struct Single : Kernel<Lum32fc> {
  static constexpr int vectors = 1;
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> z) {
    const auto [x, y] = split(z);
    const auto a = abs(y);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto e = Exponential::Of(x);
    const auto low = SineCosineOf(widen_low(a), widen_low(n)), high = SineCosineOf(widen_high(a), widen_high(n));
    const auto parity = ParitySign(shifted);
    const ComplexVec<Lum32f> result{narrow(e.low * low.cosine, e.high * high.cosine) ^ parity,
                                    narrow(e.low * low.sine, e.high * high.sine) ^ (parity ^ sign_of(y))};
    return {join(result), nlt(abs(x), all(Exponential::limit)) | nle(a, all(10000.0f))};
  }
  static LumStatus LaneRoutine(const Lum32fc& z, Lum32fc& result) { return ReportingCoreOnLane<CoreExp>(z, result); }
};
struct A11_32fc : Single<SingleExponential> {};
struct A24_32fc : Single<DoubleExponential> {};

// Steps of 1/16 in the exponent of 2, sine and cosine by sixteenths of a half turn.
struct A26_64fc : Kernel<Lum64fc> {
  static constexpr int vectors = 1;
  static LUM_INLINE Vec<Lum64f> ExponentialOf(Vec<Lum64f> x);
  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> z) {
    const auto [x, y] = split(z);
    const auto e = ExponentialOf(x);
    const auto a = abs(y);
    const auto r = TakeSixteenths(a);
    const auto angle = AngleOf(r.shifted);
    const ComplexVec<Lum64f> result{e * (lum::CosineOf(angle, r) ^ HalfTurnSign(r)),
                                    e * (lum::SineOf(angle, r) ^ HalfTurnSign(r, y))};
    return {join(result), nle(a, all(0x1p24)) | nlt(e, all(infinity))};
  }
  static LumStatus LaneRoutine(const Lum64fc& z, Lum64fc& result) { return ReportingCoreOnLane<CoreExp>(z, result); }
};

LUM_INLINE Vec<Lum64f> A26_64fc::ExponentialOf(Vec<Lum64f> x) {
  static constexpr auto heads = table64({
#include "tables/generated/exp2_double_16_head.inc"
  });
  static constexpr auto tails = table64({
#include "tables/generated/exp2_double_16_tail.inc"
  });
  // 1.5 * 2^48, the last bit worth 1/16. The low bits leave the index at zero and are subtracted out again.
  constexpr auto shifter = f64(0x42F8000000003FF0, 422212465067007.0);
  const auto t = fma<rz>(x, all(f64(0x3FF71547652B82FE, 1.4426950408889634)), all(shifter));
  const auto n = t - all(shifter);
  const auto unmasked = fnma(n, all(f64(0x3C7ABC9E3B39803F, 2.3190468138462996e-17)),
                             fnma(n, all(f64(0x3FE62E42FEFA39EF, 0.6931471805599453)), x));
  // Leaves any remainder below 2 as it is, and keeps those of refused lanes small.
  const auto r = unmasked & all(uint64_t{0xBFFFFFFFFFFFFFFF});
  const auto q = r * r;
  const auto c12 = fma(all(f64(0x3FE000000000D008, 0.5000000000059126)), r, all(f64(0x3FEFFFFFFFFFFF70, 0.999999999999984)));
  const auto c34 = fma(all(f64(0x3FA55557242D68FE, 0.0416667205488057)), r, all(f64(0x3FC5555553939732, 0.1666666658485894)));
  const auto c56 =
      fma(all(f64(0x3F57411836940C04, 0.0014193283516881214)), r, all(f64(0x3F81101CBBC265C0, 0.008331512908898442)));
  const auto p = fma(fma(fma(c56, q, c34), q, c12), r, Entry16(tails, bits(t)));
  const auto head = Entry16(heads, bits(t));
  return scalef(fma(p, head, head), n);
}

// Steps of 1/64 in the exponent of 2 and 1/32 of a half turn; the exponential of the remainder, and what the table and the
// circular functions lack, are joined to the heads before the one rounding of each product.
struct A53_64fc : Kernel<Lum64fc> {
  static constexpr int vectors = 1;
  static constexpr Lum64f fill = 0.5;

  struct Exponential {
    Vec<Lum64f> power;   // 2^(n/64) rounded
    Vec<Lum64f> excess;  // e^x = power (1 + excess)
  };
  static LUM_INLINE Exponential ExponentialOf(Vec<Lum64f> x) {
    static constexpr auto table = table64({
#include "tables/generated/exp2_64_pairs.inc"
    });
    constexpr auto shifter = f64(0x4338000000000000, 0x1.8p52);
    const auto t = fma(x, all(f64(0x40571547652B82FE, 92.33248261689366)), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fnma(n, all(f64(0x3D1CF79ABC9E3B3A, 2.572804622327669e-14)),
                        fnma(n, all(f64(0x3F862E42FEFA0000, 0.010830424696223417)), x));
    const auto q = horner(r, 0.5, f64(0x3FC55555555548F8, 0.1666666666665788), f64(0x3FA5555555558FCC, 0.04166666666677052),
                          f64(0x3F8111123AAF20D3, 0.008333341995140497), f64(0x3F56C16A1C2A3FFD, 0.0013888870459233254));
    const auto j = shift_left<1>(bits(t) & all(uint64_t{63}));
    const auto exponent = shift_left<46>(and_not(all(uint64_t{63}), bits(t)));
    return {as_float(bits(gather<Lum64f>(table, j)) + exponent), fma(r * r, q, r) + gather<Lum64f>(table + 1, j)};
  }

  struct Turned {
    HeadTail sine, cosine;
  };
  static LUM_INLINE Turned SineCosineOf(Vec<Lum64f> y) {
    static constexpr auto table = table64({
#include "tables/generated/sine_cosine_32.inc"
    });
    constexpr auto shifter = f64(0x4338000000000000, 0x1.8p52);
    const auto t = fma(y, all(f64(0x40245F306DC9C883, 10.185916357881302)), all(shifter));
    const auto n = t - all(shifter);
    const auto part2 = all(f64(0x3D90B4611A600000, 3.798187816439979e-12)),
               part3 = all(f64(0x3B63198A2E037073, 1.2639164054974691e-22));
    const auto r1 = fnma(n, all(f64(0x3FB921FB54400000, 0.09817477042088285)), y);  // exact, as is n part2
    const auto r2 = fnma(n, part2, r1);
    const auto hi = fnma(n, part3, r2);
    const auto lo = fnma(n, part2, r1 - r2) + fnma(n, part3, r2 - hi);
    const auto q = hi * hi;
    const auto sine_series =
        horner(q, f64(0xBFC5555555555555, -0.16666666666666666), f64(0x3F81111111111111, 0.008333333333333333),
               f64(0xBF2A01A01A01A01A, -0.0001984126984126984), f64(0x3EC71DE3A556C734, 2.7557319223985893e-06));
    const auto cosine_series =
        horner(q, -0.5, f64(0x3FA5555555555555, 0.041666666666666664), f64(0xBF56C16C16C16C17, -0.001388888888888889),
               f64(0x3EFA01A01A01A01A, 2.48015873015873e-05));
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
    const auto product = e.power * f.sum;
    const auto rest = fma(e.power, f.error, fms(e.power, f.sum, product));
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
  static LumStatus LaneRoutine(const Lum64fc& z, Lum64fc& result) { return ReportingCoreOnLane<CoreExp>(z, result); }
};

}  // namespace

LumStatus Exp_32fc_A11(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus Exp_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus Exp_64fc_A26(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus Exp_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A53_64fc>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
