// Numbers as text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "support/library.h"

namespace lum::tool {

using support::Element;

enum class Notation { decimal, hexadecimal, bits };

// How a word reads as a number. One whose magnitude the type cannot hold becomes an infinity or a zero.
enum class Reading { number, out_of_range, none };

// Decimal or hexadecimal (0x1.8p3), inf and nan, with a sign or without.
template <class T> Reading ParseNumber(std::string_view word, T& value);

// A complex number in one word: 1+2i, -2.5j, i, (1,2), (1). Of numbers without i or parentheses it is none.
template <class T> Reading ParseComplex(std::string_view word, T& re, T& im);

// True for what a command line or a file may give as a number of any type, complex ones included.
bool IsNumber(std::string_view word);
bool IsComplexLiteral(std::string_view word);

// Writes the element at `at`, a complex one as two numbers with a blank between, and gives the end; `out` has room for
// element_text_size characters.
inline constexpr size_t element_text_size = 128;
char* FormatElement(char* out, Element element, const std::byte* at, Notation notation);
// One part of an element: 0, or of a complex one 1.
char* FormatPart(char* out, Element element, const std::byte* at, size_t part, Notation notation);
std::string FormatElement(Element element, const std::byte* at, Notation notation);

// A word of the input as it can stand in a message: short, and without characters that are not printed.
std::string Quoted(std::string_view word);

}  // namespace lum::tool
