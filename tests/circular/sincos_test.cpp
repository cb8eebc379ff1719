// SinCos: special values, both sides of the residue reduction and of the wide one, all exponents, the tiers that are the same.
#include "circular.h"

namespace lum::test {
namespace {

void ExpectBoth(const char* name, const Arguments1& x) {
  ExpectAccuracy(name, mpfr_sin, x, 0);
  ExpectAccuracy(name, mpfr_cos, x, 1);
}

TEST(SinCos, Zeros) {
  ExpectCases("SinCos_32f", {{0.0, 0.0, 1}, {-0.0, -0.0, 1}});
  ExpectCases("SinCos_64f", {{0.0, 0.0, 1}, {-0.0, -0.0, 1}});
}

TEST(SinCos, TinyNumbers) {
  ExpectCases("SinCos_32f", {{min_denormal, min_denormal, 1}, {-min_normal, -min_normal, 1}});
  ExpectCases("SinCos_64f_A53", {{min_denormal, min_denormal, 1}, {-1e-300, -1e-300, 1}, {1e-17, 1e-17, 1}});
}

TEST(SinCos, InfinitiesReport) {
  for (const char* name : {"SinCos_32f", "SinCos_64f"})
    ExpectCases(name, {{inf, default_nan, default_nan, lumStsDomain}, {-inf, default_nan, default_nan, lumStsDomain}});
}

TEST(SinCos, NanIsQuietedWithoutStatus) {
  ExpectCases("SinCos_32f", {{FromBits(0xFF812345), FromBits(0xFFC12345), FromBits(0xFFC12345)}});
  ExpectCases("SinCos_64f", {{FromBits(0x7FF0000000012345), FromBits(0x7FF8000000012345), FromBits(0x7FF8000000012345)}});
}

TEST(SinCos, Thresholds) {
  ExpectBoth("SinCos_32f", AroundThreshold(0x1p19, true));
  ExpectBoth("SinCos_64f", AroundThreshold(0x1p23, false) + AroundThreshold(0x1p24, false) + AroundThreshold(0x1p30, false));
}

// The residue reduction changes its table entry every eight binades from 2^23 on.
TEST(SinCos, TableEntriesOfTheResidueReduction) {
  Arguments1 x;
  for (int e = 23; e < 128; ++e) x = x + AroundThreshold(std::ldexp(1.0, e), true);
  ExpectBoth("SinCos_32f", x);
}

TEST(SinCos, HardestArguments) {
  ExpectBoth("SinCos_32f", HardestFloats());
  ExpectBoth("SinCos_64f", HardestDoubles());
}

TEST(SinCos, AllExponents) {
  ExpectBoth("SinCos_32f", AllFloatExponents());
  ExpectBoth("SinCos_64f", AllDoubleExponents());
}

TEST(SinCos, Accuracy) {
  ExpectBoth("SinCos_32f", Between(-10, 10) + Between(-600000, 600000));
  ExpectBoth("SinCos_64f", Between(-10, 10) + Between(-2e7, 2e7));
}

TEST(SinCos, LowAndMidTiersOfFloatsAgree) {
  const Export& low = *ExportsNamed("SinCos_32f_A11").at(0);
  const Export& mid = *ExportsNamed("SinCos_32f_A21").at(0);
  Batch batch(low);
  for (double x : AllFloatExponents() + Between(-600000, 600000)) batch.src1.Append({FormatOf(Element::f32).pattern(x), 0});
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    EXPECT_EQ(FirstDifference(Callee(library, low).Run(batch), Callee(library, mid).Run(batch)), "equal");
  }
}

// The tiers that share the method of Sin and Cos have their bits.
TEST(SinCos, HighTierOfDoublesIsSinAndCos) {
  const Export& both = *ExportsNamed("SinCos_64f_A53").at(0);
  Batch batch(both);
  for (double x : AllDoubleExponents() + Between(-100, 100)) batch.src1.Append({FormatOf(Element::f64).pattern(x), 0});
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    const Output output = Callee(library, both).Run(batch);
    const Output sine = Callee(library, *ExportsNamed("Sin_64f_A53").at(0)).Run(batch);
    const Output cosine = Callee(library, *ExportsNamed("Cos_64f_A53").at(0)).Run(batch);
    for (size_t i = 0; i < batch.size(); ++i) {
      ASSERT_EQ(output.dst1[i].re, sine.dst1[i].re) << batch.Show(i);
      ASSERT_EQ(output.dst2[i].re, cosine.dst1[i].re) << batch.Show(i);
    }
  }
}

TEST(SinCos, HugeArgumentsLeaveTheirNeighbours) {
  ExpectNeighboursUnchanged("SinCos_32f", true);
  ExpectNeighboursUnchanged("SinCos_64f", false);
}

}  // namespace
}  // namespace lum::test
