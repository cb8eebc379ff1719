// Pow: special values with their statuses, negative bases, both ends of the range, the border between vector path and lane
// routine, accuracy over the plane of arguments.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

const char* const both[] = {"Pow_32f", "Pow_64f"};

TEST(Pow, OneWhateverTheOther) {
  for (const char* name : both) {
    ExpectCases(name, {{1, nan, 1},
                       {1, -nan, 1},
                       {1, inf, 1},
                       {1, -inf, 1},
                       {1, max, 1},
                       {1, 0.5, 1},
                       {nan, 0.0, 1},
                       {-nan, -0.0, 1},
                       {inf, 0.0, 1},
                       {-inf, -0.0, 1},
                       {0.0, 0.0, 1},
                       {-0.0, -0.0, 1},
                       {-7.5, 0.0, 1},
                       {max, -0.0, 1}});
  }
  ExpectCases("Pow_32f", {{FromBits(0x7F812345), 0.0, 1}, {1, FromBits(0xFF812345), 1}});
  ExpectCases("Pow_64f", {{FromBits(0x7FF0000000012345), -0.0, 1}, {1, FromBits(0xFFF0000000012345), 1}});
}

TEST(Pow, NansComeThroughQuieted) {
  for (const char* name : both) {
    ExpectCases(name, {{nan, 2, nan},
                       {-nan, 2, -nan},
                       {2, nan, nan},
                       {2, -nan, -nan},
                       {-1, nan, nan},
                       {0.0, nan, nan},
                       {inf, -nan, -nan},
                       {nan, inf, nan},
                       {-nan, -inf, -nan},
                       {min_denormal, nan, nan},
                       {nan, nan, any_nan}});
  }
  ExpectCases("Pow_32f", {{FromBits(0x7F812345), 2, FromBits(0x7FC12345)},
                          {2, FromBits(0xFFC00007), FromBits(0xFFC00007)},
                          {0.0, FromBits(0xFF812345), FromBits(0xFFC12345)}});
  ExpectCases("Pow_64f", {{FromBits(0xFFF0000000012345), 3, FromBits(0xFFF8000000012345)},
                          {-2, FromBits(0x7FF0000000012345), FromBits(0x7FF8000000012345)}});
}

TEST(Pow, ZeroToPositivePowers) {
  for (const char* name : both) {
    ExpectCases(name, {{0.0, 1, 0.0},
                       {-0.0, 1, -0.0},
                       {-0.0, 3, -0.0},
                       {0.0, 3, 0.0},
                       {-0.0, 2, 0.0},
                       {-0.0, 0.5, 0.0},
                       {-0.0, 2.5, 0.0},
                       {0.0, inf, 0.0},
                       {-0.0, inf, 0.0},
                       {-0.0, max, 0.0},
                       {0.0, min_denormal, 0.0},
                       {-0.0, min_denormal, 0.0}});
  }
}

// A pole is reported as a matter of the domain.
TEST(Pow, ZeroToNegativePowers) {
  for (const char* name : both) {
    ExpectCases(name, {{0.0, -1, inf, lumStsDomain},
                       {-0.0, -1, -inf, lumStsDomain},
                       {-0.0, -3, -inf, lumStsDomain},
                       {-0.0, -2, inf, lumStsDomain},
                       {-0.0, -0.5, inf, lumStsDomain},
                       {0.0, -inf, inf, lumStsDomain},
                       {-0.0, -inf, inf, lumStsDomain},
                       {0.0, -min_denormal, inf, lumStsDomain},
                       {-0.0, -max, inf, lumStsDomain}});
  }
}

TEST(Pow, InfinitePowers) {
  for (const char* name : both) {
    ExpectCases(name, {{-1, inf, 1},
                       {-1, -inf, 1},
                       {2, inf, inf},
                       {2, -inf, 0.0},
                       {-2, inf, inf},
                       {-2, -inf, 0.0},
                       {0.5, inf, 0.0},
                       {0.5, -inf, inf},
                       {-0.5, inf, 0.0},
                       {-0.5, -inf, inf},
                       {max, -inf, 0.0},
                       {min_denormal, -inf, inf},
                       {inf, inf, inf},
                       {inf, -inf, 0.0},
                       {-inf, inf, inf},
                       {-inf, -inf, 0.0}});
  }
  ExpectCases("Pow_32f", {{0x1.fffffep-1, inf, 0.0}, {0x1.000002p0, -inf, 0.0}, {-0x1.fffffep-1, -inf, inf}});
  ExpectCases("Pow_64f", {{0x1.fffffffffffffp-1, inf, 0.0}, {-0x1.0000000000001p0, inf, inf}});
}

TEST(Pow, InfiniteBases) {
  for (const char* name : both) {
    ExpectCases(name, {{inf, 1, inf},
                       {inf, -1, 0.0},
                       {inf, min_denormal, inf},
                       {inf, -min_denormal, 0.0},
                       {-inf, 3, -inf},
                       {-inf, 2, inf},
                       {-inf, 0.5, inf},
                       {-inf, -3, -0.0},
                       {-inf, -2, 0.0},
                       {-inf, -0.5, 0.0},
                       {-inf, max, inf}});
  }
}

