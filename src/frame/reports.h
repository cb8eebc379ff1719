// The statuses that lanes of a vector report.
#pragma once

#include <cstdint>

#include "frame/types.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER {

// Lanes that report, by status; at most one for each lane.
template <class T> struct Reports { Mask<T> domain{}, singularity{}, overflow{}, underflow{}; };
// Reports as bits, 16 lanes for each status, in one word.
struct ReportBits {
  uint64_t word = 0;

  LUM_INLINE ReportBits Among(uint32_t lanes) const { return {word & lanes * uint64_t{0x0001000100010001}}; }
  LUM_INLINE uint32_t Reporting() const {
    const uint64_t pairs = word | word >> 32;
    return (pairs | pairs >> 16) & 0xFFFF;
  }
  LumStatus Of(int lane) const {
    constexpr LumStatus statuses[] = {lumStsDomain, lumStsSingularity, lumStsOverflow, lumStsUnderflow};
    for (int i = 0; i < 4; ++i) {
      if ((word >> (16 * i + lane) & 1) != 0) return statuses[i];
    }
    return lumStsOk;
  }
};
template <class T> LUM_INLINE ReportBits BitsOf(const Reports<T>& r) {
  const auto word = [](Mask<T> m) __attribute__((always_inline)) { return uint64_t{to_bits(m)}; };
  return {word(r.domain) | word(r.singularity) << 16 | word(r.overflow) << 32 | word(r.underflow) << 48};
}

}  // namespace lum::inline LUM_LAYER
