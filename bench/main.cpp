// Speed of the functions against other vector libraries and a scalar loop, at the same inputs and lengths. Benchmarks are named
// <function>_<type>/<length>/<who>, who being a tag, a peer, scalar, or base:<tag> for another build of this library.
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstring>
#include <memory>
#include <random>

#include "accuracy/inputs.h"
#include "peers.h"
#include "support/scalar_loop.h"

#if defined(__x86_64__)
#include <x86intrin.h>
#endif

namespace {

using namespace lum::support;

uint64_t Ticks() {
#if defined(__x86_64__)
  return __rdtsc();
#else
  return 0;
#endif
}

// Arrays for the longest call, filled for one function and type.
struct Data {
  Data(const Export& entry, size_t count)
      : src1(count * SizeOf(entry.input)), src2(src1.size()), dst1(count * SizeOf(entry.output)), dst2(dst1.size()) {
    std::mt19937_64 engine(1);
    const auto range = lum::accuracy::OrdinaryRange(entry);
    const size_t components = Is32Bit(entry.input) ? src1.size() / 4 : src1.size() / 8;
    std::uniform_real_distribution<double> first(range.low, range.high), second(0.1, 5);
    for (size_t i = 0; i < components; ++i) {
      Set(src1, entry, i, first(engine));
      Set(src2, entry, i, second(engine));
    }
    Set(value, entry, 0, 2.7);
    Set(value, entry, 1, 0.3);
  }
  Arguments arguments(int32_t len) { return {src1.data(), src2.data(), value.data(), dst1.data(), dst2.data(), len}; }

 private:
  static void Set(std::vector<std::byte>& array, const Export& entry, size_t i, double x) {
    if (Is32Bit(entry.input)) {
      const auto narrow = static_cast<float>(x);
      std::memcpy(array.data() + i * 4, &narrow, 4);
    } else {
      std::memcpy(array.data() + i * 8, &x, 8);
    }
  }
  std::vector<std::byte> src1, src2, dst1, dst2;
  std::vector<std::byte> value = std::vector<std::byte>(16);
};

void Register(const std::string& name, std::shared_ptr<Data> data, int32_t len, std::function<void(const Arguments&)> call) {
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    const Arguments arguments = data->arguments(len);
    const uint64_t start = Ticks();
    for (auto _ : state) {
      call(arguments);
      benchmark::ClobberMemory();
    }
    const auto elements = static_cast<double>(state.iterations()) * len;
    state.counters["ticks"] = static_cast<double>(Ticks() - start) / elements;
  });
}

struct Options {
  std::vector<std::string> functions;
  std::vector<int32_t> lengths = {1, 16, 100, 1000, 4096, 16'000'000};
  std::string library;
  std::string base;
};

Library Load(const std::string& path) {
  std::string error;
  const auto library =
      path.empty() ? Library::LoadBuilt(ProcessorHasAvx512() ? "k0" : "p0", error) : Library::Load(path, error);
  if (!library) throw std::runtime_error(error);
  return *library;
}

void RegisterAll(const Options& options) {
  const Library library = Load(options.library);
  std::optional<Library> base;
  if (!options.base.empty()) base = Load(options.base);
  std::shared_ptr<Data> data;
  std::string group;
  for (const Export& entry : Exports()) {
    if (!options.functions.empty() && !std::ranges::count(options.functions, entry.function)) continue;
    const std::string name = fmt::format("{}_{}", entry.function, entry.type);
    const bool is_new_group = name != group;
    if (is_new_group) data = std::make_shared<Data>(entry, static_cast<size_t>(std::ranges::max(options.lengths)));
    group = name;
    const std::string tag = entry.tag.empty() ? "lumvm" : std::string(entry.tag);
    for (int32_t len : options.lengths) {
      // Complex functions are bound by computation, and a loop over the longest arrays takes minutes.
      if (entry.is_complex() && len > 4096) continue;
      const std::string prefix = fmt::format("{}/{}/", name, len);
      const auto call = [](const Library& from, const Export& what) {
        void* address = from.Symbol(what.name);
        return [address, &what](const Arguments& a) { CallAddress(address, what, a); };
      };
      Register(prefix + tag, data, len, call(library, entry));
      if (base && base->Symbol(entry.name) != nullptr) Register(prefix + "base:" + tag, data, len, call(*base, entry));
      if (!is_new_group) continue;
      for (const auto& peer : lum::bench::FindPeers(entry)) Register(prefix + peer.name, data, len, peer.loop);
      for (const auto& peer : lum::bench::FindComposedPeers(entry)) Register(prefix + peer.name, data, len, peer.loop);
      for (const auto& peer : lum::bench::FindPlainPeers(entry)) Register(prefix + peer.name, data, len, peer.loop);
      if (const auto scalar = FindScalarLoop(entry); scalar != nullptr) Register(prefix + "scalar", data, len, scalar);
    }
  }
}

void CheckFunctions(const Options& options) {
  for (const std::string& function : options.functions) {
    const auto exists = [&](const Export& entry) { return entry.function == function; };
    if (std::ranges::none_of(Exports(), exists)) throw std::runtime_error(fmt::format("no function '{}'", function));
  }
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Speed of functions against their peers; options of Google Benchmark come after --", "bench");
  Options options;
  std::vector<std::string> functions_and_rest;
  app.add_option("functions", options.functions, "functions such as Exp; all when none is given");
  app.add_option("--lengths", options.lengths, "lengths of the arrays")->delimiter(',');
  app.add_option("--library", options.library, "another file than the built liblumvmk0.so");
  app.add_option("--base", options.base, "a library of another build to compare with");
  app.allow_extras();
  app.prefix_command(false);
  try {
    // What begins with --benchmark_ is for Google Benchmark.
    std::vector<char*> ours{argv[0]}, theirs{argv[0]};
    for (int i = 1; i < argc; ++i) (std::string_view(argv[i]).starts_with("--benchmark_") ? theirs : ours).push_back(argv[i]);
    app.parse(static_cast<int>(ours.size()), ours.data());
    if (!app.remaining().empty()) throw std::runtime_error(fmt::format("unknown option '{}'", app.remaining().front()));
    CheckFunctions(options);
    for (const std::string& line : lum::bench::AbsentPeers()) fmt::print(stderr, "bench: {}\n", line);
    RegisterAll(options);
    int count = static_cast<int>(theirs.size());
    benchmark::Initialize(&count, theirs.data());
    if (count > 1) throw std::runtime_error(fmt::format("unknown option '{}'", theirs[1]));
    benchmark::RunSpecifiedBenchmarks();
  } catch (const CLI::Success& request) { return app.exit(request); } catch (const std::exception& problem) {
    fmt::print(stderr, "bench: {}\n", problem.what());
    return 2;
  }
  return 0;
}
