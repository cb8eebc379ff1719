#include "accuracy/exhaustive.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <mutex>
#include <string_view>
#include <thread>

namespace lum::accuracy {
namespace {

using support::Export;

constexpr long double inverse_root2 = 0.70710678118654752440084436210484903928L;
constexpr long double two_over_root_pi = 1.12837916709551257389615890312154517169L;

// One Newton step of erf(y) = x in long double, from a start of more than half the digits each time.
long double RefinedErfInv(long double x) {
  const long double w = -std::log((1 - x) * (1 + x));
  long double y = x * (w < 5 ? 0.8862269254527580L * (1 + 0.13L * w) : std::sqrt(w) / std::max(std::fabs(x), 1e-30L) * 0.9L);
  for (int i = 0; i < 40; ++i) {
    // The complement keeps its digits in the tails.
    const long double error =
        std::fabs(x) < 0.5L ? std::erf(y) - x : std::copysign(1 - std::fabs(x) - std::erfc(std::fabs(y)), x);
    const long double step = error / (two_over_root_pi * std::exp(-y * y));
    const long double next = y - step / (1 + y * step);  // Halley
    if (std::fabs(next - y) <= 1e-18L * std::fabs(next)) return next;
    y = next;
  }
  return y;
}
long double RefinedErfcInv(long double p) {
  if (p > 0.5L && p < 1.5L) return RefinedErfInv(1 - p);
  if (p > 1) return -RefinedErfcInv(2 - p);
  long double y = std::sqrt(-std::log(p)) - 0.3L;
  for (int i = 0; i < 60; ++i) {
    const long double e = std::erfc(y);
    const long double step = std::log(e / p) * e / (two_over_root_pi * std::exp(-y * y));
    y += step;
    if (std::fabs(step) <= 1e-18L * std::fabs(y)) break;
  }
  return y;
}

template <auto f> double InDouble(float x) { return f(static_cast<double>(x)); }
template <auto f> double InLongDouble(float x) { return static_cast<double>(f(static_cast<long double>(x))); }

const std::map<std::string_view, CheapReference>& CheapReferences() {
  static const std::map<std::string_view, CheapReference> references = {
      {"Abs", InDouble<[](double x) { return std::fabs(x); }>},
      {"Acos", InLongDouble<[](long double x) { return std::acos(x); }>},
      {"Acosh", InDouble<[](double x) { return std::acosh(x); }>},
      {"Asin", InDouble<[](double x) { return std::asin(x); }>},
      {"Asinh", InDouble<[](double x) { return std::asinh(x); }>},
      {"Atan", InDouble<[](double x) { return std::atan(x); }>},
      {"Atanh", InDouble<[](double x) { return std::atanh(x); }>},
      {"Cbrt", InLongDouble<[](long double x) { return std::cbrt(x); }>},
      {"CdfNorm", InLongDouble<[](long double x) { return std::erfc(-x * inverse_root2) / 2; }>},
      {"CdfNormInv", InLongDouble<[](long double x) {
         if (!(x > 0 && x < 1)) return x == 0 ? -HUGE_VALL : x == 1 ? HUGE_VALL : std::numeric_limits<long double>::quiet_NaN();
         return x == 0.5L ? 0.0L : -RefinedErfcInv(2 * x) / inverse_root2;
       }>},
      {"Ceil", InDouble<[](double x) { return std::ceil(x); }>},
      {"Cos", InDouble<[](double x) { return std::cos(x); }>},
      {"Cosh", InDouble<[](double x) { return std::cosh(x); }>},
      {"Erf", InDouble<[](double x) { return std::erf(x); }>},
      {"ErfInv", InLongDouble<[](long double x) {
         if (!(x > -1 && x < 1))
           return std::fabs(x) == 1 ? std::copysign(HUGE_VALL, x) : std::numeric_limits<long double>::quiet_NaN();
         return x == 0 ? x : RefinedErfInv(x);
       }>},
      {"Erfc", InLongDouble<[](long double x) { return std::erfc(x); }>},
      {"ErfcInv", InLongDouble<[](long double x) {
         if (!(x > 0 && x < 2)) return x == 0 ? HUGE_VALL : x == 2 ? -HUGE_VALL : std::numeric_limits<long double>::quiet_NaN();
         return x == 1 ? 0.0L : RefinedErfcInv(x);
       }>},
      {"Exp", InDouble<[](double x) { return std::exp(x); }>},
      {"Expm1", InDouble<[](double x) { return std::expm1(x); }>},
      {"Floor", InDouble<[](double x) { return std::floor(x); }>},
      {"Frac", InDouble<[](double x) { return std::isinf(x) ? std::copysign(0.0, x) : std::copysign(x - std::trunc(x), x); }>},
      {"Inv", InLongDouble<[](long double x) { return 1 / x; }>},
      {"InvCbrt", InLongDouble<[](long double x) { return 1 / std::cbrt(x); }>},
      {"InvSqrt", InLongDouble<[](long double x) { return 1 / std::sqrt(x); }>},
      {"Ln", InDouble<[](double x) { return std::log(x); }>},
      {"Log10", InLongDouble<[](long double x) { return std::log10(x); }>},
      {"Log1p", InDouble<[](double x) { return std::log1p(x); }>},
      {"NearbyInt", InDouble<[](double x) { return std::nearbyint(x); }>},
      {"Pow2o3", InLongDouble<[](long double x) { return std::pow(std::cbrt(x), 2); }>},
      {"Pow3o2", InLongDouble<[](long double x) { return x * std::sqrt(x); }>},
      {"Rint", InDouble<[](double x) { return std::rint(x); }>},
      {"Round", InDouble<[](double x) { return std::round(x); }>},
      {"Sin", InDouble<[](double x) { return std::sin(x); }>},
      {"Sinh", InDouble<[](double x) { return std::sinh(x); }>},
      {"Sqr", InDouble<[](double x) { return x * x; }>},
      {"Sqrt", InLongDouble<[](long double x) { return std::sqrt(x); }>},
      {"Tan", InDouble<[](double x) { return std::tan(x); }>},
      {"Tanh", InDouble<[](double x) { return std::tanh(x); }>},
      {"Trunc", InDouble<[](double x) { return std::trunc(x); }>},
  };
  return references;
}

constexpr int chunk_bits = 20;
constexpr uint64_t chunk_count = uint64_t{1} << (32 - chunk_bits);
// Below this the cheap reference's own error is much smaller than a difference that matters.
constexpr double cheap_error = 0x1p-45;

// One over the unit in the last place of binary32 at a value.
double InverseUlpAt(double value) {
  const auto field = static_cast<int64_t>(std::bit_cast<uint64_t>(value) >> 52 & 0x7FF);
  const int64_t exponent = std::max<int64_t>(field - 1023 - 23, -149);
  return std::bit_cast<double>(static_cast<uint64_t>(1023 - exponent) << 52);
}

// Progress and the time left, a line rewritten in place on a terminal.
class Progress {
 public:
  explicit Progress(std::string_view name) : name_(name) {}
  void Show(uint64_t done) {
    const double fraction = static_cast<double>(done) / static_cast<double>(chunk_count);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    if (!isatty(2) && done != chunk_count) return;
    fmt::print(stderr, "\r{} [{:<40}] {:3.0f} %, {:.0f} s left ", name_, std::string(static_cast<size_t>(fraction * 40), '#'),
               fraction * 100, done == 0 ? 0 : seconds / fraction * (1 - fraction));
    if (done == chunk_count) fmt::print(stderr, "\n");
  }

