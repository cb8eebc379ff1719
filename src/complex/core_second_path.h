// Second paths of the kernels whose lane routine is a scalar core. A struct Ends has what the core makes of numbers that the
// first path leaves out:
//   IsSpecial(z)   numbers that have values by rule, most of them with an infinite or a NaN part
//   OfSpecial(z)   these values
//   OfFar(z)       the values of any other numbers, from pairs whose exponent is put in at the end
// and where it applies:
//   InDouble(z)        of numbers of binary32 instead, in one part, with relative errors below narrowing_distance
//   IsHard(z)          numbers inside the domain of the first path for which its pairs have too few bits
//   no_float_is_far    the domain of the first path has all numbers of binary32
#pragma once

#include "complex/core_path.h"
#include "frame/kernel_frame.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {

// The core's parts in binary64 in the lanes where they are known. Where they are not sure, the core may have the number next
// to them, which tells only in results of 64 bits.
struct CoreValue {
  ComplexVec<Lum64f> value;
  Mask<Lum64f> is_known, is_sure;
};

LUM_INLINE ComplexVec<Lum64f> Select(Mask<Lum64f> m, ComplexVec<Lum64f> a, ComplexVec<Lum64f> b) {
  return {select(m, a.re, b.re), select(m, a.im, b.im)};
}
LUM_INLINE ComplexVec<Lum32f> Select(Mask<Lum32f> m, ComplexVec<Lum32f> a, ComplexVec<Lum32f> b) {
  return {select(m, a.re, b.re), select(m, a.im, b.im)};
}
template <class T> LUM_INLINE Mask<T> IsInfinite(Vec<T> x) { return fpclass<classes::infinity>(x); }
template <class T> LUM_INLINE Mask<T> IsNegative(Vec<T> x) { return mask_cast<T>(sign_mask(bits(x))); }

// part 2^exponent rounded once, as the core does it, also where the result is denormal, vanishes or overflows. A zero has the
// sign of the head.
LUM_INLINE RoundedPart RoundedAtEnds(HeadTail part, Vec<Lum64f> error, Vec<Lum64f> given_exponent) {
  const auto exponent = max(given_exponent, all(-1900.0));
  const auto normalised = Normalised(part);
  // In the sum with the shifter, which has its sign, the last place is worth the least denormal number.
  const auto is_below = lt(getexp(normalised.head) + exponent, all(-1022.0));
  const auto shifter = or_sign(normalised.head, zero_unless(is_below, scalef(all(1.0), all(-1022.0) - exponent)));
  const auto sum = shifter + normalised.head;
  const auto rest = normalised.head - (sum - shifter);
  const auto distance = fma(abs(rest), all(0x1p-52), error * all(0x1p-64));
  const auto above = scalef((sum + (rest + (normalised.tail + distance))) - shifter, exponent);
  const auto below = scalef((sum + (rest + (normalised.tail - distance))) - shifter, exponent);
  return {or_sign(part.head, above), ne(above, below)};
}

LUM_INLINE CoreValue CoreValueOf(RoundedPart re, RoundedPart im, Mask<Lum64f> is_known) {
  return {{re.value, im.value}, is_known, ~(re.refused | im.refused)};
}

// Parts that NarrowedOfNeighbours makes sure of.
LUM_INLINE CoreValue ValueOfParts(OnePart re, OnePart im, Mask<Lum64f> refused) {
  return {{re.head, im.head}, ~refused, ~refused};
}

// value 2^exponent, the value at least 2^-200 in magnitude, or zero: products of such numbers keep all their bits.
struct RaisedNumber {
  Vec<Lum64f> value, exponent;
};
// x 2^scale.
LUM_INLINE RaisedNumber Raised(Vec<Lum64f> x, Vec<Lum64f> scale) {
  const auto above = getexp(x) + scale + all(200.0);
  const auto exponent = max(min(above, all(0.0)), all(-2900.0));  // a zero's is infinite
  return {scalef(x, scale - exponent), exponent};
}
LUM_INLINE RaisedNumber Raised(Vec<Lum64f> x) { return Raised(x, all(0.0)); }

