// Div: zero divisors, the ranges of the divisors at each tier with their neighbours, special values, accuracy.
#include <algorithm>
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Div, ByZeroReportsWhateverTheDividend) {
  for (const char* name : {"Div_32f", "Div_64f"}) {
    ExpectCases(name, {{1, 0.0, inf, lumStsSingularity},
                       {1, -0.0, -inf, lumStsSingularity},
                       {-3, 0.0, -inf, lumStsSingularity},
                       {inf, -0.0, -inf, lumStsSingularity},
                       {-inf, -0.0, inf, lumStsSingularity},
                       {min_denormal, 0.0, inf, lumStsSingularity},
                       {0.0, 0.0, default_nan, lumStsSingularity},
                       {0.0, -0.0, default_nan, lumStsSingularity},
                       {nan, 0.0, nan, lumStsSingularity},
                       {nan, -0.0, nan, lumStsSingularity}});
  }
  ExpectCases("Div_32f", {{FromBits(0xFF812345), 0.0, FromBits(0xFFC12345), lumStsSingularity}});
  ExpectCases("Div_64f", {{FromBits(0xFFF0000000012345), 0.0, FromBits(0xFFF8000000012345), lumStsSingularity}});
}

TEST(Div, InfinitiesAndZeros) {
  for (const char* name : {"Div_32f", "Div_64f"}) {
    ExpectCases(name, {{1, inf, 0.0},
                       {-1, inf, -0.0},
                       {1, -inf, -0.0},
                       {inf, inf, default_nan},
                       {inf, -inf, default_nan},
                       {inf, 2, inf},
                       {-inf, 2, -inf},
                       {inf, -2, -inf},
                       {0.0, inf, 0.0},
                       {0.0, 3, 0.0},
                       {-0.0, 3, -0.0},
                       {0.0, -3, -0.0},
                       {0.0, min_denormal, 0.0},
                       {inf, min_denormal, inf},
                       {-inf, max, -inf}});
  }
}

TEST(Div, NansComeThroughQuieted) {
  ExpectCases("Div_32f", {{FromBits(0x7F812345), 2, FromBits(0x7FC12345)},
                          {2, FromBits(0xFFC00007), FromBits(0xFFC00007)},
                          {inf, FromBits(0x7F800001), FromBits(0x7FC00001)}});
  ExpectCases("Div_64f", {{FromBits(0xFFF0000000012345), 2, FromBits(0xFFF8000000012345)},
                          {0.0, FromBits(0x7FF8000000000007), FromBits(0x7FF8000000000007)}});
}

// Refused divisors have the quotient of a division, and no status.
TEST(Div, RefusedDivisorsAreDividedExactly) {
  const float p126 = 0x1p126f;
  for (const char* name : {"Div_32f_A11", "Div_32f_A21"}) {
    std::vector<ThreeValueCase> cases;
    for (float x : {1.0f, 3.0f, 0x1.fffffep127f, 0x1.234568p100f, 0x1.8p-20f}) {
      for (float y :
           {p126, -p126, std::nextafterf(p126, 2 * p126), 0x1.fffffep127f, 0x1.fffffcp-127f, -0x1p-149f, 0x1.23p-130f}) {
        volatile float quotient = x / y;
        cases.push_back({x, y, static_cast<float>(quotient)});
      }
    }
    ExpectCases(name, cases);
  }
  for (const char* name : {"Div_64f_A26", "Div_64f_A50"}) {
    std::vector<ThreeValueCase> cases;
    for (double x : {1.0, 3.0, 0x1.fffffffffffffp1023, 0x1.23456789p800, 0x1.8p-200}) {
      for (double y : {0x1p1022, -0x1.8p1022, 0x1.fffffffffffffp1023, 0x1.fffffffffffffp-1022, -0x1p-1022, 0x1p-1074}) {
        volatile double quotient = x / y;
        cases.push_back({x, y, static_cast<double>(quotient)});
      }
    }
    ExpectCases(name, cases);
  }
}

// The last divisors of the vector path: the estimate alone differs from the quotient, so the way is seen in the bits of A11
// and A26; powers of 2 have exact estimates, hence the odd significands.
TEST(Div, RangeOfTheVectorPath) {
  const auto differs = [](const char* name, double x, double y, bool refused) {
    const Export& entry = *ExportsNamed(name).at(0);
    const Format format = FormatOf(entry.input);
    for (const std::string& file : RunnableLibraries()) {
      std::string reason;
      Batch batch(entry);
      batch.src1.Append({format.pattern(x), 0});
      batch.src2.Append({format.pattern(y), 0});
      const Output output = Callee(*TestLibrary(file, "", reason), entry).Run(batch);
      EXPECT_EQ(output.status, lumStsOk);
      EXPECT_EQ(output.dst1[0].re == format.pattern(x / y), refused) << file << ' ' << name << ' ' << batch.Show(0);
    }
  };
  differs("Div_32f_A11", 1.125, 0x1.555556p125, false);
  differs("Div_32f_A11", 1.125, 0x1.555556p126, true);
  differs("Div_32f_A11", 1.125, 0x1.555556p-126, false);
  differs("Div_32f_A11", 0x1.1p-10, 0x1.555554p-127, true);
  differs("Div_64f_A26", 1.125, 0x1.5555555555555p1021, false);
  differs("Div_64f_A26", 1.125, 0x1.5555555555555p1022, true);
  differs("Div_64f_A26", 1.125, 0x1.5555555555555p-1021, false);
  differs("Div_64f_A26", 1.125, 0x1.5555555555555p-1022, true);
}

// The high tiers exclude nothing but zero.
TEST(Div, HighTiersOverTheWholeRange) {
  const auto all_sizes32 = BetweenMagnitudes(0x1p-149, 0x1.fffffep127) + BetweenMagnitudes(-0x1p-149, -0x1.fffffep127);
  const auto all_sizes64 = BetweenMagnitudes(0x1p-1074, 0x1.fffffffffffffp1023) + BetweenMagnitudes(-0x1p-1074, -1e308);
  auto shuffled32 = all_sizes32, shuffled64 = all_sizes64;
  std::shuffle(shuffled32.begin(), shuffled32.end(), Random(5));
  std::shuffle(shuffled64.begin(), shuffled64.end(), Random(6));
  ExpectAccuracy("Div_32f_A24", mpfr_div, all_sizes32, shuffled32);
  ExpectAccuracy("Div_64f_A53", mpfr_div, all_sizes64, shuffled64);
}

TEST(Div, Accuracy) {
  auto x = Between(-10, 10) + BetweenMagnitudes(1e-15, 1e15), y = BetweenMagnitudes(1e-15, 1e15) + Between(1, 2);
  std::shuffle(y.begin(), y.end(), Random(7));
  ExpectAccuracy("Div_32f", mpfr_div, x, y);
  ExpectAccuracy("Div_64f", mpfr_div, x, y);
}

}  // namespace
}  // namespace lum::test
