#include <fmt/format.h>

#include "lumvm/commands.h"
#include "lumvm/errors.h"
#include "lumvm/names.h"
#include "lumvm/request.h"

namespace lum::tool {
namespace {

Format FormatOf(const ApplyOptions& options) {
  if (options.is_json) return Format::json;
  const std::string path = Lower(options.output), name = Lower(options.format);
  if (name.empty()) {
    if (path.ends_with(".npy")) return Format::npy;
    if (options.is_raw) return Format::raw;
    if (path.ends_with(".csv")) return Format::csv;
    return path.ends_with(".json") ? Format::json : Format::text;
  }
  if (name == "text") return Format::text;
  if (name == "csv") return Format::csv;
  if (name == "raw") return Format::raw;
  if (name == "npy") return Format::npy;
  if (name == "json") return Format::json;
  throw InputError(fmt::format("no format {}; there are text, csv, raw, npy and json", Quoted(options.format)));
}

}  // namespace

void Apply(const ApplyOptions& options) {
  const Format format = FormatOf(options);
  const Request request = Resolve(options);
  const Engine engine(options.layer);
  const support::Export& entry = *request.entry;
  Calls calls(request, entry, engine.Address(entry));
  const auto results = OpenResults({.path = options.output,
                                    .format = format,
                                    .notation = options.notation,
                                    .entry = &entry,
                                    .input = request.input.get(),
                                    .engine = &engine});
  Summary summary;
  summary.reports = &calls.reports();
  {
    Progress progress;
    Block block;
    while (request.input->Next(block)) {
      calls.Run(block);
      results->Add(block, calls.dst1(), calls.dst2());
      progress.Show(calls.count(), request.input->share());
    }
  }
  summary.count = calls.count();
  summary.warnings = request.warnings;
  for (const std::string& line : request.input->warnings()) summary.warnings.push_back(line);
  results->Finish(summary);
  if (format == Format::json) return;
  for (const std::string& line : summary.warnings) fmt::print(stderr, "lumvm: warning: {}\n", line);
  for (const std::string& line : ReportLines(calls.reports(), summary.count)) fmt::print(stderr, "lumvm: {}\n", line);
}

}  // namespace lum::tool
