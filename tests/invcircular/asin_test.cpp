// Asin: special values, the ends of the domain, the border of the branches, accuracy.
#include "invcircular/arcsine.h"
#include "support/accuracy.h"
#include "support/common_cases.h"

namespace lum::test {
namespace {

TEST(Asin, ZeroKeepsItsSign) { ExpectZeroKeepsItsSign({"Asin_32f", "Asin_64f"}); }

TEST(Asin, EndsOfTheDomainReportNothing) {
  ExpectCases("Asin_32f", {{1, FromBits(0x3FC90FDB)}, {-1, FromBits(0xBFC90FDB)}});
  ExpectCases("Asin_64f", {{1, FromBits(0x3FF921FB54442D18)}, {-1, FromBits(0xBFF921FB54442D18)}});
}

TEST(Asin, OutsideTheDomain) { ExpectDomainIsUnitInterval("Asin_32f", "Asin_64f"); }

// A NaN runs through the vector path.
TEST(Asin, NanComesThroughQuieted) { ExpectNanComesThroughQuieted({"Asin_32f", "Asin_64f"}); }

// 32f A11 scales tiny arguments by 1 + 2^-15.
TEST(Asin, TinyArgumentsStay) {
  ExpectTinyArgumentsStay({"Asin_32f_A21", "Asin_32f_A24", "Asin_64f"});
  ExpectAccuracy("Asin_32f_A11", mpfr_asin, BetweenMagnitudes(1.5e-45, 1e-30) + BetweenMagnitudes(-1.5e-45, -1e-30));
}

TEST(Asin, AccuracyNextToThresholds) {
  ExpectAccuracy("Asin_32f", mpfr_asin, AroundArcsineThresholds(true));
  ExpectAccuracy("Asin_64f", mpfr_asin, AroundArcsineThresholds(false));
}

TEST(Asin, Accuracy) {
  ExpectAccuracy("Asin_32f", mpfr_asin, Between(-1, 1, 20000) + BetweenMagnitudes(1e-37, 1) + BetweenMagnitudes(-1e-37, -1));
  ExpectAccuracy("Asin_64f", mpfr_asin, Between(-1, 1, 20000) + BetweenMagnitudes(1e-307, 1) + BetweenMagnitudes(-1e-307, -1));
}

}  // namespace
}  // namespace lum::test
