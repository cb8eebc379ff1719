// The lane routine of products and quotients.
#pragma once

#include "complex/element_loop.h"

namespace lum::inline LUM_LAYER::complex {

// For products and quotients, which report every infinite part that finite arguments give; dividing by zero is not an overflow.
template <TwoInputsCore core, class E> LumStatus ProductCoreOnLane(const E& z, const E& w, E& result) {
  const ExtendedPrecision precision;
  ComplexDouble value;
  core(value, Widened(z), Widened(w));
  result = Narrowed<E>(value);
  if (core == CoreDiv && IsZero(w.re) && IsZero(w.im)) return lumStsOk;
  const bool are_finite = IsFinite(z.re) && IsFinite(z.im) && IsFinite(w.re) && IsFinite(w.im);
  return are_finite && HasInfinitePart(result) ? lumStsOverflow : lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::complex
