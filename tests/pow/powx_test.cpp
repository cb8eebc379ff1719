// Powx: which path each exponent takes at each tier, with results, statuses and hook calls; exponents that refuse every lane;
// arrays in place; accuracy of the general paths.
#include <cmath>
#include <cstring>

#include "support/accuracy.h"
#include "support/cases.h"
#include "support/recorder.h"

namespace lum::test {
namespace {

const char* const both[] = {"Powx_32f", "Powx_64f"};
const char* const with_chains[] = {"Powx_32f_A11", "Powx_32f_A21", "Powx_64f_A26", "Powx_64f_A50"};
const char* const without_chains[] = {"Powx_32f_A24", "Powx_64f_A53"};
constexpr double third = 1.0 / 3;

const Export& ExportOf(std::string_view name) { return *ExportsNamed(name).front(); }

// Special values and others of all classes.
Array Elements(const Export& entry) {
  Array array(entry.input);
  for (const Bits& bits : SpecialElements(entry.input)) array.Append(bits);
  Random random(5);
  for (int i = 0; i < 700; ++i) array.Append(RandomElement(entry.input, random));
  for (double x : BetweenMagnitudes(1e-5, 1e5, 300) + Between(-3, 3, 200)) array.Append({FormatOf(entry.input).pattern(x), 0});
  return array;
}
Batch WithValue(const Export& entry, const Array& x, double value) {
  Batch batch(entry);
  batch.src1 = x;
  batch.value.Append({FormatOf(entry.input).pattern(value), 0});
  return batch;
}

// A call with its status and what the hook saw.
struct Seen {
  Output output;
  std::vector<std::pair<int32_t, int32_t>> reports;  // index, status
};
Seen RunRecorded(const support::Library& library, const Export& entry, const Batch& batch) {
  Recorder recorder(library, entry);
  Seen seen{Callee(library, entry).Run(batch), {}};
  for (const auto& logged : recorder.log()) seen.reports.emplace_back(logged.call.index, logged.call.status);
  return seen;
}

// On every library that can run: test(library).
template <class Test> void OnEveryLibrary(Test test) {
  for (const std::string& name : RunnableLibraries()) {
    SCOPED_TRACE(name);
    std::string reason;
    const support::Library* library = TestLibrary(name, "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    test(*library);
  }
}

// Powx with the exponent is the function of the same tier: bits, status and reports.
void ExpectIsFunction(const std::string& powx, double value, const std::string& function) {
  OnEveryLibrary([&](const support::Library& library) {
    SCOPED_TRACE(powx + " " + std::to_string(value));
    const Array x = Elements(ExportOf(powx));
    Batch plain(ExportOf(function));
    plain.src1 = x;
    const Seen expected = RunRecorded(library, ExportOf(function), plain);
    const Seen actual = RunRecorded(library, ExportOf(powx), WithValue(ExportOf(powx), x, value));
    EXPECT_EQ(FirstDifference(expected.output, actual.output, plain), "equal");
    EXPECT_EQ(expected.reports, actual.reports);
  });
}

TEST(PowxDispatch, FunctionsOfTheirOwn) {
  for (const char* tier : {"32f_A11", "32f_A21", "32f_A24", "64f_A26", "64f_A50", "64f_A53"}) {
    const std::string powx = std::string("Powx_") + tier;
    ExpectIsFunction(powx, 0.5, std::string("Sqrt_") + tier);
    ExpectIsFunction(powx, -0.5, std::string("InvSqrt_") + tier);
    ExpectIsFunction(powx, 1.5, std::string("Pow3o2_") + tier);
    if (std::string(tier) != "64f_A50") ExpectIsFunction(powx, -1, std::string("Inv_") + tier);
  }
}

TEST(PowxDispatch, ThirdsAtTheLowTags) {
  for (const char* tier : {"32f_A11", "64f_A26"}) {
    const std::string powx = std::string("Powx_") + tier;
    ExpectIsFunction(powx, third, std::string("Cbrt_") + tier);
    ExpectIsFunction(powx, -third, std::string("InvCbrt_") + tier);
    ExpectIsFunction(powx, 2 * third, std::string("Pow2o3_") + tier);
  }
}

// Elsewhere a third is an exponent like any other, and a negative base is outside the domain.
TEST(PowxDispatch, ThirdsAtTheOtherTags) {
  for (const char* name : {"Powx_32f_A21", "Powx_32f_A24", "Powx_64f_A50", "Powx_64f_A53"}) {
    for (double value : {third, -third, 2 * third}) ExpectCases(name, {{-8, value, default_nan, lumStsDomain}});
    ExpectCases(name, {{-0.0, third, 0.0}, {-0.0, -third, inf, lumStsDomain}});
  }
  // Next to a third it is the same at the low tags.
  ExpectCases("Powx_32f_A11", {{-8, 0x1.555554p-2, default_nan, lumStsDomain}});
  ExpectCases("Powx_64f_A26", {{-8, 0x1.5555555555556p-2, default_nan, lumStsDomain}});
}

// The reciprocal of A50 is one of its own, with the special values and reports of the others.
TEST(PowxDispatch, ReciprocalA50) {
  ExpectCases("Powx_64f_A50", {{2, -1, 0.5},
                               {-4, -1, -0.25},
                               {0.0, -1, inf, lumStsSingularity},
                               {-0.0, -1, -inf, lumStsSingularity},
                               {inf, -1, 0.0},
                               {-inf, -1, -0.0},
                               {min_denormal, -1, inf},
                               {max, -1, 0x1p-1024},
                               {nan, -1, nan},
                               {-nan, -1, -nan}});
  ExpectAccuracy("Powx_64f_A50", mpfr_pow, BetweenMagnitudes(1e-300, 1e300) + BetweenMagnitudes(-1, -10) + Around(1, false),
                 {-1});
}

// The product from the left in the arithmetic of the type, and its reciprocal.
template <class T> Array Products(const Array& x, int n) {
  Array products(x.element());
  for (size_t i = 0; i < x.size(); ++i) {
    const T factor = static_cast<T>(FormatOf(x.element()).number(x[i].re));
    T p = factor * factor;
    for (int k = 2; k < n; ++k) p = factor * p;
    products.Append({FormatOf(x.element()).pattern(p), 0});
  }
  return products;
}
Array ProductsOf(const Export& entry, const Array& x, int n) {
  return entry.is_32bit() ? Products<float>(x, n) : Products<double>(x, n);
}
// Ordinary numbers and such whose powers leave the range, without NaN, whose bits are the arithmetic's matter.
Array FiniteElements(const Export& entry) {
  Array array(entry.input);
  const double end = entry.is_32bit() ? 1e38 : 1e300;
  for (double x : Between(-3, 3, 300) + BetweenMagnitudes(1 / end, end, 300) + BetweenMagnitudes(-1 / end, -end, 300) +
                      Arguments1{0.0, -0.0, inf, -inf})
    array.Append({FormatOf(entry.input).pattern(x), 0});
  return array;
}

void ExpectProducts(const char* name, int n) {
  OnEveryLibrary([&](const support::Library& library) {
    const Batch batch = WithValue(ExportOf(name), FiniteElements(ExportOf(name)), n);
    Output expected(ExportOf(name), batch.size());
    expected.dst1 = ProductsOf(ExportOf(name), batch.src1, n);
    const Seen seen = RunRecorded(library, ExportOf(name), batch);
    EXPECT_EQ(FirstDifference(expected, seen.output, batch), "equal") << name << " to the power " << n;
    EXPECT_TRUE(seen.reports.empty());
  });
}

TEST(PowxDispatch, IntegersAreProductsFromTheLeft) {
  for (const char* name : with_chains) {
    for (int n = 2; n <= 9; ++n) ExpectProducts(name, n);
  }
  for (const char* name : without_chains) ExpectProducts(name, 2);
}

TEST(PowxDispatch, ProductsOfNanAndOverflow) {
  for (const char* name : both)
    ExpectCases(name, {{nan, 2, nan}, {-nan, 2, -nan}, {inf, 2, inf}, {-inf, 2, inf}, {max, 2, inf}});
  for (const char* name : with_chains) {
    ExpectCases(name, {{nan, 3, nan}, {-nan, 9, -nan}, {max, 5, inf}, {-max, 3, -inf}, {-inf, 7, -inf}, {-0.0, 3, -0.0}});
  }
  ExpectCases("Powx_32f", {{1e30, 2, inf}, {FromBits(0x7F812345), 2, FromBits(0x7FC12345)}});
}

TEST(PowxDispatch, NegativeIntegersAreReciprocalsOfProducts) {
  for (const char* name : {"Powx_32f_A11", "Powx_32f_A21", "Powx_64f_A26"}) {
    for (int n = 2; n <= 4; ++n) {
      OnEveryLibrary([&](const support::Library& library) {
        const Export& inv = ExportOf(std::string("Inv_") + (name + 5));
        const Batch batch = WithValue(ExportOf(name), FiniteElements(ExportOf(name)), -n);
        Batch products(inv);
        products.src1 = ProductsOf(ExportOf(name), batch.src1, n);
        const Seen expected = RunRecorded(library, inv, products);
        const Seen actual = RunRecorded(library, ExportOf(name), batch);
        EXPECT_EQ(FirstDifference(expected.output, actual.output, products), "equal") << name << " to the power " << -n;
        EXPECT_EQ(expected.reports, actual.reports);
        EXPECT_FALSE(actual.reports.empty());
      });
    }
  }
  // A power that underflows to zero is a pole there, and none for the general paths.
  for (const char* name : with_chains) {
    ExpectCases(name, {{min_denormal, -2, inf, lumStsSingularity},
                       {-min_denormal, -3, -inf, lumStsSingularity},
                       {-0.0, -3, -inf, lumStsSingularity},
                       {0.0, -4, inf, lumStsSingularity},
                       {-inf, -3, -0.0},
                       {nan, -2, nan}});
  }
  ExpectCases("Powx_64f_A50", {{2, -2, 0.25}, {-2, -3, -0.125}, {0.5, -4, 16}});
  for (const char* name : without_chains) {
    ExpectCases(name, {{min_denormal, -2, inf},
                       {-min_denormal, -3, -inf},
                       {-0.0, -3, -inf, lumStsDomain},
                       {0.0, -4, inf, lumStsDomain},
                       {-inf, -3, -0.0},
                       {-2, -3, -0.125}});
  }
}

TEST(PowxDispatch, ZeroFillsWithoutReading) {
  for (const char* name : both) {
    ExpectCases(name, {{nan, 0.0, 1}, {-0.0, -0.0, 1}, {inf, 0.0, 1}, {-3, -0.0, 1}});
    for (const Export* entry : ExportsNamed(name)) {
      OnEveryLibrary([&](const support::Library& library) {
        for (double zero : {0.0, -0.0}) {
          const Batch batch = WithValue(*entry, FiniteElements(*entry), zero);
          Output output(*entry, batch.size());
          auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
          arguments.src1 = reinterpret_cast<const void*>(uintptr_t{16});  // nobody's memory
          EXPECT_EQ(Callee(library, *entry).Call(arguments), lumStsOk);
          for (size_t i = 0; i < batch.size(); ++i) ASSERT_EQ(output.dst1[i].re, FormatOf(entry->input).pattern(1));
          arguments.src1 = nullptr;
          EXPECT_EQ(Callee(library, *entry).Call(arguments), lumStsNullPtrErr);
          arguments.len = 0;
          EXPECT_EQ(Callee(library, *entry).Call(arguments), lumStsSizeErr);
        }
      });
    }
  }
}

TEST(PowxDispatch, OneCopiesBits) {
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      OnEveryLibrary([&](const support::Library& library) {
        const Batch batch = WithValue(*entry, Elements(*entry), 1);
        const Seen seen = RunRecorded(library, *entry, batch);
        for (size_t i = 0; i < batch.size(); ++i) ASSERT_EQ(seen.output.dst1[i].re, batch.src1[i].re);
        EXPECT_EQ(seen.output.status, lumStsOk);
        EXPECT_TRUE(seen.reports.empty());
      });
    }
  }
}

// Arguments are checked before any path is taken, or by the path.
TEST(PowxDispatch, BadArguments) {
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      OnEveryLibrary([&](const support::Library& library) {
        for (double value : {0.0, 1.0, 2.0, 3.0, 0.5, -0.5, 1.5, -1.0, -2.0, -4.0, third, -third, 2 * third, 2.7, inf, -inf}) {
          const Batch batch = WithValue(*entry, FiniteElements(*entry), value);
          Output output(*entry, batch.size());
          auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
          const auto call = [&] { return Callee(library, *entry).Call(arguments); };
          arguments.len = -1;
          EXPECT_EQ(call(), lumStsSizeErr);
          arguments.len = 5;
          arguments.src1 = nullptr;
          EXPECT_EQ(call(), lumStsNullPtrErr);
          arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
          arguments.dst1 = nullptr;
          EXPECT_EQ(call(), lumStsNullPtrErr);
          arguments.len = 0;
          EXPECT_EQ(call(), lumStsSizeErr);
        }
      });
    }
  }
}

