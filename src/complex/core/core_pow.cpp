// z^w = e^(w ln z), by the cores of logarithm and exponential.
#include "complex/core/cores.h"

namespace lum::inline LUM_LAYER {

// The product is rounded to binary64 in plain operations: for large results its error takes digits from the power.
void CorePow(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& exponent) {
  ComplexDouble logarithm;
  CoreLog(logarithm, z);
  const ComplexDouble product = {exponent.re * logarithm.re - exponent.im * logarithm.im,
                                 exponent.re * logarithm.im + exponent.im * logarithm.re};
  CoreExp(result, product);
}

}  // namespace lum::inline LUM_LAYER
