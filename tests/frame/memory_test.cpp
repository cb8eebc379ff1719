// A call reads and writes its arrays and nothing else: arrays of every length to several blocks, at both ends of memory that is
// surrounded by pages without access, inputs in memory that cannot be written, and outputs beside bytes that must stay.
#include <algorithm>

#include "support/guarded_memory.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

constexpr size_t longest = 160;
constexpr std::byte untouched{0xA5};

// Where arrays lie in their memory: at its start, one element behind it, one before its end, or at its end.
enum class Place { start, behind_start, before_end, end };

std::byte* Address(const GuardedMemory& memory, Place place, size_t element, size_t bytes) {
  switch (place) {
    case Place::start:
      return memory.begin();
    case Place::behind_start:
      return memory.begin() + element;
    case Place::before_end:
      return memory.end() - element - bytes;
    default:
      return memory.end() - bytes;
  }
}

class Memory : public ExportTest {
 protected:
  // The first `len` elements of the batch in guarded memory; gives the outputs.
  Output RunGuarded(const Batch& batch, size_t len, Place place) {
    const size_t out = support::SizeOf(entry().output);
    support::Arguments arguments;
    arguments.src1 = InGuarded(src1_, batch.src1, len, place);
    if (batch.src2.size() != 0) arguments.src2 = InGuarded(src2_, batch.src2, len, place);
    if (batch.value.size() != 0) arguments.value = batch.value.data();
    dst1_.Fill(untouched);
    dst2_.Fill(untouched);
    arguments.dst1 = Address(dst1_, place, out, len * out);
    arguments.dst2 = Address(dst2_, place, out, len * out);
    arguments.len = static_cast<int32_t>(len);
    Output output(entry(), len);
    output.status = callee().Call(arguments);
    Collect(output.dst1, dst1_, arguments.dst1);
    if (entry().outputs() == 2) Collect(output.dst2, dst2_, arguments.dst2);
    return output;
  }

 private:
  static const void* InGuarded(GuardedMemory& memory, const Array& array, size_t len, Place place) {
    const size_t element = support::SizeOf(array.element());
    memory.SetReadOnly(false);
    std::byte* address = Address(memory, place, element, len * element);
    std::copy(array.data(), array.at(len), address);
    memory.SetReadOnly(true);
    return address;
  }
  // The results, and a look at the bytes around them.
  static void Collect(Array& results, const GuardedMemory& memory, const void* address) {
    const auto* first = static_cast<const std::byte*>(address);
    std::copy(first, first + results.bytes(), results.data());
    const auto is_touched = [](std::byte b) { return b != untouched; };
    EXPECT_TRUE(std::none_of(static_cast<const std::byte*>(memory.begin()), first, is_touched)) << "written before the array";
    EXPECT_TRUE(std::none_of(first + results.bytes(), static_cast<const std::byte*>(memory.end()), is_touched))
        << "written behind the array";
  }

  static constexpr size_t room = (longest + 2) * 16;
  GuardedMemory src1_{room}, src2_{room}, dst1_{room}, dst2_{room};
};

TEST_P(Memory, EveryLengthAtBothEnds) {
  const Batch batch = Sample(entry(), longest);
  std::vector<LumStatus> statuses;
  const Output reference = callee().RunEach(batch, statuses);
  for (size_t len = 1; len <= longest; ++len) {
    Output expected = reference;
    expected.dst1.resize(len);
    if (entry().outputs() == 2) expected.dst2.resize(len);
    expected.status = lumStsOk;
    for (size_t i = 0; i < len; ++i) {
      if (statuses[i] != lumStsOk) expected.status = statuses[i];
    }
    for (Place place : {Place::start, Place::behind_start, Place::before_end, Place::end}) {
      ASSERT_EQ(FirstDifference(expected, RunGuarded(batch, len, place)), "equal") << "length " << len;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, Memory, testing::ValuesIn(AllSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