TEST(Powx, InPlace) {
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      OnEveryLibrary([&](const support::Library& library) {
        for (double value : {0.0, 1.0, 2.0, 3.0, 9.0, 0.5, -0.5, 1.5, -1.0, -2.0, -3.0, -4.0, third, 2.7, -11.3, inf}) {
          const Batch batch = WithValue(*entry, Elements(*entry), value);
          const Output expected = Callee(library, *entry).Run(batch);
          Output output(*entry, batch.size());
          output.dst1 = batch.src1;
          auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
          arguments.src1 = arguments.dst1;
          output.status = Callee(library, *entry).Call(arguments);
          EXPECT_EQ(FirstDifference(expected, output, batch), "equal") << entry->name << " to the power " << value;
        }
      });
    }
  }
}

TEST(Powx, SpecialValuesOfTheGeneralPath) {
  for (const char* name : both) {
    ExpectCases(name, {{nan, 2.5, nan},
                       {-nan, -11, -nan},
                       {0.0, 2.5, 0.0},
                       {-0.0, 11, -0.0},
                       {-0.0, 12, 0.0},
                       {0.0, -2.5, inf, lumStsDomain},
                       {-0.0, -11, -inf, lumStsDomain},
                       {-0.0, -12, inf, lumStsDomain},
                       {inf, 2.5, inf},
                       {inf, -2.5, 0.0},
                       {-inf, 11, -inf},
                       {-inf, 2.5, inf},
                       {-inf, -11, -0.0},
                       {-1, 11, -1},
                       {-1, -12, 1},
                       {-2, 11, -2048},
                       {-2, -10, 0x1p-10},
                       {-8, 2.5, default_nan, lumStsDomain},
                       {-max, -0.25, default_nan, lumStsDomain},
                       {max, 11, inf},
                       {-max, 11, -inf},
                       {max, -11, 0.0},
                       {min_denormal, 11, 0.0},
                       {min_denormal, -11, inf},
                       {2, max, inf},
                       {2, -max, 0.0}});
  }
}

