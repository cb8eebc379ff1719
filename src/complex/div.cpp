// z / w = z conj(w) / |w|^2. The high tag of 32fc takes numerator and denominator in binary64 and one quotient; that of 64fc
// scales both arguments to significands of the larger part and keeps the errors of all products and of the quotient. The low
// tags multiply by an estimate of the reciprocal. Lanes whose products leave the range are refused.
#include "complex/div_second_path.h"
#include "complex/product_routine.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// z conj(w) and |w|^2, plainly.
template <class T> struct Terms { Vec<T> re, im, square; };
template <class T> LUM_INLINE Terms<T> TermsOf(ComplexVec<T> z, ComplexVec<T> w) {
  return {fma(z.re, w.re, z.im * w.im), fms(z.im, w.re, z.re * w.im), fma(w.re, w.re, w.im * w.im)};
}

// The refused lanes as the core has them.
[[maybe_unused]] LUM_INLINE Lanes<Lum64fc> QuotientLanes(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w,
                                                         const Lanes<Lum64fc>& lanes) {
  return Finish(QuotientAsCore(z, w, lanes.refused), lanes, lanes.refused);
}
// In binary64, whose products of binary32 numbers are exact: right to four units of 2^-53. The core has one more.
LUM_INLINE ComplexVec<Lum64f> DoubleQuotient(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
  const auto t = TermsOf(z, w);
  const auto r = div(all(1.0), t.square);
  return {t.re * r, t.im * r};
}
[[maybe_unused]] LUM_INLINE Lanes<Lum32fc> QuotientLanes(ComplexVec<Lum32f> z, ComplexVec<Lum32f> w,
                                                         const Lanes<Lum32fc>& lanes) {
  const auto special = QuotientEnds::IsSpecial(z, w);
  auto value = split(lanes.value);
  auto refused = lanes.refused;
  if (const auto finite = lanes.refused & ~special; any(finite)) {
    const auto low = DoubleQuotient(WidenLow(z), WidenLow(w)), high = DoubleQuotient(WidenHigh(z), WidenHigh(w));
    constexpr double distance = 0x1p-50;
    const auto zero = all(0.0);  // a zero is positive
    const auto re = NarrowedOfNeighbours(low.re + zero, high.re + zero, distance),
               im = NarrowedOfNeighbours(low.im + zero, high.im + zero, distance);
    value = Select(finite, {re.value, im.value}, value);
    refused = refused & ~(finite & re.is_sure & im.is_sure);
  }
  if (const auto wanted = lanes.refused & special; any(wanted)) {
    value = Select(wanted, QuotientEnds::OfSpecial(z, w), value);
    refused = refused & ~(wanted & ~QuotientEnds::HaveTwoNans(z, w));
  }
  return {join(value), refused};
}

template <class E> struct QuotientKernel : Kernel<E> {
  static constexpr int vectors = 1;
  static constexpr bool second_is_shared = streams_fit_registers && sizeof(Real<E>) == 4;
  static LUM_INLINE Finished<E> SecondPath(Packed<E> packed_z, Packed<E> packed_w, const Lanes<E>& lanes) {
    const auto z = split(packed_z), w = split(packed_w);
    const auto r = QuotientLanes(z, w, lanes);
    return {r.value, r.refused, {.overflow = OverflowsOf(r, lanes.refused) & ~QuotientEnds::IsSpecial(z, w)}};
  }
  static LumStatus LaneRoutine(const E& z, const E& w, E& result) { return ProductCoreOnLane<CoreDiv>(z, w, result); }
};

// Products between these bounds have lost no bits to the ends of the range.
template <class T> LUM_INLINE Mask<T> IsFar(const Terms<T>& t) {
  constexpr T low = sizeof(T) == 4 ? T(0x1p-100) : T(0x1p-960), high = sizeof(T) == 4 ? T(0x1p126) : T(0x1p1022);
  const auto numerator = max(abs(t.re), abs(t.im));
  return nle(all(low), numerator) | nle(numerator, all(high)) | nle(all(low), t.square) | nle(t.square, all(high));
}

template <class T> LUM_INLINE Vec<T> Reciprocal(Vec<T> x) {
  const auto w = rcp14(x);
  if constexpr (sizeof(T) == 4) return w;
  else return fma(fnma(x, w, all(T(1))), w, w);
}

