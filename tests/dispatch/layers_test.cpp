// The library with several layers: which one it takes, that each can be forced, and that through each it gives what the
// library of that layer alone gives.
#include <lumvm.h>

#include <algorithm>
#include <map>

#include "frame/dispatch/processor.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

using support::Library;

const Library& Choosing() {
  static const Library library = [] {
    std::string error;
    const auto loaded = Library::LoadBuilt("", error);
    EXPECT_TRUE(loaded) << error;
    return *loaded;
  }();
  return library;
}
const char* GetLayer() { return Choosing().Symbol<const char*()>("lumvmGetLayer")(); }
int SetLayer(const char* name) { return Choosing().Symbol<int(const char*)>("lumvmSetLayer")(name); }

// The library of one layer by the layer's name.
const std::map<std::string, std::string> single_libraries = {{"avx512", "k0"}, {"avx2", "a2"}, {"portable", "p0"}};

// The layers that are linked in: those whose library is built.
std::vector<Layer> BuiltLayers() {
  std::vector<Layer> built;
  for (const Layer layer : all_layers) {
    if (std::ranges::count(LibraryNames(), single_libraries.at(NameOf(layer))) != 0) built.push_back(layer);
  }
  return built;
}

TEST(Layers, TheFastestThatRunsIsTaken) {
  for (const Layer layer : BuiltLayers()) {
    if (!ProcessorRuns(layer)) continue;
    EXPECT_STREQ(GetLayer(), NameOf(layer));
    break;
  }
}

TEST(Layers, OthersCanBeForcedWhereTheyRun) {
  const std::string best = GetLayer();
  for (const Layer layer : BuiltLayers()) {
    const std::string before = GetLayer();
    EXPECT_EQ(SetLayer(NameOf(layer)), ProcessorRuns(layer) ? 0 : -1);
    EXPECT_EQ(GetLayer(), ProcessorRuns(layer) ? NameOf(layer) : before);
  }
  EXPECT_EQ(SetLayer("portable"), 0);
  for (const char* unknown : {"", "AVX512", "avx", "portable "}) {
    EXPECT_EQ(SetLayer(unknown), -1);
    EXPECT_STREQ(GetLayer(), "portable");
  }
  EXPECT_EQ(SetLayer(nullptr), 0);
  EXPECT_EQ(GetLayer(), best);
}

TEST(Layers, GiveTheBitsOfTheirLibraries) {
  for (const Layer layer : BuiltLayers()) {
    if (SetLayer(NameOf(layer)) != 0) continue;
    std::string reason;
    const Library* single = TestLibrary(single_libraries.at(NameOf(layer)), "", reason);
    ASSERT_NE(single, nullptr) << reason;
    const auto* version = Choosing().Symbol<const LumLibraryVersion*()>("lumvmGetLibVersion")();
    EXPECT_STREQ(version->name, single->Symbol<const LumLibraryVersion*()>("lumvmGetLibVersion")()->name);
    for (const Export& entry : support::Exports()) {
      const Batch batch = Sample(entry, 300);
      EXPECT_EQ(FirstDifference(Callee(*single, entry).Run(batch), Callee(Choosing(), entry).Run(batch)), "equal")
          << entry.name << " through " << NameOf(layer);
    }
  }
  SetLayer(nullptr);
}

}  // namespace
}  // namespace lum::test
