#include "lumvm/results.h"

#include <fmt/format.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "lumvm/names.h"

namespace lum::tool {
namespace {

using support::Export;

class FileResults : public Results {
 public:
  FileResults(const ResultsRequest& request, bool is_spooled)
      : entry_(*request.entry),
        notation_(request.notation),
        size_(support::SizeOf(entry_.output)),
        output_(request.path, is_spooled) {}

 protected:
  const Export& entry_;
  Notation notation_;
  size_t size_;
  Output output_;
};

// An element a line; of two outputs both in one line.
class TextResults : public FileResults {
 public:
  using FileResults::FileResults;
  void Add(const Block& block, const std::byte* dst1, const std::byte* dst2) override {
    for (size_t i = 0; i < block.count; ++i) {
      char* end = FormatElement(output_.Room(2 * element_text_size + 2), entry_.output, dst1 + i * size_, notation_);
      if (entry_.outputs() == 2) {
        *end++ = ' ';
        end = FormatElement(end, entry_.output, dst2 + i * size_, notation_);
      }
      *end++ = '\n';
      output_.Advance(end);
    }
  }
  void Finish(const Summary&) override { output_.Finish(); }
};

// The lines of a table with the results behind them; of other inputs a table of arguments and results.
class CsvResults : public FileResults {
 public:
  explicit CsvResults(const ResultsRequest& request)
      : FileResults(request, false), delimiter_(request.input->delimiter()), is_table_(request.input->is_table()) {
    const auto head = request.input->table_head();
    if (is_table_ && !head) return;
    std::string line = head.value_or("");
    if (!is_table_) {
      Name(line, "x", entry_.input);
      if (entry_.inputs() == 2) Name(line, "y", entry_.input);
    }
    Name(line, std::string(entry_.function), entry_.output);
    if (entry_.outputs() == 2) Name(line, fmt::format("{}.2", entry_.function), entry_.output);
    output_.Write(line + '\n');
  }

  void Add(const Block& block, const std::byte* dst1, const std::byte* dst2) override {
    const size_t input_size = support::SizeOf(entry_.input);
    for (size_t i = 0; i < block.count; ++i) {
      bool is_first = !is_table_;
      if (is_table_) output_.Write(block.lines[i]);
      if (!is_table_) {
        Put(entry_.input, block.src1.data() + i * input_size, is_first);
        if (entry_.inputs() == 2) Put(entry_.input, block.src2.data() + i * input_size, is_first);
      }
      Put(entry_.output, dst1 + i * size_, is_first);
      if (entry_.outputs() == 2) Put(entry_.output, dst2 + i * size_, is_first);
      output_.Write("\n");
    }
  }
  void Finish(const Summary&) override { output_.Finish(); }

 private:
  void Name(std::string& line, const std::string& name, support::Element element) const {
    if (!line.empty()) line += delimiter_;
    if (support::IsComplex(element)) line.append(name).append(".re").append(1, delimiter_).append(name).append(".im");
    else line += name;
  }
  void Put(support::Element element, const std::byte* at, bool& is_first) {
    for (size_t part = 0; part < (support::IsComplex(element) ? 2 : 1); ++part) {
      char* end = output_.Room(element_text_size);
      if (!is_first) *end++ = delimiter_;
      is_first = false;
      output_.Advance(FormatPart(end, element, at, part, notation_));
    }
  }

  char delimiter_;
  bool is_table_;
};

// All elements as they stand in memory; of two outputs the second behind the first.
class RawResults : public FileResults {
 public:
  explicit RawResults(const ResultsRequest& request, bool is_spooled = false) : FileResults(request, is_spooled) {
    if (entry_.outputs() == 2) second_ = std::make_unique<Spool>();
  }
  void Add(const Block& block, const std::byte* dst1, const std::byte* dst2) override {
    output_.Write({reinterpret_cast<const char*>(dst1), block.count * size_});
    if (second_) second_->Write(dst2, block.count * size_);
  }
  void Finish(const Summary& summary) override {
    if (second_) second_->CopyTo(output_);
    CompleteHeader(summary);
    output_.Finish();
  }

 protected:
  virtual void CompleteHeader(const Summary&) {}