// i z and z / i, some NaNs being left as they are where the sign of a number is changed: the positive ones by cosine and sine,
// all by the others.
enum class KeptNans { positive, all };
template <KeptNans kept> LUM_INLINE Vec<Lum64f> NegatedBut(Vec<Lum64f> x) {
  const auto nan = unord(x, x);
  return select(kept == KeptNans::positive ? nan & ~IsNegative(x) : nan, x, negate(x));
}
template <KeptNans kept> LUM_INLINE ComplexVec<Lum64f> TimesI(ComplexVec<Lum64f> z) { return {NegatedBut<kept>(z.im), z.re}; }
template <KeptNans kept> LUM_INLINE ComplexVec<Lum64f> OverI(ComplexVec<Lum64f> z) { return {z.im, NegatedBut<kept>(z.re)}; }

// The angles of the upper half plane's diagonals and axes, in some unit.
struct EighthTurns {
  Lum64f diagonal, up, left_diagonal, left;
};
inline constexpr EighthTurns eighth_turns{0.25 * numbers::pi<Lum64f>, 0.5 * numbers::pi<Lum64f>, 0.75 * numbers::pi<Lum64f>,
                                          numbers::pi<Lum64f>};
// The angle of a number with an infinite part.
LUM_INLINE Vec<Lum64f> AngleOfInfinite(ComplexVec<Lum64f> z, const EighthTurns& turns = eighth_turns) {
  const auto is_left = IsNegative(z.re);
  const auto diagonal = select(is_left, all(turns.left_diagonal), all(turns.diagonal));
  const auto along = select(is_left, all(turns.left), all(0.0));
  return or_sign(z.im, select(IsInfinite(z.re), select(IsInfinite(z.im), diagonal, along), all(turns.up)));
}

// A number of binary32 that the core rounds by way of binary64, where it has the given one or its neighbour.
struct NarrowedTwice {
  Vec<Lum32f> value;
  Mask<Lum32f> is_sure;
};
// What is below half the least number of binary32 is a zero of its sign, at which a processor that makes denormal numbers in
// microcode would stop otherwise.
LUM_INLINE Vec<Lum64f> WithoutVanishing(Vec<Lum64f> x) { return or_sign(x, zero_unless(nlt(abs(x), all(0x1p-151)), abs(x))); }
LUM_INLINE NarrowedTwice NarrowedOfNeighbours(Vec<Lum64f> given_low, Vec<Lum64f> given_high, double given_distance) {
  const auto low = WithoutVanishing(given_low), high = WithoutVanishing(given_high);
  const auto distance = all(given_distance);
  const auto inner = narrow(fnma(low, distance, low), fnma(high, distance, high));
  const auto outer = narrow(fma(low, distance, low), fma(high, distance, high));
  return {narrow(low, high), eq(inner, outer) | unord(inner, outer)};  // infinities and NaN are what they are
}

// Which of two NaNs a core's product gives depends on how it was compiled.
template <class T> LUM_INLINE Mask<T> HasTwoNans(ComplexVec<T> z) {
  return unord(z.re, z.re) & unord(z.im, z.im) & mask_cast<T>(ne(bits(z.re), bits(z.im)));
}

// The values by rule; where there is none, anything that is not known.
template <class Ends> LUM_INLINE CoreValue SpecialAtEnds(ComplexVec<Lum64f> z) {
  const auto by_rule = Ends::IsSpecial(z) & ~HasTwoNans(z);
  return {Ends::OfSpecial(z), by_rule, by_rule};
}
// Any values in the wanted lanes. All kernels of a function share it.
template <class Ends, class Z, class M> [[gnu::noinline]] CoreValue AnyAtEnds(const Z& z, const M& wanted) {
  const auto special = Ends::IsSpecial(z);
  CoreValue result{z, special & ~special, special};
  if (any(wanted & ~special)) {
    result = Ends::OfFar(z);
    result.is_known = result.is_known & ~special;
  }
  if (any(wanted & special)) {
    const auto by_rule = SpecialAtEnds<Ends>(z);
    result = {Select(special, by_rule.value, result.value), result.is_known | by_rule.is_known,
              result.is_sure | by_rule.is_sure};
  }
  return result;
}
template <class Ends, bool has_far> LUM_INLINE CoreValue AtEnds(ComplexVec<Lum64f> z, Mask<Lum64f> wanted) {
  if constexpr (has_far) return AnyAtEnds<Ends>(z, wanted);
  else return SpecialAtEnds<Ends>(z);
}