TEST(Pow, NegativeBasesToIntegers) {
  for (const char* name : both) {
    ExpectCases(name, {{-2, 3, -8},
                       {-2, 2, 4},
                       {-2, -1, -0.5},
                       {-3, 3, -27},
                       {-3, 4, 81},
                       {-10, 5, -100000},
                       {-0.5, 7, -0x1p-7},
                       {-1, 3, -1},
                       {-1, -7, -1},
                       {-1, 4, 1},
                       {-1, max, 1},
                       {-1, -max, 1},
                       {-1.5, 1, -1.5},
                       {-max, 1, -max},
                       {-min_normal, 1, -min_normal},
                       {-min_denormal, 1, -min_denormal}});
  }
  // The last odd number, and even ones beyond.
  ExpectCases("Pow_32f", {{-1, 0x1.fffffep23, -1}, {-1, 0x1p24, 1}, {-1, 0x1.000002p23, -1}, {-1, 0x1.000002p24, 1}});
  ExpectCases("Pow_64f", {{-1, 0x1.fffffffffffffp52, -1},
                          {-1, 0x1p53, 1},
                          {-1, 0x1.0000000000001p52, -1},
                          {-1, 0x1.0000000000001p53, 1},
                          {-1, 0x1.00000001p32, -1},
                          {-1, 0x1.000000008p32, default_nan, lumStsDomain}});
}

TEST(Pow, NegativeBasesToFractions) {
  for (const char* name : both) {
    ExpectCases(name, {{-8, 1.0 / 3, default_nan, lumStsDomain},
                       {-1, 0.5, default_nan, lumStsDomain},
                       {-2, -2.5, default_nan, lumStsDomain},
                       {-max, 0.5, default_nan, lumStsDomain},
                       {-min_denormal, 1.5, default_nan, lumStsDomain},
                       {-1, min_denormal, default_nan, lumStsDomain}});
  }
  ExpectCases("Pow_32f", {{-1, 0x1.fffffep22, default_nan, lumStsDomain}, {-3, 0x1.fffffep-1, default_nan, lumStsDomain}});
  ExpectCases("Pow_64f",
              {{-1, 0x1.fffffffffffffp51, default_nan, lumStsDomain}, {-3, 0x1.fffffffffffffp-1, default_nan, lumStsDomain}});
}

TEST(Pow, OutOfRangeWithoutAStatus) {
  for (const char* name : both) {
    ExpectCases(name, {{max, 2, inf},
                       {max, -2, 0.0},
                       {-max, 3, -inf},
                       {-max, -3, -0.0},
                       {-max, 2, inf},
                       {min_denormal, -2, inf},
                       {min_denormal, 2, 0.0},
                       {-min_denormal, 3, -0.0},
                       {-min_denormal, -1, -inf},
                       {2, max, inf},
                       {2, -max, 0.0},
                       {0.5, max, 0.0},
                       {1.5, max, inf},
                       {max, min_denormal, 1},
                       {min_denormal, -min_denormal, 1},
                       {-3, -max, 0.0}});
  }
  ExpectCases("Pow_32f", {{2, 127, 0x1p127},
                          {2, 128, inf},
                          {-2, 129, -inf},
                          {2, -126, min_normal},
                          {2, -149, min_denormal},
                          {-2, -149, -min_denormal},
                          {2, -150, 0.0},
                          {-2, -151, -0.0},
                          {2, -149.5, min_denormal},
                          {0x1p-149, 0x1p-1, 0x1.6a09e6p-75},
                          {0x1p-149, -0.5, 0x1.6a09e6p74}});
  ExpectCases("Pow_64f", {{2, 1023, 0x1p1023},
                          {2, 1024, inf},
                          {-2, 1025, -inf},
                          {2, -1022, min_normal},
                          {2, -1074, min_denormal},
                          {-2, -1073, -0x1p-1073},
                          {2, -1075, 0.0},
                          {-2, -1077, -0.0},
                          {2, -1074.5, min_denormal},
                          {0x1p-1074, 0.5, 0x1p-537}});
}

// Products next to the limits of the vector paths, on both sides, and next to the ends of the range.
TEST(Pow, Borders) {
  ExpectAccuracy("Pow_32f", mpfr_pow, {2},
                 Around(125.5, true) + Around(-125.5, true) + Around(127.99999, true) + Around(-126, true) +
                     Around(-135, true) + Around(-149, true));
  ExpectAccuracy("Pow_32f", mpfr_pow, Around(3, true), {79.18, 79.1805, -79.18, -79.1805, 80.75, -80, -85, -94});
  ExpectAccuracy("Pow_64f", mpfr_pow, {2},
                 Around(1021.5, false) + Around(-1021.5, false) + Around(1023.9999, false) + Around(-1022, false) +
                     Around(-1031, false) + Around(-1032, false) + Around(-1074, false));
  ExpectAccuracy("Pow_64f", mpfr_pow, Around(3, false), {644.49, 644.5, -644.49, -644.5, 646, -645, -650, -678});
}

