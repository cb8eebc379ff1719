// Erfc: special values, the underflow limit and denormal results, the rows of the tables, the shared kernel, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Erfc, OfZeroIsOne) {
  ExpectCases("Erfc_32f", {{0.0, 1}, {-0.0, 1}, {min_denormal, 1}, {-min_denormal, 1}});
  ExpectCases("Erfc_64f", {{0.0, 1}, {-0.0, 1}, {min_denormal, 1}, {-min_denormal, 1}});
}

TEST(Erfc, Infinities) {
  ExpectCases("Erfc_32f", {{inf, 0.0}, {-inf, 2}});
  ExpectCases("Erfc_64f", {{inf, 0.0}, {-inf, 2}});
}

TEST(Erfc, NanComesThroughQuieted) {
  ExpectCases("Erfc_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("Erfc_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                           {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Erfc, LargeNegativeArgumentsGiveTwo) {
  ExpectCases("Erfc_32f", {{-4.5, 2}, {-10.1, 2}, {-1e10, 2}, {-max, 2}});
  ExpectCases("Erfc_64f", {{-6.5, 2}, {-27.3, 2}, {-1e10, 2}, {-max, 2}});
}

TEST(Erfc, UnderflowLimitOfFloats) {
  ExpectCases("Erfc_32f", {{FromBits(0x4120DDFA), min_denormal},
                           {FromBits(0x4120DDFB), min_denormal},
                           {FromBits(0x4120DDFC), 0.0, lumStsUnderflow},
                           {10.06, 0.0, lumStsUnderflow},
                           {1000, 0.0, lumStsUnderflow},
                           {max, 0.0, lumStsUnderflow}});
}
TEST(Erfc, UnderflowLimitOfDoubles) {
  // Here the result is so close above half the smallest denormal that the low tier may miss it.
  for (const char* name : {"Erfc_64f_A50", "Erfc_64f_A53"}) ExpectCases(name, {{FromBits(0x403B39DC41E48BFC), min_denormal}});
  ExpectCases("Erfc_64f", {{FromBits(0x403B39DC41E48BFD), 0.0, lumStsUnderflow},
                           {27.3, 0.0, lumStsUnderflow},
                           {1e10, 0.0, lumStsUnderflow},
                           {max, 0.0, lumStsUnderflow}});
}

// Denormal results come out of the vector path, to a unit in their last place, and do not report.
TEST(Erfc, DenormalResults) {
  ExpectAccuracy("Erfc_32f", mpfr_erfc, Between(9.19, 10.0541, 500));
  ExpectAccuracy("Erfc_64f", mpfr_erfc, Between(26.54, 27.226, 300));
  ExpectAccuracy("Erfc_64f", mpfr_erfc, Around(27.2109375, false, 8) + Around(27.22265625, false, 8));
}

TEST(Erfc, BordersBetweenCentres) {
  Arguments1 floats, doubles;
  for (int i = 0; i < 640; i += 3) floats = floats + Around((2 * i + 1) / 128.0, true, 2) + Around(i / 64.0, true, 1);
  for (int i = 0; i < 3480; i += 7) doubles = doubles + Around((2 * i + 1) / 256.0, false, 1) + Around(i / 128.0, false, 1);
  ExpectAccuracy("Erfc_32f", mpfr_erfc, floats);
  ExpectAccuracy("Erfc_64f", mpfr_erfc, doubles);
}

TEST(Erfc, LowAndMidTierOfFloatsAreOneKernel) {
  const Export& low = *ExportsNamed("Erfc_32f_A11").at(0);
  const Export& mid = *ExportsNamed("Erfc_32f_A21").at(0);
  Batch batch(low);
  for (double x : Between(-5, 11) + BetweenMagnitudes(1e-30, 1e30)) batch.src1.Append({FormatOf(Element::f32).pattern(x), 0});
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    EXPECT_EQ(FirstDifference(Callee(library, low).Run(batch), Callee(library, mid).Run(batch)), "equal");
  }
}

TEST(Erfc, Accuracy) {
  ExpectAccuracy("Erfc_32f", mpfr_erfc,
                 Between(-4.2, 10, 1500) + BetweenMagnitudes(1e-30, 9, 500) + BetweenMagnitudes(-1e-30, -4, 500));
  ExpectAccuracy("Erfc_64f", mpfr_erfc,
                 Between(-6.2, 27.2, 800) + BetweenMagnitudes(1e-30, 27, 500) + BetweenMagnitudes(-1e-30, -6, 500));
  ExpectAccuracy("Erfc_64f", mpfr_erfc, Between(-1, 1));
}

}  // namespace
}  // namespace lum::test
