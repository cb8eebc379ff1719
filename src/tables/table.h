// Read-only tables given by bit patterns, aligned for whole-vector loads.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "frame/layer.h"

namespace lum {

template <class T, size_t n> struct alignas(64) Table {
  T entries[n];
  constexpr operator const T*() const { return entries; }
  static constexpr size_t size = n;
};

template <size_t n> consteval Table<float, n> table32(const uint32_t (&bits)[n]) {
  Table<float, n> table{};
  for (size_t i = 0; i < n; ++i) table.entries[i] = std::bit_cast<float>(bits[i]);
  return table;
}

template <size_t n> consteval Table<double, n> table64(const uint64_t (&bits)[n]) {
  Table<double, n> table{};
  for (size_t i = 0; i < n; ++i) table.entries[i] = std::bit_cast<double>(bits[i]);
  return table;
}

// The entries of a table of rows, column after column.
template <size_t columns, class T, size_t n> consteval Table<T, n> by_columns(const Table<T, n>& table) {
  Table<T, n> result{};
  for (size_t i = 0; i < n; ++i) result.entries[i % columns * (n / columns) + i / columns] = table.entries[i];
  return result;
}

// Rows of three entries, and one more, since rows are read four entries at a time.
template <class T, size_t n> consteval Table<T, n + 1> rows_of_3(const Table<T, n>& table) {
  Table<T, n + 1> result{};
  for (size_t i = 0; i < n; ++i) result.entries[i] = table.entries[i];
  return result;
}

// The one of two tables that holds T.
template <class T, size_t n, size_t m>
consteval const auto& of_type(const Table<float, n>& single, const Table<double, m>& twice) {
  if constexpr (sizeof(T) == sizeof(float)) return single;
  else return twice;
}

}  // namespace lum
