// Directed rounding, which the instructions have only by way of the environment: the nearest result, moved by a unit in the
// last place where the sign of its exact error says so. A part of frame/vec_avx2.h.
#pragma once

#include "frame/avx2/significand.h"
#include "frame/two_parts.h"

namespace lum {
inline namespace avx2 {
namespace half {

// ---- Directed rounding

// The number nearest to a value, and a number with the sign of (value - nearest); gives the value rounded by R.
template <int R, Floating T> LUM_INLINE Half<T> directed(Half<T> nearest, Half<T> error) {
  using S = SignedOf<T>;
  const Half<S> b{raw(nearest)};
  if constexpr (R == rn) {
    return nearest;
  } else if constexpr (R == rz) {
    // One unit down where the error points to zero: bits of all ones are -1.
    const auto toward_zero = as_float<T>(bits(error) ^ (bits(nearest) & all(sign_bit<T>)));
    return from_raw<T>((b + Half<S>{lt(toward_zero, all(T{0})).v}).v);
  } else {
    const Half<S> negative = shift_right_arithmetic<8 * sizeof(T) - 1>(b), one = all(S{1});
    const Half<S> moves{(R == rd ? lt(error, all(T{0})) : compare<14>(error, all(T{0}))).v};
    return from_raw<T>((b + (moves & ((R == rd ? negative ^ all(S{-1}) : negative) | one))).v);
  }
}

// Numbers whose sums and products have no part below the range, and none beyond it.
template <Floating T> inline constexpr T smallest_product = sizeof(T) == 4 ? T(0x1p-76) : T(0x1p-900);
template <Floating T> inline constexpr T largest_product = sizeof(T) == 4 ? T(0x1p125) : T(0x1p1020);
// Lanes with a product outside, NaN among them, that is not the zero of a zero factor.
template <Floating T> LUM_INLINE HalfMask<T> product_doubt(Half<T> product, Half<T> a, Half<T> b) {
  const auto m = magnitude(product);
  const auto outside = ~(compare<13>(m, all(smallest_product<T>)) & le(m, all(largest_product<T>)));
  return outside & ~(eq(product, all(T{0})) & (eq(a, all(T{0})) | eq(b, all(T{0}))));
}

// a + b = sum + error, for finite numbers without overflow.
template <Floating T> LUM_INLINE TwoParts<Half<T>> two_sum(Half<T> a, Half<T> b) {
  const auto s = a + b;
  const auto b_part = s - a;
  return {s, (a - (s - b_part)) + (b - b_part)};
}

template <int R, Floating T> LUM_INLINE Half<T> directed_add(Half<T> a, Half<T> b) {
  const auto [s, error] = two_sum(a, b);
  auto doubt = ~le(magnitude(s), all(largest_product<T>));
  if constexpr (R == rd) doubt = doubt | eq(s, all(T{0}));  // whose sign is that of the terms
  if (any(doubt)) [[unlikely]]
    return each_lane<[](T x, T y) { return lane::add<R>(x, y); }>(a, b);
  return directed<R>(s, error);
}
template <int R, Floating T> LUM_INLINE Half<T> directed_mul(Half<T> a, Half<T> b) {
  const auto p = a * b;
  if (any(product_doubt(p, a, b))) [[unlikely]]
    return each_lane<[](T x, T y) { return lane::careful_mul<R>(x, y); }>(a, b);
  return directed<R>(p, fms(a, b, p));
}
// The error of a fused sum by S. Boldo and J.-M. Muller, Exact and approximated error of the FMA, 2011.
template <int R, bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Half<T> directed_fma(Half<T> a, Half<T> b, Half<T> c) {
  const auto turned = [](Half<T> x) __attribute__((always_inline)) { return as_float<T>(bits(x) ^ all(sign_bit<T>)); };
  const auto x = negate_product ? turned(a) : a, z = negate_addend ? turned(c) : c;
  const auto s = fma(x, b, z);
  const auto p = x * b;
  auto doubt = product_doubt(p, x, b) | ~le(magnitude(z), all(largest_product<T>));
  if constexpr (R == rd) doubt = doubt | eq(s, all(T{0}));
  if (any(doubt)) [[unlikely]] {
    return each_lane<[](T l, T m, T n) { return lane::careful_fma<R, negate_product, negate_addend>(l, m, n); }>(a, b, c);
  }
  const auto low = two_sum(z, fms(x, b, p));
  const auto high = two_sum(p, low.head);
  return directed<R>(s, ((high.head - s) + high.tail) + low.tail);
}

// The sum lies within a binade of c, so that its difference from c is exact, and the error's sign is right: one unit down where
// it is negative.
template <Floating T> LUM_INLINE Half<T> fma_floor(Half<T> a, Half<T> b, Half<T> c) {
  using S = SignedOf<T>;
  const auto s = fma(a, b, c);
  const auto below = lt(fms(a, b, s - c), all(T{0}));
  return from_raw<T>((Half<S>{raw(s)} + Half<S>{below.v}).v);
}
// Products next to which a part of the steps below may fall under the range; not of a zero factor, nor NaN.
template <Floating T> LUM_INLINE HalfMask<T> is_small_product(Half<T> product, Half<T> a, Half<T> b) {
  const auto small = lt(magnitude(product), all(is32<T> ? T(0x1p-40) : T(0x1p-300)));
  return small & ~(eq(a, all(T{0})) | eq(b, all(T{0})));
}
template <Floating T> LUM_INLINE TwoParts<Half<T>> mul_toward_zero(Half<T> a, Half<T> b) {
  const auto nearest = a * b;
  const auto head = directed<rz>(nearest, fms(a, b, nearest));
  return {head, fms(a, b, head)};
}
template <Floating T> LUM_INLINE TwoParts<Half<T>> mul_toward_zero(Half<T> a, Half<T> a_tail, Half<T> b) {
  const auto first = mul_toward_zero(a, b);
  const auto nearest = fma(a_tail, b, first.tail);
  const auto p = a_tail * b;
  const auto low = two_sum(first.tail, fms(a_tail, b, p));
  const auto high = two_sum(p, low.head);
  const auto second = directed<rz>(nearest, ((high.head - nearest) + high.tail) + low.tail);
  const auto sum = first.head + second;
  const auto head = directed<rz>(sum, second - (sum - first.head));
  return {head, second - (head - first.head)};
}

// c is so large that the sum rounded to nearest names the nearest point of the grid, from which a differs by a number.
template <Floating T> struct HalfFloor { Half<T> sum, rest; };
template <Floating T> LUM_INLINE HalfFloor<T> split_floor(Half<T> a, Half<T> c) {
  using S = SignedOf<T>;
  const auto nearest = a + c;
  const auto above = lt(a - (nearest - c), all(T{0}));
  const auto sum = from_raw<T>((Half<S>{raw(nearest)} + Half<S>{above.v}).v);
  const auto floor = sum - c;
  const auto rest = a - floor;
  return {sum, directed<rd>(rest, a - (rest + floor))};
}

// Rounded to nearest the difference is exact but where a small a goes a whole step of the grid down or up; then the step is the
// larger summand. A zero is that of the rounding; an infinity leaves +0.
template <int imm, Floating T> LUM_INLINE Half<T> reduce(Half<T> a) {
  constexpr int R = (imm & 4) ? rn : imm & 3;
  const auto grid = rndscale<imm>(a);
  auto rest = a - grid;
  if constexpr (R != rn) rest = directed<R>(rest, a - (rest + grid));
  if constexpr (R == rd) rest = as_float<T>(bits(rest) | (Half<UnsignedOf<T>>{eq(rest, all(T{0})).v} & all(sign_bit<T>)));
  const auto is_infinite = eq(magnitude(a), all(std::bit_cast<T>(lane::Format<T>::infinity)));
  return from_raw<T>(_mm256_andnot_si256(is_infinite.v, raw(rest)));
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
