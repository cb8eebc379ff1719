// The arctangent of two scalars, which finishes the lanes that the vector paths refuse: any operands.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "invcircular/atan2_constants.h"

namespace lum {

// a b = product + error exactly, by the halves of the factors; no overflow or underflow near 1.
struct ScalarPair {
  double head, tail;
};
inline ScalarPair ExactProduct(double a, double b) {
  constexpr double splitter = 134217729.0;  // 2^27 + 1
  const double as = a * splitter, bs = b * splitter;
  const double ah = as - (as - a), bh = bs - (bs - b);
  const double al = a - ah, bl = b - bh;
  const double p = a * b;
  return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}
inline ScalarPair ExactSum(double a, double b) {
  const double s = a + b;
  const double part = s - a;
  return {s, (a - (s - part)) + (b - part)};
}

// The significand of a positive number in [1, 2) and its exponent.
struct ScaledNumber {
  double significand;
  int exponent;
};
inline ScaledNumber Scale(double a) {
  int exponent = -1023;
  if (a < 0x1p-1022) {
    a *= 0x1p54;
    exponent -= 54;
  }
  const auto word = std::bit_cast<uint64_t>(a);
  exponent += static_cast<int>(word >> 52);
  return {std::bit_cast<double>((word & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000), exponent};
}

// The angle of (x, y), both positive and finite, with y / x within 2^-63 to 2^63.
inline ScalarPair ScalarAngle(double y, double x) {
  using C = IntervalConstants<Lum64f>;
  size_t i = 0;
  while (i < 4 && y > C::thresholds[i] * x) ++i;
  if (i == 4) {
    const double old_x = x;
    x = y;
    y = -old_x;
  }
  const double c = C::centres[i];
  const ScalarPair cx = ExactProduct(c, x), cy = ExactProduct(c, y);
  const ScalarPair n = ExactSum(y, -cx.head), d = ExactSum(x, cy.head);
  const double t = n.head / d.head;
  const ScalarPair td = ExactProduct(t, d.head);
  const double rest = ((n.head - td.head) - td.tail) + (n.tail - cx.tail) - t * (d.tail + cy.tail);
  const double s = t * t;
  double p = 0;
  for (size_t k = C::polynomial_size; k-- > 0;) p = p * s + C::polynomial[k];
  const ScalarPair head = ExactSum(C::heads[i], t);
  return {head.head, head.tail + (C::tails[i] + rest / d.head + t * s * p)};
}

template <class T> T Atan2Magnitude(double ay, double ax, bool x_negative) {
  using C = IntervalConstants<Lum64f>;
  constexpr double infinity = __builtin_inf();
  ScalarPair r{0, 0};
  if (ay == 0) {
    r = {0, 0};
  } else if (ax == 0) {
    r = {C::heads[4], C::tails[4]};
  } else if (ay == infinity || ax == infinity) {
    if (ay == ax) r = {C::heads[2], C::tails[2]};
    else if (ay == infinity) r = {C::heads[4], C::tails[4]};
  } else {
    const ScaledNumber y = Scale(ay), x = Scale(ax);
    const int difference = y.exponent - x.exponent;
    if (difference > 60) r = {C::heads[4], C::tails[4]};
    else if (difference < -60 && !x_negative) return static_cast<T>(ay / ax);  // also where it is denormal
    else if (difference >= -60) {
      const auto scale = std::bit_cast<double>(static_cast<uint64_t>(1023 + difference) << 52);
      r = ScalarAngle(y.significand * scale, x.significand);
    }
  }
  if (!x_negative) return static_cast<T>(r.head + r.tail);
  const ScalarPair head = ExactSum(C::pi, -r.head);
  return static_cast<T>(head.head + (head.tail + (C::pi_tail - r.tail)));
}

template <class T> void Atan2Routine(T y, T x, T& result) {
  if (y != y || x != x) {
    result = y + x;
    return;
  }
  const T magnitude = Atan2Magnitude<T>(static_cast<double>(std::fabs(y)), static_cast<double>(std::fabs(x)), std::signbit(x));
  result = std::signbit(y) ? -magnitude : magnitude;
}

}  // namespace lum
