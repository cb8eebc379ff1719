// The 80-bit format of the x87 unit in integer arithmetic, for processors without that unit: 15 bits of exponent, 64 of
// significand with an explicit leading bit, round to nearest. Every operation gives the unit's bits, those of NaNs too, so that
// the complex functions have the same results everywhere. No flags are raised.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/lane_exact.h"

namespace lum::inline LUM_LAYER::complex {

class SoftExtended {
 public:
  constexpr SoftExtended() = default;
  constexpr SoftExtended(double x) { *this = FromBinary(x); }
  constexpr SoftExtended(float x) { *this = FromBinary(x); }
  template <std::integral T> constexpr SoftExtended(T n) {
    const bool negative = n < 0;
    const auto size = negative ? ~static_cast<uint64_t>(n) + 1 : static_cast<uint64_t>(n);
    if (size != 0) *this = Normalised(negative, bias + 63, Wide{size} << 64);
  }
  // Literals: a sum of binary64 numbers, of which the second has all digits that are left.
  constexpr SoftExtended(long double x) {
    const auto head = static_cast<double>(x);
    *this = SoftExtended{head} + SoftExtended{static_cast<double>(x - head)};
  }

  explicit operator double() const { return ToBinary<double>(); }
  explicit operator float() const { return ToBinary<float>(); }
  // Toward zero; given a number in the range of the type.
  template <std::integral T> constexpr explicit operator T() const {
    const int shift = bias + 63 - exponent();
    const uint64_t size = shift > 63 ? 0 : significand_ >> shift;
    return static_cast<T>(is_negative() ? ~size + 1 : size);
  }

  constexpr SoftExtended operator-() const { return {static_cast<uint16_t>(upper_ ^ 0x8000), significand_}; }
  friend constexpr SoftExtended magnitude(SoftExtended x) { return {static_cast<uint16_t>(x.upper_ & 0x7fff), x.significand_}; }

  friend constexpr SoftExtended operator+(SoftExtended a, SoftExtended b) { return Sum(a, b); }
  friend constexpr SoftExtended operator-(SoftExtended a, SoftExtended b) { return Sum(a, b.is_nan() ? b : -b); }
  friend constexpr SoftExtended operator*(SoftExtended a, SoftExtended b) {
    if (a.is_nan() || b.is_nan()) return NanOf(a, b);
    const bool negative = a.is_negative() != b.is_negative();
    if (a.is_infinite() || b.is_infinite()) return a.is_zero() || b.is_zero() ? DefaultNan() : Infinity(negative);
    if (a.is_zero() || b.is_zero()) return Zero(negative);
    const Unpacked x = a.unpacked(), y = b.unpacked();
    return Normalised(negative, x.exponent + y.exponent - bias + 1, Wide{x.significand} * y.significand);
  }
  friend constexpr SoftExtended operator/(SoftExtended a, SoftExtended b) {
    if (a.is_nan() || b.is_nan()) return NanOf(a, b);
    const bool negative = a.is_negative() != b.is_negative();
    if (a.is_infinite()) return b.is_infinite() ? DefaultNan() : Infinity(negative);
    if (b.is_infinite()) return Zero(negative);
    if (b.is_zero()) return a.is_zero() ? DefaultNan() : Infinity(negative);
    if (a.is_zero()) return Zero(negative);
    const Unpacked x = a.unpacked(), y = b.unpacked();
    // 126 bits of the quotient in two steps, and a trace of the rest.
    const Wide first = Wide{x.significand} << 63;
    const Wide second = (first % y.significand) << 63;
    const Wide quotient = (first / y.significand) << 63 | second / y.significand;
    return Normalised(negative, x.exponent - y.exponent + bias, quotient << 1 | (second % y.significand != 0 ? 1 : 0));
  }
  constexpr SoftExtended& operator+=(SoftExtended b) { return *this = *this + b; }
  constexpr SoftExtended& operator-=(SoftExtended b) { return *this = *this - b; }
  constexpr SoftExtended& operator*=(SoftExtended b) { return *this = *this * b; }
  constexpr SoftExtended& operator/=(SoftExtended b) { return *this = *this / b; }

