// Atan: special values, the borders of the table's intervals and of the large branch, accuracy. No tier ever reports.
#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Atan, ZeroKeepsItsSign) { ExpectZeroKeepsItsSign({"Atan_32f", "Atan_64f"}); }

// Refused at A11 and A26, led through by the clamp elsewhere.
TEST(Atan, InfinitiesReportNothing) {
  ExpectCases("Atan_32f", {{inf, FromBits(0x3FC90FDB)}, {-inf, FromBits(0xBFC90FDB)}});
  ExpectCases("Atan_64f", {{inf, FromBits(0x3FF921FB54442D18)}, {-inf, FromBits(0xBFF921FB54442D18)}});
}

TEST(Atan, HugeArgumentsGiveHalfPi) {
  ExpectCases("Atan_32f", {{max, FromBits(0x3FC90FDB)}, {-max, FromBits(0xBFC90FDB)}, {1e30, FromBits(0x3FC90FDB)}});
  ExpectCases(
      "Atan_64f",
      {{max, FromBits(0x3FF921FB54442D18)}, {-max, FromBits(0xBFF921FB54442D18)}, {1e300, FromBits(0x3FF921FB54442D18)}});
}

TEST(Atan, NanComesThroughSilently) {
  for (const char* name : {"Atan_32f", "Atan_64f"}) ExpectCases(name, {{nan, any_nan}, {default_nan, any_nan}});
  ExpectCases("Atan_32f", {{FromBits(0x7F800001), any_nan}, {FromBits(0xFFC12345), any_nan}, {FromBits(0x7FFFFFFF), any_nan}});
  ExpectCases("Atan_64f", {{FromBits(0x7FF0000000000001), any_nan}, {FromBits(0xFFFFFFFFFFFFFFFF), any_nan}});
}

// The low tiers scale them by a constant next to 1.
TEST(Atan, TinyArgumentsStay) { ExpectTinyArgumentsStay({"Atan_32f_A21", "Atan_32f_A24", "Atan_64f_A50", "Atan_64f_A53"}); }

TEST(Atan, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (double border = 0.125; border < 9; border += 0.25) x = x + Around(border, is_32bit, 20);
    for (double point : {1.0, 7.75, 7.875, 0x1p32, 0x1p127}) x = x + Around(point, is_32bit);
    if (!is_32bit) x = x + Around(0x1p128, is_32bit) + Around(0x1p1023, is_32bit);
    ExpectAccuracy(is_32bit ? "Atan_32f" : "Atan_64f", mpfr_atan, WithNegatives(x));
  }
}

TEST(Atan, Accuracy) {
  const Arguments1 near = Between(-10, 10, 20000) + BetweenMagnitudes(0.01, 1000);
  ExpectAccuracy("Atan_32f", mpfr_atan, near + BetweenMagnitudes(1.5e-45, 3.4e38) + BetweenMagnitudes(-1.5e-45, -3.4e38));
  ExpectAccuracy("Atan_64f", mpfr_atan, near + BetweenMagnitudes(5e-324, 1.7e308) + BetweenMagnitudes(-5e-324, -1.7e308));
}

}  // namespace
}  // namespace lum::test
