// lumvm::par: long arrays cut among threads by the standard library's parallel algorithms.
//
//   lumvm::exp(lumvm::par, x, y);
//
// The results are the same bits, and the status is the one that a call without it returns. With libstdc++ the algorithms need
// Intel's TBB: link with -ltbb (Debian's package libtbb-dev).
#ifndef LUMVM_PARALLEL_HPP
#define LUMVM_PARALLEL_HPP

#include <algorithm>
#include <execution>

#include "lumvm.hpp"

namespace lumvm {
namespace detail {

struct parallel {
  using is_way = void;
  // Parts of one size, large against what it takes to hand one to a thread.
  static constexpr std::size_t part = std::size_t{1} << 14;

  template <class Call> status operator()(std::size_t size, const Call& call) const {
    std::vector<status> reported((size + part - 1) / part);
    std::for_each(std::execution::par, reported.begin(), reported.end(), [&](status& own) {
      const std::size_t first = static_cast<std::size_t>(&own - reported.data()) * part;
      own = status(call(first, static_cast<std::int32_t>(std::min(part, size - first))));
    });
    const auto last = std::find_if(reported.rbegin(), reported.rend(), [](status own) { return static_cast<bool>(own); });
    return last == reported.rend() ? status() : *last;
  }
};

}  // namespace detail

inline constexpr detail::parallel par;

}  // namespace lumvm

#endif
