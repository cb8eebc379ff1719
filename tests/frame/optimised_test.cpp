// The portable kernels give the same bits when the compiler optimises more than the library's own build lets it. Some sources,
// those with tables in registers above all, are compiled once more for this test; the library is what they are held against.
#include <cmath>

#include "frame/kernels.h"
#include "support/subjects.h"

namespace lum::test {
namespace {

struct Kernel {
  const char* name;
  void* address;
};
template <class F> Kernel KernelOf(const char* name, F* function) { return {name, reinterpret_cast<void*>(function)}; }

std::vector<Kernel> Kernels() {
  return {KernelOf("lumsSin_32f_A11", &Sin_32f_A11),   KernelOf("lumsSin_32f_A21", &Sin_32f_A21),
          KernelOf("lumsSin_32f_A24", &Sin_32f_A24),   KernelOf("lumsSin_64f_A26", &Sin_64f_A26),
          KernelOf("lumsSin_64f_A50", &Sin_64f_A50),   KernelOf("lumsSin_64f_A53", &Sin_64f_A53),
          KernelOf("lumsTanh_32f_A11", &Tanh_32f_A11), KernelOf("lumsTanh_32f_A24", &Tanh_32f_A24),
          KernelOf("lumsTanh_64f_A50", &Tanh_64f_A50), KernelOf("lumsTanh_64f_A53", &Tanh_64f_A53),
          KernelOf("lumsExp_32f_A11", &Exp_32f_A11),   KernelOf("lumsExp_32f_A24", &Exp_32f_A24),
          KernelOf("lumsExp_64f_A26", &Exp_64f_A26),   KernelOf("lumsExp_64f_A53", &Exp_64f_A53)};
}

class Optimised : public testing::TestWithParam<Kernel> {};

TEST_P(Optimised, SameBits) {
  std::string reason;
  const support::Library* library = TestLibrary("p0", "", reason);
  ASSERT_NE(library, nullptr) << reason;
  const Export* entry = nullptr;
  for (const Export& candidate : support::Exports()) {
    if (candidate.name == GetParam().name) entry = &candidate;
  }
  ASSERT_NE(entry, nullptr);
  // Blocks without a refused lane take another way than those with one.
  std::vector<Batch> batches = Sweep(*entry, 20000);
  Batch ordinary(*entry);
  Random random(11);
  const Format format = FormatOf(entry->input);
  for (int i = 0; i < 20000; ++i) {
    const double number = std::ldexp(static_cast<double>(random() % 4096) - 2048, static_cast<int>(random() % 12) - 10);
    ordinary.src1.Append({format.pattern(number), 0});
  }
  batches.push_back(ordinary);
  for (const Batch& batch : batches) {
    Output output(*entry, batch.size());
    output.status = support::CallAddress(GetParam().address, *entry, Callee::ArgumentsOf(batch, output, 0, batch.size()));
    EXPECT_EQ(FirstDifference(Callee(*library, *entry).Run(batch), output), "equal");
  }
}

INSTANTIATE_TEST_SUITE_P(Kernels, Optimised, testing::ValuesIn(Kernels()),
                         [](const auto& instance) { return std::string(instance.param.name + 4); });

}  // namespace
}  // namespace lum::test
