// erfc x. At the centre c next to |x|, with d = |x| - c, w = c d and v = d^2,
//   erfc(c + d) = erfc c - (2/sqrt pi) exp(-c^2) d (1 + E(w, v)),
// where E is the series of (1/d) the integral of exp(-2 c t - t^2) over 0 <= t <= d, less 1. Both values at c come from a
// table, scaled by a power of 2 that keeps them normal to the end of the range; the last step takes the scale away, which
// rounds denormal results. Negative arguments give 2 - erfc |x|. The high tiers' rows hold erfc c in two parts.
#include <limits>

#include "erf/packed_rows.h"
#include "erf/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace erf;

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
template <class T> LUM_INLINE Finished<T> FinishRefused(Vec<T> x, const Lanes<T>& lanes) {
  constexpr bool limit_is_zero = sizeof(T) == sizeof(Lum64f);
  auto value = zero_unless(eq(x, all(limit<T>)), all(limit_is_zero ? T(0) : std::numeric_limits<T>::denorm_min()));
  value = select(unord(x, x), x + x, value);
  const auto past = limit_is_zero ? le(all(limit<T>), x) : lt(all(limit<T>), x);
  return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.underflow = past & ~fpclass<classes::infinity>(x)}};
}
// The lanes that all tiers of a type refuse alike.
template <class T> struct ComplementKernel : Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) { return FinishRefused(x, result); }
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return FinishRefused(x, lanes); }
};

using Float = ComplementKernel<Lum32f>;
using Double = ComplementKernel<Lum64f>;
constexpr auto float_shifter = 0x1p17f;  // the last place is 1/64

struct A21_32f : Float {
  static constexpr Table<uint64_t, 648> table = {{
#include "tables/generated/erfc_32f_648.inc"
  }};
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceOf(x, 10.0625f, 0x1p-48f, float_shifter);
    const auto [value, slope] = GatherRow(table, row);
    const auto in_w = horner(w, erf::erfc_A21_w);
    const auto in_v = horner(w, erf::erfc_A21_v);
    const auto series = fma(w, in_w, in_v * v);
    return Finish(x, fnma(d, fma(slope, series, slope), value), 0x1p-48f);
  }
};

struct A24_32f : Float {
  static constexpr Table<uint64_t, 648> table = {{
#include "tables/generated/erfc_32f_648_packed.inc"
  }};
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceOf(x, 10.046875f, 0x1p-32f, float_shifter);
    const auto in_w = horner(w, erf::erfc_A24_w);
    const auto in_v = horner(w, erf::erfc_A24_v);
    const auto series = fma(in_v, v, fms(in_w, w * w, w));
    return Finish(x, Fall(Unpack(GatherRow(table, row)), d, series), 0x1p-64f);
  }
};

constexpr auto double_shifter = 0x1p45;  // the last place is 1/128
constexpr auto inverse_double_scale = 0x1p-128;
constexpr auto least_distance = 0x1p-128;

struct A26_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/erfc_64f_1744.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    constexpr auto shifter = 0x1p46;  // the last place is 1/64
    const auto [d, w, v, row] = DistanceOf(x, 27.234375, least_distance, shifter);
    const auto [value, slope] = GatherRow(table, row);
    const auto in_w = horner(w, erf::erfc_A26_w);
    const auto in_v = horner(w, erf::erfc_A26_v);
    const auto series = fma(w, in_w, in_v * v);
    return Finish(x, fnma(d, fma(slope, series, slope), value), inverse_double_scale);
  }
};

struct A50_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/erfc_64f_3488.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, 27.2421875, least_distance, double_shifter);
    const auto [value, slope] = GatherRow(table, row);
    const auto in_v = horner(w, part<1, 6>(erf::erfc_A50_v));
    const auto in_v2 = horner(w, erf::erfc_A50_v2);
    const auto s = fma(w, in_v, fma(in_v2, v, all(erf::erfc_A50_v.c[0])));
    const auto in_w = horner(w, erf::erfc_A50_w);
    const auto series = fma(w * w, in_w, fms(s, v, w));
    const auto fall = slope * d;
    return Finish(x, value - fma(fall, series, fall), inverse_double_scale);
  }
};

struct A53_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/erfc_64f_3488_packed.inc"
  });
  static LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> w, Vec<Lum64f> v) {
    const auto in_v = horner(w, erf::erfc_A53_v);
    const auto in_v2 = horner(w, erf::erfc_A53_v2);
    const auto in_w = horner(w, erf::erfc_A53_w);
    return fma(w * w, in_w, fms(fma(in_v2, v, in_v), v, w));
  }
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, 27.2421875, least_distance, double_shifter);
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
