// The normal distribution function, cdfnorm x = erfc(-x/sqrt 2)/2. At the centre c next to |x|, with d = |x| - c, w = c d and
// v = d^2, for the probability P and the density p left of a point,
//   P(-c - d) = P(-c) - p(c) d (1 + E(w, v)),
// where E is the series of (1/d) the integral of exp(-c t - t^2/2) over 0 <= t <= d, less 1. Both values at c come from a
// table, scaled by a power of 2 that keeps them normal to the end of the range; the last step takes the scale away, which
// rounds denormal results. Positive arguments give 1 - P(-|x|). The high tiers' rows hold P in two parts.
#include <limits>

#include "erf/packed_rows.h"
#include "erf/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace erf;

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
template <class T> LUM_INLINE Finished<T> FinishRefused(Vec<T> x, const Lanes<T>& lanes) {
  auto value = zero_unless(eq(x, all(limit<T>)), all(std::numeric_limits<T>::denorm_min()));
  value = select(unord(x, x), x + x, value);
  const auto vanishes = lt(x, all(limit<T>)) & ~fpclass<classes::infinity>(x);
  return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.underflow = vanishes}};
}
// The lanes that all tiers of a type refuse alike.
template <class T> struct NormalKernel : Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) { return FinishRefused(x, result); }
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return FinishRefused(x, lanes); }
};

// p d (1 + E) off P.
template <class T> LUM_INLINE Vec<T> Fall(const RowOfTwo<T>& row, Vec<T> d, Vec<T> series) {
  return fnma(d, fma(row.second, series, row.second), row.first);
}

struct Float : NormalKernel<Lum32f> {
  static LUM_INLINE Distance<Lum32f> DistanceIn(Vec<Lum32f> x) {
    return DistanceOf(x, 14.171875f, 0x1p-32f, 0x1p17f);  // the last place of the last is 1/64
  }
  static LUM_INLINE Lanes<Lum32f> Finish(Vec<Lum32f> x, Vec<Lum32f> scaled) { return lum::Finish(x, scaled, 0x1p-64f); }
};

constexpr Table<uint64_t, 908> float_table = {{
#include "tables/generated/cdfnorm_32f_908.inc"
}};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceIn(x);
    const auto series = w * horner(w, erf::cdfnorm_A11_w);
    return Finish(x, Fall(GatherRow(float_table, row), d, series));
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceIn(x);
    const auto in_w = horner(w, erf::cdfnorm_A21_w);
    const auto in_v = horner(w, erf::cdfnorm_A21_v);
    return Finish(x, Fall(GatherRow(float_table, row), d, fma(in_v, v, in_w * w)));
  }
};

struct A24_32f : Float {
  static constexpr Table<uint64_t, 908> table = {{
#include "tables/generated/cdfnorm_32f_908_packed.inc"
  }};
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto [d, w, v, row] = DistanceIn(x);
    const auto in_w = horner(w, erf::cdfnorm_A24_w);
    const auto in_v = horner(w, erf::cdfnorm_A24_v);
    const auto series = fma(in_v, v, in_w * w);
    return Finish(x, Fall(Unpack(GatherRow(table, row)), d * all(0.5f), series));  // the rows hold 2 p
  }
};

struct Double : NormalKernel<Lum64f> {
  static constexpr auto last_centre = 38.4921875, least_distance = 0x1p-128;
  static constexpr auto shifter = 0x1p45;  // the last place is 1/128
  static LUM_INLINE Lanes<Lum64f> Finish(Vec<Lum64f> x, Vec<Lum64f> scaled) { return lum::Finish(x, scaled, 0x1p-128); }
};

struct A26_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/cdfnorm_64f_2468.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, last_centre, least_distance, 2 * shifter);
    const auto in_w = horner(w, erf::cdfnorm_A26_w);
    const auto in_v = horner(w, erf::cdfnorm_A26_v);
    return Finish(x, Fall(GatherRow(table, row), d, fma(in_v, v, in_w * w)));
  }
};

struct A50_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/cdfnorm_64f_4928.inc"
  });
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [d, w, v, row] = DistanceOf(x, last_centre, least_distance, shifter);
    const auto in_w = horner(w, erf::cdfnorm_A50_w);
    const auto in_v = horner(w, erf::cdfnorm_A50_v);
    const auto in_v2 = horner(w, erf::cdfnorm_A50_v2);
    const auto series = fma(fma(in_v2, v, in_v), v, in_w * w);
    return Finish(x, Fall(GatherRow(table, row), d, series));
  }
};

struct A53_64f : Double {
  static constexpr auto table = table64({
#include "tables/generated/cdfnorm_64f_4928_packed.inc"
  });
  static LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> w, Vec<Lum64f> v) {
    const auto in_w = horner(w, erf::cdfnorm_A53_w);
    const auto in_v = horner(w, erf::cdfnorm_A53_v);
    const auto in_v2 = horner(w, erf::cdfnorm_A53_v2);
    const auto in_v3 = horner(w, erf::cdfnorm_A53_v3);
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
