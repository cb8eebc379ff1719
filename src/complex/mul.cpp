// z w and z conj(w), on interleaved parts: with z = (a, b) and w = (c, d) the vectors (a, b) (c, c) and (b, a) (d, d) hold the
// four products. The low tags take one of them exactly, in a fused step, and refuse a lane whose difference has cancelled. The
// others of 32fc take both exactly in binary64; those of 64fc keep the errors of both and refuse numbers near the ends of the
// range, zeros among them.
#include "complex/mul_second_path.h"
#include "complex/product_routine.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace complex;
using complex::ProductAsCore;  // besides the one of binary32 below

// The factors of the two products of each part.
template <class T> struct Factors { Vec<T> z, w_re, z_swapped, w_im; };
template <class T> LUM_INLINE Factors<T> FactorsOf(Vec<T> z, Vec<T> w) {
  return {z, duplicate_even(w), swap_pairs(z), duplicate_odd(w)};
}

// (a c - p, b c + q) of p = b d, q = a d; of the conjugate (a c + p, b c - q).
template <bool by_conjugate, class T> LUM_INLINE Vec<T> Joined(const Factors<T>& f, Vec<T> products) {
  if constexpr (by_conjugate) return fmsubadd(f.z, f.w_re, products);
  else return fmaddsub(f.z, f.w_re, products);
}

// All elements of which a component is in the mask.
template <class T> LUM_INLINE Mask<T> ElementsOf(ComponentMask<T> m) {
  const auto components = [](Mask<T> half) __attribute__((always_inline)) { return as_float(spread(half)); };
  const auto parts = deinterleave(components(m.low), components(m.high));
  return mask_cast<T>(sign_mask(bits(parts.even) | bits(parts.odd)));
}

// The products as the core has them. Those of 32fc are exact in binary64, and their sums need no further part: only next to the
// middle of two numbers of binary32 may the core's roundings differ from one.
struct CoreValue32 {
  ComplexVec<Lum32f> value;
  Mask<Lum32f> is_sure;
};
LUM_INLINE CoreValue32 ProductAsCore(ComplexVec<Lum32f> z, ComplexVec<Lum32f> w, Mask<Lum32f>) {
  const auto low = PlainProduct(WidenLow(z), WidenLow(w)), high = PlainProduct(WidenHigh(z), WidenHigh(w));
  const auto narrowed = [](Vec<Lum64f> x, Vec<Lum64f> y, Vec<Lum32f> & value) __attribute__((always_inline)) {
    const auto distance = all(0x1p-52);
    value = narrow(x, y);
    const auto inner = narrow(fnma(x, distance, x), fnma(y, distance, y));
    const auto outer = narrow(fma(x, distance, x), fma(y, distance, y));
    return eq(inner, outer) | unord(inner, outer);  // infinities and NaN of operands that are not finite
  };
  CoreValue32 product;
  product.is_sure = narrowed(low.re, high.re, product.value.re) & narrowed(low.im, high.im, product.value.im);
  product.is_sure = product.is_sure & ~HaveTwoNans(z, w);
  return product;
}

