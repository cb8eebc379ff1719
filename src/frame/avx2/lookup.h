// Tables in registers, gathers and moves across the lanes of one register, and operations lane by lane. A part of
// frame/vec_avx2.h.
#pragma once

#include "frame/avx2/register_arithmetic.h"

namespace lum {
inline namespace avx2 {
namespace half {

// ---- Lookup and moves

// Tables of 16 V floats or 8 V doubles in registers, their entries found by the low bits of an index. Doubles are two tables of
// words, and the words of an entry are found at once.
template <Lane T, int vectors> struct Table {
  static constexpr int parts = 2 * vectors;
  __m256i part[parts];

  LUM_INLINE explicit Table(Half<T> a, Half<T> b) {
    if constexpr (is32<T>) part[0] = raw(a), part[1] = raw(b);
    else part[0] = low_words(raw(a), raw(b)), part[1] = high_words(raw(a), raw(b));
  }
  LUM_INLINE explicit Table(Half<T> a, Half<T> b, Half<T> c, Half<T> d) : Table(a, b) {
    if constexpr (is32<T>) part[2] = raw(c), part[3] = raw(d);
    else part[2] = low_words(raw(c), raw(d)), part[3] = high_words(raw(c), raw(d));
  }
  LUM_INLINE Half<T> operator[](__m256i index) const {
    using Choice = HalfMask<int32_t>;
    using Words = Half<int32_t>;
    const auto word = [](__m256i table, __m256i i) __attribute__((always_inline)) {
      return Words{_mm256_permutevar8x32_epi32(table, i)};
    };
    if constexpr (is32<T>) {
      const Choice second{_mm256_slli_epi32(index, 28)};  // the top bit chooses
      const auto low = select(second, word(part[1], index), word(part[0], index));
      if constexpr (vectors == 1) return from_raw<T>(low.v);
      else {
        const auto high = select(second, word(part[3], index), word(part[2], index));
        return from_raw<T>(select(Choice{_mm256_slli_epi32(index, 27)}, high, low).v);
      }
    } else {
      const __m256i i = _mm256_shuffle_epi32(index, 0xA0);
      const auto entry = [&](__m256i low, __m256i high) __attribute__((always_inline)) {
        return Words{_mm256_blend_epi32(word(low, i).v, word(high, i).v, 0xAA)};
      };
      const auto low = entry(part[0], part[1]);
      if constexpr (vectors == 1) return from_raw<T>(low.v);
      else return from_raw<T>(select(Choice{_mm256_slli_epi32(i, 28)}, entry(part[2], part[3]), low).v);
    }
  }
};

// A mask of all lanes of which the compiler does not know.
template <Lane T> LUM_INLINE HalfMask<T> unseen_full_mask() {
  __m256i full = _mm256_set1_epi32(-1);
  asm("" : "+x"(full));
  return {full};
}
// By the assembler, which sees where the index is: qemu-user 7.2, the one of Debian 12, takes ymm4 for "no index", as its
// number is in other addresses, and reads at a wrong place. There index and mask, which a gather leaves zero, change places.
// What is read is a constant table: the result depends on the operands alone.
#define LUM_GATHER(instruction, scale)                                                                                 \
  asm(".ifc %t[index],%%ymm4\n\t"                                                                                      \
      "vpxor %t[mask],%%ymm4,%%ymm4\n\tvpxor %%ymm4,%t[mask],%t[mask]\n\tvpxor %t[mask],%%ymm4,%%ymm4\n\t" instruction \
      " %%ymm4,(%[base],%t[mask]," scale                                                                               \
      "),%t[result]\n\tvmovdqa %t[mask],%%ymm4\n\t"                                                                    \
      ".else\n\t" instruction " %t[mask],(%[base],%t[index]," scale "),%t[result]\n\t.endif"                           \
      : [result] "+&x"(result), [mask] "+&x"(mask)                                                                     \
      : [index] "x"(index), [base] "r"(base))
template <Lane T> LUM_INLINE Half<T> gather(HalfMask<T> m, const T* base, __m256i index, Half<T> old) {
  __m256i result = raw(old), mask = m.v;
  if constexpr (std::same_as<T, float>) LUM_GATHER("vgatherdps", "4");
  else if constexpr (std::same_as<T, double>) LUM_GATHER("vgatherqpd", "8");
  else if constexpr (is32<T>) LUM_GATHER("vpgatherdd", "4");
  else LUM_GATHER("vpgatherqq", "8");
  return from_raw<T>(result);
}
#undef LUM_GATHER

// Loads of whole rows and a transposition, which is much faster than four gathers.
template <Lane T> struct HalfColumns { Half<T> column0, column1, column2, column3; };
template <Lane T, Integer I> LUM_INLINE HalfColumns<T> gather_rows(const T* base, Half<I> index) {
  alignas(32) SignedOf<T> i[Half<T>::lanes];
  _mm256_store_si256(reinterpret_cast<__m256i*>(i), index.v);
  if constexpr (is32<T>) {
    const auto rows = [&](int j) __attribute__((always_inline)) {
      const auto row = [&](int k) __attribute__((always_inline)) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + i[k]));
      };
      return _mm256_inserti128_si256(_mm256_castsi128_si256(row(j)), row(j + 4), 1);
    };
    const __m256i a = rows(0), b = rows(1), c = rows(2), d = rows(3);
    const __m256i ab_low = _mm256_unpacklo_epi32(a, b), ab_high = _mm256_unpackhi_epi32(a, b);
    const __m256i cd_low = _mm256_unpacklo_epi32(c, d), cd_high = _mm256_unpackhi_epi32(c, d);
    return {from_raw<T>(_mm256_unpacklo_epi64(ab_low, cd_low)), from_raw<T>(_mm256_unpackhi_epi64(ab_low, cd_low)),
            from_raw<T>(_mm256_unpacklo_epi64(ab_high, cd_high)), from_raw<T>(_mm256_unpackhi_epi64(ab_high, cd_high))};
  } else {
    const auto row = [&](int k) __attribute__((always_inline)) {
      return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(base + i[k]));
    };
    const __m256i a = row(0), b = row(1), c = row(2), d = row(3);
    const __m256i ab_even = _mm256_unpacklo_epi64(a, b), ab_odd = _mm256_unpackhi_epi64(a, b);
    const __m256i cd_even = _mm256_unpacklo_epi64(c, d), cd_odd = _mm256_unpackhi_epi64(c, d);
    return {from_raw<T>(_mm256_permute2x128_si256(ab_even, cd_even, 0x20)),
            from_raw<T>(_mm256_permute2x128_si256(ab_odd, cd_odd, 0x20)),
            from_raw<T>(_mm256_permute2x128_si256(ab_even, cd_even, 0x31)),
            from_raw<T>(_mm256_permute2x128_si256(ab_odd, cd_odd, 0x31))};
  }
}

