// x^y for one y: the general paths of Powx, a kernel a tier. Those of binary32 and A26 go by natural logarithm and exponential,
// A50 and A53 by base 2 with large tables and the exponent split in two short parts. All of them refuse x that is not a
// positive normal number, products next to the ends of the range, and every x where y is infinite or NaN; refused lanes have
// the second path of Pow, whose magnitudes are those of a single rounding in binary32.
#pragma once

#include <cstdint>

#include "frame/kernel_frame.h"
#include "frame/numbers.h"
#include "pow/polynomials.h"
#include "pow/power_path.h"
#include "tables/table.h"

namespace lum::inline LUM_LAYER::pow {

// ln x = e ln 2 + T + ln(1 + r), r = c m - 1 with c the integer next to 1024/m, m in [1, 2).
template <size_t n> LUM_INLINE Vec<Lum64f> GatheredLn(Vec<Lum64f> x, const Polynomial<Lum64f, n>& polynomial) {
  static constexpr auto table = table64({
#include "tables/generated/powx_ln_64f_513.inc"
  });
  const auto m = as_float((bits(x) & all(lane::Format<Lum64f>::fraction)) | bits(all(0x1p-10)));  // times 2^-10
  const auto c = rndscale<binary_places(0) | quiet>(rcp14(m));                                    // from 512 to 1024
  const auto r = fms(c, m, all(1.0));
  const auto row = shift_right<43>(bits(c)) & all(uint64_t{0x3FF});
  const auto e = add(le(c, all(724.0)), getexp(x), all(1.0));
  const auto p = fma(horner(r, polynomial), r * r, r);
  return fma(e, all(numbers::ln2<Lum64f>), gather<Lum64f>(table, row)) + p;
}

constexpr auto powx_exp2 = by_columns<2>(table64({
#include "tables/generated/exp2_64f_128_pairs.inc"
}));
constexpr int powx_exp2_rows = 128;

// x^y of positive finite numbers of binary32 but for 2^-43 of it, which rarely matters to the rounding: refused is where it
// does.
LUM_INLINE Vec<Lum64f> PowerInBinary64(Vec<Lum64f> x, Vec<Lum64f> y) {
  constexpr Polynomial<Lum64f, 4> ln_series = {{-1.0 / 2, 1.0 / 3, -1.0 / 4, 1.0 / 5}};
  const auto p = (y * GatheredLn(x, ln_series)) * all(numbers::log2_e<Lum64f>);
  const auto in_range = min(max(p, all(-300.0)), all(300.0));
  const auto z = in_range + all(rounding_shifter<Lum64f>(7));
  const auto n = z - all(rounding_shifter<Lum64f>(7)), g = in_range - n;
  const auto scaled = scalef(gather<Lum64f>(powx_exp2, bits(z) & all(uint64_t{powx_exp2_rows - 1})), n);
  return fma(g * scaled, horner(g, pow::powx_exp2_A50), scaled);
}
LUM_INLINE Lanes<Lum32f> PowerByBinary64(Vec<Lum32f> x, Vec<Lum32f> y) {
  return NarrowedWithin(0x1p-40, PowerInBinary64(widen_low(x), widen_low(y)), PowerInBinary64(widen_high(x), widen_high(y)));
}

template <class T> struct PowxGeneral : Kernel<T> {
  T value;

  LumStatus LaneRoutine(T x, T& result) const {
    double wide = 0;
    const LumStatus status = PowerRoutine<double>(static_cast<double>(x), static_cast<double>(value), wide);
    result = static_cast<T>(wide);
    return status;
  }
  LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) const {
    auto r = SecondPathsOf<0>({x}, {lanes})[0];
    // Of two NaNs the element's is the result, which only a layer that orders them gives.
    if constexpr (!orders_nans) r.refused = r.refused | (unord(x, x) & unord(all(value), all(value)) & lanes.refused);
    return r;
  }
  template <class V> using Two = std::array<V, 2>;
  LUM_INLINE Two<Finished<T>> SecondPathOfTwo(const Two<Vec<T>>& x, const Two<Lanes<T>>& lanes) const requires(sizeof(T) == 8) {
    return SecondPathsOf<0, 1>(x, lanes);
  }
  template <size_t... k>
  LUM_INLINE std::array<Finished<T>, sizeof...(k)> SecondPathsOf(const std::array<Vec<T>, sizeof...(k)>& x,
                                                                 const std::array<Lanes<T>, sizeof...(k)>& lanes) const {
    constexpr std::index_sequence<k...> places;
    const std::array y{(static_cast<void>(k), all(value))...};
    using Vectors = const Vec<T>(&)[sizeof...(k)];
    if constexpr (std::is_same_v<T, Lum64f>) return PowerSecondPaths<T>(x, y, lanes, places);
    else
      return PowerSecondPaths<T>(
          x, y, lanes, [](Vectors base, Vectors exponent) __attribute__((always_inline)) {
            return std::array{PowerByBinary64(base[k], exponent[k])...};
          },
          places);
  }
  // All lanes or none.
  LUM_INLINE Mask<T> ValueIsNotFinite() const { return fpclass<classes::nonfinite>(all(value)); }
};

