// The natural logarithm. With x = 2^e m and c a reciprocal of m of a few bits:  ln x = e ln 2 - ln c + ln(1 + r), r = c m - 1.
// -ln c comes from a table in registers, ln(1 + r) from a polynomial. 32f A11 and A21 have no c but a polynomial for each of
// sixteen segments of m. 64f A53 and 32f A24 carry e ln 2 - ln c in two parts. 32f A24 takes the reciprocal of x itself and has
// a second way for the arguments whose reciprocal is no normal number. In the two high tiers a NaN goes to the lane routine
// with the other special arguments; elsewhere it passes through.
#include "explog/ln_terms.h"
#include "explog/logarithm_routine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace explog;

using Float = LogarithmKernel<Lum32f, LnRoutine<Lum32f>>;
using Double = LogarithmKernel<Lum64f, LnRoutine<Lum64f>>;

constexpr auto segments_of_degree_3 = by_columns<3>(table32({
#include "tables/generated/ln_segments_32f_16_degree_3.inc"
}));
constexpr auto segments_of_degree_4 = by_columns<4>(table32({
#include "tables/generated/ln_segments_32f_16_degree_4.inc"
}));
using A11_32f = SegmentKernel<LnRoutine<Lum32f>, segments_of_degree_3, numbers::ln2<Lum32f>>;
using A21_32f = SegmentKernel<LnRoutine<Lum32f>, segments_of_degree_4, numbers::ln2<Lum32f>>;

struct A24_32f : Float {
  // hi, then lo.
  static constexpr auto inverse = by_columns<2>(table32({
#include "tables/generated/minus_ln_above_one_32f_16_pairs.inc"
  }));
  static constexpr auto half_inverse = by_columns<2>(table32({
#include "tables/generated/minus_ln_below_one_32f_16_pairs.inc"
  }));

  // hi + lo + ln(1 + r), where hi is 0 or larger than r.
  static LUM_INLINE Vec<Lum32f> Join(Vec<Lum32f> hi, Vec<Lum32f> lo, Vec<Lum32f> r) {
    const auto s = fast_two_sum(hi, r);
    const auto p = horner(r, explog::ln_A24);
    return s.head + (s.tail + fma(p, r * r, lo));
  }

  // By the reciprocal of the significand: for denormal x, and for x so large that 1/x is denormal or zero.
  static LUM_INLINE Vec<Lum32f> SecondLevel(Vec<Lum32f> x) {
    const auto m = getmant<significand::from_half_to_1 | significand::nan_if_negative>(x);
    const auto c = rndscale<binary_places(4) | quiet>(rcp14(m));
    const auto k = getexp(x) - getexp(c);  // one less only where c was rounded up to 2
    const auto r = fms(c, m, all(1.0f));
    const auto j = shift_right<19>(bits(c));
    const auto hi = fma(k, all(numbers::ln2_short<Lum32f>), permute(load<Lum32f>(half_inverse), j));
    const auto lo = fma(k, all(numbers::ln2_short_tail<Lum32f>), permute(load(half_inverse + 16), j));
    return Join(hi, lo, r);
  }

  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    // Rounded to four fraction bits by integer arithmetic, which may carry into the exponent.
    const auto c = rcp14_halves_up<4>(x);
    const auto e = getexp_normal(c);  // of special lanes another one holds
    const auto r = fms(c, x, all(1.0f));
    const auto j = shift_right<19>(bits(c));
    const auto hi = fma(e, all(-numbers::ln2_short<Lum32f>), permute(load<Lum32f>(inverse), j));
    const auto lo = fma(e, all(-numbers::ln2_short_tail<Lum32f>), permute(load(inverse + 16), j));
    Lanes<Lum32f> lanes{Join(hi, lo, r), mask_of<Lum32f>(0)};
    // Every refused x has a special c, too.
    const auto special = fpclass<classes::not_positive_normal>(c);
    if (any(special)) [[unlikely]] {
      lanes.refused = fpclass<classes::not_positive_finite>(x);
      const auto second = special & ~lanes.refused;
      if (any(second)) lanes.value = select(second, SecondLevel(x), lanes.value);
    }
    return lanes;
  }
};

template <class Tier> struct ByReciprocal : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    return {Tier::Sum(Tier::Terms(ReduceByReciprocal<4>(x))), fpclass<Tier::refused_classes>(x)};
  }
};
using A26_64f = ByReciprocal<LnTerms_A26>;
using A50_64f = ByReciprocal<LnTerms_A50>;
using A53_64f = ByReciprocal<LnTerms_A53>;

}  // namespace

LumStatus Ln_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Ln_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Ln_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Ln_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Ln_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Ln_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
