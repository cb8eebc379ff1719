#include "refused.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <random>
#include <stdexcept>
#include <string_view>

#include "data.h"
#include "support/scalar_loop.h"

namespace lum::bench {
namespace {

using support::Export;

// An argument that a function's vector path hands to its lane routine, or to a second vector path.
struct RefusedArgument {
  std::string_view function, type;
  std::string_view what;       // in words
  double first, second = 1;    // the second of two inputs
  std::string_view tags = {};  // those that refuse it; all when empty
};

constexpr double infinity = std::numeric_limits<double>::infinity();

// Of the arguments that a function refuses, those that a user may well have, and of them the costliest.
constexpr RefusedArgument refused_arguments[] = {
    {"Acos", "32f", "outside the domain", 1.5},
    {"Acos", "64f", "outside the domain", 1.5},
    {"Acosh", "32f", "outside the domain", 0.5},
    {"Acosh", "64f", "outside the domain", 0.5},
    {"Asin", "32f", "outside the domain", 1.5},
    {"Asin", "64f", "outside the domain", 1.5},
    {"Asinh", "32f", "infinite", infinity},
    {"Asinh", "64f", "infinite", infinity},
    {"Atan", "32f", "infinite", infinity, 1, "A11"},
    {"Atan", "64f", "infinite", infinity, 1, "A26"},
    {"Atan2", "32f", "zero over a number", 0, 1.5},
    {"Atan2", "64f", "zero over a number", 0, 1.5},
    {"Atan2", "32f", "both huge", 0x1p127, 0x1.8p126},
    {"Atan2", "64f", "both huge", 0x1p1000, 0x1.8p999},
    {"Atanh", "32f", "outside the domain", 1.5},
    {"Atanh", "64f", "outside the domain", 1.5},
    {"CdfNorm", "32f", "result below the denormals", -20},
    {"CdfNorm", "64f", "result below the denormals", -40},
    {"CdfNormInv", "32f", "tiny", 1e-20},
    {"CdfNormInv", "64f", "tiny", 1e-20},
    {"Cos", "32f", "huge", 1e20},
    {"Cos", "64f", "huge", 1e20},
    {"Cos", "32f", "infinite", infinity},
    {"Cos", "64f", "infinite", infinity},
    {"Cosh", "32f", "result next to the largest number", 88.5},
    {"Cosh", "64f", "result next to the largest number", 709.5},
    {"Div", "32f", "divisor zero", 1.5, 0},
    {"Div", "64f", "divisor zero", 1.5, 0},
    {"ErfInv", "32f", "at the pole", 1},
    {"ErfInv", "64f", "tiny", 1e-15},
    {"Erfc", "32f", "result below the denormals", 12},
    {"Erfc", "64f", "result below the denormals", 30},
    {"ErfcInv", "32f", "tiny", 1e-20},
    {"ErfcInv", "64f", "tiny", 1e-20},
    {"Exp", "32f", "result denormal", -95},
    {"Exp", "64f", "result denormal", -720},
    {"Exp", "32f", "result next to the largest number", 88.5},
    {"Exp", "64f", "result next to the largest number", 709.5},
    {"Expm1", "32f", "result next to the largest number", 88.5},
    {"Expm1", "64f", "result next to the largest number", 709.5},
    {"Frac", "32f", "infinite", infinity},
    {"Frac", "64f", "infinite", infinity},
    {"Hypot", "32f", "huge", 0x1p100},
    {"Hypot", "64f", "huge", 0x1p800},
    {"Inv", "32f", "zero", 0},
    {"Inv", "64f", "zero", 0},
    {"InvCbrt", "32f", "zero", 0},
    {"InvCbrt", "64f", "zero", 0},
    {"InvSqrt", "32f", "zero", 0},
    {"InvSqrt", "64f", "zero", 0},
    {"Ln", "32f", "zero", 0},
    {"Ln", "64f", "zero", 0},
    {"Log10", "32f", "zero", 0},
    {"Log10", "64f", "zero", 0},
    {"Log1p", "32f", "at the pole", -1},
    {"Log1p", "64f", "at the pole", -1},
    {"Modf", "32f", "infinite", infinity},
    {"Modf", "64f", "infinite", infinity},
    {"Pow", "32f", "negative base", -2.5, 3},
    {"Pow", "64f", "negative base", -2.5, 3},
    {"Pow", "32f", "result denormal", 0.5, 130.5},
    {"Pow", "64f", "result denormal", 0.5, 1030.5},
    {"Pow3o2", "32f", "small", 0x1p-80},
    {"Pow3o2", "64f", "small", 0x1p-660},
    {"Powx", "32f", "denormal base", 0x1p-130},
    {"Powx", "64f", "denormal base", 0x1p-1060},
    {"Sin", "32f", "huge", 1e20},
    {"Sin", "64f", "huge", 1e20},
    {"Sin", "32f", "infinite", infinity},
    {"Sin", "64f", "infinite", infinity},
    {"SinCos", "32f", "huge", 1e20},
    {"SinCos", "64f", "huge", 1e20},
    {"SinCos", "32f", "infinite", infinity},
    {"SinCos", "64f", "infinite", infinity},
    {"Sinh", "32f", "result next to the largest number", 88.5},
    {"Sinh", "64f", "result next to the largest number", 709.5},
    {"Sqrt", "32f", "zero", 0},
    {"Sqrt", "64f", "zero", 0},
    {"Tan", "32f", "huge", 1e20},
    {"Tan", "64f", "huge", 1e20},
    {"Tan", "32f", "infinite", infinity},
    {"Tan", "64f", "infinite", infinity},
    {"Tanh", "32f", "infinite", infinity, 1, "A21 A24"},
    {"Tanh", "64f", "infinite", infinity},
};

constexpr int32_t length = 4096;

// One element of every `period` is refused, at a random place among them; none where the period is 0.
struct Share {
  std::string_view name;
  size_t period;
};
constexpr Share shares[] = {{"none", 0}, {"1 of 1000", 1000}, {"1 of 32", 32}, {"all", 1}};

bool Refuses(const Export& entry, const RefusedArgument& argument) {
  return entry.function == argument.function && entry.type == argument.type &&
         (argument.tags.empty() || argument.tags.find(entry.tag) != std::string_view::npos);
}

void RegisterShare(const support::Library& library, const RefusedArgument& argument, const Share& share) {
  std::shared_ptr<Data> data;
  support::ScalarLoop scalar = nullptr;
  const auto name = [&](std::string_view who) {
    return fmt::format("{}_{}/{}/{}/{}/{}", argument.function, argument.type, length, who, argument.what, share.name);
  };
  for (const Export& entry : support::Exports()) {
    if (!Refuses(entry, argument)) continue;
    if (data == nullptr) {
      data = std::make_shared<Data>(entry, length);
      std::mt19937_64 engine(2);
      for (size_t first = 0; share.period != 0 && first + share.period <= length; first += share.period) {
        data->SetElement(first + engine() % share.period, argument.first, argument.second);
      }
      scalar = support::FindScalarLoop(entry);
    }
    void* address = library.Symbol(entry.name);
    Register(name(entry.tag.empty() ? "lumvm" : entry.tag), data, length,
             [address, &entry](const support::Arguments& a) { CallAddress(address, entry, a); });
  }
  if (scalar != nullptr) Register(name("scalar"), data, length, scalar);
}

}  // namespace

void RegisterRefused(const support::Library& library, const std::vector<std::string>& functions) {
  for (const std::string& function : functions) {
    if (!std::ranges::count(refused_arguments, function, &RefusedArgument::function)) {
      throw std::runtime_error(fmt::format("the real function '{}' refuses no argument", function));
    }
  }
  for (const RefusedArgument& argument : refused_arguments) {
    if (!functions.empty() && !std::ranges::count(functions, argument.function)) continue;
    for (const Share& share : shares) RegisterShare(library, argument, share);
  }
}

}  // namespace lum::bench
