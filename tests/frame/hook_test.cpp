// The hook sees every element that reports: once, in order, with the caller's arrays, after the result was written, and what it
// does to the element stays.
#include <cstring>
#include <map>

#include "frame/entry_table.h"
#include "support/recorder.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

using support::Tier;

class Hook : public ExportTest {
 protected:
  std::string Variant() const override { return "_recording"; }

  // The pointers that the hook must be given, by the shape.
  void ExpectArrays(const HookCall& call, const support::Arguments& arguments) const {
    // Sub of complex doubles passes its first source twice, on purpose.
    const bool has_second_input = entry().inputs() == 2 && entry().name != "lumsSub_64fc_A53";
    EXPECT_EQ(call.src1, arguments.src1);
    EXPECT_EQ(call.src2, has_second_input ? arguments.src2 : arguments.src1);
    EXPECT_EQ(call.dst1, arguments.dst1);
    EXPECT_EQ(call.dst2, entry().outputs() == 2 ? arguments.dst2 : arguments.dst1);
  }

  // One entry of the log for each element that reports alone.
  void ExpectLog(const std::vector<Recorder::Entry>& log, const std::vector<LumStatus>& statuses, const Output& results,
                 const support::Arguments& arguments) const {
    size_t next = 0;
    for (size_t i = 0; i < statuses.size(); ++i) {
      if (statuses[i] == lumStsOk) continue;
      ASSERT_LT(next, log.size()) << "no call for element " << i;
      const Recorder::Entry& logged = log[next++];
      ASSERT_EQ(static_cast<size_t>(logged.call.index), i);
      EXPECT_EQ(logged.call.status, statuses[i]);
      EXPECT_EQ(logged.dst1, results.dst1[i]) << "the result was not in the caller's array";
      if (entry().outputs() == 2) { EXPECT_EQ(logged.dst2, results.dst2[i]); }
      EXPECT_EQ(logged.cell_value, 0u);
      EXPECT_EQ(logged.call.cell, log[0].call.cell);
      ExpectArrays(logged.call, arguments);
    }
    EXPECT_EQ(next, log.size()) << "a call for an element that reports nothing";
  }
};

TEST_P(Hook, EveryElementThatReports) {
  const Batch batch = Sample(entry(), 1500, 8);
  std::vector<LumStatus> statuses;
  callee().RunEach(batch, statuses);
  Output output(entry(), batch.size());
  const auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
  Recorder recorder(library(), entry());
  callee().Call(arguments);
  ExpectLog(recorder.log(), statuses, output, arguments);
}

TEST_P(Hook, ChangedElementsAreReadBack) {
  const Batch batch = Sample(entry(), 1500, 8);
  Output expected = callee().Run(batch);
  Output output(entry(), batch.size());
  const size_t size = support::SizeOf(entry().output);
  Recorder recorder(library(), entry(), [&](const HookCall& call) {
    std::memset(static_cast<std::byte*>(call.dst1) + static_cast<size_t>(call.index) * size, 0x11, size);
    if (entry().outputs() == 2)
      std::memset(static_cast<std::byte*>(call.dst2) + static_cast<size_t>(call.index) * size, 0x22, size);
  });
  callee().Call(Callee::ArgumentsOf(batch, output, 0, batch.size()));
  const auto repeated = [](uint64_t byte, Element element) {
    const uint64_t component = byte * (support::Is32Bit(element) ? 0x01010101u : 0x0101010101010101u);
    return Bits{component, support::IsComplex(element) ? component : 0};
  };
  for (const auto& logged : recorder.log()) {
    const auto i = static_cast<size_t>(logged.call.index);
    expected.dst1.Set(i, repeated(0x11, entry().output));
    if (entry().outputs() == 2) expected.dst2.Set(i, repeated(0x22, entry().output));
  }
  output.status = expected.status;
  EXPECT_EQ(FirstDifference(expected, output), "equal");
}

INSTANTIATE_TEST_SUITE_P(Exports, Hook, testing::ValuesIn(AllSubjects()), NameOf);

// The kernel behind an export, from the library's table.
const void* KernelOf(const support::Library& library, const Export& entry) {
  static const std::map<std::string, int> rows = {
#define LUM_ROW(function, type, ...) {#function "_" #type, Row_##function##_##type},
#include "frame/catalogue.def"
#undef LUM_ROW
  };
  const FunctionRecord& record = library.Symbol<const FunctionRecord*()>(
      "lumTestEntryTable")()[rows.at(std::string(entry.function) + "_" + std::string(entry.type))];
  const KernelPointer& slot = entry.tier == Tier::mid    ? record.entryMid
                              : entry.tier == Tier::high ? record.entryHigh
                                                         : record.entryLow;
  const void* kernel;
  std::memcpy(&kernel, &slot, sizeof kernel);
  return kernel;
}

// Tags that share a kernel share its cell; no other kernel does.
TEST(HookCells, OneForEachKernel) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library* library = TestLibrary(name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    std::map<const uint32_t*, const void*> kernel_of_cell;
    for (const Export& entry : support::Exports()) {
      Recorder recorder(*library, entry);
      Callee(*library, entry).Run(Sample(entry, 1500, 8));
      for (const auto& logged : recorder.log()) {
        const void* kernel = KernelOf(*library, entry);
        EXPECT_EQ(kernel_of_cell.emplace(logged.call.cell, kernel).first->second, kernel) << entry.name;
      }
    }
    EXPECT_FALSE(kernel_of_cell.empty());
  }
}

}  // namespace
}  // namespace lum::test
