// The scalar hyperbolic functions over their whole domain, of which the array functions reach little.
#include "hyperbolic/hyperbolic_routine.h"

#include <algorithm>

#include "accuracy/measure.h"
#include "support/accuracy.h"

namespace lum::test {
namespace {

template <class T> Arguments1 AllMagnitudes() {
  constexpr bool is_32bit = sizeof(T) == 4;
  const double end = is_32bit ? 89.4159 : 710.4758;
  Arguments1 x = BetweenMagnitudes(is_32bit ? 1.5e-45 : 5e-324, 1) + Between(0, end, 20000) + Between(0, 25, 20000);
  x = x + BetweenMagnitudes(0.001, 30, 20000);
  for (double border : {0x1p-53, 0.02720470510300388, 21.487562597358306, 710.4758600739, 0.005415212348111708}) {
    if (border < end) x = x + Around(border, is_32bit);
  }
  for (size_t i = 0, n = x.size(); i < n; ++i) x.push_back(-x[i]);
  return x;
}

template <class T> double LargestError(LumStatus (*routine)(T, T&), MpfrFunction* function) {
  double largest = 0;
  mpfr_t exact, argument;
  mpfr_inits2(200, exact, argument, nullptr);
  for (double a : AllMagnitudes<T>()) {
    T result = 0;
    EXPECT_EQ(routine(static_cast<T>(a), result), lumStsOk) << a;
    mpfr_set_d(argument, static_cast<T>(a), MPFR_RNDN);
    function(exact, argument, MPFR_RNDN);
    largest = std::max(largest, accuracy::UlpError(result, exact, sizeof(T) == 4));
  }
  mpfr_clears(exact, argument, nullptr);
  return largest;
}

TEST(HyperbolicRoutine, Accuracy) {
  EXPECT_LT(LargestError<Lum32f>(SinhRoutine<Lum32f>, mpfr_sinh), 0.51);
  EXPECT_LT(LargestError<Lum32f>(CoshRoutine<Lum32f>, mpfr_cosh), 0.51);
  EXPECT_LT(LargestError<Lum64f>(SinhRoutine<Lum64f>, mpfr_sinh), 1);
  EXPECT_LT(LargestError<Lum64f>(CoshRoutine<Lum64f>, mpfr_cosh), 1);
}

}  // namespace
}  // namespace lum::test
