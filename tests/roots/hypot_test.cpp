// Hypot: special values, the border between vector path and lane routine, sizes whose squares leave the range, accuracy.
#include <algorithm>
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

Arguments1 Shuffled(Arguments1 x, uint64_t seed) {
  std::shuffle(x.begin(), x.end(), Random(seed));
  return x;
}
void ExpectAccuracyOfPairs(const char* name, const Arguments1& x) {
  ExpectAccuracy(name, mpfr_hypot, x, Shuffled(x, 3));
  ExpectAccuracy(name, mpfr_hypot, x, x);
}

TEST(Hypot, InfinitiesWinOverNan) {
  for (const char* name : {"Hypot_32f", "Hypot_64f"}) {
    ExpectCases(name, {{inf, nan, inf},
                       {nan, -inf, inf},
                       {-inf, 1, inf},
                       {0.0, inf, inf},
                       {inf, inf, inf},
                       {-inf, -inf, inf},
                       {max, -inf, inf},
                       {-nan, inf, inf}});
  }
}

TEST(Hypot, NansComeThroughQuieted) {
  for (const char* name : {"Hypot_32f", "Hypot_64f"}) {
    ExpectCases(name, {{nan, 1, nan},
                       {1, nan, nan},
                       {-nan, 1, -nan},
                       {0.0, -nan, -nan},
                       {max, nan, nan},
                       {nan, max, nan},
                       {nan, min_denormal, nan}});
  }
  ExpectCases("Hypot_32f", {{FromBits(0x7F812345), 2, FromBits(0x7FC12345)},
                            {2, FromBits(0xFFC00007), FromBits(0xFFC00007)},
                            {FromBits(0x7F812345), max, FromBits(0x7FC12345)}});
  ExpectCases("Hypot_64f", {{FromBits(0xFFF0000000012345), 2, FromBits(0xFFF8000000012345)},
                            {max, FromBits(0x7FF0000000012345), FromBits(0x7FF8000000012345)}});
}

TEST(Hypot, ZerosAndOneZero) {
  for (const char* name : {"Hypot_32f", "Hypot_64f"}) {
    ExpectCases(name, {{0.0, 0.0, 0.0},
                       {0.0, -0.0, 0.0},
                       {-0.0, -0.0, 0.0},
                       {min_denormal, 0.0, min_denormal},
                       {-0.0, -min_denormal, min_denormal},
                       {max, 0.0, max}});
  }
  for (const char* name : {"Hypot_32f_A21", "Hypot_32f_A24", "Hypot_64f_A50", "Hypot_64f_A53"})
    ExpectCases(name, {{0.0, 7, 7}, {-7, 0.0, 7}, {0.0, -1, 1}});
}

TEST(Hypot, PythagoreanTriples) {
  for (const char* name : {"Hypot_32f_A21", "Hypot_32f_A24", "Hypot_64f_A50", "Hypot_64f_A53"})
    ExpectCases(name, {{3, 4, 5}, {4, -3, 5}});
  for (const char* name : {"Hypot_32f_A24", "Hypot_64f_A53"})
    ExpectCases(name, {{5, 12, 13}, {-8, 15, 17}, {20, 21, 29}, {0x1.8p40, 0x1p41, 0x1.4p41}});
}

// Too large a result has no status; large arguments alone are no overflow.
TEST(Hypot, LargeArguments) {
  ExpectCases("Hypot_32f", {{3e38, 3e38, inf}, {max, max, inf}});
  ExpectCases("Hypot_64f", {{1.5e308, 1.5e308, inf}, {max, -max, inf}});
  ExpectAccuracyOfPairs("Hypot_32f", BetweenMagnitudes(0x1p62, 0x1p127) + Arguments1{1e30});
  ExpectAccuracyOfPairs("Hypot_64f", BetweenMagnitudes(0x1p510, 0x1p1023));
}

// Squares that would underflow, down to pairs of denormals.
TEST(Hypot, SmallArguments) {
  ExpectAccuracyOfPairs("Hypot_32f", BetweenMagnitudes(0x1p-149, 0x1p-60) + Arguments1{1e-30});
  ExpectAccuracyOfPairs("Hypot_64f", BetweenMagnitudes(0x1p-1074, 0x1p-508));
}

// Where the vector path ends: exponents of +-62 and +-63, +-510 and +-511.
TEST(Hypot, BordersOfTheVectorPath) {
  ExpectAccuracyOfPairs("Hypot_32f",
                        Around(0x1p63, true) + Around(0x1p62, true) + Around(0x1p-62, true) + Around(0x1p-63, true));
  ExpectAccuracyOfPairs("Hypot_64f",
                        Around(0x1p511, false) + Around(0x1p510, false) + Around(0x1p-510, false) + Around(0x1p-511, false));
}

// Very different sizes: the smaller one is lost, or is what the last bit depends on.
TEST(Hypot, DifferentSizes) {
  Arguments1 x, y;
  for (double a : Between(1, 4, 2000)) {
    x.push_back(a);
    y.push_back(std::ldexp(a, -static_cast<int>(x.size() % 32)));
  }
  ExpectAccuracy("Hypot_32f", mpfr_hypot, x, y);
  ExpectAccuracy("Hypot_64f", mpfr_hypot, x, y);
  Arguments1 large, small;
  for (double a : x) large.push_back(a * 0x1p600);
  for (double a : y) small.push_back(a * 0x1p600);
  ExpectAccuracy("Hypot_64f", mpfr_hypot, large, small);
}

TEST(Hypot, SignsDoNotMatter) {
  for (const Export* entry : ExportsNamed("Hypot_64f")) {
    for (const std::string& file : RunnableLibraries()) {
      std::string reason;
      Batch batch(*entry), turned(*entry);
      const auto x = BetweenMagnitudes(1e-200, 1e200, 500), y = Shuffled(x, 9);
      for (size_t i = 0; i < x.size(); ++i) {
        const auto pattern = [&](double value) { return Bits{FormatOf(entry->input).pattern(value), 0}; };
        batch.src1.Append(pattern(x[i]));
        batch.src2.Append(pattern(y[i]));
        turned.src1.Append(pattern(-x[i]));
        turned.src2.Append(pattern(i % 2 == 0 ? y[i] : -y[i]));
      }
      const Callee callee(*TestLibrary(file, "", reason), *entry);
      EXPECT_EQ(FirstDifference(callee.Run(batch), callee.Run(turned)), "equal") << file << ' ' << entry->name;
    }
  }
}

TEST(Hypot, Accuracy) {
  const auto x = Between(-10, 10) + Between(1, 2) + BetweenMagnitudes(1e-15, 1e15);
  ExpectAccuracyOfPairs("Hypot_32f", x);
  ExpectAccuracyOfPairs("Hypot_64f", x + BetweenMagnitudes(1e-150, 1e150));
}

}  // namespace
}  // namespace lum::test
