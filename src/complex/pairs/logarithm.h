// Logarithms in pairs: q = 2^k m with 3/4 <= m < 3/2, a short reciprocal c of m whose logarithm is tabulated, and the series of
// the exact r = c m - 1, |r| < 2^-8. Relative error below 2^-68; where q is near 1 it is r = q - 1 alone.
#pragma once

#include "complex/pairs/pair.h"
#include "complex/polynomials.h"
#include "explog/ln_terms.h"
#include "frame/numbers.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::complex {

struct LogarithmPairs {
  Vec<Lum64f> base, base_tail;  // k ln 2 - ln c
  HeadTail r;
};

LUM_INLINE LogarithmPairs ReduceLogarithm(HeadTail q) {
  static constexpr auto table = table64({
#include "tables/generated/minus_ln_64f_173_pairs.inc"
  });
  constexpr double first_row = 170;
  const auto m = getmant<significand::from_three_quarters | significand::nan_if_negative>(q.head);
  const auto k = getexp(q.head) - getexp(m);
  const auto c = rndscale<binary_places(8)>(rcp14(m));  // a multiple of 2^-8: c m - 1 has no more bits than m
  const auto r = two_sum(fms(m, c, all(1.0)), scalef(q.tail, negate(k)) * c);
  const auto index = bits(fma(c, all(256.0), all(0x1p52 - first_row))) & all(uint64_t{255});
  const auto row = index + index;
  const auto head = gather<Lum64f>(table, row), tail = gather<Lum64f>(table + 1, row);
  return {fma(k, all(numbers::ln2_by_2p40_parts<Lum64f>[0]), head),  // exact
          fma(k, all(numbers::ln2_by_2p40_parts<Lum64f>[1]), tail), r};
}

LUM_INLINE HeadTail SumLogarithm(const LogarithmPairs& terms) {
  const auto r = terms.r.head;
  const auto square = two_product(r, r);
  const auto series = horner(r, pairs_log);
  const auto first = fast_two_sum(terms.base, r);
  const auto second = fast_two_sum(first.head, all(-0.5) * square.head);
  const auto tails = (first.tail + second.tail) + fnma(r, terms.r.tail, terms.r.tail);
  return fast_two_sum(second.head, fma(square.head * r, series, fnma(all(0.5), square.tail, tails + terms.base_tail)));
}

// ln q of a positive number.
LUM_INLINE HeadTail Logarithm(HeadTail q) { return SumLogarithm(ReduceLogarithm(q)); }

// ln(1 + z) of a positive number.
LUM_INLINE HeadTail LogarithmOfOnePlus(HeadTail z) {
  const auto sum = two_sum(all(1.0), z.head);
  auto terms = ReduceLogarithm(fast_two_sum(sum.head, sum.tail + z.tail));
  terms.r = Select(eq(terms.base, all(0.0)), z, terms.r);
  return SumLogarithm(terms);
}

// ln q of q = head (1 + rest), and next to 1 of q = 1 + z.
LUM_INLINE OnePart LogarithmInOnePart(Vec<Lum64f> head, Vec<Lum64f> rest, Vec<Lum64f> z) {
  using Ln = explog::LnTerms_A50;
  auto terms = Ln::Corrected(Ln::Terms(explog::ReduceByReciprocal<4>(head)), rest);
  const auto is_near = lt(abs(z), all(0.0625));
  terms.base = zero_unless(~is_near, terms.base);
  terms.r = select(is_near, z, terms.r);
  return {Ln::Sum(terms)};
}
LUM_INLINE OnePart LogarithmOfOnePlus(OnePart z) {
  const auto sum = two_sum(all(1.0), z.head);
  return LogarithmInOnePart(sum.head, sum.tail * rcp14(sum.head), z.head);
}

}  // namespace lum::inline LUM_LAYER::complex
