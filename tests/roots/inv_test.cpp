// Inv: poles, refused arguments and what the tiers do with tiny ones, special values, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

int Reciprocal(mpfr_ptr r, mpfr_srcptr x, mpfr_rnd_t rounding) { return mpfr_ui_div(r, 1, x, rounding); }

TEST(Inv, SpecialValues) {
  for (const char* name : {"Inv_32f", "Inv_64f"}) {
    ExpectCases(name, {{0.0, inf, lumStsSingularity},
                       {-0.0, -inf, lumStsSingularity},
                       {inf, 0.0},
                       {-inf, -0.0},
                       {nan, nan},
                       {-nan, -nan},
                       {1, 1},
                       {-2, -0.5},
                       {0.25, 4}});
  }
  ExpectCases("Inv_32f", {{FromBits(0x7F812345), FromBits(0x7FC12345)}, {FromBits(0xFFC00007), FromBits(0xFFC00007)}});
  ExpectCases("Inv_64f", {{FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// At A11 the infinite estimate of a tiny denormal stands; the others divide, which overflows as well or not.
TEST(Inv, TinyDenormals) {
  ExpectCases("Inv_32f_A11", {{min_denormal, inf}, {-min_denormal, -inf}, {0x1.8p-129, inf}, {0x1p-129, inf}});
  for (const char* name : {"Inv_32f_A21", "Inv_32f_A24"}) {
    ExpectCases(name, {{min_denormal, inf},
                       {-min_denormal, -inf},
                       {0x1.8p-129, inf},
                       {0x1p-128, inf},
                       {0x1.00001p-128, FromBits(0x7F7FFFF0)}});
  }
  ExpectCases("Inv_64f", {{min_denormal, inf}, {-0x1p-1024, -inf}});
}

// The estimate of large numbers is denormal, and is refined there.
TEST(Inv, LargeNumbers) {
  ExpectCases("Inv_32f_A24", {{0x1p127, 0x1p-127}, {-0x1p127, -0x1p-127}});
  ExpectCases("Inv_64f_A53", {{0x1p1023, 0x1p-1023}, {-0x1p1022, -0x1p-1022}});
  ExpectAccuracy("Inv_32f", Reciprocal, BetweenMagnitudes(0x1p125, 0x1.fffffep127));
  ExpectAccuracy("Inv_64f_A50", Reciprocal, BetweenMagnitudes(0x1p1020, 0x1.fffffffffffffp1023));
  ExpectAccuracy("Inv_64f_A53", Reciprocal, BetweenMagnitudes(0x1p1020, 0x1.fffffffffffffp1023));
}

// Tiny arguments that still have a finite reciprocal, by the vector path or by division.
TEST(Inv, SmallNumbers) {
  ExpectAccuracy("Inv_32f_A21", Reciprocal, BetweenMagnitudes(0x1.00001p-128, 0x1p-120));
  ExpectAccuracy("Inv_32f_A24", Reciprocal, BetweenMagnitudes(-0x1.00001p-128, -0x1p-120));
  ExpectAccuracy("Inv_64f", Reciprocal, BetweenMagnitudes(0x1.0000001p-1024, 0x1p-1010));
}

TEST(Inv, Accuracy) {
  const auto x = Between(-10, 10) + Between(1, 2) + BetweenMagnitudes(1e-30, 1e30);
  ExpectAccuracy("Inv_32f", Reciprocal, x);
  ExpectAccuracy("Inv_64f", Reciprocal, x + BetweenMagnitudes(-1e-300, -1e300));
}

}  // namespace
}  // namespace lum::test
