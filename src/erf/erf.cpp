// erf x. In binary32: x P(x^2), or x P(x^2)^2 with half the degree. In binary64: at the centre c = i/128 next to |x|,
// with d = |x| - c, w = c d and v = d^2,
//   erf(c + d) = erf c + (2/sqrt pi) exp(-c^2) d (1 + E(w, v)),
// where E is the series of (1/d) the integral of exp(-2 c t - t^2) over 0 <= t <= d, less 1. Both values at c come from a
// table. The last row is a centre where erf rounds to 1: arguments beyond are brought back to it.
#include "erf/rows.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

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
    const auto p = horner(x * x, f32(0x3F87F527, 1.0621689558029175), f32(0xBE34718D, -0.17621441185474396),
                          f32(0x3D175FFF, 0.0369567833840847), f32(0xBBAF8D5D, -0.00535742798820138),
                          f32(0x39F00702, 0.0004578158841468394), f32(0xB78F18F8, -1.7058555386029184e-05));
    return OneFrom(f32(0x40D74E66, 6.728320121765137), x, p * p * x);
  }
};

struct A21_32f : Erf<Lum32f, 4> {
  static LUM_INLINE Vec<Lum64f> SquaredPolynomial(Vec<Lum64f> x) {
    const auto p = horner(x * x, f64(0x3FF0FEFBD933B903, 1.062251900144077), f64(0xBFC6A948101E6367, -0.17704106127782923),
                          f64(0x3FA3A334CE602C6B, 0.038354540054648854), f64(0xBF799309EA0C81DC, -0.006243742682983524),
                          f64(0x3F476DF64A40E392, 0.0007150127971789924), f64(0xBF0A5216B9508EDE, -5.020267341418275e-05),
                          f64(0x3EA5794B95C8E8A0, 6.399693962052303e-07), f64(0x3E94B6C0B485F30F, 3.0866083424573534e-07),
                          f64(0xBE65806CE17F0523, -4.0049965288188286e-08), f64(0x3E2715640470DB47, 2.687279762886615e-09),
                          f64(0xBDDDCB2653D80F03, -1.0838831651735732e-10), f64(0x3D85EADFC762D3EB, 2.4917286616863963e-12),
                          f64(0xBD1C668A2871F0F1, -2.5224751730595164e-14));
    return p * p;
  }
  static LUM_INLINE Vec<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto q = narrow(SquaredPolynomial(widen_low(x)), SquaredPolynomial(widen_high(x)));
    return OneFrom(f32(0x41558C5A, 13.346765518188477), x, q * x);
  }
};

struct A24_32f : Erf<Lum32f, 4> {
  static LUM_INLINE Vec<Lum64f> Half(Vec<Lum64f> x) {
    return x * horner(x * x, f64(0x3FF20DD74F5BC259, 1.1283791637362326), f64(0xBFD81273EA9280EF, -0.3761262694115563),
                      f64(0x3FBCE2E5D8C9E959, 0.11283718626683505), f64(0xBF9B8254CEC9607A, -0.02686436187863748),
                      f64(0x3F75633728782213, 0.0052215723621960195), f64(0xBF4BF24742AC5608, -0.0008528564406755099),
                      f64(0x3F1F51077325B817, 0.00011946304292617702), f64(0xBEEE683AC21BA632, -1.44992573640367e-05),
                      f64(0x3EB98F32F5CC465A, 1.5234572494120914e-06), f64(0xBE826046742B0352, -1.369124281360798e-07),
                      f64(0x3E461E396F7C7E2B, 1.0299526106602457e-08), f64(0xBE05A63B2335F935, -6.300787169976373e-10),
                      f64(0x3DC09FC73009ABB4, 3.023912197440591e-11), f64(0xBD731E5D8F72439C, -1.0867674471598547e-12),
                      f64(0x3D1EC4F20CD1A8A2, 2.7328644583789552e-14), f64(0xBCBEC22B47D823A1, -4.268595603399329e-16),
                      f64(0x3C4CA6F11938C219, 3.1064686816282615e-18));
  }
  static LUM_INLINE Vec<Lum32f> VectorPath(Vec<Lum32f> x) {
    return OneFrom(f32(0x416B027F, 14.688109397888184), x, narrow(Half(widen_low(x)), Half(widen_high(x))));
  }
};

constexpr double last_centre = f64(0x4017F80000000000, 5.9921875);

// What the kernels in binary64 know of an argument before they turn to the table.
struct Split {
  Vec<Lum64f> a, u;  // |x|; the same, at most the last centre
  Vec<uint64_t> sign;
  Centre<Lum64f> centre;
  static LUM_INLINE Split Of(Vec<Lum64f> x) {
    const auto a = abs(x);
    const auto u = min(a, all(last_centre));  // of a NaN the last centre
    return {a, u, bits(x) ^ bits(a), NearestCentre(u, f64(0x42C0000000000000, 35184372088832.0))};
  }
};

