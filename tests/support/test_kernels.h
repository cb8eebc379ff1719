// What the test kernels of test_kernels.def compute, for the tests that know it. A lane is refused when its first component is
// negative (with a parameter: when the element is below it). The lane routine adds 1000 to the first component of what the
// vector path gave, and returns a status by the first component of the element: overflow from -2 (exclusive) to -1, underflow
// from -3 to -2, singularity from -4 to -3, domain from -5 to -4, none elsewhere.
#pragma once

#include <cstdint>

#include "lumvm_types.h"

namespace lum {

// What a probe of a frame variant saw: in the vector path, and in the lane routine of a refused element.
struct EnvironmentSeen {
  uint32_t vector_mxcsr = 0;
  uint32_t routine_mxcsr = 0;
  uint16_t vector_x87 = 0;
  uint16_t routine_x87 = 0;
};

enum class ProbedVariant : int32_t { common, pure_vector, x87_up_front, conj, scalar_core, element_loop };

// Exported as lumTestVariant: a kernel x + 1 in that variant's frame, which refuses negative elements; its lane routine raises
// flags of both units.
using ProbeVariant = LumStatus(ProbedVariant variant, const float* src, float* dst, int32_t len, EnvironmentSeen* seen);

}  // namespace lum
