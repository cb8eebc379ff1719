// |z|. The squares stay within the range of Extended.
#include "complex/core/parts.h"

namespace lum::inline LUM_LAYER::complex {

void CoreAbs(Lum64f& result, const ComplexDouble& z) {
  if (IsInfinite(z.re) || IsInfinite(z.im)) {
    result = infinity;
    return;
  }
  const Extended x = z.re, y = z.im;
  Extended root;
  ExtSqrt(root, x * x + y * y);
  result = static_cast<Lum64f>(root);
}

}  // namespace lum::inline LUM_LAYER::complex
