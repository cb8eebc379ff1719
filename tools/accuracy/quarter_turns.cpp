#include "accuracy/quarter_turns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "accuracy/number.h"

namespace lum::accuracy {
namespace {

// 2/pi times a number of any binade keeps more than a hundred bits of its fraction.
constexpr mpfr_prec_t bits_of_turns = 1300;

// A significand, and how far it lies from a multiple of pi/2, in quarter turns.
struct Candidate {
  uint64_t significand;
  double distance;
  bool is_odd;
};

// Significands with `bits` bits that times theta are close to an integer: multiples of the denominators q of the convergents of
// theta, and these plus a few times the denominator before. The closest of all are among them (the theory of continued
// fractions), and the closest with an even or an odd integer take no large multiple.
std::vector<uint64_t> CloseSignificands(mpfr_ptr theta, int bits) {
  const uint64_t low = uint64_t{1} << (bits - 1), high = low * 2;
  std::vector<uint64_t> found;
  Number x(bits_of_turns), term(bits_of_turns);
  mpfr_frac(x, theta, MPFR_RNDN);
  for (uint64_t before = 0, q = 1; q < high;) {
    for (uint64_t multiple = 0; multiple < 16 && multiple * before < high; ++multiple) {
      const uint64_t offset = multiple * before;
      const uint64_t first = low > offset ? (low - offset + q - 1) / q : 0;
      const uint64_t last = high > offset ? (high - 1 - offset) / q : 0;
      for (uint64_t step = 0; step < 2 && first + step <= last; ++step) {
        found.push_back((first + step) * q + offset);
        found.push_back((last - step) * q + offset);
      }
    }
    mpfr_ui_div(x, 1, x, MPFR_RNDN);
    mpfr_floor(term, x);
    mpfr_sub(x, x, term, MPFR_RNDN);
    if (mpfr_cmp_d(term, static_cast<double>(high)) >= 0) break;
    const uint64_t next = static_cast<uint64_t>(mpfr_get_d(term, MPFR_RNDN));
    if (next > high / q) break;
    before = std::exchange(q, next * q + before);
  }
  return found;
}

Candidate Judge(mpfr_ptr theta, uint64_t significand) {
  Number turns(bits_of_turns), half(bits_of_turns);
  mpfr_mul_d(turns, theta, static_cast<double>(significand), MPFR_RNDN);
  mpfr_div_2ui(half, turns, 1, MPFR_RNDN);
  mpfr_frac(half, half, MPFR_RNDN);
  mpfr_mul_2ui(half, half, 1, MPFR_RNDN);  // quarter turns modulo 2
  const bool is_odd = mpfr_cmp_d(half, 0.5) > 0 && mpfr_cmp_d(half, 1.5) < 0;
  mpfr_sub_ui(half, half, is_odd ? 1 : (mpfr_cmp_d(half, 1.5) >= 0 ? 2 : 0), MPFR_RNDN);
  return {significand, mpfr_get_d(half, MPFR_RNDN), is_odd};
}

std::vector<double> Compute(int bits, int highest) {
  std::vector<double> numbers;
  Number theta(bits_of_turns);
  for (int exponent = 0; exponent < highest; ++exponent) {
    mpfr_const_pi(theta, MPFR_RNDN);
    mpfr_ui_div(theta, 2, theta, MPFR_RNDN);
    mpfr_mul_2si(theta, theta, exponent - bits + 1, MPFR_RNDN);
    std::array<Candidate, 4> best{};
    best.fill({0, 1, false});
    for (uint64_t significand : CloseSignificands(theta, bits)) {
      const Candidate candidate = Judge(theta, significand);
      Candidate& place = best[static_cast<size_t>(2 * candidate.is_odd + (candidate.distance < 0))];
      if (std::fabs(candidate.distance) < std::fabs(place.distance)) place = candidate;
    }
    for (const Candidate& found : best) {
      if (found.significand != 0) numbers.push_back(std::ldexp(static_cast<double>(found.significand), exponent - bits + 1));
    }
  }
  return numbers;
}

}  // namespace

const std::vector<double>& NearestToQuarterTurns(bool is_32bit) {
  if (is_32bit) {
    static const std::vector<double> floats = Compute(24, 128);
    return floats;
  }
  static const std::vector<double> doubles = Compute(53, 1024);
  return doubles;
}

}  // namespace lum::accuracy
