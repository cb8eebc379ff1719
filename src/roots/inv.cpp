// 1 / x without a divide instruction: an estimate of 14 bits, and Newton steps r' = r + r (1 - x r), each doubling the bits.
// Zeros, infinities and numbers whose estimate is a zero or an infinity take no step: there the estimate is the quotient, since
// it overflows where |x| <= 2^-128, or 2^-1024, alone.
#include <cstdint>
#include <limits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/lifted.h"

namespace lum::inline LUM_LAYER {
namespace {

// A tier has 1 / x of all numbers from the estimate r0, and for which it takes no step. Where the estimate takes normal numbers
// alone, the first path refuses all others, and those without a normal reciprocal.
template <class T, class Tier> struct InvKernel : Kernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    if constexpr (estimates_take_all) {
      return Of(x, rcp14(x));
    } else {
      constexpr T smallest = std::numeric_limits<T>::min();
      const auto a = abs(x);
      return {Tier::Reciprocal(x, rcp14_normal(x)), nle(all(smallest), a) | nlt(a, all(1 / smallest))};
    }
  }
  static LumStatus LaneRoutine(T x, T& result) {
    result = T(1) / x;
    return x == 0 ? lumStsSingularity : lumStsOk;
  }
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = !estimates_take_all;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto zero = fpclass<classes::zero>(x);
    if constexpr (estimates_take_all) {
      return {select(lanes.refused, rcp14(x), lanes.value), mask_of<T>(0), {.singularity = zero}};
    } else {
      const auto special = zero | fpclass<classes::nonfinite>(x), others = lanes.refused & ~special;
      const auto denormal = others & IsBelowNormal(x), large = others & ~denormal;
      auto value = lanes.value;
      if (any(large)) {
        const auto a = select(large, x, all(T(1))), r0 = rcp14(a);
        const auto full = Of(a, r0);
        value = select(large, select(full.refused, r0, full.value), value);
      }
      if (any(denormal)) {
        const auto a = LiftDenormals(select(denormal, x, all(T(1)))).x, r0 = rcp14_normal(a);
        const auto half = all(lane::power_of_two<T>(lift<T> / 2));
        const auto estimate = r0 * half * half;
        const auto refused = fpclass<classes::infinity>(estimate);
        value = select(denormal, select(refused, estimate, Tier::Reciprocal(a, r0) * half * half), value);
      }
      const auto of_special = or_sign(x, zero_unless(zero, all(std::numeric_limits<T>::infinity())));
      value = select(special, of_special, value);
      return {select(unord(x, x), x + x, value), mask_of<T>(0), {.singularity = zero}};
    }
  }

 private:
  static LUM_INLINE Lanes<T> Of(Vec<T> x, Vec<T> r0) { return {Tier::Reciprocal(x, r0), Tier::Refused(x, r0)}; }
};

// Refuses by the input, not by the estimate: that of a tiny denormal is an infinity, which stands.
template <class T> struct Estimate : InvKernel<T, Estimate<T>> {
  static LUM_INLINE Vec<T> Reciprocal(Vec<T>, Vec<T> r0) { return r0; }
  static LUM_INLINE Mask<T> Refused(Vec<T> x, Vec<T>) { return fpclass<classes::zero | classes::infinity>(x); }
};

template <class T, int steps> struct NewtonSteps : InvKernel<T, NewtonSteps<T, steps>> {
  static LUM_INLINE Vec<T> Reciprocal(Vec<T> x, Vec<T> r0) {
    auto r = r0;
    for (int i = 0; i < steps; ++i) r = fma(fnma(x, r, all(T(1))), r, r);
    return r;
  }
  static LUM_INLINE Mask<T> Refused(Vec<T>, Vec<T> r0) { return fpclass<classes::zero | classes::infinity>(r0); }
};

using A11_32f = Estimate<Lum32f>;
using A24_32f = NewtonSteps<Lum32f, 1>;
using A26_64f = NewtonSteps<Lum64f, 1>;
using A53_64f = NewtonSteps<Lum64f, 2>;

}  // namespace

LumStatus Inv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Inv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Inv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Inv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
