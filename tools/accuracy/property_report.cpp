#include "accuracy/property_report.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <map>
#include <mutex>
#include <sstream>

#include "accuracy/records.h"
#include "accuracy/text.h"
#include "accuracy/threads.h"

namespace lum::accuracy {
namespace {

using support::Export;
using support::Library;

constexpr const char* csv_header = "export,kind,property,how,count,violations,largest,at,at_bits";

std::string Row(const Export& entry, const Finding& f) {
  return fmt::format("{},{},\"{}\",{},{},{},{:g},{},{}", entry.name, f.kind, f.text, f.is_over_all ? "all" : "search", f.count,
                     f.violations, f.largest, f.violations != 0 ? DecimalOf(entry, f.at) : "",
                     f.violations != 0 ? PatternOf(entry, f.at) : "");
}

// Export, kind and text, of which only the text may hold commas, in quotes.
std::string KeyOf(const std::string& row) { return row.substr(0, row.find("\",") + 2); }

// What the file says of a property, or nothing.
struct Stored {
  std::string how;
  uint64_t violations;
  double largest;
};
Stored Parse(const std::string& row) {
  std::istringstream fields(row.substr(KeyOf(row).size()));
  std::string how, count, violations, largest;
  std::getline(fields, how, ',');
  std::getline(fields, count, ',');
  std::getline(fields, violations, ',');
  std::getline(fields, largest, ',');
  return {how, std::stoull(violations), std::stod(largest)};
}

// What contradicts the file, or an empty text.
std::string Complaint(const Export& entry, const Finding& f, const std::map<std::string, std::string>& stored) {
  const std::string name = fmt::format("{}: {}", entry.name, f.text), at = DecimalOf(entry, f.at);
  const auto row = stored.find(KeyOf(Row(entry, f)));
  if (row == stored.end()) return name + ": not in the file";
  const Stored file = Parse(row->second);
  if (f.violations != 0 && file.violations == 0) return fmt::format("{}: violated at {}, by {:g}", name, at, f.largest);
  if (f.kind == "exact" && f.violations != file.violations) {
    return fmt::format("{}: {} violations, the file has {}", name, f.violations, file.violations);
  }
  if (f.largest > file.largest * (1 + 1e-5)) {
    return fmt::format("{}: violated by {:g} at {}, by {:g} in the file", name, f.largest, at, file.largest);
  }
  return "";
}

void Print(const Export& entry, const std::vector<Finding>& findings) {
  if (findings.empty()) fmt::print("{:<22} no properties in property_table.cpp and exact_points.cpp\n", entry.name);
  for (const Finding& f : findings) {
    fmt::print("{:<22} {:<36} {:>12} of {:<13}{}{}\n", entry.name, f.text,
               f.violations == 0 ? "holds" : fmt::format("{} fail", f.violations), f.count, f.is_over_all ? " (all)" : "",
               f.violations == 0 ? "" : fmt::format(", by {:g} at {}", f.largest, DecimalOf(entry, f.at)));
  }
  std::fflush(stdout);
}

}  // namespace

bool ReportProperties(const Library& library, const std::vector<std::vector<const Export*>>& groups,
                      const PropertyRequest& request) {
  std::vector<const Export*> entries;
  for (const auto& group : groups) entries.insert(entries.end(), group.begin(), group.end());
  const auto stored = request.compare.empty() ? std::map<std::string, std::string>() : ReadRows(request.compare, KeyOf);
  std::atomic<size_t> next = 0;
  std::mutex mutex;
  std::vector<std::string> complaints;
  const auto work = [&] {
    for (size_t i; (i = next++) < entries.size();) {
      const Export& entry = *entries[i];
      const std::vector<Finding> findings = FindProperties(library, entry, request.limits);
      const std::scoped_lock lock(mutex);
      if (request.compare.empty()) Print(entry, findings);
      std::vector<std::string> rows;
      for (const Finding& f : findings) {
        rows.push_back(Row(entry, f));
        if (request.compare.empty()) continue;
        if (std::string text = Complaint(entry, f, stored); !text.empty()) complaints.push_back(std::move(text));
      }
      if (!request.csv.empty()) UpdateRows(request.csv, csv_header, rows, KeyOf);
    }
  };
  OnThreads(request.threads, work);
  std::ranges::sort(complaints);
  for (const std::string& complaint : complaints) fmt::print("{}\n", complaint);
  if (!request.compare.empty()) fmt::print("{} exports, {} complaints\n", entries.size(), complaints.size());
  return complaints.empty();
}

}  // namespace lum::accuracy
