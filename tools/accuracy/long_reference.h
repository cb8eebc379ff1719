// Values in long double of the functions of binary64, made for going over hundreds of millions of arguments.
#pragma once

#include <cstddef>

#include "support/library.h"

namespace lum::accuracy {

// Error in units of binary64's last place that the values of real functions have next to nowhere: 8 units of the last place of
// the 64 bits of long double.
inline constexpr double long_reference_error = 0x1p-8;

// Gives the parts of f for all arguments; part[0] to part[3] are the real and imaginary parts of the first and of the second
// input (or of the parameter), as far as the function has them.
using LongReference = void (*)(size_t count, const double* const part[4], long double* value1, long double* value2);

// Null unless the export's type is 64f or 64fc, and where long double is no wider than binary64.
LongReference FindLongReference(const support::Export& entry);

}  // namespace lum::accuracy
