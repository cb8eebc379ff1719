// Asinh: special values, the series next to zero, huge arguments, accuracy around the thresholds. No tier ever reports.
#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Asinh, ZeroKeepsItsSign) { ExpectZeroKeepsItsSign({"Asinh_32f", "Asinh_64f"}); }

TEST(Asinh, InfinitiesStay) {
  for (const char* name : {"Asinh_32f", "Asinh_64f"}) ExpectCases(name, {{inf, inf}, {-inf, -inf}});
}

// x * x: quieted, with its sign and payload.
TEST(Asinh, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Asinh_32f", "Asinh_64f"}); }

TEST(Asinh, TinyArgumentsStay) { ExpectTinyArgumentsStay({"Asinh_32f", "Asinh_64f"}); }

TEST(Asinh, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (double bound : {0.015625, 0.00390625, 0.0220947265625, 1.0, 0x1p63}) x = x + Around(bound, is_32bit);
    if (!is_32bit) x = x + Around(0x1p512, is_32bit);
    ExpectAccuracy(is_32bit ? "Asinh_32f" : "Asinh_64f", mpfr_asinh, WithNegatives(x));
  }
}

TEST(Asinh, Accuracy) {
  const Arguments1 near = Between(-3, 3, 20000) + BetweenMagnitudes(0.001, 1000, 10000) + BetweenMagnitudes(-0.001, -1000);
  ExpectAccuracy("Asinh_32f", mpfr_asinh, near + BetweenMagnitudes(1.5e-45, 3.4e38) + BetweenMagnitudes(-1.5e-45, -3.4e38));
  ExpectAccuracy("Asinh_64f", mpfr_asinh, near + BetweenMagnitudes(5e-324, 1.7e308) + BetweenMagnitudes(-5e-324, -1.7e308));
}

}  // namespace
}  // namespace lum::test