template <class E, bool by_conjugate> struct Product : Kernel<E> {
  static constexpr int vectors = 1;
  static constexpr bool second_is_shared = true;
  static constexpr bool second_orders_nans = vectors_fit_registers;
  static LUM_INLINE Finished<E> SecondPath(Packed<E> packed_z, Packed<E> packed_w,
                                           const Lanes<E, ComponentMask<Real<E>>>& lanes) {
    using T = Real<E>;
    const auto z = split(packed_z), first = split(lanes.value);
    auto w = split(packed_w);
    if constexpr (by_conjugate) w.im = negate(w.im);
    const auto refused = ElementsOf(lanes.refused);
    const auto product = ProductAsCore(z, w, refused);
    auto finished = product.is_sure & refused;
    // Elsewhere the NaN of an invalid product may be another one.
    if constexpr (!second_orders_nans) finished = finished & ~unord(product.value.re, product.value.im);
    const ComplexVec<T> value{select(finished, product.value.re, first.re), select(finished, product.value.im, first.im)};
    const auto infinite = fpclass<classes::infinity>(value.re) | fpclass<classes::infinity>(value.im);
    const auto not_finite = fpclass<classes::nonfinite>(z.re) | fpclass<classes::nonfinite>(z.im) |
                            fpclass<classes::nonfinite>(w.re) | fpclass<classes::nonfinite>(w.im);
    return {join(value), refused & ~finished, {.overflow = finished & infinite & ~not_finite}};
  }
  static LumStatus LaneRoutine(const E& z, const E& w, E& result) {
    return ProductCoreOnLane < by_conjugate ? CoreMulByConj : CoreMul > (z, w, result);
  }
};

template <class E, bool by_conjugate> struct Low : Product<E, by_conjugate> {
  using T = Real<E>;
  // A difference below this part of its terms has lost more digits than the tag can spare.
  static constexpr T cancelled = sizeof(T) == 4 ? T(0x1p-10) : T(0x1p-20);

  static LUM_INLINE Mask<T> HasCancelled(Vec<T> products, Vec<T> r) {
    return nlt(abs(products) * all(cancelled), abs(r)) | fpclass<classes::nonfinite>(r);
  }
  static LUM_INLINE Lanes<E, ComponentMask<T>> VectorPath(Interleaved<T> z, Interleaved<T> w) {
    const auto low = FactorsOf(z.low, w.low), high = FactorsOf(z.high, w.high);
    const auto low_products = low.z_swapped * low.w_im, high_products = high.z_swapped * high.w_im;
    const Interleaved<T> r{Joined<by_conjugate>(low, low_products), Joined<by_conjugate>(high, high_products)};
    return {r, {HasCancelled(low_products, r.low), HasCancelled(high_products, r.high)}};
  }
  // In the lanes of the fill a difference cancels.
  static LUM_INLINE Lanes<E, ComponentMask<T>> TailPath(Interleaved<T> z, Interleaved<T> w, int count) {
    auto r = VectorPath(z, w);
    const auto in_use = FirstComponents<T>(count);
    r.refused = {r.refused.low & in_use.low, r.refused.high & in_use.high};
    return r;
  }
};

template <bool by_conjugate> struct A24_32fc : Product<Lum32fc, by_conjugate> {
  static LUM_INLINE Vec<Lum64f> DoubleProduct(Vec<Lum64f> z, Vec<Lum64f> w) {
    const auto f = FactorsOf(z, w);
    return Joined<by_conjugate>(f, f.z_swapped * f.w_im);
  }
  static LUM_INLINE Vec<Lum32f> HalfOf(Vec<Lum32f> z, Vec<Lum32f> w) {
    return narrow(DoubleProduct(widen_low(z), widen_low(w)), DoubleProduct(widen_high(z), widen_high(w)));
  }
  static LUM_INLINE Lanes<Lum32fc, ComponentMask<Lum32f>> VectorPath(Interleaved<Lum32f> z, Interleaved<Lum32f> w) {
    const Interleaved<Lum32f> r{HalfOf(z.low, w.low), HalfOf(z.high, w.high)};
    return {r, {fpclass<classes::nonfinite>(r.low), fpclass<classes::nonfinite>(r.high)}};
  }
};

