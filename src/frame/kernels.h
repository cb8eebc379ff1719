// Declarations of all kernels, from the catalogue. A kernel that serves several levels is declared once for each.
#pragma once

#include "frame/entry_table.h"

namespace lum {

#define LUM_ROW(function, type, shape, exported, mid, high, low, ...) signature::shape<Lum##type> mid, high, low;
#include "frame/catalogue.def"
#undef LUM_ROW

}  // namespace lum
