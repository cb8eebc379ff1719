// All libraries give the same bits and the same status for every element.
#include <cstdlib>
#include <string>

#include "support/recorder.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

// Random values for each export, a number that LUM_RANDOM_VALUES may lower.
size_t RandomValues() {
  const char* given = std::getenv("LUM_RANDOM_VALUES");
  return given == nullptr ? 100000 : std::stoul(given);
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
    for (const std::string& name : RunnableLibraries()) {
      std::string reason;
      const support::Library* library = TestLibrary(name, "_recording", reason);
      ASSERT_NE(library, nullptr) << reason;
      libraries_.push_back({name, library});
    }
    if (libraries_.size() < 2) GTEST_SKIP() << "one library alone can run here";
  }
  // The first is the one that the others are held against.
  std::vector<std::pair<std::string, const support::Library*>> libraries_;
};

TEST_P(Parity, SameResultsAndStatuses) {
  const Export& entry = *GetParam();
  size_t compared = 0;
  for (const Batch& batch : Sweep(entry, RandomValues())) {
    const Result expected = RunRecorded(*libraries_[0].second, entry, batch);
    for (size_t other = 1; other < libraries_.size(); ++other) {
      const auto& [name, library] = libraries_[other];
      const Result actual = RunRecorded(*library, entry, batch);
      ASSERT_EQ(DifferenceOfLibraries(expected.output, actual.output, batch), "equal")
          << "expected by " << libraries_[0].first << ", got from " << name;
      for (size_t i = 0; i < batch.size(); ++i)
        ASSERT_EQ(expected.statuses[i], actual.statuses[i]) << name << ": " << batch.Show(i);
    }
    compared += batch.size();
  }
  EXPECT_GE(compared, RandomValues());
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
