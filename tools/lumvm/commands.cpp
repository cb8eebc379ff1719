#include "lumvm/commands.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>

#include "support/scalar_loop.h"
#include "support/ulp.h"

namespace lum::tool {
namespace {

using support::Arguments;
using support::Export;
using support::Library;

// The title is the function's name, followed by " (complex)" where the complex types have a description of their own.
struct Description {
  std::string_view title, summary, domain, special, statuses;
  bool IsOf(std::string_view function) const { return title.substr(0, title.find(' ')) == function; }
};
constexpr Description descriptions[] = {
#include "descriptions.inc"
};

// All exports of the function and type, the cheapest first.
std::vector<const Export*> FindTags(const ApplyOptions& options) {
  std::vector<const Export*> found;
  bool function_exists = false;
  for (const Export& entry : support::Exports()) {
    if (entry.function != options.function) continue;
    function_exists = true;
    if (entry.type == options.type) found.push_back(&entry);
  }
  if (!function_exists) throw InputError(fmt::format("no function '{}'; 'lumvm list' shows all", options.function));
  if (found.empty()) throw InputError(fmt::format("{} does not exist for the type '{}'", options.function, options.type));
  return found;
}

const Export& FindOne(const ApplyOptions& options) {
  const auto entries = FindTags(options);
  if (options.tag.empty()) return *entries.back();
  const auto match = std::ranges::find(entries, options.tag, [](const Export* entry) { return entry->tag; });
  if (match == entries.end()) {
    throw InputError(fmt::format("{} {} does not exist with the tag '{}'", options.function, options.type, options.tag));
  }
  return **match;
}

Library LoadLibrary(const std::string& wanted) {
  std::string target = wanted;
  if (target.empty()) {
    target = support::FastestLibrary();
    if (target == "p0") fmt::print(stderr, "lumvm: this processor lacks AVX2; the portable library p0 is used\n");
  }
  const auto targets = support::BuiltLibraries();
  if (std::ranges::find(targets, target) == targets.end())
    throw InputError(fmt::format("no target '{}'; there are {}", target, fmt::join(targets, ", ")));
  if (!support::ProcessorRuns(target))
    throw InputError(fmt::format("this processor lacks {}, which target {} needs", support::InstructionsOf(target), target));
  std::string error;
  const auto library = Library::LoadBuilt(target, error);
  if (!library) throw InputError(error);
  return *library;
}

// The arrays of one call, inputs read and outputs sized.
struct Data {
  Array src1, src2, value, dst1, dst2;

  Arguments arguments() {
    return {src1.bytes.data(), src2.bytes.data(), value.bytes.data(),
            dst1.bytes.data(), dst2.bytes.data(), static_cast<int32_t>(src1.count())};
  }
};

Array Read(const std::string& path, bool binary, Element element) {
  const std::string name = path == "-" ? "standard input" : path;
  const std::string content = ReadAll(path);
  return binary ? ParseBinary(content, name, element) : ParseText(content, name, element);
}

// The elements at even or odd places.
Array EverySecond(const Array& both, size_t first) {
  Array result{both.element, {}};
  const size_t size = support::SizeOf(both.element);
  for (size_t i = first; i < both.count(); i += 2) {
    const auto at = both.bytes.begin() + static_cast<std::ptrdiff_t>(i * size);
    result.bytes.insert(result.bytes.end(), at, at + static_cast<std::ptrdiff_t>(size));
  }
  return result;
}

Data ReadData(const ApplyOptions& options, const Export& entry) {
  const std::vector<std::string> files = options.files.empty() ? std::vector<std::string>{"-"} : options.files;
  if (files.size() > 1 && entry.inputs() == 1) throw InputError(fmt::format("{} takes one input file", entry.function));
  Data data;
  data.src1 = Read(files[0], options.binary, entry.input);
  if (files.size() == 2) {
    data.src2 = Read(files[1], options.binary, entry.input);
    if (data.src1.count() != data.src2.count()) {
      throw InputError(fmt::format("{} has {} elements, {} has {}", files[0], data.src1.count(), files[1], data.src2.count()));
    }
  } else if (entry.inputs() == 2) {
    if (data.src1.count() % 2 != 0) throw InputError(fmt::format("{}: an odd number of elements for two inputs", files[0]));
    data.src2 = EverySecond(data.src1, 1);
    data.src1 = EverySecond(data.src1, 0);
  }
  if (data.src1.count() == 0) throw InputError(fmt::format("{}: no numbers", files[0]));
  if (data.src1.count() > static_cast<size_t>(std::numeric_limits<int32_t>::max())) {
    throw InputError(fmt::format("{}: more than 2^31 - 1 elements", files[0]));
  }
  if (entry.has_parameter() != !options.value.empty()) {
    throw InputError(entry.has_parameter() ? fmt::format("{} needs --value", entry.function)
                                           : fmt::format("{} takes no --value", entry.function));
  }
  data.value = ParseText(options.value, "--value", entry.input);
  if (entry.has_parameter() && data.value.count() != 1) throw InputError("--value: one number of the type is wanted");
  data.dst1 = data.dst2 = {entry.output, std::vector<std::byte>(data.src1.count() * support::SizeOf(entry.output))};
  return data;
}

std::string OutputText(const Data& data, const Export& entry, const ApplyOptions& options) {
  std::string text;
  if (options.binary) {
    for (const Array* array : {&data.dst1, &data.dst2}) {
      if (array == &data.dst2 && entry.outputs() == 1) break;
      text.append(reinterpret_cast<const char*>(array->bytes.data()), array->bytes.size());
    }
    return text;
  }
  for (size_t i = 0; i < data.dst1.count(); ++i) {
    text += Format(data.dst1, i, options.notation);
    if (entry.outputs() == 2) text.append(1, ' ').append(Format(data.dst2, i, options.notation));
    text += '\n';
  }
  return text;
}

// Writes the whole text or nothing: a file takes its name when it is complete.
void WriteWhole(const std::string& path, const std::string& text) {
  if (path == "-") {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0) {
      throw InputError("standard output cannot be written");
    }
    return;
  }
  const std::string part = path + ".part";
  std::ofstream file(part, std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  std::error_code error;
  if (file) std::filesystem::rename(part, path, error);
  if (!file || error) {
    std::filesystem::remove(part, error);
    throw InputError(fmt::format("{}: cannot be written", path));
  }
}

// Million elements a second of a call repeated for about a fifth of a second.
double Throughput(const std::function<void()>& call, size_t count) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  double seconds = 0;
  size_t calls = 0;
  while (seconds < 0.2) {
    for (int i = 0; i < 10; ++i) call();
    calls += 10;
    seconds = std::chrono::duration<double>(Clock::now() - start).count();
  }
  return static_cast<double>(calls * count) / seconds * 1e-6;
}

// The same elements over and over, as many as a benchmark needs.
Array Repeat(const Array& array, size_t count) {
  Array result{array.element, {}};
  while (array.count() != 0 && result.count() < count) {
    result.bytes.insert(result.bytes.end(), array.bytes.begin(), array.bytes.end());
  }
  return result;
}

void PrintSpeeds(const std::vector<const Export*>& entries, const Library& library, const Data& data) {
  Data large = data;
  large.src1 = Repeat(data.src1, 4096);
  large.src2 = Repeat(data.src2, 4096);
  large.dst1.bytes.resize(large.src1.count() * support::SizeOf(data.dst1.element));
  large.dst2.bytes = large.dst1.bytes;
  const Arguments arguments = large.arguments();
  const auto scalar = support::FindScalarLoop(*entries[0]);
  const double base = scalar == nullptr ? 0 : Throughput([&] { scalar(arguments); }, large.src1.count());
  fmt::print("\n{:<20} {:>24}\n", "", "million elements a second");
  for (const Export* entry : entries) {
    const double speed = Throughput([&] { library.Call(*entry, arguments); }, large.src1.count());
    fmt::print("{:<20} {:>24.0f}", entry->name, speed);
    if (scalar != nullptr) fmt::print("   {:.1f} times the scalar loop", speed / base);
    fmt::print("\n");
  }
  if (scalar != nullptr) fmt::print("{:<20} {:>24.0f}\n", "scalar std:: loop", base);
}

}  // namespace

