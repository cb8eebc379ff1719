// Black-Scholes prices of European options. The contracts of a file, given over and over until there are as many as wanted, are
// priced at three accuracy tags and by a loop over <cmath>, checked against exact prices and against put-call parity, and
// timed.
#include <lumvm.hpp>

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

// Whole arrays go through each function; blocks of them stay in the processor's first cache between the steps.
constexpr size_t block = 256;

template <lumvm::accuracy a> bool PriceBlock(Options& o, size_t first, size_t n) {
  double log_ratios[block], deviations[block], discounts[block], d1s[block], d2s[block], n1s[block], n2s[block];
  const auto part = [&](std::vector<double>& column) { return std::span(column).subspan(first, n); };
  const auto spot = part(o.spot), strike = part(o.strike), rate = part(o.rate), volatility = part(o.volatility),
             years = part(o.years), call = part(o.call), put = part(o.put);
  const std::span log_ratio(log_ratios, n), deviation(deviations, n), discounted(discounts, n), d1(d1s, n), d2(d2s, n),
      n1(n1s, n), n2(n2s, n);

  bool quiet = !lumvm::div<a>(spot, strike, log_ratio);
  quiet &= !lumvm::log<a>(log_ratio, log_ratio);
  quiet &= !lumvm::sqrt<a>(years, deviation);
  for (size_t i = 0; i < n; ++i) {
    deviation[i] *= volatility[i];
    d1[i] = log_ratio[i] + (rate[i] + volatility[i] * volatility[i] / 2) * years[i];
    discounted[i] = -rate[i] * years[i];
  }
  quiet &= !lumvm::div<a>(d1, deviation, d1);
  quiet &= !lumvm::exp<a>(discounted, discounted);
  for (size_t i = 0; i < n; ++i) d2[i] = d1[i] - deviation[i];
  quiet &= !lumvm::cdfnorm<a>(d1, n1);
  quiet &= !lumvm::cdfnorm<a>(d2, n2);
  for (size_t i = 0; i < n; ++i) {
    discounted[i] *= strike[i];
    call[i] = spot[i] * n1[i] - discounted[i] * n2[i];
    d1[i] = -d1[i];
    d2[i] = -d2[i];
  }
  quiet &= !lumvm::cdfnorm<a>(d1, n1);  // not 1 - n1: exact next to 0, and a check of parity that can fail
  quiet &= !lumvm::cdfnorm<a>(d2, n2);
  for (size_t i = 0; i < n; ++i) put[i] = discounted[i] * n2[i] - spot[i] * n1[i];
  return quiet;
}

// Prices all contracts; false when a function had something to report.
template <lumvm::accuracy a> bool Price(Options& o) {
  bool quiet = true;
  for (size_t i = 0; i < o.spot.size(); i += block) quiet &= PriceBlock<a>(o, i, std::min(block, o.spot.size() - i));
  return quiet;
}

// A level of accuracy: its tag, its error bound relative to the result, the pricing at it.
struct Level {
  const char* name;
  double error;
  bool (*price)(Options&);
};
constexpr Level levels[] = {
    {"A26", 0x1p-26, Price<lumvm::low>}, {"A50", 0x1p-50, Price<lumvm::mid>}, {"A53", 0x1p-52, Price<lumvm::high>}};

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
bool CheckPrices(const Level& level, const Options& exact, const Options& o) {
  double price_error = 0, parity_error = 0, worst = 0;
  for (size_t i = 0; i < o.spot.size(); ++i) {
    const double money = o.spot[i] + o.strike[i];
    const double limit = level.error * money * (8 + 1 / (o.volatility[i] * std::sqrt(o.years[i])));
    const double error = std::max(std::fabs(o.call[i] - exact.call[i]), std::fabs(o.put[i] - exact.put[i]));
    const double forward = o.spot[i] - o.strike[i] * std::exp(-o.rate[i] * o.years[i]);
    worst = std::max(worst, std::isfinite(error) ? error / money : HUGE_VAL);
    price_error = std::max(price_error, std::isfinite(error) ? error / limit : HUGE_VAL);
    parity_error = std::max(parity_error, std::fabs(o.call[i] - o.put[i] - forward) / limit);
  }
  fmt::print("{}: largest error of a price {:.2g} of spot and strike\n", level.name, worst);
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
    bool holds = CheckPrices({"<cmath>", 0x1p-52, nullptr}, exact, options);
    fmt::print("  {:.1f} million contracts a second\n", millions / loop);
    for (const Level& level : levels) {
      bool quiet = true;
      const double seconds = example::Seconds([&] { quiet = level.price(options); });
      holds = CheckPrices(level, exact, options) && holds && quiet;
      if (!quiet) fmt::print("  FAILED: a function reported a warning\n");
      fmt::print("  {:.1f} million contracts a second, {:.1f} times the loop\n", millions / seconds, loop / seconds);
    }
    return holds;
  });
}
