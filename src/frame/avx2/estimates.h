// 1/x and 1/sqrt(x) to 14 bits, and the former rounded to few bits, without a gather: tables stand in registers. All of it is
// work on the top words of lanes, so that the two registers of a vector of doubles are one of words here. A part of
// frame/vec_avx2.h.
#pragma once

#include "frame/avx2/base.h"
#include "frame/reciprocal_estimates.h"

namespace lum {
inline namespace avx2 {
namespace half {

// ---- The top words of lanes

// Of a float all of it, of a double the upper half. Words of both registers of doubles stand in the order of the instruction,
// and of_top_words puts them back.
template <Floating T> struct TopWord {
  static constexpr int fraction_bits = lane::Format<T>::fraction_bits - (is32<T> ? 0 : 32);
  static constexpr uint32_t fraction = (1u << fraction_bits) - 1;
  static constexpr uint32_t bias = lane::Format<T>::bias;
  static constexpr uint32_t hidden = 1u << fraction_bits;
};
using Word = Half<uint32_t>;
LUM_INLINE Word upper_words(Vec<double> a) {
  return {_mm256_castps_si256(_mm256_shuffle_ps(_mm256_castpd_ps(a.low.v), _mm256_castpd_ps(a.high.v), 0xDD))};
}
LUM_INLINE Word lower_words(Vec<double> a) {
  return {_mm256_castps_si256(_mm256_shuffle_ps(_mm256_castpd_ps(a.low.v), _mm256_castpd_ps(a.high.v), 0x88))};
}
LUM_INLINE Vec<double> of_words(Word lower, Word upper) {
  return {from_raw<double>(_mm256_unpacklo_epi32(lower.v, upper.v)), from_raw<double>(_mm256_unpackhi_epi32(lower.v, upper.v))};
}
// f(top words, whether bits below them are set) of every lane, as numbers with nothing below their top words.
template <class F> LUM_INLINE Vec<float> by_top_words(Vec<float> a, F f) {
  const Word zero = all(0u);
  return {from_raw<float>(f(Word{raw(a.low)}, zero).v), from_raw<float>(f(Word{raw(a.high)}, zero).v)};
}
template <class F> LUM_INLINE Vec<double> by_top_words(Vec<double> a, F f) {
  return of_words(all(0u), f(upper_words(a), lower_words(a)));
}
// The same of one register.
template <Floating T, class F> LUM_INLINE Half<T> by_top_words(Half<T> a, F f) {
  if constexpr (is32<T>) return from_raw<T>(f(Word{raw(a)}, all(0u)).v);
  else
    return as_float<T>(Half<uint64_t>{f(Word{raw(a)}, Word{_mm256_slli_epi64(raw(a), 32)}).v} &
                       all(uint64_t{0xFFFFFFFF00000000}));
}

// Lanes whose top words as numbers are not from low to high - 1. Numbers below low wrap around; the top bit is turned over by
// the subtraction for the signed comparison.
LUM_INLINE HalfMask<uint32_t> words_outside(Word w, uint32_t low, uint32_t high) {
  const Half<int32_t> moved{(w - all(low ^ 0x80000000u)).v};
  return {greater(moved, all(static_cast<int32_t>((high - low - 1) ^ 0x80000000u))).v};
}
LUM_INLINE bool any_outside(Vec<float> a, uint32_t low, uint32_t high) {
  return any(words_outside({raw(a.low)}, low, high) | words_outside({raw(a.high)}, low, high));
}
LUM_INLINE bool any_outside(Vec<double> a, uint32_t low, uint32_t high) {
  return any(words_outside(upper_words(a), low, high));
}

// ---- Tables of words

LUM_INLINE Word word_of(const uint32_t* table, Word index) {
  return {_mm256_permutevar8x32_epi32(_mm256_load_si256(reinterpret_cast<const __m256i*>(table)), index.v)};
}
// The entry of 2^n words that the n bits of w from `place` on name.
template <int n, int place> LUM_INLINE Word entry(const uint32_t* table, Word w, Word index) {
  if constexpr (n == 3) {
    return word_of(table, index);
  } else {
    const HalfMask<uint32_t> upper{shift_left<32 - place - n>(w).v};
    return select(upper, entry<n - 1, place>(table + (1 << (n - 1)), w, index), entry<n - 1, place>(table, w, index));
  }
}
template <int n, int place> LUM_INLINE Word entry(const uint32_t* table, Word w) {
  return entry<n, place>(table, w, shift_right<place>(w));
}

// ---- Estimates to 14 bits

// The significand for the bits of w below place + 6, in 16 fraction bits.
template <int scale, int place> LUM_INLINE Word on_line(const lane::LineWords& lines, Word w) {
  const Word line = entry<6, place>(lines.word, w);
  const Word j = shift_right<place - 10>(w) & all(1023u);
  const Word down{_mm256_madd_epi16((line & all(1023u)).v, j.v)};
  return shift_right<9>(shift_left<scale>(shift_right<10>(line)) - down);
}

// The top words of the estimates, from the top words of numbers and whether bits below them are set.
template <Floating T> LUM_INLINE Word rcp14_word(Word w, Word below) {
  using F = TopWord<T>;
  constexpr int fb = F::fraction_bits;
  const Word significand = shift_left<fb - 16>(on_line<8, fb - 6>(lane::reciprocal_line_words, w));
  const auto is_power = eq((w & all(F::fraction)) | below, all(0u));
  const Word field = all((2 * F::bias - 2) << fb) - (w & all(~F::fraction));
  return field + select(is_power, all(2 * F::hidden), significand);
}
template <Floating T> LUM_INLINE Word rsqrt14_word(Word w, Word below) {
  using F = TopWord<T>;
  constexpr int fb = F::fraction_bits;
  const Word significand = shift_left<fb - 16>(on_line<7, fb - 5>(lane::reciprocal_root_line_words, w));
  // Only the exponent's last bit is set, none of the fraction.
  const auto is_power = eq(((w ^ all(F::hidden)) & all(2 * F::hidden - 1)) | below, all(0u));
  const Word half_field = shift_right<1>(w + all(F::hidden)) & all(~F::fraction);
  return all((F::bias - 2 + (F::bias + 1) / 2) << fb) - half_field + select(is_power, all(2 * F::hidden), significand);
}
template <Floating T> LUM_INLINE Vec<T> rcp14_normal(Vec<T> a) {
  return by_top_words(
      a, [](Word w, Word below) __attribute__((always_inline)) { return rcp14_word<T>(w, below); });
}
template <Floating T> LUM_INLINE Vec<T> rsqrt14_normal(Vec<T> a) {
  return by_top_words(
      a, [](Word w, Word below) __attribute__((always_inline)) { return rsqrt14_word<T>(w, below); });
}

// ---- Estimates rounded to few bits

// The estimate of 1/m, m in [1, 2), rounded to a multiple of 2^-n, or of 2^-17 halves of it up, steps down as m rises, at most
// once in each of 2^n equal parts of the interval: its count of 2^-n at the start of a part, and how far into the interval that
// holds, in one word from which the fraction of m is subtracted.
template <int n, int fraction_bits, bool halves_to_even> struct alignas(32) Steps {
  uint32_t word[1 << n];
  static constexpr uint32_t count(uint32_t place) {  // of m with the first 16 fraction bits `place` and others behind them
    const uint32_t significand = lane::on_line(lane::reciprocal_lines[place >> 10], 8, place);
    const uint32_t half = 1u << (16 - n), whole = significand >> (17 - n), rest = significand & (2 * half - 1);
    return whole + (rest > half || (rest == half && (!halves_to_even || whole % 2 != 0)) ? 1 : 0);
  }
  static constexpr bool has_one_step_at_most(uint32_t part) {
    return count(((part + 1) << (16 - n)) - 1) + 1 >= count(part << (16 - n));
  }
  constexpr Steps() : word{} {
    for (uint32_t part = 0; part < (1u << n); ++part) {
      const uint32_t first = part << (16 - n), end = (part + 1) << (16 - n);
      uint32_t same = first;
      while (same < end && count(same) == count(first)) ++same;
      word[part] = (count(first) << fraction_bits) + (same << (fraction_bits - 16)) - 1;
    }
  }
};
template <int n, int fraction_bits, bool halves_to_even> inline constexpr Steps<n, fraction_bits, halves_to_even> steps;
template <int n, int fraction_bits, bool halves_to_even> constexpr bool steps_are_apart() {
  for (uint32_t part = 0; part < (1u << n); ++part)
    if (!Steps<n, fraction_bits, halves_to_even>::has_one_step_at_most(part)) return false;
  return true;
}

// The count of 2^-n, in the bits above the fraction; below it anything.
template <int n, int fraction_bits, bool halves_to_even> LUM_INLINE Word stepped(Word w) {
  static_assert(steps_are_apart<n, fraction_bits, halves_to_even>());
  const Word start = entry<n, fraction_bits - n>(steps<n, fraction_bits, halves_to_even>.word, w);
  return start - (w & all((1u << fraction_bits) - 1));
}

// ---- What every lane is given

// Zeros, denormal numbers, infinities and NaN, and negative numbers.
template <Floating T> LUM_INLINE bool any_not_positive_normal(Vec<T> a) {
  using F = TopWord<T>;
  return any_outside(a, F::hidden, (2 * F::bias + 1) << F::fraction_bits);
}
template <Floating T> LUM_INLINE bool any_not_normal(Vec<T> a) {
  return any_not_positive_normal(Vec<T>{magnitude(a.low), magnitude(a.high)});
}
// Whether a lane is not normal or has no normal reciprocal.
template <Floating T> LUM_INLINE bool any_without_normal_reciprocal(Vec<T> a) {
  using F = TopWord<T>;
  return any_outside(Vec<T>{magnitude(a.low), magnitude(a.high)}, F::hidden, (2 * F::bias - 1) << F::fraction_bits);
}
// The estimates of any number: that of its significand, with the exponent behind it.
template <Floating T> [[gnu::noinline, gnu::cold, gnu::const]] Native<T> rcp14_of_any(Native<T> in_a) {
  const Half<T> a{in_a};
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  using S = SignedOf<T>;
  constexpr int fb = F::fraction_bits;
  const auto [b, small] = normal(a);
  const auto significand = as_float<T>((b & all(static_cast<Bits>(F::fraction))) | all(static_cast<Bits>(F::one)));
  const auto r = bits(by_top_words(
      significand, [](Word w, Word below) __attribute__((always_inline)) { return rcp14_word<T>(w, below); }));
  const auto bias = select(HalfMask<Bits>{small.v}, all(static_cast<Bits>(F::bias + lift<T>)), all(static_cast<Bits>(F::bias)));
  const auto exponent = shift_right<fb>(b) - bias;
  const Half<S> field{(shift_right<fb>(r) - exponent).v};
  const auto normal_bits = r - shift_left<fb>(exponent);
  // A denormal one loses no set bit.
  const auto fraction = (r & all(static_cast<Bits>(F::fraction))) | all(static_cast<Bits>(F::hidden));
  const auto denormal_bits = shift_right(fraction, all(Bits{1}) - Half<Bits>{field.v});
  const auto choose = [](Half<UnsignedOf<S>> x, HalfMask<S> m, Half<UnsignedOf<S>> y) __attribute__((always_inline)) {
    return select(HalfMask<UnsignedOf<S>>{m.v}, x, y);
  };
  auto v = choose(denormal_bits, greater(all(S{1}), field), normal_bits);
  v = choose(all(static_cast<Bits>(F::infinity)), greater(field, all(static_cast<S>(2 * F::bias))), v);
  const auto infinite = eq(bits(magnitude(a)), all(static_cast<Bits>(F::infinity)));
  v = select(infinite, all(Bits{0}), v) | (bits(a) & all(static_cast<Bits>(F::sign)));
  return select(compare<3>(a, a), a + a, as_float<T>(v)).v;
}
template <Floating T> [[gnu::noinline, gnu::cold, gnu::const]] Native<T> rsqrt14_of_any(Native<T> in_a) {
  const Half<T> a{in_a};
  using F = lane::Format<T>;
  using Bits = UnsignedOf<T>;
  constexpr bool odd = lift<T> % 2 != 0;
  constexpr auto half_lift = static_cast<Bits>(static_cast<Bits>((lift<T> + 1) / 2) << F::fraction_bits);
  const auto [b, small] = normal(a);
  const Half<Bits> where_small{small.v};
  const auto even = odd ? b + (where_small & all(static_cast<Bits>(F::hidden))) : b;
  const auto s = by_top_words(
      as_float<T>(even), [](Word w, Word below) __attribute__((always_inline)) { return rsqrt14_word<T>(w, below); });
  auto v = as_float<T>(bits(s) + (where_small & all(half_lift)));
  v = zero_unless(~eq(a, all(std::bit_cast<T>(F::infinity))), v);
  v = select(lt(a, all(T{0})), all(lane::default_nan<T>()), v);
  const auto zero = eq(a, all(T{0}));
  v = select(zero, as_float<T>(bits(a) | all(static_cast<Bits>(F::infinity))), v);
  return select(compare<3>(a, a), a + a, v).v;
}
// Where such a lane is found the registers are computed one by one: g++ sends a pair of them through memory when it comes from
// two sides of a branch.
template <Floating T> LUM_INLINE Vec<T> rcp14(Vec<T> a) {
  const auto r = half::rcp14_normal(a);
  auto low = r.low.v, high = r.high.v;
  if (any_without_normal_reciprocal(a)) [[unlikely]] {
    low = rcp14_of_any<T>(a.low.v);
    high = rcp14_of_any<T>(a.high.v);
  }
  return {{low}, {high}};
}
template <Floating T> LUM_INLINE Vec<T> rsqrt14(Vec<T> a) {
  const auto r = half::rsqrt14_normal(a);
  auto low = r.low.v, high = r.high.v;
  if (any_not_positive_normal(a)) [[unlikely]] {
    low = rsqrt14_of_any<T>(a.low.v);
    high = rsqrt14_of_any<T>(a.high.v);
  }
  return {{low}, {high}};
}

// rcp14(a) with its significand rounded to the given fraction bits.
template <int kept, bool halves_to_even, Floating T> LUM_INLINE Vec<T> short_rcp14(Vec<T> a) {
  using F = TopWord<T>;
  constexpr int fb = F::fraction_bits;
  return by_top_words(
      a, [](Word w, Word) __attribute__((always_inline)) {
        const Word count = shift_right<fb>(stepped<kept + 1, fb, halves_to_even>(w));
        const Word field = all((2 * F::bias - 2) << fb) - (w & all(~F::fraction));
        return field + shift_left<fb - kept>(count);
      });
}
template <int grid, int interval> LUM_INLINE Vec<float> shifted_rcp14(Vec<float> m) {
  constexpr int fb = 23;
  constexpr auto shifter = std::bit_cast<uint32_t>(0x1.8p23f / (1 << grid));
  return by_top_words(
      m, [](Word w, Word) __attribute__((always_inline)) {
        return all(shifter) + shift_right<fb>(stepped < interval == 0 ? grid : grid + 1, fb, true > (w));
      });
}
template <int grid, int interval> LUM_INLINE Vec<double> shifted_rcp14(Vec<double> m) {
  constexpr int fb = TopWord<double>::fraction_bits;
  constexpr auto shifter = static_cast<uint32_t>(std::bit_cast<uint64_t>(0x1.8p52 / (1 << grid)) >> 32);
  const Word w = upper_words(m);
  return of_words(shift_right<fb>(stepped < interval == 0 ? grid : grid + 1, fb, true > (w)), all(shifter));
}
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up_normal(Vec<T> a) { return short_rcp14<kept, false>(a); }
template <int kept, Floating T> LUM_INLINE Half<T> rounded_halves_up(Half<T> a) {
  constexpr auto half_step = UnsignedOf<T>{1} << (lane::Format<T>::fraction_bits - kept - 1);
  return as_float<T>((bits(a) + all(half_step)) & all(static_cast<UnsignedOf<T>>(~(2 * half_step - 1))));
}
template <int kept, Floating T> LUM_INLINE Vec<T> rcp14_halves_up(Vec<T> a) {
  const auto r = half::short_rcp14<kept, false>(a);
  auto low = r.low.v, high = r.high.v;
  if (any_without_normal_reciprocal(a)) [[unlikely]] {
    low = rounded_halves_up<kept>(Half<T>{rcp14_of_any<T>(a.low.v)}).v;
    high = rounded_halves_up<kept>(Half<T>{rcp14_of_any<T>(a.high.v)}).v;
  }
  return {{low}, {high}};
}

}  // namespace half
}  // namespace avx2
}  // namespace lum
