// Exp, Ln, Sqrt, Abs and Arg of complex numbers: special values, refusals, accuracy at each tag.
#include <cmath>
#include <numbers>

#include "complex/points.h"
#include "support/cases.h"

namespace lum::test {
namespace {

constexpr double pi = std::numbers::pi;

TEST(ComplexExp, SpecialValues) {
  for (const char* name : {"Exp_32fc", "Exp_64fc"}) {
    ExpectCases(name, {{{0, 0}, {1, 0}},
                       {{0, -0.0}, {1, -0.0}},
                       {{-0.0, 0}, {1, 0}},
                       {{inf, 0}, {inf, 0}},
                       {{inf, -0.0}, {inf, -0.0}},
                       {{-inf, 0}, {0, 0}},
                       {{-inf, -0.0}, {0, -0.0}},
                       {{nan, 0}, {any_nan, 0}},
                       {{nan, -0.0}, {any_nan, -0.0}},
                       {{inf, 2}, {-inf, inf}},
                       {{inf, -1}, {inf, -inf}},
                       {{-inf, 2}, {-0.0, 0}},
                       {{-inf, -1}, {0, -0.0}},
                       {{-inf, inf}, {0, 0}},
                       {{-inf, -inf}, {0, -0.0}},
                       {{-inf, nan}, {0, 0}},
                       {{inf, inf}, {inf, any_nan}},
                       {{inf, nan}, {inf, any_nan}},
                       {{1, inf}, {any_nan, any_nan}},
                       {{0, -inf}, {any_nan, any_nan}},
                       {{1, nan}, {any_nan, any_nan}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{nan, inf}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}}});
  }
}

// A zero part means that the infinity is meant; A24 does not look at finite overflows of the vector path.
TEST(ComplexExp, Overflow) {
  ExpectCases(
      "Exp_32fc_A11",
      {{{89, 0}, {inf, 0}}, {{89, 1}, {FromBits(0x7F367E36), inf}, lumStsOverflow}, {{90, 2}, {-inf, inf}, lumStsOverflow}});
  ExpectCases("Exp_32fc_A24",
              {{{90, 1}, {inf, inf}}, {{90, 2}, {-inf, inf}}, {{709, 1}, {inf, inf}, lumStsOverflow}, {{709, 0}, {inf, 0}}});
  ExpectCases("Exp_64fc",
              {{{711, 1}, {inf, inf}, lumStsOverflow}, {{1e300, -1}, {inf, -inf}, lumStsOverflow}, {{711, -0.0}, {inf, -0.0}}});
}

// A part below the range is a zero with the sign of the part.
TEST(ComplexExp, Underflow) {
  ExpectCases("Exp_64fc", {{{-400, -1e-200}, {FromBits(0x1BDE50C483C04DCD), -0.0}},
                           {{-400, 1e-200}, {FromBits(0x1BDE50C483C04DCD), 0}},
                           {{-800, 2}, {-0.0, 0}},
                           {{-800, -1}, {0, -0.0}}});
}

TEST(ComplexExp, BeyondTheThresholdsOfTheVectorPath) {
  ExpectComplexAccuracy(
      "Exp_32fc",
      {{1, 10000}, {1, 10000.0009765625}, {1, 0x1p100}, {87.33653259277344, 1}, {87.3365478515625, 1}, {-100, 3}, {-200, 1}},
      {ComplexBound::norm});
  ExpectComplexAccuracy(
      "Exp_64fc",
      {{1, 16777216}, {1, 16777216.5}, {1, 1e300}, {511.9, 1}, {512, 1}, {-512, 1}, {-513, 1e-10}, {3, 600}, {700, 1}},
      {ComplexBound::norm});
}

TEST(ComplexExp, Accuracy) {
  for (const char* name : {"Exp_32fc", "Exp_64fc"}) {
    ExpectComplexAccuracy(name, PlanePoints(*ExportsNamed(name).at(0)), {ComplexBound::norm});
  }
}

// The parts of an exponential are well conditioned for arguments of ordinary size.
TEST(ComplexExp, AccuracyOfThePartsAtTheHighTags) {
  std::vector<accuracy::Point> points;
  Random random(3);
  const auto uniform = [&](double size) { return size * (static_cast<double>(random() >> 40) * 0x1p-23 - 1); };
  for (int i = 0; i < 3000; ++i) points.push_back({static_cast<float>(uniform(80)), static_cast<float>(uniform(9)), 0, 0});
  ExpectComplexAccuracy("Exp_32fc_A24", points, {ComplexBound::parts, 1});
  ExpectComplexAccuracy("Exp_64fc_A53", points, {ComplexBound::parts, 1});
}

TEST(ComplexLn, SpecialValues) {
  for (const char* name : {"Ln_32fc", "Ln_64fc"}) {
    ExpectCases(name, {{{0, 0}, {-inf, 0}},
                       {{0, -0.0}, {-inf, -0.0}},
                       {{-0.0, 0}, {-inf, pi}},
                       {{-0.0, -0.0}, {-inf, -pi}},
                       {{1, 0}, {0, 0}},
                       {{1, -0.0}, {0, -0.0}},
                       {{-1, 0}, {0, pi}},
                       {{-1, -0.0}, {0, -pi}},
                       {{0, 1}, {0, pi / 2}},
                       {{-0.0, -1}, {0, -pi / 2}},
                       {{inf, 0}, {inf, 0}},
                       {{inf, -3}, {inf, -0.0}},
                       {{-inf, 3}, {inf, pi}},
                       {{-inf, -0.0}, {inf, -pi}},
                       {{3, inf}, {inf, pi / 2}},
                       {{-3, -inf}, {inf, -pi / 2}},
                       {{inf, inf}, {inf, pi / 4}},
                       {{-inf, inf}, {inf, 3 * pi / 4}},
                       {{inf, nan}, {inf, any_nan}},
                       {{nan, -inf}, {inf, any_nan}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{0, nan}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}}});
  }
}

