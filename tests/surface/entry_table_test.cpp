// The table of kernels: every slot filled, levels of accuracy that share a kernel and those that do not, the costs, and the
// slot that each exported name jumps through.
#include "frame/entry_table.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <map>
#include <string_view>

#include "support/subjects.h"

namespace lum::test {
namespace {

static_assert(offsetof(FunctionRecord, entryMid) == 0);
static_assert(offsetof(FunctionRecord, entryHigh) == sizeof(void*));
static_assert(offsetof(FunctionRecord, entryLow) == 2 * sizeof(void*));
static_assert(offsetof(FunctionRecord, costMid) == 3 * sizeof(void*));
static_assert(offsetof(FunctionRecord, costHigh) == 3 * sizeof(void*) + 4);
static_assert(offsetof(FunctionRecord, costLow) == 3 * sizeof(void*) + 8);

struct Costs {
  float low, mid, high;
};
#define LUM_COSTS(function, type, low, mid, high) constexpr Costs costs_##function##_##type{low, mid, high};
#include "frame/costs.def"

// A row as it is declared: the names of its kernels and their cost figures.
struct CatalogueRow {
  std::string_view name;
  std::string_view low, mid, high;
  Costs costs;
};
constexpr CatalogueRow rows[] = {
#define LUM_ROW(function, type, shape, exported, low, mid, high) \
  {#function "_" #type, #low, #mid, #high, costs_##function##_##type},
#include "frame/catalogue.def"
#undef LUM_ROW
};
static_assert(std::size(rows) == row_count);

// The kernels of a row: mid, high, low.
struct Slots {
  const void *mid, *high, *low;
};
const void* Address(const KernelPointer& slot) {
  const void* address;
  std::memcpy(&address, &slot, sizeof address);
  return address;
}
Slots SlotsOf(const FunctionRecord& record) {
  return {Address(record.entryMid), Address(record.entryHigh), Address(record.entryLow)};
}

class EntryTable : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    std::string reason;
    library_ = TestLibrary(GetParam(), "_recording", reason);
    if (library_ == nullptr && !support::ProcessorRuns(GetParam())) GTEST_SKIP() << reason;
    ASSERT_NE(library_, nullptr) << reason;
    table_ = library_->Symbol<const FunctionRecord*()>("lumTestEntryTable")();
  }
  const support::Library* library_ = nullptr;
  const FunctionRecord* table_ = nullptr;
};

TEST_P(EntryTable, AllSlotsAreFilled) {
  for (size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].name);
    const Slots slots = SlotsOf(table_[i]);
    EXPECT_TRUE(slots.mid != nullptr && slots.high != nullptr && slots.low != nullptr);
    for (uint8_t byte : table_[i].reserved) EXPECT_EQ(byte, 0);
  }
}

// Levels have one kernel where the declaration names one, and nowhere else: no two kernels are merged or exchanged.
TEST_P(EntryTable, LevelsShareKernels) {
  for (size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].name);
    const Slots slots = SlotsOf(table_[i]);
    EXPECT_EQ(slots.low == slots.mid, rows[i].low == rows[i].mid);
    EXPECT_EQ(slots.mid == slots.high, rows[i].mid == rows[i].high);
    EXPECT_EQ(slots.low == slots.high, rows[i].low == rows[i].high);
  }
}

// No kernel serves two functions or types.
TEST_P(EntryTable, KernelsBelongToOneRow) {
  std::map<const void*, std::string_view> row_of;
  for (size_t i = 0; i < std::size(rows); ++i) {
    const Slots slots = SlotsOf(table_[i]);
    for (const void* kernel : {slots.mid, slots.high, slots.low}) {
      EXPECT_EQ(row_of.emplace(kernel, rows[i].name).first->second, rows[i].name);
    }
  }
}

TEST_P(EntryTable, CostsAreTheCatalogues) {
  for (size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].name);
    const auto& [low, mid, high] = rows[i].costs;
    EXPECT_EQ(table_[i].costMid, mid);
    EXPECT_EQ(table_[i].costHigh, high);
    EXPECT_EQ(table_[i].costLow, low);
    EXPECT_GT(std::min({low, mid, high}), 0) << "not measured: ./run bench, then tools/set_costs.py";
  }
}

