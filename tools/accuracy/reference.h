// Exact values of the library's functions by MPFR and MPC, at a precision far beyond the type's.
#pragma once

#include <mpfr.h>

#include "support/library.h"

namespace lum::accuracy {

// An element's arguments as doubles, which hold every type's exactly: re and im of the first and of the second input (or of the
// scalar parameter); real arguments have im = 0.
struct Point {
  double re1 = 0, im1 = 0, re2 = 0, im2 = 0;
};

// Precision of the references, in bits.
inline constexpr mpfr_prec_t precision = 160;

// Gives the result's parts: one for a real result, two for a complex one or for two outputs. The variables have `precision`
// bits.
using Reference = void (*)(mpfr_ptr part1, mpfr_ptr part2, const Point& point);

// Null when the function has none yet.
Reference FindReference(const support::Export& entry);

// Parts of a result.
inline int Parts(const support::Export& entry) { return support::IsComplex(entry.output) || entry.outputs() == 2 ? 2 : 1; }

}  // namespace lum::accuracy
