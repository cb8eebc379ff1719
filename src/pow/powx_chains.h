// Powers with exponents so simple that products, a fill or a copy give them. No element is refused but by the reciprocal: NaN,
// infinities and overflow take the course of the arithmetic, without a status.
#pragma once

#include <algorithm>

#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER::pow {

// x^0 = 1, whatever x: the source is not read.
template <class T> LumStatus FillWithOnes(const T* src, T* dst, int32_t len) {
  if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
  const Environment caller = Enter<pure_vector_variant>();
  std::fill_n(dst, len, T(1));
  Leave(caller);
  return lumStsOk;
}

// Bits are moved, so that a signalling NaN stays one.
template <class T> struct Copy : Kernel<T> {
  static constexpr Variant variant = pure_vector_variant;
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) { return x; }
};

// x^n by n - 1 products from the left, n >= 2.
template <class T, int n> struct Chain : Kernel<T> {
  static constexpr Variant variant = pure_vector_variant;
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) {
    auto p = x * x;
    for (int i = 2; i < n; ++i) p = x * p;
    return p;
  }
};

// 1/x to all bits but the last few: with e = 1 - x c,  1/x = c (1 + e) (1 + e^2) (1 + e^4) ..., the last factors left out.
struct ReciprocalA50 : Kernel<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto c = rcp14(x);
    const auto e = fnma(x, c, all(1.0));
    const auto t = fma(c, e, c);
    return {fma(t, e * e, t), fpclass<classes::zero | classes::infinity>(c)};
  }
  static LumStatus LaneRoutine(Lum64f x, Lum64f& result) {
    result = 1 / x;
    return x == 0 ? lumStsSingularity : lumStsOk;
  }
};

}  // namespace lum::inline LUM_LAYER::pow
