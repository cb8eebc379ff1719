#include "frame/entry_table.h"

#include "frame/kernels.h"

namespace lum {

#define LUM_ROW(function, type, shape, exported, mid, high, low, cost_mid, cost_high, cost_low) \
  {{.shape##_##type = mid}, {.shape##_##type = high}, {.shape##_##type = low}, cost_mid, cost_high, cost_low, {}},

constinit EntryTable entryTable = {
#include "frame/catalogue.def"
};

}  // namespace lum
