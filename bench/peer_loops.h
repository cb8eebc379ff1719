// Loops over arrays around the vector functions of other libraries, for the files that each compile them for one instruction
// set. V<T> is a vector of that set: Type, lanes, Load and Store of some lanes.
#pragma once

#include <dlfcn.h>
#include <fmt/format.h>

#include <string>
#include <string_view>
#include <vector>

#include "peers.h"
#include "support/declarations.h"

namespace lum::bench {
namespace {

using support::Arguments;
using support::Export;

// step(i, count) over whole vectors and the rest.
template <class V, class Step> void Loop(int32_t len, Step step) {
  constexpr int lanes = V::lanes;
  int32_t i = 0;
  for (; i + lanes <= len; i += lanes) step(i, lanes);
  if (i < len) step(i, len - i);
}

template <class V, class T> std::function<void(const Arguments&)> Wrap(void* address, const Export& entry) {
  using Type = typename V::Type;
  if (entry.outputs() == 2) {
    struct Both {
      Type first, second;
    };
    return [address](const Arguments& a) {
      const auto function = reinterpret_cast<Both (*)(Type)>(address);
      Loop<V>(a.len, [&](int32_t i, int count) {
        const Both both = function(V::Load(static_cast<const T*>(a.src1) + i, count));
        V::Store(static_cast<T*>(a.dst1) + i, count, both.first);
        V::Store(static_cast<T*>(a.dst2) + i, count, both.second);
      });
    };
  }
  if (entry.inputs() == 2 || entry.has_parameter()) {
    const bool has_parameter = entry.has_parameter();
    return [address, has_parameter](const Arguments& a) {
      const auto function = reinterpret_cast<Type (*)(Type, Type)>(address);
      Type y{};
      if (has_parameter) {
        for (int lane = 0; lane < V::lanes; ++lane) y[lane] = *static_cast<const T*>(a.value);
      }
      Loop<V>(a.len, [&](int32_t i, int count) {
        if (!has_parameter) y = V::Load(static_cast<const T*>(a.src2) + i, count);
        V::Store(static_cast<T*>(a.dst1) + i, count, function(V::Load(static_cast<const T*>(a.src1) + i, count), y));
      });
    };
  }
  return [address](const Arguments& a) {
    const auto function = reinterpret_cast<Type (*)(Type)>(address);
    Loop<V>(a.len, [&](int32_t i, int count) {
      V::Store(static_cast<T*>(a.dst1) + i, count, function(V::Load(static_cast<const T*>(a.src1) + i, count)));
    });
  };
}

inline void* Sleef() {
  static void* handle = dlopen("libsleef.so.3", RTLD_NOW);
  return handle;
}
inline void* Libmvec() {
  static void* handle = dlopen("libmvec.so.1", RTLD_NOW);
  return handle;
}

// The names by which the libraries call the functions of one instruction set.
struct PeerNames {
  std::string_view sleef_suffix;    // avx512f
  std::string_view libmvec_prefix;  // _ZGVeN
};

template <template <class> class Vector> std::vector<Peer> PeersOf(const Export& entry, const PeerNames& names) {
  std::vector<Peer> peers;
  const std::string_view name = support::DeclarationOf(entry).c_name;
  if (name.empty() || entry.is_complex()) return peers;
  const bool is_32bit = entry.is_32bit();
  const auto add = [&](void* library, const std::string& symbol, const std::string& peer) {
    void* address = library == nullptr ? nullptr : dlsym(library, symbol.c_str());
    if (address == nullptr) return;
    peers.push_back(
        {peer, is_32bit ? Wrap<Vector<float>, float>(address, entry) : Wrap<Vector<double>, double>(address, entry)});
  };
  const int lanes = is_32bit ? Vector<float>::lanes : Vector<double>::lanes;
  const std::string sleef = fmt::format("Sleef_{}{}{}_", name, is_32bit ? 'f' : 'd', lanes);
  for (const char* class_ : {"u05", "u10", "u15", "u35"}) {
    add(Sleef(), fmt::format("{}{}{}", sleef, class_, names.sleef_suffix), fmt::format("sleef_{}", class_));
  }
  add(Sleef(), fmt::format("{}{}", sleef, names.sleef_suffix), "sleef");
  const char* parameters = entry.inputs() == 2 || entry.has_parameter() ? "vv" : "v";
  add(Libmvec(), fmt::format("{}{}{}_{}{}", names.libmvec_prefix, lanes, parameters, name, is_32bit ? "f" : ""), "libmvec");
  return peers;
}

}  // namespace
}  // namespace lum::bench
