/* lumVM: elementwise mathematical functions over arrays.
 *
 * lums<Function>_<type>_<tag>(src, dst, len) applies a function to len elements and returns a status. The type is 32f or 64f
 * (binary32, binary64) or 32fc or 64fc (complex: pairs re, im in adjacent memory). The tag is the number of correct bits of the
 * significand that the function guarantees: A11, A21, A24 for the 32-bit types, A26, A50, A53 for the 64-bit ones. At A24 and
 * A53 the error of a real function is below one unit in the last place (ulp), but for what is said at Tanh. Fewer bits are
 * faster. Pow and Powx do not keep their bits everywhere: those of complex numbers lose digits as the exponent times the
 * logarithm grows, and Powx with the exponents -2, -3 and -4 next to the ends of the range.
 *
 * For every function:
 *   - Arrays need no alignment. dst may be the same array as a source; partly overlapping arrays are not provided for.
 *   - A len of zero or less returns lumStsSizeErr, a null array lumStsNullPtrErr, and nothing is touched.
 *   - A positive status is a warning: every element has been written, and the status is that of the last element that had
 *     something to report. Every function can return lumStsOk, lumStsSizeErr and lumStsNullPtrErr; others are listed with it.
 *   - An element's result depends on nothing but its argument: neither on its position, nor on the caller's rounding mode,
 *     flush-to-zero setting or exception masks, which are as before after the call. The exception: of the complex functions
 *     whose tags are one function, those of 32fc, and Pow and Powx of both types, round and flush as the caller has it set,
 *     and some of 64fc may take denormal arguments for zero. No exception flag but inexact is raised; of the caller's sticky
 *     flags all but that one may be found cleared.
 *   - All functions are reentrant and thread-safe, allocate nothing and keep no state.
 * Relative cost figures rank the functions and tags: times of an element of a long array with AVX-512, in one unit. Those of Acos
 * 32fc, Powx 64fc, Sqrt 64fc A53 and Exp 64fc A53 are of an element that goes through scalar code of extended precision; in an
 * array it takes between a fifteenth and a third of that.
 *
 * The types and statuses are in lumvm_types.h, the functions with their domains, special values and statuses in
 * lumvm_functions.h. */
#ifndef LUMVM_H
#define LUMVM_H

#include "lumvm_functions.h"
#include "lumvm_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The version of the library, a constant record that the caller must not change or free. Never fails. */
LUM_API const LumLibraryVersion* lumvmGetLibVersion(void);

/* The following two are exported by liblumvm alone, which holds the code for several kinds of processors ("layers") and takes the
 * fastest one that this processor and its operating system run, when it is loaded. All layers give the same results. */

/* The layer that runs: "avx512", "avx2" or "portable". Never fails. */
LUM_API const char* lumvmGetLayer(void);

/* Takes another layer, to repeat what another machine does, or with NULL the fastest one again. Returns 0, or -1 where the library
 * has no such layer or this processor cannot run it, and then nothing changes. No other function of the library may run at the
 * same time. */
LUM_API int lumvmSetLayer(const char* layer);

#ifdef __cplusplus
}
#endif

#endif
