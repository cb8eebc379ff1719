// Vector paths that give the bits of a scalar core. A path computes both parts as pairs with some 70 bits (of one part each for
// results of 32 bits), and how far the core's value before its one rounding can be from the true one. Where everything within
// that distance rounds to the same number, that number is the core's result; the other lanes, some in a hundred, and arguments
// outside the path's domain are refused.
#pragma once

#include <type_traits>

#include "complex/core_on_lane.h"
#include "complex/pairs/pair.h"

namespace lum::inline LUM_LAYER::complex {

// A path is a struct with
//   IsOutside(z...)   the arguments outside its domain
//   Of(z...)          the parts of the result, their distances from the core's values in units of 2^-64, and the lanes outside
// and where it applies
//   OfZero(z)         the result of a zero: vectors of zeros are spared all steps by a branch, which costs the others little
//                     where registers come in halves, and where
//   is_long           says that a branch for any special arguments costs them little
//   has_many_constants  says that short calls of 64fc gain by a tail of their own and blocks lose little
template <class Number> struct PathValue {
  Number re, im;
  Vec<Lum64f> re_error, im_error;
  Mask<Lum64f> refused;
};

template <class T> LUM_INLINE Mask<T> IsZero(Vec<T> x) { return eq(x, all(T(0))); }
template <class T> LUM_INLINE Mask<T> IsZero(ComplexVec<T> z) { return IsZero(z.re) & IsZero(z.im); }
LUM_INLINE bool AreZero(ComplexVec<Lum64f> z) { return none(test_any(bits(z.re) | bits(z.im), all(~sign_bit<Lum64f>))); }
// Zeros are not among them, NaN is.
LUM_INLINE Mask<Lum64f> IsBelow(Vec<Lum64f> x, double smallest) { return nle(all(smallest), abs(x)) & ~IsZero(x); }

template <class T> LUM_INLINE Mask<T> IsNonFinite(Vec<T> x) { return fpclass<classes::nonfinite>(x); }
template <class T> LUM_INLINE Mask<T> HasNonFinitePart(ComplexVec<T> z) { return IsNonFinite(z.re) | IsNonFinite(z.im); }

// The parts with relative errors of that many units.
template <class Number> LUM_INLINE PathValue<Number> ValueWithin(Number re, Number im, double units, Mask<Lum64f> refused) {
  return {re, im, abs(re.head) * all(units), abs(im.head) * all(units), refused};
}
// Parts with relative errors that come near the lower end of the range: below this size tails and distances lose bits to it.
inline constexpr double smallest_part = 0x1p-900;
template <class Number>
LUM_INLINE PathValue<Number> SmallValueWithin(Number re, Number im, double units, Mask<Lum64f> refused) {
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
template <class Path, class... Z> [[gnu::noinline]] auto CalledPath(const Z&... z) { return Path::Of(z...); }
template <class Path, class... Z> LUM_INLINE auto PathOfVector(const Z&... z) {
  if constexpr (streams_fit_registers) return Path::Of(z...);
  else return CalledPath<Path>(z...);
}

template <class Path, class... Inputs> LUM_INLINE Lanes<Lum64fc> RoundedPath(const Inputs&... packed) {
  if constexpr (streams_fit_registers && requires { Path::is_long; }) {
    const auto outside = Path::IsOutside(split(packed)...);
    if constexpr (requires { Path::OfZero(split(packed)...); }) {
      if (none(~(outside | IsZero(split(packed)...)))) [[unlikely]]
        return {join(Path::OfZero(split(packed)...)), outside};
    } else {
      if (none(~outside)) [[unlikely]]
        return {{all(0.0), all(0.0)}, outside};
    }
  } else if constexpr (has_halves && requires { Path::OfZero(split(packed)...); }) {
    if (AreZero(split(packed)...)) [[unlikely]]
      return {join(Path::OfZero(split(packed)...)), mask_of<Lum64f>(0)};
  }
  const auto value = PathOfVector<Path>(split(packed)...);
  const auto re = RoundedAsCore(value.re, value.re_error), im = RoundedAsCore(value.im, value.im_error);
  return {join(ComplexVec<Lum64f>{re.value, im.value}), value.refused | re.refused | im.refused};
}

// To binary32 the core's value is rounded twice. Both roundings together give the same for all numbers some units around.
struct NarrowedPart {
  Vec<Lum32f> value;
  Mask<Lum32f> refused;
};
// A number in one part has the errors of some roundings, up to 2^-49.
template <class Number> constexpr double narrowing_distance = std::is_same_v<Number, OnePart> ? 0x1p-46 : 0x1p-49;
template <class Number> LUM_INLINE NarrowedPart NarrowedAsCore(Number low_part, Number high_part) {
  const auto low = low_part.head, high = high_part.head;
  const auto distance = all(narrowing_distance<Number>);
  const auto above = narrow(fma(low, distance, low), fma(high, distance, high));
  const auto below = narrow(fnma(low, distance, low), fnma(high, distance, high));
  const auto magnitude = abs(above);
  return {above, ne(above, below) | nle(magnitude, all(0x1p127f))};
}

LUM_INLINE ComplexVec<Lum64f> WidenLow(ComplexVec<Lum32f> z) { return {widen_low(z.re), widen_low(z.im)}; }
LUM_INLINE ComplexVec<Lum64f> WidenHigh(ComplexVec<Lum32f> z) { return {widen_high(z.re), widen_high(z.im)}; }

template <class Number> LUM_INLINE Lanes<Lum32fc> NarrowedHalves(const PathValue<Number>& low, const PathValue<Number>& high) {
  const auto re = NarrowedAsCore(low.re, high.re), im = NarrowedAsCore(low.im, high.im);
  return {join(ComplexVec<Lum32f>{re.value, im.value}), join(low.refused, high.refused) | re.refused | im.refused};
}
template <class Path, class... Inputs> LUM_INLINE Lanes<Lum32fc> NarrowedPath(const Inputs&... packed) {
  if constexpr (streams_fit_registers) {
    const auto outside = (HasNonFinitePart(split(packed)) | ...);
    if (none(~outside)) [[unlikely]]
      return {{all(0.0f), all(0.0f)}, outside};
  }
  return NarrowedHalves(PathOfVector<Path>(WidenLow(split(packed))...), PathOfVector<Path>(WidenHigh(split(packed))...));
}
// The path of a vector whose first count elements alone are in use: a short call is spared the half without any. A function of
// its own, so that its stack is free again before a second path runs.
template <class Path, class... Inputs> [[gnu::noinline]] Lanes<Lum32fc> NarrowedTail(int count, const Inputs&... packed) {
  const auto low = PathOfVector<Path>(WidenLow(split(packed))...);
  if (count <= lanes_of<Lum64f>) return NarrowedHalves(low, low);
  return NarrowedHalves(low, PathOfVector<Path>(WidenHigh(split(packed))...));
}

// The path in either type, of one or two arguments.
template <class Path, class E, class... Inputs> LUM_INLINE Lanes<E> PathOfElements(const Inputs&... packed) {
  if constexpr (std::is_same_v<E, Lum64fc>) return RoundedPath<Path>(packed...);
  else return NarrowedPath<Path>(packed...);
}
// By itself where a second path needs the stack that it would take beside that.
template <class Path, class E, class... Inputs> [[gnu::noinline]] Lanes<E> CalledPathOfElements(const Inputs&... packed) {
  return PathOfElements<Path, E>(packed...);
}
template <class Path, class E, class... Inputs> LUM_INLINE Lanes<E> PathOfTail(int count, const Inputs&... packed) {
  if constexpr (std::is_same_v<E, Lum64fc>) return RoundedPath<Path>(packed...);
  else return NarrowedTail<Path>(count, packed...);
}

}  // namespace lum::inline LUM_LAYER::complex
