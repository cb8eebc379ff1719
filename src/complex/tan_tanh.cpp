// tanh(x + iy) = (sinh x cosh x + i sin y cos y) / (cos^2 y + sinh^2 x), and tan z = -i tanh iz.
#include "complex/hyperbolic_factors.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

// With the squares in the denominator.
struct Tangent {
  HeadTail hyperbolic, circular;
  Mask<Lum64f> refused;
};
LUM_INLINE Tangent TangentOf(Vec<Lum64f> exponent, Vec<Lum64f> angle) {
  const auto f = FactorsOf(exponent, angle, largest_exponent / 2);
  const auto c2 = Square(f.cosine), s2 = Square(f.sinh);
  const auto reciprocal = Quotient({all(1.0), all(0.0)}, Add(c2, s2));
  return {Product(Product(f.sinh, f.cosh), reciprocal), Product(Product(f.sine, f.cosine), reciprocal), f.refused};
}
constexpr double tangent_error = 12;

struct TanhPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto t = TangentOf(z.re, z.im);
    return SmallValueWithin(t.hyperbolic, t.circular, tangent_error, t.refused);
  }
};

struct TanPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto t = TangentOf(z.im, z.re);
    return SmallValueWithin(t.circular, t.hyperbolic, tangent_error, t.refused);
  }
};

}  // namespace

LumStatus Tan_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<TanPath, CoreTan>(src, dst, len); }
LumStatus Tan_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<TanPath, CoreTan>(src, dst, len); }
LumStatus Tanh_32fc(const Lum32fc* src, Lum32fc* dst, int32_t len) { return RunSilent<TanhPath, CoreTanh>(src, dst, len); }
LumStatus Tanh_64fc(const Lum64fc* src, Lum64fc* dst, int32_t len) { return RunSilent<TanhPath, CoreTanh>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
