// tan x. With x = k pi/N + r, N = 16 or 32, T = tan(k pi/N) from a table in registers and p = tan r by a polynomial:
// tan x = (T + p) / (1 - T p). At the pole T is the most negative number, for which the quotient is -1/p without a case of its
// own, and for k = 0 it is -0, which keeps the sign of a zero. The tiers differ in the tails that they carry of r, T and the
// quotient. Beyond the threshold the angle from the large reduction is brought to the same k and r, and the block evaluated
// again.
#include "circular/large_reduction.h"
#include "circular/nonfinite.h"
#include "circular/polynomials.h"
#include "circular/sixteenths.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace circular;

// x = k pi/N + hi + lo; k in the low bits. Tiers without tails have lo = 0.
template <class T> struct Reduced {
  Vec<T> hi, lo;
  Vec<UnsignedOf<T>> k;
};

template <class T> struct TanConstants;
template <> struct TanConstants<Lum32f> {  // N = 32
  static constexpr auto table = table32({
#include "tables/generated/tangent_32f_32_head.inc"
  });
  static constexpr auto tails = table32({
#include "tables/generated/tangent_32f_32_tail.inc"
  });
  static constexpr auto large_step = numbers::pi<Lum32f> / 128,
                        large_step_tail = numbers::pi_tail<Lum32f> / 128;  // turn/256
  static constexpr int large_shift = 2;
};
template <> struct TanConstants<Lum64f> {  // N = 16
  static constexpr auto table = table64({
#include "tables/generated/tangent_64f_16_head.inc"
  });
  static constexpr auto tails = table64({
#include "tables/generated/tangent_64f_16_tail.inc"
  });
  static constexpr auto large_step = numbers::pi<Lum64f> / 256,
                        large_step_tail = numbers::pi_tail<Lum64f> / 256;  // turn/512
  static constexpr int large_shift = 4;
};

LUM_INLINE Vec<Lum32f> FromInteger(Vec<uint32_t> m) { return to_float(as_signed(m)); }
LUM_INLINE Vec<Lum64f> FromInteger(Vec<uint64_t> m) { return to_double(m); }

// The large reduction, its index rounded to the steps of the table. A tie goes to the side of the remainder.
template <class T> LUM_INLINE Reduced<T> ReduceLargeToTable(Vec<T> x) {
  using C = TanConstants<T>;
  using U = UnsignedOf<T>;
  constexpr U steps = U{1} << C::large_shift;
  const auto a = ReduceLarge(x, sign_of(x));
  const auto negative = shift_right_arithmetic<8 * sizeof(T) - 1>(bits(a.hi));  // -1 or 0
  const auto rounded = a.index + all(static_cast<U>(steps / 2)) + negative;
  const auto m = FromInteger(a.index - (rounded & all(static_cast<U>(~(steps - 1)))));
  const auto product = m * all(C::large_step);
  const auto r = fast_two_sum(product, a.hi);  // m = 0 is exact, too
  const auto lo = fma(m, all(C::large_step_tail), fms(m, all(C::large_step), product)) + (r.tail + a.lo);
  return {r.head, lo, shift_right<C::large_shift>(rounded)};
}

template <class T> LUM_INLINE Vec<T> Entry(const T* table, Vec<UnsignedOf<T>> k) {
  return permute2(load(table), load(table + lanes_of<T>), k);
}
template <class T> LUM_INLINE Vec<T> TangentOf(const Reduced<T>& a) { return Entry<T>(TanConstants<T>::table, a.k); }

// 1 / d to 14 bits in binary32, to 28 in binary64. 1 - T p is a normal number, from 1/2 on, and at the pole below a tenth of
// the largest number.
LUM_INLINE Vec<Lum32f> Reciprocal(Vec<Lum32f> d) { return rcp14_normal(d); }
LUM_INLINE Vec<Lum64f> Reciprocal(Vec<Lum64f> d) {
  const auto seed = rcp14_normal(d);
  return fma(fnma(d, seed, all(1.0)), seed, seed);
}

