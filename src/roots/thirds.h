// Powers in thirds without a logarithm. With x = +-2^e m and c near 1 / m, a multiple of 2^-5 or 2^-4, r = m c - 1 is exact and
// small, and with e = 3 q + j:   |x|^(1/3) = 2^q 2^(j/3) c^(-1/3) (1 + r)^(1/3).   The same holds for the powers -1/3 and 2/3.
// Both table factors stand in registers; e / 3 needs no integer conversion, as the integers lie in the low bits of floats.
#pragma once

#include <type_traits>

#include "frame/kernel_frame.h"
#include "frame/lifted.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::roots {

enum class Power { one_third, minus_one_third, two_thirds };

template <class T> struct ThirdsConstants;
template <> struct ThirdsConstants<Lum32f> {
  static constexpr auto shifter = rounding_shifter<Lum32f>();
  static constexpr auto third = 1 / 3.0f;
  static constexpr auto offset = shifter / 3;  // a third of the shifter
  static constexpr int grid = 5;               // reciprocals are multiples of 2^-5
  static constexpr int index_shift = 19;       // down to their last bit: the index of 1 follows on those below it
};
template <> struct ThirdsConstants<Lum64f> {
  static constexpr auto shifter = rounding_shifter<Lum64f>();
  static constexpr auto third = 0x1.5555555555556p-2;  // rounded up, as that of binary32 is by itself
  static constexpr auto offset = shifter / 3;
  static constexpr int grid = 4;
  static constexpr int index_shift = 49;
};

// 2^(sign j/3), head and tail.
template <class T, int sign> struct ThirdsOfTwo;
template <> struct ThirdsOfTwo<Lum32f, 1> {
  static constexpr auto head = table32({
#include "tables/generated/two_to_thirds_32f_16_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/two_to_thirds_32f_16_tail.inc"
  });
};
template <> struct ThirdsOfTwo<Lum32f, -1> {
  static constexpr auto head = table32({
#include "tables/generated/two_to_minus_thirds_32f_16_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/two_to_minus_thirds_32f_16_tail.inc"
  });
};
template <> struct ThirdsOfTwo<Lum64f, 1> {
  static constexpr auto head = table64({
#include "tables/generated/two_to_thirds_64f_8_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/two_to_thirds_64f_8_tail.inc"
  });
};
template <> struct ThirdsOfTwo<Lum64f, -1> {
  static constexpr auto head = table64({
#include "tables/generated/two_to_minus_thirds_64f_8_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/two_to_minus_thirds_64f_8_tail.inc"
  });
};

template <class T> struct ThirdsReduced {
  Vec<T> q;  // the power of 2 of the result
  Vec<T> j;  // the remainder in its low bits; NaN for zeros, infinities and NaN
  Vec<T> c, r;
};

// The rounded third of the shifted exponent, less the third of the shifter, exceeds e / 3 by less than 1/3, so that rounding
// down finds q; for the negative power it falls below -e / 3 by as little, and is rounded up.
template <Power power, class T> LUM_INLINE ThirdsReduced<T> ReduceThirds(const Parts<T>& parts) {
  using C = ThirdsConstants<T>;
  const auto [m, e] = parts;
  const auto E = (power == Power::two_thirds ? e + e : e) + all(C::shifter);
  Vec<T> q, j;
  if constexpr (power == Power::minus_one_third) {
    q = rndscale<binary_places(0) | ru | quiet>(fma(E, all(-C::third), all(C::offset)));
    j = fma(q, all(T(3)), E);
  } else {
    q = rndscale<binary_places(0) | rd | quiet>(fma(E, all(C::third), all(-C::offset)));
    j = fnma(q, all(T(3)), E);
  }
  const auto c = rounded_rcp14<C::grid, significand::from_1_to_2>(m);
  return {q, j, c, fms(m, c, all(T(1)))};
}

template <Power power, class T> LUM_INLINE ThirdsReduced<T> ReduceThirds(Vec<T> x) {
  return ReduceThirds<power>(parts<significand::from_1_to_2>(x));
}

// An entry of a table of c^power. The index of c = 1 is the first one behind the table; `thirds` stands there, the powers of 2
// whose first entry is 2^0 = 1 in the heads and 0 in the tails, which is right for c = 1 as well.
template <class T, size_t n> LUM_INLINE Vec<T> AtReciprocal(const Table<T, n>& table, Vec<T> thirds, Vec<T> c) {
  const auto index = shift_right<ThirdsConstants<T>::index_shift>(bits(c));
  return permute2(load<T>(table), thirds, index);
}

