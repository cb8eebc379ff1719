#include "accuracy/hunt.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

#include "accuracy/block_calls.h"
#include "accuracy/hunt_errors.h"
#include "accuracy/hunt_points.h"
#include "accuracy/long_reference.h"
#include "support/declarations.h"
#include "support/scalar_loop.h"

namespace lum::accuracy {
namespace {

using support::Export;
using support::Library;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr size_t kept_worst = 12, kept_run = 512;  // the largest errors to climb from; one of so many elements may be one

// The exports of binary64 that give what functions of binary32 are compared with.
const Export* WideExport(const Export& entry) {
  const std::string type = "64" + std::string(entry.type.substr(2));
  for (const Export& wide : support::Exports()) {
    if (wide.function == entry.function && wide.type == type && (wide.tier == support::Tier::high || wide.tag.empty()))
      return &wide;
  }
  return nullptr;
}

// What is known of one subject so far.
class Judge {
 public:
  Judge(const HuntSubject& subject, Reference exact)
      : subject_(subject), exact_(exact), parts_(static_cast<size_t>(Parts(*subject.entry))) {
    mpfr_inits2(precision, value_[0], value_[1], difference_, norm_, nullptr);
  }
  ~Judge() { mpfr_clears(value_[0], value_[1], difference_, norm_, nullptr); }
  Judge(const Judge&) = delete;
  Judge& operator=(const Judge&) = delete;

  // The errors are doubtful by so many ulp.
  void Add(const HuntPoints& points, const std::array<HuntColumn, 2>& results, const HuntColumn& errors, double doubt) {
    const double largest = result_.worst.ulp;
    const double limit = std::min(largest + doubt, std::max(largest, subject_.bound - doubt));
    open_.clear();
    for (size_t first = 0; first < hunt_block; first += kept_run) {
      double top = 0;
      size_t top_at = 0;
      for (size_t i = first; i < first + kept_run; ++i) {
        if (!(errors[i] <= limit)) open_.push_back({errors[i], i});
        if (errors[i] > top && errors[i] < infinity) {
          top = errors[i];
          top_at = i;
        }
      }
      if (top > 0) Keep({top, points.At(top_at), {results[0][top_at], results[1][top_at]}});
    }
    if (!open_.empty()) Settle(points, results);
  }
  void AddToCurve(const HuntPoints& points, const HuntColumn& errors) {
    for (size_t i = 0; i < hunt_block; ++i) {
      float& largest = bins_[std::bit_cast<uint64_t>(points.part[0][i]) >> bin_shift];
      if (errors[i] > static_cast<double>(largest) && errors[i] < infinity) largest = static_cast<float>(errors[i]);
    }
  }
  // Errors larger than the settled ones are those of the values that they were taken against.
  void FinishCurve() {
    for (uint64_t k = 0; k < bins_.size(); ++k) {
      const double x = std::bit_cast<double>((k << bin_shift) + (uint64_t{1} << (bin_shift - 1)));
      const double ulp = std::min(static_cast<double>(bins_[k]), result_.worst.ulp);
      if (bins_[k] >= 0 && std::isfinite(x)) result_.curve.push_back({x, ulp});
    }
    std::ranges::sort(result_.curve, {}, &Bin::x);
  }
  void AddToDistribution(const HuntValues& values, const HuntColumn& errors) {
    Distribution& d = result_.distribution;
    for (size_t i = 0; i < hunt_block; ++i) {
      if (!values.IsOrdinary(i) || !(errors[i] < infinity)) continue;
      ++d.count;
      d.sum += errors[i];
      for (size_t k = 0; k < std::size(distribution_limits); ++k) d.within[k] += errors[i] <= distribution_limits[k] ? 1 : 0;
    }
  }
  // The largest errors are known but for the doubt; of those that were kept it is taken away.
  void SettleKept() {
    for (const Kept& kept : kept_) SettleOne(kept.point, kept.result);
  }
  struct Kept {
    double error;
    Point point;
    std::array<double, 2> result;
  };
  const std::vector<Kept>& kept() const { return kept_; }
  HuntResult& result() { return result_; }
  const HuntSubject& subject() const { return subject_; }

