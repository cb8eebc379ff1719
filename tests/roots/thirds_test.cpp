// Cbrt, InvCbrt and Pow2o3: special values, exact cases, denormals, accuracy over all sizes.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

int InverseRoot(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t rounding) {
  mpfr_cbrt(r, x, rounding);
  return mpfr_ui_div(r, 1, r, rounding);
}
int SquaredRoot(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t rounding) {
  mpfr_cbrt(r, x, rounding);
  return mpfr_sqr(r, r, rounding);
}

// Both signs and every size, denormals included.
Arguments1 EverySize(bool is_32bit) {
  const double smallest = is_32bit ? 0x1p-149 : 0x1p-1074, largest = is_32bit ? 0x1.fffffep127 : 0x1.fffffffffffffp1023;
  return BetweenMagnitudes(smallest, largest) + BetweenMagnitudes(-smallest, -largest) + Between(-10, 10);
}
// The cells of the reciprocal and the remainders of the exponent: neighbours of the borders on three octaves.
Arguments1 CellBorders(bool is_32bit) {
  Arguments1 x;
  for (int octave = -2; octave <= 2; ++octave) {
    for (int k = 32; k <= 64; ++k)
      x = x + Around(std::ldexp(k / 32.0, octave), is_32bit, 2) + Around(std::ldexp(32.0 / k, octave), is_32bit, 2);
  }
  return x;
}

TEST(Cbrt, SpecialValues) {
  for (const char* name : {"Cbrt_32f", "Cbrt_64f"})
    ExpectCases(name, {{0.0, 0.0}, {-0.0, -0.0}, {inf, inf}, {-inf, -inf}, {nan, nan}, {-nan, -nan}});
  ExpectCases("Cbrt_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Cbrt_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Cbrt, CubesAtTheHighTiers) {
  std::vector<OneInputCase> cases = {{-8, -2},         {8, 2}, {1, 1}, {-1, -1}, {0x1p-126, 0x1p-42}, {-0x1p-147, -0x1p-49},
                                     {0x1p126, 0x1p42}};
  for (int root = 1; root < 250; ++root) cases.push_back({root * root * root, root});
  ExpectCases("Cbrt_32f_A24", cases);
  ExpectCases("Cbrt_64f_A53", cases);
}

TEST(Cbrt, Accuracy) {
  ExpectAccuracy("Cbrt_32f", mpfr_cbrt, EverySize(true) + CellBorders(true));
  ExpectAccuracy("Cbrt_64f", mpfr_cbrt, EverySize(false) + CellBorders(false));
}

TEST(InvCbrt, SpecialValues) {
  for (const char* name : {"InvCbrt_32f", "InvCbrt_64f"}) {
    ExpectCases(
        name,
        {{0.0, inf, lumStsSingularity}, {-0.0, -inf, lumStsSingularity}, {inf, 0.0}, {-inf, -0.0}, {nan, nan}, {-nan, -nan}});
  }
  ExpectCases("InvCbrt_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("InvCbrt_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(InvCbrt, PowersOfEightAtTheHighTiers) {
  const std::vector<OneInputCase> cases = {{8, 0.5},           {-8, -0.5},           {1, 1},
                                           {0x1p-126, 0x1p42}, {-0x1p-147, -0x1p49}, {0x1p126, 0x1p-42}};
  ExpectCases("InvCbrt_32f_A24", cases);
  ExpectCases("InvCbrt_64f_A53", cases);
}

TEST(InvCbrt, Accuracy) {
  ExpectAccuracy("InvCbrt_32f", InverseRoot, EverySize(true) + CellBorders(true));
  ExpectAccuracy("InvCbrt_64f", InverseRoot, EverySize(false) + CellBorders(false));
}

TEST(Pow2o3, SpecialValues) {
  for (const char* name : {"Pow2o3_32f", "Pow2o3_64f"})
    ExpectCases(name, {{0.0, 0.0}, {-0.0, 0.0}, {inf, inf}, {-inf, inf}, {nan, nan}, {-nan, -nan}});
  ExpectCases("Pow2o3_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Pow2o3_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

TEST(Pow2o3, CubesAtTheHighTiers) {
  std::vector<OneInputCase> cases = {{-8, 4}, {8, 4}, {1, 1}, {-1, 1}, {0x1p-147, 0x1p-98}, {0x1p126, 0x1p84}};
  for (int root = 1; root < 250; ++root) cases.push_back({-root * root * root, root * root});
  ExpectCases("Pow2o3_32f_A24", cases);
  ExpectCases("Pow2o3_64f_A53", cases);
}

TEST(Pow2o3, Accuracy) {
  ExpectAccuracy("Pow2o3_32f", SquaredRoot, EverySize(true) + CellBorders(true));
  ExpectAccuracy("Pow2o3_64f", SquaredRoot, EverySize(false) + CellBorders(false));
}

}  // namespace
}  // namespace lum::test
