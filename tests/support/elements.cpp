#include "support/elements.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstring>

namespace lum::test {
namespace {

std::string ShowComponent(Format format, uint64_t bits) {
  char text[64];
  const int digits = format.fraction_bits == 23 ? 8 : 16;
  std::snprintf(text, sizeof text, "0x%0*llX (%.*g)", digits, static_cast<unsigned long long>(bits),
                format.fraction_bits == 23 ? 9 : 17, format.number(bits));
  return text;
}

}  // namespace

uint64_t Format::pattern(double number) const {
  return fraction_bits == 23 ? std::bit_cast<uint32_t>(static_cast<float>(number)) : std::bit_cast<uint64_t>(number);
}

double Format::number(uint64_t bits) const {
  return fraction_bits == 23 ? std::bit_cast<float>(static_cast<uint32_t>(bits)) : std::bit_cast<double>(bits);
}

Format FormatOf(Element element) { return support::Is32Bit(element) ? Format{8, 23} : Format{11, 52}; }

Bits LoadBits(Element element, const void* p) {
  uint32_t words[2] = {};
  Bits bits;
  if (support::Is32Bit(element)) {
    std::memcpy(words, p, support::SizeOf(element));
    bits = {words[0], words[1]};
  } else {
    std::memcpy(&bits, p, support::SizeOf(element));
  }
  return bits;
}

void StoreBits(Element element, void* p, Bits bits) {
  const uint32_t words[2] = {static_cast<uint32_t>(bits.re), static_cast<uint32_t>(bits.im)};
  if (support::Is32Bit(element)) std::memcpy(p, words, support::SizeOf(element));
  else std::memcpy(p, &bits, support::SizeOf(element));
}

int CountNans(Element element, Bits bits) {
  const Format format = FormatOf(element);
  return int{format.is_nan(bits.re)} + int{support::IsComplex(element) && format.is_nan(bits.im)};
}

std::string Show(Element element, Bits bits) {
  const Format format = FormatOf(element);
  if (!support::IsComplex(element)) return ShowComponent(format, bits.re);
  return "(" + ShowComponent(format, bits.re) + ", " + ShowComponent(format, bits.im) + ")";
}

Array::Array(Element element, const std::vector<Bits>& values) : Array(element, values.size()) {
  for (size_t i = 0; i < values.size(); ++i) Set(i, values[i]);
}

void Array::Append(Bits bits) {
  resize(size() + 1);
  Set(size() - 1, bits);
}

void Array::Append(const Array& other) {
  const size_t old_bytes = bytes();
  resize(size() + other.size());
  std::copy_n(other.data(), other.bytes(), data() + old_bytes);
}

void Array::Fill(uint8_t byte) { std::fill_n(data(), bytes(), std::byte{byte}); }

std::string FirstDifference(const Array& expected, const Array& actual) {
  if (expected.size() != actual.size()) return "different lengths";
  for (size_t i = 0; i < expected.size(); ++i) {
    if (expected[i] == actual[i]) continue;
    return "element " + std::to_string(i) + ": expected " + Show(expected.element(), expected[i]) + ", got " +
           Show(actual.element(), actual[i]);
  }
  return "equal";
}

}  // namespace lum::test
