// Arguments whose results are known exactly.
#pragma once

#include <vector>

#include "accuracy/property_table.h"

namespace lum::accuracy {

std::vector<ExactSet> RealExactSets(const support::Export& entry);
std::vector<ExactSet> ComplexExactSets(const support::Export& entry);

}  // namespace lum::accuracy
