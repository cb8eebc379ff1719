// Scalar logarithms, which finish the lanes that the vector paths refuse.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "explog/polynomials.h"
#include "frame/constant.h"
#include "frame/lane_format.h"
#include "frame/literals.h"
#include "frame/numbers.h"
#include "frame/two_parts.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::explog {

// The logarithm of any argument; positive(x) gives that of a positive finite one.
template <class T, class Positive> LumStatus LogarithmRoutine(T x, T& result, Positive positive) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  if (x != x) {
    result = x * x;
  } else if (x == 0) {
    result = -infinity;
    return lumStsSingularity;
  } else if (x < 0) {
    result = std::numeric_limits<T>::quiet_NaN();
    return lumStsDomain;
  } else if (x == infinity) {
    result = x;
  } else {
    result = static_cast<T>(positive(x));
  }
  return lumStsOk;
}

// The sum with a significand of [1, 2) has its last place worth 1/64: 64 times that number in its low seven bits, less the 64
// that the low bits of the shifter take off.
template <class T> inline constexpr T shifter_to_index = (sizeof(T) == 4 ? T(0x1p17) : T(0x1p46)) + 1;

// ln x = base + ln(1 + rest) of a positive finite x. With x = 2^e m and a short reciprocal c of m to six bits: the base is
// e ln 2 - ln c, and the rest c m - 1, exact and below 2^-6.6.
template <class V> struct ReducedLn { TwoParts<V> base, rest; };
inline constexpr auto ln_routine_rows = table64({
#include "tables/generated/ln_routine_64f_65.inc"
});
inline ReducedLn<double> ReduceLn(double x) {
  constexpr auto& table = ln_routine_rows;
  double e = 0;
  if (x < std::numeric_limits<double>::min()) {
    x *= 0x1p60;
    e = -60;
  }
  e += lane::exponent_field(x) - lane::Format<double>::bias;
  const auto m = lane::significand_of(x);

  const size_t i = std::bit_cast<uint64_t>(m + shifter_to_index<Lum64f>) & 0x7F;
  const double c = table[3 * i], hi = table[3 * i + 1], lo = table[3 * i + 2];
  const double ln2_hi = table[3 * 64 + 1], ln2_lo = table[3 * 64 + 2];

  const double head = (m + 2097152.0) - 2097152.0;  // 31 fraction bits: c head is exact
  return {{e * ln2_hi + hi, e * ln2_lo + lo}, {c * head - 1, c * (m - head)}};
}

inline double LnPositive(double x) {
  const double near_one = x - 1;
  if (-0.009765625 <= near_one && near_one <= 0.009765625)
    return near_one + near_one * near_one * unfused_horner(near_one, explog::ln_routine);
  const auto [base, rest] = ReduceLn(x);
  const double t = rest.head + rest.tail;
  return (base.head + rest.head) + ((base.tail + rest.tail) + t * t * unfused_horner(t, explog::ln_routine));
}

// ln x in binary64 arithmetic, rounded to T at the end.
template <class T> LumStatus LnRoutine(T x, T& result) { return LogarithmRoutine(x, result, LnPositive); }

// What log10 of a positive number needs in either type. Products of `scale`, which is next to 1/ln 10, with a short number are
// exact; what it lacks is the first coefficient of the tail.
template <class T> struct Log10Constants;
template <> struct Log10Constants<Lum32f> {
  static constexpr auto table = table32({
#include "tables/generated/log10_routine_32f_65.inc"
  });
  static constexpr auto denormal_scale = 0x1p40f;
  static constexpr float denormal_exponent = -40;
  static constexpr auto index_shifter = shifter_to_index<Lum32f>;
  static constexpr auto head_shifter = 0x1p13f;  // ten fraction bits
  static constexpr auto scale = numbers::log10_e_short<Lum32f>;
  static constexpr uint32_t short_mask = 0xFFFFC000;
  static float Tail(float t) { return unfused_horner(t, explog::log10_routine_32f); }
};
template <> struct Log10Constants<Lum64f> {
  static constexpr auto table = table64({
#include "tables/generated/log10_routine_64f_65.inc"
  });
  static constexpr auto denormal_scale = 0x1p60;
  static constexpr double denormal_exponent = -60;
  static constexpr auto index_shifter = shifter_to_index<Lum64f>;
  static constexpr auto head_shifter = 0x1p23;  // 29 fraction bits
  static constexpr auto scale = numbers::log10_e_short<Lum64f>;
  static constexpr uint64_t short_mask = 0xFFFFFFFFFFFFFF00;
  static double Tail(double t) { return unfused_horner(t, explog::log10_routine_64f); }
};

// log10 x of a positive finite x, reduced as in ReduceLn, in the arithmetic of T.
template <class T> T Log10Positive(T x) {
  using C = Log10Constants<T>;
  using Word = typename lane::Format<T>::Bits;
  T e = 0;
  if (x < std::numeric_limits<T>::min()) {
    x *= C::denormal_scale;
    e = C::denormal_exponent;
  }
  const T near_one = x - 1;
  if (T(-0.005859375) <= near_one && near_one <= T(0.005859375)) {
    const auto head = std::bit_cast<T>(std::bit_cast<Word>(near_one) & C::short_mask);
    return C::scale * head + (C::scale * (near_one - head) + near_one * C::Tail(near_one));
  }

  e += static_cast<T>(lane::exponent_field(x) - lane::Format<T>::bias);
  const auto m = lane::significand_of(x);
  const size_t i = std::bit_cast<Word>(m + C::index_shifter) & 0x7F;
  const T c = C::table[3 * i], hi = C::table[3 * i + 1], lo = C::table[3 * i + 2];
  const T log10_of_2_hi = C::table[3 * 64 + 1], log10_of_2_lo = C::table[3 * 64 + 2];

  const T head = (m + C::head_shifter) - C::head_shifter;
  const T v = c * head - 1;  // exact
  const T w = c * (m - head);
  const T t = v + w;
  const T a = e * log10_of_2_hi + hi;  // exact; 0 or larger than b
  const T b = C::scale * v;
  const auto sum = fast_two_sum(a, b);
  return sum.head + (sum.tail + (((e * log10_of_2_lo + lo) + C::scale * w) + t * C::Tail(t)));
}

template <class T> LumStatus Log10Routine(T x, T& result) { return LogarithmRoutine(x, result, Log10Positive<T>); }

}  // namespace lum::inline LUM_LAYER::explog
