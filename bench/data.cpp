#include "data.h"

#include <benchmark/benchmark.h>

#include <random>

#include "support/declarations.h"

#if defined(__x86_64__)
#include <x86intrin.h>
#endif

namespace lum::bench {
namespace {

uint64_t Ticks() {
#if defined(__x86_64__)
  return __rdtsc();
#else
  return 0;
#endif
}

}  // namespace

Data::Data(const support::Export& entry, size_t count)
    : src1_(entry.input, count),
      src2_(entry.input, count),
      value_(entry.input, 1),
      dst1_(entry.output, count),
      dst2_(entry.output, count) {
  std::mt19937_64 engine(1);
  const support::Interval range = support::DeclarationOf(entry).everyday;
  const size_t parts = support::IsComplex(entry.input) ? 2 : 1;
  std::uniform_real_distribution<double> first(range.low, range.high), second(0.1, 5);
  for (size_t i = 0; i < count; ++i) {
    for (size_t part = 0; part < parts; ++part) {
      src1_.Set(i, first(engine), part);
      src2_.Set(i, second(engine), part);
    }
  }
  value_.Set(0, 2.7);
  if (parts == 2) value_.Set(0, 0.3, 1);
}

void Data::SetPart(size_t i, size_t argument, size_t part, double x) {
  if (part != 0 && !support::IsComplex(src1_.element())) return;
  (argument == 0 ? src1_ : src2_).Set(i, x, part);
}

support::Arguments Data::arguments(int32_t len) {
  return {src1_.data(), src2_.data(), value_.data(), dst1_.data(), dst2_.data(), len};
}

void Register(const std::string& name, const std::shared_ptr<Data>& data, int32_t len,
              const std::function<void(const support::Arguments&)>& call) {
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    const support::Arguments arguments = data->arguments(len);
    const uint64_t start = Ticks();
    for (auto _ : state) {
      call(arguments);
      benchmark::ClobberMemory();
    }
    const auto elements = static_cast<double>(state.iterations()) * len;
    state.counters["ticks"] = static_cast<double>(Ticks() - start) / elements;
  });
}

}  // namespace lum::bench
