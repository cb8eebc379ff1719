// The scalar logarithms over their whole domain, of which the array functions reach little.
#include "explog/logarithm_routine.h"

#include <algorithm>

#include "accuracy/measure.h"
#include "support/accuracy.h"

namespace lum::test {
namespace {

template <class T> Arguments1 Positive() {
  constexpr bool is_32bit = sizeof(T) == 4;
  Arguments1 x = is_32bit ? BetweenMagnitudes(1.5e-45, 3.4e38) : BetweenMagnitudes(5e-324, 1.7e308);
  x = x + Between(0.9, 1.1) + Between(0.5, 2) + Around(1, is_32bit);
  for (double near_one : {0.009765625, 0.005859375}) x = x + Around(1 - near_one, is_32bit) + Around(1 + near_one, is_32bit);
  for (int i = 0; i <= 64; ++i) x = x + Around(1 + (i + 0.5) / 64, is_32bit, 5);
  return x;
}

template <class T> double LargestError(LumStatus (*routine)(T, T&), MpfrFunction* function) {
  double largest = 0;
  mpfr_t exact, argument;
  mpfr_inits2(200, exact, argument, nullptr);
  for (double a : Positive<T>()) {
    T result = 0;
    EXPECT_EQ(routine(static_cast<T>(a), result), lumStsOk) << a;
    mpfr_set_d(argument, static_cast<T>(a), MPFR_RNDN);
    function(exact, argument, MPFR_RNDN);
    largest = std::max(largest, accuracy::UlpError(result, exact, sizeof(T) == 4));
  }
  mpfr_clears(exact, argument, nullptr);
  return largest;
}

TEST(LogarithmRoutine, Accuracy) {
  EXPECT_LT(LargestError<Lum32f>(LnRoutine<Lum32f>, mpfr_log), 0.51);
  EXPECT_LT(LargestError<Lum64f>(LnRoutine<Lum64f>, mpfr_log), 1);
  EXPECT_LT(LargestError<Lum32f>(Log10Routine<Lum32f>, mpfr_log10), 1);
  EXPECT_LT(LargestError<Lum64f>(Log10Routine<Lum64f>, mpfr_log10), 1);
}

}  // namespace
}  // namespace lum::test
