// Tanh: special values, relative accuracy next to zero, the borders of the segments, the constant last row. No tier reports.
#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Tanh, ZeroKeepsItsSign) { ExpectZeroKeepsItsSign({"Tanh_32f", "Tanh_64f"}); }

TEST(Tanh, InfinitiesGiveOne) {
  for (const char* name : {"Tanh_32f", "Tanh_64f"}) ExpectCases(name, {{inf, 1}, {-inf, -1}});
}

// x + x where it is refused.
TEST(Tanh, NanComesThroughQuieted) {
  ExpectNanComesThroughQuieted({"Tanh_32f_A21", "Tanh_32f_A24", "Tanh_64f"});
  ExpectCases("Tanh_32f_A11", {{nan, any_nan}, {default_nan, any_nan}, {FromBits(0x7F812345), any_nan}});
}

// The last row; from the top of the largest power of 2 on the lane is refused, with the same result.
TEST(Tanh, LargeArgumentsGiveOne) {
  ExpectCases("Tanh_32f",
              {{10, 1}, {-10, -1}, {1e30, 1}, {FromBits(0x7F000000), 1}, {FromBits(0x7F000001), 1}, {max, 1}, {-max, -1}});
  ExpectCases("Tanh_64f", {{24, 1},
                           {-24, -1},
                           {1e300, 1},
                           {FromBits(0x7FE7FFFFFFFFFFFF), 1},
                           {FromBits(0x7FE8000000000000), 1},
                           {max, 1},
                           {-max, -1}});
}

TEST(Tanh, RationalTierIsOneFromFiveOn) { ExpectCases("Tanh_32f_A11", {{5, 1}, {-5, -1}, {5.5, 1}, {8, 1}}); }

// The rational function of the cheapest tier has a linear term other than 1.
TEST(Tanh, TinyArgumentsStay) { ExpectTinyArgumentsStay({"Tanh_32f_A21", "Tanh_32f_A24", "Tanh_64f"}); }

TEST(Tanh, AccuracyNextToBordersAndCentres) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = Around(is_32bit ? 10 : 24, is_32bit) + Around(5, is_32bit);
    for (double power = 0x1p-6; power < 32; power *= 2) {
      for (int eighth = 8; eighth < 16; ++eighth) x = x + Around(power * eighth / 8, is_32bit, 10);
    }
    ExpectAccuracy(is_32bit ? "Tanh_32f" : "Tanh_64f", mpfr_tanh, WithNegatives(x));
  }
}

// The last sum carries into the power of 2 above the result, whose units are twice as large.
TEST(Tanh, AccuracyJustBelowPowersOf2) {
  Arguments1 x;
  for (double close : {0x1.0112211d747a8p-3, 0x1.00380353e830fp-4, 0x1.fffffff9c3aa7p-5}) x = x + Around(close, false);
  for (double power = 0x1p-6; power < 1; power *= 2) x = x + Between(power, std::atanh(power), 20000);
  ExpectAccuracy("Tanh_64f", mpfr_tanh, WithNegatives(x));
}

TEST(Tanh, Accuracy) {
  const Arguments1 near = Between(-3, 3, 20000) + BetweenMagnitudes(0.01, 30, 20000) + BetweenMagnitudes(-0.01, -30);
  ExpectAccuracy("Tanh_32f", mpfr_tanh, near + BetweenMagnitudes(1.5e-45, 1) + BetweenMagnitudes(-1.5e-45, -1));
  ExpectAccuracy("Tanh_64f", mpfr_tanh, near + BetweenMagnitudes(5e-324, 1) + BetweenMagnitudes(-5e-324, -1));
}

}  // namespace
}  // namespace lum::test
