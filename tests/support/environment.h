// The floating-point environment as a test sets it up around a call and reads it back: MXCSR and the x87 control and status
// words. On processors without them nothing is set and everything reads as zero.
#pragma once

#include <cstdint>
#include <string>

namespace lum::test {

inline constexpr uint32_t default_mxcsr = 0x1F80;
inline constexpr uint16_t default_x87_control = 0x037F;

struct Environment {
  uint32_t mxcsr = default_mxcsr;
  uint16_t x87_control = default_x87_control;
  bool x87_flags = false;  // any exception flag of the x87 unit is set
  bool operator==(const Environment&) const = default;
};

#if defined(__x86_64__)
inline constexpr bool has_environment = true;
#else
inline constexpr bool has_environment = false;
#endif

// Sets the environment. With x87_flags, the x87 unit's invalid and precision flags are raised: where the control word does not
// mask them, an exception is then pending, and the next waiting x87 instruction would trap. Returns what has been set.
Environment EnterEnvironment(const Environment& environment);
// Reads the environment and sets the default one.
Environment LeaveEnvironment();

std::string Describe(const Environment& environment);

}  // namespace lum::test
