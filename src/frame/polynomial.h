// Polynomials by their coefficients, as the records of a family's polynomials.toml give them.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "frame/layer.h"

namespace lum {

// c[0] + c[1] x + c[2] x^2 + ...
template <class T, size_t n> struct Polynomial {
  T c[n];
  static constexpr size_t size = n;
};

template <size_t n> consteval Polynomial<float, n> polynomial32(const uint32_t (&bits)[n]) {
  Polynomial<float, n> p{};
  for (size_t i = 0; i < n; ++i) p.c[i] = std::bit_cast<float>(bits[i]);
  return p;
}
template <size_t n> consteval Polynomial<double, n> polynomial64(const uint64_t (&bits)[n]) {
  Polynomial<double, n> p{};
  for (size_t i = 0; i < n; ++i) p.c[i] = std::bit_cast<double>(bits[i]);
  return p;
}

// Coefficients first to last of p, each one or every second one, for schemes that evaluate a polynomial in pieces side by side.
template <size_t first, size_t last, size_t step = 1, class T, size_t n>
constexpr Polynomial<T, (last - first) / step + 1> part(const Polynomial<T, n>& p) {
  Polynomial<T, (last - first) / step + 1> piece{};
  for (size_t i = first; i <= last; i += step) piece.c[(i - first) / step] = p.c[i];
  return piece;
}

}  // namespace lum
