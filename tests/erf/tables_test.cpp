// The packed tables: what the fields of each row read as, against values in multiple-precision arithmetic.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

#include "accuracy/number.h"
#include "erf/inverse_rows.h"
#include "tables/table.h"

namespace lum::test {
namespace {

using accuracy::Number;

constexpr auto erf_rows = table64({
#include "tables/generated/erf_64f_768_packed.inc"
});
constexpr auto erfc_rows = table64({
#include "tables/generated/erfc_64f_3488_packed.inc"
});
constexpr auto normal_rows = table64({
#include "tables/generated/cdfnorm_64f_4928_packed.inc"
});

constexpr mpfr_prec_t bits = 300;

// log2 of the relative error of head (1 + tail), or of head + head tail.
double LogError(double head, double tail, mpfr_srcptr exact) {
  Number sum(bits);
  mpfr_set_d(sum, tail, MPFR_RNDN);
  mpfr_add_ui(sum, sum, 1, MPFR_RNDN);
  mpfr_mul_d(sum, sum, head, MPFR_RNDN);
  mpfr_div(sum, sum, exact, MPFR_RNDN);
  mpfr_sub_ui(sum, sum, 1, MPFR_RNDN);
  return std::log2(std::fabs(mpfr_get_d(sum, MPFR_RNDN)));
}
uint64_t Word(const double* entry) { return std::bit_cast<uint64_t>(*entry); }
double FromWord(uint64_t word) { return std::bit_cast<double>(word); }
double Ulp(double x) { return std::ldexp(1, std::ilogb(x) - 52); }

TEST(ErrorFunctionTables, BothReadingsOfErf) {
  ASSERT_EQ(erf_rows.size, 2u * 768);
  for (size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(Word(&erf_rows[2 * i]), 0u);
    EXPECT_EQ(erf_rows[2 * i + 1], 0x1p32);
  }
  for (size_t i = 4; i < 768; ++i) {
    Number c(bits), exact(bits), slope(bits);
    mpfr_set_d(c, static_cast<double>(i) / 128, MPFR_RNDN);
    mpfr_erf(exact, c, MPFR_RNDN);
    const uint64_t word = Word(&erf_rows[2 * i]);
    const double head = FromWord(word & 0x007FFFFFFFFFFFFF) * 0x1p1016;
    const double tail = (FromWord(word >> 32 | 0x3FF0000000000000) - 1) * 0x1p-32;
    // The head alone is erf to double precision, cut; with the tail it is erf to nine bits more.
    EXPECT_LE(std::fabs(head - mpfr_get_d(exact, MPFR_RNDZ)), Ulp(head)) << i;
    EXPECT_LE(LogError(head, tail, exact), -60.9) << i;
    mpfr_sqr(slope, c, MPFR_RNDN);
    mpfr_neg(slope, slope, MPFR_RNDN);
    mpfr_exp(slope, slope, MPFR_RNDN);
    EXPECT_EQ(erf_rows[2 * i + 1], mpfr_get_d(slope, MPFR_RNDN) * 0x1p32) << i;
  }
}

// Value, tail and slope of a row, against exact ones times 2^128.
void ExpectRow(const double* row, mpfr_ptr value, mpfr_ptr slope, size_t i) {
  mpfr_mul_2ui(value, value, 128, MPFR_RNDN);
  mpfr_mul_2ui(slope, slope, 128, MPFR_RNDN);
  EXPECT_EQ(row[0], mpfr_get_d(value, MPFR_RNDZ)) << i;
  const uint64_t low = Word(row + 1) & 0x007FFFFFFFFFFFFF, exponent = Word(row) & 0x7FF0000000000000;
  EXPECT_EQ(FromWord(low + exponent), mpfr_get_d(slope, MPFR_RNDN)) << i;
  const double tail = static_cast<double>(Word(row + 1) >> 55) * 0x1p-61;
  EXPECT_LE(LogError(row[0], tail, value), -61) << i;
}
// exp(-c^2 / divisor) times a constant, which is in `slope` at entry.
void Density(mpfr_ptr slope, double c, double divisor) {
  Number e(bits);
  mpfr_set_d(e, -c * c / divisor, MPFR_RNDN);
  mpfr_exp(e, e, MPFR_RNDN);
  mpfr_mul(slope, slope, e, MPFR_RNDN);
}

TEST(ErrorFunctionTables, BothReadingsOfErfc) {
  ASSERT_EQ(erfc_rows.size, 2u * 3488);
  for (size_t i = 0; i < 3487; i += 5) {
    const double c = static_cast<double>(i) / 128;
    Number value(bits), slope(bits);
    mpfr_set_d(value, c, MPFR_RNDN);
    mpfr_erfc(value, value, MPFR_RNDN);
    mpfr_const_pi(slope, MPFR_RNDN);
    mpfr_rec_sqrt(slope, slope, MPFR_RNDN);
    mpfr_mul_2ui(slope, slope, 1, MPFR_RNDN);
    Density(slope, c, 1);
    ExpectRow(erfc_rows + 2 * i, value, slope, i);
  }
  EXPECT_EQ(erfc_rows[2 * 3487], 0);
}

TEST(ErrorFunctionTables, BothReadingsOfTheNormalDistribution) {
  ASSERT_EQ(normal_rows.size, 2u * 4928);
  for (size_t i = 0; i < 4928; i += 7) {
    const double c = static_cast<double>(i) / 128;
    Number value(bits), slope(bits);
    mpfr_sqrt_ui(value, 2, MPFR_RNDN);
    mpfr_d_div(value, c, value, MPFR_RNDN);
    mpfr_erfc(value, value, MPFR_RNDN);
    mpfr_div_2ui(value, value, 1, MPFR_RNDN);
    mpfr_const_pi(slope, MPFR_RNDN);  // twice 1 / sqrt(2 pi) is sqrt(2 / pi)
    mpfr_rec_sqrt(slope, slope, MPFR_RNDN);
    Number root2(bits);
    mpfr_sqrt_ui(root2, 2, MPFR_RNDN);
    mpfr_mul(slope, slope, root2, MPFR_RNDN);
    Density(slope, c, 2);
    ExpectRow(normal_rows + 2 * i, value, slope, i);
  }
}

// erfc of what a row says is the node, and the slope is exp of its square.
TEST(ErrorFunctionTables, InverseRowsBelongToTheirNodes) {
  constexpr size_t half = 52 * 128, last = 2 * half;
  ASSERT_EQ(erf::inverse_table.size, 2 * (last + 1));
  for (size_t k = 0; k <= last; k += 13) {
    const double node = FromWord((uint64_t{1023 - 53} << 52) + (std::min(k, last - k) << 45));
    const uint64_t word = Word(erf::inverse_table + 2 * k);
    const double head = FromWord((word & 0x03FFFFFFFFFFFFFF) + 0x3C8C000000000000);
    const double tail = static_cast<double>(word >> 58) * 0x1p-58;
    Number y(bits), image(bits), square(bits);
    mpfr_set_d(y, tail, MPFR_RNDN);
    mpfr_add_ui(y, y, 1, MPFR_RNDN);
    mpfr_mul_d(y, y, head, MPFR_RNDN);
    if (k <= half) mpfr_erfc(image, y, MPFR_RNDN);
    else mpfr_erf(image, y, MPFR_RNDN);
    // An error e of y is one of 2 y^2 e of its erfc, at most, and of e of its erf.
    const double y_head = mpfr_get_d(y, MPFR_RNDN);
    EXPECT_LE(LogError(node, 0, image), -58 + std::log2(k <= half ? std::max(1.0, 3 * y_head * y_head) : 1.01)) << k;
    mpfr_sqr(square, y, MPFR_RNDN);
    mpfr_exp(square, square, MPFR_RNDN);
    EXPECT_NEAR(erf::inverse_table[2 * k + 1] / mpfr_get_d(square, MPFR_RNDN), 1, 0x1p-51) << k;
  }
}

}  // namespace
}  // namespace lum::test