 private:
  std::string_view name_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

// What one argument adds; MPFR decides where the cheap value leaves a doubt.
class Judge {
 public:
  Judge(const Export& entry, CheapReference cheap) : reference_(FindReference(entry)), cheap_(cheap) {
    mpfr_inits2(precision, part1_, part2_, nullptr);
  }
  ~Judge() { mpfr_clears(part1_, part2_, nullptr); }
  Judge(const Judge&) = delete;
  Judge& operator=(const Judge&) = delete;

  void Add(Accuracy& sum, float x, float result, double bound) {
    const double value = cheap_(x);
    const auto rounded = static_cast<float>(value);
    const Point point{static_cast<double>(x), 0, 0, 0};
    // Beyond the doubt of being rounded to the largest number a value is infinite.
    if (std::isnan(value) || std::fabs(value) >= 0x1p128 || value == 0) {
      const bool same = std::isnan(value) ? std::isnan(result) : result == rounded;
      if (same) ++sum.correctly_rounded;
      else AddExactly(sum, point, result, bound);
      return;
    }
    const double inverse_ulp = InverseUlpAt(value);
    const double error = std::fabs(static_cast<double>(result) - value) * inverse_ulp;
    const double doubt = cheap_error * std::fabs(value) * inverse_ulp;
    const bool plain = std::isfinite(result) && std::signbit(result) == std::signbit(value) && std::isfinite(rounded);
    // To be rounded correctly the error must be at most a half; near a half, and near the largest error so far, MPFR decides.
    // An error below the doubt is none.
    const bool may_be_worst = error > doubt && error + doubt > sum.worst.ulp;
    if (!plain || may_be_worst || std::fabs(error - 0.5) <= doubt) {
      AddExactly(sum, point, result, bound);
    } else {
      sum.correctly_rounded += error < 0.5;
    }
  }

