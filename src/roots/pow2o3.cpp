// x^(2/3) = cbrt(x)^2: the scheme of thirds. The significand of x and its reciprocal have the same sign, so that their product
// and with it the result are positive. No lane is ever refused.
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "roots/polynomials.h"
#include "roots/thirds.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace roots;

struct Data {
  static constexpr auto power = Power::two_thirds;
  static constexpr auto head_32f = table32({
#include "tables/generated/pow2o3_32f_16_head.inc"
  });
  static constexpr auto head_64f = table64({
#include "tables/generated/pow2o3_64f_8_head.inc"
  });
  static constexpr auto tail_32f = table32({
#include "tables/generated/pow2o3_32f_16_tail.inc"
  });
  static constexpr auto tail_64f = table64({
#include "tables/generated/pow2o3_64f_8_tail.inc"
  });
  static constexpr auto& low_32f = roots::pow2o3_A11;
  static constexpr auto& mid_32f = roots::pow2o3_A21;
  static constexpr auto& high_32f = roots::pow2o3_A21;
  static constexpr auto& low_64f = roots::pow2o3_A26;
  static constexpr auto& high_64f = roots::pow2o3_A50;
};
using Scheme = ThirdsScheme<Data>;

template <class T, Tier tier> struct Pow2o3Kernel : Kernel<T> {
  static constexpr int vectors = thirds_vectors<T, tier>;
  static constexpr Variant variant = pure_vector_variant;
  static constexpr bool refuses_by_class = true;
  static LUM_INLINE auto VectorPath(Vec<T> x) {
    if constexpr (thirds_take_all) return ThirdsMagnitude<Scheme, tier>(ReduceThirds<Scheme::power>(x));
    else return ThirdsOfNormal<Scheme, tier>(x);
  }
  static void LaneRoutine(T, T&) {}
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return {ThirdsOfRefused<Scheme, tier>(x, x * x, lanes), mask_of<T>(0)};
  }
};

using A11_32f = Pow2o3Kernel<Lum32f, Tier::low>;
using A21_32f = Pow2o3Kernel<Lum32f, Tier::mid>;
using A24_32f = Pow2o3Kernel<Lum32f, Tier::high>;
using A26_64f = Pow2o3Kernel<Lum64f, Tier::low>;
using A50_64f = Pow2o3Kernel<Lum64f, Tier::mid>;
using A53_64f = Pow2o3Kernel<Lum64f, Tier::high>;

}  // namespace

LumStatus Pow2o3_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Pow2o3_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Pow2o3_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Pow2o3_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Pow2o3_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Pow2o3_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
