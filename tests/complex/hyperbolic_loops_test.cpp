// Complex hyperbolic and circular functions: special values, overflow, accuracy in each part.
#include "complex/points.h"
#include "support/cases.h"

namespace lum::test {
namespace {

constexpr double cos1 = 0.5403023058681398, sin1 = 0.8414709848078965;

// The circular functions by their definitions through the hyperbolic ones, for the cases without a NaN whose sign counts.
OneInputCase RotatedEven(const OneInputCase& c) { return {{c.x.im, -c.x.re}, c.result, c.status}; }
OneInputCase RotatedOdd(const OneInputCase& c) { return {{c.x.im, -c.x.re}, {c.result.im, -c.result.re}, c.status}; }

// Both types, of the hyperbolic function and of the circular one: with w = y - x i, cos w = cosh z and sin w = sinh z / i.
void ExpectHyperbolic(const std::string& hyperbolic, const std::string& circular, const std::vector<OneInputCase>& cases,
                      OneInputCase (*rotated)(const OneInputCase&)) {
  std::vector<OneInputCase> circular_cases;
  for (const OneInputCase& c : cases) circular_cases.push_back(rotated(c));
  for (const char* type : {"_32fc", "_64fc"}) {
    ExpectCases(hyperbolic + type, cases);
    ExpectCases(circular + type, circular_cases);
  }
}

TEST(ComplexCosh, SpecialValues) {
  ExpectHyperbolic("Cosh", "Cos",
                   {{{0, 0}, {1, 0}},
                    {{0, -0.0}, {1, -0.0}},
                    {{-0.0, 0}, {1, -0.0}},
                    {{-0.0, -0.0}, {1, 0}},
                    {{1, inf}, {any_nan, any_nan}},
                    {{-1, -inf}, {any_nan, any_nan}},
                    {{1, nan}, {any_nan, any_nan}},
                    {{0, inf}, {any_nan, 0}},
                    {{-0.0, inf}, {any_nan, -0.0}},
                    {{0, -inf}, {any_nan, -0.0}},
                    {{inf, 0}, {inf, 0}},
                    {{inf, -0.0}, {inf, -0.0}},
                    {{-inf, 0}, {inf, -0.0}},
                    {{-inf, -0.0}, {inf, 0}},
                    {{inf, 0.5}, {inf, inf}},
                    {{inf, 2}, {-inf, inf}},
                    {{-inf, 2}, {-inf, -inf}},
                    {{-inf, -0.5}, {inf, inf}},
                    {{inf, 4}, {-inf, -inf}},
                    {{inf, min_denormal}, {inf, inf}},
                    {{inf, inf}, {inf, any_nan}},
                    {{-inf, -inf}, {inf, any_nan}},
                    {{inf, nan}, {inf, any_nan}},
                    {{-inf, nan}, {inf, any_nan}},
                    {{0, 1}, {cos1, 0}},
                    {{-0.0, 1}, {cos1, -0.0}},
                    {{0, -1}, {cos1, -0.0}},
                    {{1, 0}, {1.5430806348152437, 0}},
                    {{-1, 0}, {1.5430806348152437, -0.0}}},
                   RotatedEven);
}

// A NaN beside a zero keeps the zero; of the circular function the NaN's sign takes part in the rotation.
TEST(ComplexCosh, NanBesideZero) {
  for (const char* name : {"Cosh_32fc", "Cosh_64fc"}) {
    ExpectCases(name, {{{nan, 0}, {any_nan, 0}},
                       {{nan, -0.0}, {any_nan, -0.0}},
                       {{default_nan, 0}, {any_nan, 0}},
                       {{0, nan}, {any_nan, -0.0}},
                       {{-0.0, nan}, {any_nan, 0}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{nan, inf}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}}});
  }
  for (const char* name : {"Cos_32fc", "Cos_64fc"}) {
    ExpectCases(name, {{{0, nan}, {any_nan, 0}},
                       {{-0.0, nan}, {any_nan, -0.0}},
                       {{nan, 0}, {any_nan, 0}},
                       {{nan, -0.0}, {any_nan, -0.0}},
                       {{nan, 1}, {any_nan, any_nan}}});
  }
}

TEST(ComplexSinh, SpecialValues) {
  ExpectHyperbolic("Sinh", "Sin",
                   {{{0, 0}, {0, 0}},
                    {{-0.0, 0}, {-0.0, 0}},
                    {{0, -0.0}, {0, -0.0}},
                    {{-0.0, -0.0}, {-0.0, -0.0}},
                    {{1, inf}, {any_nan, any_nan}},
                    {{-1, -inf}, {any_nan, any_nan}},
                    {{0, inf}, {0, any_nan}},
                    {{-0.0, inf}, {-0.0, any_nan}},
                    {{inf, 0}, {inf, 0}},
                    {{-inf, -0.0}, {-inf, -0.0}},
                    {{inf, 0.5}, {inf, inf}},
                    {{inf, -0.5}, {inf, -inf}},
                    {{-inf, 0.5}, {-inf, inf}},
                    {{inf, 2}, {-inf, inf}},
                    {{-inf, 2}, {inf, inf}},
                    {{-inf, 4}, {inf, -inf}},
                    {{inf, min_denormal}, {inf, inf}},
                    {{inf, inf}, {inf, any_nan}},
                    {{-inf, -inf}, {-inf, any_nan}},
                    {{0, 1}, {0, sin1}},
                    {{-0.0, 1}, {-0.0, sin1}},
                    {{0, 2}, {-0.0, 0.9092974268256817}},
                    {{1, 0}, {1.1752011936438014, 0}},
                    {{-1, -0.0}, {-1.1752011936438014, -0.0}},
                    {{min_denormal, 0}, {min_denormal, 0}},
                    {{0, min_denormal}, {0, min_denormal}}},
                   RotatedOdd);
}

TEST(ComplexSinh, Nans) {
  for (const char* name : {"Sinh_32fc", "Sinh_64fc"}) {
    ExpectCases(name, {{{nan, 0}, {any_nan, 0}},
                       {{nan, -0.0}, {any_nan, -0.0}},
                       {{0, nan}, {0, any_nan}},
                       {{-0.0, nan}, {-0.0, any_nan}},
                       {{inf, nan}, {inf, any_nan}},
                       {{-inf, nan}, {-inf, any_nan}},
                       {{1, nan}, {any_nan, any_nan}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{nan, inf}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}}});
  }
  for (const char* name : {"Sin_32fc", "Sin_64fc"}) {
    ExpectCases(name, {{{0, nan}, {0, any_nan}},
                       {{-0.0, nan}, {-0.0, any_nan}},
                       {{nan, 0}, {any_nan, 0}},
                       {{nan, -0.0}, {any_nan, -0.0}},
                       {{nan, inf}, {any_nan, inf}},
                       {{nan, 1}, {any_nan, any_nan}}});
  }
}

