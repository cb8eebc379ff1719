// The immediates of vector operations by name.
#pragma once

namespace lum {

// Classes of numbers for fpclass, joined by |. A negative denormal is in `denormal` and in `negative`.
namespace classes {
inline constexpr int quiet_nan = 0x01;
inline constexpr int plus_zero = 0x02;
inline constexpr int minus_zero = 0x04;
inline constexpr int plus_infinity = 0x08;
inline constexpr int minus_infinity = 0x10;
inline constexpr int denormal = 0x20;
inline constexpr int negative = 0x40;  // finite, not -0
inline constexpr int signalling_nan = 0x80;

inline constexpr int nan = quiet_nan | signalling_nan;
inline constexpr int zero = plus_zero | minus_zero;
inline constexpr int infinity = plus_infinity | minus_infinity;
inline constexpr int nonfinite = nan | infinity;
inline constexpr int below_zero = negative | minus_infinity;
// All but positive finite numbers, and all but the normal ones of these.
inline constexpr int not_positive_finite = nonfinite | zero | negative;
inline constexpr int not_positive_normal = not_positive_finite | denormal;
}  // namespace classes

// The operands of ternary as columns of its truth table, whose rows are 4 a + 2 b + c: A ^ (B & C) is the table of a ^ (b & c).
inline constexpr int A = 0xF0, B = 0xCC, C = 0xAA;

// What rndscale rounds to: multiples of 2^-n, 0 <= n <= 15; joined with a rounding (rn, rd, ru, rz, or
// the environment's, which kernels have set to nearest) and with `quiet`, which has the instruction raise no flag of itself.
consteval int binary_places(int n) { return n << 4; }
inline constexpr int as_environment = 4;
inline constexpr int quiet = 8;

// The interval of getmant's significand, joined with nan_if_negative where a negative number gives a NaN; otherwise the sign is
// kept.
namespace significand {
inline constexpr int from_1_to_2 = 0;
inline constexpr int from_half_to_1 = 2;
inline constexpr int from_three_quarters = 3;  // to 3/2
inline constexpr int nan_if_negative = 8;
}  // namespace significand

}  // namespace lum
