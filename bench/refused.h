// Arrays in which some elements have arguments that the vector paths refuse: what a lane routine costs against a scalar loop
// over the same array.
#pragma once

#include <string>
#include <vector>

#include "support/library.h"

namespace lum::bench {

// Benchmarks <function>_<type>/<length>/<tag or scalar>/<what is refused>/<share of the elements> of the named functions, of
// all when none is named. Functions whose vector paths take every argument have none.
void RegisterRefused(const support::Library& library, const std::vector<std::string>& functions);

}  // namespace lum::bench
