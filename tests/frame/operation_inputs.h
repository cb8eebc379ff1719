// Inputs for the vector operations: special values in all combinations, and random ones that meet where operations are
// difficult (close exponents, cancelling sums, halfway cases, ends of the range). The same on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "operation_table.h"

namespace lum::test {

// The bits of special values of one element type.
const std::vector<uint64_t>& SpecialValues(Element element);

class InputGenerator {
 public:
  explicit InputGenerator(uint64_t seed) : random_(seed) {}
  // Random lanes in every operand.
  void Fill(const Operation& operation, Operands& operands);

 private:
  uint64_t Below(uint64_t n) { return random_() % n; }
  uint64_t Special(Element element);
  uint64_t IntegerLane(int width);
  template <class T> uint64_t FloatingLane(int manner);
  template <class T> void FillFloatingLanes(int lane, const std::vector<Element>& elements, Operands& operands);

  std::mt19937_64 random_;
};

// Number of operand vectors needed for every combination of special values in the operation's lanes; the one that is number
// `index` of them. Operations of three operands combine fewer values.
uint64_t SpecialVectors(const Operation& operation);
void FillSpecials(const Operation& operation, uint64_t index, Operands& operands);

int LaneBytes(Element element);
uint64_t GetLane(const RawVector& v, Element element, int lane);
void SetLane(RawVector& v, Element element, int lane, uint64_t bits);

}  // namespace lum::test