template <bool by_conjugate> struct A53_64fc : Product<Lum64fc, by_conjugate> {
  static constexpr bool hides_refused = true;
  // The products and their errors are normal numbers between these ends: one signed comparison, as the difference wraps round
  // for patterns below the lower end.
  static LUM_INLINE Mask<Lum64f> IsFar(Vec<Lum64f> x) {
    const auto moved = as_signed(bits(abs(x))) - all(std::bit_cast<int64_t>(uint64_t{0xA340000000000000}));
    return mask_cast<Lum64f>(lt(all(std::bit_cast<int64_t>(uint64_t{0xBC96A09DFFFFFFFF})), moved));
  }
  // The sums of two products, exactly but for the rounding of the tail. Where one of each two is zero, it is nothing but the
  // other and its error.
  template <bool one_is_zero = false> static LUM_INLINE HeadTail SumsOf(Vec<Lum64f> z, Vec<Lum64f> w) {
    constexpr uint64_t s = sign_bit<Lum64f>;
    static constexpr uint64_t even_signs[8] = {s, 0, s, 0, s, 0, s, 0}, odd_signs[8] = {0, s, 0, s, 0, s, 0, s};
    const auto f = FactorsOf(z, w);
    const auto w_im = f.w_im ^ load(by_conjugate ? odd_signs : even_signs);
    const auto first = f.z * f.w_re, second = f.z_swapped * w_im;
    const auto errors = fms(f.z, f.w_re, first) + fms(f.z_swapped, w_im, second);
    if constexpr (one_is_zero) return {first + second, errors};
    const auto sum = two_sum(first, second);
    return {sum.head, sum.tail + errors};
  }
  static LUM_INLINE Vec<Lum64f> HalfOf(Vec<Lum64f> z, Vec<Lum64f> w) {
    const auto sum = SumsOf(z, w);
    return sum.head + sum.tail;
  }
  static LUM_INLINE Lanes<Lum64fc, ComponentMask<Lum64f>> VectorPath(Interleaved<Lum64f> z, Interleaved<Lum64f> w) {
    return {{HalfOf(z.low, w.low), HalfOf(z.high, w.high)}, {IsFar(z.low) | IsFar(w.low), IsFar(z.high) | IsFar(w.high)}};
  }
  static LUM_INLINE Mask<Lum64f> IsFarAndNotZero(Vec<Lum64f> x) { return IsFar(x) & ~IsZero(x); }
  // Where its vectors fit into the registers, the second path has the values of all lanes.
  static LUM_INLINE bool RefusesAll(Interleaved<Lum64f> z, Interleaved<Lum64f> w) {
    return vectors_fit_registers && any(IsFar(z.low) | IsFar(w.low) | IsFar(z.high) | IsFar(w.high));
  }

  // Numbers with zero parts, as real data are, and others between the ends. Where one of its two products is zero, a sum is the
  // core's but next to the middle of two numbers; a zero has the sign of the sum.
  template <bool one_is_zero> static LUM_INLINE Vec<Lum64f> WithZeros(Vec<Lum64f> z, Vec<Lum64f> w, Mask<Lum64f>& is_sure) {
    const auto sum = SumsOf<one_is_zero>(z, w);
    const auto value = one_is_zero ? sum.head : add(~IsZero(sum.tail), sum.head, sum.tail);
    const auto rest = one_is_zero ? sum.tail : sum.tail - (value - sum.head);
    is_sure = eq(fma(rest, all(1 + core_distance), value), value);
    return value;
  }
  struct SureProduct {
    Interleaved<Lum64f> value;
    ComponentMask<Lum64f> is_sure;
  };
  template <bool one_is_zero> static LUM_INLINE SureProduct WithZeros(Interleaved<Lum64f> z, Interleaved<Lum64f> w) {
    SureProduct r;
    r.value = {WithZeros<one_is_zero>(z.low, w.low, r.is_sure.low), WithZeros<one_is_zero>(z.high, w.high, r.is_sure.high)};
    return r;
  }
  static LUM_INLINE Finished<Lum64fc> SecondPath(Interleaved<Lum64f> packed_z, Interleaved<Lum64f> packed_w,
                                                 const Lanes<Lum64fc, ComponentMask<Lum64f>>& lanes) {
    const ComponentMask<Lum64f> zeros{IsZero(packed_z.low) | IsZero(packed_w.low),
                                      IsZero(packed_z.high) | IsZero(packed_w.high)};
    if (none(IsFarAndNotZero(packed_z.low) | IsFarAndNotZero(packed_w.low) | IsFarAndNotZero(packed_z.high) |
             IsFarAndNotZero(packed_w.high))) {
      const auto r = has_all_elements(zeros) ? WithZeros<true>(packed_z, packed_w) : WithZeros<false>(packed_z, packed_w);
      if (none(~(r.is_sure.low & r.is_sure.high))) [[likely]]
        return {r.value, mask_of<Lum64f>(0), {}};
    }
    if constexpr (!vectors_fit_registers) return Product<Lum64fc, by_conjugate>::SecondPath(packed_z, packed_w, lanes);
    const auto z = split(packed_z);
    auto w = split(packed_w);
    if constexpr (by_conjugate) w.im = negate(w.im);
    if constexpr (has_halves) {
      // Infinities and NaN among other numbers between the ends.
      const auto is_plain = HasNonFinitePart(z) | HasNonFinitePart(w);
      const auto is_far = [](Vec<Lum64f> x) __attribute__((always_inline)) { return IsFarAndNotZero(x); };
      if (any(is_plain) && any(~is_plain) && none((is_far(z.re) | is_far(z.im) | is_far(w.re) | is_far(w.im)) & ~is_plain)) {
        const auto r = WithZeros<false>(packed_z, packed_w);
        const ComponentMask<Lum64f> in_doubt{~r.is_sure.low, ~r.is_sure.high};
        if (none((ElementsOf(in_doubt) & ~is_plain) | (is_plain & HaveTwoNans(z, w)))) [[likely]]
          return {join(Select(is_plain, PlainProduct(z, w), split(r.value))), mask_of<Lum64f>(0), {}};
      }
    }
    const auto product = ProductOfScaled(z, w);
    if (none(~product.is_sure)) [[likely]]
      return {join(product.value), ~product.is_sure, {.overflow = product.overflow}};
    const auto given_z = packed_z, given_w = packed_w;  // of which the call takes the address
    return OfBothPaths(given_z, given_w);
  }
  [[gnu::noinline]] static Finished<Lum64fc> OfBothPaths(const Interleaved<Lum64f>& z, const Interleaved<Lum64f>& w) {
    return Product<Lum64fc, by_conjugate>::SecondPath(z, w, VectorPath(z, w));
  }
};

