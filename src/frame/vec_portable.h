// The vector operations as loops over lanes, for any processor, with the result bits of the AVX-512 layer in every lane. What
// one lane does beyond plain arithmetic is in the lane_*.h files and reciprocal_estimates.h. The code counts on the frame: the
// rounding is to nearest, denormals are not flushed, exceptions are masked. Sections stand in the same order as in
// vec_avx512.h.
#pragma once

#include <cstring>
#include <type_traits>

#include "frame/lane_significand.h"
#include "frame/reciprocal_estimates.h"

namespace lum {
inline namespace portable {

// ---- Types

template <Lane T>
struct alignas(16) Vec {
  T lane[lanes_of<T>];
};

// All bits set in the lanes of the mask, none in the others. The lanes are of type T, since some compilers do not vectorise a
// comparison of doubles that gives integers.
template <Lane T>
struct alignas(16) Mask {
  T lane[lanes_of<T>];
  LUM_INLINE UnsignedOf<T> bits_of(int i) const { return std::bit_cast<UnsignedOf<T>>(lane[i]); }
};

template <class T>
inline constexpr bool is32 = sizeof(T) == 4;

// The vector of value(i) in lane i.
template <Lane T, class F>
LUM_INLINE Vec<T> each_lane(F value) {
  Vec<T> r;
  for (int i = 0; i < lanes_of<T>; ++i) r.lane[i] = value(i);
  return r;
}
// The mask of the lanes in which condition(i) holds.
template <Lane T, class F>
LUM_INLINE Mask<T> each_mask_lane(F condition) {
  Mask<T> r;
  constexpr T set = std::bit_cast<T>(static_cast<UnsignedOf<T>>(~UnsignedOf<T>{0}));
  for (int i = 0; i < lanes_of<T>; ++i) r.lane[i] = condition(i) ? set : T{0};
  return r;
}
// The mask whose lanes have the bits that value(i) gives.
template <Lane T, class F>
LUM_INLINE Mask<T> each_mask_bits(F value) {
  Mask<T> r;
  for (int i = 0; i < lanes_of<T>; ++i) r.lane[i] = std::bit_cast<T>(static_cast<UnsignedOf<T>>(value(i)));
  return r;
}

// ---- Make, load, store

// x in every lane.
template <Lane T>
LUM_INLINE Vec<T> all(T x) {
  return each_lane<T>([&](int) { return x; });
}

// The lane numbers 0, 1, 2, ...
template <Integer T>
LUM_INLINE Vec<T> iota() {
  return each_lane<T>([&](int i) { return static_cast<T>(i); });
}

// A whole vector from memory of any alignment.
template <Lane T>
LUM_INLINE Vec<T> load(const T* p) {
  Vec<T> r;
  std::memcpy(&r, p, sizeof r);
  return r;
}

// The lanes of the mask from memory, which alone is read; the others from fill.
template <Lane T>
LUM_INLINE Vec<T> load(const Mask<T>& mask, const T* p, Vec<T> fill) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) std::memcpy(&fill.lane[i], p + i, sizeof(T));
  return fill;
}

template <Lane T>
LUM_INLINE void store(T* p, const Vec<T>& a) {
  std::memcpy(p, &a, sizeof a);
}

// Writes the lanes of the mask and touches no other memory.
template <Lane T>
LUM_INLINE void store(const Mask<T>& mask, T* p, const Vec<T>& a) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) std::memcpy(p + i, &a.lane[i], sizeof(T));
}

// ---- Reinterpretation

