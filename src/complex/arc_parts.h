// What the paths of arccosine, arcsine and their hyperbolic counterparts share. As in the cores, r and s are the distances of
// (u, v) to -1 and 1 and A half their sum; but in pairs one form of each difference serves everywhere, r - b = v^2/(r + b) and
// the like with b = u + 1 and a = u - 1.
#pragma once

#include "complex/core_path.h"
#include "complex/pairs/angle.h"
#include "complex/pairs/logarithm.h"

namespace lum::inline LUM_LAYER::complex {

// The angle arccos(u/A) or arcsin(u/A), and arcosh A, for u, v >= 0.
template <class Number> struct AngleAndLogarithm { Number angle, logarithm; };
enum class Arc { cosine, sine };

template <Arc arc, class Number> LUM_INLINE AngleAndLogarithm<Number> InverseParts(Vec<Lum64f> given_u, Vec<Lum64f> given_v) {
  const auto one = all(1.0);
  // On an axis a number that does not count stands for the zero, and the part that would be zero is put so at the end.
  const auto u = max(given_u, all(0x1p-210)), v = max(given_v, all(0x1p-210));
  const auto a = SumOf<Number>(u, negate(one)), b = SumOf<Number>(u, one);
  const auto v2 = SquareOf<Number>(v);
  const auto r = SquareRoot(Add(Square(b), v2)), s = SquareRoot(Add(Square(a), v2));
  const auto near = Quotient(v2, Add(r, b));                         // r - b
  const auto far = Add(s, Magnitude(a)), other = Quotient(v2, far);  // s + |a| and s - |a|
  const auto is_inside = lt(u, one);
  const auto above_u = Scaled(Add(near, Select(is_inside, far, other)), 0.5);    // A - u
  const auto above_one = Scaled(Add(near, Select(is_inside, other, far)), 0.5);  // A - 1
  const auto side = SquareRoot(Product(above_u, Add(above_u, u + u)));
  const auto exact_u = NumberOf<Number>(u);
  const auto angle = arc == Arc::cosine ? Angle(side, exact_u) : Angle(exact_u, side);
  const auto root = SquareRoot(Product(above_one, Add(above_one, all(2.0))));
  const auto is_off_axis = ne(given_v, all(0.0));
  const auto has_angle = arc == Arc::cosine ? is_inside | is_off_axis : ne(given_u, all(0.0));
  const auto has_logarithm = lt(one, u) | is_off_axis;
  return {ZeroUnless(has_angle, angle), ZeroUnless(has_logarithm, LogarithmOfOnePlus(Add(above_one, root)))};
}

// What the core's parts may be off, in units of 2^-64: sums over its steps, each with half a last place and what it makes of
// the errors of those before. The distances r and s are right to 3 units, A to 4. The cosine u/A is right to 5 and, where it is
// near 1, the side beside it to 6.75; an arccosine does not magnify that, an arcsine by less than 1.85. A mirrored angle is
// taken from a rounded pi. The logarithm's argument is right to 7.75 where A is above 3/2, else its difference from 1 to 8,
// relatively.
template <Arc arc> constexpr double angle_error = arc == Arc::cosine ? 8 : 10.5;
constexpr double mirrored_angle_error = 10;
template <class Number> LUM_INLINE Vec<Lum64f> ArcLogarithmError(Number logarithm) {
  const auto magnitude = abs(logarithm.head);
  return select(lt(magnitude, all(0.97)), magnitude * all(9.25), fma(magnitude, all(1.1875), all(7.75)));
}

}  // namespace lum::inline LUM_LAYER::complex
