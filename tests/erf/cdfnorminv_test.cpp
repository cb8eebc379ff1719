// CdfNormInv: ends of the domain and beyond, where the lane routine takes over, the nodes of the tables, round trips, accuracy.
#include "erf/inverses.h"

namespace lum::test {
namespace {

TEST(CdfNormInv, OfOneHalfIsPlusZero) {
  ExpectCases("CdfNormInv_32f", {{0.5, 0.0}});
  ExpectCases("CdfNormInv_64f", {{0.5, 0.0}});
}

TEST(CdfNormInv, EndsOfTheDomain) {
  for (const char* name : {"CdfNormInv_32f", "CdfNormInv_64f"}) {
    ExpectCases(name, {{0.0, -inf, lumStsSingularity}, {-0.0, -inf, lumStsSingularity}, {1, inf, lumStsSingularity}});
  }
}

TEST(CdfNormInv, OutsideOfTheDomain) {
  for (const char* name : {"CdfNormInv_32f", "CdfNormInv_64f"}) {
    ExpectCases(name, {{-min_denormal, nan, lumStsDomain},
                       {-0.5, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {1.0000002, nan, lumStsDomain},
                       {2, nan, lumStsDomain},
                       {max, nan, lumStsDomain},
                       {inf, nan, lumStsDomain},
                       {-inf, nan, lumStsDomain}});
  }
  ExpectCases("CdfNormInv_64f", {{std::nextafter(1.0, 2), nan, lumStsDomain}});
}

TEST(CdfNormInv, NanComesThroughQuieted) {
  ExpectCases("CdfNormInv_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("CdfNormInv_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                                 {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// Below 2^-24 and 2^-35, and as near to 1, the lane routine; down to the smallest denormal.
TEST(CdfNormInv, LimitsOfTheVectorPath) {
  ExpectAccuracy("CdfNormInv_32f", CdfNormInvReference, Around(0x1p-24, true) + Arguments1{1 - 0x1p-24, 1 - 0x1p-23});
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference, Around(0x1p-35, false) + Around(1 - 0x1p-35, false));
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference, Arguments1{1 - 0x1p-53, 1 - 0x1p-52, 1 - 3 * 0x1p-53});
}
TEST(CdfNormInv, FarTail) {
  ExpectAccuracy("CdfNormInv_32f", CdfNormInvReference, BetweenMagnitudes(0x1p-149, 0x1p-24, 300) + Around(0x1p-126, true, 5));
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference,
                 BetweenMagnitudes(0x1p-1074, 0x1p-35, 300) + Around(0x1p-1022, false, 5));
  ExpectCases("CdfNormInv_64f_A53", {{min_denormal, -38.467405617144344}});
}

TEST(CdfNormInv, NextToOneHalf) {
  ExpectAccuracy("CdfNormInv_32f", CdfNormInvReference, Around(0.5, true, 20));
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference, Around(0.5, false, 20));
}

// 1/4 is where the grid turns from the distance to 0 to that to 1/2, or from the polynomials of the tails to that of the
// centre.
TEST(CdfNormInv, NodesAndBinades) {
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference, Around(0.25, false, 20) + Around(0.75, false, 20));
  Arguments1 floats, doubles;
  for (int e = -21; e < -1; ++e) floats = floats + Around(std::ldexp(1, e), true, 2) + Around(1 - std::ldexp(1, e), true, 2);
  for (int e = -34; e < -2; e += 3) {
    for (int i = 0; i < 128; i += 9) {
      const double node = std::ldexp(1 + i / 128.0, e);
      doubles = doubles + Around(node, false, 1) + Around(0.5 - node, false, 1) + Around(1 - node, false, 1);
    }
  }
  ExpectAccuracy("CdfNormInv_32f", CdfNormInvReference, floats);
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference, doubles);
}

TEST(CdfNormInv, RoundTrip) {
  for (const std::string tag : all_tags) {
    const bool is_32bit = tag[0] == '3';
    ExpectRoundTrip("CdfNorm_" + tag, "CdfNormInv_" + tag,
                    Between(0.001, 0.999) + BetweenMagnitudes(is_32bit ? 0x1p-24 : 0x1p-35, 0.5), NormalDensity);
  }
}

TEST(CdfNormInv, Accuracy) {
  ExpectAccuracy("CdfNormInv_32f", CdfNormInvReference,
                 Between(0x1p-24, 1 - 0x1p-24, 1000) + BetweenMagnitudes(0x1p-24, 0.5, 500));
  ExpectAccuracy("CdfNormInv_64f", CdfNormInvReference,
                 Between(0x1p-24, 1 - 0x1p-24, 1000) + BetweenMagnitudes(0x1p-35, 0.5, 500));
}

}  // namespace
}  // namespace lum::test
