#include "complex/extended.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

namespace lum::test {
namespace {

constexpr mpfr_prec_t argument_bits = 113, reference_bits = 64 + 40;
constexpr mpfr_exp_t least_unit = -16445;

std::mt19937_64& Generator() {
  static std::mt19937_64 generator(20260101);
  return generator;
}

struct Worst {
  double error = 0;
  Extended x = 0, y = 0, result = 0;

  void See(double e, Extended at_x, Extended at_y, Extended got) {
    if (!(e <= error)) *this = {e, at_x, at_y, got};
  }

  void Report(const char* name) const {
    char text[200];
    std::snprintf(text, sizeof text, "%.4f at (%.22Lg, %.22Lg), which gives %.22Lg", error, x, y, result);
    testing::Test::RecordProperty(name, text);
    EXPECT_LT(error, 1) << name << ": " << text;
  }
};

}  // namespace

Extended FromFields(int exponent, uint64_t significand) { return from_fields({static_cast<uint32_t>(exponent), significand}); }

Numbers OfExponents(int first, int last, int count, bool positive_only) {
  Numbers x = {FromFields(first, uint64_t{1} << 63), FromFields(last, ~uint64_t{0})};
  for (int e = first; e <= last; ++e)
    for (int i = 0; i < count; ++i) x.push_back(FromFields(e, Generator()() | uint64_t{1} << 63));
  if (positive_only) return x;
  for (size_t i = 0; i < x.size(); i += 2) x[i] = -x[i];
  return x;
}

Numbers Uniform(Extended low, Extended high, int count) {
  std::uniform_real_distribution<Extended> distribution(low, high);
  Numbers x = {low, high};
  for (int i = 0; i < count; ++i) x.push_back(distribution(Generator()));
  return x;
}

Numbers Around(Extended x, int steps) {
  Numbers around = {x};
  Extended below = x, above = x;
  for (int i = 0; i < steps; ++i) {
    below = std::nextafter(below, -infinity);
    above = std::nextafter(above, infinity);
    around.push_back(below);
    around.push_back(above);
  }
  return around;
}

Numbers AroundExponent(int exponent) {
  const Extended x = FromFields(exponent, uint64_t{1} << 63);
  return Around(x) + Around(-x);
}

Numbers operator+(Numbers a, const Numbers& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

testing::AssertionResult Same(Extended actual, Extended expected) {
  const bool both_nan = std::isnan(actual) && std::isnan(expected);
  if (both_nan || (actual == expected && std::signbit(actual) == std::signbit(expected))) return testing::AssertionSuccess();
  return testing::AssertionFailure() << actual << " instead of " << expected;
}

Extended SignallingNaN() {
  const uint64_t quiet_bit = uint64_t{1} << 62;
  return FromFields(extended_special, (uint64_t{1} << 63 | 0x100000) & ~quiet_bit);
}

double Error(Extended result, mpfr_srcptr exact) {
  if (std::isnan(result) || mpfr_nan_p(exact)) return std::isnan(result) && mpfr_nan_p(exact) ? 0 : HUGE_VAL;
  mpfr_t value, difference;
  mpfr_init2(value, argument_bits);
  mpfr_init2(difference, reference_bits);
  mpfr_set_ld(value, result, MPFR_RNDN);
  if (std::isinf(result)) mpfr_set_si_2exp(value, result > 0 ? 1 : -1, ExtendedLimits::max_exponent, MPFR_RNDN);
  const bool beyond = mpfr_regular_p(exact) && mpfr_get_exp(exact) > ExtendedLimits::max_exponent;
  double error = 0;
  if (beyond || mpfr_inf_p(exact)) {
    error = std::isinf(result) && mpfr_sgn(value) == mpfr_sgn(exact) ? 0 : HUGE_VAL;
  } else {
    const mpfr_exp_t unit = mpfr_zero_p(exact) ? least_unit : std::max<mpfr_exp_t>(mpfr_get_exp(exact) - 64, least_unit);
    mpfr_sub(difference, value, exact, MPFR_RNDN);
    mpfr_mul_2si(difference, difference, -unit, MPFR_RNDN);
    error = std::fabs(mpfr_get_d(difference, MPFR_RNDN));
  }
  mpfr_clears(value, difference, nullptr);
  return error;
}

void ExpectAccurate(const char* name, Function* function, MpfrFunction* reference, const Numbers& x) {
  Worst worst;
  mpfr_t argument, exact;
  mpfr_init2(argument, argument_bits);
  mpfr_init2(exact, reference_bits);
  for (const Extended a : x) {
    Extended result = 0;
    function(result, a);
    mpfr_set_ld(argument, a, MPFR_RNDN);
    reference(exact, argument, MPFR_RNDN);
    worst.See(Error(result, exact), a, 0, result);
  }
  mpfr_clears(argument, exact, nullptr);
  worst.Report(name);
}

void ExpectAccurate(const char* name, Function2* function, MpfrFunction2* reference, const Numbers& x, const Numbers& y) {
  Worst worst;
  mpfr_t first, second, exact;
  mpfr_init2(first, argument_bits);
  mpfr_init2(second, argument_bits);
  mpfr_init2(exact, reference_bits);
  for (size_t i = 0; i < std::max(x.size(), y.size()); ++i) {
    const Extended a = x[i % x.size()], b = y[i % y.size()];
    Extended result = 0;
    function(result, a, b);
    mpfr_set_ld(first, a, MPFR_RNDN);
    mpfr_set_ld(second, b, MPFR_RNDN);
    reference(exact, first, second, MPFR_RNDN);
    worst.See(Error(result, exact), a, b, result);
  }
  mpfr_clears(first, second, exact, nullptr);
  worst.Report(name);
}

}  // namespace lum::test
