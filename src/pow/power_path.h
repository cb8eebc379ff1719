// The second path of the power: the steps of the scalar one over vectors, for any arguments.
#pragma once

#include <array>
#include <utility>

#include "frame/kernel_frame.h"
#include "pow/power_routine.h"

namespace lum::inline LUM_LAYER::pow {

// A table of rows of so many columns, in columns of 16 or 32 entries or in rows of four.
template <int columns, size_t entries, class T, size_t n>
consteval Table<T, columns * entries> InColumns(const Table<T, n>& t) {
  Table<T, columns * entries> result{};
  for (size_t i = 0; i < n; ++i) result.entries[i % columns * entries + i / columns] = t.entries[i];
  return result;
}
template <int columns, class T, size_t n> consteval Table<T, n / columns * 4> InRowsOfFour(const Table<T, n>& t) {
  Table<T, n / columns * 4> result{};
  for (size_t i = 0; i < n; ++i) result.entries[i / columns * 4 + i % columns] = t.entries[i];
  return result;
}

// The rows of the stages and of the powers of 2.
template <class T> struct PowerRow { Vec<T> c, head, tail; };
template <int stage, class T> LUM_INLINE PowerRow<T> StageRow(Vec<T> z) {
  using C = PowerConstants<T>;
  using Word = UnsignedOf<T>;
  constexpr int shift = C::index_shift[stage];
  const auto i = shift_right<shift>((bits(z) & all(static_cast<Word>(C::index_mask[stage]))) + all(Word{1} << (shift - 1)));
  constexpr auto& source = []() -> auto& {
    if constexpr (stage == 0) return C::stage1;
    else if constexpr (stage == 1) return C::stage2;
    else return C::stage3;
  }
  ();
  if constexpr (std::is_same_v<T, Lum32f>) {
    static constexpr auto table = InColumns<3, 32>(source);
    const auto column = [&](const T* p) __attribute__((always_inline)) { return permute2(load(p), load(p + 16), i); };
    return {column(table), column(table + 32), column(table + 64)};
  } else if constexpr (permutes_doubles && stage < 2) {
    // 33 rows, of which the last one has no place in the registers.
    static constexpr auto table = InColumns<3, 33>(source);
    const auto low = mask_cast<T>(test_none(i, all(Word{16}))), last = mask_cast<T>(test_any(i, all(Word{32})));
    const auto column = [&](const T* p) __attribute__((always_inline)) {
      const auto v = select(low, permute2(load(p), load(p + 8), i), permute2(load(p + 16), load(p + 24), i));
      return select(last, all(p[32]), v);
    };
    return {column(table), column(table + 33), column(table + 66)};
  } else {
    static constexpr auto table = InRowsOfFour<3>(source);
    const auto row = gather_rows<T>(table, shift_left<2>(i));
    return {row.column0, row.column1, row.column2};
  }
}

template <class T> LUM_INLINE TwoParts<Vec<T>> SplitVector(Vec<T> x) {
  const auto t = all(half_splitter<T>()) * x;
  const auto head = t - (t - x);
  return {head, x - head};
}
// The steps of the scalar Log2Pair. m c = z but for the errors of two products, and the logarithm is that of z and the sum.
template <class T> struct LogarithmStage { Vec<T> m, c, z, head, tail; };
template <class T> LUM_INLINE LogarithmStage<T> StartLogarithm(Vec<T> given) {
  using F = lane::Format<T>;
  using C = PowerConstants<T>;
  using Word = UnsignedOf<T>;
  const auto denormal = lt(given, all(std::numeric_limits<T>::min()));
  const auto x = select(denormal, given * all(lane::power_of_two<T>(C::denormal_exponent)), given);
  const auto m = as_float((bits(x) & all(F::fraction)) | all(F::one));
  const auto count = shift_right_arithmetic<F::fraction_bits>(as_signed(bits(x) - all(Word{C::exponent_origin})));
  Vec<T> e;
  if constexpr (std::is_same_v<T, Lum32f>) e = to_float(count);
  else e = to_double(count);
  e = e - zero_unless(denormal, all(T{C::denormal_exponent}));
  const auto row = StageRow<0>(m);
  return {m, row.c, row.c * m, e + row.head, row.tail};
}
template <int stage, class T> LUM_INLINE LogarithmStage<T> NextStage(const LogarithmStage<T>& a) {
  const auto row = StageRow<stage>(a.z);
  return {a.m, a.c * row.c, a.z * row.c, a.head + row.head, a.tail + row.tail};
}
template <class T> LUM_INLINE TwoParts<Vec<T>> FinishLogarithm(const LogarithmStage<T>& a) {
  using C = PowerConstants<T>;
  const auto u0 = a.z - all(T{C::scale});
  const auto w = fms(a.m, a.c, a.z);  // exact, as in the routine
  const auto s0 = a.head + u0;
  const auto s = s0 + w;
  const auto errors = (u0 - (s0 - a.head)) + (w - (s - s0));
  const auto u = u0 + w;
  return {s, u * unfused_horner(u, C::log_polynomial) + (errors + a.tail)};
}

// y log2 x in two parts, and the lanes whose result is far from all finite ones.
template <class T> struct PowerExponent {
  TwoParts<Vec<T>> p;
  Mask<T> far, falls;
};
template <class T> LUM_INLINE PowerExponent<T> MultiplyLogarithm(const TwoParts<Vec<T>>& log, Vec<T> y) {
  using C = PowerConstants<T>;
  using Word = UnsignedOf<T>;
  const auto exponents = exponent_field(abs(log.head)) + exponent_field(abs(y));
  const auto far = mask_cast<T>(le(all(Word{C::overflowing_exponents}), exponents));
  const auto near_one = mask_cast<T>(lt(exponents, all(Word{C::vanishing_exponents})));
  const auto factor = zero_unless(~(far | near_one), y);

  const auto h = log.head + log.tail;
  const auto head = SplitVector(h).head;
  const auto tail = (log.tail - (h - log.head)) + (h - head);
  const auto [y_head, y_tail] = SplitVector(factor);
  const auto a = head * y_head;
  const auto b = fma(head, y_tail, tail * factor);  // head y_tail is exact
  const auto p = a + b;
  return {{p, b - (p - a)}, far, mask_cast<T>(sign_mask(bits(log.head) ^ bits(y)))};
}

// 2^(p.head + p.tail) = 2^(count/128) 2^g.
template <class T> struct ReducedExponent {
  Vec<UnsignedOf<T>> count;
  Vec<T> g, head, tail;  // of the power of the fraction of the count
};
template <class T> LUM_INLINE ReducedExponent<T> ReduceExponent(const TwoParts<Vec<T>>& p) {
  using C = PowerConstants<T>;
  using Word = UnsignedOf<T>;
  const auto shifted = p.head + all(T{C::exp_shifter});
  const auto count = bits(shifted) - bits(all(T{C::exp_shifter}));
  const auto g = (p.head - (shifted - all(T{C::exp_shifter}))) + p.tail;
  static constexpr auto table = InRowsOfFour<2>(C::exp2);
  const auto row = gather_rows<T>(table, shift_left<2>(count & all(Word{127})));
  return {count, g, row.column0, row.column1};
}
// A denormal result is counted in units of the smallest positive number by a sum whose last bit is worth that.
template <class T> LUM_INLINE Vec<T> Exp2Positive(const ReducedExponent<T>& a) {
  using F = lane::Format<T>;
  using C = PowerConstants<T>;
  using Word = UnsignedOf<T>;
  using Signed = SignedOf<T>;
  const auto n = shift_right_arithmetic<7>(as_signed(a.count));
  const auto correction = a.head * (a.g * unfused_horner(a.g, C::exp_polynomial)) + a.tail;
  const auto v = a.head + correction;

  const auto exponent = as_signed(exponent_field(abs(v))) + n;
  auto value = as_float(bits(v) + as_unsigned(shift_left<F::fraction_bits>(n)));
  value = select(mask_cast<T>(lt(all(Signed{2 * F::bias}), exponent)), all(std::numeric_limits<T>::infinity()), value);
  const auto small = lt(exponent, all(Signed{1}));
  value = zero_unless(mask_cast<T>(~small), value);
  const auto denormal = small & ~lt(exponent, all(Signed{C::last_denormal}));
  if (!any(denormal)) return value;

  const auto field = select(denormal, n, all(Signed{0})) + all(Signed{C::denormal_exponent + F::bias});
  const auto up = power_of_two<T>(as_unsigned(field));
  constexpr T unit = lane::power_of_two<T>(C::denormal_exponent + 1 - F::bias);
  const auto counted = [](Vec<T> q, T addend) __attribute__((always_inline)) {
    return bits(q + all(addend)) - bits(all(addend));
  };
  const auto head = SplitVector(v).head;
  const auto tail = (a.head - head) + correction;
  const auto in_two_parts = counted(head * up, unit) + counted(tail * up, T(1.5) * unit);
  const auto is_short = mask_cast<Word>(lt(exponent, all(Signed{-9})));
  const auto result = select(is_short, counted(v * up, unit), in_two_parts);
  return select(mask_cast<T>(denormal), as_float(result), value);
}

// x^y for positive finite x other than 1, and finite y other than 0, of some vectors stage by stage: one is a long chain of
// operations, and the processor overlaps those of several.
template <class T, size_t... k>
LUM_INLINE auto PowerMagnitudes(const Vec<T> (&x)[sizeof...(k)], const Vec<T> (&y)[sizeof...(k)], std::index_sequence<k...>) {
  const LogarithmStage<T> stage1[] = {StartLogarithm(x[k])...};
  const LogarithmStage<T> stage2[] = {NextStage<1>(stage1[k])...};
  const LogarithmStage<T> stage3[] = {NextStage<2>(stage2[k])...};
  const TwoParts<Vec<T>> log[] = {FinishLogarithm(stage3[k])...};
  const PowerExponent<T> exponent[] = {MultiplyLogarithm(log[k], y[k])...};
  const ReducedExponent<T> reduced[] = {ReduceExponent<T>(exponent[k].p)...};
  const auto infinity = all(std::numeric_limits<T>::infinity());
  return std::array{select(exponent[k].far, zero_unless(~exponent[k].falls, infinity), Exp2Positive(reduced[k]))...};
}

// Lanes of positive finite x in which |y log2 x| is beyond what has a positive finite power, whatever the rounding. On both
// sides of 1, |log2 x| is at least |x - 1| up to 2, and at least the distance of floor(log2 x) from -1 or 0.
template <class T> LUM_INLINE Mask<T> IsFar(Vec<T> x, Vec<T> y) {
  using F = lane::Format<T>;
  const auto near = min(abs(x - all(T(1))), all(T(1)));
  const auto far = abs(getexp(x) + all(T(0.5))) - all(T(0.5));
  return le(all(T(F::bias + F::fraction_bits + 20)), max(near, far) * abs(y));
}

// What is known without a logarithm, in the refused lanes; the others are general.
template <class T> struct PowerClasses {
  Mask<T> general, one, nan, fractional, at_pole;
  Vec<T> value;
  Vec<UnsignedOf<T>> sign;
};
template <class T> LUM_INLINE PowerClasses<T> Classify(Vec<T> x, Vec<T> y, Mask<T> refused) {
  constexpr int truncated = binary_places(0) | rz | quiet;
  const auto one = eq(x, all(T(1))) | fpclass<classes::zero>(y), nan = unord(x, y) & ~one;
  const auto whole = eq(rndscale<truncated>(y), y);
  const auto half = zero_unless(whole, y) * all(T(0.5));
  const auto x_negative = mask_cast<T>(sign_mask(bits(x))), y_negative = mask_cast<T>(sign_mask(bits(y)));
  const auto sign = zero_unless(mask_cast<UnsignedOf<T>>(x_negative & ne(rndscale<truncated>(half), half)), all(sign_bit<T>));
  const auto magnitude = abs(x);
  const auto zero = fpclass<classes::zero>(x), infinite = fpclass<classes::infinity>(x) | fpclass<classes::infinity>(y);
  const auto is_unit = eq(magnitude, all(T(1))) & whole;
  const auto fractional = x_negative & ~whole & ~zero & ~infinite;
  auto general = refused & ~(one | nan | zero | infinite | is_unit | fractional);
  if (any(general)) general = general & ~IsFar(magnitude, y);
  // Zeros, infinities, far powers and units: 0, 1 or an infinity with the sign. Growing is x away from 1 to the side that y
  // enlarges.
  const auto grows = le(all(T(1)), magnitude) ^ y_negative;
  const auto value = select(is_unit, all(T(1)), zero_unless(grows, all(std::numeric_limits<T>::infinity())));
  return {general, one, nan, fractional, zero & y_negative & ~(one | nan), value, sign};
}

// The second path for any arguments, of some vectors. magnitudes_of gives the powers of finite numbers, the first positive,
// neither power trivial; it refuses lanes for the lane routine.
template <class T, class MagnitudesOf, size_t... k>
LUM_INLINE std::array<Finished<T>, sizeof...(k)> PowerSecondPaths(const std::array<Vec<T>, sizeof...(k)>& x,
                                                                  const std::array<Vec<T>, sizeof...(k)>& y,
                                                                  const std::array<Lanes<T>, sizeof...(k)>& lanes,
                                                                  MagnitudesOf magnitudes_of, std::index_sequence<k...>) {
  const PowerClasses<T> classes[] = {Classify(x[k], y[k], lanes[k].refused)...};
  std::array<Lanes<T>, sizeof...(k)> powers{Lanes<T>{classes[k].value, mask_of<T>(0)}...};
  if (any((classes[k].general | ...))) {
    const Vec<T> base[] = {select(classes[k].general, abs(x[k]), all(T(2)))...};
    const Vec<T> exponent[] = {select(classes[k].general, y[k], all(T(1)))...};
    const auto computed = magnitudes_of(base, exponent);
    powers = {
        Lanes<T>{select(classes[k].general, computed[k].value, classes[k].value), classes[k].general & computed[k].refused}...};
  }
  const auto finished = [](Vec<T> a, Vec<T> b, const Lanes<T>& first, const PowerClasses<T>& c, const Lanes<T>& power)
                            __attribute__((always_inline))
                                ->Finished<T> {
    auto value = power.value | c.sign;
    value = select(c.fractional, all(-std::numeric_limits<T>::quiet_NaN()), value);
    value = select(c.nan, a + b, value);
    value = select(c.one, all(T(1)), value);
    return {select(first.refused, value, first.value),
            power.refused,
            {.domain = first.refused & (c.at_pole | (c.fractional & ~(c.one | c.nan)))}};
  };
  return {finished(x[k], y[k], lanes[k], classes[k], powers[k])...};
}
template <class T, size_t... k>
LUM_INLINE auto PowerSecondPaths(const std::array<Vec<T>, sizeof...(k)>& x, const std::array<Vec<T>, sizeof...(k)>& y,
                                 const std::array<Lanes<T>, sizeof...(k)>& lanes, std::index_sequence<k...> vectors) {
  using Vectors = const Vec<T>(&)[sizeof...(k)];
  return PowerSecondPaths(
      x, y, lanes,
      [&](Vectors base, Vectors exponent) __attribute__((always_inline)) {
        const auto values = PowerMagnitudes<T>(base, exponent, vectors);
        return std::array{Lanes<T>{values[k], mask_of<T>(0)}...};
      },
      vectors);
}

}  // namespace lum::inline LUM_LAYER::pow
