// Acos: special values, the ends of the domain, the border of the branches, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Acos, OfZeroIsHalfPi) {
  ExpectCases("Acos_32f", {{0.0, FromBits(0x3FC90FDB)}, {-0.0, FromBits(0x3FC90FDB)}});
  ExpectCases("Acos_64f", {{0.0, FromBits(0x3FF921FB54442D18)}, {-0.0, FromBits(0x3FF921FB54442D18)}});
}

TEST(Acos, TinyArgumentsGiveHalfPi) {
  ExpectCases("Acos_32f",
              {{min_denormal, FromBits(0x3FC90FDB)}, {-min_normal, FromBits(0x3FC90FDB)}, {1e-9, FromBits(0x3FC90FDB)}});
  ExpectCases("Acos_64f", {{min_denormal, FromBits(0x3FF921FB54442D18)},
                           {-min_normal, FromBits(0x3FF921FB54442D18)},
                           {1e-18, FromBits(0x3FF921FB54442D18)}});
}

TEST(Acos, EndsOfTheDomainReportNothing) {
  ExpectCases("Acos_32f", {{1, 0.0}, {-1, FromBits(0x40490FDB)}});
  ExpectCases("Acos_64f", {{1, 0.0}, {-1, FromBits(0x400921FB54442D18)}});
}

TEST(Acos, OutsideTheDomain) {
  for (const char* name : {"Acos_32f", "Acos_64f"}) {
    ExpectCases(name, {{2, default_nan, lumStsDomain},
                       {-2, default_nan, lumStsDomain},
                       {max, default_nan, lumStsDomain},
                       {-max, default_nan, lumStsDomain},
                       {inf, default_nan, lumStsDomain},
                       {-inf, default_nan, lumStsDomain}});
  }
  ExpectCases("Acos_32f",
              {{FromBits(0x3F800001), default_nan, lumStsDomain}, {FromBits(0xBF800001), default_nan, lumStsDomain}});
  ExpectCases("Acos_64f", {{FromBits(0x3FF0000000000001), default_nan, lumStsDomain},
                           {FromBits(0xBFF0000000000001), default_nan, lumStsDomain}});
}

// Refused in binary32, where the routine keeps all of it but the signalling bit.
TEST(Acos, NanOfFloatsIsFinishedByTheRoutine) {
  ExpectCases("Acos_32f", {{FromBits(0x7FC01234), FromBits(0x7FC01234)},
                           {FromBits(0xFFC00001), FromBits(0xFFC00001)},
                           {FromBits(0x7F812345), FromBits(0x7FC12345)},
                           {FromBits(0xFFBFFFFF), FromBits(0xFFFFFFFF)}});
}
// In binary64 it runs through the vector path, which turns its sign over on the way.
TEST(Acos, NanOfDoublesRunsThrough) {
  ExpectCases("Acos_64f", {{FromBits(0x7FF8000000001234), FromBits(0xFFF8000000001234)},
                           {FromBits(0xFFF8000000000001), FromBits(0x7FF8000000000001)},
                           {FromBits(0x7FF0000000012345), FromBits(0xFFF8000000012345)},
                           {FromBits(0xFFF7FFFFFFFFFFFF), FromBits(0x7FFFFFFFFFFFFFFF)}});
}

Arguments1 Inside(Arguments1 x) {
  std::erase_if(x, [](double a) { return a < -1 || a > 1; });
  return x;
}

TEST(Acos, AccuracyNextToThresholds) {
  for (const bool is_32bit : {true, false}) {
    Arguments1 x;
    for (double point : {0.5, -0.5, 1.0, -1.0}) x = x + Around(point, is_32bit, 300);
    for (double exponent = 1; exponent <= 24; ++exponent) x = x + Around(1 - std::exp2(-exponent), is_32bit, 5);
    ExpectAccuracy(is_32bit ? "Acos_32f" : "Acos_64f", mpfr_acos, Inside(x));
  }
}

TEST(Acos, Accuracy) {
  ExpectAccuracy("Acos_32f", mpfr_acos, Between(-1, 1, 20000) + BetweenMagnitudes(1e-37, 1) + BetweenMagnitudes(-1e-37, -1));
  ExpectAccuracy("Acos_64f", mpfr_acos, Between(-1, 1, 20000) + BetweenMagnitudes(1e-307, 1) + BetweenMagnitudes(-1e-307, -1));
}

}  // namespace
}  // namespace lum::test
