// Inverse hyperbolic functions in extended precision.
#include <cmath>

#include "complex/extended.h"

namespace lum::test {
namespace {

TEST(ExtAsinh, Accuracy) {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3ff7, 60) + OfExponents(0x3ff8, 0x4003, 6000) +
              OfExponents(0x4004, 0x4028, 600) + OfExponents(0x4029, 0x7ffe, 1);
  for (const int rung : {0x3fb4, 0x3fed, 0x3ff3, 0x3ff8, 0x3ffe, 0x4004, 0x400a, 0x4011, 0x4025}) x = x + AroundExponent(rung);
  ExpectAccurate("ExtAsinh", ExtAsinh, mpfr_asinh, x);
}

TEST(ExtAcosh, Accuracy) {
  Numbers x = OfExponents(0x3fff, 0x3fff, 40000, true) + OfExponents(0x4000, 0x4003, 6000, true) +
              OfExponents(0x4004, 0x4028, 600, true) + OfExponents(0x4029, 0x7ffe, 1, true);
  for (int e = 2; e <= 63; ++e)  // towards 1
    for (const Extended t : OfExponents(extended_bias - e, extended_bias - e, 200, true)) x.push_back(1 + t);
  for (const Extended border : {1.25L, 1 + 0x1p-9L, 0x1p5L, 0x1p11L, 0x1p18L, 0x1p34L}) x = x + Around(border, 100);
  for (int i = 0; i <= 30; ++i) x.push_back(1 + i * ExtendedLimits::epsilon());
  ExpectAccurate("ExtAcosh", ExtAcosh, mpfr_acosh, x);
}

TEST(ExtAtanh, Accuracy) {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3ff7, 60) + OfExponents(0x3ff8, 0x3ffe, 10000);
  for (const int rung : {0x3fb4, 0x3fed, 0x3ff3, 0x3ff8, 0x3ffd, 0x3ffe}) x = x + AroundExponent(rung);
  for (int e = 1; e <= 64; ++e)  // towards 1 and -1
    for (const Extended r : OfExponents(extended_bias - e - 1, extended_bias - e - 1, 40, true)) x = x + Numbers{1 - r, r - 1};
  ExpectAccurate("ExtAtanh", ExtAtanh, mpfr_atanh, x);
}

TEST(ExtInverseHyperbolic, SpecialValues) {
  struct Row {
    Extended x, asinh, acosh, atanh;
  };
  const Extended tiny = ExtendedLimits::denorm_min();
  for (const Row& row : {Row{0.0L, 0.0L, not_a_number, 0.0L},
                         {-0.0L, -0.0L, not_a_number, -0.0L},
                         {tiny, tiny, not_a_number, tiny},
                         {-tiny, -tiny, not_a_number, -tiny},
                         {infinity, infinity, infinity, not_a_number},
                         {-infinity, -infinity, not_a_number, not_a_number},
                         {not_a_number, not_a_number, not_a_number, not_a_number},
                         {SignallingNaN(), not_a_number, not_a_number, not_a_number}}) {
    Extended asinh = 5, acosh = 5, atanh = 5;
    ExtAsinh(asinh, row.x);
    ExtAcosh(acosh, row.x);
    ExtAtanh(atanh, row.x);
    EXPECT_TRUE(Same(asinh, row.asinh)) << row.x;
    EXPECT_TRUE(Same(acosh, row.acosh)) << row.x;
    EXPECT_TRUE(Same(atanh, row.atanh)) << row.x;
  }
}

TEST(ExtInverseHyperbolic, EndsOfTheDomains) {
  Extended result = 5;
  ExtAcosh(result, 1);
  EXPECT_TRUE(Same(result, 0.0L));
  ExtAcosh(result, std::nextafter(1.0L, 0.0L));
  EXPECT_TRUE(Same(result, not_a_number));
  ExtAtanh(result, 1);
  EXPECT_TRUE(Same(result, infinity));
  ExtAtanh(result, -1);
  EXPECT_TRUE(Same(result, -infinity));
  ExtAtanh(result, std::nextafter(1.0L, 2.0L));
  EXPECT_TRUE(Same(result, not_a_number));
}

}  // namespace
}  // namespace lum::test
