// The loops that a user would write with the standard library, one call an element: what a vector library is measured against.
#pragma once

#include "support/library.h"

namespace lum::support {

// A scalar loop for the function and type, or null where the standard library has no such function.
using ScalarLoop = void (*)(const Arguments&);
ScalarLoop FindScalarLoop(const Export& entry);

}  // namespace lum::support
