// The reduction of ordinary arguments: a nearest multiple of pi taken off in two or three parts. sin(n pi + r) = (-1)^n sin r.
#pragma once

#include "frame/types.h"
#include "frame/vec.h"

namespace lum::inline LUM_LAYER {

template <class T> struct HalfTurn;
template <> struct HalfTurn<Lum32f> {
  static constexpr auto inverse = f32(0x3EA2F983, 0.31830987334251404);
  static constexpr auto shifter = f32(0x4B400000, 12582912.0);  // 1.5 * 2^23: the last bit is worth 1
  static constexpr auto part1 = f32(0x40490FDB, 3.1415927410125732), part2 = f32(0xB3BBBD2E, -8.742277657347586e-08),
                        part3 = f32(0xA7772CED, -3.4302490200117637e-15);
};
template <> struct HalfTurn<Lum64f> {
  static constexpr auto inverse = f64(0x3FD45F306DC9C883, 0.3183098861837907);
  static constexpr auto shifter = f64(0x4338000000000000, 0x1.8p52);
  static constexpr auto part1 = f64(0x400921FB54442D18, 3.141592653589793),
                        part2 = f64(0x3CA1A62633145C06, 1.224646799147353e-16),
                        part3 = f64(0x395C1CD129024E09, 2.165713347843828e-32);
};

// The integer nearest to x/pi; in the low bits of `shifted` as an integer too.
template <class T> struct HalfTurns { Vec<T> n, shifted; };
template <class T> LUM_INLINE HalfTurns<T> NearestHalfTurns(Vec<T> x) {
  using C = HalfTurn<T>;
  const auto t = fma(x, all(C::inverse), all(C::shifter));
  return {t - all(C::shifter), t};
}

// x - n pi by the first two parts of pi.
template <class T> LUM_INLINE Vec<T> TakeHalfTurns(Vec<T> x, Vec<T> n) {
  using C = HalfTurn<T>;
  return fnma(n, all(C::part2), fnma(n, all(C::part1), x));
}
template <class T> LUM_INLINE Vec<T> TakeThirdPart(Vec<T> r, Vec<T> n) { return fnma(n, all(HalfTurn<T>::part3), r); }

// In binary64 for a binary32 x: the first part has so few bits that n times it is exact.
LUM_INLINE Vec<Lum64f> TakeHalfTurnsExactly(Vec<Lum64f> x, Vec<Lum64f> n) {
  return fnma(n, all(f64(0x3D968C234C4C6629, 5.126688303189038e-12)),
              fnma(n, all(f64(0x400921FB54440000, 3.1415926535846666)), x));
}

// (sin r - r) / r^3 of q = r^2 in binary64, for binary32 results; |r| <= pi/2.
LUM_INLINE Vec<Lum64f> LongFloatSine(Vec<Lum64f> q) {
  return horner(q, f64(0xBFC55554BC836587, -0.1666665955042783), f64(0x3F8110ED3804CA96, 0.00833306624608569),
                f64(0xBF29F6FFEEA73463, -0.00019809602902257352), f64(0x3EC5DBDF0E4C7DEE, 2.605780638722852e-06));
}
// The same in binary64 to the accuracy of A26.
LUM_INLINE Vec<Lum64f> ShortDoubleSine(Vec<Lum64f> q) {
  return horner(q, f64(0xBFC55554AD3EAF1F, -0.16666658839437162), f64(0x3F8110EA968A0185, 0.008333046645248707),
                f64(0xBF29F67D9395D587, -0.0001980808536178708), f64(0x3EC5D4567512BBD5, 2.602272538419318e-06));
}

// The sign bit where an odd number of half turns was taken.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> ParitySign(Vec<T> shifted) {
  return shift_left<8 * sizeof(T) - 1>(bits(shifted));
}
// The same, changed where x is negative, of an odd function reduced by its magnitude.
template <class T> LUM_INLINE Vec<UnsignedOf<T>> OddParitySign(Vec<T> shifted, Vec<T> x, Vec<T> magnitude) {
  return ternary<A ^ B ^ C>(ParitySign(shifted), bits(x), bits(magnitude));
}

}  // namespace lum::inline LUM_LAYER
