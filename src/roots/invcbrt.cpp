// 1 / cbrt x: the scheme of thirds, with the sign of x copied to the result. The exponents of zeros, infinities and NaN have no
// third, which refuses them; denormals are ordinary numbers.
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "roots/polynomials.h"
#include "roots/thirds.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace roots;

struct Data {
  static constexpr auto power = Power::minus_one_third;
  static constexpr auto head_32f = table32({
#include "tables/generated/invcbrt_32f_16_head.inc"
  });
  static constexpr auto head_64f = table64({
#include "tables/generated/invcbrt_64f_8_head.inc"
  });
  static constexpr auto tail_32f = table32({
#include "tables/generated/invcbrt_32f_16_tail.inc"
  });
  static constexpr auto tail_64f = table64({
#include "tables/generated/invcbrt_64f_8_tail.inc"
  });
  static constexpr auto& low_32f = roots::invcbrt_A11;
  static constexpr auto& mid_32f = roots::invcbrt_A21;
  static constexpr auto& high_32f = roots::invcbrt_A24;
  static constexpr auto& low_64f = roots::invcbrt_A26;
  static constexpr auto& high_64f = roots::invcbrt_A50;
};
using Scheme = ThirdsScheme<Data>;

template <class T, Tier tier> struct InvCbrtKernel : Kernel<T> {
  static constexpr int vectors = thirds_vectors<T, tier>;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    if constexpr (thirds_take_all) {
      const auto a = ReduceThirds<Scheme::power>(x);
      return {or_sign(x, ThirdsMagnitude<Scheme, tier>(a)), unord(a.j, a.j)};
    } else {
      const auto lanes = ThirdsOfNormal<Scheme, tier>(x);
      return {or_sign(x, lanes.value), lanes.refused};
    }
  }
  static LumStatus LaneRoutine(T x, T& result) {
    if (x == 0) {
      result = T(1) / x;
      return lumStsSingularity;
    }
    result = x != x ? x / x : T(0) / x;
    return lumStsOk;
  }
  static constexpr bool second_is_short = thirds_take_all;
  static constexpr bool refuses_by_class = !thirds_take_all;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto zero = fpclass<classes::zero>(x);
    auto value = or_sign(x, zero_unless(zero, all(std::numeric_limits<T>::infinity())));
    value = select(unord(x, x), x + x, value);
    if constexpr (thirds_take_all) value = select(lanes.refused, value, lanes.value);
    else value = or_sign(x, ThirdsOfRefused<Scheme, tier>(x, value, lanes));
    return {value, mask_of<T>(0), {.singularity = zero}};
  }
};

using A11_32f = InvCbrtKernel<Lum32f, Tier::low>;
using A21_32f = InvCbrtKernel<Lum32f, Tier::mid>;
using A24_32f = InvCbrtKernel<Lum32f, Tier::high>;
using A26_64f = InvCbrtKernel<Lum64f, Tier::low>;
using A50_64f = InvCbrtKernel<Lum64f, Tier::mid>;
using A53_64f = InvCbrtKernel<Lum64f, Tier::high>;

}  // namespace

LumStatus InvCbrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus InvCbrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus InvCbrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus InvCbrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus InvCbrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus InvCbrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
