// Arrays in which some elements have special arguments: what they cost against a scalar loop and other vector libraries over
// the same array.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/library.h"

namespace lum::bench {

// Benchmarks <function>_<type>/<length>/<who>/<class of arguments>/<share of the elements> of the named functions, of all when
// none is named: the general classes and the arguments that a function declares. The middle and low tags run where all elements
// are special. Peers are those of the instructions, "k0" or "a2".
void RegisterSpecial(const support::Library& library, const std::vector<std::string>& functions, std::string_view instructions);

}  // namespace lum::bench
