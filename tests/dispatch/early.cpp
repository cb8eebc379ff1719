// A library whose constructor calls lumVM from several threads at once, before lumVM's own constructor has run. It does not
// name lumVM as a library that it needs, so that the loader may run its constructor first.
#include <lumvm.h>

#include <atomic>
#include <cmath>
#include <cstring>
#include <thread>
#include <vector>

namespace {

bool called_well = false;

// Priority 101: in a static program it comes before all constructors of no stated priority.
[[gnu::constructor(101)]] void CallFromThreads() {
  constexpr int threads = 4;
  std::atomic<int> waiting = threads, good = 0;
  std::vector<std::thread> callers;
  for (int i = 0; i < threads; ++i) {
    callers.emplace_back([&] {
      --waiting;
      while (waiting > 0) {}
      const double x[3] = {0.5, 1, -2};
      double y[3] = {};
      const Lum64fc z = {0, 1}, two = {2, 0};
      Lum64fc w = {};
      const bool ok = lumsExp_64f_A53(x, y, 3) == lumStsOk && lumsPowx_64fc_A53(&z, two, &w, 1) == lumStsOk;
      good += ok && std::fabs(y[1] - 2.718281828459045) < 1e-15 && std::fabs(w.re + 1) < 1e-15 ? 1 : 0;
    });
  }
  for (std::thread& caller : callers) caller.join();
  called_well = good == threads;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int CalledWellBefore() { return called_well ? 1 : 0; }
