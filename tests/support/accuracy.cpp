#include "support/accuracy.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "support/cases.h"

namespace lum::test {
namespace {

constexpr mpfr_prec_t working_precision = 256;

class Number {
 public:
  explicit Number(double x = 0) {
    mpfr_init2(value_, working_precision);
    mpfr_set_d(value_, x, MPFR_RNDN);
  }
  ~Number() { mpfr_clear(value_); }
  Number(const Number&) = delete;
  Number& operator=(const Number&) = delete;
  mpfr_ptr get() { return value_; }

 private:
  mpfr_t value_;
};

struct Worst {
  double ulp = 0;
  size_t index = 0;
};

// The exact results of all elements; computed once for all tags and libraries.
using Exact = std::vector<std::unique_ptr<Number>>;

Worst LargestError(const Array& results, const Exact& exact) {
  Worst worst;
  for (size_t i = 0; i < results.size(); ++i) {
    const double error = ErrorInUlp(FormatOf(results.element()), results[i].re, exact[i]->get());
    if (error > worst.ulp) worst = {error, i};
  }
  return worst;
}

void ExpectBound(const Export& entry, const Array& results, const Batch& batch, const Exact& exact) {
  const Worst worst = LargestError(results, exact);
  const double allowed = AllowedUlp(entry);
  const bool is_high = allowed == 1;
  testing::Test::RecordProperty(std::string(entry.name), std::to_string(worst.ulp));
  if (is_high ? worst.ulp < allowed : worst.ulp <= allowed) return;
  ADD_FAILURE() << entry.name << ": error of " << worst.ulp << " ulp, " << allowed << " allowed, at " << batch.Show(worst.index)
                << ": got " << Show(entry.output, results[worst.index]) << ", exact "
                << mpfr_get_d(exact[worst.index]->get(), MPFR_RNDN);
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
  exact.push_back(std::make_unique<Number>());
  return exact.back()->get();
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

double ErrorInUlp(Format format, uint64_t result, mpfr_srcptr exact) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const double number = format.number(result);
  if (mpfr_nan_p(exact) || std::isnan(number)) return mpfr_nan_p(exact) && std::isnan(number) ? 0 : infinite;
  const int largest_exponent = 1 << (format.exponent_bits - 1);
  if (mpfr_inf_p(exact)) return std::isinf(number) && mpfr_sgn(exact) * number > 0 ? 0 : infinite;
  Number difference;
  if (std::isinf(number)) {
    mpfr_set_si_2exp(difference.get(), number > 0 ? 1 : -1, largest_exponent, MPFR_RNDN);
    if (mpfr_sgn(exact) * number > 0 && mpfr_cmpabs(exact, difference.get()) >= 0) return 0;
  } else {
    mpfr_set_d(difference.get(), number, MPFR_RNDN);
  }
  mpfr_sub(difference.get(), difference.get(), exact, MPFR_RNDN);
  // The exponent of the unit in the last place, for a significand in [1/2, 1) as the reference library has it.
  const auto smallest = static_cast<mpfr_exp_t>(2 - largest_exponent - format.fraction_bits);
  const mpfr_exp_t of_exact = mpfr_zero_p(exact) ? smallest : mpfr_get_exp(exact) - 1 - format.fraction_bits;
  const mpfr_exp_t unit = std::clamp(of_exact, smallest, mpfr_exp_t{largest_exponent} - 1 - format.fraction_bits);
  mpfr_mul_2si(difference.get(), difference.get(), -unit, MPFR_RNDN);
  return std::fabs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

double AllowedUlp(const Export& entry) {
  const int precision = entry.is_32bit() ? 24 : 53;
  return entry.bits() == precision ? 1 : std::ldexp(0.5, precision - entry.bits());
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
    reference(Append(exact), Number(FormatOf(exports[0]->input).number(bits)).get());
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
      reference(Append(exact), Number(format.number(a)).get(), Number(format.number(b)).get());
    }
    ExpectBounds(exports, batch, exact, 0);
  }
}

}  // namespace lum::test
