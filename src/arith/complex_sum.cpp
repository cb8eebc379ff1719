// Add, Sub and Conj of complex numbers. The sums watch for overflow: a component that became an infinity although no component
// of the inputs was one is reported. Sub of doubles has a rule of its own, below.
#include <limits>

#include "arith/first_nan.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace arith;

template <class T> bool IsInfinite(T x) {
  return x == std::numeric_limits<T>::infinity() || x == -std::numeric_limits<T>::infinity();
}
template <class E> bool HasInfinity(E z) { return IsInfinite(z.re) || IsInfinite(z.im); }

// Components that are infinite.
template <class T> LUM_INLINE Mask<T> Infinite(Vec<T> x) { return fpclass<classes::infinity>(x); }
// Components of an infinite sum of which neither term is infinite.
template <class T> LUM_INLINE Mask<T> InfiniteOfFinite(Mask<T> sum_is_infinite, Vec<T> a, Vec<T> b) {
  return sum_is_infinite & ~(Infinite(a) | Infinite(b));
}

// Numbers with a component of one of the classes.
template <int classes, class T> LUM_INLINE Mask<T> InAnyPart(Interleaved<T> packed) {
  const auto z = split(packed);
  return fpclass<classes>(z.re) | fpclass<classes>(z.im);
}

struct Plus {
  template <class T> static LUM_INLINE Vec<T> Of(Vec<T> a, Vec<T> b) { return SumInOrder(a, b); }
};
struct Minus {
  template <class T> static LUM_INLINE Vec<T> Of(Vec<T> a, Vec<T> b) { return a - b; }
};

// Components of the `excusing` classes among the inputs keep an infinite sum from being an overflow.
template <class E, class Operation, int excusing = classes::infinity> struct SumKernel : Kernel<E> {
  using T = Real<E>;
  using Refused = ComponentMask<T>;
  static constexpr bool is_short = true;
  static constexpr Variant variant = std::is_same_v<E, Lum32fc> ? x87_up_front_variant : common_variant;

  static LUM_INLINE Lanes<E, Refused> VectorPath(Interleaved<T> a, Interleaved<T> b) {
    const Interleaved<T> sum{Operation::Of(a.low, b.low), Operation::Of(a.high, b.high)};
    return {sum, {Infinite(sum.low), Infinite(sum.high)}};
  }
  // The sum itself is the vector path's.
  static LumStatus LaneRoutine(const E& a, const E& b, const E& sum) {
    return HasInfinity(sum) && !HasInfinity(a) && !HasInfinity(b) ? lumStsOverflow : lumStsOk;
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<E> SecondPath(Interleaved<T> a, Interleaved<T> b, const Lanes<E, Refused>& lanes) {
    // Most infinite sums are of infinities.
    if (none(InfiniteOfFinite(lanes.refused.low, a.low, b.low) | InfiniteOfFinite(lanes.refused.high, a.high, b.high)))
      return {lanes.value, mask_of<T>(0), {}};
    const auto overflows = InAnyPart<classes::infinity>(lanes.value) & ~InAnyPart<excusing>(a) & ~InAnyPart<excusing>(b);
    return {lanes.value, mask_of<T>(0), {.overflow = overflows}};
  }
};

// An infinity, a NaN or a zero among the inputs keeps Sub of doubles from reporting.
bool IsOrdinary(Lum64f x) { return x != 0 && x - x == 0; }

// Two deliberate differences from the other sums: an overflow beside a zero component goes unreported, and the hook is given
// src1 twice.
struct SubDoubles : SumKernel<Lum64fc, Minus, classes::nonfinite | classes::zero> {
  static constexpr Variant variant = element_loop_variant;
  static constexpr bool hook_has_first_source_only = true;
  static LUM_INLINE Lanes<Lum64fc, Refused> VectorPath(Interleaved<Lum64f> a, Interleaved<Lum64f> b) {
    const Interleaved<Lum64f> difference{a.low - b.low, a.high - b.high};
    return {difference, {Infinite(difference.low), Infinite(difference.high)}};
  }
  static LumStatus LaneRoutine(const Lum64fc& a, const Lum64fc& b, const Lum64fc&) {
    return IsOrdinary(a.re) && IsOrdinary(a.im) && IsOrdinary(b.re) && IsOrdinary(b.im) ? lumStsOverflow : lumStsOk;
  }
};

// The signs of the imaginary parts flipped, as bits: a signalling NaN stays signalling.
template <uint64_t... pattern> struct ConjKernel : Kernel<uint64_t> {
  static constexpr bool is_short = true;
  static constexpr Variant variant = conj_variant;
  static constexpr int vectors = 4;
  static constexpr uint64_t fill = 0;
  static LUM_INLINE Vec<uint64_t> VectorPath(Vec<uint64_t> x) {
    static constexpr uint64_t flips[8] = {pattern...};
    return x ^ load(flips);
  }
};

}  // namespace

LumStatus Add_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<SumKernel<Lum32fc, Plus>>(src1, src2, dst, len);
}
LumStatus Sub_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<SumKernel<Lum32fc, Minus>>(src1, src2, dst, len);
}
LumStatus Add_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<SumKernel<Lum64fc, Plus>>(src1, src2, dst, len);
}

LumStatus Sub_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<SubDoubles>(src1, src2, dst, len);
}

LumStatus Conj_32fc_A24(const Lum32fc* src, Lum32fc* dst, int32_t len) {
  constexpr uint64_t f = uint64_t{1} << 63;
  if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
  return frame::RunChecked<ConjKernel<f, f, f, f, f, f, f, f>, 1, 1>(
      {}, {{reinterpret_cast<const uint64_t*>(src)}, {reinterpret_cast<uint64_t*>(dst)}}, len);
}
LumStatus Conj_64fc_A53(const Lum64fc* src, Lum64fc* dst, int32_t len) {
  constexpr uint64_t f = uint64_t{1} << 63;
  if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
  return frame::RunChecked<ConjKernel<0, f, 0, f, 0, f, 0, f>, 1, 1>(
      {}, {{reinterpret_cast<const uint64_t*>(src)}, {reinterpret_cast<uint64_t*>(dst)}}, 2 * int64_t{len});
}

}  // namespace lum::inline LUM_LAYER
