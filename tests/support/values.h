// Values that tests feed to functions: the special values of each type, values of ordinary size, and random bit patterns. All
// sequences are the same on every run and every platform.
#pragma once

#include <random>
#include <vector>

#include "support/elements.h"

namespace lum::test {

using Random = std::mt19937_64;

// The arguments of one call: src2 is empty without a second input, value holds the scalar parameter or is empty.
struct Batch {
  Array src1, src2, value;

  explicit Batch(const Export& entry);
  size_t size() const { return src1.size(); }
  void resize(size_t size);
  // Appends element i of another batch.
  void Append(const Batch& other, size_t i);
  // How many components of element i, over all inputs and the parameter, are NaN. Of several NaNs a complex function may take
  // another one in another library.
  int Nans(size_t i) const;
  std::string Show(size_t i) const;
};

// Zeros, ones, denormals, extremes, infinities, NaNs quiet and signalling of both signs, integers, halves, multiples of pi, the
// places where exponentials overflow, each with both signs; as patterns of a component.
const std::vector<uint64_t>& SpecialComponents(Format format);
// A few of them, for products of several components.
const std::vector<uint64_t>& KeyComponents(Format format);
uint64_t RandomComponent(Format format, Random& random);

std::vector<Bits> SpecialElements(Element element);
Bits RandomElement(Element element, Random& random);

// All special values (for two inputs all pairs) and about `count` random ones. Several batches where there is a parameter.
std::vector<Batch> Sweep(const Export& entry, size_t count);
// `count` elements of all classes in random order, one batch.
Batch Sample(const Export& entry, size_t count, uint64_t seed = 1);

}  // namespace lum::test
