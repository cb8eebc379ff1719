// The wide search over many functions at a time, and the file that its findings go to.
#pragma once

#include <string>
#include <vector>

#include "accuracy/hunt.h"
#include "accuracy/threads.h"

namespace lum::accuracy {

struct HuntRequest {
  HuntLimits limits;
  bool with_peers = false;
  std::string csv;     // results file to update
  std::string curves;  // folder for the error over the argument, a file an export
  unsigned threads = ProcessorCount();
};

// Searches the groups, each the exports of one function and type, a group a thread. Prints a line a subject
// and, where a file is named, puts it there in place of the former one.
void HuntGroups(const support::Library& library, const std::vector<std::vector<const support::Export*>>& groups,
                const HuntRequest& request);

}  // namespace lum::accuracy
