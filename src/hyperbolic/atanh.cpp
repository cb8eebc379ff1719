// atanh x = (ln(1 + |x|) - ln(1 - |x|)) / 2 with the sign of x: two logarithms by hyperbolic/reciprocal_logarithm.h side by
// side. Next to zero both reciprocals are 1 and the residues x and -x, so that the relative accuracy holds down to the
// denormals. The high tiers add up the rounding errors of the leading sums. Arguments outside (-1, 1) and NaN go to the lane
// routine.
#include <limits>

#include "frame/kernels.h"
#include "hyperbolic/reciprocal_logarithm.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace hyperbolic;

// One of the two logarithms: ln(1 + r) - ln w.
template <class T> struct Side { Vec<T> w, r; };
template <class T> struct Sides {
  Vec<T> a;
  Side<T> p, q;     // of 1 + |x| and 1 - |x|
  Vec<T> exponent;  // that of wq less that of wp
  Vec<UnsignedOf<T>> p_row, q_row;
};
template <class T> LUM_INLINE Sides<T> SidesOf(Vec<T> x) {
  const auto one = all(T(1));
  const auto a = abs(x);
  const auto p = one + a, q = one - a;
  const auto p_tail = (one - p) + a, q_tail = (one - q) - a;
  const auto wp = ShortReciprocalOf(p), wq = ShortReciprocalOf(q);
  const auto exponent = getexp_normal(wq) - getexp_normal(wp);
  return {a, {wp, Residue(wp, p, p_tail)}, {wq, Residue(wq, q, q_tail)}, exponent, RowOf(wp), RowOf(wq)};
}

// Half the sum with the sign of x.
template <class T> LUM_INLINE Lanes<T> Finish(Vec<T> x, const Sides<T>& s, Vec<T> sum) {
  const auto half = as_float(ternary<B | (A ^ C)>(bits(s.a), bits(all(T(0.5))), bits(x)));
  return {half * sum, nlt(s.a, all(T(1)))};
}

// The difference of the logarithms of the reciprocals; its hi part is exact.
template <class T> LUM_INLINE Vec<T> DifferenceSingle(const Sides<T>& s) {
  return fma(s.exponent, all(numbers::ln2<T>), LookupSingle<T>(s.q_row) - LookupSingle<T>(s.p_row));
}
template <class T> LUM_INLINE Vec<T> DifferenceHi(const Sides<T>& s) {
  return fma(s.exponent, all(numbers::ln2_head<T>), LookupHi<T>(s.q_row) - LookupHi<T>(s.p_row));
}
template <class T> LUM_INLINE Vec<T> DifferenceLo(const Sides<T>& s) {
  return fma(s.exponent, all(numbers::ln2_rest<T>), LookupLo<T>(s.q_row) - LookupLo<T>(s.p_row));
}

template <class T> struct Routine : Kernel<T> {
  static LumStatus LaneRoutine(T x, T& result) {
    constexpr T infinity = std::numeric_limits<T>::infinity();
    if (x != x) {
      result = x * x;
      return lumStsOk;
    }
    if (x == 1 || x == -1) {
      result = x < 0 ? -infinity : infinity;
      return lumStsSingularity;
    }
    result = outside_domain_of<T>;
    return lumStsDomain;
  }
  static constexpr bool second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>& lanes) {
    const auto a = abs(x);
    const auto pole = eq(a, all(T(1))), outside = lt(all(T(1)), a);
    auto value = select(pole, or_sign(x, all(std::numeric_limits<T>::infinity())), x + x);
    value = select(outside, all(outside_domain_of<T>), value);
    return {select(lanes.refused, value, lanes.value), mask_of<T>(0), {.domain = outside, .singularity = pole}};
  }
};

// polynomial(r) is ln(1 + r) / r.
template <class T, class Polynomial> LUM_INLINE Lanes<T> InOnePart(Vec<T> x, Polynomial polynomial) {
  const auto s = SidesOf(x);
  const auto sum = fma(s.p.r, polynomial(s.p.r), DifferenceSingle(s));
  return Finish(x, s, fnma(s.q.r, polynomial(s.q.r), sum));
}
template <class T, class Polynomial> LUM_INLINE Lanes<T> InTwoParts(Vec<T> x, Polynomial polynomial) {
  const auto s = SidesOf(x);
  const auto low = fma(s.p.r, polynomial(s.p.r), DifferenceLo(s));
  return Finish(x, s, DifferenceHi(s) + fnma(s.q.r, polynomial(s.q.r), low));
}

struct A11_32f : Routine<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return InOnePart(
        x, [](Vec<Lum32f> r) __attribute__((always_inline)) { return horner(r, hyperbolic::atanh_A11); });
  }
};

struct A21_32f : Routine<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) {
    return InTwoParts(
        x, [](Vec<Lum32f> r) __attribute__((always_inline)) { return fma(LogRatio(r), r, all(1.0f)); });
  }
};

struct A26_64f : Routine<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    return InOnePart(
        x, [](Vec<Lum64f> r) __attribute__((always_inline)) { return fma(ShortLogRatio(r), r, all(1.0)); });
  }
};

struct A50_64f : Routine<Lum64f> {
  static LUM_INLINE Lanes<Lum64f> VectorPath(Vec<Lum64f> x) {
    return InTwoParts(
        x, [](Vec<Lum64f> r) __attribute__((always_inline)) { return horner(r, hyperbolic::atanh_A50); });
  }
};

template <class T> struct High : Routine<T> {
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) {
    const auto s = SidesOf(x);
    const auto r = two_sum(s.p.r, negate(s.q.r));
    const auto head = two_sum(DifferenceHi(s), r.head);
    const auto p_rest = fma(s.p.r * s.p.r, LogRatio(s.p.r), DifferenceLo(s));
    const auto rest = fnma(s.q.r * s.q.r, LogRatio(s.q.r), p_rest);
    return Finish(x, s, head.head + (head.tail + (r.tail + rest)));
  }
};

}  // namespace

LumStatus Atanh_32f_A11(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A11_32f>(src, dst, len); }
LumStatus Atanh_32f_A21(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<A21_32f>(src, dst, len); }
LumStatus Atanh_32f_A24(const Lum32f* src, Lum32f* dst, int32_t len) { return OneInput<High<Lum32f>>(src, dst, len); }
LumStatus Atanh_64f_A26(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A26_64f>(src, dst, len); }
LumStatus Atanh_64f_A50(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<A50_64f>(src, dst, len); }
LumStatus Atanh_64f_A53(const Lum64f* src, Lum64f* dst, int32_t len) { return OneInput<High<Lum64f>>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
