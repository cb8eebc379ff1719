// The frame by kernels whose results are known by formula, in all shapes, and by probes of the environment of every variant.
// test_kernels.h tells what the kernels compute.
#include <cmath>

#include "support/environment.h"
#include "support/recorder.h"
#include "support/subjects.h"
#include "support/test_kernels.h"

namespace lum::test {
namespace {

using support::Shape;

struct Pair {
  double re = 0, im = 0;
};

LumStatus StatusFor(double x) {
  if (!(x > -5 && x <= -1)) return lumStsOk;
  return x > -2 ? lumStsOverflow : x > -3 ? lumStsUnderflow : x > -4 ? lumStsSingularity : lumStsDomain;
}

// Arguments whose results are exact.
constexpr double arguments[] = {0.5, 2, 7.25, 1, -1.5, -2.25, -3.5, -4.75, -10, -0.5, 100, 3};
constexpr double parameter = 2.5;

class KernelFrame : public ExportTest {
 protected:
  bool IsSilent() const { return entry().name.find("Silent") != std::string_view::npos; }
  Bits Pattern(Element element, Pair z) const {
    const Format format = FormatOf(element);
    return {format.pattern(z.re), support::IsComplex(element) ? format.pattern(z.im) : 0};
  }

  // Appends an element and what must come out.
  void Append(Pair a, Pair b) {
    batch_.src1.Append(Pattern(entry().input, a));
    if (entry().inputs() == 2) batch_.src2.Append(Pattern(entry().input, b));
    const bool is_refused = a.re < (entry().has_parameter() ? parameter : 0);
    Pair first = VectorResult(a, b);
    if (is_refused) first.re += 1000;
    expected_.dst1.Append(Pattern(entry().output, first));
    if (entry().outputs() == 2) expected_.dst2.Append(Pattern(entry().output, {2 * a.re + (is_refused ? 1000 : 0), 0}));
    statuses_.push_back(is_refused && !IsSilent() ? StatusFor(a.re) : lumStsOk);
    if (statuses_.back() != lumStsOk) expected_.status = statuses_.back();
  }
  Pair VectorResult(Pair a, Pair b) const {
    switch (entry().shape) {
      case Shape::TwoInputs:
        return {a.re - b.re, a.im - b.im};
      case Shape::ScalarParameter:
        return {a.re + parameter, 0};
      case Shape::ToReal:
        return {a.re + a.im, 0};
      case Shape::ToComplex:
        return {a.re, a.re + 1};
      default:
        return support::IsComplex(entry().input) ? Pair{a.im, a.re} : Pair{a.re + 1, 0};
    }
  }
  void Start() {
    batch_ = Batch(entry());
    if (entry().has_parameter()) batch_.value.Append(Pattern(entry().input, {parameter, 0}));
    expected_ = Output(entry());
    statuses_.clear();
  }
  void ExpectRun() {
    Recorder recorder(library(), entry());
    EXPECT_EQ(FirstDifference(expected_, callee().Run(batch_)), "equal");
    EXPECT_EQ(StatusesFrom(recorder.log(), batch_.size()), statuses_);
  }

  Batch batch_{TestKernels()[0]};
  Output expected_{TestKernels()[0]};
  std::vector<LumStatus> statuses_;
};

TEST_P(KernelFrame, ResultsByFormula) {
  Random random(1);
  for (size_t len : {1, 7, 16, 17, 31, 32, 33, 64, 100, 200}) {
    Start();
    const auto any = [&] { return arguments[random() % std::size(arguments)]; };
    for (size_t i = 0; i < len; ++i) Append({any(), any()}, {any(), any()});
    ExpectRun();
  }
}

// Reports in the last lane of the blocks and in the first one of the tail: both call the hook, the tail's status remains.
TEST_P(KernelFrame, LastOfTheBlocksAndFirstOfTheTail) {
  for (size_t full : {8, 16, 24, 32, 48, 64}) {
    Start();
    for (size_t i = 0; i < full - 1; ++i) Append({3, 1}, {1, 1});
    Append({-1.5, 1}, {1, 1});
    Append({-4.5, 1}, {1, 1});
    for (size_t i = 0; i < 2; ++i) Append({3, 1}, {1, 1});
    EXPECT_EQ(expected_.status, IsSilent() ? lumStsOk : lumStsDomain);
    ExpectRun();
  }
}

// Refused elements without a status come out finished, and call no hook.
TEST_P(KernelFrame, RefusedWithoutAStatus) {
  Start();
  for (int i = 0; i < 75; ++i) Append({i % 3 == 0 ? -10.0 : 4.0, 1}, {1, 1});
  EXPECT_EQ(expected_.status, lumStsOk);
  ExpectRun();
}

std::vector<Subject> KernelSubjects() {
  std::vector<Subject> list;
  for (const Subject& subject : AllSubjects()) {
    if (subject.is_test_kernel) list.push_back(subject);
  }
  return list;
}
INSTANTIATE_TEST_SUITE_P(Kernels, KernelFrame, testing::ValuesIn(KernelSubjects()), NameOf);

// ---- Variants

struct Probed {
  std::string library;
  ProbedVariant variant;
};

class Variants : public testing::TestWithParam<Probed> {
 protected:
  void SetUp() override {
    if (!has_environment) GTEST_SKIP() << "this processor has neither MXCSR nor an x87 unit";
    std::string reason;
    const support::Library* library = TestLibrary(GetParam().library, "_recording", reason);
    if (library == nullptr) GTEST_SKIP() << reason;
    probe_ = library->Symbol<ProbeVariant>("lumTestVariant");
    ASSERT_NE(probe_, nullptr);
  }

