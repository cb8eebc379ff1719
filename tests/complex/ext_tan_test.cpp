// The tangent in extended precision.
#include "complex/circular_arguments.h"

namespace lum::test {
namespace {

TEST(ExtTan, Accuracy) {
  Numbers x = CircularArguments() + OfExponents(0x3ff5, 0x4000, 10000);
  // Both sides of every step between two rows, in all octants.
  for (int k = 1; k <= 128; ++k) x = x + Around(k * 0.04908738521234051935L, 5);
  ExpectAccurate("ExtTan", ExtTan, mpfr_tan, x);
}

TEST(ExtTan, SpecialValues) {
  const Extended tiny = ExtendedLimits::denorm_min();
  const Extended rows[][2] = {{0.0L, 0.0L},
                              {-0.0L, -0.0L},
                              {tiny, tiny},
                              {-tiny, -tiny},
                              {infinity, not_a_number},
                              {-infinity, not_a_number},
                              {not_a_number, not_a_number},
                              {SignallingNaN(), not_a_number}};
  for (const auto& [x, expected] : rows) {
    Extended result = 5;
    ExtTan(result, x);
    EXPECT_TRUE(Same(result, expected)) << x;
  }
}

}  // namespace
}  // namespace lum::test
