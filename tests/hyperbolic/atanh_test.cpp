// Atanh: special values, the poles, relative accuracy next to zero and to the poles.
#include <cmath>

#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Atanh, ZeroKeepsItsSign) { ExpectZeroKeepsItsSign({"Atanh_32f", "Atanh_64f"}); }

TEST(Atanh, Poles) {
  for (const char* name : {"Atanh_32f", "Atanh_64f"}) {
    ExpectCases(name, {{1, inf, lumStsSingularity}, {-1, -inf, lumStsSingularity}});
  }
}

// The NaN of floats has its sign set, that of doubles does not.
TEST(Atanh, OutsideTheDomain) {
  ExpectCases("Atanh_32f", {{2, default_nan, lumStsDomain},
                            {-2, default_nan, lumStsDomain},
                            {FromBits(0x3F800001), default_nan, lumStsDomain},
                            {FromBits(0xBF800001), default_nan, lumStsDomain},
                            {max, default_nan, lumStsDomain},
                            {inf, default_nan, lumStsDomain},
                            {-inf, default_nan, lumStsDomain}});
  ExpectCases("Atanh_64f", {{2, nan, lumStsDomain},
                            {-2, nan, lumStsDomain},
                            {FromBits(0x3FF0000000000001), nan, lumStsDomain},
                            {FromBits(0xBFF0000000000001), nan, lumStsDomain},
                            {max, nan, lumStsDomain},
                            {inf, nan, lumStsDomain},
                            {-inf, nan, lumStsDomain}});
}

// x * x: quieted, with its sign and payload.
TEST(Atanh, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Atanh_32f", "Atanh_64f"}); }

// The cheapest tier has a linear term other than 1.
TEST(Atanh, TinyArgumentsStay) { ExpectTinyArgumentsStay({"Atanh_32f_A21", "Atanh_32f_A24", "Atanh_64f"}); }

TEST(Atanh, Accuracy) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = Between(-1, 1, 20000) + BetweenMagnitudes(0.001, 0.99, 10000) + BetweenMagnitudes(-0.001, -0.99);
    for (double distance : BetweenMagnitudes(is_32bit ? 1e-7 : 2e-16, 0.5)) x = x + Arguments1{1 - distance, distance - 1};
    std::erase_if(x, [&](double a) { return std::fabs(is_32bit ? static_cast<double>(static_cast<float>(a)) : a) >= 1; });
    for (int i = 1; i < 64; ++i) x = x + Around(i / 64.0, is_32bit, 5);
    x = x + (is_32bit ? BetweenMagnitudes(1.5e-45, 0.01) : BetweenMagnitudes(5e-324, 0.01));
    ExpectAccuracy(is_32bit ? "Atanh_32f" : "Atanh_64f", mpfr_atanh, x);
  }
}

}  // namespace
}  // namespace lum::test
