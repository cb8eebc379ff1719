// Ceil, Floor, Trunc, Rint, NearbyInt, Round, Frac and Modf: integer and fractional parts. All rest on one operation that
// rounds to an integer and keeps the sign of a zero. Rint and NearbyInt take the rounding from the environment, which every
// kernel has set to nearest before: both round ties to even, whatever the caller's mode. None reports a status.
#include <cmath>
#include <limits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

constexpr int to_integer = binary_places(0);

template <class T> struct PlainKernel : Kernel<T> {
  static constexpr Variant variant = pure_vector_variant;
  static constexpr int vectors = 4;
  static constexpr bool aligns_stores = true;
};

template <class T, int how> struct ToInteger : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) { return rndscale<to_integer | how>(x); }
};

// Ties away from zero: the number below 1/2 added to the magnitude, and what is behind the point cut. A tie then lies so close
// to the next integer that the sum rounds to it, and what is less than a tie by one place stays below it; from the size on
// where all numbers are integers the sum rounds back. `slot` makes kernels of the same code that differ in their address: a row
// of the entry table has three slots, of which the one name of Round takes the last, and the table's test tells them apart by
// their pointers.
template <class T> inline constexpr T below_half = T(0.5) - std::numeric_limits<T>::epsilon() / 4;
template <class T, int slot> struct RoundKernel : PlainKernel<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) { return rndscale<to_integer | rz>(x + or_sign(x, all(below_half<T>))); }
};

// What x has behind the point, with its sign. The difference is exact.
template <class T> LUM_INLINE Vec<T> Fraction(Vec<T> x, Vec<T> whole) { return or_sign(x, x - whole); }

// A zero with the sign of an infinity, or the NaN quieted, in the lanes of the mask; other in the rest.
template <class T> LUM_INLINE Vec<T> FractionOfNonFinite(Vec<T> x, Mask<T> non_finite, Vec<T> other) {
  const auto fraction = select(fpclass<classes::infinity>(x), x & all(sign_bit<T>), x + x);
  return select(non_finite, fraction, other);
}

// Infinities and NaN are refused, since x - x would be a NaN there.
template <class T> struct FracKernel : Kernel<T> {
  static constexpr bool aligns_stores = true;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    return {Fraction(x, rndscale<to_integer | rz | quiet>(x)), fpclass<classes::nonfinite>(x)};
  }
  static void LaneRoutine(T x, T& fraction) { fraction = x != x ? x + x : std::copysign(T(0), x); }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return {FractionOfNonFinite(x, lanes.refused, lanes.value), mask_of<T>(0)};
  }
};

template <class T> struct ModfKernel : Kernel<T> {
  static constexpr bool aligns_stores = true;
  static LUM_INLINE TwoLanes<T> VectorPath(Vec<T> x) {
    const auto whole = rndscale<to_integer | rz | quiet>(x);
    return {whole, Fraction(x, whole), fpclass<classes::nonfinite>(x)};
  }
  static void LaneRoutine(T x, T& whole, T& fraction) {
    whole = x + x;  // an infinity, or the NaN quieted
    fraction = x != x ? x + x : std::copysign(T(0), x);
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE TwoLanes<T> SecondPath(Vec<T> x, const TwoLanes<T>& lanes) {
    return {select(lanes.refused, x + x, lanes.value1), FractionOfNonFinite(x, lanes.refused, lanes.value2), mask_of<T>(0)};
  }
};

}  // namespace

LumStatus Ceil_32f(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<ToInteger<Lum32f, ru>>(src, dst, len); }
LumStatus Ceil_64f(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<ToInteger<Lum64f, ru>>(src, dst, len); }
LumStatus Floor_32f(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<ToInteger<Lum32f, rd>>(src, dst, len); }
LumStatus Floor_64f(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<ToInteger<Lum64f, rd>>(src, dst, len); }
LumStatus Trunc_32f(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<ToInteger<Lum32f, rz>>(src, dst, len); }
LumStatus Trunc_64f(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<ToInteger<Lum64f, rz>>(src, dst, len); }
LumStatus Rint_32f(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<ToInteger<Lum32f, as_environment>>(src, dst, len);
}
LumStatus Rint_64f(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<ToInteger<Lum64f, as_environment>>(src, dst, len);
}
LumStatus NearbyInt_32f(const Lum32f* src, Lum32f* dst, int32_t len) {
  return OneInput<ToInteger<Lum32f, as_environment | quiet>>(src, dst, len);
}
LumStatus NearbyInt_64f(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<ToInteger<Lum64f, as_environment | quiet>>(src, dst, len);
}
LumStatus Round_32f(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<RoundKernel<Lum32f, 0>>(src, dst, len); }
LumStatus Round_64f(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<RoundKernel<Lum64f, 0>>(src, dst, len); }
LumStatus Round_64f_Second(const Lum64f* src, Lum64f* dst, int32_t len) {
  return OneInput<RoundKernel<Lum64f, 1>>(src, dst, len);
}
LumStatus Frac_32f(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<FracKernel<Lum32f>>(src, dst, len); }
LumStatus Frac_64f(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<FracKernel<Lum64f>>(src, dst, len); }
LumStatus Modf_32f(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len) {
  return TwoOutputs<ModfKernel<Lum32f>>(src, dst1, dst2, len);
}
LumStatus Modf_64f(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len) {
  return TwoOutputs<ModfKernel<Lum64f>>(src, dst1, dst2, len);
}

}  // namespace lum::inline LUM_LAYER
