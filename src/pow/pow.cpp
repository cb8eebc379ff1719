// x^y = 2^(y log2 x). With x = 2^e m and a short reciprocal c of m:  log2 x = e - log2 c + log2(1 + r), r = c m - 1, where the
// table of -log2 c holds what belongs to the exponent as well; the product P with y is rounded toward zero, and 2^P is
// 2^(floor(16 P)/16) from a table and an exponent field, times 2^f, 0 <= f < 1/16 (1/32). In the mid and high tiers the
// logarithm and the product are pairs; the high tiers also keep what the second term of the series and the table of powers
// lose. Negative, zero and infinite bases, NaN, and products next to the ends of the range have a second path.
#include <cstdint>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"
#include "pow/polynomials.h"
#include "pow/power_path.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace pow;

template <class T> struct PowConstants;
template <> struct PowConstants<Lum32f> {
  static constexpr auto limit = 125.5f;
  static constexpr auto rows_16 = table32({
#include "tables/generated/minus_log2_32f_16.inc"
  });
  static constexpr auto pairs_32 = by_columns<2>(table32({
#include "tables/generated/minus_log2_32f_32_pairs.inc"
  }));
  static constexpr auto exp_head = table32({
#include "tables/generated/exp2_32f_16_head.inc"
  });
};
template <> struct PowConstants<Lum64f> {
  static constexpr auto limit = 1021.5;
  static constexpr auto rows_16 = table64({
#include "tables/generated/minus_log2_64f_16.inc"
  });
  static constexpr auto pairs_32 = by_columns<2>(table64({
#include "tables/generated/minus_log2_64f_32_pairs.inc"
  }));
  static constexpr auto exp_head = table64({
#include "tables/generated/exp2_64f_16_head.inc"
  });
};
constexpr auto exp_tail_16 = table64({
#include "tables/generated/exp2_64f_16_tail.inc"
});
constexpr auto exp_head_32 = table32({
#include "tables/generated/exp2_32f_32_head.inc"
});
constexpr auto exp_tail_32 = table32({
#include "tables/generated/exp2_32f_32_tail.inc"
});

// ---- The reduction of x

// x = 2^e m, and c next to 1/m with the given fraction bits; e is raised where the table's entry of c belongs to twice of it.
template <class T> struct Reduced { Vec<T> e, m, c; };

// m in [1/2, 1), c in (1, 2].
template <int fraction_bits, class T> LUM_INLINE Reduced<T> Reduce(Vec<T> x) {
  const auto [m, e] = parts<significand::from_half_to_1 | significand::nan_if_negative>(x);
  const auto c = rounded_rcp14<fraction_bits, significand::from_half_to_1>(m);
  return {add(lt(c, all(T(1.5))), e, all(T(1))), m, c};
}

// The number in the top fraction bits of c: the row of the table.
template <int row_bits, class T> LUM_INLINE Vec<UnsignedOf<T>> RowOf(Vec<T> c) {
  return shift_right<lane::Format<T>::fraction_bits - row_bits>(bits(c));
}

LUM_INLINE TwoParts<Vec<Lum32f>> PairOf(Vec<Lum32f> c) {
  const Lum32f* pairs = PowConstants<Lum32f>::pairs_32;
  const auto j = RowOf<5>(c);
  return {permute2(load(pairs), load(pairs + 16), j), permute2(load(pairs + 32), load(pairs + 48), j)};
}
LUM_INLINE TwoParts<Vec<Lum64f>> PairOf(Vec<Lum64f> c) {
  const Lum64f* pairs = PowConstants<Lum64f>::pairs_32;
  const auto j = RowOf<5>(c);
  const auto first_half = mask_cast<Lum64f>(test_none(bits(c), all(uint64_t{0x0008000000000000})));
  const auto entry = [&](const Lum64f* table) __attribute__((always_inline)) {
    return select(first_half, permute2(load(table), load(table + 8), j), permute2(load(table + 16), load(table + 24), j));
  };
  return {entry(pairs), entry(pairs + 32)};
}

// log2 x = base + tail + log2(1 + r), base without rounding error.
template <class T> struct ReducedToPair { Vec<T> r, base, tail; };
template <class T> LUM_INLINE ReducedToPair<T> ReduceToPair(Vec<T> x) {
  const auto [e, m, c] = Reduce<5>(x);
  const auto r = fms(m, c, all(T(1)));
  const auto row = PairOf(c);
  return {r, row.head + e, row.tail};
}

// ---- The product with y, the exponent of 2

// (s + q + rest) y, for |q| small against |s| and rest against q.
template <class T> LUM_INLINE TwoParts<Vec<T>> MultiplyPair(Vec<T> s, Vec<T> q, Vec<T> rest, Vec<T> y) {
  const auto hi = s + q;
  return mul_toward_zero(hi, (q - (hi - s)) + rest, y);
}

