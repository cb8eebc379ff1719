#include "complex/circular_arguments.h"

#include <cmath>
#include <utility>

namespace lum::test {
namespace {

// The denominators below 2^64 of the continued fraction of 2^e / (pi/2), in ascending order.
std::vector<uint64_t> Denominators(int e) {
  std::vector<uint64_t> denominators;
  mpfr_t rest, whole;
  mpfr_inits2(300 + (e > 0 ? e : 0), rest, whole, nullptr);
  mpfr_const_pi(rest, MPFR_RNDN);
  mpfr_ui_div(rest, 2, rest, MPFR_RNDN);
  mpfr_mul_2si(rest, rest, e, MPFR_RNDN);
  uint64_t previous = 0, current = 1;
  for (mpfr_frac(rest, rest, MPFR_RNDN); mpfr_sgn(rest) != 0; mpfr_sub(rest, rest, whole, MPFR_RNDN)) {
    denominators.push_back(current);
    mpfr_ui_div(rest, 1, rest, MPFR_RNDN);
    mpfr_floor(whole, rest);
    const Extended next = mpfr_get_ld(whole, MPFR_RNDN) * static_cast<Extended>(current) + static_cast<Extended>(previous);
    if (next >= 0x1p64L) break;
    const uint64_t quotient = static_cast<uint64_t>(mpfr_get_ld(whole, MPFR_RNDN));
    previous = std::exchange(current, quotient * current + previous);
  }
  mpfr_clears(rest, whole, nullptr);
  return denominators;
}

}  // namespace

Numbers NearMultiplesOfHalfPi(int first_exponent, int last_exponent, int step) {
  Numbers x;
  for (int e = first_exponent; e <= last_exponent; e += step)
    for (const uint64_t m : Denominators(e)) x.push_back(std::ldexp(static_cast<Extended>(m), e));
  return x;
}

Numbers CircularArguments() {
  Numbers x = OfExponents(1, 0x3fb2, 1) + OfExponents(0x3fb3, 0x3ff4, 40) + OfExponents(0x3ff5, 0x4021, 1000);
  for (const int rung : {0x3fb4, 0x3fec, 0x3ff3, 0x3ff4, 0x3ff5, 0x3ffa, 0x4010, 0x401d, 0x4021, 0x4040})
    x = x + AroundExponent(rung);
  x = x + OfExponents(0x4022, 0x4100, 40) + NearMultiplesOfHalfPi(-64, 200, 1);
  for (int octants = 1; octants <= 16; ++octants) x = x + Around(octants * 0.78539816339744830962L, 10);
  for (int e = 0x4101; e < 0x7fff; e += 53) x = x + OfExponents(e, e, 3);
  return x + OfExponents(0x7ff0, 0x7ffe, 8) + NearMultiplesOfHalfPi(201, 16320, 67) + NearMultiplesOfHalfPi(16300, 16320, 1);
}

}  // namespace lum::test
