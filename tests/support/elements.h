// Elements of any of the four types as bit patterns, and arrays of them: tests that go over all exports see every element this
// way, and compare bits, never values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

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

class Array {
 public:
  explicit Array(Element element, size_t size = 0) : element_(element), bytes_(size * support::SizeOf(element)) {}
  Array(Element element, const std::vector<Bits>& values);

  Element element() const { return element_; }
  size_t size() const { return bytes_.size() / support::SizeOf(element_); }
  void resize(size_t size) { bytes_.resize(size * support::SizeOf(element_)); }
  Bits operator[](size_t i) const { return LoadBits(element_, bytes_.data() + i * support::SizeOf(element_)); }
  void Set(size_t i, Bits bits) { StoreBits(element_, bytes_.data() + i * support::SizeOf(element_), bits); }
  void Append(Bits bits);
  void Append(const Array& other) { bytes_.insert(bytes_.end(), other.bytes_.begin(), other.bytes_.end()); }
  // Every byte the given one.
  void Fill(uint8_t byte) { bytes_.assign(bytes_.size(), std::byte{byte}); }
  std::byte* data() { return bytes_.data(); }
  const std::byte* data() const { return bytes_.data(); }
  const std::byte* at(size_t i) const { return bytes_.data() + i * support::SizeOf(element_); }
  std::byte* at(size_t i) { return bytes_.data() + i * support::SizeOf(element_); }
  size_t bytes() const { return bytes_.size(); }
  bool operator==(const Array& other) const { return element_ == other.element_ && bytes_ == other.bytes_; }

 private:
  Element element_;
  std::vector<std::byte> bytes_;
};

// "equal", or the first element that differs.
std::string FirstDifference(const Array& expected, const Array& actual);

}  // namespace lum::test
