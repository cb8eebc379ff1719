// Pictures of functions and of their errors, drawn by gnuplot.
#include <fmt/format.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>

#include "lumvm/commands.h"
#include "lumvm/errors.h"
#include "lumvm/names.h"
#include "lumvm/output.h"
#include "support/declarations.h"
#include "support/element_array.h"
#include "support/ulp.h"

namespace lum::tool {
namespace {

using support::ElementArray;
using support::Export;

constexpr size_t intervals = 200, points_an_interval = 50, points = intervals * points_an_interval;
constexpr double least_error = 0.01;  // the lower end of a logarithmic axis

struct Curve {
  std::string title;
  std::vector<std::pair<double, double>> points;
};

double ParseReal(const std::string& text, const char* name) {
  double value = 0;
  if (ParseNumber(text, value) != Reading::number || !std::isfinite(value)) {
    throw InputError(fmt::format("{}: one finite number is wanted, not {}", name, Quoted(text)));
  }
  return value;
}

// Where nothing is said: the function's everyday arguments, as far as they lie within 10 of zero.
std::pair<double, double> Interval(const PlotOptions& options, const Export& entry) {
  const auto ordinary = support::DeclarationOf(entry).ordinary;
  double from = std::max(ordinary.low, -10.0), to = std::min(ordinary.high, 10.0);
  if (!(from < to)) from = ordinary.low, to = ordinary.high;
  if (!options.from.empty()) from = ParseReal(options.from, "--from");
  if (!options.to.empty()) to = ParseReal(options.to, "--to");
  if (!(from < to) || !std::isfinite(to - from)) throw InputError(fmt::format("--from {} is not below --to {}", from, to));
  return {from, to};
}

// The results of an export at all points; of two outputs both.
std::array<ElementArray, 2> Results(const Engine& engine, const Export& entry, ElementArray& x, ElementArray& value) {
  std::array<ElementArray, 2> y{ElementArray(entry.output, points), ElementArray(entry.output, points)};
  support::CallAddress(engine.Address(entry), entry,
                       {x.data(), nullptr, value.data(), y[0].data(), y[1].data(), static_cast<int32_t>(points)});
  return y;
}

// The distance of a binary32 result from the exact one, in units in the last place of that.
double ErrorInUlp(double result, double exact) {
  if (!std::isfinite(result) || !std::isfinite(exact)) return std::isnan(result) == std::isnan(exact) ? 0 : HUGE_VAL;
  constexpr int least_exponent = -126, digits = 23;
  const int exponent = exact == 0 ? least_exponent : std::max(std::ilogb(exact), least_exponent);
  return std::ldexp(std::fabs(result - exact), digits - exponent);
}

std::vector<Curve> FunctionCurves(const Engine& engine, const Export& entry, ElementArray& x, ElementArray& value) {
  const auto y = Results(engine, entry, x, value);
  std::vector<Curve> curves;
  for (int output = 0; output < entry.outputs(); ++output) {
    curves.push_back({fmt::format("{}{}", entry.function, output == 0 ? "" : ".2"), {}});
    for (size_t i = 0; i < points; i += 10) curves.back().points.emplace_back(x.Get(i), y[static_cast<size_t>(output)].Get(i));
  }
  return curves;
}

// The largest error in each interval, one line a tag: of binary32 against the function of binary64 at the same arguments, of
// binary64 the distance from the highest tag.
std::vector<Curve> ErrorCurves(const Engine& engine, const std::vector<const Export*>& tags, ElementArray& x,
                               ElementArray& value) {
  const bool is_32bit = tags[0]->is_32bit();
  const Export& reference = is_32bit ? FindExport(tags[0]->function, "64f", "") : *tags.back();
  ElementArray wide(reference.input, points), wide_value(reference.input, 1);
  for (size_t i = 0; i < points; ++i) wide.Set(i, x.Get(i));
  wide_value.Set(0, value.Get(0));
  const auto exact = Results(engine, reference, wide, wide_value);
  std::vector<Curve> curves;
  for (const Export* entry : tags) {
    if (entry == &reference) continue;
    const auto y = Results(engine, *entry, x, value);
    Curve curve{std::string(entry->tag.empty() ? entry->function : entry->tag), {}};
    for (size_t interval = 0; interval < intervals; ++interval) {
      double largest = least_error;
      for (size_t i = interval * points_an_interval; i < (interval + 1) * points_an_interval; ++i) {
        for (size_t output = 0; output < static_cast<size_t>(entry->outputs()); ++output) {
          largest = std::max(largest, is_32bit ? ErrorInUlp(y[output].Get(i), exact[output].Get(i))
                                               : static_cast<double>(support::UlpDistance(entry->output, y[output].at(i),
                                                                                          exact[output].at(i))));
        }
      }
      curve.points.emplace_back(x.Get(interval * points_an_interval + points_an_interval / 2), largest);
    }
    curves.push_back(std::move(curve));
  }
  if (curves.empty()) throw InputError(fmt::format("{} has no other tag to compare with", reference.name));
  return curves;
}

std::string Terminal(const std::string& output) {
  const std::string name = Lower(output);
  if (name.ends_with(".svg")) return "svg size 720,400 font 'sans,11' background 'white'";
  if (name.ends_with(".png")) return "png size 1080,600";
  if (!output.empty() && output != "-") throw InputError(fmt::format("{}: .svg or .png is wanted", output));
  winsize window{};
  const bool is_terminal = ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) == 0 && window.ws_col >= 40 && window.ws_row >= 12;
  return fmt::format("dumb {} {}", is_terminal ? std::min<int>(window.ws_col - 1, 150) : 79,
                     is_terminal ? std::min<int>(window.ws_row - 2, 40) : 24);
}

std::string Script(const std::string& terminal, const std::string& title, const std::vector<Curve>& curves, bool has_error) {
  std::string script = fmt::format(
      "set terminal {}\nset title '{}' noenhanced\nset xlabel 'x'\nset key outside top\nset grid\n", terminal, title);
  if (has_error) script += "set logscale y\nset ylabel 'ulp'\n";
  std::string plots, data;
  for (const Curve& curve : curves) {
    plots += fmt::format("{}'-' with lines title '{}' noenhanced", plots.empty() ? "plot " : ", ", curve.title);
    bool is_drawn = false;
    for (const auto& [x, y] : curve.points) {
      if (std::isfinite(y)) data += fmt::format("{} {}\n", x, y);
      else if (is_drawn) data += "\n";  // a gap
      is_drawn = is_drawn || std::isfinite(y);
    }
    if (!is_drawn) throw InputError("the function has no finite value there");
    data += "e\n";
  }
  return script + plots + "\n" + data;
}

// What gnuplot writes for a script goes to the output.
void Draw(const std::string& script, Output& output) {
  Spool spool;
  spool.Write(script.data(), script.size());
  int ends[2];
  if (pipe(ends) != 0) throw SystemError(std::strerror(errno));
  const int input = spool.Rewound();
  const pid_t child = fork();
  if (child < 0) throw SystemError(std::strerror(errno));
  if (child == 0) {
    dup2(input, STDIN_FILENO);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    close(STDERR_FILENO);
    execlp("gnuplot", "gnuplot", "-", static_cast<char*>(nullptr));
    _exit(127);
  }
  close(ends[1]);
  bool is_empty = true;
  std::array<char, 65536> part;
  for (ssize_t got; (got = read(ends[0], part.data(), part.size())) != 0;) {
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) break;
    is_empty = false;
    output.Write({part.data(), static_cast<size_t>(got)});
  }
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status) && WEXITSTATUS(status) == 127) throw SystemError("gnuplot is not installed, which draws the pictures");
  if (status != 0 || is_empty) throw SystemError("gnuplot could not draw this");
}

}  // namespace

