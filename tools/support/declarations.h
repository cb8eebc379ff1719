// What the functions' declarations (src/<family>/functions.toml) say of a function and type, for tests and programs that go
// over all functions.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "support/library.h"

namespace lum::support {

// Real and imaginary part of the first input, then of the second or of the parameter; those that there are not are 0.
using DeclaredPoint = std::array<double, 4>;

// A status that a function reports, and arguments at which it does.
struct DeclaredStatus {
  LumStatus status;
  std::vector<DeclaredPoint> at;
};

// Arguments that the first vector path refuses and that a user may well have.
struct SpecialArgument {
  std::string_view what;
  DeclaredPoint at;
  std::string_view tags;  // those that refuse it; all when empty
};

struct Interval {
  double low, high;
};

struct Declaration {
  std::string_view function, type;
  bool is_exact = false;                   // exact or correctly rounded
  std::string_view scalar_core_tags = {};  // computed element by element in extended precision, or as if they were
  Interval ordinary = {-10, 10};
  Interval everyday = {-10, 10};                 // what speed is measured at: the ordinary range, but not far from 0
  std::vector<double> thresholds = {1, 2, 0.5};  // points whose neighbours are tried, with both signs
  std::string_view c_name = {};                  // in the C library; empty where it has none
  std::vector<DeclaredStatus> statuses = {};
  std::vector<SpecialArgument> special_arguments = {};
};

// The declaration of a function; that of one outside of the catalogue, as tests have them, says nothing.
const Declaration& DeclarationOf(const Export& entry);
bool HasScalarCore(const Export& entry);

}  // namespace lum::support
