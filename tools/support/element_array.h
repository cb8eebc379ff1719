// Elements of any of the four types in memory, whose parts are read and written as doubles.
#pragma once

#include <cstddef>
#include <cstring>
#include <vector>

#include "support/library.h"

namespace lum::support {

class ElementArray {
 public:
  explicit ElementArray(Element element, size_t size = 0) : element_(element), bytes_(size * SizeOf(element)) {}

  Element element() const { return element_; }
  size_t size() const { return bytes_.size() / SizeOf(element_); }
  size_t bytes() const { return bytes_.size(); }
  void resize(size_t size) { bytes_.resize(size * SizeOf(element_)); }
  std::byte* data() { return bytes_.data(); }
  const std::byte* data() const { return bytes_.data(); }
  std::byte* at(size_t i) { return data() + i * SizeOf(element_); }
  const std::byte* at(size_t i) const { return data() + i * SizeOf(element_); }
  bool operator==(const ElementArray&) const = default;

  // Part 1 is the imaginary one of a complex element.
  double Get(size_t i, size_t part = 0) const {
    return Is32Bit(element_) ? static_cast<double>(Load<float>(at(i), part)) : Load<double>(at(i), part);
  }
  void Set(size_t i, double x, size_t part = 0) {
    if (Is32Bit(element_)) Store(at(i), part, static_cast<float>(x));
    else Store(at(i), part, x);
  }

 private:
  template <class T> static T Load(const std::byte* element, size_t part) {
    T value;
    std::memcpy(&value, element + part * sizeof value, sizeof value);
    return value;
  }
  template <class T> static void Store(std::byte* element, size_t part, T value) {
    std::memcpy(element + part * sizeof value, &value, sizeof value);
  }

  Element element_;
  std::vector<std::byte> bytes_;
};

}  // namespace lum::support
