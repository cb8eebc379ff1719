// The scalar cores of the complex functions: each takes one number to one number, computing in Extended and rounding each part
// of the result once. The signs of zeros choose the sides of branch cuts. The result comes first; it may be the argument.
#pragma once

#include "frame/types.h"

namespace lum::inline LUM_LAYER::complex {

// Elements of both complex types pass through the cores in this form.
using ComplexDouble = Lum64fc;

// z w, z conj(w), z / w.
void CoreMul(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w);
void CoreMulByConj(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w);
void CoreDiv(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w);
void CoreAbs(Lum64f& result, const ComplexDouble& z);

void CoreExp(ComplexDouble& result, const ComplexDouble& z);
void CoreLog(ComplexDouble& result, const ComplexDouble& z);
void CoreLog10(ComplexDouble& result, const ComplexDouble& z);
void CoreSqrt(ComplexDouble& result, const ComplexDouble& z);
void CorePow(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& exponent);

void CoreSin(ComplexDouble& result, const ComplexDouble& z);
void CoreCos(ComplexDouble& result, const ComplexDouble& z);
void CoreTan(ComplexDouble& result, const ComplexDouble& z);
void CoreSinh(ComplexDouble& result, const ComplexDouble& z);
void CoreCosh(ComplexDouble& result, const ComplexDouble& z);
void CoreTanh(ComplexDouble& result, const ComplexDouble& z);

void CoreAsin(ComplexDouble& result, const ComplexDouble& z);
void CoreAcos(ComplexDouble& result, const ComplexDouble& z);
void CoreAtan(ComplexDouble& result, const ComplexDouble& z);
void CoreAsinh(ComplexDouble& result, const ComplexDouble& z);
void CoreAcosh(ComplexDouble& result, const ComplexDouble& z);
void CoreAtanh(ComplexDouble& result, const ComplexDouble& z);

}  // namespace lum::inline LUM_LAYER::complex
