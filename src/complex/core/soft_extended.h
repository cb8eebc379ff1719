// The 80-bit format of the x87 unit in integer arithmetic, for processors without that unit: 15 bits of exponent, 64 of
// significand with an explicit leading bit, round to nearest. Every operation gives the unit's bits, those of NaNs too, so that
// the complex functions have the same results everywhere. No flags are raised.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/types.h"

namespace lum::inline LUM_LAYER {

class SoftExtended {
 public:
  constexpr SoftExtended() = default;
  constexpr SoftExtended(double x) { *this = FromBinary(std::bit_cast<uint64_t>(x), 52, 11); }
  constexpr SoftExtended(float x) { *this = FromBinary(std::bit_cast<uint32_t>(x), 23, 8); }
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

  constexpr explicit operator double() const { return std::bit_cast<double>(ToBinary<uint64_t>(52, 11)); }
  constexpr explicit operator float() const { return std::bit_cast<float>(ToBinary<uint32_t>(23, 8)); }
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
  friend constexpr bool operator<(SoftExtended a, SoftExtended b) { return Ordered(a, b) && a.key() < b.key(); }
  friend constexpr bool operator<=(SoftExtended a, SoftExtended b) { return Ordered(a, b) && a.key() <= b.key(); }
  friend constexpr bool operator>(SoftExtended a, SoftExtended b) { return b < a; }
  friend constexpr bool operator>=(SoftExtended a, SoftExtended b) { return b <= a; }

 private:
  friend std::numeric_limits<SoftExtended>;
  __extension__ using Wide = unsigned __int128;
  __extension__ using SignedWide = __int128;
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
  // Of a finite number other than zero.
  constexpr Unpacked unpacked() const {
    const int shift = std::countl_zero(significand_);
    return {(exponent() == 0 ? 1 : exponent()) - shift, significand_ << shift};
  }
  // Grows with the number.
  constexpr SignedWide key() const {
    const auto size = static_cast<SignedWide>(Wide{static_cast<uint64_t>(exponent())} << 64 | significand_);
    return is_negative() ? -size : size;
  }
  static constexpr bool Ordered(SoftExtended a, SoftExtended b) { return !a.is_nan() && !b.is_nan(); }

  // x moved right by n places; the lowest bit of the result is also set when a set bit is lost.
  static constexpr Wide ShiftedRight(Wide x, int n) {
    if (n == 0) return x;
    if (n > 127) return x != 0 ? 1 : 0;
    return x >> n | ((x << (128 - n)) != 0 ? 1 : 0);
  }

  // +-x 2^(exponent - bias - 127), rounded once; x is not zero, and its lowest bit may stand for a part below it.
  static constexpr SoftExtended Normalised(bool negative, int exponent, Wide x) {
    const auto high = static_cast<uint64_t>(x >> 64);
    const int shift = high != 0 ? std::countl_zero(high) : 64 + std::countl_zero(static_cast<uint64_t>(x));
    x <<= shift;
    exponent -= shift;
    if (exponent <= 0) {
      x = ShiftedRight(x, 1 - exponent);
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
    const Wide upper = Wide{x.significand} << 63, lower = ShiftedRight(Wide{y.significand} << 63, x.exponent - y.exponent);
    const Wide sum = differ ? upper - lower : upper + lower;
    return sum == 0 ? Zero(false) : Normalised(negative, x.exponent + 1, sum);
  }

  // From the bits of a format with a hidden leading bit, exactly; a NaN becomes quiet.
  static constexpr SoftExtended FromBinary(uint64_t bits, int fraction_bits, int exponent_bits) {
    const uint64_t field = bits >> fraction_bits & ((uint64_t{1} << exponent_bits) - 1);
    const uint64_t fraction = bits << (63 - fraction_bits) & (leading - 1);
    const bool negative = bits >> (fraction_bits + exponent_bits) != 0;
    const int offset = bias - ((1 << (exponent_bits - 1)) - 1);
    if (field == (uint64_t{1} << exponent_bits) - 1)
      return Packed(negative, special, leading | fraction | (fraction != 0 ? quiet : 0));
    if (field != 0) return Packed(negative, static_cast<int>(field) + offset, leading | fraction);
    return fraction == 0 ? Zero(negative) : Normalised(negative, 1 + offset, Wide{fraction} << 64);
  }

  // The bits of the nearest number of such a format.
  template <class Bits> constexpr Bits ToBinary(int fraction_bits, int exponent_bits) const {
    const int largest_field = (1 << exponent_bits) - 1;
    const Bits sign = static_cast<Bits>(is_negative() ? Bits{1} << (fraction_bits + exponent_bits) : 0);
    const Bits infinity = static_cast<Bits>(static_cast<Bits>(largest_field) << fraction_bits);
    const int dropped = 63 - fraction_bits;
    if (is_nan()) return static_cast<Bits>(sign | infinity | static_cast<Bits>((significand_ | quiet) << 1 >> (dropped + 1)));
    if (is_infinite()) return sign | infinity;
    if (is_zero()) return sign;
    const Unpacked x = unpacked();
    int field = x.exponent - bias + ((1 << (exponent_bits - 1)) - 1);
    int shift = dropped;
    if (field <= 0) {
      shift += 1 - field;
      field = 1;
    }
    if (field >= largest_field) return sign | infinity;
    const Wide kept = shift > 65 ? Wide{0} : Wide{x.significand} >> shift;
    const Wide rest = shift > 65 ? Wide{1} : Wide{x.significand} & ((Wide{1} << shift) - 1);
    const Wide half = Wide{1} << (shift > 65 ? 65 : shift - 1);
    const bool up = rest > half || (rest == half && (kept & 1) != 0);
    // The leading bit of kept, where it has one, carries into the field, and so does a significand rounded up to a power of
    // two.
    return static_cast<Bits>(
        sign | ((static_cast<Bits>(field - 1) << fraction_bits) + static_cast<Bits>(kept) + static_cast<Bits>(up ? 1 : 0)));
  }

  uint64_t significand_ = 0;
  uint16_t upper_ = 0;  // sign and exponent
};

}  // namespace lum::inline LUM_LAYER

template <> struct std::numeric_limits<lum::SoftExtended> {
  static constexpr bool is_specialized = true, is_integer = false;
  static constexpr int digits = 64, max_exponent = 16384, min_exponent = -16381;
  static constexpr lum::SoftExtended max() { return {uint16_t{0x7ffe}, ~uint64_t{0}}; }
  static constexpr lum::SoftExtended min() { return {uint16_t{1}, uint64_t{1} << 63}; }
  static constexpr lum::SoftExtended infinity() { return lum::SoftExtended::Infinity(false); }
  static constexpr lum::SoftExtended quiet_NaN() { return -lum::SoftExtended::DefaultNan(); }
};
