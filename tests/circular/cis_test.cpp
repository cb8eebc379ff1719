// CIS: the pairs of SinCos, without a status.
#include "circular.h"

namespace lum::test {
namespace {

TEST(CIS, Zeros) {
  ExpectCases("CIS_32fc", {{0.0, {1, 0.0}}, {-0.0, {1, -0.0}}});
  ExpectCases("CIS_64fc", {{0.0, {1, 0.0}}, {-0.0, {1, -0.0}}});
}

// Deliberately silent, where SinCos reports.
TEST(CIS, InfinitiesAndNanGiveNanWithoutStatus) {
  for (const char* name : {"CIS_32fc", "CIS_64fc"})
    ExpectCases(name, {{inf, {any_nan, any_nan}}, {-inf, {any_nan, any_nan}}, {nan, {any_nan, any_nan}}});
  ExpectCases("CIS_32fc", {{FromBits(0x7F812345), {any_nan, any_nan}}});
  ExpectCases("CIS_64fc", {{FromBits(0x7FF0000000012345), {any_nan, any_nan}}});
}

// Bit for bit, in blocks and tails of all lengths, over all reductions.
void ExpectPairsOfSinCos(const char* type, const char* pairs_type, const char* tag, const Arguments1& x) {
  const Export& sincos = *ExportsNamed(std::string("SinCos_") + type + "_" + tag).at(0);
  const Export& cis = *ExportsNamed(std::string("CIS_") + pairs_type + "_" + tag).at(0);
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    for (size_t count : {x.size(), size_t{1}, size_t{5}, size_t{37}}) {
      Batch batch(sincos), pairs(cis);
      for (size_t i = 0; i < count; ++i) {
        batch.src1.Append({FormatOf(sincos.input).pattern(x[i]), 0});
        pairs.src1.Append({FormatOf(sincos.input).pattern(x[i]), 0});
      }
      const Output expected = Callee(library, sincos).Run(batch), actual = Callee(library, cis).Run(pairs);
      EXPECT_EQ(actual.status, lumStsOk);
      for (size_t i = 0; i < count; ++i) {
        ASSERT_EQ(actual.dst1[i].im, expected.dst1[i].re) << name << ' ' << cis.name << ' ' << batch.Show(i);
        ASSERT_EQ(actual.dst1[i].re, expected.dst2[i].re) << name << ' ' << cis.name << ' ' << batch.Show(i);
      }
    }
  }
}
TEST(CIS, IsSinCosInPairs) {
  for (const char* tag : {"A11", "A21", "A24"}) {
    ExpectPairsOfSinCos("32f", "32fc", tag, Between(-600000, 600000) + AllFloatExponents() + HardestFloats());
  }
  for (const char* tag : {"A26", "A50", "A53"}) {
    ExpectPairsOfSinCos("64f", "64fc", tag, Between(-2e7, 2e7) + AllDoubleExponents() + HardestDoubles());
  }
}

TEST(CIS, HugeArgumentsLeaveTheirNeighbours) {
  ExpectNeighboursUnchanged("CIS_32fc", true);
  ExpectNeighboursUnchanged("CIS_64fc", false);
}

}  // namespace
}  // namespace lum::test
