#include "lumvm/source.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>

#include "lumvm/errors.h"
#include "lumvm/names.h"
#include "lumvm/numbers.h"

namespace lum::tool {
namespace {

constexpr size_t longest_word = size_t{1} << 20;

constexpr auto separators = [] {
  std::array<bool, 256> table{};
  for (const char c : {' ', '\t', '\r', '\n', '\v', '\f', ','}) table[static_cast<unsigned char>(c)] = true;
  return table;
}();
bool IsSeparator(char c) { return separators[static_cast<unsigned char>(c)]; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Numbers separated by white space or commas; # starts a comment up to the end of the line.
template <class T> class TextSource : public Source {
 public:
  TextSource(std::unique_ptr<Bytes> bytes, support::Element element) : Source(std::move(bytes), element) {
    while (bytes_->View().size() < 3 && bytes_->Refill()) {}
    const std::string_view start = bytes_->View().substr(0, 3);
    if (start == "\xEF\xBB\xBF") bytes_->Consume(3);
    if (start.starts_with("\xFF\xFE") || start.starts_with("\xFE\xFF")) {
      throw InputError(fmt::format("{}: text in UTF-16; UTF-8 or ASCII is wanted", bytes_->name()));
    }
  }

  size_t Read(std::byte* to, size_t count) override {
    const size_t parts = support::IsComplex(element_) ? 2 : 1;
    auto* values = reinterpret_cast<T*>(to);
    size_t filled = 0;
    while (filled < count * parts) {
      const size_t got = parts == 1 ? ReadPlain(values + filled, count - filled) : 0;
      filled += got;
      if (filled == count * parts) break;
      const std::string_view word = NextWord();
      if (word.empty()) break;
      filled += parts == 1 ? ParseReal(word, values[filled]) : ParsePart(word, values + filled, filled % 2 != 0);
      bytes_->Consume(word.size());
    }
    if (filled % parts != 0) Fail("a complex number lacks its imaginary part");
    return filled / parts;
  }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw InputError(fmt::format("{}:{}: {}", bytes_->name(), line_, what));
  }

  // The run of plain decimal numbers in the buffer, which is what most files hold; stops before anything else.
  size_t ReadPlain(T* to, size_t count) {
    if (in_comment_) return 0;
    const std::string_view view = bytes_->View();
    const char* at = view.data();
    const char* const end = at + view.size();
    size_t filled = 0;
    while (filled < count) {
      const char* word = at;
      uint64_t lines = 0;
      while (word != end && IsSeparator(*word)) lines += *word++ == '\n';
      const char* digits = word != end && *word == '-' ? word + 1 : word;
      if (end - digits < 2 || !IsDigit(*digits)) break;
      const auto [stop, error] = std::from_chars(word, end, to[filled]);
      if (error != std::errc() || stop == end || !IsSeparator(*stop)) break;
      line_ += lines;
      at = stop;
      ++filled;
    }
    bytes_->Consume(static_cast<size_t>(at - view.data()));
    return filled;
  }

  // The next word, which stays in the buffer; empty at the end. Of complex elements a parenthesis keeps its separators.
  std::string_view NextWord() {
    while (true) {
      const std::string_view view = bytes_->View();
      size_t at = 0;
      for (; at < view.size() && (in_comment_ || IsSeparator(view[at])); ++at) {
        if (view[at] != '\n') continue;
        ++line_;
        in_comment_ = false;
      }
      bytes_->Consume(at);
      if (at < view.size() && view[at] == '#') {
        in_comment_ = true;
        continue;
      }
      if (at < view.size()) break;
      if (!bytes_->Refill()) return {};
    }
    size_t scanned = 0;
    bool in_parenthesis = support::IsComplex(element_) && bytes_->View().front() == '(';
    while (true) {
      const std::string_view view = bytes_->View();
      for (; scanned < view.size(); ++scanned) {
        const char c = view[scanned];
        if (c == '\n' || c == '#' || (!in_parenthesis && IsSeparator(c))) return view.substr(0, scanned);
        if (c == ')') in_parenthesis = false;
      }
      if (scanned > longest_word) Fail("a word of more than a million characters");
      if (!bytes_->Refill()) return bytes_->View();
    }
  }

  size_t Note(Reading reading, std::string_view word, T value, size_t parts) {
    if (reading == Reading::none) {
      const bool has_i = !support::IsComplex(element_) && IsComplexLiteral(word);
      Fail(fmt::format("not a number of this type: {}{}", Quoted(word),
                       has_i                              ? "; complex types are 32fc and 64fc"
                       : bytes_->name().ends_with(".csv") ? "; --column takes a column of a table"
                                                          : ""));
    }
    if (reading == Reading::out_of_range) out_of_range_.Add(bytes_->name(), line_, word, static_cast<double>(value));
    return parts;
  }

  size_t ParseReal(std::string_view word, T& value) {
    const Reading reading = ParseNumber(word, value);
    return Note(reading, word, value, 1);
  }

  size_t ParsePart(std::string_view word, T* to, bool is_imaginary) {
    if (!is_imaginary) {
      const Reading reading = ParseComplex(word, to[0], to[1]);
      if (reading != Reading::none) return Note(reading, word, to[0], 2);
    } else if (IsComplexLiteral(word)) {
      Fail("a complex number lacks its imaginary part");
    }
    return ParseReal(word, to[0]);
  }

  uint64_t line_ = 1;
  bool in_comment_ = false;
};

// Elements as they stand in memory.
class RawSource : public Source {
 public:
  RawSource(std::unique_ptr<Bytes> bytes, support::Element element) : Source(std::move(bytes), element) {
    if (bytes_->size()) CheckWhole(*bytes_->size());
  }

