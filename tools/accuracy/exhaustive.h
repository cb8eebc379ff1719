// The error of a one-input 32f function over all 2^32 arguments.
#pragma once

#include "accuracy/measure.h"

namespace lum::accuracy {

// A binary64 value of the function whose relative error is below 2^-45, or null where there is none. It settles all but a few
// arguments; MPFR settles these.
using CheapReference = double (*)(float x);
CheapReference FindCheapReference(const support::Export& entry);

// All arguments, on all processors, with a progress line on stderr. The export is a one-input 32f function with a cheap
// reference.
Accuracy MeasureAll(const support::Library& library, const support::Export& entry);

}  // namespace lum::accuracy
