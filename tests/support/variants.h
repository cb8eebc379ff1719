// Where functions differ on purpose in what they do with the floating-point environment.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "support/library.h"

namespace lum::test {

// Computed element by element through a scalar core, in the x87 unit's extended precision.
inline bool HasScalarCore(const support::Export& entry) {
  constexpr std::array<std::string_view, 15> functions = {"Acos",  "Acosh", "Asin", "Asinh", "Atan", "Atanh", "Cos", "Cosh",
                                                          "Log10", "Pow",   "Powx", "Sin",   "Sinh", "Tan",   "Tanh"};
  if (!entry.is_complex()) return false;
  return std::ranges::find(functions, entry.function) != functions.end() || entry.name == "lumsSqrt_64fc_A53";
}

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

}  // namespace lum::test
