#include "lumvm/numbers.h"

#include <fmt/format.h>

#include <bit>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>

namespace lum::tool {
namespace {

// One number. Without a value for what is none, and for a magnitude that the type cannot hold.
template <class T> bool ParseNumber(std::string_view word, T& value) {
  bool negative = false;
  if (word.starts_with('+') || word.starts_with('-')) {
    negative = word.front() == '-';
    word.remove_prefix(1);
  }
  if (word.starts_with('-') || word.empty()) return false;
  auto format = std::chars_format::general;
  if (word.starts_with("0x") || word.starts_with("0X")) {
    word.remove_prefix(2);
    format = std::chars_format::hex;
  }
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value, format);
  if (error != std::errc() || end != word.data() + word.size()) return false;
  if (negative) value = -value;
  return true;
}

template <class T> std::string FormatNumber(T value, Notation notation) {
  if (notation == Notation::bits) {
    if constexpr (sizeof(T) == 4) return fmt::format("0x{:08X}", std::bit_cast<uint32_t>(value));
    else return fmt::format("0x{:016X}", std::bit_cast<uint64_t>(value));
  }
  char buffer[64];
  const bool hexadecimal = notation == Notation::hexadecimal && std::isfinite(value);
  const auto end = hexadecimal ? std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::hex).ptr
                               : std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  std::string text(buffer, end);
  if (!hexadecimal) return text;
  return fmt::format("{}0x{}", std::signbit(value) ? "-" : "", text);
}

template <class T> void ParseInto(Array& array, const std::string& text, const std::string& name) {
  constexpr std::string_view separators = " \t\r\v\f,";
  size_t line_number = 0;
  size_t numbers = 0;
  for (size_t start = 0; start < text.size();) {
    ++line_number;
    const size_t end = std::min(text.find('\n', start), text.size());
    std::string_view line(text.data() + start, end - start);
    line = line.substr(0, line.find('#'));
    start = end + 1;
    for (size_t at = line.find_first_not_of(separators); at != line.npos; at = line.find_first_not_of(separators, at)) {
      const size_t stop = std::min(line.find_first_of(separators, at), line.size());
      const std::string_view word = line.substr(at, stop - at);
      at = stop;
      T value;
      if (!ParseNumber(word, value)) {
        throw InputError(fmt::format("{}:{}: not a number of this type: '{}'", name, line_number, word));
      }
      const auto* bytes = reinterpret_cast<const std::byte*>(&value);
      array.bytes.insert(array.bytes.end(), bytes, bytes + sizeof value);
      ++numbers;
    }
  }
  if (support::IsComplex(array.element) && numbers % 2 != 0) {
    throw InputError(fmt::format("{}:{}: a complex number lacks its imaginary part", name, line_number));
  }
}

}  // namespace

std::string ReadAll(const std::string& path) {
  if (path == "-") return {std::istreambuf_iterator<char>(std::cin), {}};
  std::ifstream file(path, std::ios::binary);
  if (!file) throw InputError(fmt::format("{}: {}", path, std::strerror(errno)));
  std::string content(std::istreambuf_iterator<char>(file), {});
  if (file.bad()) throw InputError(fmt::format("{}: cannot be read", path));
  return content;
}

Array ParseText(const std::string& text, const std::string& name, Element element) {
  Array array{element, {}};
  if (support::Is32Bit(element)) ParseInto<float>(array, text, name);
  else ParseInto<double>(array, text, name);
  return array;
}

Array ParseBinary(const std::string& raw, const std::string& name, Element element) {
  if (raw.size() % support::SizeOf(element) != 0) {
    throw InputError(
        fmt::format("{}: {} bytes are not a whole number of elements of {} bytes", name, raw.size(), support::SizeOf(element)));
  }
  const auto* bytes = reinterpret_cast<const std::byte*>(raw.data());
  return {element, {bytes, bytes + raw.size()}};
}

std::string Format(const Array& array, size_t i, Notation notation) {
  const std::byte* at = array.bytes.data() + i * support::SizeOf(array.element);
  const auto number = [&](size_t part) {
    if (support::Is32Bit(array.element)) {
      float value;
      std::memcpy(&value, at + part * sizeof value, sizeof value);
      return FormatNumber(value, notation);
    }
    double value;
    std::memcpy(&value, at + part * sizeof value, sizeof value);
    return FormatNumber(value, notation);
  };
  return support::IsComplex(array.element) ? fmt::format("{} {}", number(0), number(1)) : number(0);
}

}  // namespace lum::tool
