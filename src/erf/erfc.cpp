// erfc x. At the centre c next to |x|, with d = |x| - c, w = c d and v = d^2,
//   erfc(c + d) = erfc c - (2/sqrt pi) exp(-c^2) d (1 + E(w, v)),
// where E is the series of (1/d) the integral of exp(-2 c t - t^2) over 0 <= t <= d, less 1. Both values at c come from a
// table, scaled by a power of 2 that keeps them normal to the end of the range; the last step takes the scale away, which
// rounds denormal results. Negative arguments give 2 - erfc |x|. The high tiers' rows hold erfc c in two parts.
#include <limits>

#include "erf/packed_rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

// From here on the vector paths refuse.
template <class T> constexpr T limit = f32(0x4120DDFB, 10.054194450378418);
template <> constexpr Lum64f limit<Lum64f> = f64(0x403B39DC41E48BFD, 27.226017111108366);

// scaled / scale for positive x, 2 less that for negative x; scale as its inverse.
template <class T> LUM_INLINE Lanes<T> Finish(Vec<T> x, Vec<T> scaled, T inverse_scale) {
  const auto base = all(T(1)) - or_sign(x, all(T(1)));
  return {fma(scaled, or_sign(x, all(inverse_scale)), base), nlt(x, all(limit<T>))};
}

// At the limit itself the result rounds to the smallest denormal in binary32 and to 0 in binary64.
template <class T> LumStatus FinishRefused(T x, T& result) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  constexpr bool limit_is_zero = sizeof(T) == sizeof(Lum64f);
  result = 0;
  if (x != x) result = x * x;
  else if (x == infinity) return lumStsOk;
  else if (x > limit<T> || limit_is_zero) return lumStsUnderflow;
  else result = std::numeric_limits<T>::denorm_min();
  return lumStsOk;
}

struct Float : Kernel<Lum32f> {
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return FinishRefused(x, result); }
};
constexpr auto float_shifter = f32(0x48000000, 131072.0);  // 2^17: the last place is 1/64

struct A21_32f : Float {
  static constexpr Table<uint64_t, 648> table = {{
#include "tables/generated/erfc_64_float.inc"
  }};
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceOf(x, f32(0x41210000, 10.0625), f32(0x27800000, 3.552713678800501e-15), float_shifter);
    const auto [value, slope] = GatherRow(table, row);
    const auto in_w = horner(w, f32(0xBF7FFFFC, -0.9999997615814209), f32(0x3F2AAAA6, 0.6666663885116577),
                             f32(0xBEAACF22, -0.33361154794692993), f32(0x3E08A7CA, 0.13345256447792053));
    const auto in_v = horner(w, f32(0xBEAB4EDB, -0.3345859944820404), f32(0x3F005B36, 0.5013917684555054));
    const auto series = fma(w, in_w, in_v * v);
    return Finish(x, fnma(d, fma(slope, series, slope), value), 0x1p-48f);
  }
};

struct A24_32f : Float {
  static constexpr Table<uint64_t, 648> table = {{
#include "tables/generated/erfc_64_float_packed.inc"
  }};
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceOf(x, f32(0x4120C000, 10.046875), 0x1p-32f, float_shifter);
    const auto in_w = horner(w, f32(0x3F2AAAA8, 0.6666665077209473), f32(0xBEAAAAA7, -0.33333322405815125),
                             f32(0x3E08A294, 0.13343268632888794), f32(0xBD362FD7, -0.04447921738028526));
    const auto in_v = horner(w, f32(0xBEAAAA8B, -0.3333323895931244), f32(0x3F004465, 0.5010436177253723),
                             f32(0xBECD2E81, -0.4007454216480255));
    const auto series = fma(in_v, v, fms(in_w, w * w, w));
    return Finish(x, Fall(Unpack(GatherRow(table, row)), d, series), f32(0x1F800000, 5.421010862427522e-20));
  }
};

struct Double : Kernel<Lum64f> {
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) { return FinishRefused(x, result); }
};
constexpr auto double_shifter = f64(0x42C0000000000000, 35184372088832.0);  // 2^45: the last place is 1/128
constexpr auto inverse_double_scale = f64(0x37F0000000000000, 2.938735877055719e-39);
constexpr auto least_distance = 0x1p-128;

