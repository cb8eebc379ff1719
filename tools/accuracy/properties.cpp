#include "accuracy/properties.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <memory>

#include "accuracy/block_calls.h"
#include "accuracy/neighbours.h"
#include "support/ulp.h"

namespace lum::accuracy {
namespace {

using support::Export;
using support::Library;

constexpr size_t run_length = 64;  // neighbouring arguments in a row, of those that are searched

template <class T> double Apart(T a, T b) { return static_cast<double>(support::UlpDistance(a, b)); }
double Apart(double a, double b, bool is_32bit) {
  return is_32bit ? Apart(static_cast<float>(a), static_cast<float>(b)) : Apart(a, b);
}
void Note(Finding& finding, double size, const Point& at) {
  ++finding.violations;
  if (size > finding.largest || finding.violations == 1) {
    finding.largest = std::max(size, finding.largest);
    finding.at = at;
  }
}
bool IsOneRealInput(const Export& entry) { return !entry.is_complex() && entry.inputs() == 1 && !entry.has_parameter(); }

// The checks of a function of one real input, of arguments of both signs at a time: x and -x, in runs of neighbours.
template <class T> class RealChecks {
 public:
  using Bits = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
  RealChecks(const Library& library, const Export& entry, const Properties& properties)
      : call_(CallOf(library, entry)), outputs_(static_cast<size_t>(entry.outputs())), properties_(properties) {
    for (const Symmetry& s : properties.symmetries) symmetries_.push_back({"symmetry", s.text, false, 0, 0, 0, {}});
    for (const Range& r : properties.ranges) ranges_.push_back({"range", r.text, false, 0, 0, 0, {}});
    for (const Monotone& m : properties.monotone) rises_.push_back({"rise", m.text, false, 0, 0, 0, {}});
  }

  std::array<T, hunt_block> x;  // not negative

  void Check(size_t run) {
    for (size_t i = 0; i < hunt_block; ++i) minus_[i] = -x[i];
    call_({x.data(), nullptr, nullptr, plus_result_[0].data(), plus_result_[1].data(), hunt_block});
    call_({minus_.data(), nullptr, nullptr, minus_result_[0].data(), minus_result_[1].data(), hunt_block});
    for (size_t k = 0; k < symmetries_.size(); ++k) CheckSymmetry(properties_.symmetries[k], symmetries_[k]);
    for (size_t k = 0; k < ranges_.size(); ++k) {
      CheckRange(properties_.ranges[k], x, plus_result_[properties_.ranges[k].part], ranges_[k]);
      CheckRange(properties_.ranges[k], minus_, minus_result_[properties_.ranges[k].part], ranges_[k]);
    }
    for (size_t k = 0; k < rises_.size(); ++k) {
      const Monotone& m = properties_.monotone[k];
      CheckRises(m, m.direction, x, plus_result_[m.part], run, rises_[k]);
      CheckRises(m, -m.direction, minus_, minus_result_[m.part], run, rises_[k]);
    }
  }
  std::vector<Finding> Findings(bool is_over_all) const {
    std::vector<Finding> all;
    for (const auto* list : {&symmetries_, &ranges_, &rises_}) all.insert(all.end(), list->begin(), list->end());
    for (Finding& finding : all) finding.is_over_all = is_over_all;
    return all;
  }

 private:
  using Column = std::array<T, hunt_block>;

  void CheckSymmetry(const Symmetry& symmetry, Finding& finding) const {
    finding.count += hunt_block;
    for (size_t part = 0; part < outputs_; ++part) {
      const Column &a = plus_result_[part], &b = minus_result_[part];
      const T sign = static_cast<T>(symmetry.results[part]);
      int differing = 0;
      for (size_t i = 0; i < hunt_block; ++i) {
        const T mirrored = b[i] * sign;
        differing += std::bit_cast<Bits>(a[i]) != std::bit_cast<Bits>(mirrored) && !(a[i] != a[i] && b[i] != b[i]) ? 1 : 0;
      }
      if (differing == 0) continue;
      for (size_t i = 0; i < hunt_block; ++i) {
        const T mirrored = b[i] * sign;
        if (std::bit_cast<Bits>(a[i]) != std::bit_cast<Bits>(mirrored) && !(a[i] != a[i] && b[i] != b[i])) {
          Note(finding, Apart(a[i], mirrored), {static_cast<double>(x[i])});
        }
      }
    }
  }

  static void CheckRange(const Range& range, const Column& at, const Column& results, Finding& finding) {
    finding.count += hunt_block;
    const T low = static_cast<T>(range.low), high = static_cast<T>(range.high);
    int outside = 0;
    for (size_t i = 0; i < hunt_block; ++i) outside += (results[i] < low) | (results[i] > high) ? 1 : 0;
    if (outside == 0) return;
    for (size_t i = 0; i < hunt_block; ++i) {
      if (results[i] < low) Note(finding, Apart(results[i], low), {static_cast<double>(at[i])});
      if (results[i] > high) Note(finding, Apart(results[i], high), {static_cast<double>(at[i])});
    }
  }

  static void CheckRises(const Monotone& m, int direction, const Column& at, const Column& results, size_t run,
                         Finding& finding) {
    const T from = static_cast<T>(m.from), to = static_cast<T>(m.to), sign = static_cast<T>(direction);
    int32_t back = 0, pairs = 0;
    for (size_t first = 0; first < hunt_block; first += run) {
      for (size_t i = first; i < first + run - 1; ++i) {
        const bool is_pair =
            (at[i] >= from) & (at[i] <= to) & (at[i + 1] >= from) & (at[i + 1] <= to) & (results[i] == results[i]);
        pairs += is_pair ? 1 : 0;
        back += is_pair & (results[i + 1] * sign < results[i] * sign) ? 1 : 0;
      }
    }
    finding.count += static_cast<uint64_t>(pairs);
    if (back == 0) return;
    for (size_t i = 0; i + 1 < hunt_block; ++i) {
      const bool is_pair = (i % run != run - 1) & (at[i] >= from) & (at[i] <= to) & (at[i + 1] >= from) & (at[i + 1] <= to);
      if (is_pair && results[i + 1] * sign < results[i] * sign) {
        Note(finding, Apart(results[i], results[i + 1]), {static_cast<double>(at[i])});
      }
    }
  }

  BlockCall call_;
  size_t outputs_;
  const Properties& properties_;
  Column minus_;
  std::array<Column, 2> plus_result_, minus_result_;
  std::vector<Finding> symmetries_, ranges_, rises_;
};

// All numbers of binary32 that are not NaN, in blocks that overlap by one.
std::vector<Finding> OverAll(const Library& library, const Export& entry, const Properties& properties,
                             const PropertyLimits& limits) {
  const auto checks = std::make_unique<RealChecks<float>>(library, entry, properties);
  constexpr uint32_t infinite = 0x7F800000;
  constexpr uint32_t step = hunt_block - 1;
  for (uint64_t block = 0; block * step < infinite; ++block) {
    if (block % limits.share_of_all != 0) continue;
    const auto first = static_cast<uint32_t>(std::min<uint64_t>(block * step, infinite - step));
    for (uint32_t i = 0; i < hunt_block; ++i) checks->x[i] = std::bit_cast<float>(first + i);
    checks->Check(hunt_block);
  }
  return checks->Findings(limits.share_of_all == 1);
}

// Runs of numbers that are neighbours, or a power of 2 of numbers apart, from all kinds of arguments on.
template <class T>
std::vector<Finding> OverRuns(const Library& library, const Export& entry, const Properties& properties,
                              const PropertyLimits& limits) {
  const auto checks = std::make_unique<RealChecks<T>>(library, entry, properties);
  const auto points = std::make_unique<HuntPoints>();
  HuntSource source(entry, limits.seed);
  size_t used = hunt_block;
  uint64_t index = 0;
  for (uint64_t done = 0; done < limits.count; done += hunt_block) {
    Random random(limits.seed + 1, done);
    for (size_t i = 0; i < hunt_block; i += run_length) {
      if (used == hunt_block) {
        source.Fill(*points, index++, {});
        used = 0;
      }
      const int64_t stride = random() % 4 == 0 ? int64_t{1} << random.Below(sizeof(T) == 4 ? 16 : 42) : 1;
      const int64_t last = Ordered(std::numeric_limits<T>::max()) - static_cast<int64_t>(run_length) * stride;
      const int64_t start = std::min(Ordered(static_cast<T>(std::fabs(points->part[0][used++]))), last);
      for (size_t k = 0; k < run_length; ++k) checks->x[i + k] = FromOrdered<T>(start + static_cast<int64_t>(k) * stride);
    }
    checks->Check(run_length);
  }
  return checks->Findings(false);
}

// Functions of two inputs or of complex numbers, at arguments of all kinds.
class PointChecks {
 public:
  PointChecks(const Library& library, const Export& entry, const Properties& properties)
      : entry_(entry),
        call_(CallOf(library, entry)),
        caller_(entry),
        parts_(static_cast<size_t>(Parts(entry))),
        properties_(properties) {
    for (const Symmetry& s : properties.symmetries) findings_.push_back({"symmetry", s.text, false, 0, 0, 0, {}});
    for (const Range& r : properties.ranges) findings_.push_back({"range", r.text, false, 0, 0, 0, {}});
    if (properties.covers_larger_part) findings_.push_back({"range", "f(x, y) >= |x|, |y|", false, 0, 0, 0, {}});
  }

