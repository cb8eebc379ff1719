// The reduction of ordinary arguments: a nearest multiple of pi taken off in two or three parts. sin(n pi + r) = (-1)^n sin r.
#pragma once

#include "circular/polynomials.h"
#include "frame/numbers.h"
#include "frame/types.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER::circular {

// The integer nearest to x/pi; in the low bits of `shifted` as an integer too.
template <class T> struct HalfTurns { Vec<T> n, shifted; };
template <class T> LUM_INLINE HalfTurns<T> NearestHalfTurns(Vec<T> x) {
  const auto t = fma(x, all(numbers::inverse_pi<T>), all(rounding_shifter<T>()));
  return {t - all(rounding_shifter<T>()), t};
}

// x - n pi by the first two parts of pi.
template <class T> LUM_INLINE Vec<T> TakeHalfTurns(Vec<T> x, Vec<T> n) {
  return fnma(n, all(numbers::pi_parts<T>[1]), fnma(n, all(numbers::pi_parts<T>[0]), x));
}
template <class T> LUM_INLINE Vec<T> TakeThirdPart(Vec<T> r, Vec<T> n) { return fnma(n, all(numbers::pi_parts<T>[2]), r); }

// In binary64 for a binary32 x: the first part has so few bits that n times it is exact.
LUM_INLINE Vec<Lum64f> TakeHalfTurnsExactly(Vec<Lum64f> x, Vec<Lum64f> n) {
  return fnma(n, all(numbers::pi_exact_parts<Lum64f>[1]), fnma(n, all(numbers::pi_exact_parts<Lum64f>[0]), x));
}

// sin r by one of the odd polynomials, |r| <= pi/2: r + P(r^2) r^3, with r^3 or with P(r^2) r^2 as a factor, and where the
// polynomial has a first coefficient of its own in the place of 1.
template <class T, size_t n> LUM_INLINE Vec<T> OddSine(Vec<T> r, const Polynomial<T, n>& p) {
  const auto q = r * r;
  return fma(horner(q, p), q * r, r);
}
template <class T, size_t n> LUM_INLINE Vec<T> OddSineByRatio(Vec<T> r, const Polynomial<T, n>& p) {
  const auto q = r * r;
  return fma(q * horner(q, p), r, r);
}
template <class T, size_t n> LUM_INLINE Vec<T> OddSineFitted(Vec<T> r, const Polynomial<T, n>& p) {
  const auto q = r * r;
  return fma(q * horner(q, part<1, n - 1>(p)), r, r * all(p.c[0]));
}

// The sign bit where an odd number of half turns was taken.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> ParitySign(Vec<T> shifted) {
  return shift_left<8 * sizeof(T) - 1>(bits(shifted));
}
// The sign bit of an odd function reduced by its magnitude: changed where x is negative.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> OddParitySign(Vec<T> shifted, Vec<T> x, Vec<T> magnitude) {
  return ternary<A ^ B ^ C>(ParitySign(shifted), bits(x), bits(magnitude));
}

}  // namespace lum::inline LUM_LAYER::circular
