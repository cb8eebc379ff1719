// Bitwise and integer operations and conversions lane by lane, a part of frame/vec_portable.h.
#pragma once

#include <type_traits>

#include "frame/portable/base.h"

namespace lum {
inline namespace portable {

// ---- Bits and integers

// Integers wrap around: the work is done without sign.
template <Integer T> LUM_INLINE UnsignedOf<T> raw(T x) { return static_cast<UnsignedOf<T>>(x); }

template <Integer T> LUM_INLINE Vec<T> operator&(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return a.lane[i] & b.lane[i]; });
}
template <Integer T> LUM_INLINE Vec<T> operator|(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return a.lane[i] | b.lane[i]; });
}
template <Integer T> LUM_INLINE Vec<T> operator^(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return a.lane[i] ^ b.lane[i]; });
}
// ~a & b.
template <Integer T> LUM_INLINE Vec<T> and_not(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return ~a.lane[i] & b.lane[i]; });
}

template <Integer T> LUM_INLINE Vec<T> operator+(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) + raw(b.lane[i])); });
}
template <Integer T> LUM_INLINE Vec<T> operator-(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) - raw(b.lane[i])); });
}
// The low half of the product.
template <Integer T> LUM_INLINE Vec<T> operator*(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) * raw(b.lane[i])); });
}
// The whole product of the low 32 bits of each lane.
LUM_INLINE Vec<uint64_t> mul_low_halves(const Vec<uint64_t>& a, const Vec<uint64_t>& b) {
  return each_lane<uint64_t>([&](int i) { return (a.lane[i] & 0xFFFFFFFF) * (b.lane[i] & 0xFFFFFFFF); });
}

template <int n, Integer T> LUM_INLINE Vec<T> shift_left(const Vec<T>& a) {
  if constexpr (n >= 8 * sizeof(T)) return all(T{0});
  else return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) << n); });
}
// Zeros come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right(const Vec<T>& a) {
  if constexpr (n >= 8 * sizeof(T)) return all(T{0});
  else return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) >> n); });
}
// Copies of the sign bit come in from the left.
template <int n, Integer T> LUM_INLINE Vec<T> shift_right_arithmetic(const Vec<T>& a) {
  constexpr int last = 8 * static_cast<int>(sizeof(T)) - 1;
  return each_lane<T>([&](int i) { return static_cast<T>(static_cast<SignedOf<T>>(a.lane[i]) >> (n < last ? n : last)); });
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
  return each_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    return x < y ? x : y;
  });
}
template <Integer T> LUM_INLINE Vec<T> max(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    return x > y ? x : y;
  });
}

// ---- Conversions

// The low or high half of the lanes, widened; exact.
LUM_INLINE Vec<double> widen_low(const Vec<float>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(a.lane[i]); });
}
LUM_INLINE Vec<double> widen_high(const Vec<float>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(a.lane[i + 8]); });
}
LUM_INLINE Vec<int64_t> widen_low(const Vec<int32_t>& a) {
  return each_lane<int64_t>([&](int i) { return int64_t{a.lane[i]}; });
}
LUM_INLINE Vec<int64_t> widen_high(const Vec<int32_t>& a) {
  return each_lane<int64_t>([&](int i) { return int64_t{a.lane[i + 8]}; });
}
LUM_INLINE Vec<uint64_t> widen_low(const Vec<uint32_t>& a) {
  return each_lane<uint64_t>([&](int i) { return uint64_t{a.lane[i]}; });
}
LUM_INLINE Vec<uint64_t> widen_high(const Vec<uint32_t>& a) {
  return each_lane<uint64_t>([&](int i) { return uint64_t{a.lane[i + 8]}; });
}
// Two vectors rounded to nearest and joined; integers lose their high halves.
LUM_INLINE Vec<float> narrow(const Vec<double>& low, const Vec<double>& high) {
  Vec<float> r;
  for (int i = 0; i < 8; ++i) r.lane[i] = static_cast<float>(low.lane[i]);
  for (int i = 0; i < 8; ++i) r.lane[i + 8] = static_cast<float>(high.lane[i]);
  return r;
}
template <Integer64 T> LUM_INLINE auto narrow(const Vec<T>& low, const Vec<T>& high) {
  using Narrow = std::conditional_t<std::same_as<T, int64_t>, int32_t, uint32_t>;
  Vec<Narrow> r;
  for (int i = 0; i < 8; ++i) r.lane[i] = static_cast<Narrow>(low.lane[i]);
  for (int i = 0; i < 8; ++i) r.lane[i + 8] = static_cast<Narrow>(high.lane[i]);
  return r;
}
// Integers as floating-point numbers, rounded to nearest.
LUM_INLINE Vec<float> to_float(const Vec<int32_t>& a) {
  return each_lane<float>([&](int i) { return static_cast<float>(a.lane[i]); });
}
// The low 32 bits of each lane, a signed integer, as a double; exact.
template <Integer64 T> LUM_INLINE Vec<double> to_double(const Vec<T>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(static_cast<int32_t>(a.lane[i])); });
}
// All bits of a lane set where the mask is.
template <Lane T> LUM_INLINE Vec<UnsignedOf<T>> spread(const Mask<T>& m) { return std::bit_cast<Vec<UnsignedOf<T>>>(m); }
// The top bit of every lane.
template <Integer T> LUM_INLINE Mask<T> sign_mask(const Vec<T>& a) {
  return each_mask_lane<T>([&](int i) { return static_cast<SignedOf<T>>(a.lane[i]) < 0; });
}

}  // namespace portable
}  // namespace lum
