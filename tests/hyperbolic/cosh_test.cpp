// Cosh: special values, the overflow of both types, accuracy next to the thresholds and over the whole range.
#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Cosh, OfZeroIsOne) {
  for (const char* name : {"Cosh_32f", "Cosh_64f"}) ExpectCases(name, {{0.0, 1}, {-0.0, 1}});
}

TEST(Cosh, TinyArgumentsGiveOne) {
  for (const char* name : {"Cosh_32f_A21", "Cosh_32f_A24", "Cosh_64f"}) {
    ExpectCases(name, {{min_denormal, 1}, {-min_denormal, 1}, {min_normal, 1}, {1e-20, 1}, {-1e-9, 1}});
  }
}

TEST(Cosh, InfinitiesReportNothing) {
  for (const char* name : {"Cosh_32f", "Cosh_64f"}) ExpectCases(name, {{inf, inf}, {-inf, inf}});
}

// x * x: quieted, with its sign and payload.
TEST(Cosh, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Cosh_32f", "Cosh_64f"}); }

TEST(Cosh, OverflowOfFloats) {
  ExpectCases("Cosh_32f", {{FromBits(0x42B2D4FC), FromBits(0x7F7FFFEC)},  // the last with a finite result
                           {FromBits(0xC2B2D4FC), FromBits(0x7F7FFFEC)},
                           {FromBits(0x42B2D4FD), inf, lumStsOverflow},
                           {FromBits(0xC2B2D4FD), inf, lumStsOverflow},
                           {89, FromBits(0x7F28E166)},
                           {-90, inf, lumStsOverflow},
                           {-max, inf, lumStsOverflow},
                           {max, inf, lumStsOverflow}});
}

TEST(Cosh, OverflowOfDoubles) {
  ExpectCases("Cosh_64f", {{FromBits(0x408633CE8FB9F87D), FromBits(0x7FEFFFFFFFFFFD3B)},  // the last with a finite result
                           {FromBits(0xC08633CE8FB9F87D), FromBits(0x7FEFFFFFFFFFFD3B)},
                           {FromBits(0x408633CE8FB9F87E), inf, lumStsOverflow},
                           {FromBits(0xC08633CE8FB9F87E), inf, lumStsOverflow},
                           {-711, inf, lumStsOverflow},
                           {-max, inf, lumStsOverflow},
                           {max, inf, lumStsOverflow}});
}

TEST(Cosh, AccuracyNextToThresholds) {
  const Arguments1 x = Around(87.33653259277344, true) + Around(-87.33653259277344, true) + Around(89.41598510742188, true, 1);
  ExpectAccuracy("Cosh_32f", mpfr_cosh, x + Between(87, 89.415, 5000) + Between(-89.415, -87, 5000));
  const Arguments1 borders = {0x1.61d99ffffffffp+9, 0x1.61d9ap+9, -0x1.61d99ffffffffp+9, -0x1.61d9ap+9};
  ExpectAccuracy("Cosh_64f", mpfr_cosh, borders + Between(707, 710.47, 5000) + Between(-710.47, -707, 5000));
}

TEST(Cosh, AccuracyNextToRows) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (int halves = 1; halves <= 64; ++halves) {
      for (double rows : {16, 32}) x = x + Around(halves * 0.34657359027997264 / rows, is_32bit, 20);
    }
    ExpectAccuracy(is_32bit ? "Cosh_32f" : "Cosh_64f", mpfr_cosh, x);
  }
}

TEST(Cosh, Accuracy) {
  const Arguments1 near = Between(-3, 3, 20000) + BetweenMagnitudes(1e-5, 85) + BetweenMagnitudes(-1e-5, -85);
  ExpectAccuracy("Cosh_32f", mpfr_cosh, near);
  ExpectAccuracy("Cosh_64f", mpfr_cosh, near + Between(-710, 710, 10000));
}

}  // namespace
}  // namespace lum::test
