// The two ways in which a command fails. Either is one plain line for stderr; the exit code tells them apart.
#pragma once

#include <stdexcept>

namespace lum::tool {

// What the user got wrong in the request or in the input.
struct InputError : std::runtime_error {
  using runtime_error::runtime_error;
};

// What the machine refuses: a full device, a library that is not there.
struct SystemError : std::runtime_error {
  using runtime_error::runtime_error;
};

enum ExitCode { done = 0, system_failed = 1, input_wrong = 2 };

}  // namespace lum::tool
