// Arguments of the circular functions that try their reduction.
#pragma once

#include "complex/extended.h"

namespace lum::test {

// The numbers that lie closest to multiples of pi/2 among those with the exponents of a range: the denominators m of the
// continued fraction of 2^e / (pi/2) that fit 64 bits make m 2^e such a number.
Numbers NearMultiplesOfHalfPi(int first_exponent, int last_exponent, int step);

// Every rung of the circular functions' ladder up to the largest number.
Numbers CircularArguments();

}  // namespace lum::test
