// x^(3/2) = x sqrt x. The root comes from an estimate of 1 / sqrt x and coupled steps as in Sqrt; the high tiers add the exact
// residual of the root to the product. Arguments whose result might leave the range of normal numbers, with negative ones, NaN
// and the rest, go to a lane routine that is the whole function.
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/constant.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/lane_format.h"
#include "roots/coupled_root.h"
#include "roots/polynomials.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace roots;

constexpr auto midpoint_values = table64({
// hi, lo
#include "tables/generated/pow3o2_64f_64_pairs.inc"
});
constexpr auto midpoint_reciprocals = table64({
#include "tables/generated/pow3o2_reciprocal_64f_32.inc"
});
// Rows of both and the reciprocal, for vectors.
constexpr auto midpoint_rows = [] {
  Table<Lum64f, 4 * 64> rows{};
  for (size_t i = 0; i < 64; ++i) {
    rows.entries[4 * i] = midpoint_values.entries[2 * i];
    rows.entries[4 * i + 1] = midpoint_values.entries[2 * i + 1];
    rows.entries[4 * i + 2] = midpoint_reciprocals.entries[i % 32];
  }
  return rows;
}();
constexpr auto pow3o2_64f = polynomial64({
#include "tables/generated/pow3o2_polynomial_64f_7.inc"
});

// ((1 + t)^(3/2) - 1) / t in binary64, for a result of the type T.
template <class T, class V> LUM_INLINE V CellPolynomial(V t) {
  if constexpr (std::is_same_v<T, Lum32f>) return unfused_horner(t, roots::pow3o2_32f);
  else return unfused_horner(t, pow3o2_64f);
}

// x^(3/2) of a positive normal number, by the value at the midpoint of the cell that its last exponent bit and its five upper
// fraction bits name.
template <class T> double OfNormal(double x) {
  const auto pattern = std::bit_cast<uint64_t>(x);
  const auto cell = static_cast<size_t>(pattern >> 47 & 63);
  const auto midpoint = std::bit_cast<double>((pattern & 0x000F800000000000) | 0x3FF0400000000000);
  const double t = (lane::significand_of(x) - midpoint) * midpoint_reciprocals[cell & 31];
  const double hi = midpoint_values[2 * cell];
  const double p = CellPolynomial<T>(t) * t;
  const int exponent = lane::exponent_field(x) - lane::Format<double>::bias;
  const int half = (exponent - (cell < 32 ? 1 : 0)) / 2;  // exact: cells below 32 have odd exponents
  return (hi + (hi * p + midpoint_values[2 * cell + 1])) * lane::power_of_two<double>(3 * half);
}
LUM_INLINE Vec<Lum64f> OfNormal(Vec<Lum64f> x) {
  const auto pattern = bits(x);
  const auto cell = shift_right<47>(pattern) & all(uint64_t{63});
  const auto midpoint = as_float((pattern & all(uint64_t{0x000F800000000000})) | all(uint64_t{0x3FF0400000000000}));
  const auto significand = as_float((pattern & all(lane::Format<double>::fraction)) | all(std::bit_cast<uint64_t>(1.0)));
  const auto row = gather_rows<Lum64f>(midpoint_rows, shift_left<2>(cell));
  const auto t = (significand - midpoint) * row.column2;
  const auto p = CellPolynomial<Lum64f>(t) * t;
  // Half the exponent, downward: of its field and 1, less half of the bias and 1.
  constexpr auto bias = uint64_t{lane::Format<double>::bias};
  const auto half = shift_right<1>(exponent_field(x) + all(uint64_t{1})) - all((bias + 1) / 2);
  const auto scale = power_of_two<Lum64f>(half + shift_left<1>(half) + all(bias));
  return (row.column0 + (row.column0 * p + row.column1)) * scale;
}

template <class T> struct Limits;
template <> struct Limits<Lum32f> {
  static constexpr uint32_t lowest = 0x1D800000, highest = 0x69800000;  // of the vector path: 2^-68 to 2^84
  static constexpr uint32_t vanishing = 0x0CFFFFFF;                     // the last magnitude with a result of +0
  static constexpr uint32_t overflowing = 0x6A214518;                   // the first with an infinite one
};
template <> struct Limits<Lum64f> {
  static constexpr uint64_t lowest = 0x1790000000000000, highest = 0x6A800000FFFFFFFF;
  static constexpr uint64_t vanishing = 0x132FEFFFFFFFFFFF;
  static constexpr uint64_t overflowing = 0x6A9965FEA53D6E3E;
};

