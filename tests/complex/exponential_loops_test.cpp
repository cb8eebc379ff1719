// Log10, Pow, Powx and the square root of highest accuracy of complex numbers: special values, overflow, accuracy.
#include <cmath>
#include <complex>
#include <numbers>

#include "complex/points.h"
#include "support/cases.h"

namespace lum::test {
namespace {

constexpr double quarter_pi_log10 = 0.34109408846046035, log10_2 = 0.3010299956639812;

TEST(ComplexLog10, SpecialValues) {
  for (const char* name : {"Log10_32fc", "Log10_64fc"}) {
    ExpectCases(name, {{{-inf, inf}, {inf, 1.0232822653813811}},
                       {{-inf, -inf}, {inf, -1.0232822653813811}},
                       {{inf, inf}, {inf, quarter_pi_log10}},
                       {{inf, -inf}, {inf, -quarter_pi_log10}},
                       {{3, inf}, {inf, 2 * quarter_pi_log10}},
                       {{-3, -inf}, {inf, -2 * quarter_pi_log10}},
                       {{0, inf}, {inf, 2 * quarter_pi_log10}},
                       {{-inf, 3}, {inf, 1.3643763538418412}},
                       {{-inf, -3}, {inf, -1.3643763538418412}},
                       {{-inf, 0}, {inf, 1.3643763538418412}},
                       {{inf, 3}, {inf, 0}},
                       {{inf, -3}, {inf, -0.0}},
                       {{inf, -0.0}, {inf, -0.0}},
                       {{-0.0, 0}, {-inf, 4 * quarter_pi_log10}},
                       {{-0.0, -0.0}, {-inf, -4 * quarter_pi_log10}},
                       {{0, 0}, {-inf, 0}},
                       {{0, -0.0}, {-inf, -0.0}},
                       {{nan, inf}, {inf, any_nan}},
                       {{inf, nan}, {inf, any_nan}},
                       {{-inf, nan}, {inf, any_nan}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{0, nan}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}},
                       {{1, 0}, {0, 0}},
                       {{1, -0.0}, {0, -0.0}},
                       {{2, 0}, {log10_2, 0}},
                       {{-2, -0.0}, {log10_2, -4 * quarter_pi_log10}},
                       {{0, 2}, {log10_2, 2 * quarter_pi_log10}}});
  }
}

TEST(ComplexSqrt, SpecialValuesOfTheHighTag) {
  ExpectCases("Sqrt_64fc_A53", {{{-4, 0}, {0, 2}},
                                {{-4, -0.0}, {0, -2}},
                                {{4, 0}, {2, 0}},
                                {{4, -0.0}, {2, -0.0}},
                                {{0, 0}, {0, 0}},
                                {{-0.0, 0}, {0, 0}},
                                {{-0.0, -0.0}, {0, -0.0}},
                                {{0, 2}, {1, 1}},
                                {{-0.0, -2}, {1, -1}},
                                {{3, 4}, {2, 1}},
                                {{-3, 4}, {1, 2}},
                                {{-3, -4}, {1, -2}},
                                {{nan, -inf}, {inf, -inf}},
                                {{-inf, inf}, {inf, inf}},
                                {{1, inf}, {inf, inf}},
                                {{-inf, nan}, {any_nan, inf}},
                                {{inf, nan}, {inf, any_nan}},
                                {{-inf, 3}, {0, inf}},
                                {{-inf, -0.0}, {0, -inf}},
                                {{inf, -3}, {inf, -0.0}},
                                {{inf, 0}, {inf, 0}},
                                {{nan, 1}, {any_nan, any_nan}},
                                {{0, nan}, {any_nan, any_nan}},
                                {{nan, nan}, {any_nan, any_nan}}});
}

TEST(ComplexSqrt, AccuracyOfTheHighTag) {
  ExpectComplexAccuracy("Sqrt_64fc_A53", PlanePoints(*ExportsNamed("Sqrt_64fc_A53").at(0)), {ComplexBound::parts, 0.6});
}

TEST(ComplexLog10, Accuracy) { ExpectPartsWithinOneUlp("Log10"); }

TEST(ComplexPow, ZeroToAPower) {
  for (const char* name : {"Pow_32fc", "Pow_64fc", "Powx_32fc", "Powx_64fc"}) {
    ExpectCases(name, {{{0, 0}, {0, 0}, {any_nan, any_nan}}, {{0, 0}, {2, 1}, {0, -0.0}}, {{0, 0}, {2, 0}, {0, 0}}});
  }
}

TEST(ComplexPow, SpecialValues) {
  for (const char* name : {"Pow_32fc", "Pow_64fc", "Powx_32fc", "Powx_64fc"}) {
    ExpectCases(name, {{{1, 0}, {2, 3}, {1, 0}},
                       {{5, 7}, {0, 0}, {1, 0}},
                       {{1, 0}, {nan, 0}, {any_nan, any_nan}},
                       {{nan, 1}, {2, 0}, {any_nan, any_nan}},
                       {{inf, 0}, {1, 0}, {inf, any_nan}},
                       {{1, inf}, {1, 1}, {inf, any_nan}}});
  }
}

TEST(ComplexPow, FiniteOverflowReports) {
  for (const char* name : {"Pow_64fc", "Powx_64fc"}) {
    ExpectCases(name, {{{1e200, 1}, {2, 0.5}, {-inf, -inf}, lumStsOverflow}, {{1e200, 1e200}, {2, 0}, {inf, inf}}});
  }
  for (const char* name : {"Pow_32fc", "Powx_32fc"}) {
    ExpectCases(name, {{{1e30, 1}, {2, 0.0625}, {-inf, -inf}, lumStsOverflow}, {{1e30, 1e30}, {2, 0}, {inf, inf}}});
  }
}

// The exponent may lie in the memory of the results.
TEST(ComplexPowx, ExponentInTheMemoryOfTheResult) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const Callee callee(*TestLibrary(name, "", reason), *ExportsNamed("Powx_64fc_A53").at(0));
    const auto powx = reinterpret_cast<LumStatus (*)(const Lum64fc*, Lum64fc, Lum64fc*, int32_t)>(callee.address());
    const Lum64fc src[3] = {{2, 1}, {3, -1}, {0.5, 4}};
    const Lum64fc exponent = {1.5, 0.25};
    Lum64fc apart[3], shared[3] = {exponent, {}, {}};
    EXPECT_EQ(powx(src, exponent, apart, 3), lumStsOk);
    EXPECT_EQ(powx(src, shared[0], shared, 3), lumStsOk);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(shared[i].re, apart[i].re) << i;
      EXPECT_EQ(shared[i].im, apart[i].im) << i;
    }
  }
}

// The product of exponent and logarithm is rounded: its error, relative to the result, is a few units of its own last place.
TEST(ComplexPow, AccuracyOfModerateResults) {
  for (const char* type : {"32fc", "64fc"}) {
    const bool is_32bit = type[0] == '3';
    const auto& entry = *ExportsNamed(std::string("Pow_") + type).at(0);
    std::vector<accuracy::Point> points;
    for (const auto& p : accuracy::SamplePoints(entry, 3000)) {
      const std::complex<double> product = std::complex<double>(p.re2, p.im2) * std::log(std::complex<double>(p.re1, p.im1));
      if (std::abs(product) < 20) points.push_back(p);
    }
    ASSERT_GT(points.size(), 500u);
    // Four roundings of at most 20 in binary64, and the two of the exponential.
    ExpectComplexAccuracy(std::string("Pow_") + type, points, {ComplexBound::norm, is_32bit ? 0.75 : 4 * 20 + 1.0});
    ExpectComplexAccuracy(std::string("Powx_") + type, points, {ComplexBound::norm, is_32bit ? 0.75 : 4 * 20 + 1.0});
  }
}

}  // namespace
}  // namespace lum::test
