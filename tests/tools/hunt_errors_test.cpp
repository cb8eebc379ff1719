// The errors of the wide search where results overflow: what is settled by multiple precision is what binary64 cannot decide.
#include "accuracy/hunt_errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

namespace lum::accuracy {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largest = 0x1.fffffep127;
constexpr double halfway = 0x1.ffffffp127;  // from here on binary32 rounds to infinity

// The error of a result of binary32 whose value in binary64 is given.
double ErrorOf(bool is_complex, double result1, double result2, double value1, double value2) {
  const auto values = std::make_unique<HuntValues>(true, is_complex, is_complex ? 2 : 1);
  const auto columns = std::make_unique<std::array<HuntColumn, 2>>();
  (*columns)[0].fill(value1);
  (*columns)[1].fill(value2);
  values->Take(*columns);
  (*columns)[0].fill(result1);
  (*columns)[1].fill(result2);
  const auto errors = std::make_unique<HuntColumn>();
  values->Errors(*columns, *errors);
  return (*errors)[hunt_block - 1];
}
double ComplexError(double result1, double result2, double value1, double value2) {
  const double error = ErrorOf(true, result1, result2, value1, value2),
               turned = ErrorOf(true, result2, -result1, value2, -value1);
  EXPECT_TRUE(error == turned || (std::isnan(error) && std::isnan(turned)));
  return error;
}

TEST(HuntErrors, ComplexResultsThatOverflowAsTheirValuesDoAreNoCandidates) {
  for (const double value : {halfway, 0x1p128, 0x1p200, 0x1p1000, infinity}) {
    EXPECT_EQ(ComplexError(infinity, 1, value, 1), 0) << value;
    EXPECT_EQ(ComplexError(-infinity, 1, -value, 1), 0) << value;
    EXPECT_EQ(ComplexError(infinity, -infinity, value, -2 * value), 0) << value;
    EXPECT_EQ(ComplexError(infinity, largest, value, largest), 0) << value;
  }
}
TEST(HuntErrors, ComplexResultsOnTheWrongSideOfTheLargestNumberAreCandidates) {
  EXPECT_TRUE(std::isnan(ComplexError(infinity, 1, std::nextafter(halfway, 0.0), 1)));
  EXPECT_TRUE(std::isnan(ComplexError(largest, 1, halfway, 1)));
  EXPECT_TRUE(std::isnan(ComplexError(infinity, infinity, halfway, 0x1p127)));
  EXPECT_TRUE(std::isnan(ComplexError(infinity, 1, largest, 1)));
  EXPECT_TRUE(std::isnan(ComplexError(1, std::nan(""), 1, 1)));
}
TEST(HuntErrors, ComplexErrorsNextToTheLargestNumberAreThoseOfTheModulus) {
  EXPECT_EQ(ComplexError(largest, 0, largest - 0x1p103, 0), 0x1p103 * 0x1p23 / (largest - 0x1p103));
}
TEST(HuntErrors, RealResultsThatOverflowAreOneUnitFromTheLargestNumber) {
  EXPECT_EQ(ErrorOf(false, infinity, 0, 0x1p128, 0), 0);
  EXPECT_EQ(ErrorOf(false, infinity, 0, 0x1p300, 0), 0);
  EXPECT_EQ(ErrorOf(false, infinity, 0, halfway, 0), 0.5);
  EXPECT_EQ(ErrorOf(false, infinity, 0, largest, 0), 1);
  EXPECT_EQ(ErrorOf(false, largest, 0, 0x1p128, 0), 1);
  EXPECT_GT(ErrorOf(false, -infinity, 0, 0x1p128, 0), 1e6);
}

}  // namespace
}  // namespace lum::accuracy
