// The far tails of the inverses, by scalar arithmetic, for the lanes that the vector paths refuse.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "frame/literals.h"
#include "frame/scalar_fma.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum {

// hi + lo, |lo| at most half a unit in the last place of hi.
struct DoubleWord {
  double hi, lo;
};

// a + b for |a| >= |b|.
inline DoubleWord FastSum(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

// -ln q for 0 < q < 1/2. With q = 2^e m and a short reciprocal c of m to six bits:  ln q = e ln 2 - ln c + ln(1 + t), where
// t = c m - 1 is below 2^-6.
inline DoubleWord MinusLog(double q) {
  static constexpr auto table = table64({
#include "tables/generated/ln_routine.inc"
  });
  double e = 0;
  if (q < std::numeric_limits<double>::min()) {
    q *= 0x1p60;
    e = -60;
  }
  const auto word = std::bit_cast<uint64_t>(q);
  e += static_cast<double>(static_cast<int64_t>(word >> 52) - 1023);
  const auto m = std::bit_cast<double>((word & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
  // The sum's last place is worth 1/64 and its low seven bits are round(64 (m - 1)).
  const size_t i = std::bit_cast<uint64_t>(m + f64(0x42D0000000000040, 70368744177665.0)) & 0x7F;
  const double c = table[3 * i], hi = table[3 * i + 1], lo = table[3 * i + 2];
  const double ln2_hi = table[3 * 64 + 1], ln2_lo = table[3 * 64 + 2];
  const double m_head = (m + 2097152.0) - 2097152.0;  // 31 fraction bits
  const double v = c * m_head - 1;                    // exact
  const double w = c * (m - m_head);                  // exact
  const double t = v + w;
  const double tail =
      t * t *
      (-1.0 / 2 +
       t * (1.0 / 3 + t * (-1.0 / 4 + t * (1.0 / 5 + t * (-1.0 / 6 + t * (1.0 / 7 + t * (-1.0 / 8 + t * (1.0 / 9))))))));
  const DoubleWord head = FastSum(e * ln2_hi + hi, v);  // the first term is exact, and the larger
  const DoubleWord sum = FastSum(head.hi, head.lo + ((e * ln2_lo + lo) + (w + tail)));
  return {-sum.hi, -sum.lo};
}

// erfcinv q for 0 < q < 2^-22. With t = sqrt(-ln q) it is t less a correction of some hundredths of t, which has polynomials on
// pieces of the t axis.
inline DoubleWord ErfcInvOfTail(double q) {
  static constexpr auto table = table64({
#include "tables/generated/erfcinv_tail.inc"
  });
  constexpr size_t row_size = 17;
  const DoubleWord square = MinusLog(q);
  const double root = __builtin_sqrt(square.hi);
  const double rest = (scalar_fma(-root, root, square.hi) + square.lo) / (2 * root);
  const double* row = table;
  while (root > row[0] && row + 2 * row_size <= table + table.size) row += row_size;
  const double u = root - row[1];
  double correction = row[row_size - 1];
  for (size_t i = row_size - 2; i >= 2; --i) correction = correction * u + row[i];
  return FastSum(root, rest - correction);
}

// An argument at an end of the domain, and one outside of it.
template <class T> LumStatus Pole(bool positive, T& result) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  result = positive ? infinity : -infinity;
  return lumStsSingularity;
}
template <class T> LumStatus OutsideDomain(T& result) {
  result = std::numeric_limits<T>::quiet_NaN();
  return lumStsDomain;
}

}  // namespace lum