// The lanes that are left to the core once it is known in these.
LUM_INLINE Lanes<Lum64fc> Finish(const CoreValue& core, const Lanes<Lum64fc>& lanes, Mask<Lum64f> wanted) {
  const auto finished = wanted & core.is_known & core.is_sure;
  return {join(Select(finished, core.value, split(lanes.value))), lanes.refused & ~finished};
}
LUM_INLINE Lanes<Lum32fc> Finish(const CoreValue& low, const CoreValue& high, const Lanes<Lum32fc>& lanes, Mask<Lum32f> wanted,
                                 double distance = 0x1p-51) {
  const auto re = NarrowedOfNeighbours(low.value.re, high.value.re, distance),
             im = NarrowedOfNeighbours(low.value.im, high.value.im, distance);
  const auto finished = wanted & join(low.is_known, high.is_known) & re.is_sure & im.is_sure;
  const auto value = split(lanes.value);
  return {join(ComplexVec<Lum32f>{select(finished, re.value, value.re), select(finished, im.value, value.im)}),
          lanes.refused & ~finished};
}

// The refused lanes that are wanted, too, as the core has them.
template <class Ends, bool has_far = true>
LUM_INLINE Lanes<Lum64fc> SecondPathAsCore(Interleaved<Lum64f> z, const Lanes<Lum64fc>& lanes, Mask<Lum64f> wanted) {
  return Finish(AtEnds<Ends, has_far>(split(z), wanted), lanes, wanted);
}
// Those of binary32 numbers, in one part where a function has it.
template <class Ends> [[gnu::noinline]] CoreValue ValueInDouble(const ComplexVec<Lum64f>& z) { return Ends::InDouble(z); }
template <class Ends>
concept ComputesInDouble = requires(ComplexVec<Lum64f> z) {
  Ends::InDouble(z);
};
template <class Ends, bool has_far = !requires { Ends::no_float_is_far; }
> LUM_INLINE Lanes<Lum32fc> SecondPathAsCore(Interleaved<Lum32f> packed, const Lanes<Lum32fc>& lanes, Mask<Lum32f> wanted) {
  const auto z = split(packed);
  const auto low = WidenLow(z), high = WidenHigh(z);
  if constexpr (ComputesInDouble<Ends>) {
    const auto special = join(Ends::IsSpecial(low), Ends::IsSpecial(high));
    auto r = lanes;
    if (any(wanted & ~special)) {
      r = Finish(ValueInDouble<Ends>(low), ValueInDouble<Ends>(high), r, wanted & ~special, narrowing_distance<OnePart>);
    }
    if (none(wanted & special)) return r;
    return Finish(SpecialAtEnds<Ends>(low), SpecialAtEnds<Ends>(high), r, wanted & special);
  } else {
    return Finish(AtEnds<Ends, has_far>(low, low_half(wanted)), AtEnds<Ends, has_far>(high, high_half(wanted)), lanes, wanted);
  }
}

// The overflows that cores report: infinite parts of a result whose arguments are finite and have no zero part.
template <class T> LUM_INLINE Mask<T> CannotOverflow(ComplexVec<T> z) {
  return fpclass<classes::nonfinite | classes::zero>(z.re) | fpclass<classes::nonfinite | classes::zero>(z.im);
}
template <class E> LUM_INLINE Mask<Real<E>> OverflowsOf(const Lanes<E>& second, Mask<Real<E>> refused) {
  const auto value = split(second.value);
  return refused & ~second.refused & (IsInfinite(value.re) | IsInfinite(value.im));
}

template <class Ends, class E>
LUM_INLINE Finished<E> ReportingSecondPath(Packed<E> packed, const Lanes<E>& lanes, Mask<Real<E>> wanted) {
  const auto r = SecondPathAsCore<Ends>(packed, lanes, wanted);
  return {r.value, r.refused, {.overflow = OverflowsOf(r, lanes.refused) & ~CannotOverflow(split(packed))}};
}

}  // namespace lum::inline LUM_LAYER::complex
