// Circular and hyperbolic functions of complex numbers, from sine and cosine of one part, hyperbolic sine and cosine of the
// other, and the products that the cores form of them too.
#include "complex/core_kernel.h"
#include "complex/pairs/circular.h"
#include "complex/pairs/exponential.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

struct Factors {
  HeadTail sine, cosine, sinh, cosh;
  Mask<Lum64f> refused;
};
LUM_INLINE Factors FactorsOf(Vec<Lum64f> exponent, Vec<Lum64f> angle, double largest) {
  const auto circular = SineCosineOf(angle);
  const auto hyperbolic = HyperbolicPair(exponent);
  const auto refused = circular.refused | IsFar(exponent, largest) | IsFar(angle, largest_angle);
  return {circular.sine, circular.cosine, hyperbolic.sinh, hyperbolic.cosh, refused};
}

// A product of two factors that are right to 0.56 units in the last place of Extended, rounded.
constexpr double product_error = 5;

struct CoshPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.re, z.im, largest_exponent);
    return ValueWithin(Product(f.cosh, f.cosine), Product(f.sinh, f.sine), product_error, f.refused);
  }
};
struct SinhPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.re, z.im, largest_exponent);
    return ValueWithin(Product(f.sinh, f.cosine), Product(f.cosh, f.sine), product_error, f.refused);
  }
};
struct CosPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.im, z.re, largest_exponent);
    return ValueWithin(Product(f.cosh, f.cosine), -Product(f.sinh, f.sine), product_error, f.refused);
  }
};
struct SinPath {
  static LUM_INLINE PathValue Of(ComplexVec<Lum64f> z) {
    const auto f = FactorsOf(z.im, z.re, largest_exponent);
    return ValueWithin(Product(f.cosh, f.sine), Product(f.sinh, f.cosine), product_error, f.refused);
  }
};

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

LUM_CORE_FUNCTIONS(RunReporting, Cos)
LUM_CORE_FUNCTIONS(RunReporting, Cosh)
LUM_CORE_FUNCTIONS(RunReporting, Sin)
LUM_CORE_FUNCTIONS(RunReporting, Sinh)
LUM_CORE_FUNCTIONS(RunSilent, Tan)
LUM_CORE_FUNCTIONS(RunSilent, Tanh)

}  // namespace lum::inline LUM_LAYER
