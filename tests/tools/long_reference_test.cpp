// The values of long double that the wide search judges binary64 by, against multiple-precision arithmetic.
#include "accuracy/long_reference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "accuracy/inputs.h"
#include "accuracy/number.h"

namespace lum::accuracy {
namespace {

using support::Export;

// |value - exact| in units of binary64's last place; negative where there is none.
double Error(long double value, mpfr_ptr exact) {
  if (!std::isfinite(value) || mpfr_regular_p(exact) == 0 || mpfr_get_exp(exact) > 1024) return -1;
  const double unit = std::ldexp(1.0, std::max<int>(static_cast<int>(mpfr_get_exp(exact)) - 53, -1074));
  Number difference(precision);
  mpfr_set_ld(difference, value, MPFR_RNDN);
  mpfr_sub(difference, difference, exact, MPFR_RNDN);
  return std::fabs(mpfr_get_d(difference, MPFR_RNDN)) / unit;
}

TEST(LongReference, IsGoodForAWideSearch) {
  if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "long double is no wider than binary64";
  std::set<std::string> done;
  for (const Export& entry : support::Exports()) {
    const LongReference reference = FindLongReference(entry);
    if (reference == nullptr || entry.type != "64f" || !done.insert(std::string(entry.function)).second) continue;
    SCOPED_TRACE(entry.function);
    const Reference exact = FindReference(entry);
    const std::vector<Point> points = SamplePoints(entry, 1500);
    Number exact1(precision), exact2(precision);
    for (const Point& p : points) {
      const double* const parts[4] = {&p.re1, &p.im1, &p.re2, &p.im2};
      long double value1 = 0, value2 = 0;
      reference(1, parts, &value1, &value2);
      exact(exact1, exact2, p);
      EXPECT_LT(Error(value1, exact1), long_reference_error) << p.re1 << " " << p.re2;
      if (Parts(entry) == 2) { EXPECT_LT(Error(value2, exact2), long_reference_error) << p.re1; }
    }
  }
  EXPECT_GT(done.size(), 40u);
}

}  // namespace
}  // namespace lum::accuracy