// The points include some near the unit circle, where the real part is small, and at the ends of the range.
TEST(ComplexLn, Accuracy) {
  for (const char* name : {"Ln_32fc", "Ln_64fc"}) {
    const auto& entry = *ExportsNamed(name).at(0);
    ExpectComplexAccuracy(name, PlanePoints(entry), {ComplexBound::norm});
    const double tiny = entry.is_32bit() ? 0x1p-149 : 0x1p-1074,
                 huge = entry.is_32bit() ? 0x1.fffffep127 : 0x1.fffffffffffffp1023;
    ExpectComplexAccuracy(name, {{tiny, tiny}, {-tiny, 0}, {huge, huge}, {huge, -1}, {tiny, 1}, {1, tiny}, {-huge, tiny}},
                          {ComplexBound::norm});
  }
}

// Where |z|^2 goes from one segment of a polynomial, or one row of a table, to the next, and where the difference from 1 takes
// the place of the logarithm's argument: numbers to both sides of every such circle, the last places of both parts among them.
TEST(ComplexLn, AccuracyAcrossTheBordersOfSegments) {
  for (const char* name : {"Ln_32fc", "Ln_64fc"}) {
    const Format format = FormatOf(ExportsNamed(name).at(0)->input);
    std::vector<accuracy::Point> points;
    for (int sixteenths = 8; sixteenths <= 34; ++sixteenths) {
      const double square = sixteenths / 16.0;
      for (double share : {0.0, 1e-6, 0.02, 0.1, 1.0 / 3, 0.45, 0.5}) {
        const uint64_t x = format.pattern(std::sqrt(square * (1 - share))), y = format.pattern(std::sqrt(square * share));
        for (uint64_t dx = 0; dx < 9; ++dx) {
          for (uint64_t dy = share == 0 ? 4 : 0; dy < (share == 0 ? 5 : 9); ++dy) {
            points.push_back({format.number(x + dx - 4), format.number(y + dy - 4), 0, 0});
          }
        }
      }
    }
    ExpectComplexAccuracy(name, points, {ComplexBound::norm});
  }
}

// On the unit circle the real part is a small difference of what the parts' rounding has left of 1, and none of its digits is
// lost at the high tags: numbers of all angles rounded to the type, and neighbours of these.
TEST(ComplexLn, AccuracyOfTheRealPartNextToTheUnitCircle) {
  for (const char* name : {"Ln_32fc_A24", "Ln_64fc_A53"}) {
    const Format format = FormatOf(ExportsNamed(name).at(0)->input);
    std::vector<accuracy::Point> points;
    Random random(5);
    const auto add = [&](double re, double im) {
      const uint64_t steps = random();
      const uint64_t x = format.pattern(re) + steps % 9 - 4, y = format.pattern(im) + steps / 16 % 9 - 4;
      points.push_back({format.number(format.pattern(re)), format.number(format.pattern(im)), 0, 0});
      points.push_back({format.number(x), format.number(y), 0, 0});
    };
    for (int i = 0; i < 20000; ++i) {
      const double angle = 2 * pi * static_cast<double>(random() >> 11) * 0x1p-53;
      add(std::cos(angle), std::sin(angle));
      const double small = std::ldexp(1 + static_cast<double>(random() >> 11) * 0x1p-53, -2 - i % 40);
      add(std::sqrt(1 - small * small), small);
    }
    ExpectComplexAccuracy(name, points, {ComplexBound::parts, 1});
  }
}

TEST(ComplexSqrt, SpecialValues) {
  for (const char* name : {"Sqrt_32fc", "Sqrt_64fc"}) {
    ExpectCases(name, {{{0, 0}, {0, 0}},
                       {{-0.0, 0}, {0, 0}},
                       {{0, -0.0}, {0, -0.0}},
                       {{-0.0, -0.0}, {0, -0.0}},
                       {{4, 0}, {2, 0}},
                       {{4, -0.0}, {2, -0.0}},
                       {{-4, 0}, {0, 2}},
                       {{-4, -0.0}, {0, -2}},
                       {{0, 2}, {1, 1}},
                       {{-0.0, -2}, {1, -1}},
                       {{inf, 3}, {inf, 0}},
                       {{inf, -0.0}, {inf, -0.0}},
                       {{-inf, 3}, {0, inf}},
                       {{-inf, -3}, {0, -inf}},
                       {{1, inf}, {inf, inf}},
                       {{nan, -inf}, {inf, -inf}},
                       {{-inf, inf}, {inf, inf}},
                       {{inf, nan}, {inf, any_nan}},
                       {{-inf, nan}, {any_nan, inf}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{0, nan}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}}});
  }
}

