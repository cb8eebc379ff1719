// The lane routines of the complex vector kernels: the scalar core of the function, whose every part is right nearly always to
// the last bit, whatever the tag.
#pragma once

#include "complex/element_loop.h"

namespace lum::inline LUM_LAYER::complex {

// For functions that report nothing.
template <OneInputCore core, class E> void SilentCoreOnLane(const E& z, E& result) {
  const ExtendedPrecision precision;
  ComplexDouble value;
  core(value, Widened(z));
  result = Narrowed<E>(value);
}

// For functions that report overflow.
template <OneInputCore core, class E> LumStatus ReportingCoreOnLane(const E& z, E& result) {
  const bool can_overflow = CanOverflow(z);
  SilentCoreOnLane<core>(z, result);
  return can_overflow && HasInfinitePart(result) ? lumStsOverflow : lumStsOk;
}

template <TwoInputsCore core, class E> LumStatus ReportingCoreOnLane(const E& z, const E& w, E& result) {
  const ExtendedPrecision precision;
  ComplexDouble value;
  core(value, Widened(z), Widened(w));
  result = Narrowed<E>(value);
  return CanOverflow(z) && CanOverflow(w) && HasInfinitePart(result) ? lumStsOverflow : lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::complex
