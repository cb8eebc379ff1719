#include "support/environment.h"

#include <cstdio>

namespace lum::test {

#if defined(__x86_64__)

Environment EnterEnvironment(const Environment& environment) {
  asm volatile("fninit" : : : "memory");
  if (environment.x87_flags) {
    // 0/0 for the invalid flag, 1/3 for precision; the stack is emptied again.
    const uint16_t three = 3;
    asm volatile("fldz\n\tfldz\n\tfdivrp\n\tfstp %%st(0)\n\tfld1\n\tfidivs %0\n\tfstp %%st(0)" : : "m"(three) : "memory");
  }
  asm volatile("fldcw %0" : : "m"(environment.x87_control) : "memory");
  asm volatile("ldmxcsr %0" : : "m"(environment.mxcsr) : "memory");
  return environment;
}

Environment LeaveEnvironment() {
  Environment environment;
  uint16_t x87_status = 0;
  asm volatile("stmxcsr %0" : "=m"(environment.mxcsr) : : "memory");
  asm volatile("fnstcw %0" : "=m"(environment.x87_control) : : "memory");
  asm volatile("fnstsw %0" : "=a"(x87_status) : : "memory");
  asm volatile("fninit" : : : "memory");
  asm volatile("ldmxcsr %0" : : "m"(default_mxcsr) : "memory");
  environment.x87_flags = (x87_status & 0xFF) != 0;
  return environment;
}

#else

Environment EnterEnvironment(const Environment&) { return {}; }
Environment LeaveEnvironment() { return {}; }

#endif

std::string Describe(const Environment& environment) {
  char text[80];
  std::snprintf(text, sizeof text, "MXCSR 0x%04X, x87 control 0x%04X, x87 flags %s", environment.mxcsr, environment.x87_control,
                environment.x87_flags ? "set" : "clear");
  return text;
}

}  // namespace lum::test