constexpr auto erf_table = table64({
#include "tables/generated/erf_128.inc"
});

struct Plain {
  Vec<Lum64f> e, head, w, v;  // (2/sqrt pi) exp(-c^2) d, erf c
  // d^2 is dropped where it might underflow.
  static LUM_INLINE Plain Of(Vec<Lum64f> x) {
    const auto s = Split::Of(x);
    const auto d = s.u - s.centre.c;
    const auto large = zero_unless(nle(s.u, all(f64(0x2FF0000000000000, 8.636168555094445e-78))), d);
    const auto [head, slope] = GatherRow(erf_table, s.centre.row);
    // The smaller of d and |x| is d, but a NaN |x| is passed on.
    return {(min(d, s.a) ^ s.sign) * slope, head ^ s.sign, s.centre.c * d, large * large};
  }
};

struct A26_64f : Erf<Lum64f, 2> {
  static LUM_INLINE Vec<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [e, head, w, v] = Plain::Of(x);
    const auto in_w = horner(w, f64(0xBFF0000180001429, -1.0000014305126206), f64(0x3FE55557BBBBDCA6, 0.6666678110767819));
    const auto in_v = horner(w, f64(0xBFD5555C88892F64, -0.33333504994947405), f64(0x3FE0000400005666, 0.5000019073510884));
    return or_sign(x, fma(e, fma(in_w, w, in_v * v), head + e));
  }
};

struct A50_64f : Erf<Lum64f, 2> {
  static LUM_INLINE Vec<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto [e, head, w, v] = Plain::Of(x);
    const auto in_w = horner(w, f64(0x3FE5555555554B0C, 0.6666666666663743), f64(0xBFD55555555547F6, -0.3333333333331433),
                             f64(0x3FC1111235A363B1, 0.13333346957258876), f64(0xBFA6C16DB05BDEA5, -0.044444492128545655));
    const auto b1 = horner(w, f64(0x3FDFFFFFFFFFD4CD, 0.4999999999993861), f64(0xBFD9999C2BE2DDA8, -0.4000006130767937),
                           f64(0x3FCC71CA1C71EB57, 0.2222225798503483));
    const auto b2 = fma(horner(w, f64(0x3FB9999E2BE2F122, 0.10000027247855717), f64(0xBFC5555800001B4F, -0.1666669845582995)),
                        v, all(f64(0xBFD5555555555555, -0.3333333333333333)));
    const auto series = fma(v, fma(w, b1, b2), fms(in_w, w * w, w));
    return or_sign(x, fma(series, e, e) + head);
  }
};

struct A53_64f : Erf<Lum64f, 2> {
  static constexpr auto table = table64({
#include "tables/generated/erf_128_packed.inc"
  });
  // (2/sqrt pi) (1 + E) - 1.
  static LUM_INLINE Vec<Lum64f> Series(Vec<Lum64f> w, Vec<Lum64f> v) {
    const auto v0 = horner(w, f64(0x3FC06EBA8214DB69, 0.1283791670955126), f64(0xBFF20DD750429B6D, -1.1283791670955126),
                           f64(0x3FE812746B036E4C, 0.7522527780633452), f64(0xBFD812746B036AD0, -0.3761263890316231),
                           f64(0x3FC341F806247CEC, 0.15045070934227256), f64(0xBFA9AD4AC8DE7654, -0.05015023900999141));
    const auto v1 = horner(w, f64(0xBFD812746B0379E7, -0.37612638903183754), f64(0x3FE20DD75042830E, 0.5641895835470636),
                           f64(0xBFDCE2F500D00E98, -0.45135235862128686), f64(0x3FD00C4F4DF93FE6, 0.25075132956135204));
    const auto v2 = horner(w, f64(0x3FBCE2F21A042BE2, 0.11283791670955126), f64(0xBFC81277CD9C0EDF, -0.18806359805613845),
                           f64(0x3FC4A21DA72D2522, 0.16119738257320032));
    const auto v3 = horner(v, f64(0xBF9B82CE31288B51, -0.026866170645131252), f64(0x3F7565BCD0E6A53F, 0.005223977625442188));
    return fma(fma(fma(v3, v, v2), v, v1), v, v0);
  }
  static LUM_INLINE Vec<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto s = Split::Of(x);
    // Small arguments are expanded about 0, the first rows of the table being all the same.
    const auto c = zero_unless(nlt(s.u, all(f64(0x3F9C000000000000, 0.02734375))), s.centre.c);
    const auto d = s.u - c;
    const auto [word, slope] = GatherRow(table, s.centre.row);
    const auto raw_head = word & all(uint64_t{0x007FFFFFFFFFFFFF});
    const auto head = min(raw_head, s.a) * all(f64(0x7F70000000000000, 7.022238808055922e+305));  // a NaN |x| is passed on
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
