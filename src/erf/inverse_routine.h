// The inverses where the first vector paths refuse: at the poles, outside of the domain, and in the far tails, whose steps
// stand here for scalars and for vectors.
#pragma once

#include <limits>

#include "explog/ln_terms.h"
#include "explog/logarithm_routine.h"
#include "frame/constant.h"
#include "frame/kernel_frame.h"
#include "frame/literals.h"
#include "frame/scalar_fma.h"
#include "frame/two_parts.h"
#include "roots/coupled_root.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::erf {

// ---- Lookups, which scalars and vectors make in different ways

// One more word, since rows are read four words at a time.
inline constexpr auto ln_rows = [] {
  constexpr auto& rows = explog::ln_routine_rows;
  Table<Lum64f, rows.size + 1> padded{};
  for (size_t i = 0; i < rows.size; ++i) padded.entries[i] = rows.entries[i];
  return padded;
}();
// The steps of the scalar form.
LUM_INLINE explog::ReducedLn<Vec<Lum64f>> ReduceLn(Vec<Lum64f> x) {
  constexpr auto& table = explog::ln_routine_rows;
  const auto e = getexp(x), m = getmant<significand::from_1_to_2>(x);
  const auto i = bits(m + all(explog::shifter_to_index<Lum64f>)) & all(uint64_t{0x7F});
  const auto [c, hi, lo, next_row] = gather_rows<Lum64f>(ln_rows, i + shift_left<1>(i));
  const auto head = (m + all(2097152.0)) - all(2097152.0);
  return {{e * all(table.entries[3 * 64 + 1]) + hi, e * all(table.entries[3 * 64 + 2]) + lo},
          {c * head - all(1.0), c * (m - head)}};
}
inline explog::ReducedLn<double> ReduceLn(double x) { return explog::ReduceLn(x); }

// Rows of one piece of the t axis each: its upper end, its middle, the coefficients.
inline constexpr auto tail_rows = table64({
#include "tables/generated/erfcinv_tail_64f_6.inc"
});
inline constexpr size_t tail_row_size = 17, tail_row_count = tail_rows.size / tail_row_size;

inline const double* TailRow(double t) {
  const double* row = tail_rows;
  for (size_t i = 0; i + 1 < tail_row_count && t > *row; ++i) row += tail_row_size;
  return row;
}
inline double TailEntry(const double* row, size_t column) { return row[column]; }

// The columns, of a vector each.
inline constexpr auto tail_columns = [] {
  static_assert(tail_row_count <= lanes_of<Lum64f>);
  Table<Lum64f, tail_row_size * lanes_of<Lum64f>> columns{};
  for (size_t i = 0; i < tail_rows.size; ++i)
    columns.entries[i % tail_row_size * lanes_of<Lum64f> + i / tail_row_size] = tail_rows.entries[i];
  return columns;
}();
LUM_INLINE Vec<uint64_t> TailRow(Vec<Lum64f> t) {
  auto row = all(uint64_t{0});
  for (size_t i = 0; i + 1 < tail_row_count; ++i) {
    const auto is_beyond = mask_cast<uint64_t>(lt(all(tail_rows.entries[i * tail_row_size]), t));
    row = row + zero_unless(is_beyond, all(uint64_t{1}));
  }
  return row;
}
LUM_INLINE Vec<Lum64f> TailEntry(Vec<uint64_t> row, size_t column) {
  return permute(load(tail_columns + column * lanes_of<Lum64f>), row);
}

// ---- The far tails

inline constexpr Polynomial<Lum64f, 8> log_series = {
    {-1.0 / 2, 1.0 / 3, -1.0 / 4, 1.0 / 5, -1.0 / 6, 1.0 / 7, -1.0 / 8, 1.0 / 9}};

// -ln q for 0 < q < 1/2.
template <class V> LUM_INLINE TwoParts<V> MinusLog(V q) {
  const auto [base, rest] = ReduceLn(q);
  const V t = rest.head + rest.tail;
  const V tail = t * t * unfused_horner(t, log_series);
  const TwoParts<V> head = fast_two_sum(base.head, rest.head);  // the first term is exact, and the larger
  const TwoParts<V> sum = fast_two_sum(head.head, head.tail + (base.tail + (rest.tail + tail)));
  return {negate(sum.head), negate(sum.tail)};
}

// erfcinv q for 0 < q < 2^-22. With t = sqrt(-ln q) it is t less a correction of some hundredths of t, which has polynomials on
// pieces of the t axis.
template <class V> LUM_INLINE TwoParts<V> ErfcInvOfTail(V q) {
  const TwoParts<V> square = MinusLog(q);
  const V root = sqrt(square.head);
  const V rest = div(fnma(root, root, square.head) + square.tail, root + root);
  const auto row = TailRow(root);
  const V u = root - TailEntry(row, 1);
  V correction = TailEntry(row, tail_row_size - 1);
  for (size_t i = tail_row_size - 2; i >= 2; --i) correction = correction * u + TailEntry(row, i);
  return fast_two_sum(root, rest - correction);
}

