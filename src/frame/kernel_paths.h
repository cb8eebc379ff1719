// What a kernel is, and its paths on one vector.
//
// A kernel is described by a struct K derived from Kernel<Input, Output>:
//   VectorPath(x...)
//     A pure function of packed inputs. Returns Packed<Output>, or Lanes<Output> with the mask of refused lanes; with two
//     outputs TwoValues<Output> or TwoLanes<Output>.
//   TailPath(x..., count)
//     Optional: the vector path where only the first count elements are in use, for kernels that spare something then.
//   LaneRoutine(x..., r...)
//     Finishes one refused element: scalars in, results by reference, which hold the vector path's values. Returns the
//     element's LumStatus; a silent kernel's returns void, and the kernel's status is then always 0.
//   SecondPath(x..., lanes)
//     Optional: a vector path for the lanes that the first one refuses. Given what VectorPath returned, it returns the same
//     with values in the lanes that it finishes and the mask of those that remain for the lane routine; as Finished<Output>,
//     also the lanes that report, by status. Values and statuses are those of the lane routine.
//   SecondPathOfTwo({x...}, {lanes...})
//     Optional, beside SecondPath: the same of two vectors, for a long chain of operations, of which the processor overlaps
//     two.
//   Outside(x...)
//     Optional: by a few operations on the arguments, lanes that the first path refuses, or of which the second one gives the
//     same values. Where estimates take long for some numbers, the loop over both paths has the fill in their place.
//   RefusesAll(x...)
//     Optional: whether the first path refuses all lanes, or some of which the second one gives the others' values, too: from
//     the arguments by a few operations, so that the loop over both paths runs the second one alone.
// Constants that a kernel may override: variant, vectors (in a block), fill (of inactive lanes: never to be refused), is_short
// (a vector path of a few operations, which is inlined in either layer), is_called (a vector path that is a function by itself,
// which takes as long for half a vector), aligns_stores (a function that takes no longer than
// the memory, whose long arrays begin with the elements up to the first aligned one), calls_tail (of a vector path with so many
// constants that a short call had better load none for the blocks), and those of the second path:
//   second_is_short: a few operations, so that it costs less to run it than to see whether a vector needs it, or to bring the
//   refused elements of several vectors together.
//   refuses_by_class: a few operations of the first path say which lanes it refuses, and serve as RefusesAll.
//   second_is_shared: it is called by itself where it is long, or registers hold all of its vectors, so that it stands inline.
//   hides_refused: the processor would stop at denormal numbers that the first path makes of refused arguments, so the loop
//     over both paths has the fill in their place.
//   second_in_all_layers: the lane routine knows only what the second path leaves. Otherwise the portable layer has the
//     routine alone where the processor has no fused multiply-add, for which it is faster.
//   second_orders_nans: of several NaNs it gives the right one also where the layer's operations may give any.
// A kernel with a parameter has it as a data member; all others are empty.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/element_hook.h"
#include "frame/environment.h"
#include "frame/packed.h"
#include "frame/reports.h"

