#include "accuracy/reference.h"

#include <mpc.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <string_view>

#include "accuracy/number.h"

namespace lum::accuracy {
namespace {

constexpr mpfr_rnd_t nearest = MPFR_RNDN;

// An MPFR number with a lifetime.
class ComplexNumber {
 public:
  ComplexNumber() { mpc_init2(value_, precision); }
  ComplexNumber(double re, double im) : ComplexNumber() { mpc_set_d_d(value_, re, im, MPC_RNDNN); }
  ComplexNumber(const ComplexNumber&) = delete;
  ComplexNumber& operator=(const ComplexNumber&) = delete;
  ~ComplexNumber() { mpc_clear(value_); }
  operator mpc_ptr() { return value_; }

 private:
  mpc_t value_;
};

// f(result, x) of a real argument.
template <auto f> void Real(mpfr_ptr part1, mpfr_ptr, const Point& p) { f(part1, Number(precision, p.re1)); }
template <auto f> void Real2(mpfr_ptr part1, mpfr_ptr, const Point& p) {
  f(part1, Number(precision, p.re1), Number(precision, p.re2));
}
// f(result, z) of complex arguments.
template <auto f> void Complex(mpfr_ptr part1, mpfr_ptr part2, const Point& p) {
  ComplexNumber z(p.re1, p.im1), result;
  f(result, z);
  mpfr_set(part1, mpc_realref(static_cast<mpc_ptr>(result)), nearest);
  mpfr_set(part2, mpc_imagref(static_cast<mpc_ptr>(result)), nearest);
}
template <auto f> void Complex2(mpfr_ptr part1, mpfr_ptr part2, const Point& p) {
  ComplexNumber z(p.re1, p.im1), w(p.re2, p.im2), result;
  f(result, z, w);
  mpfr_set(part1, mpc_realref(static_cast<mpc_ptr>(result)), nearest);
  mpfr_set(part2, mpc_imagref(static_cast<mpc_ptr>(result)), nearest);
}
template <auto f> void ToReal(mpfr_ptr part1, mpfr_ptr, const Point& p) {
  ComplexNumber z(p.re1, p.im1);
  f(part1, z);
}

// Shorthands that give MPFR's and MPC's functions one shape.
#define LUM_MPFR(name) Real<[](mpfr_ptr r, mpfr_srcptr x) { name(r, x, nearest); }>
#define LUM_MPFR2(name) Real2<[](mpfr_ptr r, mpfr_srcptr x, mpfr_srcptr y) { name(r, x, y, nearest); }>
#define LUM_MPC(name) Complex<[](mpc_ptr r, mpc_srcptr z) { name(r, z, MPC_RNDNN); }>
#define LUM_MPC2(name) Complex2<[](mpc_ptr r, mpc_srcptr z, mpc_srcptr w) { name(r, z, w, MPC_RNDNN); }>
#define LUM_MPC_REAL(name) ToReal<[](mpfr_ptr r, mpc_srcptr z) { name(r, z, nearest); }>

// x^(a/3) by the cube root, for a = -1 and 2.
void InvCbrt(mpfr_ptr r, mpfr_srcptr x) {
  mpfr_cbrt(r, x, nearest);
  mpfr_ui_div(r, 1, r, nearest);
}
void Inv(mpfr_ptr r, mpfr_srcptr x) { mpfr_ui_div(r, 1, x, nearest); }
// As IEEE 754 has it, the pole at -0 is negative.
void InvSqrt(mpfr_ptr r, mpfr_srcptr x) {
  mpfr_rec_sqrt(r, x, nearest);
  if (mpfr_zero_p(x)) mpfr_set_inf(r, mpfr_signbit(x) != 0 ? -1 : 1);
}
void Pow2o3(mpfr_ptr r, mpfr_srcptr x) {
  mpfr_cbrt(r, x, nearest);
  mpfr_sqr(r, r, nearest);
}
void Pow3o2(mpfr_ptr r, mpfr_srcptr x) {
  mpfr_sqrt(r, x, nearest);
  mpfr_mul(r, r, x, nearest);
}

// erfc(-x / sqrt 2) / 2; the argument needs more bits, as erfc magnifies its error by about x^2.
void CdfNorm(mpfr_ptr r, mpfr_srcptr x) {
  Number a(precision + 32), half(precision + 32);
  mpfr_set_d(half, 0.5, nearest);
  mpfr_sqrt(half, half, nearest);
  mpfr_mul(a, x, half, nearest);
  mpfr_neg(a, a, nearest);
  mpfr_erfc(r, a, nearest);
  mpfr_div_2ui(r, r, 1, nearest);
}

// The y with erfc(y) = p, 0 < p < 2, by Newton's method in working precision on log erfc, which is nearly quadratic:
// y' = y - log(erfc(y) / p) / (log erfc)'(y).
void InverseErfc(mpfr_ptr y, mpfr_srcptr p) {
  if (mpfr_cmp_ui(p, 1) > 0) {  // erfc(-y) = 2 - erfc(y), exact here
    Number q(precision + 1100);
    mpfr_ui_sub(q, 2, p, nearest);
    InverseErfc(y, q);
    mpfr_neg(y, y, nearest);
    return;
  }
  if (mpfr_cmp_ui(p, 1) == 0) {
    mpfr_set_zero(y, 1);
    return;
  }
  const mpfr_prec_t bits = precision + 40;
  Number v(bits), e(bits), g(bits), d(bits);
  mpfr_log(v, p, nearest);
  const double guess = std::sqrt(-mpfr_get_d(v, nearest));
  mpfr_set_d(v, guess > 1 ? guess - 0.3 : 0.88 * (1 - mpfr_get_d(p, nearest)), nearest);
  for (int i = 0; i < 60; ++i) {
    mpfr_erfc(e, v, nearest);
    mpfr_sqr(g, v, nearest);
    mpfr_neg(g, g, nearest);
    mpfr_exp(g, g, nearest);  // the density, less its factor 2 / sqrt pi
    mpfr_const_pi(d, nearest);
    mpfr_sqrt(d, d, nearest);
    mpfr_div(g, g, d, nearest);
    mpfr_mul_2ui(g, g, 1, nearest);
    mpfr_div(d, e, p, nearest);
    mpfr_log(d, d, nearest);
    mpfr_mul(d, d, e, nearest);
    mpfr_div(d, d, g, nearest);
    mpfr_add(v, v, d, nearest);
    if (mpfr_zero_p(d) || (!mpfr_zero_p(v) && mpfr_get_exp(d) < mpfr_get_exp(v) - precision)) break;
  }
  mpfr_set(y, v, nearest);
}
void ErfcInv(mpfr_ptr r, mpfr_srcptr x) {
  if (mpfr_sgn(x) < 0 || mpfr_cmp_ui(x, 2) > 0 || mpfr_nan_p(x)) mpfr_set_nan(r);
  else if (mpfr_zero_p(x)) mpfr_set_inf(r, 1);
  else if (mpfr_cmp_ui(x, 2) == 0) mpfr_set_inf(r, -1);
  else InverseErfc(r, x);
}
// erfinv(x) = erfcinv(1 - x); 1 - x is formed exactly for any double.
void ErfInv(mpfr_ptr r, mpfr_srcptr x) {
  Number q(precision + 1100);
  mpfr_ui_sub(q, 1, x, MPFR_RNDN);
  if (mpfr_zero_p(x)) {
    mpfr_set(r, x, nearest);
  } else if (mpfr_regular_p(x) != 0 &&
             mpfr_get_exp(x) < -60) {  // sqrt(pi)/2 x (1 + pi/12 x^2), far beyond the precision compared
    mpfr_const_pi(r, nearest);
    mpfr_sqrt(r, r, nearest);
    mpfr_mul(r, r, x, nearest);
    mpfr_div_2ui(r, r, 1, nearest);
  } else {
    ErfcInv(r, q);
  }
}
// The quantile of the normal distribution: -sqrt 2 erfcinv(2 p).
void CdfNormInv(mpfr_ptr r, mpfr_srcptr x) {
  Number q(precision), root(precision, 2);
  mpfr_mul_2ui(q, x, 1, nearest);
  ErfcInv(r, q);
  mpfr_sqrt(root, root, nearest);
  mpfr_mul(r, r, root, nearest);
  mpfr_neg(r, r, nearest);
  if (mpfr_zero_p(r)) mpfr_set_zero(r, 1);
}

// Hyperbolic functions of x + iy by those of the parts: products and sums of one sign, which lose nothing, where MPC's own take
// hours for parts far outside the ordinary range.
struct HyperbolicParts {
  explicit HyperbolicParts(mpc_srcptr z) {
    // Beyond this everything but a zero has overflowed; it keeps MPFR's own exponents finite.
    Number x(precision, std::clamp(mpfr_get_d(mpc_realref(z), nearest), -1e8, 1e8));
    mpfr_sinh_cosh(sinh, cosh, x, nearest);
    mpfr_sin_cos(sine, cosine, mpc_imagref(z), nearest);
  }
  Number sinh{precision}, cosh{precision}, sine{precision}, cosine{precision};
};
void Cosh(mpc_ptr r, mpc_srcptr z) {
  const HyperbolicParts p(z);
  mpfr_mul(mpc_realref(r), p.cosh, p.cosine, nearest);
  mpfr_mul(mpc_imagref(r), p.sinh, p.sine, nearest);
}
void Sinh(mpc_ptr r, mpc_srcptr z) {
  const HyperbolicParts p(z);
  mpfr_mul(mpc_realref(r), p.sinh, p.cosine, nearest);
  mpfr_mul(mpc_imagref(r), p.cosh, p.sine, nearest);
}
// (sinh x cosh x + i sin y cos y) / (cos^2 y + sinh^2 x); far out its limit is 1 + 4 i e^(-2|x|) sin y cos y, up to signs.
void Tanh(mpc_ptr r, mpc_srcptr z) {
  mpfr_ptr re = mpc_realref(r), im = mpc_imagref(r);
  if (mpfr_cmp_si(mpc_realref(z), 5000) > 0 || mpfr_cmp_si(mpc_realref(z), -5000) < 0) {
    Number e(precision), s(precision);
    mpfr_abs(e, mpc_realref(z), nearest);
    mpfr_mul_si(e, e, -2, nearest);
    mpfr_exp(e, e, nearest);
    mpfr_mul_2ui(s, mpc_imagref(z), 1, nearest);
    mpfr_sin(s, s, nearest);
    mpfr_mul(im, e, s, nearest);
    mpfr_mul_2ui(im, im, 1, nearest);
    mpfr_set_si(re, mpfr_sgn(mpc_realref(z)), nearest);
    return;
  }
  const HyperbolicParts p(z);
  Number denominator(precision), square(precision);
  mpfr_sqr(denominator, p.cosine, nearest);
  mpfr_sqr(square, p.sinh, nearest);
  mpfr_add(denominator, denominator, square, nearest);
  mpfr_mul(re, p.sinh, p.cosh, nearest);
  mpfr_div(re, re, denominator, nearest);
  mpfr_mul(im, p.sine, p.cosine, nearest);
  mpfr_div(im, im, denominator, nearest);
}
// The circular functions: f(i z), and f(i z) / i of an odd one.
template <auto hyperbolic> void Even(mpc_ptr r, mpc_srcptr z) {
  ComplexNumber rotated;
  mpc_mul_i(rotated, z, 1, MPC_RNDNN);
  hyperbolic(r, rotated);
}
template <auto hyperbolic> void Odd(mpc_ptr r, mpc_srcptr z) {
  Even<hyperbolic>(r, z);
  mpc_mul_i(r, r, -1, MPC_RNDNN);
}

void MulConjugate(mpc_ptr r, mpc_srcptr z, mpc_srcptr w) {
  ComplexNumber conjugate;
  mpc_conj(conjugate, w, MPC_RNDNN);
  mpc_mul(r, z, conjugate, MPC_RNDNN);
}

void SinCos(mpfr_ptr sine, mpfr_ptr cosine, const Point& p) { mpfr_sin_cos(sine, cosine, Number(precision, p.re1), nearest); }
void Cis(mpfr_ptr re, mpfr_ptr im, const Point& p) { mpfr_sin_cos(im, re, Number(precision, p.re1), nearest); }
void Modf(mpfr_ptr whole, mpfr_ptr fraction, const Point& p) { mpfr_modf(whole, fraction, Number(precision, p.re1), nearest); }

// By the function's name; that of a complex function has a c behind it.
const std::map<std::string_view, Reference>& AllReferences() {
  static const std::map<std::string_view, Reference> references = {
#include "references.inc"
  };
  return references;
}

}  // namespace

Reference FindReference(const support::Export& entry) {
  const auto found = AllReferences().find(std::string(entry.function) + (entry.is_complex() ? "c" : ""));
  return found == AllReferences().end() ? nullptr : found->second;
}

}  // namespace lum::accuracy
