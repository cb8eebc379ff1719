// arctan2(y, x), the angle of the point (x, y). No tier ever reports.
#include "frame/kernels.h"
#include "invcircular/atan2_path.h"
#include "invcircular/atan2_routine.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace invcircular;

template <class Path, int vectors_in_block = 2> struct TwoArguments : Kernel<typename Path::Element> {
  using T = typename Path::Element;
  static constexpr int vectors = vectors_in_block;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> y, Vec<T> x) { return Path::VectorPath(y, x); }
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> y, Vec<T> x, const Lanes<T>& lanes) { return Atan2OfSpecial(y, x, lanes); }
  static void LaneRoutine(T y, T x, T& result) { Atan2Routine(y, x, result); }
};

using Low_32f = TwoArguments<arctan2::Low<Lum32f>>;
using A21_32f = TwoArguments<arctan2::A21_32f>;
using A24_32f = TwoArguments<arctan2::A24_32f>;
using Low_64f = TwoArguments<arctan2::Low<Lum64f>>;
using A50_64f = TwoArguments<arctan2::A50_64f, 1>;
using A53_64f = TwoArguments<arctan2::A53_64f>;

}  // namespace

LumStatus Atan2_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<Low_32f>(src1, src2, dst, len);
}
LumStatus Atan2_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A21_32f>(src1, src2, dst, len);
}
LumStatus Atan2_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A24_32f>(src1, src2, dst, len);
}
LumStatus Atan2_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<Low_64f>(src1, src2, dst, len);
}
LumStatus Atan2_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A50_64f>(src1, src2, dst, len);
}
LumStatus Atan2_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A53_64f>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
