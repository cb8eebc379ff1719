// The error of functions of one 32f input over all 2^32 arguments.
#pragma once

#include <span>
#include <vector>

#include "accuracy/measure.h"

namespace lum::accuracy {

// The exports are one function's at several tags and have a cheap reference, whose values serve them all: these settle all but
// a few arguments, and MPFR settles the rest, so that every largest error is one by MPFR. Where two errors differ by no more
// than 2^-20 ulp, twice the cheap reference's own, either may stand for the largest. On all processors, with a progress line on
// stderr. The results are in the order of the exports.
std::vector<Accuracy> MeasureAll(const support::Library& library, std::span<const support::Export* const> exports);

}  // namespace lum::accuracy
