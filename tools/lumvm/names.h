// From the words of a user to functions, element types and accuracy tags.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/library.h"

namespace lum::tool {

// The title is the function's name, followed by " (complex)" where the complex types have a description of their own. special
// and statuses have an entry a line.
struct Description {
  std::string_view title, summary, domain, special, statuses, family;
  std::string_view function() const { return title.substr(0, title.find(' ')); }
};
std::span<const Description> Descriptions();

// What docs/accuracy.md and docs/performance.md say of an exported name: the largest error in ulp and its limit, the argument
// of it, and the nanoseconds of an element in an array of 4096, ours and a scalar loop's; 0 where there is no figure.
struct Measured {
  std::string_view name;
  double error, limit;
  std::string_view at;
  double time, scalar_time;
};
const Measured& MeasuredOf(const support::Export& entry);

std::string_view TypeName(support::Element element);

// The function of a name in C, C++ or Python, in any case, and the type and tag that the name holds, if it does.
struct Named {
  std::string_view function, type, tag;
};
// Throws InputError with the names that come close.
Named FindFunction(const std::string& word);
// 32f, f32, float, single, ...
std::string_view FindType(const std::string& word);
// Without regard to case; also low, middle and high. Empty for the highest.
const support::Export& FindExport(std::string_view function, std::string_view type, const std::string& tag);
// All exports of function and type, the cheapest first. Throws InputError that lists the types that there are.
std::vector<const support::Export*> ExportsOf(std::string_view function, std::string_view type);

std::string Lower(std::string_view text);

}  // namespace lum::tool