enum class Tier { low, mid, high };

// A power by what its Data hold: the power, the tables of c^power as head and tail of either type, and the polynomials
// ((1 + r)^power - 1) / r as low_32f, mid_32f, high_32f, low_64f and high_64f, the last of the middle tier, too.
template <class Data> struct ThirdsScheme {
  static constexpr auto power = Data::power;
  template <class T> static consteval const auto& head() { return of_type<T>(Data::head_32f, Data::head_64f); }
  template <class T> static consteval const auto& tail() { return of_type<T>(Data::tail_32f, Data::tail_64f); }
  template <Tier tier> static LUM_INLINE Vec<Lum32f> polynomial(Vec<Lum32f> r) {
    if constexpr (tier == Tier::low) return horner(r, Data::low_32f);
    else if constexpr (tier == Tier::mid) return horner(r, Data::mid_32f);
    else return horner(r, Data::high_32f);
  }
  template <Tier tier> static LUM_INLINE Vec<Lum64f> polynomial(Vec<Lum64f> r) {
    const auto square = r * r;
    if constexpr (tier == Tier::low) return horner_of_pairs(r, square, Data::low_64f);
    else return horner_of_pairs(r, square, Data::high_64f);
  }
};

// Vectors in a block: the constants of the longest path leave registers for one stream alone.
template <class T, Tier tier> inline constexpr int thirds_vectors = std::is_same_v<T, Lum64f>&& tier == Tier::high ? 1 : 2;

// Where the exponents and significands of zeros, infinities and NaN take many instructions, the first path refuses these and
// denormal numbers.
inline constexpr bool thirds_take_all = estimates_take_all;

template <class F, Tier tier, class T> LUM_INLINE Vec<T> ThirdsMagnitude(const ThirdsReduced<T>& a) {
  using Thirds = ThirdsOfTwo<T, F::power == Power::minus_one_third ? -1 : 1>;
  const auto heads = load<T>(Thirds::head), tails = load<T>(Thirds::tail);
  const auto third = permute(heads, bits(a.j));
  const auto t = AtReciprocal(F::template head<T>(), heads, a.c);
  const auto p = F::template polynomial<tier>(a.r);
  const auto scaled = [&](Vec<T> v) __attribute__((always_inline)) {
    if constexpr (thirds_take_all) return scalef(v, a.q);
    else return scalef_normal(v, a.q);
  };
  if constexpr (tier == Tier::low) {
    return fma(third * a.r, p, third) * scaled(t);
  } else if constexpr (tier == Tier::mid) {
    const auto w = fma(third * a.r, p, permute(tails, bits(a.j)));
    return (w + third) * scaled(t);
  } else {
    // The product of the table factors as h + l.
    const auto h = third * t;
    auto l = fms(third, t, h);
    l = fma(AtReciprocal(F::template tail<T>(), tails, a.c), third, l);
    l = fma(permute(tails, bits(a.j)), t, l);
    return scaled(h + fma(h * a.r, p, l));
  }
}

// The power of |x| for normal numbers, and what is refused then.
template <class F, Tier tier, class T> LUM_INLINE Lanes<T> ThirdsOfNormal(Vec<T> x) {
  const Parts<T> parts{getmant_normal<significand::from_1_to_2>(x), getexp_normal(x)};
  return {ThirdsMagnitude<F, tier>(ReduceThirds<F::power>(parts)), fpclass<classes::not_positive_normal>(abs(x))};
}
// In the refused lanes that of any number; of zeros, infinities and NaN it is what is given.
template <class F, Tier tier, class T> LUM_INLINE Vec<T> ThirdsOfRefused(Vec<T> x, Vec<T> of_special, const Lanes<T>& lanes) {
  const auto special = fpclass<classes::zero | classes::nonfinite>(x);
  const auto denormal = lanes.refused & ~special;
  auto value = lanes.value;
  if (any(denormal)) {
    const auto parts = PartsOfFinite<significand::from_1_to_2>(select(denormal, x, all(T(1))));
    value = select(denormal, ThirdsMagnitude<F, tier>(ReduceThirds<F::power>(parts)), value);
  }
  return select(special, of_special, value);
}

}  // namespace lum::inline LUM_LAYER::roots
