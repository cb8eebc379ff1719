// Errors of blocks of results against values that carry more bits than the type, in loops that a compiler vectorises.
#pragma once

#include <array>
#include <memory>

#include "accuracy/block_calls.h"

namespace lum::accuracy {

using LongColumn = std::array<long double, hunt_block>;

// The values of a block, scaled by powers of 2 so that neither squares nor last places leave binary64's range. What binary64
// does not hold of a value is its rest.
class HuntValues {
 public:
  HuntValues(bool is_32bit, bool is_complex, size_t parts);
  void Take(const std::array<HuntColumn, 2>& values);
  void Take(const std::array<LongColumn, 2>& values);

  // The errors in ulp, the larger one of two outputs, of complex results norm-wise. Not a number where just one of result and
  // value is a NaN; 0 for a result that overflowed as its value does.
  void Errors(const std::array<HuntColumn, 2>& results, HuntColumn& errors) const;
  // Whether the value at i has a place in a distribution.
  bool IsOrdinary(size_t i) const;

 private:
  void SetUnits();
  void AddPart(const std::array<HuntColumn, 2>& results, size_t part, HuntColumn& errors) const;
  void NormErrors(const std::array<HuntColumn, 2>& results, HuntColumn& errors) const;

  bool is32_, is_complex_;
  size_t parts_;
  std::array<HuntColumn, 2> value_, rest_, scale_, inverse_unit_, overflow_;
};

}  // namespace lum::accuracy
