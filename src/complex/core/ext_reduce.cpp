// x - k pi/4 for the even k nearest to x / (pi/4). Up to 2^30, pi/4 is a sum of parts so short that k times each is exact (Cody
// and Waite). Beyond, x is multiplied by the bits of 4/pi that matter (Payne and Hanek): pieces whose product with x is a
// multiple of 8 octants are never read, those far below the binary point neither.
#include "complex/core/ext_reduce.h"

#include "frame/literals.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER::complex {
namespace {

constexpr int direct_limit = field_of(29);      // exponent field of the last direct range, below 2^30
constexpr int three_part_limit = field_of(16);  // below 2^17: k has 18 bits

constexpr Extended four_over_pi = 1.2732395447351628;
// pi/4 as sums.
constexpr auto& three_parts = numbers::quarter_pi_parts_3<double>;
constexpr auto& five_parts = numbers::quarter_pi_parts_5<double>;

constexpr uint64_t four_over_pi_bits[] = {
#include "tables/generated/extended_four_over_pi_fields_537.inc"
};

struct OctantRemainder {
  ExtendedPair remainder;
  int64_t count;
};

Extended FourOverPiPiece(int row) {
  const size_t first = 2 * static_cast<size_t>(row);
  return from_fields({static_cast<uint32_t>(four_over_pi_bits[first]), four_over_pi_bits[first + 1]});
}

// x - k (part 0 + part 1 + ...), x > 0. The leading difference is exact; every later one keeps what its sum rounds off.
template <size_t n> ExtendedPair SubtractMultiple(Extended x, Extended k, const double (&parts)[n]) {
  ExtendedPair rest = {x - k * parts[0], 0};
  for (size_t i = 1; i < n; ++i) {
    const ExtendedPair difference = two_sum(rest.head, -(k * parts[i]));
    rest = two_sum(difference.head, difference.tail + rest.tail);
  }
  return rest;
}

OctantRemainder ReduceDirectly(Extended x, int exponent) {
  const int64_t count = (static_cast<int64_t>(x * four_over_pi) + 1) & ~int64_t{1};
  const Extended k = static_cast<Extended>(count);
  return {exponent <= three_part_limit ? SubtractMultiple(x, k, three_parts) : SubtractMultiple(x, k, five_parts), count};
}

// x modulo 8, centred, exactly: all bits of a large product of pieces are multiples of 8.
Extended ModuloEight(Extended x) {
  const bool is_multiple = magnitude(x) >= constant_power_of_two(extended_digits + 1);
  return is_multiple ? 0 : x - round_to_multiple<3>(x);
}

// A sum of three numbers that hardly overlap: a remainder next to a multiple of pi/4 is as small as 2^-80 and needs as many
// bits below that as anywhere.
struct Accumulator {
  Extended head = 0, middle = 0, tail = 0;

  void Add(Extended term) {
    const ExtendedPair upper = two_sum(head, term), lower = two_sum(middle, upper.tail);
    head = ModuloEight(upper.head);
    middle = lower.head;
    tail += lower.tail;
  }

  ExtendedPair Less(Extended integer) const {
    const ExtendedPair upper = two_sum(head - integer, middle);
    return two_sum(upper.head, upper.tail + tail);
  }
};

// x times 4/pi modulo 8, x > 0.
Accumulator OctantsOf(Extended x, int exponent) {
  const int beyond = exponent > field_of(34) ? exponent - field_of(34) : 0;
  const int row = (beyond * 0x4211) >> 19;  // beyond / 31
  const int last = row + (beyond - 31 * row >= 17 ? 8 : 7);
  const Extended scaled = x * constant_power_of_two(-217);
  ExtendedFields leading = fields(scaled);
  leading.significand &= uint64_t{0xffffffff} << 32;
  const Extended head = from_fields(leading), tail = scaled - head;
  Accumulator sum;
  for (int i = row; i <= last; ++i) {
    const Extended piece = FourOverPiPiece(i);
    sum.Add(ModuloEight(head * piece));
    sum.Add(ModuloEight(tail * piece));
  }
  return sum;
}

OctantRemainder ReduceHuge(Extended x, int exponent) {
  constexpr ExtendedPair quarter_pi = {numbers::quarter_pi_pair<double>[0], numbers::quarter_pi_pair<double>[1]};
  const Accumulator octants = OctantsOf(x, exponent);
  const Extended even = round_to_multiple<1>(octants.head);
  return {multiply(octants.Less(even), quarter_pi), static_cast<int64_t>(even) & 7};
}

}  // namespace

int64_t ExtReducePi4(ExtendedPair& remainder, const Extended& x) {
  const int exponent = exponent_field(x);
  const Extended positive = magnitude(x);
  if (exponent <= direct_limit && positive * four_over_pi < 1) {
    remainder = {x, 0};
    return 0;
  }
  const OctantRemainder r = exponent <= direct_limit ? ReduceDirectly(positive, exponent) : ReduceHuge(positive, exponent);
  const bool is_negative = sign_bit(x);
  remainder = scale(r.remainder, sign_factor(is_negative));
  return is_negative ? -r.count : r.count;
}

}  // namespace lum::inline LUM_LAYER::complex
