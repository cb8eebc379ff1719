// Bitwise and integer operations and conversions lane by lane, a part of frame/vec_portable.h.
#pragma once

#include <type_traits>

#include "frame/portable/base.h"

namespace lum {
inline namespace portable {

// ---- Bits and integers

// Integers wrap around: the work is done without sign.
template <Integer T> LUM_INLINE UnsignedOf<T> raw(T x) { return static_cast<UnsignedOf<T>>(x); }
template <Integer T> LUM_INLINE Register<UnsignedOf<T>> unsigned_part(Register<T> x) { return register_cast<UnsignedOf<T>>(x); }

template <Integer T> LUM_INLINE Vec<T> operator&(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x & y; }, a, b);
}
template <Integer T> LUM_INLINE Vec<T> operator|(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x | y; }, a, b);
}
template <Integer T> LUM_INLINE Vec<T> operator^(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x ^ y; }, a, b);
}
// ~a & b.
template <Integer T> LUM_INLINE Vec<T> and_not(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return ~x & y; }, a, b);
}

template <Integer T> LUM_INLINE Vec<T> operator+(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return unsigned_part<T>(x) + unsigned_part<T>(y); }, a, b);
}
template <Integer T> LUM_INLINE Vec<T> operator-(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return unsigned_part<T>(x) - unsigned_part<T>(y); }, a, b);
}
// The low half of the product.
template <Integer T> LUM_INLINE Vec<T> operator*(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return unsigned_part<T>(x) * unsigned_part<T>(y); }, a, b);
}
// The whole product of the low 32 bits of each lane.
LUM_INLINE Vec<uint64_t> mul_low_halves(const Vec<uint64_t>& a, const Vec<uint64_t>& b) {
  return each_part<uint64_t>(
      [](auto x, auto y) __attribute__((always_inline)) { return (x & 0xFFFFFFFF) * (y & 0xFFFFFFFF); }, a, b);
}

template <int n, Integer T> LUM_INLINE Vec<T> shift_left(const Vec<T>& a) {
  if constexpr (n >= 8 * sizeof(T)) return all(T{0});
  else
    return each_part<T>(
        [](auto x) __attribute__((always_inline)) { return unsigned_part<T>(x) << n; }, a);
}
// Zeros come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right(const Vec<T>& a) {
  if constexpr (n >= 8 * sizeof(T)) return all(T{0});
  else
    return each_part<T>(
        [](auto x) __attribute__((always_inline)) { return unsigned_part<T>(x) >> n; }, a);
}
// Copies of the sign bit come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(const Vec<T>& a) {
  constexpr int last = 8 * static_cast<int>(sizeof(T)) - 1;
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) { return register_cast<SignedOf<T>>(x) >> (n < last ? n : last); }, a);
}
// By the count in the lane of n, unsigned; counts from the lane's width on shift everything out.
template <Integer T> LUM_INLINE Vec<T> shift_left(const Vec<T>& a, const Vec<T>& n) {
  constexpr unsigned width = 8 * sizeof(T);
  return each_lane<T>([&](int i) {
    const auto count = raw(n.lane[i]);
    return count < width ? static_cast<T>(raw(a.lane[i]) << count) : T{0};
  });
}
template <Integer T> LUM_INLINE Vec<T> shift_right(const Vec<T>& a, const Vec<T>& n) {
  constexpr unsigned width = 8 * sizeof(T);
  return each_lane<T>([&](int i) {
    const auto count = raw(n.lane[i]);
    return count < width ? static_cast<T>(raw(a.lane[i]) >> count) : T{0};
  });
}
template <Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(const Vec<T>& a, const Vec<T>& n) {
  constexpr unsigned last = 8 * sizeof(T) - 1;
  return each_lane<T>([&](int i) {
    const auto count = raw(n.lane[i]) < last ? raw(n.lane[i]) : UnsignedOf<T>{last};
    return static_cast<T>(static_cast<SignedOf<T>>(a.lane[i]) >> count);
  });
}
template <Integer T> LUM_INLINE Vec<T> min(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x < y ? x : y; }, a, b);
}
template <Integer T> LUM_INLINE Vec<T> max(const Vec<T>& a, const Vec<T>& b) {
  return each_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x > y ? x : y; }, a, b);
}

// ---- Conversions

// The low or high half of the lanes, widened; exact.
LUM_INLINE Vec<double> widen_low(const Vec<float>& a) { return widened_half<double, 0>(a); }
LUM_INLINE Vec<double> widen_high(const Vec<float>& a) { return widened_half<double, 1>(a); }
LUM_INLINE Vec<int64_t> widen_low(const Vec<int32_t>& a) { return widened_half<int64_t, 0>(a); }
LUM_INLINE Vec<int64_t> widen_high(const Vec<int32_t>& a) { return widened_half<int64_t, 1>(a); }
LUM_INLINE Vec<uint64_t> widen_low(const Vec<uint32_t>& a) { return widened_half<uint64_t, 0>(a); }
LUM_INLINE Vec<uint64_t> widen_high(const Vec<uint32_t>& a) { return widened_half<uint64_t, 1>(a); }
// Two vectors rounded to nearest and joined; integers lose their high halves.
LUM_INLINE Vec<float> narrow(const Vec<double>& low, const Vec<double>& high) { return joined_halves<float>(low, high); }
template <Integer64 T> LUM_INLINE auto narrow(const Vec<T>& low, const Vec<T>& high) {
  return joined_halves<std::conditional_t<std::same_as<T, int64_t>, int32_t, uint32_t>>(low, high);
}
// Integers as floating-point numbers, rounded to nearest.
LUM_INLINE Vec<float> to_float(const Vec<int32_t>& a) {
  return each_part<float>(
      [](auto x) __attribute__((always_inline)) { return __builtin_convertvector(x, Register<float>); }, a);
}
// The low 32 bits of each lane, a signed integer, as a double; exact.
template <Integer64 T> LUM_INLINE Vec<double> to_double(const Vec<T>& a) {
  return each_part<double>(
      [](auto x) __attribute__((always_inline)) {
        // The integer with its sign bit turned over, as the last bits of 2^52.
        constexpr double shifter = 0x1p52;
        const auto above = (register_cast<uint64_t>(x) & 0xFFFFFFFF) ^ 0x80000000;
        return register_cast<double>(above | std::bit_cast<uint64_t>(shifter)) - (shifter + 0x1p31);
      },
      a);
}
// All bits of a lane set where the mask is.
template <Lane T> LUM_INLINE Vec<UnsignedOf<T>> spread(const Mask<T>& m) { return recast<Vec<UnsignedOf<T>>>(m); }
// The top bit of every lane.
template <Integer T> LUM_INLINE Mask<T> sign_mask(const Vec<T>& a) {
  return each_mask_part<T>(
      [](auto x) __attribute__((always_inline)) { return register_cast<SignedOf<T>>(x) < 0; }, a);
}

}  // namespace portable
}  // namespace lum