 private:
  void AddExactly(Accuracy& sum, const Point& point, float result, double bound) {
    reference_(part1_, part2_, point);
    const double error = UlpError(static_cast<double>(result), part1_, true);
    const double rounded = RoundToType(part1_, true);
    const auto as_double = static_cast<double>(result);
    const bool same = as_double == rounded || (std::isnan(as_double) && std::isnan(rounded));
    sum.correctly_rounded += same;
    const bool class_differs = std::isnan(as_double) != std::isnan(rounded) || std::isinf(as_double) != std::isinf(rounded) ||
                               std::signbit(as_double) != std::signbit(rounded);
    if (!same && class_differs && error > bound) {
      ++sum.wrong_class;
      sum.wrong_at = point;
    } else if (error > sum.worst.ulp) {
      sum.worst = {error, point};
    }
  }
  Reference reference_;
  CheapReference cheap_;
  mpfr_t part1_, part2_;
};

void Join(Accuracy& sum, const Accuracy& part) {
  sum.correctly_rounded += part.correctly_rounded;
  sum.wrong_class += part.wrong_class;
  if (part.wrong_class != 0) sum.wrong_at = part.wrong_at;
  if (part.worst.ulp > sum.worst.ulp) sum.worst = part.worst;
}

}  // namespace

CheapReference FindCheapReference(const Export& entry) {
  if (entry.type != "32f" || entry.shape != support::Shape::OneInput) return nullptr;
  const auto found = CheapReferences().find(entry.function);
  return found == CheapReferences().end() ? nullptr : found->second;
}

Accuracy MeasureAll(const support::Library& library, const Export& entry) {
  Accuracy total;
  total.count = uint64_t{1} << 32;
  std::atomic<uint64_t> next = 0;
  std::mutex mutex;
  uint64_t done = 0;
  Progress progress(entry.name);
  const auto work = [&] {
    Judge judge(entry, FindCheapReference(entry));
    constexpr size_t size = size_t{1} << chunk_bits;
    std::vector<float> x(size), y(size);
    const double bound = Bound(entry);
    Accuracy sum;
    for (uint64_t chunk; (chunk = next++) < chunk_count;) {
      // From ordinary arguments on and all over the range, so that the largest error so far is soon near the final one.
      const uint64_t place = (chunk * 1517 + 0x3F8) % chunk_count;
      for (size_t i = 0; i < size; ++i) x[i] = std::bit_cast<float>(static_cast<uint32_t>(place << chunk_bits | i));
      library.Call(entry, {x.data(), nullptr, nullptr, y.data(), nullptr, static_cast<int32_t>(size)});
      for (size_t i = 0; i < size; ++i) judge.Add(sum, x[i], y[i], bound);
      const std::scoped_lock lock(mutex);
      if (++done % 16 == 0) progress.Show(done);
    }
    mpfr_free_cache();
    const std::scoped_lock lock(mutex);
    Join(total, sum);
  };
  std::vector<std::jthread> threads;
  for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i) threads.emplace_back(work);
  threads.clear();
  return total;
}

}  // namespace lum::accuracy