 private:
  std::unique_ptr<Spool> second_;
};

// Raw results behind the header of a .npy array. The shape is the input's where that is one .npy array; of two outputs, two
// such arrays.
class NpyResults : public RawResults {
 public:
  explicit NpyResults(const ResultsRequest& request) : RawResults(request, true) {
    const NpyHeader* header = request.input->npy();
    if (header != nullptr) {
      shape_ = header->shape;
      is_fortran_order_ = header->is_fortran_order && shape_.size() > 1;
      if (request.input->alternates()) shape_.pop_back();
    } else {
      shape_ = {0};
      count_at_ = entry_.outputs() == 2 ? 1 : 0;
    }
    if (entry_.outputs() == 2) shape_.insert(is_fortran_order_ ? shape_.end() : shape_.begin(), 2);
    output_.Write(Header());
  }

 protected:
  void CompleteHeader(const Summary& summary) override {
    if (count_at_ < 0) return;
    shape_[static_cast<size_t>(count_at_)] = summary.count;
    output_.Rewrite(Header());
  }

 private:
  std::string Header() const { return NpyHeaderText(entry_.output, shape_, is_fortran_order_); }

  std::vector<uint64_t> shape_;
  bool is_fortran_order_ = false;
  int count_at_ = -1;  // the dimension that is known at the end alone
};

// One document with the request, the results and all that is to be said of them. What is no finite decimal number is a string;
// a complex number is a list of two, and so are two outputs.
class JsonResults : public FileResults {
 public:
  explicit JsonResults(const ResultsRequest& request) : FileResults(request, true) {
    output_.Write(fmt::format("{{\"function\": \"{}\", \"type\": \"{}\", \"tag\": \"{}\", \"name\": \"{}\",\n", entry_.function,
                              entry_.type, entry_.tag, entry_.name));
    output_.Write(fmt::format("\"library\": {}, \"layer\": \"{}\",\n\"results\": [",
                              JsonString(request.engine->version().version), request.engine->layer()));
  }

  void Add(const Block& block, const std::byte* dst1, const std::byte* dst2) override {
    for (size_t i = 0; i < block.count; ++i) {
      output_.Write(is_first_ ? "\n" : ",\n");
      is_first_ = false;
      if (entry_.outputs() == 2) output_.Write("[");
      Put(dst1 + i * size_);
      if (entry_.outputs() == 2) {
        output_.Write(", ");
        Put(dst2 + i * size_);
        output_.Write("]");
      }
    }
  }

  void Finish(const Summary& summary) override {
    nlohmann::ordered_json end;
    end["count"] = summary.count;
    end["status"] = {{"value", static_cast<int>(summary.reports->last())},
                     {"name", support::StatusName(summary.reports->last())}};
    end["reports"] = nlohmann::ordered_json::array();
    for (const auto& kind : summary.reports->kinds()) {
      end["reports"].push_back({{"status", support::StatusName(kind.status)}, {"count", kind.count}, {"first", kind.first}});
    }
    end["warnings"] = summary.warnings;
    const std::string text = end.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    output_.Write("],\n");
    output_.Write(std::string_view(text).substr(1));
    output_.Write("\n");
    output_.Finish();
  }

 private:
  void PutPart(const std::byte* at, size_t part) {
    char* const start = output_.Room(element_text_size) + 1;
    char* end = FormatPart(start, entry_.output, at, part, notation_);
    const std::string_view text(start, static_cast<size_t>(end - start));
    const bool is_number = notation_ == Notation::decimal && text.find_first_of("in") == text.npos;
    if (is_number) {
      std::copy(start, end, start - 1);
      --end;
    } else {
      start[-1] = *end++ = '"';
    }
    output_.Advance(end);
  }
  void Put(const std::byte* at) {
    if (!support::IsComplex(entry_.output)) {
      PutPart(at, 0);
      return;
    }
    output_.Write("[");
    PutPart(at, 0);
    output_.Write(", ");
    PutPart(at, 1);
    output_.Write("]");
  }

  bool is_first_ = true;
};

}  // namespace

std::unique_ptr<Results> OpenResults(const ResultsRequest& request) {
  switch (request.format) {
    case Format::csv:
      return std::make_unique<CsvResults>(request);
    case Format::raw:
      return std::make_unique<RawResults>(request);
    case Format::npy:
      return std::make_unique<NpyResults>(request);
    case Format::json:
      return std::make_unique<JsonResults>(request);
    case Format::text:
      break;
  }
  return std::make_unique<TextResults>(request, false);
}

std::string JsonString(std::string_view text) {
  return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace lum::tool
