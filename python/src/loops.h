// The inner loops of the ufuncs: NumPy's strided arrays to calls of the C functions over contiguous ones, and what the calls
// report to the floating-point flags that NumPy looks at afterwards.
#pragma once

#include <lumvm.h>
#include <numpy/npy_common.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#if defined(__SSE__)
#include <xmmintrin.h>
#endif

// A function once more for processors with AVX2, where the loader can choose.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define LUM_PYTHON_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define LUM_PYTHON_CLONES
#endif

namespace lum::python {

// How an infinity that comes from finite arguments is to be understood, and when results are looked at.
enum class Infinity { overflow, pole, pole_of_zero_divisor, pole_of_zero };
struct Kind {
  Infinity infinity;
  bool can_underflow;
  bool looks_at_all;  // not every special result comes with a status
};
struct Function {
  void* address;
  Kind kind;
};

// ---- Elements

template <class T> struct PartOf { using Type = T; };
template <> struct PartOf<Lum32fc> { using Type = float; };
template <> struct PartOf<Lum64fc> { using Type = double; };
template <class T> using Part = typename PartOf<T>::Type;
template <class T> inline constexpr int parts_of = sizeof(T) / sizeof(Part<T>);

template <class T> inline bool IsNan(T x) {
  if constexpr (parts_of<T> == 2) return IsNan(x.re) || IsNan(x.im);
  else return x != x;
}
template <class T> inline bool IsInfinite(T x) {
  if constexpr (parts_of<T> == 2) return IsInfinite(x.re) || IsInfinite(x.im);
  else return std::isinf(x);
}
template <class T> inline bool IsFinite(T x) {
  if constexpr (parts_of<T> == 2) return std::isfinite(x.re) && std::isfinite(x.im);
  else return std::isfinite(x);
}
template <class T> inline bool IsZero(T x) {
  if constexpr (parts_of<T> == 2) return x.re == 0 && x.im == 0;
  else return x == 0;
}
template <class T> inline bool HasVanished(T x) {
  if constexpr (parts_of<T> == 2) return HasVanished(x.re) && HasVanished(x.im);
  else return std::fabs(x) < (sizeof(T) == 4 ? static_cast<T>(0x1p-126) : static_cast<T>(0x1p-1022));
}

// ---- Flags

inline constexpr int numpy_flags = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW | FE_UNDERFLOW;

// Where there is MXCSR, it alone is looked at: a call leaves none in the x87 unit.
inline int Flags() {
#if defined(__SSE__)
  return static_cast<int>(_mm_getcsr()) & numpy_flags;
#else
  return std::fetestexcept(numpy_flags);
#endif
}
inline void ReplaceFlags(int flags) {
#if defined(__SSE__)
  _mm_setcsr((_mm_getcsr() & ~static_cast<unsigned>(numpy_flags)) | static_cast<unsigned>(flags));
#else
  std::feclearexcept(numpy_flags & ~flags);
  std::feraiseexcept(flags);
#endif
}

// Which flags an element's result asks for.
template <class In, class Out> int FlagsOf(Kind kind, const In* x, const In* y, const Out& result) {
  const bool nan = IsNan(*x) || (y != nullptr && IsNan(*y));
  if (IsNan(result)) return nan ? 0 : FE_INVALID;
  const bool finite = IsFinite(*x) && (y == nullptr || IsFinite(*y));
  if (!finite) return 0;
  if (IsInfinite(result)) {
    const bool is_pole = kind.infinity == Infinity::pole ||
                         (kind.infinity == Infinity::pole_of_zero_divisor && y != nullptr && IsZero(*y)) ||
                         (kind.infinity == Infinity::pole_of_zero && IsZero(*x));
    return is_pole ? FE_DIVBYZERO : FE_OVERFLOW;
  }
  return kind.can_underflow && HasVanished(result) ? FE_UNDERFLOW : 0;
}

// By the exponents, in one pass that the compiler makes of vector operations: with one more, an exponent of ones carries into
// the sign. (64-bit comparisons are none of SSE2's instructions.)
template <class Bits, class Number> [[gnu::always_inline]] inline bool AllFiniteBits(const Number* numbers, npy_intp n) {
  constexpr Bits exponent = sizeof(Bits) == 4 ? static_cast<Bits>(0x7F800000) : static_cast<Bits>(0x7FF0000000000000);
  constexpr Bits one = exponent & (~exponent + 1);
  Bits found = 0;
  for (npy_intp i = 0; i < n; ++i) {
    Bits bits;
    std::memcpy(&bits, numbers + i, sizeof bits);
    found |= (bits & exponent) + one;
  }
  return (found & ~(~Bits{0} >> 1)) == 0;
}
LUM_PYTHON_CLONES static bool AllFinite(const float* numbers, npy_intp n) { return AllFiniteBits<uint32_t>(numbers, n); }
LUM_PYTHON_CLONES static bool AllFinite(const double* numbers, npy_intp n) { return AllFiniteBits<uint64_t>(numbers, n); }

template <class In, class Out>
int FlagsOfBlock(Kind kind, LumStatus status, const In* x, const In* y, const Out* results, npy_intp n) {
  if (status <= 0 && (!kind.looks_at_all || AllFinite(reinterpret_cast<const Part<Out>*>(results), n * parts_of<Out>)))
    return 0;
  int flags = 0;
  for (npy_intp i = 0; i < n; ++i) flags |= FlagsOf(kind, x + i, y == nullptr ? nullptr : y + i, results[i]);
  return flags;
}

// The caller's flags are kept: a call may clear some of them, and raises none of its own accord that NumPy should see.
class KeptFlags {
 public:
  KeptFlags() : before_(Flags()) {}
  ~KeptFlags() {
    if (const int wanted = before_ | asked_; Flags() != wanted) ReplaceFlags(wanted);
  }
  KeptFlags(const KeptFlags&) = delete;
  KeptFlags& operator=(const KeptFlags&) = delete;
  void Ask(int flags) { asked_ |= flags; }