  friend constexpr bool operator==(SoftExtended a, SoftExtended b) {
    if (a.is_nan() || b.is_nan()) return false;
    return (a.is_zero() && b.is_zero()) || (a.upper_ == b.upper_ && a.significand_ == b.significand_);
  }
  friend constexpr bool operator<(SoftExtended a, SoftExtended b) { return Ordered(a, b) && IsBelow(a, b); }
  friend constexpr bool operator<=(SoftExtended a, SoftExtended b) { return Ordered(a, b) && !IsBelow(b, a); }
  friend constexpr bool operator>(SoftExtended a, SoftExtended b) { return b < a; }
  friend constexpr bool operator>=(SoftExtended a, SoftExtended b) { return b <= a; }

 private:
  friend std::numeric_limits<SoftExtended>;
  using Wide = lane::Wide;
  static constexpr int bias = 0x3fff, special = 0x7fff;
  static constexpr uint64_t leading = uint64_t{1} << 63, quiet = uint64_t{1} << 62;

  // significand * 2^(exponent - bias - 63), the significand with its leading bit set.
  struct Unpacked {
    int exponent;
    uint64_t significand;
  };

  constexpr SoftExtended(uint16_t upper, uint64_t significand) : significand_(significand), upper_(upper) {}
  static constexpr SoftExtended Packed(bool negative, int exponent, uint64_t significand) {
    return {static_cast<uint16_t>(exponent | (negative ? 0x8000 : 0)), significand};
  }
  static constexpr SoftExtended Zero(bool negative) { return Packed(negative, 0, 0); }
  static constexpr SoftExtended Infinity(bool negative) { return Packed(negative, special, leading); }
  static constexpr SoftExtended DefaultNan() { return Packed(true, special, leading | quiet); }
  // A signalling NaN gives way to a quiet one; of two that are alike the larger significand is taken, of equal ones the
  // positive.
  static constexpr SoftExtended NanOf(SoftExtended a, SoftExtended b) {
    const bool first = !b.is_nan() || (a.is_nan() && (a.is_quiet() != b.is_quiet() ? a.is_quiet() : IsLargerNan(a, b)));
    const SoftExtended nan = first ? a : b;
    return {nan.upper_, nan.significand_ | quiet};
  }
  static constexpr bool IsLargerNan(SoftExtended a, SoftExtended b) {
    return a.significand_ != b.significand_ ? a.significand_ > b.significand_ : !a.is_negative();
  }

  constexpr int exponent() const { return upper_ & 0x7fff; }
  constexpr bool is_negative() const { return upper_ >> 15 != 0; }
  constexpr bool is_zero() const { return significand_ == 0; }
  constexpr bool is_nan() const { return exponent() == special && significand_ != leading; }
  constexpr bool is_infinite() const { return exponent() == special && significand_ == leading; }
  constexpr bool is_quiet() const { return (significand_ & quiet) != 0; }
  // The fields of a finite number other than zero.
  constexpr Unpacked unpacked() const {
    const int shift = std::countl_zero(significand_);
    return {(exponent() == 0 ? 1 : exponent()) - shift, significand_ << shift};
  }
  // Whether a < b of numbers that are ordered.
  static constexpr bool IsBelow(SoftExtended a, SoftExtended b) {
    if (a.is_zero() && b.is_zero()) return false;
    if (a.is_negative() != b.is_negative()) return a.is_negative();
    if (a.is_negative()) return IsBelow(-b, -a);
    return a.upper_ != b.upper_ ? a.upper_ < b.upper_ : a.significand_ < b.significand_;
  }
  static constexpr bool Ordered(SoftExtended a, SoftExtended b) { return !a.is_nan() && !b.is_nan(); }

