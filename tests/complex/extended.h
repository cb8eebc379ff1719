// Checks of the extended-precision functions against multiple-precision arithmetic: arguments by exponent, the largest error of
// a sample, numbers compared with their sign. An error is in units of the last of 64 significand bits of the exact result, a
// unit never being less than 2^-16445.
#pragma once

#include <gtest/gtest.h>
#include <mpfr.h>

#include <functional>
#include <vector>

#include "complex/core/extended_fields.h"

namespace lum::test {

using namespace complex;

using Numbers = std::vector<Extended>;

// The number with that exponent field and those leading significand bits.
Extended FromFields(int exponent, uint64_t significand);

// Random significands under each exponent field of a range, count of each, both signs unless told otherwise; the ends of the
// range with all significand bits zero and one besides.
Numbers OfExponents(int first, int last, int count, bool positive_only = false);
// Uniformly distributed.
Numbers Uniform(Extended low, Extended high, int count);
// The numbers at most `steps` representable ones from x.
Numbers Around(Extended x, int steps = 20);
// Around the first number of an exponent field, on both sides of zero.
Numbers AroundExponent(int exponent);
Numbers operator+(Numbers a, const Numbers& b);

// Whether both are one number with one sign, or both NaN.
testing::AssertionResult Same(Extended actual, Extended expected);

inline Numbers Specials() {
  return {0.0L,
          -0.0L,
          ExtendedLimits::infinity(),
          -ExtendedLimits::infinity(),
          ExtendedLimits::quiet_NaN(),
          ExtendedLimits::denorm_min(),
          -ExtendedLimits::denorm_min(),
          ExtendedLimits::min(),
          -ExtendedLimits::min(),
          ExtendedLimits::max(),
          ExtendedLimits::lowest()};
}

constexpr Extended infinity = ExtendedLimits::infinity();
constexpr Extended not_a_number = ExtendedLimits::quiet_NaN();

// A signalling NaN, made where no floating-point load can quiet it.
Extended SignallingNaN();

using MpfrFunction = int(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using MpfrFunction2 = int(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);
using Function = void(Extended&, const Extended&);
using Function2 = void(Extended&, const Extended&, const Extended&);

// Infinite when just one of result and exact value is a NaN. Infinity stands for 2^16384.
double Error(Extended result, mpfr_srcptr exact);

// Expects every error below one unit; the largest becomes a property of the test under that name.
void ExpectAccurate(const char* name, Function* function, MpfrFunction* reference, const Numbers& x);
void ExpectAccurate(const char* name, Function2* function, MpfrFunction2* reference, const Numbers& x, const Numbers& y);

}  // namespace lum::test
