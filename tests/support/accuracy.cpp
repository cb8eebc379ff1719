#include "support/accuracy.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "accuracy/measure.h"
#include "accuracy/number.h"
#include "support/cases.h"

namespace lum::test {
namespace {

using accuracy::Number;

constexpr mpfr_prec_t working_precision = 256;

struct Worst {
  double ulp = 0;
  size_t index = 0;
};

// The exact results of all elements; computed once for all tags and libraries.
using Exact = std::vector<std::unique_ptr<Number>>;

Worst LargestError(const Array& results, const Exact& exact) {
  Worst worst;
  for (size_t i = 0; i < results.size(); ++i) {
    const double result = FormatOf(results.element()).number(results[i].re);
    const double error = accuracy::UlpError(result, *exact[i], support::Is32Bit(results.element()));
    if (error > worst.ulp) worst = {error, i};
  }
  return worst;
}

void ExpectBound(const Export& entry, const Array& results, const Batch& batch, const Exact& exact) {
  const Worst worst = LargestError(results, exact);
  const double allowed = accuracy::Bound(entry);
  const bool is_high = allowed == 1;
  testing::Test::RecordProperty(std::string(entry.name), std::to_string(worst.ulp));
  if (is_high ? worst.ulp < allowed : worst.ulp <= allowed) return;
  ADD_FAILURE() << entry.name << ": error of " << worst.ulp << " ulp, " << allowed << " allowed, at " << batch.Show(worst.index)
                << ": got " << Show(entry.output, results[worst.index]) << ", exact "
                << mpfr_get_d(*exact[worst.index], MPFR_RNDN);
}

// Every export on every library.
void ExpectBounds(const std::vector<const Export*>& exports, const Batch& batch, const Exact& exact, int output) {
  for (const std::string& library : RunnableLibraries()) {
    SCOPED_TRACE(library);
    std::string reason;
    for (const Export* entry : exports) {
      const Output results = Callee(*TestLibrary(library, "", reason), *entry).Run(batch);
      ExpectBound(*entry, output == 0 ? results.dst1 : results.dst2, batch, exact);
    }
  }
}

mpfr_ptr Append(Exact& exact) {
  exact.push_back(std::make_unique<Number>(working_precision));
  return *exact.back();
}

uint64_t PatternOf(const Export& entry, double number) { return FormatOf(entry.input).pattern(number); }

}  // namespace

Arguments1 Between(double low, double high, size_t count) {
  Random random(11);
  Arguments1 list{low, high};
  for (size_t i = 0; i < count; ++i) list.push_back(low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53));
  return list;
}

Arguments1 BetweenMagnitudes(double low, double high, size_t count) {
  Arguments1 list = Between(std::log2(std::fabs(low)), std::log2(std::fabs(high)), count);
  for (double& x : list) x = std::copysign(std::exp2(x), low);
  list[0] = low;
  list[1] = high;
  return list;
}

Arguments1 Around(double x, bool is_32bit, int steps) {
  Arguments1 list{x};
  double below = x, above = x;
  for (int i = 0; i < steps; ++i) {
    below = is_32bit ? std::nextafterf(static_cast<float>(below), -INFINITY) : std::nextafter(below, -INFINITY);
    above = is_32bit ? std::nextafterf(static_cast<float>(above), INFINITY) : std::nextafter(above, INFINITY);
    list.push_back(below);
    list.push_back(above);
  }
  return list;
}

Arguments1 operator+(Arguments1 a, const Arguments1& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
Arguments1 WithNegatives(Arguments1 x) {
  const size_t count = x.size();
  for (size_t i = 0; i < count; ++i) x.push_back(-x[i]);
  return x;
}

void ExpectAccuracy(std::string_view name, const Reference& reference, const Arguments1& x, int output) {
  const auto exports = ExportsNamed(name);
  ASSERT_FALSE(exports.empty()) << "no export is named " << name;
  ASSERT_EQ(exports[0]->inputs(), 1) << name;
  Batch batch(*exports[0]);
  Exact exact;
  for (double argument : x) {
    const uint64_t bits = PatternOf(*exports[0], argument);
    batch.src1.Append({bits, 0});
    reference(Append(exact), Number(working_precision, FormatOf(exports[0]->input).number(bits)));
  }
  ExpectBounds(exports, batch, exact, output);
}

void ExpectAccuracy(std::string_view name, const Reference2& reference, const Arguments1& x, const Arguments1& y) {
  const auto exports = ExportsNamed(name);
  ASSERT_FALSE(exports.empty()) << "no export is named " << name;
  const Format format = FormatOf(exports[0]->input);
  const bool has_parameter = exports[0]->has_parameter();
  const size_t batches = has_parameter ? y.size() : 1;
  const size_t count = has_parameter ? x.size() : std::max(x.size(), y.size());
  for (size_t k = 0; k < batches; ++k) {
    Batch batch(*exports[0]);
    Exact exact;
    for (size_t i = 0; i < count; ++i) {
      const uint64_t a = format.pattern(x[i % x.size()]);
      // The second list is walked in another order, so that pairs are mixed.
      const uint64_t b = format.pattern(y[has_parameter ? k : (i * 7919 + 1) % y.size()]);
      batch.src1.Append({a, 0});
      if (!has_parameter) batch.src2.Append({b, 0});
      else if (i == 0) batch.value.Append({b, 0});
      reference(Append(exact), Number(working_precision, format.number(a)), Number(working_precision, format.number(b)));
    }
    ExpectBounds(exports, batch, exact, 0);
  }
}

void ExpectComplexAccuracy(std::string_view name, const std::vector<accuracy::Point>& points, const ComplexBound& bound) {
  const auto exports = ExportsNamed(name);
  ASSERT_FALSE(exports.empty()) << "no export is named " << name;
  const accuracy::ExactValues exact(accuracy::FindReference(*exports[0]), points);
  for (const std::string& library : RunnableLibraries()) {
    SCOPED_TRACE(library);
    std::string reason;
    for (const Export* entry : exports) {
      const auto measured = accuracy::Measure(*TestLibrary(library, "", reason), *entry, points, exact);
      const auto& worst = bound.of == ComplexBound::parts ? measured.worst : measured.worst_norm;
      const accuracy::Point& at = worst.point;
      EXPECT_LE(worst.ulp, bound.ulp > 0 ? bound.ulp : accuracy::Bound(*entry))
          << entry->name << " at (" << at.re1 << ", " << at.im1 << "), (" << at.re2 << ", " << at.im2 << ")";
      EXPECT_EQ(measured.wrong_class, 0u) << entry->name << " at (" << measured.wrong_at.re1 << ", " << measured.wrong_at.im1
                                          << "), (" << measured.wrong_at.re2 << ", " << measured.wrong_at.im2 << ")";
      testing::Test::RecordProperty(std::string(entry->name), std::to_string(worst.ulp));
    }
  }
}

}  // namespace lum::test
