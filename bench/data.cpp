#include "data.h"

#include <benchmark/benchmark.h>

#include <cstring>
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
    : is_32bit_(support::Is32Bit(entry.input)),
      is_complex_(support::IsComplex(entry.input)),
      src1_(count * support::SizeOf(entry.input)),
      src2_(src1_.size()),
      dst1_(count * support::SizeOf(entry.output)),
      dst2_(dst1_.size()) {
  std::mt19937_64 engine(1);
  const support::Interval range = support::DeclarationOf(entry).everyday;
  const size_t components = src1_.size() / (is_32bit_ ? 4 : 8);
  std::uniform_real_distribution<double> first(range.low, range.high), second(0.1, 5);
  for (size_t i = 0; i < components; ++i) {
    Set(src1_, i, first(engine));
    Set(src2_, i, second(engine));
  }
  Set(value_, 0, 2.7);
  Set(value_, 1, 0.3);
}

void Data::SetPart(size_t i, size_t argument, size_t part, double x) {
  if (part != 0 && !is_complex_) return;
  Set(argument == 0 ? src1_ : src2_, is_complex_ ? 2 * i + part : i, x);
}

support::Arguments Data::arguments(int32_t len) {
  return {src1_.data(), src2_.data(), value_.data(), dst1_.data(), dst2_.data(), len};
}

void Data::Set(std::vector<std::byte>& array, size_t i, double x) const {
  if (is_32bit_) {
    const auto narrow = static_cast<float>(x);
    std::memcpy(array.data() + i * 4, &narrow, 4);
  } else {
    std::memcpy(array.data() + i * 8, &x, 8);
  }
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
