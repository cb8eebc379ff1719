// Whether functions have the properties that property_table.h lists for them.
#pragma once

#include <string>
#include <vector>

#include "accuracy/property_table.h"

namespace lum::accuracy {

struct Finding {
  std::string kind, text;  // symmetry, range, rise, exact
  bool is_over_all;        // all arguments of the type, not some of them
  uint64_t count = 0;      // arguments, pairs of neighbours, cases
  uint64_t violations = 0;
  double largest = 0;  // in representable numbers: apart, beyond the bound, or back
  Point at;            // of that one
};

struct PropertyLimits {
  uint64_t count = 50'000'000;  // arguments, where not all of one 32f input
  uint64_t share_of_all = 1;    // of the arguments of one 32f input the first of so many blocks
  uint64_t seed = 1;
};

// In the order of the table. Deterministic; with a smaller count or share the arguments are among those of larger ones.
std::vector<Finding> FindProperties(const support::Library& library, const support::Export& entry,
                                    const PropertyLimits& limits);

}  // namespace lum::accuracy
