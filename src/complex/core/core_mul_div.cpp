// Products and quotients of complex numbers. Products of binary64 numbers are exact as pairs of Extended numbers,
// whose range no product of two or quotient of such products leaves.
#include "complex/core/extended_pair.h"
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

bool BothFinite(const ComplexDouble& z) { return IsFinite(z.re) && IsFinite(z.im); }
bool AnyInfinite(const ComplexDouble& z) { return IsInfinite(z.re) || IsInfinite(z.im); }
bool BothZero(const ComplexDouble& z) { return IsZero(z.re) && IsZero(z.im); }

// a c + b d to about twice the digits of Extended.
ExtendedPair SumOfProducts(Extended a, Extended c, Extended b, Extended d) {
  const ExtendedPair first = two_product(a, c), second = two_product(b, d);
  const ExtendedPair heads = two_sum(first.head, second.head);
  return fast_two_sum(heads.head, heads.tail + (first.tail + second.tail));
}

// An exact zero has the sign that a plain sum gives it, whose products stay within the range of Extended.
Lum64f RoundedSum(Extended a, Extended c, Extended b, Extended d) {
  const ExtendedPair sum = SumOfProducts(a, c, b, d);
  return static_cast<Lum64f>(sum.head == 0 ? a * c + b * d : rounded(sum));
}

// a + b; of two NaNs the first, however the compiler orders the operands of a sum.
Lum64f NonFiniteSum(Lum64f a, Lum64f b) {
  if (IsNan(a)) return a;
  return IsNan(b) ? b : Sum(a, b);
}

// 1 or 0 for an infinity or a finite number, with the sign.
Lum64f Boxed(Lum64f x) { return WithSignOf(x, IsInfinite(x) ? 1.0 : 0.0); }

// A zero or an infinity in the direction of z conj(w).
void DirectedQuotient(ComplexDouble& result, Lum64f size, const ComplexDouble& z, const ComplexDouble& w) {
  result = {Product(size, Sum(z.re * w.re, z.im * w.im)), Product(size, Difference(z.im * w.re, z.re * w.im))};
}

}  // namespace

void CoreMul(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w) {
  if (!BothFinite(z) || !BothFinite(w)) {
    result = {NonFiniteSum(Product(z.re, w.re), Negated(Product(z.im, w.im))),
              NonFiniteSum(Product(z.re, w.im), Product(z.im, w.re))};
    return;
  }
  Finish(result, RoundedSum(z.re, w.re, Negated(z.im), w.im), RoundedSum(z.re, w.im, z.im, w.re));
}

void CoreMulByConj(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w) {
  CoreMul(result, z, {w.re, Negated(w.im)});
}

// By zero: infinities with the signs of z, or NaN. Beside an infinity the finite number counts by its direction alone.
void CoreDiv(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w) {
  if (BothFinite(z) && BothZero(w)) {
    result = {Product(z.re, infinity), Product(z.im, infinity)};
  } else if (BothFinite(z) && AnyInfinite(w)) {
    DirectedQuotient(result, 0.0, z, {Boxed(w.re), Boxed(w.im)});
  } else if (AnyInfinite(z) && BothFinite(w)) {
    DirectedQuotient(result, infinity, {Boxed(z.re), Boxed(z.im)}, w);
  } else if (!BothFinite(z) || !BothFinite(w)) {
    const Lum64f not_a_number = Product(NonFiniteSum(Product(z.re, w.re), Product(z.im, w.im)), 0.0);
    result = {not_a_number - not_a_number, not_a_number - not_a_number};
  } else {
    const ExtendedPair square = SumOfProducts(w.re, w.re, w.im, w.im);
    const ExtendedPair re = divide(SumOfProducts(z.re, w.re, z.im, w.im), square);
    const ExtendedPair im = divide(SumOfProducts(z.im, w.re, Negated(z.re), w.im), square);
    Finish(result, static_cast<Lum64f>(rounded(re)), static_cast<Lum64f>(rounded(im)));
  }
}

}  // namespace lum::inline LUM_LAYER::complex
