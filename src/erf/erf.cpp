// erf x. In binary32: x P(x^2), or x P(x^2)^2 with half the degree. In binary64: at the centre c = i/128 next to |x|,
// with d = |x| - c, w = c d and v = d^2,
//   erf(c + d) = erf c + (2/sqrt pi) exp(-c^2) d (1 + E(w, v)),
// where E is the series of (1/d) the integral of exp(-2 c t - t^2) over 0 <= t <= d, less 1. Both values at c come from a
// table. The last row is a centre where erf rounds to 1: arguments beyond are brought back to it.
#include "erf/polynomials.h"
#include "erf/rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace erf;

// No argument is refused.
template <class T, int vectors_in_block> struct Erf : Kernel<T> {
  static constexpr Variant variant = pure_vector_variant;
  static constexpr int vectors = vectors_in_block;
};

// value, or 1 with the sign of x where x^2 has reached the limit; a NaN keeps the value.
LUM_INLINE Vec<Lum32f> OneFrom(Lum32f limit, Vec<Lum32f> x, Vec<Lum32f> value) {
  return select(le(all(limit), x * x), or_sign(x, all(1.0f)), value);
}

struct A11_32f : Erf<Lum32f, 4> {
  static LUM_INLINE Vec<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto p = horner(x * x, erf::erf_A11);
    return OneFrom(f32(0x40D74E66, 6.728320121765137), x, p * p * x);
  }
};

struct A21_32f : Erf<Lum32f, 4> {
  static LUM_INLINE Vec<Lum64f> SquaredPolynomial(Vec<Lum64f> x) {
    const auto p = horner(x * x, erf::erf_A21);
    return p * p;
  }
  static LUM_INLINE Vec<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto q = narrow(SquaredPolynomial(widen_low(x)), SquaredPolynomial(widen_high(x)));
    return OneFrom(f32(0x41558C5A, 13.346765518188477), x, q * x);
  }
};

struct A24_32f : Erf<Lum32f, 4> {
  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> x) { return x * horner(x * x, erf::erf_A24); }
  static LUM_INLINE Vec<Lum32f> VectorPath(Vec<Lum32f> x) {
    return OneFrom(f32(0x416B027F, 14.688109397888184), x, narrow(Half(widen_low(x)), Half(widen_high(x))));
  }
};

constexpr double last_centre = 5.9921875;

// What the kernels in binary64 know of an argument before they turn to the table.
struct Split {
  Vec<Lum64f> a, u;  // |x|, and the smaller of it and the last centre
  Vec<uint64_t> sign;
  Centre<Lum64f> centre;
  static LUM_INLINE Split Of(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto u = min(a, all(last_centre));  // of a NaN the last centre
    return {a, u, bits(x) ^ bits(a), NearestCentre(u, 0x1p45)};
  }
};

constexpr auto erf_table = table64({
#include "tables/generated/erf_64f_768.inc"
});

struct Plain {
  Vec<Lum64f> e, head, w, v;  // (2/sqrt pi) exp(-c^2) d, erf c
  // d^2 is dropped where it might underflow.
  static LUM_INLINE Plain Of(Vec<Lum64f> x) {
    const auto s = Split::Of(x);
    const auto d = s.u - s.centre.c;
    const auto large = zero_unless(nle(s.u, all(0x1p-256)), d);
    const auto [head, slope] = GatherRow(erf_table, s.centre.row);
    // The smaller of d and |x| is d, but a NaN |x| is passed on.
    return {(min(d, s.a) ^ s.sign) * slope, head ^ s.sign, s.centre.c * d, large * large};
  }
};

struct A26_64f : Erf<Lum64f, 2> {
  static LUM_INLINE Vec<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [e, head, w, v] = Plain::Of(x);
    const auto in_w = horner(w, erf::erf_A26_w);
    const auto in_v = horner(w, erf::erf_A26_v);
    return or_sign(x, fma(e, fma(in_w, w, in_v * v), head + e));
  }
};

struct A50_64f : Erf<Lum64f, 2> {
  static LUM_INLINE Vec<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [e, head, w, v] = Plain::Of(x);
    const auto in_w = horner(w, erf::erf_A50_w);
    const auto b1 = horner(w, part<1, 3>(erf::erf_A50_v));
    const auto b2 = fma(horner(w, erf::erf_A50_v2), v, all(erf::erf_A50_v.c[0]));
    const auto series = fma(v, fma(w, b1, b2), fms(in_w, w * w, w));
    return or_sign(x, fma(series, e, e) + head);
  }
};

struct A53_64f : Erf<Lum64f, 2> {
  static constexpr auto table = table64({
#include "tables/generated/erf_64f_768_packed.inc"
  });
  // (2/sqrt pi) (1 + E) - 1.
  static LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> w, Vec<Lum64f> v) {
    const auto v0 = horner(w, erf::erf_A53_w);
    const auto v1 = horner(w, erf::erf_A53_v);
    const auto v2 = horner(w, erf::erf_A53_v2);
    const auto v3 = horner(v, erf::erf_A53_v3);
    return fma(fma(fma(v3, v, v2), v, v1), v, v0);
  }
  static LUM_INLINE Vec<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto s = Split::Of(x);
    // Small arguments are expanded about 0, the first rows of the table being all the same.
    const auto c = zero_unless(nlt(s.u, all(0.02734375)), s.centre.c);
    const auto d = s.u - c;
    const auto [word, slope] = GatherRow(table, s.centre.row);
    const auto raw_head = word & all(uint64_t{0x007FFFFFFFFFFFFF});
    const auto head = min(raw_head, s.a) * all(0x1p1016);  // a NaN |x| is passed on
    const auto factor = as_float(shift_right<32>(bits(word)) | all(std::bit_cast<uint64_t>(1.0)));
    const auto e = slope * d;
    const auto tail = head * (factor - all(1.0));  // scaled by 2^32 as e is
    const auto sum = fma(Series(c * d, d * d), e, tail) + e;
    return fma(sum, all(0x1p-32), head) ^ s.sign;
  }
};

}  // namespace

LumStatus Erf_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Erf_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Erf_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Erf_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Erf_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Erf_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
