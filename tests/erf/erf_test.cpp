// Erf: special values, saturation to 1 at each kernel's own limit, the rows and switches of the tables, accuracy.
#include <cmath>

#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Erf, ZerosKeepTheirSign) {
  ExpectCases("Erf_32f", {{0.0, 0.0}, {-0.0, -0.0}});
  ExpectCases("Erf_64f", {{0.0, 0.0}, {-0.0, -0.0}});
}

TEST(Erf, InfinitiesGiveOne) {
  ExpectCases("Erf_32f", {{inf, 1}, {-inf, -1}});
  ExpectCases("Erf_64f", {{inf, 1}, {-inf, -1}});
}

TEST(Erf, NanIsSilent) {
  ExpectCases("Erf_32f", {{nan, any_nan}, {-nan, any_nan}, {FromBits(0x7F812345), any_nan}});
  ExpectCases("Erf_64f", {{nan, any_nan}, {-nan, any_nan}, {FromBits(0x7FF0000000012345), any_nan}});
}

// x^2 at the limit gives 1, just below it the polynomial, which is 1 or next to it.
TEST(Erf, LimitsOfFloats) {
  for (const char* name : {"Erf_32f_A11", "Erf_32f_A21", "Erf_32f_A24"}) {
    ExpectCases(name, {{4, 1}, {-4, -1}, {1e10, 1}, {-1e30, -1}, {max, 1}, {-max, -1}});
    ExpectAccuracy(name, mpfr_erf, Around(2.593901, true) + Around(-3.6533231, true) + Around(3.8325069, true));
  }
  ExpectCases("Erf_32f_A24", {{FromBits(0x407547CB), 1}, {FromBits(0xC07547CB), -1}});
}

TEST(Erf, LastRowOfDoubles) {
  ExpectCases("Erf_64f", {{5.9921875, 1}, {-5.9921875, -1}, {5.9921876, 1}, {6, 1}, {1e300, 1}, {-1e300, -1}, {max, 1}});
  ExpectAccuracy("Erf_64f", mpfr_erf, Around(5.9921875, false) + Around(-5.98828125, false) + Between(5.5, 6.1));
}

// At 0.02734375 the high tier changes its centre from 0 to the fourth row; the others change theirs at odd multiples of 1/256.
TEST(Erf, BordersBetweenCentres) {
  ExpectAccuracy("Erf_64f", mpfr_erf, Around(0.02734375, false) + Around(-0.02734375, false) + Around(0x1p-8, false));
  Arguments1 borders;
  for (int i = 0; i < 768; ++i) borders = borders + Around((2 * i + 1) / 256.0, false, 2) + Around(i / 128.0, false, 1);
  ExpectAccuracy("Erf_64f", mpfr_erf, borders);
}

// The square of the distance is dropped below 2^-256, where it would underflow.
TEST(Erf, TinyArguments) {
  ExpectAccuracy("Erf_64f", mpfr_erf, Around(0x1p-256, false) + Around(-0x1p-256, false) + BetweenMagnitudes(0x1p-1074, 1e-3));
  ExpectAccuracy("Erf_64f", mpfr_erf, Around(0x1p-1022, false) + Around(0x1p-1074, false, 3));
  ExpectAccuracy("Erf_32f", mpfr_erf, Around(0x1p-126, true) + BetweenMagnitudes(0x1p-149, 1e-3));
}

TEST(Erf, IsOdd) {
  for (const char* function : {"Erf_32f", "Erf_64f"}) {
    for (const Export* entry : ExportsNamed(function)) {
      for (const std::string& library : RunnableLibraries()) {
        const Format format = FormatOf(entry->input);
        Batch batch(*entry), mirrored(*entry);
        for (double x : Between(0, 7, 2000)) {
          batch.src1.Append({format.pattern(x), 0});
          mirrored.src1.Append({format.pattern(-x), 0});
        }
        std::string reason;
        const Callee callee(*TestLibrary(library, "", reason), *entry);
        const Output a = callee.Run(batch), b = callee.Run(mirrored);
        for (size_t i = 0; i < batch.size(); ++i) {
          ASSERT_EQ(format.number(a.dst1[i].re), -format.number(b.dst1[i].re)) << entry->name << ' ' << batch.Show(i);
        }
      }
    }
  }
}

TEST(Erf, Accuracy) {
  ExpectAccuracy("Erf_32f", mpfr_erf, Between(-4.2, 4.2) + BetweenMagnitudes(1e-30, 4) + BetweenMagnitudes(-1e-30, -4));
  ExpectAccuracy("Erf_64f", mpfr_erf, Between(-6.2, 6.2) + BetweenMagnitudes(1e-30, 6) + BetweenMagnitudes(-1e-30, -6));
  ExpectAccuracy("Erf_64f", mpfr_erf, Between(-1, 1));
}

}  // namespace
}  // namespace lum::test