// (T + p) / (1 - T p) with all tails. c is p - r, small against r.
template <class T> LUM_INLINE Vec<T> QuotientWithTails(const Reduced<T>& a, Vec<T> c) {
  const auto [hi, lo, k] = a;
  const auto t = Entry<T>(TanConstants<T>::table, k), t_tail = Entry<T>(TanConstants<T>::tails, k);
  const auto p = fast_two_sum(hi, c);
  const auto p_tail = p.tail + lo;
  const auto u = fast_two_sum(t, p.head);
  const auto u_tail = (u.tail + p_tail) + t_tail;
  const auto product = t * p.head;
  const auto product_tail = fma(t, p_tail, fma(t_tail, p.head, fms(t, p.head, product)));
  const auto d = two_sum(all(T{1}), negate(product));
  const auto d_tail = d.tail - product_tail;
  const auto w = Reciprocal(d.head);
  const auto q = w * u.head;
  const auto z = fma(q, d_tail, fms(d.head, q, u.head)) - u_tail;
  return fnma(w, z, q);
}

// The tiers by their Tier::Reduce, Tier::Evaluate and Tier::threshold.
template <class Tier, class T> struct Tangent : Kernel<T> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_in_all_layers = true;
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    return {Tier::Evaluate(Tier::Reduce(x)), nle(abs(x), all(T{Tier::threshold}))};
  }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    auto value = lanes.value;
    if (AnyFinite(lanes.refused, x)) value = LargeTangent(x, lanes.refused);
    return {SelectNonFinite(x, value), mask_of<T>(0), {.domain = fpclass<classes::infinity>(x)}};
  }
  using Vectors = TwoVectors<T>;
  static LUM_INLINE std::array<Finished<T>, 2> SecondPathOfTwo(const Vectors& x, const std::array<Lanes<T>, 2>& lanes) {
    return MergeLarge(
        x, lanes, [](const Vectors& v) __attribute__((always_inline)) {
          const auto a = ReduceLarge(v[0]), b = ReduceLarge(v[1]);
          return Vectors{Tier::Evaluate(a), Tier::Evaluate(b)};
        });
  }
  // Of all lanes, those of the mask being large.
  static LUM_INLINE Vec<T> LargeTangent(Vec<T> x, Mask<T> at) {
    const auto ordinary = Tier::Reduce(x), large = ReduceLarge(x);
    const Reduced<T> merged{select(at, large.hi, ordinary.hi), select(at, large.lo, ordinary.lo),
                            select(mask_cast<UnsignedOf<T>>(at), large.k, ordinary.k)};
    return Tier::Evaluate(merged);
  }
  static LUM_INLINE Reduced<T> ReduceLarge(Vec<T> x) {
    const auto a = ReduceLargeToTable(x);
    if constexpr (Tier::has_tails) return a;
    else return {a.hi + a.lo, a.lo, a.k};
  }
  static LumStatus LaneRoutine(T x, T& result) { return CircularOfNonFinite(x, result); }
};

struct CountOf32nds {
  Vec<Lum32f> n, shifted;
};
LUM_INLINE CountOf32nds Nearest32nds(Vec<Lum32f> x) {
  constexpr auto shifter = rounding_shifter<Lum32f>();
  const auto t = fma(x, all(32 * numbers::inverse_pi<Lum32f>), all(shifter));
  return {t - all(shifter), t};
}

LUM_INLINE Reduced<Lum32f> Reduce32f(Vec<Lum32f> x) {
  constexpr auto& parts = numbers::thirty_second_pi_parts<Lum32f>;

  const auto [n, shifted] = Nearest32nds(x);
  const auto r = fnma(n, all(parts[1]), fnma(n, all(parts[0]), x));
  return {fnma(n, all(parts[2]), r), all(0.0f), bits(shifted)};
}

struct A11_32f : Tangent<A11_32f, Lum32f> {
  static constexpr float threshold = 8256;
  static constexpr bool has_tails = false;
  static LUM_INLINE Reduced<Lum32f> Reduce(Vec<Lum32f> x) { return Reduce32f(x); }
  static LUM_STAGE Vec<Lum32f> Evaluate(const Reduced<Lum32f>& a) {
    const auto t = TangentOf(a);
    const auto p = fma(horner(a.hi, circular::tan_A11) * a.hi, a.hi * a.hi, a.hi);
    return (t + p) * Reciprocal(fnma(t, p, all(1.0f)));  // the reciprocal's 14 bits are enough
  }
};

// (tan r - r) / r^3 of s = r^2, |r| <= pi/64.
LUM_INLINE Vec<Lum32f> TangentSeries(Vec<Lum32f> s) { return horner(s, circular::tan_A21); }

