// An element's result depends on its argument alone: not on its position in a block or in the tail, not on its neighbours, and
// not on whether it overwrites its source. The status of a call is that of the last element that reported.
#include <algorithm>
#include <numeric>
#include <vector>

#include "support/declarations.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

// Each element of a batch by itself.
struct Alone {
  std::vector<LumStatus> statuses;
  Output output;
  Alone(const Callee& callee, const Batch& batch) : output(callee.RunEach(batch, statuses)) {}
};

struct Selection {
  Batch batch;
  Output expected;
};

// Appends the arguments at which an export is declared to report.
void AppendDeclaredReports(const Export& entry, Batch& batch) {
  const Format format = FormatOf(entry.input);
  for (const auto& [status, points] : support::DeclarationOf(entry).statuses) {
    for (const support::DeclaredPoint& p : points) {
      batch.src1.Append({format.pattern(p[0]), format.pattern(p[1])});
      const Bits second{format.pattern(p[2]), format.pattern(p[3])};
      if (entry.inputs() == 2) batch.src2.Append(second);
      if (entry.has_parameter()) batch.value.Set(0, second);
    }
  }
}

class Positions : public ExportTest {
 protected:
  // The elements in the given order, and what a call over them must give.
  Selection Select(const Batch& batch, const Alone& alone, const std::vector<size_t>& order) {
    Selection selection{Batch(entry()), Output(entry())};
    selection.batch.value = batch.value;
    for (size_t i : order) {
      selection.batch.Append(batch, i);
      selection.expected.dst1.Append(alone.output.dst1[i]);
      if (entry().outputs() == 2) selection.expected.dst2.Append(alone.output.dst2[i]);
      if (alone.statuses[i] != lumStsOk) selection.expected.status = alone.statuses[i];
    }
    return selection;
  }

  void ExpectSameAsAlone(const Selection& selection) {
    ASSERT_EQ(FirstDifference(selection.expected, callee().Run(selection.batch)), "equal");
  }
};

TEST_P(Positions, AmongJunk) {
  const Batch batch = Sample(entry(), 500);
  const Alone alone(callee(), batch);
  std::vector<size_t> order(batch.size());
  std::iota(order.begin(), order.end(), size_t{0});
  Random random(4);
  for (int round = 0; round < 8; ++round) {
    ExpectSameAsAlone(Select(batch, alone, order));
    std::shuffle(order.begin(), order.end(), random);
    order.resize(order.size() - 7);  // other lengths of the tail
  }
}

// Elements that a first path refuses among others, or the reverse, in any share: long paths take such elements out of many
// vectors together.
TEST_P(Positions, FewAmongMany) {
  const Batch batch = Sample(entry(), 500, 7);
  const Alone alone(callee(), batch);
  Random random(8);
  for (size_t period : {2, 5, 32, 200}) {
    for (int round = 0; round < 6; ++round) {
      std::vector<size_t> order(700 + random() % 64, random() % batch.size());
      for (size_t& i : order) {
        if (random() % period == 0) i = random() % batch.size();
      }
      ExpectSameAsAlone(Select(batch, alone, order));
    }
  }
}

// Whether a function has something to report; of the test kernels all but the silent one.
bool IsReporting(const Subject& subject) {
  if (subject.is_test_kernel) return subject.entry->name.find("Silent") == std::string_view::npos;
  return !support::DeclarationOf(*subject.entry).statuses.empty();
}

// Reporting elements at the ends of blocks and tails, among elements that report nothing. Among the elements are those of which
// the declaration says that they report; a parameter is that of the first of them.
TEST_P(Positions, StatusOfTheLastThatReports) {
  if (!IsReporting(GetParam())) GTEST_SKIP() << "is declared to report nothing";
  Batch batch = Sample(entry(), 2000, 2);
  if (!GetParam().is_test_kernel) AppendDeclaredReports(entry(), batch);
  const Alone alone(callee(), batch);
  std::vector<size_t> quiet, reporting;
  for (size_t i = 0; i < batch.size(); ++i) (alone.statuses[i] == lumStsOk ? quiet : reporting).push_back(i);
  ASSERT_FALSE(reporting.empty());
  ASSERT_FALSE(quiet.empty());
  Random random(6);
  for (size_t len : {1, 2, 15, 16, 17, 31, 32, 33, 48, 63, 64, 65, 96, 127, 128, 129}) {
    for (size_t first : {size_t{0}, len / 2, len - 1}) {
      for (size_t second : {first, len - 1}) {
        std::vector<size_t> order(len);
        for (size_t& i : order) i = quiet[random() % quiet.size()];
        order[first] = reporting[random() % reporting.size()];
        order[second] = reporting[random() % reporting.size()];
        ExpectSameAsAlone(Select(batch, alone, order));
      }
    }
  }
}

TEST_P(Positions, InPlace) {
  if (entry().input != entry().output) GTEST_SKIP() << "input and output have different types";
  const Batch batch = Sample(entry(), 300, 3);
  const Output expected = callee().Run(batch);
  // dst in the place of src1, of src2 and, for two outputs, of the second output.
  for (int which = 0; which < entry().inputs() * entry().outputs(); ++which) {
    const bool is_second = which == 1;
    Batch sources = batch;
    Array& shared = is_second && entry().inputs() == 2 ? sources.src2 : sources.src1;
    Output output(entry(), batch.size());
    auto arguments = Callee::ArgumentsOf(sources, output, 0, batch.size());
    if (is_second && entry().outputs() == 2) arguments.dst2 = shared.data();
    else arguments.dst1 = shared.data();
    output.status = callee().Call(arguments);
    (is_second && entry().outputs() == 2 ? output.dst2 : output.dst1) = shared;
    EXPECT_EQ(FirstDifference(expected, output), "equal") << "array " << which;
  }
}

TEST_P(Positions, AllArraysTheSame) {
  if (entry().inputs() == 1) GTEST_SKIP() << "has one input";
  Batch batch = Sample(entry(), 300, 5);
  batch.src2 = batch.src1;
  const Output expected = callee().Run(batch);
  Output output(entry(), batch.size());
  const auto length = static_cast<int32_t>(batch.size());
  output.status =
      callee().Call({.src1 = batch.src1.data(), .src2 = batch.src1.data(), .dst1 = batch.src1.data(), .len = length});
  output.dst1 = batch.src1;
  batch.src1 = batch.src2;  // the arguments again, for the comparison
  EXPECT_EQ(FirstDifference(expected, output), "equal");
}

INSTANTIATE_TEST_SUITE_P(Exports, Positions, testing::ValuesIn(AllSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
