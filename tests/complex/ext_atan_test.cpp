// The arctangents in extended precision.
#include <cmath>

#include "complex/extended.h"

namespace lum::test {
namespace {

TEST(ExtAtan, Accuracy) {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3ff7, 60) + OfExponents(0x3ff8, 0x400f, 4000) +
              OfExponents(0x4010, 0x4050, 60) + OfExponents(0x4051, 0x7ffe, 1);
  for (const int rung : {0x3fb4, 0x3fed, 0x3ff3, 0x3ff8, 0x3fff, 0x400a, 0x400e, 0x4019, 0x4040}) x = x + AroundExponent(rung);
  for (int k = 1; k <= 128; ++k)  // both sides of every step between two rows
    x = x + Around((k - 0.5L) / 128, 2) + Around(128 / (k - 0.5L), 2);
  ExpectAccurate("ExtAtan", ExtAtan, mpfr_atan, x);
}

TEST(ExtAtan, SpecialValues) {
  const Extended tiny = ExtendedLimits::denorm_min(), right_angle = 1.57079632679489661923L;
  const Extended rows[][2] = {{0.0L, 0.0L},
                              {-0.0L, -0.0L},
                              {tiny, tiny},
                              {-tiny, -tiny},
                              {infinity, right_angle},
                              {-infinity, -right_angle},
                              {ExtendedLimits::max(), right_angle},
                              {1, right_angle / 2},
                              {not_a_number, not_a_number},
                              {SignallingNaN(), not_a_number}};
  for (const auto& [x, expected] : rows) {
    Extended result = 5;
    ExtAtan(result, x);
    EXPECT_TRUE(Same(result, expected)) << x;
  }
}

// The quotients of x by y have every exponent.
TEST(ExtAtan2, AccuracyByQuotient) {
  const Numbers y = OfExponents(0x3ff8, 0x4006, 3000) + OfExponents(0x3fa0, 0x4060, 100), x = Uniform(-2, 2, 50021);
  ExpectAccurate("ExtAtan2", ExtAtan2, mpfr_atan2, y, x);
  for (const int difference : {-77, -76, -75, -74, -14, -13, -12, -11, 11, 12, 13, 14, 74, 75, 76, 77}) {
    const Numbers shifted = OfExponents(0x3fff + difference, 0x3fff + difference, 200);
    ExpectAccurate("ExtAtan2Difference", ExtAtan2, mpfr_atan2, shifted, OfExponents(0x3fff, 0x3fff, 197));
  }
}

TEST(ExtAtan2, AccuracyAtTheEndsOfTheRange) {
  const Numbers all = OfExponents(1, 0x7ffe, 1);
  ExpectAccurate("ExtAtan2All", ExtAtan2, mpfr_atan2, all, OfExponents(0x0001, 0x7ffd, 1) + Numbers{1, -1, 3});
  // Denormals, both sides of the steps at which the operands are scaled, the largest numbers.
  for (const int exponent : {1, 20, 60, 90, 0x1fff, 0x2000, 0x2001, 0x5ffe, 0x5fff, 0x6000, 0x7ffe}) {
    const Numbers x = OfExponents(exponent, exponent, 400);
    for (const int other : {exponent - 40, exponent - 3, exponent, exponent + 3, exponent + 70}) {
      if (other < 1 || other > 0x7ffe) continue;
      ExpectAccurate("ExtAtan2Ends", ExtAtan2, mpfr_atan2, OfExponents(other, other, 393), x);
    }
  }
  Numbers denormal;
  for (const Extended x : OfExponents(0x3fff, 0x403d, 20)) denormal.push_back(x * ExtendedLimits::denorm_min());
  ExpectAccurate("ExtAtan2Denormal", ExtAtan2, mpfr_atan2, denormal, OfExponents(1, 90, 7));
  ExpectAccurate("ExtAtan2Denormal2", ExtAtan2, mpfr_atan2, OfExponents(1, 90, 7), denormal);
  ExpectAccurate("ExtAtan2Denormals", ExtAtan2, mpfr_atan2, denormal, Numbers(denormal.rbegin(), denormal.rend() - 3));
}

TEST(ExtAtan2, SpecialValues) {
  const Extended pi = 3.14159265358979323846L, three_quarters = 2.35619449019234492885L;
  const Extended rows[][3] = {{0.0L, 0.0L, 0.0L},
                              {0.0L, -0.0L, pi},
                              {0.0L, 1, 0.0L},
                              {0.0L, -1, pi},
                              {0.0L, infinity, 0.0L},
                              {0.0L, -infinity, pi},
                              {1, 0.0L, pi / 2},
                              {1, -0.0L, pi / 2},
                              {1, infinity, 0.0L},
                              {1, -infinity, pi},
                              {1, 1, pi / 4},
                              {1, -1, three_quarters},
                              {infinity, 0.0L, pi / 2},
                              {infinity, -0.0L, pi / 2},
                              {infinity, 1, pi / 2},
                              {infinity, -1, pi / 2},
                              {infinity, infinity, pi / 4},
                              {infinity, -infinity, three_quarters},
                              {ExtendedLimits::max(), ExtendedLimits::denorm_min(), pi / 2},
                              {ExtendedLimits::denorm_min(), ExtendedLimits::lowest(), pi},
                              {ExtendedLimits::denorm_min(), ExtendedLimits::max(), 0.0L},
                              {ExtendedLimits::denorm_min(), 1, ExtendedLimits::denorm_min()}};
  for (const auto& [y, x, expected] : rows) {
    Extended result = 5;
    ExtAtan2(result, y, x);
    EXPECT_TRUE(Same(result, expected)) << y << " " << x;
    ExtAtan2(result, -y, x);
    EXPECT_TRUE(Same(result, -expected)) << -y << " " << x;
  }
  for (const Extended x : Specials()) {
    for (const Extended nan : {not_a_number, SignallingNaN()}) {
      Extended result = 5;
      ExtAtan2(result, nan, x);
      EXPECT_TRUE(Same(result, not_a_number)) << x;
      ExtAtan2(result, x, nan);
      EXPECT_TRUE(Same(result, not_a_number)) << x;
    }
  }
}

}  // namespace
}  // namespace lum::test
