// Arguments of the wide search for large errors: blocks of them, each of one kind.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "accuracy/hard_inputs.h"
#include "accuracy/reference.h"

namespace lum::accuracy {

inline constexpr size_t hunt_block = 4096;

// Kinds of blocks:
//   ordinary     evenly distributed over the ordinary interval; independent pairs
//   magnitudes   logarithms evenly distributed over 2^-10 to 2^10, with pairs that have to do with one another
//   any_bits     any finite number
//   borders      next to the borders of the kernels, from the neighbouring number on
//   thresholds   next to the declared thresholds, multiples of pi/4, powers of 2 and 10, and multiples of 2^-7
//   climb        next to the worst arguments found so far
//   hard         numbers nearest to multiples of pi/2; complex numbers on the unit circle
enum class HuntKind { ordinary, magnitudes, any_bits, borders, thresholds, climb, hard };

// The parts of the arguments: re and im of the first, then of the second input. Those that the function lacks are left as they
// are. Of a scalar parameter, runs of parameter_run elements have one value.
struct HuntPoints {
  HuntKind kind = HuntKind::ordinary;
  std::array<std::array<double, hunt_block>, 4> part = {};
  Point At(size_t i) const { return {part[0][i], part[1][i], part[2][i], part[3][i]}; }
};
inline constexpr size_t parameter_run = 256;

// A fast generator: xoshiro256++ by Blackman and Vigna.
class Random {
 public:
  Random(uint64_t seed, uint64_t stream);
  uint64_t operator()() {
    const uint64_t result = Turned(s_[0] + s_[3], 23) + s_[0], t = s_[1] << 17;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = Turned(s_[3], 45);
    return result;
  }
  double Unit() { return static_cast<double>((*this)() >> 11) * 0x1p-53; }
  uint64_t Below(uint64_t n) { return static_cast<uint64_t>((static_cast<unsigned __int128>((*this)()) * n) >> 64); }

 private:
  static uint64_t Turned(uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }
  uint64_t s_[4];
};

// The blocks of a function and type. Block i is determined by the seed, i, and the worst arguments that it is given.
class HuntSource {
 public:
  HuntSource(const support::Export& entry, uint64_t seed);
  void Fill(HuntPoints& points, uint64_t index, std::span<const Point> worst);

 private:
  double Ordinary(Random& random) const;
  double Magnitude(Random& random, int low, int high, bool may_be_negative) const;
  double AnyBits(Random& random) const;
  // The number that many representable ones away.
  double Away(double x, int64_t steps) const;
  double Near(double x, Random& random, int most_bits) const;
  double Part(HuntKind kind, Random& random) const;
  double Related(double x, Random& random) const;
  double Exponent(double x, Random& random) const;
  void FillPairs(HuntPoints& points, Random& random) const;
  void FillComplex(HuntPoints& points, Random& random) const;
  void Climb(HuntPoints& points, Random& random, std::span<const Point> worst) const;
  void SetPoint(HuntPoints& points, size_t i, const Point& p) const;
  void KeepParameters(HuntPoints& points) const;

  const support::Export& entry_;
  uint64_t seed_;
  bool is32_, is_complex_, has_second_, is_power_;
  double low_, high_;
  BorderPoints borders_;
  std::vector<double> anchors_;  // what `thresholds` is about
  std::vector<Point> hard_;
};

}  // namespace lum::accuracy
