// The angle of the point (x, y): that of the smaller part over the larger, added to or taken from the end of the dominant axis.
#include <algorithm>

#include "complex/core/ext_angle_table.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

// The point in the upper half plane, by its parts in order of size.
struct Octant {
  Extended smaller, larger;
  bool y_dominates, x_is_negative;

  // Row of the axis from which the angle of the smaller over the larger part is counted, and in which direction.
  int axis() const {
    constexpr int axes[2][2] = {{0, half_turn}, {quarter_turn, quarter_turn}};
    return axes[y_dominates ? 1 : 0][x_is_negative ? 1 : 0];
  }
  bool subtracts() const { return y_dominates != x_is_negative; }
};

Octant OctantOf(const Extended& y, const Extended& x) {
  const Extended width = magnitude(x), height = magnitude(y);
  return {std::min(width, height), std::max(width, height), height > width, sign_bit(x)};
}

// The upper angle of operands of which one is zero, infinite or NaN: a multiple of pi/4.
Extended ExactAngle(const Extended& y, const Extended& x) {
  if (x != x || y != y) return x + y;
  const bool infinite_x = exponent_field(x) == extended_special, infinite_y = exponent_field(y) == extended_special;
  int row = sign_bit(x) ? half_turn : 0;
  if (infinite_x && infinite_y) row = sign_bit(x) ? quarter_turn + quarter_turn / 2 : quarter_turn / 2;
  else if (infinite_y || (y != 0 && !infinite_x)) row = quarter_turn;
  return rounded(Angle(row));
}

// A point whose larger part has an exponent more than 12 above the smaller.
Extended AngleNearAxis(const Octant& o, int difference) {
  const ExtendedPair axis = Angle(o.axis());
  const Extended sign = sign_factor(o.subtracts());
  if (difference > 75) return axis.head + (axis.tail + sign * (o.smaller / o.larger));
  const ExtendedPair u = divide({o.smaller, 0}, {o.larger, 0});
  return AddArctangent(axis, scale(u, sign));
}

Extended AngleByTable(const Octant& o) {
  const TableAngle angle = ArctangentByTable(o.smaller, o.larger);
  const int row = o.axis() + (o.subtracts() ? -angle.k : angle.k);
  return AddArctangent(Angle(row), scale(angle.u, sign_factor(o.subtracts())));
}

Extended UpperAngle(const Extended& y, const Extended& x) {
  constexpr int low = 0x2000, high = 0x5fff;
  const int ex = exponent_field(x), ey = exponent_field(y);
  const Extended step = ex < low && ey < low       ? constant_power_of_two(8192)
                        : ex >= high && ey >= high ? constant_power_of_two(-8192)
                                                   : 1;
  const Octant octant = OctantOf(y * step, x * step);
  const int difference = exponent_field(octant.larger) - exponent_field(octant.smaller);
  return difference > 12 ? AngleNearAxis(octant, difference) : AngleByTable(octant);
}

bool IsOrdinary(const Extended& x) { return x != 0 && exponent_field(x) != extended_special; }

Extended AngleOf(const Extended& y, const Extended& x) {
  if (IsOrdinary(x) && IsOrdinary(y)) return with_sign_of(UpperAngle(y, x), y);
  const Extended angle = ExactAngle(y, x);
  return angle != angle ? angle : with_sign_of(angle, y);
}

}  // namespace

void ExtAtan2(Extended& result, const Extended& y, const Extended& x) { result = AngleOf(y, x); }

}  // namespace lum::inline LUM_LAYER::complex
