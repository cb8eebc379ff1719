// The floating-point environment of a call. A kernel computes with all exceptions masked, round to nearest and no flushing,
// whatever the caller has set, and of the flags that it raises none but inexact escapes. On processors without MXCSR the
// standard library's floating-point environment takes its place.
#pragma once

#include <cstdint>

#include "frame/vec.h"

#if defined(__x86_64__)
#define LUM_HAS_MXCSR 1
#else
#include <cfenv>
#define LUM_HAS_MXCSR 0
#endif

namespace lum::inline LUM_LAYER {

// Strict forces rounding, masks and flushing; mask-only leaves rounding and flushing as the caller set them.
enum class MxcsrForm { strict, mask_only };

// What happens to the x87 control word, and when: nothing; exceptions masked at the first refused block; exceptions masked at
// entry; at entry, exceptions masked, round to nearest, and 64-bit or 53-bit precision.
enum class X87Form { untouched, lazy, at_entry, extended_precision, double_precision };

struct Variant {
  MxcsrForm mxcsr;
  X87Form x87;
};
inline constexpr Variant common_variant{MxcsrForm::strict, X87Form::lazy};
inline constexpr Variant pure_vector_variant{MxcsrForm::strict, X87Form::untouched};
inline constexpr Variant x87_up_front_variant{MxcsrForm::strict, X87Form::at_entry};
inline constexpr Variant conj_variant{MxcsrForm::mask_only, X87Form::at_entry};
inline constexpr Variant scalar_core_variant{MxcsrForm::mask_only, X87Form::extended_precision};
inline constexpr Variant element_loop_variant{MxcsrForm::strict, X87Form::double_precision};

#if LUM_HAS_MXCSR

struct Environment {
  uint32_t mxcsr = 0;
  uint16_t x87_control = 0;
  bool mxcsr_changed = false;
  bool x87_changed = false;
  bool x87_prepared = false;
};

// The memory clobbers keep floating-point work, whose operands come from loads and whose results go to stores, between the
// writes of the registers.
LUM_INLINE uint32_t ReadMxcsr() {
  uint32_t value;
  asm volatile("stmxcsr %0" : "=m"(value) : : "memory");
  return value;
}
LUM_INLINE void WriteMxcsr(uint32_t value) { asm volatile("ldmxcsr %0" : : "m"(value) : "memory"); }
LUM_INLINE uint16_t ReadX87Control() {
  uint16_t value;
  asm volatile("fnstcw %0" : "=m"(value) : : "memory");
  return value;
}
LUM_INLINE void WriteX87Control(uint16_t value) { asm volatile("fldcw %0" : : "m"(value) : "memory"); }
// FNCLEX is slow and the flags are rarely set, so they are looked at first.
LUM_INLINE void ClearX87Flags() {
  uint16_t status;
  asm volatile("fnstsw %0" : "=a"(status) : : "memory");
  if ((status & 0x80FF) != 0) [[unlikely]] { asm volatile("fnclex" : : : "memory"); }
}

LUM_INLINE void ChangeX87Control(Environment& environment, uint16_t old_word, uint16_t new_word) {
  ClearX87Flags();
  WriteX87Control(new_word);
  environment.x87_control = old_word;
  environment.x87_changed = true;
}

// Masks the x87 exceptions. True when the control word had to be changed.
inline bool X87Prepare(Environment& environment) {
  const uint16_t word = ReadX87Control();
  environment.x87_prepared = true;
  if ((word & 0x3F) == 0x3F) return false;
  ChangeX87Control(environment, word, static_cast<uint16_t>(word | 0x3F));
  return true;
}

// Exceptions masked, round to nearest, and the given precision field.
inline void ForceX87Precision(Environment& environment, uint16_t target) {
  const uint16_t word = ReadX87Control();
  if ((word & 0x0F3F) == target) return;
  ChangeX87Control(environment, word, static_cast<uint16_t>((word & 0xF0C0) | target));
}

// Extended precision of the x87 unit for the lifetime of the object, whatever the caller has set: for lane routines of kernels
// that otherwise leave the precision alone.
class ExtendedPrecision {
 public:
  ExtendedPrecision() { ForceX87Precision(environment_, 0x033F); }
  ~ExtendedPrecision() {
    if (environment_.x87_changed) WriteX87Control(environment_.x87_control);
  }
  ExtendedPrecision(const ExtendedPrecision&) = delete;
  ExtendedPrecision& operator=(const ExtendedPrecision&) = delete;

 private:
  Environment environment_;
};

template <Variant variant> LUM_INLINE Environment Enter() {
  Environment environment;
  if constexpr (variant.x87 == X87Form::at_entry) X87Prepare(environment);
  if constexpr (variant.x87 == X87Form::extended_precision) ForceX87Precision(environment, 0x033F);
  if constexpr (variant.x87 == X87Form::double_precision) ForceX87Precision(environment, 0x023F);
  environment.mxcsr = ReadMxcsr();
  if constexpr (variant.mxcsr == MxcsrForm::strict) {
    if ((environment.mxcsr & 0xFFC0) != 0x1F80) {
      WriteMxcsr((environment.mxcsr & 0xFFFF003F) | 0x1F80);
      environment.mxcsr_changed = true;
    }
  } else if ((environment.mxcsr & 0x1F80) != 0x1F80) {
    WriteMxcsr(environment.mxcsr | 0x1F80);
    environment.mxcsr_changed = true;
  }
  return environment;
}

// A changed MXCSR is restored with the flags it had. An unchanged one loses the five flags other than precision, also those
// that the caller had set before the call: this asymmetry is deliberate, and it saves a write in the usual case.
LUM_INLINE void Leave(const Environment& environment) {
  ClearX87Flags();
  if (environment.x87_changed) WriteX87Control(environment.x87_control);
  if (environment.mxcsr_changed) {
    WriteMxcsr(environment.mxcsr);
    return;
  }
  const uint32_t now = ReadMxcsr();
#ifdef LUM_AVX512
  if ((now & 0x1F) != 0) WriteMxcsr(now & ~0x1Fu);
#else
  // Portable vector operations raise the precision flag where the suppressed ones do not.
  const uint32_t clean = (now & ~0x3Fu) | (environment.mxcsr & 0x20);
  if (now != clean) WriteMxcsr(clean);
#endif
}

#else  // the standard library's environment

struct Environment {
  std::fenv_t saved;
  bool x87_prepared = false;
};

inline bool X87Prepare(Environment& environment) {
  environment.x87_prepared = true;
  return false;
}
struct ExtendedPrecision {};

template <Variant variant> inline Environment Enter() {
  Environment environment;
  std::feholdexcept(&environment.saved);
  if constexpr (variant.mxcsr == MxcsrForm::strict) std::fesetround(FE_TONEAREST);
  return environment;
}

inline void Leave(const Environment& environment) { std::fesetenv(&environment.saved); }

#endif

}  // namespace lum::inline LUM_LAYER
