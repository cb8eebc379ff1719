#include "lumvm/table.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstring>

#include "lumvm/errors.h"
#include "lumvm/numbers.h"

namespace lum::tool {
namespace {

constexpr size_t longest_record = size_t{1} << 24;

// The fields of a record. Quotation marks around a field keep delimiters and line ends; a doubled one inside stands for itself.
std::vector<std::string> Fields(std::string_view record, char delimiter) {
  std::vector<std::string> fields(1);
  bool is_quoted = false;
  for (size_t i = 0; i < record.size(); ++i) {
    const char c = record[i];
    if (c == '"' && is_quoted && i + 1 < record.size() && record[i + 1] == '"') {
      fields.back() += c;
      ++i;
    } else if (c == '"') {
      is_quoted = !is_quoted;
    } else if (c == delimiter && !is_quoted) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  for (std::string& field : fields) {
    const size_t first = field.find_first_not_of(" \t");
    field = first == field.npos ? "" : field.substr(first, field.find_last_not_of(" \t") - first + 1);
  }
  return fields;
}

template <class T> class Table : public Input {
 public:
  Table(std::unique_ptr<Bytes> bytes, const InputRequest& request)
      : bytes_(std::move(bytes)),
        element_(request.element),
        inputs_(static_cast<size_t>(request.inputs)),
        delimiter_(request.delimiter) {
    const size_t parts = support::IsComplex(element_) ? 2 : 1;
    if (request.columns.size() != inputs_ && request.columns.size() != parts * inputs_) {
      throw InputError(
          fmt::format("{} {} wanted, not {}", inputs_, inputs_ == 1 ? "column is" : "columns are", request.columns.size()));
    }
    has_parts_ = request.columns.size() != inputs_;
    while (bytes_->View().size() < 3 && bytes_->Refill()) {}
    if (bytes_->View().starts_with("\xEF\xBB\xBF")) bytes_->Consume(3);
    std::string first;
    if (!NextRecord(first)) throw InputError(fmt::format("{}: no lines", bytes_->name()));
    if (delimiter_ == 0)
      delimiter_ =
          *std::ranges::max_element(std::string_view(",;\t"), {}, [&](char c) { return std::ranges::count(first, c); });
    FindColumns(Fields(first, delimiter_), request.columns);
    if (has_head_) head_ = first;
    else pending_ = first;
  }

  bool Next(Block& block) override {
    const size_t size = support::SizeOf(element_);
    block.count = 0;
    block.lines.clear();
    block.src1.resize(block_size * size);
    if (inputs_ == 2) block.src2.resize(block_size * size);
    std::string record;
    while (block.count < block_size) {
      if (pending_) {
        record = *pending_;
        pending_.reset();
      } else if (!NextRecord(record)) {
        break;
      }
      const auto fields = Fields(record, delimiter_);
      for (size_t input = 0; input < inputs_; ++input) {
        T parts[2] = {};
        ReadElement(fields, input, parts);
        std::memcpy((input == 0 ? block.src1 : block.src2).data() + block.count * size, parts, size);
      }
      block.lines.push_back(record);
      ++block.count;
    }
    return block.count != 0;
  }

  std::optional<std::string> table_head() const override { return head_; }
  bool is_table() const override { return true; }
  char delimiter() const override { return delimiter_; }
  std::string name() const override { return bytes_->name(); }
  std::optional<double> share() const override {
    if (!bytes_->size() || *bytes_->size() == 0) return std::nullopt;
    return std::min(1.0, static_cast<double>(bytes_->consumed()) / static_cast<double>(*bytes_->size()));
  }
  std::vector<std::string> warnings() const override {
    if (out_of_range_.count == 0) return {};
    return {out_of_range_.first + (out_of_range_.count > 1 ? fmt::format(", and {} more", out_of_range_.count - 1) : "")};
  }

 private:
  // The next line that is not empty, without its end. Quoted fields may go over several lines.
  bool NextRecord(std::string& record) {
    record.clear();
    bool is_quoted = false;
    line_ = next_line_;
    while (true) {
      const std::string_view view = bytes_->View();
      size_t at = 0;
      for (; at < view.size() && (is_quoted || view[at] != '\n'); ++at) {
        if (view[at] == '"') is_quoted = !is_quoted;
        if (view[at] == '\n') ++next_line_;
      }
      record.append(view.substr(0, at));
      bytes_->Consume(at);
      if (record.size() > longest_record) Fail("a line of more than 16 MiB, or a quotation mark that is not closed");
      if (at < view.size()) {
        bytes_->Consume(1);
        ++next_line_;
        if (record.ends_with('\r')) record.pop_back();
        if (!record.empty()) return true;
        line_ = next_line_;
      } else if (!bytes_->Refill()) {
        if (is_quoted) Fail("a quotation mark that is not closed");
        return !record.empty();
      }
    }
  }

  // Columns are names of the first line or numbers from 1; a first line whose fields are no numbers holds names.
  void FindColumns(const std::vector<std::string>& first, const std::vector<std::string>& wanted) {
    for (const std::string& column : wanted) {
      size_t number = 0;
      const auto [end, error] = std::from_chars(column.data(), column.data() + column.size(), number);
      const auto name = std::ranges::find(first, column);
      if (name != first.end()) {
        columns_.push_back(static_cast<size_t>(name - first.begin()));
        has_head_ = has_head_ || !IsNumber(column);
      } else if (error == std::errc() && end == column.data() + column.size() && number >= 1 && number <= first.size()) {
        columns_.push_back(number - 1);
        has_head_ = has_head_ || !IsNumber(first[number - 1]);
      } else {
        throw InputError(fmt::format("{}: no column {}; there are {}{}", bytes_->name(), Quoted(column), first.size(),
                                     IsNumber(first[0]) ? "" : fmt::format(": {}", Names(first))));
      }
    }
  }

  static std::string Names(const std::vector<std::string>& names) {
    std::string text;
    for (size_t i = 0; i < std::min<size_t>(names.size(), 12); ++i) text += (i == 0 ? "" : ", ") + Quoted(names[i]);
    return text + (names.size() > 12 ? ", ..." : "");
  }

  [[noreturn]] void Fail(const std::string& what) const {
    throw InputError(fmt::format("{}:{}: {}", bytes_->name(), line_, what));
  }

  void Note(Reading reading, const std::string& field, T value) {
    if (reading == Reading::none) Fail(fmt::format("not a number of this type: {}", Quoted(field)));
    if (reading == Reading::out_of_range) out_of_range_.Add(bytes_->name(), line_, field, static_cast<double>(value));
  }

  void ReadElement(const std::vector<std::string>& fields, size_t input, T* parts) {
    const size_t step = has_parts_ ? 2 : 1;
    for (size_t part = 0; part < step; ++part) {
      const size_t column = columns_[input * step + part];
      if (column >= fields.size()) Fail(fmt::format("{} columns, and number {} is wanted", fields.size(), column + 1));
      const std::string& field = fields[column];
      Reading reading = Reading::none;
      if (support::IsComplex(element_) && !has_parts_) reading = ParseComplex(field, parts[0], parts[1]);
      if (reading == Reading::none) {
        if (support::IsComplex(element_) && !has_parts_) parts[1] = 0;
        reading = ParseNumber(field, parts[part]);
      }
      Note(reading, field, parts[part]);
    }
  }

  std::unique_ptr<Bytes> bytes_;
  support::Element element_;
  size_t inputs_;
  char delimiter_;
  bool has_parts_ = false, has_head_ = false;
  std::vector<size_t> columns_;
  std::optional<std::string> head_, pending_;
  uint64_t line_ = 1, next_line_ = 1;
  OutOfRange out_of_range_;
};

}  // namespace

std::unique_ptr<Input> OpenTable(std::unique_ptr<Bytes> bytes, const InputRequest& request) {
  if (bytes->name().ends_with(".npy") || request.is_raw) throw InputError("--column takes a table in text");
  if (support::Is32Bit(request.element)) return std::make_unique<Table<float>>(std::move(bytes), request);
  return std::make_unique<Table<double>>(std::move(bytes), request);
}

}  // namespace lum::tool
