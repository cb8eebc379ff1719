// The general paths of Powx: special values, exponents that refuse every lane, accuracy, the same bits on both layers.
#include "pow/powx.h"

#include <cmath>

namespace lum::test {
namespace {

const char* const both[] = {"Powx_32f", "Powx_64f"};

TEST(Powx, SpecialValuesOfTheGeneralPath) {
  for (const char* name : both) {
    ExpectCases(name, {{nan, 2.5, nan},
                       {-nan, -11, -nan},
                       {0.0, 2.5, 0.0},
                       {-0.0, 11, -0.0},
                       {-0.0, 12, 0.0},
                       {0.0, -2.5, inf, lumStsDomain},
                       {-0.0, -11, -inf, lumStsDomain},
                       {-0.0, -12, inf, lumStsDomain},
                       {inf, 2.5, inf},
                       {inf, -2.5, 0.0},
                       {-inf, 11, -inf},
                       {-inf, 2.5, inf},
                       {-inf, -11, -0.0},
                       {-1, 11, -1},
                       {-1, -12, 1},
                       {-2, 11, -2048},
                       {-2, -10, 0x1p-10},
                       {-8, 2.5, default_nan, lumStsDomain},
                       {-max, -0.25, default_nan, lumStsDomain},
                       {max, 11, inf},
                       {-max, 11, -inf},
                       {max, -11, 0.0},
                       {min_denormal, 11, 0.0},
                       {min_denormal, -11, inf},
                       {2, max, inf},
                       {2, -max, 0.0}});
  }
}

// Powers of 1 and powers of next to 0. The table of A26 balances the error of a linear step, and is short of 1 at 1.
TEST(Powx, OneOfTheGeneralPath) {
  for (const char* name : {"Powx_32f", "Powx_64f_A50", "Powx_64f_A53"}) {
    ExpectCases(name, {{1, 2.5, 1}, {1, -11, 1}, {1, max, 1}, {max, min_denormal, 1}, {0.75, -min_denormal, 1}});
  }
  const Component next_to_one = FromBits(0x3FEFFFFFFC27DD9E);
  ExpectCases("Powx_64f_A26", {{1, 2.5, next_to_one}, {1, -11, next_to_one}, {max, min_denormal, next_to_one}});
}

// x = 1 is refused with all others here, so that all tags give 1 exactly.
TEST(Powx, ExponentsThatRefuseEveryLane) {
  for (const char* name : both) {
    ExpectCases(name, {{1, nan, 1},
                       {2, nan, nan},
                       {0.75, -nan, -nan},
                       {0.0, nan, nan},
                       {inf, nan, nan},
                       {nan, nan, any_nan},
                       {1, inf, 1},
                       {1, -inf, 1},
                       {-1, inf, 1},
                       {-1, -inf, 1},
                       {2, inf, inf},
                       {2, -inf, 0.0},
                       {0.75, inf, 0.0},
                       {0.75, -inf, inf},
                       {-0.5, -inf, inf},
                       {0.0, inf, 0.0},
                       {0.0, -inf, inf, lumStsDomain},
                       {-0.0, -inf, inf, lumStsDomain},
                       {inf, inf, inf},
                       {-inf, -inf, 0.0}});
  }
  ExpectCases("Powx_32f", {{2, FromBits(0x7F812345), FromBits(0x7FC12345)}, {1, FromBits(0xFF812345), 1}});
  ExpectCases("Powx_64f", {{2, FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// The filled lanes of a tail are refused as well; nothing of that is seen.
TEST(Powx, TailsOfRefusedFill) {
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      OnEveryLibrary([&](const support::Library& library) {
        const Format format = FormatOf(entry->input);
        for (double value : {static_cast<double>(NAN), inf, -inf, 1e6, -1e6, 5e5}) {
          for (size_t len = 1; len <= 70; ++len) {
            Array x(entry->input);
            for (size_t i = 0; i < len; ++i)
              x.Append({format.pattern(i % 3 == 0 ? 1 : 1 + 1e-4 * static_cast<double>(i % 7)), 0});
            const Batch batch = WithValue(*entry, x, value);
            const Seen seen = RunRecorded(library, *entry, batch);
            EXPECT_EQ(seen.output.status, lumStsOk);
            EXPECT_TRUE(seen.reports.empty());
            std::vector<LumStatus> statuses;
            const Output each = Callee(library, *entry).RunEach(batch, statuses);
            ASSERT_EQ(FirstDifference(each, seen.output), "equal") << entry->name << " " << value << " length " << len;
          }
        }
        // One reporting element in the tail, the filled lanes refused beside it.
        const Batch batch = WithValue(
            *entry,
            [&] {
              Array x(entry->input);
              for (double number : {2.0, 0.0, 3.0}) x.Append({format.pattern(number), 0});
              return x;
            }(),
            -inf);
        const Seen seen = RunRecorded(library, *entry, batch);
        EXPECT_EQ(seen.output.status, lumStsDomain);
        EXPECT_EQ(seen.reports, (std::vector<std::pair<int32_t, int32_t>>{{1, lumStsDomain}}));
      });
    }
  }
}

// Bases over the whole range of results of each exponent, and beyond its ends.
TEST(Powx, AccuracyOfTheGeneralPath) {
  for (double value : {2.5, -2.5, 0.3, -0.7, 10.0, -11.0, 13.5, 31.2, -55.5, 100.1, 4.0 / 3, -1e-3}) {
    const auto ends = [&](double exponent) { return std::exp2(std::min(exponent / std::fabs(value), exponent)); };
    ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(1 / ends(126), ends(126), 3000), {value});
    ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(1 / ends(1021), ends(1021), 3000), {value});
    for (const char* name : both) ExpectAccuracy(name, mpfr_pow, Between(0.9, 1.1) + Between(0.99, 1.02), {value});
  }
}

TEST(Powx, AccuracyWithHugeAndTinyExponents) {
  for (const char* name : both) {
    const bool is_32bit = name[6] == '3';
    ExpectAccuracy(name, mpfr_pow, Between(0.98, 1.02) + Around(1, is_32bit), {1000, -3000, 1500.5});
    ExpectAccuracy(name, mpfr_pow, Around(1, is_32bit, 300), {1e5, -1e6, 12345.678});
    ExpectAccuracy(name, mpfr_pow, BetweenMagnitudes(1e-37, 1e37), {1e-7, -1e-20, 0x1p-126});
  }
  ExpectAccuracy("Powx_64f", mpfr_pow, Around(1, false, 300), {0x1p49, -0x1p48});
}

// Denormal bases, denormal results, and the ends of the range, all of them the lane routine's.
TEST(Powx, AccuracyOfTheLaneRoutine) {
  ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(0x1p-149, 0x1p-126, 500) + Arguments1{0x1.fffffep127},
                 {0.3, 0.9, -0.8, 1.2});
  ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(0x1p-1074, 0x1p-1022, 500), {0.3, 0.9, -0.8, 1.04});
  ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(0x1p-15, 0x1p-12, 1000), {10, 11, 10.5});
  ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(0x1p-107, 0x1p-102, 1000), {10, 10.5});
  ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(-0.1, -10, 1000), {10, 11, -12, 37});
  ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(-0.1, -10, 1000), {10, 11, -12, 307});
}

