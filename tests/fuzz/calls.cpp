// Random calls of random functions, driven by libFuzzer: any function, length, place in memory, bit pattern and floating-point
// environment. Both libraries must give the same bits for the whole arrays as for each element alone, write nothing beside
// their outputs, and leave the environment as they found it. A call that does not is described, and the program aborts.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "support/environment.h"
#include "support/subjects.h"
#include "support/variants.h"

// What calls have been seen, for the fuzzer: it keeps inputs that set a new one of these. The libraries are as users have them,
// without instrumentation.
__attribute__((section("__libfuzzer_extra_counters"), used)) static uint8_t seen[1 << 17];

namespace lum::test {
namespace {

constexpr size_t margin = 64;
constexpr std::byte canary{0xA5};
enum class Fault { none, length, null_source, null_destination };

struct Call {
  const Export* entry;
  Batch batch;
  Environment environment;
  std::array<size_t, 4> offsets;  // of src1, src2, dst1, dst2 in bytes
  bool in_place;
  Fault fault;
  int32_t bad_length;
};

// An array somewhere in memory with margins around it.
class Placed {
 public:
  Placed(const Array& array, size_t offset) : array_(array), offset_(margin + offset) {
    memory_.assign(offset_ + array.bytes() + margin, canary);
    std::copy_n(array.data(), array.bytes(), data());
  }
  std::byte* data() { return memory_.data() + offset_; }
  bool HoldsOriginal() { return std::equal(array_.data(), array_.data() + array_.bytes(), data()); }
  bool HasMargins() {
    const auto is_canary = [](std::byte b) { return b == canary; };
    return std::all_of(memory_.data(), data(), is_canary) &&
           std::all_of(data() + array_.bytes(), memory_.data() + memory_.size(), is_canary);
  }
  Array Contents() {
    Array contents = array_;
    std::copy_n(data(), array_.bytes(), contents.data());
    return contents;
  }

