// What the tests of the inverses share: the reference, and round trips through the function that is inverted.
#pragma once

#include <cmath>

#include "accuracy/measure.h"
#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {

// y with erfc y = q, 0 < q < 1, by Newton's method on the logarithm of erfc.
inline void InverseOfErfc(mpfr_ptr y, mpfr_srcptr q) {
  constexpr mpfr_prec_t precision = 160;
  mpfr_t v, e, g, d, log_q;
  mpfr_inits2(precision, v, e, g, d, log_q, nullptr);
  mpfr_log(log_q, q, MPFR_RNDN);
  const double square = -mpfr_get_d(log_q, MPFR_RNDN);
  mpfr_set_d(v, square > 2 ? std::sqrt(square) - 0.3 : 0.88 * (1 - mpfr_get_d(q, MPFR_RNDN)), MPFR_RNDN);
  for (int i = 0; i < 60; ++i) {
    mpfr_erfc(e, v, MPFR_RNDN);
    mpfr_sqr(g, v, MPFR_RNDN);
    mpfr_exp(g, g, MPFR_RNDN);
    mpfr_const_pi(d, MPFR_RNDN);
    mpfr_sqrt(d, d, MPFR_RNDN);
    mpfr_mul(g, g, d, MPFR_RNDN);
    mpfr_div_2ui(g, g, 1, MPFR_RNDN);  // -1 / erfc'
    mpfr_log(d, e, MPFR_RNDN);
    mpfr_sub(d, d, log_q, MPFR_RNDN);
    mpfr_mul(d, d, e, MPFR_RNDN);
    mpfr_mul(d, d, g, MPFR_RNDN);
    mpfr_add(v, v, d, MPFR_RNDN);
    if (mpfr_zero_p(d) || mpfr_get_exp(d) < mpfr_get_exp(v) - 60) break;  // the next step would square it
  }
  mpfr_set(y, v, MPFR_RNDN);
  mpfr_clears(v, e, g, d, log_q, nullptr);
}

// The references of the three inverses inside of their domains.
inline void ErfcInvReference(mpfr_ptr r, mpfr_srcptr x) {
  mpfr_t q;
  mpfr_init2(q, 1200);
  const bool is_upper = mpfr_cmp_ui(x, 1) > 0;
  if (is_upper) mpfr_ui_sub(q, 2, x, MPFR_RNDN);
  else mpfr_set(q, x, MPFR_RNDN);
  if (mpfr_cmp_ui(q, 1) == 0) mpfr_set_zero(r, 1);
  else InverseOfErfc(r, q);
  if (is_upper) mpfr_neg(r, r, MPFR_RNDN);
  mpfr_clear(q);
}
inline void ErfInvReference(mpfr_ptr r, mpfr_srcptr x) {
  if (mpfr_get_exp(x) < -60) {  // sqrt(pi)/2 x, the next term being far below the last place
    mpfr_const_pi(r, MPFR_RNDN);
    mpfr_sqrt(r, r, MPFR_RNDN);
    mpfr_mul(r, r, x, MPFR_RNDN);
    mpfr_div_2ui(r, r, 1, MPFR_RNDN);
    return;
  }
  mpfr_t q;
  mpfr_init2(q, 1200);
  mpfr_ui_sub(q, 1, x, MPFR_RNDN);
  ErfcInvReference(r, q);
  mpfr_clear(q);
}
inline void CdfNormInvReference(mpfr_ptr r, mpfr_srcptr p) {
  mpfr_t q, root2;
  mpfr_init2(q, 64);
  mpfr_init2(root2, 200);
  mpfr_mul_2ui(q, p, 1, MPFR_RNDN);
  ErfcInvReference(r, q);
  mpfr_sqrt_ui(root2, 2, MPFR_RNDN);
  mpfr_mul(r, r, root2, MPFR_RNDN);
  if (!mpfr_zero_p(r)) mpfr_neg(r, r, MPFR_RNDN);
  mpfr_clears(q, root2, nullptr);
}

// function(inverse(x)) = x within the bounds of both: one of the inverse's units, times the allowed count, as the slope at the
// point carries it to the result, and the function's own. slope(y) is the derivative of the function.
template <class Slope>
void ExpectRoundTrip(const std::string& function, const std::string& inverse, const Arguments1& x, Slope slope) {
  const Export& outer = *ExportsNamed(function).at(0);
  const Export& inner = *ExportsNamed(inverse).at(0);
  const Format format = FormatOf(outer.input);
  const double unit = outer.is_32bit() ? 0x1p-23 : 0x1p-52;  // relative, at most
  const double smallest = outer.is_32bit() ? 0x1p-149 : 0x1p-1074;
  for (const std::string& library : RunnableLibraries()) {
    Batch arguments(inner), points(outer);
    for (double argument : x) arguments.src1.Append({format.pattern(argument), 0});
    std::string reason;
    const support::Library& loaded = *TestLibrary(library, "", reason);
    const Output inverses = Callee(loaded, inner).Run(arguments);
    for (size_t i = 0; i < arguments.size(); ++i) points.src1.Append(inverses.dst1[i]);
    const Output back = Callee(loaded, outer).Run(points);
    for (size_t i = 0; i < arguments.size(); ++i) {
      const double a = format.number(arguments.src1[i].re), y = format.number(inverses.dst1[i].re);
      const double b = format.number(back.dst1[i].re);
      const double allowed =
          accuracy::Bound(inner) * std::fabs(y) * unit * slope(y) + accuracy::Bound(outer) * std::fabs(a) * unit + smallest;
      // The slope may change over the inverse's error.
      ASSERT_LE(std::fabs(b - a), allowed * 1.001) << library << ' ' << inverse << ' ' << arguments.Show(i) << " back: " << b;
    }
  }
}
inline double ErfSlope(double y) { return 1.1283791670955126 * std::exp(-y * y); }
inline double NormalDensity(double x) { return 0.3989422804014327 * std::exp(-x * x / 2); }

// Pairs of exports of the same tag.
inline constexpr const char* all_tags[] = {"32f_A11", "32f_A21", "32f_A24", "64f_A26", "64f_A50", "64f_A53"};

}  // namespace lum::test