// The rows whose figures are fixed and give the others their unit.
TEST(EntryTableCosts, FixedFigures) {
  const std::map<std::string_view, std::array<float, 3>> mid_high_low = {{"Abs_32f", {0.168f, 0.168f, 0.168f}},
                                                                         {"Sqr_32f", {0.162f, 0.163f, 0.162f}},
                                                                         {"Exp_32f", {0.577f, 0.611f, 0.495f}},
                                                                         {"Exp_64f", {1.295f, 1.368f, 0.912f}},
                                                                         {"Sin_64f", {1.432f, 2.719f, 1.26f}},
                                                                         {"Add_32fc", {1.936f, 1.936f, 0.255f}},
                                                                         {"Inv_64f", {0.739f, 0.739f, 0.531f}},
                                                                         {"Sqrt_64fc", {10.787f, 207.31f, 10.787f}},
                                                                         {"Exp_32fc", {2, 3, 2}},
                                                                         {"Exp_64fc", {2, 39.379f, 2}},
                                                                         {"Ln_32fc", {2, 3, 1}},
                                                                         {"Ln_64fc", {2, 3, 1}},
                                                                         {"Acos_32fc", {791.84f, 791.84f, 791.84f}},
                                                                         {"Powx_64fc", {780.622f, 780.622f, 780.622f}}};
  size_t found = 0;
  for (const CatalogueRow& row : rows) {
    const auto fixed = mid_high_low.find(row.name);
    if (fixed == mid_high_low.end()) continue;
    ++found;
    EXPECT_EQ((std::array{row.costs.mid, row.costs.high, row.costs.low}), fixed->second) << row.name;
  }
  EXPECT_EQ(found, mid_high_low.size());
}

// The rows stand in the order of the exported names, in which an underscore follows the type: Abs_32f before Abs_32fc.
TEST(EntryTableRows, InOrder) {
  for (size_t i = 1; i < std::size(rows); ++i) {
    EXPECT_LT(std::string(rows[i - 1].name) + "_", std::string(rows[i].name) + "_");
  }
}

// Markers in place of a row's kernels. They look at no argument and tell by their result which slot was taken.
template <LumStatus status> LumStatus Marker(const void*, void*, int32_t) { return status; }
constexpr LumStatus mid_marker = lumStsOverflow, high_marker = lumStsSingularity, low_marker = lumStsDomain;

KernelPointer PointerTo(LumStatus (*marker)(const void*, void*, int32_t)) {
  KernelPointer pointer;
  static_assert(sizeof pointer == sizeof marker);
  std::memcpy(&pointer, &marker, sizeof pointer);
  return pointer;
}

TEST_P(EntryTable, NamesTakeTheSlotOfTheirTag) {
  std::map<std::string, size_t> row_of;
  for (size_t i = 0; i < std::size(rows); ++i) row_of.emplace(rows[i].name, i);
  for (const Export& entry : support::Exports()) {
    auto& record = const_cast<FunctionRecord&>(table_[row_of.at(std::string(entry.function) + "_" + std::string(entry.type))]);
    const FunctionRecord kept = record;
    record.entryMid = PointerTo(Marker<mid_marker>);
    record.entryHigh = PointerTo(Marker<high_marker>);
    record.entryLow = PointerTo(Marker<low_marker>);
    const bool is_mid = entry.tag == "A21" || entry.tag == "A50", is_low = entry.tag == "A11" || entry.tag == "A26";
    const LumStatus expected = is_mid ? mid_marker : is_low ? low_marker : high_marker;
    EXPECT_EQ(Callee(*library_, entry).Run(Sample(entry, 1)).status, expected) << entry.name;
    record = kept;
  }
}

INSTANTIATE_TEST_SUITE_P(Libraries, EntryTable, testing::ValuesIn(LibraryNames().begin(), LibraryNames().end()),
                         [](const auto& library) { return library.param; });

}  // namespace
}  // namespace lum::test
