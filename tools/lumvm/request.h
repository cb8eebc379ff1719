// From the options of a command to the function that is meant and its open input.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lumvm/commands.h"
#include "lumvm/input.h"

namespace lum::tool {

struct Request {
  std::vector<const support::Export*> tags;  // all of the function and type, the cheapest first
  const support::Export* entry;              // the one that is meant
  std::unique_ptr<Input> input;
  std::vector<std::byte> value;  // the scalar parameter
  std::vector<std::string> warnings;
};

Request Resolve(const ApplyOptions& options);

// Shows on a terminal how far a long work is.
class Progress {
 public:
  Progress();
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  void Show(uint64_t count, std::optional<double> share);

 private:
  bool is_terminal_, is_shown_ = false;
  double next_;
};

// One call after the other on blocks of the input, with room for the results.
class Calls {
 public:
  Calls(const Request& request, const support::Export& entry, void* address);
  // Gives the status and what reported it to the reports.
  void Run(const Block& block);
  const std::byte* dst1() const { return dst1_.data(); }
  const std::byte* dst2() const { return dst2_.data(); }
  support::Arguments ArgumentsOf(const Block& block);
  const Reports& reports() const { return reports_; }
  uint64_t count() const { return count_; }

 private:
  const Request& request_;
  const support::Export& entry_;
  void* address_;
  Reports reports_;
  std::vector<std::byte> dst1_, dst2_;
  uint64_t count_ = 0;
};

// What the elements reported, a line a status.
std::vector<std::string> ReportLines(const Reports& reports, uint64_t count);

}  // namespace lum::tool
