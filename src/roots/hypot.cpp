// sqrt(a^2 + b^2). The squares are formed as they stand, the root comes from an estimate of its reciprocal and one or two
// steps. The high tiers keep the rounding errors of the squares and of their sum and add them to the residual of the last step.
// Pairs whose squares might overflow or lose bits to underflow are scaled on a second path. Nothing is ever reported.
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/lane_format.h"
#include "frame/two_parts.h"
#include "roots/coupled_root.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace roots;

// The root of m^2 + n^2 for n <= m, m near 1. One step with the exact residual makes the result correct to its last bits.
double RootOfSquares(double m, double n) {
  const auto p = two_product(m, m), q = two_product(n, n);
  const auto s = fast_two_sum(p.head, q.head);
  const double tail = s.tail + (p.tail + q.tail);
  const double root = std::sqrt(s.head);
  const auto r = two_product(root, root);
  return root + ((s.head - r.head) - r.tail + tail) / (root + root);
}

// The power of 2 that takes a finite m to [4, 8), and one below 2^-998 at least to 2^-72, far from denormal numbers, has the
// exponent `range` or `small_range` less the exponent field of m. The power and its inverse are normal numbers.
constexpr int small_fields = 25, small_range = 1002, range = 1025;

// The length of finite numbers. The squares of floats are exact in binary64 and far from its limits.
Lum32f OfFinite(Lum32f a, Lum32f b) {
  const double x = a, y = b;
  return static_cast<Lum32f>(std::sqrt(x * x + y * y));
}
Lum64f OfFinite(Lum64f a, Lum64f b) {
  auto m = std::fabs(a), n = std::fabs(b);
  if (m < n) std::swap(m, n);
  const int field = lane::exponent_field(m);
  const int exponent = (field < small_fields ? small_range : range) - field;
  const auto scale = lane::power_of_two<double>(exponent);
  return RootOfSquares(m * scale, n * scale) * lane::power_of_two<double>(-exponent);
}

// The steps of the routine over vectors, for pairs of numbers that are not both zero. A smaller number too small to change the
// result is taken for zero, so that its square is not denormal.
LUM_INLINE Vec<Lum64f> RootOfSquares(Vec<Lum64f> m, Vec<Lum64f> given_n) {
  const auto n = zero_unless(lt(m * all(0x1p-110), given_n), given_n);
  const auto p = m * m, q = n * n;
  const auto s = fast_two_sum(p, q);
  const auto tail = s.tail + (fms(m, m, p) + fms(n, n, q));
  const auto root = sqrt(s.head);
  const auto r = root * root;
  return root + div(((s.head - r) - fms(root, root, r)) + tail, root + root);
}
LUM_INLINE Vec<Lum64f> OfFinite(Vec<Lum64f> a, Vec<Lum64f> b) {
  const auto x = abs(a), y = abs(b);
  const auto m = max(x, y), n = min(x, y);
  using F = lane::Format<Lum64f>;
  const auto field = exponent_field(m);
  const auto is_small = lt(field, all(uint64_t{small_fields}));
  const auto scale_field = select(is_small, all(uint64_t{small_range + F::bias}), all(uint64_t{range + F::bias})) - field;
  const auto scale = power_of_two<Lum64f>(scale_field),
             inverse = power_of_two<Lum64f>(all(uint64_t{2 * F::bias}) - scale_field);
  // Below 2^-150 m: a product with a denormal result would be slow.
  const auto is_relevant = mask_cast<Lum64f>(lt(bits(m), bits(n) + all(uint64_t{150} << F::fraction_bits)));
  return RootOfSquares(m * scale, zero_unless(is_relevant, n) * scale) * inverse;
}
LUM_INLINE Vec<Lum32f> OfFinite(Vec<Lum32f> a, Vec<Lum32f> b) {
  const auto half = [](Vec<Lum64f> x, Vec<Lum64f> y) __attribute__((always_inline)) { return sqrt(x * x + y * y); };
  return narrow(half(widen_low(a), widen_low(b)), half(widen_high(a), widen_high(b)));
}

