#include "accuracy/exact_points.h"

#include <cmath>
#include <functional>
#include <map>
#include <numbers>

#include "accuracy/hunt_points.h"

namespace lum::accuracy {
namespace {

using support::Export;
using Cases = std::vector<ExactCase>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double any = std::numeric_limits<double>::quiet_NaN();
constexpr double pi = std::numbers::pi;
constexpr int samples = 4096;

// Builders of cases for a type.
class Builder {
 public:
  explicit Builder(const Export& entry) : is32_(entry.is_32bit()), random_(1, 2) {}
  bool is32() const { return is32_; }
  double Round(double x) const { return is32_ ? static_cast<double>(static_cast<float>(x)) : x; }
  // Whole numbers from 1 to 2^most (of binary32: to 2^most32), all or some thousand of them.
  std::vector<double> Whole(int most32, int most64) {
    const double last = std::ldexp(1.0, is32_ ? most32 : most64);
    std::vector<double> numbers;
    numbers.reserve(samples);
    for (int i = 0; i < samples; ++i) numbers.push_back(last <= samples ? 1 + i : 1 + std::floor((last - 1) * random_.Unit()));
    if (last < samples) numbers.resize(static_cast<size_t>(last));
    return numbers;
  }
  // Positive numbers of all magnitudes.
  std::vector<double> Any(int most32, int most64) {
    std::vector<double> numbers;
    for (int i = 0; i < samples; ++i) {
      const int most = is32_ ? most32 : most64;
      const double exponent = std::floor((2 * random_.Unit() - 1) * most);
      numbers.push_back(Round(std::ldexp(1 + random_.Unit(), static_cast<int>(exponent))));
    }
    return numbers;
  }
  std::vector<double> Powers(int base_log2, int most32, int most64) const {
    std::vector<double> numbers;
    const int most = is32_ ? most32 : most64;
    for (int k = -most; k <= most; ++k) numbers.push_back(std::ldexp(1.0, base_log2 * k));
    return numbers;
  }

