// Atan2: zeros, infinities and quadrants row by row, operands that the lane routine finishes, thresholds, accuracy. No tier
// ever reports.
#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

struct Constants {
  const char* name;
  Component half_pi, pi, quarter_pi, three_quarters_pi;
};
const Constants both[] = {{"Atan2_32f", FromBits(0x3FC90FDB), FromBits(0x40490FDB), FromBits(0x3F490FDB), FromBits(0x4016CBE4)},
                          {"Atan2_64f", FromBits(0x3FF921FB54442D18), FromBits(0x400921FB54442D18),
                           FromBits(0x3FE921FB54442D18), FromBits(0x4002D97C7F3321D2)}};

TEST(Atan2, OfTwoZeros) {
  for (const auto& c : both) {
    ExpectCases(c.name, {{0.0, 0.0, 0.0}, {-0.0, 0.0, -0.0}, {0.0, -0.0, c.pi}, {-0.0, -0.0, Value(-c.pi)}});
  }
}

TEST(Atan2, OfOneZero) {
  for (const auto& c : both) {
    for (const Component a : {Component(1.0), Component(max), Component(min_denormal), Component(inf)}) {
      ExpectCases(c.name, {{0.0, a, 0.0}, {-0.0, a, -0.0}, {0.0, -a, c.pi}, {-0.0, -a, Value(-c.pi)}});
      ExpectCases(c.name,
                  {{a, 0.0, c.half_pi}, {a, -0.0, c.half_pi}, {-a, 0.0, Value(-c.half_pi)}, {-a, -0.0, Value(-c.half_pi)}});
    }
  }
}

TEST(Atan2, Infinities) {
  for (const auto& c : both) {
    ExpectCases(c.name, {{inf, inf, c.quarter_pi},
                         {-inf, inf, Value(-c.quarter_pi)},
                         {inf, -inf, c.three_quarters_pi},
                         {-inf, -inf, Value(-c.three_quarters_pi)},
                         {inf, 3, c.half_pi},
                         {-inf, -3, Value(-c.half_pi)},
                         {3, inf, 0.0},
                         {-3, inf, -0.0},
                         {3, -inf, c.pi},
                         {-3, -inf, Value(-c.pi)}});
  }
}

TEST(Atan2, NanComesThroughSilently) {
  for (const auto& c : both) {
    for (const Component a : {Component(0.0), Component(1.0), Component(-inf), Component(nan)}) {
      ExpectCases(c.name, {{nan, a, any_nan}, {a, nan, any_nan}, {default_nan, a, any_nan}, {a, default_nan, any_nan}});
    }
  }
}

// Beyond the exponents of the vector path.
TEST(Atan2, EqualMagnitudesOfTheLaneRoutine) {
  ExpectCases("Atan2_32f", {{1e38, 1e38, both[0].quarter_pi}, {1e38, -1e38, both[0].three_quarters_pi}});
  for (const auto& c : both) {
    ExpectCases(c.name, {{max, max, c.quarter_pi},
                         {min_denormal, min_denormal, c.quarter_pi},
                         {-min_denormal, -min_denormal, Value(-c.three_quarters_pi)},
                         {max, min_denormal, c.half_pi},
                         {min_denormal, -max, c.pi},
                         {min_denormal, max, 0.0},
                         {-min_denormal, 1, -min_denormal}});
  }
}

// All four quadrants of the pairs y = ratio x.
void ExpectRatios(const char* name, const Arguments1& ratios, const Arguments1& magnitudes) {
  Arguments1 y, x;
  for (double ratio : ratios) {
    for (double magnitude : magnitudes) {
      for (int quadrant = 0; quadrant < 4; ++quadrant) {
        x.push_back(quadrant % 2 == 0 ? magnitude : -magnitude);
        y.push_back(quadrant / 2 == 0 ? magnitude * ratio : -magnitude * ratio);
      }
    }
  }
  // The partner of element i is the one at (7919 i + 1) mod n.
  Arguments1 partners(x.size());
  for (size_t i = 0; i < x.size(); ++i) partners[(i * 7919 + 1) % x.size()] = x[i];
  ExpectAccuracy(name, mpfr_atan2, y, partners);
}

TEST(Atan2, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 ratios;
    for (double a : {0.375, 0.4375, 0.6875, 0.72, 1.0, 1.1875, 1.75, 2.4375, 2.6875, 0.5, 1.5, 2.0})
      ratios = ratios + Around(a, is_32bit, 5);
    ExpectRatios(is_32bit ? "Atan2_32f" : "Atan2_64f", ratios, {1, 1.3, 1.9, 7.7e-20, 3e30});
  }
}

TEST(Atan2, Accuracy) {
  const Arguments1 ratios = BetweenMagnitudes(1e-3, 1e3, 500);
  ExpectRatios("Atan2_32f", ratios, {1.1, 1e-44, 1e-39, 3e-38, 6e-38, 1e-20, 1e34, 2e35, 3e37});
  ExpectRatios("Atan2_64f", ratios, {1.1, 5e-322, 1e-310, 4e-308, 9e-308, 1e-20, 1e298, 1e300, 1e304});
}

TEST(Atan2, AccuracyOfUnlikeMagnitudes) {
  ExpectRatios("Atan2_32f", BetweenMagnitudes(1e-38, 1e38, 500), {1.1, 1.7e-30, 1e-42});
  ExpectRatios("Atan2_64f", BetweenMagnitudes(1e-300, 1e300, 500), {1.1, 1.7e-100, 1e-312});
}

}  // namespace
}  // namespace lum::test
