// Sine and cosine in extended precision, and the reduction below them.
#include <cmath>

#include "complex/circular_arguments.h"
#include "complex/core/ext_reduce.h"

namespace lum::test {
namespace {

TEST(ExtCircular, Accuracy) {
  const Numbers x = CircularArguments();
  ExpectAccurate("ExtSin", ExtSin, mpfr_sin, x);
  ExpectAccurate("ExtCos", ExtCos, mpfr_cos, x);
}

TEST(ExtCircular, BothAreTheTwo) {
  for (const Extended x : CircularArguments() + Specials()) {
    Extended sine = 0, cosine = 0, both_sine = 0, both_cosine = x;
    ExtSin(sine, x);
    ExtCos(cosine, x);
    ExtSinCos(both_cosine, both_sine, both_cosine);  // a result may lie over the argument
    EXPECT_TRUE(Same(both_sine, sine)) << x;
    EXPECT_TRUE(Same(both_cosine, cosine)) << x;
  }
}

TEST(ExtCircular, SpecialValues) {
  struct Row {
    Extended x, sine, cosine;
  };
  const Extended tiny = ExtendedLimits::denorm_min();
  for (const Row& row : {Row{0.0L, 0.0L, 1},
                         {-0.0L, -0.0L, 1},
                         {tiny, tiny, 1},
                         {-tiny, -tiny, 1},
                         {infinity, not_a_number, not_a_number},
                         {-infinity, not_a_number, not_a_number},
                         {not_a_number, not_a_number, not_a_number},
                         {SignallingNaN(), not_a_number, not_a_number}}) {
    Extended sine = 5, cosine = 5;
    ExtSin(sine, row.x);
    ExtCos(cosine, row.x);
    EXPECT_TRUE(Same(sine, row.sine)) << row.x;
    EXPECT_TRUE(Same(cosine, row.cosine)) << row.x;
  }
}

// The remainder and the octants modulo 8, in a precision that holds every number and its multiples of pi/4.
TEST(ExtReducePi4, RemainderAndCount) {
  mpfr_t exact, quarter_pi, quotient, half;
  mpfr_inits2(17000, exact, quarter_pi, quotient, half, nullptr);
  mpfr_const_pi(quarter_pi, MPFR_RNDN);
  mpfr_div_2ui(quarter_pi, quarter_pi, 2, MPFR_RNDN);
  for (const Extended x : OfExponents(0x3ff0, 0x4030, 20) + NearMultiplesOfHalfPi(-40, 16320, 211)) {
    ExtendedPair remainder;
    const int64_t count = ExtReducePi4(remainder, x);
    mpfr_set_ld(exact, x, MPFR_RNDN);
    mpfr_div(quotient, exact, quarter_pi, MPFR_RNDN);
    // The even count nearest to the quotient, up to the error of the choice next to odd ones.
    mpfr_sub_si(half, quotient, count, MPFR_RNDN);
    mpfr_div_2ui(half, half, 3, MPFR_RNDN);
    mpfr_round(quotient, half);
    mpfr_sub(half, half, quotient, MPFR_RNDN);
    mpfr_mul_2ui(half, half, 3, MPFR_RNDN);
    mpfr_mul(exact, half, quarter_pi, MPFR_RNDN);
    EXPECT_LE(std::abs(mpfr_get_d(half, MPFR_RNDN)), 1 + 1e-15) << x;
    EXPECT_EQ(count % 2, 0) << x;
    mpfr_set_ld(quotient, remainder.head, MPFR_RNDN);
    mpfr_sub(half, exact, quotient, MPFR_RNDN);
    mpfr_set_ld(quotient, remainder.tail, MPFR_RNDN);
    mpfr_sub(half, half, quotient, MPFR_RNDN);
    mpfr_div(half, half, exact, MPFR_RNDN);
    EXPECT_LT(std::abs(mpfr_get_d(half, MPFR_RNDN)), 0x1p-66) << x;
  }
  mpfr_clears(exact, quarter_pi, quotient, half, nullptr);
}

}  // namespace
}  // namespace lum::test