TEST(Powx, Borders) {
  ExpectAccuracy("Powx_32f", mpfr_pow,
                 Around(0x1.fffffcp127, true, 3) + Around(0x1p-126, true) + Around(0.9921875, true) + Around(1.015625, true) +
                     Around(0x1.555556p-1, true) + Around(0x1.555556p0, true),
                 {0.7, -0.9});
  ExpectAccuracy("Powx_64f", mpfr_pow, Around(1.49951171875, false) + Around(0x1p-1022, false) + Around(1.5, false),
                 {0.7, -0.9});
  // e^64.81, e^87.3, 2^127.99; 2^150 below; 2^1022.
  ExpectAccuracy("Powx_32f", mpfr_pow, Around(2, true),
                 {93.499, 93.5, 93.501, -93.5, 125.94, 125.95, -125.94, 127.9, -140, -149.2});
  ExpectAccuracy("Powx_64f", mpfr_pow, Around(2, false),
                 {1021.99, 1021.999, 1022, 1022.1, -1021.99, -1022, 1023.99, -1060.7, -1073.2});
}

// Every path gives the same bits on all layers.
TEST(Powx, SameBitsOnAllLayers) {
  const std::vector<std::string> libraries = RunnableLibraries();
  if (libraries.size() < 2) GTEST_SKIP() << "one library alone can run here";
  std::string reason;
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      const Callee first(*TestLibrary(libraries[0], "", reason), *entry);
      for (double value : {0.0, 1.0, 2.0, 5.0, 0.5, -0.5, 1.5, -1.0, -2.0, -3.0, third, 2.7, -11.3, 0.01, 300.0, inf}) {
        const Batch batch = WithValue(*entry, Elements(*entry), value);
        const Output expected = first.Run(batch);
        for (size_t i = 1; i < libraries.size(); ++i) {
          const Output actual = Callee(*TestLibrary(libraries[i], "", reason), *entry).Run(batch);
          EXPECT_EQ(FirstDifference(expected, actual), "equal") << libraries[i] << " " << entry->name << " " << value;
        }
      }
    }
  }
}

}  // namespace
}  // namespace lum::test
