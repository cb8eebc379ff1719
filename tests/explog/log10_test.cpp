#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

// Without a status, as the vector path computes them.
TEST(Log10, EndsOfTheRange) {
  ExpectCases("Log10_32f_A24",
              {{min_denormal, FromBits(0xC23369F4)}, {min_normal, FromBits(0xC217B818)}, {max, FromBits(0x421A209B)}});
  ExpectCases("Log10_64f_A53", {{min_denormal, FromBits(0xC07434E6420F4374)},
                                {min_normal, FromBits(0xC0733A7146F72A42)},
                                {max, FromBits(0x40734413509F79FF)}});
}

TEST(Log10, PowersOfTen) {
  ExpectCases("Log10_32f_A24", {{10, 1}, {100, 2}, {1000, 3}, {1e10, 10}});
  ExpectCases("Log10_64f_A53", {{10, 1}, {100, 2}, {1000, 3}, {1e10, 10}, {1e22, 22}});
}

TEST(Log10, Accuracy) {
  ExpectAccuracy("Log10_32f", mpfr_log10,
                 BetweenMagnitudes(1.5e-45, 3.4e38) + Between(0.5, 2) + BetweenMagnitudes(1.5e-45, 1.1e-38));
  ExpectAccuracy("Log10_64f", mpfr_log10,
                 BetweenMagnitudes(5e-324, 1.7e308) + Between(0.5, 2) + BetweenMagnitudes(5e-324, 2e-308));
}

// Where segments, rows of the tables and binades meet.
TEST(Log10, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = Around(0.75, is_32bit) + Around(1, is_32bit) + Around(1.5, is_32bit) + Around(2, is_32bit);
    for (int i = 0; i < 32; ++i) x = x + Around(1 + i / 32.0, is_32bit, 5) + Around(0.5 + i / 64.0, is_32bit, 5);
    for (int i = 33; i < 128; i += 2) x = x + Around(64.0 / i, is_32bit, 5);
    x = x + Around(is_32bit ? 0x1p-126 : 0x1p-1022, is_32bit);
    ExpectAccuracy(is_32bit ? "Log10_32f" : "Log10_64f", mpfr_log10, x);
  }
}

}  // namespace
}  // namespace lum::test