template <Floating T>
LUM_INLINE Vec<UnsignedOf<T>> bits(const Vec<T>& a) {
  return std::bit_cast<Vec<UnsignedOf<T>>>(a);
}
template <Integer32 T>
LUM_INLINE Vec<float> as_float(const Vec<T>& a) {
  return std::bit_cast<Vec<float>>(a);
}
template <Integer64 T>
LUM_INLINE Vec<double> as_float(const Vec<T>& a) {
  return std::bit_cast<Vec<double>>(a);
}
template <Integer T>
LUM_INLINE Vec<SignedOf<T>> as_signed(const Vec<T>& a) {
  return std::bit_cast<Vec<SignedOf<T>>>(a);
}
template <Integer T>
LUM_INLINE Vec<UnsignedOf<T>> as_unsigned(const Vec<T>& a) {
  return std::bit_cast<Vec<UnsignedOf<T>>>(a);
}
// The lanes of one width seen as lanes of the other, the low half first.
template <Integer32 T>
LUM_INLINE Vec<uint64_t> as_lanes64(const Vec<T>& a) {
  return each_lane<uint64_t>(
      [&](int i) { return static_cast<uint32_t>(a.lane[2 * i]) | uint64_t{static_cast<uint32_t>(a.lane[2 * i + 1])} << 32; });
}
template <Integer64 T>
LUM_INLINE Vec<uint32_t> as_lanes32(const Vec<T>& a) {
  return each_lane<uint32_t>(
      [&](int i) { return static_cast<uint32_t>(static_cast<uint64_t>(a.lane[i / 2]) >> (i % 2 ? 32 : 0)); });
}

// ---- Masks

// The low `count` lanes, 0 <= count <= lanes.
template <Lane T>
LUM_INLINE Mask<T> first_lanes(int count) {
  return each_mask_lane<T>([&](int i) { return i < count; });
}
template <Lane T>
LUM_INLINE Mask<T> mask_of(uint32_t lane_bits) {
  return each_mask_lane<T>([&](int i) { return (lane_bits & (1u << i)) != 0; });
}
template <Lane T>
LUM_INLINE uint32_t to_bits(const Mask<T>& m) {
  uint32_t lane_bits = 0;
  for (int i = 0; i < lanes_of<T>; ++i) lane_bits |= static_cast<uint32_t>(m.bits_of(i)) & (1u << i);
  return lane_bits;
}
// The mask of lanes of one type as that of another type with as many lanes.
template <Lane To, Lane From>
requires(sizeof(To) == sizeof(From)) LUM_INLINE Mask<To> mask_cast(const Mask<From>& m) { return std::bit_cast<Mask<To>>(m); }
template <Lane T>
LUM_INLINE Mask<T> operator&(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_bits<T>([&](int i) { return a.bits_of(i) & b.bits_of(i); });
}
template <Lane T>
LUM_INLINE Mask<T> operator|(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_bits<T>([&](int i) { return a.bits_of(i) | b.bits_of(i); });
}
template <Lane T>
LUM_INLINE Mask<T> operator^(const Mask<T>& a, const Mask<T>& b) {
  return each_mask_bits<T>([&](int i) { return a.bits_of(i) ^ b.bits_of(i); });
}
template <Lane T>
LUM_INLINE Mask<T> operator~(const Mask<T>& a) {
  return each_mask_bits<T>([&](int i) { return ~a.bits_of(i); });
}
template <Lane T>
LUM_INLINE bool any(const Mask<T>& a) {
  UnsignedOf<T> united = 0;
  for (int i = 0; i < lanes_of<T>; ++i) united |= a.bits_of(i);
  return united != 0;
}
template <Lane T>
LUM_INLINE bool none(const Mask<T>& a) {
  return !any(a);
}
// The masks of two vectors of doubles as that of one vector of floats, and its halves.
LUM_INLINE Mask<float> join(const Mask<double>& low, const Mask<double>& high) {
  return each_mask_lane<float>([&](int i) { return (i < 8 ? low.bits_of(i) : high.bits_of(i - 8)) != 0; });
}
LUM_INLINE Mask<double> low_half(const Mask<float>& m) {
  return each_mask_lane<double>([&](int i) { return m.bits_of(i) != 0; });
}
LUM_INLINE Mask<double> high_half(const Mask<float>& m) {
  return each_mask_lane<double>([&](int i) { return m.bits_of(i + 8) != 0; });
}

// ---- Arithmetic

