// Elements of any of the four types as bit patterns, and arrays of them: tests that go over all exports see every element this
// way, and compare bits, never values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "support/element_array.h"
#include "support/library.h"

namespace lum::test {

using support::Element;
using support::Export;

// The patterns of an element's components; im is 0 in real elements, a 32-bit pattern stands in the low half.
struct Bits {
  uint64_t re = 0;
  uint64_t im = 0;
  bool operator==(const Bits&) const = default;
};

// The format of an element's components.
struct Format {
  int exponent_bits;
  int fraction_bits;

  uint64_t sign() const { return uint64_t{1} << (exponent_bits + fraction_bits); }
  uint64_t fraction() const { return (uint64_t{1} << fraction_bits) - 1; }
  uint64_t infinity() const { return ((uint64_t{1} << exponent_bits) - 1) << fraction_bits; }
  uint64_t quiet_bit() const { return uint64_t{1} << (fraction_bits - 1); }
  uint64_t all() const { return sign() | (sign() - 1); }
  uint64_t magnitude(uint64_t bits) const { return bits & (sign() - 1); }
  bool is_nan(uint64_t bits) const { return magnitude(bits) > infinity(); }
  bool is_quiet_nan(uint64_t bits) const { return is_nan(bits) && (bits & quiet_bit()) != 0; }
  // The pattern of a number rounded to the format, and the number of a pattern.
  uint64_t pattern(double number) const;
  double number(uint64_t bits) const;
};
Format FormatOf(Element element);

Bits LoadBits(Element element, const void* p);
void StoreBits(Element element, void* p, Bits bits);
int CountNans(Element element, Bits bits);

// "0x3F800000 (1)", of complex elements a pair of these.
std::string Show(Element element, Bits bits);

class Array : public support::ElementArray {
 public:
  using ElementArray::ElementArray;
  Array(Element element, const std::vector<Bits>& values);

  Bits operator[](size_t i) const { return LoadBits(element(), at(i)); }
  void Set(size_t i, Bits bits) { StoreBits(element(), at(i), bits); }
  void Append(Bits bits);
  void Append(const Array& other);
  // Every byte the given one.
  void Fill(uint8_t byte);
};

// "equal", or the first element that differs.
std::string FirstDifference(const Array& expected, const Array& actual);

}  // namespace lum::test
