// e^x. With x = n ln 2 + r, n a multiple of 1/N:  e^x = 2^floor(n) 2^(j/N) e^r,  0 <= r < ln(2)/N, N = 16 or 8.
// 2^(j/N) comes from a table, e^r from a polynomial, and scalef applies 2^floor(n), so that there is no integer work on
// exponents. The tiers differ in the parts of ln 2, the degree of the polynomial, and whether the table's tail takes part.
// Arguments beyond the threshold have a second path, which knows overflow, denormal results and underflow.
#include <cstdint>

#include "explog/exp_ends.h"
#include "explog/exp_reduction.h"
#include "explog/exp_routine.h"
#include "explog/polynomials.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"
#include "frame/numbers.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace explog;

// The scale factor of a vanishing result would be denormal.
template <class T> struct ExpKernel : Kernel<T> {
  static constexpr bool second_is_short = true;
  static constexpr bool refuses_by_class = true;
  static constexpr bool hides_refused = true;
};

// The tiers whose lane routine computes in binary32.
struct Float : ExpKernel<Lum32f> {
  static LumStatus LaneRoutine(Lum32f x, Lum32f& result) { return ExpFloatRoutine(x, result); }
  static LUM_INLINE Finished<Lum32f> SecondPath(Vec<Lum32f> x, const Lanes<Lum32f>& lanes) {
    return ExpSecondPath(
        x, lanes, [](Vec<Lum32f> between) __attribute__((always_inline)) { return ExpFloatAtEnds(between); });
  }
};
// The tiers whose lane routine computes in binary64.
template <class T> struct ByDouble : ExpKernel<T> {
  static LumStatus LaneRoutine(T x, T& result) { return ExpDoubleRoutine(x, result); }
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    return ExpSecondPath(
        x, lanes, [](Vec<T> between) __attribute__((always_inline)) { return ExpAtEnds(between); });
  }
};

struct A11_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = ReduceExp<1>(x);
    const auto p = horner(a.r, explog::exp_A11);
    return {p * scalef_normal(ExpHead(a), a.n), a.refused};
  }
};

struct A21_32f : Float {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = ReduceExp<2>(x);
    const auto u = fma(a.r * a.r, horner(a.r, explog::exp_A21), a.r);
    const auto s = scalef_normal(ExpHead(a), a.n);
    return {fma(u, s, s), a.refused};
  }
};

struct A24_32f : ByDouble<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    const auto a = ReduceExp<2>(x);
    const auto u = fma(horner(a.r, explog::exp_A21), a.r * a.r, ExpTail(a) + a.r);
    const auto s = scalef_normal(ExpHead(a), a.n);
    return {fma(u, s, s), a.refused};
  }
};

struct Double : ByDouble<Lum64f> {
  static constexpr int vectors = 4;
};

struct A26_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceExp<1>(x);
    const auto p = horner(a.r, explog::exp_A26);
    const auto head = ExpHead(a);
    return {scalef_normal(fma(p, head * a.r, head), a.n), a.refused};
  }
};

struct A50_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceExp<2>(x);
    const auto head = ExpHead(a);
    return {scalef_normal(fma(horner(a.r, explog::exp_A50), head * a.r, head), a.n), a.refused};
  }
};

struct A53_64f : Double {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    const auto a = ReduceExp<2>(x);
    const auto head = ExpHead(a);
    const auto u = fma(horner(a.r, explog::exp_A50), a.r, ExpTail(a));
    return {scalef_normal(fma(u, head, head), a.n), a.refused};
  }
};

}  // namespace

LumStatus Exp_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Exp_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Exp_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A24_32f>(src, dst, len); }
LumStatus Exp_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Exp_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Exp_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A53_64f>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
