// Vectors as pairs of registers, masks as registers with all bits of a lane set or none, loads and stores. Like its neighbours
// a part of frame/vec_avx2.h, which silences the compilers' complaints about their own intrinsics.
#pragma once

#include "frame/avx2/significand.h"

namespace lum {
inline namespace avx2 {

// ---- Types

template <Lane T> using Half = half::Half<T>;
template <Lane T> struct Vec { Half<T> low, high; };
// A vector as a parameter of an inlined function that hands it on.
template <Lane T> using VecIn = Vec<T>;

template <Lane T> struct Mask { half::HalfMask<T> low, high; };

inline constexpr bool vectors_fit_registers = true;
inline constexpr bool packs_lanes = false;
inline constexpr bool has_second_paths = true;
// Whether rcp14 and rsqrt14 take any number at no cost. Otherwise paths that need normal ones refuse the others.
inline constexpr bool estimates_take_all = false;
// Whether permute2 of doubles takes less than the loads and the transposition of rows.
inline constexpr bool permutes_doubles = false;
// The compilers may exchange the operands of sums and products, so that of two NaNs the other one is taken.
inline constexpr bool orders_nans = false;
inline constexpr bool streams_fit_registers = false;
// Whether a vector is two registers, so that a step of few elements can do without the second.
inline constexpr bool has_halves = true;

// ---- Make, load, store

// x in every lane.
template <Lane T> LUM_INLINE Vec<T> all(T x) {
  const auto h = half::all(x);
  return {h, h};
}

// A whole vector from memory of any alignment.
template <Lane T> LUM_INLINE Vec<T> load(const T* p) { return {half::load(p), half::load(p + Half<T>::lanes)}; }

// The lanes of the mask from memory, which alone is read; the others from fill.
template <Lane T> LUM_INLINE Vec<T> load(Mask<T> mask, const T* p, Vec<T> fill) {
  return {half::load(mask.low, p, fill.low), half::load(mask.high, p + Half<T>::lanes, fill.high)};
}

// The first count lanes, at most half of them, the others from fill. The compiler drops what is done for the second register
// where nothing asks for it.
template <Lane T> LUM_INLINE Vec<T> load_half(int count, const T* p, T fill) {
  const auto filled = half::all(fill);
  return {half::load(half::first_lanes<T>(count, 0), p, filled), filled};
}

template <Lane T> LUM_INLINE void store(T* p, Vec<T> a) {
  half::store(p, a.low);
  half::store(p + Half<T>::lanes, a.high);
}

// Writes the lanes of the mask and touches no other memory.
template <Lane T> LUM_INLINE void store(Mask<T> mask, T* p, Vec<T> a) {
  half::store(mask.low, p, a.low);
  half::store(mask.high, p + Half<T>::lanes, a.high);
}

// One register of a vector in both places, of which the compiler computes one, and a vector of two such.
template <Lane T> LUM_INLINE Vec<T> low_register(Vec<T> a) { return {a.low, a.low}; }
template <Lane T> LUM_INLINE Vec<T> high_register(Vec<T> a) { return {a.high, a.high}; }
template <Lane T> LUM_INLINE Vec<T> join_registers(Vec<T> low, Vec<T> high) { return {low.low, high.low}; }
template <Lane T> LUM_INLINE Mask<T> join_registers(Mask<T> low, Mask<T> high) { return {low.low, high.low}; }

// ---- Reinterpretation

template <Floating T> LUM_INLINE Vec<UnsignedOf<T>> bits(Vec<T> a) { return {half::bits(a.low), half::bits(a.high)}; }
template <Integer32 T> LUM_INLINE Vec<float> as_float(Vec<T> a) {
  return {half::from_raw<float>(a.low.v), half::from_raw<float>(a.high.v)};
}
template <Integer64 T> LUM_INLINE Vec<double> as_float(Vec<T> a) {
  return {half::from_raw<double>(a.low.v), half::from_raw<double>(a.high.v)};
}
template <Integer T> LUM_INLINE Vec<SignedOf<T>> as_signed(Vec<T> a) { return {{a.low.v}, {a.high.v}}; }
template <Integer T> LUM_INLINE Vec<UnsignedOf<T>> as_unsigned(Vec<T> a) { return {{a.low.v}, {a.high.v}}; }
// The lanes of one width seen as lanes of the other, the low half first.
template <Integer64 T> LUM_INLINE Vec<uint32_t> as_lanes32(Vec<T> a) { return {{a.low.v}, {a.high.v}}; }

// ---- Masks

// The low `count` lanes, 0 <= count <= lanes.
template <Lane T> LUM_INLINE Mask<T> first_lanes(int count) {
  return {half::first_lanes<T>(count, 0), half::first_lanes<T>(count, Half<T>::lanes)};
}
// Writes the first count lanes, 0 <= count <= lanes, and touches no other memory.
template <Lane T> LUM_INLINE void store_first(int count, T* p, Vec<T> a) {
  constexpr int lanes = Half<T>::lanes;
  if (count < lanes) return half::store_first(count, p, a.low);
  half::store(p, a.low);
  if (count > lanes) half::store_first(count - lanes, p + lanes, a.high);
}
// The first count lanes, at most half of them.
template <Lane T> LUM_INLINE void store_half(int count, T* p, Vec<T> a) { half::store_first(count, p, a.low); }
template <Lane T> LUM_INLINE Mask<T> mask_of(uint32_t lane_bits) {
  return {half::mask_of<T>(lane_bits, 0), half::mask_of<T>(lane_bits, Half<T>::lanes)};
}
template <Lane T> LUM_INLINE uint32_t to_bits(Mask<T> m) {
  return half::to_bits(m.low) | half::to_bits(m.high) << Half<T>::lanes;
}
// The mask of lanes of one type as that of another type with as many lanes.
template <Lane To, Lane From>
requires(sizeof(To) == sizeof(From)) LUM_INLINE Mask<To> mask_cast(Mask<From> m) { return {{m.low.v}, {m.high.v}}; }
template <Lane T> LUM_INLINE Mask<T> operator&(Mask<T> a, Mask<T> b) { return {a.low & b.low, a.high & b.high}; }
template <Lane T> LUM_INLINE Mask<T> operator|(Mask<T> a, Mask<T> b) { return {a.low | b.low, a.high | b.high}; }
template <Lane T> LUM_INLINE Mask<T> operator^(Mask<T> a, Mask<T> b) { return {a.low ^ b.low, a.high ^ b.high}; }
template <Lane T> LUM_INLINE Mask<T> operator~(Mask<T> a) { return {~a.low, ~a.high}; }
template <Lane T> LUM_INLINE bool any(Mask<T> a) { return half::any(a.low | a.high); }
template <Lane T> LUM_INLINE bool any_in_half(Mask<T> a) { return half::any(a.low); }
template <Lane T> LUM_INLINE bool none(Mask<T> a) { return !any(a); }
// The masks of two vectors of doubles as that of one vector of floats, and its halves.
LUM_INLINE Mask<float> join(Mask<double> low, Mask<double> high) {
  return {{half::low_words(low.low.v, low.high.v)}, {half::low_words(high.low.v, high.high.v)}};
}
LUM_INLINE Mask<double> low_half(Mask<float> m) {
  return {{_mm256_cvtepi32_epi64(half::low_quarter(m.low.v))}, {_mm256_cvtepi32_epi64(half::high_quarter(m.low.v))}};
}
LUM_INLINE Mask<double> high_half(Mask<float> m) {
  return {{_mm256_cvtepi32_epi64(half::low_quarter(m.high.v))}, {_mm256_cvtepi32_epi64(half::high_quarter(m.high.v))}};
}

}  // namespace avx2
}  // namespace lum
