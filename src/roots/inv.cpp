// 1 / x without a divide instruction: an estimate of 14 bits, and Newton steps r' = r + r (1 - x r), each doubling the bits.
// Zeros, infinities and numbers whose estimate is a zero or an infinity are left to the divide instruction.
#include <cstdint>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

template <class T> struct InvKernel : Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) {
    result = T(1) / x;
    return x == 0 ? lumStsSingularity : lumStsOk;
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto quotient = div(all(T(1)), select(lanes.refused, x, all(T(1))));
    return {select(lanes.refused, quotient, lanes.value), mask_of<T>(0), {.singularity = fpclass<classes::zero>(x)}};
  }
};

// Refuses by the input, not by the estimate: that of a tiny denormal is an infinity, which stands. This differs from the tiers
// with a Newton step, whose refused denormals have the scalar quotient, and is deliberate.
template <class T> struct Estimate : InvKernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) { return {rcp14(x), fpclass<classes::zero | classes::infinity>(x)}; }
};

template <class T, int steps> struct NewtonSteps : InvKernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto r0 = rcp14(x);
    auto r = r0;
    for (int i = 0; i < steps; ++i) r = fma(fnma(x, r, all(T(1))), r, r);
    return {r, fpclass<classes::zero | classes::infinity>(r0)};
  }
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
