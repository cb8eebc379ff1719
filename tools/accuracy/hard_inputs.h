// Arguments at which errors hide: they are too rare for a random sample to meet.
#pragma once

#include <vector>

#include "accuracy/inputs.h"

namespace lum::accuracy {

// Both sides of the borders that functions.toml lists for the function, from the neighbouring numbers to 2^-20 of their size.
std::vector<Point> PointsAtBorders(const support::Export& entry, size_t count);
// The numbers nearest to multiples of pi/2, of both signs; with other parts of all sizes for complex functions.
std::vector<Point> PointsAtQuarterTurns(const support::Export& entry);
// (cos t, sin t) rounded, its neighbours in either part, and numbers up to 2^-20 from the circle.
std::vector<Point> PointsOnUnitCircle(const support::Export& entry, size_t count);

}  // namespace lum::accuracy