 private:
  bool is32_;
  Random random_;
};

Cases One(double x, double value) { return {{{x, 0, 0, 0}, value}}; }
Cases OddZeros() { return {{{0.0, 0, 0, 0}, 0.0}, {{-0.0, 0, 0, 0}, -0.0}}; }
Cases Zeros(double value) { return {{{0.0, 0, 0, 0}, value}, {{-0.0, 0, 0, 0}, value}}; }
Cases Ends(double x, double low, double high) { return {{{-x, 0, 0, 0}, low}, {{x, 0, 0, 0}, high}}; }
Cases Map(const std::vector<double>& numbers, const std::function<ExactCase(double)>& make) {
  Cases cases;
  for (const double k : numbers) cases.push_back(make(k));
  return cases;
}
Cases Triples(const std::vector<double>& factors, const std::function<ExactCase(double, double, double)>& make) {
  Cases cases;
  constexpr double triples[][3] = {{3, 4, 5}, {5, 12, 13}, {8, 15, 17}, {7, 24, 25}, {20, 21, 29}};
  for (const double k : factors) {
    for (const auto& [a, b, c] : triples) {
      cases.push_back(make(a * k, b * k, c * k));
      cases.push_back(make(-b * k, a * k, c * k));
    }
  }
  return cases;
}

std::vector<ExactSet> PowerSets(Builder& b) {
  return {
      {"pow(x, 0) = 1", Map(b.Any(126, 1022),
                            [](double x) {
                              return ExactCase{{x, 0, 0, 0}, 1};
                            })},
      {"pow(1, y) = 1", Map(b.Any(126, 1022),
                            [](double y) {
                              return ExactCase{{1, 0, y, 0}, 1};
                            })},
      {"pow(x, 1) = x", Map(b.Any(126, 1022),
                            [](double x) {
                              return ExactCase{{x, 0, 1, 0}, x};
                            })},
      {"pow(2, k) = 2^k", Map(b.Powers(1, 126, 1022),
                              [](double p) {
                                return ExactCase{{2, 0, std::log2(p), 0}, p};
                              })},
      {"pow(k, 2) = k^2", Map(b.Whole(12, 26),
                              [](double k) {
                                return ExactCase{{k, 0, 2, 0}, k * k};
                              })},
      {"pow(k, 3) = k^3", Map(b.Whole(8, 17),
                              [](double k) {
                                return ExactCase{{k, 0, 3, 0}, k * k * k};
                              })},
      {"pow(k^2, 1/2) = k", Map(b.Whole(12, 26),
                                [](double k) {
                                  return ExactCase{{k * k, 0, 0.5, 0}, k};
                                })},
      {"pow(2^k, -1) = 2^-k", Map(b.Powers(1, 126, 1022),
                                  [](double p) {
                                    return ExactCase{{p, 0, -1, 0}, 1 / p};
                                  })},
  };
}

Cases PowersOfTen(const Builder& b) {
  Cases cases;
  double power = 1;
  for (int k = 0; k <= (b.is32() ? 10 : 22); ++k, power *= 10) cases.push_back({{power, 0, 0, 0}, static_cast<double>(k)});
  return cases;
}

using Sets = std::function<std::vector<ExactSet>(Builder&)>;

const std::map<std::string_view, Sets>& RealSets() {
  const auto fixed = [](const std::vector<ExactSet>& known) { return [known](Builder&) { return known; }; };
  static const std::map<std::string_view, Sets> sets = {
      {"Exp", fixed({{"exp(0) = 1", Zeros(1)}, {"exp(-inf) = 0, exp(inf) = inf", Ends(infinity, 0, infinity)}})},
      {"Expm1", fixed({{"expm1(+-0) = +-0", OddZeros()}, {"expm1(-inf) = -1", One(-infinity, -1)}})},
      {"Ln", fixed({{"ln(1) = 0", One(1, 0)}})},
      {"Log10", [](Builder& b) { return std::vector<ExactSet>{{"log10(10^k) = k", PowersOfTen(b)}}; }},
      {"Log1p", fixed({{"log1p(+-0) = +-0", OddZeros()}})},
      {"Pow", PowerSets},
      {"Powx", PowerSets},
      {"Sin", fixed({{"sin(+-0) = +-0", OddZeros()}})},
      {"Cos", fixed({{"cos(0) = 1", Zeros(1)}})},
      {"SinCos", fixed({{"sincos(+-0) = +-0, 1", {{{0.0, 0, 0, 0}, 0.0, 1}, {{-0.0, 0, 0, 0}, -0.0, 1}}}})},
      {"Tan", fixed({{"tan(+-0) = +-0", OddZeros()}})},
      {"Asin", fixed({{"asin(+-0) = +-0", OddZeros()}})},
      {"Acos", fixed({{"acos(1) = 0", One(1, 0)}})},
      {"Atan",
       [](Builder& b) {
         return std::vector<ExactSet>{{"atan(+-0) = +-0", OddZeros()},
                                      {"atan(+-inf) = +-pi/2", Ends(infinity, -b.Round(pi / 2), b.Round(pi / 2))}};
       }},
      {"Atan2",
       [](Builder& b) {
         const double full = b.Round(pi), half = b.Round(pi / 2), quarter = b.Round(pi / 4);
         const auto numbers = b.Any(126, 1022);
         return std::vector<ExactSet>{
             {"atan2(+-0, x) = +-0 of x > 0", Map(numbers, [](double x) { return ExactCase{{-0.0, 0, x, 0}, -0.0}; })},
             {"atan2(0, -x) = pi", Map(numbers, [&](double x) { return ExactCase{{0.0, 0, -x, 0}, full}; })},
             {"atan2(x, 0) = pi/2", Map(numbers, [&](double x) { return ExactCase{{x, 0, 0, 0}, half}; })},
             {"atan2(x, x) = pi/4", Map(numbers, [&](double x) { return ExactCase{{x, 0, x, 0}, quarter}; })}};
       }},
      {"Sinh", fixed({{"sinh(+-0) = +-0", OddZeros()}})},
      {"Cosh", fixed({{"cosh(0) = 1", Zeros(1)}})},
      {"Tanh", fixed({{"tanh(+-0) = +-0", OddZeros()}, {"tanh(+-inf) = +-1", Ends(infinity, -1, 1)}})},
      {"Asinh", fixed({{"asinh(+-0) = +-0", OddZeros()}})},
      {"Acosh", fixed({{"acosh(1) = 0", One(1, 0)}})},
      {"Atanh", fixed({{"atanh(+-0) = +-0", OddZeros()}, {"atanh(+-1) = +-inf", Ends(1, -infinity, infinity)}})},
      {"Erf", fixed({{"erf(+-0) = +-0", OddZeros()}, {"erf(+-inf) = +-1", Ends(infinity, -1, 1)}})},
      {"Erfc", fixed({{"erfc(0) = 1", Zeros(1)}, {"erfc(-inf) = 2, erfc(inf) = 0", Ends(infinity, 2, 0)}})},
      {"CdfNorm", fixed({{"cdfnorm(0) = 1/2", Zeros(0.5)}, {"cdfnorm(-inf) = 0, cdfnorm(inf) = 1", Ends(infinity, 0, 1)}})},
      {"CdfNormInv", fixed({{"cdfnorminv(1/2) = 0", One(0.5, 0)}})},
      {"ErfInv", fixed({{"erfinv(+-0) = +-0", OddZeros()}, {"erfinv(+-1) = +-inf", Ends(1, -infinity, infinity)}})},
      {"ErfcInv", fixed({{"erfcinv(1) = 0", One(1, 0)}})},
      {"Sqrt",
       [](Builder& b) {
         return std::vector<ExactSet>{{"sqrt(k^2) = k", Map(b.Whole(12, 26), [](double k) { return ExactCase{{k * k, 0, 0, 0}, k}; })}};
       }},
      {"InvSqrt",
       [](Builder& b) {
         return std::vector<ExactSet>{
             {"invsqrt(4^k) = 2^-k", Map(b.Powers(1, 62, 510), [](double p) { return ExactCase{{p * p, 0, 0, 0}, 1 / p}; })}};
       }},
      {"Cbrt",
       [](Builder& b) {
         return std::vector<ExactSet>{
             {"cbrt(k^3) = k", Map(b.Whole(8, 17), [](double k) { return ExactCase{{k * k * k, 0, 0, 0}, k}; })}};
       }},
      {"InvCbrt",
       [](Builder& b) {
         return std::vector<ExactSet>{
             {"invcbrt(8^k) = 2^-k", Map(b.Powers(1, 41, 340), [](double p) { return ExactCase{{p * p * p, 0, 0, 0}, 1 / p}; })}};
       }},
      {"Pow2o3",
       [](Builder& b) {
         return std::vector<ExactSet>{
             {"pow2o3(k^3) = k^2", Map(b.Whole(8, 17), [](double k) { return ExactCase{{k * k * k, 0, 0, 0}, k * k}; })}};
       }},
      {"Pow3o2",
       [](Builder& b) {
         return std::vector<ExactSet>{
             {"pow3o2(k^2) = k^3", Map(b.Whole(8, 17), [](double k) { return ExactCase{{k * k, 0, 0, 0}, k * k * k}; })}};
       }},
      {"Inv",
       [](Builder& b) {
         return std::vector<ExactSet>{{"1 / 2^k = 2^-k", Map(b.Powers(1, 126, 1022), [](double p) { return ExactCase{{p, 0, 0, 0}, 1 / p}; })}};
       }},
      {"Div",
       [](Builder& b) {
         return std::vector<ExactSet>{
             {"x / x = 1", Map(b.Any(126, 1022), [](double x) { return ExactCase{{x, 0, x, 0}, 1}; })},
             {"x / 1 = x", Map(b.Any(126, 1022), [](double x) { return ExactCase{{x, 0, 1, 0}, x}; })},
             {"(k * 3) / 3 = k", Map(b.Whole(22, 51), [](double k) { return ExactCase{{k * 3, 0, 3, 0}, k}; })}};
       }},
      {"Hypot",
       [](Builder& b) {
         const auto make = [](double x, double y, double h) { return ExactCase{{x, 0, y, 0}, h}; };
         return std::vector<ExactSet>{{"hypot(3, 4) = 5 and the like", Triples(b.Whole(18, 47), make)},
                                      {"hypot(x, 0) = x", Map(b.Any(126, 1022), [](double x) { return ExactCase{{x, 0, 0, 0}, x}; })}};
       }},
  };
  return sets;
}

Cases OddComplexZero() { return {{{0.0, 0.0, 0, 0}, 0.0, 0.0}, {{-0.0, -0.0, 0, 0}, -0.0, -0.0}}; }

const std::map<std::string_view, Sets>& ComplexSets() {
  const auto fixed = [](std::string text, Cases cases) {
    return [=](Builder&) { return std::vector<ExactSet>{{text, cases}}; };
  };
  static const std::map<std::string_view, Sets> sets = {
      {"Exp", fixed("exp(0) = 1", {{{0, 0, 0, 0}, 1, 0}})},
      {"Ln", fixed("ln(1) = 0", {{{1, 0, 0, 0}, 0, 0}})},
      {"Log10", fixed("log10(1) = 0", {{{1, 0, 0, 0}, 0, 0}})},
      {"Sin", fixed("sin(+-0) = +-0", OddComplexZero())},
      {"Cos", fixed("cos(0) = 1", {{{0, 0, 0, 0}, 1, -0.0}})},
      {"Tan", fixed("tan(+-0) = +-0", OddComplexZero())},
      {"Sinh", fixed("sinh(+-0) = +-0", OddComplexZero())},
      {"Cosh", fixed("cosh(0) = 1", {{{0, 0, 0, 0}, 1, 0}})},
      {"Tanh", fixed("tanh(+-0) = +-0", OddComplexZero())},
      {"Asin", fixed("asin(+-0) = +-0", OddComplexZero())},
      {"Atan", fixed("atan(+-0) = +-0", OddComplexZero())},
      {"Asinh", fixed("asinh(+-0) = +-0", OddComplexZero())},
      {"Atanh", fixed("atanh(+-0) = +-0", OddComplexZero())},
      {"CIS", fixed("cis(+-0) = 1 +- 0 i", {{{0.0, 0, 0, 0}, 1, 0.0}, {{-0.0, 0, 0, 0}, 1, -0.0}})},
      {"Abs",
       [](Builder& b) {
         const auto make = [](double x, double y, double h) { return ExactCase{{x, y, 0, 0}, h}; };
         return std::vector<ExactSet>{{"|3 + 4 i| = 5 and the like", Triples(b.Whole(18, 47), make)}};
       }},
      {"Sqrt",
       [](Builder& b) {
         const auto numbers = b.Whole(12, 26);
         return std::vector<ExactSet>{{"sqrt(k^2) = k", Map(numbers,
                                                            [](double k) {
                                                              return ExactCase{{k * k, 0, 0, 0}, k, 0};
                                                            })},
                                      {"sqrt(-k^2) = k i", Map(numbers, [](double k) {
                                         return ExactCase{{-k * k, 0, 0, 0}, 0, k};
                                       })}};
       }},
      {"Div",
       [](Builder& b) {
         const auto numbers = b.Any(20, 60);
         return std::vector<ExactSet>{{"z / z = 1", Map(numbers,
                                                        [](double x) {
                                                          return ExactCase{{x, 3 * x / 7, x, 3 * x / 7}, 1, any};
                                                        })},
                                      {"z / 1 = z", Map(numbers, [](double x) {
                                         return ExactCase{{x, 2 * x, 1, 0}, x, 2 * x};
                                       })}};
       }},
      {"Mul",
       [](Builder& b) {
         return std::vector<ExactSet>{{"z * 1 = z", Map(b.Any(20, 60), [](double x) {
                                         return ExactCase{{x, 2 * x, 1, 0}, x, 2 * x};
                                       })}};
       }},
      {"MulByConj",
       [](Builder& b) {
         const auto make = [&](double x) {
           const double y = b.Round(3 * x / 7);
           return ExactCase{{x, y, x, y}, any, 0};
         };
         return std::vector<ExactSet>{{"z conj(z) is real", Map(b.Any(20, 60), make)}};
       }},
  };
  return sets;
}

std::vector<ExactSet> Find(const std::map<std::string_view, Sets>& sets, const Export& entry) {
  const auto found = sets.find(entry.function);
  Builder builder(entry);
  return found == sets.end() ? std::vector<ExactSet>() : found->second(builder);
}

}  // namespace

std::vector<ExactSet> RealExactSets(const Export& entry) { return Find(RealSets(), entry); }
std::vector<ExactSet> ComplexExactSets(const Export& entry) { return Find(ComplexSets(), entry); }

}  // namespace lum::accuracy
