// The version record.
#include <cstring>

#include "support/subjects.h"

namespace lum::test {
namespace {

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
    EXPECT_EQ(std::memcmp(version->targetCode, "k0\0\0", 4), 0);
    EXPECT_STREQ(version->name, "lumVM AVX-512F/CD/BW/DQ/VL (k0)");
    EXPECT_STREQ(version->version, "2026.0.0 (r0xa7ad6ebc)");
    EXPECT_STREQ(version->buildDate, "Mar 27 2026");
  }
}

}  // namespace
}  // namespace lum::test
