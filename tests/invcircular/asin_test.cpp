// Asin: special values, the ends of the domain, the border of the branches, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Asin, ZeroKeepsItsSign) {
  for (const char* name : {"Asin_32f", "Asin_64f"}) ExpectCases(name, {{0.0, 0.0}, {-0.0, -0.0}});
}

TEST(Asin, EndsOfTheDomainReportNothing) {
  ExpectCases("Asin_32f", {{1, FromBits(0x3FC90FDB)}, {-1, FromBits(0xBFC90FDB)}});
  ExpectCases("Asin_64f", {{1, FromBits(0x3FF921FB54442D18)}, {-1, FromBits(0xBFF921FB54442D18)}});
}

TEST(Asin, OutsideTheDomain) {
  for (const char* name : {"Asin_32f", "Asin_64f"}) {
    ExpectCases(name, {{2, default_nan, lumStsDomain},
                       {-2, default_nan, lumStsDomain},
                       {max, default_nan, lumStsDomain},
                       {-max, default_nan, lumStsDomain},
                       {inf, default_nan, lumStsDomain},
                       {-inf, default_nan, lumStsDomain}});
  }
  ExpectCases("Asin_32f",
              {{FromBits(0x3F800001), default_nan, lumStsDomain}, {FromBits(0xBF800001), default_nan, lumStsDomain}});
  ExpectCases("Asin_64f", {{FromBits(0x3FF0000000000001), default_nan, lumStsDomain},
                           {FromBits(0xBFF0000000000001), default_nan, lumStsDomain}});
}

// It runs through the vector path.
TEST(Asin, NanComesThroughQuieted) {
  ExpectCases("Asin_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)},
                           {FromBits(0xFFC00001), FromBits(0xFFC00001)},
                           {FromBits(0x7F812345), FromBits(0x7FC12345)},
                           {FromBits(0xFFBFFFFF), FromBits(0xFFFFFFFF)}});
  ExpectCases("Asin_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                           {FromBits(0xFFF8000000000001), FromBits(0xFFF8000000000001)},
                           {FromBits(0x7FF0000000012345), FromBits(0x7FF8000000012345)},
                           {FromBits(0xFFF7FFFFFFFFFFFF), FromBits(0xFFFFFFFFFFFFFFFF)}});
}

// 32f A11 scales them by 1 + 2^-15.
TEST(Asin, TinyArgumentsStay) {
  for (const char* name : {"Asin_32f_A21", "Asin_32f_A24", "Asin_64f"}) {
    ExpectCases(name, {{min_denormal, min_denormal},
                       {-min_denormal, -min_denormal},
                       {min_normal, min_normal},
                       {1e-40, 1e-40},
                       {-1e-20, -1e-20}});
  }
  ExpectAccuracy("Asin_32f_A11", mpfr_asin, BetweenMagnitudes(1.5e-45, 1e-30) + BetweenMagnitudes(-1.5e-45, -1e-30));
}

Arguments1 Inside(Arguments1 x) {
  std::erase_if(x, [](double a) { return a < -1 || a > 1; });
  return x;
}

TEST(Asin, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (double point : {0.5, -0.5, 1.0, -1.0}) x = x + Around(point, is_32bit, 300);
    for (double exponent = 1; exponent <= 24; ++exponent) x = x + Around(1 - std::exp2(-exponent), is_32bit, 5);
    ExpectAccuracy(is_32bit ? "Asin_32f" : "Asin_64f", mpfr_asin, Inside(x));
  }
}

TEST(Asin, Accuracy) {
  ExpectAccuracy("Asin_32f", mpfr_asin, Between(-1, 1, 20000) + BetweenMagnitudes(1e-37, 1) + BetweenMagnitudes(-1e-37, -1));
  ExpectAccuracy("Asin_64f", mpfr_asin, Between(-1, 1, 20000) + BetweenMagnitudes(1e-307, 1) + BetweenMagnitudes(-1e-307, -1));
}

}  // namespace
}  // namespace lum::test
