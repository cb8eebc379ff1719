// The element types as the kernels see them, and which of them are complex.
#pragma once

#include <type_traits>

#include "frame/layer.h"
#include "lumvm_types.h"

namespace lum {

// The real type of an element: itself, or that of its parts.
template <class E> struct RealOf { using Type = E; };
template <> struct RealOf<Lum32fc> { using Type = Lum32f; };
template <> struct RealOf<Lum64fc> { using Type = Lum64f; };
template <class E> using Real = typename RealOf<E>::Type;
template <class E> inline constexpr bool is_complex = !std::is_same_v<E, Real<E>>;

}  // namespace lum
