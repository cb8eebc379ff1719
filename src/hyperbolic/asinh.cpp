// asinh x = ln(a + sqrt(a^2 + 1)) with a = |x| and the sign of x: sum and root in two parts and the logarithm of
// hyperbolic/inverse_hyperbolic.h. Small lanes take a series, down to the denormals, large ones ln 2a, by masks. The low tiers
// carry one part. Infinities and NaN are finished apart; nothing ever reports.
#include <limits>

#include "frame/kernels.h"
#include "hyperbolic/inverse_hyperbolic.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace hyperbolic;

template <class T> struct Routine : Kernel<T> {
  static void LaneRoutine(T x, T& result) { result = x + x; }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return {select(lanes.refused, x + x, lanes.value), mask_of<T>(0)};
  }
};

// log is the result of ordinary and large lanes.
template <class Series, class T> LUM_INLINE Lanes<T> Finish(Vec<T> x, Vec<T> a, Vec<T> x2, Vec<T> log) {
  const auto series = fma(a, x2 * Series::Of(x2), a);
  const auto v = select(lt(a, all(T(Series::asinh_bound))), series, log);
  return {as_float(ternary<A ^ B ^ C>(bits(v), bits(a), bits(x))), nle(a, all(std::numeric_limits<T>::max()))};
}

template <class T, class Series, class Ratio> struct Low : Routine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto a = abs(x);
    const auto x2 = x * x;
    const auto large = IsLarge(a);
    const auto sum = EighthIf(large, a, a + ShortRootOf(x2 + all(T(1))));
    return Finish<Series>(x, a, x2, ShortLogarithm(sum, large, Ratio()));
  }
};

template <class T, class Series, LeadingSum leading_sum> struct Long : Routine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto one = all(T(1));
    const auto a = abs(x);
    const auto x2 = x * x;
    const auto large = IsLarge(a);
    const auto s = fast_two_sum(max(one, x2), min(one, x2));
    const auto root = RootOf<Sums::from_one>(s.head, s.tail + fms(x, x, x2));
    const auto sum = fast_two_sum(root.head, a);
    const auto tail = zero_unless(lt(a, all(large_bound<T>)), sum.tail + root.tail);
    const auto log = LongLogarithm<leading_sum>(EighthIf(large, a, sum.head), tail, large);
    return Finish<Series>(x, a, x2, log);
  }
};

using A11_32f = Low<Lum32f, FloatSeries, A11Ratio>;
using A21_32f = Long<Lum32f, FloatSeries, LeadingSum::rounded>;
using A24_32f = Long<Lum32f, FloatSeries, LeadingSum::compensated>;
using A26_64f = Low<Lum64f, A26Series, A26Ratio>;
using A50_64f = Long<Lum64f, A50Series, LeadingSum::rounded>;
using A53_64f = Long<Lum64f, A53Series, LeadingSum::compensated>;

}  // namespace

LumStatus Asinh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Asinh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Asinh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Asinh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Asinh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Asinh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
