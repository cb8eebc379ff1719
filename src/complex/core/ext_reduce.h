// Remainders of Extended arguments modulo pi/4, for the circular functions.
#pragma once

#include "complex/core/extended_pair.h"

namespace lum {

// x = count * pi/4 + remainder: count even and |remainder| <= pi/4 and a little, count modulo 8 for a huge x.
struct OctantRemainder {
  ExtendedPair remainder;
  int64_t count;
};

// Given x finite. Relative error of the remainder below 2^-80, or 2^-84 of a unit where the argument was huge.
OctantRemainder ReduceOctants(const Extended& x);

// The same with the remainder as two binary64 numbers; phase, an even number, is added to the count, which is returned.
int64_t ExtReducePi4(const Extended& x, int phase, Lum64f (&remainder)[2]);

}  // namespace lum
