// Kernels in the recording libraries that exercise the frame: every shape, several sizes of block, second paths whose reports
// stand among those of the routine, silent and reporting lane routines, and probes of the environment that each variant sets
// up. test_kernels.h tells what they compute.
#include "support/test_kernels.h"

#include "arith/first_nan.h"
#include "frame/kernel_frame.h"

namespace lum {
namespace {

template <class T> LumStatus StatusOf(T x) {
  if (!(x > -5 && x <= -1)) return lumStsOk;
  constexpr LumStatus by_integer_part[] = {lumStsOverflow, lumStsUnderflow, lumStsSingularity, lumStsDomain};
  return by_integer_part[static_cast<int>(-x) - 1];
}
template <class T> Mask<T> LUM_INLINE IsNegative(Vec<T> x) { return lt(x, all(T(0))); }

// The second path of some kernels finishes the refused lanes above -3, by the steps of the routine.
template <class T> LUM_INLINE Mask<T> IsFinished(Vec<T> x) { return IsNegative(x) & lt(all(T(-3)), x); }
template <class T> LUM_INLINE Vec<T> FinishedValue(Vec<T> x, Vec<T> value) {
  return select(IsFinished(x), value + all(T(1000)), value);
}
template <class T> LUM_INLINE Reports<T> FinishedReports(Vec<T> x) {
  const auto is_low = le(x, all(T(-2)));
  const auto reports = IsFinished(x) & le(x, all(T(-1)));
  return {.overflow = reports & ~is_low, .underflow = reports & is_low};
}

template <class T, int n> struct OneInputKernel : Kernel<T> {
  static constexpr int vectors = n;
  static constexpr bool second_in_all_layers = true, hides_refused = n == 1, second_is_short = n == 4;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> x, const Lanes<T>&) {
    const auto value = x + all(T(1));
    return {FinishedValue(x, value), IsNegative(x) & ~IsFinished(x), FinishedReports(x)};
  }
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> x) { return {x + all(T(1)), IsNegative(x)}; }
  static LumStatus LaneRoutine(T x, T& result) {
    result += 1000;
    return StatusOf(x);
  }
};

template <class E> struct OneComplexInputKernel : Kernel<E> {
  using T = Real<E>;
  static LUM_INLINE Lanes<E> VectorPath(Interleaved<T> x) {
    const auto z = split(x);
    return {join(ComplexVec<T>{z.im, z.re}), IsNegative(z.re)};
  }
  static LumStatus LaneRoutine(E x, E& result) {
    result.re += 1000;
    return StatusOf(x.re);
  }
};

template <class T> struct TwoInputsKernel : Kernel<T> {
  static constexpr int vectors = 3;
  static constexpr bool second_in_all_layers = true, second_is_short = true;
  static LUM_INLINE Finished<T> SecondPath(Vec<T> a, Vec<T>, const Lanes<T>& lanes) {
    return {FinishedValue(a, lanes.value), lanes.refused & ~IsFinished(a), FinishedReports(a)};
  }
  static LUM_INLINE Lanes<T> VectorPath(Vec<T> a, Vec<T> b) { return {a - b, IsNegative(a)}; }
  static LumStatus LaneRoutine(T a, T, T& result) {
    result += 1000;
    return StatusOf(a);
  }
};

template <class E> struct TwoComplexInputsKernel : Kernel<E> {
  using T = Real<E>;
  static LUM_INLINE Lanes<E> VectorPath(Interleaved<T> a, Interleaved<T> b) {
    return {{a.low - b.low, a.high - b.high}, IsNegative(split(a).re)};
  }
  static LumStatus LaneRoutine(E a, E, E& result) {
    result.re += 1000;
    return StatusOf(a.re);
  }
};

template <class T> struct TwoOutputsKernel : Kernel<T> {
  static constexpr bool second_in_all_layers = true, second_is_short = true;
  static LUM_INLINE TwoFinished<T> SecondPath(Vec<T> x, const TwoLanes<T>& lanes) {
    return {FinishedValue(x, lanes.value1), FinishedValue(x, lanes.value2), lanes.refused & ~IsFinished(x), FinishedReports(x)};
  }
  static LUM_INLINE TwoLanes<T> VectorPath(Vec<T> x) { return {x + all(T(1)), x + x, IsNegative(x)}; }
  static LumStatus LaneRoutine(T x, T& result1, T& result2) {
    result1 += 1000;
    result2 += 1000;
    return StatusOf(x);
  }
};

