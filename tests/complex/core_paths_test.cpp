// Functions of a scalar core give its results bit for bit also where vectors computed them: an array has what the portable
// library has, which runs the core alone, and what each of its elements has in a call of its own. Bits near the middle between
// two numbers decide, so there are many elements, and many at the edges of the vectors' domain.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "support/cases.h"
#include "support/environment.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

class Points {
 public:
  struct Point {
    double re, im;
  };

  Point InSquare(double half_side) { return {Uniform(-half_side, half_side), Uniform(-half_side, half_side)}; }
  Point OfAnySize(int smallest, int largest) { return {OfMagnitude(smallest, largest), OfMagnitude(smallest, largest)}; }
  // At a distance of 2^-k from the circle of that radius about 0.
  Point NearCircle(double radius) {
    const double angle = Uniform(-std::numbers::pi, std::numbers::pi), r = radius * (1 + Step());
    return {r * std::cos(angle), r * std::sin(angle)};
  }
  // Both parts next to a number from the list, or one of them and the other anywhere in between.
  Point NearOneOf(std::initializer_list<double> numbers) { return {NextTo(numbers), NextTo(numbers)}; }
  // Sums of eighths: many results are exact.
  Point OnGrid() { return {std::round(Uniform(-32, 32)) / 8, std::round(Uniform(-32, 32)) / 8}; }
  // On an axis, with both signs of zero.
  Point OnAxis(int smallest, int largest) {
    const double x = OfMagnitude(smallest, largest), zero = std::copysign(0.0, Uniform(-1, 1));
    return Integer(0, 1) == 0 ? Point{x, zero} : Point{zero, x};
  }
  // Tangents of such numbers have a part of a size down to the smallest denormal number.
  Point FarAlongOnePart(int smallest) {
    const double far = Uniform(-310, 310), other = OfMagnitude(smallest, 1);
    return Integer(0, 1) == 0 ? Point{far, other} : Point{other, far};
  }
  // Parts next to multiples of pi/128.
  Point NearAngles() { return {NextToAngle(), NextToAngle()}; }

