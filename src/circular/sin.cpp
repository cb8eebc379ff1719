// sin x. With |x| = n pi + r:  sin x = sign(x) (-1)^n sin r, and sin r by an odd polynomial. 32f A24 evaluates the same in
// binary64; 64f A53 reduces to sixteenths of a half turn with a table. Beyond the threshold of the reduction a second vector
// path takes the bits of x / (2 pi) from a table of the bits of 1/pi; 64f A26 has a scalar routine there instead.
#include "circular/chunk_routine.h"
#include "circular/half_turns.h"
#include "circular/nonfinite.h"
#include "circular/sixteenths.h"
#include "circular/wide_reduction.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

struct Float : Kernel<Lum32f> {
  static constexpr bool second_in_all_layers = true;
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    return MergeLarge(x, lanes, LargeSine(x));
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return CircularOfNonFinite(x, result); }
};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto r = TakeHalfTurns(a, n);
    const auto q = r * r;
    const auto p = horner(q, f32(0xBE29E72F, -0.16592095792293549), f32(0x3BF84524, 0.007576601579785347));
    const auto s = fma(q * p, r, r * all(f32(0x3F7FF87C, 0.9998853206634521)));
    return {s ^ OddParitySign(shifted, x, a), nle(a, all(10000.0f))};
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto r = TakeThirdPart(TakeHalfTurns(a, n), n);
    const auto q = r * r;
    const auto p = horner(q, f32(0xBE2AAAA6, -0.16666659712791443), f32(0x3C088766, 0.008333062753081322),
                          f32(0xB94FB7FF, -0.00019809602235909551), f32(0x362EDEF8, 2.605780537123792e-06));
    return {fma(q * p, r, r) ^ OddParitySign(shifted, x, a), nle(a, all(0x1p19f))};
  }
};

struct A24_32f : Float {
  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> a) {
    // The same integer as in binary32: either product is exact in the sum, which is rounded to an integer.
    const auto t = fma(a, all(double{HalfTurn<Lum32f>::inverse}), all(HalfTurn<Lum64f>::shifter));
    const auto r = TakeHalfTurnsExactly(a, t - all(HalfTurn<Lum64f>::shifter));
    const auto q = r * r;
    return fma(q * LongFloatSine(q), r, r);
  }
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto s = narrow(Half(widen_low(a)), Half(widen_high(a)));
    return {s ^ OddParitySign(NearestHalfTurns(a).shifted, x, a), nle(a, all(0x1p19f))};
  }
};

constexpr double double_threshold = 0x1p24;

struct A26_64f : Kernel<Lum64f> {
  static constexpr int vectors = 4;
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto r = TakeHalfTurns(a, n);
    const auto q = r * r;
    const auto p = horner(q, f64(0xBFC55554AD3EAF1F, -0.16666658839437162), f64(0x3F8110EA968A0185, 0.008333046645248707),
                          f64(0xBF29F67D9395D587, -0.0001980808536178708), f64(0x3EC5D4567512BBD5, 2.602272538419318e-06));
    return {fma(p, q * r, r) ^ OddParitySign(shifted, x, a), nle(a, all(double_threshold))};
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) {
    Lum64f cosine;
    return SineAndCosine(x, result, cosine);
  }
};

struct Double : Kernel<Lum64f> {
  static constexpr bool second_in_all_layers = true;
  static LUM_INLINE Finished<Lum64f> SecondPath(Vec<Lum64f> x, const Lanes<Lum64f>& lanes) {
    return MergeLarge(x, lanes, LargeSine(x) ^ sign_of(x));
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return CircularOfNonFinite(x, result); }
};

struct A50_64f : Double {
  static constexpr int vectors = 4;
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto r2 = TakeHalfTurns(a, n);
    const auto q = r2 * r2;  // the third part is too small to matter here
    const auto r = TakeThirdPart(r2, n);
    const auto p = horner(q, f64(0xBFC55555555554A8, -0.16666666666666186), f64(0x3F8111111110A573, 0.008333333333285542),
                          f64(0xBF2A01A019A659DD, -0.00019841269825056256), f64(0x3EC71DE3806ADD1A, 2.7557316600552628e-06),
                          f64(0xBE5AE6355AAA4A53, -2.505188027386288e-08), f64(0x3DE60E6BEE01D83E, 1.6048095404959637e-10),
                          f64(0xBD69F1517E9F65F0, -7.373344533110665e-13));
    return {fma(p, q * r, r) ^ OddParitySign(shifted, x, a), nle(a, all(double_threshold))};
  }
};

struct A53_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto r = TakeSixteenths(a);
    return {SineOf(AngleOf(r.shifted), r) ^ HalfTurnSign(r, x), nle(a, all(double_threshold))};
  }
};

}  // namespace

LumStatus Sin_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Sin_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Sin_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Sin_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Sin_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Sin_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
