#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

// Log10 has the same ones.
TEST(Ln, SpecialValues) {
  for (const char* name : {"Ln_32f", "Ln_64f", "Log10_32f", "Log10_64f"}) {
    ExpectCases(name, {{1, 0},
                       {0, -inf, lumStsSingularity},
                       {-0.0, -inf, lumStsSingularity},
                       {inf, inf},
                       {-inf, nan, lumStsDomain},
                       {-1, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {-min_normal, nan, lumStsDomain},
                       {-min_denormal, nan, lumStsDomain},
                       {nan, any_nan},
                       {default_nan, any_nan}});
  }
  for (const char* name : {"Ln_32f", "Log10_32f"}) {
    ExpectCases(name, {{FromBits(0x7F800001), any_nan}, {FromBits(0xFFC12345), any_nan}});
  }
  for (const char* name : {"Ln_64f", "Log10_64f"}) {
    ExpectCases(name, {{FromBits(0x7FF0000000000001), any_nan}, {FromBits(0xFFF8123400000000), any_nan}});
  }
}

// Without a status, as the vector path computes them.
TEST(Ln, EndsOfTheRange) {
  ExpectCases("Ln_32f_A24",
              {{min_denormal, FromBits(0xC2CE8ED0)}, {min_normal, FromBits(0xC2AEAC50)}, {max, FromBits(0x42B17218)}});
  ExpectCases("Ln_64f_A53", {{min_denormal, FromBits(0xC0874385446D71C3)},
                             {min_normal, FromBits(0xC086232BDD7ABCD2)},
                             {max, FromBits(0x40862E42FEFA39EF)}});
}

TEST(Ln, Accuracy) {
  ExpectAccuracy("Ln_32f", mpfr_log,
                 BetweenMagnitudes(1.5e-45, 3.4e38) + Between(0.5, 2) + BetweenMagnitudes(1.5e-45, 1.1e-38));
  ExpectAccuracy("Ln_64f", mpfr_log, BetweenMagnitudes(5e-324, 1.7e308) + Between(0.5, 2) + BetweenMagnitudes(5e-324, 2e-308));
}

// Where segments, rows of the tables, binades and the two levels of 32f A24 meet.
TEST(Ln, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = Around(0.75, is_32bit) + Around(1, is_32bit) + Around(1.5, is_32bit) + Around(2, is_32bit);
    for (int i = 0; i < 32; ++i) x = x + Around(1 + i / 32.0, is_32bit, 5) + Around(0.5 + i / 64.0, is_32bit, 5);
    for (int i = 17; i < 64; ++i) x = x + Around(32.0 / i, is_32bit, 5);
    if (is_32bit) x = x + Around(0x1p-128, true) + Around(0x1p-126, true) + Around(0x1p126, true) + Around(0x1p127, true);
    else x = x + Around(0x1p-1022, false) + Around(0x1p1022, false);
    ExpectAccuracy(is_32bit ? "Ln_32f" : "Ln_64f", mpfr_log, x);
  }
}

// Lanes that the first level serves keep its results, bit for bit, next to lanes that it does not. The two levels round the
// logarithms of these arguments differently.
TEST(Ln, SecondLevelServesOnlyTheLanesThatNeedIt) {
  constexpr double arguments[] = {0x1.142738p-1, 0x1.1e8ad4p-1, 0x1.2d55b4p-1, 0x1.32b018p-1, 0x1.43f15cp-1,
                                  0x1.6702b4p-1, 0x1.7e50ep-1,  0x1.862784p-1, 0x1.89385cp-1, 0x1.d12a04p-1};
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const Export& entry = *ExportsNamed("Ln_32f_A24").at(0);
    const Format format = FormatOf(entry.input);
    const Callee callee(*TestLibrary(name, "", reason), entry);
    Batch ordinary(entry);
    for (double x : arguments) ordinary.src1.Append({format.pattern(x)});
    const Output expected = callee.Run(ordinary);
    for (double special : {0x1p-149, 0x1.8p-130, 0x1.8p127, 0.0}) {
      Batch mixed = ordinary;
      for (size_t i = 0; i < 5; ++i) mixed.src1.Append({format.pattern(special)});
      const Output output = callee.Run(mixed);
      for (size_t i = 0; i < ordinary.size(); ++i) {
        ASSERT_EQ(output.dst1[i], expected.dst1[i]) << name << " of " << arguments[i] << " next to " << special;
      }
    }
  }
}

}  // namespace
}  // namespace lum::test
