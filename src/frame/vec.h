// Vector operations: the vocabulary in which every kernel is written. One of two layers provides it, the same operations with
// the same result bits in every lane: AVX-512 intrinsics or portable C++. Kernels include this file and never ask which it is.
//
//   types         Vec<T>, T one of float, double, int32_t, uint32_t, int64_t, uint64_t: 512 bits; Mask<T>: one bit a lane.
//   make          all(x)  iota<T>()  load(p)  load(mask, p, fill)  store(p, v)  store(mask, p, v)  first_lanes<T>(count)
//   arithmetic    + - *  add<R> sub<R> mul<R> div<R>(a, b)  sqrt<R>(a)  fma fms fnma fnms<R>(a, b, c)  fmaddsub fmsubadd(a, b,
//   c)
//                 min(a, b)  max(a, b)  abs(a)  negate(a)  rcp14(a)  rsqrt14(a)
//   significand   getexp(a)  getmant<imm>(a)  scalef<R>(a, b)  rndscale<imm>(a)  reduce<imm>(a)
//   masks         eq ne lt le nlt nle unord ord(a, b)  fpclass<imm>(a)  test_any test_none(a, b)  & | ^ ~  any none to_bits(m)
//   selection     select(m, a, b)  zero_unless(m, a)  add(m, a, b)  sub(m, a, b, other)  sub_or_zero(m, a, b)
//                 fixupimm<imm>(a, b, tokens)  ternary<imm>(a, b, c)
//   bits          & | ^  and_not(a, b)  bits(v)  as_float(v)  as_signed(v)  as_unsigned(v)
//   integers      + - *  mul_low_halves(a, b)  mul_add_pairs(a, b)  shift_left right arithmetic, by constant or by lane  min
//   max conversions   widen_low widen_high(v)  narrow(lo, hi)  to_float(v)  spread(mask)  sign_mask(v) lookup permute(table,
//   index)  permute2(lo, hi, index)  permute2_words  gather(base, index)  gather(mask, base, index, old)  gather_rows(base,
//   index) moves deinterleave(a, b)  interleave(even, odd)  swap_pairs(v)  duplicate_even(v)  duplicate_odd(v)
//
// R is the rounding: rn (to nearest even, the default), rd, ru, rz. No operation raises a floating-point flag that a caller
// sees.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>

#define LUM_INLINE inline __attribute__((always_inline))

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
template <int bytes>
struct IntegersOf;
template <>
struct IntegersOf<4> {
  using Signed = int32_t;
  using Unsigned = uint32_t;
};
template <>
struct IntegersOf<8> {
  using Signed = int64_t;
  using Unsigned = uint64_t;
};
template <class T>
using SignedOf = typename IntegersOf<sizeof(T)>::Signed;
template <class T>
using UnsignedOf = typename IntegersOf<sizeof(T)>::Unsigned;

template <Lane T>
inline constexpr int lanes_of = 64 / static_cast<int>(sizeof(T));
template <Floating T>
inline constexpr UnsignedOf<T> sign_bit = UnsignedOf<T>{1} << (8 * sizeof(T) - 1);

}  // namespace lum

// The layers stand in inline namespaces of their own, so that one program may hold both.
#ifdef LUM_AVX512
#define LUM_LAYER avx512
#include "frame/vec_avx512.h"
#else
#define LUM_LAYER portable
#include "frame/vec_portable.h"
#endif
#include "frame/vec_shared.h"
