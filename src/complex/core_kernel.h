// Vector kernels that give the bits of a scalar core. A path computes both parts as pairs with some 70 bits, and how far the
// core's value before its one rounding can be from the true one. Where everything within that distance rounds to the same
// number, that number is the core's result; the other lanes, some in a hundred, and arguments outside the path's domain go
// to the core itself.
#pragma once

#include "complex/core_on_lane.h"
#include "complex/pairs/pair.h"

namespace lum::inline LUM_LAYER {

// The parts of a result, their distances from the core's values in units of 2^-64, and the lanes outside the domain.
struct PathValue {
  HeadTail re, im;
  Vec<Lum64f> re_error, im_error;
  Mask<Lum64f> refused;
};

LUM_INLINE Mask<Lum64f> IsZero(Vec<Lum64f> x) { return eq(x, all(0.0)); }
// Zeros are not among them, NaN is.
LUM_INLINE Mask<Lum64f> IsBelow(Vec<Lum64f> x, double smallest) { return nle(all(smallest), abs(x)) & ~IsZero(x); }

// Relative errors of both parts.
LUM_INLINE PathValue ValueWithin(HeadTail re, HeadTail im, double units, Mask<Lum64f> refused) {
  return {re, im, abs(re.head) * all(units), abs(im.head) * all(units), refused};
}
// Relative errors of parts that come near the lower end of the range: below this size tails and distances lose bits to it.
inline constexpr double smallest_part = 0x1p-900;
LUM_INLINE PathValue SmallValueWithin(HeadTail re, HeadTail im, double units, Mask<Lum64f> refused) {
  return ValueWithin(re, im, units, refused | IsBelow(re.head, smallest_part) | IsBelow(im.head, smallest_part));
}

// Lanes with a magnitude above the largest, or so small that squares and products of squares lose bits to the end of the range;
// zeros are not among them, NaN is.
LUM_INLINE Mask<Lum64f> IsFar(Vec<Lum64f> x, double largest) { return IsBelow(x, 0x1p-200) | nle(abs(x), all(largest)); }
// A part too small or too large for squares and their products.
LUM_INLINE Mask<Lum64f> HasFarPart(ComplexVec<Lum64f> z) {
  constexpr double largest = 0x1p240;
  return IsFar(z.re, largest) | IsFar(z.im, largest);
}

// A part rounded to binary64, given |head| at least smallest_part or 0. A zero has the sign of the head.
struct RoundedPart {
  Vec<Lum64f> value;
  Mask<Lum64f> refused;
};
LUM_INLINE RoundedPart RoundedAsCore(HeadTail part, Vec<Lum64f> error) {
  const auto [head, tail] = Normalised(part);
  const auto distance = error * all(0x1p-64);
  const auto above = head + (tail + distance), below = head + (tail - distance);
  return {or_sign(part.head, above), ne(above, below)};
}

// Where registers do not hold a path's intermediate vectors, all calls share one copy of it and of its stack.
template <class Path, class... Z> [[gnu::noinline]] PathValue CalledPath(const Z&... z) { return Path::Of(z...); }
template <class Path, class... Z> LUM_INLINE PathValue PathOfVector(const Z&... z) {
  if constexpr (streams_fit_registers) return Path::Of(z...);
  else return CalledPath<Path>(z...);
}

template <class Path, class... Inputs> LUM_INLINE Lanes<Lum64fc> RoundedPath(const Inputs&... packed) {
  const auto value = PathOfVector<Path>(split(packed)...);
  const auto re = RoundedAsCore(value.re, value.re_error), im = RoundedAsCore(value.im, value.im_error);
  return {join(ComplexVec<Lum64f>{re.value, im.value}), value.refused | re.refused | im.refused};
}

// To binary32 the core's value is rounded twice. Both roundings together give the same for all numbers some units around.
struct NarrowedPart {
  Vec<Lum32f> value;
  Mask<Lum32f> refused;
};
LUM_INLINE NarrowedPart NarrowedAsCore(Vec<Lum64f> low, Vec<Lum64f> high) {
  const auto distance = all(0x1p-49);
  const auto above = narrow(fma(low, distance, low), fma(high, distance, high));
  const auto below = narrow(fnma(low, distance, low), fnma(high, distance, high));
  const auto magnitude = abs(above);
  const auto is_small = nle(all(0x1p-125f), magnitude) & ~join(IsZero(low), IsZero(high));
  return {above, ne(above, below) | is_small | nle(magnitude, all(0x1p127f))};
}

LUM_INLINE ComplexVec<Lum64f> WidenLow(ComplexVec<Lum32f> z) { return {widen_low(z.re), widen_low(z.im)}; }
LUM_INLINE ComplexVec<Lum64f> WidenHigh(ComplexVec<Lum32f> z) { return {widen_high(z.re), widen_high(z.im)}; }

template <class Path, class... Inputs> LUM_INLINE Lanes<Lum32fc> NarrowedPath(const Inputs&... packed) {
  const auto low = PathOfVector<Path>(WidenLow(split(packed))...), high = PathOfVector<Path>(WidenHigh(split(packed))...);
  const auto re = NarrowedAsCore(low.re.head, high.re.head), im = NarrowedAsCore(low.im.head, high.im.head);
  return {join(ComplexVec<Lum32f>{re.value, im.value}), join(low.refused, high.refused) | re.refused | im.refused};
}

// The path in either type, of one or two arguments.
template <class Path, class E, class... Inputs> LUM_INLINE Lanes<E> PathOfElements(const Inputs&... packed) {
  if constexpr (std::is_same_v<E, Lum64fc>) return RoundedPath<Path>(packed...);
  else return NarrowedPath<Path>(packed...);
}

// Whether a call goes through the vector path: not where what a core does in the caller's rounding (to narrow, and the products
// of a power) is not to nearest, nor where the caller has denormal numbers flushed, which tails may be and numbers of Extended
// are not. The portable vectors are slower than the core.
#if defined(LUM_AVX512) || defined(LUM_AVX2)
inline constexpr bool has_fast_vectors = true;
inline bool TakesVectorPath() { return (ReadMxcsr() & (mxcsr_rounding | mxcsr_flush_to_zero | mxcsr_denormals_are_zero)) == 0; }
#else
inline constexpr bool has_fast_vectors = false;
inline bool TakesVectorPath() { return false; }
#endif

// The kernels of functions that report nothing, and of those that report overflow.
template <class Path, OneInputCore core, class E> struct SilentKernel : Kernel<E> {
  static constexpr Variant variant = scalar_core_variant;
  static constexpr int vectors = 1;
  static LUM_INLINE Lanes<E> VectorPath(Interleaved<Real<E>> z) { return PathOfElements<Path, E>(z); }
  static void LaneRoutine(const E& z, E& result) { SilentCoreOnLane<core>(z, result); }
};
template <class Path, OneInputCore core, class E> struct ReportingKernel : SilentKernel<Path, core, E> {
  static LumStatus LaneRoutine(const E& z, E& result) { return ReportingCoreOnLane<core>(z, result); }
};

// The array function of a core and its path, which reports nothing or reports overflow.
template <class Path, OneInputCore core, class E> LumStatus RunSilent(const E* src, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (TakesVectorPath()) return OneInput<SilentKernel<Path, core, E>>(src, dst, len);
  }
  return SilentLoop<core>(src, dst, len);
}
template <class Path, OneInputCore core, class E> LumStatus RunReporting(const E* src, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (TakesVectorPath()) return OneInput<ReportingKernel<Path, core, E>>(src, dst, len);
  }
  return ReportingLoop<core, E>::Run(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
