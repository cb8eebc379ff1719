// z^w = e^(w ln z), with an exponent for each element or one for all.
#include "complex/core_kernel.h"
#include "complex/exp_ends.h"
#include "complex/logarithm_ends.h"
#include "complex/pairs/circular.h"
#include "complex/pairs/exponential.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// The core rounds the logarithm to binary64, and the product with the exponent in plain operations.
template <class Number> struct PowPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z, ComplexVec<Lum64f>) { return HasFarPart(z); }
  static LUM_INLINE PathValue<Number> Value(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    const auto logarithm = LogarithmParts(z);
    const auto re = RoundedAsCore(logarithm.modulus, logarithm.modulus_error);
    const auto im = RoundedAsCore(logarithm.angle, logarithm.angle_error);
    const auto exponent = w.re * re.value - w.im * im.value, angle = w.re * im.value + w.im * re.value;
    const auto e = Exponential<Number>(exponent);
    const auto circular = SineCosineOf<Number>(angle);
    const auto refused = logarithm.refused | re.refused | im.refused | circular.refused | IsFar(exponent, largest_exponent) |
                         IsFar(angle, largest_angle);
    return SmallValueWithin(Product(e, circular.cosine), Product(e, circular.sine), product_error, refused);
  }
  [[gnu::noinline]] static PathValue<Number> CalledValue(const ComplexVec<Lum64f>& z, const ComplexVec<Lum64f>& w) {
    return Value(z, w);
  }
  // Where registers do not hold its intermediate vectors, all places of the path share one copy of it and of its stack.
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    if constexpr (streams_fit_registers) return Value(z, w);
    else return CalledValue(z, w);
  }
};

// What the core has beyond the domain of the path: a logarithm and an exponential, each in the way of its second path.
template <class Z, class M> [[gnu::noinline]] CoreValue PowerAtEnds(const Z& z, const Z& w, const M& wanted) {
  const auto logarithm = AnyAtEnds<LnEnds>(z, wanted);
  const auto& l = logarithm.value;
  const ComplexVec<Lum64f> product{w.re * l.re - w.im * l.im, w.re * l.im + w.im * l.re};
  // Which of two NaNs results depends on how the core was compiled.
  const auto two_nans = unord(l.re, l.im) & unord(w.re, w.im);
  const auto is_known = logarithm.is_known & logarithm.is_sure & ~two_nans;
  auto power = AnyAtEnds<ExpEnds>(product, wanted);
  power.is_known = power.is_known & is_known;
  return power;
}
// At least the parts of the exponent's product with the logarithm.
template <class T> LUM_INLINE Vec<T> SizeOfLogarithm(ComplexVec<T> z, ComplexVec<T> w) {
  return (abs(w.re) + abs(w.im)) * (abs(getexp(max(abs(z.re), abs(z.im)))) + all(T(4)));
}
// Where the logarithm or the power may lie outside; other refused lanes are next to the middle between two numbers.
LUM_INLINE Mask<Lum64f> IsFarPower(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
  const auto size = SizeOfLogarithm(z, w);
  return HasFarPart(z) | HasFarPart(w) | IsNextToCircle(z) | nle(size, all(largest_exponent)) | (IsZero(z.re) & IsZero(z.im));
}
[[maybe_unused]] LUM_INLINE Lanes<Lum64fc> PowerLanes(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w, const Lanes<Lum64fc>& lanes) {
  const auto wanted = lanes.refused & IsFarPower(z, w);
  if (none(wanted)) return lanes;
  return Finish(PowerAtEnds(z, w, wanted), lanes, wanted);
}
// Those of binary32, whose results may overflow it, and a few others.
[[maybe_unused]] LUM_INLINE Mask<Lum32f> IsFarPower(ComplexVec<Lum32f> z, ComplexVec<Lum32f> w) {
  const auto size = SizeOfLogarithm(z, w);
  const auto from_circle = abs(fma(z.re, z.re, fma(z.im, z.im, all(-1.0f))));
  return HasNonFinitePart(z) | HasNonFinitePart(w) | lt(from_circle, all(0x1p-20f)) | nle(size, all(120.0f)) |
         (IsZero(z.re) & IsZero(z.im));
}
[[maybe_unused]] LUM_INLINE Lanes<Lum32fc> PowerLanes(ComplexVec<Lum32f> z, ComplexVec<Lum32f> w, const Lanes<Lum32fc>& lanes) {
  auto wanted = lanes.refused;
  // For one number next to the middle between two the core takes less than this for the numbers of a register.
  if constexpr (has_halves) wanted = wanted & IsFarPower(z, w);
  if (none(wanted)) return lanes;
  const auto low = PowerAtEnds(WidenLow(z), WidenLow(w), low_half(wanted));  // whose arguments leave the stack to the others'
  const auto high = PowerAtEnds(WidenHigh(z), WidenHigh(w), high_half(wanted));
  return Finish(low, high, lanes, wanted);
}

