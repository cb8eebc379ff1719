// Sine and cosine of one number by scalar arithmetic, which finishes the lanes of the low binary64 tiers beyond the threshold
// of their vector paths. The argument is reduced to (-pi/4, pi/4) and a count of quarter turns: from 2^30 on by products with
// pieces of 25 bits of 4/pi, each exact, leaving out the pieces that only give whole turns; from 2^17 on by subtraction of
// multiples of pi/4 in parts. A table of angles of pi/32 and short series finish. No step is fused.
#pragma once

#include <bit>
#include <cstdint>

#include "circular/large_reduction.h"
#include "circular/nonfinite.h"
#include "circular/polynomials.h"
#include "frame/constant.h"
#include "frame/lane_format.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::circular {

// Entry j + 1: bits 25 j to 25 j + 24 of 4/pi, in its place times 2^200.
inline constexpr auto four_over_pi_chunks = table64({
#include "tables/generated/four_over_pi_chunks_64f_56.inc"
});

// A sum of numbers with their rounding errors.
struct CompensatedSum {
  double hi = 0, lo = 0;
  void Add(double x) {
    const double s = hi + x;
    const double part = s - hi;
    lo += (hi - (s - part)) + (x - part);
    hi = s;
  }
  void Normalise() {
    const double s = hi + lo;
    lo = lo - (s - hi);
    hi = s;
  }
};

// x = quarters pi/2 + hi + lo, the quarters modulo 4.
struct ReducedArgument {
  double hi, lo;
  int64_t quarters;
};

// magnitude in [2^30, infinity).
inline ReducedArgument ReduceByChunks(double magnitude) {
  const auto x =
      std::bit_cast<double>(std::bit_cast<uint64_t>(magnitude) - (uint64_t{200} << lane::Format<double>::fraction_bits));
  const auto xh = std::bit_cast<double>(std::bit_cast<uint64_t>(x) & 0xFFFFFFFFF8000000);
  const double xl = x - xh;
  const double* p = &four_over_pi_chunks.entries[(lane::exponent_field(magnitude) - (lane::Format<double>::bias + 29)) / 25];

  CompensatedSum octants;
  const auto add_pairs = [&](int first, int last) {
    for (int j = first; j <= last; ++j) {
      octants.Add(xh * p[j + 1]);
      octants.Add(xl * p[j]);
    }
  };
  add_pairs(0, 2);
  octants.Normalise();
  const auto whole = static_cast<int64_t>(octants.hi);
  octants.hi -= static_cast<double>(whole & ~int64_t{7});        // whole turns; exact
  octants.hi -= static_cast<double>((whole & 7) + (whole & 1));  // to the nearest even octant
  octants.Normalise();
  int64_t quarters = ((whole & 7) + 1) >> 1;
  // The last bit of a large head is worth up to four octants, of which the tail holds the rest: what lies next to another even
  // octant has to lose it before more pieces are added, since the sum cannot hold both to the bits that a cancellation leaves.
  if (octants.hi >= 1.5 || octants.hi <= -1.5) {
    const double even = (octants.hi + 0x1.8p53) - 0x1.8p53;
    octants.hi -= even;
    octants.Normalise();
    quarters += static_cast<int64_t>(even) / 2;
  }
  add_pairs(3, 7);
  octants.Normalise();

  const double w = octants.hi * 100663296.0;  // 1.5 * 2^26
  const double head = (w + octants.hi) - w;
  const double rest = (octants.hi - head) + octants.lo;
  const double part1 = numbers::quarter_pi_parts<Lum64f>[0], part2 = numbers::quarter_pi_parts<Lum64f>[1];
  CompensatedSum r{head * part1, rest * part1 + (rest + head) * part2};
  r.Normalise();
  return {r.hi, r.lo, quarters};
}

// magnitude in [2^17, 2^30).
inline ReducedArgument ReduceByParts(double magnitude) {
  const auto whole = static_cast<int64_t>(magnitude * 4 * numbers::inverse_pi<Lum64f>);
  const auto n = static_cast<double>(whole + (whole & 1));
  CompensatedSum r{magnitude};
  if (magnitude >= 0x1p23) {
    for (const double part : numbers::quarter_pi_parts_to_2p30<Lum64f>) r.Add(-(n * part));
  } else {
    for (const double part : numbers::quarter_pi_parts_to_2p23<Lum64f>) r.Add(-(n * part));
  }

  r.Normalise();
  return {r.hi, r.lo, (whole + 1) >> 1};
}

// The sine of the angle of a row of angles_64f, plus hi + lo.
inline double SineAtRow(int64_t row, double hi, double lo) {
  const double* entry = &angles_64f.entries[4 * row];
  const double cos_tail = entry[0], cos_head = entry[1], sin_head = entry[2], sin_tail = entry[3];
  const double by_head = cos_head * hi, by_tail = cos_tail * hi;
  const double p = sin_head + by_head;
  const double result = p + by_tail;
  const double error = ((p - result) + by_tail) + ((sin_head - p) + by_head);
  const double q = hi * hi;
  const double cosine = cos_tail + cos_head;
  const double sine_part = unfused_horner(q, circular::routine_sine) * q * hi;
  const double cosine_part = unfused_horner(q, circular::routine_cosine) * q;
  const double sum = sine_part * cosine + error + cosine_part * sin_head;
  return result + (sum + ((cosine - hi * sin_head) * lo + sin_tail));
}

inline LumStatus SineAndCosine(double x, double& sine, double& cosine) {
  constexpr int bias = lane::Format<double>::bias;
  const int exponent = lane::exponent_field(x) - bias;
  if (exponent > bias) {
    const LumStatus status = CircularOfNonFinite(x, sine);
    cosine = sine;
    return status;
  }
  if (exponent < -252) {
    sine = x == 0 ? x : (x * 0x1p55 - x) * 0x1p-55;  // raises the inexact flag, as a rounded sine does
    cosine = 1;
    return lumStsOk;
  }
  ReducedArgument a{x, 0, 0};
  if (exponent >= 17) {
    const double magnitude = lane::magnitude(x);
    a = exponent >= 30 ? ReduceByChunks(magnitude) : ReduceByParts(magnitude);
    if (x < 0) a = {-a.hi, -a.lo, -a.quarters};
  }
  constexpr auto shifter = rounding_shifter<Lum64f>();
  constexpr auto& parts = numbers::thirty_second_pi_parts<Lum64f>;
  const double w = a.hi * (32 * numbers::inverse_pi<Lum64f>)+shifter;
  const double n = w - shifter;
  const double r = a.hi - n * parts[0];  // exact
  const double second = n * parts[1];
  const double hi = r - second;
  const double lo = ((r - hi) - second) + (n * -parts[2] + a.lo);
  const int64_t row = static_cast<int64_t>(std::bit_cast<uint64_t>(w)) + 16 * a.quarters;
  sine = SineAtRow((row & 63) * 8, hi, lo);
  cosine = SineAtRow(((row + 16) & 63) * 8, hi, lo);
  return lumStsOk;
}

}  // namespace lum::inline LUM_LAYER::circular