template <class T> struct HypotKernel : Kernel<T> {
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> a, Vec<T> b, const Lanes<T>& lanes) {
    const auto infinite = fpclass<classes::infinity>(a) | fpclass<classes::infinity>(b), nan = unord(a, b);
    const auto zero = fpclass<classes::zero>(a) & fpclass<classes::zero>(b);
    const auto finite = lanes.refused & ~(infinite | nan | zero);
    auto value = select(lanes.refused & nan, a + b, lanes.value);
    value = select(lanes.refused & zero, all(T(0)), value);
    value = select(infinite, all(std::numeric_limits<T>::infinity()), value);
    if (any(finite)) value = select(finite, OfFinite(select(finite, a, all(T(1))), select(finite, b, all(T(1)))), value);
    return {value, mask_of<T>(0)};
  }
  static void LaneRoutine(T a, T b, T& result) {
    constexpr auto infinity = std::numeric_limits<T>::infinity();
    if (std::fabs(a) == infinity || std::fabs(b) == infinity) {
      result = infinity;
    } else if (a != a || b != b) {
      result = lane::nan_of(a, b);
    } else if (a == 0 && b == 0) {
      result = T(0);
    } else {
      result = OfFinite(a, b);
    }
  }
};

// The larger exponent beyond +-63 or +-511; infinities and NaN among them, as their patterns are larger still. A NaN in a
// beside an ordinary b is not: the maximum is b's then, and the NaN runs through.
template <class T> LUM_INLINE Mask<T> Refused(Vec<T> a, Vec<T> b) {
  constexpr auto limit = std::is_same_v<T, Lum32f> ? T(63) : T(511);
  const auto e = max(getexp(a), getexp(b));
  return mask_cast<T>(nlt(as_signed(bits(abs(e))), as_signed(bits(all(limit)))));
}

// The sum of squares and what it leaves; without the rest where the tier has no use for it.
template <class T> LUM_INLINE TwoParts<Vec<T>> ExactSquares(Vec<T> a, Vec<T> b) {
  const auto p = a * a, q = b * b;
  const auto p_rest = fms(a, a, p), q_rest = fms(b, b, q);  // exact
  const auto s = fast_two_sum(max(p, q), min(p, q));
  return {s.head, s.tail + (p_rest + q_rest)};
}
template <class T> LUM_INLINE Vec<T> PlainSquares(Vec<T> a, Vec<T> b) { return fma(a, a, b * b); }

// Squares that are zero, denormal, infinite or NaN are refused, and nothing else is looked at.
struct A11_32f : HypotKernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> a, Vec<Lum32f> b) {
    const auto s = PlainSquares(a, b);
    using F = lane::Format<Lum32f>;
    const auto above_smallest = bits(s) - all(F::hidden);
    return {s * rsqrt14_normal(s), mask_cast<Lum32f>(nlt(above_smallest, all(F::infinity - F::hidden)))};
  }
};

template <class T, Steps steps> struct Plain : HypotKernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> a, Vec<T> b) {
    const auto s = PlainSquares(a, b);
    auto r = Start(s, rsqrt14_normal(s));
    for (int i = 0; i < steps.coupled; ++i) r = CoupledStep(r);
    if constexpr (steps.residual) return {HeronStep(s, r), Refused(a, b)};
    else return {r.g, Refused(a, b)};
  }
};

// The residual takes what the sum of squares leaves.
template <class T, Steps steps> struct Exact : HypotKernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> a, Vec<T> b) {
    const auto s = ExactSquares(a, b);
    const auto r = CoupledSteps<steps>(Start(s.head, rsqrt14_normal(s.head)));
    const auto d = fnma(r.g, r.g, s.head);
    return {fma(d + s.tail, r.h, r.g), Refused(a, b)};
  }
};

using A21_32f = Plain<Lum32f, Steps{.residual = true}>;
using A24_32f = Exact<Lum32f, Steps{.residual = true}>;
using A26_64f = Plain<Lum64f, Steps{.coupled = 1}>;
using A50_64f = Plain<Lum64f, Steps{.coupled = 1, .residual = true}>;
using A53_64f = Exact<Lum64f, Steps{.coupled = 1, .residual = true}>;

}  // namespace

LumStatus Hypot_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A11_32f>(src1, src2, dst, len);
}
LumStatus Hypot_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A21_32f>(src1, src2, dst, len);
}
LumStatus Hypot_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A24_32f>(src1, src2, dst, len);
}
LumStatus Hypot_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A26_64f>(src1, src2, dst, len);
}
LumStatus Hypot_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A50_64f>(src1, src2, dst, len);
}
LumStatus Hypot_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A53_64f>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
