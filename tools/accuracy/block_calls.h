// Calls of functions over blocks of arguments, whose parts and results are columns of doubles.
#pragma once

#include <array>
#include <functional>

#include "accuracy/hunt_points.h"
#include "support/element_array.h"
#include "support/library.h"

namespace lum::accuracy {

using HuntColumn = std::array<double, hunt_block>;
using BlockCall = std::function<void(const support::Arguments&)>;

inline BlockCall CallOf(const support::Library& library, const support::Export& entry) {
  void* address = library.Symbol(entry.name);
  return [address, &entry](const support::Arguments& arguments) { support::CallAddress(address, entry, arguments); };
}

// A block of elements, whose columns are copied by loops that a compiler vectorises.
class Block : public support::ElementArray {
 public:
  explicit Block(support::Element element) : ElementArray(element, hunt_block) {}
  void Set(const HuntColumn& re, const HuntColumn& im) { Is32Bit(element()) ? Store<float>(re, im) : Store<double>(re, im); }
  void Get(HuntColumn& re, HuntColumn& im) const { Is32Bit(element()) ? Load<float>(re, im) : Load<double>(re, im); }

 private:
  template <class T> void Store(const HuntColumn& re, const HuntColumn& im) {
    T* to = reinterpret_cast<T*>(data());
    if (!support::IsComplex(element())) {
      for (size_t i = 0; i < hunt_block; ++i) to[i] = static_cast<T>(re[i]);
      return;
    }
    for (size_t i = 0; i < hunt_block; ++i) {
      to[2 * i] = static_cast<T>(re[i]);
      to[2 * i + 1] = static_cast<T>(im[i]);
    }
  }
  template <class T> void Load(HuntColumn& re, HuntColumn& im) const {
    const T* from = reinterpret_cast<const T*>(data());
    if (!support::IsComplex(element())) {
      for (size_t i = 0; i < hunt_block; ++i) re[i] = static_cast<double>(from[i]);
      return;
    }
    for (size_t i = 0; i < hunt_block; ++i) {
      re[i] = static_cast<double>(from[2 * i]);
      im[i] = static_cast<double>(from[2 * i + 1]);
    }
  }
};

// Calls of functions of one shape and type over a block. Of one output of two parts, or of two outputs, both are given.
class Caller {
 public:
  explicit Caller(const support::Export& entry)
      : entry_(entry), src1_(entry.input), src2_(entry.input), dst1_(entry.output), dst2_(entry.output) {}
  void Set(const HuntPoints& points) {
    src1_.Set(points.part[0], points.part[1]);
    if (entry_.inputs() == 2 || entry_.has_parameter()) src2_.Set(points.part[2], points.part[3]);
  }
  void Call(const BlockCall& call, std::array<HuntColumn, 2>& results) {
    if (entry_.has_parameter()) {
      for (size_t i = 0; i < hunt_block; i += parameter_run) {
        call({src1_.at(i), nullptr, src2_.at(i), dst1_.at(i), nullptr, parameter_run});
      }
    } else {
      call({src1_.data(), src2_.data(), nullptr, dst1_.data(), dst2_.data(), hunt_block});
    }
    dst1_.Get(results[0], results[1]);
    if (entry_.outputs() == 2) dst2_.Get(results[1], results[1]);
  }

 private:
  const support::Export& entry_;
  Block src1_, src2_, dst1_, dst2_;
};

}  // namespace lum::accuracy
