// The principal square root. With w = sqrt((|x| + |z|) / 2) and v = |y| / (2 w):  sqrt z = w + v i for x >= 0, v + w i for
// x < 0, the imaginary part with the sign of y. Squares are kept in range by a power of 4 taken from the exponents of both
// parts, or in A24 by binary64. The highest tag of 64fc has the bits of the scalar core.
#include "complex/core_kernel.h"
#include "frame/kernels.h"
#include "frame/lane_format.h"
#include "roots/coupled_root.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;

// The root as the core has it, in pairs. The smaller part is proportional to y where that is the smaller one by far.
struct SqrtParts {
  HeadTail large, small;

  // What the core's may be off, in units of 2^-64: the modulus is right to two, its mean with |x| to three, the root to half of
  // that and its own rounding; the quotient is rounded, too.
  LUM_INLINE Vec<Lum64f> LargeError() const { return large.head * all(2.5625); }
  LUM_INLINE Vec<Lum64f> SmallError() const { return small.head * all(3.5625); }
};
LUM_INLINE SqrtParts SqrtPartsOf(Vec<Lum64f> x, Vec<Lum64f> y) {
  const auto ax = abs(x), ay = abs(y);
  const auto modulus = SquareRoot(Add(two_product(ax, ax), two_product(ay, ay)));
  const auto large = SquareRoot(Scaled(Add(modulus, ax), 0.5));
  return {large, Quotient({ay * all(0.5), all(0.0)}, large)};
}
constexpr double root_on_axis_error = 1.0625;

struct SqrtEnds {
  // One root serves the numbers of both axes: sqrt |x|, or sqrt(|y|/2) in both parts.
  static LUM_INLINE CoreValue OnAxis(ComplexVec<Lum64f> z) {
    const auto magnitude = max(abs(z.re), abs(z.im));
    const auto half = rndscale<binary_places(0) | rd | quiet>(all(0.5) * getexp(magnitude));
    const auto m = scalef(magnitude, all(-2.0) * half);
    const auto is_real = IsZero(z.im), is_left = lt(z.re, all(0.0));
    const auto root = SquareRoot({select(is_real, m, all(0.5) * m), all(0.0)});
    const auto rounded = RoundedAsCore(root, root.head * all(root_on_axis_error));
    const auto value = scalef(rounded.value, half);
    return {{zero_unless(~(is_real & is_left), value), or_sign(z.im, zero_unless(~is_real | is_left, value))},
            mask_of<Lum64f>(~0u),
            ~rounded.refused};
  }
  static LUM_INLINE CoreValue OfFar(ComplexVec<Lum64f> z) {
    if (none(~(IsZero(z.re) | IsZero(z.im)))) return OnAxis(z);
    const auto half = rndscale<binary_places(0) | rd | quiet>(all(0.5) * getexp(max(abs(z.re), abs(z.im))));
    const auto down = all(-2.0) * half;
    const auto x = Raised(z.re, down), y = Raised(z.im, down);
    const auto parts = SqrtPartsOf(x.value, y.value);
    const auto large = RoundedAtEnds(parts.large, parts.LargeError(), half);
    const auto small = RoundedAtEnds(parts.small, parts.SmallError(), half + y.exponent);
    const auto is_left = lt(z.re, all(0.0));
    return {{select(is_left, small.value, large.value), or_sign(z.im, select(is_left, large.value, small.value))},
            mask_of<Lum64f>(~0u),
            ~(large.refused | small.refused)};
  }
  static LUM_INLINE Mask<Lum64f> IsSpecial(ComplexVec<Lum64f> z) { return HasNonFinitePart(z) | (IsZero(z.re) & IsZero(z.im)); }
  static LUM_INLINE ComplexVec<Lum64f> OfSpecial(ComplexVec<Lum64f> z) {
    const auto x = z.re, y = z.im, nan = x * y, unbounded = all(infinity);
    const auto y_nan = unord(y, y), x_infinite = IsInfinite(x), is_left = IsNegative(x);
    // Beside an infinite x.
    const auto other = zero_unless(y_nan, y), small = select(y_nan, other + other, all(0.0));
    const auto re = select(is_left, small, unbounded);
    const auto im =
        select(is_left, select(y_nan, unbounded, or_sign(y, unbounded)), select(y_nan, small, or_sign(y, all(0.0))));
    const auto is_zero = IsZero(x) & IsZero(y);
    const ComplexVec<Lum64f> value{select(x_infinite, re, zero_unless(~is_zero, nan)),
                                   select(x_infinite, im, select(is_zero, y, nan))};
    return Select(IsInfinite(y), {unbounded, y}, value);
  }
};

