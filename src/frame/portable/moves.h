// Lookup and moves across lanes, a part of frame/vec_portable.h.
#pragma once

#include "frame/portable/integers.h"

namespace lum {
inline namespace portable {

// ---- Lookup and moves

// Entry index mod lanes of the table.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute(const Vec<T>& table, const Vec<I>& index) {
  return each_part<T>(
      [&table](auto at) __attribute__((always_inline)) {
        Register<T> r;
        for (int i = 0; i < lanes_of_register<T>; ++i) r[i] = table.lane[raw(at[i]) & (lanes_of<T> - 1)];
        return r;
      },
      index);
}
// The table whose first half is low and second half is high, as one array. A choice between an element of low and one of high
// is not the same to g++ 12: at -O3 it makes one load of two addresses, and then removes the stores to a vector that it
// believes unread.
template <Lane T> struct JoinedTable {
  T entry[2 * lanes_of<T>];
  LUM_INLINE JoinedTable(const Vec<T>& low, const Vec<T>& high) {
    std::memcpy(entry, low.lane, sizeof low.lane);
    std::memcpy(entry + lanes_of<T>, high.lane, sizeof high.lane);
  }
};
// Entry index mod 2 lanes of that table.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute2(const Vec<T>& low, const Vec<T>& high, const Vec<I>& index) {
  const JoinedTable<T> table(low, high);
  return each_part<T>(
      [&table](auto at) __attribute__((always_inline)) {
        Register<T> r;
        for (int i = 0; i < lanes_of_register<T>; ++i) r[i] = table.entry[raw(at[i]) & (2 * lanes_of<T> - 1)];
        return r;
      },
      index);
}
// The lanes of the mask side by side in the low lanes, zeros above them.
template <Floating T> LUM_INLINE Vec<T> compress(const Mask<T>& m, const Vec<T>& a) {
  Vec<T> r{};
  int count = 0;
  for (int i = 0; i < lanes_of<T>; ++i) {
    if (m.bits_of(i) != 0) r.lane[count++] = a.lane[i];
  }
  return r;
}
// The low lanes in their order in the lanes of the mask, zeros in the others.
template <Floating T> LUM_INLINE Vec<T> expand(const Mask<T>& m, const Vec<T>& a) {
  Vec<T> r{};
  int count = 0;
  for (int i = 0; i < lanes_of<T>; ++i) {
    if (m.bits_of(i) != 0) r.lane[i] = a.lane[count++];
  }
  return r;
}
// base[index] per lane, the index signed and of the lane's width.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(const T* base, const Vec<I>& index) {
  return each_part<T>(
      [base](auto at) __attribute__((always_inline)) {
        Register<T> r;
        for (int i = 0; i < lanes_of_register<T>; ++i) r[i] = base[static_cast<SignedOf<I>>(at[i])];
        return r;
      },
      index);
}
// base[index] in the lanes of the mask, which alone are read; the others from old.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(const Mask<T>& mask, const T* base, const Vec<I>& index, Vec<T> old) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) old.lane[i] = base[static_cast<SignedOf<I>>(index.lane[i])];
  return old;
}

// The four entries from base[index] on, of each lane: entry i of all lanes in column i.
template <Lane T> struct Columns { Vec<T> column0, column1, column2, column3; };
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Columns<T> gather_rows(const T* base, const Vec<I>& index) {
  return {gather(base, index), gather(base + 1, index), gather(base + 2, index), gather(base + 3, index)};
}

// The two entries from base[index] on, of each lane.
template <Lane T> struct TwoColumns { Vec<T> column0, column1; };
template <Lane T, Integer64 I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE TwoColumns<T> gather_pairs(const T* base, const Vec<I>& index) {
  return {gather(base, index), gather(base + 1, index)};
}

template <Lane T> struct Pair { Vec<T> even, odd; };
// The even and the odd lanes of the sequence a, b.
template <Floating T> LUM_INLINE Pair<T> deinterleave(const Vec<T>& a, const Vec<T>& b) {
  const auto sequence = [&](int part) __attribute__((always_inline)) {
    return part < parts_of_vector ? part_of(a, part) : part_of(b, part - parts_of_vector);
  };
  return {from_parts<Vec<T>>([&](int part) __attribute__((always_inline)) {
            return shuffled<[](int i) { return 2 * i; }, T>(sequence(2 * part), sequence(2 * part + 1));
          }),
          from_parts<Vec<T>>([&](int part) __attribute__((always_inline)) {
            return shuffled<[](int i) { return 2 * i + 1; }, T>(sequence(2 * part), sequence(2 * part + 1));
          })};
}
// The lanes of a and of b in turn, from part first on.
template <int first, Floating T> LUM_INLINE Vec<T> interleaved(const Vec<T>& a, const Vec<T>& b) {
  constexpr int lanes = lanes_of_register<T>;
  return from_parts<Vec<T>>([&](int part) __attribute__((always_inline)) {
    const auto x = part_of(a, first + part / 2), y = part_of(b, first + part / 2);
    if (part % 2 == 0) return shuffled<[](int i) { return i % 2 * lanes + i / 2; }, T>(x, y);
    return shuffled<[](int i) { return i % 2 * lanes + lanes / 2 + i / 2; }, T>(x, y);
  });
}
// The sequence (first, second) whose even and odd lanes are those given: the inverse of deinterleave.
template <Floating T> LUM_INLINE Pair<T> interleave(const Vec<T>& given, const Vec<T>& odd) {
#ifdef __clang__
  // Of x beside x + c clang makes one sum, of x and -0 or c, which quiets a signalling NaN; it does not know this copy.
  const Vec<T> even = as_float(spread(of_unknown_origin(std::bit_cast<Mask<T>>(given))));
#else
  const Vec<T>& even = given;
#endif
  return {interleaved<0>(even, odd), interleaved<parts_of_vector / 2>(even, odd)};
}
// Lanes 2i and 2i+1 exchanged.
template <Floating T> LUM_INLINE Vec<T> swap_pairs(const Vec<T>& a) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) { return shuffled<[](int i) { return i ^ 1; }, T>(x, x); }, a);
}
// Lane 2i, or 2i+1, in both of its pair.
template <Floating T> LUM_INLINE Vec<T> duplicate_even(const Vec<T>& a) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) { return shuffled<[](int i) { return i & ~1; }, T>(x, x); }, a);
}
template <Floating T> LUM_INLINE Vec<T> duplicate_odd(const Vec<T>& a) {
  return each_part<T>(
      [](auto x) __attribute__((always_inline)) { return shuffled<[](int i) { return i | 1; }, T>(x, x); }, a);
}

}  // namespace portable
}  // namespace lum