struct A21_32f : Tangent<A21_32f, Lum32f> {
  static constexpr float threshold = 8256;
  static constexpr bool has_tails = false;
  static LUM_INLINE Reduced<Lum32f> Reduce(Vec<Lum32f> x) { return Reduce32f(x); }
  static LUM_STAGE Vec<Lum32f> Evaluate(const Reduced<Lum32f>& a) {
    const auto t = TangentOf(a);
    const auto s = a.hi * a.hi;
    const auto p = fma(TangentSeries(s) * a.hi, s, a.hi);
    const auto h = p + t;
    const auto tail = p - (h - t);
    const auto b = t * p;
    const auto d = all(1.0f) - b;
    const auto d_error = (d - all(1.0f)) + b;
    const auto w = Reciprocal(d);
    const auto q = h * w;
    const auto z = fnma(q, d_error, fms(d, q, h)) - tail;
    return fnma(w, z, q);
  }
};

struct A24_32f : Tangent<A24_32f, Lum32f> {
  static constexpr float threshold = 8256;
  static constexpr bool has_tails = true;
  static LUM_INLINE Reduced<Lum32f> Reduce(Vec<Lum32f> x) {
    const auto [n, shifted] = Nearest32nds(x);
    constexpr auto& parts = numbers::thirty_second_pi_exact_parts<Lum32f>;
    const auto part2 = all(parts[1]), part3 = all(parts[2]);
    const auto r1 = fnma(n, all(parts[0]), x);
    const auto r2 = fnma(n, part2, r1);
    const auto error2 = fnma(n, part2, r1 - r2);
    const auto hi = fnma(n, part3, r2);
    return {hi, error2 + fnma(n, part3, r2 - hi), bits(shifted)};
  }
  static LUM_STAGE Vec<Lum32f> Evaluate(const Reduced<Lum32f>& a) {
    const auto s = a.hi * a.hi;
    return QuotientWithTails(a, (TangentSeries(s) * a.hi) * s);
  }
};

// series is (tan r - r) / r^3 of r^2.
template <const auto& series> struct OneWord_64f : Tangent<OneWord_64f<series>, Lum64f> {
  static constexpr double threshold = 128000;
  static constexpr bool has_tails = false;
  static constexpr int vectors = 4;
  static LUM_INLINE Reduced<Lum64f> Reduce(Vec<Lum64f> x) {
    constexpr auto shifter = rounding_shifter<Lum64f>();
    constexpr auto& pi_parts = numbers::pi_parts<Lum64f>;
    const auto t = fma(x, all(16 * numbers::inverse_pi<Lum64f>), all(shifter));
    const auto n = t - all(shifter);
    const auto r = fnma(n, all(pi_parts[1] / 16), fnma(n, all(pi_parts[0] / 16), x));
    return {fnma(n, all(pi_parts[2] / 16), r), all(0.0), bits(t)};
  }
  static LUM_STAGE Vec<Lum64f> Evaluate(const Reduced<Lum64f>& a) {
    const auto t = TangentOf(a);
    const auto s = a.hi * a.hi;
    const auto p = fma(horner(s, series) * a.hi, s, a.hi);
    const auto u = p + t;
    const auto d = fnma(t, p, all(1.0));
    const auto w = Reciprocal(d);
    const auto q = w * u;
    return fnma(w, fms(d, q, u), q);
  }
};
struct A26_64f : OneWord_64f<circular::tan_A26> {};
struct A50_64f : OneWord_64f<circular::tan_A50> {};

struct A53_64f : Tangent<A53_64f, Lum64f> {
  static constexpr int vectors = 1;
  static constexpr double threshold = f64(0x40F000000E4DB24C, 65536.00349206588);
  static constexpr bool has_tails = true;
  static LUM_INLINE Reduced<Lum64f> Reduce(Vec<Lum64f> x) {
    const auto [hi, lo, shifted] = TakeSixteenths(x);
    return {hi, lo, shifted};
  }
  static LUM_STAGE Vec<Lum64f> Evaluate(Reduced<Lum64f> a) {
    const auto s = a.hi * a.hi;
    return QuotientWithTails(a, (horner(s, circular::tan_A50) * a.hi) * s);
  }
};

}  // namespace

LumStatus Tan_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Tan_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Tan_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Tan_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Tan_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Tan_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
