#include "lumvm/numbers.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>

namespace lum::tool {
namespace {

bool IsHexadecimal(std::string_view digits) { return digits.starts_with("0x") || digits.starts_with("0X"); }

// The value of a word that is a number out of range: the C library rounds it to an infinity, a zero or a denormal number.
template <class T> T Rounded(const std::string& word) {
  if constexpr (sizeof(T) == 4) return std::strtof(word.c_str(), nullptr);
  else return std::strtod(word.c_str(), nullptr);
}

// The number at the start of a word: its reading, and its end, which is the word's start for none.
template <class T> Reading ParseStart(std::string_view word, T& value, const char*& end) {
  end = word.data();
  const bool is_signed = word.starts_with('+') || word.starts_with('-');
  std::string_view digits = word.substr(is_signed ? 1 : 0);
  if (digits.empty() || digits.front() == '-') return Reading::none;
  auto format = std::chars_format::general;
  if (IsHexadecimal(digits)) {
    digits.remove_prefix(2);
    if (digits.starts_with('-')) return Reading::none;
    format = std::chars_format::hex;
  }
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, format);
  if (error == std::errc::invalid_argument) return Reading::none;
  end = stop;
  if (error == std::errc::result_out_of_range) {
    value = Rounded<T>(std::string(word.data(), stop));
    return Reading::out_of_range;
  }
  if (word.front() == '-') value = -value;
  return Reading::number;
}

template <class T> char* FormatNumber(char* out, T value, Notation notation) {
  constexpr size_t room = element_text_size / 2 - 4;
  if (notation == Notation::bits) {
    if constexpr (sizeof(T) == 4) return fmt::format_to(out, "0x{:08X}", std::bit_cast<uint32_t>(value));
    else return fmt::format_to(out, "0x{:016X}", std::bit_cast<uint64_t>(value));
  }
  if (notation == Notation::decimal || !std::isfinite(value)) return std::to_chars(out, out + room, value).ptr;
  if (std::signbit(value)) *out++ = '-';
  *out++ = '0';
  *out++ = 'x';
  return std::to_chars(out, out + room, std::fabs(value), std::chars_format::hex).ptr;
}

template <class T> char* FormatAt(char* out, const std::byte* at, Notation notation) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return FormatNumber(out, value, notation);
}

Reading Worse(Reading a, Reading b) {
  if (a == Reading::none || b == Reading::none) return Reading::none;
  return a == Reading::out_of_range ? a : b;
}

std::string_view Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t");
  return first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace

template <class T> Reading ParseNumber(std::string_view word, T& value) {
  const char* end;
  const Reading reading = ParseStart(word, value, end);
  return end == word.data() + word.size() ? reading : Reading::none;
}

template <class T> Reading ParseComplex(std::string_view word, T& re, T& im) {
  re = im = 0;
  if (word.starts_with('(') && word.ends_with(')')) {
    word = word.substr(1, word.size() - 2);
    const size_t comma = word.find(',');
    const Reading first = ParseNumber(Trimmed(word.substr(0, comma)), re);
    return comma == word.npos ? first : Worse(first, ParseNumber(Trimmed(word.substr(comma + 1)), im));
  }
  if (!word.ends_with('i') && !word.ends_with('j')) return Reading::none;
  word.remove_suffix(1);
  const auto imaginary = [&](std::string_view factor) {
    if (factor.empty() || factor == "+" || factor == "-") {
      im = factor == "-" ? -T(1) : T(1);
      return Reading::number;
    }
    return ParseNumber(factor, im);
  };
  const char* end;
  const Reading first = ParseStart(word, re, end);
  if (first != Reading::none && end != word.data() + word.size() && (*end == '+' || *end == '-')) {
    return Worse(first, imaginary(word.substr(static_cast<size_t>(end - word.data()))));
  }
  re = 0;
  return imaginary(word);
}

template Reading ParseNumber(std::string_view, float&);
template Reading ParseNumber(std::string_view, double&);
template Reading ParseComplex(std::string_view, float&, float&);
template Reading ParseComplex(std::string_view, double&, double&);

bool IsComplexLiteral(std::string_view word) {
  double re, im;
  return ParseComplex(word, re, im) != Reading::none;
}

bool IsNumber(std::string_view word) {
  double value;
  return ParseNumber(word, value) != Reading::none || IsComplexLiteral(word);
}

char* FormatPart(char* out, Element element, const std::byte* at, size_t part, Notation notation) {
  return support::Is32Bit(element) ? FormatAt<float>(out, at + part * sizeof(float), notation)
                                   : FormatAt<double>(out, at + part * sizeof(double), notation);
}

char* FormatElement(char* out, Element element, const std::byte* at, Notation notation) {
  out = FormatPart(out, element, at, 0, notation);
  if (!support::IsComplex(element)) return out;
  *out++ = ' ';
  return FormatPart(out, element, at, 1, notation);
}

std::string FormatElement(Element element, const std::byte* at, Notation notation) {
  char text[element_text_size];
  return {text, FormatElement(text, element, at, notation)};
}

std::string Quoted(std::string_view word) {
  constexpr size_t limit = 60;
  std::string text(word.substr(0, limit));
  std::ranges::replace_if(
      text, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
  return fmt::format("'{}{}'", text, word.size() > limit ? "..." : "");
}

}  // namespace lum::tool
