// The results of a function, written in one of several formats.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lumvm/engine.h"
#include "lumvm/input.h"
#include "lumvm/numbers.h"
#include "lumvm/output.h"

namespace lum::tool {

enum class Format { text, csv, raw, npy, json };

struct ResultsRequest {
  std::string path = "-";
  Format format = Format::text;
  Notation notation = Notation::decimal;
  const support::Export* entry = nullptr;
  const Input* input = nullptr;
  const Engine* engine = nullptr;
};

// What is known at the end.
struct Summary {
  uint64_t count = 0;
  const Reports* reports = nullptr;
  std::vector<std::string> warnings;
};

class Results {
 public:
  virtual ~Results() = default;
  virtual void Add(const Block& block, const std::byte* dst1, const std::byte* dst2) = 0;
  // Completes the output, which until then is not there.
  virtual void Finish(const Summary& summary) = 0;
};

std::unique_ptr<Results> OpenResults(const ResultsRequest& request);

// A text as a string of JSON, with the quotation marks.
std::string JsonString(std::string_view text);

}  // namespace lum::tool