template <class T> struct ParameterKernel : Kernel<T> {
  T value;
  LUM_INLINE Lanes<T> VectorPath(Vec<T> x) const { return {x + all(value), lt(x, all(value))}; }
  LumStatus LaneRoutine(T x, T& result) const {
    result += 1000;
    return StatusOf(x);
  }
};

template <class E> struct ToRealKernel : Kernel<E, Real<E>> {
  using T = Real<E>;
  static LUM_INLINE Lanes<T> VectorPath(Interleaved<T> x) {
    const auto z = split(x);
    return {arith::SumInOrder(z.re, z.im), IsNegative(z.re)};
  }
  static LumStatus LaneRoutine(E x, T& result) {
    result += 1000;
    return StatusOf(x.re);
  }
};

template <class E> struct ToComplexKernel : Kernel<Real<E>, E> {
  using T = Real<E>;
  static constexpr int vectors = 4;
  static LUM_INLINE Lanes<E> VectorPath(Vec<T> x) { return {join(ComplexVec<T>{x, x + all(T(1))}), IsNegative(x)}; }
  static LumStatus LaneRoutine(T x, E& result) {
    result.re += 1000;
    return StatusOf(x);
  }
};

struct SilentKernel : Kernel<Lum32f> {
  static LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) { return {x + all(1.0f), IsNegative(x)}; }
  static void LaneRoutine(Lum32f, Lum32f& result) { result += 1000; }
};
struct SilentTwoOutputsKernel : Kernel<Lum64f> {
  static LUM_INLINE TwoLanes<Lum64f> VectorPath(Vec<Lum64f> x) { return {x + all(1.0), x + x, IsNegative(x)}; }
  static void LaneRoutine(Lum64f, Lum64f& result1, Lum64f& result2) {
    result1 += 1000;
    result2 += 1000;
  }
};

#if LUM_HAS_MXCSR
template <Variant probed> struct Probe : Kernel<Lum32f> {
  static constexpr Variant variant = probed;
  EnvironmentSeen* seen;

  LUM_INLINE Lanes<Lum32f> VectorPath(Vec<Lum32f> x) const {
    seen->vector_mxcsr = ReadMxcsr();
    seen->vector_x87 = ReadX87Control();
    return {x + all(1.0f), IsNegative(x)};
  }
  LumStatus LaneRoutine(Lum32f x, Lum32f&) const {
    seen->routine_mxcsr = ReadMxcsr();
    seen->routine_x87 = ReadX87Control();
    volatile double zero = 0, tiny = 0x1p-1000, huge = 0x1p1000;
    [[maybe_unused]] volatile double discarded = zero / zero;
    discarded = 1 / zero;
    discarded = tiny * tiny;
    discarded = huge * huge;
    // The x87 unit's exceptions are not masked for this variant, which has no lane routines.
    if constexpr (probed.x87 != X87Form::untouched) {
      volatile long double extended = zero;  // a constant might be loaded before the exceptions are masked
      extended = extended / extended;
    }
    return StatusOf(x);
  }
};

template <Variant probed> LumStatus RunProbe(const float* src, float* dst, int32_t len, EnvironmentSeen* seen) {
  return OneInput<Probe<probed>>(src, dst, len, {{}, seen});
}
#endif

}  // namespace

#define LUM_TEST_EXPORT extern "C" __attribute__((visibility("default")))
#define LUM_TEST_ONE_INPUT(name, in, out, ...) \
  LUM_TEST_EXPORT LumStatus name(const in* src, out* dst, int32_t len) { return OneInput<__VA_ARGS__>(src, dst, len); }
#define LUM_TEST_TWO_INPUTS(name, type, ...)                                                   \
  LUM_TEST_EXPORT LumStatus name(const type* src1, const type* src2, type* dst, int32_t len) { \
    return TwoInputs<__VA_ARGS__>(src1, src2, dst, len);                                       \
  }