TEST(ComplexTanh, SpecialValues) {
  ExpectHyperbolic("Tanh", "Tan",
                   {{{0, 0}, {0, 0}},
                    {{-0.0, 0}, {-0.0, 0}},
                    {{0, -0.0}, {0, -0.0}},
                    {{-0.0, -0.0}, {-0.0, -0.0}},
                    {{0, inf}, {any_nan, any_nan}},
                    {{1, inf}, {any_nan, any_nan}},
                    {{inf, 0}, {1, 0}},
                    {{-inf, -0.0}, {-1, -0.0}},
                    {{inf, 1}, {1, 0}},
                    {{inf, 2}, {1, -0.0}},
                    {{-inf, 2}, {-1, -0.0}},
                    {{inf, 4}, {1, 0}},
                    {{inf, -2}, {1, 0}},
                    {{inf, 0.5}, {1, 0}},
                    {{inf, -0.5}, {1, -0.0}},
                    {{inf, min_denormal}, {1, 0}},
                    {{inf, inf}, {1, 0}},
                    {{-inf, -inf}, {-1, -0.0}},
                    {{0, 1}, {0, 1.5574077246549023}},
                    {{-0.0, 1}, {-0.0, 1.5574077246549023}},
                    {{1000, 1}, {1, 0}},
                    {{1000, 2}, {1, -0.0}},
                    {{-1000, 2}, {-1, -0.0}},
                    {{-1000, -0.0}, {-1, -0.0}},
                    {{1000, 0}, {1, 0}},
                    {{1000, -min_denormal}, {1, -0.0}},
                    {{1, 0}, {0.7615941559557649, 0}},
                    {{1, -0.0}, {0.7615941559557649, -0.0}}},
                   RotatedOdd);
}

