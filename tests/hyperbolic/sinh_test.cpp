// Sinh: special values, the overflow of both types, relative accuracy next to zero, the rows of the tables, accuracy.
#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Sinh, ZeroKeepsItsSign) { ExpectZeroKeepsItsSign({"Sinh_32f", "Sinh_64f"}); }

TEST(Sinh, InfinitiesReportNothing) {
  for (const char* name : {"Sinh_32f", "Sinh_64f"}) ExpectCases(name, {{inf, inf}, {-inf, -inf}});
}

// x + x: quieted, with its sign and payload.
TEST(Sinh, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Sinh_32f", "Sinh_64f"}); }

TEST(Sinh, OverflowOfFloats) {
  ExpectCases("Sinh_32f", {{FromBits(0x42B2D4FC), FromBits(0x7F7FFFEC)},  // the last with a finite result
                           {FromBits(0xC2B2D4FC), FromBits(0xFF7FFFEC)},
                           {FromBits(0x42B2D4FD), inf, lumStsOverflow},
                           {FromBits(0xC2B2D4FD), -inf, lumStsOverflow},
                           {89, FromBits(0x7F28E166)},
                           {90, inf, lumStsOverflow},
                           {-max, -inf, lumStsOverflow},
                           {max, inf, lumStsOverflow}});
}

TEST(Sinh, OverflowOfDoubles) {
  ExpectCases("Sinh_64f", {{FromBits(0x408633CE8FB9F87D), FromBits(0x7FEFFFFFFFFFFD3B)},  // the last with a finite result
                           {FromBits(0xC08633CE8FB9F87D), FromBits(0xFFEFFFFFFFFFFD3B)},
                           {FromBits(0x408633CE8FB9F87E), inf, lumStsOverflow},
                           {FromBits(0xC08633CE8FB9F87E), -inf, lumStsOverflow},
                           {711, inf, lumStsOverflow},
                           {-max, -inf, lumStsOverflow},
                           {max, inf, lumStsOverflow}});
}

// The cheapest tier has a linear term other than 1.
TEST(Sinh, TinyArgumentsStay) { ExpectTinyArgumentsStay({"Sinh_32f_A21", "Sinh_32f_A24", "Sinh_64f"}); }

// Borders of the first rows, on either side of the one that is held on row 0.
TEST(Sinh, AccuracyNextToTheFirstRows) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = BetweenMagnitudes(1e-3, 0.2, 20000);
    for (int halves = 1; halves <= 16; ++halves) {
      for (double rows : {16, 32, 128}) x = x + Around(halves * 0.34657359027997264 / rows, is_32bit, 20);
    }
    ExpectAccuracy(is_32bit ? "Sinh_32f" : "Sinh_64f", mpfr_sinh, WithNegatives(x));
  }
}

TEST(Sinh, AccuracyNextToThresholds) {
  Arguments1 x = Around(87.33653259277344, true) + Around(-87.33654, true) + Around(89.41598510742188, true, 1);
  ExpectAccuracy("Sinh_32f", mpfr_sinh, x + Between(87, 89.415, 5000) + Between(-89.415, -87, 5000));
  x = Around(707.7, false) + Around(-669.8, false) + Between(669, 710.47, 5000) + Between(-710.47, -669, 5000);
  ExpectAccuracy("Sinh_64f", mpfr_sinh, x + Arguments1{0x1.61d99ffffffffp+9, 0x1.61d9ap+9, 0x1.4ee33ffffffffp+9, 0x1.4ee34p+9});
}

TEST(Sinh, Accuracy) {
  const Arguments1 near = Between(-3, 3, 20000) + BetweenMagnitudes(0.01, 85) + BetweenMagnitudes(-0.01, -85);
  ExpectAccuracy("Sinh_32f", mpfr_sinh, near + BetweenMagnitudes(1.5e-45, 1) + BetweenMagnitudes(-1.5e-45, -1));
  ExpectAccuracy("Sinh_64f", mpfr_sinh, near + BetweenMagnitudes(5e-324, 1) + Between(-710, 710, 10000));
}

}  // namespace
}  // namespace lum::test
