// Pow3o2: special values, the borders of the vector path and of the lane routine with their neighbours, accuracy.
#include <bit>
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

int Power(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t rounding) {
  mpfr_sqrt(r, x, rounding);
  return mpfr_mul(r, r, x, rounding);
}

TEST(Pow3o2, SpecialValues) {
  for (const char* name : {"Pow3o2_32f", "Pow3o2_64f"}) {
    ExpectCases(name, {{0.0, 0.0},
                       {-0.0, 0.0},
                       {inf, inf},
                       {-inf, nan, lumStsDomain},
                       {-1, nan, lumStsDomain},
                       {-min_denormal, nan, lumStsDomain},
                       {-max, nan, lumStsDomain},
                       {nan, nan},
                       {-nan, -nan}});
  }
  ExpectCases("Pow3o2_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Pow3o2_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// Too large and too small results come without a status.
TEST(Pow3o2, OverflowAndUnderflowDoNotReport) {
  ExpectCases("Pow3o2_32f", {{max, inf},
                             {FromBits(0x6A214518), inf},
                             {0x1p-101, 0.0},
                             {FromBits(0x0CFFFFFF), 0.0},
                             {min_normal, 0.0},
                             {min_denormal, 0.0}});
  ExpectCases("Pow3o2_64f", {{max, inf},
                             {FromBits(0x6A9965FEA53D6E3E), inf},
                             {FromBits(0x132FEFFFFFFFFFFF), 0.0},
                             {min_normal, 0.0},
                             {min_denormal, 0.0}});
  for (const char* name : {"Pow3o2_32f_A24", "Pow3o2_64f_A53"})
    ExpectCases(name, {{0x1p84, 0x1p126}, {4, 8}, {9, 27}, {0x1p-82, 0x1p-123}});
  ExpectCases("Pow3o2_64f", {{FromBits(0x1330000000000000), min_denormal}});
}

TEST(Pow3o2, LastFiniteResults) {
  const float last_float = std::bit_cast<float>(0x6A214517u);
  const double last_double = std::bit_cast<double>(0x6A9965FEA53D6E3Du);
  for (const char* name : {"Pow3o2_32f_A11", "Pow3o2_32f_A21", "Pow3o2_32f_A24"})
    ExpectAccuracy(name, Power, {last_float, std::nextafterf(last_float, 0)});
  ExpectAccuracy("Pow3o2_64f", Power, {last_double, std::nextafter(last_double, 0)});
}

// Where refused numbers begin: 2^-68 and 2^84, 2^-646 and 2^681.
TEST(Pow3o2, BordersOfTheVectorPath) {
  ExpectAccuracy("Pow3o2_32f", Power, Around(0x1p-68, true) + Around(0x1p84, true));
  ExpectAccuracy("Pow3o2_64f", Power, Around(0x1p-646, false) + Around(0x1p681, false));
}

// The lane routine is correct to its last bits for every tag, so refused numbers are within half a unit at all of them.
TEST(Pow3o2, LaneRoutine) {
  ExpectAccuracy("Pow3o2_32f_A24", Power, BetweenMagnitudes(0x1p-102, 0x1p-68) + BetweenMagnitudes(0x1p84, 0x1.4p85));
  ExpectAccuracy("Pow3o2_64f_A53", Power,
                 BetweenMagnitudes(0x1p-717, 0x1p-647) + BetweenMagnitudes(0x1p681, 0x1.9p682) + Around(0x1p-680, false));
}

TEST(Pow3o2, Accuracy) {
  const auto x = Between(0, 100) + Between(1, 4) + BetweenMagnitudes(1e-20, 1e25);
  ExpectAccuracy("Pow3o2_32f", Power, x);
  ExpectAccuracy("Pow3o2_64f", Power, x + BetweenMagnitudes(1e-190, 1e200));
}

}  // namespace
}  // namespace lum::test
