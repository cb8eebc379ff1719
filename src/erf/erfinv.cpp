// The inverse of erf, erfinv x = erfcinv(1 - |x|) with the sign of x. In binary64 a large table of expansion points and a
// series, the distance from the nearer end of the interval from 0 to 1 being |x| itself or 1 - |x|, which is exact; in binary32
// a polynomial on each binade of 1 - |x|. In binary64 arguments next to 0 go to a lane routine.
#include "erf/inverse_polynomials.h"
#include "erf/inverse_routine.h"
#include "erf/inverse_rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace erf;

// The function of any argument; the refused lanes hold numbers next to 0, the ends of the domain, and those outside of it.
template <class T> LumStatus FinishRefused(T x, T& result) {
  if (x != x) {
    result = x * x;
  } else if (x == 1 || x == -1) {
    return Pole(x > 0, result);
  } else if (x < -1 || x > 1) {
    return OutsideDomain(result);
  } else if (x == 0) {
    result = x;
  } else {  // the next term of the series is far below the last place
    const double a = x;
    result = static_cast<T>(scalar_fma(a, numbers::half_root_pi_parts<Lum64f>[0], a * numbers::half_root_pi_parts<Lum64f>[1]));
  }
  return lumStsOk;
}

// In the lanes that a first path refuses.
template <class T> LUM_INLINE Finished<T> FinishRefused(Vec<T> x, const Lanes<T>& lanes) {
  const auto a = abs(x);
  const auto pole = eq(a, all(T(1))), outside = lt(all(T(1)), a);
  auto value = x + x;
  if constexpr (sizeof(T) == sizeof(Lum64f)) {
    const auto next_to_zero = fma(x, all(numbers::half_root_pi_parts<T>[0]), x * all(numbers::half_root_pi_parts<T>[1]));
    value = select(lt(a, all(T(0.5))), select(fpclass<classes::zero>(x), x, next_to_zero), value);
  }
  value = select(pole, or_sign(x, all(std::numeric_limits<T>::infinity())), value);
  value = select(outside, all(std::numeric_limits<T>::quiet_NaN()), value);
  return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.domain = outside, .singularity = pole}};
}
template <class T> struct InverseKernel : Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) { return FinishRefused(x, result); }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return FinishRefused(x, lanes); }
};

template <int degree> struct OfDegree : InverseKernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = abs(x);
    const auto q = all(1.0f) - a;
    const auto magnitude = EvaluatePolynomial<ErrorPolynomials<degree>, degree>(q, a, nlt(q, all(0.5f)));
    return {or_sign(x, magnitude), nle(all(0x1p-24f), q)};
  }
};
using A11_32f = OfDegree<3>;
using A21_32f = OfDegree<7>;
using A24_32f = OfDegree<9>;

template <Expanded tier> struct Double : InverseKernel<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [a, refused] = ClampTo(0x1p-35, 0x1.fffffffffffffp-1, abs(x));
    const auto e = Expand<Node::above>(min(all(1.0) - a, a), lt(a, all(0.5)), 0x1p-53);
    return {or_sign(x, SumOf<tier>(e.y, e.tail, e.d)), refused};
  }
};
using A26_64f = Double<Expanded{.terms = 3, .has_tail = false}>;
using A50_64f = Double<Expanded{.terms = 6, .has_tail = false}>;
using A53_64f = Double<Expanded{.terms = 7, .has_tail = true}>;

}  // namespace

LumStatus ErfInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus ErfInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus ErfInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus ErfInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus ErfInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus ErfInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
