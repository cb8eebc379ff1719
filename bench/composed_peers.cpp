// The normal distribution and the inverses, which no peer has, as a user would put them together from a peer's functions:
//   CdfNorm      erfc(-x / sqrt 2) / 2 with the peer's erfc. Its tails lose the digits that the division loses.
//   inverses     in binary64 the rational functions of M. J. Wichura (algorithm AS 241, 1988) on the peer's logarithm, with
//                a relative error of about 10^-16 and not checked for special values; in binary32 the polynomials of
//                M. Giles (Approximating the erfinv function, 2010) on the peer's logarithm, to a few units in the last place.
#include <dlfcn.h>

#include "peers.h"

#if defined(__x86_64__)
#include "frame/intrinsics.h"

namespace lum::bench {
namespace {

using support::Arguments;
using support::Export;
using Doubles = __m512d;
using Floats = __m512;

Doubles All(double x) { return _mm512_set1_pd(x); }
Floats All(float x) { return _mm512_set1_ps(x); }

Doubles Constant(Doubles, double c) { return All(c); }
Floats Constant(Floats, double c) { return All(static_cast<float>(c)); }
Doubles Fused(Doubles a, Doubles b, Doubles c) { return _mm512_fmadd_pd(a, b, c); }
Floats Fused(Floats a, Floats b, Floats c) { return _mm512_fmadd_ps(a, b, c); }

// The highest coefficient first.
template <class V, class... Rest> V Polynomial(V x, double highest, Rest... rest) {
  V sum = Constant(x, highest);
  ((sum = Fused(sum, x, Constant(x, rest))), ...);
  return sum;
}

// The quantile of p, given p - 1/2 and the smaller of p and 1 - p.
Doubles Quantile(Doubles centred, Doubles smaller, Doubles (*logarithm)(Doubles)) {
  const Doubles r = _mm512_fnmadd_pd(centred, centred, All(0.180625));
  const Doubles central =
      centred *
      Polynomial(r, 2509.0809287301226727, 33430.575583588128105, 67265.770927008700853, 45921.953931549871457,
                 13731.693765509461125, 1971.5909503065514427, 133.14166789178437745, 3.387132872796366608) /
      Polynomial(r, 5226.495278852854561, 28729.085735721942674, 39307.89580009271061, 21213.794301586595867,
                 5394.1960214247511077, 687.1870074920579083, 42.313330701600911252, 1.0);
  const __mmask8 in_tail = _mm512_cmp_pd_mask(_mm512_abs_pd(centred), All(0.425), _CMP_GT_OQ);
  if (in_tail == 0) return central;
  const Doubles root = _mm512_sqrt_pd(All(0.0) - logarithm(smaller));
  const Doubles s = root - All(1.6);
  Doubles tail =
      Polynomial(s, 7.7454501427834140764e-4, 0.0227238449892691845833, 0.24178072517745061177, 1.27045825245236838258,
                 3.64784832476320460504, 5.7694972214606914055, 4.6303378461565452959, 1.42343711074968357734) /
      Polynomial(s, 1.05075007164441684324e-9, 5.475938084995344946e-4, 0.0151986665636164571966, 0.14810397642748007459,
                 0.68976733498510000455, 1.6763848301838038494, 2.05319162663775882187, 1.0);
  const __mmask8 is_far = _mm512_mask_cmp_pd_mask(in_tail, root, All(5.0), _CMP_GT_OQ);
  if (is_far != 0) {
    const Doubles t = root - All(5.0);
    const Doubles far =
        Polynomial(t, 2.01033439929228813265e-7, 2.71155556874348757815e-5, 0.0012426609473880784386, 0.026532189526576123093,
                   0.29656057182850489123, 1.7848265399172913358, 5.4637849111641143699, 6.6579046435011037772) /
        Polynomial(t, 2.04426310338993978564e-15, 1.4215117583164458887e-7, 1.8463183175100546818e-5, 7.868691311456132591e-4,
                   0.0148753612908506148525, 0.13692988092273580531, 0.59983220655588793769, 1.0);
    tail = _mm512_mask_mov_pd(tail, is_far, far);
  }
  tail = _mm512_or_pd(tail, _mm512_and_pd(centred, All(-0.0)));
  return _mm512_mask_mov_pd(central, in_tail, tail);
}

// erfinv(x) / x from -log(1 - x^2).
Floats ErfInvOverX(Floats w) {
  const Floats central = Polynomial(w - All(2.5f), 2.81022636e-08, 3.43273939e-07, -3.5233877e-06, -4.39150654e-06,
                                    0.00021858087, -0.00125372503, -0.00417768164, 0.246640727, 1.50140941);
  const __mmask16 is_far = _mm512_cmp_ps_mask(w, All(5.0f), _CMP_GE_OQ);
  if (is_far == 0) return central;
  const Floats tail = Polynomial(_mm512_sqrt_ps(w) - All(3.0f), -0.000200214257, 0.000100950558, 0.00134934322, -0.00367342844,
                                 0.00573950773, -0.0076224613, 0.00943887047, 1.00167406, 2.83297682);
  return _mm512_mask_mov_ps(central, is_far, tail);
}

using Loop = std::function<void(const Arguments&)>;
enum class Function { cdfnorm, cdfnorminv, erfinv, erfcinv };

Doubles Step(Function function, Doubles x, Doubles (*inner)(Doubles)) {
  constexpr double inverse_root2 = 0.70710678118654752;
  switch (function) {
    case Function::cdfnorm:
      return All(0.5) * inner(x * All(-inverse_root2));
    case Function::cdfnorminv:
      return Quantile(x - All(0.5), _mm512_min_pd(x, All(1.0) - x), inner);
    case Function::erfinv:
      return All(inverse_root2) * Quantile(All(0.5) * x, All(0.5) * (All(1.0) - _mm512_abs_pd(x)), inner);
    default:
      return All(inverse_root2) * Quantile(All(0.5) * (All(1.0) - x), All(0.5) * _mm512_min_pd(x, All(2.0) - x), inner);
  }
}
Floats Step(Function function, Floats x, Floats (*inner)(Floats)) {
  const Floats one = All(1.0f);
  switch (function) {
    case Function::cdfnorm:
      return All(0.5f) * inner(x * All(-0.70710678f));
    case Function::cdfnorminv: {
      const Floats w = All(0.0f) - inner(All(4.0f) * x * (one - x));
      return All(1.41421356f) * (x + x - one) * ErfInvOverX(w);
    }
    case Function::erfinv:
      return x * ErfInvOverX(All(0.0f) - inner((one - x) * (one + x)));
    default:
      return (one - x) * ErfInvOverX(All(0.0f) - inner(x * (All(2.0f) - x)));
  }
}

template <Function function> Loop LoopOf(bool is_32bit, void* address) {
  if (is_32bit) {
    return [=](const Arguments& a) {
      const auto inner = reinterpret_cast<Floats (*)(Floats)>(address);
      for (int32_t i = 0; i < a.len; i += 16) {
        const auto mask = static_cast<__mmask16>(a.len - i >= 16 ? 0xFFFF : (1 << (a.len - i)) - 1);
        const Floats x = _mm512_mask_loadu_ps(All(0.5f), mask, static_cast<const float*>(a.src1) + i);
        _mm512_mask_storeu_ps(static_cast<float*>(a.dst1) + i, mask, Step(function, x, inner));
      }
    };
  }
  return [=](const Arguments& a) {
    const auto inner = reinterpret_cast<Doubles (*)(Doubles)>(address);
    for (int32_t i = 0; i < a.len; i += 8) {
      const auto mask = static_cast<__mmask8>(a.len - i >= 8 ? 0xFF : (1 << (a.len - i)) - 1);
      const Doubles x = _mm512_mask_loadu_pd(All(0.5), mask, static_cast<const double*>(a.src1) + i);
      _mm512_mask_storeu_pd(static_cast<double*>(a.dst1) + i, mask, Step(function, x, inner));
    }
  };
}

}  // namespace

std::vector<Peer> FindComposedPeers(const Export& entry) {
  std::vector<Peer> peers;
  if (entry.is_complex() || !support::ProcessorRuns("k0")) return peers;
  const bool is_32bit = entry.is_32bit();
  const auto add = [&](const char* library, const std::string& symbol, const std::string& name, Loop (*loop)(bool, void*)) {
    void* handle = dlopen(library, RTLD_NOW);
    void* address = handle == nullptr ? nullptr : dlsym(handle, symbol.c_str());
    if (address != nullptr) peers.push_back({name, loop(is_32bit, address)});
  };
  const std::string sleef = is_32bit ? "f16" : "d8", libmvec = is_32bit ? "_ZGVeN16v_" : "_ZGVeN8v_",
                    suffix = is_32bit ? "f" : "";
  const auto add_inverse = [&](Loop (*loop)(bool, void*)) {
    add("libsleef.so.3", "Sleef_log" + sleef + "_u10avx512f", "composed_sleef_u10", loop);
    add("libsleef.so.3", "Sleef_log" + sleef + "_u35avx512f", "composed_sleef_u35", loop);
    add("libmvec.so.1", libmvec + "log" + suffix, "composed_libmvec", loop);
  };
  if (entry.function == "CdfNorm") {
    add("libsleef.so.3", "Sleef_erfc" + sleef + "_u15avx512f", "composed_sleef_u15", LoopOf<Function::cdfnorm>);
    add("libmvec.so.1", libmvec + "erfc" + suffix, "composed_libmvec", LoopOf<Function::cdfnorm>);
  }
  if (entry.function == "CdfNormInv") add_inverse(LoopOf<Function::cdfnorminv>);
  if (entry.function == "ErfInv") add_inverse(LoopOf<Function::erfinv>);
  if (entry.function == "ErfcInv") add_inverse(LoopOf<Function::erfcinv>);
  return peers;
}

}  // namespace lum::bench

#else

namespace lum::bench {

std::vector<Peer> FindComposedPeers(const support::Export&) { return {}; }

}  // namespace lum::bench

#endif
