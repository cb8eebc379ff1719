// The commands and options of the tool, and what is generated from their descriptions.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

namespace lum::tool {

// The application, whose commands run when arguments are parsed.
std::unique_ptr<CLI::App> MakeApplication();

// Arguments as the application takes them: a negative number is no option.
std::vector<std::string> Arguments(int argc, char** argv);

// "bash" or "zsh".
std::string CompletionScript(const CLI::App& app, const std::string& shell);
std::string ManualPage(const CLI::App& app);

}  // namespace lum::tool