 private:
  // Keeps the largest errors, of arguments that differ in sign, exponent or leading bits.
  void Keep(const Kept& found) {
    const auto cell = [](const Point& q) {
      return std::array{std::bit_cast<uint64_t>(q.re1) >> 46, std::bit_cast<uint64_t>(q.re2) >> 50};
    };
    const auto same = std::ranges::find_if(kept_, [&](const Kept& kept) { return cell(kept.point) == cell(found.point); });
    if (same != kept_.end()) {
      if (found.error > same->error) *same = found;
    } else if (kept_.size() < kept_worst) {
      kept_.push_back(found);
    } else {
      const auto least = std::ranges::min_element(kept_, {}, &Kept::error);
      if (found.error > least->error) *least = found;
    }
  }

  // The largest first, so that few have to be settled. Where the limit is next to the largest error there may be thousands, of
  // which each counts.
  void Settle(const HuntPoints& points, const std::array<HuntColumn, 2>& results) {
    std::ranges::sort(open_, [](const auto& a, const auto& b) { return !(a.first <= b.first) && b.first == b.first; });
    const size_t most_of_others = support::IsComplex(subject_.entry->output) ? 8 : 24, most_of_a_class = 4;
    const size_t most = subject_.is_own && !support::IsComplex(subject_.entry->input) ? hunt_block : most_of_others;
    size_t done = 0, of_a_class = 0;
    for (const auto& [error, i] : open_) {
      if (error <= result_.worst.ulp) break;
      const bool is_class = !(error < infinity);
      if (is_class ? of_a_class++ < most_of_a_class : done++ < most) SettleOne(points.At(i), {results[0][i], results[1][i]});
      else ++result_.left;
    }
  }

  void SettleOne(const Point& point, const std::array<double, 2>& results) {
    const bool is_32bit = subject_.entry->is_32bit();
    mpfr_set_zero(value_[1], 1);
    exact_(value_[0], value_[1], point);
    ++result_.settled;
    double error = 0;
    bool is_wrong = false;
    for (size_t part = 0; part < parts_; ++part) {
      const double result = results[part], rounded = RoundToType(value_[part], is_32bit);
      const double part_error = UlpError(result, value_[part], is_32bit);
      const bool sign_differs = !std::isnan(rounded) && !std::isnan(result) && std::signbit(result) != std::signbit(rounded);
      const bool kind_differs = std::isnan(result) != std::isnan(rounded) || std::isinf(result) != std::isinf(rounded);
      const double tolerance = std::isinf(subject_.bound) ? 4 : subject_.bound;
      const bool is_same = result == rounded || (std::isnan(result) && std::isnan(rounded));
      // Of a complex result a part may be far from its own value where the other one is the larger.
      const bool counts = kind_differs || (sign_differs && !support::IsComplex(subject_.entry->output));
      if (!is_same && counts && part_error > tolerance) is_wrong = true;
      else error = std::max(error, part_error);
    }
    if (is_wrong) {
      ++result_.wrong_class;
      result_.wrong_at = point;
      return;
    }
    if (support::IsComplex(subject_.entry->output)) error = NormError(results, is_32bit);
    if (error > result_.worst.ulp) result_.worst = {error, point};
  }

  double NormError(const std::array<double, 2>& results, bool is_32bit) {
    if (!mpfr_number_p(value_[0]) || !mpfr_number_p(value_[1]) || !std::isfinite(results[0]) || !std::isfinite(results[1]))
      return 0;
    mpfr_hypot(norm_, value_[0], value_[1], MPFR_RNDN);
    const int digits = is_32bit ? 24 : 53, lowest = is_32bit ? -149 : -1074;
    if (mpfr_zero_p(norm_) || mpfr_get_exp(norm_) <= lowest + 2 * digits) return 0;
    mpfr_sub_d(difference_, value_[0], results[0], MPFR_RNDN);
    mpfr_sub_d(value_[1], value_[1], results[1], MPFR_RNDN);
    mpfr_hypot(difference_, difference_, value_[1], MPFR_RNDN);
    mpfr_div(difference_, difference_, norm_, MPFR_RNDN);
    return std::ldexp(mpfr_get_d(difference_, MPFR_RNDN), digits - 1);
  }

  static constexpr int bin_shift = 49;  // sign, exponent, three bits of the significand

