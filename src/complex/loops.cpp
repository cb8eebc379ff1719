// The kernels of the complex functions that are loops over a scalar core.
#include "complex/element_loop.h"
#include "frame/kernels.h"

namespace lum {

#define LUM_SILENT_LOOP(function, type)                                            \
  LumStatus function##_##type(const Lum##type* src, Lum##type* dst, int32_t len) { \
    return SilentLoop<Core##function>(src, dst, len);                              \
  }
#define LUM_OVERFLOW_LOOP(function, type)                                          \
  LumStatus function##_##type(const Lum##type* src, Lum##type* dst, int32_t len) { \
    return OneInputLoop<Core##function, Lum##type>::Run(src, dst, len);            \
  }
#define LUM_BOTH_TYPES(loop, function) loop(function, 32fc) loop(function, 64fc)

LUM_BOTH_TYPES(LUM_SILENT_LOOP, Acos)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Acosh)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Asin)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Asinh)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Atan)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Atanh)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Log10)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Tan)
LUM_BOTH_TYPES(LUM_SILENT_LOOP, Tanh)

LUM_BOTH_TYPES(LUM_OVERFLOW_LOOP, Cos)
LUM_BOTH_TYPES(LUM_OVERFLOW_LOOP, Cosh)
LUM_BOTH_TYPES(LUM_OVERFLOW_LOOP, Sin)
LUM_BOTH_TYPES(LUM_OVERFLOW_LOOP, Sinh)

LumStatus Sqrt_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) { return SilentLoop<CoreSqrt>(src, dst, len); }

LumStatus Pow_32fc(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputsLoop<CorePow, Lum32fc>::Run(src1, src2, dst, len);
}
LumStatus Pow_64fc(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputsLoop<CorePow, Lum64fc>::Run(src1, src2, dst, len);
}
LumStatus Powx_32fc(const Lum32fc* src, Lum32fc exponent, Lum32fc* dst, int32_t len) {
  return ParameterLoop<CorePow, Lum32fc>::Run(src, exponent, dst, len);
}
LumStatus Powx_64fc(const Lum64fc* src, const Lum64fc* exponent, Lum64fc* dst, int32_t len) {
  return ParameterLoop<CorePow, Lum64fc>::Run(src, *exponent, dst, len);
}

}  // namespace lum