  // +-x 2^(exponent - bias - 127), rounded once; x is not zero, and its lowest bit may stand for a part below it.
  static constexpr SoftExtended Normalised(bool negative, int exponent, Wide x) {
    const int shift = 127 - lane::leading_bit(x);
    x <<= shift;
    exponent -= shift;
    if (exponent <= 0) {
      x = lane::shift_right_keeping_a_trace(x, 1 - exponent);
      exponent = 0;
    }
    auto kept = static_cast<uint64_t>(x >> 64);
    const auto rest = static_cast<uint64_t>(x);
    if (rest > leading || (rest == leading && (kept & 1) != 0)) {
      ++kept;
      if (kept == 0) {
        kept = leading;
        ++exponent;
      }
    }
    if (exponent == 0 && kept >= leading) exponent = 1;
    return exponent >= special ? Infinity(negative) : Packed(negative, exponent, kept);
  }

  static constexpr SoftExtended Sum(SoftExtended a, SoftExtended b) {
    if (a.is_nan() || b.is_nan()) return NanOf(a, b);
    if (a.is_infinite()) return b.is_infinite() && a.is_negative() != b.is_negative() ? DefaultNan() : a;
    if (b.is_infinite()) return b;
    if (a.is_zero()) return b.is_zero() ? Zero(a.is_negative() && b.is_negative()) : b;
    if (b.is_zero()) return a;
    Unpacked x = a.unpacked(), y = b.unpacked();
    bool negative = a.is_negative();
    const bool differ = negative != b.is_negative();
    if (x.exponent < y.exponent || (x.exponent == y.exponent && x.significand < y.significand)) {
      const Unpacked larger = y;
      y = x;
      x = larger;
      negative = b.is_negative();
    }
    // One place above is free for a carry; below, the smaller one leaves a trace.
    const Wide upper = Wide{x.significand} << 63,
               lower = lane::shift_right_keeping_a_trace(Wide{y.significand} << 63, x.exponent - y.exponent);
    const Wide sum = differ ? upper - lower : upper + lower;
    return sum == 0 ? Zero(false) : Normalised(negative, x.exponent + 1, sum);
  }

  // Exactly; a NaN becomes quiet.
  template <Floating T> static constexpr SoftExtended FromBinary(T x) {
    using F = lane::Format<T>;
    const bool negative = (lane::to_bits(x) & F::sign) != 0;
    const auto size = lane::to_bits(lane::magnitude(x));
    if (size == 0) return Zero(negative);
    if (size == F::infinity) return Infinity(negative);
    if (size > F::infinity) return Packed(negative, special, leading | quiet | uint64_t{size} << (63 - F::fraction_bits));
    const auto [significand, exponent] = lane::unpack(x);
    return Normalised(negative, exponent + bias + 127, significand);
  }
  template <Floating T> T ToBinary() const {
    using F = lane::Format<T>;
    using Bits = typename F::Bits;
    const Bits sign = is_negative() ? F::sign : 0;
    if (is_nan())
      return lane::from_bits<T>(sign | F::infinity | F::quiet |
                                static_cast<Bits>(significand_ << 1 >> (64 - F::fraction_bits)));
    if (is_infinite()) return lane::from_bits<T>(sign | F::infinity);
    if (is_zero()) return lane::from_bits<T>(sign);
    return lane::round_pack<rn, T>(is_negative(), significand_, (exponent() == 0 ? 1 : exponent()) - bias - 63);
  }

  uint64_t significand_ = 0;
  uint16_t upper_ = 0;  // sign and exponent
};

}  // namespace lum::inline LUM_LAYER::complex

template <> struct std::numeric_limits<lum::complex::SoftExtended> {
  static constexpr bool is_specialized = true, is_integer = false;
  static constexpr int digits = 64, max_exponent = 16384, min_exponent = -16381;
  static constexpr lum::complex::SoftExtended max() { return {uint16_t{0x7ffe}, ~uint64_t{0}}; }
  static constexpr lum::complex::SoftExtended min() { return {uint16_t{1}, uint64_t{1} << 63}; }
  static constexpr lum::complex::SoftExtended infinity() { return lum::complex::SoftExtended::Infinity(false); }
  static constexpr lum::complex::SoftExtended quiet_NaN() { return -lum::complex::SoftExtended::DefaultNan(); }
};
