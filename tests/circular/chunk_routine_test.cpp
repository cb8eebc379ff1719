// The scalar sine and cosine over their whole domain, of which the array functions reach only the large arguments.
#include "circular/chunk_routine.h"

#include <algorithm>

#include "accuracy/measure.h"
#include "circular.h"

namespace lum::test {
namespace {

double LargestError(const Arguments1& x) {
  double largest = 0;
  mpfr_t sine, cosine, argument;
  mpfr_inits2(200, sine, cosine, argument, nullptr);
  for (double a : x) {
    double s = 0, c = 0;
    EXPECT_EQ(circular::SineAndCosine(a, s, c), lumStsOk) << a;
    mpfr_set_d(argument, a, MPFR_RNDN);
    mpfr_sin_cos(sine, cosine, argument, MPFR_RNDN);
    largest = std::max({largest, accuracy::UlpError(s, sine, false), accuracy::UlpError(c, cosine, false)});
  }
  mpfr_clears(sine, cosine, argument, nullptr);
  return largest;
}

TEST(ChunkRoutine, BelowTheReductions) {
  EXPECT_LT(LargestError(WithNegatives(BetweenMagnitudes(0x1p-300, 0x1p17)) + Around(0x1p-252, false)), 0.55);
}
// Where bits cancel, some of the error of the last part of pi/32 shows.
TEST(ChunkRoutine, NextToMultiplesBelowTheReductions) {
  Arguments1 hardest = HardestDoubles();
  std::erase_if(hardest, [](double x) { return std::fabs(x) >= 0x1p17; });
  EXPECT_LT(LargestError(hardest), 0.65);
}
TEST(ChunkRoutine, ReductionByParts) {
  EXPECT_LT(LargestError(WithNegatives(BetweenMagnitudes(0x1p17, 0x1p30)) + Around(0x1p23, false) + Around(0x1p17, false)),
            0.55);
}
TEST(ChunkRoutine, ReductionByChunks) {
  EXPECT_LT(LargestError(WithNegatives(BetweenMagnitudes(0x1p30, 1.7e308)) + Around(0x1p30, false)), 0.55);
  Arguments1 hardest = HardestDoubles();
  std::erase_if(hardest, [](double x) { return std::fabs(x) < 0x1p17; });
  EXPECT_LT(LargestError(hardest), 0.55);
}
// Few significant bits: whole pieces of the product are zero.
TEST(ChunkRoutine, PowersOfTwo) {
  Arguments1 x;
  for (int e = 17; e < 1024; ++e) x = x + Arguments1{std::ldexp(1.0, e), -std::ldexp(1.5, e)};
  EXPECT_LT(LargestError(x), 0.55);
}
TEST(ChunkRoutine, ZerosAndNonFiniteNumbers) {
  double s = 1, c = 0;
  EXPECT_EQ(circular::SineAndCosine(-0.0, s, c), lumStsOk);
  EXPECT_TRUE(s == 0 && std::signbit(s) && c == 1);
  EXPECT_EQ(circular::SineAndCosine(-HUGE_VAL, s, c), lumStsDomain);
  EXPECT_TRUE(std::isnan(s) && std::isnan(c));
}

}  // namespace
}  // namespace lum::test
