// Scalar logarithms, which finish the lanes that the vector paths refuse.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "frame/literals.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum {

// The logarithm of any argument; positive(x) gives that of a positive finite one.
template <class T, class Positive>
LumStatus LogarithmRoutine(T x, T& result, Positive positive) {
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

// ln x of a positive finite x. With x = 2^e m and a short reciprocal c of m to six bits:  ln x = e ln 2 - ln c + ln(c m).
inline double LnPositive(double x) {
  static constexpr auto table = table64({
#include "tables/generated/ln_routine.inc"
  });
  double e = 0;
  if (x < std::numeric_limits<double>::min()) {
    x *= f64(0x43B0000000000000, 0x1p60);
    e = -60;
  }
  const double near_one = x - 1;
  if (-0.009765625 <= near_one && near_one <= 0.009765625) return near_one + near_one * near_one * LnTail(near_one);

  const auto word = std::bit_cast<uint64_t>(x);
  e += static_cast<double>(static_cast<int64_t>(word >> 52) - 1023);
  const auto m = std::bit_cast<double>((word & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
  // The sum's last place is worth 1/64 and its low seven bits are round(64 (m - 1)).
  const size_t i = std::bit_cast<uint64_t>(m + f64(0x42D0000000000040, 70368744177665.0)) & 0x7F;
  const double c = table[3 * i], hi = table[3 * i + 1], lo = table[3 * i + 2];
  const double ln2_hi = table[3 * 64 + 1], ln2_lo = table[3 * 64 + 2];

  const double head = (m + 2097152.0) - 2097152.0;  // 31 fraction bits: c head is exact
  const double v = c * head - 1;
  const double w = c * (m - head);
  const double t = v + w;
  return ((e * ln2_hi + hi) + v) + (((e * ln2_lo + lo) + w) + t * t * LnTail(t));
}

// ln x in binary64 arithmetic, rounded to T at the end.
template <class T>
LumStatus LnRoutine(T x, T& result) {
  return LogarithmRoutine(x, result, LnPositive);
}

}  // namespace lum
