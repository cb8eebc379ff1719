// Vectors and masks as arrays of lanes, loads and stores, a part of frame/vec_portable.h.
#pragma once

#include <cstring>

#include "frame/lane_format.h"
#include "frame/vec_types.h"

namespace lum {
inline namespace portable {

// ---- Types

template <Lane T> struct alignas(16) Vec { T lane[lanes_of<T>]; };
// A vector as a parameter of an inlined function that hands it on to a called one: a copy would have its own place on the
// stack.
template <Lane T> using VecIn = const Vec<T>&;

// All bits set in the lanes of the mask, none in the others. The lanes are of type T, since some compilers do not vectorise a
// comparison of doubles that gives integers.
template <Lane T> struct alignas(16) Mask {
  T lane[lanes_of<T>];
  LUM_INLINE UnsignedOf<T> bits_of(int i) const { return std::bit_cast<UnsignedOf<T>>(lane[i]); }
};

template <class T> inline constexpr bool is32 = sizeof(T) == 4;
inline constexpr bool vectors_fit_registers = false;
inline constexpr bool has_second_paths = false;
// Whether rcp14 and rsqrt14 take any number at no cost. Otherwise paths that need normal ones refuse the others.
inline constexpr bool estimates_take_all = true;
// Whether permute2 of doubles takes less than the loads and the transposition of rows.
inline constexpr bool permutes_doubles = true;
inline constexpr bool orders_nans = false;
inline constexpr bool streams_fit_registers = false;

// The vector of value(i) in lane i.
template <Lane T, class F> LUM_INLINE Vec<T> each_lane(F value) {
  Vec<T> r;
  for (int i = 0; i < lanes_of<T>; ++i) r.lane[i] = value(i);
  return r;
}
// The mask of the lanes in which condition(i) holds.
template <Lane T, class F> LUM_INLINE Mask<T> each_mask_lane(F condition) {
  Mask<T> r;
  constexpr T set = std::bit_cast<T>(static_cast<UnsignedOf<T>>(~UnsignedOf<T>{0}));
  for (int i = 0; i < lanes_of<T>; ++i) r.lane[i] = condition(i) ? set : T{0};
  return r;
}
// The mask whose lanes have the bits that value(i) gives.
template <Lane T, class F> LUM_INLINE Mask<T> each_mask_bits(F value) {
  Mask<T> r;
  for (int i = 0; i < lanes_of<T>; ++i) r.lane[i] = std::bit_cast<T>(static_cast<UnsignedOf<T>>(value(i)));
  return r;
}

// ---- Make, load, store

// x in every lane.
template <Lane T> LUM_INLINE Vec<T> all(T x) {
  return each_lane<T>([&](int) { return x; });
}

// A whole vector from memory of any alignment.
template <Lane T> LUM_INLINE Vec<T> load(const T* p) {
  Vec<T> r;
  std::memcpy(&r, p, sizeof r);
  return r;
}

// The lanes of the mask from memory, which alone is read; the others from fill.
template <Lane T> LUM_INLINE Vec<T> load(const Mask<T>& mask, const T* p, Vec<T> fill) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) std::memcpy(&fill.lane[i], p + i, sizeof(T));
  return fill;
}

template <Lane T> LUM_INLINE void store(T* p, const Vec<T>& a) { std::memcpy(p, &a, sizeof a); }

// Writes the lanes of the mask and touches no other memory.
template <Lane T> LUM_INLINE void store(const Mask<T>& mask, T* p, const Vec<T>& a) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) std::memcpy(p + i, &a.lane[i], sizeof(T));
}

// ---- Reinterpretation

