// z^w = e^(w ln z), with an exponent for each element or one for all.
#include "complex/logarithm_parts.h"
#include "complex/pairs/circular.h"
#include "complex/pairs/exponential.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

// The core rounds the logarithm to binary64, and the product with the exponent in plain operations.
struct PowPath {
  static LUM_INLINE PathValue Value(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    const auto logarithm = LogarithmParts(z);
    const auto re = RoundedAsCore(logarithm.modulus, logarithm.modulus_error);
    const auto im = RoundedAsCore(logarithm.angle, logarithm.angle_error);
    const auto exponent = w.re * re.value - w.im * im.value, angle = w.re * im.value + w.im * re.value;
    const auto e = Exponential(exponent);
    const auto circular = SineCosineOf(angle);
    const auto refused = logarithm.refused | re.refused | im.refused | circular.refused | IsFar(exponent, largest_exponent) |
                         IsFar(angle, largest_angle);
    constexpr double product_error = 5;
    return SmallValueWithin(Product(e, circular.cosine), Product(e, circular.sine), product_error, refused);
  }
  [[gnu::noinline]] static PathValue CalledValue(const ComplexVec<Lum64f>& z, const ComplexVec<Lum64f>& w) {
    return Value(z, w);
  }
  // Where registers do not hold its intermediate vectors, all places of the path share one copy of it and of its stack.
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    if constexpr (streams_fit_registers) return Value(z, w);
    else return CalledValue(z, w);
  }
};

template <class E> struct PowKernel : Kernel<E> {
  static constexpr Variant variant = scalar_core_variant;
  static constexpr int vectors = 1;

  static LUM_INLINE Lanes<E> VectorPath(Interleaved<Real<E>> z, Interleaved<Real<E>> w) {
    return PathOfElements<PowPath, E>(z, w);
  }
  static LumStatus LaneRoutine(const E& z, const E& w, E& result) { return ReportingCoreOnLane<CorePow>(z, w, result); }
};

// One exponent for all elements.
template <class E> struct PowxKernel : Kernel<E> {
  static constexpr Variant variant = scalar_core_variant;
  static constexpr int vectors = 1;
  E exponent;

  LUM_INLINE Lanes<E> VectorPath(Interleaved<Real<E>> z) const {
    return PowKernel<E>::VectorPath(z, join(ComplexVec<Real<E>>{all(exponent.re), all(exponent.im)}));
  }
  LumStatus LaneRoutine(const E& z, E& result) const { return ReportingCoreOnLane<CorePow>(z, exponent, result); }
};

template <class E> LUM_INLINE LumStatus RunPow(const E* src1, const E* src2, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (TakesVectorPath()) return TwoInputs<PowKernel<E>>(src1, src2, dst, len);
  }
  return ReportingTwoInputsLoop<CorePow, E>::Run(src1, src2, dst, len);
}
template <class E> LUM_INLINE LumStatus RunPowx(const E* src, const E& exponent, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (TakesVectorPath()) return OneInput<PowxKernel<E>>(src, dst, len, {{}, exponent});
  }
  return ReportingParameterLoop<CorePow, E>::Run(src, exponent, dst, len);
}

}  // namespace

LumStatus Pow_32fc(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) { return RunPow(src1, src2, dst, len); }
LumStatus Pow_64fc(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) { return RunPow(src1, src2, dst, len); }
LumStatus Powx_32fc(const Lum32fc* src, Lum32fc exponent, Lum32fc* dst, int32_t len) {
  return RunPowx(src, exponent, dst, len);
}
LumStatus Powx_64fc(const Lum64fc* src, const Lum64fc* exponent, Lum64fc* dst, int32_t len) {
  return RunPowx(src, *exponent, dst, len);
}

}  // namespace lum::inline LUM_LAYER
