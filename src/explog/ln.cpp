// The natural logarithm. With x = 2^e m and c a reciprocal of m of a few bits:  ln x = e ln 2 - ln c + ln(1 + r), r = c m - 1.
// -ln c comes from a table in registers, ln(1 + r) from a polynomial. 32f A11 and A21 have no c but a polynomial for each of
// sixteen segments of m. 64f A53 and 32f A24 carry e ln 2 - ln c in two parts. 32f A24 takes the reciprocal of x itself and has
// a second way for the arguments whose reciprocal is no normal number. In the two high tiers a NaN goes to the lane routine
// with the other special arguments; elsewhere it passes through.
#include "explog/logarithm_reduction.h"
#include "explog/logarithm_routine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum {
namespace {

struct Float : Kernel<Lum32f> {
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return LnRoutine(x, result); }
};
struct Double : Kernel<Lum64f> {
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return LnRoutine(x, result); }
};

constexpr auto ln2_float = f32(0x3F317218, 0.6931471824645996);

struct A11_32f : Float {
  static constexpr auto columns = by_columns<3>(table32({
#include "tables/generated/ln_segments_3.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return {SegmentLogarithm<3>(x, columns, ln2_float), ZeroInfiniteOrNegative(x)};
  }
};

struct A21_32f : Float {
  static constexpr auto columns = by_columns<4>(table32({
#include "tables/generated/ln_segments_4.inc"
  }));
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return {SegmentLogarithm<4>(x, columns, ln2_float), ZeroInfiniteOrNegative(x)};
  }
};

struct A24_32f : Float {
  // hi, then lo.
  static constexpr auto inverse = by_columns<2>(table32({
#include "tables/generated/ln_float_16_pairs.inc"
  }));
  static constexpr auto half_inverse = by_columns<2>(table32({
#include "tables/generated/ln_float_16_half_pairs.inc"
  }));
  static constexpr auto ln2_hi = f32(0x3F317200, 0.693145751953125);
  static constexpr auto ln2_lo = f32(0x35BFBE8E, 1.428606765330187e-06);

  // hi + lo + ln(1 + r), where hi is 0 or larger than r.
  static LUM_INLINE Vec<Lum32f> Join(Vec<Lum32f> hi, Vec<Lum32f> lo, Vec<Lum32f> r) {
    const auto s = hi + r;
    const auto u = r - (s - hi);
    const auto p = horner(r, f32(0xBEFFFFE5, -0.49999919533729553), f32(0x3EAAAA84, 0.3333321809768677),
                          f32(0xBE806B6A, -0.25081950426101685), f32(0x3E4DA3BA, 0.20081987977027893));
    return s + (u + fma(p, r * r, lo));
  }

  // By the reciprocal of the significand: for denormal x, and for x so large that 1/x is denormal or zero.
  static LUM_INLINE Vec<Lum32f> SecondLevel(Vec<Lum32f> x) {
    const auto m = getmant<0xA>(x);
    const auto c = rndscale<0x48>(rcp14(m));
    const auto k = getexp(x) - getexp(c);  // one less only where c was rounded up to 2
    const auto r = fms(c, m, all(1.0f));
    const auto j = shift_right<19>(bits(c));
    const auto hi = fma(k, all(ln2_hi), permute(load<Lum32f>(half_inverse), j));
    const auto lo = fma(k, all(ln2_lo), permute(load(half_inverse + 16), j));
    return Join(hi, lo, r);
  }

  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    // Rounded to four fraction bits by integer arithmetic, which may carry into the exponent.
    const auto c = as_float((bits(rcp14(x)) + all(0x00040000u)) & all(0xFFF80000u));
    const auto e = getexp(c);
    const auto r = fms(c, x, all(1.0f));
    const auto j = shift_right<19>(bits(c));
    const auto hi = fma(e, all(-ln2_hi), permute(load<Lum32f>(inverse), j));
    const auto lo = fma(e, all(-ln2_lo), permute(load(inverse + 16), j));
    Lanes<Lum32f> lanes{Join(hi, lo, r), mask_of<Lum32f>(0)};
    // Every refused x has a special c, too.
    const auto special = fpclass<0xFF>(c);
    if (any(special)) [[unlikely]] {
      lanes.value = select(special, SecondLevel(x), lanes.value);
      lanes.refused = fpclass<0xDF>(x);
    }
    return lanes;
  }
};

