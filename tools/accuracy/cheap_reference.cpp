// The C library's binary64 functions are good to a few units of their last place, 2^-50.
#include "accuracy/cheap_reference.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <string_view>

#include "accuracy/composed.h"

namespace lum::accuracy {
namespace {

using support::Export;
using support::Shape;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

template <auto f> void OnePart(std::span<const float> x, std::span<double> part1, std::span<double>) {
  std::ranges::transform(x, part1.begin(), [](float a) { return f(static_cast<double>(a)); });
}
template <auto f> void TwoParts(std::span<const float> x, std::span<double> part1, std::span<double> part2) {
  for (size_t i = 0; i < x.size(); ++i) f(static_cast<double>(x[i]), part1[i], part2[i]);
}

// Outside of its domain a function is not called: the C library takes its time to report the error.
const std::map<std::string_view, CheapReference>& CheapReferences() {
  static const std::map<std::string_view, CheapReference> references = {
#include "cheap_references.inc"
  };
  return references;
}

}  // namespace

CheapReference FindCheapReference(const Export& entry) {
  if (entry.type != "32f" || (entry.shape != Shape::OneInput && entry.shape != Shape::TwoOutputs)) return nullptr;
  const auto found = CheapReferences().find(entry.function);
  return found == CheapReferences().end() ? nullptr : found->second;
}

}  // namespace lum::accuracy
