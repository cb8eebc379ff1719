// Log10, Pow and Powx of complex numbers, and the square root of the highest tag.
#include "complex/core_kernel.h"
#include "complex/pairs/angle.h"
#include "complex/pairs/circular.h"
#include "complex/pairs/exponential.h"
#include "complex/pairs/logarithm.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

// ln |z| and arg z of z = x + iy, with units of error of the core's parts.
struct LogarithmValue {
  HeadTail modulus, angle;
  Vec<Lum64f> modulus_error, angle_error;
  Mask<Lum64f> refused;
};
LUM_INLINE LogarithmValue LogarithmParts(ComplexVec<Lum64f> z) {
  const auto ax = abs(z.re), ay = abs(z.im);
  const auto square = Add(ExactProduct(ax, ax), ExactProduct(ay, ay));
  const auto modulus = Scaled(Logarithm(square), 0.5);
  const auto angle = Angle({ay, all(0.0)}, {z.re, all(0.0)});
  // Off the circle the core's square is rounded; near it, its difference from 1 is nearly exact.
  const auto magnitude = abs(modulus.head);
  const auto is_off = nle(abs(square.head - all(1.0)), all(0.0299));
  const auto error = select(is_off, fma(magnitude, all(2.0), all(1.25)), magnitude * all(6.0));
  // Where it is as small as here it has lost bits: the square was right to 2^-105.
  const auto refused = HasFarPart(z) | nle(all(0x1p-36), magnitude);
  return {modulus, XorSign(z.im, angle), error, angle.head * all(2.0), refused};
}

struct Log10Path {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const HeadTail log10_e{all(f64(0x3FDBCB7B1526E50E, 0.4342944819032518)),
                           all(f64(0x3C695355BAAAFAD3, 1.098319650216765e-17))};
    const auto value = LogarithmParts(z);
    const auto re = Product(value.modulus, log10_e), im = Product(value.angle, log10_e);
    // The constant and the product are rounded too.
    return {re, im, fma(abs(re.head), all(2.5), value.modulus_error * log10_e.head), abs(im.head) * all(4.5), value.refused};
  }
};

struct SqrtPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto ax = abs(z.re), ay = abs(z.im);
    const auto modulus = SquareRoot(Add(ExactProduct(ax, ax), ExactProduct(ay, ay)));
    const auto large = SquareRoot(Scaled(Add(modulus, ax), 0.5));
    const auto small = Quotient({ay * all(0.5), all(0.0)}, large);
    const auto is_left = lt(z.re, all(0.0));
    const auto im = Select(is_left, large, small);
    constexpr double root_error = 5;
    return ValueWithin(Select(is_left, small, large), XorSign(z.im, im), root_error, HasFarPart(z));
  }
};

// z^w = e^(w ln z). The core rounds the logarithm to binary64, and the product with the exponent in plain operations.
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
  return TwoInputsLoop<CorePow, E>::Run(src1, src2, dst, len);
}
template <class E> LUM_INLINE LumStatus RunPowx(const E* src, const E& exponent, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (TakesVectorPath()) return OneInput<PowxKernel<E>>(src, dst, len, {{}, exponent});
  }
  return ParameterLoop<CorePow, E>::Run(src, exponent, dst, len);
}

}  // namespace

LUM_CORE_FUNCTIONS(RunSilent, Log10)

LumStatus Sqrt_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<SqrtPath, CoreSqrt>(src, dst, len); }

LumStatus Pow_32fc(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) { return RunPow(src1, src2, dst, len); }
LumStatus Pow_64fc(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) { return RunPow(src1, src2, dst, len); }
LumStatus Powx_32fc(const Lum32fc* src, Lum32fc exponent, Lum32fc* dst, int32_t len) {
  return RunPowx(src, exponent, dst, len);
}
LumStatus Powx_64fc(const Lum64fc* src, const Lum64fc* exponent, Lum64fc* dst, int32_t len) {
  return RunPowx(src, *exponent, dst, len);
}

}  // namespace lum::inline LUM_LAYER
