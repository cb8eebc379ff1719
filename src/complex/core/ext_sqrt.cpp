// Square root without a division: with t = x / 4^k in [1, 4) and a short g near 1 / sqrt(t), sqrt(t) = t g / sqrt(1 + w) where
// w = t g^2 - 1. The products of g with a head of t are exact, so that only the series in the small w is rounded.
#include "complex/core/extended_pair.h"
#include "frame/literals.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr auto seeds = table64({
#include "tables/generated/extended_sqrt_seeds_64f_513.inc"
});
// (1 / sqrt(1 + w) - 1) / w.
constexpr std::array<Extended, 7> series = {-1.0L / 2,    3.0L / 8,      -5.0L / 16,    35.0L / 128,
                                            -63.0L / 256, 231.0L / 1024, -429.0L / 2048};

// t as a head with 22 bits less than the format has, and the rest.
ExtendedPair SplitForSeed(Extended t) {
  const Extended scaled = t * (0x1p22 + 1);
  const Extended head = scaled - (scaled - t);
  return {head, t - head};
}

// The root of a positive normal number times 2^-step, step even.
Extended Root(const Extended& x, int step) {
  const int e = exponent_field(x) - extended_bias - step, odd = e & 1;
  // The significand rounded to eight fractional bits; past the end it falls on the first row of the other half.
  const size_t nearest = static_cast<size_t>(((fields(x).significand >> 54) + 1) >> 1) - 256;
  const Extended g = seeds.entries[nearest + (odd != 0 ? 256 : 0)];
  const Extended m = significand_of(x), t = odd != 0 ? 2 * m : m;
  const ExtendedPair parts = SplitForSeed(t);
  const Extended w = (g * g * parts.head - 1) + g * g * parts.tail;  // exact but for the last product and sum
  Extended p = 0;
  for (size_t i = series.size(); i-- > 0;) p = (p + series[i]) * w;
  return (parts.head * g + (parts.tail * g + t * g * p)) * power_of_two((e - odd) / 2);
}

Extended SqrtOf(const Extended& x) {
  const int exponent = exponent_field(x);
  if (x == 0) return x;
  if (exponent == extended_special) return x + ExtendedLimits::infinity();
  if (sign_bit(x)) return (x - x) / (x - x);
  return exponent == 0 ? Root(x * constant_power_of_two(200), 200) : Root(x, 0);
}

}  // namespace

void ExtSqrt(Extended& result, const Extended& x) { result = SqrtOf(x); }

}  // namespace lum::inline LUM_LAYER::complex
