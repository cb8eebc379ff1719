// Memory between two pages that cannot be touched: an access before or behind an array faults.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <stdexcept>

namespace lum::test {

class GuardedMemory {
 public:
  explicit GuardedMemory(size_t bytes) {
    const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    size_ = (bytes + page - 1) / page * page;
    mapping_size_ = size_ + 2 * page;
    void* mapping = mmap(nullptr, mapping_size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapping == MAP_FAILED) throw std::runtime_error("mmap failed");
    mapping_ = static_cast<std::byte*>(mapping);
    if (mprotect(begin(), size_, PROT_READ | PROT_WRITE) != 0) throw std::runtime_error("mprotect failed");
  }
  ~GuardedMemory() { munmap(mapping_, mapping_size_); }
  GuardedMemory(const GuardedMemory&) = delete;
  GuardedMemory& operator=(const GuardedMemory&) = delete;

  std::byte* begin() const { return mapping_ + (mapping_size_ - size_) / 2; }
  std::byte* end() const { return begin() + size_; }
  void Fill(std::byte value) { std::fill(begin(), end(), value); }
  // Reading alone, or reading and writing.
  void SetReadOnly(bool read_only) {
    if (mprotect(begin(), size_, read_only ? PROT_READ : PROT_READ | PROT_WRITE) != 0)
      throw std::runtime_error("mprotect failed");
  }

 private:
  std::byte* mapping_;
  size_t size_, mapping_size_;
};

}  // namespace lum::test
