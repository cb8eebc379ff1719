// The frame that every array kernel runs in: argument checks, floating-point environment, full blocks and the masked tail.
// kernel_paths.h says what a kernel is, refused_lanes.h has what becomes of the lanes that its vector path refuses.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "frame/refused_lanes.h"

namespace lum::inline LUM_LAYER {

namespace frame {

// The block at index i, in which v runs over its vectors, whose streams the processor overlaps. Returns the index of the next.
template <class K, int n, int m, size_t... v>
LUM_INLINE int64_t Block(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int64_t len, Call& call,
                         std::index_sequence<v...>) {
  const std::array results{Compute<K, n>(kernel, LoadStep<K, n, m>(arrays, i + static_cast<int64_t>(v) * step_of<K>))...};
  if constexpr (requires { results[0].refused; }) {
    if (any((results[v].refused | ...))) [[unlikely]] {
      if constexpr (HasSecondPath<K>) return BlocksOfBothPaths<K, n, m>(kernel, arrays, i, len, call);
      else FinishLanes(kernel, arrays, i, block_of<K>, call);
      return i + block_of<K>;
    }
  }
  (StoreStep<K, n, m>(arrays, i + static_cast<int64_t>(v) * step_of<K>, results[v]), ...);
  return i + block_of<K>;
}

// A tail with elements that the first path refuses.
template <class K, int n, int m>
LUM_INLINE void RefusedTail(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int count, Call& call) {
  if constexpr (HasSecondPath<K>) TailOfBothPaths<K, n, m>(kernel, arrays, i, count, call);
  else FinishLanes(kernel, arrays, i, count, call);
}

// A vector of fewer elements, the rest of its lanes holding the fill.
template <class K, int n, int m>
LUM_INLINE void TailStep(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int count, Call& call) {
  if constexpr (TakesHalves<K>) {
    if (count <= step_of<K> / 2) {
      const auto result = Compute<K, n>(kernel, LoadHalfStep<K, n, m>(arrays, i, count));
      if constexpr (requires { result.refused; }) {
        if (AnyInHalf(result.refused)) [[unlikely]]
          return RefusedTail<K, n, m>(kernel, arrays, i, count, call);
      }
      return StoreHalfStep<K, n, m>(arrays, i, count, result);
    }
  }
  const auto result = ComputeTail<K, n>(kernel, LoadStep<K, n, m>(arrays, i, count), count);
  if constexpr (requires { result.refused; }) {
    if (any(result.refused)) [[unlikely]]
      return RefusedTail<K, n, m>(kernel, arrays, i, count, call);
  }
  StoreStep<K, n, m>(arrays, i, count, result);
}
// By itself, with the constants that it needs: a short call has no time for those that the blocks keep in registers or on the
// stack, of which a call may take little.
template <class K, int n, int m>
[[gnu::noinline]] void CalledTailStep(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int count, Call& call) {
  TailStep<K, n, m>(kernel, arrays, i, count, call);
}
template <class K, int n, int m>
LUM_INLINE void Tail(const K& kernel, const Arrays<K, n, m>& arrays, int64_t i, int count, Call& call) {
  if constexpr (K::calls_tail || (has_halves && !K::is_short && !K::aligns_stores))
    CalledTailStep<K, n, m>(kernel, arrays, i, count, call);
  else TailStep<K, n, m>(kernel, arrays, i, count, call);
}

// Elements of dst up to the first one at a whole vector's alignment: in a long array of a function that takes no longer than
// the memory, stores that cross cache lines are what is slow.
template <class K, class T> LUM_INLINE int CountToAlignment(const T* dst, int64_t len) {
  constexpr size_t alignment = 64, long_array = 4096;  // bytes
  if (!K::aligns_stores || !vectors_fit_registers || len < static_cast<int64_t>(long_array / sizeof(T))) return 0;
  const size_t behind = reinterpret_cast<uintptr_t>(dst) % alignment;
  return behind % sizeof(T) != 0 ? 0 : static_cast<int>((alignment - behind) % alignment / sizeof(T));
}

// The environment, the blocks and the tail of a call whose arguments are good.
template <class K, int n, int m> LUM_INLINE LumStatus RunChecked(const K& kernel, const Arrays<K, n, m>& arrays, int64_t len) {
  Call call{Enter<K::variant>()};
  int64_t i = CountToAlignment<K>(arrays.dst[0], len);
  if (i != 0) Tail<K, n, m>(kernel, arrays, 0, static_cast<int>(i), call);
  while (i + block_of<K> <= len) i = Block<K, n, m>(kernel, arrays, i, len, call, std::make_index_sequence<vectors_of<K>>());
  for (; i < len; i += step_of<K>) {
    Tail<K, n, m>(kernel, arrays, i, static_cast<int>(std::min<int64_t>(step_of<K>, len - i)), call);
    if constexpr (vectors_fit_registers && vectors_of<K> == 1) break;
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
