// The loaded library, and what its functions report.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "support/library.h"

namespace lum::tool {

class Engine {
 public:
  // Loads the library of the layer of that name, or where it is empty of the fastest one. Throws SystemError where there is no
  // library.
  explicit Engine(const std::string& layer);

  // The address of the export's function. Throws SystemError where the library lacks it.
  void* Address(const support::Export& entry) const;
  const LumLibraryVersion& version() const { return *version_; }
  const std::string& layer() const { return layer_; }
  const std::string& path() const { return path_; }

 private:
  std::string path_;  // known when library_ is
  support::Library library_;
  const LumLibraryVersion* version_;
  std::string layer_;
};

// Which elements reported something: by status how many, and the index of the first one.
class Reports {
 public:
  Reports(void* address, const support::Export& entry) : address_(address), entry_(entry) {}

  // The call of a block returned that status; its elements have the indices from `first` on.
  void Add(LumStatus status, const support::Arguments& block, uint64_t first);

  struct Kind {
    LumStatus status;
    uint64_t count, first;
  };
  const std::vector<Kind>& kinds() const { return kinds_; }
  LumStatus last() const { return last_; }

 private:
  void Search(const support::Arguments& part, uint64_t first);

  void* address_;
  const support::Export& entry_;
  std::vector<Kind> kinds_;
  LumStatus last_ = lumStsOk;
  std::vector<std::byte> scratch1_, scratch2_;
};

}  // namespace lum::tool
