// The layer of vector operations that a source is compiled for. All code below the element types, the hook and the table of
// kernels stands in an inline namespace of its layer, lum::inline LUM_LAYER, so that one library can hold the code of several
// layers, and no function compiled for one processor is taken for that of another.
#pragma once

#if defined(LUM_CHOOSES_LAYER)  // the stubs of the library that holds several, and their table
#define LUM_LAYER chosen
#elif defined(LUM_AVX512)
#define LUM_LAYER avx512
#elif defined(LUM_AVX2)
#define LUM_LAYER avx2
#else
#define LUM_LAYER portable
#endif
