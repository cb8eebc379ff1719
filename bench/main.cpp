// Speed of the functions against other vector libraries and a scalar loop, at the same inputs and lengths. Benchmarks are named
// <function>_<type>/<length>/<who>, who being a tag, a peer, scalar, or base:<tag> for another build of this library; those of
// special arguments have more parts (special.h).
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>

#include "assists.h"
#include "data.h"
#include "peers.h"
#include "special.h"
#include "support/scalar_loop.h"

namespace {

using namespace lum::support;
using lum::bench::Data;
using lum::bench::Register;

struct Options {
  std::vector<std::string> functions;
  std::vector<int32_t> lengths = {1, 16, 100, 1000, 4096, 16'000'000};
  std::string library;
  std::string base;
  bool special = false;
  bool assists = false;
};

bool IsBuilt(const std::string& name) {
  const auto names = lum::support::BuiltLibraries();
  return std::ranges::find(names, name) != names.end();
}
Library Load(const std::string& name) {
  std::string error;
  const auto library = IsBuilt(name) ? Library::LoadBuilt(name, error) : Library::Load(name, error);
  if (!library) throw std::runtime_error(error);
  return *library;
}

// The layer of a built library or of a file by its name; the processor's fastest one where neither tells.
std::string LayerOf(const std::string& library) {
  const std::string stem = std::filesystem::path(library).stem().string();
  const std::string_view prefix = "liblumvm";
  for (const std::string& name : {library, stem.starts_with(prefix) ? stem.substr(prefix.size()) : stem}) {
    if (IsBuilt(name)) return name;
  }
  return std::string(FastestLibrary());
}

void RegisterAll(const Options& options) {
  const std::string name_of_library = options.library.empty() ? std::string(FastestLibrary()) : options.library;
  const std::string instructions = LayerOf(name_of_library);
  const Library library = Load(name_of_library);
  if (options.special) {
    lum::bench::TakeSpecial(library, options.functions, instructions, Register);
    return;
  }
  if (options.assists) {
    lum::bench::TakeSpecial(library, options.functions, "", lum::bench::PrintAssists);
    return;
  }
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
      if (base && base->Symbol(entry.name) != nullptr)
        Register(fmt::format("{}base:{}", prefix, tag), data, len, call(*base, entry));
      if (!is_new_group) continue;
      for (const auto& peer : lum::bench::FindPeers(entry, instructions)) Register(prefix + peer.name, data, len, peer.loop);
      if (instructions == "k0") {
        for (const auto& peer : lum::bench::FindComposedPeers(entry)) Register(prefix + peer.name, data, len, peer.loop);
        for (const auto& peer : lum::bench::FindPlainPeers(entry)) Register(prefix + peer.name, data, len, peer.loop);
      }
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
  CLI::App app("Speed of functions against their peers; what begins with --benchmark_ goes to Google Benchmark", "bench");
  Options options;
  app.add_option("functions", options.functions, "functions such as Exp; all when none is given");
  auto* lengths = app.add_option("--lengths", options.lengths, "lengths of the arrays")->delimiter(',');
  app.add_option("--library", options.library,
                 "a built library, k0, a2 or p0, or a library file; the fastest that the processor runs when none is given");
  auto* base = app.add_option("--base", options.base, "a library of another build to compare with");
  app.add_flag("--special", options.special,
               "arrays with special arguments: zeros, infinities, NaN, results at the ends of the range")
      ->excludes(lengths)
      ->excludes(base);
  app.add_flag("--assists", options.assists,
               "count the operations on those arrays that meet or make denormal numbers, of a library built for it")
      ->excludes(lengths)
      ->excludes(base);
  app.allow_extras();
  app.prefix_command(false);
  try {
    std::vector<char*> ours{argv[0]}, theirs{argv[0]};
    for (int i = 1; i < argc; ++i) (std::string_view(argv[i]).starts_with("--benchmark_") ? theirs : ours).push_back(argv[i]);
    app.parse(static_cast<int>(ours.size()), ours.data());
    if (!app.remaining().empty()) throw std::runtime_error(fmt::format("unknown option '{}'", app.remaining().front()));
    CheckFunctions(options);
    for (const std::string& line : lum::bench::AbsentPeers()) fmt::print(stderr, "bench: {}\n", line);
    RegisterAll(options);
    if (options.assists) return 0;
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
