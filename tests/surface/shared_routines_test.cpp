// What kernels of different levels or types have in common although they are kernels of their own: the routine that finishes
// their refused lanes, and the scalar core of a complex function.
#include <bit>
#include <cmath>
#include <functional>

#include "support/cases.h"
#include "support/declarations.h"

namespace lum::test {
namespace {

// Patterns of arguments that all tags of a function refuse.
using Refused = std::function<uint64_t(Format, Random&)>;

// An infinity or a NaN, quiet or signalling, with any payload.
uint64_t NonFinite(Format format, Random& random) {
  const uint64_t payload = random() % 4 == 0 ? 0 : random() & format.fraction();
  return (random() & format.sign()) | format.infinity() | payload;
}
Refused NonFiniteOr(double low, double high) {
  return [=](Format format, Random& random) {
    if (random() % 8 == 0) return NonFinite(format, random);
    return format.pattern(std::uniform_real_distribution<double>(low, high)(random));
  };
}
uint64_t OutsideUnitInterval(Format format, Random& random) {
  if (random() % 8 == 0) return NonFinite(format, random);
  const double magnitude = random() % 8 == 0 ? 1 : std::uniform_real_distribution<double>(1, 10)(random);
  return format.pattern((random() & 1) != 0 ? magnitude : -magnitude);
}
uint64_t HugePart(Format format, Random& random) {
  return random() % 8 == 0 ? NonFinite(format, random)
                           : format.pattern(std::ldexp(1.0 + static_cast<double>(random() % 1000) / 1000, 110));
}

struct SharedRoutine {
  std::vector<std::string> names;
  Refused refused;
};

const std::vector<SharedRoutine>& SharedRoutines() {
  static const std::vector<SharedRoutine> list = {
      {{"Acosh_32f"}, NonFiniteOr(-5, 1)},
      {{"Acosh_64f"}, NonFiniteOr(-5, 1)},
      {{"Asinh_32f"}, NonFinite},
      {{"Atanh_32f"}, OutsideUnitInterval},
      {{"Atanh_64f"}, OutsideUnitInterval},
      {{"CIS_32fc"}, NonFinite},
      {{"Cos_32f", "Tan_32f"}, NonFinite},
      {{"SinCos_32f"}, NonFinite},
      {{"Sin_32f"}, NonFinite},
      {{"Exp_32f_A11", "Exp_32f_A21"}, NonFiniteOr(88, 95)},
      {{"Exp_32f_A11", "Exp_32f_A21"}, NonFiniteOr(-110, -88)},
      {{"Expm1_32f_A11", "Expm1_32f_A21"}, NonFiniteOr(87, 95)},
      {{"MulByConj_32fc_A21", "MulByConj_32fc_A24"}, HugePart},
  };
  return list;
}

TEST(SharedRoutines, FinishRefusedLanesAlike) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    for (const SharedRoutine& shared : SharedRoutines()) {
      std::vector<const Export*> entries;
      for (const std::string& group : shared.names) {
        for (const Export* entry : ExportsNamed(group)) entries.push_back(entry);
      }
      ASSERT_GE(entries.size(), 2u);
      Random random(3);
      Batch batch(*entries[0]);
      const Format format = FormatOf(batch.src1.element());
      const auto any = [&] { return Bits{shared.refused(format, random), 0}; };
      const auto any_pair = [&] { return Bits{shared.refused(format, random), shared.refused(format, random)}; };
      for (int i = 0; i < 3000; ++i) {
        batch.src1.Append(support::IsComplex(entries[0]->input) ? any_pair() : any());
        if (entries[0]->inputs() == 2) batch.src2.Append(any_pair());
      }
      std::vector<LumStatus> expected_statuses, statuses;
      const Output expected = Callee(library, *entries[0]).RunEach(batch, expected_statuses);
      for (const Export* entry : entries) {
        EXPECT_EQ(FirstDifference(expected, Callee(library, *entry).RunEach(batch, statuses)), "equal") << entry->name;
        EXPECT_EQ(statuses, expected_statuses) << entry->name;
      }
    }
  }
}

Bits Widened(Bits narrow) {
  const auto widen = [](uint64_t pattern) {
    return std::bit_cast<uint64_t>(static_cast<double>(std::bit_cast<float>(static_cast<uint32_t>(pattern))));
  };
  return {widen(narrow.re), widen(narrow.im)};
}
Bits Narrowed(Bits wide) {
  const auto narrow = [](uint64_t pattern) {
    return std::bit_cast<uint32_t>(static_cast<float>(std::bit_cast<double>(pattern)));
  };
  return {narrow(wide.re), narrow(wide.im)};
}
Array Widened(const Array& array) {
  Array wide(Element::c64);
  for (size_t i = 0; i < array.size(); ++i) wide.Append(Widened(array[i]));
  return wide;
}

// The functions whose scalar core serves both types. Powx, whose parameter the core takes as a second argument, has a test of
// its own.
std::vector<std::string> FunctionsOfOneCore() {
  std::vector<std::string> functions;
  for (const Export& entry : support::Exports()) {
    const bool is_one = entry.type == "32fc" && entry.tier == support::Tier::high && !entry.has_parameter();
    if (is_one && support::HasScalarCore(entry)) functions.emplace_back(entry.function);
  }
  return functions;
}

// The results of 32fc are those of 64fc rounded.
TEST(SharedCores, OfBothComplexTypes) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    for (const std::string& function : FunctionsOfOneCore()) {
      const Export& narrow = *ExportsNamed(function + "_32fc").at(0);
      const Export& wide = *ExportsNamed(function + "_64fc").at(0);
      const Batch batch = Sample(narrow, 3000);
      Batch wide_batch(wide);
      wide_batch.src1 = Widened(batch.src1);
      if (narrow.inputs() == 2) wide_batch.src2 = Widened(batch.src2);
      const Output wide_output = Callee(library, wide).Run(wide_batch);
      Output expected(narrow);
      for (size_t i = 0; i < batch.size(); ++i) expected.dst1.Append(Narrowed(wide_output.dst1[i]));
      const Output actual = Callee(library, narrow).Run(batch);
      expected.status = actual.status;
      EXPECT_EQ(FirstDifference(expected, actual), "equal") << function;
    }
  }
}

// A power with one exponent for all is the power with that exponent for each.
TEST(SharedCores, OfPowAndPowx) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    const support::Library& library = *TestLibrary(name, "", reason);
    const Export& powx = *ExportsNamed("Powx_32fc").at(0);
    const Export& pow = *ExportsNamed("Pow_32fc").at(0);
    for (int exponent = 0; exponent < 20; ++exponent) {
      const Batch batch = Sample(powx, 500, static_cast<uint64_t>(exponent));
      Batch pairs(pow);
      pairs.src1 = batch.src1;
      for (size_t i = 0; i < batch.size(); ++i) pairs.src2.Append(batch.value[0]);
      EXPECT_EQ(FirstDifference(Callee(library, pow).Run(pairs), Callee(library, powx).Run(batch)), "equal");
    }
  }
}

}  // namespace
}  // namespace lum::test
