// The same work on several threads.
#pragma once

#include <algorithm>
#include <functional>
#include <thread>
#include <vector>

namespace lum::accuracy {

inline unsigned ProcessorCount() { return std::max(1u, std::thread::hardware_concurrency()); }

inline void OnThreads(unsigned count, const std::function<void()>& work) {
  std::vector<std::jthread> threads;
  for (unsigned i = 0; i < count; ++i) threads.emplace_back(work);
}

}  // namespace lum::accuracy
