// The arctangent of two numbers in the lanes that the vector paths refuse, of scalars and of vectors.
#pragma once

#include <cmath>
#include <cstdint>

#include "frame/constant.h"
#include "frame/kernel_frame.h"
#include "frame/lane_format.h"
#include "frame/two_parts.h"
#include "invcircular/atan2_constants.h"
#include "invcircular/atan2_path.h"
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

// The angle of a row of the interval constants and of (u, v) less that row's centre c: that of (x, y), or in the last interval
// of (y, -x), where both numbers are positive and finite and their ratio is within 2^-63 to 2^63.
template <class V> LUM_INLINE TwoParts<V> AngleFromCentre(V u, V v, V c, V angle_head, V angle_tail) {
  const TwoParts<V> cu = two_product(c, u), cv = two_product(c, v);
  const TwoParts<V> n = two_sum(v, negate(cu.head)), d = two_sum(u, cv.head);
  const V t = div(n.head, d.head);
  const TwoParts<V> td = two_product(t, d.head);
  const V rest = ((n.head - td.head) - td.tail) + (n.tail - cu.tail) - t * (d.tail + cv.tail);
  const V s = t * t;
  const V p = unfused_horner(s, invcircular::atan2_A53);

  const TwoParts<V> head = two_sum(angle_head, t);
  return {head.head, head.tail + (angle_tail + div(rest, d.head) + t * s * p)};
}
inline TwoParts<double> ScalarAngle(double y, double x) {
  using C = IntervalConstants<Lum64f>;
  size_t i = 0;
  while (i < 4 && y > C::thresholds[i] * x) ++i;
  const bool is_steep = i == 4;
  return AngleFromCentre(is_steep ? y : x, is_steep ? -x : y, C::centres[i], C::angles.heads[i], C::angles.tails[i]);
}

// pi - r, rounded.
template <class V> LUM_INLINE V PiLess(const TwoParts<V>& r) {
  constexpr auto& pi = numbers::pi_beside_angles_parts<Lum64f>;
  const TwoParts<V> head = two_sum(Constant<V>(pi[0]), negate(r.head));
  return head.head + (head.tail + (Constant<V>(pi[1]) - r.tail));
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
  return static_cast<T>(x_negative ? PiLess(r) : r.head + r.tail);
}

template <class T> void Atan2Routine(T y, T x, T& result) {
  if (y != y || x != x) {
    result = lane::nan_of(y, x);
    return;
  }
  const T magnitude = Atan2Magnitude<T>(static_cast<double>(std::fabs(y)), static_cast<double>(std::fabs(x)), std::signbit(x));
  result = std::signbit(y) ? -magnitude : magnitude;
}

// ---- The same over vectors

struct ScaledNumbers {
  Vec<Lum64f> significand, exponent;
};
LUM_INLINE ScaledNumbers Scale(Vec<Lum64f> a) { return {getmant<significand::from_1_to_2>(a), getexp(a)}; }

LUM_INLINE TwoParts<Vec<Lum64f>> AngleOfScaled(Vec<Lum64f> y, Vec<Lum64f> x) {
  using C = IntervalConstants<Lum64f>;
  // The row of the interval: the thresholds below the ratio, each of which has the ones before it.
  const auto is_above = [&](int i) __attribute__((always_inline)) { return lt(all(C::thresholds[i]) * x, y); };
  const auto chosen = [&](const auto& entries) __attribute__((always_inline)) {
    auto entry = all(entries[0]);
    for (int i = 0; i < 4; ++i) entry = select(is_above(i), all(entries[i + 1]), entry);
    return entry;
  };
  const auto is_steep = is_above(3);
  return AngleFromCentre(select(is_steep, y, x), select(is_steep, negate(x), y), chosen(C::centres), chosen(C::angles.heads),
                         chosen(C::angles.tails));
}