  size_t Read(std::byte* to, size_t count) override {
    const size_t size = support::SizeOf(element_);
    const size_t got = bytes_->Read(reinterpret_cast<char*>(to), count * size);
    if (got % size != 0) CheckWhole(bytes_->consumed());
    return got / size;
  }

 private:
  void CheckWhole(uint64_t bytes) const {
    const size_t size = support::SizeOf(element_);
    if (bytes % size == 0) return;
    throw InputError(fmt::format("{}: {} bytes are not a whole number of elements of {} bytes", bytes_->name(), bytes, size));
  }
};

template <size_t size> void Swap(std::byte* at, size_t count) {
  for (size_t i = 0; i < count; ++i) std::reverse(at + i * size, at + (i + 1) * size);
}

class NpySource : public Source {
 public:
  NpySource(std::unique_ptr<Bytes> bytes, support::Element element)
      : Source(std::move(bytes), element), header_(ReadNpyHeader(*bytes_)), left_(header_.count) {
    if (header_.element == element_) return;
    throw InputError(fmt::format("{}: its elements are of NumPy's type {}{}, not of type {}", bytes_->name(),
                                 Quoted(header_.description),
                                 header_.element ? fmt::format(" ({})", TypeName(*header_.element)) : "", TypeName(element_)));
  }

  size_t Read(std::byte* to, size_t count) override {
    const size_t wanted = static_cast<size_t>(std::min<uint64_t>(count, left_));
    const size_t size = support::SizeOf(element_);
    const size_t got = bytes_->Read(reinterpret_cast<char*>(to), wanted * size);
    if (got != wanted * size) {
      throw InputError(
          fmt::format("{}: ends after {} of {} elements", bytes_->name(), header_.count - left_ + got / size, header_.count));
    }
    left_ -= wanted;
    char more;
    if (left_ == 0 && count > wanted && bytes_->Read(&more, 1) != 0) {
      throw InputError(fmt::format("{}: holds bytes behind its {} elements", bytes_->name(), header_.count));
    }
    if (header_.is_swapped) {
      if (support::Is32Bit(element_)) Swap<4>(to, wanted * size / 4);
      else Swap<8>(to, wanted * size / 8);
    }
    return wanted;
  }

  const NpyHeader* npy() const override { return &header_; }

 private:
  NpyHeader header_;
  uint64_t left_;
};

bool IsNpy(Bytes& bytes) {
  while (bytes.View().size() < npy_magic.size() && npy_magic.starts_with(bytes.View()) && bytes.Refill()) {}
  return bytes.View().starts_with(npy_magic);
}

}  // namespace

std::unique_ptr<Source> OpenSource(std::unique_ptr<Bytes> bytes, support::Element element, bool is_raw) {
  if (IsNpy(*bytes)) return std::make_unique<NpySource>(std::move(bytes), element);
  if (bytes->name().ends_with(".npy")) throw InputError(fmt::format("{}: not a .npy file", bytes->name()));
  if (is_raw) return std::make_unique<RawSource>(std::move(bytes), element);
  if (support::Is32Bit(element)) return std::make_unique<TextSource<float>>(std::move(bytes), element);
  return std::make_unique<TextSource<double>>(std::move(bytes), element);
}

std::optional<support::Element> ElementOfFile(const std::string& path) {
  std::error_code error;
  if (!path.ends_with(".npy") || !std::filesystem::is_regular_file(path, error)) return std::nullopt;
  Bytes bytes(path);
  if (!IsNpy(bytes)) return std::nullopt;
  return ReadNpyHeader(bytes).element;
}

void OutOfRange::Add(const std::string& name, uint64_t line, std::string_view word, double value) {
  if (count++ == 0) first = fmt::format("{}:{}: {} is out of range and became {}", name, line, Quoted(word), value);
}

}  // namespace lum::tool