template <class T> LUM_INLINE Mask<T> Refused(Vec<T> x, Vec<T> y, Vec<T> p) {
  return fpclass<classes::not_positive_finite>(x) | fpclass<classes::nonfinite>(y) | nle(abs(p), all(PowConstants<T>::limit));
}

// ---- 2^P

template <class T> struct Exponent {
  Vec<T> f;              // what is left of P above a multiple of 1/16 or 1/32
  Vec<UnsignedOf<T>> n;  // in the low bits: the index of the table, above it the biased exponent
};

// The bit that is cleared is none of an f below 1; it keeps NaN and large values of refused lanes out of the polynomial.
template <int index_bits, class T> LUM_INLINE Exponent<T> SplitExponent(const TwoParts<Vec<T>>& a) {
  // With the bias, so that the biased exponent comes to lie above the index.
  constexpr T shifter = rounding_shifter<T>(index_bits) + lane::Format<T>::bias;
  const auto [n, rest] = split_floor<index_bits>(a.head, all(shifter));
  const auto f = rest + a.tail;
  return {f & all(static_cast<UnsignedOf<T>>(~(sign_bit<T> >> 1))), bits(n)};
}

// value * 2^floor(P).
template <int index_bits, class T> LUM_INLINE Vec<T> Scale(Vec<T> value, const Exponent<T>& a) {
  using F = lane::Format<T>;
  return value * as_float(shift_left<F::fraction_bits - index_bits>(a.n) & all(F::infinity));
}

// 2^(i/16), i in the low bits of n.
LUM_INLINE Vec<Lum32f> ExpHead(Vec<uint32_t> n) { return permute(load<Lum32f>(PowConstants<Lum32f>::exp_head), n); }
LUM_INLINE Vec<Lum64f> ExpHead(Vec<uint64_t> n) {
  const Lum64f* heads = PowConstants<Lum64f>::exp_head;
  return permute2(load(heads), load(heads + 8), n);
}
// (2^f - 1) / f to the accuracy of A50 and A53.
LUM_INLINE Vec<Lum64f> LongExpPolynomial(Vec<Lum64f> f) { return horner_of_pairs(f, f * f, pow::exp2_A50); }

template <class T> struct PowKernel : Kernel<T> {
  template <class V> using Two = std::array<V, 2>;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, Vec<T> y, const Lanes<T>& lanes) {
    return PowerSecondPaths<T>({x}, {y}, {lanes}, std::index_sequence<0>())[0];
  }
  static LUM_INLINE Two<Finished<T>> SecondPathOfTwo(const Two<Vec<T>>& x, const Two<Vec<T>>& y, const Two<Lanes<T>>& lanes) {
    return PowerSecondPaths<T>(x, y, lanes, std::index_sequence<0, 1>());
  }
  static LUM_INLINE bool RefusesAll(Vec<T> x, Vec<T> y) {
    return has_all_elements(fpclass<classes::not_positive_finite>(x) | fpclass<classes::nonfinite>(y));
  }
  static LumStatus LaneRoutine(T x, T y, T& result) { return PowerRoutine(x, y, result); }
};

// ---- binary32

struct A11_32f : PowKernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x, Vec<Lum32f> y) {
    using C = PowConstants<Lum32f>;
    // m in [1, 2), c in [1/2, 1].
    const auto [m, exponent] = parts<significand::from_1_to_2 | significand::nan_if_negative>(x);
    const auto c = rounded_rcp14<5, significand::from_1_to_2>(m);
    const auto e = add(lt(c, all(0.75f)), exponent, all(1.0f));
    const auto r = fms(m, c, all(1.0f));
    const auto q = horner(r, pow::log2_A11);
    const auto product = mul_toward_zero(fma<rz>(q, r, e + permute(load<Lum32f>(C::rows_16), RowOf<4>(c))), y);
    const auto a = SplitExponent<4>(product);
    const auto head = ExpHead(a.n);
    const auto u = horner(a.f, pow::exp2_A11);
    return {Scale<4>(fma(head * a.f, u, head), a), Refused(x, y, product.head)};
  }
};

struct A21_32f : PowKernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x, Vec<Lum32f> y) {
    const auto [r, base, tail] = ReduceToPair(x);
    const auto k = all(numbers::log2_e<Lum32f>);
    const auto s = fma(k, r, base);
    const auto s_error = fms(k, r, s - base);
    const auto q = fma(horner(r, pow::log2_A21), r, tail);
    const auto product = MultiplyPair(s, q, s_error, y);
    const auto a = SplitExponent<4>(product);
    const auto head = ExpHead(a.n);
    const auto u = horner(a.f, pow::exp2_A21);
    return {Scale<4>(fma(head * a.f, u, head), a), Refused(x, y, product.head)};
  }
};

