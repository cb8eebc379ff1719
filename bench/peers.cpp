#include "peers.h"

#include <dlfcn.h>

#if defined(__x86_64__)
#include <fmt/format.h>

#include <string_view>

#include "avx512.h"
#include "support/declarations.h"

namespace lum::bench {
namespace {

using support::Arguments;
using support::Export;

// One lane type's vectors.
template <class T> struct Vector;
template <> struct Vector<float> {
  using Type = __m512;
  static constexpr int lanes = 16;
  static Type Load(const float* p, int count) { return _mm512_maskz_loadu_ps(static_cast<__mmask16>((1u << count) - 1), p); }
  static void Store(float* p, int count, Type v) { _mm512_mask_storeu_ps(p, static_cast<__mmask16>((1u << count) - 1), v); }
};
template <> struct Vector<double> {
  using Type = __m512d;
  static constexpr int lanes = 8;
  static Type Load(const double* p, int count) { return _mm512_maskz_loadu_pd(static_cast<__mmask8>((1u << count) - 1), p); }
  static void Store(double* p, int count, Type v) { _mm512_mask_storeu_pd(p, static_cast<__mmask8>((1u << count) - 1), v); }
};

// step(i, count) over whole vectors and the rest.
template <class T, class Step> void Loop(int32_t len, Step step) {
  constexpr int lanes = Vector<T>::lanes;
  int32_t i = 0;
  for (; i + lanes <= len; i += lanes) step(i, lanes);
  if (i < len) step(i, len - i);
}

template <class T> std::function<void(const Arguments&)> Wrap(void* address, const Export& entry) {
  using V = Vector<T>;
  using Type = typename V::Type;
  if (entry.outputs() == 2) {
    struct Both {
      Type first, second;
    };
    return [address](const Arguments& a) {
      const auto function = reinterpret_cast<Both (*)(Type)>(address);
      Loop<T>(a.len, [&](int32_t i, int count) {
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
      Loop<T>(a.len, [&](int32_t i, int count) {
        if (!has_parameter) y = V::Load(static_cast<const T*>(a.src2) + i, count);
        V::Store(static_cast<T*>(a.dst1) + i, count, function(V::Load(static_cast<const T*>(a.src1) + i, count), y));
      });
    };
  }
  return [address](const Arguments& a) {
    const auto function = reinterpret_cast<Type (*)(Type)>(address);
    Loop<T>(a.len, [&](int32_t i, int count) {
      V::Store(static_cast<T*>(a.dst1) + i, count, function(V::Load(static_cast<const T*>(a.src1) + i, count)));
    });
  };
}

void* Sleef() {
  static void* handle = dlopen("libsleef.so.3", RTLD_NOW);
  return handle;
}
void* Libmvec() {
  static void* handle = dlopen("libmvec.so.1", RTLD_NOW);
  return handle;
}

}  // namespace

std::vector<Peer> FindPeers(const Export& entry) {
  std::vector<Peer> peers;
  const std::string_view name = support::DeclarationOf(entry).c_name;
  if (name.empty() || entry.is_complex() || !support::ProcessorHasAvx512()) return peers;
  const bool is_32bit = entry.is_32bit();
  const auto add = [&](void* library, const std::string& symbol, const std::string& peer) {
    void* address = library == nullptr ? nullptr : dlsym(library, symbol.c_str());
    if (address != nullptr) peers.push_back({peer, is_32bit ? Wrap<float>(address, entry) : Wrap<double>(address, entry)});
  };
  const char* lanes = is_32bit ? "f16" : "d8";
  for (const char* class_ : {"u05", "u10", "u15", "u35"}) {
    add(Sleef(), fmt::format("Sleef_{}{}_{}avx512f", name, lanes, class_), fmt::format("sleef_{}", class_));
  }
  add(Sleef(), fmt::format("Sleef_{}{}_avx512f", name, lanes), "sleef");
  const char* parameters = entry.inputs() == 2 || entry.has_parameter() ? "vv" : "v";
  add(Libmvec(), fmt::format("_ZGVeN{}{}_{}{}", is_32bit ? 16 : 8, parameters, name, is_32bit ? "f" : ""), "libmvec");
  return peers;
}

std::vector<std::string> AbsentPeers() {
  std::vector<std::string> lines;
  if (!support::ProcessorHasAvx512()) return {"this processor lacks AVX-512: no peers"};
  if (Sleef() == nullptr) lines.push_back("SLEEF (libsleef.so.3) is not installed: skipped");
  if (Libmvec() == nullptr) lines.push_back("glibc's vector functions (libmvec.so.1) are not there: skipped");
  return lines;
}

}  // namespace lum::bench

#else

namespace lum::bench {

std::vector<Peer> FindPeers(const support::Export&) { return {}; }
std::vector<std::string> AbsentPeers() { return {"no vector peers on this kind of processor"}; }

}  // namespace lum::bench

#endif
