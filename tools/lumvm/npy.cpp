#include "lumvm/npy.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <charconv>
#include <limits>

#include "lumvm/errors.h"
#include "lumvm/numbers.h"

namespace lum::tool {
namespace {

// Reads {'descr': '<f8', 'fortran_order': False, 'shape': (3, 2), }, in any order.
class Dictionary {
 public:
  Dictionary(std::string_view text, const std::string& name) : text_(text), name_(name) {}

  NpyHeader Parse() {
    NpyHeader header;
    bool has_type = false, has_order = false, has_shape = false;
    Expect('{');
    while (!Skip('}')) {
      const std::string key = String();
      Expect(':');
      if (key == "descr") {
        if (Skip('[')) throw InputError(fmt::format("{}: its elements are records, not numbers", name_));
        header.description = String();
        has_type = true;
      } else if (key == "fortran_order") {
        header.is_fortran_order = Truth();
        has_order = true;
      } else if (key == "shape") {
        header.shape = Shape();
        has_shape = true;
      } else {
        Fail();
      }
      if (Skip('}')) break;
      Expect(',');
    }
    if (!has_type || !has_order || !has_shape) Fail();
    return header;
  }

 private:
  [[noreturn]] void Fail() const { throw InputError(fmt::format("{}: its .npy header is broken", name_)); }

  bool Skip(char c) {
    text_.remove_prefix(std::min(text_.find_first_not_of(" \t\n"), text_.size()));
    if (!text_.starts_with(c)) return false;
    text_.remove_prefix(1);
    return true;
  }
  void Expect(char c) {
    if (!Skip(c)) Fail();
  }
  std::string String() {
    const char quote = Skip('\'') ? '\'' : '"';
    if (quote == '"') Expect('"');
    const size_t end = text_.find(quote);
    if (end == text_.npos) Fail();
    std::string result(text_.substr(0, end));
    text_.remove_prefix(end + 1);
    return result;
  }
  bool Truth() {
    Skip(' ');
    for (const std::string_view word : {"True", "False"}) {
      if (!text_.starts_with(word)) continue;
      text_.remove_prefix(word.size());
      return word == "True";
    }
    Fail();
  }
  std::vector<uint64_t> Shape() {
    std::vector<uint64_t> shape;
    Expect('(');
    while (!Skip(')')) {
      Skip(' ');
      uint64_t size = 0;
      const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), size);
      if (error != std::errc()) Fail();
      text_.remove_prefix(static_cast<size_t>(end - text_.data()));
      Skip('L');  // as Python 2 wrote long integers
      shape.push_back(size);
      if (Skip(')')) break;
      Expect(',');
    }
    return shape;
  }

  std::string_view text_;
  const std::string& name_;
};

std::optional<support::Element> ElementOf(std::string_view kind) {
  using enum support::Element;
  if (kind == "f4") return f32;
  if (kind == "f8") return f64;
  if (kind == "c8") return c32;
  if (kind == "c16") return c64;
  return std::nullopt;
}

std::string_view KindOf(support::Element element) {
  using enum support::Element;
  return element == f32 ? "f4" : element == f64 ? "f8" : element == c32 ? "c8" : "c16";
}

// The bytes of an unsigned number, the least significant one first.
uint32_t Number(std::string_view bytes) {
  uint32_t value = 0;
  for (size_t i = bytes.size(); i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[i]);
  return value;
}

}  // namespace

NpyHeader ReadNpyHeader(Bytes& bytes) {
  const auto take = [&](size_t count) {
    std::string part(count, '\0');
    if (bytes.Read(part.data(), count) != count) throw InputError(fmt::format("{}: its .npy header is cut off", bytes.name()));
    return part;
  };
  const std::string start = take(npy_magic.size() + 2);
  const auto version = static_cast<unsigned char>(start[npy_magic.size()]);
  if (version < 1 || version > 3)
    throw InputError(fmt::format("{}: .npy format version {} is not known", bytes.name(), version));
  const uint32_t size = Number(take(version == 1 ? 2 : 4));
  if (size > (uint32_t{1} << 20)) throw InputError(fmt::format("{}: its .npy header is broken", bytes.name()));
  const std::string text = take(size);
  NpyHeader header = Dictionary(text, bytes.name()).Parse();
  const std::string_view type = header.description;
  if (type.starts_with('<') || type.starts_with('>') || type.starts_with('=') || type.starts_with('|')) {
    header.element = ElementOf(type.substr(1));
    header.is_swapped = type.front() == '>';
  }
  for (const uint64_t size_of_dimension : header.shape) {
    // An empty dimension makes the array empty, whatever the others.
    if (size_of_dimension != 0 && header.count > std::numeric_limits<uint64_t>::max() / 32 / size_of_dimension) {
      throw InputError(fmt::format("{}: its .npy header has a shape that no memory holds", bytes.name()));
    }
    header.count *= size_of_dimension;
  }
  return header;
}

std::string NpyHeaderText(support::Element element, const std::vector<uint64_t>& shape, bool is_fortran_order) {
  std::string text = fmt::format("{{'descr': '<{}', 'fortran_order': {}, 'shape': ({}{}), }}", KindOf(element),
                                 is_fortran_order ? "True" : "False", fmt::join(shape, ", "), shape.size() == 1 ? "," : "");
  // Blanks up to a line feed at a multiple of 64 bytes, with room for the longest dimensions.
  constexpr size_t before = npy_magic.size() + 4, longest = 20;
  size_t room = text.size() + 1;
  for (const uint64_t dimension : shape) room += longest - fmt::formatted_size("{}", dimension);
  const size_t size = (before + room + 63) / 64 * 64 - before;
  text.append(size - 1 - text.size(), ' ').append(1, '\n');
  std::string header(npy_magic);
  if (size > 0xFFFF) throw InputError("more dimensions than a .npy header holds");
  header.append({'\1', '\0', static_cast<char>(size & 0xFF), static_cast<char>(size >> 8)});
  return header + text;
}

}  // namespace lum::tool
