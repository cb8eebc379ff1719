#include "frame/dispatch/processor.h"

#include <cstdint>

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace lum {

#if defined(__x86_64__)

namespace {

struct Registers {
  unsigned a = 0, b = 0, c = 0, d = 0;
};
Registers Cpuid(unsigned leaf) {
  Registers r;
  __get_cpuid_count(leaf, 0, &r.a, &r.b, &r.c, &r.d);  // all zero where there is no such leaf
  return r;
}

// The parts of the extended state that the operating system saves. Given a processor with OSXSAVE.
uint32_t SavedState() {
  uint32_t low, high;
  asm("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return low;
}

constexpr bool HasAll(unsigned word, unsigned bits) { return (word & bits) == bits; }

}  // namespace

bool ProcessorRuns(Layer layer) {
  if (layer == Layer::portable) return true;
  constexpr unsigned osxsave = 1u << 27, avx = 1u << 28, fma = 1u << 12;             // leaf 1, ecx
  constexpr unsigned avx2 = 1u << 5, bmi1 = 1u << 3, bmi2 = 1u << 8;                 // leaf 7, ebx
  constexpr unsigned avx512 = 1u << 16 | 1u << 17 | 1u << 28 | 1u << 30 | 1u << 31;  // leaf 7, ebx: F DQ CD BW VL
  constexpr unsigned lzcnt = 1u << 5;                                                // leaf 0x80000001, ecx
  constexpr uint32_t vector_state = 0x6, avx512_state = 0xE6;
  if (!HasAll(Cpuid(1).c, osxsave | avx | fma)) return false;
  const unsigned features = Cpuid(7).b;
  if (!HasAll(features, avx2 | bmi1 | bmi2) || !HasAll(Cpuid(0x80000001).c, lzcnt)) return false;
  if (layer == Layer::avx2) return HasAll(SavedState(), vector_state);
  return HasAll(features, avx512) && HasAll(SavedState(), avx512_state);
}

#else

bool ProcessorRuns(Layer layer) { return layer == Layer::portable; }

#endif

}  // namespace lum
