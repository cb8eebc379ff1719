// ln x = base + base_tail + ln(1 + r) of the reduction by a reciprocal in binary64, tier by tier, for the logarithms of real
// and complex numbers. With base 0 the sum is ln(1 + r), |r| <= 1/16, to the same relative accuracy.
#pragma once

#include "explog/logarithm_reduction.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

struct LogarithmTerms {
  Vec<Lum64f> base, base_tail, r;
};

// One part each of ln 2 and the table.
struct ShortLnTerms {
  static constexpr int refused_classes = classes::zero | classes::infinity | classes::negative;  // a NaN passes through
  static LUM_INLINE LogarithmTerms Terms(const ReciprocalReduction& a) {
    static constexpr auto rows = table64({
#include "tables/generated/ln_8.inc"
    });
    const auto base = fma(a.e, all(f64(0x3FE62E42FEFA39EF, 0.6931471805599453)), permute(load<Lum64f>(rows), a.j));
    return {base, all(0.0), a.r};
  }
  // For an argument that is larger by the factor 1 + x, |x| below 2^-50.
  static LUM_INLINE LogarithmTerms Corrected(const LogarithmTerms& t, Vec<Lum64f> x) { return {t.base, t.base_tail, t.r + x}; }
  // p is (ln(1 + r) - r) / r^2.
  static LUM_INLINE Vec<Lum64f> Join(const LogarithmTerms& t, Vec<Lum64f> p) { return t.base + fma(p, t.r * t.r, t.r); }
};

struct LnTerms_A26 : ShortLnTerms {
  static LUM_INLINE Vec<Lum64f> Sum(const LogarithmTerms& t) {
    return Join(t, horner(t.r, f64(0xBFE00000006661EF, -0.5000000007449311), f64(0x3FD555502024AAB1, 0.3333320917032934),
                          f64(0xBFCFFFF289B15435, -0.2499983951881021), f64(0x3FC9B53BE7EAD47D, 0.2008433229836192),
                          f64(0xBFC570FAD80A4B64, -0.16751037167395133)));
  }
};

struct LnTerms_A50 : ShortLnTerms {
  static LUM_INLINE Vec<Lum64f> Sum(const LogarithmTerms& t) {
    return Join(t, horner(t.r, f64(0xBFE0000000000007, -0.5000000000000008), f64(0x3FD555555554C04A, 0.3333333333312153),
                          f64(0xBFCFFFFFFFFDC42C, -0.24999999999593692), f64(0x3FC99999A2DFBB47, 0.20000000431852014),
                          f64(0xBFC5555562046F41, -0.16666667257310944), f64(0x3FC2490ABAA89CDE, 0.14285406221572478),
                          f64(0xBFBFFFC5826CF903, -0.12499651369305202), f64(0x3FBCAC8227F9F69E, 0.11200726963030624),
                          f64(0xBFB9D45BAFA806C9, -0.10089657820210642)));
  }
};

struct LnTerms_A53 {
  static constexpr int refused_classes = classes::not_positive_finite;
  static LUM_INLINE LogarithmTerms Terms(const ReciprocalReduction& a) {
    static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/ln_8_pairs.inc"
    }));
    const auto base = fma(a.e, all(f64(0x3FE62E42FEFA0000, 0.6931471805582987)), permute(load<Lum64f>(pairs), a.j));  // exact
    const auto tail = fma(a.e, all(f64(0x3D7CF79ABC9E0000, 1.6465949582866463e-12)), permute(load(pairs + 8), a.j));
    return {base, tail, a.r};
  }
  static LUM_INLINE LogarithmTerms Corrected(const LogarithmTerms& t, Vec<Lum64f> x) { return {t.base, t.base_tail + x, t.r}; }
  static LUM_INLINE Vec<Lum64f> Sum(const LogarithmTerms& t) {
    const auto s = t.base + t.r;
    const auto u = t.r - (s - t.base);
    const auto p = horner(t.r, f64(0xBFE0000000000008, -0.5000000000000009), f64(0x3FD5555555555580, 0.3333333333333357),
                          f64(0xBFCFFFFFFFFDA662, -0.24999999999572525), f64(0x3FC9999999959EA2, 0.1999999999927598),
                          f64(0xBFC55555626F41E5, -0.166666672767419), f64(0x3FC24924A36E51FF, 0.1428571508410101),
                          f64(0xBFBFFFC466AF551D, -0.12499644762950309), f64(0x3FBC718497BDD31F, 0.1111071463072446),
                          f64(0xBFB9D4D94C6A34BD, -0.10090406528088898), f64(0x3FB7811843796ACA, 0.09181358001061848));
    return s + (fma(p, t.r * t.r, u) + t.base_tail);
  }
};

}  // namespace lum::inline LUM_LAYER
