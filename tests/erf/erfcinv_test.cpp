// ErfcInv: ends of the domain and beyond, where the lane routine takes over, the nodes of the tables, round trips, accuracy.
#include "erf/inverses.h"

namespace lum::test {
namespace {

TEST(ErfcInv, OfOneIsPlusZero) {
  ExpectCases("ErfcInv_32f", {{1, 0.0}});
  ExpectCases("ErfcInv_64f", {{1, 0.0}});
}

TEST(ErfcInv, EndsOfTheDomain) {
  for (const char* name : {"ErfcInv_32f", "ErfcInv_64f"}) {
    ExpectCases(name, {{0.0, inf, lumStsSingularity}, {-0.0, inf, lumStsSingularity}, {2, -inf, lumStsSingularity}});
  }
}

TEST(ErfcInv, OutsideOfTheDomain) {
  for (const char* name : {"ErfcInv_32f", "ErfcInv_64f"}) {
    ExpectCases(name, {{-min_denormal, nan, lumStsDomain},
                       {-1, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {2.0000003, nan, lumStsDomain},
                       {3, nan, lumStsDomain},
                       {max, nan, lumStsDomain},
                       {inf, nan, lumStsDomain},
                       {-inf, nan, lumStsDomain}});
  }
  ExpectCases("ErfcInv_64f", {{std::nextafter(2.0, 3), nan, lumStsDomain}});
}

TEST(ErfcInv, NanComesThroughQuieted) {
  ExpectCases("ErfcInv_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("ErfcInv_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                              {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// Below 2^-24 and 2^-35, and as near to 2, the lane routine; down to the smallest denormal.
TEST(ErfcInv, LimitsOfTheVectorPath) {
  ExpectAccuracy("ErfcInv_32f", ErfcInvReference, Around(0x1p-24, true) + Arguments1{2 - 0x1p-23, 2 - 0x1p-22});
  ExpectAccuracy("ErfcInv_64f", ErfcInvReference, Around(0x1p-35, false) + Around(2 - 0x1p-35, false));
  ExpectAccuracy("ErfcInv_64f", ErfcInvReference, Arguments1{2 - 0x1p-52, 2 - 0x1p-51, 2 - 3 * 0x1p-52});
}
TEST(ErfcInv, FarTail) {
  ExpectAccuracy("ErfcInv_32f", ErfcInvReference, BetweenMagnitudes(0x1p-149, 0x1p-24, 300) + Around(0x1p-126, true, 5));
  ExpectAccuracy("ErfcInv_64f", ErfcInvReference, BetweenMagnitudes(0x1p-1074, 0x1p-35, 300) + Around(0x1p-1022, false, 5));
  ExpectCases("ErfcInv_64f_A53", {{min_denormal, 27.21329321081295}});
}

TEST(ErfcInv, NextToOne) {
  ExpectAccuracy("ErfcInv_32f", ErfcInvReference, Around(1, true, 20));
  ExpectAccuracy("ErfcInv_64f", ErfcInvReference, Around(1, false, 20));
}

// 1/2 is where the grid turns from the distance to 0 to that to 1, or from the polynomials of the tails to that of the centre.
TEST(ErfcInv, NodesAndBinades) {
  Arguments1 floats = Around(0.5, true, 20) + Around(1.5, true, 20), doubles = Around(0.5, false, 20) + Around(1.5, false, 20);
  for (int e = -21; e < -1; ++e) floats = floats + Around(std::ldexp(1, e), true, 2) + Around(2 - std::ldexp(1, e), true, 2);
  for (int e = -34; e < -1; e += 3) {
    for (int i = 0; i < 128; i += 9) {
      const double node = std::ldexp(1 + i / 128.0, e);
      doubles = doubles + Around(node, false, 1) + Around(1 - node, false, 1) + Around(2 - node, false, 1);
    }
  }
  ExpectAccuracy("ErfcInv_32f", ErfcInvReference, floats);
  ExpectAccuracy("ErfcInv_64f", ErfcInvReference, doubles);
}

TEST(ErfcInv, RoundTrip) {
  for (const std::string tag : all_tags) {
    const double limit = tag[0] == '3' ? 0x1p-24 : 0x1p-35;
    ExpectRoundTrip("Erfc_" + tag, "ErfcInv_" + tag, Between(0.001, 1.999) + BetweenMagnitudes(limit, 0.5), ErfSlope);
  }
}

TEST(ErfcInv, Accuracy) {
  ExpectAccuracy("ErfcInv_32f", ErfcInvReference, Between(0x1p-24, 2 - 0x1p-23, 1000) + BetweenMagnitudes(0x1p-24, 1, 500));
  ExpectAccuracy("ErfcInv_64f", ErfcInvReference, Between(0x1p-24, 2 - 0x1p-24, 1000) + BetweenMagnitudes(0x1p-35, 1, 500));
}

}  // namespace
}  // namespace lum::test
