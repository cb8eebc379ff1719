// What can be said of a function beside its error: symmetries, ranges, monotonicity, and arguments with exact values.
#pragma once

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "accuracy/reference.h"

namespace lum::accuracy {

// f of the changed arguments is f of the arguments, changed. A sign stands for each part; where swapped, the inputs change
// places.
struct Symmetry {
  std::string text;
  std::array<int, 4> arguments;
  bool is_swapped;
  std::array<int, 2> results;
  bool zeros_are_alike = false;  // sums of what cancels have no sign to mirror
};

// Bounds of a part of the results, rounded to the type where they are not one of its numbers.
struct Range {
  std::string text;
  size_t part;
  double low, high;
};

// A part rises (or falls, where the direction is -1) between these arguments.
struct Monotone {
  std::string text;
  size_t part;
  int direction;
  double from, to;
};

// A result bit for bit; a NaN stands for any.
struct ExactCase {
  Point at;
  double value1, value2 = 0;
};
struct ExactSet {
  std::string text;
  std::vector<ExactCase> cases;
};

struct Properties {
  std::vector<Symmetry> symmetries;
  std::vector<Range> ranges;
  std::vector<Monotone> monotone;
  std::vector<ExactSet> exact;
  bool covers_larger_part = false;  // Hypot: no result below the larger argument
};

Properties PropertiesOf(const support::Export& entry);

}  // namespace lum::accuracy
