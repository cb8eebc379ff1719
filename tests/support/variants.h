// Where functions differ on purpose in what they do with the floating-point environment.
#pragma once

#include <string>
#include <string_view>

#include "support/declarations.h"
#include "support/environment.h"

namespace lum::test {

// Computed element by element through a scalar core, in the x87 unit's extended precision.
using support::HasScalarCore;

// Masks the exceptions and leaves the caller's rounding and flushing alone.
inline bool IsMaskOnly(const support::Export& entry) { return entry.function == "Conj" || HasScalarCore(entry); }

// The caller's rounding and flushing take part in the result, in the narrowing to 32-bit components and in sums of doubles.
inline bool FollowsCallersRounding(const support::Export& entry) { return HasScalarCore(entry); }

// Refuses a lane whose difference of products cancels, which ordinary arguments may.
inline bool RefusesCancellation(const support::Export& entry) {
  const bool is_product = entry.is_complex() && (entry.function == "Mul" || entry.function == "MulByConj");
  return is_product && entry.tier == support::Tier::low;
}

// Computes ordinary arguments with plain operations, which raise the precision flag.
inline bool RaisesPrecision(const support::Export& entry) { return HasScalarCore(entry) || RefusesCancellation(entry); }

// Rounding to nearest and no flushing.
inline bool IsRoundingAndFlushingDefault(const Environment& environment) { return (environment.mxcsr & 0xE040) == 0; }

// Whether the kernel finds MXCSR as it needs it, and then neither saves nor restores it.
inline bool IsAsNeeded(const support::Export& entry, uint32_t mxcsr) {
  return (mxcsr & (IsMaskOnly(entry) ? 0x1F80u : 0xFFC0u)) == 0x1F80u;
}

// Whether a call left behind what it must: the caller's environment, with the x87 unit's flags cleared. In an MXCSR that was
// not saved, all flags but precision are lost, on purpose, and lane routines may have raised that one. Gives the difference in
// words, or nothing.
inline std::string EnvironmentComplaint(const support::Export& entry, const Environment& entered, Environment left) {
  constexpr uint32_t precision_flag = 0x20, other_flags = 0x1F;
  Environment expected = entered;
  expected.x87_flags = false;
  if (IsAsNeeded(entry, entered.mxcsr)) {
    expected.mxcsr &= ~other_flags;
    left.mxcsr &= ~precision_flag | (expected.mxcsr & precision_flag);
  }
  return left == expected ? "" : "left behind " + Describe(left) + ", expected " + Describe(expected);
}

}  // namespace lum::test
