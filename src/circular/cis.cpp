// cos x + i sin x: the sine and cosine of SinCos, tier by tier, as pairs. Unlike SinCos it reports nothing, and the hook is not
// called: deliberate. 32f A11 and A21 are the same kernel but for their place in the table.
#include "circular/sine_cosine.h"
#include "frame/kernel_frame.h"
#include "frame/kernels.h"

namespace lum::inline LUM_LAYER {
namespace {

using namespace circular;

template <class T> struct ComplexOf;
template <> struct ComplexOf<Lum32f> { using Type = Lum32fc; };
template <> struct ComplexOf<Lum64f> { using Type = Lum64fc; };

template <class C, class T> LUM_INLINE Lanes<C> Pairs(const SineAndCosineValues<T>& v) {
  return {join(ComplexVec<T>{v.cosine, v.sine}), v.refused};
}

template <class Tier> struct Plain : Kernel<typename Tier::Element, typename ComplexOf<typename Tier::Element>::Type> {
  using T = typename Tier::Element;
  using C = typename ComplexOf<T>::Type;
  static constexpr int vectors = sizeof(T) == 8 ? 1 : 2;  // more would not fit into the registers
  static LUM_INLINE Lanes<C> VectorPath(Vec<T> x) { return Pairs<C>(Tier::Ordinary(x)); }
  static void LaneRoutine(T x, C& result) { SineAndCosineRoutine(x, result.im, result.re); }
};
template <class Tier> struct WithLarge : Plain<Tier> {
  static constexpr bool refuses_by_class = true;
  static constexpr bool second_in_all_layers = true;
  using typename Plain<Tier>::T;
  using typename Plain<Tier>::C;
  static LUM_INLINE Lanes<C> SecondPath(Vec<T> x, const Lanes<C>& lanes) {
    const auto [cosine, sine] = split(lanes.value);
    const auto v = OfAnyFinite<Tier>(x, SineAndCosineValues<T>{sine, cosine, lanes.refused});
    return {join(ComplexVec<T>{SelectNonFinite(x, v.cosine), SelectNonFinite(x, v.sine)}), mask_of<T>(0)};
  }
};

struct A11_32fc : WithLarge<QuarterTurns_A21> {};
struct A21_32fc : WithLarge<QuarterTurns_A21> {};
struct A24_32fc : WithLarge<QuarterTurns_A24> {};
struct A26_64fc : Plain<SineAndCosine_A26> {};
struct A50_64fc : WithLarge<SineAndCosine_A50> {};
struct A53_64fc : WithLarge<SineAndCosine_A53> {};

}  // namespace

LumStatus CIS_32fc_A11(const Lum32f* src, Lum32fc* dst, int32_t len) { return OneInput<A11_32fc>(src, dst, len); }
LumStatus CIS_32fc_A21(const Lum32f* src, Lum32fc* dst, int32_t len) { return OneInput<A21_32fc>(src, dst, len); }
LumStatus CIS_32fc_A24(const Lum32f* src, Lum32fc* dst, int32_t len) { return OneInput<A24_32fc>(src, dst, len); }
LumStatus CIS_64fc_A26(const Lum64f* src, Lum64fc* dst, int32_t len) { return OneInput<A26_64fc>(src, dst, len); }
LumStatus CIS_64fc_A50(const Lum64f* src, Lum64fc* dst, int32_t len) { return OneInput<A50_64fc>(src, dst, len); }
LumStatus CIS_64fc_A53(const Lum64f* src, Lum64fc* dst, int32_t len) { return OneInput<A53_64fc>(src, dst, len); }

}  // namespace lum::inline LUM_LAYER
