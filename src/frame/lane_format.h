// The bits of one floating-point lane, and the NaN that an operation gives: the first operand that is a NaN, made quiet, or the
// default NaN when no operand is one.
#pragma once

#include <bit>
#include <cstdint>

#include "frame/vec_types.h"

namespace lum::inline LUM_LAYER::lane {

template <Floating T> struct Format {
  using Bits = UnsignedOf<T>;
  static constexpr int width = 8 * static_cast<int>(sizeof(T));
  static constexpr int fraction_bits = sizeof(T) == 4 ? 23 : 52;
  static constexpr int bias = sizeof(T) == 4 ? 127 : 1023;
  static constexpr Bits sign = Bits{1} << (width - 1);
  static constexpr Bits hidden = Bits{1} << fraction_bits;
  static constexpr Bits fraction = hidden - 1;
  static constexpr Bits infinity = (sign - 1) & ~fraction;
  static constexpr Bits quiet = hidden >> 1;
  static constexpr Bits default_nan = sign | infinity | quiet;
  static constexpr Bits one = static_cast<Bits>(bias) << fraction_bits;
};

template <Floating T> LUM_INLINE constexpr UnsignedOf<T> to_bits(T x) { return std::bit_cast<UnsignedOf<T>>(x); }
template <Floating T> LUM_INLINE constexpr T from_bits(UnsignedOf<T> b) { return std::bit_cast<T>(b); }
template <Floating T> LUM_INLINE constexpr T magnitude(T x) { return from_bits<T>(to_bits(x) & ~Format<T>::sign); }
// 2^n, for n in the range of normal numbers.
template <Floating T> LUM_INLINE constexpr T power_of_two(int n) {
  using F = Format<T>;
  return std::bit_cast<T>(static_cast<typename F::Bits>(n + F::bias) << F::fraction_bits);
}
// The exponent of a normal number, above it `bias`; 0 for zeros and denormals, 2 bias + 1 for infinities and NaN.
template <Floating T> LUM_INLINE int exponent_field(T x) {
  return static_cast<int>(to_bits(magnitude(x)) >> Format<T>::fraction_bits);
}
// The significand of a positive normal number, in [1, 2).
template <Floating T> LUM_INLINE T significand_of(T x) {
  return from_bits<T>((to_bits(x) & Format<T>::fraction) | Format<T>::one);
}
// All bits set, or none.
template <class Bits> LUM_INLINE Bits mask_if(bool condition) { return condition ? static_cast<Bits>(~Bits{0}) : Bits{0}; }

// All bits set, or none, by a condition on numbers of type T: chosen as one of two such numbers, since a comparison of doubles
// that gives integers keeps some compilers from vectorising a loop.
template <Floating T> LUM_INLINE UnsignedOf<T> mask_where(bool condition) {
  return to_bits(condition ? from_bits<T>(static_cast<UnsignedOf<T>>(~UnsignedOf<T>{0})) : T{0});
}
// Per bit mask ? a : b. Loops over lanes choose between computed values in this way: a conditional expression with arithmetic
// in an arm becomes a branch, since the arithmetic may raise a flag.
template <Floating T> LUM_INLINE T blend(UnsignedOf<T> mask, T a, T b) {
  return from_bits<T>((to_bits(a) & mask) | (to_bits(b) & ~mask));
}

template <Floating T> LUM_INLINE bool is_nan(T x) { return x != x; }
template <Floating T> LUM_INLINE bool is_infinite(T x) { return to_bits(magnitude(x)) == Format<T>::infinity; }
template <Floating T> LUM_INLINE T quieted(T nan) { return from_bits<T>(to_bits(nan) | Format<T>::quiet); }
template <Floating T> LUM_INLINE T default_nan() { return from_bits<T>(Format<T>::default_nan); }
template <Floating T> LUM_INLINE T nan_of(T a) { return is_nan(a) ? quieted(a) : default_nan<T>(); }
template <Floating T, class... Rest> LUM_INLINE T nan_of(T a, Rest... rest) { return is_nan(a) ? quieted(a) : nan_of(rest...); }

// x86 processors give these NaNs by themselves in add, sub, mul, div and sqrt; others have another default NaN.
#if defined(__x86_64__)
inline constexpr bool processor_gives_these_nans = true;
#else
inline constexpr bool processor_gives_these_nans = false;
#endif
template <Floating T, class... Operands> LUM_INLINE T with_nan(T result, Operands... operands) {
  if constexpr (processor_gives_these_nans) return result;
  else return is_nan(result) ? nan_of(operands...) : result;
}

}  // namespace lum::inline LUM_LAYER::lane
