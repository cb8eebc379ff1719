// The binary64 values that measure functions over all 2^32 arguments, against multiple-precision arithmetic.
#include "accuracy/cheap_reference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
#include <limits>
#include <random>
#include <vector>

#include "accuracy/inputs.h"

namespace lum::accuracy {
namespace {

using support::Export;

// Samples of what the accuracy report takes, and any bit patterns.
std::vector<float> Arguments(const Export& entry) {
  std::vector<Point> points = SamplePoints(entry, 2000);
  std::mt19937 generator(1);
  std::ranges::shuffle(points, generator);
  std::vector<float> x;
  for (size_t i = 0; i < std::min<size_t>(points.size(), 1000); ++i) x.push_back(static_cast<float>(points[i].re1));
  for (int i = 0; i < 500; ++i) x.push_back(std::bit_cast<float>(static_cast<uint32_t>(generator())));
  const float infinity = std::numeric_limits<float>::infinity();
  const float special[] = {0.0F, -0.0F, 0.5F, 1.0F, -1.0F, 2.0F, infinity, -infinity, std::nanf("")};
  x.insert(x.end(), std::begin(special), std::end(special));
  return x;
}

void ExpectValue(const Export& entry, float x, double value, mpfr_ptr exact) {
  SCOPED_TRACE(testing::Message() << entry.function << " at " << x << ", pattern " << std::bit_cast<uint32_t>(x));
  const double rounded = mpfr_get_d(exact, MPFR_RNDN);
  if (!std::isnormal(rounded)) {
    // What is denormal in binary64 is nothing in binary32.
    EXPECT_EQ(std::fpclassify(value) == FP_SUBNORMAL ? FP_ZERO : std::fpclassify(value),
              std::fpclassify(rounded) == FP_SUBNORMAL ? FP_ZERO : std::fpclassify(rounded));
    EXPECT_TRUE(std::isnan(rounded) || std::signbit(value) == std::signbit(rounded));
    return;
  }
  mpfr_sub_d(exact, exact, value, MPFR_RNDN);
  EXPECT_LT(std::fabs(mpfr_get_d(exact, MPFR_RNDN)), cheap_error * std::fabs(rounded));
}

TEST(CheapReference, AgreesWithTheExactValues) {
  std::string_view former;
  for (const Export& entry : support::Exports()) {
    const CheapReference cheap = FindCheapReference(entry);
    if (cheap == nullptr || entry.function == former) continue;
    former = entry.function;
    const std::vector<float> x = Arguments(entry);
    std::vector<double> part1(x.size()), part2(x.size());
    cheap(x, part1, part2);
    const Reference reference = FindReference(entry);
    mpfr_t exact1, exact2;
    mpfr_inits2(precision, exact1, exact2, nullptr);
    for (size_t i = 0; i < x.size(); ++i) {
      reference(exact1, exact2, {static_cast<double>(x[i]), 0, 0, 0});
      ExpectValue(entry, x[i], part1[i], exact1);
      if (Parts(entry) == 2) ExpectValue(entry, x[i], part2[i], exact2);
    }
    mpfr_clears(exact1, exact2, nullptr);
  }
}

TEST(CheapReference, ExistsForEveryFunctionOfOne32BitRealInput) {
  for (const Export& entry : support::Exports()) {
    const bool is_one_input = entry.shape == support::Shape::OneInput || entry.shape == support::Shape::TwoOutputs;
    EXPECT_EQ(FindCheapReference(entry) != nullptr, is_one_input && entry.type == "32f") << entry.name;
  }
}

}  // namespace
}  // namespace lum::accuracy
