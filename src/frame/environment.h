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

// The bits of MXCSR, of the x87 control word and of the x87 status word.
inline constexpr uint32_t mxcsr_flags = 0x003F;  // of the six exceptions
inline constexpr uint32_t mxcsr_precision_flag = 0x0020;
inline constexpr uint32_t mxcsr_denormals_are_zero = 0x0040;
#ifdef LUM_COUNTS_ASSISTS
inline constexpr uint32_t mxcsr_masks = 0x1680;  // denormal operands and results raise exceptions where the caller lets them
#else
inline constexpr uint32_t mxcsr_masks = 0x1F80;  // of the six exceptions
#endif
inline constexpr uint32_t mxcsr_rounding = 0x6000;  // 0: to nearest
inline constexpr uint32_t mxcsr_flush_to_zero = 0x8000;
inline constexpr uint16_t x87_masks = 0x003F;
inline constexpr uint16_t x87_precision = 0x0300;
inline constexpr uint16_t x87_double = 0x0200;
inline constexpr uint16_t x87_extended = 0x0300;
inline constexpr uint16_t x87_rounding = 0x0C00;
inline constexpr uint16_t x87_status_flags = 0x80FF;  // exceptions, stack fault, their summary, busy

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
  if ((status & x87_status_flags) != 0) [[unlikely]] { asm volatile("fnclex" : : : "memory"); }
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
  if ((word & x87_masks) == x87_masks) return false;
  ChangeX87Control(environment, word, static_cast<uint16_t>(word | x87_masks));
  return true;
}

// Exceptions masked, round to nearest, and the given precision field.
inline void ForceX87Precision(Environment& environment, uint16_t target) {
  const uint16_t word = ReadX87Control();
  constexpr uint16_t fields = x87_masks | x87_precision | x87_rounding;
  if ((word & fields) == target) return;
  ChangeX87Control(environment, word, static_cast<uint16_t>((word & ~fields) | target));
}

// Extended precision of the x87 unit for the lifetime of the object, whatever the caller has set: for lane routines of kernels
// that otherwise leave the precision alone.
class ExtendedPrecision {
 public:
  ExtendedPrecision() { ForceX87Precision(environment_, x87_masks | x87_extended); }
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
  if constexpr (variant.x87 == X87Form::extended_precision) ForceX87Precision(environment, x87_masks | x87_extended);
  if constexpr (variant.x87 == X87Form::double_precision) ForceX87Precision(environment, x87_masks | x87_double);
  environment.mxcsr = ReadMxcsr();
  if constexpr (variant.mxcsr == MxcsrForm::strict) {
    constexpr uint32_t fields = mxcsr_masks | mxcsr_rounding | mxcsr_denormals_are_zero | mxcsr_flush_to_zero;
    if ((environment.mxcsr & fields) != mxcsr_masks) {
      WriteMxcsr((environment.mxcsr & ~fields) | mxcsr_masks);
      environment.mxcsr_changed = true;
    }
  } else if ((environment.mxcsr & mxcsr_masks) != mxcsr_masks) {
    WriteMxcsr(environment.mxcsr | mxcsr_masks);
    environment.mxcsr_changed = true;
  }
  return environment;
}

// A changed MXCSR is restored with the flags it had. An unchanged one loses the five flags other than precision, also those
// that the caller had set before the call: this asymmetry is deliberate. Where the precision flag is known, the register is
// written without being read: reading it takes some processors as long as a short call's vectors.
LUM_INLINE void Leave(const Environment& environment) {
  ClearX87Flags();
  if (environment.x87_changed) WriteX87Control(environment.x87_control);
  if (environment.mxcsr_changed) {
    WriteMxcsr(environment.mxcsr);
    return;
  }
  constexpr uint32_t other_flags = mxcsr_flags & ~mxcsr_precision_flag;
#ifdef LUM_AVX512
  if ((environment.mxcsr & mxcsr_precision_flag) == 0) {
    const uint32_t now = ReadMxcsr();
    if ((now & other_flags) != 0) WriteMxcsr(now & ~other_flags);
    return;
  }
#endif
  // Set before the call it stays set. In the other layers it is as it was: their vector operations raise it where the
  // suppressed ones do not.
  WriteMxcsr(environment.mxcsr & ~other_flags);
}

// Whether the caller's arithmetic rounds to nearest and flushes nothing.
inline bool RoundsToNearestOnly() {
  return (ReadMxcsr() & (mxcsr_rounding | mxcsr_flush_to_zero | mxcsr_denormals_are_zero)) == 0;
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
struct [[maybe_unused]] ExtendedPrecision {};  // an object of it is made for its effect

template <Variant variant> inline Environment Enter() {
  Environment environment;
  std::feholdexcept(&environment.saved);
  if constexpr (variant.mxcsr == MxcsrForm::strict) std::fesetround(FE_TONEAREST);
  return environment;
}

inline void Leave(const Environment& environment) { std::fesetenv(&environment.saved); }

inline bool RoundsToNearestOnly() {
#if defined(__aarch64__)
  uint64_t control;
  asm volatile("mrs %0, fpcr" : "=r"(control) : : "memory");
  constexpr uint64_t rounding_and_flushing = 0x01C00000;
  if ((control & rounding_and_flushing) != 0) return false;
#endif
  return std::fegetround() == FE_TONEAREST;
}

#endif

}  // namespace lum::inline LUM_LAYER
