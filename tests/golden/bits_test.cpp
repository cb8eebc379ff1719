// One digest an export, of results and statuses over fixed sweeps: any change of a bit shows as a changed line of bits.txt.
// Arguments with two NaN components are left out, since the result of a complex function may then be either of them.
// LUM_WRITE_GOLDEN=1 writes the file anew, from the portable library.
#include <xxhash.h>

#include <cstdlib>
#include <fstream>
#include <map>

#include "support/recorder.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

constexpr size_t random_values = 5000;
constexpr const char* golden_file = LUM_TEST_SOURCE_DIR "/golden/bits.txt";

// The sweep without the arguments that allow several results.
Batch Determined(const Export& entry, const Batch& sweep) {
  Batch batch(entry);
  batch.value = sweep.value;
  for (size_t i = 0; i < sweep.size(); ++i) {
    if (sweep.Nans(i) < 2) batch.Append(sweep, i);
  }
  return batch;
}

std::string DigestOf(const support::Library& library, const Export& entry) {
  XXH64_state_t* state = XXH64_createState();
  XXH64_reset(state, 0);
  Recorder recorder(library, entry);
  for (const Batch& sweep : Sweep(entry, random_values)) {
    const Batch batch = Determined(entry, sweep);
    if (batch.size() == 0) continue;
    recorder.Clear();
    const Output output = Callee(library, entry).Run(batch);
    const auto statuses = StatusesFrom(recorder.log(), batch.size());
    XXH64_update(state, output.dst1.data(), output.dst1.bytes());
    XXH64_update(state, output.dst2.data(), output.dst2.bytes());
    XXH64_update(state, statuses.data(), statuses.size() * sizeof statuses[0]);
    XXH64_update(state, &output.status, sizeof output.status);
  }
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(XXH64_digest(state)));
  XXH64_freeState(state);
  return text;
}

std::map<std::string, std::string> StoredDigests() {
  std::map<std::string, std::string> digests;
  std::ifstream file(golden_file);
  std::string heading;
  std::getline(file, heading);
  for (std::string name, digest; file >> name >> digest;) digests[name] = digest;
  return digests;
}

bool IsWriting() { return std::getenv("LUM_WRITE_GOLDEN") != nullptr; }

class Golden : public ExportTest {
 protected:
  std::string Variant() const override { return "_recording"; }
  void SetUp() override {
    if (IsWriting()) GTEST_SKIP() << "the digests are being written";
    ExportTest::SetUp();
  }
};

TEST_P(Golden, SameBits) {
  static const auto stored = StoredDigests();
  const std::string name(entry().name);
  ASSERT_TRUE(stored.contains(name)) << "no digest; LUM_WRITE_GOLDEN=1 writes them";
  EXPECT_EQ(DigestOf(library(), entry()), stored.at(name));
}

INSTANTIATE_TEST_SUITE_P(Exports, Golden, testing::ValuesIn(CatalogueSubjects()), NameOf);

TEST(GoldenFile, HasExactlyTheExports) {
  if (IsWriting()) {
    std::string reason;
    const support::Library* library = TestLibrary("p0", "_recording", reason);
    ASSERT_NE(library, nullptr) << reason;
    std::ofstream file(golden_file);
    file << "# Written by `LUM_WRITE_GOLDEN=1 build/dev/tests/test.golden.bits`: digests of all results, a line an export.\n";
    for (const Export& entry : support::Exports()) file << entry.name << ' ' << DigestOf(*library, entry) << '\n';
  }
  const auto stored = StoredDigests();
  EXPECT_EQ(stored.size(), support::Exports().size());
  for (const Export& entry : support::Exports()) EXPECT_TRUE(stored.contains(std::string(entry.name))) << entry.name;
}

}  // namespace
}  // namespace lum::test
