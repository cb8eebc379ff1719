// The caller's floating-point environment neither influences a result nor is disturbed by a call.
#include "support/environment.h"

#if defined(__x86_64__)
#include <cpuid.h>
#endif

#include <algorithm>
#include <vector>

#include "support/subjects.h"
#include "support/variants.h"

namespace lum::test {
namespace {

constexpr uint32_t masks = 0x1F80;
constexpr uint32_t precision_flag = 0x20;
constexpr uint32_t denormals_are_zero = 0x40;
constexpr uint32_t flush_to_zero = 0x8000;

// All four roundings with and without flushing, each exception unmasked, all of them, and each sticky flag on top of it.
std::vector<Environment> MxcsrEnvironments() {
  std::vector<Environment> list;
  for (uint32_t rounding = 0; rounding < 4; ++rounding) {
    for (uint32_t flushing : {0u, denormals_are_zero, flush_to_zero, denormals_are_zero | flush_to_zero}) {
      list.push_back({.mxcsr = masks | rounding << 13 | flushing});
    }
  }
  for (uint32_t exception = 0; exception < 6; ++exception) {
    list.push_back({.mxcsr = masks & ~(0x80u << exception)});
    list.push_back({.mxcsr = (masks & ~(0x80u << exception)) | 1u << exception});
    list.push_back({.mxcsr = masks | 1u << exception});
    list.push_back({.mxcsr = masks | 0x2000u | 1u << exception});
  }
  list.push_back({.mxcsr = 0});
  list.push_back({.mxcsr = 0xE07F});
  list.push_back({.mxcsr = masks | 0x3F});
  return list;
}

// Every precision and rounding, each exception unmasked and all, with flags and without.
std::vector<Environment> X87Environments() {
  std::vector<Environment> list;
  for (const uint16_t control :
       std::initializer_list<uint16_t>{0x037F, 0x027F, 0x007F, 0x077F, 0x0B7F, 0x0F7F, 0x0C7F, 0x037E, 0x037D, 0x037B, 0x0377,
                                       0x036F, 0x035F, 0x0340, 0x0E40, 0x0240}) {
    list.push_back({.x87_control = control});
    list.push_back({.x87_control = control, .x87_flags = true});
  }
  list.push_back({.mxcsr = 0xE07F, .x87_control = 0x0C40, .x87_flags = true});
  return list;
}

class Environments : public ExportTest {
 protected:
  void SetUp() override {
    if (!has_environment) GTEST_SKIP() << "this processor has neither MXCSR nor an x87 unit";
    ExportTest::SetUp();
  }

  Output RunIn(const Environment& entered, const Batch& batch, Environment& left) {
    Output output(entry(), batch.size());
    const auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
    const Callee function = callee();
    EnterEnvironment(entered);
    output.status = function.Call(arguments);
    left = LeaveEnvironment();
    return output;
  }

  void ExpectNoInfluence(const Environment& entered, const Batch& batch, const Output& reference) {
    SCOPED_TRACE(Describe(entered));
    Environment left;
    const Output output = RunIn(entered, batch, left);
    if (!FollowsCallersRounding(entry()) || IsRoundingAndFlushingDefault(entered)) {
      EXPECT_EQ(FirstDifference(reference, output), "equal");
    }
    EXPECT_EQ(EnvironmentComplaint(entry(), entered, left), "");
  }
};

TEST_P(Environments, VectorUnit) {
  const Batch batch = Sample(entry(), 150);
  const Output reference = callee().Run(batch);
  for (const Environment& environment : MxcsrEnvironments()) ExpectNoInfluence(environment, batch, reference);
}

TEST_P(Environments, X87Unit) {
  const Batch batch = Sample(entry(), 150);
  const Output reference = callee().Run(batch);
  for (const Environment& environment : X87Environments()) ExpectNoInfluence(environment, batch, reference);
}

// Ordinary arguments stay on the vector path, which raises nothing, not even precision.
TEST_P(Environments, VectorPathRaisesNothing) {
  if (RaisesPrecision(entry())) GTEST_SKIP() << "computes with plain operations";
  const Format format = FormatOf(entry().input);
  const support::Interval ordinary = support::DeclarationOf(entry()).ordinary;
  const double argument = ordinary.low < 0.7 ? 0.7 : 2.3 * ordinary.low;
  Batch batch(entry());
  for (int i = 0; i < 70; ++i) {
    const Bits element{format.pattern(argument), format.pattern(0.6)};
    batch.src1.Append(element);
    if (entry().inputs() == 2) batch.src2.Append(element);
    if (i == 0 && entry().has_parameter()) batch.value.Append({format.pattern(0.3), 0});
  }
  Environment left;
  RunIn({}, batch, left);
  EXPECT_EQ(Describe(left), Describe({}));
}

TEST_P(Environments, NoFlagEscapes) {
  const Batch batch = Sample(entry(), 400, 9);
  Environment left;
  RunIn({}, batch, left);
  EXPECT_EQ(left.mxcsr & ~precision_flag, default_mxcsr);
  EXPECT_FALSE(left.x87_flags);
}

#if defined(__x86_64__)
// The components of the extended state that are not in their initial state, and whether the processor tells.
bool TellsStateInUse() {
  unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
  return __get_cpuid_count(0xD, 1, &eax, &ebx, &ecx, &edx) != 0 && (eax & 4) != 0;
}
uint32_t StateInUse() {
  uint32_t low, high;
  asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
  return low;
}

// Upper halves that are not cleared make SSE code after the call several times slower.
TEST_P(Environments, UpperHalvesOfVectorRegistersAreCleared) {
  if (!TellsStateInUse()) GTEST_SKIP() << "the processor does not tell which state is in use";
  constexpr uint32_t upper_halves = 0x44;  // of the first sixteen registers: bits 128 to 255, and 256 to 511
  for (const size_t size : {1u, 150u}) {
    const Batch batch = Sample(entry(), size);
    Output output(entry(), size);
    const auto arguments = Callee::ArgumentsOf(batch, output, 0, size);
    callee().Call(arguments);
    EXPECT_EQ(StateInUse() & upper_halves, 0u) << size;
  }
}
#endif

// Parameters of all classes, where every exception would trap.
TEST_P(Environments, SpecialParametersTrapNowhere) {
  if (!entry().has_parameter()) GTEST_SKIP() << "has no parameter";
  for (const Bits& value : SpecialElements(entry().input)) {
    Batch batch = Sample(entry(), 3);
    batch.value = Array(entry().input, {value});
    Environment trapping, left;
    trapping.mxcsr = 0;
    RunIn(trapping, batch, left);
    EXPECT_EQ(left.mxcsr, 0u);
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, Environments, testing::ValuesIn(AllSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
