// Ceil, Floor, Trunc, Rint, NearbyInt, Round, Frac and Modf.
#include <bit>
#include <cmath>
#include <cstring>
#include <map>

#include "frame/entry_table.h"
#include "support/accuracy.h"
#include "support/cases.h"
#include "support/environment.h"

namespace lum::test {
namespace {

const std::vector<std::string> whole = {"Ceil", "Floor", "Trunc", "Rint", "NearbyInt", "Round"};

// Runs a table of cases on both types.
void ExpectBoth(const std::string& function, const std::vector<OneInputCase>& cases) {
  ExpectCases(function + "_32f", cases);
  ExpectCases(function + "_64f", cases);
}
void ExpectBoth(const std::string& function, const std::vector<ThreeValueCase>& cases) {
  ExpectCases(function + "_32f", cases);
  ExpectCases(function + "_64f", cases);
}

TEST(Rounding, ZerosInfinitiesAndIntegersAreUnchanged) {
  for (const auto& function : whole) {
    ExpectBoth(function, std::vector<OneInputCase>{{0.0, 0.0}, {-0.0, -0.0}, {inf, inf}, {-inf, -inf}, {1, 1}, {-7, -7}});
    ExpectBoth(function, std::vector<OneInputCase>{{max, max}, {-max, -max}, {8388609, 8388609}, {-8388609, -8388609}});
  }
}

TEST(Rounding, NansComeOutQuietWithSignAndPayload) {
  for (const auto& function : whole) {
    ExpectCases(function + "_32f",
                {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
    ExpectCases(function + "_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)},
                                    {FromBits(0x7FF8000000000007), FromBits(0x7FF8000000000007)}});
  }
}

TEST(Rounding, FractionsGoTheirWays) {
  ExpectBoth("Ceil", std::vector<OneInputCase>{
                         {0.5, 1}, {-0.5, -0.0}, {1.25, 2}, {-1.75, -1}, {min_denormal, 1}, {-min_denormal, -0.0}});
  ExpectBoth("Floor", std::vector<OneInputCase>{
                          {0.5, 0.0}, {-0.5, -1}, {1.75, 1}, {-1.25, -2}, {min_denormal, 0.0}, {-min_denormal, -1}});
  ExpectBoth("Trunc", std::vector<OneInputCase>{{0.9375, 0.0}, {-0.9375, -0.0}, {1.75, 1}, {-1.75, -1}});
  for (const char* function : {"Rint", "NearbyInt"}) {
    ExpectBoth(function, std::vector<OneInputCase>{
                             {0.5, 0.0}, {-0.5, -0.0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}, {3.5, 4}, {1.25, 1}, {-1.75, -2}});
  }
}

TEST(Rounding, RoundTakesTiesAwayFromZero) {
  ExpectBoth("Round", std::vector<OneInputCase>{
                          {0.5, 1}, {1.5, 2}, {2.5, 3}, {-2.5, -3}, {3.5, 4}, {-0.3, -0.0}, {0.25, 0.0}, {-0.5, -1}});
  ExpectCases("Round_32f", {{0.49999997, 0.0}, {-0.49999997, -0.0}, {8388607.5, 8388608}, {4194303.25, 4194303}});
  ExpectCases("Round_64f",
              {{0.49999999999999994, 0.0}, {4503599627370495.5, 4503599627370496}, {-4503599627370494.5, -4503599627370495}});
}

TEST(Rounding, FracKeepsTheSign) {
  ExpectBoth("Frac", std::vector<OneInputCase>{{-3, -0.0},
                                               {3, 0.0},
                                               {-2.5, -0.5},
                                               {2.5, 0.5},
                                               {0.25, 0.25},
                                               {inf, 0.0},
                                               {-inf, -0.0},
                                               {-0.0, -0.0},
                                               {max, 0.0},
                                               {-min_denormal, -min_denormal}});
  ExpectCases("Frac_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Frac_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Rounding, ModfGivesBothPartsTheSign) {
  ExpectBoth("Modf", std::vector<ThreeValueCase>{{-0.0, -0.0, -0.0},
                                                 {-inf, -inf, -0.0},
                                                 {inf, inf, 0.0},
                                                 {-2.5, -2, -0.5},
                                                 {3, 3, 0.0},
                                                 {-3, -3, -0.0},
                                                 {0.75, 0.0, 0.75},
                                                 {-max, -max, -0.0}});
  ExpectCases("Modf_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345), FromBits(0x7FC12345)},
                           {FromBits(0xFFC00007), FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Modf_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345), FromBits(0xFFF8000000012345)}});
}

// Two kernels of the same code stand behind one row: they agree in every bit with each other and with the exported name.
TEST(Rounding, BothKernelsOfRound64fAgree) {
  const Batch sample = Sample(*ExportsNamed("Round_64f").at(0), 3000);
  std::vector<Lum64f> x;
  for (size_t i = 0; i < sample.size(); ++i) x.push_back(std::bit_cast<Lum64f>(sample.src1[i].re));
  const auto len = static_cast<int32_t>(x.size());
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library* library = TestLibrary(name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    const FunctionRecord& record = library->Symbol<const FunctionRecord*()>("lumTestEntryTable")()[Row_Round_64f];
    std::vector<Lum64f> high(x.size()), mid(x.size()), exported(x.size());
    EXPECT_EQ(record.entryHigh.OneInput_64f(x.data(), high.data(), len), lumStsOk);
    EXPECT_EQ(record.entryMid.OneInput_64f(x.data(), mid.data(), len), lumStsOk);
    library->Symbol<signature::OneInput<Lum64f>>("lumsRound_64f")(x.data(), exported.data(), len);
    EXPECT_EQ(std::memcmp(high.data(), mid.data(), x.size() * sizeof(Lum64f)), 0);
    EXPECT_EQ(std::memcmp(high.data(), exported.data(), x.size() * sizeof(Lum64f)), 0);
    EXPECT_NE(record.entryHigh.OneInput_64f, record.entryMid.OneInput_64f);
    EXPECT_EQ(record.entryLow.OneInput_64f, record.entryMid.OneInput_64f);
  }
}

// The caller's rounding upward changes no result, and comes back with its register.
TEST(Rounding, CallersRoundingModeHasNoEffect) {
  if (!has_environment) GTEST_SKIP() << "this processor has no MXCSR";
  for (const char* name : {"Rint_32f", "Rint_64f", "NearbyInt_32f", "NearbyInt_64f"}) {
    const Export& entry = *ExportsNamed(name).at(0);
    const Format format = FormatOf(entry.input);
    for (const std::string& file : RunnableLibraries()) {
      std::string reason;
      Batch batch(entry);
      for (double x : {1.2, -1.8, 2.5}) batch.src1.Append({format.pattern(x), 0});
      Output output(entry, batch.size());
      const Callee callee(*TestLibrary(file, "", reason), entry);
      const auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
      const Environment entered = EnterEnvironment({.mxcsr = 0x5F80});
      callee.Call(arguments);
      EXPECT_EQ(Describe(LeaveEnvironment()), Describe(entered));
      EXPECT_EQ(output.dst1[0].re, format.pattern(1));
      EXPECT_EQ(output.dst1[1].re, format.pattern(-2));
      EXPECT_EQ(output.dst1[2].re, format.pattern(2));
    }
  }
}

// Every number of every size against exact references: no error at all is allowed.
TEST(Rounding, ExactOnEveryNumber) {
  const std::map<std::string, double (*)(double)> references = {
      {"Ceil", [](double x) { return std::ceil(x); }},
      {"Floor", [](double x) { return std::floor(x); }},
      {"Trunc", [](double x) { return std::trunc(x); }},
      {"Rint", [](double x) { return std::nearbyint(x); }},
      {"NearbyInt", [](double x) { return std::nearbyint(x); }},
      {"Round", [](double x) { return std::round(x); }},
      {"Frac", [](double x) { return std::copysign(x - std::trunc(x), x); }}};
  Arguments1 x = Between(-100, 100, 500) + BetweenMagnitudes(1e-30, 1e30, 500) + BetweenMagnitudes(-1e-30, -1e30, 500);
  for (int k = -40; k <= 40; ++k) x.push_back(k / 4.0);
  for (const auto& [function, reference] : references) {
    std::vector<OneInputCase> floats, doubles;
    for (double value : x) {
      floats.push_back({static_cast<float>(value), reference(static_cast<double>(static_cast<float>(value)))});
      doubles.push_back({value, reference(value)});
    }
    ExpectCases(function + "_32f", floats);
    ExpectCases(function + "_64f", doubles);
  }
}

}  // namespace
}  // namespace lum::test
