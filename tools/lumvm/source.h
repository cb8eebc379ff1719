// The elements of one file.
#pragma once

#include <memory>

#include "lumvm/input.h"

namespace lum::tool {

class Source {
 public:
  explicit Source(std::unique_ptr<Bytes> bytes, support::Element element) : bytes_(std::move(bytes)), element_(element) {}
  virtual ~Source() = default;
  // The elements read, fewer than `count` at the end of the file alone.
  virtual size_t Read(std::byte* to, size_t count) = 0;
  virtual const NpyHeader* npy() const { return nullptr; }

  const Bytes& bytes() const { return *bytes_; }
  const OutOfRange& out_of_range() const { return out_of_range_; }
  support::Element element() const { return element_; }

 protected:
  std::unique_ptr<Bytes> bytes_;
  support::Element element_;
  OutOfRange out_of_range_;
};

// By the file's first bytes a .npy array, otherwise raw elements or text.
std::unique_ptr<Source> OpenSource(std::unique_ptr<Bytes> bytes, support::Element element, bool is_raw);

}  // namespace lum::tool
