// Sqrt and InvSqrt: special values, the scaled way of small arguments, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

int InverseRoot(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t rounding) { return mpfr_rec_sqrt(r, x, rounding); }

TEST(Sqrt, SpecialValues) {
  for (const char* name : {"Sqrt_32f", "Sqrt_64f"}) {
    ExpectCases(name, {{0.0, 0.0},
                       {-0.0, -0.0},
                       {inf, inf},
                       {-inf, nan, lumStsDomain},
                       {-1, nan, lumStsDomain},
                       {-min_denormal, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {nan, nan},
                       {-nan, -nan},
                       {1, 1},
                       {4, 2}});
  }
  ExpectCases("Sqrt_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Sqrt_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Sqrt, ExactRootsAtTheHighTiers) {
  std::vector<OneInputCase> cases;
  for (int root = 1; root < 4000; root += 7) cases.push_back({root * root, root});
  ExpectCases("Sqrt_32f_A24", cases);
  ExpectCases("Sqrt_64f_A53", cases);
}

// Denormals are roots of the vector path; the high tiers scale their residual.
TEST(Sqrt, SmallArguments) {
  ExpectAccuracy("Sqrt_32f", mpfr_sqrt, BetweenMagnitudes(0x1p-149, 0x1p-70) + Around(0x1p-78, true));
  ExpectAccuracy("Sqrt_64f", mpfr_sqrt, BetweenMagnitudes(0x1p-1074, 0x1p-900) + Around(0x1p-916, false));
}

// One call with small and ordinary lanes in every mixture, against the bits of each element alone.
TEST(Sqrt, OrdinaryLanesBesideSmallOnesKeepTheirBits) {
  for (const char* name : {"Sqrt_32f_A24", "Sqrt_64f_A53"}) {
    const Export& entry = *ExportsNamed(name).at(0);
    const Format format = FormatOf(entry.input);
    const double small = entry.is_32bit() ? 0x1p-90 : 0x1p-950;
    const double border = entry.is_32bit() ? 0x1p-78 : 0x1p-916;
    Batch batch(entry);
    Random random(21);
    for (int i = 0; i < 6000; ++i) {
      const double significand = 1 + static_cast<double>(random() >> 11) * 0x1p-53;
      const double scale = random() % 3 == 0 ? small : random() % 4 == 0 ? border / 1.5 : 1;
      batch.src1.Append({format.pattern(significand * scale), 0});
    }
    for (const std::string& file : RunnableLibraries()) {
      std::string reason;
      const Callee callee(*TestLibrary(file, "", reason), entry);
      std::vector<LumStatus> statuses;
      EXPECT_EQ(FirstDifference(callee.RunEach(batch, statuses), callee.Run(batch)), "equal") << file << ' ' << name;
    }
  }
}

TEST(Sqrt, Accuracy) {
  const auto x = Between(0, 100) + Between(1, 4) + BetweenMagnitudes(1e-20, 1e38);
  ExpectAccuracy("Sqrt_32f", mpfr_sqrt, x);
  ExpectAccuracy("Sqrt_64f", mpfr_sqrt, x + BetweenMagnitudes(1e-250, 1e308));
}

TEST(InvSqrt, SpecialValues) {
  for (const char* name : {"InvSqrt_32f", "InvSqrt_64f"}) {
    ExpectCases(name, {{0.0, inf, lumStsSingularity},
                       {-0.0, -inf, lumStsSingularity},
                       {inf, 0.0},
                       {-inf, default_nan, lumStsDomain},
                       {-1, nan, lumStsDomain},
                       {-min_denormal, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {nan, nan},
                       {-nan, -nan}});
  }
  for (const char* name : {"InvSqrt_32f_A21", "InvSqrt_32f_A24", "InvSqrt_64f"})
    ExpectCases(name, {{1, 1}, {4, 0.5}, {0.25, 2}});
  ExpectCases("InvSqrt_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("InvSqrt_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(InvSqrt, DenormalsAndLargeNumbers) {
  ExpectAccuracy("InvSqrt_32f", InverseRoot,
                 BetweenMagnitudes(0x1p-149, 0x1p-120) + BetweenMagnitudes(0x1p120, 0x1.fffffep127));
  ExpectAccuracy("InvSqrt_64f", InverseRoot, BetweenMagnitudes(0x1p-1074, 0x1p-1010) + BetweenMagnitudes(0x1p1000, 1.7e308));
}

TEST(InvSqrt, Accuracy) {
  const auto x = Between(0.001, 100) + Between(1, 4) + BetweenMagnitudes(1e-20, 1e38);
  ExpectAccuracy("InvSqrt_32f", InverseRoot, x);
  ExpectAccuracy("InvSqrt_64f", InverseRoot, x + BetweenMagnitudes(1e-250, 1e308));
}

}  // namespace
}  // namespace lum::test
