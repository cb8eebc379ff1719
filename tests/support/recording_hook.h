// The hook of the recording libraries: it passes every call on to a function that the test has installed.
#pragma once

#include <cstdint>

namespace lum {

struct HookCall {
  int32_t status;
  int32_t index;
  const void* src1;
  const void* src2;
  void* dst1;
  void* dst2;
  uint32_t* cell;
};

using HookObserver = void(void* context, const HookCall& call);
// Exported as lumTestInstallHook; a null observer ends the observation.
using InstallHook = void(HookObserver* observer, void* context);

}  // namespace lum