template <class E, bool refuses_numbers = true> struct SqrtKernel : Kernel<E> {
  static constexpr int vectors = 1;
  static constexpr bool second_is_shared = true;
  static LUM_INLINE Lanes<E> SecondPath(Packed<E> z, const Lanes<E>& lanes) {
    return SecondPathAsCore<SqrtEnds, refuses_numbers>(z, lanes, lanes.refused);
  }
  static LUM_INLINE Mask<Real<E>> Outside(Packed<E> z) { return HasNonFinitePart(split(z)); }
  static void LaneRoutine(const E& z, E& result) { SilentCoreOnLane<CoreSqrt>(z, result); }
};

// The larger and the smaller part of the root in their places. A zero z keeps the sign of its imaginary part: both are zero.
template <class T> LUM_INLINE Interleaved<T> Placed(ComplexVec<T> z, Vec<T> large, Vec<T> small) {
  const auto is_left = mask_cast<T>(sign_mask(bits(z.re)));
  return join(ComplexVec<T>{select(is_left, small, large), or_sign(z.im, select(is_left, large, small))});
}

// Zero, denormal, infinite and NaN parts.
template <class T> LUM_INLINE Mask<T> NotNormal(ComplexVec<T> z) {
  return fpclass<classes::nonfinite | classes::zero | classes::denormal>(z.re) |
         fpclass<classes::nonfinite | classes::zero | classes::denormal>(z.im);
}

// Half exponents further apart than this leave the smaller square without weight.
template <class T> inline constexpr SignedOf<T> far = sizeof(T) == 4 ? 18 : 32;

// |x| and |y| times 4^-h, h being half the exponent of the larger, or so near it that both squares are in range. A part so much
// smaller that its square cannot count is zero.
template <class T> struct ScaledParts {
  Vec<T> a, b;
  Vec<SignedOf<T>> h;
};

template <class T> LUM_INLINE Vec<T> PowerOfTwo(Vec<SignedOf<T>> e) {
  using F = lane::Format<T>;
  return as_float(shift_left<F::fraction_bits>(e + all(SignedOf<T>{F::bias})));
}

template <class T> LUM_INLINE ScaledParts<T> Scale(Vec<T> x, Vec<T> y) {
  using F = lane::Format<T>;
  const auto half_exponent = [](Vec<T> part) __attribute__((always_inline)) {
    const auto from_one = as_signed(bits(part)) - all(static_cast<SignedOf<T>>(SignedOf<T>{F::bias} << F::fraction_bits));
    return shift_right_arithmetic<F::fraction_bits + 1>(from_one);
  };
  const auto hx = half_exponent(x), hy = half_exponent(y);
  const auto d = hx - hy;
  const auto x_counts = lt(all(static_cast<SignedOf<T>>(-far<T>)), d), y_counts = lt(d, all(far<T>));
  const auto h = select(x_counts, hx, hy);
  const auto power = PowerOfTwo<T>(all(SignedOf<T>{0}) - (h + h));
  return {zero_unless(mask_cast<T>(x_counts), x * power), zero_unless(mask_cast<T>(y_counts), y * power), h};
}

// By the instructions for root and quotient, in binary32.
struct A21_32fc : SqrtKernel<Lum32fc> {
  static constexpr Variant variant = x87_up_front_variant;
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed) {
    const auto z = split(packed);
    const auto y = abs(z.im);
    const auto s = Scale(abs(z.re), y);
    const auto modulus = sqrt(fma(s.a, s.a, s.b * s.b));
    const auto u = all(0.5f) * (s.a + modulus);
    const auto reciprocal = div(all(1.0f), sqrt(u));
    const auto large = (u * reciprocal) * PowerOfTwo<Lum32f>(s.h);
    const auto small = ((all(0.5f) * reciprocal) * PowerOfTwo<Lum32f>(all(0) - s.h)) * y;
    return {Placed(z, large, small), NotNormal(z)};
  }
};

