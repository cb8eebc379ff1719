// Black-Scholes prices of European options. The contracts of a file, given over and over until there are as many as wanted, are
// priced at three accuracy tags and by a loop over <cmath>, checked against exact prices and against put-call parity, and
// timed.
#include <lumvm.h>

#include "example.h"

namespace {

// Contracts and their prices, an array a quantity.
struct Options {
  std::vector<double> spot, strike, rate, volatility, years, call, put;
};

Options Read(const std::string& path, size_t count) {
  auto columns = example::ReadColumns(path, 7);
  for (const size_t positive : {0, 1, 3, 4}) {
    const auto bad = std::ranges::find_if(columns[positive], [](double x) { return x <= 0; });
    if (bad != columns[positive].end())
      throw example::InputError(fmt::format("{}: spot, strike, volatility and years must be positive, not {}", path, *bad));
  }
  const size_t given = columns[0].size();
  for (auto& column : columns) {
    column.resize(std::max(given, count));
    for (size_t i = given; i < column.size(); ++i) column[i] = column[i - given];
  }
  return {columns[0], columns[1], columns[2], columns[3], columns[4], columns[5], columns[6]};
}

using OneInput = LumStatus(const double*, double*, int32_t);
using TwoInputs = LumStatus(const double*, const double*, double*, int32_t);
// The functions of a tag, and its error bound relative to the result.
struct Tag {
  const char* name;
  double error;
  TwoInputs* div;
  OneInput *ln, *exp, *sqrt, *cdf;
};
constexpr Tag tags[] = {
    {"A26", 0x1p-26, lumsDiv_64f_A26, lumsLn_64f_A26, lumsExp_64f_A26, lumsSqrt_64f_A26, lumsCdfNorm_64f_A26},
    {"A50", 0x1p-50, lumsDiv_64f_A50, lumsLn_64f_A50, lumsExp_64f_A50, lumsSqrt_64f_A50, lumsCdfNorm_64f_A50},
    {"A53", 0x1p-52, lumsDiv_64f_A53, lumsLn_64f_A53, lumsExp_64f_A53, lumsSqrt_64f_A53, lumsCdfNorm_64f_A53}};

// Whole arrays go through each function; blocks of them stay in the processor's first cache between the steps.
constexpr size_t block = 256;

bool PriceBlock(const Tag& tag, Options& o, size_t first, size_t n) {
  double log_ratio[block], deviation[block], discounted[block], d1[block], d2[block], n1[block], n2[block];
  const auto len = static_cast<int32_t>(n);
  int warnings = tag.div(&o.spot[first], &o.strike[first], log_ratio, len);
  warnings |= tag.ln(log_ratio, log_ratio, len);
  warnings |= tag.sqrt(&o.years[first], deviation, len);
  for (size_t i = 0; i < n; ++i) {
    deviation[i] *= o.volatility[first + i];
    d1[i] = log_ratio[i] + (o.rate[first + i] + o.volatility[first + i] * o.volatility[first + i] / 2) * o.years[first + i];
    discounted[i] = -o.rate[first + i] * o.years[first + i];
  }
  warnings |= tag.div(d1, deviation, d1, len);
  warnings |= tag.exp(discounted, discounted, len);
  for (size_t i = 0; i < n; ++i) d2[i] = d1[i] - deviation[i];
  warnings |= tag.cdf(d1, n1, len);
  warnings |= tag.cdf(d2, n2, len);
  for (size_t i = 0; i < n; ++i) {
    discounted[i] *= o.strike[first + i];
    o.call[first + i] = o.spot[first + i] * n1[i] - discounted[i] * n2[i];
    d1[i] = -d1[i];
    d2[i] = -d2[i];
  }
  warnings |= tag.cdf(d1, n1, len);  // not 1 - n1: exact next to 0, and a check of parity that can fail
  warnings |= tag.cdf(d2, n2, len);
  for (size_t i = 0; i < n; ++i) o.put[first + i] = discounted[i] * n2[i] - o.spot[first + i] * n1[i];
  return warnings == lumStsOk;
}

bool Price(const Tag& tag, Options& o) {
  bool ok = true;
  for (size_t i = 0; i < o.spot.size(); i += block) ok &= PriceBlock(tag, o, i, std::min(block, o.spot.size() - i));
  return ok;
}

void PriceByLoop(Options& o) {
  const auto normal = [](double x) { return std::erfc(-x * 0.70710678118654752) / 2; };
  for (size_t i = 0; i < o.spot.size(); ++i) {
    const double deviation = o.volatility[i] * std::sqrt(o.years[i]);
    const double drift = (o.rate[i] + o.volatility[i] * o.volatility[i] / 2) * o.years[i];
    const double d1 = (std::log(o.spot[i] / o.strike[i]) + drift) / deviation, d2 = d1 - deviation;
    const double discounted = o.strike[i] * std::exp(-o.rate[i] * o.years[i]);
    o.call[i] = o.spot[i] * normal(d1) - discounted * normal(d2);
    o.put[i] = discounted * normal(-d2) - o.spot[i] * normal(-d1);
  }
}

// The largest errors of prices and of parity, call - put = spot - strike e^(-rate years), as multiples of what errors of each
// function may add up to: eight of them on spot and strike, of which those of d1 grow with 1 / deviation.
bool CheckPrices(const Tag& tag, const Options& exact, const Options& o) {
  double price_error = 0, parity_error = 0, worst = 0;
  for (size_t i = 0; i < o.spot.size(); ++i) {
    const double money = o.spot[i] + o.strike[i];
    const double limit = tag.error * money * (8 + 1 / (o.volatility[i] * std::sqrt(o.years[i])));
    const double error = std::max(std::fabs(o.call[i] - exact.call[i]), std::fabs(o.put[i] - exact.put[i]));
    const double forward = o.spot[i] - o.strike[i] * std::exp(-o.rate[i] * o.years[i]);
    worst = std::max(worst, std::isfinite(error) ? error / money : HUGE_VAL);
    price_error = std::max(price_error, std::isfinite(error) ? error / limit : HUGE_VAL);
    parity_error = std::max(parity_error, std::fabs(o.call[i] - o.put[i] - forward) / limit);
  }
  fmt::print("{}: largest error of a price {:.2g} of spot and strike\n", tag.name, worst);
  const bool prices_hold = example::Check("  prices against 25 digits, relative to the bound", price_error, 1);
  return example::Check("  put-call parity, relative to the bound", parity_error, 1) && prices_hold;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Black-Scholes prices of a million European options", "option_pricing");
  std::string path;
  size_t count = 1000000;
  app.add_option("file", path, "lines of: spot strike rate volatility years call put; the prices are checked")->required();
  app.add_option("-n,--contracts", count, "contracts to price: those of the file, repeated")->check(CLI::Range(1, 100000000));
  return example::Run(app, argc, argv, [&] {
    const Options exact = Read(path, count);
    const auto millions = static_cast<double>(exact.spot.size()) * 1e-6;
    Options options = exact;
    const double loop = example::Seconds([&] { PriceByLoop(options); });
    fmt::print("{} contracts, call and put each\n", exact.spot.size());
    bool holds = CheckPrices({"<cmath>", 0x1p-52, {}, {}, {}, {}, {}}, exact, options);
    fmt::print("  {:.1f} million contracts a second\n", millions / loop);
    for (const Tag& tag : tags) {
      bool quiet = true;
      const double seconds = example::Seconds([&] { quiet = Price(tag, options); });
      holds = CheckPrices(tag, exact, options) && holds && quiet;
      if (!quiet) fmt::print("  FAILED: a function reported a warning\n");
      fmt::print("  {:.1f} million contracts a second, {:.1f} times the loop\n", millions / seconds, loop / seconds);
    }
    return holds;
  });
}
