// Normal random numbers from uniform ones: by the Box-Muller transform (Ln, Sqrt, SinCos) and by the quantile function
// (CdfNormInv). Moments and the Kolmogorov-Smirnov distance are checked, a histogram is drawn on demand.
#include <lumvm.hpp>
#include <numbers>
#include <random>

#include "example.h"

namespace {

using Numbers = std::vector<double>;
using Generator = std::mt19937_64;

// Uniform in (0, 1): odd multiples of 2^-53, so that neither 0 nor 1 occurs.
void FillUniform(Generator& generator, std::span<double> x) {
  for (double& value : x) value = (static_cast<double>(generator() >> 12) + 0.5) * 0x1p-52;
}

// Blocks that stay in the processor's first cache.
constexpr size_t block = 1024;

// Radius sqrt(-2 ln u) and angle 2 pi v of independent u and v give a point of two independent normal coordinates.
bool BoxMuller(Generator& generator, Numbers& x) {
  double radii[block / 2], angles[block / 2], sines[block / 2], cosines[block / 2];
  bool quiet = true;
  for (size_t first = 0; first < x.size(); first += block) {
    const size_t n = std::min(block, x.size() - first), pairs = (n + 1) / 2;
    const std::span radius(radii, pairs), angle(angles, pairs), sine(sines, pairs), cosine(cosines, pairs);
    FillUniform(generator, radius);
    FillUniform(generator, angle);
    quiet &= !lumvm::log(radius, radius);
    for (size_t i = 0; i < pairs; ++i) {
      radius[i] *= -2;
      angle[i] *= 2 * std::numbers::pi;
    }
    quiet &= !lumvm::sqrt(radius, radius);
    quiet &= !lumvm::sincos(angle, sine, cosine);
    for (size_t i = 0; i < n; ++i) x[first + i] = radius[i / 2] * (i % 2 == 0 ? cosine[i / 2] : sine[i / 2]);
  }
  return quiet;
}

bool ByQuantile(Generator& generator, Numbers& x) {
  bool quiet = true;
  for (size_t first = 0; first < x.size(); first += block) {
    const auto part = std::span(x).subspan(first, std::min(block, x.size() - first));
    FillUniform(generator, part);
    quiet &= !lumvm::cdfnorminv(part, part);
  }
  return quiet;
}

bool ByStandardLibrary(Generator& generator, Numbers& x) {
  std::normal_distribution<double> normal;
  for (double& value : x) value = normal(generator);
  return true;
}

// The largest distance between the empirical distribution function and the normal one.
double KolmogorovSmirnov(Numbers x) {
  std::ranges::sort(x);
  const auto n = static_cast<double>(x.size());
  double distance = 0;
  for (size_t i = 0; i < x.size(); ++i) {
    const double expected = std::erfc(-x[i] / std::numbers::sqrt2) / 2, below = static_cast<double>(i) / n;
    distance = std::max({distance, expected - below, below + 1 / n - expected});
  }
  return distance;
}

// Moments against their standard errors, in units of these; the distance times sqrt(n) exceeds 1.95 once in 1000 samples.
bool CheckNormal(const Numbers& x) {
  const auto n = static_cast<double>(x.size());
  double moments[5] = {};
  for (const double value : x) {
    for (int k = 1; k <= 4; ++k) moments[k] += std::pow(value, k) / n;
  }
  bool holds = example::Check("  mean, in standard errors", std::fabs(moments[1]) * std::sqrt(n), 4);
  holds &= example::Check("  variance - 1, in standard errors", std::fabs(moments[2] - 1) * std::sqrt(n / 2), 4);
  holds &= example::Check("  third moment, in standard errors", std::fabs(moments[3]) * std::sqrt(n / 15), 4);
  holds &= example::Check("  fourth moment - 3, in standard errors", std::fabs(moments[4] - 3) * std::sqrt(n / 96), 4);
  return example::Check("  Kolmogorov-Smirnov distance times sqrt(n)", KolmogorovSmirnov(x) * std::sqrt(n), 1.95) && holds;
}

// Lines "x density density" of two samples.
std::string Histogram(const Numbers& a, const Numbers& b) {
  constexpr int bins = 80;
  constexpr double left = -4, width = 0.1;
  std::vector<size_t> counts[2] = {std::vector<size_t>(bins), std::vector<size_t>(bins)};
  for (int which = 0; which < 2; ++which) {
    for (const double value : which == 0 ? a : b) {
      const double bin = std::floor((value - left) / width);
      if (bin >= 0 && bin < bins) ++counts[which][static_cast<size_t>(bin)];
    }
  }
  std::string lines;
  for (size_t i = 0; i < bins; ++i) {
    const double scale = 1 / (static_cast<double>(a.size()) * width);
    lines += fmt::format("{} {} {}\n", left + (static_cast<double>(i) + 0.5) * width, static_cast<double>(counts[0][i]) * scale,
                         static_cast<double>(counts[1][i]) * scale);
  }
  return lines;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Normal random numbers", "random_normals");
  size_t count = 1000000;
  uint64_t seed = 1;
  std::string picture;
  app.add_option("-n,--count", count, "numbers to draw")->check(CLI::Range(1000, 100000000));
  app.add_option("-s,--seed", seed, "seed of the generator");
  app.add_option("-p,--picture", picture, "histogram to draw, an SVG file (needs gnuplot)");
  return example::Run(app, argc, argv, [&] {
    Numbers by_pairs(count), by_quantile(count), by_library(count);
    bool holds = true;
    const auto draw = [&](const char* name, auto* method, Numbers& x) {
      bool quiet = true;
      const double seconds = example::Seconds([&] {
        Generator generator(seed);
        quiet = method(generator, x);
      });
      fmt::print("{}: {:.0f} million numbers a second\n", name, static_cast<double>(count) * 1e-6 / seconds);
      if (!quiet) fmt::print("  FAILED: a function reported a warning\n");
      holds = CheckNormal(x) && holds && quiet;
    };
    draw("Box-Muller", BoxMuller, by_pairs);
    draw("quantile function", ByQuantile, by_quantile);
    draw("std::normal_distribution", ByStandardLibrary, by_library);
    if (!picture.empty())
      example::Draw(picture, Histogram(by_pairs, by_quantile),
                    "set xlabel 'x'; set ylabel 'density'; set samples 400\n"
                    "plot [-4:4] $data using 1:2 with histeps title 'Box-Muller', $data using 1:3 with histeps title 'quantile "
                    "function', exp(-x*x/2)/sqrt(2*pi) title 'normal density' with lines linewidth 2");
    return holds;
  });
}
