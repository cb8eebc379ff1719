// The constants by which the exponentials reduce their argument, x = n ln 2 + r.
#pragma once

#include "frame/literals.h"
#include "frame/types.h"

namespace lum::inline LUM_LAYER {

// 1/ln 2, and ln 2 in two parts: the number next to it and what that lacks.
template <class T> struct ExpReduction;
template <> struct ExpReduction<Lum32f> {
  static constexpr auto log2e = f32(0x3FB8AA3B, 1.4426950216293335);
  static constexpr auto ln2_hi = f32(0x3F317218, 0.6931471824645996);
  static constexpr auto ln2_lo = f32(0xB102E308, -1.9046542121259336e-09);
};
template <> struct ExpReduction<Lum64f> {
  static constexpr auto log2e = f64(0x3FF71547652B82FE, 1.4426950408889634);
  static constexpr auto ln2_hi = f64(0x3FE62E42FEFA39EF, 0.6931471805599453);
  static constexpr auto ln2_lo = f64(0x3C7ABC9E3B39803F, 2.3190468138462996e-17);
};

}  // namespace lum::inline LUM_LAYER
