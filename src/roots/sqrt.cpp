// The square root without a square-root instruction, by coupled steps from an estimate of 1 / sqrt x with 14 bits. The high
// tiers end in a Heron step with the exact residual x - g^2, which they take on scaled values where x is so small that it would
// be denormal.
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/lifted.h"
#include "roots/coupled_root.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace roots;

// Zeros, infinities and negative numbers are refused; where the estimate takes normal numbers alone, also NaN and what is below
// the tier's lowest argument. A tier has the root of x from the estimate s of 1 / sqrt x, and as OrdinaryRoot the same from its
// lowest argument on.
template <class T, class Tier> struct SqrtKernel : Kernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    if constexpr (estimates_take_all) {
      return {Tier::Root(x, rsqrt14(x)), fpclass<classes::zero | classes::infinity | classes::negative>(x)};
    } else {
      const auto refused = nle(all(Tier::lowest), x) | nlt(x, all(std::numeric_limits<T>::infinity()));
      return {Tier::OrdinaryRoot(x, rsqrt14_normal(x)), refused};
    }
  }
  static LumStatus LaneRoutine(T x, T& result) {
    if (x < 0) {
      result = std::numeric_limits<T>::quiet_NaN();
      return lumStsDomain;
    }
    result = x == 0 ? x : x + x;
    return lumStsOk;
  }
  // What brings numbers below the lowest argument above it, and their roots back.
  static constexpr T raised = sizeof(T) == sizeof(Lum32f) ? T(0x1p80) : T(0x1p916);
  static constexpr T lowered_root = sizeof(T) == sizeof(Lum32f) ? T(0x1p-40) : T(0x1p-458);
  static constexpr bool hides_refused = !estimates_take_all;
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = !estimates_take_all;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto negative = fpclass<classes::below_zero>(x);
    auto value = lanes.value;
    if constexpr (estimates_take_all) {
      value = select(fpclass<classes::zero | classes::plus_infinity>(x), x, value);
    } else {
      const auto itself = fpclass<classes::zero | classes::nonfinite>(x);
      const auto others = lanes.refused & ~(itself | negative);
      if (any(others)) {
        // Scaled by a power of 4, which changes no step.
        const auto [lifted, was_lifted] = LiftDenormals(select(others, x, all(T(1))));
        const auto a = lifted * select(was_lifted, all(T(1)), all(raised));
        const auto down = select(was_lifted, all(lane::power_of_two<T>(-lift<T> / 2)), all(lowered_root));
        value = select(others, Tier::OrdinaryRoot(a, rsqrt14_normal(a)) * down, value);
      }
      value = select(itself, x + x, value);
    }
    return {select(negative, all(std::numeric_limits<T>::quiet_NaN()), value), mask_of<T>(0), {.domain = negative}};
  }
};

template <class T, Steps steps> struct Coupled : SqrtKernel<T, Coupled<T, steps>> {
  static constexpr T lowest = std::numeric_limits<T>::min();
  static LUM_INLINE Vec<T> Root(Vec<T> x, Vec<T> s) { return CoupledSteps<steps>(Start(x, s)).g; }
  static LUM_INLINE Vec<T> OrdinaryRoot(Vec<T> x, Vec<T> s) { return Root(x, s); }
};

// From this estimate of 1 / sqrt x on the residual is scaled, by 4^k, and the root by 2^k; from the lowest argument on there is
// no such estimate.
template <class T> struct Scaling;
template <> struct Scaling<Lum32f> {
  static constexpr auto threshold = 0x1p39f;
  static constexpr auto lowest = 0x1p-77f;
  static constexpr auto root = 0x1p39f;
  static constexpr auto square = 0x1p78f;
  static constexpr auto inverse = 0x1p-78f;
};
template <> struct Scaling<Lum64f> {
  static constexpr auto threshold = 0x1p458;
  static constexpr auto lowest = 0x1p-915;
  static constexpr auto root = 0x1p458;
  static constexpr auto square = 0x1p916;
  static constexpr auto inverse = 0x1p-916;
};

template <class T> struct Heron : SqrtKernel<T, Heron<T>> {
  static constexpr T lowest = Scaling<T>::lowest;
  static LUM_INLINE Roots<T> Begin(Vec<T> x, Vec<T> s) {
    const auto a = Start(x, s);
    if constexpr (std::is_same_v<T, Lum64f>) return CoupledStep(a);
    else return a;
  }
  static LUM_INLINE Vec<T> OrdinaryRoot(Vec<T> x, Vec<T> s) { return HeronStep(x, Begin(x, s)); }
  static LUM_INLINE Vec<T> Root(Vec<T> x, Vec<T> s) {
    using C = Scaling<T>;
    const auto a = Begin(x, s);
    const auto small = lt(all(C::threshold), s);
    // Decided lane by lane: an ordinary lane has the same bits beside a small one as alone.
    auto scaled_x = x, scaled_g = a.g, scaled_h = a.h;
    if (any(small)) [[unlikely]] {
      scaled_x = select(small, x * all(C::square), x);
      scaled_g = select(small, a.g * all(C::root), a.g);
      scaled_h = select(small, a.h * all(C::inverse), a.h);
    }
    const auto residual = fnma(scaled_g, scaled_g, scaled_x);  // exact
    return fma(residual, scaled_h, a.g);
  }
};

using A11_32f = Coupled<Lum32f, Steps{.coupled = 0}>;
using A21_32f = Coupled<Lum32f, Steps{.coupled = 1}>;
using A24_32f = Heron<Lum32f>;
using A26_64f = Coupled<Lum64f, Steps{.coupled = 1}>;
using A50_64f = Coupled<Lum64f, Steps{.coupled = 2}>;
using A53_64f = Heron<Lum64f>;

}  // namespace

LumStatus Sqrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Sqrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Sqrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Sqrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Sqrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Sqrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
