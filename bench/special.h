// Arrays in which some elements have special arguments: what they cost against a scalar loop and other vector libraries over
// the same array.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data.h"
#include "support/library.h"

namespace lum::bench {

// Takes a name, arrays, their length and a loop over them.
using Taker = std::function<void(const std::string&, const std::shared_ptr<Data>&, int32_t,
                                 const std::function<void(const support::Arguments&)>&)>;

// Gives <function>_<type>/<length>/<who>/<class of arguments>/<share of the elements> of the named functions, of all when none
// is named: the general classes and the arguments that a function declares. The middle and low tags are given where all
// elements are special. Peers are those of the instructions, "k0" or "a2", and none where these are empty.
void TakeSpecial(const support::Library& library, const std::vector<std::string>& functions, std::string_view instructions,
                 const Taker& take);

}  // namespace lum::bench
