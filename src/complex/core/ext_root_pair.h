// The square root with its rest.
#pragma once

#include "complex/core/extended_pair.h"

namespace lum::inline LUM_LAYER::complex {

// sqrt(x.head + x.tail), to twice the digits by one step of Newton's iteration. Given x.head > 0, normal and far from both ends
// of the range.
inline ExtendedPair RootPair(ExtendedPair x) {
  Extended root = 0;
  ExtSqrt(root, x.head);
  const ExtendedPair square = two_product(root, root);
  return {root, (((x.head - square.head) - square.tail) + x.tail) / (2 * root)};
}

}  // namespace lum::inline LUM_LAYER::complex
