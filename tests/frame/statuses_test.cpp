// Which statuses a function reports: each that its declaration names, for the arguments named with it, and no other.
#include <algorithm>
#include <set>

#include "support/declarations.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

using support::DeclarationOf;
using support::DeclaredPoint;
using support::DeclaredStatus;

class Statuses : public ExportTest {
 protected:
  Bits First(const DeclaredPoint& p) const { return {format_.pattern(p[0]), format_.pattern(p[1])}; }
  Bits Second(const DeclaredPoint& p) const { return {format_.pattern(p[2]), format_.pattern(p[3])}; }

  // An everyday element, of which no function reports anything.
  Bits Quiet() const {
    const support::Interval ordinary = DeclarationOf(entry()).ordinary;
    return {format_.pattern(ordinary.low < 0.7 ? 0.7 : 2.3 * ordinary.low), format_.pattern(0.6)};
  }
  // An array of `len` elements, all quiet but that at `place`; the parameter is the point's.
  Batch Among(const DeclaredPoint& point, size_t place, size_t len) const {
    Batch batch(entry());
    for (size_t i = 0; i < len; ++i) {
      batch.src1.Append(i == place ? First(point) : Quiet());
      if (entry().inputs() == 2) batch.src2.Append(i == place ? Second(point) : Quiet());
    }
    if (entry().has_parameter()) batch.value.Append(Second(point));
    return batch;
  }
  void ExpectReported(const DeclaredStatus& declared, const DeclaredPoint& point) {
    for (size_t len : {1, 2, 17, 64, 131}) {
      for (size_t place : {size_t{0}, len / 2, len - 1}) {
        const Batch batch = Among(point, place, len);
        ASSERT_EQ(callee().Run(batch).status, declared.status) << batch.Show(place) << " at " << place << " of " << len;
      }
    }
  }

 private:
  Format format_ = FormatOf(GetParam().entry->input);
};

TEST_P(Statuses, DeclaredOnesAreReported) {
  for (const DeclaredStatus& declared : DeclarationOf(entry()).statuses) {
    EXPECT_FALSE(declared.at.empty());
    for (const DeclaredPoint& point : declared.at) ExpectReported(declared, point);
  }
}

TEST_P(Statuses, NoOthersAreReported) {
  std::set<LumStatus> allowed = {lumStsOk};
  for (const DeclaredStatus& declared : DeclarationOf(entry()).statuses) allowed.insert(declared.status);
  for (const Batch& batch : Sweep(entry(), 3000)) {
    std::vector<LumStatus> statuses;
    callee().RunEach(batch, statuses);
    for (size_t i = 0; i < batch.size(); ++i) {
      ASSERT_TRUE(allowed.contains(statuses[i])) << support::StatusName(statuses[i]) << " of " << batch.Show(i);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, Statuses, testing::ValuesIn(CatalogueSubjects()), NameOf);

}  // namespace
}  // namespace lum::test
