// The scalar hyperbolic functions over their whole domain, of which the array functions reach little.
#include "hyperbolic/hyperbolic_routine.h"

#include "support/routine_accuracy.h"

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
  return WithNegatives(x);
}

TEST(HyperbolicRoutine, Accuracy) {
  EXPECT_LT(LargestErrorOf<Lum32f>(hyperbolic::SinhRoutine<Lum32f>, mpfr_sinh, AllMagnitudes<Lum32f>()), 0.51);
  EXPECT_LT(LargestErrorOf<Lum32f>(hyperbolic::CoshRoutine<Lum32f>, mpfr_cosh, AllMagnitudes<Lum32f>()), 0.51);
  EXPECT_LT(LargestErrorOf<Lum64f>(hyperbolic::SinhRoutine<Lum64f>, mpfr_sinh, AllMagnitudes<Lum64f>()), 1);
  EXPECT_LT(LargestErrorOf<Lum64f>(hyperbolic::CoshRoutine<Lum64f>, mpfr_cosh, AllMagnitudes<Lum64f>()), 1);
}

}  // namespace
}  // namespace lum::test
