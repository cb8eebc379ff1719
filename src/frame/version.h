// The version record of a layer.
#pragma once

#include "frame/layer.h"
#include "lumvm_types.h"

namespace lum::inline LUM_LAYER {

extern __attribute__((visibility("hidden"))) const LumLibraryVersion libraryVersion;

}  // namespace lum::inline LUM_LAYER