// Powers of 1 and powers of next to 0. The table of A26 balances the error of a linear step, and is short of 1 at 1.
TEST(Powx, OneOfTheGeneralPath) {
  for (const char* name : {"Powx_32f", "Powx_64f_A50", "Powx_64f_A53"}) {
    ExpectCases(name, {{1, 2.5, 1}, {1, -11, 1}, {1, max, 1}, {max, min_denormal, 1}, {0.75, -min_denormal, 1}});
  }
  const Component next_to_one = FromBits(0x3FEFFFFFFC27DD9E);
  ExpectCases("Powx_64f_A26", {{1, 2.5, next_to_one}, {1, -11, next_to_one}, {max, min_denormal, next_to_one}});
}

// x = 1 is refused with all others here, so that all tags give 1 exactly.
TEST(Powx, ExponentsThatRefuseEveryLane) {
  for (const char* name : both) {
    ExpectCases(name, {{1, nan, 1},
                       {2, nan, nan},
                       {0.75, -nan, -nan},
                       {0.0, nan, nan},
                       {inf, nan, nan},
                       {nan, nan, any_nan},
                       {1, inf, 1},
                       {1, -inf, 1},
                       {-1, inf, 1},
                       {-1, -inf, 1},
                       {2, inf, inf},
                       {2, -inf, 0.0},
                       {0.75, inf, 0.0},
                       {0.75, -inf, inf},
                       {-0.5, -inf, inf},
                       {0.0, inf, 0.0},
                       {0.0, -inf, inf, lumStsDomain},
                       {-0.0, -inf, inf, lumStsDomain},
                       {inf, inf, inf},
                       {-inf, -inf, 0.0}});
  }
  ExpectCases("Powx_32f", {{2, FromBits(0x7F812345), FromBits(0x7FC12345)}, {1, FromBits(0xFF812345), 1}});
  ExpectCases("Powx_64f", {{2, FromBits(0xFFF0000000012345), FromBits(0xFFF8000000012345)}});
}

