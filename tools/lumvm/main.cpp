// lumvm: the library's functions on the command line.
#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>
#include <nlohmann/json.hpp>

#include "lumvm/commands.h"
#include "lumvm/errors.h"
#include "lumvm/interface.h"

namespace {

using lum::tool::ExitCode;

// One line of text, whatever the names and words in it hold: bytes that are no UTF-8 show as replacement characters.
int Fail(ExitCode code, std::string message) {
  std::ranges::replace_if(
      message, [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
  using Json = nlohmann::json;
  message = Json::parse(Json(message).dump(-1, ' ', false, Json::error_handler_t::replace)).get<std::string>();
  std::fprintf(stderr, "lumvm: %s\n", message.c_str());
  return code;
}

void Run(int argc, char** argv) {
  const auto app = lum::tool::MakeApplication();
  auto arguments = lum::tool::Arguments(argc, argv);
  std::ranges::reverse(arguments);  // as the parser takes them
  try {
    app->parse(arguments);
    if (app->count("--version") != 0) {
      lum::tool::Version();
    } else if (app->get_subcommands().empty()) {
      throw lum::tool::InputError("a command is wanted: list, info, apply, compare, plot; 'lumvm --help' describes them");
    }
  } catch (const CLI::Success&) { fmt::print("{}\n", app->help()); }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Run(argc, argv);
    // What is still in the buffer may meet a full device.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
      throw lum::tool::SystemError(fmt::format("standard output cannot be written: {}", std::strerror(errno)));
    }
    return lum::tool::done;
  } catch (const CLI::ParseError& error) {
    return Fail(lum::tool::input_wrong, error.what());
  } catch (const lum::tool::InputError& error) {
    return Fail(lum::tool::input_wrong, error.what());
  } catch (const std::bad_alloc&) {
    return Fail(lum::tool::system_failed, "out of memory");
  } catch (const std::exception& error) { return Fail(lum::tool::system_failed, error.what()); }
}
