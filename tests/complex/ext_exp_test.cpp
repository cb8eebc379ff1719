// The exponential in extended precision.
#include "complex/extended.h"

namespace lum::test {
namespace {

TEST(ExtExp, Accuracy) {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3ff3, 60) + OfExponents(0x3ff4, 0x400c, 3000);
  for (const int rung : {0x3fbc, 0x3fe5, 0x3fed, 0x3ff4, 0x3ffa, 0x4005, 0x400c, 0x400d}) x = x + AroundExponent(rung);
  // Around the largest and the least normal result and where denormals end.
  for (const Extended edge : {11356.5234062941439488L, -11355.1371119330240L, -11399.4985314888605584L, -11400.1916786694205L})
    x = x + Around(edge, 60) + Uniform(edge - 1, edge + 1, 500);
  ExpectAccurate("ExtExp", ExtExp, mpfr_exp, x);
}

TEST(ExtExp, DenormalResults) { ExpectAccurate("ExtExp", ExtExp, mpfr_exp, Uniform(-11400, -11355, 20000)); }

TEST(ExtExp, SpecialValues) {
  const Extended huge = ExtendedLimits::max();
  const Extended rows[][2] = {{0.0L, 1},
                              {-0.0L, 1},
                              {infinity, infinity},
                              {-infinity, 0.0L},
                              {not_a_number, not_a_number},
                              {huge, infinity},
                              {-huge, 0.0L},
                              {16384, infinity},
                              {-16384, 0.0L},
                              {12000, infinity},
                              {-12000, 0.0L},
                              {0x1p-70L, 1},
                              {SignallingNaN(), not_a_number}};
  for (const auto& [x, expected] : rows) {
    Extended result = 5;
    ExtExp(result, x);
    EXPECT_TRUE(Same(result, expected)) << x;
  }
}

}  // namespace
}  // namespace lum::test