// The filled lanes of a tail are refused as well; nothing of that is seen.
TEST(Powx, TailsOfRefusedFill) {
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      OnEveryLibrary([&](const support::Library& library) {
        const Format format = FormatOf(entry->input);
        for (double value : {static_cast<double>(NAN), inf, -inf, 1e6, -1e6, 5e5}) {
          for (size_t len = 1; len <= 70; ++len) {
            Array x(entry->input);
            for (size_t i = 0; i < len; ++i)
              x.Append({format.pattern(i % 3 == 0 ? 1 : 1 + 1e-4 * static_cast<double>(i % 7)), 0});
            const Batch batch = WithValue(*entry, x, value);
            const Seen seen = RunRecorded(library, *entry, batch);
            EXPECT_EQ(seen.output.status, lumStsOk);
            EXPECT_TRUE(seen.reports.empty());
            std::vector<LumStatus> statuses;
            const Output each = Callee(library, *entry).RunEach(batch, statuses);
            ASSERT_EQ(FirstDifference(each, seen.output, batch), "equal") << entry->name << " " << value << " length " << len;
          }
        }
        // One reporting element in the tail, the filled lanes refused beside it.
        const Batch batch = WithValue(
            *entry,
            [&] {
              Array x(entry->input);
              for (double number : {2.0, 0.0, 3.0}) x.Append({format.pattern(number), 0});
              return x;
            }(),
            -inf);
        const Seen seen = RunRecorded(library, *entry, batch);
        EXPECT_EQ(seen.output.status, lumStsDomain);
        EXPECT_EQ(seen.reports, (std::vector<std::pair<int32_t, int32_t>>{{1, lumStsDomain}}));
      });
    }
  }
}

