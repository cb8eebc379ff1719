// Deterministic random numbers of an element type, and their neighbours.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "accuracy/inputs.h"

namespace lum::accuracy {

// Numbers of the type as doubles.
class Generator {
 public:
  Generator(const support::Export& entry, uint64_t seed) : is32_(entry.is_32bit()), engine_(seed) {}

  double Round(double x) const { return is32_ ? static_cast<double>(static_cast<float>(x)) : x; }
  double Uniform(Interval range) {
    return Round(range.low + (range.high - range.low) * (static_cast<double>(engine_() >> 11) * 0x1p-53));
  }
  // Any finite number: every exponent is as frequent.
  double AnyBits() {
    for (;;) {
      const double x = is32_ ? static_cast<double>(std::bit_cast<float>(static_cast<uint32_t>(engine_())))
                             : std::bit_cast<double>(engine_());
      if (std::isfinite(x)) return x;
    }
  }
  // A magnitude within 2^-spread to 2^spread.
  double LogUniform(double spread) {
    const double x = Round(std::exp2(Uniform({-spread, spread})));
    return (engine_() & 1) != 0 ? -x : x;
  }
  double Denormal() {
    const double x = is32_ ? static_cast<double>(std::bit_cast<float>(static_cast<uint32_t>(engine_() & 0x807FFFFF)))
                           : std::bit_cast<double>(engine_() & 0x800FFFFFFFFFFFFF);
    return x;
  }
  double Neighbour(double x, int steps) const {
    const double towards = steps < 0 ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
    for (int i = 0; i < std::abs(steps); ++i) {
      x = is32_ ? static_cast<double>(std::nextafter(static_cast<float>(x), static_cast<float>(towards)))
                : std::nextafter(x, towards);
    }
    return x;
  }
  double Smallest() const { return is32_ ? 0x1p-149 : 0x1p-1074; }
  double Largest() const { return is32_ ? 0x1.fffffep127 : 0x1.fffffffffffffp1023; }
  double SmallestNormal() const { return is32_ ? 0x1p-126 : 0x1p-1022; }
  uint64_t Bits() { return engine_(); }

 private:
  bool is32_;
  std::mt19937_64 engine_;
};

}  // namespace lum::accuracy
