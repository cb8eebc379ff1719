// Measures the error of the exported functions against MPFR and MPC, and keeps the results in one file.
#include <fmt/format.h>
#include <fmt/ostream.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "accuracy/cheap_reference.h"
#include "accuracy/exhaustive.h"
#include "accuracy/hunt_report.h"
#include "accuracy/inputs.h"
#include "accuracy/measure.h"
#include "accuracy/property_report.h"
#include "accuracy/records.h"
#include "accuracy/text.h"
#include "accuracy/threads.h"

namespace {

using namespace lum::accuracy;
using lum::support::Export;
using lum::support::Library;

constexpr const char* csv_header =
    "export,inputs,count,max_ulp,bits,at,at_bits,correctly_rounded_percent,wrong_class,norm_ulp,bound_ulp";

std::string Row(const Export& entry, const std::string& inputs, const Accuracy& a) {
  const Point& at = a.worst.point;
  const bool is_complex = lum::support::IsComplex(entry.output);
  return fmt::format("{},{},{},{:.7g},{:.1f},{},{},{:.4f},{},{},{:g}", entry.name, inputs, a.count, a.worst.ulp, a.Bits(entry),
                     DecimalOf(entry, at), PatternOf(entry, at),
                     100.0 * static_cast<double>(a.correctly_rounded) / static_cast<double>(a.count), a.wrong_class,
                     is_complex ? fmt::format("{:.7g}", a.worst_norm.ulp) : "", Bound(entry));
}

std::string KeyOf(const std::string& row) { return row.substr(0, row.find(',', row.find(',') + 1)); }

void WriteCurve(const std::filesystem::path& directory, const Export& entry, const Accuracy& accuracy) {
  std::filesystem::create_directories(directory);
  std::ofstream file(directory / fmt::format("{}.dat", entry.name));
  for (const Bin& bin : accuracy.curve) fmt::print(file, "{:.9g} {:.6g}\n", bin.x, bin.ulp);
}

struct Options {
  std::vector<std::string> functions;
  bool exhaustive = false;
  bool hunt = false;
  HuntRequest hunt_request;
  bool properties = false;
  PropertyRequest property_request;
  std::vector<std::string> inputs;
  size_t count = 60000;
  std::string csv;
  std::string curves;
  std::string target;
};

// The named functions' exports, or all; of one 32f input if all arguments are to be taken. A name is a function (Exp) or an
// export (lumsExp_32f_A24).
std::vector<const Export*> Chosen(const Options& options) {
  std::vector<const Export*> chosen;
  for (const Export& entry : lum::support::Exports()) {
    const auto named = [&](const std::string& name) { return name == entry.function || name == entry.name; };
    if (options.exhaustive && FindCheapReference(entry) == nullptr) continue;
    if (options.functions.empty() || std::ranges::any_of(options.functions, named)) chosen.push_back(&entry);
  }
  for (const std::string& name : options.functions) {
    const auto is_named = [&](const Export* entry) { return name == entry->function || name == entry->name; };
    if (std::ranges::any_of(chosen, is_named)) continue;
    throw std::runtime_error(fmt::format("no function '{}'{}", name, options.exhaustive ? " of one 32f input" : ""));
  }
  return chosen;
}

void PrintRow(const Export& entry, const std::string& inputs, const Accuracy& a) {
  const double share = 100.0 * static_cast<double>(a.correctly_rounded) / static_cast<double>(a.count);
  fmt::print("{:<24} {:<13} {:>10.7g} ulp {:>6.1f} bits {:>9.4f} % rounded", entry.name, inputs, a.worst.ulp, a.Bits(entry),
             share);
  if (lum::support::IsComplex(entry.output)) fmt::print(" {:>10.7g} ulp norm-wise", a.worst_norm.ulp);
  if (a.wrong_class != 0) { fmt::print("  {} of the wrong class, as at {}", a.wrong_class, DecimalOf(entry, a.wrong_at)); }
  fmt::print("\n");
  std::fflush(stdout);
}

void Report(const Options& options, const Export& entry, const std::string& inputs, const Accuracy& accuracy) {
  PrintRow(entry, inputs, accuracy);
  if (!options.csv.empty()) UpdateRows(options.csv, csv_header, {Row(entry, inputs, accuracy)}, KeyOf);
}

// The chosen exports by function and type, those of all tags together.
using Group = std::vector<const Export*>;
std::vector<Group> Grouped(const Group& chosen) {
  std::vector<Group> groups;
  for (const Export* entry : chosen) {
    const bool is_new =
        groups.empty() || groups.back()[0]->function != entry->function || groups.back()[0]->type != entry->type;
    if (is_new) groups.emplace_back();
    groups.back().push_back(entry);
  }
  return groups;
}

void RunOverSamples(const Options& options, const Library& library, const Group& group) {
  const Reference reference = FindReference(*group[0]);
  if (reference == nullptr) {
    fmt::print(stderr, "accuracy: {} {} is skipped: no reference\n", group[0]->function, group[0]->type);
    return;
  }
  for (const InputClass inputs : input_classes) {
    if (!options.inputs.empty() && std::ranges::find(options.inputs, NameOf(inputs)) == options.inputs.end()) continue;
    const std::vector<Point> points = PointsOf(*group[0], inputs, options.count);
    if (points.empty()) continue;
    const ExactValues exact(reference, points);
    for (const Export* entry : group) {
      const Accuracy accuracy = Measure(library, *entry, points, exact);
      if (inputs == InputClass::sample && !options.curves.empty()) WriteCurve(options.curves, *entry, accuracy);
      Report(options, *entry, NameOf(inputs), accuracy);
    }
  }
}

void RunOverAll(const Options& options, const Library& library, const Group& group) {
  const std::vector<Accuracy> accuracies = MeasureAll(library, group);
  for (size_t i = 0; i < group.size(); ++i) Report(options, *group[i], "all", accuracies[i]);
}

// False where properties are not those of the file to compare with.
bool Run(const Options& options) {
  std::string target = options.target;
  if (target.empty()) target = lum::support::FastestLibrary();
  if (!lum::support::ProcessorRuns(target)) throw std::runtime_error("this processor does not run " + target);
  std::string error;
  const auto library = Library::LoadBuilt(target, error);
  if (!library) throw std::runtime_error(error);
  if (options.hunt) {
    HuntGroups(*library, Grouped(Chosen(options)), options.hunt_request);
    return true;
  }
  if (options.properties) return ReportProperties(*library, Grouped(Chosen(options)), options.property_request);
  for (const Group& group : Grouped(Chosen(options))) {
    if (options.exhaustive) RunOverAll(options, *library, group);
    else RunOverSamples(options, *library, group);
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Measures the error of functions against MPFR and MPC", "accuracy");
  Options options;
  uint64_t count = 0;
  unsigned threads = ProcessorCount();
  app.add_option("functions", options.functions, "functions (Exp) or exports (lumsExp_32f_A24); all when none is given");
  app.add_flag("--exhaustive", options.exhaustive, "all 2^32 arguments of the functions of one 32f input");
  const auto hunt = app.add_flag("--hunt", options.hunt, "search hundreds of millions of arguments for the largest errors");
  HuntRequest& hunt_options = options.hunt_request;
  app.add_option("--seconds", hunt_options.limits.seconds, "with --hunt: time for a function and type")->needs(hunt);
  app.add_option("--seed", hunt_options.limits.seed, "with --hunt: start of the random numbers")->needs(hunt);
  app.add_flag("--peers", hunt_options.with_peers, "with --hunt: SLEEF and the C library, too")->needs(hunt);
  app.add_option("--hunted", hunt_options.csv, "with --hunt: results file to update");
  app.add_flag("--compared", hunt_options.limits.compares,
               "with --hunt: of the highest tags of 64f, results equal to the C library's are judged no further")
      ->needs(hunt)
      ->excludes("--peers");
  app.add_option("--whole", hunt_options.limits.exact_every,
                 "with --hunt: one round of blocks of 64f and 64fc in so many is judged as a whole")
      ->needs(hunt)
      ->check(CLI::PositiveNumber);
  const auto properties = app.add_flag("--properties", options.properties, "symmetries, ranges, monotonicity and exact values");
  app.add_option("--found", options.property_request.csv, "with --properties: results file to update");
  app.add_option("--compare", options.property_request.compare, "with --properties: results file that has to hold")
      ->needs(properties);
  app.add_option("--share", options.property_request.limits.share_of_all,
                 "with --properties: one block in so many of all 32f arguments")
      ->needs(properties);
  app.add_option("--threads", threads, "with --hunt or --properties: as many as the machine has processors where not given")
      ->check(CLI::PositiveNumber);
  app.add_option("--inputs", options.inputs,
                 "kinds of inputs: sample, borders, quarter-turns, unit-circle; all when none is given")
      ->check(CLI::IsMember({"sample", "borders", "quarter-turns", "unit-circle"}))
      ->take_all()
      ->allow_extra_args(false);
  app.add_option("--count", count, "points a function and type: 60000, with --hunt 100000000 where not given");
  app.add_option("--csv", options.csv, "results file to update");
  app.add_option("--curves", options.curves, "folder for the error over the argument");
  app.add_option("--target", options.target, "k0, a2 or p0; the first that the processor runs");
  try {
    app.parse(argc, argv);
    if (count != 0) options.count = options.hunt_request.limits.count = options.property_request.limits.count = count;
    options.hunt_request.curves = options.curves;
    options.hunt_request.threads = options.property_request.threads = threads;
    return Run(options) ? 0 : 1;
  } catch (const CLI::Success& request) { return app.exit(request); } catch (const std::exception& problem) {
    fmt::print(stderr, "accuracy: {}\n", problem.what());
    return 2;
  }
}