// Bases over the whole range of results of each exponent, and beyond its ends.
TEST(Powx, AccuracyOfTheGeneralPath) {
  for (double value : {2.5, -2.5, 0.3, -0.7, 10.0, -11.0, 13.5, 31.2, -55.5, 100.1, 4.0 / 3, -1e-3}) {
    const auto ends = [&](double exponent) { return std::exp2(std::min(exponent / std::fabs(value), exponent)); };
    ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(1 / ends(126), ends(126), 3000), {value});
    ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(1 / ends(1021), ends(1021), 3000), {value});
    for (const char* name : both) ExpectAccuracy(name, mpfr_pow, Between(0.9, 1.1) + Between(0.99, 1.02), {value});
  }
}

TEST(Powx, AccuracyWithHugeAndTinyExponents) {
  for (const char* name : both) {
    const bool is_32bit = name[6] == '3';
    ExpectAccuracy(name, mpfr_pow, Between(0.98, 1.02) + Around(1, is_32bit), {1000, -3000, 1500.5});
    ExpectAccuracy(name, mpfr_pow, Around(1, is_32bit, 300), {1e5, -1e6, 12345.678});
    ExpectAccuracy(name, mpfr_pow, BetweenMagnitudes(1e-37, 1e37), {1e-7, -1e-20, 0x1p-126});
  }
  ExpectAccuracy("Powx_64f", mpfr_pow, Around(1, false, 300), {0x1p49, -0x1p48});
}