template <Floating T> LUM_INLINE Vec<UnsignedOf<T>> bits(const Vec<T>& a) { return std::bit_cast<Vec<UnsignedOf<T>>>(a); }
template <Integer32 T> LUM_INLINE Vec<float> as_float(const Vec<T>& a) { return std::bit_cast<Vec<float>>(a); }
template <Integer64 T> LUM_INLINE Vec<double> as_float(const Vec<T>& a) { return std::bit_cast<Vec<double>>(a); }
template <Integer T> LUM_INLINE Vec<SignedOf<T>> as_signed(const Vec<T>& a) { return std::bit_cast<Vec<SignedOf<T>>>(a); }
template <Integer T> LUM_INLINE Vec<UnsignedOf<T>> as_unsigned(const Vec<T>& a) { return std::bit_cast<Vec<UnsignedOf<T>>>(a); }
// The lanes of one width seen as lanes of the other, the low half first.
template <Integer64 T> LUM_INLINE Vec<uint32_t> as_lanes32(const Vec<T>& a) {
  return each_lane<uint32_t>(
      [&](int i) { return static_cast<uint32_t>(static_cast<uint64_t>(a.lane[i / 2]) >> (i % 2 ? 32 : 0)); });
}

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
requires(sizeof(To) == sizeof(From)) LUM_INLINE Mask<To> mask_cast(const Mask<From>& m) { return std::bit_cast<Mask<To>>(m); }
template <Lane T> LUM_INLINE Mask<T> operator&(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_bits<T>([&](int i) { return a.bits_of(i) & b.bits_of(i); });
}
template <Lane T> LUM_INLINE Mask<T> operator|(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_bits<T>([&](int i) { return a.bits_of(i) | b.bits_of(i); });
}
template <Lane T> LUM_INLINE Mask<T> operator^(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_bits<T>([&](int i) { return a.bits_of(i) ^ b.bits_of(i); });
}
template <Lane T> LUM_INLINE Mask<T> operator~(const Mask<T>& a) {
  return each_mask_bits<T>([&](int i) { return ~a.bits_of(i); });
}
template <Lane T> LUM_INLINE bool any(const Mask<T>& a) {
  UnsignedOf<T> united = 0;
  for (int i = 0; i < lanes_of<T>; ++i) united |= a.bits_of(i);
  return united != 0;
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
  return each_mask_lane<float>([&](int i) { return (i < 8 ? low.bits_of(i) : high.bits_of(i - 8)) != 0; });
}
LUM_INLINE Mask<double> low_half(const Mask<float>& m) {
  return each_mask_lane<double>([&](int i) { return m.bits_of(i) != 0; });
}
LUM_INLINE Mask<double> high_half(const Mask<float>& m) {
  return each_mask_lane<double>([&](int i) { return m.bits_of(i + 8) != 0; });
}

// ---- Lane by lane, some lanes with care

// r with careful(a, b, ...) in the lanes of which doubt has bits set.
template <auto careful, Floating T, class... Operands>
[[gnu::noinline, gnu::cold]] void redo_lanes(Vec<T>& r, const Mask<T>& doubt, const Operands&... operands) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (doubt.bits_of(i)) r.lane[i] = careful(operands.lane[i]...);
}
// The result that quick(i) gives in every lane, with careful(a, b, ...) instead where doubt(i, result) has bits set. The copies
// keep the operands themselves out of memory on the usual way.
template <auto careful, Floating T, class Quick, class Doubt, class... Operands>
LUM_INLINE Vec<T> each_lane_with_care(Quick quick, Doubt doubt, const Vec<T>& first, const Operands&... rest) {
  const Vec<T> r = each_lane<T>(quick);
  Mask<T> doubts;
  for (int i = 0; i < lanes_of<T>; ++i) doubts.lane[i] = doubt(i, r.lane[i]);
  if (none(doubts)) [[likely]]
    return r;
  Vec<T> redone = r;
  [&doubts, &redone](Vec<T> a, Operands... others) { redo_lanes<careful>(redone, doubts, a, others...); }(first, rest...);
  return redone;
}
// The result that quick(i) gives in every lane, with careful(a, b, ...) where that is a NaN: for operations that are one
// instruction of the processor, but for the choice among NaNs. The copies are as above.
template <auto careful, Floating T, class Quick, class... Operands>
LUM_INLINE Vec<T> each_lane_but_nans(Quick quick, const Vec<T>& first, const Operands&... rest) {
  const Vec<T> r = each_lane<T>(quick);
  const Mask<T> nans = each_mask_lane<T>([&](int i) { return lane::is_nan(r.lane[i]); });
  if (none(nans)) [[likely]]
    return r;
  Vec<T> redone = r;
  [&nans, &redone](Vec<T> a, Operands... others) { redo_lanes<careful>(redone, nans, a, others...); }(first, rest...);
  return redone;
}

}  // namespace portable
}  // namespace lum
