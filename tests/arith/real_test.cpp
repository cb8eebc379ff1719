// Abs, Add, Sub, Mul and Sqr of real numbers.
#include "support/accuracy.h"
#include "support/cases.h"
#include "support/environment.h"

namespace lum::test {
namespace {

TEST(Abs, ClearsTheSign) {
  for (const char* name : {"Abs_32f", "Abs_64f"}) {
    ExpectCases(name,
                {{-0.0, 0.0}, {0.0, 0.0}, {-inf, inf}, {inf, inf}, {-1.5, 1.5}, {-max, max}, {-min_denormal, min_denormal}});
  }
}

TEST(Abs, QuietsNansAndKeepsTheirPayload) {
  ExpectCases("Abs_32f", {{FromBits(0x7FA00001), FromBits(0x7FE00001)},
                          {FromBits(0xFF812345), FromBits(0x7FC12345)},
                          {FromBits(0xFFC00007), FromBits(0x7FC00007)}});
  ExpectCases("Abs_64f", {{FromBits(0x7FF4000000000001), FromBits(0x7FFC000000000001)},
                          {FromBits(0xFFF0000000012345), FromBits(0x7FF8000000012345)},
                          {FromBits(0xFFF8000000000007), FromBits(0x7FF8000000000007)}});
}

TEST(Abs, SignallingNanRaisesNoFlag) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    for (const char* function : {"Abs_32f", "Abs_64f"}) {
      const Export& entry = *ExportsNamed(function).at(0);
      const Format format = FormatOf(entry.input);
      Batch batch(entry);
      for (int i = 0; i < 100; ++i) batch.src1.Append({format.infinity() | 1, 0});
      Output output(entry, batch.size());
      const Callee callee(*TestLibrary(name, "", reason), entry);
      const auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
      EnterEnvironment({});
      callee.Call(arguments);
      EXPECT_EQ(Describe(LeaveEnvironment()), Describe({}));
    }
  }
}

TEST(Sums, OverflowIsAnInfinityWithoutAStatus) {
  for (const char* add : {"Add_32f", "Add_64f"}) ExpectCases(add, {{max, max, inf}, {-max, -max, -inf}, {max, -max, 0}});
  for (const char* sub : {"Sub_32f", "Sub_64f"}) ExpectCases(sub, {{max, -max, inf}, {-max, max, -inf}, {max, max, 0}});
  for (const char* mul : {"Mul_32f", "Mul_64f"}) ExpectCases(mul, {{max, 2, inf}, {max, -2, -inf}, {max, 0.5 * 2, max}});
  for (const char* sqr : {"Sqr_32f", "Sqr_64f"}) ExpectCases(sqr, {{max, inf}, {-max, inf}, {min_normal, 0}, {-3, 9}});
}

TEST(Sums, SubIsFirstMinusSecond) {
  for (const char* name : {"Sub_32f", "Sub_64f"})
    ExpectCases(name, {{5, 3, 2}, {3, 5, -2}, {0.0, 0.0, 0.0}, {-0.0, 0.0, -0.0}});
}

TEST(Sums, InvalidOperationsGiveTheDefaultNan) {
  for (const char* name : {"Add_32f", "Add_64f"}) ExpectCases(name, {{inf, -inf, default_nan}, {inf, inf, inf}});
  for (const char* name : {"Sub_32f", "Sub_64f"}) ExpectCases(name, {{inf, inf, default_nan}, {inf, -inf, inf}});
  for (const char* name : {"Mul_32f", "Mul_64f"}) ExpectCases(name, {{inf, 0, default_nan}, {-0.0, inf, default_nan}});
}

TEST(Sums, OneNanComesThrough) {
  for (const char* name : {"Add_32f", "Sub_32f", "Mul_32f"}) {
    ExpectCases(name, {{FromBits(0x7F812345), 1, FromBits(0x7FC12345)}, {1, FromBits(0xFFC54321), FromBits(0xFFC54321)}});
  }
  for (const char* name : {"Add_64f", "Sub_64f", "Mul_64f"}) {
    ExpectCases(name, {{FromBits(0x7FF0000000012345), 1, FromBits(0x7FF8000000012345)},
                       {inf, FromBits(0xFFF8000000054321), FromBits(0xFFF8000000054321)}});
  }
  for (const char* name : {"Add_32f", "Sub_64f", "Mul_32f"}) ExpectCases(name, {{nan, -nan, any_nan}});
}

TEST(Sums, DenormalsAreKept) {
  for (const char* name : {"Add_32f", "Add_64f"})
    ExpectCases(name, {{min_normal, -min_denormal,
                        FromBits(std::string_view(name).ends_with("32f") ? 0x007FFFFFu : 0x000FFFFFFFFFFFFFu)}});
  for (const char* name : {"Mul_32f", "Mul_64f"})
    ExpectCases(name, {{min_denormal, -1, -min_denormal}, {min_denormal, 0.25, 0}});
}

// One operation each: correctly rounded.
TEST(Sums, Accuracy) {
  const Arguments1 x = Between(-100, 100) + BetweenMagnitudes(1e-30, 1e30),
                   y = Between(-7, 5) + BetweenMagnitudes(-1e30, -1e-30);
  for (const char* type : {"_32f", "_64f"}) {
    ExpectAccuracy(std::string("Add") + type, mpfr_add, x, y);
    ExpectAccuracy(std::string("Sub") + type, mpfr_sub, x, y);
    ExpectAccuracy(std::string("Mul") + type, mpfr_mul, x, y);
    ExpectAccuracy(std::string("Sqr") + type, mpfr_sqr, x);
  }
}

}  // namespace
}  // namespace lum::test
