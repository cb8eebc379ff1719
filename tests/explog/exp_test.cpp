// Exp: special values, the thresholds of the vector path and of the lane routines with their neighbours, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/common_cases.h"
#include "support/environment.h"

namespace lum::test {
namespace {

TEST(Exp, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Exp_32f", "Exp_64f"}); }

TEST(Exp, Infinities) {
  ExpectCases("Exp_32f", {{inf, inf}, {-inf, 0.0}});
  ExpectCases("Exp_64f", {{inf, inf}, {-inf, 0.0}});
}

TEST(Exp, OfZeroIsOne) {
  ExpectCases("Exp_32f_A21", {{0.0, 1}, {-0.0, 1}});
  ExpectCases("Exp_32f_A24", {{0.0, 1}, {-0.0, 1}});
  ExpectCases("Exp_32f_A11", {{0.0, 1}, {-0.0, 1}});
  ExpectCases("Exp_64f", {{0.0, 1}, {-0.0, 1}});
}

// The index of the table wraps to its last entry and the scale to 1/2.
TEST(Exp, TinyNegativeRoundsToOne) {
  ExpectCases("Exp_32f_A24", {{-min_denormal, 1}, {-min_normal, 1}, {-1e-30, 1}, {-1e-9, 1}});
  ExpectCases("Exp_64f_A53", {{-min_denormal, 1}, {-min_normal, 1}, {-1e-300, 1}, {-1e-18, 1}});
}

TEST(Exp, OverflowOfFloats) {
  ExpectCases("Exp_32f", {{88.73, inf, lumStsOverflow},
                          {FromBits(0x42B17218), inf, lumStsOverflow},  // the first beyond the largest number
                          {1000, inf, lumStsOverflow},
                          {max, inf, lumStsOverflow}});
}
TEST(Exp, UnderflowOfFloats) {
  ExpectCases("Exp_32f", {{-103.98, 0, lumStsUnderflow},
                          {FromBits(0xC2CFF1B5), 0, lumStsUnderflow},
                          {FromBits(0xC2CFF1B4), min_denormal, lumStsUnderflow},  // just above half of it
                          {-1000, 0, lumStsUnderflow},
                          {-max, 0, lumStsUnderflow}});
}
TEST(Exp, OverflowOfDoubles) {
  ExpectCases("Exp_64f", {{709.79, inf, lumStsOverflow},
                          {FromBits(0x40862E42FEFA39F0), inf, lumStsOverflow},  // the first beyond the largest number
                          {1000, inf, lumStsOverflow},
                          {max, inf, lumStsOverflow}});
}
TEST(Exp, UnderflowOfDoubles) {
  ExpectCases("Exp_64f", {{-745.14, 0, lumStsUnderflow},
                          {FromBits(0xC0874910D52D3052), 0, lumStsUnderflow},
                          {FromBits(0xC0874910D52D3051), min_denormal, lumStsUnderflow},
                          {-1000, 0, lumStsUnderflow},
                          {-max, 0, lumStsUnderflow}});
}

// The status of each argument, and a finite result within the bound of each tag.
void ExpectFinite(const char* name, const Arguments1& x, LumStatus status) {
  for (const Export* entry : ExportsNamed(name)) {
    for (const std::string& library : RunnableLibraries()) {
      std::string reason;
      Batch batch(*entry);
      for (double argument : x) batch.src1.Append({FormatOf(entry->input).pattern(argument), 0});
      std::vector<LumStatus> statuses;
      Callee(*TestLibrary(library, "", reason), *entry).RunEach(batch, statuses);
      for (size_t i = 0; i < x.size(); ++i)
        EXPECT_EQ(statuses[i], status) << library << ' ' << entry->name << ' ' << batch.Show(i);
    }
  }
  ExpectAccuracy(name, mpfr_exp, x);
}

// The largest arguments with a finite result take the way through 2^128 and 2^1024.
TEST(Exp, LastFiniteResults) {
  const double last_float = 88.72283172607422, last_double = 709.782712893384;
  ExpectFinite("Exp_32f", {88.5, 88.7, last_float, std::nextafterf(static_cast<float>(last_float), 0)}, lumStsOk);
  ExpectFinite("Exp_64f", {709.0, 709.78, last_double, std::nextafter(last_double, 0)}, lumStsOk);
}

// Refused on both sides of zero from the threshold on: a refused lane need not report.
TEST(Exp, ThresholdOfTheVectorPath) {
  const auto around_float = Around(87.33654022216797, true), around_double = Around(707.7032713517042, false);
  ExpectFinite("Exp_32f", around_float, lumStsOk);
  ExpectFinite("Exp_64f", around_double, lumStsOk);
  Arguments1 negative;
  for (double x : around_double) negative.push_back(-x);
  ExpectFinite("Exp_64f", negative, lumStsOk);
}

// All arguments of binary32 at the ends of the range, where a vector decides by itself which results it may round: the layers
// agree, and one of them takes the lane routine for all.
TEST(Exp, AllFloatsAtTheEnds) {
  for (const Export* entry : ExportsNamed("Exp_32f")) {
    Batch batch(*entry);
    for (const auto& [first, last] : {std::pair{0x42AEAC4Fu, 0x42B17217u}, std::pair{0xC2AEAC4Fu, 0xC2CFF1B4u}}) {
      for (uint32_t pattern = first; pattern <= last; ++pattern) batch.src1.Append({pattern, 0});
    }
    std::string reason;
    const Output expected = Callee(*TestLibrary("p0", "", reason), *entry).Run(batch);
    for (const std::string& library : RunnableLibraries()) {
      EXPECT_EQ(FirstDifference(expected, Callee(*TestLibrary(library, "", reason), *entry).Run(batch)), "equal")
          << library << ' ' << entry->name;
    }
  }
}

// From here down results are denormal and report, though they are not zero.
TEST(Exp, FirstDenormalResults) {
  const float last_float = -87.33654022216797f;
  const double last_double = -708.3964185322641;
  ExpectFinite("Exp_32f", {last_float, std::nextafterf(last_float, 0)}, lumStsOk);
  ExpectFinite("Exp_32f", {std::nextafterf(last_float, -100), -88, -90, -95, -100, -103}, lumStsUnderflow);
  ExpectFinite("Exp_64f", {-708, last_double, std::nextafter(last_double, 0)}, lumStsOk);
  ExpectFinite("Exp_64f", {std::nextafter(last_double, -1000), -709, -710, -720, -730, -744, -745}, lumStsUnderflow);
}

// A11 and A21 of floats are different kernels that finish refused lanes alike.
TEST(Exp, LowAndMidTiersShareTheLaneRoutine) {
  const Export& low = *ExportsNamed("Exp_32f_A11").at(0);
  const Export& mid = *ExportsNamed("Exp_32f_A21").at(0);
  Batch refused(low), ordinary(low);
  Random random(12);
  for (int i = 0; i < 2000; ++i) {
    const double x = 87.34 + static_cast<double>(random() % 2000) * 0.01;
    refused.src1.Append({FormatOf(Element::f32).pattern(i % 2 == 0 ? x : -x), 0});
    ordinary.src1.Append({FormatOf(Element::f32).pattern(x - 80), 0});
  }
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    const Callee first(library, low), second(library, mid);
    EXPECT_EQ(FirstDifference(first.Run(refused), second.Run(refused)), "equal");
    EXPECT_NE(FirstDifference(first.Run(ordinary), second.Run(ordinary)), "equal");
  }
}

// Flushing in the caller's environment does not reach denormal results and arguments.
TEST(Exp, DenormalResultsUnderTheCallersFlushing) {
  if (!has_environment) GTEST_SKIP() << "this processor has no MXCSR";
  for (const Export* entry : ExportsNamed("Exp_64f")) {
    for (const std::string& name : RunnableLibraries()) {
      std::string reason;
      Batch batch(*entry);
      for (double x : {-720.0, -0x1p-1074, -740.0}) batch.src1.Append({FormatOf(entry->input).pattern(x), 0});
      Output output(*entry, batch.size());
      const Callee callee(*TestLibrary(name, "", reason), *entry);
      const auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
      const Environment entered = EnterEnvironment({.mxcsr = 0x9FD5});  // both flushings, three sticky flags
      const LumStatus status = callee.Call(arguments);
      EXPECT_EQ(Describe(LeaveEnvironment()), Describe(entered));
      EXPECT_EQ(status, lumStsUnderflow);
      for (size_t i : {size_t{0}, size_t{2}}) {
        EXPECT_GT(output.dst1[i].re, 0u);
        EXPECT_LT(output.dst1[i].re, 0x0010000000000000u);
      }
    }
  }
}

TEST(Exp, Accuracy) {
  ExpectAccuracy("Exp_32f", mpfr_exp, Between(-103.9, 88.7) + BetweenMagnitudes(1e-10, 88) + BetweenMagnitudes(-1e-10, -87));
  ExpectAccuracy("Exp_64f", mpfr_exp, Between(-745, 709.7) + BetweenMagnitudes(1e-20, 700) + BetweenMagnitudes(-1e-20, -700));
  ExpectAccuracy("Exp_32f", mpfr_exp, Between(-1, 1));
  ExpectAccuracy("Exp_64f", mpfr_exp, Between(-1, 1));
}

}  // namespace
}  // namespace lum::test