 private:
  double Uniform(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }
  int Integer(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  double Step() { return Uniform(-1, 1) * std::ldexp(1.0, -Integer(0, 52)); }
  double OfMagnitude(int smallest, int largest) {
    return std::copysign(std::ldexp(Uniform(1, 2), Integer(smallest, largest)), Uniform(-1, 1));
  }
  double NextTo(std::initializer_list<double> numbers) {
    const double number = numbers.begin()[Integer(0, static_cast<int>(numbers.size()) - 1)];
    return std::copysign(number * (1 + Step()), Uniform(-1, 1));
  }
  double NextToAngle() { return Integer(-400, 400) * (std::numbers::pi / 128) * (1 + Step() * 0x1p-20); }

  std::mt19937_64 random_{20};
};

bool IsPower(const Export& entry) { return entry.function == "Pow" || entry.function == "Powx"; }

Batch PointsOf(const Export& entry, size_t elements_of_a_kind) {
  const Format format = FormatOf(entry.input);
  const bool is_single = entry.input == Element::c32;
  Points points;
  std::vector<Points::Point> list;
  for (size_t i = 0; i < elements_of_a_kind; ++i) {
    list.push_back(points.InSquare(2));
    list.push_back(points.InSquare(40));
    list.push_back(is_single ? points.OfAnySize(-140, 126) : points.OfAnySize(-240, 260));
    list.push_back(points.OfAnySize(-12, 4));
    list.push_back(points.NearCircle(1));
    list.push_back(points.NearOneOf({1, 1, 0x1p-20, 0.5}));
    list.push_back(points.NearOneOf({600, 300, 10000, 88, 1, 0x1p-200, 0x1p240, 0x1p-125, 0x1p126}));
    list.push_back(points.OnGrid());
    list.push_back(points.OnAxis(-12, 10));
    list.push_back(points.NearAngles());
    list.push_back(points.FarAlongOnePart(is_single ? -140 : -205));
  }
  Batch batch(entry);
  for (size_t i = 0; i < list.size(); ++i) {
    const auto& z = list[i];
    const auto& w = list[(7 * i + 1) % list.size()];
    batch.src1.Append({format.pattern(z.re), format.pattern(z.im)});
    if (entry.function == "Pow") batch.src2.Append({format.pattern(w.re), format.pattern(w.im)});
  }
  if (entry.function == "Powx") batch.value.Append({format.pattern(1.5), format.pattern(-0.75)});
  return batch;
}

// Large numbers to the power -4, with one part or both next to the lower end of the range and below.
Batch SmallPowersOf(const Export& entry, size_t count) {
  const Format format = FormatOf(entry.input);
  const bool is_single = entry.input == Element::c32;
  Points points;
  Batch batch(entry);
  const Bits exponent{format.pattern(-4), format.pattern(0)};
  if (entry.function == "Powx") batch.value.Append(exponent);
  for (size_t i = 0; i < count; ++i) {
    const auto large = is_single ? points.OfAnySize(24, 40) : points.OfAnySize(170, 220);
    const auto other = is_single ? points.OfAnySize(-100, 40) : points.OfAnySize(-200, 220);
    batch.src1.Append({format.pattern(large.re), format.pattern(other.im)});
    if (entry.function == "Pow") batch.src2.Append(exponent);
  }
  return batch;
}

class CorePaths : public testing::TestWithParam<const Export*> {
 protected:
  static void ExpectSameInArray(const Batch& batch, const Environment& environment = {}) {
    const Export& entry = *GetParam();
    for (const std::string& name : RunnableLibraries()) {
      SCOPED_TRACE(name + ", " + Describe(environment));
      std::string reason;
      const Callee callee(*TestLibrary(name, "", reason), entry);
      std::vector<LumStatus> statuses;
      EnterEnvironment(environment);
      Output alone = callee.RunEach(batch, statuses);
      const Output together = callee.Run(batch);
      LeaveEnvironment();
      alone.status = together.status;  // that of one of the elements
      EXPECT_EQ(FirstDifference(alone, together), "equal");
      EXPECT_EQ(together.status, *std::max_element(statuses.begin(), statuses.end()));
      if (const support::Library* portable = TestLibrary("p0", "", reason); portable != nullptr) {
        EnterEnvironment(environment);
        const Output by_core = Callee(*portable, entry).Run(batch);
        LeaveEnvironment();
        EXPECT_EQ(FirstDifference(by_core, together), "equal") << "with the portable library";
      }
    }
  }
};

TEST_P(CorePaths, ArrayHasWhatEachElementAloneHas) {
  ExpectSameInArray(PointsOf(*GetParam(), 40000));
  if (IsPower(*GetParam())) ExpectSameInArray(SmallPowersOf(*GetParam(), 100000));
}

// Scalar code of extended precision gets by without denormal numbers where vectors of pairs do not.
TEST_P(CorePaths, ArrayHasWhatEachElementAloneHasWhereTheCallerFlushes) {
  if (!has_environment) GTEST_SKIP() << "this processor has no MXCSR";
  constexpr uint32_t denormals_are_zero = 0x40, flush_to_zero = 0x8000;
  for (const uint32_t flushing : {denormals_are_zero, flush_to_zero, denormals_are_zero | flush_to_zero}) {
    const Environment environment{.mxcsr = default_mxcsr | flushing};
    ExpectSameInArray(PointsOf(*GetParam(), 4000), environment);
    if (IsPower(*GetParam())) ExpectSameInArray(SmallPowersOf(*GetParam(), 10000), environment);
  }
}

std::vector<const Export*> FunctionsOfACore() {
  std::vector<const Export*> list;
  for (const char* function : {"Acos", "Acosh", "Asin", "Asinh", "Atan", "Atanh", "Cos", "Cosh", "Log10", "Pow", "Powx", "Sin",
                               "Sinh", "Tan", "Tanh"}) {
    for (const char* type : {"_32fc_A24", "_64fc_A53"}) list.push_back(ExportsNamed(std::string(function) + type).at(0));
  }
  list.push_back(ExportsNamed("Sqrt_64fc_A53").at(0));
  return list;
}

INSTANTIATE_TEST_SUITE_P(All, CorePaths, testing::ValuesIn(FunctionsOfACore()),
                         [](const auto& test) { return std::string(test.param->name); });

}  // namespace
}  // namespace lum::test