template <Lane T> struct HalfTwoColumns { Half<T> column0, column1; };
template <Lane T, Integer64 I> LUM_INLINE HalfTwoColumns<T> gather_pairs(const T* base, Half<I> index) {
  alignas(32) SignedOf<T> i[Half<T>::lanes];
  _mm256_store_si256(reinterpret_cast<__m256i*>(i), index.v);
  const auto pairs = [&](int j) __attribute__((always_inline)) {
    const auto pair = [&](int k) __attribute__((always_inline)) {
      return _mm_loadu_si128(reinterpret_cast<const __m128i*>(base + i[k]));
    };
    return _mm256_inserti128_si256(_mm256_castsi128_si256(pair(j)), pair(j + 2), 1);
  };
  const __m256i even = pairs(0), odd = pairs(1);
  return {from_raw<T>(_mm256_unpacklo_epi64(even, odd)), from_raw<T>(_mm256_unpackhi_epi64(even, odd))};
}

// The even or odd lanes of both.
template <Floating T> LUM_INLINE Half<T> even_lanes(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return from_raw<T>(low_words(raw(a), raw(b)));
  else return from_raw<T>(_mm256_permute4x64_epi64(_mm256_unpacklo_epi64(raw(a), raw(b)), 0xD8));
}
template <Floating T> LUM_INLINE Half<T> odd_lanes(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return from_raw<T>(high_words(raw(a), raw(b)));
  else return from_raw<T>(_mm256_permute4x64_epi64(_mm256_unpackhi_epi64(raw(a), raw(b)), 0xD8));
}
// The first or the second half of the sequence a0, b0, a1, b1, ...
template <Floating T> LUM_INLINE __m256i low_pairs(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return _mm256_unpacklo_epi32(raw(a), raw(b));
  else return _mm256_unpacklo_epi64(raw(a), raw(b));
}
template <Floating T> LUM_INLINE __m256i high_pairs(Half<T> a, Half<T> b) {
  if constexpr (is32<T>) return _mm256_unpackhi_epi32(raw(a), raw(b));
  else return _mm256_unpackhi_epi64(raw(a), raw(b));
}
template <Floating T> LUM_INLINE Half<T> first_pairs(Half<T> a, Half<T> b) {
  return from_raw<T>(_mm256_permute2x128_si256(low_pairs(a, b), high_pairs(a, b), 0x20));
}
template <Floating T> LUM_INLINE Half<T> last_pairs(Half<T> a, Half<T> b) {
  return from_raw<T>(_mm256_permute2x128_si256(low_pairs(a, b), high_pairs(a, b), 0x31));
}

// ---- Lane by lane

template <Lane T> struct Lanes {
  T lane[Half<T>::lanes];
  LUM_INLINE explicit Lanes(Half<T> a) { store(lane, a); }
};
// one(a, b, ...) of every lane, for what is rare or has no short form.
template <auto one, Lane T, Lane... Others> [[gnu::noinline, gnu::cold]] Half<T> each_lane(Half<T> a, Half<Others>... others) {
  Lanes<T> r(a);
  [&r](const Lanes<Others>&... other) {
    for (int i = 0; i < Half<T>::lanes; ++i) r.lane[i] = one(r.lane[i], other.lane[i]...);
  }(Lanes<Others>(others)...);
  return load(r.lane);
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