// r with careful(a, b, ...) in the lanes of which doubt has bits set.
template <auto careful, Floating T, class... Operands>
[[gnu::noinline, gnu::cold]] void redo_lanes(Vec<T>& r, const Mask<T>& doubt, const Operands&... operands) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (doubt.bits_of(i)) r.lane[i] = careful(operands.lane[i]...);
}
// The result that quick(i) gives in every lane, with careful(a, b, ...) instead where doubt(i, result) has bits set. The copies
// keep the operands themselves out of memory on the usual way.
template <auto careful, Floating T, class Quick, class Doubt, class... Operands>
LUM_INLINE Vec<T> each_lane_with_care(Quick quick, Doubt doubt, const Vec<T>& first, const Operands&... rest) {
  const Vec<T> r = each_lane<T>(quick);
  Mask<T> doubts;
  for (int i = 0; i < lanes_of<T>; ++i) doubts.lane[i] = doubt(i, r.lane[i]);
  if (none(doubts)) [[likely]]
    return r;
  Vec<T> redone = r;
  [&doubts, &redone](Vec<T> a, Operands... others) { redo_lanes<careful>(redone, doubts, a, others...); }(first, rest...);
  return redone;
}

template <int R = rn, Floating T>
LUM_INLINE Vec<T> add(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return lane::add<R>(a.lane[i], b.lane[i]); });
}
template <int R = rn, Floating T>
LUM_INLINE Vec<T> sub(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return lane::sub<R>(a.lane[i], b.lane[i]); });
}
template <int R = rn, Floating T>
[[gnu::noinline]] Vec<T> mul(const Vec<T>& a, const Vec<T>& b) {
  return each_lane_with_care<lane::careful_mul<R, T>>([&](int i) { return lane::quick_mul<R>(a.lane[i], b.lane[i]); },
                                                      [&](int i, T r) { return lane::mul_doubt<R>(a.lane[i], b.lane[i], r); },
                                                      a, b);
}
template <int R = rn, Floating T>
[[gnu::noinline]] Vec<T> div(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return lane::div<R>(a.lane[i], b.lane[i]); });
}
template <int R = rn, Floating T>
[[gnu::noinline]] Vec<T> sqrt(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::sqrt<R>(a.lane[i]); });
}
// +-(a b) +- c with one rounding.
template <int R, bool negate_product, bool negate_addend, Floating T>
[[gnu::noinline]] Vec<T> signed_fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  const auto quick = [&](int i) {
    return lane::quick_fma<R>(negate_product ? -a.lane[i] : a.lane[i], b.lane[i], negate_addend ? -c.lane[i] : c.lane[i]);
  };
  return each_lane_with_care<lane::careful_fma<R, negate_product, negate_addend, T>>(
      quick, [&](int i, T r) { return lane::fma_doubt<R>(a.lane[i], b.lane[i], c.lane[i], r); }, a, b, c);
}
// a b + c with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, false, false>(a, b, c);
}
// a b - c with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fms(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, false, true>(a, b, c);
}
// c - a b with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fnma(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, true, false>(a, b, c);
}
// -(a b) - c with one rounding.
template <int R = rn, Floating T>
LUM_INLINE Vec<T> fnms(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return signed_fma<R, true, true>(a, b, c);
}
// c with the sign of the even or of the odd lanes changed.
template <int odd, Floating T>
LUM_INLINE Vec<T> negate_every_other(const Vec<T>& c) {
  return each_lane<T>([&](int i) { return i % 2 == odd ? -c.lane[i] : c.lane[i]; });
}
// r, where c is a NaN and neither a nor b is one with that NaN in its own sign.
template <Floating T>
LUM_INLINE Vec<T> restore_nan(const Vec<T>& r, const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return each_lane<T>([&](int i) {
    const bool from_c = lane::is_nan(c.lane[i]) && !lane::is_nan(a.lane[i]) && !lane::is_nan(b.lane[i]);
    return from_c ? lane::quieted(c.lane[i]) : r.lane[i];
  });
}
// a b - c in even lanes, a b + c in odd ones, with one rounding.
template <Floating T>
LUM_INLINE Vec<T> fmaddsub(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return restore_nan(fma(a, b, negate_every_other<0>(c)), a, b, c);
}
// a b + c in even lanes, a b - c in odd ones, with one rounding.
template <Floating T>
LUM_INLINE Vec<T> fmsubadd(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return restore_nan(fma(a, b, negate_every_other<1>(c)), a, b, c);
}
// The smaller; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T>
LUM_INLINE Vec<T> min(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    return x < y ? x : y;
  });
}
// The larger; b when either is a NaN or both are zeros, so the order of the operands matters.
template <Floating T>
LUM_INLINE Vec<T> max(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    return x > y ? x : y;
  });
}
// 1 / a with a relative error below 2^-14; a zero gives an infinity and an infinity a zero, of its sign.
template <Floating T>
[[gnu::noinline]] Vec<T> rcp14(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::rcp14(a.lane[i]); });
}
// 1 / sqrt a with a relative error below 2^-14; a zero gives an infinity of its sign, a negative number the default NaN.
template <Floating T>
[[gnu::noinline]] Vec<T> rsqrt14(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::rsqrt14(a.lane[i]); });
}

