// Bad arguments: the length is looked at first, then the arrays, and a rejected call touches nothing.
#include <climits>
#include <vector>

#include "support/environment.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

using support::Arguments;

class ArgumentChecks : public ExportTest {
 protected:
  // One good call's arguments.
  void SetUp() override {
    ExportTest::SetUp();
    if (IsSkipped() || HasFatalFailure()) return;
    batch_ = Sample(entry(), 4);
    output_ = Output(entry(), 4);
    arguments_ = Callee::ArgumentsOf(batch_, output_, 0, 4);
  }

  // Makes the call, which must return the status, and leave outputs and environment as they were.
  void ExpectRejected(const Arguments& arguments, LumStatus status) {
    const Output before = output_;
    // Nothing here is what a kernel sets up, and each flag is set.
    const Callee function = callee();
    const Environment entered = EnterEnvironment({0x603F, 0x0C60, true});
    const LumStatus returned = function.Call(arguments);
    const Environment left = LeaveEnvironment();
    EXPECT_EQ(returned, status);
    EXPECT_EQ(FirstDifference(before, output_), "equal");
    EXPECT_EQ(Describe(left), Describe(entered));
  }

  Arguments WithLength(int32_t len) const {
    Arguments arguments = arguments_;
    arguments.len = len;
    return arguments;
  }
  // Without one of the arrays that the shape has, in all ways.
  std::vector<Arguments> WithoutOneArray(int32_t len) const {
    std::vector<Arguments> list(entry().inputs() + entry().outputs() == 3 ? 3 : 2, WithLength(len));
    list[0].src1 = nullptr;
    list[1].dst1 = nullptr;
    if (entry().inputs() == 2) list[2].src2 = nullptr;
    if (entry().outputs() == 2) list[2].dst2 = nullptr;
    return list;
  }

 private:
  Batch batch_{support::Exports()[0]};
  Output output_{support::Exports()[0]};
  Arguments arguments_;
};

TEST_P(ArgumentChecks, LengthNotPositive) {
  for (int32_t len : {0, -1, INT_MIN}) ExpectRejected(WithLength(len), lumStsSizeErr);
}

TEST_P(ArgumentChecks, NullArray) {
  for (int32_t len : {1, 4, INT_MAX}) {
    for (const Arguments& arguments : WithoutOneArray(len)) ExpectRejected(arguments, lumStsNullPtrErr);
  }
}

TEST_P(ArgumentChecks, LengthBeforeNullArray) {
  for (int32_t len : {0, -1, INT_MIN}) {
    for (const Arguments& arguments : WithoutOneArray(len)) ExpectRejected(arguments, lumStsSizeErr);
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, ArgumentChecks, testing::ValuesIn(AllSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
