// sin x. With |x| = n pi + r:  sin x = sign(x) (-1)^n sin r, and sin r by an odd polynomial. 32f A24 evaluates the same in
// binary64; 64f A53 reduces to sixteenths of a half turn with a table. Beyond the threshold of the reduction a second vector
// path takes the bits of x / (2 pi) from a table of the bits of 1/pi; 64f A26 adds products with pieces of 4/pi there.
#include "circular/chunk_path.h"
#include "circular/half_turns.h"
#include "circular/large_reduction.h"
#include "circular/nonfinite.h"
#include "circular/polynomials.h"
#include "circular/sixteenths.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace circular;

struct Float : Kernel<Lum32f> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_in_all_layers = true;
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    return MergeLarge(
        x, lanes, [](Vec<Lum32f> v) __attribute__((always_inline)) { return LargeSine<Lum32f>(v); });
  }
  using Vectors = TwoVectors<Lum32f>;
  static LUM_INLINE std::array<Finished<Lum32f>, 2> SecondPathOfTwo(const Vectors& x,
                                                                    const std::array<Lanes<Lum32f>, 2>& lanes) {
    return MergeLarge(
        x, lanes, [](const Vectors& v) __attribute__((always_inline)) { return LargeSine<Lum32f>(v); });
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return CircularOfNonFinite(x, result); }
};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto s = OddSineFitted(TakeHalfTurns(a, n), circular::sin_A11);
    return {s ^ OddParitySign(shifted, x, a), nle(a, all(10000.0f))};
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [n, shifted] = NearestHalfTurns(a);
    const auto s = OddSineByRatio(TakeThirdPart(TakeHalfTurns(a, n), n), circular::sin_A21);
    return {s ^ OddParitySign(shifted, x, a), nle(a, all(0x1p19f))};
  }
};

struct A24_32f : Float {
  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> a) {
    // The integer that binary32 finds: either product is exact in the sum, which is rounded to an integer.
    const auto t = fma(a, all(double{numbers::inverse_pi<Lum32f>}), all(rounding_shifter<Lum64f>()));
    return OddSineByRatio(TakeHalfTurnsExactly(a, t - all(rounding_shifter<Lum64f>())), circular::sin_A24);
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
    return {OddSine(r, circular::sin_A26) ^ OddParitySign(shifted, x, a), nle(a, all(double_threshold))};
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) {
    Lum64f cosine;
    return SineAndCosine(x, result, cosine);
  }
  static LUM_INLINE Finished<Lum64f> SecondPath(Vec<Lum64f> x, const Lanes<Lum64f>& lanes) {
    const auto beyond = lanes.refused & ~fpclass<classes::nonfinite>(x);
    return MergeLarge(
        x, lanes, [&](Vec<Lum64f> v) __attribute__((always_inline)) { return SineOf(ReduceBeyondThreshold(v, beyond)); });
  }
};

struct Double : Kernel<Lum64f> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_in_all_layers = true;
  static LUM_INLINE Finished<Lum64f> SecondPath(Vec<Lum64f> x, const Lanes<Lum64f>& lanes) {
    return MergeLarge(
        x, lanes, [](Vec<Lum64f> v) __attribute__((always_inline)) { return LargeSine(v) ^ sign_of(v); });
  }
  using Vectors = TwoVectors<Lum64f>;
  static LUM_INLINE std::array<Finished<Lum64f>, 2> SecondPathOfTwo(const Vectors& x,
                                                                    const std::array<Lanes<Lum64f>, 2>& lanes) {
    return MergeLarge(
        x, lanes, [](const Vectors& v) __attribute__((always_inline)) {
          const auto [sine0, sine1] = LargeSine<Lum64f>(v);
          return Vectors{sine0 ^ sign_of(v[0]), sine1 ^ sign_of(v[1])};
        });
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
    const auto p = horner(q, circular::sin_A50);
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
