// Powx: which path each exponent takes at each tier, with results, statuses and hook calls, bad arguments, arrays in place.
#include <cmath>

#include "pow/powx.h"

namespace lum::test {
namespace {

const char* const both[] = {"Powx_32f", "Powx_64f"};
const char* const with_chains[] = {"Powx_32f_A11", "Powx_32f_A21", "Powx_64f_A26", "Powx_64f_A50"};
const char* const without_chains[] = {"Powx_32f_A24", "Powx_64f_A53"};

// Powx with the exponent is the function of the same tier: bits, status and reports.
void ExpectIsFunction(const std::string& powx, double value, const std::string& function) {
  OnEveryLibrary([&](const support::Library& library) {
    SCOPED_TRACE(powx + " " + std::to_string(value));
    const Array x = Elements(ExportOf(powx));
    Batch plain(ExportOf(function));
    plain.src1 = x;
    const Seen expected = RunRecorded(library, ExportOf(function), plain);
    const Seen actual = RunRecorded(library, ExportOf(powx), WithValue(ExportOf(powx), x, value));
    EXPECT_EQ(FirstDifference(expected.output, actual.output), "equal");
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

// At the tags above the lowest a third is an exponent like any other, and a negative base is outside the domain.
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
    EXPECT_EQ(FirstDifference(expected, seen.output), "equal") << name << " to the power " << n;
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
        EXPECT_EQ(FirstDifference(expected.output, actual.output), "equal") << name << " to the power " << -n;
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

TEST(PowxDispatch, InPlace) {
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
          EXPECT_EQ(FirstDifference(expected, output), "equal") << entry->name << " to the power " << value;
        }
      });
    }
  }
}

TEST(PowxDispatch, AccuracyOfProducts) {
  for (const char* name : with_chains) {
    // The reciprocal of a product that overflows is zero where a denormal number is right: results stay above these.
    const double end = name[5] == '3' ? 1e9 : 1e75;
    ExpectAccuracy(name, mpfr_pow, BetweenMagnitudes(1 / end, end, 1000) + BetweenMagnitudes(-1 / end, -end, 1000),
                   {2, 3, 4, -2, -3, -4});
  }
}

}  // namespace
}  // namespace lum::test
