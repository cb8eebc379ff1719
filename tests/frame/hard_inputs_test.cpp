// Every function keeps its tags' bounds at the inputs that random ones miss: the borders of its kernels, the numbers closest to
// multiples of pi/2, and the unit circle. Unlike a comparison of two libraries this sees errors that both have.
#include <algorithm>
#include <string_view>

#include "accuracy/inputs.h"
#include "accuracy/measure.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

constexpr size_t most_points = 5000;

// Powers of complex numbers, and powers with a constant exponent whose reciprocal overflows, have no bound of their tag to
// keep.
bool HasBound(const Export& entry) {
  if (entry.function == "Powx") return entry.is_complex() ? entry.is_32bit() : entry.tier == support::Tier::high;
  return entry.function != "Pow" || !entry.is_complex() || entry.is_32bit();
}

// Evenly chosen from all, by an odd step, so that every kind of neighbour has its turn.
std::vector<accuracy::Point> SomePointsOf(const Export& entry, accuracy::InputClass inputs) {
  const auto points = accuracy::PointsOf(entry, inputs, most_points);
  const size_t step = (points.size() + most_points - 1) / most_points | 1;
  std::vector<accuracy::Point> some;
  for (size_t i = 0; i < points.size(); i += step) some.push_back(points[i]);
  return some;
}

// One test a function and type, for all of its tags.
class HardInputs : public testing::TestWithParam<const Export*> {
 protected:
  void ExpectBoundsAt(accuracy::InputClass inputs) {
    const auto points = SomePointsOf(*GetParam(), inputs);
    if (points.empty()) return;
    const accuracy::ExactValues exact(accuracy::FindReference(*GetParam()), points);
    for (const std::string& library : RunnableLibraries()) {
      std::string reason;
      for (const Export& entry : support::Exports()) {
        if (entry.function != GetParam()->function || entry.type != GetParam()->type || !HasBound(entry)) continue;
        const auto measured = accuracy::Measure(*TestLibrary(library, "", reason), entry, points, exact);
        const auto& worst = support::IsComplex(entry.output) ? measured.worst_norm : measured.worst;
        const double bound = accuracy::Bound(entry);
        EXPECT_TRUE(bound == 1 ? worst.ulp < bound : worst.ulp <= bound)
            << entry.name << " of " << library << ", " << accuracy::NameOf(inputs) << ": " << worst.ulp << " ulp at ("
            << worst.point.re1 << ", " << worst.point.im1 << "), (" << worst.point.re2 << ", " << worst.point.im2 << ")";
        EXPECT_EQ(measured.wrong_class, 0u)
            << entry.name << " of " << library << ", " << accuracy::NameOf(inputs) << " at (" << measured.wrong_at.re1 << ", "
            << measured.wrong_at.im1 << "), (" << measured.wrong_at.re2 << ", " << measured.wrong_at.im2 << ")";
      }
    }
  }
};

TEST_P(HardInputs, Borders) { ExpectBoundsAt(accuracy::InputClass::borders); }
TEST_P(HardInputs, QuarterTurns) { ExpectBoundsAt(accuracy::InputClass::quarter_turns); }
TEST_P(HardInputs, UnitCircle) { ExpectBoundsAt(accuracy::InputClass::unit_circle); }

// The first export of every function and type.
std::vector<const Export*> FirstExports() {
  std::vector<const Export*> first;
  for (const Export& entry : support::Exports()) {
    if (first.empty() || first.back()->function != entry.function || first.back()->type != entry.type) first.push_back(&entry);
  }
  return first;
}
std::string NameOfGroup(const testing::TestParamInfo<const Export*>& group) {
  return std::string(group.param->function) + "_" + std::string(group.param->type);
}
INSTANTIATE_TEST_SUITE_P(Functions, HardInputs, testing::ValuesIn(FirstExports()), NameOfGroup);

}  // namespace
}  // namespace lum::test
