// ln x = base + base_tail + ln(1 + r) of the reduction by a reciprocal in binary64, tier by tier, for the logarithms of real
// and complex numbers. With base 0 the sum is ln(1 + r), |r| <= 1/16, to the same relative accuracy.
#pragma once

#include "explog/logarithm_reduction.h"
#include "explog/polynomials.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::explog {

struct LogarithmTerms {
  Vec<Lum64f> base, base_tail, r;
};

// One part each of ln 2 and the table.
struct ShortLnTerms {
  static constexpr int refused_classes = refused_by_logarithms;
  static LUM_INLINE LogarithmTerms Terms(const ReciprocalReduction& a) {
    static constexpr auto rows = table64({
#include "tables/generated/minus_ln_64f_8.inc"
    });
    const auto base = fma(a.e, all(numbers::ln2<Lum64f>), permute(load<Lum64f>(rows), a.j));
    return {base, all(0.0), a.r};
  }
  // For an argument that is larger by the factor 1 + x, |x| below 2^-50.
  static LUM_INLINE LogarithmTerms Corrected(const LogarithmTerms& t, Vec<Lum64f> x) { return {t.base, t.base_tail, t.r + x}; }
  // p is (ln(1 + r) - r) / r^2.
  static LUM_INLINE Vec<Lum64f> Join(const LogarithmTerms& t, Vec<Lum64f> p) { return t.base + fma(p, t.r * t.r, t.r); }
};

struct LnTerms_A26 : ShortLnTerms {
  static LUM_INLINE Vec<Lum64f> Sum(const LogarithmTerms& t) { return Join(t, horner(t.r, explog::ln_A26)); }
};

struct LnTerms_A50 : ShortLnTerms {
  static LUM_INLINE Vec<Lum64f> Sum(const LogarithmTerms& t) { return Join(t, horner(t.r, explog::ln_A50)); }
};

struct LnTerms_A53 {
  static constexpr int refused_classes = classes::not_positive_finite;
  static LUM_INLINE LogarithmTerms Terms(const ReciprocalReduction& a) {
    static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/minus_ln_64f_8_pairs.inc"
    }));
    const auto base = fma(a.e, all(numbers::ln2_head<Lum64f>), permute(load<Lum64f>(pairs), a.j));  // exact
    const auto tail = fma(a.e, all(numbers::ln2_rest<Lum64f>), permute(load(pairs + 8), a.j));
    return {base, tail, a.r};
  }
  static LUM_INLINE LogarithmTerms Corrected(const LogarithmTerms& t, Vec<Lum64f> x) { return {t.base, t.base_tail + x, t.r}; }
  static LUM_INLINE Vec<Lum64f> Sum(const LogarithmTerms& t) {
    const auto s = fast_two_sum(t.base, t.r);
    const auto p = horner(t.r, explog::ln_A53);
    return s.head + (fma(p, t.r * t.r, s.tail) + t.base_tail);
  }
};

}  // namespace lum::inline LUM_LAYER::explog
