// The exported functions: each is one jump through its slot, with all arguments left as they are, but
// for a parameter too large for a register.
#include "frame/catalogue_names.h"
#include "frame/entry_table.h"
#include "frame/version.h"
#include "lumvm.h"

using lum::entryTable;

namespace {

// How a kernel takes its parameter: 16 bytes by the address of the stub's own copy, which no array of the caller overlaps.
template <class T> T AsPassed(const T& value) { return value; }
const Lum64fc* AsPassed(const Lum64fc& copy) { return &copy; }

}  // namespace

extern "C" {

#define LUM_STUB_OneInput(name, type, record, slot)                     \
  LumStatus name(const Lum##type* src, Lum##type* dst, int32_t len) {   \
    return entryTable[lum::record].slot.OneInput_##type(src, dst, len); \
  }
#define LUM_STUB_TwoInputs(name, type, record, slot)                                          \
  LumStatus name(const Lum##type* src1, const Lum##type* src2, Lum##type* dst, int32_t len) { \
    return entryTable[lum::record].slot.TwoInputs_##type(src1, src2, dst, len);               \
  }
#define LUM_STUB_TwoOutputs(name, type, record, slot)                                   \
  LumStatus name(const Lum##type* src, Lum##type* dst1, Lum##type* dst2, int32_t len) { \
    return entryTable[lum::record].slot.TwoOutputs_##type(src, dst1, dst2, len);        \
  }
#define LUM_STUB_ScalarParameter(name, type, record, slot)                                      \
  LumStatus name(const Lum##type* src, Lum##type value, Lum##type* dst, int32_t len) {          \
    return entryTable[lum::record].slot.ScalarParameter_##type(src, AsPassed(value), dst, len); \
  }
#define LUM_STUB_ToReal(name, type, record, slot)                                   \
  LumStatus name(const Lum##type* src, decltype(Lum##type::re)* dst, int32_t len) { \
    return entryTable[lum::record].slot.ToReal_##type(src, dst, len);               \
  }
#define LUM_STUB_ToComplex(name, type, record, slot)                                \
  LumStatus name(const decltype(Lum##type::re)* src, Lum##type* dst, int32_t len) { \
    return entryTable[lum::record].slot.ToComplex_##type(src, dst, len);            \
  }
#define LUM_STUB(name, function, type, shape, tag, slot) LUM_STUB_##shape(name, type, Row_##function##_##type, slot)
#define LUM_ROW(function, type, shape, exported, ...) LUM_EXPORTS_##exported(LUM_STUB, function, type, shape)
#include "frame/catalogue.def"

#ifndef LUM_CHOOSES_LAYER
const LumLibraryVersion* lumvmGetLibVersion(void) { return &lum::libraryVersion; }
#endif

}  // extern "C"