  bool IsMaskOnly() const {
    return GetParam().variant == ProbedVariant::conj || GetParam().variant == ProbedVariant::scalar_core;
  }
  // What the vector path, and the lane routine, must find.
  uint32_t ExpectedMxcsr(uint32_t entered) const { return IsMaskOnly() ? (entered | 0x1F80) & 0xFFC0 : 0x1F80; }
  uint16_t ExpectedX87(uint16_t entered, bool in_routine) const {
    const auto forced = [=](int target) {
      return static_cast<uint16_t>((entered & 0x0F3F) == target ? entered : (entered & 0xF0C0) | target);
    };
    const auto masked = static_cast<uint16_t>(entered | 0x3F);
    switch (GetParam().variant) {
      case ProbedVariant::common:
        return in_routine ? masked : entered;
      case ProbedVariant::pure_vector:
        return entered;
      case ProbedVariant::scalar_core:
        return forced(0x033F);
      case ProbedVariant::element_loop:
        return forced(0x023F);
      default:
        return masked;
    }
  }
  bool IsAsNeeded(uint32_t mxcsr) const { return (mxcsr & (IsMaskOnly() ? 0x1F80u : 0xFFC0u)) == 0x1F80; }
  Environment ExpectedAtExit(Environment entered) const {
    entered.x87_flags = false;
    if (IsAsNeeded(entered.mxcsr)) entered.mxcsr &= ~0x1Fu;
    return entered;
  }

  // A call whose element `refused`, if any, is refused.
  void ExpectProbe(const Environment& entered, int len, int refused) {
    SCOPED_TRACE(Describe(entered));
    std::vector<float> src(static_cast<size_t>(len), 1.0f), dst(src.size());
    if (refused >= 0) src[static_cast<size_t>(refused)] = -3.5f;
    EnvironmentSeen seen;
    EnterEnvironment(entered);
    const LumStatus status = probe_(GetParam().variant, src.data(), dst.data(), len, &seen);
    Environment left = LeaveEnvironment();
    EXPECT_EQ(status, refused >= 0 ? lumStsSingularity : lumStsOk);
    EXPECT_EQ(seen.vector_mxcsr & 0xFFC0, ExpectedMxcsr(entered.mxcsr));
    const Environment expected = ExpectedAtExit(entered);
    if (refused >= 0) {
      EXPECT_EQ(seen.routine_mxcsr & 0xFFC0, ExpectedMxcsr(entered.mxcsr));
      EXPECT_EQ(seen.routine_x87, ExpectedX87(entered.x87_control, true));
      // In a register that was not saved and restored, the routine may have raised the precision flag.
      if (IsAsNeeded(entered.mxcsr)) left.mxcsr &= ~0x20u | (expected.mxcsr & 0x20u);
    } else {
      EXPECT_EQ(seen.vector_x87, ExpectedX87(entered.x87_control, false));
    }
    EXPECT_EQ(Describe(left), Describe(expected));
  }

  ProbeVariant* probe_ = nullptr;
};

TEST_P(Variants, SetAndRestoreTheEnvironment) {
  for (uint32_t mxcsr : {0x1F80u, 0x7F80u, 0x9FC0u, 0x1FBFu, 0x1F00u, 0x0000u, 0xFF80u, 0x1FA0u, 0xFF40u, 0xE040u}) {
    for (int control : {0x037F, 0x027F, 0x007F, 0x0F7F, 0x0340, 0x0C40, 0x037E}) {
      for (bool flags : {false, true}) {
        const Environment environment{mxcsr, static_cast<uint16_t>(control), flags};
        ExpectProbe(environment, 5, -1);
        ExpectProbe(environment, 70, -1);
        ExpectProbe(environment, 5, 3);
        ExpectProbe(environment, 70, 20);
        ExpectProbe(environment, 70, 69);
      }
    }
  }
}

std::vector<Probed> AllProbed() {
  std::vector<Probed> list;
  for (const std::string& library : LibraryNames()) {
    for (auto variant : {ProbedVariant::common, ProbedVariant::pure_vector, ProbedVariant::x87_up_front, ProbedVariant::conj,
                         ProbedVariant::scalar_core, ProbedVariant::element_loop}) {
      list.push_back({library, variant});
    }
  }
  return list;
}
std::string NameOfProbed(const testing::TestParamInfo<Probed>& info) {
  constexpr const char* names[] = {"common", "pure_vector", "x87_up_front", "conj", "scalar_core", "element_loop"};
  return info.param.library + "_" + names[static_cast<int>(info.param.variant)];
}
INSTANTIATE_TEST_SUITE_P(Frame, Variants, testing::ValuesIn(AllProbed()), NameOfProbed);

}  // namespace
}  // namespace lum::test
