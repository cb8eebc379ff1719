// What one step of a kernel loads and stores: a vector of real elements, or two vectors of interleaved complex ones. A step
// takes as many elements as a vector has lanes of the real type.
#pragma once

#include <algorithm>

#include "frame/types.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER {

// As many complex elements as a vector has lanes: the pairs re, im in memory order.
template <Floating T> struct Interleaved { Vec<T> low, high; };
template <Floating T> struct ComplexVec { Vec<T> re, im; };
template <Floating T> LUM_INLINE ComplexVec<T> split(Interleaved<T> x) {
  const auto parts = deinterleave(x.low, x.high);
  return {parts.even, parts.odd};
}
template <Floating T> LUM_INLINE Interleaved<T> join(ComplexVec<T> x) {
  const auto halves = interleave(x.re, x.im);
  return {halves.even, halves.odd};
}
// A mask over the components of interleaved elements; an element is in it when one of its components is.
template <Floating T> struct ComponentMask { Mask<T> low, high; };

// The elements of a mask as the low bits of a word.
template <Lane T> LUM_INLINE uint32_t element_bits(Mask<T> m) { return to_bits(m); }
template <Floating T> uint32_t element_bits(ComponentMask<T> m) {
  uint32_t elements = 0;
  for (int i = 0; i < lanes_of<T>; ++i) {
    const uint32_t half = i < lanes_of<T> / 2 ? to_bits(m.low) : to_bits(m.high);
    const uint32_t pair = half >> (2 * i % lanes_of<T>)&3;
    elements |= static_cast<uint32_t>(pair != 0) << i;
  }
  return elements;
}
template <Floating T> LUM_INLINE bool any(ComponentMask<T> m) { return any(m.low | m.high); }
// Whether all elements are in a mask.
template <Lane T> LUM_INLINE bool has_all_elements(Mask<T> m) { return none(~m); }
template <Floating T> LUM_INLINE bool has_all_elements(ComponentMask<T> m) {
  constexpr uint32_t even = 0x5555u & ((1u << lanes_of<T>)-1u);
  const uint32_t low = to_bits(m.low), high = to_bits(m.high);
  return ((low | low >> 1) & (high | high >> 1) & even) == even;
}
template <Floating T> LUM_INLINE ComponentMask<T> operator|(ComponentMask<T> a, ComponentMask<T> b) {
  return {a.low | b.low, a.high | b.high};
}
template <Floating T> LUM_INLINE ComponentMask<T> operator~(ComponentMask<T> m) { return {~m.low, ~m.high}; }

// x with the fill in the places of the mask.
template <Floating T> LUM_INLINE Vec<T> FilledWhere(Mask<T> m, Vec<T> x, T fill) { return select(m, all(fill), x); }
template <Floating T> LUM_INLINE Interleaved<T> FilledWhere(Mask<T> m, Interleaved<T> x, T fill) {
  const auto z = split(x);
  return join(ComplexVec<T>{FilledWhere(m, z.re, fill), FilledWhere(m, z.im, fill)});
}
template <Floating T> LUM_INLINE Interleaved<T> FilledWhere(ComponentMask<T> m, Interleaved<T> x, T fill) {
  return {FilledWhere(m.low, x.low, fill), FilledWhere(m.high, x.high, fill)};
}

template <class E> struct PackedOf { using Type = Vec<E>; };
template <> struct PackedOf<Lum32fc> { using Type = Interleaved<Lum32f>; };
template <> struct PackedOf<Lum64fc> { using Type = Interleaved<Lum64f>; };
template <class E> using Packed = typename PackedOf<E>::Type;

template <Lane T> LUM_INLINE Vec<T> LoadElements(const T* p) { return load(p); }
template <class E>
requires is_complex<E> LUM_INLINE Packed<E> LoadElements(const E* p) {
  const auto* parts = &p->re;
  return {load(parts), load(parts + lanes_of<Real<E>>)};
}
template <Lane T> LUM_INLINE void StoreElements(T* p, Vec<T> x) { store(p, x); }
template <class E>
requires is_complex<E> LUM_INLINE void StoreElements(E* p, Packed<E> x) {
  auto* parts = &p->re;
  store(parts, x.low);
  store(parts + lanes_of<Real<E>>, x.high);
}

// The first count elements alone, 0 < count <= lanes; the others are the fill and are not read.
template <Lane T> LUM_INLINE Vec<T> LoadElements(int count, const T* p, T fill) {
  return load(first_lanes<T>(count), p, all(fill));
}
// Masks of the first and second vector for count elements of two components.
template <Floating T> LUM_INLINE ComponentMask<T> FirstComponents(int count) {
  constexpr int lanes = lanes_of<T>;
  return {first_lanes<T>(std::min(2 * count, lanes)), first_lanes<T>(std::max(2 * count - lanes, 0))};
}
template <class E>
requires is_complex<E> LUM_INLINE Packed<E> LoadElements(int count, const E* p, Real<E> fill) {
  using T = Real<E>;
  const auto* parts = &p->re;
  const auto mask = FirstComponents<T>(count);
  return {load(mask.low, parts, all(fill)), load(mask.high, parts + lanes_of<T>, all(fill))};
}
template <Lane T> LUM_INLINE void StoreElements(int count, T* p, Vec<T> x) { store_first(count, p, x); }
template <class E>
requires is_complex<E> LUM_INLINE void StoreElements(int count, E* p, Packed<E> x) {
  using T = Real<E>;
  auto* parts = &p->re;
  constexpr int lanes = lanes_of<T>;
  store_first(std::min(2 * count, lanes), parts, x.low);
  store_first(std::max(2 * count - lanes, 0), parts + lanes, x.high);
}

// The same where the first count elements are at most half a step, and whether a mask has any of its elements.
template <Lane T> LUM_INLINE Vec<T> LoadHalf(int count, const T* p, T fill) { return load_half(count, p, fill); }
template <class E>
requires is_complex<E> LUM_INLINE Packed<E> LoadHalf(int count, const E* p, Real<E> fill) {
  using T = Real<E>;
  const auto filled = all(fill);
  return {load(first_lanes<T>(2 * count), &p->re, filled), filled};
}
template <Lane T> LUM_INLINE void StoreHalf(int count, T* p, Vec<T> x) { store_half(count, p, x); }
template <class E>
requires is_complex<E> LUM_INLINE void StoreHalf(int count, E* p, Packed<E> x) { store_first(2 * count, &p->re, x.low); }
template <Lane T> LUM_INLINE bool AnyInHalf(Mask<T> m) { return any_in_half(m); }
template <Floating T> LUM_INLINE bool AnyInHalf(ComponentMask<T> m) { return any(m.low); }

}  // namespace lum::inline LUM_LAYER