template <class E> struct PowKernel : Kernel<E> {
  static constexpr Variant variant = scalar_core_variant;
  static constexpr int vectors = 1;

  static LUM_INLINE Finished<E> SecondPath(Interleaved<Real<E>> packed_z, Interleaved<Real<E>> packed_w,
                                           const Lanes<E>& lanes) {
    // Two second paths in one take too much of the stack where they lie there.
    if constexpr (!vectors_fit_registers) return {lanes.value, lanes.refused, {}};
    const auto z = split(packed_z), w = split(packed_w);
    const auto r = PowerLanes(z, w, lanes);
    return {r.value, r.refused, {.overflow = OverflowsOf(r, lanes.refused) & ~(CannotOverflow(z) | CannotOverflow(w))}};
  }

  static LUM_INLINE Lanes<E> VectorPath(Interleaved<Real<E>> z, Interleaved<Real<E>> w) {
    if constexpr (streams_fit_registers) return PathOfElements<PowPath<NumberFor<E>>, E>(z, w);
    else return CalledPathOfElements<PowPath<NumberFor<E>>, E>(z, w);
  }
  static LUM_INLINE Lanes<E> TailPath(Interleaved<Real<E>> z, Interleaved<Real<E>> w, int count) {
    if constexpr (!streams_fit_registers && std::is_same_v<E, Lum64fc>) return VectorPath(z, w);
    else return PathOfTail<PowPath<NumberFor<E>>, E>(count, z, w);
  }
  static LUM_INLINE Mask<Real<E>> Outside(Interleaved<Real<E>> packed_z, Interleaved<Real<E>> packed_w) {
    const auto z = split(packed_z), w = split(packed_w);
    if constexpr (std::is_same_v<E, Lum64fc>) return PowPath<HeadTail>::IsOutside(z, w) | IsZero(z);
    else return streams_fit_registers ? mask_of<Lum32f>(0) : HasNonFinitePart(z) | HasNonFinitePart(w) | IsZero(z);
  }
  static LumStatus LaneRoutine(const E& z, const E& w, E& result) { return ReportingCoreOnLane<CorePow>(z, w, result); }
};

// One exponent for all elements.
template <class E> struct PowxKernel : Kernel<E> {
  static constexpr Variant variant = scalar_core_variant;
  static constexpr int vectors = 1;
  E exponent;

  LUM_INLINE Lanes<E> VectorPath(Interleaved<Real<E>> z) const { return PowKernel<E>::VectorPath(z, Exponents()); }
  LUM_INLINE Lanes<E> TailPath(Interleaved<Real<E>> z, int count) const {
    return PowKernel<E>::TailPath(z, Exponents(), count);
  }
  LUM_INLINE Finished<E> SecondPath(Interleaved<Real<E>> z, const Lanes<E>& lanes) const {
    return PowKernel<E>::SecondPath(z, Exponents(), lanes);
  }
  LUM_INLINE Mask<Real<E>> Outside(Interleaved<Real<E>> z) const { return PowKernel<E>::Outside(z, Exponents()); }
  LUM_INLINE Interleaved<Real<E>> Exponents() const { return join(ComplexVec<Real<E>>{all(exponent.re), all(exponent.im)}); }
  LumStatus LaneRoutine(const E& z, E& result) const { return ReportingCoreOnLane<CorePow>(z, exponent, result); }
};

template <class E> LUM_INLINE LumStatus RunPow(const E* src1, const E* src2, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (RoundsToNearestOnly()) return TwoInputs<PowKernel<E>>(src1, src2, dst, len);
  }
  return ReportingTwoInputsLoop<CorePow, E>::Run(src1, src2, dst, len);
}
template <class E> LUM_INLINE LumStatus RunPowx(const E* src, const E& exponent, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (RoundsToNearestOnly()) return OneInput<PowxKernel<E>>(src, dst, len, {{}, exponent});
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
