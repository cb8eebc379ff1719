// A table without kernels in the place of the libraries', so that the exported stubs alone make a library with debugging
// information, from which the binary interface is read.
#include "frame/entry_table.h"

namespace lum::inline LUM_LAYER {

constinit EntryTable entryTable = {};

}  // namespace lum::inline LUM_LAYER
