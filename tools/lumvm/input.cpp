#include "lumvm/input.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "lumvm/errors.h"
#include "lumvm/numbers.h"
#include "lumvm/source.h"
#include "lumvm/table.h"

namespace lum::tool {
namespace {

// One file for each input of the function, or one whose elements alternate between two inputs.
class FileInput : public Input {
 public:
  FileInput(std::vector<std::unique_ptr<Source>> sources, int inputs)
      : sources_(std::move(sources)), alternates_(inputs == 2 && sources_.size() == 1), inputs_(inputs) {
    if (!alternates_ || npy() == nullptr) return;
    const auto& shape = npy()->shape;
    if (shape.empty() || shape.back() != 2 || npy()->is_fortran_order) {
      throw InputError(fmt::format("{}: two files are wanted, or one array whose last dimension is 2", name()));
    }
  }

  bool Next(Block& block) override {
    const size_t size = support::SizeOf(sources_[0]->element());
    block.src1.resize(block_size * size);
    if (inputs_ == 2) block.src2.resize(block_size * size);
    if (alternates_) ReadAlternating(block, size);
    else block.count = sources_[0]->Read(block.src1.data(), block_size);
    if (sources_.size() == 2) {
      const size_t other = sources_[1]->Read(block.src2.data(), block_size);
      if (other != block.count) FailCounts(block.count, other, size);
    }
    seen_ += block.count;
    if (seen_ == 0 && npy() == nullptr) throw InputError(fmt::format("{}: no numbers", name()));
    return block.count != 0;
  }

  bool alternates() const override { return alternates_; }
  const NpyHeader* npy() const override { return sources_[0]->npy(); }
  std::string name() const override { return sources_[0]->bytes().name(); }

  std::optional<double> share() const override {
    const Bytes& bytes = sources_[0]->bytes();
    if (!bytes.size() || *bytes.size() == 0) return std::nullopt;
    return std::min(1.0, static_cast<double>(bytes.consumed()) / static_cast<double>(*bytes.size()));
  }

  std::vector<std::string> warnings() const override {
    std::vector<std::string> lines;
    for (const auto& source : sources_) {
      const OutOfRange& numbers = source->out_of_range();
      if (numbers.count == 0) continue;
      lines.push_back(numbers.first);
      if (numbers.count > 1) lines.back() += fmt::format(", and {} more", numbers.count - 1);
    }
    return lines;
  }

 private:
  void ReadAlternating(Block& block, size_t size) {
    both_.resize(2 * block_size * size);
    const size_t got = sources_[0]->Read(both_.data(), 2 * block_size);
    if (got % 2 != 0) throw InputError(fmt::format("{}: an odd number of elements for two inputs", name()));
    block.count = got / 2;
    for (size_t i = 0; i < block.count; ++i) {
      std::memcpy(block.src1.data() + i * size, both_.data() + 2 * i * size, size);
      std::memcpy(block.src2.data() + i * size, both_.data() + (2 * i + 1) * size, size);
    }
  }

  [[noreturn]] void FailCounts(size_t first, size_t second, size_t size) {
    uint64_t counts[] = {seen_ + first, seen_ + second};
    std::vector<std::byte> rest(block_size * size);
    for (size_t i = 0; i < 2; ++i) {
      while (const size_t more = sources_[i]->Read(rest.data(), block_size)) counts[i] += more;
    }
    throw InputError(fmt::format("{} has {} elements, {} has {}", sources_[0]->bytes().name(), counts[0],
                                 sources_[1]->bytes().name(), counts[1]));
  }

  std::vector<std::unique_ptr<Source>> sources_;
  std::vector<std::byte> both_;
  bool alternates_;
  int inputs_;
  uint64_t seen_ = 0;
};

}  // namespace

std::unique_ptr<Input> OpenInput(const InputRequest& request) {
  if (!request.columns.empty()) {
    if (request.files.size() > 1 || !request.words.empty()) throw InputError("--column takes the columns of one file");
    return OpenTable(std::make_unique<Bytes>(request.files.empty() ? "-" : request.files[0]), request);
  }
  std::vector<std::unique_ptr<Source>> sources;
  if (!request.words.empty()) {
    std::string text;
    for (const std::string& word : request.words) text.append(word).append(1, '\n');
    sources.push_back(OpenSource(std::make_unique<Bytes>("argument", text), request.element, false));
    return std::make_unique<FileInput>(std::move(sources), request.inputs);
  }
  const std::vector<std::string> files = request.files.empty() ? std::vector<std::string>{"-"} : request.files;
  if (static_cast<int>(files.size()) > request.inputs) {
    throw InputError(request.inputs == 1 ? "one input file is wanted" : "one or two input files are wanted");
  }
  if (std::ranges::count(files, "-") > 1) throw InputError("standard input can be one of the inputs, not both");
  for (const std::string& file : files) {
    sources.push_back(OpenSource(std::make_unique<Bytes>(file), request.element, request.is_raw));
  }
  if (sources.size() == 2 && sources[0]->npy() != nullptr && sources[1]->npy() != nullptr &&
      sources[0]->npy()->shape.size() > 1 && sources[0]->npy()->is_fortran_order != sources[1]->npy()->is_fortran_order) {
    throw InputError(fmt::format("{} and {} differ in the order of their elements", files[0], files[1]));
  }
  return std::make_unique<FileInput>(std::move(sources), request.inputs);
}

std::vector<std::byte> ParseArgument(const std::string& text, const std::string& name, support::Element element,
                                     std::vector<std::string>& warnings) {
  const auto source = OpenSource(std::make_unique<Bytes>(name, text), element, false);
  const size_t size = support::SizeOf(element);
  std::vector<std::byte> two(2 * size);
  if (source->Read(two.data(), 2) != 1) throw InputError(fmt::format("{}: one number is wanted, not {}", name, Quoted(text)));
  if (source->out_of_range().count != 0) warnings.push_back(source->out_of_range().first);
  two.resize(size);
  return two;
}

}  // namespace lum::tool
