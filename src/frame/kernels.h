// Declarations of all kernels, from the catalogue. A kernel that serves several levels is declared once for each.
#pragma once

#include "frame/entry_table.h"

namespace lum::inline LUM_LAYER {

#define LUM_ROW(function, type, shape, exported, low, mid, high) signature::shape<Lum##type> low, mid, high;
#include "frame/catalogue.def"
#undef LUM_ROW

}  // namespace lum::inline LUM_LAYER
