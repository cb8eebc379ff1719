#include "support/accuracy.h"
#include "support/cases.h"

namespace lum::test {
namespace {

TEST(Expm1, SpecialValues) {
  for (const char* name : {"Expm1_32f", "Expm1_64f"}) {
    ExpectCases(name, {{0, 0},
                       {-0.0, -0.0},
                       {-inf, -1},
                       {-1000, -1},
                       {-max, -1},
                       {inf, inf},
                       {1000, inf, lumStsOverflow},
                       {max, inf, lumStsOverflow},
                       {nan, any_nan},
                       {default_nan, any_nan}});
  }
  ExpectCases("Expm1_32f", {{FromBits(0x7F800001), any_nan}, {FromBits(0xFFC12345), any_nan}});
  ExpectCases("Expm1_64f", {{FromBits(0x7FF0000000000001), any_nan}, {FromBits(0xFFF8123400000000), any_nan}});
}

// The edge of overflow is a different number than the threshold of the vector path, so lanes between them report nothing.
TEST(Expm1, EdgeOfOverflow) {
  ExpectCases("Expm1_32f", {{89, inf, lumStsOverflow}, {FromBits(0x42B17218), inf, lumStsOverflow}});
  ExpectCases("Expm1_64f", {{710, inf, lumStsOverflow}, {FromBits(0x40862E42FEFA39F0), inf, lumStsOverflow}});
}

TEST(Expm1, TinyArgumentsStay) {
  for (const char* name : {"Expm1_32f", "Expm1_64f"}) {
    ExpectCases(name, {{min_denormal, min_denormal},
                       {-min_denormal, -min_denormal},
                       {min_normal, min_normal},
                       {1e-20, 1e-20},
                       {-1e-20, -1e-20},
                       {1e-30, 1e-30}});
  }
}

TEST(Expm1, Accuracy) {
  ExpectAccuracy("Expm1_32f", mpfr_expm1,
                 Between(-120, 88.7) + Between(-2, 2) + BetweenMagnitudes(1e-44, 88) + BetweenMagnitudes(-1e-44, -100));
  ExpectAccuracy("Expm1_64f", mpfr_expm1,
                 Between(-750, 709.7) + Between(-2, 2) + BetweenMagnitudes(1e-323, 709) + BetweenMagnitudes(-1e-323, -750));
}

// Next to steps of the table's index, to the threshold, and below the edge of overflow.
TEST(Expm1, AccuracyNextToThresholds) {
  constexpr double ln2 = 0.6931471805599453;
  for (const bool is_32bit : {true, false}) {
    Arguments1 x = Around(is_32bit ? 86.64339447021484 : 707.7032713517042, is_32bit);
    for (int i = -128; i <= 128; ++i) x = x + Around((i + 0.5) / 32 * ln2, is_32bit, 5) + Around(i * ln2, is_32bit, 2);
    for (double a : Around(is_32bit ? 88.72283172607422 : 709.782712893384, is_32bit)) {
      if (a <= (is_32bit ? 88.72283172607422 : 709.782712893384)) x.push_back(a);
    }
    std::erase_if(x, [&](double a) { return a > (is_32bit ? 88.72283172607422 : 709.782712893384); });
    ExpectAccuracy(is_32bit ? "Expm1_32f" : "Expm1_64f", mpfr_expm1, x);
  }
}

}  // namespace
}  // namespace lum::test
