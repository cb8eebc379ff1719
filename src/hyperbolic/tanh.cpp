// tanh x, by a polynomial of its own for each segment of |x|: the exponent and the top fraction bits choose the row, whose
// polynomial runs around a centre. Row 0 runs from zero, with slope 1 and no constant term, so that denormals come out as they
// are; the last row is the constant 1. The high tiers hold the value at the centre in two parts. The cheapest is a rational
// function. No tier ever reports.
#include <type_traits>

#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "hyperbolic/polynomials.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {
namespace {

// How the bits of |x| lead to the row.
template <class T> struct Segments;
template <> struct Segments<Lum32f> {
  static constexpr int32_t base = 0x3D400000;  // four segments a power of 2; row 1 begins one segment above
  static constexpr int32_t span = 0x03E00000;  // to the last row, which begins at 10
  static constexpr int shift = 21;
  static constexpr int32_t last_kept = 0x7F000000;
};
template <> struct Segments<Lum64f> {
  static constexpr int64_t base = 0x3FC0000000000000;  // two segments a power of 2
  static constexpr int64_t span = 0x0078000000000000;  // the last row begins at 24
  static constexpr int shift = 51;
  static constexpr int64_t last_kept = 0x7FE7FFFFFFFFFFFF;
};

// 1 with the sign of x, or the NaN quieted: for the top of the largest power of 2, infinities and NaN.
template <class T> struct HyperbolicTangent : Kernel<T> {
  static void LaneRoutine(T x, T& result) { result = x != x ? x + x : x < 0 ? T(-1) : T(1); }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Lanes<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto value = select(unord(x, x), x + x, or_sign(x, all(T(1))));
    return {select(lanes.refused, value, lanes.value), mask_of<T>(0)};
  }
};

// The entries of a row: the centre, the coefficients from the constant one up, what the constant one lacks. From a table of two
// vectors a column by permutation.
template <const auto& table, int columns, class T> struct ByColumns {
  static constexpr auto entries = by_columns<columns>(table);
  Vec<SignedOf<T>> row;

  template <int column> LUM_INLINE Vec<T> Entry() const {
    constexpr int first = column * 2 * lanes_of<T>;
    return permute2(load(entries + first), load(entries + first + lanes_of<T>), row);
  }
};
// From the table as it is, with four entries of a row at a time: the compiler sees the common ones.
template <const auto& table, int columns, class T> struct ByRows {
  Vec<SignedOf<T>> row;

  template <int column> LUM_INLINE Vec<T> Entry() const {
    constexpr int first = column / 4 * 4 + 4 <= columns ? column / 4 * 4 : columns - 4;
    const auto entries = gather_rows<T>(table + first, mul_low_halves(as_unsigned(row), all(uint64_t{columns})));
    if constexpr (column == first) return entries.column0;
    else if constexpr (column == first + 1) return entries.column1;
    else if constexpr (column == first + 2) return entries.column2;
    else return entries.column3;
  }
};
template <class T, const auto& table, int columns>
using Row = std::conditional_t<permutes_doubles || sizeof(T) == 4, ByColumns<table, columns, T>, ByRows<table, columns, T>>;

// The polynomial, or without its constant term and divided by d: the coefficients of d^last down to d^first.
template <int first, int last, class R, class T> LUM_INLINE Vec<T> Polynomial(const R& row, Vec<T> d) {
  if constexpr (first == last) return row.template Entry<last + 1>();
  else return fma(Polynomial<first + 1, last>(row, d), d, row.template Entry<first + 1>());
}

// v >= 0 with the sign of x, for a = |x|.
template <class T> LUM_INLINE Vec<T> WithSignOf(Vec<T> x, Vec<T> a, Vec<T> v) {
  return as_float(ternary<A | (B ^ C)>(bits(v), bits(a), bits(x)));
}

// The degree of the polynomials, and whether the constant terms have two parts.
struct Accuracy {
  int degree;
  bool in_two_parts;
};
template <Accuracy accuracy, const auto& table, class T> LUM_INLINE Lanes<T> BySegments(Vec<T> x) {
  using S = Segments<T>;
  const auto a = as_float(shift_right<1>(shift_left<1>(bits(x))));  // |x|, and below its sign, without a constant
  const auto b = as_signed(bits(a));
  const Row<T, table, accuracy.degree + 3> row{
      shift_right<S::shift>(min(max(b - all(S::base), all(SignedOf<T>{0})), all(S::span)))};
  const auto d = a - row.template Entry<0>();
  const auto refused = mask_cast<T>(lt(all(S::last_kept), b));
  if constexpr (accuracy.in_two_parts) {
    const auto q = fma(Polynomial<1, accuracy.degree>(row, d), d, row.template Entry<accuracy.degree + 2>());
    return {WithSignOf(x, a, row.template Entry<1>() + q), refused};
  } else {
    return {WithSignOf(x, a, Polynomial<0, accuracy.degree>(row, d)), refused};
  }
}

constexpr int float_degree = 6, short_degree = 10, long_degree = 16;
constexpr auto float_table = table32({
#include "tables/generated/tanh_32f_32_degree_6.inc"
});
constexpr auto short_table = table64({
#include "tables/generated/tanh_64f_16_degree_10.inc"
});
constexpr auto long_table = table64({
#include "tables/generated/tanh_64f_16_degree_16.inc"
});

struct A11_32f : Kernel<Lum32f> {
  static constexpr Variant variant = pure_vector_variant;
  static LUM_INLINE Vec<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = as_float(and_not(all(sign_bit<Lum32f>), bits(x)));
    const auto u = a * a;
    const auto q = horner(u, hyperbolic::tanh_A11_denominator);
    const auto p = horner(u, hyperbolic::tanh_A11_numerator);
    const auto v = rcp14(q) * fma(p, a, a);
    const auto magnitude = select(le(all(5.0f), a), all(1.0f), v);
    return as_float(ternary<A ^ B ^ C>(bits(magnitude), bits(a), bits(x)));
  }
};

struct A21_32f : HyperbolicTangent<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return BySegments<Accuracy{.degree = float_degree, .in_two_parts = false}, float_table>(x);
  }
};

struct A24_32f : HyperbolicTangent<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return BySegments<Accuracy{.degree = float_degree, .in_two_parts = true}, float_table>(x);
  }
};

struct A26_64f : HyperbolicTangent<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    return BySegments<Accuracy{.degree = short_degree, .in_two_parts = false}, short_table>(x);
  }
};

struct A50_64f : HyperbolicTangent<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    return BySegments<Accuracy{.degree = long_degree, .in_two_parts = false}, long_table>(x);
  }
};

struct A53_64f : HyperbolicTangent<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    return BySegments<Accuracy{.degree = long_degree, .in_two_parts = true}, long_table>(x);
  }
};

}  // namespace

LumStatus Tanh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Tanh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Tanh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Tanh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Tanh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Tanh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
