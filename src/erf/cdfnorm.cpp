// The normal distribution function, cdfnorm x = erfc(-x/sqrt 2)/2. At the centre c next to |x|, with d = |x| - c, w = c d and
// v = d^2, for the probability P and the density p left of a point,
//   P(-c - d) = P(-c) - p(c) d (1 + E(w, v)),
// where E is the series of (1/d) the integral of exp(-c t - t^2/2) over 0 <= t <= d, less 1. Both values at c come from a
// table, scaled by a power of 2 that keeps them normal to the end of the range; the last step takes the scale away, which
// rounds denormal results. Positive arguments give 1 - P(-|x|). The high tiers' rows hold P in two parts.
#include <limits>

#include "erf/packed_rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

// From here down the vector paths refuse.
template <class T> constexpr T limit = f32(0xC162B914, -14.170185089111328);
template <> constexpr Lum64f limit<Lum64f> = f64(0xC0433E21DC3F3BD7, -38.485408335567335);

// scaled / scale for negative x, 1 less that for positive x; scale as its inverse.
template <class T> LUM_INLINE Lanes<T> Finish(Vec<T> x, Vec<T> scaled, T inverse_scale) {
  const auto base = all(T(0.5)) + or_sign(x, all(T(0.5)));
  return {fnma(scaled, or_sign(x, all(inverse_scale)), base), nlt(all(limit<T>), x)};
}

// The limit itself rounds to the smallest denormal.
template <class T> LumStatus FinishRefused(T x, T& result) {
  result = 0;
  if (x != x) result = x * x;
  else if (x == -std::numeric_limits<T>::infinity()) return lumStsOk;
  else if (x < limit<T>) return lumStsUnderflow;
  else result = std::numeric_limits<T>::denorm_min();
  return lumStsOk;
}

// p d (1 + E) off P.
template <class T> LUM_INLINE Vec<T> Fall(const RowOfTwo<T>& row, Vec<T> d, Vec<T> series) {
  return fnma(d, fma(row.second, series, row.second), row.first);
}

struct Float : Kernel<Lum32f> {
  static LUM_INLINE Distance<Lum32f> DistanceIn(Vec<Lum32f> x) {
    return DistanceOf(x, f32(0x4162C000, 14.171875), 0x1p-32f, f32(0x48000000, 131072.0));  // the last place of 2^17 is 1/64
  }
  static LUM_INLINE Lanes<Lum32f> Finish(Vec<Lum32f> x, Vec<Lum32f> scaled) {
    return lum::Finish(x, scaled, f32(0x1F800000, 5.421010862427522e-20));
  }
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return FinishRefused(x, result); }
};

constexpr Table<uint64_t, 908> float_table = {{
#include "tables/generated/cdfnorm_64_float.inc"
}};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceIn(x);
    const auto series = w * horner(w, -0.5f, 0x1.555556p-3f);
    return Finish(x, Fall(GatherRow(float_table, row), d, series));
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceIn(x);
    const auto in_w = horner(w, f32(0xBF000000, -0.5), f32(0x3E2AAAA8, 0.16666662693023682),
                             f32(0xBD2AAAA7, -0.041666653007268906), f32(0x3C08A294, 0.008339542895555496));
    const auto in_v = horner(w, f32(0xBE2AAA8B, -0.1666661947965622), f32(0x3E004465, 0.12526090443134308));
    return Finish(x, Fall(GatherRow(float_table, row), d, fma(in_v, v, in_w * w)));
  }
};

struct A24_32f : Float {
  static constexpr Table<uint64_t, 908> table = {{
#include "tables/generated/cdfnorm_64_float_packed.inc"
  }};
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceIn(x);
    const auto in_w =
        horner(w, f32(0xBF000000, -0.5), f32(0x3E2AAAA8, 0.16666662693023682), f32(0xBD2AAAA7, -0.041666653007268906),
               f32(0x3C08A294, 0.008339542895555496), f32(0xBAB62FD7, -0.0013899755431339145));
    const auto in_v = horner(w, f32(0xBE2AAA8B, -0.1666661947965622), f32(0x3E004465, 0.12526090443134308),
                             f32(0xBD4D2E81, -0.05009317770600319));
    const auto series = fma(in_v, v, in_w * w);
    return Finish(x, Fall(Unpack(GatherRow(table, row)), d * all(0.5f), series));  // the rows hold 2 p
  }
};

