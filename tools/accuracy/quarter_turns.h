// The numbers that are the hardest to reduce modulo pi/2.
#pragma once

#include <vector>

namespace lum::accuracy {

// For every binade from [1, 2) on, the numbers of binary32 or binary64 that lie closest to a multiple of pi/2, above and below
// one; where these multiples are all even or all odd, also numbers as close to the others as can be, or nearly so. Positive
// numbers only. In the largest binades a sine or cosine there is as small as 2^-61.
const std::vector<double>& NearestToQuarterTurns(bool is_32bit);

}  // namespace lum::accuracy
