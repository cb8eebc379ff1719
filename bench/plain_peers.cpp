// Complex products, quotients and moduli by the plain formulas, as a user would write them and let the compiler vectorise: this
// file alone is compiled with -O3 -ffast-math. They overflow and underflow early, know nothing of infinities, and lose a part
// that cancels.
#include <cmath>

#include "peers.h"

namespace lum::bench {
namespace {

using support::Arguments;

template <class T> void Mul(const Arguments& arguments, T sign) {
  const auto* __restrict x = static_cast<const T*>(arguments.src1);
  const auto* __restrict y = static_cast<const T*>(arguments.src2);
  auto* __restrict z = static_cast<T*>(arguments.dst1);
  for (int32_t i = 0; i < arguments.len; ++i) {
    const T a = x[2 * i], b = x[2 * i + 1], c = y[2 * i], d = sign * y[2 * i + 1];
    z[2 * i] = a * c - b * d;
    z[2 * i + 1] = a * d + b * c;
  }
}
template <class T> void Div(const Arguments& arguments) {
  const auto* __restrict x = static_cast<const T*>(arguments.src1);
  const auto* __restrict y = static_cast<const T*>(arguments.src2);
  auto* __restrict z = static_cast<T*>(arguments.dst1);
  for (int32_t i = 0; i < arguments.len; ++i) {
    const T a = x[2 * i], b = x[2 * i + 1], c = y[2 * i], d = y[2 * i + 1];
    const T inverse = 1 / (c * c + d * d);
    z[2 * i] = (a * c + b * d) * inverse;
    z[2 * i + 1] = (b * c - a * d) * inverse;
  }
}
template <class T> void Abs(const Arguments& arguments) {
  const auto* __restrict x = static_cast<const T*>(arguments.src1);
  auto* __restrict z = static_cast<T*>(arguments.dst1);
  for (int32_t i = 0; i < arguments.len; ++i) z[i] = std::sqrt(x[2 * i] * x[2 * i] + x[2 * i + 1] * x[2 * i + 1]);
}

template <class T> std::function<void(const Arguments&)> LoopOf(std::string_view function) {
  if (function == "Mul") return [](const Arguments& a) { Mul<T>(a, 1); };
  if (function == "MulByConj") return [](const Arguments& a) { Mul<T>(a, -1); };
  if (function == "Div") return Div<T>;
  if (function == "Abs") return Abs<T>;
  return {};
}

}  // namespace

std::vector<Peer> FindPlainPeers(const support::Export& entry) {
  if (!support::IsComplex(entry.input) || !support::ProcessorRuns("k0")) return {};
  const auto loop = entry.is_32bit() ? LoopOf<float>(entry.function) : LoopOf<double>(entry.function);
  return loop ? std::vector<Peer>{{"plain_fast_math", loop}} : std::vector<Peer>{};
}

}  // namespace lum::bench
