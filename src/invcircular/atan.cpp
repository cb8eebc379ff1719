// arctan x. The mid and high tiers take the multiple c of 1/4 next to a = |x| and r = a - c:
//   arctan a = arctan c + arctan(r / (1 + a c)),        arctan a = pi/2 + arctan(-1 / a) for large a,
// with arctan c from a table in registers. They know no refused lane: a clamp makes an infinity finite. The high tiers add up
// the rounding errors of the quotient and the sum. The low tiers have one polynomial on [-1, 1], and -1/x beyond; they refuse
// the infinities. A NaN runs through everywhere.
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "invcircular/arctangent.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace invcircular;

template <class T> struct Grid;
template <> struct Grid<Lum32f> {
  static constexpr auto shifter = 0x1p21f;  // the last bit is worth 1/4
  static constexpr auto large = 7.75f;
  static constexpr auto clamp = 0x1p32f;  // its arctangent rounds to pi/2

  static constexpr auto head = table32({
#include "tables/generated/atan_32f_32_head.inc"
  });
  static constexpr auto tail = table32({
#include "tables/generated/atan_32f_32_tail.inc"
  });
};
template <> struct Grid<Lum64f> {
  static constexpr auto shifter = rounding_shifter<Lum64f>(2);
  static constexpr auto upper_half = shifter + 4;  // row 16
  static constexpr auto large = 7.875;
  static constexpr auto clamp = 0x1p128;

  static constexpr auto head = table64({
#include "tables/generated/atan_64f_32_head.inc"
  });
  static constexpr auto tail = table64({
#include "tables/generated/atan_64f_32_tail.inc"
  });
};

// One of 32 entries, the index in the low bits of the sum.
LUM_INLINE Vec<Lum32f> Lookup(const Table<Lum32f, 32>& table, Vec<Lum32f> sum) {
  return permute2(load<Lum32f>(table), load(table + 16), bits(sum));
}
LUM_INLINE Vec<Lum64f> Lookup(const Table<Lum64f, 32>& table, Vec<Lum64f> sum) {
  const auto lower = permute2(load<Lum64f>(table), load(table + 8), bits(sum));
  const auto upper = permute2(load(table + 16), load(table + 24), bits(sum));
  return select(lt(sum, all(Grid<Lum64f>::upper_half)), lower, upper);
}

// (arctan t - t) / t^3 for s = t^2, |t| up to 1/7.
LUM_INLINE Vec<Lum32f> Cubic(Vec<Lum32f> s) { return horner(s, invcircular::atan_A21); }
LUM_INLINE Vec<Lum64f> Cubic(Vec<Lum64f> s) { return horner(s, invcircular::atan_A50); }

// arctan |x| = table entry + arctan(n / d).
template <class T> struct Reduced {
  Vec<T> a, c;  // |x|, the multiple of 1/4 next to it
  Vec<T> sum, n, d;
  Mask<T> large;  // not of a NaN, which the clamp would hide
};
template <class T> LUM_INLINE Reduced<T> Reduce(Vec<T> x) {
  using G = Grid<T>;
  const auto a = abs(x);
  const auto sum = a + all(G::shifter);
  const auto c = sum - all(G::shifter);
  const auto r = a - c;  // exact
  const auto large = le(all(G::large), a);
  const auto n = select(large, all(T(-1)), r);
  const auto d = select(large, min(all(G::clamp), a), fma(a, c, all(T(1))));
  return {a, c, sum, n, d, large};
}

// n / d to nearly the last place. The residual is exact: n is no smaller than the last place of a, and d is 1 where a is small.
template <class T> LUM_INLINE Vec<T> Quotient(Vec<T> n, Vec<T> d) {
  const auto w = SignificandReciprocal(d);
  const auto q = n * w;
  return fma(fnma(q, d, n), w, q);
}

template <class T> struct TableTier : Kernel<T> { static constexpr Variant variant = pure_vector_variant; };

template <class T> struct Mid : TableTier<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) {
    const auto u = Reduce(x);
    const auto base = select(u.large, all(half_pi<T>), Lookup(Grid<T>::head, u.sum));
    const auto t = Quotient(u.n, u.d);
    const auto s = t * t;
    return xor_sign(x, base + fma(t * s, Cubic(s), t));
  }
};

// 1 / d of normal numbers, by one Newton step for each doubling of the 14 bits.
template <class T> LUM_INLINE Vec<T> NewtonStep(Vec<T> w, Vec<T> d) { return fma(w, fnma(d, w, all(T(1))), w); }
template <class T> LUM_INLINE Vec<T> FullReciprocal(Vec<T> d) {
  const auto w = NewtonStep(rcp14_normal(d), d);
  if constexpr (sizeof(T) == 4) return w;
  else return NewtonStep(w, d);
}

template <class T> struct High : TableTier<T> {
  static LUM_INLINE Vec<T> VectorPath(Vec<T> x) {
    using G = Grid<T>;
    const auto u = Reduce(x);
    const auto one = all(T(1));
    const auto d_error = fms(u.a, u.c, u.d - one);
    const auto w = FullReciprocal(u.d);
    const auto t = u.n * w;
    const auto rounding = fma(t, fnma(u.d, w, one), fms(u.n, w, t));
    const auto t_error = select(u.large, rounding, fnma(t, d_error * w, rounding));

    const auto base = select(u.large, all(half_pi<T>), Lookup(G::head, u.sum));
    const auto base_tail = select(u.large, all(numbers::pi_tail<T> / 2), Lookup(G::tail, u.sum));
    const auto head = fast_two_sum(base, t);
    const auto s = t * t;
    const auto low = fma(t * s, Cubic(s), (base_tail + t_error) + head.tail);
    return xor_sign(x, head.head + low);
  }
};

template <class T> struct Low : Kernel<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto small = nlt(all(T(1)), abs(x));
    const auto base = select(small, all(T(0)), all(half_pi<T>)) | sign_of(x);
    const auto t = select(small, x, negate(ShortReciprocal(x)));
    return {fma(t, ShortArctangent(t * t), base), fpclass<classes::infinity>(x)};
  }
  // Infinities alone come here.
  static void LaneRoutine(T x, T& result) { result = x < 0 ? -half_pi<T> : half_pi<T>; }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return {select(lanes.refused, or_sign(x, all(half_pi<T>)), lanes.value), mask_of<T>(0)};
  }
};

}  // namespace

LumStatus Atan_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<Low<Lum32f>>(src, dst, len); }
LumStatus Atan_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<Mid<Lum32f>>(src, dst, len); }
LumStatus Atan_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<High<Lum32f>>(src, dst, len); }
LumStatus Atan_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<Low<Lum64f>>(src, dst, len); }
LumStatus Atan_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<Mid<Lum64f>>(src, dst, len); }
LumStatus Atan_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<High<Lum64f>>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
