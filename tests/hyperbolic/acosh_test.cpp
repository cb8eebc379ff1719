// Acosh: special values, the end of the domain at 1 and what lies next to it, huge arguments, the fill of a tail.
#include <cmath>

#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Acosh, OfOneIsZero) {
  for (const char* name : {"Acosh_32f", "Acosh_64f"}) ExpectCases(name, {{1, 0.0}});
}

TEST(Acosh, InfinityStays) {
  for (const char* name : {"Acosh_32f", "Acosh_64f"}) ExpectCases(name, {{inf, inf}});
}

// The NaN of floats has its sign set, that of doubles does not.
TEST(Acosh, OutsideTheDomain) {
  ExpectCases("Acosh_32f", {{0.5, default_nan, lumStsDomain},
                            {FromBits(0x3F7FFFFF), default_nan, lumStsDomain},
                            {0.0, default_nan, lumStsDomain},
                            {-0.0, default_nan, lumStsDomain},
                            {-2, default_nan, lumStsDomain},
                            {min_denormal, default_nan, lumStsDomain},
                            {-max, default_nan, lumStsDomain},
                            {-inf, default_nan, lumStsDomain}});
  ExpectCases("Acosh_64f", {{0.5, nan, lumStsDomain},
                            {FromBits(0x3FEFFFFFFFFFFFFF), nan, lumStsDomain},
                            {0.0, nan, lumStsDomain},
                            {-0.0, nan, lumStsDomain},
                            {-2, nan, lumStsDomain},
                            {min_denormal, nan, lumStsDomain},
                            {-max, nan, lumStsDomain},
                            {-inf, nan, lumStsDomain}});
}

// x * x: quieted, with its sign and payload.
TEST(Acosh, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Acosh_32f", "Acosh_64f"}); }

// The smallest lanes: acosh(1 + d) is next to sqrt(2 d). A short array is a tail, whose other lanes must not be refused.
TEST(Acosh, NextAboveOne) {
  ExpectCases("Acosh_32f_A24", {{FromBits(0x3F800001), FromBits(0x3A000000)}});
  ExpectCases("Acosh_64f_A53", {{FromBits(0x3FF0000000000001), FromBits(0x3E56A09E667F3BCC)}});
}

TEST(Acosh, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (double w : {0.000244140625, 1.52587890625e-05, 0.00048828125}) x = x + Around(std::sqrt(1 + w), is_32bit);
    for (double bound : {1.25, 1.5, 2.0, 0x1p63}) x = x + Around(bound, is_32bit);
    if (!is_32bit) x = x + Around(0x1p512, is_32bit);
    ExpectAccuracy(is_32bit ? "Acosh_32f" : "Acosh_64f", mpfr_acosh, x);
  }
}

TEST(Acosh, Accuracy) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = Between(1, 3, 20000) + BetweenMagnitudes(1.001, 1000, 10000);
    for (double distance : BetweenMagnitudes(is_32bit ? 1.2e-7 : 2.3e-16, 1, 20000)) x.push_back(1 + distance);
    x = x + BetweenMagnitudes(1.5, is_32bit ? 3.4e38 : 1.7e308);
    ExpectAccuracy(is_32bit ? "Acosh_32f" : "Acosh_64f", mpfr_acosh, x);
  }
}

}  // namespace
}  // namespace lum::test
