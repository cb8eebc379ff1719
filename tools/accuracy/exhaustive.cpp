#include "accuracy/exhaustive.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <mutex>
#include <string>

#include "accuracy/cheap_reference.h"
#include "accuracy/threads.h"

namespace lum::accuracy {
namespace {

using support::Export;
using support::Library;

constexpr int chunk_bits = 20;
constexpr uint64_t chunk_count = uint64_t{1} << (32 - chunk_bits);
constexpr size_t block_size = 4096;
// What the cheap reference may be wrong by in units of binary32's last place.
constexpr double doubt = cheap_error * 0x1p24;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// One over the unit in the last place of binary32 at a value. Not a number where the result must be that of rounding the value:
// a NaN, a zero, an infinity. Infinite next to the overflow threshold, where the exact value decides. Next to a power of 2 the
// exact value may be below it: the unit there is the smaller one.
double InverseUlpAt(double value) {
  const double magnitude = std::fabs(value);
  const double least = magnitude * (1 - cheap_error);
  const double power = std::bit_cast<double>(std::bit_cast<uint64_t>(least) & 0x7FF0000000000000);
  const double inverse = 0x1p23 / (power < 0x1p-126 ? 0x1p-126 : power);
  const double beyond = magnitude < 0x1p128 ? infinity : nan;
  const double unless_zero = magnitude < 0x1.ffffffp127 ? inverse : beyond;
  return magnitude > 0 ? unless_zero : nan;
}

// Progress and the time left, a line rewritten in place on a terminal.
class Progress {
 public:
  explicit Progress(std::string name) : name_(std::move(name)) {}
  void Show(uint64_t done) {
    const double fraction = static_cast<double>(done) / static_cast<double>(chunk_count);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    if (!isatty(2)) return;
    fmt::print(stderr, "\r{} [{:<40}] {:3.0f} %, {:.0f} s left ", name_, std::string(static_cast<size_t>(fraction * 40), '#'),
               fraction * 100, seconds / fraction * (1 - fraction));
    if (done == chunk_count) fmt::print(stderr, "\n");
  }

 private:
  std::string name_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

// Arguments that follow each other in their bit patterns, with the cheap values of one or two parts.
struct Block {
  std::array<float, block_size> x;
  std::array<std::array<double, block_size>, 2> value;
  std::array<std::array<double, block_size>, 2> inverse_ulp;

  void Fill(uint32_t first, CheapReference reference, size_t parts) {
    for (uint32_t i = 0; i < block_size; ++i) x[i] = std::bit_cast<float>(first + i);
    reference(x, value[0], value[1]);
    for (size_t part = 0; part < parts; ++part) {
      for (size_t i = 0; i < block_size; ++i) inverse_ulp[part][i] = InverseUlpAt(value[part][i]);
    }
  }
};

// Measures one export, block by block. The cheap values settle almost all arguments; MPFR decides on errors near a half, where
// a result may or may not be the rounded value, on errors that exceed all former ones, and on results of another class.
class Judge {
 public:
  explicit Judge(const Export& entry)
      : entry_(entry), exact_(FindReference(entry)), parts_(static_cast<size_t>(Parts(entry))), bound_(Bound(entry)) {
    mpfr_inits2(precision, exact_value_[0], exact_value_[1], nullptr);
  }
  ~Judge() { mpfr_clears(exact_value_[0], exact_value_[1], nullptr); }
  Judge(const Judge&) = delete;
  Judge& operator=(const Judge&) = delete;

  void Add(const Library& library, const Block& block) {
    library.Call(entry_, {block.x.data(), nullptr, nullptr, result_[0].data(), result_[1].data(), block_size});
    if (AddSettled(block)) return;
    for (size_t i = 0; i < block_size; ++i) {
      bool is_rounded = true;
      for (size_t part = 0; part < parts_; ++part) is_rounded &= AddOne(block, part, i);
      sum_.correctly_rounded += is_rounded;
    }
  }
  const Accuracy& sum() const { return sum_; }

 private:
  // An error beyond this is a new largest one, or that of a result of a wrong class. Errors below the doubt are none.
  double Limit() const { return std::min(sum_.worst.ulp + doubt, bound_); }
  static bool IsNearHalf(double error) { return std::fabs(error - 0.5) <= doubt; }
  // Not a number for a NaN result that is not due, and for a NaN, a zero or an infinity that is due and did not come.
  double CheapError(const Block& block, size_t part, size_t i) const {
    const auto result = static_cast<double>(result_[part][i]);
    const auto rounded = static_cast<double>(static_cast<float>(block.value[part][i]));
    const bool is_same =
        (std::bit_cast<uint64_t>(result) == std::bit_cast<uint64_t>(rounded)) | ((result != result) & (rounded != rounded));
    const double inverse_ulp = block.inverse_ulp[part][i];
    const double error = std::fabs(result - block.value[part][i]) * inverse_ulp;
    return is_same && inverse_ulp != inverse_ulp ? 0 : error;
  }

