// sin x and cos x into two arrays, from one reduction. 32f A11 and A21 are the same kernel but for their place in the table.
#include "circular/chunk_path.h"
#include "circular/sine_cosine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace circular;

template <class T> LUM_INLINE TwoLanes<T> Both(const SineAndCosineValues<T>& v) { return {v.sine, v.cosine, v.refused}; }

template <class Tier> struct Plain : Kernel<typename Tier::Element> {
  using T = typename Tier::Element;
  static constexpr int vectors = sizeof(T) == 8 ? 1 : 2;  // more would not fit into the registers
  static LUM_INLINE TwoLanes<T> VectorPath(Vec<T> x) { return Both(Tier::Ordinary(x)); }
  static LumStatus LaneRoutine(T x, T& sine, T& cosine) { return SineAndCosineRoutine(x, sine, cosine); }
};
template <class T> LUM_INLINE TwoFinished<T> WithNonFinite(Vec<T> x, Vec<T> sine, Vec<T> cosine) {
  return {SelectNonFinite(x, sine), SelectNonFinite(x, cosine), mask_of<T>(0), {.domain = fpclass<classes::infinity>(x)}};
}
template <class Tier> struct WithLarge : Plain<Tier> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_in_all_layers = true;
  using T = typename Tier::Element;
  static LUM_INLINE TwoFinished<T> SecondPath(Vec<T> x, const TwoLanes<T>& lanes) {
    const auto v = OfAnyFinite<Tier>(x, SineAndCosineValues<T>{lanes.value1, lanes.value2, lanes.refused});
    return WithNonFinite(x, v.sine, v.cosine);
  }
};
template <class Tier> struct WithLarge_64f : WithLarge<Tier> {
  using Vectors = TwoVectors<Lum64f>;
  static LUM_INLINE std::array<TwoFinished<Lum64f>, 2> SecondPathOfTwo(const Vectors& x,
                                                                       const std::array<TwoLanes<Lum64f>, 2>& lanes) {
    SineAndCosineValues<Lum64f> v{lanes[0].value1, lanes[0].value2, lanes[0].refused},
        w{lanes[1].value1, lanes[1].value2, lanes[1].refused};
    if (AnyFinite(v.refused, x[0]) || AnyFinite(w.refused, x[1])) {
      const auto [a, b] = ReduceLarge<Lum64f>(x);
      v = MergeLarge(x[0], a, v);
      w = MergeLarge(x[1], b, w);
    }
    return {WithNonFinite(x[0], v.sine, v.cosine), WithNonFinite(x[1], w.sine, w.cosine)};
  }
};

// Distinct kernels, each with a cell of its own for the hook.
struct A11_32f : WithLarge<QuarterTurns_A21> {};
struct A21_32f : WithLarge<QuarterTurns_A21> {};
struct A24_32f : WithLarge<QuarterTurns_A24> {};
struct A26_64f : Plain<SineAndCosine_A26> {
  static LUM_INLINE TwoFinished<T> SecondPath(Vec<T> x, const TwoLanes<T>& lanes) {
    const auto beyond = lanes.refused & ~fpclass<classes::nonfinite>(x);
    auto sine = lanes.value1, cosine = lanes.value2;
    if (any(beyond)) {
      const auto a = ReduceBeyondThreshold(x, beyond);
      sine = select(lanes.refused, SineOf(a), sine);
      cosine = select(lanes.refused, CosineOf(a), cosine);
    }
    return WithNonFinite(x, sine, cosine);
  }
};
struct A50_64f : WithLarge_64f<SineAndCosine_A50> {};
struct A53_64f : WithLarge_64f<SineAndCosine_A53> {};

}  // namespace

LumStatus SinCos_32f_A11(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len) {
  return TwoOutputs<A11_32f>(src, dst1, dst2, len);
}
LumStatus SinCos_32f_A21(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len) {
  return TwoOutputs<A21_32f>(src, dst1, dst2, len);
}
LumStatus SinCos_32f_A24(const Lum32f* src, Lum32f* dst1, Lum32f* dst2, int32_t len) {
  return TwoOutputs<A24_32f>(src, dst1, dst2, len);
}
LumStatus SinCos_64f_A26(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len) {
  return TwoOutputs<A26_64f>(src, dst1, dst2, len);
}
LumStatus SinCos_64f_A50(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len) {
  return TwoOutputs<A50_64f>(src, dst1, dst2, len);
}
LumStatus SinCos_64f_A53(const Lum64f* src, Lum64f* dst1, Lum64f* dst2, int32_t len) {
  return TwoOutputs<A53_64f>(src, dst1, dst2, len);
}

}  // namespace lum::inline LUM_LAYER
