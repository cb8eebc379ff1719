// 1 / cbrt x: the scheme of thirds, with the sign of x copied to the result. The exponents of zeros, infinities and NaN have no
// third, which refuses them; denormals are ordinary numbers.
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "roots/thirds.h"

namespace lum::inline LUM_LAYER {
namespace {

// c^p of the reciprocals c, and what the rounded entries leave.
constexpr auto head_32f = table32({
#include "tables/generated/invcbrt_32_head.inc"
});
constexpr auto head_64f = table64({
#include "tables/generated/invcbrt_64_head.inc"
});
constexpr auto tail_32f = table32({
#include "tables/generated/invcbrt_32_tail.inc"
});
constexpr auto tail_64f = table64({
#include "tables/generated/invcbrt_64_tail.inc"
});

struct Scheme {
  static constexpr auto power = Power::minus_one_third;
  template <class T> static consteval const auto& head() { return of_type<T>(head_32f, head_64f); }
  template <class T> static consteval const auto& tail() { return of_type<T>(tail_32f, tail_64f); }
  template <Tier tier> static LUM_INLINE Vec<Lum32f> polynomial(Vec<Lum32f> r) {
    if constexpr (tier == Tier::low) return horner(r, f32(0xBEAABC10, -0.3334660530090332));
    else if constexpr (tier == Tier::mid)
      return horner(r, f32(0xBEAAAAAA, -0.3333333134651184), f32(0x3E63ACF8, 0.22233951091766357),
                    f32(0xBE311F14, -0.17297011613845825));
    else
      return horner(r, f32(0xBEAAAAA9, -0.333333283662796), f32(0x3E638E35, 0.22222216427326202),
                    f32(0xBE3128D2, -0.1730072796344757), f32(0x3E13A8E2, 0.1441989243030548));
  }
  template <Tier tier> static LUM_INLINE Vec<Lum64f> polynomial(Vec<Lum64f> r) {
    const auto square = r * r;
    if constexpr (tier == Tier::low)
      return horner_of_pairs(r, square, f64(0xBFD55555562C7918, -0.33333333411600696),
                             f64(0x3FCC71BF14DA34A3, 0.22222126501256864), f64(0xBFC61F8E7DB62D5E, -0.17283803118003055),
                             f64(0x3FC2850E4D89FDF4, 0.14468554292760383), f64(0xBFC011D13CBC14C3, -0.12554374185143588));
    else
      return horner_of_pairs(r, square, f64(0xBFD5555555555563, -0.3333333333333341),
                             f64(0x3FCC71C71C71C762, 0.22222222222222415), f64(0xBFC61F9ADD39F21E, -0.17283950616901306),
                             f64(0x3FC26FABB859141C, 0.144032921804098), f64(0xBFBFF4C356F55A30, -0.12482853768356317),
                             f64(0x3FBC67CA1F92050A, 0.11095870276223621), f64(0xBFB9B3079EB28FF6, -0.10038802742434413),
                             f64(0x3FB78EB9CF4988CD, 0.09202157316898081), f64(0xBFB6053C464E0B59, -0.08601738659312498),
                             f64(0x3FB492CBDC40DCD9, 0.08036493422774828));
  }
};

template <class T, Tier tier> struct InvCbrtKernel : Kernel<T> {
  static constexpr int vectors = thirds_vectors<T, tier>;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto a = ReduceThirds<Scheme::power>(x);
    return {or_sign(x, ThirdsMagnitude<Scheme, tier>(a)), unord(a.j, a.j)};
  }
  static LumStatus LaneRoutine(T x, T& result) {
    if (x == 0) {
      result = T(1) / x;
      return lumStsSingularity;
    }
    result = x != x ? x / x : T(0) / x;
    return lumStsOk;
  }
};

}  // namespace

LumStatus InvCbrt_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<InvCbrtKernel<Lum32f, Tier::low>>(src, dst, len);
}
LumStatus InvCbrt_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<InvCbrtKernel<Lum32f, Tier::mid>>(src, dst, len);
}
LumStatus InvCbrt_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<InvCbrtKernel<Lum32f, Tier::high>>(src, dst, len);
}
LumStatus InvCbrt_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<InvCbrtKernel<Lum64f, Tier::low>>(src, dst, len);
}
LumStatus InvCbrt_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<InvCbrtKernel<Lum64f, Tier::mid>>(src, dst, len);
}
LumStatus InvCbrt_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<InvCbrtKernel<Lum64f, Tier::high>>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
