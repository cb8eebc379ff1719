// The natural logarithm. With x = 2^e m and c a reciprocal of m of a few bits:  ln x = e ln 2 - ln c + ln(1 + r), r = c m - 1.
// -ln c comes from a table in registers, ln(1 + r) from a polynomial. 32f A11 and A21 have no c but a polynomial for each of
// sixteen segments of m. 64f A53 and 32f A24 carry e ln 2 - ln c in two parts. 32f A24 takes the reciprocal of x itself and has
// a second way for the arguments whose reciprocal is no normal number.
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
  static LUM_INLINE Vec<Lum32f> SecondLevel(const Parts<Lum32f>& parts) {
    const auto [m, e] = parts;
    const auto c = rndscale<binary_places(4) | quiet>(rcp14_normal(m));
    const auto k = e - getexp_normal(c);  // one less only where c was rounded up to 2
    const auto r = fms(c, m, all(1.0f));
    const auto j = shift_right<19>(bits(c));
    const auto hi = fma(k, all(numbers::ln2_short<Lum32f>), permute(load<Lum32f>(half_inverse), j));
    const auto lo = fma(k, all(numbers::ln2_short_tail<Lum32f>), permute(load(half_inverse + 16), j));
    return Join(hi, lo, r);
  }

  // By the reciprocal of x, rounded to four fraction bits by integer arithmetic, which may carry into the exponent.
  static LUM_INLINE Vec<Lum32f> FirstLevel(Vec<Lum32f> x, Vec<Lum32f> c) {
    const auto e = getexp_normal(c);  // of special lanes another one holds
    const auto r = fms(c, x, all(1.0f));
    const auto j = shift_right<19>(bits(c));
    const auto hi = fma(e, all(-numbers::ln2_short<Lum32f>), permute(load<Lum32f>(inverse), j));
    const auto lo = fma(e, all(-numbers::ln2_short_tail<Lum32f>), permute(load(inverse + 16), j));
    return Join(hi, lo, r);
  }
  static LUM_INLINE Vec<Lum32f> SecondLevel(Vec<Lum32f> x) {
    if constexpr (estimates_take_all) return SecondLevel(parts<significand::from_half_to_1 | significand::nan_if_negative>(x));
    else return SecondLevel(PartsOfFinite<significand::from_half_to_1>(x));
  }

  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    if constexpr (estimates_take_all) {
      const auto c = rcp14_halves_up<4>(x);
      Lanes<Lum32f> lanes{FirstLevel(x, c), mask_of<Lum32f>(0)};
      // Every refused x has a special c, too.
      const auto special = fpclass<classes::not_positive_normal>(c);
      if (any(special)) [[unlikely]] {
        lanes.refused = fpclass<classes::not_positive_finite>(x);
        const auto second = special & ~lanes.refused;
        if (any(second)) lanes.value = select(second, SecondLevel(x), lanes.value);
      }
      return lanes;
    } else {
      const auto inside = le(all(0x1p-126f), x) & lt(x, all(0x1p126f));
      return {FirstLevel(x, rcp14_halves_up_normal<4>(x)), ~inside};
    }
  }
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    auto result = LogarithmOfSpecial(x, lanes);
    if constexpr (!estimates_take_all) {
      const auto others = result.refused;
      if (any(others)) {
        const auto a = select(others, x, all(1.0f));
        auto value = SecondLevel(a);
        // Next to both ends the rounded reciprocal may be a normal number.
        const auto at_ends = (le(all(0x1p-128f), x) & lt(x, all(0x1p-126f))) | (le(all(0x1p126f), x) & le(x, all(0x1p127f)));
        if (any(others & at_ends)) {
          const auto c = rcp14_halves_up<4>(a);
          value = select(fpclass<classes::not_positive_normal>(c), value, FirstLevel(a, c));
        }
        result.value = select(others, value, result.value);
      }
      result.refused = mask_of<Lum32f>(0);
    }
    return result;
  }
};

template <class Tier> struct ByReciprocal : LogarithmOfParts<Lum64f, LnRoutine<Lum64f>, ByReciprocal<Tier>> {
  static constexpr int interval = significand::from_1_to_2;
  static constexpr int refused_classes = Tier::refused_classes;
  static LUM_INLINE Vec<Lum64f> OfParts(const Parts<Lum64f>& parts) {
    return Tier::Sum(Tier::Terms(ReduceByReciprocal<4>(parts)));
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