template <class E> struct Low : QuotientKernel<E> {
  using T = Real<E>;
  static constexpr Variant variant = x87_up_front_variant;
  static LUM_INLINE Lanes<E> VectorPath(Interleaved<T> z, Interleaved<T> w) {
    const auto t = TermsOf(split(z), split(w));
    const auto r = Reciprocal(t.square);
    const ComplexVec<T> q{t.re * r, t.im * r};
    return {join(q), IsFar(t) | fpclass<classes::nonfinite>(q.re) | fpclass<classes::nonfinite>(q.im)};
  }
};

struct A24_32fc : QuotientKernel<Lum32fc> {
  static constexpr Variant variant = x87_up_front_variant;
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed_z, Interleaved<Lum32f> packed_w) {
    const auto z = split(packed_z), w = split(packed_w);
    const auto low = DoubleQuotient(WidenLow(z), WidenLow(w)), high = DoubleQuotient(WidenHigh(z), WidenHigh(w));
    const ComplexVec<Lum32f> q{narrow(low.re, high.re), narrow(low.im, high.im)};
    return {join(q), fpclass<classes::nonfinite>(q.re) | fpclass<classes::nonfinite>(q.im)};
  }
};

struct A53_64fc : QuotientKernel<Lum64fc> {
  // a c + b d.
  static LUM_STAGE HeadTail SumOfProducts(VecIn<Lum64f> a, VecIn<Lum64f> c, VecIn<Lum64f> b, VecIn<Lum64f> d) {
    const auto first = a * c, second = b * d;
    const auto sum = two_sum(first, second);
    return {sum.head, sum.tail + (fms(a, c, first) + fms(b, d, second))};
  }
  // numerator / denominator, r being near the reciprocal of the denominator.
  static LUM_STAGE Vec<Lum64f> Ratio(const HeadTail& numerator, const HeadTail& denominator, VecIn<Lum64f> r) {
    const auto q = numerator.head * r;
    return fma(Remainder(numerator, denominator, q), r, q);
  }
  static LUM_INLINE Vec<Lum64f> Remainder(const HeadTail& numerator, const HeadTail& denominator, Vec<Lum64f> q) {
    return fnma(q, denominator.head, numerator.head) + fnma(q, denominator.tail, numerator.tail);
  }
  // The same with its rest.
  static LUM_INLINE RoundedWithRest RatioWithRest(const HeadTail& numerator, const HeadTail& denominator, Vec<Lum64f> r) {
    const auto q = numerator.head * r;
    const auto remainder = Remainder(numerator, denominator, q);
    const auto value = fma(remainder, r, q), rest = fma(remainder, r, q - value);
    return {value, rest, IsFarFromMiddle(value, rest, 0x1.4p-10)};
  }
  // Both parts times a power of 2 that takes the larger to [1, 2).
  struct Scaled {
    ComplexVec<Lum64f> z;
    Vec<Lum64f> exponent;
  };
  static LUM_INLINE Scaled Scale(ComplexVec<Lum64f> z) {
    const auto exponent = getexp(max(abs(z.re), abs(z.im)));
    const auto down = negate(exponent);
    return {{scalef(z.re, down), scalef(z.im, down)}, exponent};
  }
  // Parts that scaling could take out of the range, on either way. A zero is none of them.
  static LUM_INLINE Mask<Lum64f> IsFar(ComplexVec<Lum64f> z) {
    const auto far = [](Vec<Lum64f> x) __attribute__((always_inline)) {
      return nlt(abs(getexp(x)), all(480.0)) & ne(x, all(0.0));
    };
    return far(z.re) | far(z.im);
  }

