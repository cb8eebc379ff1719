// Classes and signs of the parts of complex numbers, for the scalar cores. Everything is decided on bits: the caller may have
// the vector unit take denormal operands for zero.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "complex/core/cores.h"
#include "complex/core/extended.h"
#include "frame/lane_format.h"

namespace lum::inline LUM_LAYER::complex {

inline constexpr Lum64f infinity = std::numeric_limits<Lum64f>::infinity();

template <Floating T> auto MagnitudeBits(T x) {
  using Word = UnsignedOf<T>;
  auto bits = std::bit_cast<Word>(x);
#ifdef __clang__
  asm("" : "+r"(bits));  // else tests of bits become comparisons of numbers, which raise flags and may trap
#endif
  return bits & (~Word{0} >> 1);
}
template <Floating T> bool IsNan(T x) { return MagnitudeBits(x) > lane::Format<T>::infinity; }
template <Floating T> bool IsInfinite(T x) { return MagnitudeBits(x) == lane::Format<T>::infinity; }
template <Floating T> bool IsFinite(T x) { return MagnitudeBits(x) < lane::Format<T>::infinity; }
template <Floating T> bool IsZero(T x) { return MagnitudeBits(x) == 0; }
// A zero or a denormal.
template <Floating T> bool IsBelowNormal(T x) { return MagnitudeBits(x) < lane::Format<T>::hidden; }
template <Floating T> bool IsDenormal(T x) { return IsBelowNormal(x) && !IsZero(x); }
template <Floating T> bool IsFiniteNonZero(T x) { return IsFinite(x) && !IsZero(x); }

inline bool IsNegative(Lum64f x) { return (std::bit_cast<uint64_t>(x) >> 63) != 0; }
inline Lum64f Magnitude(Lum64f x) { return std::bit_cast<Lum64f>(MagnitudeBits(x)); }
inline Lum64f Negated(Lum64f x) { return std::bit_cast<Lum64f>(std::bit_cast<uint64_t>(x) ^ (uint64_t{1} << 63)); }
inline Lum64f WithSign(bool negative, Lum64f magnitude) { return negative ? Negated(magnitude) : magnitude; }
inline Lum64f WithSignOf(Lum64f sign, Lum64f magnitude) { return WithSign(IsNegative(sign), magnitude); }

// Operations that may be invalid: their NaN has its sign set, on processors too that would give a positive one.
inline Lum64f Sum(Lum64f a, Lum64f b) { return lane::with_nan(a + b, a, b); }
inline Lum64f Difference(Lum64f a, Lum64f b) { return lane::with_nan(a - b, a, b); }
inline Lum64f Product(Lum64f a, Lum64f b) { return lane::with_nan(a * b, a, b); }

// An operation that is wanted for the floating-point flags it raises.
inline void Discard(Lum64f value) {
  volatile Lum64f sink = value;
  static_cast<void>(sink);
}
template <Floating T> void RaiseUnderflow() {
  volatile T smallest_normal = std::numeric_limits<T>::min();
  volatile T sink = smallest_normal * smallest_normal;
  static_cast<void>(sink);
}
// A stored constant is not the exact result: it says so by the precision flag.
inline Lum64f Inexact(Lum64f constant) {
  volatile Lum64f small = std::numeric_limits<Lum64f>::min();
  Discard(constant + small);
  return constant;
}

// The end of a core: denormal parts have underflowed.
inline void Finish(ComplexDouble& result, Lum64f re, Lum64f im) {
  if (IsDenormal(re) || IsDenormal(im)) RaiseUnderflow<Lum64f>();
  result = {re, im};
}

}  // namespace lum::inline LUM_LAYER::complex
