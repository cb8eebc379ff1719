// The seam for an element-level error policy.
#pragma once

#include <cstdint>

namespace lum {

// Called after an element with a non-zero status has been written to the caller's array; the element is read back afterwards.
// index counts from 0; the four pointers are the caller's arrays (a missing second array repeats the first); cell is a 32-bit
// zero-initialised word that belongs to the kernel. Does nothing in this library.
void ElementHook(int32_t status, int32_t index, const void* src1, const void* src2, void* dst1, void* dst2, uint32_t* cell);

// True where the hook does nothing: elements whose results and statuses are known in vectors then report without the calls.
extern const bool element_hook_is_empty;

}  // namespace lum
