// The numbers in one register as the compiler's own vector type: their bits, comparisons and fused sums. What the layers
// without AVX-512 share.
#pragma once

#include <bit>

#if defined(__AVX__)
#include "frame/intrinsics.h"
#endif
#include "frame/lane_arithmetic.h"
#include "frame/vec_types.h"

namespace lum::inline LUM_LAYER {

#if defined(__AVX__)
inline constexpr int register_bytes = 32;
#else
inline constexpr int register_bytes = 16;
#endif

template <Lane T> struct RegisterOf { using type [[gnu::vector_size(register_bytes)]] = T; };
template <Lane T> using Register = typename RegisterOf<T>::type;
template <Lane T> inline constexpr int lanes_of_register = register_bytes / static_cast<int>(sizeof(T));

// The bits of a register as lanes of another type.
template <Lane To, class From> LUM_INLINE Register<To> register_cast(From r) {
  static_assert(sizeof(From) == register_bytes);
  return std::bit_cast<Register<To>>(r);
}
template <class R> LUM_INLINE bool any_bit(R r) {
#if defined(__AVX__)
  return _mm256_testz_si256(std::bit_cast<__m256i>(r), std::bit_cast<__m256i>(r)) == 0;
#endif
  const auto words = register_cast<uint64_t>(r);
  uint64_t united = 0;
  for (int i = 0; i < lanes_of_register<uint64_t>; ++i) united |= words[i];
  return united != 0;
}

namespace reg {

template <Floating T> LUM_INLINE Register<UnsignedOf<T>> bits(Register<T> x) { return register_cast<UnsignedOf<T>>(x); }
template <Floating T> LUM_INLINE Register<T> number(Register<UnsignedOf<T>> b) { return register_cast<T>(b); }
// All bits of the lanes in which a comparison holds.
template <Floating T, class Comparison> LUM_INLINE Register<UnsignedOf<T>> lanes_where(Comparison condition) {
  return register_cast<UnsignedOf<T>>(condition);
}
template <Floating T> LUM_INLINE Register<T> magnitude(Register<T> x) { return number<T>(bits<T>(x) & (sign_bit<T> - 1)); }

// +-(x y) +- z with one rounding, where the processor has an instruction for it. Of several NaNs it gives any one, and of one
// that one; but for the sign that negation gives it where the compiler has no instruction of its own.
template <bool negate_product, bool negate_addend, Floating T>
LUM_INLINE Register<T> fma(Register<T> x, Register<T> y, Register<T> z) {
#if defined(__FMA__)
  using V = Register<T>;
  if constexpr (sizeof(T) == 4) {
    if constexpr (negate_product) return V(negate_addend ? _mm256_fnmsub_ps(x, y, z) : _mm256_fnmadd_ps(x, y, z));
    else return V(negate_addend ? _mm256_fmsub_ps(x, y, z) : _mm256_fmadd_ps(x, y, z));
  } else {
    if constexpr (negate_product) return V(negate_addend ? _mm256_fnmsub_pd(x, y, z) : _mm256_fnmadd_pd(x, y, z));
    else return V(negate_addend ? _mm256_fmsub_pd(x, y, z) : _mm256_fmadd_pd(x, y, z));
  }
#else
  const Register<T> a = negate_product ? -x : x, c = negate_addend ? -z : z;
  Register<T> r;
  for (int i = 0; i < lanes_of_register<T>; ++i) r[i] = lane::quick_fma<rn>(a[i], y[i], c[i]);
  return r;
#endif
}
// Whether the NaNs of it need no second look.
#if defined(__FMA__)
inline constexpr bool fma_gives_these_nans = true;
#else
inline constexpr bool fma_gives_these_nans = false;
#endif

}  // namespace reg
}  // namespace lum::inline LUM_LAYER
