#include "support/declarations.h"

#include <algorithm>
#include <limits>

namespace lum::support {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

const std::vector<Declaration>& Declarations() {
  static const std::vector<Declaration> declarations = {
#include "declarations.inc"
  };
  return declarations;
}

}  // namespace

const Declaration& DeclarationOf(const Export& entry) {
  const auto found = std::ranges::find_if(
      Declarations(), [&](const Declaration& d) { return d.function == entry.function && d.type == entry.type; });
  static const Declaration nothing;
  return found == Declarations().end() ? nothing : *found;
}

bool HasScalarCore(const Export& entry) {
  return !entry.tag.empty() && DeclarationOf(entry).scalar_core_tags.find(entry.tag) != std::string_view::npos;
}

}  // namespace lum::support