  const HuntSubject& subject_;
  Reference exact_;
  size_t parts_;
  HuntResult result_;
  std::vector<float> bins_ = std::vector<float>(size_t{1} << (64 - bin_shift), -1.0f);
  std::vector<std::pair<double, size_t>> open_;
  std::vector<Kept> kept_;
  mpfr_t value_[2], difference_, norm_;
};

// The search of one group.
class Search {
 public:
  Search(const Library& library, const std::vector<HuntSubject>& subjects, const HuntLimits& limits)
      : first_(*subjects.front().entry),
        source_(first_, limits.seed),
        caller_(first_),
        values_(first_.is_32bit(), support::IsComplex(first_.output), static_cast<size_t>(Parts(first_))) {
    for (const HuntSubject& subject : subjects) judges_.push_back(std::make_unique<Judge>(subject, FindReference(first_)));
    const Export* wide = first_.is_32bit() ? WideExport(first_) : HighExport(subjects);
    wide_caller_ = std::make_unique<Caller>(*wide);
    wide_call_ = CallOf(library, *wide);
    long_reference_ = first_.is_32bit() ? nullptr : FindLongReference(first_);
    const bool compares = limits.compares && first_.type == "64f" && subjects.size() == 1;
    if (compares && long_reference_ != nullptr) c_loop_ = support::FindScalarLoop(first_);
  }

  bool CanCross() const { return !first_.is_32bit() && OwnCount() > 1; }
  bool CanCompare() const { return c_loop_ != nullptr; }
  bool CanJudge() const { return first_.is_32bit() || long_reference_ != nullptr; }

  void AddBlock(uint64_t index, bool is_exact) {
    Fill(index);
    if (first_.is_32bit() || !is_exact) {
      wide_caller_->Set(*points_);
      wide_caller_->Call(wide_call_, *wide_);
      values_.Take(*wide_);
    } else {
      TakeLong(*points_);
    }
    // Two functions that are each within an ulp; the doubt of long double, and of the wider type's own ulp.
    const double doubt = first_.is_32bit() ? 0x1p-28 : is_exact ? long_reference_error : 1;
    for (const auto& judge : judges_) {
      const HuntSubject& subject = judge->subject();
      const bool is_high = subject.entry->tier == support::Tier::high || subject.entry->tag.empty();
      if (!is_exact && (!subject.is_own || is_high)) continue;
      caller_.Call(subject.call, *results_);
      values_.Errors(*results_, errors_);
      for (size_t i = 0; i < hunt_block; ++i) {
        if (std::fabs(points_->part[0][i]) > subject.reach) errors_[i] = 0;
      }
      judge->Add(*points_, *results_, errors_, doubt);
      (is_exact ? judge->result().judged : judge->result().crossed) += hunt_block;
      if (is_exact) judge->AddToCurve(*points_, errors_);
      if (is_exact && points_->kind == HuntKind::ordinary) judge->AddToDistribution(values_, errors_);
    }
  }

  // Of a block only the results that differ from the C library's are judged, once there is a block full of them.
  void CompareBlock(uint64_t index) {
    Fill(index);
    caller_.Call(judges_.front()->subject().call, *results_);
    caller_.Call(c_loop_, *wide_);
    for (size_t i = 0; i < hunt_block; ++i) {
      if (IsEqual(i)) {
        ++judges_.front()->result().compared;
        continue;
      }
      for (size_t part = 0; part < 4; ++part) differing_->part[part][differing_count_] = points_->part[part][i];
      for (size_t part = 0; part < 2; ++part) (*differing_results_)[part][differing_count_] = (*results_)[part][i];
      if (++differing_count_ == hunt_block) JudgeDiffering();
    }
  }

  std::vector<HuntResult> Results() {
    if (differing_count_ != 0) JudgeDiffering();
    std::vector<HuntResult> results;
    for (const auto& judge : judges_) {
      judge->SettleKept();
      judge->FinishCurve();
      results.push_back(judge->result());
    }
    return results;
  }

 private:
  void Fill(uint64_t index) {
    std::vector<Point> worst;
    for (const auto& judge : judges_) {
      for (const Judge::Kept& kept : judge->kept()) worst.push_back(kept.point);
    }
    source_.Fill(*points_, index, worst);
    caller_.Set(*points_);
  }

  void TakeLong(const HuntPoints& points) {
    const double* parts[4] = {points.part[0].data(), points.part[1].data(), points.part[2].data(), points.part[3].data()};
    long_reference_(hunt_block, parts, (*long_)[0].data(), (*long_)[1].data());
    values_.Take(*long_);
  }

