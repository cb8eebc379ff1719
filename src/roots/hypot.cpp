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

// The routine's steps over vectors, for pairs of numbers that are not both zero.
LUM_INLINE Vec<Lum64f> RootOfSquares(Vec<Lum64f> m, Vec<Lum64f> n) {
  const auto p = m * m, q = n * n;
  const auto s = fast_two_sum(p, q);
  const auto tail = s.tail + (fms(m, m, p) + fms(n, n, q));
  if constexpr (streams_fit_registers) {
    // Coupled steps take half as long as the instructions, and leave less than 2^-77 of a difference to the last rounding.
    const auto r = CoupledStep(Start(s.head, rsqrt14_normal(s.head)));
    const auto g = CoupledStep(r).g;
    const auto rest = (fnma(g, g, s.head) + tail) * r.h;
    const auto above = g + fma(g, all(0x1p-76), rest), below = g + fnma(g, all(0x1p-76), rest);
    if (none(ne(above, below))) [[likely]]
      return above;
  }
  const auto root = sqrt(s.head);
  const auto square = root * root;
  return root + div(((s.head - square) - fms(root, root, square)) + tail, root + root);
}

LUM_INLINE Vec<Lum64f> OfFinite(Vec<Lum64f> a, Vec<Lum64f> b) {
  using F = lane::Format<Lum64f>;
  const auto x = abs(a), y = abs(b);
  const auto m = max(x, y), smaller = min(x, y);
  // Below 2^-110 m it does not change the result, and its square or its product may be denormal, which would be slow.
  const auto is_relevant = mask_cast<Lum64f>(lt(bits(m), bits(smaller) + all(uint64_t{110} << F::fraction_bits)));
  const auto n = zero_unless(is_relevant, smaller);
  // The power that takes m near 1, or a small one at least to 2^-74; both it and its inverse are normal numbers.
  constexpr double most = 1000;
  const auto down = min(all(1.0) - getexp_normal(m), all(most)), up = negate(down);
  const auto m_denormal = fpclass<classes::denormal>(m), n_denormal = fpclass<classes::denormal>(n);
  if (none(m_denormal | n_denormal)) [[likely]]
    return scalef_normal(RootOfSquares(scalef_normal(m, down), scalef_normal(n, down)), up);
  // Denormal numbers by the count of their steps, and denormal results by that in the last place of a sum.
  constexpr int least = F::bias + F::fraction_bits - 1;
  constexpr double first = F::hidden;
  const auto scaled = [&](Vec<Lum64f> v, Mask<Lum64f> is_denormal) __attribute__((always_inline)) {
    const auto count = as_float(bits(v) | all(std::bit_cast<uint64_t>(first))) - all(first);
    return scalef_normal(select(is_denormal, count, v), down - zero_unless(is_denormal, all(double{least})));
  };
  const auto root = RootOfSquares(scaled(m, m_denormal), scaled(n, n_denormal));
  const auto shifter = all(lane::power_of_two<Lum64f>(F::fraction_bits - least + static_cast<int>(most)));
  const auto vanishing = m_denormal & lt(root, shifter);
  const auto steps = bits(root + shifter) - bits(shifter);
  return select(vanishing, as_float(steps), scalef_normal(select(vanishing, all(1.0), root), up));
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
    const auto m = max(abs(a), abs(b));
    const auto special = unord(a, b) | fpclass<classes::infinity | classes::zero>(m);
    if (none(lanes.refused)) return {lanes.value, lanes.refused};
    if (none(lanes.refused & special)) return {select(lanes.refused, OfFinite(a, b), lanes.value), mask_of<T>(0)};
    const auto infinite = fpclass<classes::infinity>(a) | fpclass<classes::infinity>(b), nan = unord(a, b);
    const auto finite = lanes.refused & ~special;
    auto value = select(lanes.refused & nan, a + b, lanes.value);
    value = zero_unless(~(lanes.refused & ~nan & fpclass<classes::zero>(m)), value);
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
