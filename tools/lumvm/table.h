// Columns of CSV tables.
#pragma once

#include <memory>

#include "lumvm/input.h"

namespace lum::tool {

// The columns that the request names: one for each input of the function, or of complex numbers two, the parts.
std::unique_ptr<Input> OpenTable(std::unique_ptr<Bytes> bytes, const InputRequest& request);

}  // namespace lum::tool
