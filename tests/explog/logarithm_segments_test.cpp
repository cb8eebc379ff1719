// The rows of the segment tables that are pinned: next to x = 1 and at the middle of the significands.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace lum::test {
namespace {

constexpr uint32_t ln_4[] = {
#include "tables/generated/ln_segments_32f_16_degree_4.inc"
};
constexpr uint32_t ln_3[] = {
#include "tables/generated/ln_segments_32f_16_degree_3.inc"
};
constexpr uint32_t log10_4[] = {
#include "tables/generated/log10_segments_32f_16_degree_4.inc"
};
constexpr uint32_t log10_3[] = {
#include "tables/generated/log10_segments_32f_16_degree_3.inc"
};

template <size_t columns> void ExpectRow(const uint32_t* table, size_t row, const std::array<uint32_t, columns>& expected) {
  for (size_t i = 0; i < columns; ++i) EXPECT_EQ(table[columns * row + i], expected[i]) << "row " << row << " column " << i;
}

TEST(LogarithmSegments, PinnedRowsOfLn) {
  ExpectRow<4>(ln_4, 0, {0xBE6831EF, 0x3EAA36BB, 0xBEFFFE93, 0x3F800000});
  ExpectRow<4>(ln_4, 7, {0xBD947E78, 0x3E76F776, 0xBEF35E29, 0x3F7F532C});
  ExpectRow<4>(ln_4, 8, {0xBF15EE8D, 0x3E4684FE, 0xBF060F28, 0x3F7FA089});
  ExpectRow<4>(ln_4, 15, {0xBE86A5E0, 0x3EAA88FA, 0xBF00001B, 0x3F800000});
  ExpectRow<3>(ln_3, 0, {0x3E9F5A07, 0xBEFFBD9F, 0x3F800000});
  ExpectRow<3>(ln_3, 7, {0x3E0E9119, 0xBEDAEDBB, 0x3F7D6B86});
  ExpectRow<3>(ln_3, 8, {0x3F1B0F68, 0xBEDABF99, 0x3F80C697});
  ExpectRow<3>(ln_3, 15, {0x3EB0DA76, 0xBEFFED39, 0x3F800000});
}

TEST(LogarithmSegments, PinnedRowsOfLog10) {
  ExpectRow<4>(log10_4, 0, {0xBDC9AE9B, 0x3E13D888, 0xBE5E5A9B, 0x3EDE5BD8});
  ExpectRow<4>(log10_4, 7, {0xBD00FAF2, 0x3DD68333, 0xBE5362F8, 0x3EDDC5BB});
  ExpectRow<4>(log10_4, 8, {0xBE823AA9, 0x3DAC6E8E, 0xBE68E27C, 0x3EDE08ED});
  ExpectRow<4>(log10_4, 15, {0xBDE9E84E, 0x3E141FF8, 0xBE5E5C08, 0x3EDE5BD9});
  ExpectRow<3>(log10_3, 0, {0x3E0A693E, 0xBE5E2231, 0x3EDE5BBF});
  ExpectRow<3>(log10_3, 7, {0x3D77A9F4, 0xBE3E28B4, 0x3EDC1E2A});
  ExpectRow<3>(log10_3, 8, {0x3E86AEFE, 0xBE3E00A2, 0x3EDFB4D5});
  ExpectRow<3>(log10_3, 15, {0x3E199CE6, 0xBE5E4B8A, 0x3EDE5BDC});
}

}  // namespace
}  // namespace lum::test
