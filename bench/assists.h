// The operations for which many processors take a microcode assist of some 150 cycles: those that meet or make a denormal
// number. They are counted by their exceptions, on any processor, in a library built with LUM_COUNT_ASSISTS.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "data.h"

namespace lum::bench {

// Calls once and prints <name>|<elements>|<address in the library>:<count>|..., and nothing where there is none. A vector
// operation counts once, whatever its lanes.
void PrintAssists(const std::string& name, const std::shared_ptr<Data>& data, int32_t len,
                  const std::function<void(const support::Arguments&)>& call);

}  // namespace lum::bench
