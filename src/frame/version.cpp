// The record that lumvmGetLibVersion gives. The numbers and the revision are the same in all libraries; the name says which one
// it is.
#include "frame/version.h"

namespace lum::inline LUM_LAYER {

constinit const LumLibraryVersion libraryVersion = {2026,        // major
                                                    0,           // minor
                                                    0,           // patch
                                                    0xA7AD6EBC,  // the revision of the interface, which the text repeats
#if defined(LUM_AVX512)
                                                    {'k', '0'},
                                                    "lumVM AVX-512F/CD/BW/DQ/VL (k0)",
#elif defined(LUM_AVX2)
                                                    {'a', '2'},
                                                    "lumVM AVX2/FMA (a2)",
#else
                                                    {'p', '0'},
                                                    "lumVM portable (p0)",
#endif
                                                    "2026.0.0 (r0xa7ad6ebc)",
                                                    "Mar 27 2026"};

}  // namespace lum::inline LUM_LAYER
