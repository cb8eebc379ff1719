// What the vector paths of the logarithms share: the split of the argument and its refusal.
#pragma once

#include <limits>

#include "frame/kernel_frame.h"
#include "frame/lifted.h"
#include "frame/types.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER::explog {

// The second path of a logarithm whose poles lie at x = 0, as the lane routine has it. Positive finite numbers remain.
template <Floating T> LUM_INLINE Finished<T> LogarithmOfSpecial(Vec<T> x, const Lanes<T>& lanes) {
  const auto zero = fpclass<classes::zero>(x) & lanes.refused, negative = fpclass<classes::below_zero>(x) & lanes.refused;
  const auto itself = fpclass<classes::nan | classes::plus_infinity>(x) & lanes.refused;  // NaN and infinity
  const auto root = select(itself, x, all(T(1)));
  auto value = select(itself, root * root, lanes.value);
  value = select(zero, all(-std::numeric_limits<T>::infinity()), value);
  value = select(negative, all(std::numeric_limits<T>::quiet_NaN()), value);
  return {value, lanes.refused & ~(zero | negative | itself), {.domain = negative, .singularity = zero}};
}

// What the kernels of Ln and Log10 have beside their vector paths. Where the parts of all numbers take many instructions, the
// first path refuses all but positive normal ones.
template <class T, LumStatus (*routine)(T, T&)> struct LogarithmKernel : Kernel<T> {
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = !estimates_take_all;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) { return LogarithmOfSpecial(x, lanes); }
  static LumStatus LaneRoutine(T x, T& result) { return routine(x, result); }
};

// Those of a tier that gives the logarithm by the significand and the exponent of a positive number, the former in the interval
// that it names, and the classes that it refuses.
template <class T, LumStatus (*routine)(T, T&), class Tier> struct LogarithmOfParts : LogarithmKernel<T, routine> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    if constexpr (estimates_take_all)
      return {Tier::OfParts(parts<Tier::interval | significand::nan_if_negative>(x)), fpclass<Tier::refused_classes>(x)};
    else
      return {Tier::OfParts({getmant_normal<Tier::interval>(x), getexp_normal(x)}), fpclass<classes::not_positive_normal>(x)};
  }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    auto result = LogarithmOfSpecial(x, lanes);
    if constexpr (!estimates_take_all) {
      const auto denormal = result.refused;
      if (any(denormal)) {
        const auto of_denormal = Tier::OfParts(PartsOfFinite<Tier::interval>(select(denormal, x, all(T(1)))));
        result.value = select(denormal, of_denormal, result.value);
      }
      result.refused = mask_of<T>(0);
    }
    return result;
  }
};
// Zeros, infinities and negative numbers, of which a logarithm has to report or whose result is special. NaN is not among them:
// the significand and the exponent of a NaN are NaN and carry it to the result.
inline constexpr int refused_by_logarithms = classes::zero | classes::infinity | classes::negative;

// log(m) / r of m = 1 + r in [3/4, 3/2), by a polynomial of its own for each of sixteen segments. They have no constant term,
// so log(1) is +0. The columns hold their coefficients, 16 entries each, the highest power first.
template <int degree> LUM_INLINE Vec<Lum32f> SegmentPolynomial(Vec<Lum32f> m, Vec<Lum32f> r, const Lum32f* columns) {
  const auto j = shift_right<19>(bits(m));  // the top four bits of the fraction are the row
  auto p = permute(load(columns), j);
  for (int i = 1; i < degree; ++i) p = fma(p, r, permute(load(columns + 16 * i), j));
  return p;
}

// log(x), to the base of the polynomials and of the logarithm of 2 that is given.
template <int degree>
LUM_INLINE Vec<Lum32f> SegmentLogarithm(const Parts<Lum32f>& parts, const Lum32f* columns, Lum32f log_of_2) {
  const auto [m, e] = parts;
  const auto r = m - all(1.0f);
  const auto k = e - getexp_normal(m);
  return fma(r, SegmentPolynomial<degree>(m, r, columns), k * all(log_of_2));
}

// The tiers without a reciprocal.
template <LumStatus (*routine)(Lum32f, Lum32f&), const auto& columns, const Lum32f& log_of_2>
struct SegmentKernel : LogarithmOfParts<Lum32f, routine, SegmentKernel<routine, columns, log_of_2>> {
  static constexpr int interval = significand::from_three_quarters;
  static constexpr int refused_classes = refused_by_logarithms;
  static LUM_INLINE Vec<Lum32f> OfParts(const Parts<Lum32f>& parts) {
    return SegmentLogarithm<columns.size / 16>(parts, columns, log_of_2);
  }
};

// x = 2^e (1 + r) / c with c in [3/4, 3/2] of few fraction bits, so that r is exact but for one rounding.
struct ReciprocalReduction {
  Vec<Lum64f> r, e;
  Vec<uint64_t> j;  // in the low bits: the row of c in the tables of 2^(fraction_bits - 1) rows
};
template <int fraction_bits> LUM_INLINE ReciprocalReduction ReduceByReciprocal(const Parts<Lum64f>& parts) {
  constexpr auto shifter = rounding_shifter<Lum64f>() / (1 << fraction_bits);  // the last bit is worth that of c
  const auto [m, e] = parts;
  const auto t = shifted_rcp14<fraction_bits, significand::from_1_to_2>(
      m);                           // rounds to nearest; the low bits are c, less its top bit the row
  const auto c = t - all(shifter);  // in [1/2, 1]; below 3/4 doubled, in effect
  const auto r = fms(c, m, all(1.0));
  return {r, add(lt(c, all(0.75)), e, all(1.0)), bits(t)};
}
template <int fraction_bits> LUM_INLINE ReciprocalReduction ReduceByReciprocal(Vec<Lum64f> x) {
  return ReduceByReciprocal<fraction_bits>(parts<significand::from_1_to_2 | significand::nan_if_negative>(x));
}

}  // namespace lum::inline LUM_LAYER::explog
