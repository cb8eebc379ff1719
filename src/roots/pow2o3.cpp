// x^(2/3) = cbrt(x)^2: the scheme of thirds. The significand of x and its reciprocal have the same sign, so that their product
// and with it the result are positive. No lane is ever refused.
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "roots/thirds.h"

namespace lum::inline LUM_LAYER {
namespace {

// c^p of the reciprocals c, and what the rounded entries leave.
constexpr auto head_32f = table32({
#include "tables/generated/pow2o3_32_head.inc"
});
constexpr auto head_64f = table64({
#include "tables/generated/pow2o3_64_head.inc"
});
constexpr auto tail_32f = table32({
#include "tables/generated/pow2o3_32_tail.inc"
});
constexpr auto tail_64f = table64({
#include "tables/generated/pow2o3_64_tail.inc"
});

struct Scheme {
  static constexpr auto power = Power::two_thirds;
  template <class T> static consteval const auto& head() { return of_type<T>(head_32f, head_64f); }
  template <class T> static consteval const auto& tail() { return of_type<T>(tail_32f, tail_64f); }
  template <Tier tier> static LUM_INLINE Vec<Lum32f> polynomial(Vec<Lum32f> r) {
    if constexpr (tier == Tier::low) return horner(r, f32(0x3F2AB034, 0.6667511463165283));
    else
      return horner(r, f32(0x3F2AAAAA, 0.6666666269302368), f32(0xBDE39A85, -0.11113456636667252),
                    f32(0x3D4A8C3C, 0.04945014417171478));
  }
  template <Tier tier> static LUM_INLINE Vec<Lum64f> polynomial(Vec<Lum64f> r) {
    const auto square = r * r;
    if constexpr (tier == Tier::low)
      return horner_of_pairs(r, square, f64(0x3FE55555240E2736, 0.6666665748791505),
                             f64(0xBFBC71C290BAB632, -0.11111084016257491), f64(0x3FA95501D69A974A, 0.049476678320657344),
                             f64(0xBF9D9F0034CCC20F, -0.02892685243858933));
    else
      return horner_of_pairs(r, square, f64(0x3FE5555555555556, 0.6666666666666667),
                             f64(0xBFBC71C71C71C72B, -0.11111111111111131), f64(0x3FA948B0FCD63C5B, 0.04938271604907448),
                             f64(0xBF9D7F7926F812D4, -0.02880658436153534), f64(0x3F93AA50CB7F1091, 0.019204389973098094),
                             f64(0xBF8C67CA14562A8A, -0.013869837518332834), f64(0x3F85A44BC5AFF4FC, 0.01056727597278461),
                             f64(0xBF812204B061F118, -0.008365666039246863), f64(0x3F7C240D84C33054, 0.006870320136112513),
                             f64(0xBF777D9A85E1D9DA, -0.005735019307499612));
  }
};

template <class T, Tier tier> struct Pow2o3Kernel : Kernel<T> {
  static constexpr int vectors = thirds_vectors<T, tier>;
  static constexpr Variant variant = pure_vector_variant;
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) { return ThirdsMagnitude<Scheme, tier>(ReduceThirds<Scheme::power>(x)); }
};

}  // namespace

LumStatus Pow2o3_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<Pow2o3Kernel<Lum32f, Tier::low>>(src, dst, len);
}
LumStatus Pow2o3_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<Pow2o3Kernel<Lum32f, Tier::mid>>(src, dst, len);
}
LumStatus Pow2o3_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<Pow2o3Kernel<Lum32f, Tier::high>>(src, dst, len);
}
LumStatus Pow2o3_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<Pow2o3Kernel<Lum64f, Tier::low>>(src, dst, len);
}
LumStatus Pow2o3_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<Pow2o3Kernel<Lum64f, Tier::mid>>(src, dst, len);
}
LumStatus Pow2o3_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<Pow2o3Kernel<Lum64f, Tier::high>>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
