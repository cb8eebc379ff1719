// Both libraries give the same bits and the same status for every element, the AVX-512 one and the portable one.
#include <map>

#include "support/recorder.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

constexpr size_t random_values = 100000;

// Exports that are allowed to differ, with the reason.
const std::map<std::string_view, std::string_view>& Exceptions() {
  static const std::map<std::string_view, std::string_view> exceptions;
  return exceptions;
}

struct Result {
  Output output;
  std::vector<LumStatus> statuses;
};

Result RunRecorded(const support::Library& library, const Export& entry, const Batch& batch) {
  Recorder recorder(library, entry);
  Output output = Callee(library, entry).Run(batch);
  return {std::move(output), StatusesFrom(recorder.log(), batch.size())};
}

class Parity : public testing::TestWithParam<const Export*> {
 protected:
  void SetUp() override {
    std::string reason;
    k0_ = TestLibrary("k0", "_recording", reason);
    if (k0_ == nullptr) GTEST_SKIP() << reason;
    p0_ = TestLibrary("p0", "_recording", reason);
    if (p0_ == nullptr) GTEST_SKIP() << reason;
    const auto exception = Exceptions().find(GetParam()->name);
    if (exception != Exceptions().end()) GTEST_SKIP() << exception->second;
  }
  const support::Library* k0_ = nullptr;
  const support::Library* p0_ = nullptr;
};

TEST_P(Parity, SameResultsAndStatuses) {
  const Export& entry = *GetParam();
  size_t compared = 0;
  for (const Batch& batch : Sweep(entry, random_values)) {
    const Result k0 = RunRecorded(*k0_, entry, batch);
    const Result p0 = RunRecorded(*p0_, entry, batch);
    ASSERT_EQ(DifferenceOfLibraries(k0.output, p0.output, batch), "equal") << "expected by k0, got from p0";
    for (size_t i = 0; i < batch.size(); ++i) ASSERT_EQ(k0.statuses[i], p0.statuses[i]) << batch.Show(i);
    compared += batch.size();
  }
  EXPECT_GE(compared, random_values);
}

std::vector<const Export*> AllExports() {
  std::vector<const Export*> list;
  for (const Export& entry : support::Exports()) list.push_back(&entry);
  return list;
}

INSTANTIATE_TEST_SUITE_P(Exports, Parity, testing::ValuesIn(AllExports()),
                         [](const auto& instance) { return std::string(instance.param->name.substr(4)); });

}  // namespace
}  // namespace lum::test