  void Check(const HuntPoints& points) {
    caller_.Set(points);
    caller_.Call(call_, results_);
    auto finding = findings_.begin();
    for (const Symmetry& symmetry : properties_.symmetries) CheckSymmetry(symmetry, points, *finding++);
    for (const Range& range : properties_.ranges) {
      finding->count += hunt_block;
      for (size_t i = 0; i < hunt_block; ++i) {
        const double result = results_[range.part][i];
        if (result < range.low) Note(*finding, Apart(result, range.low, entry_.is_32bit()), points.At(i));
        if (result > range.high) Note(*finding, Apart(result, range.high, entry_.is_32bit()), points.At(i));
      }
      ++finding;
    }
    if (properties_.covers_larger_part) {
      finding->count += hunt_block;
      for (size_t i = 0; i < hunt_block; ++i) {
        const double larger = std::fmax(std::fabs(points.part[0][i]), std::fabs(points.part[2][i]));
        if (results_[0][i] < larger) Note(*finding, Apart(results_[0][i], larger, entry_.is_32bit()), points.At(i));
      }
    }
  }
  const std::vector<Finding>& findings() const { return findings_; }

 private:
  void CheckSymmetry(const Symmetry& symmetry, const HuntPoints& points, Finding& finding) {
    // The parameter is the same for a run; a swap is for two inputs alone.
    for (size_t part = 0; part < 4; ++part) {
      const auto& from = points.part[symmetry.is_swapped ? (part + 2) % 4 : part];
      const double sign = symmetry.arguments[part];
      for (size_t i = 0; i < hunt_block; ++i) changed_->part[part][i] = sign * from[i];
    }
    caller_.Set(*changed_);
    caller_.Call(call_, changed_results_);
    finding.count += hunt_block;
    for (size_t part = 0; part < parts_; ++part) {
      const double sign = symmetry.results[part];
      for (size_t i = 0; i < hunt_block; ++i) {
        const double a = results_[part][i], b = changed_results_[part][i] * sign;
        const bool is_same = std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b) || (a != a && b != b) ||
                             (symmetry.zeros_are_alike && a == 0 && b == 0);
        if (!is_same) Note(finding, Apart(a, b, entry_.is_32bit()), points.At(i));
      }
    }
  }

