// Tan: special values, the pole, the thresholds of the reductions, the hardest arguments, all exponents.
#include "circular.h"

namespace lum::test {
namespace {

TEST(Tan, ZerosKeepTheirSign) {
  ExpectCases("Tan_32f", {{0.0, 0.0}, {-0.0, -0.0}});
  ExpectCases("Tan_64f", {{0.0, 0.0}, {-0.0, -0.0}});
}

TEST(Tan, DenormalsAndTinyNumbersAreTheirOwnTangent) {
  for (const char* name : {"Tan_32f", "Tan_64f"})
    ExpectCases(name, {{min_denormal, min_denormal}, {-min_denormal, -min_denormal}, {min_normal, min_normal}});
  ExpectCases("Tan_32f_A24", {{1e-10, 1e-10}, {-1e-30, -1e-30}});
  ExpectCases("Tan_64f", {{1e-100, 1e-100}, {-1e-300, -1e-300}});
}

TEST(Tan, InfinitiesReport) {
  ExpectCases("Tan_32f", {{inf, default_nan, lumStsDomain}, {-inf, default_nan, lumStsDomain}});
  ExpectCases("Tan_64f", {{inf, default_nan, lumStsDomain}, {-inf, default_nan, lumStsDomain}});
}

TEST(Tan, NanIsQuietedWithoutStatus) {
  ExpectCases("Tan_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("Tan_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                          {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// The table's entry at the pole: -1/p, finite on either side.
TEST(Tan, Pole) {
  ExpectCases("Tan_64f_A53", {{1.5707963267948966, 1.633123935319537e+16}, {-1.5707963267948966, -1.633123935319537e+16}});
  ExpectCases("Tan_32f_A24", {{1.5707963705062866, -22877332.0}, {1.5707962512969971, 13245402.0}});
  Arguments1 floats, doubles;
  for (int k = -101; k <= 101; k += 2) {
    floats = floats + Around(k * 1.57079632679489661923, true, 5);
    doubles = doubles + Around(k * 1.57079632679489661923, false, 5);
  }
  ExpectAccuracy("Tan_32f", mpfr_tan, floats);
  ExpectAccuracy("Tan_64f", mpfr_tan, doubles);
}

TEST(Tan, Thresholds) {
  ExpectAccuracy("Tan_32f", mpfr_tan, AroundThreshold(8256, true));
  ExpectAccuracy("Tan_64f", mpfr_tan, AroundThreshold(128000, false) + AroundThreshold(65536.00349206588, false));
}

TEST(Tan, HardestArguments) {
  ExpectAccuracy("Tan_32f", mpfr_tan, HardestFloats());
  ExpectAccuracy("Tan_64f", mpfr_tan, HardestDoubles());
}

TEST(Tan, AllExponents) {
  ExpectAccuracy("Tan_32f", mpfr_tan, AllFloatExponents());
  ExpectAccuracy("Tan_64f", mpfr_tan, AllDoubleExponents());
}

TEST(Tan, Accuracy) {
  ExpectAccuracy("Tan_32f", mpfr_tan, Between(-10, 10) + Between(-9000, 9000));
  ExpectAccuracy("Tan_64f", mpfr_tan, Between(-10, 10) + Between(-140000, 140000));
}

TEST(Tan, IsOdd) {
  ExpectSymmetry("Tan_32f", BetweenMagnitudes(1e-40, 3e38), true);
  ExpectSymmetry("Tan_64f", BetweenMagnitudes(1e-310, 1e308), true);
}

TEST(Tan, HugeArgumentsLeaveTheirNeighbours) {
  ExpectNeighboursUnchanged("Tan_32f", true);
  ExpectNeighboursUnchanged("Tan_64f", false);
}

}  // namespace
}  // namespace lum::test