// ---- Exponent, significand, rounding to a grid

// floor(log2 |a|), also of denormals; -infinity for a zero, +infinity for an infinity.
template <Floating T>
[[gnu::noinline]] Vec<T> getexp(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::getexp(a.lane[i]); });
}
// The significand of a in the interval of imm bits 0-1: 0 [1,2), 1 [1/2,2), 2 [1/2,1), 3 [3/4,3/2); bits 2-3: 0 keeps the sign,
// 1 clears it, 2 gives the default NaN for a negative number.
template <int imm, Floating T>
[[gnu::noinline]] Vec<T> getmant(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::getmant<imm>(a.lane[i]); });
}
// a 2^floor(b) with one rounding, gradual underflow included.
template <int R = rn, Floating T>
[[gnu::noinline]] Vec<T> scalef(const Vec<T>& a, const Vec<T>& b) {
  return each_lane_with_care<lane::exact_scalef<R, T>>([&](int i) { return lane::quick_scalef<R>(a.lane[i], b.lane[i]); },
                                                       [&](int i, T) { return lane::scalef_doubt(a.lane[i], b.lane[i]); }, a,
                                                       b);
}
// a rounded to a multiple of 2^-M, M in imm bits 4-7; bits 0-1: 0 nearest even, 1 down, 2 up, 3 toward zero; bit 2: the
// environment's rounding, which kernels have set to nearest.
template <int imm, Floating T>
[[gnu::noinline]] Vec<T> rndscale(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::rndscale<imm>(a.lane[i]); });
}
// a - rndscale<imm>(a), the exact remainder.
template <int imm, Floating T>
[[gnu::noinline]] Vec<T> reduce(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return lane::reduce<imm>(a.lane[i]); });
}

// ---- Comparison and classification

