// Frequency response of a Butterworth low-pass filter, a cascade of second-order sections: H(e^(i w)) as a complex function of
// many frequencies at once, its level in decibel and its phase. Checked against the closed form of the filter's amplitude,
// 1 / sqrt(1 + (tan(w/2) / tan(c/2))^(2N)), and against std::complex.
#include <complex>
#include <lumvm.hpp>
#include <numbers>

#include "example.h"

namespace {

using Complex = std::complex<double>;

// (b0 + b1 / z + b2 / z^2) / (1 + a1 / z + a2 / z^2)
struct Section {
  double b0, b1, b2, a1, a2;
};

// The filter of even order by the bilinear transform; cutoff in radians a sample.
std::vector<Section> Butterworth(int order, double cutoff) {
  std::vector<Section> sections;
  const double k = std::tan(cutoff / 2);
  for (int i = 0; i < order / 2; ++i) {
    const double damping = 2 * std::sin(std::numbers::pi * (2 * i + 1) / (2 * order));
    const double norm = 1 / (1 + k * damping + k * k), gain = k * k * norm;
    sections.push_back({gain, 2 * gain, gain, 2 * (k * k - 1) * norm, (1 - k * damping + k * k) * norm});
  }
  return sections;
}

struct Response {
  std::vector<double> amplitude, decibel, phase;
  explicit Response(size_t n) : amplitude(n), decibel(n), phase(n) {}
};

// Many frequencies go through each step at once; blocks of them stay in the processor's first cache between the steps.
constexpr size_t block = 256;

bool EvaluateBlock(const std::vector<Section>& sections, const double* frequencies, size_t n, Response& r, size_t first) {
  double angles[block];
  Complex delays[block], delays2[block], numerators[block], denominators[block], responses[block];
  const std::span angle(angles, n);
  const std::span delay(delays, n), delay2(delays2, n), numerator(numerators, n), denominator(denominators, n), h(responses, n);
  const auto part = [&](std::vector<double>& column) { return std::span(column).subspan(first, n); };

  for (size_t i = 0; i < n; ++i) angle[i] = -frequencies[i];
  bool quiet = !lumvm::cis(angle, delay);  // 1 / z
  quiet &= !lumvm::mul(delay, delay, delay2);
  for (const Section& s : sections) {
    const bool is_first = &s == &sections.front();
    for (size_t i = 0; i < n; ++i) {
      numerator[i] = s.b0 + s.b1 * delay[i] + s.b2 * delay2[i];
      denominator[i] = 1.0 + s.a1 * delay[i] + s.a2 * delay2[i];
    }
    quiet &= !lumvm::div(numerator, denominator, is_first ? h : numerator);
    if (!is_first) quiet &= !lumvm::mul(h, numerator, h);
  }
  quiet &= !lumvm::abs(h, part(r.amplitude));
  quiet &= !lumvm::arg(h, part(r.phase));
  quiet &= !lumvm::log10(part(r.amplitude), part(r.decibel));
  for (double& level : part(r.decibel)) level *= 20;
  return quiet;
}

bool Evaluate(const std::vector<Section>& sections, const std::vector<double>& frequencies, Response& r) {
  bool ok = true;
  for (size_t i = 0; i < frequencies.size(); i += block)
    ok &= EvaluateBlock(sections, &frequencies[i], std::min(block, frequencies.size() - i), r, i);
  return ok;
}

void EvaluateByLoop(const std::vector<Section>& sections, const std::vector<double>& frequencies, Response& r) {
  for (size_t i = 0; i < frequencies.size(); ++i) {
    const Complex delay = std::polar(1.0, -frequencies[i]), delay2 = delay * delay;
    Complex h = 1;
    for (const Section& s : sections) h *= (s.b0 + s.b1 * delay + s.b2 * delay2) / (1.0 + s.a1 * delay + s.a2 * delay2);
    r.amplitude[i] = std::abs(h);
    r.phase[i] = std::arg(h);
    r.decibel[i] = 20 * std::log10(r.amplitude[i]);
  }
}

bool CheckResponse(const Response& r, const Response& loop, const std::vector<double>& frequencies, int order, double cutoff) {
  double amplitude = 0, decibel = 0, phase = 0;
  const auto include = [](double& worst, double error) { worst = std::max(worst, std::isnan(error) ? HUGE_VAL : error); };
  for (size_t i = 0; i < frequencies.size(); ++i) {
    const double ratio = std::tan(frequencies[i] / 2) / std::tan(cutoff / 2);
    const double exact = 1 / std::sqrt(1 + std::pow(ratio, 2 * order));
    include(amplitude, std::fabs(r.amplitude[i] - exact));
    if (exact > 0.1) include(decibel, std::fabs(r.decibel[i] - 20 * std::log10(exact)));
    if (exact > 0.1) include(phase, std::fabs(std::remainder(r.phase[i] - loop.phase[i], 2 * std::numbers::pi)));
  }
  // The sections' coefficients and sums carry roundings of 2^-53. What they do to the amplitude grows with the inverse square
  // of the cutoff's distance from either end of the band; the relative error at -20 dB may be ten times as large.
  const double distance = std::min(cutoff, std::numbers::pi - cutoff), limit = 64 * 0x1p-53 * order / (distance * distance);
  bool holds = example::Check("amplitude against the closed form", amplitude, limit);
  holds &= example::Check("level in dB against the closed form, down to -20 dB", decibel, 10 * limit * 20 / std::numbers::ln10);
  return example::Check("phase against std::complex, down to -20 dB", phase, 10 * limit) && holds;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Frequency response of a Butterworth low-pass filter", "frequency_response");
  size_t count = 100000;
  int order = 6;
  double cutoff = 0.1;
  std::string picture;
  app.add_option("-n,--count", count, "frequencies, from near 0 to near the Nyquist frequency")->check(CLI::Range(2, 10000000));
  app.add_option("--order", order, "even order of the filter")->check(CLI::IsMember({2, 4, 6, 8, 10, 12}));
  app.add_option("--cutoff", cutoff, "cutoff as a share of the sampling frequency")->check(CLI::Range(0.001, 0.499));
  app.add_option("-p,--picture", picture, "level and phase to draw, an SVG file (needs gnuplot)");
  return example::Run(app, argc, argv, [&] {
    const double c = 2 * std::numbers::pi * cutoff;
    const auto sections = Butterworth(order, c);
    std::vector<double> frequencies(count);
    for (size_t i = 0; i < count; ++i)
      frequencies[i] = std::numbers::pi * (static_cast<double>(i) + 0.5) / static_cast<double>(count + 1);
    Response r(count), by_loop(count);
    bool quiet = true;
    const double seconds = example::Seconds([&] { quiet = Evaluate(sections, frequencies, r); });
    const double loop = example::Seconds([&] { EvaluateByLoop(sections, frequencies, by_loop); });
    fmt::print("order {}, cutoff {}: {:.1f} million frequencies a second, {:.1f} times std::complex\n", order, cutoff,
               static_cast<double>(count) * 1e-6 / seconds, loop / seconds);
    if (!quiet) fmt::print("FAILED: a function reported a warning\n");
    const bool holds = CheckResponse(r, by_loop, frequencies, order, c) && quiet;
    std::string lines;
    for (size_t i = 0; i < count; i += (count + 999) / 1000)
      lines += fmt::format("{} {} {}\n", frequencies[i] / (2 * std::numbers::pi), r.decibel[i], r.phase[i]);
    if (!picture.empty())
      example::Draw(picture, lines,
                    "set y2tics; set ytics nomirror; set yrange [-100:5]; set xlabel 'frequency / sampling frequency'\n"
                    "set ylabel 'level in dB'; set y2label 'phase in radians'; set grid\n"
                    "plot $data using 1:2 with lines title 'level', $data using 1:3 axes x1y2 with lines title 'phase'");
    return holds;
  });
}
