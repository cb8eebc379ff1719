// The lanes that a vector path refuses, and elements that report: by the second path where a kernel has one, else and behind it
// by the lane routine and the hook, in array order. A part of frame/kernel_frame.h.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/element_hook.h"
#include "frame/environment.h"
#include "frame/kernel_paths.h"
#include "frame/packed.h"

namespace lum::inline LUM_LAYER {

// A block with refused lanes, or refused elements side by side: inputs and the vector paths' results in lane order.
template <class K, int n, int m, int vectors = vectors_of<K>> struct SpilledBlock {
  alignas(64) typename K::Input inputs[n][vectors * step_of<K>];
  alignas(64) typename K::Output results[m][vectors * step_of<K>];
  uint32_t refused[vectors] = {};  // the lanes of each vector
  ReportBits reports[vectors];

  bool IsRefused(int lane) const { return (refused[lane / step_of<K>] >> (lane % step_of<K>)&1) != 0; }
  LumStatus Reported(int lane) const { return reports[lane / step_of<K>].Of(lane % step_of<K>); }
};

namespace frame {

LUM_INLINE uint32_t RemainingBits(uint32_t lanes) { return lanes; }
template <Floating T> LUM_INLINE uint32_t RemainingBits(ComponentMask<T> m) { return element_bits(m); }
LUM_INLINE bool AnyRemaining(uint32_t lanes) { return lanes != 0; }
template <Floating T> LUM_INLINE bool AnyRemaining(ComponentMask<T> m) { return any(m); }

// What both paths made of vector v of a block.
template <class K, int n, int m, class Both, int vectors>
LUM_INLINE void SpillResults(const Both& r, int v, uint32_t in_use, SpilledBlock<K, n, m, vectors>& block) {
  for (int j = 0; j < m; ++j) StoreElements(&block.results[j][v * step_of<K>], r.values[j]);
  // A fill lane is refused only where a parameter makes it so; its result would be dropped by the masked store.
  block.refused[v] = RemainingBits(r.remaining) & in_use;
  block.reports[v] = r.reports.Among(in_use);
}
template <class K, int n, int m, class Both, int vectors>
LUM_INLINE void Spill(const Inputs<K, n>& x, const Both& r, int v, uint32_t in_use, SpilledBlock<K, n, m, vectors>& block) {
  for (int j = 0; j < n; ++j) StoreElements(&block.inputs[j][v * step_of<K>], x[j]);
  SpillResults(r, v, in_use, block);
}

// An element that reports passes through the caller's array and the hook.
template <class K, int n, int m, int vectors>
LUM_INLINE void ReportLane(LumStatus reported, const Arrays<K, n, m>& arrays, int64_t index, int lane,
                           SpilledBlock<K, n, m, vectors>& block, Call& call) {
  auto& r = block.results;
  call.status = reported;
  for (int j = 0; j < m; ++j) arrays.dst[j][index] = r[j][lane];
  const void* const last_source = K::hook_has_first_source_only ? arrays.src[0] : arrays.src[n - 1];
  ElementHook(reported, static_cast<int32_t>(index), arrays.src[0], last_source, arrays.dst[0], arrays.dst[m - 1],
              &hook_cell<K>);
  for (int j = 0; j < m; ++j) r[j][lane] = arrays.dst[j][index];
}

// The lane routine on one spilled lane, or the report of a lane that the second path has finished.
template <class K, int n, int m, int vectors>
LUM_INLINE void FinishLane(const K& kernel, const Arrays<K, n, m>& arrays, int64_t index, int lane,
                           SpilledBlock<K, n, m, vectors>& block, Call& call) {
  auto& x = block.inputs;
  auto& r = block.results;
  const auto routine = [&] {
    if constexpr (n == 2) return kernel.LaneRoutine(std::as_const(x[0][lane]), std::as_const(x[1][lane]), r[0][lane]);
    else if constexpr (m == 2) return kernel.LaneRoutine(std::as_const(x[0][lane]), r[0][lane], r[1][lane]);
    else return kernel.LaneRoutine(std::as_const(x[0][lane]), r[0][lane]);
  };
  if constexpr (std::is_void_v<decltype(routine())>) {
    if (block.IsRefused(lane)) routine();
  } else {
    const LumStatus reported = block.IsRefused(lane) ? routine() : block.Reported(lane);
    if (reported != lumStsOk) ReportLane(reported, arrays, index, lane, block, call);
  }
}

}  // namespace frame

// Finishes a spilled block, or a tail of count elements, from index first on.
template <class K, int n, int m>
__attribute__((noinline, cold)) void FinishSpilled(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int count,
                                                   SpilledBlock<K, n, m>& block, Call& call) {
  constexpr int step = step_of<K>;
  for (int v = 0; v * step < count; ++v) {
    uint32_t lanes = block.refused[v] | block.reports[v].Reporting();
    if constexpr (K::variant.x87 == X87Form::lazy) {
      if (lanes != 0 && !call.environment.x87_prepared) X87Prepare(call.environment);
    }
    for (; lanes != 0; lanes &= lanes - 1) {
      const int lane = v * step + std::countr_zero(lanes);
      frame::FinishLane(kernel, arrays, first + lane, lane, block, call);
    }
  }
  for (int v = 0; v * step < count; ++v) {
    const int active = std::min(step, count - v * step);
    for (int j = 0; j < m; ++j) {
      StoreElements(active, arrays.dst[j] + first + v * step, LoadElements(&block.results[j][v * step]));
    }
  }
}

// Finishes a block with refused lanes by the lane routine: count elements from index first on, fewer than a block in the tail.
// It computes the block anew, so that the hot loop has no need to keep its vectors across a call.
template <class K, int n, int m>
__attribute__((noinline, cold)) void FinishLanes(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int count,
                                                 Call& call) {
  SpilledBlock<K, n, m> block;
  constexpr int step = step_of<K>;
  for (int v = 0; v * step < count; ++v) {
    const int active = std::min(step, count - v * step);
    const auto x = frame::LoadStep<K, n, m>(arrays, first + v * step, active);
    frame::Spill<K, n, m>(x, frame::ComputeBoth<K, n, m>(kernel, x), v, (1u << active) - 1u, block);
  }
  FinishSpilled(kernel, arrays, first, count, block, call);
}

namespace frame {

// The call's status is that of the last lane that reports. It is read from the last vector's reports at the end: statuses that
// change from vector to vector are branches that the processor cannot foresee.
struct LastReports {
  ReportBits reports;

