// The frame that every array kernel runs in: argument checks, floating-point environment, full blocks, the masked tail, and the
// lanes that a vector path refuses.
//
// A kernel is described by a struct K derived from Kernel<Input, Output>:
//   VectorPath(x...)
//     A pure function of packed inputs. Returns Packed<Output>, or Lanes<Output> with the mask of refused lanes; with two
//     outputs TwoValues<Output> or TwoLanes<Output>.
//   LaneRoutine(x..., r...)
//     Finishes one refused element: scalars in, results by reference, which hold the vector path's values. Returns the
//     element's LumStatus; a silent kernel's returns void, and the kernel's status is then always 0.
//   LargePath(x, lanes)
//     Optional, one input: a second, slower vector path over a vector with refused lanes. Given what VectorPath returned, it
//     returns the same with values in the lanes that it finishes and the mask of those that remain for the lane routine.
// Constants that a kernel may override: variant, vectors (in a block), fill (of inactive lanes: never to be refused), is_short
// (a vector path of a few operations, which is inlined in either layer).
// A kernel with a parameter has it as a data member; all others are empty.
#pragma once

#include <array>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/element_hook.h"
#include "frame/environment.h"
#include "frame/packed.h"

namespace lum::inline LUM_LAYER {

template <class InputElement, class OutputElement = InputElement> struct Kernel {
  using Input = InputElement;
  using Output = OutputElement;
  static constexpr Variant variant = common_variant;
  static constexpr int vectors = 2;
  static constexpr bool is_short = false;
  static constexpr Real<Input> fill = Real<Input>(0.75);
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

template <class K, int n>
concept HasLargePath = requires(const K kernel, const Inputs<K, n> x) {
  kernel.LargePath(x[0], kernel.VectorPath(x[0]));
};
template <class K, int n, class Result>
[[gnu::noinline]] Result CalledLargePath(const K& kernel, const Inputs<K, n>& x, const Result& r) {
  return kernel.LargePath(x[0], r);
}
template <class K, int n, class Result> LUM_INLINE Result LargePathOf(const K& kernel, const Inputs<K, n>& x, const Result& r) {
  if constexpr (vectors_fit_registers) return kernel.LargePath(x[0], r);
  else return CalledLargePath<K, n>(kernel, x, r);
}

// The same with the second path, where a kernel has one. It has no need for the first path's values where that refuses all.
template <class K, int n> LUM_INLINE auto ComputeRefused(const K& kernel, const Inputs<K, n>& x) {
  auto r = Compute<K, n>(kernel, x);
  if constexpr (HasLargePath<K, n>) {
    if (none(~r.refused)) {
      decltype(r) no_values{};
      no_values.refused = r.refused;
      r = LargePathOf<K, n>(kernel, x, no_values);
    } else if (any(r.refused)) {
      r = LargePathOf<K, n>(kernel, x, r);
    }
  }
  return r;
}

template <class K, int m, class Result> LUM_INLINE Outputs<K, m> Values(const Result& r) {
  if constexpr (requires { r.value; }) return {r.value};
  else if constexpr (requires { r.value1; }) return {r.value1, r.value2};
  else return {r};
}

template <class K, int n, int m> LUM_INLINE Inputs<K, n> LoadStep(const Arrays<K, n, m>& a, int64_t i) {
  Inputs<K, n> x;
  for (int j = 0; j < n; ++j) x[j] = LoadElements(a.src[j] + i);
  return x;
}
template <class K, int n, int m> LUM_INLINE Inputs<K, n> LoadStep(const Arrays<K, n, m>& a, int64_t i, int count) {
  Inputs<K, n> x;
  for (int j = 0; j < n; ++j) x[j] = LoadElements(count, a.src[j] + i, K::fill);
  return x;
}

template <class K, int n, int m, class Result> LUM_INLINE void StoreStep(const Arrays<K, n, m>& a, int64_t i, const Result& r) {
  if constexpr (m == 2) {
    StoreElements(a.dst[0] + i, r.value1);
    StoreElements(a.dst[1] + i, r.value2);
  } else {
    StoreElements(a.dst[0] + i, Values<K, m>(r)[0]);
  }
}

}  // namespace frame

// A block with refused lanes: its inputs and the vector path's results in lane order.
template <class K, int n, int m> struct SpilledBlock {
  alignas(64) typename K::Input inputs[n][block_of<K>];
  alignas(64) typename K::Output results[m][block_of<K>];
  uint32_t refused[vectors_of<K>] = {};  // the lanes of each vector
  bool any_refused = false;

  bool IsRefused(int lane) const { return (refused[lane / step_of<K>] >> (lane % step_of<K>)&1) != 0; }
};

namespace frame {

// Computes count elements from index first on.
template <class K, int n, int m>
LUM_INLINE void Spill(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int count, SpilledBlock<K, n, m>& block) {
  constexpr int step = step_of<K>;
  for (int v = 0; v * step < count; ++v) {
    const int active = std::min(step, count - v * step);
    const auto x = LoadStep<K, n, m>(arrays, first + v * step, active);
    const auto r = ComputeRefused<K, n>(kernel, x);
    const auto values = Values<K, m>(r);
    for (int j = 0; j < n; ++j) StoreElements(&block.inputs[j][v * step], x[j]);
    for (int j = 0; j < m; ++j) StoreElements(&block.results[j][v * step], values[j]);
    // A fill lane is refused only where a parameter makes it so; its result would be dropped by the masked store.
    block.refused[v] = element_bits(r.refused) & ((1u << active) - 1u);
    block.any_refused |= block.refused[v] != 0;
  }
}

// The lane routine on one spilled lane; a reported element passes through the caller's array and the hook.
template <class K, int n, int m>
LUM_INLINE void FinishLane(const K& kernel, const Arrays<K, n, m>& arrays, int64_t index, int lane,
                           SpilledBlock<K, n, m>& block, Call& call) {
  auto& x = block.inputs;
  auto& r = block.results;
  const auto routine = [&] {
    if constexpr (n == 2) return kernel.LaneRoutine(std::as_const(x[0][lane]), std::as_const(x[1][lane]), r[0][lane]);
    else if constexpr (m == 2) return kernel.LaneRoutine(std::as_const(x[0][lane]), r[0][lane], r[1][lane]);
    else return kernel.LaneRoutine(std::as_const(x[0][lane]), r[0][lane]);
  };
  if constexpr (std::is_void_v<decltype(routine())>) {
    routine();
  } else if (const LumStatus reported = routine(); reported != lumStsOk) {
    call.status = reported;
    for (int j = 0; j < m; ++j) arrays.dst[j][index] = r[j][lane];
    ElementHook(reported, static_cast<int32_t>(index), arrays.src[0], arrays.src[n - 1], arrays.dst[0], arrays.dst[m - 1],
                &hook_cell<K>);
    for (int j = 0; j < m; ++j) r[j][lane] = arrays.dst[j][index];
  }
}

}  // namespace frame

// Finishes a block with refused lanes: count elements from index first on, fewer than a block in the tail. It computes the
// block anew, so that the hot loop has no need to keep its vectors across a call.
template <class K, int n, int m>
__attribute__((noinline, cold)) void FinishLanes(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int count,
                                                 Call& call) {
  SpilledBlock<K, n, m> block;
  frame::Spill(kernel, arrays, first, count, block);
  if (block.any_refused) {
    if constexpr (K::variant.x87 == X87Form::lazy) {
      if (!call.environment.x87_prepared) X87Prepare(call.environment);
    }
    for (int lane = 0; lane < count; ++lane) {
      if (block.IsRefused(lane)) frame::FinishLane(kernel, arrays, first + lane, lane, block, call);
    }
  }
  constexpr int step = step_of<K>;
  for (int v = 0; v * step < count; ++v) {
    const int active = std::min(step, count - v * step);
    for (int j = 0; j < m; ++j) {
      StoreElements(active, arrays.dst[j] + first + v * step, LoadElements(&block.results[j][v * step]));
    }
  }
}

namespace frame {

// A full block with refused lanes whose kernel has a second vector path, which most often finishes all of them.
template <class K, int n, int m>
LUM_INLINE void LargeBlock(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, Call& call) {
  Outputs<K, m> values[vectors_of<K>];
  bool all_finished = true;
  for (int v = 0; v < vectors_of<K>; ++v) {
    const auto r = ComputeRefused<K, n>(kernel, LoadStep<K, n, m>(arrays, first + v * step_of<K>));
    values[v] = Values<K, m>(r);
    all_finished = all_finished && !any(r.refused);
  }
  if (!all_finished) {
    FinishLanes(kernel, arrays, first, block_of<K>, call);
    return;
  }
  for (int v = 0; v < vectors_of<K>; ++v) {
    for (int j = 0; j < m; ++j) StoreElements(arrays.dst[j] + first + v * step_of<K>, values[v][j]);
  }
}

// Does the first path refuse all lanes of a block? Nothing of it but the mask is computed.
template <class K, int n, int m> LUM_INLINE bool RefusesAll(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first) {
  bool all_refused = true;
  for (int v = 0; v < vectors_of<K>; ++v) {
    const auto r = Compute<K, n>(kernel, LoadStep<K, n, m>(arrays, first + v * step_of<K>));
    all_refused = all_refused && none(~r.refused);
  }
  return all_refused;
}

// Such a block, and those behind it all of whose lanes are refused too: large arguments come in whole arrays. Returns the index
// behind the last of them.
template <class K, int n, int m>
__attribute__((noinline)) int64_t LargeBlocks(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int64_t len,
                                              Call& call) {
  do {
    LargeBlock<K, n, m>(kernel, arrays, first, call);
    first += block_of<K>;
  } while (first + block_of<K> <= len && RefusesAll<K, n, m>(kernel, arrays, first));
  return first;
}

// The block at index i, in which v runs over its vectors, whose streams the processor overlaps. Returns the index of the next.
template <class K, int n, int m, size_t... v>
LUM_INLINE int64_t Block(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int64_t len, Call& call,
                         std::index_sequence<v...>) {
  const std::array results{Compute<K, n>(kernel, LoadStep<K, n, m>(arrays, i + static_cast<int64_t>(v) * step_of<K>))...};
  if constexpr (requires { results[0].refused; }) {
    if (any((results[v].refused | ...))) [[unlikely]] {
      if constexpr (HasLargePath<K, n>) return LargeBlocks<K, n, m>(kernel, arrays, i, len, call);
      else FinishLanes(kernel, arrays, i, block_of<K>, call);
      return i + block_of<K>;
    }
  }
  (StoreStep<K, n, m>(arrays, i + static_cast<int64_t>(v) * step_of<K>, results[v]), ...);
  return i + block_of<K>;
}

// A vector of fewer elements, the rest of its lanes holding the fill.
template <class K, int n, int m>
LUM_INLINE void TailStep(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int count, Call& call) {
  const auto result = Compute<K, n>(kernel, LoadStep<K, n, m>(arrays, i, count));
  if constexpr (requires { result.refused; }) {
    if (any(result.refused)) [[unlikely]] {
      FinishLanes(kernel, arrays, i, count, call);
      return;
    }
  }
  const auto values = Values<K, m>(result);
  for (int j = 0; j < m; ++j) StoreElements(count, arrays.dst[j] + i, values[j]);
}

// The environment, the blocks and the tail of a call whose arguments are good.
template <class K, int n, int m> LUM_INLINE LumStatus RunChecked(const K& kernel, const Arrays<K, n, m>& arrays, int64_t len) {
  Call call{Enter<K::variant>()};
  int64_t i = 0;
  while (i + block_of<K> <= len) i = Block<K, n, m>(kernel, arrays, i, len, call, std::make_index_sequence<vectors_of<K>>());
  for (; i < len; i += step_of<K>) {
    TailStep<K, n, m>(kernel, arrays, i, static_cast<int>(std::min<int64_t>(step_of<K>, len - i)), call);
  }
  Leave(call.environment);
  return call.status;
}

}  // namespace frame

// Length first, then the arrays in argument order.
template <class... Pointers> LUM_INLINE LumStatus CheckArguments(int32_t len, Pointers... arrays) {
  if (len <= 0) return lumStsSizeErr;
  if (((arrays == nullptr) || ...)) return lumStsNullPtrErr;
  return lumStsOk;
}

// The shapes. A complex or real output type of its own is a matter of K, so a changed type is the shape of one input.
template <class K>
LUM_INLINE LumStatus OneInput(const typename K::Input* src, typename K::Output* dst, int32_t len, const K& kernel = {}) {
  if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
  return frame::RunChecked<K, 1, 1>(kernel, {{src}, {dst}}, len);
}
template <class K>
LUM_INLINE LumStatus TwoInputs(const typename K::Input* src1, const typename K::Input* src2, typename K::Output* dst,
                               int32_t len, const K& kernel = {}) {
  if (const auto bad = CheckArguments(len, src1, src2, dst); bad != lumStsOk) return bad;
  return frame::RunChecked<K, 2, 1>(kernel, {{src1, src2}, {dst}}, len);
}
template <class K>
LUM_INLINE LumStatus TwoOutputs(const typename K::Input* src, typename K::Output* dst1, typename K::Output* dst2, int32_t len,
                                const K& kernel = {}) {
  if (const auto bad = CheckArguments(len, src, dst1, dst2); bad != lumStsOk) return bad;
  return frame::RunChecked<K, 1, 2>(kernel, {{src}, {dst1, dst2}}, len);
}

}  // namespace lum::inline LUM_LAYER
