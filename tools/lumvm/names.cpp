#include "lumvm/names.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <map>

#include "lumvm/errors.h"
#include "lumvm/numbers.h"

namespace lum::tool {
namespace {

using support::Export;

constexpr Description descriptions[] = {
#include "descriptions.inc"
};

constexpr Measured measured[] = {
#include "measured.inc"
};

struct Alias {
  std::string_view name, function;
};
constexpr Alias aliases[] = {
#include "names.inc"
};

constexpr struct {
  std::string_view name, type;
} type_names[] = {{"32f", "32f"},         {"f32", "32f"},
                  {"float", "32f"},       {"float32", "32f"},
                  {"single", "32f"},      {"64f", "64f"},
                  {"f64", "64f"},         {"double", "64f"},
                  {"float64", "64f"},     {"32fc", "32fc"},
                  {"fc32", "32fc"},       {"complex64", "32fc"},
                  {"64fc", "64fc"},       {"fc64", "64fc"},
                  {"complex128", "64fc"}, {"complex<float>", "32fc"},
                  {"complex", "64fc"},    {"complex<double>", "64fc"}};

// The letters to be put in, left out, replaced or exchanged with the next one to make one word of the other.
size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<std::vector<size_t>> d(a.size() + 1, std::vector<size_t>(b.size() + 1));
  for (size_t i = 0; i <= a.size(); ++i) {
    for (size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        d[i][j] = i + j;
        continue;
      }
      d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + (a[i - 1] != b[j - 1])});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
    }
  }
  return d[a.size()][b.size()];
}

// The functions whose name, in any language, is one or two letters from the word.
std::string Suggestion(const std::string& word) {
  constexpr size_t longest = 40;
  if (word.size() > longest) return "'lumvm list' shows all";
  std::map<std::string_view, size_t> distances;
  const auto consider = [&](std::string_view name, std::string_view function) {
    const size_t distance = EditDistance(word, Lower(name));
    const auto [place, is_new] = distances.emplace(function, distance);
    if (!is_new) place->second = std::min(place->second, distance);
  };
  for (const Export& entry : support::Exports()) consider(entry.function, entry.function);
  for (const Alias& alias : aliases) consider(alias.name, alias.function);
  size_t least = word.size() <= 3 ? 1 : 2;
  for (const auto& [function, distance] : distances) least = std::min(least, distance);
  std::vector<std::string_view> closest;
  for (const auto& [function, distance] : distances) {
    if (distance == least) closest.push_back(function);
  }
  if (closest.empty() || closest.size() > 5) return "'lumvm list' shows all";
  return fmt::format("did you mean {}?", fmt::join(closest, " or "));
}

std::string_view WithoutPrefix(std::string_view word, std::initializer_list<std::string_view> prefixes) {
  for (const std::string_view prefix : prefixes) {
    if (word.starts_with(prefix)) return word.substr(prefix.size());
  }
  return word;
}

}  // namespace

std::span<const Description> Descriptions() { return descriptions; }

const Measured& MeasuredOf(const Export& entry) {
  static constexpr Measured nothing{};
  const auto found = std::ranges::find(measured, entry.name, &Measured::name);
  return found == std::end(measured) ? nothing : *found;
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string_view TypeName(support::Element element) {
  using enum support::Element;
  return element == f32 ? "32f" : element == f64 ? "64f" : element == c32 ? "32fc" : "64fc";
}

Named FindFunction(const std::string& word) {
  const std::string lower = Lower(word);
  const std::string_view name = WithoutPrefix(lower, {"lumvm::", "lumvm.", "std::", "numpy.", "np."});
  const std::string_view own = WithoutPrefix(name, {"lums"});
  const std::string_view function = own.substr(0, own.find('_'));
  for (const Export& entry : support::Exports()) {
    if (Lower(entry.name).substr(4) == own) return {entry.function, entry.type, entry.tag};
  }
  for (const Export& entry : support::Exports()) {
    if (Lower(fmt::format("{}_{}", entry.function, entry.type)) == own) return {entry.function, entry.type, {}};
  }
  for (const Export& entry : support::Exports()) {
    if (Lower(entry.function) == own) return {entry.function, {}, {}};
  }
  for (const Alias& alias : aliases) {
    if (alias.name == name) return {alias.function, {}, {}};
  }
  // A name of the library with a type or tag that the function does not have.
  for (const Export& entry : support::Exports()) {
    if (Lower(entry.function) != function) continue;
    throw InputError(
        fmt::format("no function {}; 'lumvm info {}' shows the names of {}", Quoted(word), entry.function, entry.function));
  }
  throw InputError(fmt::format("no function {}; {}", Quoted(word), Suggestion(std::string(own))));
}

std::string_view FindType(const std::string& word) {
  const std::string lower = Lower(WithoutPrefix(Lower(word), {"std::", "lum"}));
  for (const auto& [name, type] : type_names) {
    if (name == lower) return type;
  }
  throw InputError(
      fmt::format("no element type {}; there are 32f (float), 64f (double), 32fc and 64fc (complex)", Quoted(word)));
}

std::vector<const Export*> ExportsOf(std::string_view function, std::string_view type) {
  std::vector<const Export*> found;
  std::vector<std::string_view> types;
  for (const Export& entry : support::Exports()) {
    if (entry.function != function) continue;
    if (entry.type == type) found.push_back(&entry);
    if (types.empty() || types.back() != entry.type) types.push_back(entry.type);
  }
  if (found.empty()) {
    throw InputError(fmt::format("{} does not exist for the type {}, but for {}", function, type, fmt::join(types, ", ")));
  }
  return found;
}

const Export& FindExport(std::string_view function, std::string_view type, const std::string& tag) {
  const auto entries = ExportsOf(function, type);
  if (tag.empty()) return *entries.back();
  const std::string lower = Lower(tag);
  std::vector<std::string_view> tags;
  for (const Export* entry : entries) {
    const bool is_level = entry->tier == support::Tier::low    ? lower == "low"
                          : entry->tier == support::Tier::high ? lower == "high"
                                                               : lower == "mid" || lower == "middle";
    if (is_level || (!entry->tag.empty() && (lower == Lower(entry->tag) || lower == entry->tag.substr(1)))) return *entry;
    tags.push_back(entry->tag);
  }
  if (tags[0].empty()) throw InputError(fmt::format("{} {} is exact and has no tags", function, type));
  throw InputError(fmt::format("{} {} has no tag {}, but {}", function, type, Quoted(tag), fmt::join(tags, ", ")));
}

}  // namespace lum::tool
