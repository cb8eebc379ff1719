// acosh x = ln(x + t), t = sqrt(x^2 - 1): x^2 - 1, root and sum in two parts and the logarithm of
// hyperbolic/inverse_hyperbolic.h. Next to 1 the result is asinh t by its series, for large x ln 2x, both by masks. The low
// tiers carry one part. Arguments up to 1, infinity and NaN go to the lane routine.
#include <limits>

#include "frame/kernels.h"
#include "hyperbolic/inverse_hyperbolic.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace hyperbolic;

template <class T> struct Routine : Kernel<T> {
  static constexpr T fill = T(2.5);
  static LumStatus LaneRoutine(T x, T& result) {
    if (x < 1) {
      result = outside_domain_of<T>;
      return lumStsDomain;
    }
    result = x == 1 ? T(0) : x * x;
    return lumStsOk;
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto outside = lt(x, all(T(1)));
    auto value = select(nle(x, all(T(1))), x + x, all(T(0)));
    value = select(outside, all(outside_domain_of<T>), value);
    return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.domain = outside}};
  }
};

template <class T> LUM_INLINE Mask<T> Refused(Vec<T> x) {
  return le(x, all(T(1))) | nle(x, all(std::numeric_limits<T>::max()));
}

template <class T, class Series, class Ratio> struct Low : Routine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto w = fms(x, x, all(T(1)));
    const auto t = ShortRootOf(w);
    const auto large = IsLarge(x);
    const auto log = ShortLogarithm(EighthIf(large, x, x + t), large, Ratio());
    const auto series = fma(t, w * Series::Of(w), t);
    return {select(lt(w, all(T(Series::acosh_bound))), series, log), Refused(x)};
  }
};

template <class T, class Series, LeadingSum leading_sum> struct Long : Routine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto one = all(T(1));
    const auto x2 = x * x;
    const auto w = x2 - one;
    const auto w_tail = ((x2 - w) - one) + fms(x, x, x2);
    const auto t = RootOf<Sums::from_zero>(w, w_tail);
    const auto large = IsLarge(x);
    const auto sum = fast_two_sum(x, t.head);
    const auto tail = zero_unless(lt(x, all(large_bound<T>)), sum.tail + t.tail);
    const auto log = LongLogarithm<leading_sum>(EighthIf(large, x, sum.head), tail, large);
    const auto series = t.head + fma(t.head + t.tail, w * Series::Of(w), t.tail);
    return {select(lt(w, all(T(Series::acosh_bound))), series, log), Refused(x)};
  }
};

using A11_32f = Low<Lum32f, FloatSeries, A11Ratio>;
using A21_32f = Long<Lum32f, FloatSeries, LeadingSum::rounded>;
using A24_32f = Long<Lum32f, FloatSeries, LeadingSum::compensated>;
using A26_64f = Low<Lum64f, A26Series, A26Ratio>;
using A50_64f = Long<Lum64f, A50Series, LeadingSum::rounded>;
using A53_64f = Long<Lum64f, A53Series, LeadingSum::compensated>;

}  // namespace

LumStatus Acosh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Acosh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Acosh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Acosh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Acosh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Acosh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
