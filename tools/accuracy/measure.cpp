#include "accuracy/measure.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <map>

#include "support/declarations.h"
#include "support/element_array.h"

namespace lum::accuracy {
namespace {

using support::Arguments;
using support::ElementArray;
using support::Export;

constexpr double infinity = std::numeric_limits<double>::infinity();

// The results of an export at all points.
struct Results {
  Results(const support::Library& library, const Export& entry, const std::vector<Point>& points)
      : dst1(entry.output, points.size()), dst2(entry.output, points.size()) {
    const size_t n = points.size();
    ElementArray src1(entry.input, n), src2(entry.input, n);
    for (size_t i = 0; i < n; ++i) {
      src1.Set(i, points[i].re1);
      src2.Set(i, points[i].re2);
      if (!support::IsComplex(entry.input)) continue;
      src1.Set(i, points[i].im1, 1);
      src2.Set(i, points[i].im2, 1);
    }
    if (!entry.has_parameter()) {
      library.Call(entry, {src1.data(), src2.data(), nullptr, dst1.data(), dst2.data(), static_cast<int32_t>(n)});
      return;
    }
    for (size_t i = 0; i < n; ++i) library.Call(entry, {src1.at(i), nullptr, src2.at(i), dst1.at(i), nullptr, 1});
  }
  double Get(const Export& entry, size_t i, int part) const {
    if (support::IsComplex(entry.output)) return dst1.Get(i, static_cast<size_t>(part));
    return part == 0 ? dst1.Get(i) : dst2.Get(i);
  }
  ElementArray dst1, dst2;
};

struct Format {
  int significand, lowest, highest;  // bits; exponent of the last place of denormals; exponent of the first power of 2 beyond
};
constexpr Format FormatOf(bool is_32bit) { return is_32bit ? Format{24, -149, 128} : Format{53, -1074, 1024}; }

// The bin of an argument: a quarter of a binade for ordinary magnitudes, eight binades beyond.
int BinOf(double x) {
  const double exponent = std::log2(std::max(std::fabs(x), 1e-320));
  const bool is_ordinary = exponent >= -6 && exponent < 11;
  const int bin = static_cast<int>(std::floor(is_ordinary ? exponent * 4 : exponent / 8)) + (is_ordinary ? 5000 : 1000);
  return x < 0 ? -bin : bin;
}

void AddToNorm(Worst& worst, const Point& point, double re, double im, mpfr_srcptr exact_re, mpfr_srcptr exact_im,
               bool is_32bit) {
  if (!mpfr_number_p(exact_re) || !mpfr_number_p(exact_im) || !std::isfinite(re) || !std::isfinite(im)) return;
  mpfr_t dr, di, norm;
  mpfr_inits2(precision, dr, di, norm, nullptr);
  mpfr_sub_d(dr, exact_re, re, MPFR_RNDN);
  mpfr_sub_d(di, exact_im, im, MPFR_RNDN);
  mpfr_hypot(dr, dr, di, MPFR_RNDN);
  mpfr_hypot(norm, exact_re, exact_im, MPFR_RNDN);
  // Where the norm is near the denormals a part has less than full precision.
  if (!mpfr_zero_p(norm) && mpfr_get_exp(norm) > FormatOf(is_32bit).lowest + 2 * FormatOf(is_32bit).significand) {
    mpfr_div(dr, dr, norm, MPFR_RNDN);
    const double error = std::ldexp(mpfr_get_d(dr, MPFR_RNDN), FormatOf(is_32bit).significand - 1);
    if (error > worst.ulp) worst = {error, point};
  }
  mpfr_clears(dr, di, norm, nullptr);
}

}  // namespace

double Bound(const Export& entry) {
  const int significand = FormatOf(entry.is_32bit()).significand;
  if (support::DeclarationOf(entry).is_exact && !entry.is_complex()) return 0.5;
  // Just above 2^-3, 2^-4 and 2^-5 the sum of the value at the centre and the rest is rounded in units that are twice the
  // result's.
  if (entry.name == "lumsTanh_64f_A53") return 1.01;
  return entry.tier == support::Tier::high ? 1 : std::ldexp(0.5, significand - entry.bits());
}

double Accuracy::Bits(const Export& entry) const {
  const int significand = FormatOf(entry.is_32bit()).significand;
  const double error = support::IsComplex(entry.output) ? worst_norm.ulp : worst.ulp;
  return error <= 0.5 ? significand : significand - 1 - std::log2(error);
}

double RoundToType(mpfr_srcptr exact, bool is_32bit) {
  if (!is_32bit) {
    // mpfr_get_d rounds denormals once.
    return mpfr_get_d(exact, MPFR_RNDN);
  }
  return static_cast<double>(mpfr_get_flt(exact, MPFR_RNDN));
}

double UlpError(double result, mpfr_srcptr exact, bool is_32bit) {
  if (mpfr_nan_p(exact) || std::isnan(result)) return mpfr_nan_p(exact) && std::isnan(result) ? 0 : infinity;
  const Format format = FormatOf(is_32bit);
  if (mpfr_inf_p(exact)) return std::isinf(result) && std::signbit(result) == (mpfr_sgn(exact) < 0) ? 0 : infinity;
  if (mpfr_zero_p(exact)) return result == 0 ? 0 : std::fabs(result) / std::ldexp(1.0, format.lowest);
  if (std::isinf(result)) {
    if (std::signbit(result) != (mpfr_sgn(exact) < 0)) return infinity;
    if (mpfr_get_exp(exact) > format.highest) return 0;
  }
  mpfr_t difference;
  mpfr_init2(difference, precision);
  if (std::isinf(result)) {
    mpfr_set_si_2exp(difference, result < 0 ? -1 : 1, format.highest, MPFR_RNDN);
    mpfr_sub(difference, difference, exact, MPFR_RNDN);
  } else {
    mpfr_set_d(difference, result, MPFR_RNDN);
    mpfr_sub(difference, difference, exact, MPFR_RNDN);
  }
  const mpfr_exp_t last_place = std::max<mpfr_exp_t>(mpfr_get_exp(exact) - format.significand, format.lowest);
  mpfr_mul_2si(difference, difference, -last_place, MPFR_RNDN);
  const double error = std::fabs(mpfr_get_d(difference, MPFR_RNDN));
  mpfr_clear(difference);
  return error;
}

ExactValues::ExactValues(Reference reference, const std::vector<Point>& points) : part1(points.size()), part2(points.size()) {
  for (size_t i = 0; i < points.size(); ++i) {
    mpfr_init2(part1[i], precision);
    mpfr_init2(part2[i], precision);
    mpfr_set_zero(part2[i], 1);
    reference(part1[i], part2[i], points[i]);
  }
}

ExactValues::~ExactValues() {
  for (size_t i = 0; i < part1.size(); ++i) {
    mpfr_clear(part1[i]);
    mpfr_clear(part2[i]);
  }
}

Accuracy Measure(const support::Library& library, const Export& entry, const std::vector<Point>& points,
                 const ExactValues& exact) {
  const Results results(library, entry, points);
  const bool is_32bit = entry.is_32bit();
  const double bound = Bound(entry);
  Accuracy accuracy;
  accuracy.count = points.size();
  std::map<int, Bin> bins;
  for (size_t i = 0; i < points.size(); ++i) {
    bool all_rounded = true;
    double error = 0;
    for (int part = 0; part < Parts(entry); ++part) {
      mpfr_srcptr value = part == 0 ? exact.part1[i] : exact.part2[i];
      const double result = results.Get(entry, i, part);
      const double part_error = UlpError(result, value, is_32bit);
      const double rounded = RoundToType(value, is_32bit);
      const bool same = result == rounded || (std::isnan(result) && std::isnan(rounded));
      all_rounded = all_rounded && same;
      const bool sign_differs = !std::isnan(rounded) && !std::isnan(result) && std::signbit(result) != std::signbit(rounded);
      const bool kind_differs = std::isnan(result) != std::isnan(rounded) || std::isinf(result) != std::isinf(rounded);
      if (!same && (sign_differs || kind_differs) && part_error > bound) {
        ++accuracy.wrong_class;
        accuracy.wrong_at = points[i];
      } else {
        error = std::max(error, part_error);
      }
    }
    accuracy.correctly_rounded += all_rounded;
    if (error > accuracy.worst.ulp) accuracy.worst = {error, points[i]};
    if (support::IsComplex(entry.output)) {
      AddToNorm(accuracy.worst_norm, points[i], results.Get(entry, i, 0), results.Get(entry, i, 1), exact.part1[i],
                exact.part2[i], is_32bit);
    }
    Bin& bin = bins.try_emplace(BinOf(points[i].re1), Bin{points[i].re1, 0}).first->second;
    bin.ulp = std::max(bin.ulp, error);
  }
  for (const auto& [key, bin] : bins) accuracy.curve.push_back(bin);
  std::ranges::sort(accuracy.curve, {}, &Bin::x);
  return accuracy;
}

}  // namespace lum::accuracy
