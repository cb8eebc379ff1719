// What both layers of vector operations start from: the types of a lane, and the rounding of an operation.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>

#include "frame/immediates.h"
#include "frame/layer.h"

#define LUM_INLINE inline __attribute__((always_inline))
// A stage of a long vector path. In the portable layer it is a function of its own: intermediate vectors lie on the stack
// there, and those of one stage make room for those of the next.
#if defined(LUM_AVX512) || defined(LUM_AVX2)
#define LUM_STAGE LUM_INLINE
#else
#define LUM_STAGE inline __attribute__((noinline))
#endif

namespace lum {

// Rounding of one operation, as the two-bit field of the instruction.
inline constexpr int rn = 0;
inline constexpr int rd = 1;
inline constexpr int ru = 2;
inline constexpr int rz = 3;

template <class T>
concept Floating = std::same_as<T, float> || std::same_as<T, double>;
template <class T>
concept Integer =
    std::same_as<T, int32_t> || std::same_as<T, uint32_t> || std::same_as<T, int64_t> || std::same_as<T, uint64_t>;
template <class T>
concept Integer32 = Integer<T> && sizeof(T) == 4;
template <class T>
concept Integer64 = Integer<T> && sizeof(T) == 8;
template <class T>
concept Lane = Floating<T> || Integer<T>;

// The integer types as wide as a lane.
template <int bytes> struct IntegersOf;
template <> struct IntegersOf<4> {
  using Signed = int32_t;
  using Unsigned = uint32_t;
};
template <> struct IntegersOf<8> {
  using Signed = int64_t;
  using Unsigned = uint64_t;
};
template <class T> using SignedOf = typename IntegersOf<sizeof(T)>::Signed;
template <class T> using UnsignedOf = typename IntegersOf<sizeof(T)>::Unsigned;

template <Lane T> inline constexpr int lanes_of = 64 / static_cast<int>(sizeof(T));
template <Floating T> inline constexpr UnsignedOf<T> sign_bit = UnsignedOf<T>{1} << (8 * sizeof(T) - 1);

}  // namespace lum
