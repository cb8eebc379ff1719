// Arguments as text.
#pragma once

#include <string>

#include "accuracy/reference.h"

namespace lum::accuracy {

// All parts of a point that the export has, separated by spaces, in decimal or as bit patterns; read back they are the same.
std::string DecimalOf(const support::Export& entry, const Point& point);
std::string PatternOf(const support::Export& entry, const Point& point);

}  // namespace lum::accuracy