// y log2 x, where the second term of the series joins the sum exactly, as the first does: c2 (r2 + r2_error) + (K r + base).
template <class T, size_t n>
LUM_INLINE TwoParts<Vec<T>> MultiplyExactTerms(Vec<T> x, Vec<T> y, const Polynomial<T, n>& polynomial) {
  const auto [r, base, tail] = ReduceToPair(x);
  constexpr T k = numbers::log2_e<T>, c2 = -k / 2;
  const auto r2 = r * r;
  const auto s = fma(all(k), r, base);
  const auto s_error = fms(all(k), r, s - base);
  const auto s2 = fma(all(c2), r2, s);
  const auto s2_error = fms(all(c2), r2, s2 - s);
  const auto errors = s_error + s2_error;
  const auto r2_error = fms(r, r, r2);
  const auto q = fma(horner(r, polynomial), r, fma(all(c2), r2_error, tail));
  return MultiplyPair(s2, q, errors, y);
}

struct A24_32f : PowKernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x, Vec<Lum32f> y) {
    const auto product = MultiplyExactTerms(x, y, pow::log2_A24);
    const auto a = SplitExponent<5>(product);
    const auto head = permute2(load<Lum32f>(exp_head_32), load(exp_head_32 + 16), a.n);
    const auto tail = permute2(load<Lum32f>(exp_tail_32), load(exp_tail_32 + 16), a.n);
    const auto u = horner(a.f, pow::exp2_A24);
    return {Scale<5>(fma(head, fma(u, a.f, tail), head), a), Refused(x, y, product.head)};
  }
};

// ---- binary64

struct A26_64f : PowKernel<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x, Vec<Lum64f> y) {
    using C = PowConstants<Lum64f>;
    const auto [e, m, c] = Reduce<4>(x);
    const auto r = fms(m, c, all(1.0));
    const auto r2 = r * r;
    const auto b = e + permute2(load<Lum64f>(C::rows_16), load(C::rows_16 + 8), RowOf<4>(c));
    const auto q0 = horner(r, part<0, 1>(pow::log2_A26));
    const auto q2 = horner(r, part<2, 3>(pow::log2_A26));
    const auto q4 = horner(r, part<4, 5>(pow::log2_A26));
    const auto q = fma(fma(all(pow::log2_A26.c[6]), r2, q4), r2 * r2, fma(q2, r2, q0));
    const auto product = mul_toward_zero(fma<rz>(q, r, b), y);
    const auto a = SplitExponent<4>(product);
    const auto head = ExpHead(a.n);
    const auto u = horner(a.f, pow::exp2_A26);
    return {Scale<4>(fma(head * a.f, u, head), a), Refused(x, y, product.head)};
  }
};

struct A50_64f : PowKernel<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x, Vec<Lum64f> y) {
    const auto product = MultiplyExactTerms(x, y, pow::log2_A50);
    const auto a = SplitExponent<4>(product);
    const auto head = ExpHead(a.n);
    return {Scale<4>(fma(head * a.f, LongExpPolynomial(a.f), head), a), Refused(x, y, product.head)};
  }
};

struct A53_64f : PowKernel<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x, Vec<Lum64f> y) {
    const auto [e, m, c] = Reduce<5>(x);
    const auto v = fms(m * all(0.5), c, all(0.5));  // r/2, exact
    const auto row = PairOf(c);
    // The series in v starts with K v - K v^2, so that the second term is -v times the first: one step each, with its error.
    const auto k = all(2 * numbers::log2_e<Lum64f>);
    const auto b = row.head + e;
    const auto s = fma(k, v, b);
    const auto d = s - b;
    const auto d_error = fms(k, v, d);
    const auto s2 = fnma(v, d, s);
    const auto s2_error = fnms(v, d, s2 - s);
    const auto errors = fnma(v, d_error, d_error) + s2_error;
    const auto q = fma(horner(v, pow::log2_A53), v, row.tail);
    const auto product = MultiplyPair(s2, q, errors, y);
    const auto a = SplitExponent<4>(product);
    const auto head = ExpHead(a.n);
    const auto tail = permute2(load<Lum64f>(exp_tail_16), load(exp_tail_16 + 8), a.n);
    return {Scale<4>(fma(head, fma(LongExpPolynomial(a.f), a.f, tail), head), a), Refused(x, y, product.head)};
  }
};

}  // namespace

LumStatus Pow_32f_A11(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A11_32f>(src1, src2, dst, len);
}
LumStatus Pow_32f_A21(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A21_32f>(src1, src2, dst, len);
}
LumStatus Pow_32f_A24(const Lum32f* src1, const Lum32f* src2, Lum32f* dst, int32_t len) {
  return TwoInputs<A24_32f>(src1, src2, dst, len);
}
LumStatus Pow_64f_A26(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A26_64f>(src1, src2, dst, len);
}
LumStatus Pow_64f_A50(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A50_64f>(src1, src2, dst, len);
}
LumStatus Pow_64f_A53(const Lum64f* src1, const Lum64f* src2, Lum64f* dst, int32_t len) {
  return TwoInputs<A53_64f>(src1, src2, dst, len);
}

}  // namespace lum::inline LUM_LAYER