struct Double : Kernel<Lum64f> {
  static constexpr auto last_centre = f64(0x40433F0000000000, 38.4921875),
                        least_distance = f64(0x37F0000000000000, 2.938735877055719e-39);
  static constexpr auto shifter = f64(0x42C0000000000000, 35184372088832.0);  // 2^45: the last place is 1/128
  static LUM_INLINE Lanes<Lum64f> Finish(Vec<Lum64f> x, Vec<Lum64f> scaled) {
    return lum::Finish(x, scaled, f64(0x37F0000000000000, 2.938735877055719e-39));
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return FinishRefused(x, result); }
};

// The first terms of the series as they stand.
struct A26_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/cdfnorm_64.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, last_centre, least_distance, 2 * shifter);
    const auto in_w = horner(w, -1.0 / 2, 1.0 / 6, -1.0 / 24, 1.0 / 120, -1.0 / 720, 1.0 / 5040);
    const auto in_v = horner(w, -1.0 / 6, 1.0 / 8, -1.0 / 20, 1.0 / 72);
    return Finish(x, Fall(GatherRow(table, row), d, fma(in_v, v, in_w * w)));
  }
};

struct A50_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/cdfnorm_128.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, last_centre, least_distance, shifter);
    const auto in_w =
        horner(w, -1.0 / 2, 1.0 / 6, -1.0 / 24, 1.0 / 120, -1.0 / 720, 1.0 / 5040, -1.0 / 40320, 1.0 / 362880, -1.0 / 3628800);
    const auto in_v = horner(w, -1.0 / 6, 1.0 / 8, -1.0 / 20, 1.0 / 72, -1.0 / 336, 1.0 / 1920, -1.0 / 12960);
    const auto in_v2 = horner(w, 1.0 / 40, -1.0 / 48, 1.0 / 112, -1.0 / 384);
    const auto series = fma(fma(in_v2, v, in_v), v, in_w * w);
    return Finish(x, Fall(GatherRow(table, row), d, series));
  }
};

struct A53_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/cdfnorm_128_packed.inc"
  });
  static LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> w, Vec<Lum64f> v) {
    const auto in_w = horner(w, f64(0xBFE0000000000000, -0.5), f64(0x3FC5555555555555, 0.16666666666666666),
                             f64(0xBFA55555555554D9, -0.041666666666665804), f64(0x3F8111111111108F, 0.008333333333333108),
                             f64(0xBF56C16C16CC1D1D, -0.0013888888890408243), f64(0x3F2A01A01A0F4F8C, 0.00019841269843700845),
                             f64(0xBEFA019F74E36970, -2.4801577915714438e-05), f64(0x3EC71DE30B781626, 2.7557308290872694e-06),
                             f64(0xBE9282607C399DBF, -2.758098356148715e-07), f64(0x3E5AEC468D02A083, 2.5073952525948113e-08));
    const auto in_v = horner(w, f64(0xBFC5555555555019, -0.16666666666662946), f64(0x3FBFFFFFFFFFF778, 0.12499999999996969),
                             f64(0xBFA9999999D359A6, -0.050000000026261746), f64(0x3F8C71C71CB27AB6, 0.013888888896244605),
                             f64(0xBF6861848A3AC063, -0.0029761875792573707), f64(0x3F41110FFD4FA97F, 0.0005208328317370252),
                             f64(0xBF144103D0FA9378, -7.726274292936357e-05), f64(0x3EE4D516D3DB4588, 9.933652673240934e-06));
    const auto in_v2 = horner(w, f64(0x3F9999999B2E0D33, 0.025000000091961638), f64(0xBF955550D7299C73, -0.020833266384582005),
                              f64(0x3F824921081BABF0, 0.008928545055331555), f64(0xBF6561B8921C8BC7, -0.0026100735566542996),
                              f64(0x3F430107685FC1EF, 0.0005799566431488582));
    const auto in_v3 =
        horner(w, f64(0xBF6898A47706CFA8, -0.0030024730878838897), f64(0x3F65766603986421, 0.0026199333631322795));
    return fma(fma(fma(in_v3, v, in_v2), v, in_v), v, in_w * w);
  }
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, last_centre, least_distance, shifter);
    return Finish(x, Fall(Unpack(GatherRow(table, row)), d * all(0.5), Series(w, v)));  // the rows hold 2 p
  }
};

}  // namespace

LumStatus CdfNorm_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus CdfNorm_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus CdfNorm_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus CdfNorm_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus CdfNorm_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus CdfNorm_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
