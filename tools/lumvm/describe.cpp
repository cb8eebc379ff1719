#include <fmt/format.h>
#include <fmt/ranges.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "lumvm/commands.h"
#include "lumvm/errors.h"
#include "lumvm/names.h"

namespace lum::tool {
namespace {

using support::Export;
using Json = nlohmann::ordered_json;

// Columns of the terminal, 80 where the output is none.
size_t Width() {
  winsize window{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) != 0 || window.ws_col < 40) return 80;
  return std::min<size_t>(window.ws_col, 120);
}

// The entries of a list, a line each, behind a heading; longer ones go on in the next line, two columns further in.
void PrintWrapped(std::string_view heading, std::string_view list, size_t indent, size_t width) {
  std::string label = indent == 0 ? "" : fmt::format("  {:<{}}", heading, indent - 2);
  while (!list.empty()) {
    const std::string_view entry = list.substr(0, list.find('\n'));
    list.remove_prefix(std::min(entry.size() + 1, list.size()));
    std::string line = label;
    bool has_word = false;
    for (size_t at = 0; at < entry.size();) {
      const size_t end = std::min(entry.find(' ', at), entry.size());
      if (has_word && line.size() + 1 + end - at > width) {
        fmt::print("{}\n", line);
        line.assign(indent + 2, ' ');
        has_word = false;
      }
      if (has_word) line += ' ';
      line += entry.substr(at, end - at);
      has_word = true;
      at = end + 1;
    }
    fmt::print("{}\n", line);
    label.assign(indent, ' ');
  }
}

Json Lines(std::string_view text) {
  Json list = Json::array();
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    list.push_back(line);
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
  return list;
}

bool IsDescribedBy(const Export& entry, const Description& text) {
  if (entry.function != text.function()) return false;
  const bool is_complex = text.title != text.function();
  const bool has_complex = std::ranges::any_of(Descriptions(), [&](const Description& other) {
    return other.function() == entry.function && other.title != other.function();
  });
  return !has_complex || is_complex == entry.is_complex();
}

Json JsonOf(const Export& entry) {
  const Measured& measured = MeasuredOf(entry);
  Json json = {{"name", entry.name}, {"type", entry.type}, {"tag", entry.tag}, {"bits", entry.bits()}};
  json["limit_ulp"] = measured.limit;
  json["largest_error_ulp"] = measured.error;
  json["largest_error_at"] = measured.at;
  json["is_within_limit"] = measured.error <= measured.limit;
  json["nanoseconds"] = measured.time;
  if (measured.scalar_time != 0) json["nanoseconds_scalar_loop"] = measured.scalar_time;
  return json;
}

Json JsonOf(const Description& text) {
  Json json = {{"title", text.title},
               {"function", text.function()},
               {"family", text.family},
               {"summary", text.summary},
               {"domain", text.domain},
               {"special_values", Lines(text.special)},
               {"statuses", Lines(text.statuses)},
               {"names", Json::array()}};
  for (const Export& entry : support::Exports()) {
    if (IsDescribedBy(entry, text)) json["names"].push_back(JsonOf(entry));
  }
  return json;
}

// A word fits a function when it is its family, one of its types, or a part of its names or its summary.
bool Fits(const Description& text, const std::string& word) {
  const std::string lower = Lower(word);
  if (lower == text.family || Lower(text.title).find(lower) != std::string::npos) return true;
  const auto entries = support::Exports();
  for (const std::string_view type : {"32f", "64f", "32fc", "64fc"}) {
    if (lower != type) continue;
    return std::ranges::any_of(entries, [&](const Export& entry) { return entry.type == type && IsDescribedBy(entry, text); });
  }
  if (Lower(text.summary).find(lower) != std::string::npos) return true;
  try {
    return FindFunction(word).function == text.function();
  } catch (const InputError&) { return false; }
}

std::vector<const Description*> Listed(const ListOptions& options) {
  std::vector<const Description*> listed;
  for (const Description& text : Descriptions()) {
    if (std::ranges::all_of(options.words, [&](const std::string& word) { return Fits(text, word); })) listed.push_back(&text);
  }
  if (listed.empty()) {
    throw InputError(fmt::format("no function fits {}; a word is a family, a type or a part of a name or description",
                                 Quoted(fmt::format("{}", fmt::join(options.words, " ")))));
  }
  return listed;
}

void PrintFigures(const std::vector<const Export*>& entries) {
  fmt::print("\n  {:<22} {:>4} {:>10} {:>14} {:>6} {:>9} {:>13}\n", "", "bits", "limit, ulp", "largest error", "", "ns",
             "scalar loop");
  const Export* exception = nullptr;
  for (const Export* entry : entries) {
    const Measured& measured = MeasuredOf(*entry);
    const bool is_beyond = measured.error > measured.limit;
    if (is_beyond && exception == nullptr) exception = entry;
    fmt::print("  {:<22} {:>4} {:>10.8g} {:>14.4g} {:>6} {:>9.3g}", entry->name, entry->bits(), measured.limit, measured.error,
               is_beyond ? "beyond" : "", measured.time);
    if (measured.scalar_time != 0) fmt::print(" {:>11.1f} x", measured.scalar_time / measured.time);
    fmt::print("\n");
  }
  fmt::print(
      "  Errors are those measured (docs/accuracy.md); nanoseconds an element are those of an array of 4096 with AVX-512\n"
      "  (docs/performance.md).\n");
  if (exception == nullptr) return;
  fmt::print("  \"beyond\": the bits do not hold for all arguments. {} has its largest error at\n  {}.\n", exception->name,
             MeasuredOf(*exception).at);
}

}  // namespace