// A kernel of its own, with the method of A24.
struct MulByConj_A21 : A24_32fc</*by_conjugate=*/true> {};

}  // namespace

LumStatus Mul_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<Low<Lum32fc, /*by_conjugate=*/false>>(src1, src2, dst, len);
}
LumStatus Mul_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<A24_32fc</*by_conjugate=*/false>>(src1, src2, dst, len);
}
LumStatus Mul_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<Low<Lum64fc, /*by_conjugate=*/false>>(src1, src2, dst, len);
}
LumStatus Mul_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<A53_64fc</*by_conjugate=*/false>>(src1, src2, dst, len);
}
LumStatus MulByConj_32fc_A11(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<Low<Lum32fc, /*by_conjugate=*/true>>(src1, src2, dst, len);
}
LumStatus MulByConj_32fc_A21(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<MulByConj_A21>(src1, src2, dst, len);
}
LumStatus MulByConj_32fc_A24(const Lum32fc* src1, const Lum32fc* src2, Lum32fc* dst, int32_t len) {
  return TwoInputs<A24_32fc</*by_conjugate=*/true>>(src1, src2, dst, len);
}
LumStatus MulByConj_64fc_A26(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<Low<Lum64fc, /*by_conjugate=*/true>>(src1, src2, dst, len);
}
LumStatus MulByConj_64fc_A53(const Lum64fc* src1, const Lum64fc* src2, Lum64fc* dst, int32_t len) {
  return TwoInputs<A53_64fc</*by_conjugate=*/true>>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
