// The arrays that benchmarks run over, and the benchmark of one loop over them.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "support/element_array.h"
#include "support/library.h"

namespace lum::bench {

// Arrays of one function and type, filled with arguments of everyday size.
class Data {
 public:
  Data(const support::Export& entry, size_t count);
  // Sets a part of an argument of an element: argument 1 is for functions of two inputs, part 1 for complex numbers.
  void SetPart(size_t i, size_t argument, size_t part, double x);
  support::Arguments arguments(int32_t len);

 private:
  support::ElementArray src1_, src2_, value_, dst1_, dst2_;
};

// A benchmark of calls over the first len elements, with a counter of ticks of the time stamp counter an element.
void Register(const std::string& name, const std::shared_ptr<Data>& data, int32_t len,
              const std::function<void(const support::Arguments&)>& call);

}  // namespace lum::bench
