// Of two NaNs a function of two real arguments gives the first one, quieted, in every library and at every position; a complex
// sum does so part by part.
#include "support/subjects.h"

namespace lum::test {
namespace {

// Quiet and signalling, of both signs, with different payloads.
std::vector<uint64_t> Nans(Format format) {
  std::vector<uint64_t> nans;
  for (uint64_t sign : {uint64_t{0}, format.sign()}) {
    for (uint64_t payload : {uint64_t{1}, uint64_t{0x155}, format.quiet_bit() - 1}) {
      nans.push_back(sign | format.infinity() | payload);
      nans.push_back(sign | format.infinity() | format.quiet_bit() | payload);
    }
  }
  return nans;
}

bool HasTwoRealArguments(const Export& entry) {
  if (support::IsComplex(entry.input)) return entry.function == "Add" || entry.function == "Sub";
  return entry.inputs() == 2;
}

class TwoNans : public ExportTest {
 protected:
  // Pairs of NaNs among ordinary elements, so many that all lanes of blocks and tails have some.
  Batch Pairs(size_t size) const {
    const auto nans = Nans(FormatOf(entry().input));
    Batch batch = Sample(entry(), size);
    Random random(size);
    const auto any = [&] { return nans[random() % nans.size()]; };
    for (size_t i = 0; i < size; ++i) {
      if (random() % 4 == 0) continue;
      batch.src1.Set(i, {any(), any()});
      batch.src2.Set(i, {any(), any()});
    }
    return batch;
  }
};

TEST_P(TwoNans, GiveTheFirstQuieted) {
  if (!HasTwoRealArguments(entry())) GTEST_SKIP() << "is not a function of two real arguments";
  const Format format = FormatOf(entry().output);
  size_t compared = 0;
  for (size_t size : {1, 7, 16, 40, 64, 77, 300}) {
    const Batch batch = Pairs(size);
    const Output output = callee().Run(batch);
    const auto expect = [&](uint64_t a, uint64_t b, uint64_t result, size_t i) {
      if (!format.is_nan(a) || !format.is_nan(b)) return;
      EXPECT_EQ(result, a | format.quiet_bit()) << batch.Show(i) << " at " << i << " of " << size << ": " << output.Show(i);
      ++compared;
    };
    for (size_t i = 0; i < batch.size(); ++i) {
      const Bits a = batch.src1[i], b = batch.src2[i], result = output.dst1[i];
      expect(a.re, b.re, result.re, i);
      if (support::IsComplex(entry().input)) expect(a.im, b.im, result.im, i);
    }
  }
  EXPECT_GT(compared, 100u);
}

TEST_P(TwoNans, OfElementAndParameter) {
  if (entry().shape != support::Shape::ScalarParameter || support::IsComplex(entry().input)) {
    GTEST_SKIP() << "has no real parameter";
  }
  const Format format = FormatOf(entry().input);
  for (uint64_t parameter : Nans(format)) {
    Batch batch(entry());
    batch.value = Array(entry().input, {{parameter, 0}});
    for (uint64_t nan : Nans(format)) batch.src1.Append({nan, 0});
    const Output output = callee().Run(batch);
    for (size_t i = 0; i < batch.size(); ++i) {
      EXPECT_EQ(output.dst1[i].re, batch.src1[i].re | format.quiet_bit()) << batch.Show(i) << ": " << output.Show(i);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, TwoNans, testing::ValuesIn(CatalogueSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
