// Cos: special values, the thresholds of every reduction, the hardest arguments, all exponents, the shared kernel.
#include "circular.h"

namespace lum::test {
namespace {

TEST(Cos, OfZeroIsOne) {
  ExpectCases("Cos_32f", {{0.0, 1}, {-0.0, 1}});
  ExpectCases("Cos_64f", {{0.0, 1}, {-0.0, 1}});
}

// Below these the kernels give 1 by a test of their own, or by rounding.
TEST(Cos, OfTinyNumbersIsOne) {
  ExpectCases("Cos_32f", {{1e-8, 1}, {-1e-8, 1}, {5e-8, 1}, {min_denormal, 1}, {-min_normal, 1}});
  ExpectCases("Cos_32f_A24", {{6e-8, 1}, {1e-7, 1}, {1.2e-4, 1}});
  ExpectCases("Cos_64f", {{FromBits(0x3E3FFFFFFFFFFFFF), 1}, {-1e-9, 1}, {min_denormal, 1}, {-min_normal, 1}});
}

TEST(Cos, InfinitiesReport) {
  ExpectCases("Cos_32f", {{inf, default_nan, lumStsDomain}, {-inf, default_nan, lumStsDomain}});
  ExpectCases("Cos_64f", {{inf, default_nan, lumStsDomain}, {-inf, default_nan, lumStsDomain}});
}

TEST(Cos, NanIsQuietedWithoutStatus) {
  ExpectCases("Cos_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("Cos_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                          {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Cos, OfTheDoubleNearestToHalfPi) { ExpectCases("Cos_64f_A53", {{1.5707963267948966, 6.123233995736766e-17}}); }

// The kernel of A26 and A50 changes its reduction where the quotient by pi, cut off, passes 8388606.
TEST(Cos, Thresholds) {
  ExpectAccuracy("Cos_32f", mpfr_cos, AroundThreshold(10000, true) + AroundThreshold(0x1p19, true));
  ExpectAccuracy("Cos_64f", mpfr_cos,
                 AroundThreshold(0x1p24, false) + AroundThreshold(8388607 * 3.14159265358979323846, false) +
                     AroundThreshold(8388606 * 3.14159265358979323846, false) + AroundThreshold(0x1p-27, false));
}

TEST(Cos, HardestArguments) {
  ExpectAccuracy("Cos_32f", mpfr_cos, HardestFloats());
  ExpectAccuracy("Cos_64f", mpfr_cos, HardestDoubles());
}

TEST(Cos, AllExponents) {
  ExpectAccuracy("Cos_32f", mpfr_cos, AllFloatExponents());
  ExpectAccuracy("Cos_64f", mpfr_cos, AllDoubleExponents());
}

TEST(Cos, Accuracy) {
  ExpectAccuracy("Cos_32f", mpfr_cos, Between(-10, 10) + Between(-600000, 600000));
  ExpectAccuracy("Cos_64f", mpfr_cos, Between(-10, 10) + Between(-3e7, 3e7));
}

TEST(Cos, IsEven) {
  ExpectSymmetry("Cos_32f", BetweenMagnitudes(1e-40, 3e38), false);
  ExpectSymmetry("Cos_64f", BetweenMagnitudes(1e-310, 1e308), false);
}

TEST(Cos, LowAndMidTiersOfDoublesAreOneKernel) {
  const Export& low = *ExportsNamed("Cos_64f_A26").at(0);
  const Export& mid = *ExportsNamed("Cos_64f_A50").at(0);
  Batch batch(low);
  for (double x : AllDoubleExponents() + Between(-100, 100)) batch.src1.Append({FormatOf(Element::f64).pattern(x), 0});
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    EXPECT_EQ(FirstDifference(Callee(library, low).Run(batch), Callee(library, mid).Run(batch)), "equal");
  }
}

TEST(Cos, HugeArgumentsLeaveTheirNeighbours) {
  ExpectNeighboursUnchanged("Cos_32f", true);
  ExpectNeighboursUnchanged("Cos_64f", false);
}

}  // namespace
}  // namespace lum::test