void List(const ListOptions& options) {
  const auto listed = Listed(options);
  if (options.is_json) {
    Json json = Json::array();
    for (const Description* text : listed) json.push_back(JsonOf(*text));
    fmt::print("{}\n", json.dump(1));
    return;
  }
  std::string_view function, type;
  for (const Export& entry : support::Exports()) {
    if (std::ranges::none_of(listed, [&](const Description* text) { return IsDescribedBy(entry, *text); })) continue;
    if (entry.function != function) fmt::print("{}{:<12}", function.empty() ? "" : "\n", entry.function);
    if (entry.function != function || entry.type != type) fmt::print(" {}", entry.type);
    if (!entry.tag.empty()) fmt::print(" {}", entry.tag);
    function = entry.function;
    type = entry.type;
  }
  fmt::print("\n");
}

void Info(const InfoOptions& options) {
  const Named named = FindFunction(options.function);
  Json json = Json::array();
  for (const Description& text : Descriptions()) {
    if (text.function() != named.function) continue;
    std::vector<const Export*> entries;
    for (const Export& entry : support::Exports()) {
      if (IsDescribedBy(entry, text) && (named.type.empty() || entry.type == named.type)) entries.push_back(&entry);
    }
    if (entries.empty()) continue;
    if (options.is_json) {
      json.push_back(JsonOf(text));
      continue;
    }
    constexpr size_t indent = 18;
    PrintWrapped("", fmt::format("{}: {}", text.title, text.summary), 0, Width());
    PrintWrapped("domain", text.domain, indent, Width());
    PrintWrapped("special values", text.special, indent, Width());
    PrintWrapped("statuses", text.statuses, indent, Width());
    PrintFigures(entries);
  }
  if (options.is_json) fmt::print("{}\n", json.dump(1));
}

void Version() {
  const Engine engine("");
  const LumLibraryVersion& version = engine.version();
  fmt::print("lumvm {}\nlibrary     {}\nlayer       {}\nbuild date  {}\nfile        {}\n", version.version, version.name,
             engine.layer(), version.buildDate, engine.path());
}

}  // namespace lum::tool