// ---- binary32, A11 and A21

// All but the positive normal numbers; the largest of these is among the refused.
LUM_INLINE Mask<Lum32f> Refused(Vec<Lum32f> x) {
  return fpclass<classes::not_positive_normal>(x) | le(all(std::numeric_limits<Lum32f>::max()), x);
}

// |a| is above the number of the pattern, or NaN.
template <uint32_t limit> LUM_INLINE Mask<Lum32f> PatternAbove(Vec<Lum32f> a) {
  return mask_cast<Lum32f>(lt(all(limit << 1), shift_left<1>(bits(a))));
}

// 2^n times value, where z = n + 1.5 * 2^23.
LUM_INLINE Vec<Lum32f> AddToExponent(Vec<Lum32f> value, Vec<Lum32f> z) {
  return as_float(bits(value) + shift_left<lane::Format<Lum32f>::fraction_bits>(bits(z)));
}

// ln x = k ln 2 + ln m, m in [2/3, 4/3), by a polynomial in m - 1.
struct PowxA11_32f : PowxGeneral<Lum32f> {
  LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) const {
    using F = lane::Format<Lum32f>;
    const auto two_thirds = bits(all(2 / 3.0f));
    const auto u = bits(x) - two_thirds;
    const auto k = to_float(shift_right_arithmetic<F::fraction_bits>(as_signed(u)));
    const auto r = as_float((u & all(F::fraction)) + two_thirds) - all(1.0f);
    const auto q = horner(r, pow::powx_ln_A11);
    const auto p = fma(q * r, r, r);
    const auto t = all(value) * fma(k, all(numbers::ln2_short<Lum32f>), fma(k, all(numbers::ln2_short_tail<Lum32f>), p));
    const auto z = fma(t, all(numbers::log2_e<Lum32f>), all(rounding_shifter<Lum32f>()));
    const auto g = fnma(z - all(rounding_shifter<Lum32f>()), all(numbers::ln2<Lum32f>), t);
    const auto power = horner(g, pow::powx_exp_A11);
    const auto out_of_range = PatternAbove<0x42AE9A00>(t);  // 87.30078125
    return {AddToExponent(power, z), Refused(x) | out_of_range | ValueIsNotFinite()};
  }
};

// x = 2^e m and c a short reciprocal of m from a table, so that c (head of m) - 1 is exact; the logarithm is a pair, which the
// split exponent multiplies.
struct PowxA21_32f : PowxGeneral<Lum32f> {
  static constexpr auto table = by_columns<3>(table32({
#include "tables/generated/powx_ln_32f_65.inc"
  }));
  static constexpr int rows = 65;
  // The leading half of the bits.
  static LUM_INLINE Vec<Lum32f> HeadOf(Vec<Lum32f> a) {
    const auto t = a * all(0x1p12f + 1);
    return (a + t) - t;
  }

  // ln x in two parts.
  static LUM_INLINE TwoParts<Vec<Lum32f>> Logarithm(Vec<Lum32f> x) {
    const auto u = bits(x);
    const auto row = shift_right<17>((u & all(0x7F0000u)) + all(0x10000u));
    const auto ln_hi = gather<Lum32f>(table, row);
    const auto ln_lo = gather<Lum32f>(table + rows, row);
    const auto c = gather<Lum32f>(table + 2 * rows, row);
    const auto m = getmant<significand::from_1_to_2>(x);
    const auto m_head = m & all(0x7FFFC000u);
    const auto v = fms(m_head, c, all(1.0f));  // exact
    const auto w = (m - m_head) * c;
    const auto r = v + w;
    const auto q = horner(r, pow::powx_ln_A21) * (r * r);
    const auto hi = fma(getexp(x), all(numbers::ln2_head<Lum32f>), v + ln_hi);
    const auto lo = fma(getexp(x), all(numbers::ln2_rest<Lum32f>), ln_lo) + q;
    // For x in (0.9921875, 1.015625), w is no small part.
    const auto near_one = mask_cast<Lum32f>(lt(all(0x7FFC0000), as_signed(u + all(0x407E0000u))));
    return {add(near_one, hi, w), add(~near_one, lo, w)};
  }

  LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) const {
    const auto [hi, lo] = Logarithm(x);
    const auto head = HeadOf(hi + lo);
    const auto tail = lo + (hi - head);
    const auto y = all(value);
    const auto y_head = HeadOf(y);
    const auto y_tail = y - y_head;
    const auto a = head * y_head;  // exact
    const auto b = fma(tail, y_head, fma(head, y_tail, tail * y_tail));
    const auto z = fma(a + b, all(numbers::log2_e<Lum32f>), all(rounding_shifter<Lum32f>()));
    const auto n = z - all(rounding_shifter<Lum32f>());
    const auto g = fnma(n, all(numbers::ln2_short_tail<Lum32f>), fnma(n, all(numbers::ln2_short<Lum32f>), a)) + b;
    const auto power = horner(g, pow::powx_exp_A21);
    const auto out_of_range = PatternAbove<0x42819F00>(a);  // 64.810546875
    return {AddToExponent(power, z), Refused(x) | out_of_range | ValueIsNotFinite()};
  }
};

// ---- Natural logarithm and exponential in binary64: A24 of binary32 and A26

// e^t = 2^N 2^(i/2048) (1 + g), the table scaled so that the error of the last factor is balanced.
LUM_INLINE Vec<Lum64f> GatheredExp(Vec<Lum64f> t) {
  static constexpr auto table = table64({
#include "tables/generated/powx_exp2_64f_2048.inc"
  });
  const auto w = t * all(2048 * numbers::log2_e<Lum64f>);
  const auto z = (w - all(0.5)) + all(rounding_shifter<Lum64f>());  // floor(w), but for ties
  const auto g = (w - (z - all(rounding_shifter<Lum64f>()))) * all(pow::powx_exp2_linear.c[0]);
  const auto entry = gather<Lum64f>(table, bits(z) & all(uint64_t{0x7FF}));
  const auto exponent = shift_left<lane::Format<Lum64f>::fraction_bits>(shift_right<11>(bits(z)));
  return as_float(bits(fma(entry, g, entry)) + exponent);
}

// The high word of |a| is above the limit.
template <uint32_t limit> LUM_INLINE Mask<Lum64f> HighWordAbove(Vec<Lum64f> a) {
  return mask_cast<Lum64f>(lt(all((uint64_t{limit} << 32 | 0xFFFFFFFF) << 1), shift_left<1>(bits(a))));
}

struct PowxA24_32f : PowxGeneral<Lum32f> {
  LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) const {
    const auto y = widen_low(all(value));
    const auto exponent = [&](Vec<Lum64f> half) __attribute__((always_inline)) {
      return y * GatheredLn(half, pow::powx_ln_A24);
    };
    const auto low = exponent(widen_low(x)), high = exponent(widen_high(x));
    // The conversion to binary32 gives what lies beyond its range.

    constexpr uint32_t limit = 0x4059FE36;  // 150 ln 2
    const auto out_of_range = join(HighWordAbove<limit>(low), HighWordAbove<limit>(high));
    return {narrow(GatheredExp(low), GatheredExp(high)), Refused(x) | out_of_range | ValueIsNotFinite()};
  }
};

struct PowxA26_64f : PowxGeneral<Lum64f> {
  LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) const {
    const auto t = all(value) * GatheredLn(x, pow::powx_ln_A26);
    constexpr uint32_t limit = 0x4086232A;  // 1022 ln 2
    return {GatheredExp(t), fpclass<classes::not_positive_normal>(x) | HighWordAbove<limit>(t) | ValueIsNotFinite()};
  }
};

// ---- Base 2 in binary64: A50 and A53

LUM_INLINE Vec<Lum64f> HighHalf(Vec<Lum64f> a) { return a & all(uint64_t{0xFFFFFFFFF8000000}); }

// log2 x, the head short. With a short c, scale over m nearly, so that u = c m - scale is nearly log2 of what is left: scale is
// next to 1/ln 2.
LUM_INLINE TwoParts<Vec<Lum64f>> GatheredLog2(Vec<Lum64f> x) {
  static constexpr auto rows = [] {
    constexpr auto reciprocals = table64({
#include "tables/generated/powx_reciprocal_64f_1025.inc"
    });
    constexpr auto logarithms = table64({
#include "tables/generated/powx_log2_64f_1025_pairs.inc"
    });
    Table<Lum64f, 3 * 1025 + 1> result{};  // and one more, since rows are read four entries at a time
    for (size_t i = 0; i < 1025; ++i) {
      result.entries[3 * i] = reciprocals.entries[i];
      result.entries[3 * i + 1] = logarithms.entries[2 * i];
      result.entries[3 * i + 2] = logarithms.entries[2 * i + 1];
    }
    return result;
  }();
  const auto word = bits(x);
  const auto row = shift_right<42>((word & all(uint64_t{0x000FFE0000000000})) + all(uint64_t{0x0000020000000000}));
  const auto [c, log_hi, log_lo, next_row] = gather_rows<Lum64f>(rows, row + shift_left<1>(row));
  const auto e = add(mask_cast<Lum64f>(le(all(uint64_t{512}), row)), getexp(x), all(1.0));

  const auto m = getmant<significand::from_1_to_2>(x);
  const auto m_head = HighHalf(m);
  const auto p = m * c;
  const auto w = fma(m - m_head, c, fms(m_head, c, p));
  const auto u0 = p - all(numbers::log2_e_short<Lum64f>);  // exact
  const auto u = u0 + w;
  const auto [s0, s0_error] = fast_two_sum(e + log_hi, u0);  // the first is 0 or the larger one
  const auto [s, s_error] = fast_two_sum(s0, w);
  const auto q = fma(horner(u, pow::powx_log2_A50), u, (s0_error + s_error) + log_lo);
  const auto h = s + q;
  const auto head = HighHalf(h);
  return {head, (q - (h - s)) + (h - head)};
}

// (head + tail) y = n + g, n a multiple of 1/128.
struct Exponent128 {
  Vec<Lum64f> n, g;
  Vec<uint64_t> i;  // the index of the fraction of n
  Mask<Lum64f> out_of_range;
};
LUM_INLINE Exponent128 MultiplyShort(const TwoParts<Vec<Lum64f>>& log, Vec<Lum64f> y) {
  const auto shifter = all(rounding_shifter<Lum64f>(7));
  const auto y_head = HighHalf(y);
  const auto a = log.head * y_head;  // exact
  const auto z = a + shifter;
  const auto n = z - shifter;
  const auto b = fma(log.tail, y, log.head * (y - y_head));
  return {n, (a - n) + b, bits(z) & all(uint64_t{127}), HighWordAbove<0x408FEFFE>(a)};  // about 1022
}

struct PowxA50_64f : PowxGeneral<Lum64f> {
  LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) const {
    const auto a = MultiplyShort(GatheredLog2(x), all(value));
    const auto scaled = scalef(gather<Lum64f>(powx_exp2, a.i), a.n);
    const auto q = horner(a.g, pow::powx_exp2_A50);
    return {fma(a.g * scaled, q, scaled), fpclass<classes::not_positive_normal>(x) | a.out_of_range | ValueIsNotFinite()};
  }
};

struct PowxA53_64f : PowxGeneral<Lum64f> {
  LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) const {
    const auto a = MultiplyShort(GatheredLog2(x), all(value));
    const auto [head, tail] = gather_pairs<Lum64f>(PowerConstants<Lum64f>::exp2, shift_left<1>(a.i));
    const auto g2 = a.g * a.g;
    const auto even = horner(g2, part<1, 3, 2>(pow::powx_exp2_A50));
    const auto odd = horner(g2, part<2, 4, 2>(pow::powx_exp2_A50));
    const auto higher = fma(odd, a.g, even) * g2;
    // The leading product joins after the small terms, so that it is not rounded into the sum by itself.
    const auto rest = fma(head * a.g, all(pow::powx_exp2_A50.c[0]), fma(head, higher, tail));
    return {scalef(rest + head, a.n), fpclass<classes::not_positive_normal>(x) | a.out_of_range | ValueIsNotFinite()};
  }
};

}  // namespace lum::inline LUM_LAYER::pow
