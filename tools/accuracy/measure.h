// The error of an export against exact values.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "accuracy/reference.h"

namespace lum::accuracy {

// An error of at most this many ulp is what the tag promises: below 1 at the high tags of functions that are not exact, half a
// unit of the promised last bit at the others. One export has a limit of its own.
double Bound(const support::Export& entry);

struct Worst {
  double ulp = 0;  // of the type, at the exact value
  Point point;
};

// One bin of the picture: the largest error in an interval of the argument.
struct Bin {
  double x, ulp;
};

struct Accuracy {
  uint64_t count = 0;
  uint64_t correctly_rounded = 0;
  uint64_t wrong_class = 0;  // NaN, infinity, or a sign, where the exact result is none or far from it
  Point wrong_at;            // the last of these
  Worst worst;               // over all parts
  Worst worst_norm;          // complex results: |error| / |exact| in units of 2^-p
  std::vector<Bin> curve;

  // What the largest error means as a number of correct bits.
  double Bits(const support::Export& entry) const;
};

// Measures over the points in one call of the function (one call a point for a scalar parameter).
Accuracy Measure(const support::Library& library, const support::Export& entry, const std::vector<Point>& points,
                 const struct ExactValues& exact);

// Exact values of all points, rounded only to the working precision; they serve all tags of a function.
struct ExactValues {
  ExactValues(Reference reference, const std::vector<Point>& points);
  ~ExactValues();
  ExactValues(const ExactValues&) = delete;
  ExactValues& operator=(const ExactValues&) = delete;
  std::vector<mpfr_t> part1, part2;
};

// |result - exact| in units of the last place of the type at the exact value; infinite when only one of them is a NaN or when
// their signs differ. An infinite result counts as the first power of 2 beyond the range.
double UlpError(double result, mpfr_srcptr exact, bool is_32bit);

// The exact value rounded to the type, as a double.
double RoundToType(mpfr_srcptr exact, bool is_32bit);

}  // namespace lum::accuracy
