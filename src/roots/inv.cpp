// 1 / x without a divide instruction: an estimate of 14 bits, and Newton steps r' = r + r (1 - x r), each doubling the bits.
// Zeros, infinities and numbers whose estimate is a zero or an infinity take no step: there the estimate is the quotient, since
// it overflows where |x| <= 2^-128, or 2^-1024, alone.
#include <cstdint>
#include <limits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"

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
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto r0 = rcp14(x);
    const auto full = estimates_take_all ? lanes : Of(x, r0);
    return {select(full.refused, r0, full.value), mask_of<T>(0), {.singularity = fpclass<classes::zero>(x)}};
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