  // Whether the results of both libraries are the same, and the C library's may be trusted.
  bool IsEqual(size_t i) const {
    if (is_circular_ && !(std::fabs(points_->part[0][i]) < circular_reach)) return false;
    for (size_t part = 0; part < static_cast<size_t>(Parts(first_)); ++part) {
      const double a = (*results_)[part][i], b = (*wide_)[part][i];
      if (std::bit_cast<uint64_t>(a) != std::bit_cast<uint64_t>(b) && !(std::isnan(a) && std::isnan(b))) return false;
    }
    return true;
  }

  void JudgeDiffering() {
    judges_.front()->result().judged += differing_count_;
    for (size_t i = differing_count_; i < hunt_block; ++i) {  // the last block is filled with what it has
      for (auto& part : differing_->part) part[i] = part[0];
      for (auto& part : *differing_results_) part[i] = part[0];
    }
    differing_count_ = 0;
    TakeLong(*differing_);
    values_.Errors(*differing_results_, errors_);
    judges_.front()->Add(*differing_, *differing_results_, errors_, long_reference_error);
    judges_.front()->AddToCurve(*differing_, errors_);
  }

  static const Export* HighExport(const std::vector<HuntSubject>& subjects) {
    const Export* high = subjects.front().entry;
    for (const HuntSubject& subject : subjects) {
      if (subject.is_own) high = subject.entry;
    }
    return high;
  }
  size_t OwnCount() const {
    return static_cast<size_t>(std::ranges::count_if(judges_, [](const auto& judge) { return judge->subject().is_own; }));
  }

  const Export& first_;
  HuntSource source_;
  Caller caller_;
  HuntValues values_;
  std::vector<std::unique_ptr<Judge>> judges_;
  std::unique_ptr<Caller> wide_caller_;
  BlockCall wide_call_;
  LongReference long_reference_ = nullptr;
  std::unique_ptr<HuntPoints> points_ = std::make_unique<HuntPoints>();
  std::unique_ptr<std::array<HuntColumn, 2>> wide_ = std::make_unique<std::array<HuntColumn, 2>>();
  std::unique_ptr<std::array<LongColumn, 2>> long_ = std::make_unique<std::array<LongColumn, 2>>();
  std::unique_ptr<std::array<HuntColumn, 2>> results_ = std::make_unique<std::array<HuntColumn, 2>>();
  HuntColumn errors_;

  support::ScalarLoop c_loop_ = nullptr;
  bool is_circular_ = IsCircular(first_);
  size_t differing_count_ = 0;
  std::unique_ptr<HuntPoints> differing_ = std::make_unique<HuntPoints>();
  std::unique_ptr<std::array<HuntColumn, 2>> differing_results_ = std::make_unique<std::array<HuntColumn, 2>>();
};

}  // namespace

bool IsCircular(const Export& entry) {
  constexpr std::array names = {"Sin", "Cos", "SinCos", "Tan"};
  return std::ranges::find(names, entry.function) != names.end();
}

bool HasReference(const Export& entry) { return FindReference(entry) != nullptr; }

std::vector<HuntSubject> OwnSubjects(const Library& library, const std::vector<const Export*>& group) {
  const bool is_one_kernel = std::ranges::all_of(group, [](const Export* entry) { return support::HasScalarCore(*entry); });
  std::vector<HuntSubject> subjects;
  for (const Export* entry : group) {
    if (is_one_kernel && entry != group.back()) continue;
    subjects.push_back({std::string(entry->tag), entry, CallOf(library, *entry), Bound(*entry), true});
  }
  return subjects;
}

std::vector<HuntResult> Hunt(const Library& library, const std::vector<HuntSubject>& subjects, const HuntLimits& limits) {
  const auto search = std::make_unique<Search>(library, subjects, limits);
  const auto start = std::chrono::steady_clock::now();
  constexpr uint64_t round = 16;  // blocks, of all kinds
  for (uint64_t i = 0; i * hunt_block < limits.count; ++i) {
    const bool is_cheap = search->CanCross() || search->CanCompare();
    const bool is_exact = search->CanJudge() && (!is_cheap || (i / round) % limits.exact_every == 0);
    if (!is_exact && search->CanCompare()) search->CompareBlock(i);
    else if (is_exact || search->CanCross()) search->AddBlock(i, is_exact);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (i % round == round - 1 && seconds > limits.seconds) break;
  }
  mpfr_free_cache();
  return search->Results();
}

}  // namespace lum::accuracy
