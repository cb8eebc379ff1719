// cos x. |x| is reduced to a remainder r from an odd multiple of pi/2, of which the cosine is plus or minus sin r, by the odd
// polynomials of the sine. 32f finds the multiple from |x| + pi/2; 64f A26 and A50 are one kernel and find it by a rounding
// toward zero; 64f A53 reduces to sixteenths of a half turn with a table. Beyond the threshold of the reduction a second vector
// path takes the bits of x / (2 pi) from a table of the bits of 1/pi.
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
        x, lanes, [](Vec<Lum32f> v) __attribute__((always_inline)) { return LargeCosine<Lum32f>(v); });
  }
  using Vectors = TwoVectors<Lum32f>;
  static LUM_INLINE std::array<Finished<Lum32f>, 2> SecondPathOfTwo(const Vectors& x,
                                                                    const std::array<Lanes<Lum32f>, 2>& lanes) {
    return MergeLarge(
        x, lanes, [](const Vectors& v) __attribute__((always_inline)) { return LargeCosine<Lum32f>(v); });
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return CircularOfNonFinite(x, result); }
};

// |x| = m pi + r, m an integer less 1/2, and the sign of the cosine as against sin r.
struct OddQuarters {
  Vec<Lum32f> m;
  Vec<uint32_t> sign;
  Mask<Lum32f> is_tiny;  // so that the cosine is 1, which the polynomial may miss by a unit
};
LUM_INLINE OddQuarters NearestOddQuarters(Vec<Lum32f> a) {
  constexpr auto quarter_turn = numbers::pi<Lum32f> / 2;
  const auto u = a + all(quarter_turn);
  const auto [n, shifted] = NearestHalfTurns(u);
  return {n - all(0.5f), ParitySign(shifted), eq(u, all(quarter_turn))};
}

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [m, sign, is_tiny] = NearestOddQuarters(a);
    const auto s = OddSineFitted(TakeHalfTurns(a, m), circular::cos_A11);
    return {select(is_tiny, all(1.0f), s ^ sign), nle(a, all(10000.0f))};
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [m, sign, is_tiny] = NearestOddQuarters(a);
    const auto s = OddSineByRatio(TakeThirdPart(TakeHalfTurns(a, m), m), circular::cos_A21);
    return {select(is_tiny, all(1.0f), s ^ sign), nle(a, all(0x1p19f))};
  }
};

struct A24_32f : Float {
  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> a, Vec<Lum64f> m) {
    return OddSineByRatio(TakeHalfTurnsExactly(a, m), circular::sin_A24);
  }
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto [m, sign, is_tiny] = NearestOddQuarters(a);
    const auto s = narrow(Half(widen_low(a), widen_low(m)), Half(widen_high(a), widen_high(m)));
    return {s ^ sign, nle(a, all(0x1p19f))};  // near 1 the rounding to binary32 gives 1
  }
};

struct Double : Kernel<Lum64f> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_in_all_layers = true;
  static LUM_INLINE Finished<Lum64f> SecondPath(Vec<Lum64f> x, const Lanes<Lum64f>& lanes) {
    return MergeLarge(
        x, lanes, [](Vec<Lum64f> v) __attribute__((always_inline)) { return LargeCosine<Lum64f>(v); });
  }
  using Vectors = TwoVectors<Lum64f>;
  static LUM_INLINE std::array<Finished<Lum64f>, 2> SecondPathOfTwo(const Vectors& x,
                                                                    const std::array<Lanes<Lum64f>, 2>& lanes) {
    return MergeLarge(
        x, lanes, [](const Vectors& v) __attribute__((always_inline)) { return LargeCosine<Lum64f>(v); });
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return CircularOfNonFinite(x, result); }
};

struct A50_64f : Double {
  static constexpr int vectors = 4;
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    constexpr auto& pi_parts = numbers::pi_parts<Lum64f>;

    const auto a = abs(x);
    const auto t = fma_floor(a, all(numbers::inverse_pi<Lum64f>), all(0x1p52));  // n = floor(|x| / pi) in the low bits
    const auto m = t - all(0x1p52 - 0.5);                                        // n + 1/2
    const auto r2 = fma(m, all(pi_parts[1]), fms(m, all(pi_parts[0]), a));       // from the odd multiple of pi/2 down
    const auto q = r2 * r2;
    const auto r = fma(m, all(pi_parts[2]), r2) ^ ParitySign(t);
    const auto p = horner(q, circular::cos_A50);
    const auto s = fma(r * q, p, r);
    return {select(lt(a, all(0x1p-27)), all(1.0), s), nle(t, all(0x1p52 + 8388606))};
  }
};

struct A53_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto r = TakeSixteenths(a);
    return {CosineOf(AngleOf(r.shifted), r) ^ HalfTurnSign(r), nle(a, all(0x1p24))};
  }
};

}  // namespace

LumStatus Cos_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Cos_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Cos_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Cos_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Cos_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