TEST(ComplexSqrt, Accuracy) {
  for (const char* name : {"Sqrt_32fc", "Sqrt_64fc"}) {
    const auto& entry = *ExportsNamed(name).at(0);
    ExpectComplexAccuracy(name, PlanePoints(entry), {ComplexBound::norm});
    const double tiny = entry.is_32bit() ? 0x1p-149 : 0x1p-1074,
                 huge = entry.is_32bit() ? 0x1.fffffep127 : 0x1.fffffffffffffp1023;
    // Both parts of very different and of extreme sizes; the half exponents lie 17, 18 and 31, 32 apart.
    std::vector<accuracy::Point> points = {{huge, huge}, {-huge, huge}, {huge, tiny}, {tiny, huge},
                                           {tiny, tiny}, {-tiny, tiny}, {1, tiny},    {-1, tiny}};
    for (int e : {33, 34, 35, 36, 37, 60, 61, 62, 63, 64, 65}) {
      points.push_back({1.25, std::ldexp(1.75, e), 0, 0});
      points.push_back({std::ldexp(-1.75, e), 1.25, 0, 0});
    }
    ExpectComplexAccuracy(name, points, {ComplexBound::norm});
  }
}

// The root of a difference of sizes keeps the small part right: both are quotients and roots without cancellation.
TEST(ComplexSqrt, AccuracyOfThePartsAtTheHighTag) {
  ExpectComplexAccuracy("Sqrt_32fc_A24", PlanePoints(*ExportsNamed("Sqrt_32fc_A24").at(0)), {ComplexBound::parts, 0.75});
}

TEST(ComplexAbs, SpecialValues) {
  for (const char* name : {"Abs_32fc", "Abs_64fc"}) {
    ExpectCases(name, {{{0, 0}, 0},
                       {{-0.0, -0.0}, 0},
                       {{inf, 1}, inf},
                       {{1, -inf}, inf},
                       {{nan, inf}, inf},
                       {{-inf, nan}, inf},
                       {{nan, 1}, any_nan},
                       {{1, nan}, any_nan},
                       {{0, nan}, any_nan},
                       {{nan, nan}, any_nan},
                       {{max, max}, inf},
                       {{min_denormal, 0}, min_denormal},
                       {{0, -max}, max}});
  }
  ExpectCases("Abs_32fc_A24", {{{3e38, 3e38}, inf}, {{3, 4}, 5}, {{-5, 12}, 13}});
  ExpectCases("Abs_64fc_A53", {{{3, 4}, 5}, {{-5, 12}, 13}});
}

// A11 rests on the same estimate on every processor, so that its bits are compared like all others.
TEST(ComplexAbs, Accuracy) {
  for (const char* name : {"Abs_32fc", "Abs_64fc"}) {
    const auto& entry = *ExportsNamed(name).at(0);
    ExpectComplexAccuracy(name, PlanePoints(entry), {ComplexBound::parts});
    std::vector<accuracy::Point> points;
    const bool is_32bit = entry.is_32bit();
    for (int e : is_32bit ? std::vector{-149, -140, -126, -99, -64, -63, -62, 61, 62, 63, 64, 126}
                          : std::vector{-1074, -1060, -1022, -600, -512, -511, -510, 509, 510, 511, 512, 1022}) {
      for (double ratio : {1.0, 0.75, 0x1p-12, 0.0}) points.push_back({std::ldexp(1.0, e), std::ldexp(ratio, e), 0, 0});
    }
    for (auto& p : points) {
      if (is_32bit) p.im1 = static_cast<float>(p.im1);
    }
    ExpectComplexAccuracy(name, points, {ComplexBound::parts});
  }
}

TEST(ComplexArg, SpecialValues) {
  for (const char* name : {"Arg_32fc", "Arg_64fc"}) {
    ExpectCases(name, {{{0, 0}, 0},
                       {{0, -0.0}, -0.0},
                       {{-0.0, 0}, pi},
                       {{-0.0, -0.0}, -pi},
                       {{1, 0}, 0},
                       {{-1, -0.0}, -pi},
                       {{0, 1}, pi / 2},
                       {{-0.0, -1}, -pi / 2},
                       {{inf, 1}, 0},
                       {{-inf, 1}, pi},
                       {{1, -inf}, -pi / 2},
                       {{inf, inf}, pi / 4},
                       {{-inf, -inf}, -3 * pi / 4},
                       {{nan, 1}, any_nan},
                       {{1, nan}, any_nan}});
  }
}

TEST(ComplexArg, Accuracy) {
  for (const char* name : {"Arg_32fc", "Arg_64fc"}) {
    ExpectComplexAccuracy(name, PlanePoints(*ExportsNamed(name).at(0)), {ComplexBound::parts});
  }
}

}  // namespace
}  // namespace lum::test
