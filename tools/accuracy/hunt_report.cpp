#include "accuracy/hunt_report.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <mutex>
#include <stdexcept>

#include "accuracy/records.h"
#include "accuracy/text.h"
#include "accuracy/threads.h"
#include "peers.h"
#include "support/declarations.h"
#include "support/scalar_loop.h"

namespace lum::accuracy {
namespace {

using support::Export;
using support::Library;
using Group = std::vector<const Export*>;

constexpr const char* csv_header =
    "function,type,who,seed,count,crossed,compared,judged,settled,left,max_ulp,at,at_bits,bound_ulp,wrong_class,wrong_at,"
    "distribution,within_050,within_051,within_060,within_075,within_100,mean_ulp";

std::string Row(const HuntSubject& subject, const std::string& who, const HuntResult& r, const HuntLimits& limits,
                uint64_t count) {
  const Export& entry = *subject.entry;
  const Distribution& d = r.distribution;
  std::string text =
      fmt::format("{},{},{},{},{},{},{},{},{},{},{:.7g},{},{},{},{},{},{}", entry.function, entry.type, who, limits.seed, count,
                  r.crossed, r.compared, r.judged, r.settled, r.left, r.worst.ulp, DecimalOf(entry, r.worst.point),
                  PatternOf(entry, r.worst.point), subject.is_own ? fmt::format("{:g}", subject.bound) : "", r.wrong_class,
                  r.wrong_class != 0 ? DecimalOf(entry, r.wrong_at) : "", d.count);
  const auto share = [&](double x) {
    return d.count == 0 ? std::string() : fmt::format("{:.6g}", x / static_cast<double>(d.count));
  };
  for (const uint64_t within : d.within) text += fmt::format(",{}", share(static_cast<double>(within)));
  return fmt::format("{},{}", text, share(d.sum));
}

// A row's key is its first four fields: searches with other seeds add to what is known.
std::string KeyOf(const std::string& row) {
  size_t end = 0;
  for (int i = 0; i < 4; ++i) end = row.find(',', end) + 1;
  return row.substr(0, end);
}

void AddPeers(std::vector<HuntSubject>& subjects, const Export& entry) {
  if (support::IsComplex(entry.input) || support::DeclarationOf(entry).c_name.empty()) return;
  if (entry.function == "Modf") return;  // others give the fraction first
  constexpr double nothing_promised = std::numeric_limits<double>::infinity();
  for (const bench::Peer& peer : bench::FindPeers(entry, support::FastestLibrary())) {
    subjects.push_back({peer.name, &entry, peer.loop, nothing_promised, false});
  }
  if (const support::ScalarLoop loop = support::FindScalarLoop(entry)) {
    subjects.push_back({"libm", &entry, loop, nothing_promised, false});
    if (IsCircular(entry)) subjects.push_back({"libm below 2^26", &entry, loop, nothing_promised, false, circular_reach});
  }
}

void WriteCurve(const std::string& folder, std::string_view name, const std::vector<Bin>& curve) {
  std::filesystem::create_directories(folder);
  std::ofstream file(std::filesystem::path(folder) / fmt::format("{}.dat", name));
  for (const Bin& bin : curve) fmt::print(file, "{:.6g} {:.4g}\n", bin.x, bin.ulp);
}

class Report {
 public:
  Report(const Library& library, const HuntRequest& request) : library_(library), request_(request) {}

  void Add(const Group& group) {
    if (!HasReference(*group[0])) return;
    std::vector<HuntSubject> subjects = OwnSubjects(library_, group);
    if (request_.limits.compares) subjects.erase(subjects.begin(), subjects.end() - 1);
    if (request_.with_peers) AddPeers(subjects, *group[0]);
    const std::vector<HuntResult> results = Hunt(library_, subjects, request_.limits);
    const std::scoped_lock lock(mutex_);
    std::vector<std::string> rows;
    for (size_t i = 0; i < subjects.size(); ++i) AddSubject(group, subjects, results, i, rows);
    std::fflush(stdout);
    if (!request_.csv.empty()) UpdateRows(request_.csv, csv_header, rows, KeyOf);
  }

 private:
  void AddSubject(const Group& group, const std::vector<HuntSubject>& subjects, const std::vector<HuntResult>& results,
                  size_t i, std::vector<std::string>& rows) const {
    const HuntSubject& subject = subjects[i];
    const HuntResult& r = results[i];
    const uint64_t count =
        r.compared + r.judged + std::max_element(results.begin(), results.end(), [](const auto& a, const auto& b) {
                                  return a.crossed < b.crossed;
                                })->crossed;
    fmt::print("{:<10} {:<4} {:<10} {:>9.3g} {:>9.3g} {:>9.3g} {:>10.7g} ulp at {}{}{}\n", subject.entry->function,
               subject.entry->type, subject.name, static_cast<double>(r.crossed), static_cast<double>(r.compared),
               static_cast<double>(r.judged), r.worst.ulp, DecimalOf(*subject.entry, r.worst.point),
               r.worst.ulp > subject.bound ? "  BEYOND THE LIMIT" : "",
               r.wrong_class != 0
                   ? fmt::format("  {} of the wrong class, as at {}", r.wrong_class, DecimalOf(*subject.entry, r.wrong_at))
                   : "");
    // Where all tags are one kernel the finding is that of each.
    const bool is_for_all = subject.is_own && group.size() > 1 && i == 0 && (subjects.size() == 1 || !subjects[1].is_own);
    for (const Export* entry : group) {
      if (!is_for_all && entry != group.back()) continue;
      const std::string who = is_for_all ? std::string(entry->tag) : subject.name.empty() ? "exact" : subject.name;
      HuntSubject as = subject;
      if (is_for_all) as.bound = Bound(*entry);
      rows.push_back(Row(as, who, r, request_.limits, count));
      if (!subject.is_own || request_.curves.empty()) continue;
      WriteCurve(request_.curves, is_for_all ? entry->name : subject.entry->name, r.curve);
    }
  }

  const Library& library_;
  const HuntRequest& request_;
  std::mutex mutex_;
};

}  // namespace

void HuntGroups(const Library& library, const std::vector<Group>& groups, const HuntRequest& request) {
  Report report(library, request);
  std::atomic<size_t> next = 0;
  std::string problem;
  std::mutex mutex;
  const auto work = [&] {
    try {
      for (size_t i; (i = next++) < groups.size();) report.Add(groups[i]);
    } catch (const std::exception& failure) {
      const std::scoped_lock lock(mutex);
      problem = failure.what();
      next = groups.size();
    }
  };
  OnThreads(request.threads, work);
  if (!problem.empty()) throw std::runtime_error(problem);
}

}  // namespace lum::accuracy
