// Sin: special values, the thresholds of every reduction, the hardest arguments, all exponents.
#include "circular.h"

namespace lum::test {
namespace {

TEST(Sin, ZerosKeepTheirSign) {
  ExpectCases("Sin_32f", {{0.0, 0.0}, {-0.0, -0.0}});
  ExpectCases("Sin_64f", {{0.0, 0.0}, {-0.0, -0.0}});
}

TEST(Sin, DenormalsAndTinyNumbersAreTheirOwnSine) {
  for (const char* name : {"Sin_32f_A21", "Sin_32f_A24", "Sin_64f"})
    ExpectCases(name, {{min_denormal, min_denormal}, {-min_denormal, -min_denormal}, {min_normal, min_normal}});
  ExpectCases("Sin_32f_A24", {{1e-10, 1e-10}, {-1e-30, -1e-30}});
  ExpectCases("Sin_64f", {{1e-100, 1e-100}, {-1e-300, -1e-300}});
}

TEST(Sin, InfinitiesReport) {
  ExpectCases("Sin_32f", {{inf, default_nan, lumStsDomain}, {-inf, default_nan, lumStsDomain}});
  ExpectCases("Sin_64f", {{inf, default_nan, lumStsDomain}, {-inf, default_nan, lumStsDomain}});
}

TEST(Sin, NanIsQuietedWithoutStatus) {
  ExpectCases("Sin_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("Sin_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                          {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Sin, OfTheDoubleNearestToPi) { ExpectCases("Sin_64f_A53", {{3.141592653589793, 1.2246467991473532e-16}}); }

TEST(Sin, Thresholds) {
  ExpectAccuracy("Sin_32f", mpfr_sin, AroundThreshold(10000, true) + AroundThreshold(0x1p19, true));
  ExpectAccuracy("Sin_64f", mpfr_sin, AroundThreshold(0x1p24, false) + AroundThreshold(0x1p30, false));
}

TEST(Sin, HardestArguments) {
  ExpectAccuracy("Sin_32f", mpfr_sin, HardestFloats());
  ExpectAccuracy("Sin_64f", mpfr_sin, HardestDoubles());
}

TEST(Sin, AllExponents) {
  ExpectAccuracy("Sin_32f", mpfr_sin, AllFloatExponents());
  ExpectAccuracy("Sin_64f", mpfr_sin, AllDoubleExponents());
}

TEST(Sin, Accuracy) {
  ExpectAccuracy("Sin_32f", mpfr_sin, Between(-10, 10) + Between(-600000, 600000));
  ExpectAccuracy("Sin_64f", mpfr_sin, Between(-10, 10) + Between(-2e7, 2e7));
}

TEST(Sin, IsOdd) {
  ExpectSymmetry("Sin_32f", BetweenMagnitudes(1e-40, 3e38), true);
  ExpectSymmetry("Sin_64f", BetweenMagnitudes(1e-310, 1e308), true);
}

TEST(Sin, HugeArgumentsLeaveTheirNeighbours) {
  ExpectNeighboursUnchanged("Sin_32f", true);
  ExpectNeighboursUnchanged("Sin_64f", false);
}

}  // namespace
}  // namespace lum::test