 private:
  Array array_;
  size_t offset_;
  std::vector<std::byte> memory_;
};

[[noreturn]] void Complain(const Call& call, const std::string& library, const std::string& what) {
  std::printf("%s of %s, len %zu%s, offsets %zu %zu %zu %zu, %s\n  %s\n", std::string(call.entry->name).c_str(),
              library.c_str(), call.batch.size(), call.in_place ? ", in place" : "", call.offsets[0], call.offsets[1],
              call.offsets[2], call.offsets[3], Describe(call.environment).c_str(), what.c_str());
  // The elements before and at the one that the complaint names.
  size_t at = 0;
  if (const size_t name = what.rfind("element "); name != what.npos) at = std::strtoul(what.c_str() + name + 8, nullptr, 10);
  for (size_t i = at - std::min<size_t>(at, 3); i < std::min(call.batch.size(), at + 1); ++i)
    std::printf("  [%zu] %s\n", i, call.batch.Show(i).c_str());
  std::fflush(stdout);
  std::abort();
}

struct Result {
  Output output;
  Environment left;
};

// The call as planned, in the given environment.
Result RunPlaced(const Call& call, const std::string& library, const Callee& callee, const Environment& entered) {
  const Export& entry = *call.entry;
  const size_t len = call.batch.size();
  Result result{Output(entry, len), {}};
  Placed src1(call.batch.src1, call.offsets[0]), src2(call.batch.src2, call.offsets[1]);
  Placed dst1(result.output.dst1, call.offsets[2]), dst2(result.output.dst2, call.offsets[3]);
  support::Arguments arguments{src1.data(),
                               src2.data(),
                               call.batch.value.data(),
                               call.in_place ? src1.data() : dst1.data(),
                               dst2.data(),
                               static_cast<int32_t>(len)};
  if (call.fault == Fault::length) arguments.len = call.bad_length;
  if (call.fault == Fault::null_source) arguments.src1 = nullptr;
  if (call.fault == Fault::null_destination) arguments.dst1 = nullptr;
  EnterEnvironment(entered);
  result.output.status = callee.Call(arguments);
  result.left = LeaveEnvironment();
  for (Placed* array : {&src1, &src2, &dst1, &dst2}) {
    if (!array->HasMargins()) Complain(call, library, "wrote beside an array");
  }
  const bool is_source_output = call.in_place && call.fault == Fault::none;
  if (!src2.HoldsOriginal() || (!is_source_output && !src1.HoldsOriginal())) Complain(call, library, "wrote into a source");
  if (call.fault != Fault::none && (!dst1.HoldsOriginal() || !dst2.HoldsOriginal()))
    Complain(call, library, "wrote into a destination in spite of an error");
  result.output.dst1 = (is_source_output ? src1 : dst1).Contents();
  result.output.dst2 = dst2.Contents();
  return result;
}

void ExpectEqual(const Call& call, const std::string& library, const char* what, const std::string& difference) {
  if (difference != "equal") Complain(call, library, std::string(what) + ": " + difference);
}

// Tells the fuzzer what sort of arguments the function has seen, and what came of each.
void Note(const Call& call, const std::vector<LumStatus>& statuses) {
  const Format format = FormatOf(call.entry->input);
  const auto function = static_cast<size_t>(call.entry - support::Exports().data());
  for (size_t i = 0; i < call.batch.size(); ++i) {
    const uint64_t bits = call.batch.src1[i].re;
    const auto kind = static_cast<size_t>(bits >> (format.exponent_bits + format.fraction_bits - 4));
    seen[((function * 32 + kind) * 8 + static_cast<size_t>(statuses[i]) % 8) % sizeof seen] = 1;
  }
}

void Check(const Call& call, const std::vector<std::pair<std::string, Callee>>& callees) {
  const bool follows = FollowsCallersRounding(*call.entry) && !IsRoundingAndFlushingDefault(call.environment);
  std::vector<LumStatus> statuses, own_statuses;
  const Output expected = callees[0].second.RunEach(call.batch, statuses);
  const Output expected_there = RunPlaced(call, callees[0].first, callees[0].second, call.environment).output;
  Note(call, statuses);
  for (const auto& [library, callee] : callees) {
    const Output own = callee.RunEach(call.batch, own_statuses);
    ExpectEqual(call, library, "each element alone", DifferenceOfLibraries(expected, own, call.batch));
    for (size_t i = 0; i < statuses.size(); ++i) {
      if (statuses[i] != own_statuses[i]) Complain(call, library, "status of element " + std::to_string(i) + " differs");
    }
    const Output placed = RunPlaced(call, library, callee, {}).output;
    ExpectEqual(call, library, "default environment", FirstDifference(own, placed));
    const Result there = RunPlaced(call, library, callee, call.environment);
    ExpectEqual(call, library, "given environment",
                follows ? DifferenceOfLibraries(expected_there, there.output, call.batch) : FirstDifference(own, there.output));
    const std::string complaint = EnvironmentComplaint(*call.entry, call.environment, there.left);
    if (has_environment && !complaint.empty()) Complain(call, library, complaint);
  }
}

void CheckFault(const Call& call, const std::vector<std::pair<std::string, Callee>>& callees) {
  const LumStatus expected = call.fault == Fault::length ? lumStsSizeErr : lumStsNullPtrErr;
  for (const auto& [library, callee] : callees) {
    if (RunPlaced(call, library, callee, call.environment).output.status != expected) Complain(call, library, "wrong error");
  }
}

Environment ConsumeEnvironment(FuzzedDataProvider& data) {
  Environment environment;
  if (data.ConsumeBool()) environment.mxcsr = data.ConsumeIntegral<uint16_t>();
  if (data.ConsumeBool()) {
    const auto precision = data.PickValueInArray<uint16_t>({0x000, 0x200, 0x300});
    const auto rest = data.ConsumeIntegralInRange<uint16_t>(0, 0xFF);  // two bits of rounding, six of masks
    environment.x87_control = static_cast<uint16_t>(0x40 | precision | (rest & 0xC0) << 4 | (rest & 0x3F));
    environment.x87_flags = data.ConsumeBool();
  }
  return environment;
}

// A component: any bits, or a few steps from a special value.
uint64_t ConsumeComponent(FuzzedDataProvider& data, Format format) {
  const auto& specials = SpecialComponents(format);
  if (data.ConsumeBool()) return data.ConsumeIntegral<uint64_t>() & format.all();
  const uint64_t base = specials[data.ConsumeIntegralInRange<size_t>(0, specials.size() - 1)];
  return (base + static_cast<uint64_t>(int64_t{data.ConsumeIntegral<int8_t>()})) & format.all();
}

// Random elements of all classes; some, as many as there is data for, by the fuzzer's own bits.
void FillElements(FuzzedDataProvider& data, Call& call, size_t len) {
  const Format format = FormatOf(call.entry->input);
  const auto consume = [&] {
    return Bits{ConsumeComponent(data, format), support::IsComplex(call.entry->input) ? ConsumeComponent(data, format) : 0};
  };
  call.batch = Sample(*call.entry, len, data.ConsumeIntegral<uint16_t>());
  if (call.entry->has_parameter() && data.ConsumeBool()) call.batch.value.Set(0, consume());
  while (data.remaining_bytes() >= 8) {
    const size_t i = data.ConsumeIntegralInRange<size_t>(0, len - 1);
    call.batch.src1.Set(i, consume());
    if (call.entry->inputs() == 2) call.batch.src2.Set(i, consume());
  }
}

Call ConsumeCall(FuzzedDataProvider& data) {
  const auto exports = support::Exports();
  const Export& entry = exports[data.ConsumeIntegralInRange<size_t>(0, exports.size() - 1)];
  Call call{&entry, Batch(entry), ConsumeEnvironment(data), {}, false, Fault::none, 0};
  for (size_t& offset : call.offsets) offset = data.ConsumeIntegralInRange<size_t>(0, 63);
  call.in_place = entry.input == entry.output && data.ConsumeBool();
  if (data.ConsumeIntegralInRange(0, 31) == 0) {
    call.fault = data.PickValueInArray({Fault::length, Fault::null_source, Fault::null_destination});
    call.bad_length = data.ConsumeIntegralInRange<int32_t>(std::numeric_limits<int32_t>::min(), 0);
  }
  const size_t len = data.ConsumeIntegralInRange<size_t>(1, data.ConsumeBool() ? 20 : 300);
  FillElements(data, call, len);
  return call;
}

}  // namespace
}  // namespace lum::test

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  using namespace lum::test;
  static const auto libraries = [] {
    std::vector<std::string> names = RunnableLibraries();
    if (names.empty()) std::abort();
    return names;
  }();
  FuzzedDataProvider data(bytes, size);
  const Call call = ConsumeCall(data);
  std::vector<std::pair<std::string, Callee>> callees;
  std::string reason;
  for (const auto& name : libraries) callees.emplace_back(name, Callee(*TestLibrary(name, "", reason), *call.entry));
  if (call.fault == Fault::none) Check(call, callees);
  else CheckFault(call, callees);
  return 0;
}
