// Acos: special values, the ends of the domain, the border of the branches, accuracy.
#include "invcircular/arcsine.h"
#include "support/accuracy.h"
#include "support/common_cases.h"

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

TEST(Acos, OutsideTheDomain) { ExpectDomainIsUnitInterval("Acos_32f", "Acos_64f"); }

// Refused in binary32, where the routine keeps all of it but the signalling bit.
TEST(Acos, NanOfFloatsIsFinishedByTheRoutine) { ExpectNanComesThroughQuieted({"Acos_32f"}); }
// In binary64 it runs through the vector path, which turns its sign over on the way.
TEST(Acos, NanOfDoublesRunsThrough) {
  ExpectCases("Acos_64f", {{FromBits(0x7FF8000000001234), FromBits(0xFFF8000000001234)},
                           {FromBits(0xFFF8000000000001), FromBits(0x7FF8000000000001)},
                           {FromBits(0x7FF0000000012345), FromBits(0xFFF8000000012345)},
                           {FromBits(0xFFF7FFFFFFFFFFFF), FromBits(0x7FFFFFFFFFFFFFFF)}});
}

TEST(Acos, AccuracyNextToThresholds) {
  ExpectAccuracy("Acos_32f", mpfr_acos, AroundArcsineThresholds(true));
  ExpectAccuracy("Acos_64f", mpfr_acos, AroundArcsineThresholds(false));
}

TEST(Acos, Accuracy) {
  ExpectAccuracy("Acos_32f", mpfr_acos, Between(-1, 1, 20000) + BetweenMagnitudes(1e-37, 1) + BetweenMagnitudes(-1e-37, -1));
  ExpectAccuracy("Acos_64f", mpfr_acos, Between(-1, 1, 20000) + BetweenMagnitudes(1e-307, 1) + BetweenMagnitudes(-1e-307, -1));
}

}  // namespace
}  // namespace lum::test