  // Adds a block without an open argument, as most are: loops that a compiler vectorises.
  bool AddSettled(const Block& block) {
    std::array<double, block_size> errors;
    const double limit = Limit();
    int64_t open = 0, rounded = 0;
    for (size_t i = 0; i < block_size; ++i) errors[i] = CheapError(block, 0, i);
    if (parts_ == 2) {
      // The larger one; a NaN stays.
      for (size_t i = 0; i < block_size; ++i) {
        const double error = CheapError(block, 1, i);
        open += IsNearHalf(error) ? 1 : 0;
        errors[i] = ((error <= errors[i]) | (errors[i] != errors[i])) ? errors[i] : error;
      }
    }
    for (const double error : errors) {
      open += error <= limit ? 0 : 1;
      open += IsNearHalf(error) ? 1 : 0;
      rounded += error < 0.5 ? 1 : 0;
    }
    if (open != 0) return false;
    sum_.correctly_rounded += static_cast<uint64_t>(rounded);
    return true;
  }

  // True for a correctly rounded result.
  bool AddOne(const Block& block, size_t part, size_t i) {
    const double error = CheapError(block, part, i);
    return error <= Limit() && !IsNearHalf(error) ? error < 0.5 : AddExactly(block, part, i);
  }

  bool AddExactly(const Block& block, size_t part, size_t i) {
    const Point point{static_cast<double>(block.x[i]), 0, 0, 0};
    exact_(exact_value_[0], exact_value_[1], point);
    mpfr_srcptr exact = exact_value_[part];
    const auto result = static_cast<double>(result_[part][i]);
    const double error = UlpError(result, exact, true);
    const double rounded = RoundToType(exact, true);
    const bool sign_differs = !std::isnan(result) && !std::isnan(rounded) && std::signbit(result) != std::signbit(rounded);
    const bool kind_differs = std::isnan(result) != std::isnan(rounded) || std::isinf(result) != std::isinf(rounded);
    // Only a zero that stands for no denormal number has a sign of its own.
    const bool zero_differs = mpfr_zero_p(exact) != 0 && result == 0 && sign_differs;
    const bool is_same = (result == rounded && !zero_differs) || (std::isnan(result) && std::isnan(rounded));
    if (zero_differs || (!is_same && (sign_differs || kind_differs) && error > bound_)) {
      ++sum_.wrong_class;
      sum_.wrong_at = point;
    } else if (error > sum_.worst.ulp) {
      sum_.worst = {error, point};
    }
    return is_same;
  }

  const Export& entry_;
  Reference exact_;
  size_t parts_;
  double bound_;
  Accuracy sum_;
  std::array<std::array<float, block_size>, 2> result_;
  mpfr_t exact_value_[2];
};

void Join(Accuracy& sum, const Accuracy& part) {
  sum.correctly_rounded += part.correctly_rounded;
  sum.wrong_class += part.wrong_class;
  if (part.wrong_class != 0) sum.wrong_at = part.wrong_at;
  if (part.worst.ulp > sum.worst.ulp) sum.worst = part.worst;
}

// One thread's share: chunks until none is left.
class Worker {
 public:
  Worker(const Library& library, std::span<const Export* const> exports)
      : library_(library),
        reference_(FindCheapReference(*exports.front())),
        parts_(static_cast<size_t>(Parts(*exports.front()))) {
    for (const Export* entry : exports) judges_.push_back(std::make_unique<Judge>(*entry));
  }
  ~Worker() { mpfr_free_cache(); }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  void AddChunk(uint64_t chunk) {
    constexpr uint64_t blocks = (uint64_t{1} << chunk_bits) / block_size;
    for (uint64_t i = 0; i < blocks; ++i) {
      block_->Fill(static_cast<uint32_t>(chunk << chunk_bits | i * block_size), reference_, parts_);
      for (const auto& judge : judges_) judge->Add(library_, *block_);
    }
  }
  void JoinTo(std::vector<Accuracy>& totals) const {
    for (size_t i = 0; i < judges_.size(); ++i) Join(totals[i], judges_[i]->sum());
  }

 private:
  const Library& library_;
  CheapReference reference_;
  size_t parts_;
  std::unique_ptr<Block> block_ = std::make_unique<Block>();
  std::vector<std::unique_ptr<Judge>> judges_;
};

}  // namespace

std::vector<Accuracy> MeasureAll(const Library& library, std::span<const Export* const> exports) {
  std::vector<Accuracy> totals(exports.size());
  for (Accuracy& total : totals) total.count = uint64_t{1} << 32;
  std::atomic<uint64_t> next = 0;
  std::mutex mutex;
  uint64_t done = 0;
  Progress progress(fmt::format("{} {}", exports.front()->function, exports.front()->type));
  const auto work = [&] {
    Worker worker(library, exports);
    for (uint64_t chunk; (chunk = next++) < chunk_count;) {
      // From ordinary arguments on and all over the range, so that the largest error so far is soon near the final one.
      worker.AddChunk((chunk * 1517 + 0x3F8) % chunk_count);
      const std::scoped_lock lock(mutex);
      if (++done % 16 == 0) progress.Show(done);
    }
    const std::scoped_lock lock(mutex);
    worker.JoinTo(totals);
  };
  OnThreads(ProcessorCount(), work);
  return totals;
}

}  // namespace lum::accuracy
