// NumPy's file format of one array: a magic number, a header in the form of a Python dictionary, and the elements.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lumvm/bytes.h"
#include "support/library.h"

namespace lum::tool {

inline constexpr std::string_view npy_magic = "\x93NUMPY";

struct NpyHeader {
  std::string description;                  // the element type as NumPy writes it: <f8
  std::optional<support::Element> element;  // where it is one of ours
  bool is_swapped = false;                  // most significant byte first
  bool is_fortran_order = false;
  std::vector<uint64_t> shape;
  uint64_t count = 1;
};

// Consumes magic number and header. Throws InputError for one that is broken.
NpyHeader ReadNpyHeader(Bytes& bytes);
// The header with the magic number. Its size depends on the number of dimensions alone, so that one can take another's place.
std::string NpyHeaderText(support::Element element, const std::vector<uint64_t>& shape, bool is_fortran_order = false);

}  // namespace lum::tool
