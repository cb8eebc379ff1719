// The properties of many functions, the file that they go to, and the comparison with it.
#pragma once

#include <string>
#include <vector>

#include "accuracy/properties.h"
#include "accuracy/threads.h"

namespace lum::accuracy {

struct PropertyRequest {
  PropertyLimits limits;
  std::string csv;      // results file to update
  std::string compare;  // results file to compare with
  unsigned threads = ProcessorCount();
};

// Finds the properties of the groups' exports, on so many threads. Where a file to compare with is named, what it says has to
// hold: no violation where it has none, none larger than its largest, as many cases of exact values as there. False, with a
// line for each, where it does not; exports that the file lacks count, too.
bool ReportProperties(const support::Library& library, const std::vector<std::vector<const support::Export*>>& groups,
                      const PropertyRequest& request);

}  // namespace lum::accuracy
