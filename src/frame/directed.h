// Directed rounding in one register on a processor with a fused multiply-add: the nearest result, moved by a unit in the last
// place where the sign of its exact error says so. What the layers without AVX-512 share.
#pragma once

#include "frame/register_numbers.h"
#include "frame/two_parts.h"

namespace lum::inline LUM_LAYER {
namespace reg {

// The number nearest to a value, and a number with the sign of (value - nearest); gives the value rounded by R.
template <int R, Floating T> LUM_INLINE Register<T> directed(Register<T> nearest, Register<T> error) {
  const auto b = bits<T>(nearest);
  if constexpr (R == rn) {
    return nearest;
  } else if constexpr (R == rz) {
    // One unit down where the error points to zero: bits of all ones are -1.
    const auto toward_zero = number<T>(bits<T>(error) ^ (b & sign_bit<T>));
    return number<T>(b + lanes_where<T>(toward_zero < 0));
  } else {
    const auto negative = lanes_where<T>(register_cast<SignedOf<T>>(b) < 0);
    const auto moves = lanes_where<T>(R == rd ? error < 0 : error > 0);
    return number<T>(b + (moves & ((R == rd ? ~negative : negative) | 1)));
  }
}

// Numbers whose sums and products have no part below the range, and none beyond it.
template <Floating T> inline constexpr T smallest_product = sizeof(T) == 4 ? T(0x1p-76) : T(0x1p-900);
template <Floating T> inline constexpr T largest_product = sizeof(T) == 4 ? T(0x1p125) : T(0x1p1020);
// Lanes with a product outside, NaN among them, that is not the zero of a zero factor.
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> product_doubt(Register<T> product, Register<T> a, Register<T> b) {
  const auto m = magnitude<T>(product);
  const auto inside = lanes_where<T>((m >= smallest_product<T>)&(m <= largest_product<T>));
  return ~inside & ~lanes_where<T>((product == 0) & ((a == 0) | (b == 0)));
}
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> is_beyond_products(Register<T> x) {
  return ~lanes_where<T>(magnitude<T>(x) <= largest_product<T>);
}

// a + b = sum + error, for finite numbers without overflow.
template <Floating T> LUM_INLINE TwoParts<Register<T>> two_sum(Register<T> a, Register<T> b) {
  const Register<T> s = a + b, b_part = s - a;
  return {s, (a - (s - b_part)) + (b - b_part)};
}

// Each directed operation has a companion that tells the lanes in which it may be wrong; of infinities and NaN among the
// operands it knows nothing. There the error is a NaN, so that the nearest result stands, which is right.
template <int R, Floating T> LUM_INLINE Register<T> directed_add(Register<T> a, Register<T> b) {
  const auto [s, error] = two_sum<T>(a, b);
  return directed<R, T>(s, error);
}
template <int R, Floating T> LUM_INLINE Register<UnsignedOf<T>> directed_add_doubt(Register<T> a, Register<T> b) {
  const Register<T> s = a + b;
  if constexpr (R == rd) return is_beyond_products<T>(s) | lanes_where<T>(s == 0);  // whose sign is that of the terms
  else return is_beyond_products<T>(s);
}
template <int R, Floating T> LUM_INLINE Register<T> directed_mul(Register<T> a, Register<T> b) {
  const Register<T> p = a * b;
  return directed<R, T>(p, fma<false, true, T>(a, b, p));
}
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> directed_mul_doubt(Register<T> a, Register<T> b) {
  return product_doubt<T>(a * b, a, b);
}
// The error of a fused sum by S. Boldo and J.-M. Muller, Exact and approximated error of the FMA, 2011.
template <bool negate_product, bool negate_addend, Floating T>
LUM_INLINE TwoParts<Register<T>> fused_with_error(Register<T> x, Register<T> b, Register<T> z) {
  const Register<T> a = negate_product ? -x : x, c = negate_addend ? -z : z;
  const Register<T> s = fma<negate_product, negate_addend, T>(x, b, z), p = a * b;
  const auto low = two_sum<T>(c, fma<false, true, T>(a, b, p));
  const auto high = two_sum<T>(p, low.head);
  return {s, ((high.head - s) + high.tail) + low.tail};
}
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Register<T> directed_fma(Register<T> a, Register<T> b, Register<T> c) {
  const auto [s, error] = fused_with_error<negate_product, negate_addend, T>(a, b, c);
  return directed<R, T>(s, error);
}
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Register<UnsignedOf<T>> directed_fma_doubt(Register<T> a, Register<T> b, Register<T> c) {
  const auto doubt = product_doubt<T>(a * b, a, b) | is_beyond_products<T>(c);
  if constexpr (R == rd) return doubt | lanes_where<T>(fma<negate_product, negate_addend, T>(a, b, c) == 0);
  else return doubt;
}

// The sum lies within a binade of c, so that its difference from c is exact, and the error's sign is right: one unit down where
// it is negative.
template <Floating T> LUM_INLINE Register<T> fma_floor(Register<T> a, Register<T> b, Register<T> c) {
  const Register<T> s = fma<false, false, T>(a, b, c);
  return number<T>(bits<T>(s) + lanes_where<T>(fma<false, true, T>(a, b, s - c) < 0));
}
// Products next to which a part of the steps below may fall under the range; not of a zero factor, nor NaN.
template <Floating T> LUM_INLINE Register<UnsignedOf<T>> is_small_product(Register<T> product, Register<T> a, Register<T> b) {
  constexpr T small = sizeof(T) == 4 ? T(0x1p-40) : T(0x1p-300);
  return lanes_where<T>((magnitude<T>(product) < small) & (a != 0) & (b != 0));
}
template <Floating T> LUM_INLINE TwoParts<Register<T>> mul_toward_zero(Register<T> a, Register<T> b) {
  const auto head = directed_mul<rz, T>(a, b);
  return {head, fma<false, true, T>(a, b, head)};
}
template <Floating T> LUM_INLINE TwoParts<Register<T>> mul_toward_zero(Register<T> a, Register<T> a_tail, Register<T> b) {
  const auto first = mul_toward_zero<T>(a, b);
  const auto fused = fused_with_error<false, false, T>(a_tail, b, first.tail);
  const auto second = directed<rz, T>(fused.head, fused.tail);
  const Register<T> sum = first.head + second;
  const auto head = directed<rz, T>(sum, second - (sum - first.head));
  return {head, second - (head - first.head)};
}

// c is so large that the sum rounded to nearest names the nearest point of the grid, from which a differs by a number.
// The sum, and the rest of a.
template <Floating T> LUM_INLINE TwoParts<Register<T>> split_floor(Register<T> a, Register<T> c) {
  const Register<T> nearest = a + c;
  const auto sum = number<T>(bits<T>(nearest) + lanes_where<T>(a - (nearest - c) < 0));
  const Register<T> floor = sum - c, rest = a - floor;
  return {sum, directed<rd, T>(rest, a - (rest + floor))};
}

}  // namespace reg
}  // namespace lum::inline LUM_LAYER
