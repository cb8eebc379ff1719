// Vectors and masks as arrays of lanes, loads and stores, a part of frame/vec_portable.h.
#pragma once

#include <cstring>

#include "frame/lane_format.h"
#include "frame/portable/registers.h"

namespace lum {
inline namespace portable {

// ---- Types: those of registers.h

template <class T> inline constexpr bool is32 = sizeof(T) == 4;
inline constexpr bool vectors_fit_registers = false;
inline constexpr bool packs_lanes = false;
inline constexpr bool has_second_paths = lane::processor_has_fma;
// Whether rcp14 and rsqrt14 take any number at no cost. Otherwise paths that need normal ones refuse the others.
inline constexpr bool estimates_take_all = true;
// Whether permute2 of doubles takes less than the loads and the transposition of rows.
inline constexpr bool permutes_doubles = true;
inline constexpr bool orders_nans = false;
inline constexpr bool streams_fit_registers = false;
inline constexpr bool has_halves = false;

// ---- Make, load, store

// x in every lane.
template <Lane T> LUM_INLINE Vec<T> all(T x) {
  Register<T> r;
  for (int i = 0; i < lanes_of_register<T>; ++i) r[i] = x;
  return from_parts<Vec<T>>([&](int) __attribute__((always_inline)) { return r; });
}

// A whole vector from memory of any alignment.
template <Lane T> LUM_INLINE Vec<T> load(const T* p) {
  return from_parts<Vec<T>>([&](int part) __attribute__((always_inline)) {
    Register<T> r;
    std::memcpy(&r, p + part * lanes_of_register<T>, sizeof r);
    return r;
  });
}

// The lanes of the mask from memory, which alone is read; the others from fill.
template <Lane T> LUM_INLINE Vec<T> load(const Mask<T>& mask, const T* p, Vec<T> fill) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) std::memcpy(&fill.lane[i], p + i, sizeof(T));
  return fill;
}

template <Lane T> LUM_INLINE void store(T* p, const Vec<T>& a) {
  [&]<size_t... part>(std::index_sequence<part...>) __attribute__((always_inline)) {
    const Register<T> parts[] = {part_of(a, static_cast<int>(part))...};
    (std::memcpy(p + static_cast<int>(part) * lanes_of_register<T>, &parts[part], sizeof parts[part]), ...);
  }
  (std::make_index_sequence<parts_of_vector>());
}

// Writes the lanes of the mask and touches no other memory.
template <Lane T> LUM_INLINE void store(const Mask<T>& mask, T* p, const Vec<T>& a) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) std::memcpy(p + i, &a.lane[i], sizeof(T));
}

// ---- Reinterpretation

template <Floating T> LUM_INLINE Vec<UnsignedOf<T>> bits(const Vec<T>& a) { return recast<Vec<UnsignedOf<T>>>(a); }
template <Integer32 T> LUM_INLINE Vec<float> as_float(const Vec<T>& a) { return recast<Vec<float>>(a); }
template <Integer64 T> LUM_INLINE Vec<double> as_float(const Vec<T>& a) { return recast<Vec<double>>(a); }
template <Integer T> LUM_INLINE Vec<SignedOf<T>> as_signed(const Vec<T>& a) { return recast<Vec<SignedOf<T>>>(a); }
template <Integer T> LUM_INLINE Vec<UnsignedOf<T>> as_unsigned(const Vec<T>& a) { return recast<Vec<UnsignedOf<T>>>(a); }
// The lanes of one width seen as lanes of the other, the low half first.
template <Integer64 T> LUM_INLINE Vec<uint32_t> as_lanes32(const Vec<T>& a) { return recast<Vec<uint32_t>>(a); }

// ---- Masks

// The low `count` lanes, 0 <= count <= lanes.
template <Lane T> LUM_INLINE Mask<T> first_lanes(int count) {
  return each_mask_lane<T>([&](int i) { return i < count; });
}
// Writes the first count lanes, 0 <= count <= lanes, and touches no other memory. Not by one copy of that size, which would be
// a call of the C library.
template <Lane T> LUM_INLINE void store_first(int count, T* p, const Vec<T>& a) { store(first_lanes<T>(count), p, a); }
template <Lane T> LUM_INLINE Mask<T> mask_of(uint32_t lane_bits) {
  return each_mask_lane<T>([&](int i) { return (lane_bits & (1u << i)) != 0; });
}
template <Lane T> LUM_INLINE uint32_t to_bits(const Mask<T>& m) {
  uint32_t lane_bits = 0;
  for (int i = 0; i < lanes_of<T>; ++i) lane_bits |= static_cast<uint32_t>(m.bits_of(i)) & (1u << i);
  return lane_bits;
}
// The mask of lanes of one type as that of another type with as many lanes.
template <Lane To, Lane From>
requires(sizeof(To) == sizeof(From)) LUM_INLINE Mask<To> mask_cast(const Mask<From>& m) { return recast<Mask<To>>(m); }
template <Lane T> LUM_INLINE Mask<T> operator&(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x & y; }, a, b);
}
template <Lane T> LUM_INLINE Mask<T> operator|(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x | y; }, a, b);
}
template <Lane T> LUM_INLINE Mask<T> operator^(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_part<T>(
      [](auto x, auto y) __attribute__((always_inline)) { return x ^ y; }, a, b);
}
template <Lane T> LUM_INLINE Mask<T> operator~(const Mask<T>& a) {
  return each_mask_part<T>(
      [](auto x) __attribute__((always_inline)) { return ~x; }, a);
}
template <Lane T> LUM_INLINE bool any(const Mask<T>& a) {
  auto united = part_of(a, 0);
  [&]<size_t... part>(std::index_sequence<part...>) __attribute__((always_inline)) {
    ((united |= part_of(a, static_cast<int>(part))), ...);
  }
  (std::make_index_sequence<parts_of_vector>());
  return any_bit(united);
}
template <Lane T> LUM_INLINE bool none(const Mask<T>& a) { return !any(a); }
// The mask, of which the compiler knows nothing. Clang makes a choice between a + b and a a sum with a chosen summand, b or -0,
// and that quiets a signalling NaN in a lane that should stay as it is; where it sees no choice, it leaves the bits alone.
template <Lane T> LUM_INLINE Mask<T> of_unknown_origin(Mask<T> m) {
#ifdef __clang__
  using Register [[gnu::vector_size(16)]] = UnsignedOf<T>;
  constexpr int lanes = static_cast<int>(sizeof(Register) / sizeof(T));
  for (int i = 0; i < lanes_of<T>; i += lanes) {
    Register part;
    std::memcpy(&part, &m.lane[i], sizeof part);
#if defined(__x86_64__)
    asm("" : "+x"(part));
#else
    asm("" : "+w"(part));
#endif
    std::memcpy(&m.lane[i], &part, sizeof part);
  }
#endif
  return m;
}
// The masks of two vectors of doubles as that of one vector of floats, and its halves.
LUM_INLINE Mask<float> join(const Mask<double>& low, const Mask<double>& high) {
  return recast<Mask<float>>(joined_halves<int32_t>(recast<Vec<int64_t>>(low), recast<Vec<int64_t>>(high)));
}
LUM_INLINE Mask<double> low_half(const Mask<float>& m) {
  return recast<Mask<double>>(widened_half<int64_t, 0>(recast<Vec<int32_t>>(m)));
}
LUM_INLINE Mask<double> high_half(const Mask<float>& m) {
  return recast<Mask<double>>(widened_half<int64_t, 1>(recast<Vec<int32_t>>(m)));
}

}  // namespace portable
}  // namespace lum
