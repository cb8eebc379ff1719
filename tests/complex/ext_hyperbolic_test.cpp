// Hyperbolic sine, cosine and tangent in extended precision.
#include "complex/extended.h"

namespace lum::test {
namespace {

Numbers HyperbolicArguments() {
  Numbers x = OfExponents(1, 0x3fb0, 1) + OfExponents(0x3fb1, 0x3ff9, 60) + OfExponents(0x3ffa, 0x400c, 3000);
  for (const int rung : {0x3fb4, 0x3fed, 0x3fee, 0x3ff3, 0x3ff4, 0x3ff5, 0x3ff8, 0x3ffa, 0x3ffe, 0x4004, 0x400c})
    x = x + AroundExponent(rung);
  // Where e^-|x| is dropped, where the tangent's quotient ends, the last finite results.
  for (const Extended edge :
       {26.16563224792480468750L, 26.1656341552734375L, 4.70002746582031250L, 11356.5234062941439488L, 11357.2165534747038948L})
    x = x + Around(edge, 60) + Around(-edge, 60) + Uniform(edge - 1, edge + 1, 500);
  return x;
}

TEST(ExtHyperbolic, Accuracy) {
  const Numbers x = HyperbolicArguments();
  ExpectAccurate("ExtSinh", ExtSinh, mpfr_sinh, x);
  ExpectAccurate("ExtCosh", ExtCosh, mpfr_cosh, x);
  ExpectAccurate("ExtTanh", ExtTanh, mpfr_tanh, x);
}

TEST(ExtHyperbolic, BothAreTheTwo) {
  for (const Extended x : HyperbolicArguments() + Specials()) {
    Extended sinh = 0, cosh = 0, both_sinh = x, both_cosh = 0;
    ExtSinh(sinh, x);
    ExtCosh(cosh, x);
    ExtSinhCosh(both_sinh, both_sinh, both_cosh);  // a result may lie over the argument
    EXPECT_TRUE(Same(both_sinh, sinh)) << x;
    EXPECT_TRUE(Same(both_cosh, cosh)) << x;
  }
}

TEST(ExtHyperbolic, LastFiniteArgument) {
  const Extended last = FromFields(0x400c, 0xb174ddc031aec0e9), next = FromFields(0x400c, 0xb174ddc031aec0ea);
  for (Function* function : {ExtSinh, ExtCosh}) {
    Extended result = 0;
    function(result, last);
    EXPECT_LT(result, infinity);
    function(result, next);
    EXPECT_EQ(result, infinity);
  }
  Extended result = 0;
  ExtSinh(result, -next);
  EXPECT_EQ(result, -infinity);
}

TEST(ExtHyperbolic, SpecialValues) {
  struct Row {
    Extended x, sinh, cosh, tanh;
  };
  const Extended tiny = ExtendedLimits::denorm_min(), huge = ExtendedLimits::max();
  for (const Row& row : {Row{0.0L, 0.0L, 1, 0.0L},
                         {-0.0L, -0.0L, 1, -0.0L},
                         {tiny, tiny, 1, tiny},
                         {-tiny, -tiny, 1, -tiny},
                         {infinity, infinity, infinity, 1},
                         {-infinity, -infinity, infinity, -1},
                         {huge, infinity, infinity, 1},
                         {-huge, -infinity, infinity, -1},
                         {not_a_number, not_a_number, not_a_number, not_a_number},
                         {SignallingNaN(), not_a_number, not_a_number, not_a_number}}) {
    Extended sinh = 5, cosh = 5, tanh = 5;
    ExtSinh(sinh, row.x);
    ExtCosh(cosh, row.x);
    ExtTanh(tanh, row.x);
    EXPECT_TRUE(Same(sinh, row.sinh)) << row.x;
    EXPECT_TRUE(Same(cosh, row.cosh)) << row.x;
    EXPECT_TRUE(Same(tanh, row.tanh)) << row.x;
  }
}

}  // namespace
}  // namespace lum::test
