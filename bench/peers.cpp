#include "peers.h"

#if defined(__x86_64__)
#include "frame/intrinsics.h"
#include "peer_loops.h"

namespace lum::bench {
namespace {

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

}  // namespace

std::vector<Peer> FindPeers(const Export& entry, std::string_view library) {
  if (!support::ProcessorRuns(library)) return {};
  if (library == "k0") return PeersOf<Vector>(entry, {"avx512f", "_ZGVeN"});
  return library == "a2" ? FindAvx2Peers(entry) : std::vector<Peer>();
}

std::vector<std::string> AbsentPeers() {
  std::vector<std::string> lines;
  if (Sleef() == nullptr) lines.push_back("SLEEF (libsleef.so.3) is not installed: skipped");
  if (Libmvec() == nullptr) lines.push_back("glibc's vector functions (libmvec.so.1) are not there: skipped");
  return lines;
}

}  // namespace lum::bench

#else

namespace lum::bench {

std::vector<Peer> FindPeers(const support::Export&, std::string_view) { return {}; }
std::vector<std::string> AbsentPeers() { return {"no vector peers on this kind of processor"}; }

}  // namespace lum::bench

#endif