// The angle of (|x|, |y|) or of (-|x|, |y|), both finite and not zero; refused is where its rounding is in doubt.
LUM_INLINE Lanes<Lum64f> AngleOfFinite(Vec<Lum64f> ay, Vec<Lum64f> ax, Mask<Lum64f> x_negative) {
  using C = IntervalConstants<Lum64f>;
  const auto y = Scale(ay), x = Scale(ax);
  const auto difference = y.exponent - x.exponent;
  const auto steep = lt(all(60.0), difference), flat = lt(difference, all(-60.0));
  const auto near = ~(steep | flat);
  TwoParts<Vec<Lum64f>> r = {zero_unless(steep, all(C::angles.heads[4])), zero_unless(steep, all(C::angles.tails[4]))};
  if (any(near)) {
    const auto of_near = AngleOfScaled(scalef(y.significand, zero_unless(near, difference)), x.significand);
    r = {select(near, of_near.head, r.head), select(near, of_near.tail, r.tail)};
  }
  auto angle = select(x_negative, PiLess(r), r.head + r.tail);
  const auto quotient = flat & ~x_negative;
  if (any(quotient)) angle = select(quotient, div(select(quotient, ay, all(0.0)), ax), angle);  // also where it is denormal
  return {angle, mask_of<Lum64f>(0)};
}

// The angle of numbers of binary32 in binary64, where numerator and denominator have no rounding error. What is left, of less
// than 2^-51 of the angle, matters to the rounding to binary32 next to a tie alone. A quotient below 2^-60 is the angle itself.
LUM_INLINE Lanes<Lum64f> NearAngle(Vec<Lum64f> ay, Vec<Lum64f> ax, Mask<Lum64f> x_negative) {
  using C = IntervalConstants<Lum64f>;
  const auto& tables = arctan2::interval_tables<Lum64f>;
  auto sum = select(x_negative, all(0x1p52 + 8), all(0x1p52));  // counts the thresholds below the ratio
  for (const double threshold : C::thresholds) sum = add(lt(all(threshold) * ax, ay), sum, all(1.0));
  const auto is_steep = lt(all(C::thresholds[3]) * ax, ay);
  const auto v = select(is_steep, negate(ax), ay), u = select(is_steep, ay, ax);
  const auto c = arctan2::Lookup(tables.centre, bits(sum));
  const auto t = div(fnma(c, u, v), fma(c, v, u));
  const auto s = t * t;
  const auto angle = fma(t * s, horner(s, invcircular::atan2_A53), t);
  const auto value = arctan2::Lookup(tables.head, bits(sum)) + select(x_negative, negate(angle), angle);
  constexpr uint64_t tie = uint64_t{1} << 28, margin = 16;
  const auto beside_tie = (bits(value) - all(tie - margin)) & all(2 * tie - 1);
  return {value, mask_cast<Lum64f>(le(beside_tie, all(2 * margin)))};
}
LUM_INLINE Lanes<Lum32f> AngleOfFinite(Vec<Lum32f> ay, Vec<Lum32f> ax, Mask<Lum32f> x_negative) {
  const auto low = NearAngle(widen_low(ay), widen_low(ax), low_half(x_negative));
  const auto high = NearAngle(widen_high(ay), widen_high(ax), high_half(x_negative));
  return {narrow(low.value, high.value), join(low.refused, high.refused)};
}

// The second path of the arctangent of two arguments.
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
  // Numbers near the ends of the exponent range.
  const auto finite = lanes.refused & ~(y_zero | x_infinite | across | nan);
  auto in_doubt = mask_of<T>(0);
  if (any(finite)) {
    const auto ay = select(finite, abs(y), all(T(1))), ax = select(finite, abs(x), all(T(1)));
    const auto of_finite = AngleOfFinite(ay, ax, x_negative);
    angle = select(finite, or_sign(y, of_finite.value), angle);
    in_doubt = finite & of_finite.refused;
  }
  return {select(lanes.refused, angle, lanes.value), in_doubt};
}

}  // namespace lum::inline LUM_LAYER::invcircular
