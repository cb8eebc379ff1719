// The scalar power, the lane routine: all special values, negative bases, and results next to and beyond the ends of the range,
// denormal ones rounded once.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/constant.h"
#include "frame/lane_format.h"
#include "frame/literals.h"
#include "frame/numbers.h"
#include "frame/two_parts.h"
#include "frame/types.h"
#include "pow/polynomials.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::pow {

// What the scheme of PowerMagnitude takes in either type. A table of a stage has rows c, hi, lo.
template <class T> struct PowerConstants;
template <> struct PowerConstants<Lum32f> {
  static constexpr auto stage1 = table32({
#include "tables/generated/power_stage1_32f_9.inc"
  });
  static constexpr auto stage2 = table32({
#include "tables/generated/power_stage2_32f_9.inc"
  });
  static constexpr auto stage3 = table32({
#include "tables/generated/power_stage3_32f_17.inc"
  });
  static constexpr auto exp2 = table32({
#include "tables/generated/exp2_32f_128_pairs.inc"
  });
  // Lowest of the significand bits that the rows of a stage stand for, with half a row, and their number.
  static constexpr int index_shift[3] = {20, 18, 15};
  static constexpr uint32_t index_mask[3] = {0x780000, 0x1E0000, 0x7C000};
  static constexpr uint32_t exponent_origin = 0x3F380000;
  static constexpr auto scale = numbers::log2_e_short<Lum32f>;
  static constexpr auto exp_shifter = rounding_shifter<Lum32f>(7);
  static constexpr int denormal_exponent = 64;
  static constexpr int overflowing_exponents = 265, vanishing_exponents = 193;
  static constexpr int last_denormal = -32;
  // (log2(1 + u/scale) - u) / u and (2^g - 1) / g.
  static constexpr auto& log_polynomial = pow::routine_log2_32f;
  static constexpr auto& exp_polynomial = pow::routine_exp2_32f;
};
template <> struct PowerConstants<Lum64f> {
  static constexpr auto stage1 = table64({
#include "tables/generated/power_stage1_64f_33.inc"
  });
  static constexpr auto stage2 = table64({
#include "tables/generated/power_stage2_64f_33.inc"
  });
  static constexpr auto stage3 = table64({
#include "tables/generated/power_stage3_64f_129.inc"
  });
  static constexpr auto exp2 = table64({
#include "tables/generated/exp2_64f_128_pairs.inc"
  });
  static constexpr int index_shift[3] = {47, 43, 37};
  static constexpr uint64_t index_mask[3] = {0x000FC00000000000, 0x0000FC0000000000, 0x00000FF000000000};
  static constexpr uint64_t exponent_origin = 0x3FE7C00000000000;
  static constexpr auto scale = numbers::log2_e_short<Lum64f>;
  static constexpr auto exp_shifter = rounding_shifter<Lum64f>(7);
  static constexpr int denormal_exponent = 200;
  static constexpr int overflowing_exponents = 2057, vanishing_exponents = 1985;
  static constexpr int last_denormal = -61;
  static constexpr auto& log_polynomial = pow::routine_log2_64f;
  static constexpr auto& exp_polynomial = pow::routine_exp2_64f;
};

enum class Parity { fractional, odd, even };

// A NaN and an infinity count as fractional.
template <class T> Parity ParityOf(T y) {
  using F = lane::Format<T>;
  const int exponent = lane::exponent_field(y) - F::bias;
  if (exponent < 0 || exponent > F::bias) return Parity::fractional;
  if (exponent > F::fraction_bits) return Parity::even;
  // The fraction behind the point comes to lie in the fraction field, the unit above it; for |y| below 2 that is the last bit
  // of the exponent field, which is odd.
  const auto shifted = lane::to_bits(lane::magnitude(y)) << exponent;
  if ((shifted & F::fraction) != 0) return Parity::fractional;
  return (shifted >> F::fraction_bits & 1) != 0 ? Parity::odd : Parity::even;
}

