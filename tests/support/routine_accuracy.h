// Accuracy of scalar routines that the array functions call, compared directly.
#pragma once

#include <algorithm>

#include "accuracy/measure.h"
#include "support/accuracy.h"

namespace lum::test {

// The largest error in ulp over the arguments, none of which is to be reported.
template <class T> double LargestErrorOf(LumStatus (*routine)(T, T&), MpfrFunction* function, const Arguments1& arguments) {
  double largest = 0;
  mpfr_t exact, argument;
  mpfr_inits2(200, exact, argument, nullptr);
  for (double a : arguments) {
    T result = 0;
    EXPECT_EQ(routine(static_cast<T>(a), result), lumStsOk) << a;
    mpfr_set_d(argument, static_cast<T>(a), MPFR_RNDN);
    function(exact, argument, MPFR_RNDN);
    largest = std::max(largest, accuracy::UlpError(result, exact, sizeof(T) == 4));
  }
  mpfr_clears(exact, argument, nullptr);
  return largest;
}

}  // namespace lum::test
