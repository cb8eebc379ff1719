// f(conj z) = conj f(z), bit for bit: rounding to nearest knows no sign, and the sign of a zero chooses the side of a cut.
#include <cmath>

#include "support/subjects.h"

namespace lum::test {
namespace {

uint64_t Component(Format format, Random& random) {
  const auto uniform = [&](double size) { return size * (static_cast<double>(random() >> 40) * 0x1p-23 - 1); };
  const int lowest = format.fraction_bits == 23 ? -149 : -1074;
  switch (random() % 6) {
    case 0:
      return RandomComponent(format, random);
    case 1:
      return format.pattern(uniform(2));
    case 2:
      return format.pattern(uniform(20));
    case 3:
      return format.pattern(uniform(format.fraction_bits == 23 ? 105 : 750));
    case 4:
      return format.pattern(std::ldexp(uniform(1), static_cast<int>(random() % static_cast<uint64_t>(-lowest)) + lowest));
    default:
      return format.pattern(std::round(uniform(16)) / 4);
  }
}
Bits ElementOf(Format format, Random& random) {
  const uint64_t re = Component(format, random);
  return {re, random() % 8 == 0 ? re : Component(format, random)};
}

void Conjugate(Array& array) {
  for (size_t i = 0; i < array.size(); ++i) array.Set(i, {array[i].re, array[i].im ^ FormatOf(array.element()).sign()});
}
Batch ConjugateOf(Batch batch) {
  Conjugate(batch.src1);
  Conjugate(batch.src2);
  Conjugate(batch.value);
  return batch;
}

// Where the imaginary part, or that of the exponential whose power it is, is a sum of products: terms that cancel give +0 in
// both, since the sign of such a zero does not follow from the operands'.
bool HasSumAsImaginaryPart(const Export& entry) {
  for (const char* function : {"Add", "Sub", "Mul", "MulByConj", "Div", "Pow", "Powx"}) {
    if (entry.function == function) return true;
  }
  return false;
}

// The logarithm of the ratio of two distances, whose rounding the exchange of the distances changes: now and then the last bit.
bool HasRatioAsImaginaryPart(const Export& entry) { return entry.function == "Atan"; }

class Conjugates : public ExportTest {
 protected:
  void ExpectConjugates(const Batch& batch) {
    const Output output = callee().Run(batch), conjugate = callee().Run(ConjugateOf(batch));
    const Format format = FormatOf(entry().output);
    const auto agree = [&](uint64_t a, uint64_t b) { return a == b || (format.is_nan(a) && format.is_nan(b)); };
    const auto is_zero = [&](uint64_t a) { return format.magnitude(a) == 0; };
    for (size_t i = 0; i < batch.size(); ++i) {
      if (batch.Nans(i) != 0) continue;
      Bits expected = output.dst1[i];
      const Bits actual = conjugate.dst1[i];
      if (entry().function == "Arg") expected.re ^= format.sign();
      else if (support::IsComplex(entry().output)) expected.im ^= format.sign();
      bool is_same = agree(expected.im, actual.im);
      if (HasSumAsImaginaryPart(entry())) is_same |= is_zero(expected.im) && is_zero(actual.im);
      if (HasRatioAsImaginaryPart(entry())) is_same |= expected.im - actual.im + 1 <= 2;
      if (is_same && agree(expected.re, actual.re)) continue;
      ADD_FAILURE() << batch.Show(i) << "\n  gives      " << output.Show(i) << "\n  conjugate  " << conjugate.Show(i);
      return;
    }
  }
};

TEST_P(Conjugates, SpecialAndRandomArguments) {
  for (const Batch& batch : Sweep(entry(), 5000)) ExpectConjugates(batch);
}

TEST_P(Conjugates, ArgumentsOfAllSizes) {
  const Format format = FormatOf(entry().input);
  Random random(23);
  for (int round = 0; round < (entry().has_parameter() ? 100 : 5); ++round) {
    Batch batch(entry());
    for (int i = 0; i < (entry().has_parameter() ? 500 : 10000); ++i) {
      batch.src1.Append(ElementOf(format, random));
      if (entry().inputs() == 2) batch.src2.Append(ElementOf(format, random));
    }
    if (entry().has_parameter()) batch.value.Append(ElementOf(format, random));
    ExpectConjugates(batch);
  }
}

std::vector<Subject> FunctionsOfComplexNumbers() {
  std::vector<Subject> list;
  for (const Subject& subject : CatalogueSubjects()) {
    if (support::IsComplex(subject.entry->input)) list.push_back(subject);
  }
  return list;
}

INSTANTIATE_TEST_SUITE_P(Exports, Conjugates, testing::ValuesIn(FunctionsOfComplexNumbers()), NameOf);

}  // namespace
}  // namespace lum::test
