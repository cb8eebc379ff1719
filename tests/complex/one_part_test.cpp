// The formulas that results of 32 bits take in one part against the same in pairs. The paths narrow by a distance of 2^-46,
// which the errors of these parts and of the products that follow have to stay well below.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "complex/arc_parts.h"
#include "complex/hyperbolic_factors.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr double bound = 0x1p-50;

// Numbers of binary32: of everyday size, of any size, next to 1, and next to multiples of pi/4.
Vec<Lum64f> Arguments(std::mt19937_64& generator, double largest) {
  std::uniform_real_distribution<double> unit(0, 1);
  alignas(64) double x[lanes_of<Lum64f>];
  for (double& v : x) {
    const double u = unit(generator), shrink = std::ldexp(1.0, -static_cast<int>(generator() % 40));
    switch (generator() % 5) {
      case 0:
        v = 3 * u;
        break;
      case 1:
        v = largest * u * shrink;
        break;
      case 2:
        v = 1 + shrink * (u - 0.5);
        break;
      case 3:
        v = std::ldexp(u, static_cast<int>(generator() % 80) - 79);
        break;
      default:
        v = std::floor(std::ldexp(u, static_cast<int>(generator() % 36))) * numbers::pi<Lum64f> / 4;
    }
    v = static_cast<float>(std::fmin(v, largest));
  }
  return load(x);
}

void ExpectNear(OnePart one, HeadTail pair, Mask<Lum64f> refused, const char* name) {
  alignas(64) double value[lanes_of<Lum64f>], head[lanes_of<Lum64f>], tail[lanes_of<Lum64f>];
  store(value, one.head);
  store(head, pair.head);
  store(tail, pair.tail);
  for (int i = 0; i < lanes_of<Lum64f>; ++i) {
    if ((to_bits(refused) >> i & 1) != 0) continue;
    ASSERT_LE(std::fabs((value[i] - head[i]) - tail[i]), bound * std::fabs(head[i])) << name << " of value " << head[i];
  }
}

constexpr int repetitions = 20000;

TEST(OnePart, CircularAndHyperbolicFactors) {
  std::mt19937_64 generator(1);
  for (int n = 0; n < repetitions; ++n) {
    const auto exponent = Arguments(generator, largest_exponent), angle = Arguments(generator, largest_angle);
    const auto one = FactorsOf<OnePart>(exponent, angle, largest_exponent);
    const auto pair = FactorsOf<HeadTail>(exponent, angle, largest_exponent);
    ASSERT_EQ(to_bits(one.refused & ~pair.refused), 0u);
    ExpectNear(one.sine, pair.sine, pair.refused, "sine");
    ExpectNear(one.cosine, pair.cosine, pair.refused, "cosine");
    ExpectNear(one.sinh, pair.sinh, pair.refused, "hyperbolic sine");
    ExpectNear(one.cosh, pair.cosh, pair.refused, "hyperbolic cosine");
    ExpectNear(Exponential<OnePart>(exponent), Exponential<HeadTail>(exponent), mask_of<Lum64f>(0), "exponential");
  }
}

// Beyond the domain of the pairs.
TEST(OnePart, SineAndCosineOfFarAngles) {
  if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP();
  std::mt19937_64 generator(4);
  for (int n = 0; n < repetitions; ++n) {
    const auto angles = Arguments(generator, largest_angle_of<OnePart>);
    const auto one = SineCosineOf<OnePart>(angles);
    alignas(64) double y[lanes_of<Lum64f>], sine[lanes_of<Lum64f>], cosine[lanes_of<Lum64f>];
    store(y, angles);
    store(sine, one.sine.head);
    store(cosine, one.cosine.head);
    for (int i = 0; i < lanes_of<Lum64f>; ++i) {
      if ((to_bits(one.refused) >> i & 1) != 0) continue;
      const long double s = std::sin(static_cast<long double>(y[i])), c = std::cos(static_cast<long double>(y[i]));
      ASSERT_LE(std::fabs(sine[i] - s), bound * std::fabs(s)) << y[i];
      ASSERT_LE(std::fabs(cosine[i] - c), bound * std::fabs(c)) << y[i];
    }
  }
}

template <Arc arc> void CompareInverseParts() {
  std::mt19937_64 generator(2);
  for (int n = 0; n < repetitions; ++n) {
    const auto u = Arguments(generator, 0x1p120), v = Arguments(generator, 0x1p120);
    const auto one = InverseParts<arc, OnePart>(u, v);
    const auto pair = InverseParts<arc, HeadTail>(u, v);
    ExpectNear(one.angle, pair.angle, mask_of<Lum64f>(0), "angle");
    ExpectNear(one.logarithm, pair.logarithm, mask_of<Lum64f>(0), "logarithm");
  }
}
TEST(OnePart, Arccosine) { CompareInverseParts<Arc::cosine>(); }
TEST(OnePart, Arcsine) { CompareInverseParts<Arc::sine>(); }

TEST(OnePart, LogarithmAndAngle) {
  std::mt19937_64 generator(3);
  for (int n = 0; n < repetitions; ++n) {
    const auto x = Arguments(generator, 0x1p120), y = Arguments(generator, 0x1p120);
    const auto none_refused = mask_of<Lum64f>(0);
    ExpectNear(LogarithmOfOnePlus(OnePart{x}), LogarithmOfOnePlus(HeadTail{x, all(0.0)}), none_refused, "logarithm");
    ExpectNear(Angle(OnePart{y}, OnePart{x}), Angle(HeadTail{y, all(0.0)}, HeadTail{x, all(0.0)}), IsZero(y) | IsZero(x),
               "angle");
    ExpectNear(Angle(OnePart{y}, OnePart{negate(x)}), Angle(HeadTail{y, all(0.0)}, HeadTail{negate(x), all(0.0)}),
               IsZero(y) | IsZero(x), "angle");
  }
}

}  // namespace
}  // namespace lum::inline LUM_LAYER::complex
