// The wide search for large errors: hundreds of millions of arguments a function, checked against values that cost next to
// nothing, and MPFR or MPC for those that may be the worst.
#pragma once

#include <chrono>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "accuracy/measure.h"

namespace lum::accuracy {

// What is searched: an export of the library, or the function of another one with its arguments.
struct HuntSubject {
  std::string name;  // the tag, or who
  const support::Export* entry;
  std::function<void(const support::Arguments&)> call;
  double bound;                                            // infinite where nothing is promised
  bool is_own;                                             // of the library; others are judged in the exact blocks alone
  double reach = std::numeric_limits<double>::infinity();  // first arguments beyond are not judged
};

// The C library's circular functions of binary64 are known to lose most digits at some arguments beyond.
inline constexpr double circular_reach = 0x1p26;
bool IsCircular(const support::Export& entry);

// Shares of the results for arguments of the ordinary interval, by their error in ulp.
inline constexpr double distribution_limits[] = {0.5, 0.51, 0.6, 0.75, 1};
struct Distribution {
  uint64_t count = 0;
  uint64_t within[std::size(distribution_limits)] = {};
  double sum = 0;
};

struct HuntResult {
  uint64_t crossed = 0;      // against the high tag, whose own error blurs what is found by an ulp
  uint64_t compared = 0;     // equal to the C library's results of binary64, and judged no further
  uint64_t judged = 0;       // against values with at least eight more bits
  uint64_t settled = 0;      // by MPFR or MPC
  uint64_t left = 0;         // that would have been settled, had there not been so many next to one another
  uint64_t wrong_class = 0;  // among the settled ones
  Point wrong_at;
  Worst worst;  // of complex results norm-wise
  Distribution distribution;
  std::vector<Bin> curve;  // of the judged arguments: the largest error in intervals of the first part
};

struct HuntLimits {
  uint64_t count = 100'000'000;  // elements
  double seconds = 1e9;          // or what can be done in these
  uint64_t exact_every = 8;      // of the rounds of blocks of 64f and 64fc one in that many is an exact one
  bool compares = false;         // the others, of one subject of 64f, are compared with the C library's results first
  uint64_t seed = 1;
};

// A result that equals the C library's of binary64 is no worse than that, whose error is next to 1/2 ulp for many functions and
// known for all; so only those that differ are judged where the limits want it. Equal errors of both stay unseen but for the
// exact rounds.
//
// Searches the subjects, which are one function's of one type, in one thread; deterministic but for `seconds`. The results are
// in their order.
std::vector<HuntResult> Hunt(const support::Library& library, const std::vector<HuntSubject>& subjects,
                             const HuntLimits& limits);

// The exports of a group, cheapest first, as subjects; one for all where all share one kernel.
std::vector<HuntSubject> OwnSubjects(const support::Library& library, const std::vector<const support::Export*>& group);
bool HasReference(const support::Export& entry);

}  // namespace lum::accuracy