  // z / w where no product and no error of one leaves the range, by the quotients of both parts. The square of the divisor's
  // modulus is a normal number.
  template <auto ratio> static LUM_INLINE auto QuotientBy(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    const auto square = SumOfProducts(w.re, w.re, w.im, w.im);
    const auto re = SumOfProducts(z.re, w.re, z.im, w.im);
    const auto im = SumOfProducts(z.im, w.re, negate(z.re), w.im);
    auto r = rcp14_normal(square.head);
    r = fma(fnma(square.head, r, all(1.0)), r, r);
    r = fma(fnma(square.head, r, all(1.0)), r, r);
    return std::array{ratio(re, square, r), ratio(im, square, r)};
  }
  static LUM_INLINE ComplexVec<Lum64f> OrdinaryQuotient(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    const auto [re, im] = QuotientBy<Ratio>(z, w);
    return {re, im};
  }
  static LUM_INLINE Lanes<Lum64fc> ScaledQuotient(const Interleaved<Lum64f>& packed_z, const Interleaved<Lum64f>& packed_w) {
    const auto unscaled_z = split(packed_z), unscaled_w = split(packed_w);
    const auto [z, z_exponent] = Scale(unscaled_z);
    const auto [w, w_exponent] = Scale(unscaled_w);
    const auto back = z_exponent - w_exponent;
    const auto ordinary = OrdinaryQuotient(z, w);
    const ComplexVec<Lum64f> q{scalef(ordinary.re, back), scalef(ordinary.im, back)};
    return {join(q), IsFar(unscaled_z) | IsFar(unscaled_w) | IsNonFinite(w_exponent)};  // of a zero
  }

