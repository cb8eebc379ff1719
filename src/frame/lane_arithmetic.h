// Arithmetic on one lane, correctly rounded in each direction, on a processor that rounds to nearest and may have no fused
// multiply-add. A directed result is the nearest one, moved by a unit in the last place when the sign of the exact error says
// so. A fused float result goes through a double rounded to odd, a fused double through three sums free of error (S. Boldo, G.
// Melquiond: Emulation of FMA and correctly rounded sums, 2008).
// Forms named quick_* are straight-line code for loops over lanes; *_doubt is +0 where their result holds,
// and has bits set where it does not.
#pragma once

#include "frame/lane_exact.h"

namespace lum::inline LUM_LAYER::lane {

#if defined(__FMA__) || defined(__ARM_FEATURE_FMA)
inline constexpr bool processor_has_fma = true;
#else
inline constexpr bool processor_has_fma = false;
#endif

// The number nearest to a value, and a number with the sign of (value - nearest); gives the value rounded by R. An overflow to
// infinity has an infinite error and comes back to the largest number. A zero has the sign of the value.
template <int R, Floating T, Floating E> LUM_INLINE T directed(T nearest, E error) {
  using Bits = typename Format<T>::Bits;
  const Bits b = to_bits(nearest);
  const Bits negative = b >> (Format<T>::width - 1);
  const auto below = static_cast<Bits>(mask_where<E>(error < 0));
  const auto above = static_cast<Bits>(mask_where<E>(error > 0));
  if constexpr (R == rd) return from_bits<T>(b + (below & (2 * negative - 1)));
  if constexpr (R == ru) return from_bits<T>(b + (above & (1 - 2 * negative)));
  if constexpr (R == rz) return from_bits<T>(b - ((below & (negative ^ 1)) | (above & negative)));
  return nearest;
}

// a + b - s exactly, s being a + b to nearest; infinite when s overflows, NaN when an operand is infinite or NaN.
template <Floating T> LUM_INLINE T sum_error(T a, T b, T s) {
  const auto ordered = mask_where<T>(magnitude(a) >= magnitude(b));
  return blend(ordered, b, a) - (s - blend(ordered, a, b));
}
// a + b - s exactly, s being a + b to nearest, without a comparison, for numbers that cannot overflow.
LUM_INLINE double two_sum_error(double a, double b, double s) {
  const double b_part = s - a;
  return (a - (s - b_part)) + (b - b_part);
}
// A zero sum of a and b is exact; toward minus infinity it is -0 unless both terms are +0, otherwise +0 unless both are -0.
template <int R, Floating T, Floating S> LUM_INLINE T with_zero_sum_sign(T result, S sum, S a, S b) {
  using F = Format<T>;
  const auto of_terms = R == rd ? to_bits(a) | to_bits(b) : to_bits(a) & to_bits(b);
  const auto sign = static_cast<UnsignedOf<T>>(of_terms >> (Format<S>::width - F::width)) & F::sign;
  const auto zero = static_cast<UnsignedOf<T>>(mask_where<S>(sum == 0));
  return from_bits<T>((to_bits(result) & ~(zero & F::sign)) | (zero & sign));
}

template <int R, Floating T> LUM_INLINE T add(T a, T b) {
  const T s = a + b;
  if constexpr (R == rn) return with_nan(s, a, b);
  const T result = directed<R>(s, sum_error(a, b, s));
  if constexpr (R == rd) return with_nan(with_zero_sum_sign<R>(result, s, a, b), a, b);
  return with_nan(result, a, b);
}
// A NaN b keeps its sign.
template <int R, Floating T> LUM_INLINE T sub(T a, T b) {
  const T s = a - b;
  if constexpr (R == rn) return with_nan(s, a, b);
  const T result = directed<R>(s, sum_error(a, -b, s));
  if constexpr (R == rd) return with_nan(with_zero_sum_sign<R>(result, s, a, -b), a, b);
  return with_nan(result, a, b);
}

// x = high + low, 26 bits each; |x| below 2^970.
struct Halves {
  double high, low;
};
LUM_INLINE Halves split(double x) {
  const double t = x * 0x1p27 + x;
  const double high = t - (t - x);
  return {high, x - high};
}
// a b - p exactly, p being a b to nearest, where product_doubt is zero.
LUM_INLINE double product_error(double a, double b, double p) {
  if constexpr (processor_has_fma) return __builtin_fma(a, b, -p);
  const auto [a_high, a_low] = split(a);
  const auto [b_high, b_low] = split(b);
  return ((a_high * b_high - p) + a_high * b_low + a_low * b_high) + a_low * b_low;
}
// Zero where p = a b to nearest has an error that is itself a double and no step of product_error or of a sum with c overflows;
// positive or NaN elsewhere. One number, not several comparisons, so that loops over lanes stay free of branches: the second
// term is NaN when |a|, |b|, |c| or |p| is too large, and the first is positive when 0 < |a b| < 2^-960.
LUM_INLINE double product_doubt(double a, double b, double p, double c) {
  const double large = (magnitude(a) + magnitude(b)) * 0x1p53 + (magnitude(p) + magnitude(c)) * 4;
  const double scaled = magnitude((a * 0x1p540) * (b * 0x1p540));
  const double small = scaled < 0x1p120 ? scaled : 0;
  return small + (large - large);
}
// The whole product of two floats is a double.
template <int R> LUM_INLINE float round_to_float(double x) {
  const auto nearest = static_cast<float>(x);
  return directed<R>(nearest, x - static_cast<double>(nearest));
}
template <int R> LUM_INLINE float quick_mul(float a, float b) {
  if constexpr (R == rn) return a * b;
  return round_to_float<R>(static_cast<double>(a) * static_cast<double>(b));
}
template <int R> LUM_INLINE double quick_mul(double a, double b) {
  const double p = a * b;
  if constexpr (R == rn) return p;
  return directed<R>(p, product_error(a, b, p));
}
template <int R, Floating T> LUM_INLINE T mul_doubt(T a, T b, T result) {
  if constexpr (R != rn && sizeof(T) == 8) return product_doubt(a, b, a * b, 0);
  else if constexpr (processor_gives_these_nans) return 0;
  else return is_nan(result) ? T{1} : T{0};
}
template <int R, Floating T> inline T careful_mul(T a, T b) {
  if constexpr (sizeof(T) == 8) return exact_mul<R>(a, b);
  const T result = quick_mul<R>(a, b);
  return is_nan(result) ? nan_of(a, b) : result;
}

// The sign of the error of a quotient q is that of (a - q b) / b, and that difference fits in a double when a and b are floats.
template <int R> LUM_INLINE float div(float a, float b) {
  const float q = a / b;
  if constexpr (R == rn) return with_nan(q, a, b);
  const double rest = static_cast<double>(a) - static_cast<double>(q) * static_cast<double>(b);
  return with_nan(directed<R>(q, from_bits<double>(to_bits(rest) ^ (to_bits(static_cast<double>(b)) & Format<double>::sign))),
                  a, b);
}
template <int R> LUM_INLINE double div(double a, double b) {
  if constexpr (R == rn) return with_nan(a / b, a, b);
  else return exact_div<R>(a, b);
}

template <int R> LUM_INLINE float sqrt(float a) {
  const float s = __builtin_sqrtf(a);
  if constexpr (R == rn) return with_nan(s, a);
  const double root = s;
  return with_nan(directed<R>(s, static_cast<double>(a) - root * root), a);
}
// Small and large numbers are taken 2^200 times as large or small, so that the square of the root has an exact error.
template <int R> LUM_INLINE double sqrt(double a) {
  if constexpr (R == rn) return with_nan(__builtin_sqrt(a), a);
  const double scale = a < 0x1p-800 ? 0x1p200 : a > 0x1p800 ? 0x1p-200 : 1.0;
  const double root_scale = a < 0x1p-800 ? 0x1p-100 : a > 0x1p800 ? 0x1p100 : 1.0;
  const double x = a * scale;
  const double s = __builtin_sqrt(x);
  const double square = s * s;
  return with_nan(directed<R>(s, (x - square) - product_error(s, s, square)) * root_scale, a);
}

// s with its last bit set when there is an error, of which only the sign matters: s + error rounded to odd.
LUM_INLINE double to_odd(double s, double error) {
  const uint64_t b = to_bits(s);
  const uint64_t inexact = mask_where<double>(magnitude(error) > 0) & 1;  // not for a NaN
  const uint64_t beyond = ((b ^ to_bits(error)) >> 63) & inexact;         // s is the larger in magnitude
  return from_bits<double>((b - beyond) | inexact);
}

// a b + c with one rounding. In a double, a b is exact and the sum rounded to odd keeps what the second rounding needs.
template <int R> LUM_INLINE float quick_fma(float a, float b, float c) {
  if constexpr (R == rn && processor_has_fma) return __builtin_fmaf(a, b, c);
  const double p = static_cast<double>(a) * static_cast<double>(b);
  const double addend = c;
  const double s = p + addend;
  const float result = round_to_float<R>(to_odd(s, two_sum_error(p, addend, s)));
  if constexpr (R == rd) return with_zero_sum_sign<R>(result, s, p, addend);
  return result;
}
// a b = p + p_low; c + p_low = t + t_low; p + t = v + v_low; v plus the odd rounding of t_low + v_low.
template <int R> LUM_INLINE double quick_fma(double a, double b, double c) {
  if constexpr (R == rn && processor_has_fma) return __builtin_fma(a, b, c);
  const double p = a * b;
  const double p_low = product_error(a, b, p);
  const double t = c + p_low;
  const double t_low = two_sum_error(c, p_low, t);
  const double v = p + t;
  const double v_low = two_sum_error(p, t, v);
  const double low = t_low + v_low;
  const double z = to_odd(low, two_sum_error(t_low, v_low, low));
  const double nearest = v + z;
  const double result = directed<R>(nearest, two_sum_error(v, z, nearest));
  return with_zero_sum_sign<R>(result, nearest, p, c);  // p_low, an unsigned zero then, may have taken the sign away
}
template <int R, Floating T> LUM_INLINE T fma_doubt(T a, T b, T c, T result) {
  if constexpr (sizeof(T) == 4 || (R == rn && processor_has_fma)) return is_nan(result) ? T{1} : T{0};
  else return product_doubt(a, b, a * b, c);
}
// +-(a b) +- c; a NaN keeps the sign that it came with.
template <int R, bool negate_product, bool negate_addend, Floating T> inline T careful_fma(T a, T b, T c) {
  if (is_nan(a) || is_nan(b) || is_nan(c)) return nan_of(a, b, c);
  const T factor = negate_product ? -a : a;
  const T addend = negate_addend ? -c : c;
  if constexpr (sizeof(T) == 8) return exact_fma<R>(factor, b, addend);
  const T result = quick_fma<R>(factor, b, addend);
  return is_nan(result) ? default_nan<T>() : result;
}

}  // namespace lum::inline LUM_LAYER::lane
