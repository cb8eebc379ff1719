// Lookup and moves across lanes on pairs of registers, a part of frame/vec_avx2.h.
#pragma once

#include "frame/avx2/integers.h"

namespace lum {
inline namespace avx2 {

// ---- Lookup and moves

// Entry index mod lanes of the table.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute(Vec<T> table, Vec<I> index) {
  const half::Table<T, 1> entries{table.low, table.high};
  return {entries[index.low.v], entries[index.high.v]};
}
// Entry index mod 2 lanes of the table whose first half is low and second half is high.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute2(Vec<T> low, Vec<T> high, Vec<I> index) {
  const half::Table<T, 2> entries{low.low, low.high, high.low, high.high};
  return {entries[index.low.v], entries[index.high.v]};
}
// The lanes of the mask side by side in the low lanes, zeros above them.
template <Floating T> LUM_INLINE Vec<T> compress(Mask<T> m, Vec<T> a) {
  alignas(32) T lanes[lanes_of<T>], packed[lanes_of<T>] = {};
  store(lanes, a);
  int count = 0;
  for (uint32_t rest = to_bits(m); rest != 0; rest &= rest - 1) packed[count++] = lanes[std::countr_zero(rest)];
  return load(packed);
}
// The low lanes in their order in the lanes of the mask, zeros in the others.
template <Floating T> LUM_INLINE Vec<T> expand(Mask<T> m, Vec<T> a) {
  alignas(32) T packed[lanes_of<T>], lanes[lanes_of<T>] = {};
  store(packed, a);
  int count = 0;
  for (uint32_t rest = to_bits(m); rest != 0; rest &= rest - 1) lanes[std::countr_zero(rest)] = packed[count++];
  return load(lanes);
}
// base[index] per lane, the index signed and of the lane's width, in the lanes of the mask, which alone are read; the others
// from old.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(Mask<T> mask, const T* base, Vec<I> index, Vec<T> old) {
  return {half::gather(mask.low, base, index.low.v, old.low), half::gather(mask.high, base, index.high.v, old.high)};
}
// base[index] in all lanes. The instruction merges into its target, and g++ leaves there whatever it was when it sees a full
// mask: behind a mask that it does not see, zeros keep a gather from waiting for the one before.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(const T* base, Vec<I> index) {
  const auto zero = half::all(T(0));
  return {half::gather(half::unseen_full_mask<T>(), base, index.low.v, zero),
          half::gather(half::unseen_full_mask<T>(), base, index.high.v, zero)};
}

// The four entries from base[index] on, of each lane: entry i of all lanes in column i.
template <Lane T> struct Columns { Vec<T> column0, column1, column2, column3; };
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Columns<T> gather_rows(const T* base, Vec<I> index) {
  const auto low = half::gather_rows(base, index.low), high = half::gather_rows(base, index.high);
  return {{low.column0, high.column0}, {low.column1, high.column1}, {low.column2, high.column2}, {low.column3, high.column3}};
}

// The two entries from base[index] on, of each lane.
template <Lane T> struct TwoColumns { Vec<T> column0, column1; };
template <Lane T, Integer64 I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE TwoColumns<T> gather_pairs(const T* base, Vec<I> index) {
  const auto low = half::gather_pairs(base, index.low), high = half::gather_pairs(base, index.high);
  return {{low.column0, high.column0}, {low.column1, high.column1}};
}

template <Lane T> struct Pair { Vec<T> even, odd; };
// The even and the odd lanes of the sequence a, b.
template <Floating T> LUM_INLINE Pair<T> deinterleave(Vec<T> a, Vec<T> b) {
  return {{half::even_lanes(a.low, a.high), half::even_lanes(b.low, b.high)},
          {half::odd_lanes(a.low, a.high), half::odd_lanes(b.low, b.high)}};
}
// The sequence (first, second) whose even and odd lanes are those given: the inverse of deinterleave.
template <Floating T> LUM_INLINE Pair<T> interleave(Vec<T> even, Vec<T> odd) {
  return {{half::first_pairs(even.low, odd.low), half::last_pairs(even.low, odd.low)},
          {half::first_pairs(even.high, odd.high), half::last_pairs(even.high, odd.high)}};
}
// Lanes 2i and 2i+1 exchanged.
template <Floating T> LUM_INLINE Vec<T> swap_pairs(Vec<T> a) {
  if constexpr (is32<T>) return {{_mm256_permute_ps(a.low.v, 0xB1)}, {_mm256_permute_ps(a.high.v, 0xB1)}};
  else return {{_mm256_permute_pd(a.low.v, 0x5)}, {_mm256_permute_pd(a.high.v, 0x5)}};
}
// Lane 2i, or 2i+1, in both of its pair.
template <Floating T> LUM_INLINE Vec<T> duplicate_even(Vec<T> a) {
  if constexpr (is32<T>) return {{_mm256_moveldup_ps(a.low.v)}, {_mm256_moveldup_ps(a.high.v)}};
  else return {{_mm256_movedup_pd(a.low.v)}, {_mm256_movedup_pd(a.high.v)}};
}
template <Floating T> LUM_INLINE Vec<T> duplicate_odd(Vec<T> a) {
  if constexpr (is32<T>) return {{_mm256_movehdup_ps(a.low.v)}, {_mm256_movehdup_ps(a.high.v)}};
  else return {{_mm256_permute_pd(a.low.v, 0xF)}, {_mm256_permute_pd(a.high.v, 0xF)}};
}

}  // namespace avx2
}  // namespace lum