TEST(ComplexTanh, Nans) {
  for (const char* name : {"Tanh_32fc", "Tanh_64fc"}) {
    ExpectCases(name, {{{nan, 0}, {any_nan, 0}},
                       {{nan, -0.0}, {any_nan, -0.0}},
                       {{inf, nan}, {1, 0}},
                       {{-inf, nan}, {-1, 0}},
                       {{0, nan}, {any_nan, any_nan}},
                       {{1, nan}, {any_nan, any_nan}},
                       {{nan, 1}, {any_nan, any_nan}},
                       {{nan, inf}, {any_nan, any_nan}},
                       {{nan, nan}, {any_nan, any_nan}}});
  }
  for (const char* name : {"Tan_32fc", "Tan_64fc"}) {
    ExpectCases(name, {{{nan, inf}, {0, 1}}, {{nan, -inf}, {0, -1}}, {{0, nan}, {0, any_nan}}, {{-0.0, nan}, {-0.0, any_nan}}});
  }
}

TEST(ComplexHyperbolic, FiniteOverflowReports) {
  for (const char* name : {"Cosh_64fc", "Sinh_64fc"}) {
    ExpectCases(name, {{{3000, 1}, {inf, inf}, lumStsOverflow},
                       {{3000, 2}, {-inf, inf}, lumStsOverflow},
                       {{713, 1}, {inf, inf}, lumStsOverflow},
                       {{3000, 0}, {inf, 0}},
                       {{max, min_denormal}, {inf, inf}, lumStsOverflow}});
  }
  for (const char* name : {"Cosh_32fc", "Sinh_32fc"}) {
    ExpectCases(name, {{{1000, 1}, {inf, inf}, lumStsOverflow}, {{1000, -0.0}, {inf, -0.0}}, {{inf, 1}, {inf, inf}}});
  }
  ExpectCases("Cosh_64fc", {{{-3000, 1}, {inf, -inf}, lumStsOverflow}});
  ExpectCases("Sinh_64fc", {{{-3000, 1}, {-inf, inf}, lumStsOverflow}});
  for (const char* name : {"Cos_32fc", "Sin_32fc"}) {
    ExpectCases(name, {{{2, 1000}, {name[0] == 'C' ? -inf : inf, -inf}, lumStsOverflow},
                       {{1, -1000}, {inf, name[0] == 'C' ? inf : -inf}, lumStsOverflow}});
  }
  ExpectCases("Cos_32fc", {{{0, 1000}, {inf, -0.0}}, {{-0.0, 1000}, {inf, 0}}});
}

// Functions with one kernel report nothing, whatever the data.
TEST(ComplexTanh, SmallResultsUnderflowSilently) {
  ExpectCases("Tanh_32fc", {{{100, 1}, {1, 0}}, {{-100, 2}, {-1, -0.0}}});
  ExpectCases("Tanh_64fc", {{{500, 2}, {1, -0.0}}});
}

// A part next to the lower end of the range or below is as right as others, in arrays as alone.
TEST(ComplexTanh, PartsNextToTheLowerEndOfTheRange) {
  ExpectCases("Tan_64fc", {{{FromBits(0x34561E36106694B1), FromBits(0xC07225116501EF92)}, {FromBits(0x001BAAB8F08F6FC5), -1}},
                           {{FromBits(0x361EE422C02F0B65), FromBits(0x4071B80000000000)}, {FromBits(0x031EB7ECA5252AD6), 1}},
                           {{FromBits(0x33D71563467F25F0), FromBits(0xC072839F25F05BCA)}, {FromBits(0x000000000DEE49CC), -1}}});
  ExpectCases("Tanh_64fc", {{{FromBits(0x4072B5E21CC25F64), FromBits(0x3622ADC8AD59343F)}, {1, FromBits(0x004591115441CEE7)}}});
}

TEST(ComplexHyperbolic, Accuracy) {
  for (const char* name : {"Cosh", "Sinh", "Cos", "Sin", "Tanh", "Tan"}) ExpectPartsWithinOneUlp(name);
}

}  // namespace
}  // namespace lum::test
