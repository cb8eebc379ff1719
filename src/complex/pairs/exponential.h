// Exponential and hyperbolic functions in pairs: x = n ln2/256 + r with |r| < 2^-9, a table of the powers of two, and the
// series of what is left. Relative error below 2^-69.
#pragma once

#include "complex/pairs/pair.h"
#include "complex/polynomials.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::complex {

// Arguments up to this size have results, and terms of results, well within the exponent range.
inline constexpr Lum64f largest_exponent = 600;

struct PowersOfTwo {
  HeadTail rising, falling;  // 2^(n/256), 2^(-n/256)
  HeadTail r;
};

LUM_INLINE PowersOfTwo ReduceExponent(Vec<Lum64f> x) {
  static constexpr auto table = table64({
#include "tables/generated/exp2_64f_256_pairs.inc"
  });
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const auto t = fma(x, all(256 * numbers::log2_e<Lum64f>), all(shifter));
  const auto n = t - all(shifter);
  const auto low = all(numbers::ln2_256th_parts<Lum64f>[1]);
  const auto r1 = fnma(n, all(numbers::ln2_256th_parts<Lum64f>[0]), x);  // exact
  const auto r = fnma(n, low, r1);
  const auto row = gather_rows<Lum64f>(table, shift_left<2>(bits(t) & all(uint64_t{255})));
  const auto whole = shift_left<44>(and_not(all(uint64_t{255}), bits(t)));  // floor(n / 256) in the exponent field
  const auto up = as_float(all(uint64_t{0x3FF0000000000000}) + whole),
             down = as_float(all(uint64_t{0x3FF0000000000000}) - whole);
  return {{row.column0 * up, row.column1 * up}, {row.column2 * down, row.column3 * down}, {r, fnma(n, low, r1 - r)}};
}

LUM_INLINE HeadTail ExponentialOf(const PowersOfTwo& reduced) {
  const auto [power, unused, r] = reduced;
  const auto series = horner(r.head, pairs_exp);
  const auto rest = fma(r.head * r.head, series, r.tail);
  const auto product = two_product(power.head, r.head);
  const auto sum = fast_two_sum(power.head, product.head);
  return fast_two_sum(sum.head, sum.tail + (product.tail + fma(power.head, rest, fma(power.tail, r.head, power.tail))));
}
template <class Number> LUM_INLINE Number Exponential(Vec<Lum64f> x) {
  const auto reduced = ReduceExponent(x);
  if constexpr (std::is_same_v<Number, OnePart>) {
    const auto power = reduced.rising.head, r = reduced.r.head;
    return {fma(power, fma(r * r, horner(r, pairs_exp), r), power)};
  } else {
    return ExponentialOf(reduced);
  }
}

template <class Number> struct SinhCosh { Number sinh, cosh; };

// By the addition theorems; the hyperbolic sine of the table's point is exact where it is small. That of a zero is that zero.
template <class Number = HeadTail> LUM_INLINE SinhCosh<Number> HyperbolicPairOf(Vec<Lum64f> x, const PowersOfTwo& reduced) {
  const auto [rising, falling, r] = reduced;
  if constexpr (std::is_same_v<Number, OnePart>) {
    const auto s = all(0.5) * ((rising.head - falling.head) + (rising.tail - falling.tail));
    const auto c = all(0.5) * (rising.head + falling.head);
    const auto q = r.head * r.head;
    const auto sinh_of_r = fma(r.head * q, horner(q, pairs_sinh), r.head), cosh_rest = q * horner(q, pairs_cosh);
    return {XorSign(x, OnePart{fma(c, sinh_of_r, fma(s, cosh_rest, s))}), {fma(s, sinh_of_r, fma(c, cosh_rest, c))}};
  } else {
    const auto half_rising = Scaled(rising, 0.5), half_falling = Scaled(falling, 0.5);
    const auto s = Add(half_rising, -half_falling), c = Add(half_rising, half_falling);
    const auto q = r.head * r.head;
    const auto sinh_rest = fma(r.head * q, horner(q, pairs_sinh), r.tail);
    const auto cosh_rest = fma(r.head, r.tail, q * horner(q, pairs_cosh));
    const auto for_sinh = two_product(c.head, r.head), for_cosh = two_product(s.head, r.head);
    const auto sinh = fast_two_sum(s.head, for_sinh.head), cosh = fast_two_sum(c.head, for_cosh.head);
    const auto sinh_tail = fma(c.tail, r.head, s.tail + (sinh.tail + for_sinh.tail));
    const auto cosh_tail = fma(s.tail, r.head, c.tail + (cosh.tail + for_cosh.tail));
    return {XorSign(x, fast_two_sum(sinh.head, fma(s.head, cosh_rest, fma(c.head, sinh_rest, sinh_tail)))),
            fast_two_sum(cosh.head, fma(c.head, cosh_rest, fma(s.head, sinh_rest, cosh_tail)))};
  }
}
template <class Number> LUM_INLINE SinhCosh<Number> HyperbolicPair(Vec<Lum64f> x) {
  return HyperbolicPairOf<Number>(x, ReduceExponent(abs(x)));
}

// For results beyond the range: x = 512 k ln 2 + rest, and e^x = 2^exponent e^rest.
struct RestOfExponent {
  PowersOfTwo reduced;  // of the rest
  Vec<Lum64f> exponent;
};
LUM_INLINE RestOfExponent TakePowersOfTwo(Vec<Lum64f> x, Vec<Lum64f> k) {
  constexpr auto& ln2 = numbers::ln2_by_2p40_parts<Lum64f>;
  const auto first = two_sum(x, negate(k * all(512 * ln2[0])));  // the product is exact
  const auto rest = fast_two_sum(first.head, fnma(k, all(512 * ln2[1]), first.tail));
  RestOfExponent result{ReduceExponent(rest.head), k * all(512.0)};
  auto& r = result.reduced.r;
  r = two_sum(r.head, r.tail + rest.tail);  // the rest's tail may be large beside r
  return result;
}
// The nearest k.
LUM_INLINE RestOfExponent TakePowersOfTwo(Vec<Lum64f> x) {
  return TakePowersOfTwo(x, rndscale<binary_places(0) | quiet>(x * all(numbers::log2_e<Lum64f> / 512)));
}

}  // namespace lum::inline LUM_LAYER::complex