// Denormal bases, denormal results, and the ends of the range, all of them the lane routine's.
TEST(Powx, AccuracyOfTheLaneRoutine) {
  ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(0x1p-149, 0x1p-126, 500) + Arguments1{0x1.fffffep127},
                 {0.3, 0.9, -0.8, 1.2});
  ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(0x1p-1074, 0x1p-1022, 500), {0.3, 0.9, -0.8, 1.04});
  ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(0x1p-15, 0x1p-12, 1000), {10, 11, 10.5});
  ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(0x1p-107, 0x1p-102, 1000), {10, 10.5});
  ExpectAccuracy("Powx_32f", mpfr_pow, BetweenMagnitudes(-0.1, -10, 1000), {10, 11, -12, 37});
  ExpectAccuracy("Powx_64f", mpfr_pow, BetweenMagnitudes(-0.1, -10, 1000), {10, 11, -12, 307});
}

TEST(Powx, Borders) {
  ExpectAccuracy("Powx_32f", mpfr_pow,
                 Around(0x1.fffffcp127, true, 3) + Around(0x1p-126, true) + Around(0.9921875, true) + Around(1.015625, true) +
                     Around(0x1.555556p-1, true) + Around(0x1.555556p0, true),
                 {0.7, -0.9});
  ExpectAccuracy("Powx_64f", mpfr_pow, Around(1.49951171875, false) + Around(0x1p-1022, false) + Around(1.5, false),
                 {0.7, -0.9});
  // e^64.81, e^87.3, 2^127.99; 2^150 below; 2^1022.
  ExpectAccuracy("Powx_32f", mpfr_pow, Around(2, true),
                 {93.499, 93.5, 93.501, -93.5, 125.94, 125.95, -125.94, 127.9, -140, -149.2});
  ExpectAccuracy("Powx_64f", mpfr_pow, Around(2, false),
                 {1021.99, 1021.999, 1022, 1022.1, -1021.99, -1022, 1023.99, -1060.7, -1073.2});
}

TEST(Powx, AccuracyOfProducts) {
  for (const char* name : with_chains) {
    // The reciprocal of a product that overflows is zero where a denormal number is right: results stay above these.
    const double end = name[5] == '3' ? 1e9 : 1e75;
    ExpectAccuracy(name, mpfr_pow, BetweenMagnitudes(1 / end, end, 1000) + BetweenMagnitudes(-1 / end, -end, 1000),
                   {2, 3, 4, -2, -3, -4});
  }
}

// Every path gives the same bits on both layers.
TEST(Powx, SameBitsOnBothLayers) {
  if (RunnableLibraries().size() < 2) GTEST_SKIP() << "one library alone can run here";
  std::string reason;
  for (const char* name : both) {
    for (const Export* entry : ExportsNamed(name)) {
      const Callee first(*TestLibrary("k0", "", reason), *entry), second(*TestLibrary("p0", "", reason), *entry);
      for (double value : {0.0, 1.0, 2.0, 5.0, 0.5, -0.5, 1.5, -1.0, -2.0, -3.0, third, 2.7, -11.3, 0.01, 300.0, inf}) {
        const Batch batch = WithValue(*entry, Elements(*entry), value);
        EXPECT_EQ(FirstDifference(first.Run(batch), second.Run(batch), batch), "equal") << entry->name << " " << value;
      }
    }
  }
}

}  // namespace
}  // namespace lum::test