  const Export& entry_;
  BlockCall call_;
  Caller caller_;
  size_t parts_;
  const Properties& properties_;
  std::array<HuntColumn, 2> results_, changed_results_;
  std::unique_ptr<HuntPoints> changed_ = std::make_unique<HuntPoints>();
  std::vector<Finding> findings_;
};

std::vector<Finding> OverPoints(const Library& library, const Export& entry, const Properties& properties,
                                const PropertyLimits& limits) {
  const auto checks = std::make_unique<PointChecks>(library, entry, properties);
  const auto points = std::make_unique<HuntPoints>();
  HuntSource source(entry, limits.seed);
  for (uint64_t i = 0; i * hunt_block < limits.count; ++i) {
    source.Fill(*points, i, {});
    checks->Check(*points);
  }
  return checks->findings();
}

Finding CheckExact(const Library& library, const Export& entry, const ExactSet& set) {
  const auto points = std::make_unique<HuntPoints>();
  const auto results = std::make_unique<std::array<HuntColumn, 2>>();
  Caller caller(entry);
  const BlockCall call = CallOf(library, entry);
  Finding finding{"exact", set.text, true, 0, 0, 0, {}};
  // A call a case, so that each may have a parameter of its own.
  const size_t at_a_time = entry.has_parameter() ? hunt_block / parameter_run : hunt_block;
  for (size_t first = 0; first < set.cases.size(); first += at_a_time) {
    const size_t count = std::min(at_a_time, set.cases.size() - first);
    for (size_t i = 0; i < hunt_block; ++i) {
      const Point& p = set.cases[first + std::min(i / (hunt_block / at_a_time), count - 1)].at;
      points->part[0][i] = p.re1;
      points->part[1][i] = p.im1;
      points->part[2][i] = p.re2;
      points->part[3][i] = p.im2;
    }
    caller.Set(*points);
    caller.Call(call, *results);
    for (size_t k = 0; k < count; ++k) {
      const ExactCase& exact = set.cases[first + k];
      const size_t i = k * (hunt_block / at_a_time);
      ++finding.count;
      double apart = 0;
      bool is_same = true;
      for (size_t part = 0; part < static_cast<size_t>(Parts(entry)); ++part) {
        const double due = part == 0 ? exact.value1 : exact.value2, result = (*results)[part][i];
        if (due != due || std::bit_cast<uint64_t>(due) == std::bit_cast<uint64_t>(result)) continue;
        is_same = false;
        apart = std::max(apart, Apart(due, result, entry.is_32bit()));
      }
      if (!is_same) Note(finding, apart, exact.at);
    }
  }
  return finding;
}

}  // namespace

std::vector<Finding> FindProperties(const Library& library, const Export& entry, const PropertyLimits& limits) {
  const Properties properties = PropertiesOf(entry);
  std::vector<Finding> findings;
  const bool has_some = !properties.symmetries.empty() || !properties.ranges.empty() || !properties.monotone.empty();
  if (has_some) {
    if (!IsOneRealInput(entry)) findings = OverPoints(library, entry, properties, limits);
    else if (entry.is_32bit()) findings = OverAll(library, entry, properties, limits);
    else findings = OverRuns<double>(library, entry, properties, limits);
  }
  for (const ExactSet& set : properties.exact) findings.push_back(CheckExact(library, entry, set));
  return findings;
}

}  // namespace lum::accuracy
