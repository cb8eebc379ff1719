// Inverse circular and hyperbolic functions of complex numbers. As in the cores, r and s are the distances of (u, v) to -1 and
// 1 and A half their sum; but in pairs one form of each difference serves everywhere, r - b = v^2/(r + b) and the like with b =
// u + 1 and a = u - 1.
#include "complex/core_kernel.h"
#include "complex/pairs/angle.h"
#include "complex/pairs/logarithm.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

LUM_INLINE HeadTail ExactSquare(Vec<Lum64f> x) { return ExactProduct(x, x); }

// The angle arccos(u/A) or arcsin(u/A), and arcosh A, for u, v > 0.
struct AngleAndLogarithm {
  HeadTail angle, logarithm;
};
enum class Arc { cosine, sine };

template <Arc arc> LUM_INLINE AngleAndLogarithm InverseParts(Vec<Lum64f> u, Vec<Lum64f> v) {
  const auto one = all(1.0);
  const auto a = ExactSum(u, negate(one)), b = ExactSum(u, one);
  const auto v2 = ExactSquare(v);
  const auto r = SquareRoot(Add(Square(b), v2)), s = SquareRoot(Add(Square(a), v2));
  const auto near = Quotient(v2, Add(r, b));                         // r - b
  const auto far = Add(s, Magnitude(a)), other = Quotient(v2, far);  // s + |a| and s - |a|
  const auto is_inside = lt(u, one);
  const auto above_u = Scaled(Add(near, Select(is_inside, far, other)), 0.5);    // A - u
  const auto above_one = Scaled(Add(near, Select(is_inside, other, far)), 0.5);  // A - 1
  const auto side = SquareRoot(Product(above_u, Add(above_u, u + u)));
  const HeadTail exact_u{u, all(0.0)};
  const auto angle = arc == Arc::cosine ? Angle(side, exact_u) : Angle(exact_u, side);
  const auto root = SquareRoot(Product(above_one, Add(above_one, all(2.0))));
  return {angle, LogarithmOfOnePlus(Add(above_one, root))};
}

// The core's steps add up to this.
constexpr double inverse_error = 16;

// The parts of arccos z for |im z|, and of arcsinh z.
LUM_INLINE AngleAndLogarithm ArccosineParts(ComplexVec<Lum64f> z) {
  const auto parts = InverseParts<Arc::cosine>(abs(z.re), abs(z.im));
  const HeadTail pi{all(f64(0x400921FB54442D18, 3.141592653589793)), all(f64(0x3CA1A62633145C07, 1.2246467991473532e-16))};
  return {Select(lt(z.re, all(0.0)), Add(pi, -parts.angle), parts.angle), parts.logarithm};
}
LUM_INLINE AngleAndLogarithm ArcsineParts(Vec<Lum64f> angle_side, Vec<Lum64f> other) {
  const auto parts = InverseParts<Arc::sine>(abs(angle_side), abs(other));
  return {XorSign(angle_side, parts.angle), XorSign(other, parts.logarithm)};
}
// On the axes one of the differences is zero.
LUM_INLINE Mask<Lum64f> IsRefused(ComplexVec<Lum64f> z) { return HasFarPart(z) | IsZero(z.re) | IsZero(z.im); }

struct AcosPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArccosineParts(z);
    return ValueWithin(parts.angle, -XorSign(z.im, parts.logarithm), inverse_error, IsRefused(z));
  }
};
struct AcoshPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArccosineParts(z);
    return ValueWithin(parts.logarithm, XorSign(z.im, parts.angle), inverse_error, IsRefused(z));
  }
};
struct AsinPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArcsineParts(z.re, z.im);
    return ValueWithin(parts.angle, parts.logarithm, inverse_error, IsRefused(z));
  }
};
struct AsinhPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto parts = ArcsineParts(z.im, z.re);
    return ValueWithin(parts.logarithm, parts.angle, inverse_error, IsRefused(z));
  }
};

// arctanh(x + iy): a quarter of ln(1 + 4x/q) with q = (1 - x)^2 + y^2 for positive x, and half the angle of (t, 2y) with
// t = 1 - x^2 - y^2.
struct Artanh {
  HeadTail logarithm, angle;
  Vec<Lum64f> logarithm_error, angle_error;
};
LUM_INLINE Artanh ArtanhParts(Vec<Lum64f> x, Vec<Lum64f> y) {
  const auto one = all(1.0);
  const auto ax = abs(x), ay = abs(y);
  const auto below = ExactSum(one, negate(ax)), above = ExactSum(one, ax);
  const auto y2 = ExactSquare(y);
  const auto q = Add(Square(below), y2);
  const auto ratio = Quotient({all(4.0) * ax, all(0.0)}, q);
  const auto logarithm = Scaled(LogarithmOfOnePlus(ratio), 0.25);
  const auto t = Add(Product(below, above), -y2);
  const auto angle = Scaled(Angle({ay + ay, all(0.0)}, t), 0.5);

  // The core takes the logarithm of a rounded ratio where that is not next to 1, and rounds t where it is no small difference.
  const auto logarithm_error =
      select(lt(all(0.0299), ratio.head), fma(logarithm.head, all(3.0), all(2.5)), logarithm.head * all(6.0));
  const auto cancelled = fma(ax, ax, one) + y2.head;
  const auto growth = cancelled * rcp14(max(abs(t.head), ay + ay));
  return {XorSign(x, logarithm), XorSign(y, angle), logarithm_error, angle.head * fma(growth, all(4.1), all(8.0))};
}

struct AtanhPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto a = ArtanhParts(z.re, z.im);
    return {a.logarithm, a.angle, a.logarithm_error, a.angle_error, HasFarPart(z)};
  }
};
struct AtanPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto a = ArtanhParts(z.im, z.re);
    return {a.angle, a.logarithm, a.angle_error, a.logarithm_error, HasFarPart(z)};
  }
};

}  // namespace

LUM_CORE_FUNCTIONS(RunSilent, Acos)
LUM_CORE_FUNCTIONS(RunSilent, Acosh)
LUM_CORE_FUNCTIONS(RunSilent, Asin)
LUM_CORE_FUNCTIONS(RunSilent, Asinh)
LUM_CORE_FUNCTIONS(RunSilent, Atan)
LUM_CORE_FUNCTIONS(RunSilent, Atanh)

}  // namespace lum::inline LUM_LAYER
