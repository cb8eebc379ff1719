// Add, Sub and Conj of complex numbers.
#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/entry_table.h"
#include "support/cases.h"
#include "support/recorder.h"

namespace lum::test {
namespace {

TEST(ComplexConj, FlipsTheSignOfTheImaginaryPart) {
  for (const char* name : {"Conj_32fc", "Conj_64fc"}) {
    ExpectCases(name, {{{1, 2}, {1, -2}}, {{-0.0, -0.0}, {-0.0, 0.0}}, {{inf, -inf}, {inf, inf}}, {{-max, 0}, {-max, -0.0}}});
  }
}

TEST(ComplexConj, KeepsSignallingNans) {
  ExpectCases("Conj_32fc", {{{FromBits(0xFF800001), FromBits(0x7F812345)}, {FromBits(0xFF800001), FromBits(0xFF812345)}},
                            {{1, FromBits(0xFFA00000)}, {1, FromBits(0x7FA00000)}}});
  ExpectCases("Conj_64fc", {{{FromBits(0xFFF0000000000001), FromBits(0x7FF0000000012345)},
                             {FromBits(0xFFF0000000000001), FromBits(0xFFF0000000012345)}}});
}

TEST(ComplexSums, ByComponents) {
  for (const char* name : {"Add_32fc", "Add_64fc"}) ExpectCases(name, {{{1, 2}, {10, 20}, {11, 22}}});
  for (const char* name : {"Sub_32fc", "Sub_64fc"})
    ExpectCases(name, {{{1, 2}, {10, 20}, {-9, -18}}, {{10, 2}, {1, 20}, {9, -18}}});
}

TEST(ComplexSums, OverflowOfFiniteComponentsReports) {
  for (const char* name : {"Add_32fc", "Add_64fc"}) {
    ExpectCases(name, {{{max, 1}, {max, 2}, {inf, 3}, lumStsOverflow},
                       {{1, -max}, {0, -max}, {1, -inf}, lumStsOverflow},
                       {{max, max}, {max, -max}, {inf, 0}, lumStsOverflow}});
  }
  for (const char* name : {"Sub_32fc", "Sub_64fc"}) {
    ExpectCases(name, {{{max, 1}, {-max, 3}, {inf, -2}, lumStsOverflow}, {{1, -max}, {3, max}, {-2, -inf}, lumStsOverflow}});
  }
}

TEST(ComplexSums, AnInfinityAmongTheInputsReportsNothing) {
  for (const char* name : {"Add_32fc", "Add_64fc"}) {
    ExpectCases(name,
                {{{inf, 1}, {1, 1}, {inf, 2}}, {{max, 1}, {max, inf}, {inf, inf}}, {{inf, 1}, {-inf, 1}, {default_nan, 2}}});
  }
  for (const char* name : {"Sub_32fc", "Sub_64fc"}) {
    ExpectCases(name,
                {{{inf, 1}, {1, 1}, {inf, 0}}, {{max, 2}, {-max, inf}, {inf, -inf}}, {{inf, 2}, {inf, 1}, {default_nan, 1}}});
  }
}

TEST(ComplexSums, NanBesideFiniteComponentsReportsNothing) {
  ExpectCases("Add_32fc", {{{FromBits(0x7F812345), 1}, {1, 1}, {FromBits(0x7FC12345), 2}}});
  ExpectCases("Add_64fc", {{{1, FromBits(0xFFF8000000012345)}, {1, 1}, {2, FromBits(0xFFF8000000012345)}}});
  ExpectCases("Sub_32fc", {{{1, 1}, {FromBits(0x7F812345), 1}, {FromBits(0x7FC12345), 0}}});
  ExpectCases("Sub_64fc", {{{1, 1}, {1, FromBits(0xFFF8000000012345)}, {0, FromBits(0xFFF8000000012345)}}});
}

// One component overflows, the other is a NaN: an overflow, except in Sub of doubles.
TEST(ComplexSums, OverflowBesideANan) {
  for (const char* name : {"Add_32fc", "Add_64fc"}) ExpectCases(name, {{{max, nan}, {max, 1}, {inf, nan}, lumStsOverflow}});
  ExpectCases("Sub_32fc", {{{max, nan}, {-max, 1}, {inf, nan}, lumStsOverflow}});
  ExpectCases("Sub_64fc", {{{max, nan}, {-max, 1}, {inf, nan}}});
}

// Sub of doubles alone lets a zero among the inputs keep it from reporting.
TEST(ComplexSums, OverflowBesideAZero) {
  ExpectCases("Sub_64fc", {{{max, 0}, {-max, 1}, {inf, -1}},
                           {{max, 5}, {-max, 1}, {inf, 4}, lumStsOverflow},
                           {{max, 5}, {-max, -0.0}, {inf, 5}},
                           {{0, max}, {1, -max}, {-1, inf}}});
  ExpectCases("Add_64fc", {{{max, 0}, {max, 1}, {inf, 1}, lumStsOverflow}});
  ExpectCases("Sub_32fc", {{{max, 0}, {-max, 1}, {inf, -1}, lumStsOverflow}});
}

// The lowest slot holds a kernel that adds the parts as they stand and reports nothing; no exported name reaches it.
template <class E> void ExpectPlainSum(const support::Library& library, Row row, E x, E y) {
  const FunctionRecord& record = library.Symbol<const FunctionRecord*()>("lumTestEntryTable")()[row];
  const auto kernel = [](const KernelPointer& slot) {
    if constexpr (std::is_same_v<E, Lum32fc>) return slot.TwoInputs_32fc;
    else return slot.TwoInputs_64fc;
  };
  E reported{}, plain{};
  EXPECT_EQ(kernel(record.entryHigh)(&x, &y, &reported, 1), lumStsOverflow);
  EXPECT_EQ(kernel(record.entryLow)(&x, &y, &plain, 1), lumStsOk);
  EXPECT_EQ(std::memcmp(&reported, &plain, sizeof plain), 0);
}
TEST(ComplexSums, LowestSlotReportsNothing) {
  constexpr float huge_32 = std::numeric_limits<float>::max();
  constexpr double huge_64 = std::numeric_limits<double>::max();
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library* library = TestLibrary(name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    ExpectPlainSum<Lum32fc>(*library, Row_Add_32fc, {huge_32, 1}, {huge_32, 2});
    ExpectPlainSum<Lum64fc>(*library, Row_Add_64fc, {huge_64, 1}, {huge_64, 2});
    ExpectPlainSum<Lum32fc>(*library, Row_Sub_32fc, {huge_32, 1}, {-huge_32, 2});
    ExpectPlainSum<Lum64fc>(*library, Row_Sub_64fc, {huge_64, 1}, {-huge_64, 2});
  }
}

// A refused element that reports nothing calls no hook.
TEST(ComplexSums, NoHookForNanAndInfinity) {
  for (const std::string& library_name : RunnableLibraries()) {
    std::string reason;
    const support::Library* library = TestLibrary(library_name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    for (const char* name : {"Add_32fc", "Add_64fc", "Sub_32fc", "Sub_64fc"}) {
      const Export& entry = *ExportsNamed(name).at(0);
      const Format format = FormatOf(entry.input);
      Batch batch(entry);
      for (uint64_t special : {format.infinity(), format.infinity() | format.sign(), format.infinity() | 1}) {
        for (int i = 0; i < 21; ++i) {
          batch.src1.Append({special, format.pattern(1)});
          batch.src2.Append({format.pattern(2), special});
        }
      }
      Recorder recorder(*library, entry);
      EXPECT_EQ(Callee(*library, entry).Run(batch).status, lumStsOk);
      EXPECT_TRUE(recorder.log().empty());
    }
  }
}

}  // namespace
}  // namespace lum::test