// Predicates from 16 on are those below with the other behaviour at a quiet NaN, which raises no flag here.
template <int predicate, Floating T>
LUM_INLINE Mask<T> compare(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    const bool unordered = x != x || y != y;
    constexpr int p = predicate & 15;
    if constexpr (p == 0) return x == y;
    else if constexpr (p == 1) return x < y;
    else if constexpr (p == 2) return x <= y;
    else if constexpr (p == 3) return unordered;
    else if constexpr (p == 4) return x != y;
    else if constexpr (p == 5) return !(x < y);
    else if constexpr (p == 6) return !(x <= y);
    else if constexpr (p == 7) return !unordered;
    else if constexpr (p == 8) return unordered || x == y;
    else if constexpr (p == 9) return !(x >= y);
    else if constexpr (p == 10) return !(x > y);
    else if constexpr (p == 11) return false;
    else if constexpr (p == 12) return !unordered && x != y;
    else if constexpr (p == 13) return x >= y;
    else if constexpr (p == 14) return x > y;
    else return true;
  });
}
template <int predicate, Integer T>
LUM_INLINE Mask<T> compare(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    if constexpr (predicate == 0) return x == y;
    else if constexpr (predicate == 1) return x < y;
    else if constexpr (predicate == 2) return x <= y;
    else if constexpr (predicate == 3) return false;
    else if constexpr (predicate == 4) return x != y;
    else if constexpr (predicate == 5) return x >= y;
    else if constexpr (predicate == 6) return x > y;
    else return true;
  });
}
// The predicates' codes are the same for floating-point and integer comparisons (0 eq, 1 lt, 2 le, 4 ne, 5 nlt, 6 nle).
template <Lane T>
LUM_INLINE Mask<T> eq(const Vec<T>& a, const Vec<T>& b) {
  return compare<0>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> lt(const Vec<T>& a, const Vec<T>& b) {
  return compare<1>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> le(const Vec<T>& a, const Vec<T>& b) {
  return compare<2>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> ne(const Vec<T>& a, const Vec<T>& b) {
  return compare<4>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> nlt(const Vec<T>& a, const Vec<T>& b) {
  return compare<5>(a, b);
}
template <Lane T>
LUM_INLINE Mask<T> nle(const Vec<T>& a, const Vec<T>& b) {
  return compare<6>(a, b);
}
template <Floating T>
LUM_INLINE Mask<T> unord(const Vec<T>& a, const Vec<T>& b) {
  return compare<3>(a, b);
}
template <Floating T>
LUM_INLINE Mask<T> ord(const Vec<T>& a, const Vec<T>& b) {
  return compare<7>(a, b);
}

// Lanes whose class is in the set imm: bit 0 quiet NaN, 1 +0, 2 -0, 3 +infinity, 4 -infinity, 5 denormal, 6 negative finite
// other than -0, 7 signalling NaN.
template <int imm, Floating T>
[[gnu::noinline]] Mask<T> fpclass(const Vec<T>& a) {
  return each_mask_lane<T>([&](int i) { return lane::fpclass<imm>(a.lane[i]); });
}
// Lanes in which a & b has a bit set.
template <Integer T>
LUM_INLINE Mask<T> test_any(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_lane<T>([&](int i) { return (a.lane[i] & b.lane[i]) != 0; });
}
// Lanes in which a & b is zero.
template <Integer T>
LUM_INLINE Mask<T> test_none(const Vec<T>& a, const Vec<T>& b) {
  return each_mask_lane<T>([&](int i) { return (a.lane[i] & b.lane[i]) == 0; });
}

// ---- Selection

// Per lane m ? a : b.
template <Lane T>
LUM_INLINE Vec<T> select(const Mask<T>& m, const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) {
    using U = UnsignedOf<T>;
    return std::bit_cast<T>((std::bit_cast<U>(a.lane[i]) & m.bits_of(i)) | (std::bit_cast<U>(b.lane[i]) & ~m.bits_of(i)));
  });
}
// Per lane m ? a + b : a.
template <Floating T>
LUM_INLINE Vec<T> add(Mask<T> m, Vec<T> a, Vec<T> b) {
  return select(m, a + b, a);
}
// Per lane m ? a - b : other.
template <Floating T>
LUM_INLINE Vec<T> sub(Mask<T> m, Vec<T> a, Vec<T> b, Vec<T> other) {
  return select(m, sub(a, b), other);
}
// Per lane m ? a - b : +0.
template <Floating T>
LUM_INLINE Vec<T> sub_or_zero(Mask<T> m, Vec<T> a, Vec<T> b) {
  return zero_unless(m, sub(a, b));
}
// Per lane m ? a : +0.
template <Lane T>
LUM_INLINE Vec<T> zero_unless(const Mask<T>& m, const Vec<T>& a) {
  return each_lane<T>([&](int i) { return std::bit_cast<T>(std::bit_cast<UnsignedOf<T>>(a.lane[i]) & m.bits_of(i)); });
}
// a, replaced by the special value that the 4-bit token of b's class names (quiet NaN, signalling NaN, zero, 1, -infinity,
// +infinity, negative, positive, from the low token up).
template <int imm>
[[gnu::noinline]] Vec<double> fixupimm(const Vec<double>& a, const Vec<double>& b, const Vec<uint64_t>& tokens) {
  static_assert(imm >= 0, "says only which exceptions are raised, and none is");
  return each_lane<double>([&](int i) { return lane::fixupimm(a.lane[i], b.lane[i], tokens.lane[i]); });
}
// Bit i of imm is the result for the operand bits a, b, c with i = 4 a + 2 b + c.
template <int imm, Integer T>
LUM_INLINE Vec<T> ternary(const Vec<T>& a, const Vec<T>& b, const Vec<T>& c) {
  return each_lane<T>([&](int i) {
    using U = UnsignedOf<T>;
    const U x = static_cast<U>(a.lane[i]), y = static_cast<U>(b.lane[i]), z = static_cast<U>(c.lane[i]);
    U r = 0;
    for (int row = 0; row < 8; ++row)
      if (imm >> row & 1) r |= (row & 4 ? x : ~x) & (row & 2 ? y : ~y) & (row & 1 ? z : ~z);
    return static_cast<T>(r);
  });
}

// ---- Bits and integers

// Integers wrap around: the work is done without sign.
template <Integer T>
LUM_INLINE UnsignedOf<T> raw(T x) {
  return static_cast<UnsignedOf<T>>(x);
}

template <Integer T>
LUM_INLINE Vec<T> operator&(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return a.lane[i] & b.lane[i]; });
}
template <Integer T>
LUM_INLINE Vec<T> operator|(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return a.lane[i] | b.lane[i]; });
}
template <Integer T>
LUM_INLINE Vec<T> operator^(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return a.lane[i] ^ b.lane[i]; });
}
// ~a & b.
template <Integer T>
LUM_INLINE Vec<T> and_not(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return ~a.lane[i] & b.lane[i]; });
}

