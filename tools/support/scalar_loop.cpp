#include "support/scalar_loop.h"

#include <cmath>
#include <complex>
#include <map>
#include <string>
#include <string_view>

namespace lum::support {
namespace {

template <class E> struct StandardOf { using Type = E; };
template <> struct StandardOf<Lum32fc> { using Type = std::complex<float>; };
template <> struct StandardOf<Lum64fc> { using Type = std::complex<double>; };
// std::complex has the layout of a pair re, im.
template <class E> using Standard = typename StandardOf<E>::Type;

template <auto function, class E> void OneInput(const Arguments& a) {
  const auto* x = static_cast<const Standard<E>*>(a.src1);
  using Result = decltype(function(*x));
  auto* y = static_cast<Result*>(a.dst1);
  for (int32_t i = 0; i < a.len; ++i) y[i] = function(x[i]);
}
template <auto function, class E> void TwoInputs(const Arguments& a) {
  const auto* x = static_cast<const Standard<E>*>(a.src1);
  const auto* y = static_cast<const Standard<E>*>(a.src2);
  auto* z = static_cast<Standard<E>*>(a.dst1);
  for (int32_t i = 0; i < a.len; ++i) z[i] = function(x[i], y[i]);
}
template <auto function, class E> void TwoOutputs(const Arguments& a) {
  const auto* x = static_cast<const Standard<E>*>(a.src1);
  auto* y = static_cast<Standard<E>*>(a.dst1);
  auto* z = static_cast<Standard<E>*>(a.dst2);
  for (int32_t i = 0; i < a.len; ++i) function(x[i], y[i], z[i]);
}
template <auto function, class E> void Parameter(const Arguments& a) {
  const auto* x = static_cast<const Standard<E>*>(a.src1);
  const auto p = *static_cast<const Standard<E>*>(a.value);
  auto* y = static_cast<Standard<E>*>(a.dst1);
  for (int32_t i = 0; i < a.len; ++i) y[i] = function(x[i], p);
}
template <auto function, class E> void FromReal(const Arguments& a) {
  using T = decltype(E::re);
  const auto* x = static_cast<const T*>(a.src1);
  auto* y = static_cast<std::complex<T>*>(a.dst1);
  for (int32_t i = 0; i < a.len; ++i) y[i] = function(x[i]);
}

const std::map<std::string_view, ScalarLoop>& AllLoops() {
  static const std::map<std::string_view, ScalarLoop> loops = {
#include "scalar_loops.inc"
  };
  return loops;
}

}  // namespace

ScalarLoop FindScalarLoop(const Export& entry) {
  const auto found = AllLoops().find(std::string(entry.function) + "_" + std::string(entry.type));
  return found == AllLoops().end() ? nullptr : found->second;
}

}  // namespace lum::support