int List() {
  std::string_view function, type;
  for (const Export& entry : support::Exports()) {
    if (entry.function != function) fmt::print("{}{:<12}", function.empty() ? "" : "\n", entry.function);
    if (entry.function != function || entry.type != type) fmt::print(" {}", entry.type);
    if (!entry.tag.empty()) fmt::print(" {}", entry.tag);
    function = entry.function;
    type = entry.type;
  }
  fmt::print("\n");
  return 0;
}

int Info(const std::string& function) {
  bool is_known = false;
  for (const Description& text : descriptions) {
    if (!text.IsOf(function)) continue;
    is_known = true;
    fmt::print("{}: {}\n  domain          {}\n  special values  {}\n  statuses        {}\n", text.title, text.summary,
               text.domain, text.special, text.statuses);
  }
  if (!is_known) throw InputError(fmt::format("no function '{}'; 'lumvm list' shows all", function));
  for (const Export& entry : support::Exports()) {
    if (entry.function != function) continue;
    fmt::print("  {:<22} {} bits, relative cost {:g}\n", entry.name, entry.bits(), entry.cost);
  }
  return 0;
}

int Apply(const ApplyOptions& options) {
  const Export& entry = FindOne(options);
  const Library library = LoadLibrary(options.target);
  Data data = ReadData(options, entry);
  const LumStatus status = library.Call(entry, data.arguments());
  WriteWhole(options.output, OutputText(data, entry, options));
  if (status != lumStsOk) fmt::print(stderr, "lumvm: status {}: {}\n", static_cast<int>(status), support::StatusName(status));
  return 0;
}

int Compare(const ApplyOptions& options) {
  const auto entries = FindTags(options);
  const Library library = LoadLibrary(options.target);
  const Data input = ReadData(options, *entries.back());
  std::vector<Data> results;
  for (const Export* entry : entries) {
    results.push_back(input);
    const LumStatus status = library.Call(*entry, results.back().arguments());
    if (status != lumStsOk) fmt::print("{}: {}\n", entry->name, support::StatusName(status));
  }
  const Array& best = results.back().dst1;
  fmt::print("{:>24}", "x");
  for (const Export* entry : entries) fmt::print(" {:>26}{}", entry->tag, entry == entries.back() ? "" : "  distance in ulp");
  fmt::print("\n");
  for (size_t i = 0; i < std::min<size_t>(input.src1.count(), 20); ++i) {
    fmt::print("{:>24}", Format(input.src1, i, Notation::decimal));
    for (const Data& result : results) {
      fmt::print(" {:>26}", Format(result.dst1, i, Notation::decimal));
      if (&result == &results.back()) continue;
      const size_t at = i * support::SizeOf(best.element);
      fmt::print(" {:>16}", support::UlpDistance(best.element, result.dst1.bytes.data() + at, best.bytes.data() + at));
    }
    fmt::print("\n");
  }
  if (input.src1.count() > 20) fmt::print("... {} elements in all\n", input.src1.count());
  PrintSpeeds(entries, library, input);
  return 0;
}

}  // namespace lum::tool
