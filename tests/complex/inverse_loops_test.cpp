// Inverse circular and hyperbolic functions of complex numbers: special values on both sides of the branch cuts, accuracy.
#include <numbers>

#include "complex/points.h"
#include "support/cases.h"

namespace lum::test {
namespace {

constexpr double pi = std::numbers::pi;
constexpr double asinh1 = 0.881373587019543, acosh2 = 1.3169578969248168;

void ExpectBothTypes(const std::string& function, const std::vector<OneInputCase>& cases) {
  ExpectCases(function + "_32fc", cases);
  ExpectCases(function + "_64fc", cases);
}

// Each case and its conjugate, results of real arguments included: the sign of a zero chooses the side of a cut. Not for NaN.
std::vector<OneInputCase> WithConjugates(std::vector<OneInputCase> cases) {
  const size_t count = cases.size();
  for (size_t i = 0; i < count; ++i) {
    const OneInputCase& c = cases[i];
    cases.push_back({{c.x.re, -c.x.im}, {c.result.re, -c.result.im}, c.status});
  }
  return cases;
}
std::vector<OneInputCase> WithOpposites(std::vector<OneInputCase> cases) {
  const size_t count = cases.size();
  for (size_t i = 0; i < count; ++i) {
    const OneInputCase& c = cases[i];
    cases.push_back({{-c.x.re, -c.x.im}, {-c.result.re, -c.result.im}, c.status});
  }
  return cases;
}

TEST(ComplexAcos, SpecialValues) {
  ExpectBothTypes("Acos", WithConjugates({{{0, 0}, {pi / 2, -0.0}},
                                          {{-0.0, 0}, {pi / 2, -0.0}},
                                          {{0, 1}, {pi / 2, -asinh1}},
                                          {{0, inf}, {pi / 2, -inf}},
                                          {{0.5, 0}, {1.0471975511965979, -0.0}},
                                          {{-1, 0}, {pi, -0.0}},
                                          {{1, 0}, {0, -0.0}},
                                          {{2, 0}, {0, -acosh2}},
                                          {{-2, 0}, {pi, -acosh2}},
                                          {{inf, 0}, {0, -inf}},
                                          {{-inf, 0}, {pi, -inf}},
                                          {{3, inf}, {pi / 2, -inf}},
                                          {{-3, inf}, {pi / 2, -inf}},
                                          {{-inf, 3}, {pi, -inf}},
                                          {{inf, 3}, {0, -inf}},
                                          {{-inf, inf}, {3 * pi / 4, -inf}},
                                          {{inf, inf}, {pi / 4, -inf}}}));
  ExpectBothTypes("Acos", {{{0, nan}, {pi / 2, any_nan}},
                           {{-0.0, nan}, {pi / 2, any_nan}},
                           {{1, nan}, {any_nan, any_nan}},
                           {{nan, 1}, {any_nan, any_nan}},
                           {{nan, 0}, {any_nan, any_nan}},
                           {{nan, inf}, {any_nan, -inf}},
                           {{nan, -inf}, {any_nan, inf}},
                           {{nan, nan}, {any_nan, any_nan}},
                           {{inf, nan}, {any_nan, inf}},
                           {{-inf, nan}, {any_nan, inf}}});
}

TEST(ComplexAcosh, SpecialValues) {
  ExpectBothTypes("Acosh", WithConjugates({{{0, 0}, {0, pi / 2}},
                                           {{-0.0, 0}, {0, pi / 2}},
                                           {{0.5, 0}, {0, 1.0471975511965979}},
                                           {{1, 0}, {0, 0}},
                                           {{-1, 0}, {0, pi}},
                                           {{2, 0}, {acosh2, 0}},
                                           {{-2, 0}, {acosh2, pi}},
                                           {{inf, 0}, {inf, 0}},
                                           {{-inf, 0}, {inf, pi}},
                                           {{0, 1}, {asinh1, pi / 2}},
                                           {{-0.0, 1}, {asinh1, pi / 2}},
                                           {{0, inf}, {inf, pi / 2}},
                                           {{-3, inf}, {inf, pi / 2}},
                                           {{-inf, 3}, {inf, pi}},
                                           {{inf, 3}, {inf, 0}},
                                           {{-inf, inf}, {inf, 3 * pi / 4}},
                                           {{inf, inf}, {inf, pi / 4}}}));
  ExpectBothTypes("Acosh", {{{0, nan}, {any_nan, any_nan}},
                            {{1, nan}, {any_nan, any_nan}},
                            {{nan, 0}, {any_nan, any_nan}},
                            {{nan, 1}, {any_nan, any_nan}},
                            {{nan, inf}, {inf, any_nan}},
                            {{inf, nan}, {inf, any_nan}},
                            {{-inf, nan}, {inf, any_nan}},
                            {{nan, nan}, {any_nan, any_nan}}});
}

TEST(ComplexAsinh, SpecialValues) {
  ExpectBothTypes("Asinh", WithOpposites(WithConjugates({{{0, 0}, {0, 0}},
                                                         {{1, 0}, {asinh1, 0}},
                                                         {{inf, 0}, {inf, 0}},
                                                         {{min_denormal, 0}, {min_denormal, 0}},
                                                         {{0, 0.5}, {0, 0.5235987755982989}},
                                                         {{0, 1}, {0, pi / 2}},
                                                         {{0, 2}, {acosh2, pi / 2}},
                                                         {{0, inf}, {inf, pi / 2}},
                                                         {{3, inf}, {inf, pi / 2}},
                                                         {{inf, 3}, {inf, 0}},
                                                         {{inf, inf}, {inf, pi / 4}}})));
  ExpectBothTypes("Asinh", {{{nan, 0}, {any_nan, 0}},
                            {{nan, -0.0}, {any_nan, -0.0}},
                            {{0, nan}, {any_nan, any_nan}},
                            {{1, nan}, {any_nan, any_nan}},
                            {{nan, 1}, {any_nan, any_nan}},
                            {{nan, inf}, {inf, any_nan}},
                            {{nan, -inf}, {inf, any_nan}},
                            {{inf, nan}, {inf, any_nan}},
                            {{-inf, nan}, {-inf, any_nan}},
                            {{nan, nan}, {any_nan, any_nan}}});
}

TEST(ComplexAsin, SpecialValues) {
  ExpectBothTypes("Asin", WithOpposites(WithConjugates({{{0, 0}, {0, 0}},
                                                        {{0, 1}, {0, asinh1}},
                                                        {{0.5, 0}, {0.5235987755982989, 0}},
                                                        {{1, 0}, {pi / 2, 0}},
                                                        {{2, 0}, {pi / 2, acosh2}},
                                                        {{inf, 0}, {pi / 2, inf}},
                                                        {{inf, 3}, {pi / 2, inf}},
                                                        {{3, inf}, {0, inf}},
                                                        {{inf, inf}, {pi / 4, inf}}})));
  ExpectBothTypes("Asin", {{{0, nan}, {0, any_nan}},
                           {{-0.0, nan}, {-0.0, any_nan}},
                           {{nan, 0}, {any_nan, any_nan}},
                           {{1, nan}, {any_nan, any_nan}},
                           {{nan, 1}, {any_nan, any_nan}},
                           {{inf, nan}, {any_nan, -inf}},
                           {{nan, inf}, {any_nan, inf}},
                           {{nan, -inf}, {any_nan, -inf}}});
}

TEST(ComplexAtanh, SpecialValues) {
  ExpectBothTypes("Atanh", WithOpposites(WithConjugates({{{0, 0}, {0, 0}},
                                                         {{0, 2}, {0, 1.1071487177940904}},
                                                         {{0, inf}, {0, pi / 2}},
                                                         {{0.5, 0}, {0.5493061443340549, 0}},
                                                         {{1, 0}, {inf, 0}},
                                                         {{2, 0}, {0.5493061443340549, pi / 2}},
                                                         {{inf, 0}, {0, pi / 2}},
                                                         {{inf, 3}, {0, pi / 2}},
                                                         {{3, inf}, {0, pi / 2}},
                                                         {{inf, inf}, {0, pi / 2}},
                                                         {{min_denormal, 0}, {min_denormal, 0}},
                                                         {{0, min_denormal}, {0, min_denormal}}})));
  ExpectBothTypes("Atanh", {{{0, nan}, {0, any_nan}},
                            {{-0.0, nan}, {-0.0, any_nan}},
                            {{1, nan}, {any_nan, any_nan}},
                            {{inf, nan}, {0, any_nan}},
                            {{-inf, nan}, {-0.0, any_nan}},
                            {{nan, 0}, {any_nan, any_nan}},
                            {{nan, 1}, {any_nan, any_nan}},
                            {{nan, inf}, {0, pi / 2}},
                            {{nan, -inf}, {0, -pi / 2}},
                            {{nan, nan}, {any_nan, any_nan}}});
}

TEST(ComplexAtan, SpecialValues) {
  ExpectBothTypes("Atan", WithOpposites(WithConjugates({{{0, 0}, {0, 0}},
                                                        {{2, 0}, {1.1071487177940904, 0}},
                                                        {{0, 0.5}, {0, 0.5493061443340549}},
                                                        {{0, 1}, {0, inf}},
                                                        {{0, 2}, {pi / 2, 0.5493061443340549}},
                                                        {{inf, 0}, {pi / 2, 0}},
                                                        {{inf, 3}, {pi / 2, 0}},
                                                        {{3, inf}, {pi / 2, 0}},
                                                        {{inf, inf}, {pi / 2, 0}}})));
  ExpectBothTypes("Atan", {{{nan, 0}, {any_nan, 0}},
                           {{nan, -0.0}, {any_nan, -0.0}},
                           {{nan, inf}, {any_nan, 0}},
                           {{nan, -inf}, {any_nan, -0.0}},
                           {{inf, nan}, {pi / 2, -0.0}},
                           {{1, nan}, {any_nan, any_nan}}});
}

// y is so small beside x - 1 that the distance to 1 is x - 1 exactly.
TEST(ComplexAcos, TinyImaginaryPartBesideALargeRealOne) {
  ExpectCases("Acos_64fc",
              {{{2, 1e-300}, {5.773502691896257e-301, -acosh2}}, {{2, -1e-300}, {5.773502691896257e-301, acosh2}}});
}

TEST(ComplexInverse, Accuracy) {
  for (const char* name : {"Acos", "Acosh", "Asin", "Asinh", "Atan", "Atanh"}) ExpectPartsWithinOneUlp(name);
}

}  // namespace
}  // namespace lum::test