void Plot(const PlotOptions& options) {
  const Named named = FindFunction(options.function);
  const std::string type(!options.type.empty() ? FindType(options.type) : !named.type.empty() ? named.type : "64f");
  const auto tags = ExportsOf(named.function, type);
  const Export& entry = FindExport(named.function, type, options.tag.empty() ? std::string(named.tag) : options.tag);
  if (entry.is_complex() || entry.inputs() == 2)
    throw InputError(fmt::format("{} {}: functions of one real number are drawn", named.function, type));
  if (entry.has_parameter() == options.value.empty()) {
    throw InputError(fmt::format("{} {} --value", entry.function, entry.has_parameter() ? "needs" : "takes no"));
  }
  const auto [from, to] = Interval(options, entry);
  const std::string terminal = Terminal(options.output);
  ElementArray x(entry.input, points), value(entry.input, 1);
  for (size_t i = 0; i < points; ++i) x.Set(i, from + (to - from) * (static_cast<double>(i) / (points - 1)));
  if (entry.has_parameter()) value.Set(0, ParseReal(options.value, "--value"));
  const Engine engine(options.layer);
  const auto curves = options.has_error ? ErrorCurves(engine, tags, x, value) : FunctionCurves(engine, entry, x, value);
  const std::string title = !options.has_error ? std::string(entry.name)
                            : entry.is_32bit()
                                ? fmt::format("{} {}: largest error of each tag", entry.function, type)
                                : fmt::format("{} {}: largest distance from {}", entry.function, type, tags.back()->tag);
  Output output(options.output.empty() ? "-" : options.output);
  Draw(Script(terminal, title, curves, options.has_error), output);
  output.Finish();
}

}  // namespace lum::tool
