// Special arguments of complex functions have second vector paths beside the scalar cores. The portable library has the cores
// alone, so all libraries are held against it, over arrays in which all, many or few elements have special parts: special
// values, numbers next to limits of paths, of any exponent and with any bits.
#include <cmath>
#include <numbers>

#include "support/cases.h"
#include "support/environment.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

class Parts {
 public:
  explicit Parts(Format format, bool is_single) : format_(format), is_single_(is_single) {}

  Bits Ordinary() { return {format_.pattern(Uniform(-3, 3)), format_.pattern(Uniform(-3, 3))}; }
  Bits Special() { return {SpecialPart(), SpecialPart()}; }
  // Both parts of about the same size, any one.
  Bits OfOneSize() {
    const int exponent = is_single_ ? Integer(-149, 125) : Integer(-1074, 1021);
    const auto part = [&] { return Signed(format_.pattern(std::ldexp(Uniform(1, 4), exponent))); };
    return {part(), part()};
  }
  // One element of `period` special.
  Bits Mixed(size_t period) { return random_() % period == 0 ? Special() : Ordinary(); }

 private:
  uint64_t SpecialPart() {
    // Limits of the paths and of the results' range.
    static constexpr double limits[] = {
        1,        2,       0.5,      745,      710,     709.78,   708.4,     600,       512,      300,     200,      100,
        88.7,     103.9,   87.3,     1454,     1500,    2048,     10000,     1e5,       0x1p24,   1e22,    0x1p-20,  0x1p-126,
        0x1p-149, 0x1p127, 0x1p-200, 0x1p-800, 0x1p240, 0x1p-480, 0x1p-1022, 0x1p-1074, 0x1p1023, 0x1p480, 0x1p-511, 0x1p511};
    const double limit = limits[random_() % std::size(limits)];
    switch (random_() % 12) {
      case 0:
        return Signed(format_.pattern(0));
      case 1:
        return Signed(format_.infinity());
      case 2:
        return Signed(format_.infinity() | format_.quiet_bit());
      case 3:
        return Signed(format_.infinity() | 1 | (random_() & (format_.quiet_bit() - 1)));
      case 4:
        return Signed((format_.quiet_bit() - 1) >> random_() % 50 & random_());  // denormal
      case 5:
        return format_.pattern(limit);
      case 6:
        return Signed(format_.pattern(limit * (1 + Uniform(-1, 1) * std::ldexp(1, -Integer(0, 52)))));
      case 7:
        return Signed(format_.pattern(std::ldexp(Uniform(1, 2), is_single_ ? Integer(-149, 127) : Integer(-1074, 1023))));
      case 8:
        return Signed(format_.pattern(Uniform(is_single_ ? 80 : 500, is_single_ ? 110 : 760)));
      case 9:
        return Signed(format_.pattern(Integer(0, 40) * (std::numbers::pi / 8)));
      case 10:
        return Signed(format_.pattern(Uniform(0, 20000)));
      default:
        return format_.pattern(Uniform(-3, 3));
    }
  }
  uint64_t Signed(uint64_t pattern) { return random_() % 2 == 0 ? pattern : pattern | format_.sign(); }
  double Uniform(double low, double high) { return std::uniform_real_distribution(low, high)(random_); }
  int Integer(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }

  Format format_;
  bool is_single_;
  Random random_{23};
};

class SecondPaths : public testing::TestWithParam<const Export*> {};

TEST_P(SecondPaths, SpecialArgumentsAsThePortableLibrary) {
  const Export& entry = *GetParam();
  std::string reason;
  const support::Library* portable = TestLibrary("p0", "", reason);
  if (portable == nullptr) GTEST_SKIP() << reason;
  Parts parts(FormatOf(entry.input), entry.input == Element::c32);
  for (size_t period : {1, 2, 32}) {
    for (int round = 0; round < 60; ++round) {
      Batch batch(entry);
      const size_t size = 1000 + static_cast<size_t>(round);
      for (size_t i = 0; i < size; ++i) {
        batch.src1.Append(parts.Mixed(period));
        if (entry.inputs() == 2) batch.src2.Append(parts.Mixed(period));
      }
      if (entry.function == "Powx") batch.value.Append(parts.Mixed(2));
      const Output expected = Callee(*portable, entry).Run(batch);
      for (const std::string& name : RunnableLibraries()) {
        const Output actual = Callee(*TestLibrary(name, "", reason), entry).Run(batch);
        ASSERT_EQ(DifferenceOfLibraries(expected, actual, batch), "equal") << name;
      }
    }
  }
}

// Vectors of which all elements are special in the same way take branches of their own.
TEST_P(SecondPaths, UniformArraysAsThePortableLibrary) {
  const Export& entry = *GetParam();
  std::string reason;
  const support::Library* portable = TestLibrary("p0", "", reason);
  if (portable == nullptr) GTEST_SKIP() << reason;
  const Format format = FormatOf(entry.input);
  const auto& keys = KeyComponents(format);
  for (uint64_t re : keys) {
    for (uint64_t im : keys) {
      Batch batch(entry);
      for (size_t i = 0; i < 37; ++i) {
        batch.src1.Append({re, im});
        if (entry.inputs() == 2) batch.src2.Append({keys[i % keys.size()], im});
      }
      if (entry.function == "Powx") batch.value.Append({format.pattern(1.5), format.pattern(-0.75)});
      const Output expected = Callee(*portable, entry).Run(batch);
      for (const std::string& name : RunnableLibraries()) {
        const Output actual = Callee(*TestLibrary(name, "", reason), entry).Run(batch);
        ASSERT_EQ(DifferenceOfLibraries(expected, actual, batch), "equal") << name;
      }
    }
  }
}

// Second arguments of the parts of the first ones, nearly or exactly: sums of products cancel, down to zero.
TEST_P(SecondPaths, CancellingProductsAsThePortableLibrary) {
  const Export& entry = *GetParam();
  if (entry.inputs() != 2) return;
  std::string reason;
  const support::Library* portable = TestLibrary("p0", "", reason);
  if (portable == nullptr) GTEST_SKIP() << reason;
  const Format format = FormatOf(entry.input);
  Parts parts(format, entry.input == Element::c32);
  Random random(24);
  const auto nearly = [&](Bits z) {
    const uint64_t bits = (random() % 2 == 0 ? z.re : z.im) ^ (random() % 2 == 0 ? format.sign() : 0);
    return random() % 4 == 0 ? bits ^ uint64_t { 1 } << random() % 20 : bits;
  };
  for (int round = 0; round < 200; ++round) {
    Batch batch(entry);
    for (int i = 0; i < 500; ++i) {
      const Bits z = round % 2 == 0 ? parts.Special() : parts.OfOneSize();
      batch.src1.Append(z);
      batch.src2.Append({nearly(z), nearly(z)});
    }
    const Output expected = Callee(*portable, entry).Run(batch);
    for (const std::string& name : RunnableLibraries()) {
      const Output actual = Callee(*TestLibrary(name, "", reason), entry).Run(batch);
      ASSERT_EQ(DifferenceOfLibraries(expected, actual, batch), "equal") << name;
    }
  }
}

std::vector<const Export*> ComplexFunctions() {
  std::vector<const Export*> list;
  for (const Export& entry : support::Exports()) {
    if (support::IsComplex(entry.input)) list.push_back(&entry);
  }
  return list;
}

INSTANTIATE_TEST_SUITE_P(All, SecondPaths, testing::ValuesIn(ComplexFunctions()),
                         [](const auto& test) { return std::string(test.param->name); });

}  // namespace
}  // namespace lum::test
