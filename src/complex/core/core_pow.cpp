// z^w = e^(w ln z), by the cores of logarithm and exponential.
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex {

// The product is rounded to binary64 in plain operations: for large results its error takes digits from the power.
void CorePow(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& exponent) {
  ComplexDouble logarithm;
  CoreLog(logarithm, z);
  const ComplexDouble product = {Difference(Product(exponent.re, logarithm.re), Product(exponent.im, logarithm.im)),
                                 Sum(Product(exponent.re, logarithm.im), Product(exponent.im, logarithm.re))};
  CoreExp(result, product);
}

}  // namespace lum::inline LUM_LAYER::complex
