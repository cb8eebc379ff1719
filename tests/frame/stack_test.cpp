// What a call needs of the stack: each export runs on a stack of its own whose bytes are painted, and the lowest byte that has
// changed tells. The arguments take every path: ordinary ones, special ones, and both in one block.
#include <ucontext.h>

#include <cstdio>
#include <stdexcept>

#include "support/guarded_memory.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

constexpr size_t most_bytes = 8192;
constexpr size_t stack_bytes = 16384;
constexpr std::byte paint{0x5A};

// Calls on a painted stack between pages that cannot be touched.
class PaintedStack {
 public:
  PaintedStack() : memory_(stack_bytes) {}

  // The bytes that the call needs, from the frame of its caller on.
  size_t Use(const Callee& callee, const support::Arguments& arguments, LumStatus& status) {
    memory_.Fill(paint);
    current_ = this;
    callee_ = &callee;
    arguments_ = &arguments;
    if (getcontext(&inner_) != 0) throw std::runtime_error("getcontext failed");
    inner_.uc_stack = {.ss_sp = memory_.begin(), .ss_flags = 0, .ss_size = stack_bytes};
    inner_.uc_link = &outer_;
    makecontext(&inner_, &PaintedStack::Call, 0);
    if (swapcontext(&outer_, &inner_) != 0) throw std::runtime_error("swapcontext failed");
    status = status_;
    const std::byte* lowest = memory_.begin();
    while (lowest < caller_ && *lowest == paint) ++lowest;
    return static_cast<size_t>(caller_ - lowest);
  }

 private:
  static void Call() {
    PaintedStack& self = *current_;
    self.caller_ = static_cast<const std::byte*>(__builtin_frame_address(0));
    self.status_ = self.callee_->Call(*self.arguments_);
  }

  static inline PaintedStack* current_ = nullptr;
  GuardedMemory memory_;
  ucontext_t inner_, outer_;
  const Callee* callee_ = nullptr;
  const support::Arguments* arguments_ = nullptr;
  const std::byte* caller_ = nullptr;
  LumStatus status_ = lumStsOk;
};

class Stack : public ExportTest {};

TEST_P(Stack, StaysBelowTheLimit) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "frames are larger with sanitizers";
#endif
  PaintedStack stack;
  const Callee function = callee();
  size_t most = 0;
  const auto run = [&](const Batch& batch) {
    Output output(entry(), batch.size());
    const auto arguments = Callee::ArgumentsOf(batch, output, 0, batch.size());
    most = std::max(most, stack.Use(function, arguments, output.status));
    EXPECT_GE(output.status, lumStsOk);
  };
  for (const Batch& batch : Sweep(entry(), 2000)) run(batch);
  for (size_t size : {1, 3, 50}) run(Sample(entry(), size));
  RecordProperty("bytes", static_cast<int>(most));
  EXPECT_GT(most, 0u);
  EXPECT_LE(most, most_bytes);
}

INSTANTIATE_TEST_SUITE_P(Exports, Stack, testing::ValuesIn(CatalogueSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
