#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <functional>

#include "lumvm/commands.h"
#include "lumvm/names.h"
#include "lumvm/request.h"
#include "support/scalar_loop.h"
#include "support/ulp.h"

namespace lum::tool {
namespace {

using support::Arguments;
using support::Export;

constexpr size_t shown = 20;

// The largest distance of a tag's results from those of the highest.
struct Distance {
  uint64_t largest = 0, index = 0;
};

// Million elements a second of a call repeated for about a fifth of a second.
double Throughput(const std::function<void()>& call, size_t count) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  double seconds = 0;
  size_t calls = 0;
  while (seconds < 0.2) {
    call();
    ++calls;
    seconds = std::chrono::duration<double>(Clock::now() - start).count();
  }
  return static_cast<double>(calls * count) / seconds * 1e-6;
}

// The same elements over and over, as many as a benchmark needs.
void Repeat(std::vector<std::byte>& bytes, size_t from, size_t to) {
  if (bytes.empty()) return;
  bytes.resize(to);
  for (size_t i = from; i < to; ++i) bytes[i] = bytes[i - from];
}

void PrintSpeeds(const Request& request, const Engine& engine, Block block) {
  const size_t size = support::SizeOf(request.entry->input);
  const size_t wanted = std::max<size_t>(block.count, 4096);
  for (auto* bytes : {&block.src1, &block.src2}) Repeat(*bytes, block.count * size, wanted * size);
  block.count = wanted;
  Calls room(request, *request.entry, nullptr);
  const Arguments arguments = room.ArgumentsOf(block);
  const auto scalar = support::FindScalarLoop(*request.entry);
  const double base = scalar == nullptr ? 0 : Throughput([&] { scalar(arguments); }, wanted);
  fmt::print("\n{:<20} {:>24}\n", "", "million elements a second");
  for (const Export* entry : request.tags) {
    void* address = engine.Address(*entry);
    const double speed = Throughput([&] { support::CallAddress(address, *entry, arguments); }, wanted);
    fmt::print("{:<20} {:>24.0f}", entry->name, speed);
    if (scalar != nullptr) fmt::print("   {:.1f} times the scalar loop", speed / base);
    fmt::print("\n");
  }
  if (scalar != nullptr) fmt::print("{:<20} {:>24.0f}\n", "scalar std:: loop", base);
}

void PrintHead(const Request& request) {
  fmt::print("{:>24}", "x");
  if (request.entry->inputs() == 2) fmt::print(" {:>24}", "y");
  for (const Export* entry : request.tags) {
    fmt::print(" {:>26}{}", entry->tag, entry == request.tags.back() ? "" : "  distance in ulp");
  }
  fmt::print("\n");
}

void PrintRows(const Request& request, const Block& block, const std::vector<Calls>& calls) {
  const Export& entry = *request.entry;
  for (size_t i = 0; i < std::min(block.count, shown); ++i) {
    const size_t from = i * support::SizeOf(entry.input), to = i * support::SizeOf(entry.output);
    fmt::print("{:>24}", FormatElement(entry.input, block.src1.data() + from, Notation::decimal));
    if (entry.inputs() == 2) fmt::print(" {:>24}", FormatElement(entry.input, block.src2.data() + from, Notation::decimal));
    for (const Calls& call : calls) {
      fmt::print(" {:>26}", FormatElement(entry.output, call.dst1() + to, Notation::decimal));
      if (&call == &calls.back()) continue;
      fmt::print(" {:>16}", support::UlpDistance(entry.output, call.dst1() + to, calls.back().dst1() + to));
    }
    fmt::print("\n");
  }
}

}  // namespace

void Compare(const ApplyOptions& options) {
  const Request request = Resolve(options);
  const Engine engine(options.layer);
  const size_t size = support::SizeOf(request.entry->output);
  std::vector<Calls> calls;
  for (const Export* entry : request.tags) calls.emplace_back(request, *entry, engine.Address(*entry));
  std::vector<Distance> distances(calls.size());
  uint64_t count = 0;
  Block first, block;
  {
    Progress progress;
    while (request.input->Next(block)) {
      for (size_t tag = 0; tag < calls.size(); ++tag) calls[tag].Run(block);
      if (count == 0) {
        PrintHead(request);
        PrintRows(request, block, calls);
        first = block;
      }
      for (size_t tag = 0; tag + 1 < calls.size(); ++tag) {
        for (size_t i = 0; i < block.count; ++i) {
          const uint64_t distance =
              support::UlpDistance(request.entry->output, calls[tag].dst1() + i * size, calls.back().dst1() + i * size);
          if (distance > distances[tag].largest) distances[tag] = {distance, count + i};
        }
      }
      count += block.count;
      progress.Show(count, request.input->share());
    }
  }
  if (count > shown) fmt::print("... {} elements in all\n", count);
  fmt::print("\n");
  for (size_t tag = 0; tag + 1 < calls.size(); ++tag) {
    fmt::print("{:<20} at most {} ulp from {}, at index {}\n", request.tags[tag]->name, distances[tag].largest,
               request.tags.back()->tag, distances[tag].index);
  }
  for (size_t tag = 0; tag < calls.size(); ++tag) {
    for (const std::string& line : ReportLines(calls[tag].reports(), count))
      fmt::print("{:<20} {}\n", request.tags[tag]->name, line);
  }
  for (const std::string& line : request.warnings) fmt::print(stderr, "lumvm: warning: {}\n", line);
  for (const std::string& line : request.input->warnings()) fmt::print(stderr, "lumvm: warning: {}\n", line);
  if (count != 0) PrintSpeeds(request, engine, first);
}

}  // namespace lum::tool