struct A26_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/erfc_64.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    constexpr auto shifter = f64(0x42D0000000000000, 70368744177664.0);  // 2^46: the last place is 1/64
    const auto [d, w, v, row] = DistanceOf(x, f64(0x403B3C0000000000, 27.234375), least_distance, shifter);
    const auto [value, slope] = GatherRow(table, row);
    const auto in_w = horner(w, f64(0xBFEFFFFFFFFEB794, -0.9999999999906657), f64(0x3FE555555933BC54, 0.666666673872792),
                             f64(0xBFD555555ADC4EA0, -0.333333338480978), f64(0x3FC111066671A484, 0.13333206178802837),
                             f64(0xBFA6C15C3DA087D4, -0.044443972132526405), f64(0x3F8A1F05F5094FB6, 0.012754484692017214),
                             f64(0xBF6A1FDD30652EA1, -0.003189022073604012));
    const auto in_v = horner(w, f64(0xBFD554EE2F28F34D, -0.33330874066796384), f64(0x3FDFFF6F976A22C5, 0.4999655703218589),
                             f64(0xBFD9E0A0FBE743D2, -0.40433525657595937), f64(0x3FCCBC5887DF9127, 0.22449785837592026));
    const auto series = fma(w, in_w, in_v * v);
    return Finish(x, fnma(d, fma(slope, series, slope), value), inverse_double_scale);
  }
};

struct A50_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/erfc_128.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, f64(0x403B3E0000000000, 27.2421875), least_distance, double_shifter);
    const auto [value, slope] = GatherRow(table, row);
    const auto in_v = horner(w, f64(0x3FE0000000379730, 0.5000000004044747), f64(0xBFD9999999F3D838, -0.40000000032830796),
                             f64(0x3FCC71C4B73B20B6, 0.22222193667244533), f64(0xBFB8618412BC79EC, -0.0952379747145426),
                             f64(0x3FA117ABF1FEA28C, 0.033383725443234175), f64(0xBF8441DF86900A46, -0.009891268056894675));
    const auto in_v2 = horner(w, f64(0x3FB9998F9D0729DA, 0.09999940475169158), f64(0xBFC5554E249FF4A7, -0.16666580951997398),
                              f64(0x3FC256E8E6045CDF, 0.1432772753839577), f64(0xBFB56433674BA5C2, -0.08356019279349083));
    const auto s = fma(w, in_v, fma(in_v2, v, all(f64(0xBFD5555555554ADD, -0.33333333333318454))));
    const auto in_w = horner(w, f64(0x3FE55555555554CF, 0.6666666666666518), f64(0xBFD555555555548A, -0.33333333333332205),
                             f64(0x3FC11111111AB082, 0.13333333335083714), f64(0xBFA6C16C16D06420, -0.04444444445125151),
                             f64(0x3F8A019F5AEED25F, 0.012698407137443355), f64(0xBF6A019F4F234617, -0.0031746016985401237),
                             f64(0x3F472360BAC04E70, 0.0007061216651913071), f64(0xBF2282C89A04C65F, -0.00014122675657683972));
    const auto series = fma(w * w, in_w, fms(s, v, w));
    const auto fall = slope * d;
    return Finish(x, value - fma(fall, series, fall), inverse_double_scale);
  }
};

struct A53_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/erfc_128_packed.inc"
  });
  static LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> w, Vec<Lum64f> v) {
    const auto in_v = horner(w, f64(0xBFD5555555555019, -0.33333333333325893), f64(0x3FDFFFFFFFFFF778, 0.49999999999987876),
                             f64(0xBFD9999999D359A6, -0.40000000021009396), f64(0x3FCC71C71CB27AB6, 0.22222222233991368),
                             f64(0xBFB861848A3AC063, -0.09523800253623586), f64(0x3FA1110FFD4FA97F, 0.033333301231169614),
                             f64(0xBF844103D0FA9378, -0.009889631094958537), f64(0x3F64D516D3DB4588, 0.002543015084349679));
    const auto in_v2 = horner(w, f64(0x3FB999999B2E0D33, 0.10000000036784655), f64(0xBFC55550D7299C73, -0.16666613107665604),
                              f64(0x3FC24921081BABF0, 0.14285672088530488), f64(0xBFB561B8921C8BC7, -0.08352235381293759),
                              f64(0x3FA30107685FC1EF, 0.03711722516152693));
    const auto in_w = horner(w, f64(0x3FE5555555555555, 0.6666666666666666), f64(0xBFD55555555554D9, -0.33333333333332643),
                             f64(0x3FC111111111108F, 0.13333333333332972), f64(0xBFA6C16C16CC1D1D, -0.044444444449306376),
                             f64(0x3F8A01A01A0F4F8C, 0.01269841269996854), f64(0xBF6A019F74E36970, -0.003174601973211448),
                             f64(0x3F471DE30B781626, 0.000705467092246341), f64(0xBF2282607C399DBF, -0.0001412146358348142),
                             f64(0x3EFAEC468D02A083, 2.5675727386570868e-05));
    return fma(w * w, in_w, fms(fma(in_v2, v, in_v), v, w));
  }
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, f64(0x403B3E0000000000, 27.2421875), least_distance, double_shifter);
    return Finish(x, Fall(Unpack(GatherRow(table, row)), d, Series(w, v)), inverse_double_scale);
  }
};

}  // namespace

LumStatus Erfc_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Erfc_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Erfc_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Erfc_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Erfc_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
