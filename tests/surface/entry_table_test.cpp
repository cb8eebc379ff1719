// The table of kernels: every slot filled, levels of accuracy that share a kernel and those that do not, the costs, and the
// slot that each exported name jumps through.
#include "frame/entry_table.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <map>
#include <set>
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
static_assert(row_count == 152);

struct CatalogueRow {
  std::string_view name, exported;
  float cost_mid, cost_high, cost_low;
};
constexpr CatalogueRow rows[] = {
#define LUM_ROW(function, type, shape, exported, mid, high, low, cost_mid, cost_high, cost_low) \
  {#function "_" #type, #exported, cost_mid, cost_high, cost_low},
#include "frame/catalogue.def"
#undef LUM_ROW
};

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

// Which levels have one kernel.
enum class Share { none, low_and_mid, mid_and_high, all };

// Written out by hand, not taken from the catalogue: a level may be served by a more accurate kernel only where that is meant.
const std::set<std::string_view> low_and_mid = {"Cos_64f",   "Erfc_32f", "Exp_32fc",  "Exp_64fc",
                                                "Round_64f", "Sinh_64f", "Sqrt_32fc", "Sqrt_64fc"};
const std::set<std::string_view> mid_and_high = {"Add_32fc", "Add_64fc",       "Div_32fc", "Div_64fc", "Inv_32f", "Inv_64f",
                                                 "Mul_32fc", "MulByConj_64fc", "Mul_64fc", "Sub_32fc", "Sub_64fc"};
// The loops over scalar cores, and functions of one level.
const std::set<std::string_view> all_levels = {
    "Abs_32f",   "Abs_64f",   "Acos_32fc",     "Acos_64fc",     "Acosh_32fc", "Acosh_64fc", "Add_32f",    "Add_64f",
    "Asin_32fc", "Asin_64fc", "Asinh_32fc",    "Asinh_64fc",    "Atan_32fc",  "Atan_64fc",  "Atanh_32fc", "Atanh_64fc",
    "Ceil_32f",  "Ceil_64f",  "Conj_32fc",     "Conj_64fc",     "Cos_32fc",   "Cos_64fc",   "Cosh_32fc",  "Cosh_64fc",
    "Floor_32f", "Floor_64f", "Frac_32f",      "Frac_64f",      "Log10_32fc", "Log10_64fc", "Modf_32f",   "Modf_64f",
    "Mul_32f",   "Mul_64f",   "NearbyInt_32f", "NearbyInt_64f", "Pow_32fc",   "Pow_64fc",   "Powx_32fc",  "Powx_64fc",
    "Rint_32f",  "Rint_64f",  "Round_32f",     "Sin_32fc",      "Sin_64fc",   "Sinh_32fc",  "Sinh_64fc",  "Sqr_32f",
    "Sqr_64f",   "Sub_32f",   "Sub_64f",       "Tan_32fc",      "Tan_64fc",   "Tanh_32fc",  "Tanh_64fc",  "Trunc_32f",
    "Trunc_64f"};

Share ExpectedShare(std::string_view name) {
  if (all_levels.contains(name)) return Share::all;
  if (low_and_mid.contains(name)) return Share::low_and_mid;
  return mid_and_high.contains(name) ? Share::mid_and_high : Share::none;
}

void ExpectShare(const CatalogueRow& row, const Slots& slots) {
  const Share share = ExpectedShare(row.name);
  EXPECT_EQ(slots.low == slots.mid, share == Share::low_and_mid || share == Share::all);
  EXPECT_EQ(slots.mid == slots.high, share == Share::mid_and_high || share == Share::all);
  EXPECT_EQ(slots.low == slots.high, share == Share::all);
}

class EntryTable : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    std::string reason;
    library_ = TestLibrary(GetParam(), "_recording", reason);
    if (library_ == nullptr && GetParam() == "k0" && !support::ProcessorHasAvx512()) GTEST_SKIP() << reason;
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

TEST_P(EntryTable, LevelsShareKernels) {
  for (size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].name);
    ExpectShare(rows[i], SlotsOf(table_[i]));
  }
}

// All names of the lists above are names of rows: none is checked in vain.
TEST(EntryTableLists, NameRows) {
  std::set<std::string_view> known;
  for (const CatalogueRow& row : rows) known.insert(row.name);
  for (const auto& list : {low_and_mid, mid_and_high, all_levels}) {
    for (std::string_view name : list) EXPECT_TRUE(known.contains(name)) << name;
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
    EXPECT_EQ(table_[i].costMid, rows[i].cost_mid);
    EXPECT_EQ(table_[i].costHigh, rows[i].cost_high);
    EXPECT_EQ(table_[i].costLow, rows[i].cost_low);
    EXPECT_GT(std::min({rows[i].cost_mid, rows[i].cost_high, rows[i].cost_low}), 0);
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
    EXPECT_EQ((std::array{row.cost_mid, row.cost_high, row.cost_low}), fixed->second) << row.name;
  }
  EXPECT_EQ(found, mid_high_low.size());
}

// In the order of the exported names, Abs_32f before Abs_32fc as in lumsAbs_32f_A24 and lumsAbs_32fc_A24.
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
  EXPECT_EQ(support::Exports().size(), 392u);
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