  LUM_INLINE void Add(ReportBits later) { reports.word = later.word != 0 ? later.word : reports.word; }
  LUM_INLINE void Take(Call& call) {
    if (reports.word != 0) call.status = reports.Of(std::bit_width(reports.Reporting()) - 1);
    reports = {};
  }
};

// A full block of which both paths have made r; true where the first one refused lanes of it.
template <class K, int n, int m, class Both, size_t... v>
LUM_INLINE bool FinishBlock(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, Call& call, LastReports& last,
                            const Both& r, std::index_sequence<v...>) {
  constexpr uint32_t all_lanes = (1u << step_of<K>)-1u;
  if (AnyRemaining((r[v].remaining | ...)) || (!element_hook_is_empty && (r[v].reports.word | ...) != 0)) [[unlikely]] {
    SpilledBlock<K, n, m> block;
    (Spill<K, n, m>(LoadStep<K, n, m>(arrays, first + static_cast<int64_t>(v) * step_of<K>), r[v], v, all_lanes, block), ...);
    last.Take(call);
    FinishSpilled(kernel, arrays, first, block_of<K>, block, call);
    return true;
  }
  (last.Add(r[v].reports), ...);
  for (int j = 0; j < m; ++j) {
    (StoreElements(arrays.dst[j] + first + static_cast<int64_t>(v) * step_of<K>, r[v].values[j]), ...);
  }
  return (r[v].any_refused || ...);
}
// A full block by both paths; true where the first one refused lanes of it.
template <class K, int n, int m, size_t... v>
LUM_INLINE bool BlockOfBothPaths(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, Call& call, LastReports& last,
                                 std::index_sequence<v...> vectors) {
  const auto step = [&](size_t i) __attribute__((always_inline)) {
    return LoadStep<K, n, m>(arrays, first + static_cast<int64_t>(i) * step_of<K>);
  };
  if constexpr (HasSecondPath<K> && KnowsRefused<K> && K::second_is_short && vectors_fit_registers) {
    if ((int{RefusesAll<K, n>(kernel, step(v))} & ...) != 0)
      return FinishBlock<K, n, m>(kernel, arrays, first, call, last,
                                  std::array{ComputeSecondAlone<K, n, m>(kernel, step(v))...}, vectors);
  }
  if constexpr (HasSecondPath<K> && K::second_is_short && vectors_fit_registers) {
    const std::array results{ComputeFirst<K, n>(kernel, step(v))...};
    if (!any((results[v].refused | ...))) {
      (StoreStep<K, n, m>(arrays, first + static_cast<int64_t>(v) * step_of<K>, results[v]), ...);
      return false;
    }
    return FinishBlock<K, n, m>(kernel, arrays, first, call, last,
                                std::array{ComputeSecond<K, n, m>(kernel, step(v), results[v])...}, vectors);
  } else {
    return FinishBlock<K, n, m>(kernel, arrays, first, call, last, std::array{ComputeBoth<K, n, m>(kernel, step(v))...},
                                vectors);
  }
}

// The refused elements of some vectors are packed side by side where the second path is long, which then runs over them alone.
template <class K>
concept PacksRefused = packs_lanes && !K::second_is_short && std::is_floating_point_v<typename K::Input> &&
                       std::is_same_v<typename K::Input, typename K::Output>;
// Vectors; fewer where two at a time need the stack.
template <class K, int n> inline constexpr int most_packed = FinishesTwo<K>&& n == 2 ? 12 : 16;

// With one more vector, of fill.
template <class K, int n, int m> using PackedElements = SpilledBlock<K, n, m, most_packed<K, n> + 1>;

// The lane routine and the reports of packed elements: those of the vectors from index first on whose lanes are the bits.
template <class K, int n, int m>
__attribute__((noinline, cold)) void FinishPacked(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first,
                                                  const uint32_t (&lanes)[most_packed<K, n>], int count,
                                                  PackedElements<K, n, m>& packed, Call& call) {
  if constexpr (K::variant.x87 == X87Form::lazy) {
    if (!call.environment.x87_prepared) X87Prepare(call.environment);
  }
  int element = 0;
  for (int v = 0; v < count; ++v) {
    for (uint32_t rest = lanes[v]; rest != 0; rest &= rest - 1, ++element) {
      FinishLane(kernel, arrays, first + v * step_of<K> + std::countr_zero(rest), element, packed, call);
    }
  }
}

// The second path over packed elements. True where an element has to pass through FinishPacked.
template <class K, int n, int m>
LUM_INLINE bool FinishPackedVectors(const K& kernel, int elements, PackedElements<K, n, m>& packed, LastReports& last) {
  using T = typename K::Input;
  constexpr int step = step_of<K>;
  bool is_cold = false;
  for (int j = 0; j < n; ++j) store(&packed.inputs[j][elements], all(T(K::fill)));
  const auto count_of = [&](int v) __attribute__((always_inline)) { return std::min(elements - v * step, step); };
  const auto inputs_of = [&](int v) __attribute__((always_inline)) {
    Inputs<K, n> x;
    for (int j = 0; j < n; ++j) x[j] = load(&packed.inputs[j][v * step]);
    return x;
  };
  const auto refused_alone = [&](int v) __attribute__((always_inline)) {
    decltype(Compute<K, n>(kernel, inputs_of(v))) r{};
    r.refused = first_lanes<T>(count_of(v));
    return r;
  };
  using Both = decltype(ComputeSecond<K, n, m>(kernel, inputs_of(0), refused_alone(0)));
  const auto take = [&](int v, const Both& r) __attribute__((always_inline)) {
    SpillResults(r, v, (1u << count_of(v)) - 1u, packed);
    last.Add(packed.reports[v]);
    is_cold = is_cold || packed.refused[v] != 0 || (!element_hook_is_empty && packed.reports[v].word != 0);
  };
  int v = 0;
  if constexpr (FinishesTwo<K>) {
    for (; (v + 1) * step < elements; v += 2) {
      const auto r = CalledFinishTwo<K, n, m>(kernel, {inputs_of(v), inputs_of(v + 1)},
                                              std::array{refused_alone(v), refused_alone(v + 1)});
      take(v, r[0]);
      take(v + 1, r[1]);
    }
    if (v * step < elements) take(v, ComputeSecond<K, n, m>(kernel, inputs_of(v), refused_alone(v)));
  } else {
    for (; v * step < elements; ++v) take(v, FinishVector<K, n, m>(kernel, inputs_of(v), refused_alone(v)));
  }
  return is_cold;
}

// The first path of some vectors side by side, from vector v of those at index first on: the refused elements are packed behind
// the others and their lanes noted. Returns the number of packed elements.
template <class K, int n, int m, size_t... s>
LUM_INLINE int PackRefused(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int v, int elements,
                           PackedElements<K, n, m>& packed, uint32_t* refused, std::index_sequence<s...>) {
  using T = typename K::Input;
  constexpr int step = step_of<K>;
  constexpr uint32_t all_lanes = (1u << step) - 1u;
  const auto index_of = [&](size_t i) __attribute__((always_inline)) { return first + (v + static_cast<int>(i)) * step; };
  const auto pack = [&](size_t i, uint32_t lanes) __attribute__((always_inline)) {
    refused[v + static_cast<int>(i)] = lanes;
    if (lanes == 0) return;
    const auto x = LoadStep<K, n, m>(arrays, index_of(i));
    for (int j = 0; j < n; ++j) {
      store(&packed.inputs[j][elements], lanes == all_lanes ? x[j] : compress(mask_of<T>(lanes), x[j]));
    }
    elements += std::popcount(lanes);
  };
  if constexpr (KnowsRefused<K>) {
    // There is no need for the first path's values.
    const bool may_refuse_all = v == 0 || refused[v - 1] == all_lanes;
    if (may_refuse_all && (int{RefusesAll<K, n>(kernel, LoadStep<K, n, m>(arrays, index_of(s)))} & ...) != 0) {
      (pack(s, all_lanes), ...);
      return elements;
    }
  }
  const std::array results{ComputeFirst<K, n>(kernel, LoadStep<K, n, m>(arrays, index_of(s)))...};
  (pack(s, to_bits(results[s].refused)), ...);
  // Of vectors that are refused as a whole the values are not even computed.
  if ((int{refused[v + static_cast<int>(s)] == all_lanes} & ...) == 0)
    (StoreStep<K, n, m>(arrays, index_of(s), results[s]), ...);
  return elements;
}

// Some vectors from index first on, the refused elements packed. Returns their number.
template <class K, int n, int m>
LUM_INLINE int VectorsOfBothPaths(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int count, Call& call,
                                  LastReports& last) {
  using T = typename K::Input;
  constexpr int step = step_of<K>;
  constexpr uint32_t all_lanes = (1u << step) - 1u;
  PackedElements<K, n, m> packed;
  uint32_t refused[most_packed<K, n>];
  int elements = 0;
  for (int v = 0; v < count; v += vectors_of<K>) {
    elements =
        PackRefused<K, n, m>(kernel, arrays, first, v, elements, packed, refused, std::make_index_sequence<vectors_of<K>>());
  }
  if (elements == 0) return 0;
  if (FinishPackedVectors<K, n, m>(kernel, elements, packed, last)) [[unlikely]] {
    last.Take(call);
    FinishPacked(kernel, arrays, first, refused, count, packed, call);
  }
  int element = 0;
  for (int v = 0; v < count; ++v) {
    const auto lanes = mask_of<T>(refused[v]);
    for (int j = 0; j < m; ++j) {
      auto* const dst = arrays.dst[j] + first + v * step;
      const auto results = load(&packed.results[j][element]);
      if (refused[v] == all_lanes) store(dst, results);
      else store(dst, select(lanes, expand(lanes, results), load(dst)));
    }
    element += std::popcount(refused[v]);
  }
  return elements;
}

// A block with refused lanes, and those behind it: special arguments come in clusters, so this loop goes on until some blocks
// have had none. Returns the index behind its last vector.
template <class K, int n, int m>
__attribute__((noinline)) int64_t BlocksOfBothPaths(const K& kernel, const Arrays<K, n, m>& arrays, int64_t first, int64_t len,
                                                    Call& call) {
  LastReports last;
  if constexpr (PacksRefused<K>) {
    // The longer the cluster is, the more vectors at a time.
    for (int most = vectors_of<K>; first + block_of<K> <= len; most = std::min(2 * most, most_packed<K, n>)) {
      const auto vectors = static_cast<int>(std::min<int64_t>(most, (len - first) / block_of<K> * vectors_of<K>));
      const bool refuses = VectorsOfBothPaths<K, n, m>(kernel, arrays, first, vectors, call, last) != 0;
      first += vectors * step_of<K>;
      if (!refuses) break;
    }
  } else {
    constexpr int most_ordinary = 2;
    int ordinary = 0;
    do {
      const bool refuses =
          BlockOfBothPaths<K, n, m>(kernel, arrays, first, call, last, std::make_index_sequence<vectors_of<K>>());
      ordinary = refuses ? 0 : ordinary + 1;
      first += block_of<K>;
    } while (ordinary < most_ordinary && first + block_of<K> <= len);
  }
  last.Take(call);
  return first;
}

// A vector of fewer elements by both paths.
template <class K, int n, int m>
__attribute__((noinline)) void TailOfBothPaths(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int count,
                                               Call& call) {
  const auto x = LoadStep<K, n, m>(arrays, i, count);
  const auto r = ComputeBoth<K, n, m>(kernel, x);
  const uint32_t in_use = (1u << count) - 1u;
  const auto reports = r.reports.Among(in_use);
  if (AnyRemaining(r.remaining) || (!element_hook_is_empty && reports.word != 0)) {
    SpilledBlock<K, n, m> block;
    Spill<K, n, m>(x, r, 0, in_use, block);
    FinishSpilled(kernel, arrays, i, count, block, call);
    return;
  }
  LastReports{reports}.Take(call);
  for (int j = 0; j < m; ++j) StoreElements(count, arrays.dst[j] + i, r.values[j]);
}

}  // namespace frame

}  // namespace lum::inline LUM_LAYER
