// The registers that hold a vector's lanes, part by part, as the compiler's own vector type. An operation that takes the parts
// by themselves leaves them in registers from one operation to the next; a loop over all lanes goes by way of memory.
#pragma once

#include <array>
#include <cstring>
#include <utility>

#include "frame/register_numbers.h"

namespace lum {
inline namespace portable {

// For operations of many instructions. Without a fused multiply-add vectors are in memory most of the time, and a call costs
// little beside that.
#if defined(__FMA__) || defined(__ARM_FEATURE_FMA)
#define LUM_INLINE_WITH_FMA LUM_INLINE
#else
#define LUM_INLINE_WITH_FMA [[gnu::noinline]]
#endif

inline constexpr int parts_of_vector = 64 / register_bytes;

template <Lane T> struct alignas(register_bytes) Vec { T lane[lanes_of<T>]; };
// A vector as a parameter of an inlined function that hands it on to a called one: a copy would have its own place on the
// stack.
template <Lane T> using VecIn = const Vec<T>&;

// All bits set in the lanes of the mask, none in the others. The lanes are of type T, since some compilers do not vectorise a
// comparison of doubles that gives integers.
template <Lane T> struct alignas(register_bytes) Mask {
  T lane[lanes_of<T>];
  LUM_INLINE UnsignedOf<T> bits_of(int i) const { return std::bit_cast<UnsignedOf<T>>(lane[i]); }
};

// Part number `part` of a vector, or of a mask as a number of all bits or none.
template <Lane T> LUM_INLINE Register<T> part_of(const Vec<T>& a, int part) {
  Register<T> r;
  std::memcpy(&r, &a.lane[part * lanes_of_register<T>], sizeof r);
  return r;
}
template <Lane T> LUM_INLINE Register<UnsignedOf<T>> part_of(const Mask<T>& a, int part) {
  Register<UnsignedOf<T>> r;
  std::memcpy(&r, &a.lane[part * lanes_of_register<T>], sizeof r);
  return r;
}
template <class Vector, class R> LUM_INLINE void set_part(Vector& a, int part, R value) {
  std::memcpy(&a.lane[part * static_cast<int>(sizeof(R) / sizeof a.lane[0])], &value, sizeof value);
}

// The vector, or the mask, whose parts are value(part).
template <class Vector, class F> LUM_INLINE Vector from_parts(F value) {
  Vector r;
  [&]<size_t... part>(std::index_sequence<part...>) __attribute__((always_inline)) {
    (set_part(r, static_cast<int>(part), value(static_cast<int>(part))), ...);
  }
  (std::make_index_sequence<parts_of_vector>());
  return r;
}
// value(part of a, part of b, ...) of each part.
template <Lane T, class F, class... Operands> LUM_INLINE Vec<T> each_part(F value, const Operands&... operands) {
  return from_parts<Vec<T>>([&](int part) __attribute__((always_inline)) { return value(part_of(operands, part)...); });
}
template <Lane T, class F, class... Operands> LUM_INLINE Mask<T> each_mask_part(F value, const Operands&... operands) {
  return from_parts<Mask<T>>([&](int part) __attribute__((always_inline)) { return value(part_of(operands, part)...); });
}

// The parts of a vector or a mask as those of another type.
template <class To, class From> LUM_INLINE To recast(const From& a) {
  return from_parts<To>([&](int part) __attribute__((always_inline)) { return part_of(a, part); });
}

// Lane i is lane index(i) of the sequence a, b.
template <auto index, Lane T> LUM_INLINE Register<T> shuffled(Register<T> a, Register<T> b) {
  return [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
    return __builtin_shufflevector(a, b, index(static_cast<int>(i))...);
  }
  (std::make_index_sequence<lanes_of_register<T>>());
}

// ---- Halves of a vector

// A half of a register's lanes, the first (0) or the second (1), converted to lanes twice as wide.
template <Lane To, int half, Lane From> LUM_INLINE Register<To> widened_part(Register<From> x) {
  return [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
    return __builtin_convertvector(__builtin_shufflevector(x, x, (half * lanes_of_register<To> + static_cast<int>(i))...),
                                   Register<To>);
  }
  (std::make_index_sequence<lanes_of_register<To>>());
}
// The low (0) or the high (1) half of the lanes, converted to lanes twice as wide.
template <Lane To, int half, Lane From> LUM_INLINE Vec<To> widened_half(const Vec<From>& a) {
  return [&]<size_t... part>(std::index_sequence<part...>) __attribute__((always_inline)) {
    Vec<To> r;
    (set_part(r, static_cast<int>(part),
              widened_part<To, part % 2, From>(part_of(a, half * parts_of_vector / 2 + static_cast<int>(part / 2)))),
     ...);
    return r;
  }
  (std::make_index_sequence<parts_of_vector>());
}
// The lanes of both, converted to lanes half as wide.
template <Lane To, Lane From> LUM_INLINE Vec<To> joined_halves(const Vec<From>& low, const Vec<From>& high) {
  using Narrow [[gnu::vector_size(register_bytes / 2)]] = To;
  return [&]<size_t... i>(std::index_sequence<i...>) __attribute__((always_inline)) {
    return from_parts<Vec<To>>([&](int part) __attribute__((always_inline)) {
      const auto& source = part < parts_of_vector / 2 ? low : high;
      const int first = 2 * (part % (parts_of_vector / 2));
      return __builtin_shufflevector(__builtin_convertvector(part_of(source, first), Narrow),
                                     __builtin_convertvector(part_of(source, first + 1), Narrow), static_cast<int>(i)...);
    });
  }
  (std::make_index_sequence<lanes_of_register<To>>());
}

// ---- All lanes

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

// ---- Some lanes with care

// r, but careful(a, b, ...) in the lanes of which doubt has bits set. Of one register: what goes to the call and comes from it
// is in registers.
template <auto careful, Floating T, class... Operands>
[[gnu::noinline, gnu::cold]] Register<T> redone_lanes(Register<T> r, Register<UnsignedOf<T>> doubt, Operands... operands) {
  for (int i = 0; i < lanes_of_register<T>; ++i)
    if (doubt[i] != 0) r[i] = careful(operands[i]...);
  return r;
}
// r with the lanes done again that doubt names, of a vector.
template <auto careful, Floating T, class... Operands>
LUM_INLINE Vec<T> with_lanes_redone(const Vec<T>& r, const Mask<T>& doubt, const Operands&... operands) {
  if (none(doubt)) [[likely]]
    return r;
  return each_part<T>(redone_lanes<careful, T, decltype(part_of(operands, 0))...>, r, doubt, operands...);
}
// The result that quick(i) gives in every lane, with careful(a, b, ...) instead where doubt(i, result) has bits set.
template <auto careful, Floating T, class Quick, class Doubt, class... Operands>
LUM_INLINE Vec<T> each_lane_with_care(Quick quick, Doubt doubt, const Operands&... operands) {
  const Vec<T> r = each_lane<T>(quick);
  Mask<T> doubts;
  for (int i = 0; i < lanes_of<T>; ++i) doubts.lane[i] = doubt(i, r.lane[i]);
  return with_lanes_redone<careful>(r, doubts, operands...);
}
// The result of quick(part of a, ...) in every lane, with careful(a, b, ...) where that is a NaN: for operations that are one
// instruction of the processor, but for the choice among NaNs. A NaN in any part makes the sum of all parts one.
template <auto careful, Floating T, class Quick, class... Operands>
LUM_INLINE Vec<T> each_part_but_nans(Quick quick, const Operands&... operands) {
  const Vec<T> r = each_part<T>(quick, operands...);
  auto sum = part_of(r, 0);
  for (int part = 1; part < parts_of_vector; ++part) sum += part_of(r, part);
  if (!any_bit(sum != sum)) [[likely]]
    return r;
  return each_part<T>(
      [](auto x, auto... part)
          __attribute__((always_inline)) { return redone_lanes<careful, T>(x, register_cast<UnsignedOf<T>>(x != x), part...); },
      r, operands...);
}
// The result of quick(part of a, ...) in every lane, with careful(a, b, ...) where doubt(part of a, ...) has bits set.
template <auto careful, Floating T, class Quick, class Doubt, class... Operands>
LUM_INLINE Vec<T> each_part_with_care(Quick quick, Doubt doubt, const Operands&... operands) {
  return with_lanes_redone<careful>(each_part<T>(quick, operands...), each_mask_part<T>(doubt, operands...), operands...);
}
// Where the processor gives other NaNs than these, lanes with one are done again.
template <auto careful, Floating T, class Quick>
LUM_INLINE Vec<T> each_part_with_these_nans(Quick quick, const Vec<T>& a, const Vec<T>& b) {
  if constexpr (lane::processor_gives_these_nans) return each_part<T>(quick, a, b);
  else return each_part_but_nans<careful, T>(quick, a, b);
}

}  // namespace portable
}  // namespace lum
