// Arcsine and arccosine in extended precision.
#include <cmath>

#include "complex/extended.h"

namespace lum::test {
namespace {

TEST(ExtArc, Accuracy) {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3ff7, 60) + OfExponents(0x3ff8, 0x3ffd, 10000) +
              OfExponents(0x3ffe, 0x3ffe, 50000);
  for (const int rung : {0x3fb4, 0x3fed, 0x3ff3, 0x3ff8, 0x3ffc, 0x3ffe}) x = x + AroundExponent(rung);
  for (int e = 1; e <= 64; ++e)  // towards 1 and -1
    for (const Extended r : OfExponents(extended_bias - e - 1, extended_bias - e - 1, 40, true)) x = x + Numbers{1 - r, r - 1};
  ExpectAccurate("ExtAsin", ExtAsin, mpfr_asin, x);
  ExpectAccurate("ExtAcos", ExtAcos, mpfr_acos, x);
}

TEST(ExtArc, SpecialValues) {
  struct Row {
    Extended x, asin, acos;
  };
  const Extended tiny = ExtendedLimits::denorm_min(), pi = 3.14159265358979323846L;
  for (const Row& row : {Row{0.0L, 0.0L, pi / 2},
                         {-0.0L, -0.0L, pi / 2},
                         {tiny, tiny, pi / 2},
                         {-tiny, -tiny, pi / 2},
                         {1, pi / 2, 0.0L},
                         {-1, -pi / 2, pi},
                         {std::nextafter(1.0L, 2.0L), not_a_number, not_a_number},
                         {std::nextafter(-1.0L, -2.0L), not_a_number, not_a_number},
                         {2, not_a_number, not_a_number},
                         {infinity, not_a_number, not_a_number},
                         {-infinity, not_a_number, not_a_number},
                         {not_a_number, not_a_number, not_a_number},
                         {SignallingNaN(), not_a_number, not_a_number}}) {
    Extended asin = 5, acos = 5;
    ExtAsin(asin, row.x);
    ExtAcos(acos, row.x);
    EXPECT_TRUE(Same(asin, row.asin)) << row.x;
    EXPECT_TRUE(Same(acos, row.acos)) << row.x;
  }
}

}  // namespace
}  // namespace lum::test
