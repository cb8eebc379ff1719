// Vector operations: the vocabulary in which every kernel is written. One of three layers provides it, the same operations with
// the same result bits in every lane: AVX-512 intrinsics, AVX2 intrinsics or portable C++. Kernels include this file and never
// ask which it is.
//
//   types        Vec<T>, T one of float, double, int32_t, uint32_t, int64_t, uint64_t: 512 bits; Mask<T>: one bit a lane
//   make         all(x)  load(p)  load(mask, p, fill)  store(p, v)  store(mask, p, v)
//                first_lanes<T>(count)  store_first(count, p, v)  mask_of<T>(bits)
//   arithmetic   + - *  add<R> sub<R> mul<R> div<R>(a, b)  sqrt<R>(a)  fma fms fnma fnms<R>(a, b, c)
//                fmaddsub fmsubadd(a, b, c)  min(a, b)  max(a, b)  abs(a)  negate(a)  rcp14(a)  rsqrt14(a)
//   significand  getexp(a)  getmant<imm>(a)  parts<imm>(a)  scalef<R>(a, b)  rndscale<imm>(a),
//                by the names of immediates.h  exponent_field(a)  power_of_two<T>(field)
//   rounded      rounded_rcp14<grid, interval>(m)  shifted_rcp14<grid, interval>(m)  rcp14_halves_up<bits>(a)
//   conditional  fma_floor(a, b, c)  rcp14_normal(a)  rsqrt14_normal(a)  getexp_normal(a)  getmant_normal<imm>(a)
//                rcp14_halves_up_normal<bits>(a)  scalef_normal(a, b)  mul_toward_zero(a, b)  mul_toward_zero(a, a_tail, b)
//                split_floor<grid>(a, c)
//   masks        eq ne lt le nlt nle unord compare<predicate>(a, b)  fpclass<classes>(a)  test_any test_none(a, b)
//                & | ^ ~  any none(m)  to_bits(m)  spread(m)  sign_mask(v)  mask_cast<T>(m)  join(low, high)
//                low_half high_half(m)
//   selection    select(m, a, b)  zero_unless(m, a)  add(m, a, b)  sub(m, a, b, other)  sub_or_zero(m, a, b)
//                ternary<table>(a, b, c), the table an expression of A, B and C
//   bits         & | ^  and_not(a, b)  bits(v)  as_float(v)  as_signed(v)  as_unsigned(v)  as_lanes32(v)
//                sign_of(v)  or_sign xor_sign(x, v)  sealed(v)
//   integers     + - *  mul_low_halves(a, b)  min(a, b)  max(a, b)
//                shift_left shift_right shift_right_arithmetic, by a constant or by lane
//   conversions  widen_low widen_high(v)  narrow(low, high)  to_float(v)  to_double(v)
//   lookup       permute(table, index)  permute2(low, high, index)
//                gather(base, index)  gather(mask, base, index, old)  gather_rows(base, index)
//                gather_pairs(base, index)
//   moves        deinterleave(a, b)  interleave(even, odd)  swap_pairs(v)  duplicate_even(v)  duplicate_odd(v)
//                compress(m, v)  expand(m, v)
//   formulas     horner(x, c0, ...)  horner estrin(x, p)  horner_of_pairs(x, square, p)  two_sum fast_two_sum two_product(a, b)
//
// A conditional operation is the one that its name begins with, for operands that fulfil its condition; of others it gives any
// value. Layers without an instruction for the whole operation have a short form for it, which a path takes where the lanes
// that do not fulfil the condition are refused or replaced.
//
// R is the rounding: rn (to nearest even, the default), rd, ru, rz. No operation raises a floating-point flag that a caller
// sees.
#pragma once

#include "frame/vec_types.h"

#ifdef LUM_AVX512
#include "frame/vec_avx512.h"
#elif defined(LUM_AVX2)
#include "frame/vec_avx2.h"
#else
#include "frame/vec_portable.h"
#endif
#include "frame/vec_shared.h"