template <Integer T>
LUM_INLINE Vec<T> operator+(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) + raw(b.lane[i])); });
}
template <Integer T>
LUM_INLINE Vec<T> operator-(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) - raw(b.lane[i])); });
}
// The low half of the product.
template <Integer T>
LUM_INLINE Vec<T> operator*(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) * raw(b.lane[i])); });
}
// The whole product of the low 32 bits of each lane.
LUM_INLINE Vec<uint64_t> mul_low_halves(const Vec<uint64_t>& a, const Vec<uint64_t>& b) {
  return each_lane<uint64_t>([&](int i) { return (a.lane[i] & 0xFFFFFFFF) * (b.lane[i] & 0xFFFFFFFF); });
}
// Signed 16-bit words multiplied, the two products of a lane added.
LUM_INLINE Vec<int32_t> mul_add_pairs(const Vec<int32_t>& a, const Vec<int32_t>& b) {
  return each_lane<int32_t>([&](int i) {
    const auto low = [](int32_t x) { return int32_t{static_cast<int16_t>(x & 0xFFFF)}; };
    const auto high = [](int32_t x) { return x >> 16; };
    return static_cast<int32_t>(raw(low(a.lane[i]) * low(b.lane[i])) + raw(high(a.lane[i]) * high(b.lane[i])));
  });
}

template <int n, Integer T>
LUM_INLINE Vec<T> shift_left(const Vec<T>& a) {
  if constexpr (n >= 8 * sizeof(T)) return all(T{0});
  else return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) << n); });
}
// Zeros come in from the left.
template <int n, Integer T>
LUM_INLINE Vec<T> shift_right(const Vec<T>& a) {
  if constexpr (n >= 8 * sizeof(T)) return all(T{0});
  else return each_lane<T>([&](int i) { return static_cast<T>(raw(a.lane[i]) >> n); });
}
// Copies of the sign bit come in from the left.
template <int n, Integer T>
LUM_INLINE Vec<T> shift_right_arithmetic(const Vec<T>& a) {
  constexpr int last = 8 * static_cast<int>(sizeof(T)) - 1;
  return each_lane<T>([&](int i) { return static_cast<T>(static_cast<SignedOf<T>>(a.lane[i]) >> (n < last ? n : last)); });
}
// By the count in the lane of n, unsigned; counts from the lane's width on shift everything out.
template <Integer T>
LUM_INLINE Vec<T> shift_left(const Vec<T>& a, const Vec<T>& n) {
  constexpr unsigned width = 8 * sizeof(T);
  return each_lane<T>([&](int i) {
    const auto count = raw(n.lane[i]);
    return count < width ? static_cast<T>(raw(a.lane[i]) << count) : T{0};
  });
}
template <Integer T>
LUM_INLINE Vec<T> shift_right(const Vec<T>& a, const Vec<T>& n) {
  constexpr unsigned width = 8 * sizeof(T);
  return each_lane<T>([&](int i) {
    const auto count = raw(n.lane[i]);
    return count < width ? static_cast<T>(raw(a.lane[i]) >> count) : T{0};
  });
}
template <Integer T>
LUM_INLINE Vec<T> shift_right_arithmetic(const Vec<T>& a, const Vec<T>& n) {
  constexpr unsigned last = 8 * sizeof(T) - 1;
  return each_lane<T>([&](int i) {
    const auto count = raw(n.lane[i]) < last ? raw(n.lane[i]) : UnsignedOf<T>{last};
    return static_cast<T>(static_cast<SignedOf<T>>(a.lane[i]) >> count);
  });
}
template <Integer T>
LUM_INLINE Vec<T> min(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    return x < y ? x : y;
  });
}
template <Integer T>
LUM_INLINE Vec<T> max(const Vec<T>& a, const Vec<T>& b) {
  return each_lane<T>([&](int i) {
    const T x = a.lane[i], y = b.lane[i];
    return x > y ? x : y;
  });
}