 private:
  int before_, asked_ = 0;
};

// ---- Strides

// Blocks of these many elements go through buffers; contiguous arrays go in runs that stay in the first cache.
inline constexpr npy_intp buffered = 256;
template <class T> inline constexpr npy_intp run_length = 16384 / static_cast<npy_intp>(sizeof(T));

template <class T> void Gather(T* buffer, const char* from, npy_intp step, npy_intp n) {
  if (step == static_cast<npy_intp>(sizeof(T))) {
    std::memcpy(buffer, from, static_cast<size_t>(n) * sizeof(T));
    return;
  }
  for (npy_intp i = 0; i < n; ++i) std::memcpy(buffer + i, from + i * step, sizeof(T));
}
template <class T> void Scatter(char* to, npy_intp step, const T* buffer, npy_intp n) {
  if (step == static_cast<npy_intp>(sizeof(T))) {
    std::memcpy(to, buffer, static_cast<size_t>(n) * sizeof(T));
    return;
  }
  for (npy_intp i = 0; i < n; ++i) std::memcpy(to + i * step, buffer + i, sizeof(T));
}

struct Extent {
  intptr_t first, last;  // of the bytes
};
inline Extent ExtentOf(const char* data, npy_intp step, npy_intp n, size_t size) {
  const auto begin = reinterpret_cast<intptr_t>(data), end = begin + (n - 1) * step;
  return {begin < end ? begin : end, (begin < end ? end : begin) + static_cast<intptr_t>(size) - 1};
}
// Do an input and an output meet in another way than element by element in the same place? Then each element has to be finished
// before the next one is read, as in the loops of accumulate.
template <class In, class Out>
bool Entangled(const char* in, npy_intp in_step, const char* out, npy_intp out_step, npy_intp n) {
  if (n < 2) return false;
  if (in == out && in_step == out_step && in_step != 0 && sizeof(In) == sizeof(Out)) {
    const npy_intp distance = in_step < 0 ? -in_step : in_step;
    return distance < static_cast<npy_intp>(sizeof(In));
  }
  const Extent a = ExtentOf(in, in_step, n, sizeof(In)), b = ExtentOf(out, out_step, n, sizeof(Out));
  return a.first <= b.last && b.first <= a.last;
}

// ---- Loops

// run(i, count) for all blocks of at most `length` of n elements.
template <class Run> void ForBlocks(npy_intp n, npy_intp length, const Run& run) {
  for (npy_intp i = 0; i < n; i += length) run(i, n - i < length ? n - i : length);
}

template <class In, class Out> void OneInput(char** args, const npy_intp* dimensions, const npy_intp* steps, void* data) {
  const auto& function = *static_cast<const Function*>(data);
  const auto call = reinterpret_cast<LumStatus (*)(const In*, Out*, int32_t)>(function.address);
  const npy_intp n = dimensions[0];
  const char* x = args[0];
  char* y = args[1];
  KeptFlags flags;
  const bool entangled = Entangled<In, Out>(x, steps[0], y, steps[1], n);
  const bool contiguous = steps[0] == sizeof(In) && steps[1] == sizeof(Out) && x != y && !entangled;
  if (contiguous) {
    ForBlocks(n, run_length<In>, [&](npy_intp i, npy_intp count) {
      const auto* from = reinterpret_cast<const In*>(x) + i;
      auto* to = reinterpret_cast<Out*>(y) + i;
      const LumStatus status = call(from, to, static_cast<int32_t>(count));
      flags.Ask(FlagsOfBlock<In, Out>(function.kind, status, from, nullptr, to, count));
    });
    return;
  }
  const npy_intp block = entangled ? 1 : buffered;
  In arguments[buffered];
  Out results[buffered];
  ForBlocks(n, block, [&](npy_intp i, npy_intp count) {
    Gather(arguments, x + i * steps[0], steps[0], count);
    const LumStatus status = call(arguments, results, static_cast<int32_t>(count));
    flags.Ask(FlagsOfBlock<In, Out>(function.kind, status, arguments, nullptr, results, count));
    Scatter(y + i * steps[1], steps[1], results, count);
  });
}

// call(x1, x2, result, count) over arrays or buffers.
template <class T, class Call>
void OverTwoInputs(char** args, const npy_intp* dimensions, const npy_intp* steps, Kind kind, const Call& call) {
  const npy_intp n = dimensions[0];
  const char *x1 = args[0], *x2 = args[1];
  char* y = args[2];
  KeptFlags flags;
  const bool entangled = Entangled<T, T>(x1, steps[0], y, steps[2], n) || Entangled<T, T>(x2, steps[1], y, steps[2], n);
  const bool contiguous = steps[0] == sizeof(T) && steps[1] == sizeof(T) && steps[2] == sizeof(T) && x1 != y && x2 != y;
  if (contiguous && !entangled) {
    ForBlocks(n, run_length<T>, [&](npy_intp i, npy_intp count) {
      const auto *from1 = reinterpret_cast<const T*>(x1) + i, *from2 = reinterpret_cast<const T*>(x2) + i;
      auto* to = reinterpret_cast<T*>(y) + i;
      const LumStatus status = call(from1, from2, to, static_cast<int32_t>(count));
      flags.Ask(FlagsOfBlock<T, T>(kind, status, from1, from2, to, count));
    });
    return;
  }
  const npy_intp block = entangled ? 1 : buffered;
  T arguments1[buffered], arguments2[buffered], results[buffered];
  ForBlocks(n, block, [&](npy_intp i, npy_intp count) {
    Gather(arguments1, x1 + i * steps[0], steps[0], count);
    Gather(arguments2, x2 + i * steps[1], steps[1], count);
    const LumStatus status = call(arguments1, arguments2, results, static_cast<int32_t>(count));
    flags.Ask(FlagsOfBlock<T, T>(kind, status, arguments1, arguments2, results, count));
    Scatter(y + i * steps[2], steps[2], results, count);
  });
}

template <class T> void TwoInputs(char** args, const npy_intp* dimensions, const npy_intp* steps, void* data) {
  const auto& function = *static_cast<const Function*>(data);
  const auto call = reinterpret_cast<LumStatus (*)(const T*, const T*, T*, int32_t)>(function.address);
  OverTwoInputs<T>(args, dimensions, steps, function.kind, call);
}

// The parameter as a second input: a call for each run of the same value.
template <class T> void Parameter(char** args, const npy_intp* dimensions, const npy_intp* steps, void* data) {
  const auto& function = *static_cast<const Function*>(data);
  const auto call = reinterpret_cast<LumStatus (*)(const T*, T, T*, int32_t)>(function.address);
  OverTwoInputs<T>(args, dimensions, steps, function.kind, [call](const T* x, const T* values, T* y, int32_t count) {
    LumStatus last = lumStsOk;
    for (int32_t i = 0; i < count;) {
      int32_t end = i + 1;
      while (end < count && std::memcmp(values + end, values + i, sizeof(T)) == 0) ++end;
      if (const LumStatus status = call(x + i, values[i], y + i, end - i); status != lumStsOk) last = status;
      i = end;
    }
    return last;
  });
}

// Two outputs, which a function may give in another order than NumPy's.
template <class T, bool exchanged> void TwoOutputs(char** args, const npy_intp* dimensions, const npy_intp* steps, void* data) {
  const auto& function = *static_cast<const Function*>(data);
  const auto call = reinterpret_cast<LumStatus (*)(const T*, T*, T*, int32_t)>(function.address);
  const npy_intp n = dimensions[0];
  char *first = args[exchanged ? 2 : 1], *second = args[exchanged ? 1 : 2];
  const npy_intp first_step = steps[exchanged ? 2 : 1], second_step = steps[exchanged ? 1 : 2];
  KeptFlags flags;
  const bool entangled =
      Entangled<T, T>(args[0], steps[0], first, first_step, n) || Entangled<T, T>(args[0], steps[0], second, second_step, n);
  const bool contiguous = steps[0] == sizeof(T) && first_step == sizeof(T) && second_step == sizeof(T) && args[0] != first &&
                          args[0] != second && !Entangled<T, T>(first, first_step, second, second_step, n);
  if (contiguous && !entangled) {
    ForBlocks(n, run_length<T>, [&](npy_intp i, npy_intp count) {
      const auto* from = reinterpret_cast<const T*>(args[0]) + i;
      auto *to1 = reinterpret_cast<T*>(first) + i, *to2 = reinterpret_cast<T*>(second) + i;
      const LumStatus status = call(from, to1, to2, static_cast<int32_t>(count));
      flags.Ask(FlagsOfBlock<T, T>(function.kind, status, from, nullptr, to1, count) |
                FlagsOfBlock<T, T>(function.kind, status, from, nullptr, to2, count));
    });
    return;
  }
  const npy_intp block = entangled ? 1 : buffered;
  T arguments[buffered], results1[buffered], results2[buffered];
  ForBlocks(n, block, [&](npy_intp i, npy_intp count) {
    Gather(arguments, args[0] + i * steps[0], steps[0], count);
    const LumStatus status = call(arguments, results1, results2, static_cast<int32_t>(count));
    flags.Ask(FlagsOfBlock<T, T>(function.kind, status, arguments, nullptr, results1, count) |
              FlagsOfBlock<T, T>(function.kind, status, arguments, nullptr, results2, count));
    Scatter(first + i * first_step, first_step, results1, count);
    Scatter(second + i * second_step, second_step, results2, count);
  });
}

}  // namespace lum::python
