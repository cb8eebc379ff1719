#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Exp, Infinities) {
  ExpectCases("Exp_32f", {{inf, inf}, {-inf, 0}});
  ExpectCases("Exp_64f", {{inf, inf}, {-inf, 0}});
}

TEST(Exp, Accuracy) {
  ExpectAccuracy("Exp_32f", mpfr_exp, Between(-87, 88) + BetweenMagnitudes(1e-10, 88) + BetweenMagnitudes(-1e-10, -87));
  ExpectAccuracy("Exp_64f", mpfr_exp, Between(-708, 709) + BetweenMagnitudes(1e-20, 700) + BetweenMagnitudes(-1e-20, -700));
}

}  // namespace
}  // namespace lum::test
