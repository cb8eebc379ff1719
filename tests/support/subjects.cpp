#include "support/subjects.h"

#include <algorithm>
#include <map>
#include <optional>

namespace lum::test {
namespace {

using support::Library;
using support::Shape;
using support::Tier;

struct LoadedLibrary {
  std::optional<Library> library;
  std::string reason;
};

LoadedLibrary LoadForTest(const std::string& name, const std::string& variant) {
  LoadedLibrary loaded;
  if (!support::ProcessorRuns(name)) {
    loaded.reason =
        "liblumvm" + name + " needs " + std::string(support::InstructionsOf(name)) + ", which this processor does not have";
  } else {
    loaded.library = Library::LoadBuilt(name, loaded.reason, variant);
  }
  return loaded;
}

constexpr Export KernelExport(std::string_view name, std::string_view type, Shape shape, Element input, Element output) {
  return {name, name.substr(3), type, "", shape, Tier::high, input, output, 0};
}

constexpr Export test_kernels[] = {
#define LUM_TEST_KERNEL(name, type, shape, input, output) \
  KernelExport("lumTest" #name, #type, Shape::shape, Element::input, Element::output),
#include "support/test_kernels.def"
#undef LUM_TEST_KERNEL
};

// The results of complex functions, with those NaNs replaced by the expected ones that are free to differ between libraries.
Array WithNansOf(const Array& expected, const Array& actual, const Batch& arguments) {
  Array results = actual;
  if (!support::IsComplex(arguments.src1.element())) return results;
  const Format format = FormatOf(actual.element());
  const auto choose = [&](uint64_t a, uint64_t b) { return format.is_quiet_nan(a) && format.is_quiet_nan(b) ? a : b; };
  for (size_t i = 0; i < std::min(expected.size(), results.size()); ++i) {
    if (expected[i] == results[i] || arguments.Nans(i) < 2) continue;
    results.Set(i, {choose(expected[i].re, results[i].re), choose(expected[i].im, results[i].im)});
  }
  return results;
}

void AppendSubjects(std::vector<Subject>& list, const std::string& library, std::span<const Export> entries, bool are_kernels) {
  for (const Export& entry : entries) list.push_back({library, &entry, are_kernels});
}

}  // namespace

std::span<const std::string> LibraryNames() { return support::BuiltLibraries(); }

const Library* TestLibrary(const std::string& name, const std::string& variant, std::string& reason) {
  static std::map<std::string, LoadedLibrary> cache;
  auto found = cache.find(name + variant);
  if (found == cache.end()) found = cache.emplace(name + variant, LoadForTest(name, variant)).first;
  reason = found->second.reason;
  return found->second.library ? &*found->second.library : nullptr;
}

std::vector<std::string> RunnableLibraries() {
  std::vector<std::string> names;
  for (const std::string& name : LibraryNames()) {
    std::string reason;
    if (TestLibrary(name, "", reason) != nullptr) names.push_back(name);
    else if (!support::ProcessorRuns(name)) std::printf("%s left out: %s\n", name.c_str(), reason.c_str());
    else ADD_FAILURE() << reason;
  }
  return names;
}

std::span<const Export> TestKernels() { return test_kernels; }

std::vector<Subject> CatalogueSubjects() {
  std::vector<Subject> list;
  for (const std::string& name : LibraryNames()) AppendSubjects(list, name, support::Exports(), false);
  return list;
}

std::vector<Subject> AllSubjects() {
  std::vector<Subject> list = CatalogueSubjects();
  for (const std::string& name : LibraryNames()) AppendSubjects(list, name, TestKernels(), true);
  return list;
}

void PrintTo(const Subject& subject, std::ostream* stream) { *stream << subject.entry->name << " of " << subject.library; }

std::string NameOf(const testing::TestParamInfo<Subject>& info) {
  const std::string_view name = info.param.entry->name;
  return info.param.library + "_" + std::string(name.substr(name.starts_with("lums") ? 4 : 3));
}

Output::Output(const Export& entry, size_t size)
    : dst1(entry.output, size), dst2(entry.output, entry.outputs() == 2 ? size : 0) {
  dst1.Fill(0xA5);
  dst2.Fill(0xA5);
}

std::string Output::Show(size_t i) const {
  std::string text = test::Show(dst1.element(), dst1[i]);
  if (dst2.size() != 0) text += ", " + test::Show(dst2.element(), dst2[i]);
  return text;
}

std::string FirstDifference(const Output& expected, const Output& actual) {
  const std::string first = FirstDifference(expected.dst1, actual.dst1);
  if (first != "equal") return first;
  const std::string second = FirstDifference(expected.dst2, actual.dst2);
  if (second != "equal") return "second output, " + second;
  if (expected.status == actual.status) return "equal";
  return "status: expected " + std::to_string(expected.status) + ", got " + std::to_string(actual.status);
}

std::string DifferenceOfLibraries(const Output& expected, const Output& actual, const Batch& arguments) {
  Output chosen = actual;
  chosen.dst1 = WithNansOf(expected.dst1, actual.dst1, arguments);
  return FirstDifference(expected, chosen);
}

support::Arguments Callee::ArgumentsOf(const Batch& batch, Output& output, size_t first, size_t count) {
  return {batch.src1.at(first),
          batch.src2.size() != 0 ? batch.src2.at(first) : nullptr,
          batch.value.size() != 0 ? batch.value.data() : nullptr,
          output.dst1.at(first),
          output.dst2.size() != 0 ? output.dst2.at(first) : nullptr,
          static_cast<int32_t>(count)};
}

Output Callee::Run(const Batch& batch) const {
  Output output(*entry_, batch.size());
  output.status = Call(ArgumentsOf(batch, output, 0, batch.size()));
  return output;
}

Output Callee::RunEach(const Batch& batch, std::vector<LumStatus>& statuses) const {
  Output output(*entry_, batch.size());
  statuses.resize(batch.size());
  for (size_t i = 0; i < batch.size(); ++i) {
    statuses[i] = Call(ArgumentsOf(batch, output, i, 1));
    if (statuses[i] != lumStsOk) output.status = statuses[i];
  }
  return output;
}

void ExportTest::SetUp() {
  std::string reason;
  library_ = TestLibrary(GetParam().library, Variant(), reason);
  if (library_ == nullptr && !support::ProcessorRuns(GetParam().library)) GTEST_SKIP() << reason;
  ASSERT_NE(library_, nullptr) << reason;
  ASSERT_NE(library_->Symbol(entry().name), nullptr) << entry().name << " is not exported";
}

}  // namespace lum::test
