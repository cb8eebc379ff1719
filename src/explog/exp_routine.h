// e^x at the ends of the range, where the vector paths of the exponentials refuse it: over vectors, as a second path, and one
// by one, as a lane routine. Both take the same steps.
#pragma once

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "explog/polynomials.h"
#include "frame/constant.h"
#include "frame/lane_format.h"
#include "frame/literals.h"
#include "frame/numbers.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::explog {

// Where the results of the lane routines change their kind, in either type.
template <class T> struct ExpLimits;
template <> struct ExpLimits<Lum32f> {
  static constexpr auto overflow = f32(0x42B17217, 88.72283172607422);
  static constexpr auto denormal = f32(0xC2AEAC4F, -87.33654022216797);
  static constexpr auto underflow = f32(0xC2CFF1B4, -103.97207641601562);
};
template <> struct ExpLimits<Lum64f> {
  static constexpr auto overflow = f64(0x40862E42FEFA39EF, 709.782712893384);
  static constexpr auto denormal = f64(0xC086232BDD7ABCD2, -708.3964185322641);
  static constexpr auto underflow = f64(0xC0874910D52D3051, -745.1332191019411);
};

// Infinities, NaN, and arguments past the ends of the finite positive results. False: the result is an ordinary number.
template <class T> bool ExpIsSpecial(T x, T& result, LumStatus& status) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  status = lumStsOk;
  if (!(x - x == 0)) {
    result = x == -infinity ? T(0) : x * x;
  } else if (x > ExpLimits<T>::overflow) {
    result = infinity;
    status = lumStsOverflow;
  } else if (x < ExpLimits<T>::underflow) {
    result = 0;
    status = lumStsUnderflow;
  } else {
    return false;
  }
  return true;
}

// e^x = 2^m p in binary32 arithmetic, to about 22 bits.
template <class V> struct ExpFloatParts { V m, p; };
template <class V> LUM_INLINE ExpFloatParts<V> ExpFloatReduced(V x) {
  const auto c = [](float value) { return Constant<V>(value); };
  constexpr auto shifter = rounding_shifter<Lum32f>();
  const V t = x * c(numbers::log2_e<Lum32f>) + c(shifter);
  const V m = t - c(shifter);
  const V r = (x + m * c(-numbers::ln2_short<Lum32f>)) + m * c(-numbers::ln2_short_tail<Lum32f>);
  return {m, unfused_horner(r, explog::exp_routine_32f)};
}

// e^x in binary32 arithmetic.
inline LumStatus ExpFloatRoutine(Lum32f x, Lum32f& result) {
  LumStatus status;
  if (ExpIsSpecial(x, result, status)) return status;
  const auto [m, p] = ExpFloatReduced(x);
  const int n = static_cast<int>(m);
  if (x < ExpLimits<Lum32f>::denormal) {
    result = p * lane::power_of_two<Lum32f>(n + 60) * 0x1p-60f;
    return lumStsUnderflow;
  }
  result = n < 128 ? p * lane::power_of_two<Lum32f>(n) : p * 0x1p127f * 2.0f;
  return lumStsOk;
}

// Up to this exponent a denormal result has so few bits that rounding the sum before does no harm.
inline constexpr int exp_last_short = -1033;
// 2^e s for e^x = 2^e (head + p) with a denormal result, rounded once: s = head + p and its rounding error are split so that
// the last sum alone is inexact.
inline double ExpScaledToDenormal(double head, double p, int e) {
  const auto scale = lane::power_of_two<double>(e + 60);
  const double a = p * scale;
  const double b = head * scale;
  const double s = b + a;
  constexpr double down = 0x1p-60;
  if (e <= exp_last_short) return s * down;
  const double w = s * 0x1.8p32;
  const double hi = (w + s) - w;
  const double lo = (s - hi) + ((b - s) + a);
  return hi * down + lo * down;
}

// 2^e s, also where 2^e alone would overflow.
inline double ExpScaled(double s, int e) {
  if (e == 1024) return s * 0x1p1023 * 2.0;
  return s * lane::power_of_two<double>(e);
}

// 2^(j/64) in two parts.
inline constexpr auto exp2_pairs = table64({
#include "tables/generated/exp2_64f_64_pairs.inc"
});

// x = k ln(2)/64 + r,  e^r = 1 + u; k also in the low bits of `shifted`.
template <class V> struct ExpDoubleParts { V shifted, k, u; };
template <class V> LUM_INLINE ExpDoubleParts<V> ExpDoubleReduced(V x) {
  const auto c = [](double value) { return Constant<V>(value); };
  constexpr auto shifter = rounding_shifter<Lum64f>();
  const V t = x * c(64 * numbers::log2_e<Lum64f>) + c(shifter);
  const V k = t - c(shifter);
  const V r = (x + k * c(-numbers::ln2_short<Lum64f> / 64)) + k * c(-numbers::ln2_short_tail<Lum64f> / 64);
  return {t, k, r + r * r * unfused_horner(r, explog::exp_routine_64f)};
}

// e^x in binary64 arithmetic, rounded to T at the end.
template <class T> LumStatus ExpDoubleRoutine(T argument, T& result) {
  LumStatus status;
  if (ExpIsSpecial(argument, result, status)) return status;
  const double x = argument;
  if (x < 0x1p-52 && -x < 0x1p-52) {
    result = static_cast<T>(1.0 + x);
    return lumStsOk;
  }
  const auto [shifted, k, u] = ExpDoubleReduced(x);
  const auto count = static_cast<int>(k);
  const auto j = static_cast<size_t>(count & 63);
  const int e = count >> 6;
  const double head = exp2_pairs[2 * j];
  const double p = (u + exp2_pairs[2 * j + 1]) * head;
  const bool is_denormal = argument < ExpLimits<T>::denormal;
  if (std::is_same_v<T, Lum64f> && is_denormal) result = static_cast<T>(ExpScaledToDenormal(head, p, e));
  else result = static_cast<T>(ExpScaled(head + p, e));
  return is_denormal ? lumStsUnderflow : lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::explog