namespace lum::inline LUM_LAYER {

template <class InputElement, class OutputElement = InputElement> struct Kernel {
  using Input = InputElement;
  using Output = OutputElement;
  static constexpr Variant variant = common_variant;
  static constexpr int vectors = 2;
  static constexpr bool is_short = false;
  static constexpr bool is_called = false;
  static constexpr bool aligns_stores = false;
  static constexpr bool calls_tail = false;
  static constexpr Real<Input> fill = Real<Input>(0.75);
  static constexpr bool second_is_short = false;
  static constexpr bool second_is_shared = false;
  static constexpr bool refuses_by_class = false;
  static constexpr bool hides_refused = false;
  static constexpr bool second_in_all_layers = false;
  static constexpr bool second_orders_nans = orders_nans;
  static constexpr bool hook_has_first_source_only = false;  // in the place of the second, too
};

template <class E, class Refused = Mask<Real<E>>> struct Lanes {
  Packed<E> value;
  Refused refused;
};
template <class E> struct TwoValues { Packed<E> value1, value2; };
template <class E> struct TwoLanes {
  Packed<E> value1, value2;
  Mask<Real<E>> refused;
};

// Two halves times the factor, known but for the relative distance, rounded to binary32; refused where that distance decides
// the rounding.
LUM_INLINE Lanes<Lum32f> NarrowedWithin(double distance, Vec<Lum64f> low, Vec<Lum64f> high, double factor = 1) {
  const auto below = all(factor * (1 - distance)), above = all(factor * (1 + distance));
  const auto value = narrow(low * below, high * below);
  return {value, ne(value, narrow(low * above, high * above))};
}

// What a second path gives where elements may report.
template <class E> struct Finished {
  Packed<E> value;
  Mask<Real<E>> refused;
  Reports<Real<E>> reports;
};
template <class E> struct TwoFinished {
  Packed<E> value1, value2;
  Mask<Real<E>> refused;
  Reports<Real<E>> reports;
};

// The arrays of one call: n inputs, m outputs.
template <class K, int n, int m> struct Arrays {
  std::array<const typename K::Input*, n> src;
  std::array<typename K::Output*, m> dst;
};

// What a call carries besides its arrays.
struct Call {
  Environment environment;
  LumStatus status = lumStsOk;
};

// A kernel's own word for the hook.
template <class K> inline uint32_t hook_cell = 0;

template <class K> inline constexpr int step_of = lanes_of<Real<typename K::Input>>;
// A layer whose registers hold one stream of a kernel takes its blocks vector by vector.
template <class K> inline constexpr int vectors_of = streams_fit_registers ? K::vectors : 1;
template <class K> inline constexpr int block_of = step_of<K>* vectors_of<K>;

namespace frame {

template <class K, int n> using Inputs = std::array<Packed<typename K::Input>, n>;
template <class K, int m> using Outputs = std::array<Packed<typename K::Output>, m>;

template <class K, int n> LUM_INLINE auto VectorPathOf(const K& kernel, const Inputs<K, n>& x) {
  if constexpr (n == 1) return kernel.VectorPath(x[0]);
  else return kernel.VectorPath(x[0], x[1]);
}
template <class K, int n> [[gnu::noinline]] auto CalledVectorPath(const K& kernel, const Inputs<K, n>& x) {
  return VectorPathOf<K, n>(kernel, x);
}
template <class K, int n>
concept RefusesLanes = requires(const K kernel, const Inputs<K, n> x) {
  VectorPathOf<K, n>(kernel, x).refused;
};

// In the portable layer, where every intermediate vector has its place on the stack, blocks, tail and refused lanes share one
// copy of the vector path: a call then needs the stack of one, and the library is half the size.
template <class K, int n> LUM_INLINE auto Compute(const K& kernel, const Inputs<K, n>& x) {
  if constexpr (RefusesLanes<K, n> && !vectors_fit_registers && !K::is_short) return CalledVectorPath<K, n>(kernel, x);
  else return VectorPathOf<K, n>(kernel, x);
}

// The vector path where only the first count elements of a vector are in use.
template <class K, int n> LUM_INLINE auto ComputeTail(const K& kernel, const Inputs<K, n>& x, int count) {
  if constexpr (n == 1 && requires { kernel.TailPath(x[0], count); }) return kernel.TailPath(x[0], count);
  else if constexpr (n == 2 && requires { kernel.TailPath(x[0], x[1], count); }) return kernel.TailPath(x[0], x[1], count);
  else return Compute<K, n>(kernel, x);
}

template <class K, int n, class Result> LUM_INLINE auto SecondPathOf(const K& kernel, const Inputs<K, n>& x, const Result& r) {
  if constexpr (n == 1) return kernel.SecondPath(x[0], r);
  else return kernel.SecondPath(x[0], x[1], r);
}
template <class K>
concept KnowsOutside = requires {
  &K::Outside;
};
template <class K, int n> LUM_INLINE auto OutsideOf(const K& kernel, const Inputs<K, n>& x) {
  if constexpr (n == 1) return kernel.Outside(x[0]);
  else return kernel.Outside(x[0], x[1]);
}
template <class K>
concept KnowsRefused = K::refuses_by_class || KnowsOutside<K> || requires {
  &K::RefusesAll;
};
template <class K, int n> LUM_INLINE bool RefusesAll(const K& kernel, const Inputs<K, n>& x) {
  if constexpr (K::refuses_by_class) return has_all_elements(Compute<K, n>(kernel, x).refused);
  else if constexpr (KnowsOutside<K>) return has_all_elements(OutsideOf<K, n>(kernel, x));
  else if constexpr (n == 1) return kernel.RefusesAll(x[0]);
  else return kernel.RefusesAll(x[0], x[1]);
}
// Lanes with different NaNs in several places, of which the result is that of the first: where operations do not order them,
// the lane routine does.
template <class T> LUM_INLINE Mask<T> DifferentNans(Vec<T> x, Vec<T> y) {
  return unord(x, x) & unord(y, y) & mask_cast<T>(ne(bits(x), bits(y)));
}
template <class T> LUM_INLINE Mask<T> DifferentNans(ComplexVec<T> z) { return DifferentNans(z.re, z.im); }
template <class K, int n> LUM_INLINE auto SeveralNans(const Inputs<K, n>& x) {
  if constexpr (is_complex<typename K::Input>) {
    const auto z = split(x[0]);
    if constexpr (n == 1) return DifferentNans(z);
    else {
      const auto w = split(x[1]);
      return DifferentNans(z) | DifferentNans(w) | (unord(z.re, z.im) & unord(w.re, w.im));
    }
  } else if constexpr (n == 1) {
    return mask_of<Real<typename K::Input>>(0);
  } else {
    return DifferentNans(x[0], x[1]);
  }
}
template <class K>
concept HasSecondPath = (has_second_paths || K::second_in_all_layers) && requires {
  &K::SecondPath;
};

template <class K, int m, class Result> LUM_INLINE Outputs<K, m> Values(const Result& r) {
  if constexpr (requires { r.value; }) return {r.value};
  else if constexpr (requires { r.value1; }) return {r.value1, r.value2};
  else return {r};
}

// What both paths make of a vector. Masks are bits here, each in one word, as what a function returns in memory has to be read
// back by loads of the size of its stores.
template <class K, int m, class Remaining> struct BothPaths {
  Outputs<K, m> values;
  Remaining remaining;  // for the lane routine
  ReportBits reports;
  bool any_refused;  // by the first path
};
template <Lane T> LUM_INLINE uint32_t InWord(Mask<T> m) { return to_bits(m); }
template <Floating T> LUM_INLINE ComponentMask<T> InWord(ComponentMask<T> m) { return m; }
template <class K, int m, class Result> LUM_INLINE auto AsBothPaths(const Result& r, bool any_refused) {
  ReportBits reports;
  if constexpr (requires { r.reports; }) reports = BitsOf(r.reports);
  return BothPaths<K, m, decltype(InWord(r.refused))>{Values<K, m>(r), InWord(r.refused), reports, any_refused};
}

template <class K, int n, int m, class Result>
LUM_INLINE auto FinishVector(const K& kernel, const Inputs<K, n>& x, const Result& r) {
  auto second = SecondPathOf<K, n>(kernel, x, r);
  if constexpr (!K::second_orders_nans && requires { r.refused& SeveralNans<K, n>(x); }) {
    second.refused = second.refused | (r.refused & SeveralNans<K, n>(x));
  }
  return AsBothPaths<K, m>(second, true);
}
template <class K, int n, int m, class Result>
[[gnu::noinline]] auto CalledFinishVector(const K& kernel, const Inputs<K, n>& x, const Result& r) {
  return FinishVector<K, n, m>(kernel, x, r);
}
// The second path of two vectors.
template <class K>
concept FinishesTwo = packs_lanes && requires {
  &K::SecondPathOfTwo;
};
template <class K, int n, int m, class Result>
[[gnu::noinline]] auto CalledFinishTwo(const K& kernel, const std::array<Inputs<K, n>, 2>& x, const std::array<Result, 2>& r) {
  const auto second = [&] {
    if constexpr (n == 1) return kernel.SecondPathOfTwo({x[0][0], x[1][0]}, r);
    else return kernel.SecondPathOfTwo({x[0][0], x[1][0]}, {x[0][1], x[1][1]}, r);
  }();
  return std::array{AsBothPaths<K, m>(second[0], true), AsBothPaths<K, m>(second[1], true)};
}
// The second path once: a long one as a function that all blocks and the tail share.
template <class K, int n, int m, class Result>
LUM_INLINE auto ComputeSecond(const K& kernel, const Inputs<K, n>& x, const Result& r) {
  if constexpr (vectors_fit_registers && (K::second_is_short || K::second_is_shared))
    return FinishVector<K, n, m>(kernel, x, r);
  else return CalledFinishVector<K, n, m>(kernel, x, r);
}

// The first path with the fill in the place of lanes that it would refuse.
template <class K, int n, class Refused>
LUM_INLINE auto ComputeOthers(const K& kernel, const Inputs<K, n>& x, const Refused& refused) {
  Inputs<K, n> hidden = x;
  for (auto& values : hidden) values = FilledWhere(refused, values, K::fill);
  return Compute<K, n>(kernel, hidden);
}
// The first path where both run.
template <class K, int n> LUM_INLINE auto ComputeFirst(const K& kernel, const Inputs<K, n>& x) {
  if constexpr (KnowsOutside<K> && !estimates_take_all) {
    const auto outside = OutsideOf<K, n>(kernel, x);
    auto r = ComputeOthers<K, n>(kernel, x, outside);
    r.refused = r.refused | outside;
    return r;
  } else {
    auto r = Compute<K, n>(kernel, x);
    if constexpr (K::hides_refused) {
      const auto refused = r.refused;
      r = ComputeOthers<K, n>(kernel, x, refused);
      r.refused = refused;
    }
    return r;
  }
}

// The second path of a vector whose elements the first one all refuses, without that one's values.
template <class K, int n, int m> LUM_INLINE auto ComputeSecondAlone(const K& kernel, const Inputs<K, n>& x) {
  decltype(Compute<K, n>(kernel, x)) no_values{};
  no_values.refused = ~no_values.refused;
  return ComputeSecond<K, n, m>(kernel, x, no_values);
}

template <class K, int n, int m> LUM_INLINE auto ComputeBoth(const K& kernel, const Inputs<K, n>& x) {
  if constexpr (HasSecondPath<K> && KnowsRefused<K> && !K::second_is_short) {
    if (RefusesAll<K, n>(kernel, x)) return ComputeSecondAlone<K, n, m>(kernel, x);
  }
  const auto first = ComputeFirst<K, n>(kernel, x);
  if constexpr (!HasSecondPath<K>) {
    return AsBothPaths<K, m>(first, any(first.refused));
  } else if constexpr (K::second_is_short) {
    auto both = ComputeSecond<K, n, m>(kernel, x, first);
    both.any_refused = any(first.refused);
    return both;
  } else {
    using Result = decltype(ComputeSecond<K, n, m>(kernel, x, first));
    // There is no need for the first path's values where it refuses all, but every call takes its part of the stack.
    if constexpr (!has_halves) {
      if (has_all_elements(first.refused)) return ComputeSecondAlone<K, n, m>(kernel, x);
    }
    if (any(first.refused)) return ComputeSecond<K, n, m>(kernel, x, first);
    return Result{Values<K, m>(first), {}, {}, false};
  }
}

// The inputs of a vector; as one expression, since a loop would keep them in memory.
template <class K, int n, int m> LUM_INLINE Inputs<K, n> LoadStep(const Arrays<K, n, m>& a, int64_t i) {
  if constexpr (n == 1) return {LoadElements(a.src[0] + i)};
  else return {LoadElements(a.src[0] + i), LoadElements(a.src[1] + i)};
}
template <class K, int n, int m> LUM_INLINE Inputs<K, n> LoadStep(const Arrays<K, n, m>& a, int64_t i, int count) {
  if constexpr (n == 1) return {LoadElements(count, a.src[0] + i, K::fill)};
  else return {LoadElements(count, a.src[0] + i, K::fill), LoadElements(count, a.src[1] + i, K::fill)};
}

// Tails of at most half a vector take one of its two registers, where that spares something.
template <class K>
concept TakesHalves = has_halves && !K::is_short && !K::is_called && !requires {
  &K::TailPath;
};
template <class K, int n, int m> LUM_INLINE Inputs<K, n> LoadHalfStep(const Arrays<K, n, m>& a, int64_t i, int count) {
  if constexpr (n == 1) return {LoadHalf(count, a.src[0] + i, K::fill)};
  else return {LoadHalf(count, a.src[0] + i, K::fill), LoadHalf(count, a.src[1] + i, K::fill)};
}

// Without an array of results, which g++ would have on the stack.
template <class Result> LUM_INLINE const auto& Value(const Result& r) {
  if constexpr (requires { r.value; }) return r.value;
  else return r;
}
template <class K, int n, int m, class Result> LUM_INLINE void StoreStep(const Arrays<K, n, m>& a, int64_t i, const Result& r) {
  if constexpr (m == 2) {
    StoreElements(a.dst[0] + i, r.value1);
    StoreElements(a.dst[1] + i, r.value2);
  } else {
    StoreElements(a.dst[0] + i, Value(r));
  }
}
template <class K, int n, int m, class Result>
LUM_INLINE void StoreStep(const Arrays<K, n, m>& a, int64_t i, int count, const Result& r) {
  if constexpr (m == 2) {
    StoreElements(count, a.dst[0] + i, r.value1);
    StoreElements(count, a.dst[1] + i, r.value2);
  } else {
    StoreElements(count, a.dst[0] + i, Value(r));
  }
}
template <class K, int n, int m, class Result>
LUM_INLINE void StoreHalfStep(const Arrays<K, n, m>& a, int64_t i, int count, const Result& r) {
  if constexpr (m == 2) {
    StoreHalf(count, a.dst[0] + i, r.value1);
    StoreHalf(count, a.dst[1] + i, r.value2);
  } else {
    StoreHalf(count, a.dst[0] + i, Value(r));
  }
}

}  // namespace frame

}  // namespace lum::inline LUM_LAYER
