// The peers' functions for AVX2.
#include "peers.h"

#if defined(__x86_64__)
#include <immintrin.h>

#include "peer_loops.h"

namespace lum::bench {
namespace {

// One lane type's vectors.
template <class T> struct Vector;
template <> struct Vector<float> {
  using Type = __m256;
  static constexpr int lanes = 8;
  static __m256i Mask(int count) {
    return _mm256_cmpgt_epi32(_mm256_set1_epi32(count), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7));
  }
  static Type Load(const float* p, int count) {
    return count == lanes ? _mm256_loadu_ps(p) : _mm256_maskload_ps(p, Mask(count));
  }
  static void Store(float* p, int count, Type v) {
    if (count == lanes) _mm256_storeu_ps(p, v);
    else _mm256_maskstore_ps(p, Mask(count), v);
  }
};
template <> struct Vector<double> {
  using Type = __m256d;
  static constexpr int lanes = 4;
  static __m256i Mask(int count) { return _mm256_cmpgt_epi64(_mm256_set1_epi64x(count), _mm256_setr_epi64x(0, 1, 2, 3)); }
  static Type Load(const double* p, int count) {
    return count == lanes ? _mm256_loadu_pd(p) : _mm256_maskload_pd(p, Mask(count));
  }
  static void Store(double* p, int count, Type v) {
    if (count == lanes) _mm256_storeu_pd(p, v);
    else _mm256_maskstore_pd(p, Mask(count), v);
  }
};

}  // namespace

std::vector<Peer> FindAvx2Peers(const Export& entry) { return PeersOf<Vector>(entry, {"avx2", "_ZGVdN"}); }

}  // namespace lum::bench
#endif
