// x / y without a divide instruction: an estimate r0 of 1 / y with 14 bits, and e = 1 - y r0 exactly enough to sum the series
// 1 / (1 - e) = 1 + e + e^2 + ... as far as the tier needs. The high tiers divide the significands, correct the quotient by its
// exact residual and scale by the difference of the exponents: no range of y is excluded but zero. The others multiply by 1 / y
// and leave divisors whose reciprocal is not a normal number to the divide instruction. A divisor that is a NaN is refused,
// too: of two NaNs the instruction gives the dividend's.
#include <bit>
#include <cstdint>
#include <type_traits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/lane_format.h"
#include "frame/lifted.h"

namespace lum::inline LUM_LAYER {
namespace {

template <class T> struct DivKernel : Kernel<T> {
  // Only a zero divisor reports, whatever the dividend.
  static LumStatus LaneRoutine(T x, T y, T& result) {
    result = lane::with_nan(x / y, x, y);
    return y == 0 ? lumStsSingularity : lumStsOk;
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, Vec<T> y, const Lanes<T>& lanes) {
    const auto dividend = select(lanes.refused, x, all(T(1))), divisor = select(lanes.refused, y, all(T(1)));
    return {
        select(lanes.refused, div(dividend, divisor), lanes.value), mask_of<T>(0), {.singularity = fpclass<classes::zero>(y)}};
  }
};

// Divisors outside 2^-126 <= |y| < 2^126 or 2^-1021 <= |y| < 2^1022, zero, infinity and NaN among them.
template <class T> LUM_INLINE Mask<T> Refused(Vec<T> y) {
  constexpr bool is_float = std::is_same_v<T, Lum32f>;
  constexpr auto smallest = std::bit_cast<UnsignedOf<T>>(lane::power_of_two<T>(is_float ? -126 : -1021));
  constexpr auto beyond = std::bit_cast<UnsignedOf<T>>(lane::power_of_two<T>(is_float ? 126 : 1022));
  return mask_cast<T>(nlt(bits(abs(y)) - all(smallest), all(beyond - smallest)));
}

// 1 / y from its estimate, of a y that is not refused: r0 (1 + e + ... + e^terms).
template <int terms, class T> LUM_INLINE Vec<T> Reciprocal(Vec<T> y) {
  const auto r0 = rcp14_normal(y);
  if constexpr (terms == 0) return r0;
  const auto e = fnma(y, r0, all(T(1)));
  auto p = e;
  for (int i = 1; i < terms; ++i) p = fma(e, p, e);
  return fma(r0, p, r0);
}

// x times the reciprocal. A product that overflows or underflows is what the multiplication gives.
template <class T, int terms> struct SeriesTerms : DivKernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x, Vec<T> y) { return {x * Reciprocal<terms>(y), Refused(y)}; }
};

// x / y for numbers whose quotient, residual and reciprocal are normal.
template <class T> LUM_INLINE Vec<T> Quotient(Vec<T> x, Vec<T> y) {
  const auto r0 = rcp14_normal(y);
  const auto q = x * r0;
  auto r = r0;
  if constexpr (std::is_same_v<T, Lum64f>) {
    const auto e = fnma(y, r0, all(T(1)));
    r = fma(r0, fma(e, e, e), r0);
  }
  return fma(r, fnma(q, y, x), q);
}

// Significands in [1, 2) and exponents apart. Infinities and zeros come out of the difference of the exponents. Where that
// takes many instructions the first path divides the numbers themselves, which is the same but for a power of 2, and refuses
// those so small or large that an intermediate value could be beyond the normal numbers.
template <class T> struct BySignificands : DivKernel<T> {
  static constexpr bool refuses_by_class = !estimates_take_all;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x, Vec<T> y) {
    if constexpr (estimates_take_all)
      return {OfParts(parts<significand::from_1_to_2>(x), parts<significand::from_1_to_2>(y)),
              fpclass<classes::nan | classes::zero>(y)};
    else return {Quotient(x, y), IsExtreme(x) | IsExtreme(y)};
  }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, Vec<T> y, const Lanes<T>& lanes) {
    if constexpr (estimates_take_all) return DivKernel<T>::SecondPath(x, y, lanes);
    else return {OfRefused(x, y, lanes), mask_of<T>(0), {.singularity = fpclass<classes::zero>(y)}};
  }

 private:
  static LUM_INLINE Mask<T> IsSpecial(Vec<T> x) { return fpclass<classes::zero | classes::nonfinite>(x); }
  static LUM_INLINE Mask<T> IsExtreme(Vec<T> x) {
    constexpr T large = std::is_same_v<T, Lum32f> ? T(0x1p60) : T(0x1p500);
    const auto a = abs(x);
    return nle(all(1 / large), a) | nle(a, all(large));
  }
  static LUM_INLINE Parts<T> PartsOfNormal(Vec<T> x) { return {getmant_normal<significand::from_1_to_2>(x), getexp_normal(x)}; }
  // Quotients of zeros, infinities and NaN are those of the division itself.
  static LUM_INLINE Vec<T> OfRefused(Vec<T> x, Vec<T> y, const Lanes<T>& lanes) {
    constexpr int interval = significand::from_1_to_2;
    const auto special = IsSpecial(x) | IsSpecial(y), extreme = lanes.refused & ~special;
    auto value = lanes.value;
    if (any(extreme)) {
      const auto dividend = select(extreme, x, all(T(1))), divisor = select(extreme, y, all(T(1)));
      if (any(IsBelowNormal(dividend) | IsBelowNormal(divisor)))
        value = select(extreme, OfParts(PartsOfFinite<interval>(dividend), PartsOfFinite<interval>(divisor)), value);
      else value = select(extreme, OfParts(PartsOfNormal(dividend), PartsOfNormal(divisor)), value);
    }
    if (any(special)) value = select(special, div(select(special, x, all(T(1))), select(special, y, all(T(1)))), value);
    return value;
  }
  static LUM_INLINE Vec<T> OfParts(const Parts<T>& x, const Parts<T>& y) {
    return scalef(Quotient(x.significand, y.significand), x.exponent - y.exponent);
  }
};

using A11_32f = SeriesTerms<Lum32f, 0>;
using A21_32f = SeriesTerms<Lum32f, 1>;
using A24_32f = BySignificands<Lum32f>;
using A26_64f = SeriesTerms<Lum64f, 2>;
using A50_64f = SeriesTerms<Lum64f, 4>;
using A53_64f = BySignificands<Lum64f>;

}  // namespace

LumStatus Div_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A11_32f>(src1, src2, dst, len);
}
LumStatus Div_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A21_32f>(src1, src2, dst, len);
}
LumStatus Div_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A24_32f>(src1, src2, dst, len);
}
LumStatus Div_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A26_64f>(src1, src2, dst, len);
}
LumStatus Div_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A50_64f>(src1, src2, dst, len);
}
LumStatus Div_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A53_64f>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
