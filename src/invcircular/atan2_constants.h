// The intervals of the ratio y / x in the arctangent of two arguments:
//   arctan(y / x) = arctan c + arctan((y - c x) / (x + c y)) around a centre c,  pi/2 - arctan(x / y) above the last threshold.
#pragma once

#include <cstddef>

#include "frame/literals.h"
#include "frame/types.h"

namespace lum::inline LUM_LAYER {

template <class T> struct IntervalConstants;
template <> struct IntervalConstants<Lum32f> {
  static constexpr Lum32f thresholds[] = {0.375f, 0.72f, 1.75f, 2.6875f};
  static constexpr Lum32f centres[] = {0, 0.5f, 1, 2, 0};
  // Rounded short, so that their sums with pi are exact.
  static constexpr Lum32f heads[] = {0, f32(0x3EED6338, 0.46364760398864746), f32(0x3F490FD8, 0.785398006439209),
                                     f32(0x3F8DB710, 1.1071491241455078), f32(0x3FC90FD8, 1.570796012878418)};
  static constexpr Lum32f tails[] = {0, f32(0x31AC3768, 5.01215779991071e-09), f32(0x34288858, 1.569582082083798e-07),
                                     f32(0xB4DA2880, -4.0635131881572306e-07), f32(0x34A88858, 3.139164164167596e-07)};
  static constexpr Lum32f pi = f32(0x40490FE0, 3.1415939331054688), pi_tail = f32(0xB5ABBBD3, -1.279515686292143e-06);
};
template <> struct IntervalConstants<Lum64f> {
  static constexpr Lum64f thresholds[] = {0.4375, 0.6875, 1.1875, 2.4375};
  static constexpr Lum64f centres[] = {0, 0.5, 1, 1.5, 0};
  static constexpr Lum64f heads[] = {0, f64(0x3FDDAC670561BB4F, 0.4636476090008061),
                                     f64(0x3FE921FB54442D18, 0.7853981633974483), f64(0x3FEF730BD281F69B, 0.982793723247329),
                                     f64(0x3FF921FB54442D18, 1.5707963267948966)};
  static constexpr Lum64f tails[] = {
      0, f64(0x3C7A2B7F222F65E2, 2.2698777452961687e-17), f64(0x3C81A62633145C07, 3.061616997868383e-17),
      f64(0x3C7007887AF0CBBD, 1.3903311031230998e-17), f64(0x3C91A62633145C07, 6.123233995736766e-17)};
  static constexpr Lum64f pi = f64(0x400921FB54442D18, 3.141592653589793),
                          pi_tail = f64(0x3CA1A62633145C07, 1.2246467991473532e-16);
  // (arctan t - t) / t^3 in t^2, |t| up to 0.4375.
  static constexpr size_t polynomial_size = 12;
  static constexpr Lum64f polynomial[polynomial_size] = {
      f64(0xBFD5555555555552, -0.33333333333333315), f64(0x3FC9999999998F43, 0.19999999999992654),
      f64(0xBFC2492492441A21, -0.1428571428479737),  f64(0x3FBC71C719F99F96, 0.11111111053617004),
      f64(0xBFB745D119677A4F, -0.09090906973094913), f64(0x3FB3B132B731E73A, 0.07692257854969578),
      f64(0xBFB1108D326C68ED, -0.06665880662004371), f64(0x3FAE12F1EDF7C393, 0.05873828916435921),
      f64(0xBFAA9E755CA13D23, -0.05199019199118939), f64(0x3FA6AD5558FE19C9, 0.044291178811409156),
      f64(0xBFA04CD71F92185E, -0.03183624515899973), f64(0x3F8BE4FBE6733718, 0.013620346040990536)};
};

}  // namespace lum::inline LUM_LAYER
