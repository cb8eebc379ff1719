// The scalar logarithms over their whole domain, of which the array functions reach little.
#include "explog/logarithm_routine.h"

#include "support/routine_accuracy.h"

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

TEST(LogarithmRoutine, Accuracy) {
  EXPECT_LT(LargestErrorOf<Lum32f>(explog::LnRoutine<Lum32f>, mpfr_log, Positive<Lum32f>()), 0.51);
  EXPECT_LT(LargestErrorOf<Lum64f>(explog::LnRoutine<Lum64f>, mpfr_log, Positive<Lum64f>()), 1);
  EXPECT_LT(LargestErrorOf<Lum32f>(explog::Log10Routine<Lum32f>, mpfr_log10, Positive<Lum32f>()), 1);
  EXPECT_LT(LargestErrorOf<Lum64f>(explog::Log10Routine<Lum64f>, mpfr_log10, Positive<Lum64f>()), 1);
}

}  // namespace
}  // namespace lum::test
