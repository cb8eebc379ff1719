// ErfInv: ends of the domain and beyond, where the lane routine takes over, the nodes of the tables, round trips, accuracy.
#include "erf/inverses.h"

namespace lum::test {
namespace {

Arguments1 WithBothSigns(const Arguments1& x) {
  Arguments1 list = x;
  for (double a : x) list.push_back(-a);
  return list;
}

TEST(ErfInv, ZerosKeepTheirSign) {
  ExpectCases("ErfInv_32f", {{0.0, 0.0}, {-0.0, -0.0}});
  ExpectCases("ErfInv_64f", {{0.0, 0.0}, {-0.0, -0.0}});
}

TEST(ErfInv, EndsOfTheDomain) {
  ExpectCases("ErfInv_32f", {{1, inf, lumStsSingularity}, {-1, -inf, lumStsSingularity}});
  ExpectCases("ErfInv_64f", {{1, inf, lumStsSingularity}, {-1, -inf, lumStsSingularity}});
}

TEST(ErfInv, OutsideOfTheDomain) {
  for (const char* name : {"ErfInv_32f", "ErfInv_64f"}) {
    ExpectCases(name, {{1.0000002, nan, lumStsDomain},
                       {-1.0000002, nan, lumStsDomain},
                       {2, nan, lumStsDomain},
                       {max, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {inf, nan, lumStsDomain},
                       {-inf, nan, lumStsDomain}});
  }
  ExpectCases("ErfInv_64f", {{std::nextafter(1.0, 2), nan, lumStsDomain}, {std::nextafter(-1.0, -2), nan, lumStsDomain}});
}

TEST(ErfInv, NanComesThroughQuieted) {
  ExpectCases("ErfInv_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("ErfInv_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                             {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// The last numbers below 1 stay in the vector path in either type.
TEST(ErfInv, NextToOne) {
  ExpectAccuracy("ErfInv_32f", ErfInvReference, WithBothSigns({1 - 0x1p-24, 1 - 0x1p-23, 1 - 3 * 0x1p-24}));
  ExpectAccuracy("ErfInv_64f", ErfInvReference, WithBothSigns({1 - 0x1p-53, 1 - 0x1p-52, 1 - 3 * 0x1p-53, 1 - 0x1p-35}));
}

// In binary64 numbers below 2^-35 are refused, down to the smallest denormal.
TEST(ErfInv, SmallArguments) {
  ExpectAccuracy("ErfInv_64f", ErfInvReference, Around(0x1p-35, false) + Around(-0x1p-35, false));
  ExpectAccuracy("ErfInv_64f", ErfInvReference,
                 BetweenMagnitudes(0x1p-1074, 0x1p-35) + BetweenMagnitudes(-0x1p-1074, -0x1p-35));
  ExpectAccuracy("ErfInv_32f", ErfInvReference, BetweenMagnitudes(0x1p-149, 1e-3) + BetweenMagnitudes(-0x1p-149, -1e-3));
  ExpectCases("ErfInv_64f", {{min_denormal, min_denormal}, {-min_denormal, -min_denormal}});
  ExpectCases("ErfInv_32f", {{min_denormal, min_denormal}, {-min_denormal, -min_denormal}});
}

// 1/2 is where the grid turns from the distance to 0 to that to 1, or from the polynomial of the centre to those of the tails.
TEST(ErfInv, NodesAndBinades) {
  Arguments1 floats = Around(0.5, true, 20), doubles = Around(0.5, false, 20);
  for (int e = -21; e < -1; ++e) floats = floats + Around(1 - std::ldexp(1, e), true, 2);
  for (int e = -34; e < -1; e += 3) {
    for (int i = 0; i < 128; i += 9) {
      const double node = std::ldexp(1 + i / 128.0, e);
      doubles = doubles + Around(node, false, 1) + Around(1 - node, false, 1);
    }
  }
  ExpectAccuracy("ErfInv_32f", ErfInvReference, floats);
  ExpectAccuracy("ErfInv_64f", ErfInvReference, doubles);
}

TEST(ErfInv, RoundTrip) {
  for (const std::string tag : all_tags) {
    ExpectRoundTrip("Erf_" + tag, "ErfInv_" + tag, WithBothSigns(Between(0.001, 0.999) + BetweenMagnitudes(1e-30, 0.5)),
                    ErfSlope);
  }
}

TEST(ErfInv, Accuracy) {
  ExpectAccuracy("ErfInv_32f", ErfInvReference, Between(-1 + 0x1p-24, 1 - 0x1p-24, 1500) + BetweenMagnitudes(1e-10, 0.5, 500));
  ExpectAccuracy("ErfInv_64f", ErfInvReference, Between(-1 + 0x1p-53, 1 - 0x1p-53, 1500) + BetweenMagnitudes(1e-10, 0.5, 500));
}

}  // namespace
}  // namespace lum::test
