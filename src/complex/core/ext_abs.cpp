// Magnitudes.
#include "complex/core/extended_fields.h"

namespace lum::inline LUM_LAYER::complex {

void ExtAbs64(Lum64f& result, const Lum64f& x) {
  result = std::bit_cast<Lum64f>(std::bit_cast<uint64_t>(x) & ~(uint64_t{1} << 63));
}

// The arithmetic makes a NaN quiet.
void ExtAbs(Extended& result, const Extended& x) { result = x != x ? x + x : magnitude(x); }

}  // namespace lum::inline LUM_LAYER::complex
