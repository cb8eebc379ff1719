// The arctangent of two numbers in the lanes that the vector paths refuse: of any scalars, and of vectors where an argument is
// a zero, an infinity or a NaN.
#pragma once

#include <cmath>
#include <cstdint>

#include "frame/constant.h"
#include "frame/kernel_frame.h"
#include "frame/lane_format.h"
#include "frame/two_parts.h"
#include "invcircular/atan2_constants.h"
#include "invcircular/polynomials.h"

namespace lum::inline LUM_LAYER::invcircular {

// The significand of a positive number in [1, 2) and its exponent.
struct ScaledNumber {
  double significand;
  int exponent;
};
inline ScaledNumber Scale(double a) {
  int exponent = -lane::Format<double>::bias;
  if (a < 0x1p-1022) {
    a *= 0x1p54;
    exponent -= 54;
  }
  return {lane::significand_of(a), exponent + lane::exponent_field(a)};
}

// The angle of (x, y), both positive and finite, with y / x within 2^-63 to 2^63.
inline TwoParts<double> ScalarAngle(double y, double x) {
  using C = IntervalConstants<Lum64f>;
  size_t i = 0;
  while (i < 4 && y > C::thresholds[i] * x) ++i;
  if (i == 4) {
    const double old_x = x;
    x = y;
    y = -old_x;
  }
  const double c = C::centres[i];
  const TwoParts<double> cx = two_product(c, x), cy = two_product(c, y);
  const TwoParts<double> n = two_sum(y, -cx.head), d = two_sum(x, cy.head);
  const double t = n.head / d.head;
  const TwoParts<double> td = two_product(t, d.head);
  const double rest = ((n.head - td.head) - td.tail) + (n.tail - cx.tail) - t * (d.tail + cy.tail);
  const double s = t * t;
  const double p = unfused_horner(s, invcircular::atan2_A53);

  const TwoParts<double> head = two_sum(C::angles.heads[i], t);
  return {head.head, head.tail + (C::angles.tails[i] + rest / d.head + t * s * p)};
}

// The angles of the axes and of the diagonals.
struct AxisAngles {
  double along, diagonal, across;
};
template <bool x_negative> consteval AxisAngles AnglesOfAxes() {
  using C = IntervalConstants<Lum64f>;
  const auto angle = [](double hi, double lo) {
    if (!x_negative) return hi + lo;
    const TwoParts<double> head = two_sum(numbers::pi_beside_angles_parts<Lum64f>[0], -hi);
    return head.head + (head.tail + (numbers::pi_beside_angles_parts<Lum64f>[1] - lo));
  };
  return {angle(0, 0), angle(C::angles.heads[2], C::angles.tails[2]), angle(C::angles.heads[4], C::angles.tails[4])};
}

// The second path of the arctangent of two arguments. Numbers near the ends of the exponent range remain.
template <class T> LUM_INLINE Lanes<T> Atan2OfSpecial(Vec<T> y, Vec<T> x, const Lanes<T>& lanes) {
  constexpr auto positive = AnglesOfAxes<false>(), negative = AnglesOfAxes<true>();
  const auto x_negative = mask_cast<T>(sign_mask(bits(x)));
  const auto chosen = [&](double of_positive, double of_negative) __attribute__((always_inline)) {
    return select(x_negative, all(static_cast<T>(of_negative)), all(static_cast<T>(of_positive)));
  };
  const auto y_zero = fpclass<classes::zero>(y), x_zero = fpclass<classes::zero>(x);
  const auto y_infinite = fpclass<classes::infinity>(y), x_infinite = fpclass<classes::infinity>(x), nan = unord(y, x);
  const auto across = (x_zero & ~y_zero) | (y_infinite & ~x_infinite), diagonal = y_infinite & x_infinite;
  auto angle = chosen(positive.along, negative.along);
  angle = select(across, chosen(positive.across, negative.across), angle);
  angle = select(diagonal, chosen(positive.diagonal, negative.diagonal), angle);
  angle = select(nan, y + x, or_sign(y, angle));
  const auto finished = lanes.refused & (y_zero | x_infinite | across | nan);
  return {select(finished, angle, lanes.value), lanes.refused & ~finished};
}

template <class T> T Atan2Magnitude(double ay, double ax, bool x_negative) {
  using C = IntervalConstants<Lum64f>;
  constexpr double beyond = __builtin_inf();
  TwoParts<double> r{0, 0};
  if (ay == 0) {
    r = {0, 0};
  } else if (ax == 0) {
    r = {C::angles.heads[4], C::angles.tails[4]};
  } else if (ay == beyond || ax == beyond) {
    if (ay == ax) r = {C::angles.heads[2], C::angles.tails[2]};
    else if (ay == beyond) r = {C::angles.heads[4], C::angles.tails[4]};
  } else {
    const ScaledNumber y = Scale(ay), x = Scale(ax);
    const int difference = y.exponent - x.exponent;
    if (difference > 60) r = {C::angles.heads[4], C::angles.tails[4]};
    else if (difference < -60 && !x_negative) return static_cast<T>(ay / ax);  // also where it is denormal
    else if (difference >= -60) {
      const auto scale = lane::power_of_two<double>(difference);
      r = ScalarAngle(y.significand * scale, x.significand);
    }
  }
  if (!x_negative) return static_cast<T>(r.head + r.tail);
  const TwoParts<double> head = two_sum(numbers::pi_beside_angles_parts<Lum64f>[0], -r.head);
  return static_cast<T>(head.head + (head.tail + (numbers::pi_beside_angles_parts<Lum64f>[1] - r.tail)));
}

template <class T> void Atan2Routine(T y, T x, T& result) {
  if (y != y || x != x) {
    result = lane::nan_of(y, x);
    return;
  }
  const T magnitude = Atan2Magnitude<T>(static_cast<double>(std::fabs(y)), static_cast<double>(std::fabs(x)), std::signbit(x));
  result = std::signbit(y) ? -magnitude : magnitude;
}

}  // namespace lum::inline LUM_LAYER::invcircular
