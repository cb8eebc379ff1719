// The commands of the tool. Each throws InputError for what the user got wrong and returns the exit code otherwise.
#pragma once

#include <string>
#include <vector>

#include "lumvm/numbers.h"

namespace lum::tool {

struct ApplyOptions {
  std::string function;
  std::string type;
  std::string tag;                 // empty: the highest
  std::vector<std::string> files;  // one or, for two inputs, one or two
  std::string value;               // the scalar parameter, as text
  std::string output = "-";
  std::string target;  // k0, a2, p0, or empty: the first that the processor runs
  bool binary = false;
  Notation notation = Notation::decimal;
};

int List();
int Info(const std::string& function);
int Apply(const ApplyOptions& options);
// Results at all tags side by side with their distance from the highest, and the speed of each against a scalar loop.
int Compare(const ApplyOptions& options);

}  // namespace lum::tool
