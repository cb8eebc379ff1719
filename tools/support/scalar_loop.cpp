#include "support/scalar_loop.h"

#include <cmath>
#include <complex>
#include <map>
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

struct Loops {
  ScalarLoop f32 = nullptr, f64 = nullptr, c32 = nullptr, c64 = nullptr;
};
template <auto function> constexpr Loops RealOne() {
  return {OneInput<function, Lum32f>, OneInput<function, Lum64f>, nullptr, nullptr};
}
template <auto function> constexpr Loops One() {
  return {OneInput<function, Lum32f>, OneInput<function, Lum64f>, OneInput<function, Lum32fc>, OneInput<function, Lum64fc>};
}
template <auto function> constexpr Loops ComplexOne() {
  return {nullptr, nullptr, OneInput<function, Lum32fc>, OneInput<function, Lum64fc>};
}
template <auto function> constexpr Loops RealTwo() {
  return {TwoInputs<function, Lum32f>, TwoInputs<function, Lum64f>, nullptr, nullptr};
}
template <auto function> constexpr Loops Two() {
  return {TwoInputs<function, Lum32f>, TwoInputs<function, Lum64f>, TwoInputs<function, Lum32fc>, TwoInputs<function, Lum64fc>};
}
template <auto function> constexpr Loops RealTwoOutputs() {
  return {TwoOutputs<function, Lum32f>, TwoOutputs<function, Lum64f>, nullptr, nullptr};
}
template <auto function> constexpr Loops WithParameter() {
  return {Parameter<function, Lum32f>, Parameter<function, Lum64f>, Parameter<function, Lum32fc>, Parameter<function, Lum64fc>};
}

const std::map<std::string_view, Loops>& AllLoops() {
  static const std::map<std::string_view, Loops> loops = {
      {"Abs", One<[](auto x) { return std::abs(x); }>()},
      {"Acos", One<[](auto x) { return std::acos(x); }>()},
      {"Acosh", One<[](auto x) { return std::acosh(x); }>()},
      {"Add", Two<[](auto x, auto y) { return x + y; }>()},
      {"Arg", ComplexOne<[](auto x) { return std::arg(x); }>()},
      {"Asin", One<[](auto x) { return std::asin(x); }>()},
      {"Asinh", One<[](auto x) { return std::asinh(x); }>()},
      {"Atan", One<[](auto x) { return std::atan(x); }>()},
      {"Atan2", RealTwo<[](auto x, auto y) { return std::atan2(x, y); }>()},
      {"Atanh", One<[](auto x) { return std::atanh(x); }>()},
      {"CIS",
       {nullptr, nullptr, FromReal<[](auto x) { return std::polar(decltype(x){1}, x); }, Lum32fc>,
        FromReal<[](auto x) { return std::polar(decltype(x){1}, x); }, Lum64fc>}},
      {"Cbrt", RealOne<[](auto x) { return std::cbrt(x); }>()},
      {"CdfNorm", RealOne<[](auto x) { return std::erfc(-x * decltype(x)(0.70710678118654752)) / 2; }>()},
      {"Ceil", RealOne<[](auto x) { return std::ceil(x); }>()},
      {"Conj", ComplexOne<[](auto x) { return std::conj(x); }>()},
      {"Cos", One<[](auto x) { return std::cos(x); }>()},
      {"Cosh", One<[](auto x) { return std::cosh(x); }>()},
      {"Div", Two<[](auto x, auto y) { return x / y; }>()},
      {"Erf", RealOne<[](auto x) { return std::erf(x); }>()},
      {"Erfc", RealOne<[](auto x) { return std::erfc(x); }>()},
      {"Exp", One<[](auto x) { return std::exp(x); }>()},
      {"Expm1", RealOne<[](auto x) { return std::expm1(x); }>()},
      {"Floor", RealOne<[](auto x) { return std::floor(x); }>()},
      {"Frac", RealOne<[](auto x) { return x - std::trunc(x); }>()},
      {"Hypot", RealTwo<[](auto x, auto y) { return std::hypot(x, y); }>()},
      {"Inv", RealOne<[](auto x) { return 1 / x; }>()},
      {"InvCbrt", RealOne<[](auto x) { return 1 / std::cbrt(x); }>()},
      {"InvSqrt", RealOne<[](auto x) { return 1 / std::sqrt(x); }>()},
      {"Ln", One<[](auto x) { return std::log(x); }>()},
      {"Log10", One<[](auto x) { return std::log10(x); }>()},
      {"Log1p", RealOne<[](auto x) { return std::log1p(x); }>()},
      {"Modf", RealTwoOutputs<[](auto x, auto& whole, auto& fraction) { fraction = std::modf(x, &whole); }>()},
      {"Mul", Two<[](auto x, auto y) { return x * y; }>()},
      {"MulByConj",
       {nullptr, nullptr, TwoInputs<[](auto x, auto y) { return x * std::conj(y); }, Lum32fc>,
        TwoInputs<[](auto x, auto y) { return x * std::conj(y); }, Lum64fc>}},
      {"NearbyInt", RealOne<[](auto x) { return std::nearbyint(x); }>()},
      {"Pow", Two<[](auto x, auto y) { return std::pow(x, y); }>()},
      {"Pow2o3", RealOne<[](auto x) { return std::cbrt(x * x); }>()},
      {"Pow3o2", RealOne<[](auto x) { return x * std::sqrt(x); }>()},
      {"Powx", WithParameter<[](auto x, auto y) { return std::pow(x, y); }>()},
      {"Rint", RealOne<[](auto x) { return std::rint(x); }>()},
      {"Round", RealOne<[](auto x) { return std::round(x); }>()},
      {"Sin", One<[](auto x) { return std::sin(x); }>()},
      {"SinCos", RealTwoOutputs<[](auto x, auto& sine, auto& cosine) {
         sine = std::sin(x);
         cosine = std::cos(x);
       }>()},
      {"Sinh", One<[](auto x) { return std::sinh(x); }>()},
      {"Sqr", RealOne<[](auto x) { return x * x; }>()},
      {"Sqrt", One<[](auto x) { return std::sqrt(x); }>()},
      {"Sub", Two<[](auto x, auto y) { return x - y; }>()},
      {"Tan", One<[](auto x) { return std::tan(x); }>()},
      {"Tanh", One<[](auto x) { return std::tanh(x); }>()},
      {"Trunc", RealOne<[](auto x) { return std::trunc(x); }>()},
  };
  return loops;
}

}  // namespace

ScalarLoop FindScalarLoop(const Export& entry) {
  const auto found = AllLoops().find(entry.function);
  if (found == AllLoops().end()) return nullptr;
  const Loops& loops = found->second;
  if (entry.type == "32f") return loops.f32;
  if (entry.type == "64f") return loops.f64;
  return entry.type == "32fc" ? loops.c32 : loops.c64;
}

}  // namespace lum::support
