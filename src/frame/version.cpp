#include "lumvm.h"

extern "C" const LumLibraryVersion* lumvmGetLibVersion(void) {
  static constexpr LumLibraryVersion version = {
      2026, 0, 0, 0xA7AD6EBC, {'k', '0'}, "lumVM AVX-512F/CD/BW/DQ/VL (k0)", "2026.0.0 (r0xa7ad6ebc)", "Mar 27 2026"};
  return &version;
}
