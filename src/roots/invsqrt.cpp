// 1 / sqrt x from an estimate s with 14 bits. With t = x s and d = 1 - t s = 1 - x s^2 the result is s (1 - d)^(-1/2): one term
// of this series is a Newton step, two serve binary64. The high tiers put the rounding error of t back into d.
#include <cstdint>
#include <limits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/lane_format.h"
#include "frame/lifted.h"
#include "roots/polynomials.h"

namespace lum::inline LUM_LAYER {
namespace {

// Zeros, infinities and negative numbers are refused; NaN and denormals run through where the estimate takes them. A tier has
// the root of x from its estimate s.
template <class T, class Tier> struct InvSqrtKernel : Kernel<T> {
  static constexpr int refused =
      estimates_take_all ? classes::zero | classes::infinity | classes::negative : classes::not_positive_normal;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    if constexpr (estimates_take_all) return {Tier::Root(x, rsqrt14(x)), fpclass<refused>(x)};
    else return {Tier::Root(x, rsqrt14_normal(x)), fpclass<refused>(x)};
  }
  static LumStatus LaneRoutine(T x, T& result) {
    constexpr auto infinity = std::numeric_limits<T>::infinity();
    if (x == 0) {
      result = T(1) / x;
      return lumStsSingularity;
    }
    if (x == infinity) {
      result = T(0) / x;
      return lumStsOk;
    }
    // The NaN of minus infinity has its sign set, as an invalid operation gives it; that of finite numbers has not.
    result = x == -infinity ? lane::default_nan<T>() : std::numeric_limits<T>::quiet_NaN();
    return lumStsDomain;
  }
  static constexpr bool hides_refused = !estimates_take_all;
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = !estimates_take_all;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto zero = fpclass<classes::zero>(x), below_zero = fpclass<classes::below_zero>(x);
    auto value = lanes.value;
    if constexpr (estimates_take_all) {
      // For zeros and infinities the estimate is the result.
      value = select(fpclass<classes::zero | classes::infinity>(x), rsqrt14(x), value);
    } else {
      const auto others = lanes.refused & ~(zero | below_zero | fpclass<classes::nan | classes::plus_infinity>(x));
      if (any(others)) {
        // Denormal numbers, scaled by a power of 4, which changes no step.
        const auto a = LiftDenormals(select(others, x, all(T(1)))).x;
        value = select(others, Tier::Root(a, rsqrt14_normal(a)) * all(lane::power_of_two<T>(lift<T> / 2)), value);
      }
      value = select(zero, or_sign(x, all(std::numeric_limits<T>::infinity())), value);
      value = zero_unless(~fpclass<classes::plus_infinity>(x), value);
      value = select(unord(x, x), x + x, value);
      value = select(fpclass<classes::minus_infinity>(x), all(lane::default_nan<T>()), value);
    }
    value = select(fpclass<classes::negative>(x), all(std::numeric_limits<T>::quiet_NaN()), value);
    return {value, mask_of<T>(0), {.domain = below_zero, .singularity = zero}};
  }
};

struct A11_32f : InvSqrtKernel<Lum32f, A11_32f> {
  static LUM_INLINE Vec<Lum32f> Root(Vec<Lum32f>, Vec<Lum32f> s) { return s; }
};
struct A21_32f : InvSqrtKernel<Lum32f, A21_32f> {
  static LUM_INLINE Vec<Lum32f> Root(Vec<Lum32f> x, Vec<Lum32f> s) {
    const auto e = fma(all(-0.5f) * s, s * x, all(0.5f));
    return fma(e, s, s);
  }
};
struct A24_32f : InvSqrtKernel<Lum32f, A24_32f> {
  static LUM_INLINE Vec<Lum32f> Root(Vec<Lum32f> x, Vec<Lum32f> s) {
    const auto t = s * x;
    const auto u = all(-0.5f) * s;
    const auto e0 = fma(u, t, all(0.5f));
    const auto w = fms(x, s, t);  // exact
    const auto e = fma(u, w, e0);
    return fma(e, s, s);
  }
};
struct A26_64f : InvSqrtKernel<Lum64f, A26_64f> {
  static LUM_INLINE Vec<Lum64f> Root(Vec<Lum64f> x, Vec<Lum64f> s) {
    const auto e = fnma(s * x, all(0.5) * s, all(0.5));
    return fma(e, s, s);
  }
};

// s + s d (1/2 + 3/8 d + 5/16 d^2), the last two coefficients adjusted to the range of d.
LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> s, Vec<Lum64f> d) {
  const auto p = horner(d, roots::invsqrt_A50);
  return fma(p, s * d, s);
}
struct A50_64f : InvSqrtKernel<Lum64f, A50_64f> {
  static LUM_INLINE Vec<Lum64f> Root(Vec<Lum64f> x, Vec<Lum64f> s) { return Series(s, fnma(s * x, s, all(1.0))); }
};
struct A53_64f : InvSqrtKernel<Lum64f, A53_64f> {
  static LUM_INLINE Vec<Lum64f> Root(Vec<Lum64f> x, Vec<Lum64f> s) {
    const auto t = s * x;
    const auto d0 = fnma(t, s, all(1.0));
    const auto w = fms(x, s, t);  // exact
    return Series(s, fnma(w, s, d0));
  }
};

}  // namespace

LumStatus InvSqrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus InvSqrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus InvSqrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus InvSqrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus InvSqrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus InvSqrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
