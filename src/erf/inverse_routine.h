// The far tails of the inverses, by scalar arithmetic, for the lanes that the vector paths refuse.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

#include "explog/logarithm_routine.h"
#include "frame/literals.h"
#include "frame/scalar_fma.h"
#include "frame/two_parts.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::erf {

// -ln q for 0 < q < 1/2.
inline TwoParts<double> MinusLog(double q) {
  const auto [hi, lo, v, w] = explog::SplitLn(q);
  const double t = v + w;
  const double tail =
      t * t *
      (-1.0 / 2 +
       t * (1.0 / 3 + t * (-1.0 / 4 + t * (1.0 / 5 + t * (-1.0 / 6 + t * (1.0 / 7 + t * (-1.0 / 8 + t * (1.0 / 9))))))));
  const TwoParts<double> head = fast_two_sum(hi, v);  // the first term is exact, and the larger
  const TwoParts<double> sum = fast_two_sum(head.head, head.tail + (lo + (w + tail)));
  return {-sum.head, -sum.tail};
}

// erfcinv q for 0 < q < 2^-22. With t = sqrt(-ln q) it is t less a correction of some hundredths of t, which has polynomials on
// pieces of the t axis.
inline TwoParts<double> ErfcInvOfTail(double q) {
  static constexpr auto table = table64({
#include "tables/generated/erfcinv_tail_64f_6.inc"
  });
  constexpr size_t row_size = 17;
  const TwoParts<double> square = MinusLog(q);
  const double root = __builtin_sqrt(square.head);
  const double rest = (scalar_fma(-root, root, square.head) + square.tail) / (2 * root);
  const double* row = table;
  while (root > row[0] && row + 2 * row_size <= table + table.size) row += row_size;
  const double u = root - row[1];
  double correction = row[row_size - 1];
  for (size_t i = row_size - 2; i >= 2; --i) correction = correction * u + row[i];
  return fast_two_sum(root, rest - correction);
}

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

// The ends 0 and `upper` of the domain, the middle, whose value is 0, NaN and what is outside of the domain, in the lanes that a
// first path refuses; the tails next to the ends remain. The pole at 0 is positive or negative.
template <class T> LUM_INLINE Finished<T> FinishEnds(Vec<T> x, const Lanes<T>& lanes, T upper, bool positive_at_zero) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  const auto at_zero = fpclass<classes::zero>(x), at_upper = eq(x, all(upper)), middle = eq(x, all(upper / 2));
  const auto outside = fpclass<classes::below_zero>(x) | lt(all(upper), x), is_nan = unord(x, x);
  auto value = zero_unless(~middle, x + x);
  value = select(at_zero, all(positive_at_zero ? infinity : -infinity), value);
  value = select(at_upper, all(positive_at_zero ? -infinity : infinity), value);
  value = select(outside, all(std::numeric_limits<T>::quiet_NaN()), value);
  const auto pole = at_zero | at_upper, finished = lanes.refused & (pole | middle | outside | is_nan);
  return {select(finished, value, lanes.value), lanes.refused & ~finished, {.domain = outside, .singularity = pole}};
}

}  // namespace lum::inline LUM_LAYER::erf