constexpr auto ln2_double = f64(0x3FE62E42FEFA39EF, 0.6931471805599453);
constexpr auto rows = table64({
#include "tables/generated/ln_8.inc"
});

// p is (ln(1 + r) - r) / r^2.
LUM_INLINE Lanes<Lum64f> OnePart(Vec<Lum64f> x, const ReciprocalReduction& a, Vec<Lum64f> p) {
  const auto q = fma(p, a.r * a.r, a.r);
  const auto b = fma(a.e, all(ln2_double), permute(load<Lum64f>(rows), a.j));
  return {b + q, ZeroInfiniteOrNegative(x)};
}

struct A26_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceByReciprocal<4>(x);
    return OnePart(x, a,
                   horner(a.r, f64(0xBFE00000006661EF, -0.5000000007449311), f64(0x3FD555502024AAB1, 0.3333320917032934),
                          f64(0xBFCFFFF289B15435, -0.2499983951881021), f64(0x3FC9B53BE7EAD47D, 0.2008433229836192),
                          f64(0xBFC570FAD80A4B64, -0.16751037167395133)));
  }
};

struct A50_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceByReciprocal<4>(x);
    return OnePart(x, a,
                   horner(a.r, f64(0xBFE0000000000007, -0.5000000000000008), f64(0x3FD555555554C04A, 0.3333333333312153),
                          f64(0xBFCFFFFFFFFDC42C, -0.24999999999593692), f64(0x3FC99999A2DFBB47, 0.20000000431852014),
                          f64(0xBFC5555562046F41, -0.16666667257310944), f64(0x3FC2490ABAA89CDE, 0.14285406221572478),
                          f64(0xBFBFFFC5826CF903, -0.12499651369305202), f64(0x3FBCAC8227F9F69E, 0.11200726963030624),
                          f64(0xBFB9D45BAFA806C9, -0.10089657820210642)));
  }
};

struct A53_64f : Double {
  static constexpr auto pairs = by_columns<2>(table64({
#include "tables/generated/ln_8_pairs.inc"
  }));
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceByReciprocal<4>(x);
    const auto b = fma(a.e, all(f64(0x3FE62E42FEFA0000, 0.6931471805582987)), permute(load<Lum64f>(pairs), a.j));  // exact
    const auto lo = fma(a.e, all(f64(0x3D7CF79ABC9E0000, 1.6465949582866463e-12)), permute(load(pairs + 8), a.j));
    const auto s = b + a.r;
    const auto u = a.r - (s - b);
    const auto p = horner(a.r, f64(0xBFE0000000000008, -0.5000000000000009), f64(0x3FD5555555555580, 0.3333333333333357),
                          f64(0xBFCFFFFFFFFDA662, -0.24999999999572525), f64(0x3FC9999999959EA2, 0.1999999999927598),
                          f64(0xBFC55555626F41E5, -0.166666672767419), f64(0x3FC24924A36E51FF, 0.1428571508410101),
                          f64(0xBFBFFFC466AF551D, -0.12499644762950309), f64(0x3FBC718497BDD31F, 0.1111071463072446),
                          f64(0xBFB9D4D94C6A34BD, -0.10090406528088898), f64(0x3FB7811843796ACA, 0.09181358001061848));
    return {s + (fma(p, a.r * a.r, u) + lo), fpclass<0xDF>(x)};
  }
};

}  // namespace

LumStatus Ln_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Ln_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Ln_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Ln_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Ln_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Ln_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum
