#include "accuracy/text.h"

#include <fmt/format.h>

#include <bit>
#include <functional>

namespace lum::accuracy {
namespace {

using support::Export;

std::string Components(const Export& entry, const Point& p, const std::function<std::string(double)>& format) {
  std::string text = format(p.re1);
  if (lum::support::IsComplex(entry.input)) text += fmt::format(" {}", format(p.im1));
  if (entry.inputs() == 1 && !entry.has_parameter()) return text;
  text += fmt::format(" {}", format(p.re2));
  if (lum::support::IsComplex(entry.input)) text += fmt::format(" {}", format(p.im2));
  return text;
}

}  // namespace

std::string DecimalOf(const Export& entry, const Point& point) {
  return Components(entry, point, [&](double x) {
    return entry.is_32bit() ? fmt::format("{}", static_cast<float>(x)) : fmt::format("{}", x);
  });
}

std::string PatternOf(const Export& entry, const Point& point) {
  return Components(entry, point, [&](double x) {
    return entry.is_32bit() ? fmt::format("0x{:08X}", std::bit_cast<uint32_t>(static_cast<float>(x)))
                            : fmt::format("0x{:016X}", std::bit_cast<uint64_t>(x));
  });
}

}  // namespace lum::accuracy
