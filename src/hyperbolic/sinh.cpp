// sinh x, by the scheme of hyperbolic/exponentials.h. Next to zero n is 0, so that the difference of the two powers vanishes
// and the result is the polynomial of sinh r alone: nothing cancels, down to the denormals. The sign of x is put in at the end.
// Arguments near the overflow, infinities and NaN go to the lane routine.
#include "frame/kernels.h"
#include "hyperbolic/exponentials.h"
#include "hyperbolic/hyperbolic_ends.h"
#include "hyperbolic/polynomials.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace hyperbolic;

template <class T> struct HyperbolicSine : Kernel<T> {
  static constexpr bool refuses_by_class = true;
  static LumStatus LaneRoutine(T x, T& result) { return SinhRoutine(x, result); }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return FinishAtEnds<T, true>(x, lanes); }
};

// Infinities and NaN have larger patterns than every threshold.
template <class T> LUM_INLINE Mask<T> RefusedFrom(UnsignedOf<T> first_refused, Vec<T> a) {
  return mask_cast<T>(le(all(first_refused), bits(a)));
}
inline constexpr uint32_t beyond_float = 0x42AEAC4F;

// N = 1, without a table: the powers are exact and so are their sum and difference but for one rounding.
struct WholeTerms {
  Vec<Lum32f> sum, difference, r;
};
LUM_INLINE WholeTerms WholeTermsOf(Vec<Lum32f> a) {
  const auto [count, r] = ReduceToRows<0>(a);
  const auto exponent = shift_left<lane::Format<Lum32f>::fraction_bits>(count);
  const auto half = all(std::bit_cast<uint32_t>(0.5f));
  const auto plus = as_float(half + exponent), minus = as_float(half - exponent);
  return {plus + minus, plus - minus, r};
}

struct A11_32f : HyperbolicSine<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = as_float(WithoutSign<Lum32f>(bits(x)));
    const auto [sum, difference, r] = WholeTermsOf(a);
    const auto r2 = r * r;
    const auto p = horner(r2, hyperbolic::sinh_A11);
    const auto q = horner(r2, hyperbolic::sinh_cosh_A11);
    return {or_sign(x, fma(r, fma(sum, p, (r * difference) * q), difference)), RefusedFrom(beyond_float, a)};
  }
};

struct A21_32f : HyperbolicSine<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = as_float(WithoutSign<Lum32f>(bits(x)));
    const auto [sum, difference, r] = WholeTermsOf(a);
    const auto r2 = r * r;
    const auto s = fma(r * r2, horner(r2, hyperbolic::sinh_A21), r);
    const auto c = r2 * horner(r2, hyperbolic::sinh_cosh_A21);
    return {or_sign(x, fma(sum, s, c * difference) + difference), RefusedFrom(beyond_float, a)};
  }
};

// 2^(n-1) and 2^(-n-1), each in two parts.
template <class T> struct SplitPowers {
  Vec<UnsignedOf<T>> plus, minus, plus_lo, minus_lo;  // as the table has them
};
template <class T> LUM_INLINE SplitPowers<T> LookupAll(Vec<UnsignedOf<T>> count) {
  return {LookupHalfPower<0, T>(count), LookupHalfPower<1, T>(count), LookupHalfPower<2, T>(count),
          LookupHalfPower<3, T>(count)};
}

// The count is held on the first row as far as one and a half rows from zero.
template <int row_bits, class T> LUM_INLINE ReducedMagnitude<T> ReduceGuarded(Vec<T> a) {
  constexpr T shifter = rounding_shifter<T>(row_bits);
  constexpr auto next = std::bit_cast<T>(std::bit_cast<UnsignedOf<T>>(shifter) + 1);
  const auto shifted = fma(a, all(numbers::log2_e<T>), all(shifter));
  return SubtractMultiple<row_bits>(a, select(eq(shifted, all(next)), all(shifter), shifted));
}

// s = sinh r, c = cosh r - 1.
template <class T> LUM_INLINE Vec<T> JoinSplit(const SplitPowers<T>& powers, Vec<UnsignedOf<T>> exponent, Vec<T> s, Vec<T> c) {
  const auto plus = as_float(powers.plus + exponent), minus = as_float(powers.minus - exponent);
  const auto plus_lo = as_float(powers.plus_lo + exponent);
  // Where the exponent field of the small part would become negative, the part is too small to matter.
  const auto magnitude = WithoutSign<T>(powers.minus_lo);
  const auto minus_lo = as_float(zero_unless(le(exponent, magnitude), powers.minus_lo - exponent));
  const auto sum = plus + minus, difference = plus - minus;
  const auto low = ((plus - difference) - minus) + (plus_lo - minus_lo);
  return fma(sum, s, fma(c, difference, low)) + difference;
}

struct A24_32f : HyperbolicSine<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = as_float(WithoutSign<Lum32f>(bits(x)));
    const auto [count, r] = ReduceGuarded<5>(a);
    const auto r2 = r * r;
    const auto s = fma(r * r2, horner(r2, hyperbolic::sinh_A24), r);
    const auto c = r2 * horner(r2, hyperbolic::sinh_cosh_A24);
    return {or_sign(x, JoinSplit(LookupAll<Lum32f>(count), ExponentPart<5, Lum32f>(count), s, c)),
            RefusedFrom(beyond_float + 1, a)};
  }
};

// 128 rows, which need few terms. The third column is what the difference of the two powers lacks. It is exact where the
// exponent part is zero, which is where the difference may be small. Elsewhere the first power and with it the column grow by
// 2^m; that the share of the second power, of at most 2^-55 before, grows too instead of vanishing is within the tag.
struct A50_64f : HyperbolicSine<Lum64f> {
  static constexpr int row_bits = 7;
  static constexpr uint64_t row_count = 128;
  static constexpr auto rows = rows_of_3(table64({
#include "tables/generated/half_exp2_64f_128.inc"
  }));
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = as_float(WithoutSign<Lum64f>(bits(x)));
    const auto [count, r] = ReduceGuarded<row_bits>(a);
    const auto i = count & all(row_count - 1);
    const auto row = gather_rows<Lum64f>(rows, i + shift_left<1>(i));
    const auto exponent = ExponentPart<row_bits, Lum64f>(count);
    const auto plus = as_float(bits(row.column0) + exponent);
    const auto minus = as_float(bits(row.column1) - exponent);
    const auto sum = plus + minus, difference = plus - minus;
    const auto low = ((plus - difference) - minus) + as_float(bits(row.column2) + exponent);
    const auto r2 = r * r;
    const auto s = fma(r * r2, horner(r2, hyperbolic::sinh_A50), r);
    const auto c = r2 * horner(r2, hyperbolic::sinh_cosh_A50);
    return {or_sign(x, fma(sum, s, fma(c, difference, low)) + difference), RefusedFrom(0x40861D9A00000000, a)};
  }
};

struct A53_64f : HyperbolicSine<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = as_float(WithoutSign<Lum64f>(bits(x)));
    const auto [count, r] = ReduceGuarded<4>(a);
    const auto r2 = r * r;
    const auto s = fma(r * r2, horner(r2, hyperbolic::sinh_A53), r);
    const auto c = r2 * horner(r2, hyperbolic::sinh_cosh_A53);
    return {or_sign(x, JoinSplit(LookupAll<Lum64f>(count), ExponentPart<4, Lum64f>(count), s, c)),
            RefusedFrom(0x4084EE3400000000, a)};
  }
};

}  // namespace

LumStatus Sinh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Sinh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Sinh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Sinh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Sinh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
