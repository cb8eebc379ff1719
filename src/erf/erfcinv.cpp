// The inverse of erfc, of the smaller q of x and 2 - x; x > 1 turns the sign. In binary64 a large table of expansion points and
// a series; in binary32 a polynomial on each binade of q. Arguments too close to 0 or 2, and in binary64 also 1, go to a lane
// routine.
#include <type_traits>

#include "erf/inverse_polynomials.h"
#include "erf/inverse_routine.h"
#include "erf/inverse_rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace erf;

// The refused lanes hold 1, numbers next to 0 and 2, and those outside of the domain.
template <class T> struct ComplementInverse : Kernel<T> {
  static constexpr bool refuses_by_class = true;
  static LumStatus LaneRoutine(T x, T& result) {
    return FinishEnds(
        x, T(2), true, [](double q) { return ErfcInvOfTail(q).head; }, result);
  }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto of_tail = [](Vec<Lum64f> q) __attribute__((always_inline)) {
      // No number of binary32 is so near to 2.
      if constexpr (std::is_same_v<T, Lum32f>) return NearErfcInvOfTail(q);
      else return xor_sign(all(1.0) - q, ErfcInvOfTail(min(q, all(2.0) - q)).head);
    };
    return FinishEnds(x, lanes, T(2), true, of_tail);
  }
};

template <int degree> struct OfDegree : ComplementInverse<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto q = min(all(2.0f) - x, x);  // a NaN stays one
    const auto s = all(1.0f) - q;
    const auto magnitude = EvaluatePolynomial<ErrorPolynomials<degree>, degree>(q, s, nlt(q, all(0.5f)));
    return {xor_sign(all(1.0f) - x, magnitude), nle(all(0x1p-24f), q)};
  }
};
using A11_32f = OfDegree<3>;
using A21_32f = OfDegree<7>;
using A24_32f = OfDegree<9>;

template <Expanded tier> struct Double : ComplementInverse<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [q, refused] = ClampTo(0x1p-35, 0x1.fffffffffffffp-1, min(all(2.0) - x, x));
    const auto e = Expand<Node::below>(min(all(1.0) - q, q), nlt(q, all(0.5)), 0x1p-53);
    return {xor_sign(all(1.0) - x, SumOf<tier>(e.y, e.tail, negate(e.d))), refused};
  }
};
using A26_64f = Double<Expanded{.terms = 3, .has_tail = false}>;
using A50_64f = Double<Expanded{.terms = 6, .has_tail = false}>;
using A53_64f = Double<Expanded{.terms = 7, .has_tail = true}>;

}  // namespace

LumStatus ErfcInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus ErfcInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus ErfcInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus ErfcInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus ErfcInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus ErfcInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
