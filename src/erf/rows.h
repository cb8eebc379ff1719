// Tables of a function at evenly spaced centres: the centre next to an argument, and rows of two values, fetched by gathers.
#pragma once

#include "frame/packed.h"

namespace lum::inline LUM_LAYER::erf {

template <class T> struct Centre {
  Vec<T> c;
  Vec<UnsignedOf<T>> row;
};
// The multiple of the grid's step next to u >= 0, and its number. The shifter is the power of 2 whose last place is the step.
template <class T> LUM_INLINE Centre<T> NearestCentre(Vec<T> u, T shifter) {
  const auto sum = u + all(shifter);
  return {sum - all(shifter), bits(sum) - all(std::bit_cast<UnsignedOf<T>>(shifter))};
}

// d = |x| - c with w = c d and v = d^2, in which the functions' series are.
template <class T> struct Distance {
  Vec<T> d, w, v;
  Vec<UnsignedOf<T>> row;
};
// The last centre is where arguments end, infinite ones and NaN too. A distance of 0 is raised to one that does not matter.
template <class T> LUM_INLINE Distance<T> DistanceOf(Vec<T> x, T last_centre, T least, T shifter) {
  const auto a = min(abs(x), all(last_centre));
  const auto [c, row] = NearestCentre(a, shifter);
  const auto d = max(a, all(least)) - c;
  return {d, c * d, d * d, row};
}

template <class T> struct RowOfTwo { Vec<T> first, second; };
LUM_INLINE RowOfTwo<Lum64f> GatherRow(const Lum64f* table, Vec<uint64_t> row) {
  const auto i = shift_left<1>(row);
  return {gather(table, i), gather(table + 1, i)};
}
// A row of two narrow values is one word, so that one load fetches both.
LUM_INLINE RowOfTwo<Lum32f> GatherRow(const uint64_t* table, Vec<uint32_t> row) {
  const auto low = gather(table, widen_low(row)), high = gather(table, widen_high(row));
  const auto [first, second] = deinterleave(as_float(as_lanes32(low)), as_float(as_lanes32(high)));
  return {first, second};
}

}  // namespace lum::inline LUM_LAYER::erf
