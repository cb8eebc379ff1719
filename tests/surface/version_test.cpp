// The version record.
#include <cstring>
#include <map>
#include <string>

#include "support/subjects.h"

namespace lum::test {
namespace {

// What the processor class of a library needs.
const std::map<std::string, std::string> names = {
    {"k0", "lumVM AVX-512F/CD/BW/DQ/VL (k0)"}, {"a2", "lumVM AVX2/FMA (a2)"}, {"p0", "lumVM portable (p0)"}};

TEST(Version, Record) {
  for (const std::string& name : RunnableLibraries()) {
    std::string reason;
    auto* get = TestLibrary(name, "", reason)->Symbol<const LumLibraryVersion*()>("lumvmGetLibVersion");
    ASSERT_NE(get, nullptr);
    const LumLibraryVersion* version = get();
    EXPECT_EQ(version, get());
    EXPECT_EQ(version->versionMajor, 2026);
    EXPECT_EQ(version->versionMinor, 0);
    EXPECT_EQ(version->versionPatch, 0);
    EXPECT_EQ(version->buildTag, 0xA7AD6EBCu);
    const char target_code[4] = {name[0], name[1]};
    EXPECT_EQ(std::memcmp(version->targetCode, target_code, 4), 0);
    EXPECT_EQ(version->name, names.at(name));
    EXPECT_STREQ(version->version, "2026.0.0 (r0xa7ad6ebc)");
    EXPECT_STREQ(version->buildDate, "Mar 27 2026");
  }
}

}  // namespace
}  // namespace lum::test