// log2 x of a positive finite x = 2^e m: |error| about 2^-40 in binary32, 2^-77 in binary64, and as small relative to a result
// next to zero. Three short factors bring m to scale (1 + d), scale next to 1/ln 2, so that u = scale d is nearly the logarithm
// of what is left. Their product is exact, and so is u as a pair.
template <class T> TwoParts<T> Log2Pair(T x) {
  using F = lane::Format<T>;
  using C = PowerConstants<T>;
  int exponent_correction = 0;
  if (x < std::numeric_limits<T>::min()) {
    x *= lane::power_of_two<T>(C::denormal_exponent);
    exponent_correction = C::denormal_exponent;
  }
  // The bits of the index rounded to nearest: twice as many units as rows.
  const auto row = [](int stage, T z) {
    const auto half = typename F::Bits{1} << (C::index_shift[stage] - 1);
    return 3 * static_cast<size_t>(((lane::to_bits(z) & C::index_mask[stage]) + half) >> C::index_shift[stage]);
  };
  const T m = lane::significand_of(x);
  const T* row1 = C::stage1 + row(0, m);
  const T z1 = row1[0] * m;
  const T* row2 = C::stage2 + row(1, z1);
  const T z2 = z1 * row2[0];
  const T* row3 = C::stage3 + row(2, z2);
  const T z3 = z2 * row3[0];
  const auto e =
      static_cast<T>(static_cast<int>(static_cast<SignedOf<T>>(lane::to_bits(x) - C::exponent_origin) >> F::fraction_bits) -
                     exponent_correction);

  const T u0 = z3 - C::scale;  // exact
  const auto factor = split(row1[0] * row2[0] * row3[0]);
  const auto [m_head, m_tail] = split(m);
  // What the rounded products have lost.
  const T w = ((m_head * factor.head - z3) + (m_head * factor.tail + m_tail * factor.head)) + m_tail * factor.tail;

  const T a = e + row1[1] + row2[1] + row3[1];  // exact; 0 or larger than u0
  const T s0 = a + u0;
  const T s = s0 + w;
  const T errors = (u0 - (s0 - a)) + (w - (s - s0));
  const T u = u0 + w;
  return {s, u * unfused_horner(u, C::log_polynomial) + (errors + (row1[2] + row2[2] + row3[2]))};
}

// 2^(p.head + p.tail) times sign, |p| up to 2^11: one rounding also of a denormal result.
template <class T> T Exp2Signed(TwoParts<T> p, T sign) {
  using F = lane::Format<T>;
  using C = PowerConstants<T>;
  constexpr T largest = std::numeric_limits<T>::max();
  constexpr T smallest = std::numeric_limits<T>::min();
  const T shifted = p.head + C::exp_shifter;
  const int count = static_cast<int>(static_cast<SignedOf<T>>(lane::to_bits(shifted) - lane::to_bits(C::exp_shifter)));
  const T g = (p.head - (shifted - C::exp_shifter)) + p.tail;
  const T* row = C::exp2 + 2 * (count & 127);
  const int n = count >> 7;
  const T correction = row[0] * (g * unfused_horner(g, C::exp_polynomial)) + row[1];
  const T v = row[0] + correction;

  const int exponent = lane::exponent_field(v) + n;
  if (exponent > 2 * F::bias) return sign * largest * largest;
  if (exponent > 0) return sign * std::bit_cast<T>(lane::to_bits(v) + (static_cast<typename F::Bits>(n) << F::fraction_bits));
  if (exponent < C::last_denormal) return sign * smallest * smallest;
  const T up = lane::power_of_two<T>(n + C::denormal_exponent);
  const T down = lane::power_of_two<T>(-C::denormal_exponent);
  // Few bits are left: a second rounding does no harm.
  if (exponent < -9) return sign * (v * up) * down;
  // The head is no longer than the result; the rest alone is rounded.
  const T head = split(v).head;
  const T tail = (row[0] - head) + correction;
  return sign * ((head * up) * down + (tail * up) * down);
}

// x^y times sign, for positive finite x other than 1, and finite y.
template <class T> T PowerMagnitude(T x, T y, T sign) {
  using C = PowerConstants<T>;
  const auto log = Log2Pair(x);
  const int exponents = lane::exponent_field(log.head) + lane::exponent_field(y);
  if (exponents >= C::overflowing_exponents) {
    const T h = (log.head < 0) == (y < 0) ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
    return sign * h * h;
  }
  if (exponents < C::vanishing_exponents) return sign * (T(1) + std::numeric_limits<T>::min());

  const T h = log.head + log.tail;
  const T head = split(h).head;
  const T tail = (log.tail - (h - log.head)) + (h - head);
  const auto [y_head, y_tail] = split(y);
  const T a = head * y_head;  // exact
  const T b = tail * y + head * y_tail;
  const T p = a + b;
  return Exp2Signed<T>({p, b - (p - a)}, sign);
}

// x^y of any arguments.
template <class T> LumStatus PowerRoutine(T x, T y, T& result) {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  result = 1;
  if (x == 1 || y == 0) return lumStsOk;
  if (x != x || y != y) {
    result = lane::nan_of(x, y);
    return lumStsOk;
  }
  const auto parity = ParityOf(y);
  const bool is_negative = std::signbit(x);
  const T sign = is_negative && parity == Parity::odd ? T(-1) : T(1);
  const T magnitude = lane::magnitude(x);
  const bool y_is_finite = -infinity < y && y < infinity;
  if (x == 0) {
    result = y > 0 ? sign * (x * x) : sign / (x * x);
    return y > 0 ? lumStsOk : lumStsDomain;
  }
  if (x == -1 && (!y_is_finite || parity != Parity::fractional)) {
    result = sign;
  } else if (y_is_finite && magnitude < infinity) {
    if (is_negative && parity == Parity::fractional) {
      result = -std::numeric_limits<T>::quiet_NaN();
      return lumStsDomain;
    }
    result = PowerMagnitude(magnitude, y, sign);
  } else if (magnitude >= 1) {
    result = y < 0 ? sign * 0 : x * x * y * sign;
  } else {
    result = y < 0 ? infinity : 0;
  }
  return lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::pow