  // Where scaling takes many instructions the first path goes without, which is the same but for a power of 2, and refuses
  // parts that are so small or large that it could matter, NaN, and numbers that are zero as a whole. All calls share one
  // copy of either and of its stack.
  static constexpr bool scales_all = !vectors_fit_registers || streams_fit_registers;
  static constexpr bool is_called = !scales_all;
  static LUM_INLINE Mask<Lum64f> IsExtreme(ComplexVec<Lum64f> z) {
    const auto low = all(0x1p-100), high = all(0x1p100), zero = all(0.0);
    const auto re = abs(z.re), im = abs(z.im);
    return nle(re, high) | nle(im, high) | (lt(re, low) & lt(im, low)) | (lt(re, low) & lt(zero, re)) |
           (lt(im, low) & lt(zero, im));
  }
  [[gnu::noinline]] static Lanes<Lum64fc> CalledOrdinaryQuotient(const Interleaved<Lum64f>& packed_z,
                                                                 const Interleaved<Lum64f>& packed_w) {
    const auto z = split(packed_z), w = split(packed_w);
    return {join(OrdinaryQuotient(z, w)), IsExtreme(z) | IsExtreme(w)};
  }
  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> z, Interleaved<Lum64f> w) {
    if constexpr (scales_all) return ScaledQuotient(z, w);
    else return CalledOrdinaryQuotient(z, w);
  }
  // Infinities, NaN and zeros, which have quotients by rule. Where scaling takes few instructions, looking for them takes
  // longer.
  static LUM_INLINE Mask<Lum64f> Outside(Interleaved<Lum64f> packed_z, Interleaved<Lum64f> packed_w) {
    const auto z = split(packed_z), w = split(packed_w);
    return scales_all ? mask_of<Lum64f>(0) : QuotientEnds::IsSpecial(z, w) | IsZeroAsWhole(z);
  }
  static LUM_INLINE ComplexVec<Lum64f> QuotientByRule(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w) {
    const auto vanishes = IsZeroAsWhole(z) & ~QuotientEnds::IsSpecial(z, w);  // a zero is positive
    return Select(vanishes, {all(0.0), all(0.0)}, QuotientEnds::OfSpecial(z, w));
  }
  // The first path's steps for any exponents, whose roundings are the core's where they are sure; in the wanted lanes.
  static LUM_INLINE ScaledResult QuotientOfScaled(ComplexVec<Lum64f> z, ComplexVec<Lum64f> w, Mask<Lum64f> wanted) {
    const auto z_exponent = ExponentOf(z), w_exponent = ExponentOf(w), exponent = z_exponent - w_exponent;
    const auto special = IsEitherSpecial(z, w, exponent);
    auto re = z.re, im = z.im;
    auto is_sure = special, overflow = mask_of<Lum64f>(0);
    if (any(wanted & ~special)) {
      const auto [x, y] = QuotientBy<RatioWithRest>(NextToOne(z, z_exponent), NextToOne(w, w_exponent));
      const auto scaled = ScaledBack(x, y, exponent, special);
      re = scaled.value.re, im = scaled.value.im;
      is_sure = scaled.is_sure, overflow = scaled.overflow;
    }
    if (any(wanted & special)) {
      const auto value = QuotientByRule(z, w);
      is_sure = is_sure & ~(special & QuotientEnds::HaveTwoNans(z, w));
      re = select(special, value.re, re), im = select(special, value.im, im);
    }
    return {{re, im}, is_sure, overflow};
  }
  static LUM_INLINE Finished<Lum64fc> SureQuotients(const Interleaved<Lum64f>& z, const Interleaved<Lum64f>& w,
                                                    Mask<Lum64f> wanted) {
    const auto quotient = QuotientOfScaled(split(z), split(w), wanted);
    return {join(quotient.value), wanted & ~quotient.is_sure, {.overflow = wanted & quotient.overflow}};
  }
  // Each step by itself, so that its stack is free again for the next.
  template <class Packed, class L>
  [[gnu::noinline]] static Finished<Lum64fc> CalledQuotientsByRule(const Packed& packed_z, const Packed& packed_w,
                                                                   const L& lanes) {
    const auto z = split(packed_z), w = split(packed_w);
    return {join(Select(lanes.refused, QuotientByRule(z, w), split(lanes.value))),
            lanes.refused & QuotientEnds::HaveTwoNans(z, w),
            {}};
  }
  template <class Packed, class L>
  [[gnu::noinline]] static Finished<Lum64fc> CalledSureQuotients(const Packed& z, const Packed& w, const L& lanes) {
    const auto sure = SureQuotients(z, w, lanes.refused);
    return {join(Select(lanes.refused, split(sure.value), split(lanes.value))), sure.refused, sure.reports};
  }
  // Where rounding is not sure the first path's with scaling count, and the core's beyond it.
  template <class Packed, class F> [[gnu::noinline]] static void TakeScaledQuotients(const Packed& z, const Packed& w, F& r) {
    const auto first = ScaledQuotient(z, w);
    r.value = join(Select(r.refused, split(first.value), split(r.value)));
    r.refused = r.refused & first.refused;
  }
  // Of finite numbers, as others are sure by their rules, or have two NaNs, which are left.
  template <class Packed, class F>
  [[gnu::noinline]] static void TakeQuotientsAsCore(const Packed& packed_z, const Packed& packed_w, F& r) {
    const auto z = split(packed_z), w = split(packed_w);
    const auto core = QuotientEnds::OfFinite(z, w, r.refused);
    const auto finished = r.refused & core.is_sure & ~QuotientEnds::IsSpecial(z, w);
    r.value = join(Select(finished, core.value, split(r.value)));
    r.refused = r.refused & ~finished;
    r.reports.overflow = r.reports.overflow | (finished & (IsInfinite(core.value.re) | IsInfinite(core.value.im)));
  }
  template <class Packed, class F> [[gnu::noinline]] static F WithOthers(const Packed& z, const Packed& w, const F& sure) {
    auto r = sure;
    TakeScaledQuotients(z, w, r);
    if (any(r.refused)) TakeQuotientsAsCore(z, w, r);
    return r;
  }
  template <class Packed, class L>
  static LUM_INLINE Finished<Lum64fc> QuotientsOf(const Packed& z, const Packed& w, const L& lanes) {
    if constexpr (has_halves) {
      if (none(lanes.refused & ~Outside(z, w))) return CalledQuotientsByRule(z, w, lanes);
      const auto sure = CalledSureQuotients(z, w, lanes);
      return none(sure.refused) ? sure : WithOthers(z, w, sure);
    } else {
      const auto sure = SureQuotients(z, w, mask_of<Lum64f>(~0u));
      if (none(sure.refused)) [[likely]]
        return sure;
      const auto given_z = z, given_w = w;  // of which the call takes the addresses
      const auto given_sure = sure;
      return WithOthers(given_z, given_w, given_sure);
    }
  }
  static constexpr bool second_is_shared = streams_fit_registers && scales_all;
  static LUM_INLINE Finished<Lum64fc> SecondPath(Interleaved<Lum64f> z, Interleaved<Lum64f> w, const Lanes<Lum64fc>& lanes) {
    if constexpr (vectors_fit_registers) return QuotientsOf(z, w, lanes);
    else return QuotientKernel<Lum64fc>::SecondPath(z, w, lanes);
  }
};

}  // namespace

LumStatus Div_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<Low<Lum32fc>>(src1, src2, dst, len);
}
LumStatus Div_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<A24_32fc>(src1, src2, dst, len);
}
LumStatus Div_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<Low<Lum64fc>>(src1, src2, dst, len);
}
LumStatus Div_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<A53_64fc>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