// ---- Conversions

// The low or high half of the lanes, widened; exact.
LUM_INLINE Vec<double> widen_low(const Vec<float>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(a.lane[i]); });
}
LUM_INLINE Vec<double> widen_high(const Vec<float>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(a.lane[i + 8]); });
}
LUM_INLINE Vec<int64_t> widen_low(const Vec<int32_t>& a) {
  return each_lane<int64_t>([&](int i) { return int64_t{a.lane[i]}; });
}
LUM_INLINE Vec<int64_t> widen_high(const Vec<int32_t>& a) {
  return each_lane<int64_t>([&](int i) { return int64_t{a.lane[i + 8]}; });
}
LUM_INLINE Vec<uint64_t> widen_low(const Vec<uint32_t>& a) {
  return each_lane<uint64_t>([&](int i) { return uint64_t{a.lane[i]}; });
}
LUM_INLINE Vec<uint64_t> widen_high(const Vec<uint32_t>& a) {
  return each_lane<uint64_t>([&](int i) { return uint64_t{a.lane[i + 8]}; });
}
// Two vectors rounded to nearest and joined; integers lose their high halves.
LUM_INLINE Vec<float> narrow(const Vec<double>& low, const Vec<double>& high) {
  Vec<float> r;
  for (int i = 0; i < 8; ++i) r.lane[i] = static_cast<float>(low.lane[i]);
  for (int i = 0; i < 8; ++i) r.lane[i + 8] = static_cast<float>(high.lane[i]);
  return r;
}
template <Integer64 T>
LUM_INLINE auto narrow(const Vec<T>& low, const Vec<T>& high) {
  using Narrow = std::conditional_t<std::same_as<T, int64_t>, int32_t, uint32_t>;
  Vec<Narrow> r;
  for (int i = 0; i < 8; ++i) r.lane[i] = static_cast<Narrow>(low.lane[i]);
  for (int i = 0; i < 8; ++i) r.lane[i + 8] = static_cast<Narrow>(high.lane[i]);
  return r;
}
// Integers as floating-point numbers, rounded to nearest.
LUM_INLINE Vec<float> to_float(const Vec<int32_t>& a) {
  return each_lane<float>([&](int i) { return static_cast<float>(a.lane[i]); });
}
LUM_INLINE Vec<double> to_double_low(const Vec<int32_t>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(a.lane[i]); });
}
LUM_INLINE Vec<double> to_double_high(const Vec<int32_t>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(a.lane[i + 8]); });
}
// The low 32 bits of each lane, a signed integer, as a double; exact.
template <Integer64 T>
LUM_INLINE Vec<double> to_double(const Vec<T>& a) {
  return each_lane<double>([&](int i) { return static_cast<double>(static_cast<int32_t>(a.lane[i])); });
}
// All bits of a lane set where the mask is.
template <Lane T>
LUM_INLINE Vec<UnsignedOf<T>> spread(const Mask<T>& m) {
  return std::bit_cast<Vec<UnsignedOf<T>>>(m);
}
// The top bit of every lane.
template <Integer T>
LUM_INLINE Mask<T> sign_mask(const Vec<T>& a) {
  return each_mask_lane<T>([&](int i) { return static_cast<SignedOf<T>>(a.lane[i]) < 0; });
}

// ---- Lookup and moves

