// The quantile of the normal distribution, cdfnorminv p = -sqrt 2 erfcinv(2 p), for the smaller of p and 1 - p, whose quantile
// is negative; p > 1/2 turns the sign. In binary64 a large table of expansion points and a series; in binary32 a polynomial on
// each binade of the smaller. Arguments too close to 0 or 1, and 1/2 itself, go to a lane routine.
#include <type_traits>

#include "erf/inverse_polynomials.h"
#include "erf/inverse_routine.h"
#include "erf/inverse_rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace erf;

constexpr auto minus_root2 = -numbers::root_two_parts<Lum64f>[0];
constexpr auto minus_root2_rest = -numbers::root_two_parts<Lum64f>[1];

// The quantile of a small p.
template <class V> LUM_INLINE V QuantileOfTail(V p) {
  const V root2 = Constant<V>(minus_root2);
  const TwoParts<V> y = ErfcInvOfTail(p + p);
  const V head = y.head * root2;
  const V rest = fma(y.head, root2, negate(head)) + (y.head * Constant<V>(minus_root2_rest) + y.tail * root2);
  return head + rest;
}

// The refused lanes hold 1/2, numbers next to 0 and 1, and those outside of the domain.
template <class T> struct NormalInverse : Kernel<T> {
  static constexpr bool refuses_by_class = true;
  static LumStatus LaneRoutine(T x, T& result) { return FinishEnds(x, T(1), false, QuantileOfTail<double>, result); }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto of_tail = [](Vec<Lum64f> p) __attribute__((always_inline)) {
      // No number of binary32 is so near to 1.
      if constexpr (std::is_same_v<T, Lum32f>) return NearErfcInvOfTail(p + p) * all(minus_root2);
      else return xor_sign(all(0.5) - p, QuantileOfTail(min(p, all(1.0) - p)));
    };
    return FinishEnds(x, lanes, T(1), false, of_tail);
  }
};

template <int degree> struct FloatTable;
template <> struct FloatTable<3> {
  static constexpr auto table = table32({
#include "tables/generated/cdfnorminv_32f_32_degree_3.inc"
  });
};
template <> struct FloatTable<7> {
  static constexpr auto table = table32({
#include "tables/generated/cdfnorminv_32f_32_degree_7.inc"
  });
};
template <> struct FloatTable<9> {
  static constexpr auto table = table32({
#include "tables/generated/cdfnorminv_32f_32_degree_9.inc"
  });
  static constexpr auto centre_rest = numbers::root_two_pi_parts<Lum32f>[1];  // sqrt(2 pi) less its binary32 number
};

template <int degree> struct OfDegree : NormalInverse<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto p = min(all(1.0f) - x, x);  // a NaN stays one
    const auto s = all(0.5f) - p;
    const auto magnitude = EvaluatePolynomial<FloatTable<degree>, degree>(p, s, nlt(p, all(0.25f)));
    return {xor_sign(x - all(0.5f), magnitude), nle(all(0x1p-24f), p)};
  }
};
using A11_32f = OfDegree<3>;
using A21_32f = OfDegree<7>;
using A24_32f = OfDegree<9>;

struct NormalSeries {
  static constexpr auto c1 = numbers::quantile_series_1<Lum64f>, c2 = numbers::quantile_series_2<Lum64f>;
  static constexpr auto& c3 = numbers::quantile_series_3<Lum64f>;
  static constexpr auto& c4 = numbers::quantile_series_4<Lum64f>;
  static constexpr auto& c5 = numbers::quantile_series_5<Lum64f>;
  static constexpr auto& c6 = numbers::quantile_series_6<Lum64f>;
  static constexpr auto& c7 = numbers::quantile_series_7<Lum64f>;
};

template <Expanded tier> struct Double : NormalInverse<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [p, refused] = ClampTo(0x1p-35, 0x1.fffffffffffffp-2, min(all(1.0) - x, x));
    const auto e = Expand<Node::below>(min(all(0.5) - p, p), nlt(p, all(0.25)), 0x1p-54);
    const auto series = SeriesOf<NormalSeries, tier.terms>(e.y, e.d);
    const auto head = e.y * all(minus_root2);
    auto result = fma(series, e.d, head);
    if constexpr (tier.has_tail) {
      const auto rounding = fms(e.y, all(minus_root2), head);
      const auto rest = fma(head, e.tail, fma(e.y, all(minus_root2_rest), rounding));
      result = head + fma(series, e.d, rest);
    }
    return {xor_sign(all(0.5) - x, result), refused};
  }
};
using A26_64f = Double<Expanded{.terms = 3, .has_tail = false}>;
using A50_64f = Double<Expanded{.terms = 6, .has_tail = false}>;
using A53_64f = Double<Expanded{.terms = 7, .has_tail = true}>;

}  // namespace

LumStatus CdfNormInv_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus CdfNormInv_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus CdfNormInv_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus CdfNormInv_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus CdfNormInv_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus CdfNormInv_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
