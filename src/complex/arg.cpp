// The angle arctan2(im, re) in [-pi, pi], by the arctangent of two arguments at the same tag. Nothing is reported.
#include "frame/kernels.h"
#include "invcircular/atan2_path.h"
#include "invcircular/atan2_routine.h"

namespace lum::inline LUM_LAYER {
namespace {

template <class E, class Path> struct ArgKernel : Kernel<E, Real<E>> {
  static constexpr int vectors = 1;
  static LUM_INLINE Lanes<Real<E>> VectorPath(Packed<E> packed) {
    const auto z = split(packed);
    return Path::VectorPath(z.im, z.re);
  }
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static constexpr bool second_is_short = true;
  static LUM_INLINE Lanes<Real<E>> SecondPath(Packed<E> packed, const Lanes<Real<E>>& lanes) {
    const auto z = split(packed);
    return invcircular::Atan2OfSpecial(z.im, z.re, lanes);
  }
  static void LaneRoutine(const E& z, Real<E>& result) { invcircular::Atan2Routine(z.im, z.re, result); }
};

using A11_32fc = ArgKernel<Lum32fc, invcircular::arctan2::Low<Lum32f>>;
using A21_32fc = ArgKernel<Lum32fc, invcircular::arctan2::A21_32f>;
using A24_32fc = ArgKernel<Lum32fc, invcircular::arctan2::A24_32f>;
using A26_64fc = ArgKernel<Lum64fc, invcircular::arctan2::Low<Lum64f>>;
using A50_64fc = ArgKernel<Lum64fc, invcircular::arctan2::A50_64f>;
using A53_64fc = ArgKernel<Lum64fc, invcircular::arctan2::A53_64f>;

}  // namespace

LumStatus Arg_32fc_A11(const Lum32fc* src, Lum32f* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus Arg_32fc_A21(const Lum32fc* src, Lum32f* dst, int32_t len) { return OneInput<A21_32fc>(src, dst, len); }
LumStatus Arg_32fc_A24(const Lum32fc* src, Lum32f* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus Arg_64fc_A26(const Lum64fc* src, Lum64f* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus Arg_64fc_A50(const Lum64fc* src, Lum64f* dst, int32_t len) { return OneInput<A50_64fc>(src, dst, len); }
LumStatus Arg_64fc_A53(const Lum64fc* src, Lum64f* dst, int32_t len) { return OneInput<A53_64fc>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
