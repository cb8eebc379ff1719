// artanh(x + iy): a quarter of ln(1 + 4x/q) with q = (1 - x)^2 + y^2 for positive x, and half the angle of (t, 2y) with
// t = 1 - x^2 - y^2. arctan z = -i artanh iz.
#include "complex/core_kernel.h"
#include "complex/pairs/angle.h"
#include "complex/pairs/logarithm.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

struct AtanhValue {
  HeadTail logarithm, angle;
  Vec<Lum64f> logarithm_error, angle_error;
};
LUM_INLINE AtanhValue AtanhParts(Vec<Lum64f> x, Vec<Lum64f> y) {
  const auto one = all(1.0);
  const auto ax = abs(x), ay = abs(y);
  const auto below = two_sum(one, negate(ax)), above = two_sum(one, ax);
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
    const auto a = AtanhParts(z.re, z.im);
    return {a.logarithm, a.angle, a.logarithm_error, a.angle_error, HasFarPart(z)};
  }
};

struct AtanPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto a = AtanhParts(z.im, z.re);
    return {a.angle, a.logarithm, a.angle_error, a.logarithm_error, HasFarPart(z)};
  }
};

}  // namespace

LumStatus Atan_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<AtanPath, CoreAtan>(src, dst, len); }
LumStatus Atan_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<AtanPath, CoreAtan>(src, dst, len); }
LumStatus Atanh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<AtanhPath, CoreAtanh>(src, dst, len); }
LumStatus Atanh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<AtanhPath, CoreAtanh>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
