// The kernels of functions whose lane routine is a scalar core, with a path as core_path.h has it and the second path of
// core_second_path.h.
#pragma once

#include "complex/core_second_path.h"

namespace lum::inline LUM_LAYER::complex {

// Whether a call goes through the vector path: not where what a core does in the caller's rounding (to narrow, and the products
// of a power) is not to nearest, nor where the caller has denormal numbers flushed, which tails may be and numbers of Extended
// are not. Without a fused multiply-add pairs take longer than the core.
#if defined(LUM_AVX512) || defined(LUM_AVX2)
inline constexpr bool has_fast_vectors = true;
#else
inline constexpr bool has_fast_vectors = lane::processor_has_fma;
#endif

// The kernels of functions that report nothing, and of those that report overflow.
template <class Path, class Ends, OneInputCore core, class E> struct SilentKernel : Kernel<E> {
  static constexpr Variant variant = scalar_core_variant;
  static constexpr int vectors = 1;
  static constexpr bool second_is_shared = true;
  static constexpr bool calls_tail = vectors_fit_registers && std::is_same_v<E, Lum64fc> && requires {
    Path::has_many_constants;
  };
  static LUM_INLINE Lanes<E> VectorPath(Interleaved<Real<E>> z) { return PathOfElements<Path, E>(z); }
  static LUM_INLINE Lanes<E> TailPath(Interleaved<Real<E>> z, int count) { return PathOfTail<Path, E>(count, z); }
  // Where streams fit the registers, a path of 32fc spares vectors of these all steps by itself.
  static LUM_INLINE Mask<Real<E>> Outside(Interleaved<Real<E>> packed) {
    const auto z = split(packed);
    if constexpr (std::is_same_v<E, Lum64fc>) return Path::IsOutside(z) | Ends::IsSpecial(z);
    else return streams_fit_registers ? mask_of<Lum32f>(0) : HasNonFinitePart(z);
  }
  static LUM_INLINE Lanes<E> SecondPath(Interleaved<Real<E>> z, const Lanes<E>& lanes) {
    return SecondPathAsCore<Ends>(z, lanes, IsForSecondPath(z, lanes.refused));
  }
  static void LaneRoutine(const E& z, E& result) { SilentCoreOnLane<core>(z, result); }

  // What the first path refuses because it is not sure of a rounding goes on to the core.
  static LUM_INLINE Mask<Real<E>> IsForSecondPath(Interleaved<Real<E>> packed, Mask<Real<E>> refused) {
    if constexpr (std::is_same_v<E, Lum32fc>) {
      return refused;
    } else {
      const auto z = split(packed);
      auto wanted = Path::IsOutside(z) | Ends::IsSpecial(z);
      if constexpr (requires { Ends::IsHard(z); }) wanted = wanted | Ends::IsHard(z);
      return refused & wanted;
    }
  }
};
template <class Path, class Ends, OneInputCore core, class E> struct ReportingKernel : SilentKernel<Path, Ends, core, E> {
  static LUM_INLINE Finished<E> SecondPath(Interleaved<Real<E>> z, const Lanes<E>& lanes) {
    return ReportingSecondPath<Ends>(z, lanes, SilentKernel<Path, Ends, core, E>::IsForSecondPath(z, lanes.refused));
  }
  static LumStatus LaneRoutine(const E& z, E& result) { return ReportingCoreOnLane<core>(z, result); }
};

// The array function of a core and its path, which reports nothing or reports overflow.
template <class Path, class Ends, OneInputCore core, class E> LumStatus RunSilent(const E* src, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (RoundsToNearestOnly()) return OneInput<SilentKernel<Path, Ends, core, E>>(src, dst, len);
  }
  return SilentLoop<core>(src, dst, len);
}
template <class Path, class Ends, OneInputCore core, class E> LumStatus RunReporting(const E* src, E* dst, int32_t len) {
  if constexpr (has_fast_vectors) {
    if (RoundsToNearestOnly()) return OneInput<ReportingKernel<Path, Ends, core, E>>(src, dst, len);
  }
  return ReportingLoop<core, E>::Run(src, dst, len);
}

}  // namespace lum::inline LUM_LAYER::complex