// Powers whose results, rounded to a multiple of 2^-unit, are sure.
struct RoundedOnce {
  std::vector<ThreeValueCase> cases;
  void Add(double x, double y, int unit) {
    mpfr_t exact, fraction;
    mpfr_inits2(256, exact, fraction, nullptr);
    mpfr_set_d(exact, x, MPFR_RNDN);
    mpfr_t exponent;
    mpfr_init2(exponent, 64);
    mpfr_set_d(exponent, y, MPFR_RNDN);
    mpfr_pow(exact, exact, exponent, MPFR_RNDN);
    mpfr_mul_2si(exact, exact, unit, MPFR_RNDN);
    mpfr_frac(fraction, exact, MPFR_RNDN);
    // A result this far from a tie has to come out rounded to nearest, which a second rounding would spoil.
    if (std::fabs(std::fabs(mpfr_get_d(fraction, MPFR_RNDN)) - 0.5) > 0.03) {
      mpfr_rint(exact, exact, MPFR_RNDN);
      mpfr_div_2si(exact, exact, unit, MPFR_RNDN);
      cases.push_back({x, y, mpfr_get_d(exact, MPFR_RNDN)});
    }
    mpfr_clears(exact, fraction, exponent, nullptr);
  }
};

TEST(Pow, DenormalResultsAreRoundedOnce) {
  RoundedOnce single, twice;
  for (double x : Between(-1.9, -1.1, 60)) {
    const double base = static_cast<double>(static_cast<float>(x));
    for (double target = -126; target > -149; target -= 0.9) single.Add(base, std::rint(target / std::log2(-base)), 149);
    for (double target = -1022; target > -1074; target -= 1.9) twice.Add(x, std::rint(target / std::log2(-x)), 1074);
  }
  ASSERT_GT(single.cases.size(), 1000u);
  ASSERT_GT(twice.cases.size(), 1000u);
  ExpectCases("Pow_32f", single.cases);
  ExpectCases("Pow_64f", twice.cases);
}

// Results out of the vector range are the lane routine's, which serves all tags.
TEST(Pow, AccuracyOfTheLaneRoutine) {
  Arguments1 integers;
  for (int i = -60; i <= 60; ++i) integers.push_back(i);
  ExpectAccuracy("Pow_32f", mpfr_pow, Between(-4, -0.25), integers);
  ExpectAccuracy("Pow_64f", mpfr_pow, Between(-4, -0.25), integers);
  ExpectAccuracy("Pow_32f", mpfr_pow, Around(-1, true, 400) + Between(-1.01, -0.99), {0x1p20, -0x1p20, 1000, -3001, 0x1.8p13});
  ExpectAccuracy("Pow_64f", mpfr_pow, Around(-1, false, 400) + Between(-1 - 1e-9, -1 + 1e-9), {0x1p49, -0x1p49, 0x1p30, -3001});
  ExpectAccuracy("Pow_64f", mpfr_pow, BetweenMagnitudes(-1e-300, -1e300), {-1, 1, 2, -2, 3, -3});
}

TEST(Pow, AccuracyNextToOne) {
  for (const char* name : both) {
    const bool is_32bit = name[5] == '3';
    ExpectAccuracy(name, mpfr_pow, Around(1, is_32bit, 500), Between(-1e6, 1e6, 1000) + BetweenMagnitudes(1e-30, 1e5, 500));
    ExpectAccuracy(name, mpfr_pow, Between(0.98, 1.02), Between(-3000, 3000));
  }
}

TEST(Pow, AccuracyOverThePlane) {
  for (const char* name : both) {
    ExpectAccuracy(name, mpfr_pow, Between(0, 20), Between(-25, 25));
    ExpectAccuracy(name, mpfr_pow, BetweenMagnitudes(1e-30, 1e30), Between(-2, 2));
    // Integer and half-integer exponents, huge and tiny ones, denormal bases.
    Arguments1 halves;
    for (int i = -24; i <= 24; ++i) halves.push_back(i / 2.0);
    ExpectAccuracy(name, mpfr_pow, Between(0.1, 10), halves);
    ExpectAccuracy(name, mpfr_pow, BetweenMagnitudes(1e-35, 1e35), BetweenMagnitudes(1e-38, 1) + BetweenMagnitudes(-1e-38, -1));
    ExpectAccuracy(name, mpfr_pow, {0x1p-149, 0x1.8p-140, 0x1.9p-130, 0x1p-126}, Between(-0.9, 0.9));
  }
  ExpectAccuracy("Pow_64f", mpfr_pow, BetweenMagnitudes(1e-300, 1e300), Between(-1, 1));
  ExpectAccuracy("Pow_64f", mpfr_pow, {0x1p-1074, 0x1.8p-1040, 0x1p-1022}, Between(-0.95, 0.95));
}

}  // namespace
}  // namespace lum::test
