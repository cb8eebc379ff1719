// Arrays of elements read from text or raw binary and written back.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/library.h"

namespace lum::tool {

using support::Element;

// An error in what the user gave: one plain line for stderr.
struct InputError : std::runtime_error {
  using runtime_error::runtime_error;
};

// Elements of one type in memory order.
struct Array {
  Element element = Element::f64;
  std::vector<std::byte> bytes;

  size_t count() const { return bytes.size() / support::SizeOf(element); }
};

enum class Notation { decimal, hexadecimal, bits };

// All of a file, or of standard input for "-".
std::string ReadAll(const std::string& path);

// Numbers separated by white space or commas, decimal or hexadecimal (0x1.8p3), inf and nan; # starts a comment. A complex
// element is two numbers. Throws InputError that names the file and line.
Array ParseText(const std::string& text, const std::string& name, Element element);
// Raw elements as they stand in memory.
Array ParseBinary(const std::string& raw, const std::string& name, Element element);

// Element i of an array as text: a complex one as two numbers.
std::string Format(const Array& array, size_t i, Notation notation);

}  // namespace lum::tool
