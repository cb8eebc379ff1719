#include "refused.h"

#include <fmt/format.h>

#include <algorithm>
#include <random>
#include <set>
#include <stdexcept>
#include <string_view>

#include "data.h"
#include "support/declarations.h"
#include "support/scalar_loop.h"

namespace lum::bench {
namespace {

using support::Export;
using support::SpecialArgument;

constexpr int32_t length = 4096;

// One element of every `period` is refused, at a random place among them; none where the period is 0.
struct Share {
  std::string_view name;
  size_t period;
};
constexpr Share shares[] = {{"none", 0}, {"1 of 1000", 1000}, {"1 of 32", 32}, {"all", 1}};

bool Refuses(const Export& entry, const SpecialArgument& argument) {
  return argument.tags.empty() || argument.tags.find(entry.tag) != std::string_view::npos;
}

// All levels of one function and type on the same array.
void RegisterShare(const support::Library& library, const std::vector<const Export*>& levels, const SpecialArgument& argument,
                   const Share& share) {
  const auto data = std::make_shared<Data>(*levels[0], length);
  std::mt19937_64 engine(2);
  for (size_t first = 0; share.period != 0 && first + share.period <= length; first += share.period) {
    data->SetElement(first + engine() % share.period, argument.at[0], argument.at[2]);
  }
  const auto name = [&](std::string_view who) {
    return fmt::format("{}_{}/{}/{}/{}/{}", levels[0]->function, levels[0]->type, length, who, argument.what, share.name);
  };
  for (const Export* entry : levels) {
    void* address = library.Symbol(entry->name);
    Register(name(entry->tag.empty() ? "lumvm" : entry->tag), data, length,
             [address, entry](const support::Arguments& a) { CallAddress(address, *entry, a); });
  }
  if (const auto scalar = support::FindScalarLoop(*levels[0]); scalar != nullptr)
    Register(name("scalar"), data, length, scalar);
}

// The exports of a function and type that refuse an argument.
std::vector<const Export*> LevelsThatRefuse(const Export& one, const SpecialArgument& argument) {
  std::vector<const Export*> levels;
  for (const Export& entry : support::Exports()) {
    if (entry.function == one.function && entry.type == one.type && Refuses(entry, argument)) levels.push_back(&entry);
  }
  return levels;
}

}  // namespace

void RegisterRefused(const support::Library& library, const std::vector<std::string>& functions) {
  std::set<std::string_view> found;
  const Export* previous = nullptr;
  for (const Export& entry : support::Exports()) {
    const bool is_same_row = previous != nullptr && previous->function == entry.function && previous->type == entry.type;
    previous = &entry;
    if (is_same_row || (!functions.empty() && !std::ranges::count(functions, entry.function))) continue;
    for (const SpecialArgument& argument : support::DeclarationOf(entry).special_arguments) {
      found.insert(entry.function);
      for (const Share& share : shares) RegisterShare(library, LevelsThatRefuse(entry, argument), argument, share);
    }
  }
  for (const std::string& function : functions) {
    if (!found.contains(function))
      throw std::runtime_error(fmt::format("the real function '{}' refuses no argument", function));
  }
}

}  // namespace lum::bench
