// Sine and cosine. With x = k pi/4 + r for an even k, |r| <= pi/4 and a little, k/2 modulo 4 says which of the two is taken of
// r and with which sign. Their leading terms are formed in pairs. Small arguments take as many terms of the series as they
// need.
#include "complex/core/ext_reduce.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr auto sine_terms = coefficients({
#include "tables/generated/extended_sine_64f_8_pairs.inc"
});
constexpr auto cosine_terms = coefficients({
#include "tables/generated/extended_cosine_64f_8_pairs.inc"
});
// (sin x - x) / x^3 and (cos x - 1 + x^2/2) / x^4.
constexpr std::array<Extended, 4> sine_series = {-1.0L / 6, 1.0L / 120, -1.0L / 5040, 1.0L / 362880};
constexpr std::array<Extended, 3> cosine_series = {1.0L / 24, -1.0L / 720, 1.0L / 40320};

// Exponent fields: the last ones below which the series needs no correction, one, two and four of them.
constexpr int no_term = field_of(-76), one_term = field_of(-20), two_terms = field_of(-12), four_terms = field_of(-6);

inline Extended SineOfRemainder(const ExtendedPair& r) {
  return rounded(odd_sum(r, ratio(-1, 6), polynomial(sine_terms, r.head * r.head)));
}

inline Extended CosineOfRemainder(const ExtendedPair& r) {
  const ExtendedPair square = multiply(r, r);
  const ExtendedPair sum = fast_two_sum(Extended{1}, square.head * -0.5L);
  const Extended rest = square.head * square.head * polynomial(cosine_terms, square.head);
  return sum.head + (sum.tail + (rest - square.tail * 0.5L));
}

Extended SmallSine(const Extended& x, int exponent) {
  if (exponent <= no_term) return inexact_identity(x);
  if (exponent <= one_term) return odd_series<1>(sine_series, x);
  if (exponent <= two_terms) return odd_series<2>(sine_series, x);
  return odd_series<4>(sine_series, x);
}

Extended SmallCosine(const Extended& x, int exponent) {
  if (exponent <= no_term) return 1;
  const Extended square = x * x;
  if (exponent <= one_term) return 1 - square * 0.5L;
  if (exponent <= two_terms) return 1 - square * (0.5L - square * cosine_series[0]);
  return 1 - square * (0.5L - square * polynomial(cosine_series, square));
}

// -1 in the third and fourth quarter turn.
Extended QuadrantSign(int64_t quadrant) { return sign_factor((quadrant & 2) != 0); }

// The sine of an argument with that remainder and that many quarter turns.
Extended SineInQuadrant(const ExtendedPair& remainder, int64_t quadrant) {
  const Extended value = (quadrant & 1) != 0 ? CosineOfRemainder(remainder) : SineOfRemainder(remainder);
  return value * QuadrantSign(quadrant);
}

Extended SineOf(const Extended& x, int exponent) {
  if (exponent <= four_terms) return SmallSine(x, exponent);
  ExtendedPair remainder;
  const int64_t quadrant = ExtReducePi4(remainder, x) >> 1;
  return SineInQuadrant(remainder, quadrant);
}

Extended CosineOf(const Extended& x, int exponent) {
  if (exponent <= four_terms) return SmallCosine(x, exponent);
  ExtendedPair remainder;
  const int64_t quadrant = ExtReducePi4(remainder, x) >> 1;
  return SineInQuadrant(remainder, quadrant + 1);
}

}  // namespace

// Infinity less itself is the NaN of an invalid operation; NaN stays.
void ExtSin(Extended& result, const Extended& x) {
  const int exponent = exponent_field(x);
  result = exponent == extended_special ? x - x : SineOf(x, exponent);
}

void ExtCos(Extended& result, const Extended& x) {
  const int exponent = exponent_field(x);
  result = exponent == extended_special ? x - x : CosineOf(x, exponent);
}

void ExtSinCos(const Extended& x, Extended& sine, Extended& cosine) {
  const int exponent = exponent_field(x);
  if (exponent == extended_special) {
    sine = cosine = x - x;
  } else if (exponent <= four_terms) {
    const Extended argument = x;  // either result may lie over x
    sine = SmallSine(argument, exponent);
    cosine = SmallCosine(argument, exponent);
  } else {
    ExtendedPair remainder;
    const int64_t quadrant = ExtReducePi4(remainder, x) >> 1;
    // Sine and cosine of the remainder, to be exchanged: no branch on the quadrant could be foreseen.
    const Extended values[2] = {SineOfRemainder(remainder), CosineOfRemainder(remainder)};
    sine = values[quadrant & 1] * QuadrantSign(quadrant);
    cosine = values[(quadrant & 1) ^ 1] * QuadrantSign(quadrant + 1);
  }
}

}  // namespace lum::inline LUM_LAYER::complex