// Entry index mod lanes of the table.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute(const Vec<T>& table, const Vec<I>& index) {
  return each_lane<T>([&](int i) { return table.lane[raw(index.lane[i]) & (lanes_of<T> - 1)]; });
}
// Entry index mod 2 lanes of the table whose first half is low and second half is high.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute2(const Vec<T>& low, const Vec<T>& high, const Vec<I>& index) {
  return each_lane<T>([&](int i) {
    const auto entry = raw(index.lane[i]) & (2 * lanes_of<T> - 1);
    return entry < lanes_of<T> ? low.lane[entry] : high.lane[entry - lanes_of<T>];
  });
}
// The same on 16-bit words: 64 entries, each lane of the index holding two.
template <Integer32 T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> permute2_words(const Vec<T>& low, const Vec<T>& high, const Vec<I>& index) {
  const auto word = [&](uint32_t entry) {
    const T pair = entry & 32 ? high.lane[(entry & 31) / 2] : low.lane[(entry & 31) / 2];
    return (raw(pair) >> (entry % 2 ? 16 : 0)) & 0xFFFF;
  };
  return each_lane<T>([&](int i) {
    const uint32_t pair = raw(index.lane[i]);
    return static_cast<T>(word(pair & 63) | word((pair >> 16) & 63) << 16);
  });
}
// base[index] per lane, the index signed and of the lane's width.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(const T* base, const Vec<I>& index) {
  return each_lane<T>([&](int i) { return base[static_cast<SignedOf<I>>(index.lane[i])]; });
}
// The same in the lanes of the mask, which alone are read; the others from old.
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Vec<T> gather(const Mask<T>& mask, const T* base, const Vec<I>& index, Vec<T> old) {
  for (int i = 0; i < lanes_of<T>; ++i)
    if (mask.bits_of(i)) old.lane[i] = base[static_cast<SignedOf<I>>(index.lane[i])];
  return old;
}

// The four entries from base[index] on, of each lane: entry i of all lanes in column i.
template <Lane T>
struct Columns {
  Vec<T> column0, column1, column2, column3;
};
template <Lane T, Integer I>
requires(sizeof(T) == sizeof(I)) LUM_INLINE Columns<T> gather_rows(const T* base, const Vec<I>& index) {
  return {gather(base, index), gather(base + 1, index), gather(base + 2, index), gather(base + 3, index)};
}

template <Lane T>
struct Pair {
  Vec<T> even, odd;
};
// The even and the odd lanes of the sequence a, b.
template <Floating T>
LUM_INLINE Pair<T> deinterleave(const Vec<T>& a, const Vec<T>& b) {
  constexpr int half = lanes_of<T> / 2;
  Pair<T> r;
  for (int i = 0; i < half; ++i) {
    r.even.lane[i] = a.lane[2 * i];
    r.odd.lane[i] = a.lane[2 * i + 1];
    r.even.lane[half + i] = b.lane[2 * i];
    r.odd.lane[half + i] = b.lane[2 * i + 1];
  }
  return r;
}
// The sequence (first, second) whose even and odd lanes are those given: the inverse of deinterleave.
template <Floating T>
LUM_INLINE Pair<T> interleave(const Vec<T>& even, const Vec<T>& odd) {
  constexpr int half = lanes_of<T> / 2;
  Pair<T> r;
  for (int i = 0; i < half; ++i) {
    r.even.lane[2 * i] = even.lane[i];
    r.even.lane[2 * i + 1] = odd.lane[i];
    r.odd.lane[2 * i] = even.lane[half + i];
    r.odd.lane[2 * i + 1] = odd.lane[half + i];
  }
  return r;
}
// Lanes 2i and 2i+1 exchanged.
template <Floating T>
LUM_INLINE Vec<T> swap_pairs(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return a.lane[i ^ 1]; });
}
// Lane 2i, or 2i+1, in both of its pair.
template <Floating T>
LUM_INLINE Vec<T> duplicate_even(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return a.lane[i & ~1]; });
}
template <Floating T>
LUM_INLINE Vec<T> duplicate_odd(const Vec<T>& a) {
  return each_lane<T>([&](int i) { return a.lane[i | 1]; });
}

}  // namespace portable
}  // namespace lum
