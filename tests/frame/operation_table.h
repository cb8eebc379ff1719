// The vector operations as functions over raw vectors, one table for each layer. The same source is compiled once for each, so
// the tables have the same entries in the same order.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lum::test {

enum class Element { none, f32, f64, integer32, integer64 };

struct alignas(64) RawVector {
  unsigned char bytes[64];
};
struct Operands {
  RawVector vector[3];
  uint32_t mask;
};
// Bytes that an operation does not write stay zero. A mask is its bits in the first four bytes.
struct Outcome {
  RawVector vector[2];
};

struct Operation {
  std::string name;        // of the entry, as in "add<rd> f32"
  std::string vocabulary;  // of the operation, as in "add"
  std::vector<Element> operands;
  bool arithmetic;  // with two NaNs in a lane, either may be the result
  void (*run)(const Operands&, Outcome&);
};

struct OperationTable {
  std::vector<Operation> operations;
  // Through these a test passes addresses of its own: load and store under a mask, and gather.
  void (*masked_load_f32)(uint32_t mask, const float* from, float* all_lanes);
  void (*masked_load_f64)(uint32_t mask, const double* from, double* all_lanes);
  void (*masked_store_f32)(uint32_t mask, float* to, const float* all_lanes);
  void (*masked_store_f64)(uint32_t mask, double* to, const double* all_lanes);
  void (*masked_gather_f32)(uint32_t mask, const float* base, const int32_t* index, float* all_lanes);
  void (*masked_gather_f64)(uint32_t mask, const double* base, const int64_t* index, double* all_lanes);
};

OperationTable Avx512Table();
OperationTable Avx2Table();
OperationTable PortableTable();

}  // namespace lum::test