template <class T> struct Pow3o2Kernel : Kernel<T> {
  static constexpr bool second_is_short = sizeof(T) == sizeof(Lum32f);
  static constexpr bool hides_refused = true;
  static constexpr bool refuses_by_class = true;
  static LUM_INLINE Mask<T> Refused(Vec<T> x) {
    using L = Limits<T>;
    const auto distance = bits(x) - all(L::lowest);
    return mask_cast<T>(nle(distance, all(L::highest - L::lowest)));
  }
  static LumStatus LaneRoutine(T x, T& result) {
    const auto magnitude = std::bit_cast<UnsignedOf<T>>(x);
    if (x != x) {
      result = x + x;
    } else if (x == 0) {
      result = T(0);
    } else if (x < 0) {
      result = std::numeric_limits<T>::quiet_NaN();
      return lumStsDomain;
    } else if (magnitude >= Limits<T>::overflowing || magnitude <= Limits<T>::vanishing) {
      result = x * x;
    } else if (x < static_cast<T>(0x1p-680)) {
      result = static_cast<T>(OfNormal<T>(static_cast<double>(x) * 0x1p60) * 0x1p-90);  // one rounding to a denormal
    } else {
      result = static_cast<T>(OfNormal<T>(static_cast<double>(x)));
    }
    return lumStsOk;
  }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    using L = Limits<T>;
    const auto is_nan = unord(x, x), negative = fpclass<classes::below_zero>(x);
    const auto vanishes = mask_cast<T>(le(bits(abs(x)), all(L::vanishing)));
    const auto overflows = mask_cast<T>(le(all(L::overflowing), bits(x)));  // or NaN or negative
    const auto between = lanes.refused & ~(overflows | vanishes);
    auto value = lanes.value;
    auto remaining = mask_of<T>(0);
    if (any(between)) {
      const auto of_ends = BetweenEnds(select(between, x, all(T(1))));
      value = select(between, of_ends.value, value);
      remaining = between & of_ends.refused;
    }
    value = select(overflows, all(std::numeric_limits<T>::infinity()), value);
    value = select(vanishes, all(T(0)), value);
    value = select(negative, all(std::numeric_limits<T>::quiet_NaN()), value);
    return {add(is_nan, select(is_nan, x, value), x), remaining, {.domain = negative}};
  }
  // Powers that are neither too large nor too small for the type. In binary32 the lane routine's value, within 2^-38.3 of the
  // power, is rounded as the power is, but next to a tie, where it remains.
  static LUM_INLINE Lanes<Lum32f> BetweenEnds(Vec<Lum32f> x) {
    return NarrowedWithin(0x1p-38, ByRootInDouble(widen_low(x)), ByRootInDouble(widen_high(x)));
  }
  static LUM_INLINE Vec<Lum64f> ByRootInDouble(Vec<Lum64f> x) {
    if constexpr (estimates_take_all && vectors_fit_registers) return x * HeronStep(x, CoupledStep(Start(x, rsqrt14(x))));
    else return x * sqrt(x);
  }
  // By the steps of the lane routine.
  static LUM_INLINE Lanes<Lum64f> BetweenEnds(Vec<Lum64f> x) {
    const auto is_small = lt(x, all(0x1p-680));
    const auto power = OfNormal(select(is_small, x * all(0x1p60), x));
    // A denormal result counts the units of a sum whose last bit is worth the smallest positive number, 90 powers of 2 higher.
    constexpr double addend = 0x1p-932;
    const auto is_denormal = is_small & lt(power, all(addend));
    const auto denormal = as_float(bits(power + all(addend)) - bits(all(addend)));
    const auto normal = select(is_denormal, all(1.0), power) * select(is_small, all(0x1p-90), all(1.0));
    return {select(is_denormal, denormal, normal), mask_of<Lum64f>(0)};
  }
};

template <class T, Steps steps> struct ByRoot : Pow3o2Kernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto y = rsqrt14_normal(x);
    auto g = x * y, h = all(T(0.5)) * y;
    // One by one, since the portable layer keeps vectors that pass through functions in memory.
    for (int i = 0; i < steps.coupled; ++i) {
      const auto e = fnma(g, h, all(T(0.5)));
      g = fma(g, e, g);
      h = fma(h, e, h);
    }
    const auto refused = Pow3o2Kernel<T>::Refused(x);
    if constexpr (steps.residual) return {fma(x, g, fnma(g, g, x) * (x * h)), refused};
    else return {g * x, refused};
  }
};

using A11_32f = ByRoot<Lum32f, Steps{.coupled = 0}>;
using A21_32f = ByRoot<Lum32f, Steps{.coupled = 1}>;
using A24_32f = ByRoot<Lum32f, Steps{.coupled = 1, .residual = true}>;
using A26_64f = ByRoot<Lum64f, Steps{.coupled = 1}>;
using A50_64f = ByRoot<Lum64f, Steps{.coupled = 2}>;
using A53_64f = ByRoot<Lum64f, Steps{.coupled = 2, .residual = true}>;

}  // namespace

LumStatus Pow3o2_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Pow3o2_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Pow3o2_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Pow3o2_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Pow3o2_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Pow3o2_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
