// The square root and its reciprocal together: s, an estimate of 1 / sqrt x, gives the pair g = x s for the root and h = s / 2
// for half its reciprocal. A coupled step e = 1/2 - g h, g' = g + e g, h' = h + e h doubles the bits of both.
#pragma once

#include "frame/vec.h"

namespace lum::inline LUM_LAYER::roots {

template <class T> struct Roots {
  Vec<T> g, h;  // near sqrt x and 1 / (2 sqrt x)
};
template <class T> LUM_INLINE Roots<T> Start(Vec<T> x, Vec<T> s) { return {x * s, all(T(0.5)) * s}; }
template <class T> LUM_INLINE Roots<T> CoupledStep(Roots<T> a) {
  const auto e = fnma(a.g, a.h, all(T(0.5)));
  return {fma(e, a.g, a.g), fma(e, a.h, a.h)};
}
// The steps of a tier. The residual one corrects the result by the exact residual x - g^2.
struct Steps {
  int coupled = 0;
  bool residual = false;
};
template <Steps steps, class T> LUM_INLINE Roots<T> CoupledSteps(Roots<T> a) {
  for (int i = 0; i < steps.coupled; ++i) a = CoupledStep(a);
  return a;
}

// g improved by the exact residual.
template <class T> LUM_INLINE Vec<T> HeronStep(Vec<T> x, Roots<T> a) { return fma(fnma(a.g, a.g, x), a.h, a.g); }

}  // namespace lum::inline LUM_LAYER::roots
