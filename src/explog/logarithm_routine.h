// Scalar logarithms, which finish the lanes that the vector paths refuse.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/literals.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

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

// (ln(1 + t) - t) / t^2 for |t| up to about 2^-6.6.
inline double LnTail(double t) {
  return ((((((f64(0xBFC000B405A2836D, -0.1250214602960357) * t + f64(0x3FC249C02481059D, 0.1428756883852146)) * t +
              f64(0xBFC555555228B38F, -0.1666666651884978)) *
                 t +
             f64(0x3FC9999997B36C81, 0.19999999911565072)) *
                t +
            f64(0xBFD0000000000262, -0.25000000000003386)) *
               t +
           f64(0x3FD5555555555613, 0.33333333333334386)) *
              t -
          0.5);
}

// ln x = hi + lo + ln(1 + v + w) of a positive finite x, w small against v and the first sum exact. With x = 2^e m and a short
// reciprocal c of m to six bits:  hi + lo = e ln 2 - ln c,  v + w = c m - 1, below 2^-6.6.
struct LnParts {
  double hi, lo, v, w;
};
inline LnParts SplitLn(double x) {
  static constexpr auto table = table64({
#include "tables/generated/ln_routine.inc"
  });
  double e = 0;
  if (x < std::numeric_limits<double>::min()) {
    x *= f64(0x43B0000000000000, 0x1p60);
    e = -60;
  }
  const auto word = std::bit_cast<uint64_t>(x);
  e += static_cast<double>(static_cast<int64_t>(word >> 52) - 1023);
  const auto m = std::bit_cast<double>((word & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
  // The sum's last place is worth 1/64 and its low seven bits are round(64 (m - 1)).
  const size_t i = std::bit_cast<uint64_t>(m + f64(0x42D0000000000040, 70368744177665.0)) & 0x7F;
  const double c = table[3 * i], hi = table[3 * i + 1], lo = table[3 * i + 2];
  const double ln2_hi = table[3 * 64 + 1], ln2_lo = table[3 * 64 + 2];

  const double head = (m + 2097152.0) - 2097152.0;  // 31 fraction bits: c head is exact
  return {e * ln2_hi + hi, e * ln2_lo + lo, c * head - 1, c * (m - head)};
}

inline double LnPositive(double x) {
  const double near_one = x - 1;
  if (-0.009765625 <= near_one && near_one <= 0.009765625) return near_one + near_one * near_one * LnTail(near_one);
  const auto [hi, lo, v, w] = SplitLn(x);
  const double t = v + w;
  return (hi + v) + ((lo + w) + t * t * LnTail(t));
}

// ln x in binary64 arithmetic, rounded to T at the end.
template <class T> LumStatus LnRoutine(T x, T& result) { return LogarithmRoutine(x, result, LnPositive); }

// What log10 of a positive number needs in either type. Products of `scale`, which is next to 1/ln 10, with a short number are
// exact; what it lacks is the first coefficient of the tail.
template <class T> struct Log10Constants;
template <> struct Log10Constants<Lum32f> {
  static constexpr auto table = table32({
#include "tables/generated/log10_routine_float.inc"
  });
  static constexpr auto denormal_scale = f32(0x53800000, 0x1p40);
  static constexpr float denormal_exponent = -40;
  static constexpr auto index_shifter = f32(0x48000040, 131073.0);
  static constexpr auto head_shifter = f32(0x46000000, 8192.0);  // ten fraction bits
  static constexpr auto scale = f32(0x3EDE5C00, 0.434295654296875);
  static constexpr uint32_t short_mask = 0xFFFFC000;
  static float Tail(float t) {
    return (((f32(0x3DB1E314, 0.08685889840126038) * t + f32(0xBDDE5BD9, -0.10857362300157547)) * t +
             f32(0x3E143D3B, 0.14476482570171356)) *
                t +
            f32(0xBE5E5BD9, -0.21714724600315094)) *
               t +
           f32(0xB59D5B23, -1.172393581327924e-06);
  }
};
template <> struct Log10Constants<Lum64f> {
  static constexpr auto table = table64({
#include "tables/generated/log10_routine.inc"
  });
  static constexpr auto denormal_scale = f64(0x43B0000000000000, 0x1p60);
  static constexpr double denormal_exponent = -60;
  static constexpr auto index_shifter = f64(0x42D0000000000040, 70368744177665.0);
  static constexpr auto head_shifter = f64(0x4160000000000000, 8388608.0);  // 29 fraction bits
  static constexpr auto scale = f64(0x3FDBC00000000000, 0.43359375);
  static constexpr uint64_t short_mask = 0xFFFFFFFFFFFFFF00;
  static double Tail(double t) {
    return ((((((f64(0xBFABCB7B1526E50E, -0.05428681023790648) * t + f64(0x3FAFC3FA615105C7, 0.06204206884332169)) * t +
                f64(0xBFB287A7636F435F, -0.07238241365054197)) *
                   t +
               f64(0x3FB63C62775250D8, 0.08685889638065036)) *
                  t +
              f64(0xBFBBCB7B1526E50E, -0.10857362047581295)) *
                 t +
             f64(0x3FC287A7636F435F, 0.14476482730108395)) *
                t +
            f64(0xBFCBCB7B1526E50E, -0.2171472409516259)) *
               t +
           f64(0x3F46F62A4DCA1C65, 0.0007007319032518276);
  }
};

// log10 x of a positive finite x, by the same split as SplitLn, in the arithmetic of T.
template <class T> T Log10Positive(T x) {
  using C = Log10Constants<T>;
  using Word = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
  constexpr int fraction_bits = std::numeric_limits<T>::digits - 1;
  constexpr auto one = std::bit_cast<Word>(T(1));
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

  const auto word = std::bit_cast<Word>(x);
  e += static_cast<T>(static_cast<int>(word >> fraction_bits) - static_cast<int>(one >> fraction_bits));
  const auto m = std::bit_cast<T>((word & ((Word{1} << fraction_bits) - 1)) | one);
  const size_t i = std::bit_cast<Word>(m + C::index_shifter) & 0x7F;
  const T c = C::table[3 * i], hi = C::table[3 * i + 1], lo = C::table[3 * i + 2];
  const T log10_of_2_hi = C::table[3 * 64 + 1], log10_of_2_lo = C::table[3 * 64 + 2];

  const T head = (m + C::head_shifter) - C::head_shifter;
  const T v = c * head - 1;  // exact
  const T w = c * (m - head);
  const T t = v + w;
  const T a = e * log10_of_2_hi + hi;  // exact; 0 or larger than b
  const T b = C::scale * v;
  const T sum = a + b;
  return sum + ((b - (sum - a)) + (((e * log10_of_2_lo + lo) + C::scale * w) + t * C::Tail(t)));
}

template <class T> LumStatus Log10Routine(T x, T& result) { return LogarithmRoutine(x, result, Log10Positive<T>); }

}  // namespace lum::inline LUM_LAYER
