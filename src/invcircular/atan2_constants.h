// The intervals of the ratio y / x in the arctangent of two arguments:
//   arctan(y / x) = arctan c + arctan((y - c x) / (x + c y)) around a centre c,  pi/2 - arctan(x / y) above the last threshold.
#pragma once

#include <cstddef>

#include "frame/literals.h"
#include "frame/numbers.h"
#include "frame/types.h"

namespace lum::inline LUM_LAYER::invcircular {

// The angles of the centres in two parts, and that of a ratio beyond all.
template <class T> struct CentreAngles { T heads[5], tails[5]; };
template <class T>
consteval CentreAngles<T> AnglesOfCentres(const T (&first)[2], const T (&second)[2], const T (&third)[2],
                                          const T (&beyond)[2]) {
  return {{0, first[0], second[0], third[0], beyond[0]}, {0, first[1], second[1], third[1], beyond[1]}};
}

template <class T> struct IntervalConstants;
template <> struct IntervalConstants<Lum32f> {
  static constexpr Lum32f thresholds[] = {0.375f, 0.72f, 1.75f, 2.6875f};
  static constexpr Lum32f centres[] = {0, 0.5f, 1, 2, 0};
  static constexpr auto angles = AnglesOfCentres(numbers::arctangent_half_parts<Lum32f>, numbers::arctangent_one_parts<Lum32f>,
                                                 numbers::arctangent_two_parts<Lum32f>, numbers::half_pi_parts<Lum32f>);
};
template <> struct IntervalConstants<Lum64f> {
  static constexpr Lum64f thresholds[] = {0.4375, 0.6875, 1.1875, 2.4375};
  static constexpr Lum64f centres[] = {0, 0.5, 1, 1.5, 0};
  static constexpr auto angles =
      AnglesOfCentres(numbers::arctangent_half_parts<Lum64f>, numbers::arctangent_one_parts<Lum64f>,
                      numbers::arctangent_three_halves_parts<Lum64f>, numbers::half_pi_parts<Lum64f>);
};

}  // namespace lum::inline LUM_LAYER::invcircular
