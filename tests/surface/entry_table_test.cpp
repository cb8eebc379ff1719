// The table of kernels: every slot filled, and shared between levels exactly where the catalogue names one kernel twice.
#include "frame/entry_table.h"

#include <cstring>
#include <string_view>

#include "support/subjects.h"

namespace lum::test {
namespace {

struct CatalogueRow {
  std::string_view name, mid, high, low;
  float cost_mid, cost_high, cost_low;
};
constexpr CatalogueRow rows[] = {
#define LUM_ROW(function, type, shape, exported, mid, high, low, cost_mid, cost_high, cost_low) \
  {#function "_" #type, #mid, #high, #low, cost_mid, cost_high, cost_low},
#include "frame/catalogue.def"
#undef LUM_ROW
};

const void* Address(const KernelPointer& slot) {
  const void* address;
  std::memcpy(&address, &slot, sizeof address);
  return address;
}

void ExpectRow(const CatalogueRow& row, const FunctionRecord& record) {
  SCOPED_TRACE(row.name);
  const void* mid = Address(record.entryMid);
  const void* high = Address(record.entryHigh);
  const void* low = Address(record.entryLow);
  EXPECT_TRUE(mid != nullptr && high != nullptr && low != nullptr);
  EXPECT_EQ(mid == high, row.mid == row.high);
  EXPECT_EQ(mid == low, row.mid == row.low);
  EXPECT_EQ(high == low, row.high == row.low);
  EXPECT_EQ(record.costMid, row.cost_mid);
  EXPECT_EQ(record.costHigh, row.cost_high);
  EXPECT_EQ(record.costLow, row.cost_low);
  for (uint8_t byte : record.reserved) EXPECT_EQ(byte, 0);
}

TEST(EntryTable, SlotsAndCosts) {
  for (const std::string& name : RunnableLibraries()) {
    SCOPED_TRACE(name);
    std::string reason;
    const support::Library* library = TestLibrary(name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    const FunctionRecord* table = library->Symbol<const FunctionRecord*()>("lumTestEntryTable")();
    for (size_t i = 0; i < std::size(rows); ++i) ExpectRow(rows[i], table[i]);
  }
}

// In the order of the exported names, Abs_32f before Abs_32fc as in lumsAbs_32f_A24 and lumsAbs_32fc_A24.
TEST(EntryTable, RowsInOrder) {
  for (size_t i = 1; i < std::size(rows); ++i) {
    EXPECT_LT(std::string(rows[i - 1].name) + "_", std::string(rows[i].name) + "_");
  }
}

}  // namespace
}  // namespace lum::test
