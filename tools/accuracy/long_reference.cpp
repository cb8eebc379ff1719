// The C library's functions of long double, which carry 11 bits more than binary64.
#include "accuracy/long_reference.h"

#include <cmath>
#include <complex>
#include <limits>
#include <map>
#include <string>
#include <string_view>

#include "accuracy/composed.h"

namespace lum::accuracy {
namespace {

using Real = long double;
using Complex = std::complex<long double>;
using Parts = const double* const[4];

Complex First(Parts part, size_t i) { return {part[0][i], part[1][i]}; }
Complex Second(Parts part, size_t i) { return {part[2][i], part[3][i]}; }
void Set(Complex z, Real& re, Real& im) {
  re = z.real();
  im = z.imag();
}

template <auto f> void RealOne(size_t count, Parts part, Real* value1, Real*) {
  for (size_t i = 0; i < count; ++i) value1[i] = f(Real{part[0][i]});
}
template <auto f> void RealTwo(size_t count, Parts part, Real* value1, Real*) {
  for (size_t i = 0; i < count; ++i) value1[i] = f(Real{part[0][i]}, Real{part[2][i]});
}
template <auto f> void RealBoth(size_t count, Parts part, Real* value1, Real* value2) {
  for (size_t i = 0; i < count; ++i) f(Real{part[0][i]}, value1[i], value2[i]);
}
template <auto f> void ComplexOne(size_t count, Parts part, Real* value1, Real* value2) {
  for (size_t i = 0; i < count; ++i) Set(f(First(part, i)), value1[i], value2[i]);
}
template <auto f> void ComplexTwo(size_t count, Parts part, Real* value1, Real* value2) {
  for (size_t i = 0; i < count; ++i) Set(f(First(part, i), Second(part, i)), value1[i], value2[i]);
}
template <auto f> void ToReal(size_t count, Parts part, Real* value1, Real*) {
  for (size_t i = 0; i < count; ++i) value1[i] = f(First(part, i));
}
template <auto f> void FromReal(size_t count, Parts part, Real* value1, Real* value2) {
  for (size_t i = 0; i < count; ++i) Set(f(Real{part[0][i]}), value1[i], value2[i]);
}

// The C library's takes four times as long. A step of Newton's method from the root in binary64, which is good to 50 bits,
// leaves only the roundings.
Real CubeRoot(Real x) {
  const auto root = Real{std::cbrt(static_cast<double>(x))};
  const Real error = (root * root * root - x) / (3 * root * root);
  return std::isfinite(error) ? root - error : root;
}

// By the function's name and type; the first one counts.
const std::map<std::string_view, LongReference>& LongReferences() {
  static const std::map<std::string_view, LongReference> references = {
      {"Cbrt_64f", RealOne<CubeRoot>},
      {"InvCbrt_64f", RealOne<[](Real x) { return 1 / CubeRoot(x); }>},
      {"Pow2o3_64f", RealOne<[](Real x) { return CubeRoot(x) * CubeRoot(x); }>},
      // Squares of binary64's numbers neither overflow nor underflow here.
      {"Hypot_64f", RealTwo<[](Real x, Real y) { return std::sqrt(x * x + y * y); }>},
#include "long_references.inc"
  };
  return references;
}

}  // namespace

LongReference FindLongReference(const support::Export& entry) {
  if (std::numeric_limits<long double>::digits < 64) return nullptr;
  const auto found = LongReferences().find(std::string(entry.function) + "_" + std::string(entry.type));
  return found == LongReferences().end() ? nullptr : found->second;
}

}  // namespace lum::accuracy
