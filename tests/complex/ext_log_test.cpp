// The logarithms in extended precision.
#include <cmath>

#include "complex/extended.h"

namespace lum::test {
namespace {

TEST(ExtLog, Accuracy) {
  Numbers x = OfExponents(1, 0x7ffe, 2, true) + OfExponents(0x3ff8, 0x4005, 20000, true) + Uniform(0.95L, 1.08L, 50000);
  for (int e = -16445; e <= -16382; ++e) x = x + Numbers{std::ldexp(1.0L, e), std::ldexp(1.37L, e)};
  for (int e = 1; e <= 64; ++e)  // towards 1
    for (const Extended r : OfExponents(extended_bias - e, extended_bias - e, 40)) x.push_back(1 + r);
  // The borders of the two zones next to 1, and both sides of every step between two rows.
  for (const Extended border : {1.0L, 1 - 0x1p-16L, 1 + 0x1p-15L, 0.96875L, 1.0625L, 1.0625L + 0x1p-15L, 1.0625L + 0x1p-16L})
    x = x + Around(border, 100);
  for (int j = 0; j < 256; ++j) x = x + Around(1 + j / 256.0L, 2) + Around(0.5L + j / 512.0L, 2);
  ExpectAccurate("ExtLog", ExtLog, mpfr_log, x);
}

TEST(ExtLog, SpecialValues) {
  const Extended rows[][2] = {{0.0L, -infinity},
                              {-0.0L, -infinity},
                              {infinity, infinity},
                              {-infinity, not_a_number},
                              {-1, not_a_number},
                              {-ExtendedLimits::denorm_min(), not_a_number},
                              {not_a_number, not_a_number},
                              {SignallingNaN(), not_a_number},
                              {1, 0.0L}};
  for (const auto& [x, expected] : rows) {
    Extended result = 5;
    ExtLog(result, x);
    EXPECT_TRUE(Same(result, expected)) << x;
  }
}

TEST(ExtLog1p, Accuracy) {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3fee, 60) + OfExponents(0x3fef, 0x3ffd, 5000) +
              OfExponents(0x3ffe, 0x3ffe, 20000) + OfExponents(0x3fff, 0x404c, 600, true) +
              OfExponents(0x404d, 0x7ffe, 1, true);
  for (const int rung : {0x3fb4, 0x3fd9, 0x3fe6, 0x3ff1, 0x3ffb, 0x3ffe}) x = x + AroundExponent(rung);
  for (const Extended border : {1.0L, 0x1p24L, 0x1p31L, 0x1p32L, 0x1p33L, 0x1p63L, 0x1p64L, 0x1p73L, 0x1p74L, 0x1p75L})
    x = x + Around(border, 100);
  for (int e = 2; e <= 62; ++e)  // towards -1
    for (const Extended r : OfExponents(extended_bias - e, extended_bias - e, 40, true)) x.push_back(r - 1);
  ExpectAccurate("ExtLog1p", ExtLog1p, mpfr_log1p, x);
}

TEST(ExtLog1p, SpecialValues) {
  const Extended tiny = ExtendedLimits::denorm_min();
  const Extended rows[][2] = {{0.0L, 0.0L},
                              {-0.0L, -0.0L},
                              {tiny, tiny},
                              {-tiny, -tiny},
                              {infinity, infinity},
                              {-infinity, not_a_number},
                              {-1, -infinity},
                              {std::nextafter(-1.0L, -2.0L), not_a_number},
                              {ExtendedLimits::lowest(), not_a_number},
                              {not_a_number, not_a_number},
                              {SignallingNaN(), not_a_number}};
  for (const auto& [x, expected] : rows) {
    Extended result = 5;
    ExtLog1p(result, x);
    EXPECT_TRUE(Same(result, expected)) << x;
  }
}

}  // namespace
}  // namespace lum::test
