#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Log1p, SpecialValues) {
  for (const char* name : {"Log1p_32f", "Log1p_64f"}) {
    ExpectCases(name, {{0, 0},
                       {-0.0, -0.0},
                       {-1, -inf, lumStsSingularity},
                       {-2, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {-inf, nan, lumStsDomain},
                       {inf, inf},
                       {nan, any_nan},
                       {default_nan, any_nan}});
  }
  ExpectCases("Log1p_32f", {{FromBits(0xBF800001), nan, lumStsDomain}, {FromBits(0x7F800001), any_nan}});
  ExpectCases("Log1p_64f", {{FromBits(0xBFF0000000000001), nan, lumStsDomain}, {FromBits(0x7FF0000000000001), any_nan}});
}

TEST(Log1p, TinyArgumentsStay) {
  for (const char* name : {"Log1p_32f", "Log1p_64f"}) {
    ExpectCases(name, {{min_denormal, min_denormal},
                       {-min_denormal, -min_denormal},
                       {min_normal, min_normal},
                       {1e-30, 1e-30},
                       {-1e-30, -1e-30},
                       {-1.25e-20, -1.25e-20}});
  }
  ExpectCases("Log1p_32f", {{0x1.fffffep-26, 0x1.fffffep-26}, {0x1.8p-130, 0x1.8p-130}});
  ExpectCases("Log1p_64f", {{0x1.fp-55, 0x1.fp-55}, {0x1.8p-1060, 0x1.8p-1060}});
}

TEST(Log1p, Largest) {
  ExpectCases("Log1p_32f_A24", {{max, FromBits(0x42B17218)}});
  ExpectCases("Log1p_64f_A53", {{max, FromBits(0x40862E42FEFA39EF)}});
}

TEST(Log1p, Accuracy) {
  ExpectAccuracy(
      "Log1p_32f", mpfr_log1p,
      Between(-0.9999, 3) + BetweenMagnitudes(1e-44, 3.4e38) + BetweenMagnitudes(-1e-44, -0.99) + Between(-0.1, 0.1));
  ExpectAccuracy(
      "Log1p_64f", mpfr_log1p,
      Between(-0.9999, 3) + BetweenMagnitudes(1e-323, 1.7e308) + BetweenMagnitudes(-1e-323, -0.99) + Between(-0.1, 0.1));
}

// Next to the pole, the ends of the split and of the rows, and where 32f A11 and A21 start to refuse large arguments.
TEST(Log1p, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (double middle : {-1.0, -1 / 3.0, 0.0, 1 / 3.0, 1.0, 3.0, 0x1p24, 0x1p53}) x = x + Around(middle, is_32bit);
    for (int i = 0; i < 32; ++i) x = x + Around(i / 32.0, is_32bit, 5) + Around(i / 64.0 - 0.5, is_32bit, 5);
    for (int i = 65; i < 128; i += 2) x = x + Around(128.0 / i - 1, is_32bit, 5);
    if (is_32bit) x = x + Around(0x1p126, true) + Around(0x1p127, true) + BetweenMagnitudes(1.7e38, 3.4e38);
    std::erase_if(x, [](double a) { return a <= -1; });
    ExpectAccuracy(is_32bit ? "Log1p_32f" : "Log1p_64f", mpfr_log1p, x);
  }
}

}  // namespace
}  // namespace lum::test
