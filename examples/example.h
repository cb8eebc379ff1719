// What the example programs share: reading a table of numbers, timing, and the way a program ends.
#pragma once

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace example {

// What the user got wrong; the program prints it as one line and ends with 2.
struct InputError : std::runtime_error {
  using runtime_error::runtime_error;
};

// The columns of a table of numbers, `count` in each line; # starts a comment.
inline std::vector<std::vector<double>> ReadColumns(const std::string& path, size_t count) {
  std::ifstream file(path);
  if (!file) throw InputError(fmt::format("{}: {}", path, std::strerror(errno)));
  std::vector<std::vector<double>> columns(count);
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    std::istringstream words(line.substr(0, line.find('#')));
    size_t column = 0;
    for (std::string word; words >> word; ++column) {
      double value = 0;
      const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
      if (error != std::errc() || end != word.data() + word.size() || !std::isfinite(value))
        throw InputError(fmt::format("{}:{}: not a finite number: '{}'", path, number, word));
      if (column < count) columns[column].push_back(value);
    }
    if (column != 0 && column != count)
      throw InputError(fmt::format("{}:{}: {} numbers where {} are wanted", path, number, column, count));
  }
  if (file.bad()) throw InputError(fmt::format("{}: cannot be read", path));
  if (columns[0].empty()) throw InputError(fmt::format("{}: no numbers", path));
  return columns;
}

// Seconds that a call takes, the shortest of three.
inline double Seconds(const std::function<void()>& call) {
  using Clock = std::chrono::steady_clock;
  double best = 0;
  for (int i = 0; i < 3; ++i) {
    const auto start = Clock::now();
    call();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    best = i == 0 ? seconds : std::min(best, seconds);
  }
  return best;
}

// Prints whether a figure is within its limit.
inline bool Check(const std::string& what, double figure, double limit) {
  const bool holds = figure <= limit;
  fmt::print("{:<58} {:>9.3g}   limit {:>9.3g}   {}\n", what, figure, limit, holds ? "ok" : "FAILED");
  return holds;
}

// Draws a picture: gnuplot with the script behind its output settings, and the data that the script reads as $data.
inline void Draw(const std::string& path, const std::string& data, const std::string& script) {
  std::signal(SIGPIPE, SIG_IGN);  // without gnuplot, writing to it fails
  FILE* gnuplot = popen("gnuplot 2>/dev/null", "w");
  if (gnuplot == nullptr) throw InputError("gnuplot cannot be started");
  const std::string part = path + ".part";
  const std::string text =
      fmt::format("$data << EOD\n{}EOD\nset terminal svg size 720,420\nset output '{}'\n{}\n", data, part, script);
  std::fputs(text.c_str(), gnuplot);
  const bool drawn = pclose(gnuplot) == 0 && std::rename(part.c_str(), path.c_str()) == 0;
  if (!drawn) throw InputError(fmt::format("{}: the picture cannot be drawn (is gnuplot installed?)", path));
  fmt::print("picture: {}\n", path);
}

// Parses the command line and runs the program: 0 when its checks hold, 1 when not, 2 with one line for bad input.
inline int Run(CLI::App& app, int argc, char** argv, const std::function<bool()>& program) {
  try {
    app.parse(argc, argv);
    return program() ? 0 : 1;
  } catch (const CLI::Success& request) { return app.exit(request); } catch (const CLI::ParseError& error) {
    fmt::print(stderr, "{}: {}\n", app.get_name(), error.what());
  } catch (const InputError& error) { fmt::print(stderr, "{}: {}\n", app.get_name(), error.what()); }
  return 2;
}

}  // namespace example
