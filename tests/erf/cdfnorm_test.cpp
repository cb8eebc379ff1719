// CdfNorm: special values, the underflow limit and denormal results, the rows of the tables, symmetry, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

// erfc(-x / sqrt 2) / 2.
void NormalProbability(mpfr_ptr r, mpfr_srcptr x) {
  mpfr_t a;
  mpfr_init2(a, 320);
  mpfr_sqrt_ui(a, 2, MPFR_RNDN);
  mpfr_div(a, x, a, MPFR_RNDN);
  mpfr_neg(a, a, MPFR_RNDN);
  mpfr_erfc(r, a, MPFR_RNDN);
  mpfr_div_2ui(r, r, 1, MPFR_RNDN);
  mpfr_clear(a);
}

TEST(CdfNorm, OfZeroIsOneHalf) {
  ExpectCases("CdfNorm_32f", {{0.0, 0.5}, {-0.0, 0.5}, {min_denormal, 0.5}, {-min_denormal, 0.5}});
  ExpectCases("CdfNorm_64f", {{0.0, 0.5}, {-0.0, 0.5}, {min_denormal, 0.5}, {-min_denormal, 0.5}});
}

TEST(CdfNorm, Infinities) {
  ExpectCases("CdfNorm_32f", {{inf, 1}, {-inf, 0.0}});
  ExpectCases("CdfNorm_64f", {{inf, 1}, {-inf, 0.0}});
}

TEST(CdfNorm, NanComesThroughQuieted) {
  ExpectCases("CdfNorm_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)}, {FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("CdfNorm_64f", {{FromBits(0x7FF8000000001234), FromBits(0x7FF8000000001234)},
                              {FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(CdfNorm, LargeArgumentsGiveOne) {
  ExpectCases("CdfNorm_32f", {{6, 1}, {14.2, 1}, {40, 1}, {max, 1}});
  ExpectCases("CdfNorm_64f", {{8.5, 1}, {38.5, 1}, {40, 1}, {max, 1}});
}

// The limits themselves are refused and give the smallest denormal.
TEST(CdfNorm, UnderflowLimitOfFloats) {
  ExpectCases("CdfNorm_32f", {{FromBits(0xC162B913), min_denormal},
                              {FromBits(0xC162B914), min_denormal},
                              {FromBits(0xC162B915), 0.0, lumStsUnderflow},
                              {-14.2, 0.0, lumStsUnderflow},
                              {-1000, 0.0, lumStsUnderflow},
                              {-max, 0.0, lumStsUnderflow}});
}
TEST(CdfNorm, UnderflowLimitOfDoubles) {
  ExpectCases("CdfNorm_64f", {{-38.4853, min_denormal},
                              {-38.485408335567335, min_denormal},
                              {std::nextafter(-38.485408335567335, -40), 0.0, lumStsUnderflow},
                              {-40, 0.0, lumStsUnderflow},
                              {-1e10, 0.0, lumStsUnderflow},
                              {-max, 0.0, lumStsUnderflow}});
}

// Denormal results come out of the vector path and do not report.
TEST(CdfNorm, DenormalResults) {
  for (const Export* entry : ExportsNamed("CdfNorm_64f")) {
    for (const std::string& library : RunnableLibraries()) {
      Batch batch(*entry);
      batch.src1.Append({FormatOf(entry->input).pattern(-38), 0});
      std::string reason;
      const Output output = Callee(*TestLibrary(library, "", reason), *entry).Run(batch);
      EXPECT_EQ(output.status, lumStsOk);
      EXPECT_GT(output.dst1[0].re, 0u);
      EXPECT_LT(output.dst1[0].re, 0x0010000000000000u);
    }
  }
  ExpectAccuracy("CdfNorm_32f", NormalProbability, Between(-14.17, -13, 500));
  ExpectAccuracy("CdfNorm_64f", NormalProbability, Between(-38.4854, -37.5, 300));
}

TEST(CdfNorm, BordersBetweenCentres) {
  Arguments1 floats, doubles;
  for (int i = -900; i < 400; i += 3) floats = floats + Around((2 * i + 1) / 128.0, true, 2) + Around(i / 64.0, true, 1);
  for (int i = -4920; i < 1100; i += 13)
    doubles = doubles + Around((2 * i + 1) / 256.0, false, 1) + Around(i / 128.0, false, 1);
  ExpectAccuracy("CdfNorm_32f", NormalProbability, floats);
  ExpectAccuracy("CdfNorm_64f", NormalProbability, doubles);
}

TEST(CdfNorm, Accuracy) {
  ExpectAccuracy("CdfNorm_32f", NormalProbability,
                 Between(-14, 6, 1500) + BetweenMagnitudes(1e-30, 6, 500) + BetweenMagnitudes(-1e-30, -14, 500));
  ExpectAccuracy("CdfNorm_64f", NormalProbability,
                 Between(-38, 9, 800) + BetweenMagnitudes(1e-30, 9, 500) + BetweenMagnitudes(-1e-30, -38, 500));
  ExpectAccuracy("CdfNorm_64f", NormalProbability, Between(-1, 1, 1000));
}

}  // namespace
}  // namespace lum::test
