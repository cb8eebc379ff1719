#include "frame/entry_table.h"

#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {

namespace {
struct Costs {
  Lum32f low, mid, high;
};
#define LUM_COSTS(function, type, low, mid, high) constexpr Costs costs_##function##_##type{low, mid, high};
#include "frame/costs.def"
}  // namespace

#define LUM_ROW(function, type, shape, exported, kernel_low, kernel_mid, kernel_high) \
  {{.shape##_##type = kernel_mid},                                                    \
   {.shape##_##type = kernel_high},                                                   \
   {.shape##_##type = kernel_low},                                                    \
   costs_##function##_##type.mid,                                                     \
   costs_##function##_##type.high,                                                    \
   costs_##function##_##type.low,                                                     \
   {}},

constinit EntryTable entryTable = {
#include "frame/catalogue.def"
};

}  // namespace lum::inline LUM_LAYER
