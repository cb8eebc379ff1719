#include "assists.h"

#include <fmt/format.h>

#include <stdexcept>

#if defined(__x86_64__)
#include <dlfcn.h>
#include <ucontext.h>
#include <xmmintrin.h>

#include <algorithm>
#include <array>
#include <bit>
#include <csignal>
#include <cstddef>
#include <cstdint>
#endif

namespace lum::bench {

#if defined(__x86_64__)
namespace {

constexpr uint32_t all_masked = 0x1F80, flags = 0x003F;
constexpr uint32_t of_denormals = 0x0900;  // the masks of denormal operands and of underflow

// Counts by address, in a table that a signal handler may write.
struct Count {
  const std::byte* address;
  uint32_t assists;
};
std::array<Count, 1 << 14> counts;

void CountAndStepOn(int, siginfo_t*, void* state) {
  auto& machine = static_cast<ucontext_t*>(state)->uc_mcontext;
  const auto instruction = static_cast<uint64_t>(machine.gregs[REG_RIP]);
  const auto address = std::bit_cast<const std::byte*>(instruction);
  size_t i = instruction * 0x9E3779B97F4A7C15u >> 50;
  while (counts[i].address != nullptr && counts[i].address != address) i = (i + 1) % counts.size();
  counts[i].address = address;
  ++counts[i].assists;
  // The instruction is done anew with the exceptions masked, and traps behind it.
  machine.fpregs->mxcsr |= of_denormals;
  machine.gregs[REG_EFL] |= 0x100;
}
void Unmask(int, siginfo_t*, void* state) {
  auto& machine = static_cast<ucontext_t*>(state)->uc_mcontext;
  machine.fpregs->mxcsr &= ~(of_denormals | flags);
  machine.gregs[REG_EFL] &= ~0x100ll;
}

void Handle(int signal, void (*handler)(int, siginfo_t*, void*)) {
  struct sigaction action = {};
  action.sa_sigaction = handler;
  action.sa_flags = SA_SIGINFO;
  sigaction(signal, &action, nullptr);
}

}  // namespace

void PrintAssists(const std::string& name, const std::shared_ptr<Data>& data, int32_t len,
                  const std::function<void(const support::Arguments&)>& call) {
  Handle(SIGFPE, CountAndStepOn);
  Handle(SIGTRAP, Unmask);
  counts.fill({});
  _mm_setcsr(all_masked & ~of_denormals);
  call(data->arguments(len));
  _mm_setcsr(all_masked);
  std::ranges::sort(counts, [](const Count& a, const Count& b) { return a.assists > b.assists; });
  if (counts[0].assists == 0) return;
  fmt::print("{}|{}", name, len);
  for (size_t i = 0; counts[i].assists != 0; ++i) {
    Dl_info info = {};
    dladdr(counts[i].address, &info);
    fmt::print("|{:x}:{}", counts[i].address - static_cast<const std::byte*>(info.dli_fbase), counts[i].assists);
  }
  fmt::print("\n");
}

#else

void PrintAssists(const std::string&, const std::shared_ptr<Data>&, int32_t,
                  const std::function<void(const support::Arguments&)>&) {
  throw std::runtime_error("assists are counted on x86-64 alone");
}

#endif

}  // namespace lum::bench