#define LUM_TEST_TWO_OUTPUTS(name, type, ...)                                            \
  LUM_TEST_EXPORT LumStatus name(const type* src, type* dst1, type* dst2, int32_t len) { \
    return TwoOutputs<__VA_ARGS__>(src, dst1, dst2, len);                                \
  }
#define LUM_TEST_SCALAR_PARAMETER(name, type)                                           \
  LUM_TEST_EXPORT LumStatus name(const type* src, type value, type* dst, int32_t len) { \
    return OneInput<ParameterKernel<type>>(src, dst, len, {{}, value});                 \
  }

LUM_TEST_ONE_INPUT(lumTestOneInput_32f, Lum32f, Lum32f, OneInputKernel<Lum32f, 1>)
LUM_TEST_ONE_INPUT(lumTestOneInput_64f, Lum64f, Lum64f, OneInputKernel<Lum64f, 4>)
LUM_TEST_ONE_INPUT(lumTestOneInput_32fc, Lum32fc, Lum32fc, OneComplexInputKernel<Lum32fc>)
LUM_TEST_ONE_INPUT(lumTestOneInput_64fc, Lum64fc, Lum64fc, OneComplexInputKernel<Lum64fc>)
LUM_TEST_TWO_INPUTS(lumTestTwoInputs_32f, Lum32f, TwoInputsKernel<Lum32f>)
LUM_TEST_TWO_INPUTS(lumTestTwoInputs_64f, Lum64f, TwoInputsKernel<Lum64f>)
LUM_TEST_TWO_INPUTS(lumTestTwoInputs_32fc, Lum32fc, TwoComplexInputsKernel<Lum32fc>)
LUM_TEST_TWO_INPUTS(lumTestTwoInputs_64fc, Lum64fc, TwoComplexInputsKernel<Lum64fc>)
LUM_TEST_TWO_OUTPUTS(lumTestTwoOutputs_32f, Lum32f, TwoOutputsKernel<Lum32f>)
LUM_TEST_TWO_OUTPUTS(lumTestTwoOutputs_64f, Lum64f, TwoOutputsKernel<Lum64f>)
LUM_TEST_SCALAR_PARAMETER(lumTestScalarParameter_32f, Lum32f)
LUM_TEST_SCALAR_PARAMETER(lumTestScalarParameter_64f, Lum64f)
LUM_TEST_ONE_INPUT(lumTestToReal_32fc, Lum32fc, Lum32f, ToRealKernel<Lum32fc>)
LUM_TEST_ONE_INPUT(lumTestToReal_64fc, Lum64fc, Lum64f, ToRealKernel<Lum64fc>)
LUM_TEST_ONE_INPUT(lumTestToComplex_32fc, Lum32f, Lum32fc, ToComplexKernel<Lum32fc>)
LUM_TEST_ONE_INPUT(lumTestToComplex_64fc, Lum64f, Lum64fc, ToComplexKernel<Lum64fc>)
LUM_TEST_ONE_INPUT(lumTestSilent_32f, Lum32f, Lum32f, SilentKernel)
LUM_TEST_TWO_OUTPUTS(lumTestSilent_64f, Lum64f, SilentTwoOutputsKernel)

#if LUM_HAS_MXCSR
LUM_TEST_EXPORT LumStatus lumTestVariant(ProbedVariant variant, const float* src, float* dst, int32_t len,
                                         EnvironmentSeen* seen) {
  switch (variant) {
    case ProbedVariant::common:
      return RunProbe<common_variant>(src, dst, len, seen);
    case ProbedVariant::pure_vector:
      return RunProbe<pure_vector_variant>(src, dst, len, seen);
    case ProbedVariant::x87_up_front:
      return RunProbe<x87_up_front_variant>(src, dst, len, seen);
    case ProbedVariant::conj:
      return RunProbe<conj_variant>(src, dst, len, seen);
    case ProbedVariant::scalar_core:
      return RunProbe<scalar_core_variant>(src, dst, len, seen);
    case ProbedVariant::element_loop:
      return RunProbe<element_loop_variant>(src, dst, len, seen);
  }
  return lumStsOk;
}
#endif

}  // namespace lum
