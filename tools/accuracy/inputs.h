// The arguments at which a function's accuracy is measured.
#pragma once

#include <vector>

#include "accuracy/reference.h"

namespace lum::accuracy {

// Deterministic points for a function and type, each representable in the type: the ordinary range, log-uniform over the whole
// domain, the neighbours of the kernels' thresholds and table borders, denormals, huge arguments, poles and zeros, and for
// circular functions multiples of pi/2.
std::vector<Point> SamplePoints(const support::Export& entry, size_t count);

struct Interval {
  double low, high;
};
// Arguments of everyday size: what speed is measured at.
Interval OrdinaryRange(const support::Export& entry);

}  // namespace lum::accuracy
