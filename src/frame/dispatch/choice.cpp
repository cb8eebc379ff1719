// The table of liblumvm, which holds the code of several layers: the stubs jump through it to the kernels of the layer that was
// chosen when the library was loaded. It starts with functions that choose and then call on, for callers that come before the
// library's constructor, such as constructors of other libraries.
#include <cstddef>
#include <iterator>

#include "frame/dispatch/processor.h"
#include "frame/entry_table.h"
#include "lumvm.h"

namespace lum {

// The tables and version records of the layers, in their own objects.
#define LUM_DECLARE_LAYER(layer)                                                       \
  namespace layer {                                                                    \
  extern __attribute__((visibility("hidden"))) EntryTable entryTable;                  \
  extern __attribute__((visibility("hidden"))) const LumLibraryVersion libraryVersion; \
  }
LUM_DECLARE_LAYER(avx512)
LUM_DECLARE_LAYER(avx2)
LUM_DECLARE_LAYER(portable)

namespace {

struct LayerCode {
  Layer layer;
  const EntryTable* table;
  const LumLibraryVersion* version;
};
// Those that are linked in, the fastest first.
constexpr LayerCode layers[] = {
#ifdef LUM_HAS_AVX512
    {Layer::avx512, &avx512::entryTable, &avx512::libraryVersion},
#endif
#ifdef LUM_HAS_AVX2
    {Layer::avx2, &avx2::entryTable, &avx2::libraryVersion},
#endif
#ifdef LUM_HAS_PORTABLE
    {Layer::portable, &portable::entryTable, &portable::libraryVersion},
#endif
};

// Without the C library, which nothing else here needs.
bool AreEqual(const char* a, const char* b) {
  while (*a != '\0' && *a == *b) {
    ++a;
    ++b;
  }
  return *a == *b;
}

const LayerCode* current = nullptr;

const LayerCode& Best() {
  for (const LayerCode& code : layers) {
    if (ProcessorRuns(code.layer)) return code;
  }
  return layers[std::size(layers) - 1];
}

// Fills the table. Several threads may do so at the same time: they write the same values, a pointer at once.
void Take(const LayerCode& code) {
  for (int row = 0; row < row_count; ++row) {
    FunctionRecord& to = chosen::entryTable[row];
    FunctionRecord from = (*code.table)[row];
    __atomic_store(&to.entryMid, &from.entryMid, __ATOMIC_RELAXED);
    __atomic_store(&to.entryHigh, &from.entryHigh, __ATOMIC_RELAXED);
    __atomic_store(&to.entryLow, &from.entryLow, __ATOMIC_RELAXED);
    to.costMid = from.costMid;
    to.costHigh = from.costHigh;
    to.costLow = from.costLow;
  }
  __atomic_store_n(&current, &code, __ATOMIC_RELEASE);
}

const LayerCode& Current() {
  const LayerCode* code = __atomic_load_n(&current, __ATOMIC_ACQUIRE);
  if (code == nullptr) Take(*(code = &Best()));
  return *code;
}

[[gnu::constructor]] void ChooseWhenLoaded() { Current(); }

// The first call through a slot, when it comes before the choice.
template <class Signature> struct FirstCall;
template <class... Parameters> struct FirstCall<LumStatus(Parameters...)> {
  template <int row, KernelPointer FunctionRecord::*slot, LumStatus (*KernelPointer::*member)(Parameters...)>
  static LumStatus Through(Parameters... parameters) {
    Current();
    return (chosen::entryTable[row].*slot.*member)(parameters...);
  }
};

}  // namespace

#define LUM_FIRST_CALL(function, type, shape, slot)                                                                   \
  {                                                                                                                   \
    .shape##_##type = FirstCall<signature::shape<Lum##type>>::Through<Row_##function##_##type, &FunctionRecord::slot, \
                                                                      &KernelPointer::shape##_##type>                 \
  }
#define LUM_ROW(function, type, shape, ...)          \
  {LUM_FIRST_CALL(function, type, shape, entryMid),  \
   LUM_FIRST_CALL(function, type, shape, entryHigh), \
   LUM_FIRST_CALL(function, type, shape, entryLow),  \
   0,                                                \
   0,                                                \
   0,                                                \
   {}},

constinit EntryTable chosen::entryTable = {
#include "frame/catalogue.def"
};

}  // namespace lum

extern "C" {

const LumLibraryVersion* lumvmGetLibVersion(void) { return lum::Current().version; }

const char* lumvmGetLayer(void) { return NameOf(lum::Current().layer); }

int lumvmSetLayer(const char* name) {
  if (name == nullptr) {
    lum::Take(lum::Best());
    return 0;
  }
  for (const lum::LayerCode& code : lum::layers) {
    if (lum::AreEqual(name, NameOf(code.layer)) && lum::ProcessorRuns(code.layer)) {
      lum::Take(code);
      return 0;
    }
  }
  return -1;
}

}  // extern "C"
