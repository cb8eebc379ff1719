// The angle of a point in pairs: with s and l the smaller and larger of |x| and |y|, and c = k/128 next to s/l, atan(s/l) =
// atan c
// + atan((s - c l)/(l + c s)). The angles of all quadrants stand in one table. Relative error below 2^-68.
#pragma once

#include "complex/pairs/pair.h"
#include "complex/polynomials.h"
#include "frame/numbers.h"
#include "invcircular/atan2_path.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::complex {

// The angle of (x, y) with positive y and any x other than 0: in (0, pi).
LUM_INLINE HeadTail Angle(HeadTail y, HeadTail x) {
  static constexpr auto table = table64({
#include "tables/generated/extended_angles_64f_513_pairs.inc"
  });
  const auto ax = Magnitude(x);
  const auto is_left = lt(x.head, all(0.0));
  const auto is_flat = lt(y.head, ax.head);
  const auto s = Select(is_flat, y, ax), l = Select(is_flat, ax, y);
  const auto estimate = rcp14(l.head);
  const auto ratio = s.head * fma(estimate, fnma(l.head, estimate, all(1.0)), estimate);
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const auto t = fma(ratio, all(128.0), all(shifter));
  const auto c = (t - all(shifter)) * all(0x1p-7);

  const auto back = two_product(c, l.head);
  const auto numerator = two_sum(s.head - back.head, fnma(c, l.tail, s.tail) - back.tail);  // the first difference is exact
  const auto denominator = fma(c, s.head, l.head);
  const auto rest = fma(c, s.tail, l.tail) + fma(c, s.head, l.head - denominator);
  auto u = Quotient(numerator, {denominator, rest});
  const auto q = u.head * u.head;
  u.tail = fma(u.head * q, horner(q, pairs_atan), u.tail);

  // Rows 0 + k, 256 - k, 256 + k, 512 - k counterclockwise from the positive x axis; the angle goes on with u as with k.
  const auto falls = ~(is_flat ^ is_left);
  const auto k = bits(t) & all(uint64_t{255});
  const auto flat_start = zero_unless(mask_cast<uint64_t>(is_left), all(uint64_t{512}));
  const auto start = select(mask_cast<uint64_t>(is_flat), flat_start, all(uint64_t{256}));
  const auto row = select(mask_cast<uint64_t>(falls), start - k, start + k);
  const auto head = gather<Lum64f>(table, row + row), tail = gather<Lum64f>(table + 1, row + row);
  u = Select(falls, -u, u);
  const auto sum = fast_two_sum(head, u.head);
  return fast_two_sum(sum.head, sum.tail + (tail + u.tail));
}

// Of any y that is not negative, but for the origin.
LUM_INLINE OnePart Angle(OnePart y, OnePart x) {
  using Tier = invcircular::arctan2::A50_64f;
  const auto a = invcircular::arctan2::Reduce(y.head, abs(x.head));
  const auto t = Tier::Quotient(a.n, a.d);
  const auto r = fma(t, Tier::Polynomial(t * t), a.base);
  return {select(lt(x.head, all(0.0)), all(numbers::pi<Lum64f>) - r, r)};
}

}  // namespace lum::inline LUM_LAYER::complex
