// The cube root: the scheme of thirds, with the sign of x copied to the result. Zeros, infinities, NaN and denormals come out
// of the operations on exponents and significands, so that no lane is ever refused.
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "roots/thirds.h"

namespace lum::inline LUM_LAYER {
namespace {

// c^p of the reciprocals c, and what the rounded entries leave.
constexpr auto head_32f = table32({
#include "tables/generated/cbrt_32_head.inc"
});
constexpr auto head_64f = table64({
#include "tables/generated/cbrt_64_head.inc"
});
constexpr auto tail_32f = table32({
#include "tables/generated/cbrt_32_tail.inc"
});
constexpr auto tail_64f = table64({
#include "tables/generated/cbrt_64_tail.inc"
});

struct Scheme {
  static constexpr auto power = Power::one_third;
  template <class T> static consteval const auto& head() { return of_type<T>(head_32f, head_64f); }
  template <class T> static consteval const auto& tail() { return of_type<T>(tail_32f, tail_64f); }
  template <Tier tier> static LUM_INLINE Vec<Lum32f> polynomial(Vec<Lum32f> r) {
    if constexpr (tier == Tier::low) return horner(r, f32(0x3EAAB29A, 0.3333938717842102));
    else
      return horner(r, f32(0x3EAAAAAA, 0.3333333134651184), f32(0xBDE3A363, -0.11115147918462753),
                    f32(0x3D7D057C, 0.06177280843257904));
  }
  template <Tier tier> static LUM_INLINE Vec<Lum64f> polynomial(Vec<Lum64f> r) {
    const auto square = r * r;
    if constexpr (tier == Tier::low)
      return horner_of_pairs(r, square, f64(0x3FD55554B9AD3FAD, 0.33333318836684606),
                             f64(0xBFBC71C22FD7918A, -0.1111108176042476), f64(0x3FAFAE4431211E62, 0.061876421925771266),
                             f64(0xBFA5270E22838B58, -0.04131359263717255));
    else
      return horner_of_pairs(r, square, f64(0x3FD5555555555557, 0.3333333333333334),
                             f64(0xBFBC71C71C71C741, -0.11111111111111162), f64(0x3FAF9ADD3C0B7E31, 0.06172839506120587),
                             f64(0xBFA511E8D2B0363E, -0.041152263373174666), f64(0x3F9EE71141DCF569, 0.030178327221837806),
                             f64(0xBF98090D77F2468E, -0.02347203297228489), f64(0x3F9374ED9398B914, 0.019000732549266777),
                             f64(0xBF9036B87C71D55F, -0.015833742709636108), f64(0x3F8BDA24BAE48875, 0.013599669412148277),
                             f64(0xBF882E3B6ADECA62, -0.011806930731698976));
  }
};

template <class T, Tier tier> struct CbrtKernel : Kernel<T> {
  static constexpr int vectors = thirds_vectors<T, tier>;
  static constexpr Variant variant = pure_vector_variant;
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) {
    return or_sign(x, ThirdsMagnitude<Scheme, tier>(ReduceThirds<Scheme::power>(x)));
  }
};

}  // namespace

LumStatus Cbrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<CbrtKernel<Lum32f, Tier::low>>(src, dst, len);
}
LumStatus Cbrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<CbrtKernel<Lum32f, Tier::mid>>(src, dst, len);
}
LumStatus Cbrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<CbrtKernel<Lum32f, Tier::high>>(src, dst, len);
}
LumStatus Cbrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<CbrtKernel<Lum64f, Tier::low>>(src, dst, len);
}
LumStatus Cbrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<CbrtKernel<Lum64f, Tier::mid>>(src, dst, len);
}
LumStatus Cbrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<CbrtKernel<Lum64f, Tier::high>>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
