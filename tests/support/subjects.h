// What is under test: every exported function of every built library, and the test kernels of the recording libraries, which
// stand for shapes that few functions have. Tests over all of them are written against ExportTest.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

#include "support/library.h"
#include "support/values.h"

namespace lum::test {

// "k0", "a2" and "p0", as far as they are built.
std::span<const std::string> LibraryNames();
// A built library (variant "" or "_recording"); null with a reason when it cannot run here.
const support::Library* TestLibrary(const std::string& name, const std::string& variant, std::string& reason);
// The libraries that can run here.
std::vector<std::string> RunnableLibraries();

// The kernels of test_kernels.cpp as exports.
std::span<const Export> TestKernels();

struct Subject {
  std::string library;
  const Export* entry;
  bool is_test_kernel;
};
// Exports of all libraries, and the test kernels.
std::vector<Subject> AllSubjects();
// Exports alone.
std::vector<Subject> CatalogueSubjects();
void PrintTo(const Subject& subject, std::ostream* stream);
// k0_Exp_32f_A24
std::string NameOf(const testing::TestParamInfo<Subject>& info);

// The outputs of one call.
struct Output {
  Array dst1, dst2;
  LumStatus status = lumStsOk;

  explicit Output(const Export& entry, size_t size = 0);
  std::string Show(size_t i) const;
};
// "equal", or the first element, or the status, that differs.
std::string FirstDifference(const Output& expected, const Output& actual);
// The first difference between the results of two libraries, which may take different ones of several NaNs in the arguments of
// a complex function.
std::string DifferenceOfLibraries(const Output& expected, const Output& actual, const Batch& arguments);

// A function at an address, called with batches.
class Callee {
 public:
  Callee(const support::Library& library, const Export& entry) : entry_(&entry), address_(library.Symbol(entry.name)) {}
  const Export& entry() const { return *entry_; }
  void* address() const { return address_; }
  LumStatus Call(const support::Arguments& arguments) const { return support::CallAddress(address_, *entry_, arguments); }
  // The arguments of a call over elements first to first + count - 1 of the arrays.
  static support::Arguments ArgumentsOf(const Batch& batch, Output& output, size_t first, size_t count);
  Output Run(const Batch& batch) const;
  // Each element by a call of its own: results, and the status of each.
  Output RunEach(const Batch& batch, std::vector<LumStatus>& statuses) const;

 private:
  const Export* entry_;
  void* address_;
};

// A test of one subject; skipped with a reason where its library cannot run.
class ExportTest : public testing::TestWithParam<Subject> {
 protected:
  void SetUp() override;
  virtual std::string Variant() const { return GetParam().is_test_kernel ? "_recording" : ""; }
  const Export& entry() const { return *GetParam().entry; }
  const support::Library& library() const { return *library_; }
  Callee callee() const { return Callee(*library_, entry()); }

 private:
  const support::Library* library_ = nullptr;
};

}  // namespace lum::test
