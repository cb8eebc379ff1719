// Square root and magnitude in extended precision.
#include <cmath>

#include "complex/extended.h"

namespace lum::test {
namespace {

TEST(ExtSqrt, Accuracy) {
  Numbers x = OfExponents(1, 0x7ffe, 1, true) + OfExponents(0x3ffc, 0x4003, 20000, true);
  for (int e = -16445; e <= -16382; ++e)
    x = x + Around(std::ldexp(1.0L, e), e < -16440 ? 0 : 3) + Numbers{std::ldexp(1.37L, e)};
  // Both sides of every step between two rows, in both halves.
  for (int i = 0; i <= 512; ++i) x = x + Around(1 + (i + 0.5L) / 512, 2) + Around(2 + (i + 0.5L) / 256, 2);
  ExpectAccurate("ExtSqrt", ExtSqrt, mpfr_sqrt, x);
}

TEST(ExtSqrt, ExactRoots) {
  for (const Extended root : OfExponents(0x2100, 0x5e00, 1, true)) {
    const Extended exact = std::ldexp(std::floor(std::ldexp(root, -std::ilogb(root) + 31)), std::ilogb(root) - 31);
    Extended result = 0;
    ExtSqrt(result, exact * exact);
    EXPECT_EQ(result, exact);
  }
}

TEST(ExtSqrt, SpecialValues) {
  const Extended tiny = ExtendedLimits::denorm_min();
  const Extended rows[][2] = {{0.0L, 0.0L},
                              {-0.0L, -0.0L},
                              {infinity, infinity},
                              {-infinity, not_a_number},
                              {-1, not_a_number},
                              {-tiny, not_a_number},
                              {ExtendedLimits::lowest(), not_a_number},
                              {not_a_number, not_a_number},
                              {SignallingNaN(), not_a_number},
                              {4, 2},
                              {1, 1}};
  for (const auto& [x, expected] : rows) {
    Extended result = 5;
    ExtSqrt(result, x);
    EXPECT_TRUE(Same(result, expected)) << x;
  }
}

TEST(ExtAbs, ClearsTheSign) {
  for (const Extended x : OfExponents(1, 0x7ffe, 1) + Specials()) {
    Extended result = -5;
    ExtAbs(result, x);
    EXPECT_TRUE(Same(result, std::fabs(x))) << x;
  }
}

TEST(ExtAbs, QuietsNaN) {
  Extended result = 0;
  ExtAbs(result, SignallingNaN());
  const uint64_t quiet_bit = uint64_t{1} << 62;
  EXPECT_EQ(exponent_field(result), extended_special);
  EXPECT_NE(fields(result).significand & quiet_bit, 0U);
}

TEST(ExtAbs64, ClearsTheSignBit) {
  for (const Lum64f x : {0.0, -0.0, 1.5, -1.5, -5e-324, -HUGE_VAL, -std::numeric_limits<Lum64f>::quiet_NaN()}) {
    Lum64f result = -5;
    ExtAbs64(result, x);
    EXPECT_EQ(std::bit_cast<uint64_t>(result), std::bit_cast<uint64_t>(x) & ~uint64_t{0} >> 1) << x;
  }
}

}  // namespace
}  // namespace lum::test
