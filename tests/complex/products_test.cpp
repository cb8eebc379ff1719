// Mul, MulByConj and Div of complex numbers: cancellation, the ends of the range, non-finite parts, accuracy.
#include <cmath>

#include "complex/points.h"
#include "support/cases.h"

namespace lum::test {
namespace {

// Pairs of numbers over the plane, and numbers z, w for which a part of z w or of z conj(w) cancels.
std::vector<accuracy::Point> PairsOf(const Export& entry, bool with_cancellation) {
  auto points = accuracy::SamplePoints(entry, 4000);
  const int digits = entry.is_32bit() ? 24 : 53;
  if (with_cancellation) {
    for (int e = 2; e < digits; ++e) {
      const double near = 1 - std::ldexp(1.0, -e);
      points.push_back({1, 1, 1, -near});
      points.push_back({1, 1, near, 1});
      points.push_back({near, 1, 1, near});
      points.push_back({1.5, near, near, -1.5});
    }
  }
  return points;
}

TEST(ComplexProducts, Accuracy) {
  for (const char* name : {"Mul_32fc", "Mul_64fc", "MulByConj_32fc", "MulByConj_64fc"}) {
    ExpectComplexAccuracy(name, PairsOf(*ExportsNamed(name).at(0), true), {ComplexBound::norm});
  }
}

// The high tags keep each part to the last place, whatever cancels.
TEST(ComplexProducts, PartsAtTheHighTags) {
  for (const char* name : {"Mul_32fc_A24", "Mul_64fc_A53", "MulByConj_32fc_A24", "MulByConj_64fc_A53"}) {
    ExpectComplexAccuracy(name, PairsOf(*ExportsNamed(name).at(0), true), {ComplexBound::parts, 0.51});
  }
}

// A lane of the low tags whose difference has cancelled is computed anew, and then is as good as at the high tags.
TEST(ComplexProducts, CancellationAtTheLowTags) {
  const double below_one_32 = 1 - 0x1p-23, below_one_64 = 1 - 0x1p-52;
  ExpectCases("Mul_32fc_A11",
              {{{1, 1}, {1, -below_one_32}, {2 - 0x1p-23, 0x1p-23}}, {{1, 1}, {below_one_32, 1}, {-0x1p-23, 2 - 0x1p-23}}});
  ExpectCases("Mul_64fc_A26",
              {{{1, 1}, {1, -below_one_64}, {2 - 0x1p-52, 0x1p-52}}, {{1, 1}, {below_one_64, 1}, {-0x1p-52, 2 - 0x1p-52}}});
  ExpectCases("MulByConj_32fc_A11", {{{1, 1}, {1, below_one_32}, {2 - 0x1p-23, 0x1p-23}}});
  ExpectCases("MulByConj_64fc_A26", {{{1, 1}, {1, below_one_64}, {2 - 0x1p-52, 0x1p-52}}});
}

TEST(ComplexProducts, FiniteOverflowReports) {
  for (const char* name : {"Mul_32fc", "Mul_64fc"}) {
    ExpectCases(name, {{{max, 0}, {2, 0}, {inf, 0}, lumStsOverflow}, {{0, max}, {0, max}, {-inf, 0}, lumStsOverflow}});
  }
  ExpectCases("Mul_32fc_A24", {{{1e30, 0}, {1e30, 0}, {inf, 0}, lumStsOverflow}});
  for (const char* name : {"MulByConj_32fc", "MulByConj_64fc"}) {
    ExpectCases(name, {{{0, max}, {0, 2}, {inf, 0}, lumStsOverflow}});
  }
}

// A part whose two products overflow and cancel exactly is zero all the same.
TEST(ComplexProducts, OverflowingProductsThatCancel) {
  for (const char* type : {"_32fc", "_64fc"}) {
    const double large = type[1] == '3' ? 0x1p100 : 0x1p700;
    const std::string mul = std::string("Mul") + type, mul_by_conj = std::string("MulByConj") + type;
    ExpectCases(mul, {{{large, large}, {large, large}, {0, inf}, lumStsOverflow},
                      {{large, -large}, {large, -large}, {0, -inf}, lumStsOverflow},
                      {{large, large}, {large, -large}, {inf, 0}, lumStsOverflow},
                      {{-large, large}, {large, large}, {-inf, 0}, lumStsOverflow}});
    ExpectCases(mul_by_conj, {{{large, large}, {large, -large}, {0, inf}, lumStsOverflow},
                              {{large, -large}, {large, large}, {0, -inf}, lumStsOverflow},
                              {{large, large}, {large, large}, {inf, 0}, lumStsOverflow}});
  }
  ExpectCases("Mul_64fc", {{{1e200, 1e200}, {1e200, 1e200}, {0, inf}, lumStsOverflow},
                           {{1e200, 3e200}, {3e200, 1e200}, {0, inf}, lumStsOverflow},
                           {{1e-200, 1e-200}, {1e-200, 1e-200}, {0, 0}}});
}

// The zero of a sum of zeros is that of a plain sum.
TEST(ComplexProducts, SignsOfZeros) {
  ExpectCases("Mul_64fc", {{{0, 0}, {1, 1}, {0, 0}},
                           {{-0.0, 0}, {1, 1}, {-0.0, 0}},
                           {{-0.0, -0.0}, {1, 1}, {0, -0.0}},
                           {{0, -0.0}, {-1, 1}, {0, 0}}});
}

TEST(ComplexProducts, NonFiniteParts) {
  for (const char* name : {"Mul_32fc", "Mul_64fc"}) {
    ExpectCases(name, {{{inf, 1}, {1, 1}, {inf, inf}},
                       {{inf, 0}, {1, 0}, {inf, any_nan}},
                       {{nan, 1}, {1, 1}, {any_nan, any_nan}},
                       {{1, 2}, {3, nan}, {any_nan, any_nan}}});
  }
}

TEST(ComplexProducts, TheEndsOfTheRange) {
  ExpectCases("Mul_64fc_A53", {{{0x1p-600, 0}, {0x1p-400, 0x1p-420}, {0x1p-1000, 0x1p-1020}},
                               {{0x1p-700, 0x1p-700}, {0x1p-374, 0}, {min_denormal, min_denormal}},
                               {{0x1p1000, 1}, {0x1p-1000, 0x1p-1000}, {1, 1}}});
}

TEST(ComplexDiv, Accuracy) {
  for (const char* name : {"Div_32fc", "Div_64fc"}) {
    ExpectComplexAccuracy(name, PairsOf(*ExportsNamed(name).at(0), false), {ComplexBound::norm});
  }
  for (const char* name : {"Div_32fc_A24", "Div_64fc_A53"}) {
    ExpectComplexAccuracy(name, PairsOf(*ExportsNamed(name).at(0), false), {ComplexBound::parts, 0.51});
  }
}

// Neither the square of the divisor nor the products of the numerator overflow or underflow on the way.
TEST(ComplexDiv, TheEndsOfTheRange) {
  for (const char* name : {"Div_32fc", "Div_64fc"}) {
    const bool is_32bit = name[4] == '3';
    const double tiny = is_32bit ? 0x1p-149 : 0x1p-1074, huge = is_32bit ? 0x1.fffffep127 : 0x1.fffffffffffffp1023;
    ExpectComplexAccuracy(name,
                          {{huge, huge, huge, huge},
                           {huge, 1, huge, -1},
                           {tiny, tiny, tiny, 0},
                           {tiny, 0, tiny, tiny},
                           {1, 1, huge, huge},
                           {tiny, tiny, 1, 1},
                           {std::sqrt(tiny), 0, tiny, 0},
                           {1, huge, huge, 1}},
                          {ComplexBound::norm});
  }
}

TEST(ComplexDiv, ByZeroReportsNothing) {
  for (const char* name : {"Div_32fc", "Div_64fc"}) {
    ExpectCases(name, {{{1, -2}, {0, 0}, {inf, -inf}},
                       {{-1, 2}, {0, -0.0}, {-inf, inf}},
                       {{0, 0}, {0, 0}, {any_nan, any_nan}},
                       {{1, 0}, {0, 0}, {inf, any_nan}}});
  }
}

TEST(ComplexDiv, InfiniteParts) {
  for (const char* name : {"Div_32fc", "Div_64fc"}) {
    ExpectCases(name, {{{1, 1}, {inf, 0}, {0, 0}},
                       {{1, 1}, {inf, 1}, {0, 0}},
                       {{-1, 1}, {inf, inf}, {0, 0}},
                       {{inf, 0}, {1, 1}, {inf, -inf}},
                       {{inf, inf}, {1, 0}, {inf, inf}},
                       {{inf, 1}, {inf, 1}, {any_nan, any_nan}},
                       {{nan, 1}, {1, 1}, {any_nan, any_nan}},
                       {{1, 1}, {nan, 1}, {any_nan, any_nan}}});
  }
}

TEST(ComplexDiv, FiniteOverflowReports) {
  for (const char* name : {"Div_32fc", "Div_64fc"}) {
    ExpectCases(name, {{{max, 0}, {0.25, 0}, {inf, 0}, lumStsOverflow}, {{0, -max}, {0.25, 0}, {0, -inf}, lumStsOverflow}});
  }
}

}  // namespace
}  // namespace lum::test
