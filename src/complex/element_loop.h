// Loops over scalar cores: each element by itself, in the x87 unit's extended precision. All tags of such a function share one
// loop, and the loops of both types share the core. Elements of 32 bits are widened to binary64 and their results narrowed in
// the caller's rounding mode.
#pragma once

#include "complex/core/parts.h"
#include "frame/kernel_frame.h"

namespace lum::inline LUM_LAYER::complex {

using OneInputCore = void(ComplexDouble& result, const ComplexDouble& z);
using TwoInputsCore = void(ComplexDouble& result, const ComplexDouble& z, const ComplexDouble& w);

template <class E> ComplexDouble Widened(const E& z) { return {z.re, z.im}; }

template <class E> E Narrowed(const ComplexDouble& z) {
  using T = Real<E>;
  const E result = {static_cast<T>(z.re), static_cast<T>(z.im)};
  if constexpr (std::is_same_v<T, Lum32f>) {
    if (IsDenormal(result.re) || IsDenormal(result.im)) RaiseUnderflow<T>();
  }
  return result;
}

// Arguments whose infinite results are overflows. A zero part is taken to mean that infinity is meant.
template <class E> bool CanOverflow(const E& z) { return IsFiniteNonZero(z.re) && IsFiniteNonZero(z.im); }
template <class E> bool HasInfinitePart(const E& z) { return IsInfinite(z.re) || IsInfinite(z.im); }

// The end of a loop. The compiler copies structures of the scalar code through registers of 256 bits without clearing their
// upper halves, as it does behind vector code; left as they are, they would make the caller's SSE code several times slower.
inline void LeaveLoop(const Environment& environment) {
#if defined(LUM_AVX512) || defined(LUM_AVX2)
  __builtin_ia32_vzeroupper();
#endif
  Leave(environment);
}

// For functions that report nothing.
template <OneInputCore core, class E> LumStatus SilentLoop(const E* src, E* dst, int32_t len) {
  if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
  const Environment environment = Enter<scalar_core_variant>();
  for (int32_t i = 0; i < len; ++i) {
    ComplexDouble result;
    core(result, Widened(src[i]));
    dst[i] = Narrowed<E>(result);
  }
  LeaveLoop(environment);
  return lumStsOk;
}

// For functions that report overflow: runs compute(i, result) for each element, which returns whether an infinite result is an
// overflow. Loop gives the loop a cell of its own for the hook.
template <class Loop, class E, class Compute>
LumStatus RunReportingLoop(const E* src1, const E* src2, E* dst, int32_t len, const Compute& compute) {
  const Environment environment = Enter<scalar_core_variant>();
  LumStatus status = lumStsOk;
  for (int32_t i = 0; i < len; ++i) {
    ComplexDouble result;
    const bool can_overflow = compute(i, result);
    dst[i] = Narrowed<E>(result);
    if (!can_overflow || !HasInfinitePart(dst[i])) continue;
    status = lumStsOverflow;
    ElementHook(status, i, src1, src2, dst, dst, &hook_cell<Loop>);
  }
  LeaveLoop(environment);
  return status;
}

template <OneInputCore core, class E> struct ReportingLoop {
  static LumStatus Run(const E* src, E* dst, int32_t len) {
    if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
    return RunReportingLoop<ReportingLoop>(src, src, dst, len, [=](int32_t i, ComplexDouble& result) {
      const E z = src[i];
      core(result, Widened(z));
      return CanOverflow(z);
    });
  }
};

template <TwoInputsCore core, class E> struct ReportingTwoInputsLoop {
  static LumStatus Run(const E* src1, const E* src2, E* dst, int32_t len) {
    if (const auto bad = CheckArguments(len, src1, src2, dst); bad != lumStsOk) return bad;
    return RunReportingLoop<ReportingTwoInputsLoop>(src1, src2, dst, len, [=](int32_t i, ComplexDouble& result) {
      const E z = src1[i];
      const E w = src2[i];
      core(result, Widened(z), Widened(w));
      return CanOverflow(z) && CanOverflow(w);
    });
  }
};

// The second argument is the same for all elements, and not in their memory.
template <TwoInputsCore core, class E> struct ReportingParameterLoop {
  static LumStatus Run(const E* src, const E& parameter, E* dst, int32_t len) {
    if (const auto bad = CheckArguments(len, src, dst); bad != lumStsOk) return bad;
    const bool parameter_can_overflow = CanOverflow(parameter);
    return RunReportingLoop<ReportingParameterLoop>(src, src, dst, len, [&](int32_t i, ComplexDouble& result) {
      const E z = src[i];
      // Widened here, in the loop's environment: a denormal number or a signalling NaN raises a flag.
      core(result, Widened(z), Widened(parameter));
      return parameter_can_overflow && CanOverflow(z);
    });
  }
};

}  // namespace lum::inline LUM_LAYER::complex
