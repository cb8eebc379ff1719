// artanh(x + iy): a quarter of ln(1 + 4x/q) with q = (1 - x)^2 + y^2 for positive x, and half the angle of (t, 2y) with
// t = 1 - x^2 - y^2. arctan z = -i artanh iz.
#include "complex/circular_of_hyperbolic.h"
#include "complex/core_kernel.h"
#include "complex/far_parts.h"
#include "complex/pairs/angle.h"
#include "complex/pairs/logarithm.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

template <class Number> struct AtanhValue {
  Number logarithm, angle;
  Vec<Lum64f> logarithm_error, angle_error;
};
template <class Number> LUM_INLINE AtanhValue<Number> AtanhParts(Vec<Lum64f> x, Vec<Lum64f> y) {
  const auto one = all(1.0);
  const auto ax = abs(x), ay = abs(y);
  const auto below = SumOf<Number>(one, negate(ax)), above = SumOf<Number>(one, ax);
  const auto y2 = SquareOf<Number>(y);
  const auto q = Add(Square(below), y2);
  const auto ratio = Quotient(NumberOf<Number>(all(4.0) * ax), q);
  const auto logarithm = Scaled(LogarithmOfOnePlus(ratio), 0.25);
  const auto t = Add(Product(below, above), -y2);
  const auto angle = Scaled(Angle(NumberOf<Number>(ay + ay), t), 0.5);

  // Where the ratio is not next to 1, the core takes the logarithm of a ratio of squared distances. Those are right to two
  // units, or four where 1 + x is rounded, the ratio to one more.
  const auto ratio_error = select(lt(all(0x1p-10), ax), all(1.3125), all(2.5));
  const auto logarithm_error =
      select(lt(all(0.0299), ratio.head), fma(logarithm.head, all(1.25), ratio_error), logarithm.head * all(6.0));
  // The core rounds t where that is no small difference, by up to three times the sum of its terms. Else it has the sum of two
  // angles, each right to two units.
  const auto cancelled = fma(ax, ax, one) + y2.head;
  const auto growth = cancelled * rcp14(max(abs(t.head), ay + ay));
  const auto angle_error = select(lt(abs(t.head), all(0.0299)), all(4.125), fma(growth, all(3.0625), all(1.25)));
  return {XorSign(x, logarithm), XorSign(y, angle), logarithm_error, angle.head * angle_error};
}

template <class Number> struct AtanhPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return z; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto a = AtanhParts<Number>(z.re, z.im);
    return {a.logarithm, a.angle, a.logarithm_error, a.angle_error, IsOutside(z)};
  }
};

template <class Number> struct AtanPath {
  static constexpr bool is_long = true;
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfZero(ComplexVec<Lum64f> z) { return z; }
  static LUM_INLINE PathValue<Number> Of(ComplexVec<Lum64f> z) {
    const auto a = AtanhParts<Number>(z.im, z.re);
    return {a.angle, a.logarithm, a.angle_error, a.logarithm_error, IsOutside(z)};
  }
};

struct AtanhEnds {
  static constexpr bool no_float_is_far = true;
  // Far from 1 artanh z is 1/z and half a turn; a small part's consequence is proportional to it.
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    const auto near = BringNearer(abs(z.re), abs(z.im));
    const auto a = AtanhParts<HeadTail>(or_sign(z.re, near.u.value), or_sign(z.im, near.v.value));
    const auto angle_exponent = zero_unless(lt(near.u.value, all(1.0)), near.v.exponent);
    return CoreValueOf(RoundedAtEnds(a.logarithm, a.logarithm_error, near.u.exponent - near.common),
                       RoundedAtEnds(a.angle, a.angle_error, angle_exponent), ~IsNextToBranch(near));
  }
  static LUM_INLINE Mask<Lum64f> IsPole(ComplexVec<Lum64f> z) { return eq(abs(z.re), all(1.0)) & IsZero(z.im); }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z) | IsPole(z); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im;
    const auto x_nan = unord(x, x), y_nan = unord(y, y), infinite = IsInfinite(x) | IsInfinite(y);
    const auto nan = select(x_nan, x, y) * y, zero = select(x_nan, all(0.0), or_sign(x, all(0.0)));
    const auto half_pi = or_sign(y, all(numbers::pi<Lum64f> / 2));
    const ComplexVec<Lum64f> value{select(infinite | IsZero(x), zero, nan), select(y_nan | (x_nan & ~infinite), nan, half_pi)};
    return Select(IsPole(z), {or_sign(x, all(infinity)), y}, value);
  }
};

using AtanEnds = CircularEnds<AtanhEnds, KeptNans::all>;

}  // namespace

LumStatus Atan_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<AtanPath<OnePart>, AtanEnds, CoreAtan>(src, dst, len);
}
LumStatus Atan_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<AtanPath<HeadTail>, AtanEnds, CoreAtan>(src, dst, len);
}
LumStatus Atanh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  return RunSilent<AtanhPath<OnePart>, AtanhEnds, CoreAtanh>(src, dst, len);
}
LumStatus Atanh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<AtanhPath<HeadTail>, AtanhEnds, CoreAtanh>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
