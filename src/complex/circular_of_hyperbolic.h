// The circular functions f z = -i h(i z) of odd hyperbolic functions h: the parts of f(x + iy) are those of h(y + ix),
// exchanged.
#pragma once

#include "complex/core_second_path.h"

namespace lum::inline LUM_LAYER::complex {

LUM_INLINE ComplexVec<Lum64f> Exchanged(ComplexVec<Lum64f> z) { return {z.im, z.re}; }

// Special numbers go through i z itself, since the signs of NaNs show how the core formed it.
template <class Hyperbolic, KeptNans kept> struct CircularEnds : Hyperbolic {
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    auto core = Hyperbolic::OfFar(Exchanged(z));
    core.value = Exchanged(core.value);
    return core;
  }
  static LUM_INLINE CoreValue InDouble(ComplexVec<Lum64f> z) requires ComputesInDouble<Hyperbolic> {
    auto core = Hyperbolic::InDouble(Exchanged(z));
    core.value = Exchanged(core.value);
    return core;
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return Hyperbolic::IsSpecial(Exchanged(z)); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    return OverI<kept>(Hyperbolic::OfSpecial(TimesI<kept>(z)));
  }
};

}  // namespace lum::inline LUM_LAYER::complex
