// Accuracy of exports against a reference in multiple-precision arithmetic, over a sample of arguments.
//
//   ExpectAccuracy("Exp_64f", mpfr_exp, Between(-700, 700));                  all tags, each within its own bound
//   ExpectAccuracy("Pow_32f", mpfr_pow, Between(0, 10), Between(-20, 20));    two inputs
//   ExpectAccuracy("Powx_32f", mpfr_pow, Between(0, 10), {1.5, -0.3});        an input with each of several parameters
//
// An error is in units of the last place of the exact result, a unit never being less than the smallest denormal. A tag of t
// bits at a precision of p bits allows 2^(p - t) / 2 units, the tags A24 and A53 below one unit (Tanh 64f A53 up to 1.01).
#pragma once

#include <mpfr.h>

#include <functional>
#include <string_view>
#include <vector>

#include "accuracy/reference.h"
#include "support/subjects.h"

namespace lum::test {

// Arguments: numbers, rounded to the type of the function.
using Arguments1 = std::vector<double>;
// Uniformly distributed, with both ends.
Arguments1 Between(double low, double high, size_t count = 4000);
// Magnitudes whose logarithm is uniformly distributed, 0 < low < high; negative ends give negative numbers.
Arguments1 BetweenMagnitudes(double low, double high, size_t count = 4000);
// The numbers that lie at most `steps` representable ones from x, in binary32 or binary64.
Arguments1 Around(double x, bool is_32bit, int steps = 50);
Arguments1 operator+(Arguments1 a, const Arguments1& b);
// The numbers and their negatives.
Arguments1 WithNegatives(Arguments1 x);

// result = f(x), or f(x, y), rounded in the precision of result, which is far above that of the types.
using Reference = std::function<void(mpfr_ptr result, mpfr_srcptr x)>;
using Reference2 = std::function<void(mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr y)>;

// Checks the exports that the name stands for on every library. output: 0 the first, 1 the second of two.
void ExpectAccuracy(std::string_view name, const Reference& reference, const Arguments1& x, int output = 0);
void ExpectAccuracy(std::string_view name, const Reference2& reference, const Arguments1& x, const Arguments1& y);

// Functions of the reference library as they stand.
using MpfrFunction = int(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using MpfrFunction2 = int(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);
inline void ExpectAccuracy(std::string_view name, MpfrFunction* function, const Arguments1& x, int output = 0) {
  ExpectAccuracy(name, Reference([=](mpfr_ptr r, mpfr_srcptr a) { function(r, a, MPFR_RNDN); }), x, output);
}
inline void ExpectAccuracy(std::string_view name, MpfrFunction2* function, const Arguments1& x, const Arguments1& y) {
  ExpectAccuracy(name, Reference2([=](mpfr_ptr r, mpfr_srcptr a, mpfr_srcptr b) { function(r, a, b, MPFR_RNDN); }), x, y);
}

// Complex functions, against their exact values, at points that the type holds exactly. The bound is on the error of each part,
// or on that of the whole number relative to its modulus; without a figure it is the one of the export's tag.
struct ComplexBound {
  enum Of { parts, norm } of;
  double ulp = 0;
};
void ExpectComplexAccuracy(std::string_view name, const std::vector<accuracy::Point>& points, const ComplexBound& bound);

}  // namespace lum::test
