#include "special.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <random>

#include "data.h"
#include "peers.h"
#include "support/declarations.h"
#include "support/scalar_loop.h"

namespace lum::bench {
namespace {

using support::Export;

constexpr int32_t length = 4096;

// One element of every `period` is special, at a random place among them; none where the period is 0.
struct Share {
  std::string_view name;
  size_t period;
};
constexpr Share shares[] = {{"none", 0}, {"1 of 1000", 1000}, {"1 of 32", 32}, {"1 of 2", 2}, {"all", 1}};

// The numbers of a class, taken in turn.
struct Numbers {
  std::string_view name;
  std::vector<double> of_32bit, of_64bit;
};
const std::vector<Numbers>& Classes() {
  constexpr double infinity = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
  static const std::vector<Numbers> classes = {
      {"zero", {0.0, -0.0}, {0.0, -0.0}},
      {"infinity", {infinity, -infinity}, {infinity, -infinity}},
      {"NaN", {nan, -nan}, {nan, -nan}},
      {"denormal", {1e-40, -3e-42}, {1e-310, -3e-320}},
      {"tiny", {1e-30, -3e-34}, {1e-200, -3e-280}},
      {"1e5", {1.3e5, -2.1e5}, {1.3e5, -2.1e5}},
      {"1e10", {1.3e10, -2.1e10}, {1.3e10, -2.1e10}},
      {"huge", {1.3e30, -2.1e37}, {1.3e300, -2.1e305}},
      {"30", {30.5, -28.25}, {30.5, -28.25}},
      {"negative", {-2.0, -0.7}, {-2.0, -0.7}},
  };
  return classes;
}

// The parts of both arguments of an element; what holds no value stays an ordinary number.
using Element = std::array<std::optional<double>, 4>;

// An argument's class: the elements that are put in, in turn.
struct SpecialClass {
  std::string name;
  std::vector<Element> elements;
  std::string_view tags;  // those that it concerns; all when empty
};

std::vector<SpecialClass> ClassesOf(const Export& entry) {
  std::vector<SpecialClass> result;
  // In the places of a mask: bit i for part i of the arguments.
  const auto add = [&](const Numbers& numbers, unsigned places, std::string_view where) {
    const auto& values = entry.is_32bit() ? numbers.of_32bit : numbers.of_64bit;
    std::vector<Element> elements;
    for (double value : values) {
      Element element;
      for (size_t i = 0; i < element.size(); ++i) {
        if ((places >> i & 1) != 0) element[i] = value;
      }
      elements.push_back(element);
    }
    result.push_back({fmt::format("{}{}", numbers.name, where), elements, ""});
  };
  const bool has_two = entry.inputs() == 2;
  for (const Numbers& numbers : Classes()) {
    if (!entry.is_complex()) {
      add(numbers, 1, has_two ? " first" : "");
      if (has_two) add(numbers, 4, " second");
      if (has_two) add(numbers, 5, " both");
    } else if (numbers.name != "negative" && numbers.name != "30") {
      add(numbers, 1, " real part");
      add(numbers, 2, " imaginary part");
      add(numbers, 3, " both parts");
      if (has_two) add(numbers, 8, " imaginary part of the second");
      if (has_two) add(numbers, 12, " second");
    }
  }
  if (entry.is_complex()) result.push_back({"unit circle", {{0.6, 0.8}, {-0.28, 0.96}}, ""});
  for (const support::SpecialArgument& argument : support::DeclarationOf(entry).special_arguments) {
    result.push_back(
        {std::string(argument.what), {{argument.at[0], argument.at[1], argument.at[2], argument.at[3]}}, argument.tags});
  }
  return result;
}

void TakeShare(const support::Library& library, const std::vector<const Export*>& levels, const SpecialClass& special,
               const Share& share, std::string_view instructions, const Taker& take) {
  const auto data = std::make_shared<Data>(*levels[0], length);
  std::mt19937_64 engine(2);
  size_t turn = 0;
  for (size_t first = 0; share.period != 0 && first + share.period <= length; first += share.period) {
    const Element& element = special.elements[turn++ % special.elements.size()];
    const size_t i = first + engine() % share.period;
    for (size_t part = 0; part < element.size(); ++part) {
      if (element[part]) data->SetPart(i, part / 2, part % 2, *element[part]);
    }
  }
  const auto name = [&](std::string_view who) {
    return fmt::format("{}_{}/{}/{}/{}/{}", levels[0]->function, levels[0]->type, length, who, special.name, share.name);
  };
  const bool has_all_tags = share.period <= 1;
  for (const Export* entry : levels) {
    const bool is_high = entry == levels.back();
    if ((!has_all_tags && !is_high) || (!special.tags.empty() && special.tags.find(entry->tag) == std::string_view::npos))
      continue;
    void* address = library.Symbol(entry->name);
    take(name(entry->tag.empty() ? "lumvm" : entry->tag), data, length,
         [address, entry](const support::Arguments& a) { CallAddress(address, *entry, a); });
  }
  if (instructions.empty()) return;
  if (const auto scalar = support::FindScalarLoop(*levels[0]); scalar != nullptr) take(name("scalar"), data, length, scalar);
  for (const auto& peer : FindPeers(*levels[0], instructions)) {
    if (peer.name == "sleef_u10" || peer.name == "libmvec") take(name(peer.name), data, length, peer.loop);
  }
}

}  // namespace

void TakeSpecial(const support::Library& library, const std::vector<std::string>& functions, std::string_view instructions,
                 const Taker& take) {
  std::vector<const Export*> levels;
  const auto flush = [&] {
    if (levels.empty()) return;
    const auto classes = ClassesOf(*levels[0]);
    for (const SpecialClass& special : classes) {
      for (const Share& share : shares) {
        if (share.period != 0) TakeShare(library, levels, special, share, instructions, take);
      }
    }
    TakeShare(library, levels, {"ordinary", {}, ""}, shares[0], instructions, take);
    levels.clear();
  };
  for (const Export& entry : support::Exports()) {
    if (!functions.empty() && !std::ranges::count(functions, entry.function)) continue;
    if (!levels.empty() && (levels[0]->function != entry.function || levels[0]->type != entry.type)) flush();
    levels.push_back(&entry);
  }
  flush();
}

}  // namespace lum::bench
