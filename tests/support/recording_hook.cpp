// Stands in the recording libraries in place of the empty hook, and exports what tests need to see of a library's inside.
#include "support/recording_hook.h"

#include "frame/element_hook.h"
#include "frame/entry_table.h"

#define LUM_TEST_EXPORT extern "C" __attribute__((visibility("default")))

namespace lum {
namespace {

HookObserver* installed_observer = nullptr;
void* installed_context = nullptr;

}  // namespace

void ElementHook(int32_t status, int32_t index, const void* src1, const void* src2, void* dst1, void* dst2, uint32_t* cell) {
  if (installed_observer != nullptr) installed_observer(installed_context, {status, index, src1, src2, dst1, dst2, cell});
}

const bool element_hook_is_empty = false;

LUM_TEST_EXPORT void lumTestInstallHook(HookObserver* observer, void* context) {
  installed_observer = observer;
  installed_context = context;
}

LUM_TEST_EXPORT const FunctionRecord* lumTestEntryTable() { return entryTable; }

}  // namespace lum
