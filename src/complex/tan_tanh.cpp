// tanh(x + iy) = (sinh x cosh x + i sin y cos y) / (cos^2 y + sinh^2 x), and tan z = -i tanh iz.
#include "complex/circular_of_hyperbolic.h"
#include "complex/core_kernel.h"
#include "complex/hyperbolic_ends.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// From here on a circular part may come near the lower end of the range.
constexpr double vanishing = 200;

// The hyperbolic and the circular part of a tangent.
template <class Number> struct Tangent {
  Number hyperbolic, circular;
  Mask<Lum64f> refused;
};
template <class Number> LUM_INLINE Tangent<Number> TangentOf(const Factors<Number>& f) {
  const auto c2 = Square(f.cosine), s2 = Square(f.sinh);
  const auto reciprocal = Quotient(NumberOf<Number>(all(1.0)), Add(c2, s2));
  return {Product(Product(f.sinh, f.cosh), reciprocal), Product(Product(f.sine, f.cosine), reciprocal), f.refused};
}
template <class Number> LUM_INLINE Tangent<Number> TangentOf(Vec<Lum64f> exponent, Vec<Lum64f> angle) {
  return TangentOf(FactorsOf<Number>(exponent, angle, vanishing));
}
constexpr double tangent_error = 12;

template <class Number> struct TanhPath {
  static constexpr bool has_many_constants = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return IsFarPair(z.re, z.im, vanishing); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return z; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto t = TangentOf<Number>(z.re, z.im);
    return SmallValueWithin(t.hyperbolic, t.circular, tangent_error, t.refused);
  }
};

template <class Number> struct TanPath {
  static constexpr bool has_many_constants = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return IsFarPair(z.im, z.re, vanishing); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return z; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto t = TangentOf<Number>(z.im, z.re);
    return SmallValueWithin(t.circular, t.hyperbolic, tangent_error, t.refused);
  }
};

struct TanhEnds {
  // Beyond the limit the hyperbolic part rounds to 1, and the circular one is 4 e^-2|x| sin y cos y.
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    constexpr double limit = 100;
    const auto magnitude = abs(z.re);
    const auto beyond = lt(all(limit), magnitude);
    const auto f = FactorsOfAny(or_sign(z.re, min(magnitude, all(limit))), z.im);
    const auto reciprocal = Quotient({all(1.0), all(0.0)}, Add(Square(f.cosine), Square(f.sinh)));
    const auto twice = max(all(-1600.0), all(-2.0) * magnitude);
    const auto e = TakePowersOfTwo(twice);
    const auto factor = Select(beyond, Scaled(ExponentialOf(e.reduced), 4), reciprocal);
    const auto rounded = [](HeadTail part, Vec<Lum64f> power) __attribute__((always_inline)) {
      return RoundedAtEnds(part, abs(part.head) * all(tangent_error), power);
    };
    return CoreValueOf(rounded(Product(Product(f.sinh, f.cosh), reciprocal), f.sinh_exponent),
                       rounded(Product(Product(f.sine, f.cosine), factor), f.sine_exponent + zero_unless(beyond, e.exponent)),
                       f.is_known);
  }
  // At the limit the circular part vanishes in binary32.
  static LUM_INLINE CoreValue InDouble(ComplexVec<Lum64f> z) {
    const auto t = TangentOf(FactorsInDouble(z.re, z.im, 100));
    return ValueOfParts(t.hyperbolic, t.circular, t.refused);
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return IsSpecialPair(z.re, z.im); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im, nan = select(unord(x, x), x + x, y - y);
    const auto infinite = IsInfinite(x);
    const auto zero = zero_unless(IsInfinite(y), or_sign(y, all(0.0)));
    return {select(infinite, or_sign(x, all(1.0)), nan), select(infinite, zero, select(IsZero(y), y, nan))};
  }
};

using TanEnds = CircularEnds<TanhEnds, KeptNans::all>;

}  // namespace

LumStatus Tan_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<TanPath<OnePart>, TanEnds, CoreTan>(src, dst, len);
}
LumStatus Tan_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<TanPath<HeadTail>, TanEnds, CoreTan>(src, dst, len);
}
LumStatus Tanh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<TanhPath<OnePart>, TanhEnds, CoreTanh>(src, dst, len);
}
LumStatus Tanh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<TanhPath<HeadTail>, TanhEnds, CoreTanh>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
