// e^x at the ends of the range, where the vector paths of the exponentials refuse it: over vectors, as a second path, and one
// by one, as a lane routine. Both take the same steps.
#pragma once

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "frame/constant.h"
#include "frame/literals.h"
#include "frame/types.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER {

// Where the results of the lane routines change their kind, in either type.
template <class T> struct ExpLimits;
template <> struct ExpLimits<Lum32f> {
  static constexpr auto overflow = f32(0x42B17217, 88.72283172607422);
  static constexpr auto denormal = f32(0xC2AEAC4F, -87.33654022216797);
  static constexpr auto underflow = f32(0xC2CFF1B4, -103.97207641601562);
};
template <> struct ExpLimits<Lum64f> {
  static constexpr auto overflow = f64(0x40862E42FEFA39EF, 709.782712893384);
  static constexpr auto denormal = f64(0xC086232BDD7ABCD2, -708.3964185322641);
  static constexpr auto underflow = f64(0xC0874910D52D3051, -745.1332191019411);
};

// Infinities, NaN, and arguments past the ends of the finite positive results. False: the result is an ordinary number.
template <class T> bool ExpIsSpecial(T x, T& result, LumStatus& status) {
  constexpr auto infinity = std::numeric_limits<T>::infinity();
  status = lumStsOk;
  if (!(x - x == 0)) {
    result = x == -infinity ? T(0) : x * x;
  } else if (x > ExpLimits<T>::overflow) {
    result = infinity;
    status = lumStsOverflow;
  } else if (x < ExpLimits<T>::underflow) {
    result = 0;
    status = lumStsUnderflow;
  } else {
    return false;
  }
  return true;
}

// e^x = 2^m p in binary32 arithmetic, to about 22 bits; m also in the low bits of `shifted`.
template <class V> struct ExpFloatParts { V shifted, m, p; };
template <class V> LUM_INLINE ExpFloatParts<V> ExpFloatReduced(V x) {
  const auto c = [](float value) { return Constant<V>(value); };
  constexpr auto shifter = f32(0x4B400000, 12582912.0);
  const V t = x * c(f32(0x3FB8AA3B, 1.4426950216293335)) + c(shifter);
  const V m = t - c(shifter);
  const V r = (x + m * c(f32(0xBF317200, -0.693145751953125))) + m * c(f32(0xB5BFBE8E, -1.428606765330187e-06));
  V p = c(f32(0x3C0950EF, 0.008381112478673458));
  for (const float coefficient :
       {f32(0x3D2BB1B6, 0.041917525231838226), f32(0x3E2AA9C6, 0.166663259267807), f32(0x3EFFFE85, 0.49998870491981506),
        f32(0x3F800001, 1.0000001192092896), f32(0x3F800001, 1.0000001192092896)}) {
    p = p * r + c(coefficient);
  }
  return {t, m, p};
}

// e^x in binary32 arithmetic.
inline LumStatus ExpFloatRoutine(Lum32f x, Lum32f& result) {
  LumStatus status;
  if (ExpIsSpecial(x, result, status)) return status;
  const auto [shifted, m, p] = ExpFloatReduced(x);
  const uint32_t exponent = std::bit_cast<uint32_t>(shifted) << 23;  // m in the place of the exponent
  if (x < ExpLimits<Lum32f>::denormal) {
    const auto scale = std::bit_cast<float>((exponent + 0x5D800000u) & 0x7F800000u);  // 2^(m + 60)
    result = p * scale * f32(0x21800000, 0x1p-60);
    return lumStsUnderflow;
  }
  if (m < 128) {
    result = p * std::bit_cast<float>(exponent + 0x3F800000u);
  } else {
    result = p * std::bit_cast<float>(exponent + 0x3F000000u) * 2.0f;
  }
  return lumStsOk;
}

// 2^e s for e^x = 2^e (head + p) with a denormal result, rounded once: s = head + p and its rounding error are split so that
// the last sum alone is inexact.
inline double ExpScaledToDenormal(double head, double p, int64_t e) {
  const int64_t field = e + 0x43B;
  const auto scale = std::bit_cast<double>(field << 52);  // 2^(e + 60)
  const double a = p * scale;
  const double b = head * scale;
  const double s = b + a;
  constexpr auto down = f64(0x3C30000000000000, 0x1p-60);
  if (field <= 0x32) return s * down;
  const double w = s * f64(0x41F8000000000000, 0x1.8p32);
  const double hi = (w + s) - w;
  const double lo = (s - hi) + ((b - s) + a);
  return hi * down + lo * down;
}

// 2^e s, also where 2^e alone would overflow.
inline double ExpScaled(double s, int64_t e) {
  if (e == 1024) return s * 0x1p1023 * 2.0;
  return s * std::bit_cast<double>((e + 1023) << 52);
}

// 2^(j/64) in two parts.
inline constexpr auto exp2_64 = table64({
#include "tables/generated/exp2_64_pairs.inc"
});

// x = k ln(2)/64 + r,  e^r = 1 + u; k also in the low bits of `shifted`.
template <class V> struct ExpDoubleParts { V shifted, k, u; };
template <class V> LUM_INLINE ExpDoubleParts<V> ExpDoubleReduced(V x) {
  const auto c = [](double value) { return Constant<V>(value); };
  constexpr auto shifter = f64(0x4338000000000000, 0x1.8p52);
  const V t = x * c(f64(0x40571547652B82FE, 92.33248261689366)) + c(shifter);
  const V k = t - c(shifter);
  const V r =
      (x + k * c(f64(0xBF862E42FEFA0000, -0.010830424696223417))) + k * c(f64(0xBD1CF79ABC9E3B3A, -2.572804622327669e-14));
  V q = c(f64(0x3F56C16A1C2A3FFD, 0.0013888870459233254));
  for (const double coefficient : {f64(0x3F8111123AAF20D3, 0.008333341995140497), f64(0x3FA5555555558FCC, 0.04166666666677052),
                                   f64(0x3FC55555555548F8, 0.1666666666665788), 0.5}) {
    q = c(coefficient) + r * q;
  }
  return {t, k, r + r * r * q};
}

// e^x in binary64 arithmetic, rounded to T at the end.
template <class T> LumStatus ExpDoubleRoutine(T argument, T& result) {
  LumStatus status;
  if (ExpIsSpecial(argument, result, status)) return status;
  const double x = argument;
  if (x < 0x1p-52 && -x < 0x1p-52) {
    result = static_cast<T>(1.0 + x);
    return lumStsOk;
  }
  const auto [shifted, k, u] = ExpDoubleReduced(x);
  const auto count = static_cast<int64_t>(k);
  const auto j = static_cast<size_t>(count & 63);
  const int64_t e = count >> 6;
  const double head = exp2_64[2 * j];
  const double p = (u + exp2_64[2 * j + 1]) * head;
  const bool is_denormal = argument < ExpLimits<T>::denormal;
  if (std::is_same_v<T, Lum64f> && is_denormal) result = static_cast<T>(ExpScaledToDenormal(head, p, e));
  else result = static_cast<T>(ExpScaled(head + p, e));
  return is_denormal ? lumStsUnderflow : lumStsOk;
}

}  // namespace lum::inline LUM_LAYER
