// cosh x, by the scheme of hyperbolic/exponentials.h. The high tiers add what the table lacks and the rounding error of the sum
// of the two powers. Arguments near the overflow, infinities and NaN go to the lane routine.
#include "frame/kernels.h"
#include "hyperbolic/exponentials.h"
#include "hyperbolic/hyperbolic_ends.h"
#include "hyperbolic/polynomials.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace hyperbolic;

// The bits of the least magnitude that is refused; those of infinities and NaN lie above.
template <class T> inline constexpr UnsignedOf<T> first_refused = 0x42AEAC4E;
template <> inline constexpr uint64_t first_refused<Lum64f> = 0x40861D9A00000000;

template <class T> struct CoshTerms {
  Vec<T> plus, minus, sum, difference, r;  // 2^(n-1), 2^(-n-1), their sum and difference
  Vec<UnsignedOf<T>> count, exponent;
  Mask<T> refused;
};
template <class T> LUM_INLINE CoshTerms<T> TermsOf(Vec<T> x) {
  constexpr int row_bits = HalfPowerTable<T>::row_bits;
  const auto a = abs(x);
  const auto [count, r] = ReduceToRows<row_bits>(a);
  const auto exponent = ExponentPart<row_bits, T>(count);
  const auto plus = as_float(LookupHalfPower<0, T>(count) + exponent);
  const auto minus = as_float(LookupHalfPower<1, T>(count) - exponent);
  const auto refused = mask_cast<T>(le(all(first_refused<T>), bits(a)));
  return {plus, minus, plus + minus, plus - minus, r, count, exponent, refused};
}

// (cosh r - 1) / r^2 and sinh r of the mid and high tiers.
LUM_INLINE Vec<Lum32f> CoshRatio(Vec<Lum32f> r2) { return horner(r2, hyperbolic::cosh_A24); }
LUM_INLINE Vec<Lum64f> CoshRatio(Vec<Lum64f> r2) { return horner(r2, hyperbolic::cosh_A53); }
LUM_INLINE Vec<Lum32f> SinhSeries(Vec<Lum32f> r, Vec<Lum32f> r2) {
  return fma(r * r2, horner(r2, hyperbolic::cosh_sinh_A24), r);
}
LUM_INLINE Vec<Lum64f> SinhSeries(Vec<Lum64f> r, Vec<Lum64f> r2) {
  const auto p = horner(r2, hyperbolic::cosh_sinh_A53);
  return fma(r * r2, p, r);
}

template <class T> struct HyperbolicCosine : Kernel<T> {
  static constexpr bool refuses_by_class = true;
  static LumStatus LaneRoutine(T x, T& result) { return CoshRoutine(x, result); }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return FinishAtEnds<T, false>(x, lanes); }
};

struct A11_32f : HyperbolicCosine<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto t = TermsOf(x);
    return {fma(t.r, t.difference, t.sum), t.refused};
  }
};

struct A26_64f : HyperbolicCosine<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto t = TermsOf(x);
    const auto r2 = t.r * t.r;
    const auto c = r2 * horner(r2, hyperbolic::cosh_A26);
    const auto s = fma(t.r * r2, horner(r2, hyperbolic::cosh_sinh_A26), t.r);
    return {fma(t.sum, c, t.difference * s) + t.sum, t.refused};
  }
};

template <class T> struct Mid : HyperbolicCosine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto t = TermsOf(x);
    const auto r2 = t.r * t.r;
    const auto c = r2 * CoshRatio(r2);
    return {fma(t.sum, c, t.difference * SinhSeries(t.r, r2)) + t.sum, t.refused};
  }
};

template <class T> struct High : HyperbolicCosine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto t = TermsOf(x);
    const auto plus_lo = as_float(LookupHalfPower<2, T>(t.count) + t.exponent);
    const auto low = ((t.plus - t.sum) + t.minus) + plus_lo;
    const auto r2 = t.r * t.r;
    const auto c = r2 * CoshRatio(r2);
    return {fma(t.sum, c, fma(t.difference, SinhSeries(t.r, r2), low)) + t.sum, t.refused};
  }
};

}  // namespace

LumStatus Cosh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Cosh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<Mid<Lum32f>>(src, dst, len); }
LumStatus Cosh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<High<Lum32f>>(src, dst, len); }
LumStatus Cosh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Cosh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<Mid<Lum64f>>(src, dst, len); }
LumStatus Cosh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<High<Lum64f>>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
