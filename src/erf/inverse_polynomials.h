// The inverses in binary32: on each binade of the distance q from an end of the domain a polynomial in u = m - M, m being the
// significand of q; in the centre s times a polynomial in s^2, s being the distance from the centre. All coefficients are
// entries of tables of 32 that the low bits of q's exponent field select, so that both forms are one evaluation:
//   c0 b + b v (c1 + v (c2 + ...)),  v = u and b = 1 in the tails, v = s^2 and b = s in the centre.
#pragma once

#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::erf {

// The tables of erfinv and erfcinv.
template <int degree> struct ErrorPolynomials;
template <> struct ErrorPolynomials<3> {
  static constexpr auto table = table32({
#include "tables/generated/erfcinv_32f_32_degree_3.inc"
  });
};
template <> struct ErrorPolynomials<7> {
  static constexpr auto table = table32({
#include "tables/generated/erfcinv_32f_32_degree_7.inc"
  });
};
template <> struct ErrorPolynomials<9> {
  static constexpr auto table = table32({
#include "tables/generated/erfcinv_32f_32_degree_9.inc"
  });
  static constexpr auto centre_rest = numbers::half_root_pi_parts<Lum32f>[1];  // sqrt(pi)/2 less its binary32 number
};

// The degree of the exact tables: their first line is what u is counted from, so chosen that the constant terms need no second
// part; but that of the centre has one, C::centre_rest.
constexpr int exact_degree = 9;

// Entries of a line, and the polynomial whose coefficients are those of the lines from there up to the last.
template <class C, int line, Integer I> LUM_INLINE Vec<Lum32f> Line(Vec<I> index) {
  return permute2(load<Lum32f>(C::table + 32 * line), load<Lum32f>(C::table + 32 * line + 16), index);
}
template <class C, int line, int last, Integer I> LUM_INLINE Vec<Lum32f> FromLine(Vec<Lum32f> v, Vec<I> index) {
  const auto c = Line<C, line>(index);
  if constexpr (line == last) return c;
  else return fma(FromLine<C, line + 1, last>(v, index), v, c);
}

template <class C, int degree> LUM_INLINE Vec<Lum32f> EvaluatePolynomial(Vec<Lum32f> q, Vec<Lum32f> s, Mask<Lum32f> is_centre) {
  const auto index = shift_right<23>(bits(q));
  const auto m = getmant<significand::from_1_to_2>(q);
  const auto b = select(is_centre, s, all(1.0f));
  if constexpr (degree == exact_degree) {
    const auto v = select(is_centre, s * s, m - Line<C, 0>(index));
    const auto rest = zero_unless(is_centre, all(C::centre_rest));
    const auto r = fma(FromLine<C, 2, degree + 1>(v, index), v, rest);
    return fma(Line<C, 1>(index), b, r * b);
  } else {
    const auto v = select(is_centre, s * s, m - all(1.5f));
    return FromLine<C, 0, degree>(v, index) * b;
  }
}

}  // namespace lum::inline LUM_LAYER::erf
