#include "lumvm/request.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>

#include "lumvm/errors.h"
#include "lumvm/names.h"

namespace lum::tool {
namespace {

using support::Export;

support::Element ElementOf(std::string_view type) {
  using enum support::Element;
  return type == "32f" ? f32 : type == "64f" ? f64 : type == "32fc" ? c32 : c64;
}

bool HasType(std::string_view function, std::string_view type) {
  return std::ranges::any_of(support::Exports(),
                             [&](const Export& entry) { return entry.function == function && entry.type == type; });
}

// Where the user names no type: that of a .npy file, else 64f, or 64fc where the function or the numbers are complex.
std::string_view GuessType(const ApplyOptions& options, std::string_view function) {
  for (const std::string& argument : options.arguments) {
    const auto element = ElementOfFile(argument);
    if (!element) continue;
    const std::string type(TypeName(*element));
    // CIS takes real numbers and is named by the complex type that it gives.
    return HasType(function, type) ? TypeName(*element) : support::Is32Bit(*element) ? "32fc" : "64fc";
  }
  const bool is_complex = std::ranges::any_of(options.arguments, IsComplexLiteral) || IsComplexLiteral(options.value);
  return is_complex || !HasType(function, "64f") ? "64fc" : "64f";
}

constexpr double first_shown = 2, shown_every = 0.5;  // seconds

double Now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

}  // namespace

Request Resolve(const ApplyOptions& options) {
  const Named named = FindFunction(options.function);
  const std::string type(!options.type.empty() ? FindType(options.type)
                         : !named.type.empty() ? named.type
                                               : GuessType(options, named.function));
  Request request;
  request.tags = ExportsOf(named.function, type);
  request.entry = &FindExport(named.function, type, options.tag.empty() ? std::string(named.tag) : options.tag);
  const Export& entry = *request.entry;

  if (entry.has_parameter() == options.value.empty()) {
    throw InputError(entry.has_parameter() ? fmt::format("{} needs --value, the number that all elements share", entry.function)
                                           : fmt::format("{} takes no --value", entry.function));
  }
  InputRequest input;
  input.columns = options.columns;
  input.is_raw = options.is_raw;
  input.element = entry.input;
  input.inputs = entry.inputs();
  if (entry.has_parameter()) {
    request.value = ParseArgument(options.value, "--value", ElementOf(entry.type), request.warnings);
  }
  const bool has_number = std::ranges::any_of(options.arguments, IsNumber);
  if (has_number && !std::ranges::all_of(options.arguments, IsNumber)) {
    const auto file = std::ranges::find_if_not(options.arguments, IsNumber);
    throw InputError(
        fmt::format("{} is no number, and the others are; ./NAME is a file whose name is a number", Quoted(*file)));
  }
  (has_number ? input.words : input.files) = options.arguments;
  if (options.delimiter.size() > 1 && options.delimiter != "\\t" && options.delimiter != "tab") {
    throw InputError(fmt::format("--delimiter: one character or 'tab' is wanted, not {}", Quoted(options.delimiter)));
  }
  if (!options.delimiter.empty()) input.delimiter = options.delimiter.size() > 1 ? '\t' : options.delimiter[0];
  if (!options.columns.empty() && has_number) throw InputError("--column takes the columns of a file");
  request.input = OpenInput(input);
  return request;
}

Progress::Progress() : is_terminal_(isatty(STDERR_FILENO) != 0), next_(Now() + first_shown) {}

Progress::~Progress() {
  if (is_shown_) fmt::print(stderr, "\r\x1B[K");
}

void Progress::Show(uint64_t count, std::optional<double> share) {
  if (!is_terminal_ || Now() < next_) return;
  next_ = Now() + shown_every;
  is_shown_ = true;
  fmt::print(stderr, "\r\x1B[Klumvm: {} elements{}", count, share ? fmt::format(", {:.0f} % of the input", 100 * *share) : "");
}

Calls::Calls(const Request& request, const Export& entry, void* address)
    : request_(request),
      entry_(entry),
      address_(address),
      reports_(address, entry),
      dst1_(block_size * support::SizeOf(entry.output)),
      dst2_(entry.outputs() == 2 ? dst1_.size() : 0) {}

support::Arguments Calls::ArgumentsOf(const Block& block) {
  return {block.src1.data(), block.src2.data(), request_.value.data(),
          dst1_.data(),      dst2_.data(),      static_cast<int32_t>(block.count)};
}

void Calls::Run(const Block& block) {
  const support::Arguments arguments = ArgumentsOf(block);
  const LumStatus status = support::CallAddress(address_, entry_, arguments);
  reports_.Add(status, arguments, count_);
  count_ += block.count;
}

std::vector<std::string> ReportLines(const Reports& reports, uint64_t count) {
  std::vector<std::string> lines;
  for (const auto& kind : reports.kinds()) {
    lines.push_back(fmt::format("{}: {} of {} elements, the first one at index {}", support::StatusName(kind.status),
                                kind.count, count, kind.first));
  }
  return lines;
}

}  // namespace lum::tool