// The scaled squares are so near 1 that the steps from the estimate need no care for the ends of the range.
struct A50_64fc : SqrtKernel<Lum64fc> {
  static LUM_INLINE Lanes<Lum64fc> VectorPath(Interleaved<Lum64f> packed) {
    const auto z = split(packed);
    const auto y = abs(z.im);
    const auto s = Scale(abs(z.re), y);
    const auto square = fma(s.a, s.a, s.b * s.b);
    const auto modulus = HeronStep(square, CoupledStep(roots::Start(square, rsqrt14_normal(square))));
    const auto u = all(0.5) * (s.a + modulus);
    const auto roots = CoupledStep(roots::Start(u, rsqrt14_normal(u)));
    const auto root = HeronStep(u, roots);
    const auto half_reciprocal = fma(fnma(root, roots.h, all(0.5)), roots.h + roots.h, roots.h);
    const auto large = root * PowerOfTwo<Lum64f>(s.h);
    const auto small = (half_reciprocal * PowerOfTwo<Lum64f>(all(int64_t{0}) - s.h)) * y;
    return {Placed(z, large, small), NotNormal(z)};
  }
};

// The root of a binary64 number that has been a sum of squares of binary32 ones: from 2^-298 on, or zero.
LUM_INLINE Vec<Lum64f> DoubleRoot(Vec<Lum64f> x) {
  const auto is_small = lt(x, all(0.5));
  const auto scaled = select(is_small, x * all(0x1p108), x);
  const auto root = HeronStep(scaled, CoupledStep(roots::Start(scaled, rsqrt14_normal(scaled))));
  const auto unscaled = select(is_small, root * all(0x1p-54), root);
  return zero_unless(ne(x, all(0.0)), unscaled);
}

// a / b of positive numbers of binary32, |error| below 2^-27; of a zero any value.
LUM_INLINE Vec<Lum64f> DoubleQuotient(Vec<Lum64f> a, Vec<Lum64f> b) {
  const auto fraction = getmant_normal<significand::from_1_to_2>(b);
  const auto estimate = rcp14_normal(fraction);
  const auto reciprocal = fma(fnma(fraction, estimate, all(1.0)), estimate, estimate);
  return scalef_normal(getmant_normal<significand::from_1_to_2>(a) * reciprocal, getexp_normal(a) - getexp_normal(b));
}

struct A24_32fc : SqrtKernel<Lum32fc, /*refuses_numbers=*/false> {
  struct Parts {
    Vec<Lum64f> large, small;
  };
  static LUM_INLINE Parts PartsOf(Vec<Lum64f> x, Vec<Lum64f> y) {
    const auto modulus = DoubleRoot(fma(x, x, y * y));
    const auto large = DoubleRoot(all(0.5) * (x + modulus));
    return {large, zero_unless(ne(y, all(0.0)), DoubleQuotient(all(0.5) * y, large))};
  }
  static LUM_INLINE Lanes<Lum32fc> VectorPath(Interleaved<Lum32f> packed) {
    const auto z = split(packed);
    const auto x = abs(z.re), y = abs(z.im);
    const auto low = PartsOf(widen_low(x), widen_low(y)), high = PartsOf(widen_high(x), widen_high(y));
    return {Placed(z, narrow(low.large, high.large), narrow(low.small, high.small)), HasNonFinitePart(z)};
  }
};

struct SqrtPath {
  static LUM_INLINE Mask<Lum64f> IsOutside(ComplexVec<Lum64f> z) { return HasFarPart(z); }
  static LUM_INLINE PathValue<HeadTail> Of(ComplexVec<Lum64f> z) {
    const auto parts = SqrtPartsOf(z.re, z.im);
    const auto is_left = lt(z.re, all(0.0));
    const auto large_error = parts.LargeError(), small_error = parts.SmallError();
    return {Select(is_left, parts.small, parts.large), XorSign(z.im, Select(is_left, parts.large, parts.small)),
            select(is_left, small_error, large_error), select(is_left, large_error, small_error), IsOutside(z)};
  }
};

}  // namespace

LumStatus Sqrt_32fc_A21(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A21_32fc>(src, dst, len); }
LumStatus Sqrt_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus Sqrt_64fc_A50(const Lum64fc* src, Lum64fc* dst, int32_t len) { return OneInput<A50_64fc>(src, dst, len); }
LumStatus Sqrt_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  return RunSilent<SqrtPath, SqrtEnds, CoreSqrt>(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER
