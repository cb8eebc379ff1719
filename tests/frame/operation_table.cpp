// The table of one layer: compiled once for each, with the macro that chooses it.
#include "operation_table.h"

#include <cstring>
#include <type_traits>
#include <utility>

#include "frame/vec.h"

namespace lum::test {
namespace {

using namespace lum;

template <Lane T> constexpr Element ElementOf() {
  if constexpr (std::same_as<T, float>) return Element::f32;
  else if constexpr (std::same_as<T, double>) return Element::f64;
  else return sizeof(T) == 4 ? Element::integer32 : Element::integer64;
}

// A lane count from 0 to all, taken from the operands' mask.
template <Lane T> struct Count { int value; };

// How an operand of each kind is read, and the element type of its vector.
template <class Operand> struct Reader;
template <Lane T> struct Reader<Vec<T>> {
  static constexpr Element element = ElementOf<T>();
  static Vec<T> Read(const Operands& operands, size_t i) {
    T lanes[lanes_of<T>];
    std::memcpy(lanes, operands.vector[i].bytes, sizeof lanes);
    return load(lanes);
  }
};
template <Lane T> struct Reader<Mask<T>> {
  static constexpr Element element = Element::none;
  static Mask<T> Read(const Operands& operands, size_t) { return mask_of<T>(operands.mask); }
};
template <Lane T> struct Reader<Count<T>> {
  static constexpr Element element = Element::none;
  static Count<T> Read(const Operands& operands, size_t) {
    return {static_cast<int>(operands.mask % (static_cast<uint32_t>(lanes_of<T>) + 1))};
  }
};
template <Lane T> struct Reader<const T*> {
  static constexpr Element element = ElementOf<T>();
  static const T* Read(const Operands& operands, size_t i) { return reinterpret_cast<const T*>(operands.vector[i].bytes); }
};

template <Lane T> void Write(RawVector& to, Vec<T> v) {
  T lanes[lanes_of<T>];
  store(lanes, v);
  std::memcpy(to.bytes, lanes, sizeof lanes);
}
template <Lane T> void Put(Outcome& outcome, Vec<T> v) { Write(outcome.vector[0], v); }
template <Lane T> void Put(Outcome& outcome, Pair<T> pair) {
  Write(outcome.vector[0], pair.even);
  Write(outcome.vector[1], pair.odd);
}
template <Floating T> void Put(Outcome& outcome, TwoParts<Vec<T>> sum) {
  Write(outcome.vector[0], sum.head);
  Write(outcome.vector[1], sum.tail);
}
void Put(Outcome& outcome, uint32_t bits) { std::memcpy(outcome.vector[0].bytes, &bits, sizeof bits); }
void Put(Outcome& outcome, bool truth) { Put(outcome, static_cast<uint32_t>(truth)); }
template <Lane T> void Put(Outcome& outcome, Mask<T> mask) { Put(outcome, to_bits(mask)); }

// A captureless function object as an operation on raw vectors.
template <class F, class... Kinds> void RunRaw(const Operands& operands, Outcome& outcome) {
  outcome = {};
  [&]<size_t... i>(std::index_sequence<i...>) { Put(outcome, F{}(Reader<Kinds>::Read(operands, i)...)); }
  (std::index_sequence_for<Kinds...>{});
}

class Builder {
 public:
  template <class... Kinds, class F> void add(const std::string& name, F, bool arithmetic = false) {
    const std::string vocabulary = name.substr(0, name.starts_with("operator") ? name.find(' ') : name.find_first_of("< "));
    operations.push_back({name, vocabulary, {Reader<Kinds>::element...}, arithmetic, RunRaw<F, Kinds...>});
  }
  template <class... Kinds, class F> void add_arithmetic(const std::string& name, F f) { add<Kinds...>(name, f, true); }
  std::vector<Operation> operations;
};

template <Lane T> std::string TypeName() {
  const std::string bits = sizeof(T) == 4 ? "32" : "64";
  return (std::same_as<T, float> || std::same_as<T, double> ? " f" : std::is_signed_v<T> ? " i" : " u") + bits;
}

std::string Hexadecimal(int n) {
  constexpr char digits[] = "0123456789ABCDEF";
  return std::string("0x") + digits[n >> 4 & 15] + digits[n & 15];
}

// For each of the immediates calls f with it as a compile-time constant, and its text.
template <int... imm, class F> void ForEachImmediate(F f) {
  (f(std::integral_constant<int, imm>{}, "<" + Hexadecimal(imm) + ">"), ...);
}
template <class F, int... imm> void ForImmediatesBelow(std::integer_sequence<int, imm...>, F f) { ForEachImmediate<imm...>(f); }

template <Floating T, int R> void AddRounded(Builder& table, const std::string& rounding) {
  using V = Vec<T>;
  const auto t = rounding + TypeName<T>();
  table.add_arithmetic<V, V>("add" + t, [](V a, V b) { return add<R>(a, b); });
  table.add_arithmetic<V, V>("sub" + t, [](V a, V b) { return sub<R>(a, b); });
  table.add_arithmetic<V, V>("mul" + t, [](V a, V b) { return mul<R>(a, b); });
  table.add_arithmetic<V, V>("div" + t, [](V a, V b) { return div<R>(a, b); });
  table.add_arithmetic<V>("sqrt" + t, [](V a) { return sqrt<R>(a); });
  table.add_arithmetic<V, V, V>("fma" + t, [](V a, V b, V c) { return fma<R>(a, b, c); });
  table.add_arithmetic<V, V, V>("fms" + t, [](V a, V b, V c) { return fms<R>(a, b, c); });
  table.add_arithmetic<V, V, V>("fnma" + t, [](V a, V b, V c) { return fnma<R>(a, b, c); });
  table.add_arithmetic<V, V, V>("fnms" + t, [](V a, V b, V c) { return fnms<R>(a, b, c); });
  table.add_arithmetic<V, V>("scalef" + t, [](V a, V b) { return scalef<R>(a, b); });
}

template <Floating T> void AddSignificand(Builder& table) {
  using V = Vec<T>;
  const auto t = TypeName<T>();
  table.add<V>("getexp" + t, [](V a) { return getexp(a); });
  ForEachImmediate<0x0, 0x1, 0x2, 0x3, 0x4, 0x5, 0x6, 0x7, 0x8, 0x9, 0xA, 0xB>([&](auto imm, const std::string& text) {
    table.add<V>("getmant" + text + t, [](V a) { return getmant<decltype(imm)::value>(a); });
  });
  ForEachImmediate<0x0, 0x1, 0x2, 0x3, 0x4, 0x8, 0x9, 0xA, 0xB, 0xC, 0x18, 0x29, 0x48, 0x58, 0x68, 0x7A, 0x80, 0xFB>(
      [&](auto imm, const std::string& text) {
        table.add<V>("rndscale" + text + t, [](V a) { return rndscale<decltype(imm)::value>(a); });
      });
  ForEachImmediate<0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0x06, 0x0E, 0x18, 0x1E, 0x50, 0x56, 0x5E, 0x87, 0x89, 0x99,
                   0x9F, 0xBF, 0xDF, 0xFF>([&](auto imm, const std::string& text) {
    table.add<V>("fpclass" + text + t, [](V a) { return fpclass<decltype(imm)::value>(a); });
  });
}

// a with an exponent from -8 to 7.
template <Floating T> Vec<T> Moderate(Vec<T> a) {
  using U = UnsignedOf<T>;
  constexpr int fraction_bits = sizeof(T) == 4 ? 23 : 52;
  constexpr U bias = sizeof(T) == 4 ? 127 : 1023;
  constexpr U kept = static_cast<U>(sign_bit<T> | ((U{16} << fraction_bits) - 1));
  return as_float(bits(a & all(kept)) + all(static_cast<U>((bias - 8) << fraction_bits)));
}

// Estimates rounded to a grid. Not in a generic lambda, in which clang++ 14 does not find getmant.
template <int grid, Floating T> void AddRoundedEstimates(Builder& table, const std::string& text, const std::string& t) {
  using V = Vec<T>;
  table.add<V>("rounded_rcp14" + text + " of [1,2)" + t,
               [](V a) { return zero_unless(~unord(a, a), rounded_rcp14<grid, 0>(getmant<0>(a))); });
  table.add<V>("rounded_rcp14" + text + " of [1/2,1)" + t,
               [](V a) { return zero_unless(~unord(a, a), rounded_rcp14<grid, 2>(getmant<2>(a))); });
  table.add<V>("shifted_rcp14" + text + " of [1,2)" + t,
               [](V a) { return zero_unless(~unord(a, a), shifted_rcp14<grid, 0>(getmant<4>(a))); });
  table.add<V>("shifted_rcp14" + text + " of [1/2,1)" + t,
               [](V a) { return zero_unless(lt(getmant<6>(a), all(T(1))), shifted_rcp14<grid, 2>(getmant<6>(a))); });
  table.add<V>("rcp14_halves_up" + text + t, [](V a) { return rcp14_halves_up<grid>(a); });
  table.add<V>("rcp14_halves_up_normal" + text + t, [](V a) { return rcp14_halves_up_normal<grid>(Moderate(a)); });
}

// The operations with a condition, on operands for which it holds.
template <Floating T> void AddConditional(Builder& table) {
  using V = Vec<T>;
  const auto t = TypeName<T>();
  constexpr T shifter = sizeof(T) == 4 ? T(0x1.8p19) : T(0x1.8p49);
  table.add<V, V>("fma_floor" + t, [](V a, V b) { return fma_floor(Moderate(a), Moderate(b), all(shifter)); });
  table.add<V>("fma_floor of NaN and small numbers" + t,
               [](V a) { return fma_floor(select(le(all(T(1)), abs(a)), Moderate(a), a), all(T(1.44269504)), all(shifter)); });
  table.add<V>("rcp14_normal" + t, [](V a) { return rcp14_normal(Moderate(a)); });
  table.add<V>("rsqrt14_normal" + t, [](V a) { return rsqrt14_normal(abs(Moderate(a))); });
  table.add<V>("getexp_normal" + t, [](V a) { return getexp_normal(Moderate(a)); });
  ForEachImmediate<0x0, 0x1, 0x2, 0x3, 0x4, 0x8, 0xA, 0xB>([&](auto imm, const std::string& text) {
    table.add<V>("getmant_normal" + text + t, [](V a) { return getmant_normal<decltype(imm)::value>(abs(Moderate(a))); });
    table.add<V>("parts" + text + t, [](V a) {
      const auto [significand, exponent] = parts<decltype(imm)::value>(a);
      return Pair<T>{significand, exponent};
    });
  });
  table.add<V, V>("scalef_normal" + t, [](V a, V b) { return scalef_normal(Moderate(a), Moderate(b) * all(T(0.25))); });
  table.add<V, V>("mul_toward_zero" + t, [](V a, V b) {
    const auto [head, tail] = mul_toward_zero(Moderate(a), Moderate(b));
    return Pair<T>{head, tail};
  });
  table.add<V, V, V>("mul_toward_zero with a tail" + t, [](V a, V b, V c) {
    const auto x = Moderate(a);
    const auto [head, tail] = mul_toward_zero(x, x * Moderate(b) * all(T(0x1p-20)), Moderate(c));
    return Pair<T>{head, tail};
  });
  // The sign of a zero is open.
  table.add<V>("split_floor<4>" + t, [](V a) {
    const auto [sum, rest] =
        split_floor<4>(select(lt(abs(a), all(T(1))), a, Moderate(a)), all(sizeof(T) == 4 ? T(0x1.8p19) : T(0x1.8p48)));
    return Pair<T>{sum, rest + all(T(0))};
  });
  ForEachImmediate<4, 5>(
      [&](auto imm, const std::string& text) { AddRoundedEstimates<decltype(imm)::value, T>(table, text, t); });
}

template <Floating T> void AddFloating(Builder& table) {
  using V = Vec<T>;
  using U = Vec<UnsignedOf<T>>;
  const auto t = TypeName<T>();
  AddRounded<T, rn>(table, "<rn>");
  AddRounded<T, rd>(table, "<rd>");
  AddRounded<T, ru>(table, "<ru>");
  AddRounded<T, rz>(table, "<rz>");
  AddSignificand<T>(table);
  AddConditional<T>(table);
  table.add_arithmetic<V, V>("operator+" + t, [](V a, V b) { return a + b; });
  table.add_arithmetic<V, V>("operator-" + t, [](V a, V b) { return a - b; });
  table.add_arithmetic<V, V>("operator*" + t, [](V a, V b) { return a * b; });
  table.add_arithmetic<V, V, V>("fmaddsub" + t, [](V a, V b, V c) { return fmaddsub(a, b, c); });
  table.add_arithmetic<V, V, V>("fmsubadd" + t, [](V a, V b, V c) { return fmsubadd(a, b, c); });
  table.add<V, V>("min" + t, [](V a, V b) { return min(a, b); });
  table.add<V, V>("max" + t, [](V a, V b) { return max(a, b); });
  table.add_arithmetic<V, V, Mask<T>>("add under a mask" + t, [](V a, V b, Mask<T> m) { return add(m, a, b); });
  table.add_arithmetic<V, V, V, Mask<T>>("sub under a mask" + t,
                                         [](V a, V b, V other, Mask<T> m) { return sub(m, a, b, other); });
  table.add_arithmetic<V, V, Mask<T>>("sub_or_zero" + t, [](V a, V b, Mask<T> m) { return sub_or_zero(m, a, b); });
  table.add<V>("rcp14" + t, [](V a) { return rcp14(a); });
  table.add<V>("rsqrt14" + t, [](V a) { return rsqrt14(a); });
  table.add<V>("abs" + t, [](V a) { return abs(a); });
  table.add<V>("negate" + t, [](V a) { return negate(a); });
  table.add<V, V>("or_sign" + t, [](V a, V b) { return or_sign(a, b); });
  table.add<V, V>("xor_sign" + t, [](V a, V b) { return xor_sign(a, b); });
  table.add<V>("sign_of" + t, [](V a) { return sign_of(a); });
  table.add<V, U>("operator& float with bits" + t, [](V a, U b) { return a & b; });
  table.add<V, U>("operator| float with bits" + t, [](V a, U b) { return a | b; });
  table.add<V, U>("operator^ float with bits" + t, [](V a, U b) { return a ^ b; });
  table.add<V>("bits" + t, [](V a) { return bits(a); });
  table.add<V>("horner" + t, [](V a) { return horner(a, T(1.25), T(-0.3), T(0.7), T(3)); });
  table.add<V>("horner_of_pairs" + t, [](V a) {
    return horner_of_pairs(a, a * a, Polynomial<T, 5>{{T(1.25), T(-0.3), T(0.7), T(3), T(-0.1)}});
  });
  table.add<V>("estrin" + t, [](V a) {
    return estrin(a, Polynomial<T, 8>{{T(1.25), T(-0.3), T(0.7), T(3), T(-0.1), T(0.9), T(-2), T(0.4)}});
  });
  table.add<V>("exponent_field" + t, [](V a) { return exponent_field(a); });
  table.add<U>("power_of_two" + t, [](U a) { return power_of_two<T>(a); });
  table.add_arithmetic<V, V>("two_sum" + t, [](V a, V b) { return two_sum(a, b); });
  table.add_arithmetic<V, V>("fast_two_sum" + t, [](V a, V b) { return fast_two_sum(a, b); });
  table.add_arithmetic<V, V>("two_product" + t, [](V a, V b) { return two_product(a, b); });
  table.add<V, V>("unord" + t, [](V a, V b) { return unord(a, b); });
  table.add<V, V>("deinterleave" + t, [](V a, V b) { return deinterleave(a, b); });
  table.add<V, V>("interleave" + t, [](V a, V b) { return interleave(a, b); });
  table.add<V>("swap_pairs" + t, [](V a) { return swap_pairs(a); });
  table.add<V>("duplicate_even" + t, [](V a) { return duplicate_even(a); });
  table.add<V>("duplicate_odd" + t, [](V a) { return duplicate_odd(a); });
  ForImmediatesBelow(std::make_integer_sequence<int, 32>{}, [&](auto imm, const std::string& text) {
    table.add<V, V>("compare" + text + t, [](V a, V b) { return compare<decltype(imm)::value>(a, b); });
  });
  table.add<V, Mask<T>>("compress" + t, [](V a, Mask<T> m) { return compress(m, a); });
  table.add<V, Mask<T>>("expand" + t, [](V a, Mask<T> m) { return expand(m, a); });
}

// What every lane type has.
template <Lane T> void AddCommon(Builder& table) {
  using V = Vec<T>;
  using M = Mask<T>;
  using Index = Vec<SignedOf<T>>;
  using UnsignedIndex = Vec<UnsignedOf<T>>;
  const auto t = TypeName<T>();
  table.add<const T*>("all" + t, [](const T* p) { return all(*p); });
  table.add<const T*>("load" + t, [](const T* p) { return load(p); });
  table.add<const T*, V, M>("load masked" + t, [](const T* p, V fill, M m) { return load(m, p, fill); });
  table.add<V>("store" + t, [](V a) {
    T lanes[lanes_of<T>];
    store(lanes, a);
    return load(lanes);
  });
  table.add<V, V, M>("store masked" + t, [](V a, V old, M m) {
    T lanes[lanes_of<T>];
    store(lanes, old);
    store(m, lanes, a);
    return load(lanes);
  });
  table.add<V, V, Count<T>>("store_first" + t, [](V a, V old, Count<T> count) {
    T lanes[lanes_of<T>];
    store(lanes, old);
    store_first(count.value, lanes, a);
    return load(lanes);
  });
  table.add<Count<T>>("first_lanes" + t, [](Count<T> count) { return first_lanes<T>(count.value); });
  table.add<M>("mask_of" + t, [](M m) { return mask_of<T>(to_bits(m)); });
  table.add<M>("to_bits" + t, [](M m) { return to_bits(m); });
  table.add<M>("mask_cast" + t, [](M m) { return mask_cast<UnsignedOf<T>>(m); });
  table.add<M, V, V>("operator& masks" + t, [](M m, V a, V b) { return m & eq(a, b); });
  table.add<M, V, V>("operator| masks" + t, [](M m, V a, V b) { return m | lt(a, b); });
  table.add<M, V, V>("operator^ masks" + t, [](M m, V a, V b) { return m ^ le(a, b); });
  table.add<M>("operator~ mask" + t, [](M m) { return ~m; });
  table.add<M>("any" + t, [](M m) { return any(m); });
  table.add<M>("none" + t, [](M m) { return none(m); });
  table.add<V, V>("any of a comparison" + t, [](V a, V b) { return any(nlt(a, b)); });
  table.add<V, V>("eq" + t, [](V a, V b) { return eq(a, b); });
  table.add<V, V>("lt" + t, [](V a, V b) { return lt(a, b); });
  table.add<V, V>("le" + t, [](V a, V b) { return le(a, b); });
  table.add<V, V>("ne" + t, [](V a, V b) { return ne(a, b); });
  table.add<V, V>("nlt" + t, [](V a, V b) { return nlt(a, b); });
  table.add<V, V>("nle" + t, [](V a, V b) { return nle(a, b); });
  table.add<V, V, M>("select" + t, [](V a, V b, M m) { return select(m, a, b); });
  table.add<V, M>("zero_unless" + t, [](V a, M m) { return zero_unless(m, a); });
  table.add<M>("spread" + t, [](M m) { return spread(m); });
  table.add<V, Index>("permute" + t, [](V entries, Index i) { return permute(entries, i); });
  table.add<V, UnsignedIndex>("permute unsigned" + t, [](V entries, UnsignedIndex i) { return permute(entries, i); });
  table.add<V, V, Index>("permute2" + t, [](V low, V high, Index i) { return permute2(low, high, i); });
  table.add<V, V, UnsignedIndex>("permute2 unsigned" + t,
                                 [](V low, V high, UnsignedIndex i) { return permute2(low, high, i); });
  // The base is the middle of the vector, so that indexes of both signs occur.
  constexpr int top_bits = 8 * static_cast<int>(sizeof(T)) - (sizeof(T) == 4 ? 4 : 3);
  table.add<const T*, Index>(
      "gather" + t, [](const T* p, Index i) { return gather(p + lanes_of<T> / 2, shift_right_arithmetic<top_bits>(i)); });
  table.add<const T*, Index, V, M>("gather masked" + t, [](const T* p, Index i, V old, M m) {
    return gather(m, p + lanes_of<T> / 2, shift_right_arithmetic<top_bits>(i), old);
  });
  // Half as many indexes, so that the rows end within the vector.
  table.add<const T*, Index>("gather_rows first" + t, [](const T* p, Index i) {
    const auto r = gather_rows(p + lanes_of<T> / 4, shift_right_arithmetic<top_bits + 1>(i));
    return Pair<T>{r.column0, r.column1};
  });
  table.add<const T*, Index>("gather_rows second" + t, [](const T* p, Index i) {
    const auto r = gather_rows(p + lanes_of<T> / 4, shift_right_arithmetic<top_bits + 1>(i));
    return Pair<T>{r.column2, r.column3};
  });
  if constexpr (sizeof(T) == 8) {
    table.add<const T*, Index>("gather_pairs" + t, [](const T* p, Index i) {
      const auto r = gather_pairs(p + lanes_of<T> / 4, shift_right_arithmetic<top_bits + 1>(i));
      return Pair<T>{r.column0, r.column1};
    });
  }
}

template <Integer T> void AddShifts(Builder& table) {
  using V = Vec<T>;
  const auto t = TypeName<T>();
  constexpr int width = 8 * sizeof(T);
  ForEachImmediate<0, 1, 5, 16, width - 1, width>([&](auto n, const std::string& text) {
    table.add<V>("shift_left" + text + t, [](V a) { return shift_left<decltype(n)::value>(a); });
    table.add<V>("shift_right" + text + t, [](V a) { return shift_right<decltype(n)::value>(a); });
    table.add<V>("shift_right_arithmetic" + text + t, [](V a) { return shift_right_arithmetic<decltype(n)::value>(a); });
  });
  // Counts around the width, and any others.
  table.add<V, V>("shift_left by lane" + t, [](V a, V n) { return shift_left(a, n); });
  table.add<V, V>("shift_right by lane" + t, [](V a, V n) { return shift_right(a, n); });
  table.add<V, V>("shift_right_arithmetic by lane" + t, [](V a, V n) { return shift_right_arithmetic(a, n); });
  table.add<V, V>("shift_left by small lane" + t, [](V a, V n) { return shift_left(a, n & all(T{127})); });
  table.add<V, V>("shift_right by small lane" + t, [](V a, V n) { return shift_right(a, n & all(T{127})); });
  table.add<V, V>("shift_right_arithmetic by small lane" + t,
                  [](V a, V n) { return shift_right_arithmetic(a, n & all(T{127})); });
}

template <Integer T> void AddInteger(Builder& table) {
  using V = Vec<T>;
  const auto t = TypeName<T>();
  table.add<V>("as_float" + t, [](V a) { return as_float(a); });
  table.add<V>("as_signed" + t, [](V a) { return as_signed(a); });
  table.add<V>("as_unsigned" + t, [](V a) { return as_unsigned(a); });
  table.add<V, V>("test_any" + t, [](V a, V b) { return test_any(a, b); });
  table.add<V, V>("test_none" + t, [](V a, V b) { return test_none(a, b); });
  table.add<V, V>("operator&" + t, [](V a, V b) { return a & b; });
  table.add<V, V>("operator|" + t, [](V a, V b) { return a | b; });
  table.add<V, V>("operator^" + t, [](V a, V b) { return a ^ b; });
  table.add<V, V>("and_not" + t, [](V a, V b) { return and_not(a, b); });
  table.add<V, V>("operator+" + t, [](V a, V b) { return a + b; });
  table.add<V, V>("operator-" + t, [](V a, V b) { return a - b; });
  table.add<V, V>("operator*" + t, [](V a, V b) { return a * b; });
  table.add<V, V>("min" + t, [](V a, V b) { return min(a, b); });
  table.add<V, V>("max" + t, [](V a, V b) { return max(a, b); });
  table.add<V>("sign_mask" + t, [](V a) { return sign_mask(a); });
  AddShifts<T>(table);
  ForImmediatesBelow(std::make_integer_sequence<int, 8>{}, [&](auto imm, const std::string& text) {
    table.add<V, V>("compare" + text + t, [](V a, V b) { return compare<decltype(imm)::value>(a, b); });
  });
  ForEachImmediate<0x96, 0xF8, 0xFE, 0xFF, 0xE2, 0xD8, 0xCA, 0xB8, 0xEC, 0xEA, 0x78, 0x6C, 0xDE, 0xF6, 0xF2, 0x0F, 0x00, 0x28,
                   0xD2, 0x1B>([&](auto imm, const std::string& text) {
    table.add<V, V, V>("ternary" + text + t, [](V a, V b, V c) { return ternary<decltype(imm)::value>(a, b, c); });
  });
}

// Operations of one width only, and those between widths.
void AddConversions(Builder& table) {
  using F32 = Vec<float>;
  using F64 = Vec<double>;
  using I32 = Vec<int32_t>;
  using U32 = Vec<uint32_t>;
  using I64 = Vec<int64_t>;
  using U64 = Vec<uint64_t>;
  table.add<F32>("widen_low f32", [](F32 a) { return widen_low(a); });
  table.add<F32>("widen_high f32", [](F32 a) { return widen_high(a); });
  table.add<I32>("widen_low i32", [](I32 a) { return widen_low(a); });
  table.add<I32>("widen_high i32", [](I32 a) { return widen_high(a); });
  table.add<U32>("widen_low u32", [](U32 a) { return widen_low(a); });
  table.add<U32>("widen_high u32", [](U32 a) { return widen_high(a); });
  table.add<F64, F64>("narrow f64", [](F64 a, F64 b) { return narrow(a, b); });
  table.add<I64, I64>("narrow i64", [](I64 a, I64 b) { return narrow(a, b); });
  table.add<U64, U64>("narrow u64", [](U64 a, U64 b) { return narrow(a, b); });
  table.add<I32>("to_float i32", [](I32 a) { return to_float(a); });
  table.add<I64>("to_double i64", [](I64 a) { return to_double(a); });
  table.add<U64>("to_double u64", [](U64 a) { return to_double(a); });
  table.add<I64>("as_lanes32 i64", [](I64 a) { return as_lanes32(a); });
  table.add<U64>("as_lanes32 u64", [](U64 a) { return as_lanes32(a); });
  table.add<U64, U64>("mul_low_halves u64", [](U64 a, U64 b) { return mul_low_halves(a, b); });
  table.add<F64, F64>("join", [](F64 a, F64 b) { return join(lt(a, b), nlt(b, a)); });
  table.add<Mask<float>>("low_half", [](Mask<float> m) { return low_half(m); });
  table.add<Mask<float>>("high_half", [](Mask<float> m) { return high_half(m); });
}

template <Floating T> void MaskedLoad(uint32_t mask, const T* from, T* all_lanes) {
  store(all_lanes, load(mask_of<T>(mask), from, load(all_lanes)));
}
template <Floating T> void MaskedStore(uint32_t mask, T* to, const T* all_lanes) {
  store(mask_of<T>(mask), to, load(all_lanes));
}
template <Floating T> void MaskedGather(uint32_t mask, const T* base, const SignedOf<T>* index, T* all_lanes) {
  store(all_lanes, gather(mask_of<T>(mask), base, load(index), load(all_lanes)));
}

OperationTable Build() {
  Builder table;
  AddFloating<float>(table);
  AddFloating<double>(table);
  AddCommon<float>(table);
  AddCommon<double>(table);
  AddCommon<int32_t>(table);
  AddCommon<uint32_t>(table);
  AddCommon<int64_t>(table);
  AddCommon<uint64_t>(table);
  AddInteger<int32_t>(table);
  AddInteger<uint32_t>(table);
  AddInteger<int64_t>(table);
  AddInteger<uint64_t>(table);
  AddConversions(table);
  return {std::move(table.operations), MaskedLoad<float>,   MaskedLoad<double>,  MaskedStore<float>,
          MaskedStore<double>,         MaskedGather<float>, MaskedGather<double>};
}

}  // namespace

#if defined(LUM_AVX512)
OperationTable Avx512Table() { return Build(); }
#elif defined(LUM_AVX2)
OperationTable Avx2Table() { return Build(); }
#else
OperationTable PortableTable() { return Build(); }
#endif

}  // namespace lum::test