// The same correction to 2^-39 of t, on quarters of the binades of t, which its bits select.
inline constexpr size_t near_degree = 7;
inline constexpr auto near_rows = by_columns<near_degree + 1>(table64({
#include "tables/generated/erfcinv_tail_64f_8_near.inc"
}));
LUM_INLINE Vec<Lum64f> NearCorrection(Vec<Lum64f> t) {
  constexpr int rest = 50;  // the bits of the fraction below its first two
  const auto row = shift_right<rest>(bits(t)) & all(uint64_t{7});
  const auto middle = as_float((bits(t) & all(~uint64_t{0} << rest)) | all(uint64_t{1} << (rest - 1)));
  const auto u = t - middle, u2 = u * u;
  const auto c = [&](size_t i) __attribute__((always_inline)) { return permute(load<Lum64f>(near_rows + 8 * i), row); };
  const auto c01 = fma(c(1), u, c(0)), c23 = fma(c(3), u, c(2)), c45 = fma(c(5), u, c(4)), c67 = fma(c(7), u, c(6));
  return fma(fma(c67, u2, c45), u2 * u2, fma(c23, u2, c01));
}

// erfcinv q of numbers q < 2^-22 of binary32, but for 2^-38 of it, which rarely matters to the rounding.
LUM_INLINE Vec<Lum64f> NearErfcInvOfTail(Vec<Lum64f> q) {
  const auto a = explog::LnTerms_A50::Terms(explog::ReduceByReciprocal<4>(q));
  const auto r = a.r, r2 = r * r;
  const auto c = [](size_t i) __attribute__((always_inline)) { return all(log_series.c[i]); };
  const auto c01 = fma(c(1), r, c(0)), c23 = fma(c(3), r, c(2)), c45 = fma(c(5), r, c(4));
  const auto p = fma(fma(c(6), r2, c45), r2 * r2, fma(c23, r2, c01));
  const auto square = negate(a.base + fma(p, r2, r));
  const auto root = roots::HeronStep(square, roots::CoupledStep(roots::Start(square, rsqrt14_normal(square))));
  return root - NearCorrection(root);
}

// ---- The ends of the domain

// An argument at an end of the domain, and one outside of it.
template <class T> LumStatus Pole(bool positive, T& result) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  result = positive ? infinity : -infinity;
  return lumStsSingularity;
}
template <class T> LumStatus OutsideDomain(T& result) {
  result = std::numeric_limits<T>::quiet_NaN();
  return lumStsDomain;
}

// The function of any argument of a domain from 0 to `upper` whose middle is mapped to 0; the pole at 0 is positive or
// negative. of_tail is the function of the lower half.
template <class T, class OfTail> LumStatus FinishEnds(T x, T upper, bool positive_at_zero, OfTail of_tail, T& result) {
  if (x != x) {
    result = x * x;
  } else if (x == 0 || x == upper) {
    return Pole((x == 0) == positive_at_zero, result);
  } else if (x < 0 || x > upper) {
    return OutsideDomain(result);
  } else if (x == upper / 2) {
    result = 0;
  } else {
    const double a = x;
    result = static_cast<T>(x < upper / 2 ? of_tail(a) : -of_tail(upper - a));
  }
  return lumStsOk;
}

// The ends 0 and `upper` of the domain, the middle, whose value is 0, NaN and what is outside of the domain, in the lanes that
// a first path refuses; the pole at 0 is positive or negative. of_tail is the function of the numbers between, in binary64; to
// binary32 it is rounded where 2^-37 of it make no difference, and the other lanes remain.
template <class T, class OfTail>
LUM_INLINE Finished<T> FinishEnds(Vec<T> x, const Lanes<T>& lanes, T upper, bool positive_at_zero, OfTail of_tail) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  const auto at_zero = fpclass<classes::zero>(x), at_upper = eq(x, all(upper)), middle = eq(x, all(upper / 2));
  const auto outside = fpclass<classes::below_zero>(x) | lt(all(upper), x), is_nan = unord(x, x);
  auto value = zero_unless(~middle, x + x);
  value = select(at_zero, all(positive_at_zero ? infinity : -infinity), value);
  value = select(at_upper, all(positive_at_zero ? -infinity : infinity), value);
  value = select(outside, all(std::numeric_limits<T>::quiet_NaN()), value);
  const auto between = lanes.refused & ~(at_zero | at_upper | middle | outside | is_nan);
  auto remaining = mask_of<T>(0);
  if (any(between)) {
    const auto in_tail = select(between, x, all(T(0x1p-40)));
    if constexpr (sizeof(T) == sizeof(Lum64f)) {
      value = select(between, of_tail(in_tail), value);
    } else {
      const auto of_between = NarrowedWithin(0x1p-37, of_tail(widen_low(in_tail)), of_tail(widen_high(in_tail)));
      value = select(between, of_between.value, value);
      remaining = between & of_between.refused;
    }
  }
  return {select(lanes.refused, value, lanes.value), remaining, {.domain = outside, .singularity = at_zero | at_upper}};
}

}  // namespace lum::inline LUM_LAYER::erf
